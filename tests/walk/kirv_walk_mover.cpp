// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/walk/kirv_walk_mover.h"

#include "client/kirv_export_window.h"
#include "client/kirv_import_window.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/accounts/kirv_account_history.h"
#include "tests/support/kirv_patience.h"

#include <QCheckBox>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

namespace {

const int maximumAccounts = 12; ///< an import begins with fewer
const QString phrase = QStringLiteral("seven green horses");

QTreeWidgetItem *rowOf(const QTreeWidget *list, int number)
{
    return list->topLevelItemCount() ? list->topLevelItem(number % list->topLevelItemCount()) : nullptr;
}

void toggle(QTreeWidgetItem *row)
{
    if (row && !row->isDisabled())
        row->setCheckState(0, row->checkState(0) == Qt::Checked ? Qt::Unchecked : Qt::Checked);
}

} // namespace

KirvWalkMover::KirvWalkMover(KirvWalk &walk)
    : walk(walk)
{
}

std::vector<KirvWalkStep> KirvWalkMover::steps()
{
    return {
        { "open export", 3, [this] { openExport(); } },
        { "use export", 6, [this] { useExport(); } },
        { "open import", 4, [this] { openImport(); } },
        { "use import", 12, [this] { useImport(); } },
        { "undo", 10, [this] { undo(); } },
    };
}

void KirvWalkMover::openExport()
{
    walk.client->window()->findChild<QPushButton *>(QStringLiteral("General_ExportButton"))->click();
}

void KirvWalkMover::useExport()
{
    auto *window = walk.anyVisible<KirvExportWindow>();
    if (!window)
        return;
    switch (walk.below(6)) {
    case 0:
        toggle(rowOf(window->findChild<QTreeWidget *>(QStringLiteral("ExportAccounts_List")), walk.below(100)));
        break;
    case 1:
        window->reject();
        break;
    default:
        exportAccounts(walk.maybe(20));
    }
}

void KirvWalkMover::exportAccounts(bool isCancelled)
{
    const QPointer<KirvExportWindow> window = walk.anyVisible<KirvExportWindow>();
    const bool hasPasswords = walk.maybe(50);
    window->findChild<QCheckBox *>(QStringLiteral("ExportAccounts_Passwords"))->setChecked(hasPasswords);
    for (const char *name : { "ExportAccounts_PassPhrase", "ExportAccounts_Repetition" })
        window->findChild<QLineEdit *>(QLatin1String(name))->setText(hasPasswords ? phrase : QString());
    const auto *button = window->findChild<QPushButton *>(QStringLiteral("ExportAccounts_Export"));
    if (!button->isEnabled())
        return;
    // Whether one that is cancelled is still written depends on the threads: nothing reads it.
    window->exportTo(isCancelled ? walk.exported + QLatin1String(".cancelled") : walk.exported);
    if (isCancelled && walk.maybe(50))
        window->reject();
    else if (isCancelled)
        window->findChild<QPushButton *>(QStringLiteral("ExportAccounts_Cancel"))->click();
    if (!QTest::qWaitFor([&window] { return !window || !window->isWriting() || !window->isVisible(); }, kirvPatience))
        qWarning("An export does not end.");
    if (!isCancelled)
        walk.saw(hasPasswords ? QStringLiteral("an export with passwords") : QStringLiteral("an export without them"));
}

void KirvWalkMover::openImport()
{
    if (!QFile::exists(walk.exported) || walk.client->accounts().accounts().size() >= maximumAccounts)
        return;
    walk.client->window()->findChild<QPushButton *>(QStringLiteral("General_ImportButton"))->click();
    if (auto *dialog = walk.anyVisible<QFileDialog>(QStringLiteral("ImportAccounts_File"))) {
        QMetaObject::invokeMethod(dialog, "fileSelected", Q_ARG(QString, walk.exported));
        dialog->close();
    }
    waitForReading(walk.anyVisible<KirvImportWindow>());
}

void KirvWalkMover::useImport()
{
    auto *window = walk.anyVisible<KirvImportWindow>();
    if (!window)
        return;
    const auto *line = window->findChild<QLineEdit *>(QStringLiteral("ImportAccounts_PassPhrase"));
    const auto *list = window->findChild<QTreeWidget *>(QStringLiteral("ImportAccounts_List"));
    if (line->isVisible())
        enterPassPhrase(window);
    else if (!list->isVisible() || walk.maybe(10))
        window->reject();
    else if (walk.maybe(20))
        toggle(rowOf(list, walk.below(100)));
    else
        importAccounts(window);
}

void KirvWalkMover::enterPassPhrase(KirvImportWindow *window)
{
    auto *line = window->findChild<QLineEdit *>(QStringLiteral("ImportAccounts_PassPhrase"));
    line->setText(walk.maybe(80) ? phrase : QStringLiteral("eight green horses"));
    const bool isWithout = walk.maybe(20);
    window
        ->findChild<QPushButton *>(isWithout ? QStringLiteral("ImportAccounts_WithoutPasswords")
                                             : QStringLiteral("ImportAccounts_Action"))
        ->click();
    waitForReading(window);
}

void KirvWalkMover::importAccounts(KirvImportWindow *window)
{
    if (auto *all = window->findChild<QCheckBox *>(QStringLiteral("ImportAccounts_All"));
        all->checkState() != Qt::Checked && walk.maybe(70))
        all->click();
    bool replaces = false;
    const auto *list = window->findChild<QTreeWidget *>(QStringLiteral("ImportAccounts_List"));
    for (int i = 0; i < list->topLevelItemCount(); ++i) {
        const QTreeWidgetItem *row = list->topLevelItem(i);
        const KirvAccountKey key { row->data(0, Qt::UserRole).toString(), row->text(1) };
        replaces = replaces || (row->checkState(0) == Qt::Checked && walk.client->accounts().find(key));
    }
    auto *button = window->findChild<QPushButton *>(QStringLiteral("ImportAccounts_Action"));
    if (!button->isEnabled())
        return;
    const QPointer<KirvImportWindow> used(window);
    button->click();
    if (used && used->isVisible())
        walk.saw(QStringLiteral("an import that is refused"));
    else if (replaces)
        walk.saw(QStringLiteral("an import that replaces accounts"));
}

void KirvWalkMover::waitForReading(KirvImportWindow *window)
{
    const QPointer<KirvImportWindow> used(window);
    const auto isOver = [&used] {
        return !used || !used->findChild<QProgressBar *>(QStringLiteral("ImportAccounts_Progress"))->isVisibleTo(used);
    };
    if (!QTest::qWaitFor(isOver, kirvPatience))
        qWarning("Reading a file does not end.");
}

/// Also what was removed and disabled.
void KirvWalkMover::undo()
{
    const KirvAccountHistory &history = walk.client->accountHistory();
    const auto note = QObject::connect(&history, &KirvAccountHistory::stepAdded, &history, [this, &history](int step) {
        if (history.kindOf(step) == KirvAccountHistory::UndoneImport)
            walk.saw(QStringLiteral("an import that is undone"));
    });
    auto *command = walk.anyVisible<QPushButton>(QStringLiteral("MessageBar_Command"));
    if (command && walk.maybe(70))
        command->click();
    else
        QTest::keyClick(walk.client->window(), Qt::Key_Z, Qt::ControlModifier);
    QObject::disconnect(note);
}
