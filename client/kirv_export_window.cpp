// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_export_window.h"

#include "client/kirv_account_check_list.h"
#include "client/kirv_button_flow.h"
#include "client/kirv_left_out.h"
#include "client/kirv_plain_text.h"
#include "client/kirv_text_label.h"
#include "client/kirv_wrapped_text.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/accounts/kirv_main_account.h"
#include "core/moving/kirv_account_export.h"
#include "core/moving/kirv_moving_file.h"
#include "core/moving/kirv_pass_phrase.h"
#include "core/ui/kirv_form_area.h"
#include "core/ui/kirv_length_limit.h"
#include "core/ui/kirv_reveal_button.h"

#include <QAccessible>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSet>
#include <QVBoxLayout>

#include <utility>

namespace {

const int comfortableExportWidth = 65; // in average characters

QLabel *createLabel(const QString &text, QLineEdit *line, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setObjectName(line->objectName() + QStringLiteral("_Label"));
    label->setBuddy(line);
    return label;
}

} // namespace

KirvExportWindow::KirvExportWindow(const KirvAccountCollection &accounts, const KirvMainAccount &mainAccount,
                                   const QList<KirvAccountKey> &chosen, QWidget *parent)
    : KirvMoveDialog(QStringLiteral("ExportAccounts"), tr("Export Accounts"), parent)
    , accounts(accounts)
    , mainAccount(mainAccount)
{
    QWidget *content = createContent();
    build(content, createButtons(), comfortableExportWidth);
    check(chosen);
    connect(&accounts, &KirvAccountCollection::accountAdded, this, &KirvExportWindow::refreshList);
    connect(&accounts, &KirvAccountCollection::accountRemoved, this, &KirvExportWindow::refreshList);
    grow();
    list->focusList();
}

KirvExportWindow::~KirvExportWindow()
{
    if (isWanted)
        *isWanted = false;
}

QWidget *KirvExportWindow::createContent()
{
    auto *content = new QWidget(area);
    list = new KirvAccountCheckList(QStringLiteral("ExportAccounts"), {}, content);
    passwordsBox = new QCheckBox(tr("Include &passwords (encrypted)"), content);
    passwordsBox->setObjectName(QStringLiteral("ExportAccounts_Passwords"));
    passPhrase = createPassPhrase();
    passPhrase->hide();
    outcomeText = new KirvWrappedText(content);
    outcomeText->setObjectName(QStringLiteral("ExportAccounts_Outcome"));
    outcomeText->setAccessibleName(tr("Result"));
    outcomeText->hide();
    connect(list, &KirvAccountCheckList::changed, this, &KirvExportWindow::updateControls);
    connect(passwordsBox, &QCheckBox::toggled, this, [this](bool isChecked) {
        passPhrase->setVisible(isChecked);
        updateControls();
        growLater();
    });
    auto *column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(list, 1);
    column->addWidget(passwordsBox);
    column->addWidget(passPhrase);
    column->addWidget(outcomeText);
    return content;
}

QWidget *KirvExportWindow::createPassPhrase()
{
    auto *place = new QWidget(area);
    place->setObjectName(QStringLiteral("ExportAccounts_PassPhrasePlace"));
    passPhraseLine = createPassPhraseLine("ExportAccounts_PassPhrase");
    repetitionLine = createPassPhraseLine("ExportAccounts_Repetition");
    auto *advice = kirvCreateText(
        "ExportAccounts_Advice",
        tr("Several words that are not related are easy to remember and hard to guess. Whoever has the file and "
           "guesses the pass phrase has your passwords; without it, nobody can read them, not even you."),
        place);
    passPhraseLine->setAccessibleDescription(advice->text());
    problem = kirvCreateText("ExportAccounts_Problem", QString(), place);
    auto *lines = new QWidget(place);
    auto *form = new QFormLayout(lines);
    form->setContentsMargins(0, 0, 0, 0);
    form->addRow(createLabel(tr("Pass p&hrase:"), passPhraseLine, place), passPhraseLine);
    form->addRow(createLabel(tr("&Repeat pass phrase:"), repetitionLine, place), repetitionLine);
    auto *column = new QVBoxLayout(place);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(lines);
    column->addWidget(problem);
    column->addWidget(advice);
    for (QLineEdit *line : { passPhraseLine, repetitionLine }) {
        KirvRevealButton *reveal = KirvRevealButton::addBeside(line);
        reveal->setObjectName(line->objectName() + QStringLiteral("_Reveal"));
        line->setMaxLength(KirvPassPhrase::longest);
        kirvLimitLength(line);
        connect(line, &QLineEdit::textChanged, this, &KirvExportWindow::updateControls);
    }
    return place;
}

QLineEdit *KirvExportWindow::createPassPhraseLine(const char *name)
{
    auto *line = new QLineEdit;
    line->setObjectName(QLatin1String(name));
    return line;
}

QWidget *KirvExportWindow::createButtons()
{
    exportButton = new QPushButton(tr("&Export…"), this);
    exportButton->setObjectName(QStringLiteral("ExportAccounts_Export"));
    exportButton->setToolTip(tr("Choose the file to which the accounts are written."));
    connect(exportButton, &QPushButton::clicked, this, &KirvExportWindow::chooseFile);
    box = new QDialogButtonBox(QDialogButtonBox::Close | QDialogButtonBox::Cancel, this);
    box->setObjectName(QStringLiteral("ExportAccounts_Buttons"));
    box->button(QDialogButtonBox::Close)->setObjectName(QStringLiteral("ExportAccounts_Close"));
    box->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("ExportAccounts_Cancel"));
    box->button(QDialogButtonBox::Cancel)->hide();
    connect(box->button(QDialogButtonBox::Close), &QPushButton::clicked, this, &KirvExportWindow::reject);
    connect(box->button(QDialogButtonBox::Cancel), &QPushButton::clicked, this, &KirvExportWindow::cancel);
    auto *buttons = new KirvButtonFlow(this);
    buttons->addAtEnd(exportButton);
    buttons->addAtEnd(box);
    return buttons;
}

void KirvExportWindow::check(const QList<KirvAccountKey> &chosen)
{
    if (isWriting())
        return;
    listed.clear();
    setRows(chosen, chosen.isEmpty());
}

/// From the event loop: many may come or go at once.
void KirvExportWindow::refreshList()
{
    if (std::exchange(isRefreshDue, true))
        return;
    const auto refresh = [this] {
        isRefreshDue = false;
        const bool areAllChecked = list->checkedCount() == list->count();
        setRows(list->checkedAccounts(), areAllChecked);
    };
    QMetaObject::invokeMethod(this, refresh, Qt::QueuedConnection);
}

/// \a areNewOnesChecked is about those that were not listed before.
void KirvExportWindow::setRows(const QList<KirvAccountKey> &checked, bool areNewOnesChecked)
{
    const QSet<KirvAccountKey> wanted(checked.begin(), checked.end());
    const QSet<KirvAccountKey> before(listed.begin(), listed.end());
    listed.clear();
    QList<KirvAccountCheckList::Row> rows;
    const QList<KirvAccount *> all = accounts.accounts();
    for (const KirvAccount *account : all) {
        KirvAccountCheckList::Row row;
        row.account = account->key();
        row.alias = account->record().alias;
        row.isChecked = wanted.contains(row.account) || (areNewOnesChecked && !before.contains(row.account));
        rows << row;
        listed << row.account;
    }
    list->setRows(rows);
    updateControls();
}

QString KirvExportWindow::passPhraseProblem() const
{
    if (!passwordsBox->isChecked())
        return QString();
    const QString wrong = KirvPassPhrase::problemWithNew(passPhraseLine->text());
    if (wrong.isEmpty() && passPhraseLine->text() != repetitionLine->text())
        return tr("The two pass phrases must be the same.");
    return wrong;
}

void KirvExportWindow::updateControls()
{
    const QString wrong = passPhraseProblem();
    problem->setText(wrong);
    problem->setVisible(!wrong.isEmpty());
    repetitionLine->setAccessibleDescription(wrong);
    area->widget()->setEnabled(!isWriting());
    progress->setVisible(isWriting());
    exportButton->setEnabled(!isWriting() && list->checkedCount() > 0 && wrong.isEmpty());
    box->button(QDialogButtonBox::Close)->setVisible(!isWriting());
    box->button(QDialogButtonBox::Cancel)->setVisible(isWriting());
    exportButton->setDefault(exportButton->isEnabled());
}

void KirvExportWindow::chooseFile()
{
    auto *dialog = new QFileDialog(this, tr("Export Accounts"), QDir::homePath());
    dialog->setObjectName(QStringLiteral("ExportAccounts_File"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setNameFilters({ tr("Exported accounts (*.json)"), tr("All files (*)") });
    dialog->setDefaultSuffix(QStringLiteral("json"));
    dialog->selectFile(QStringLiteral("kirv-accounts.json"));
    connect(dialog, &QFileDialog::fileSelected, this, &KirvExportWindow::exportTo);
    dialog->open();
}

void KirvExportWindow::exportTo(const QString &path)
{
    if (!exportButton->isEnabled())
        return;
    QList<KirvAccount *> chosen;
    const QList<KirvAccountKey> checked = list->checkedAccounts();
    for (const KirvAccountKey &key : checked) {
        if (KirvAccount *account = accounts.find(key)) // it may have been removed just now
            chosen << account;
    }
    const QString phrase = passwordsBox->isChecked() ? passPhraseLine->text() : QString();
    const KirvMovedAccounts moved =
        KirvAccountExport::collect(accounts, mainAccount, chosen, passwordsBox->isChecked());
    isWanted = std::make_shared<std::atomic<bool>>(true);
    job.run<Outcome>([moved, phrase, path, isWanted = isWanted](
                         const KirvBackgroundJob::Flag &) { return write(moved, phrase, path, isWanted); },
                     [this, path](const Outcome &outcome) { finish(outcome, path); });
    outcomeText->hide();
    updateControls();
    box->button(QDialogButtonBox::Cancel)->setFocus();
}

/// In the thread.
KirvExportWindow::Outcome KirvExportWindow::write(KirvMovedAccounts moved, const QString &phrase, const QString &path,
                                                  const KirvBackgroundJob::Flag &isWanted)
{
    Outcome outcome;
    KirvAccountExport::readPictures(&moved);
    const QByteArray bytes = KirvAccountFile::write(moved, phrase, &outcome.problem);
    if (outcome.problem.isEmpty()) {
        outcome.problem = KirvMovingFile::write(path, bytes, [&outcome, isWanted] {
            outcome.isCancelled = !*isWanted;
            return !outcome.isCancelled;
        });
    }
    outcome.count = int(moved.accounts.size());
    outcome.leftOut = moved.leftOut;
    return outcome;
}

void KirvExportWindow::cancel()
{
    if (isWanted)
        *isWanted = false;
    box->button(QDialogButtonBox::Cancel)->setEnabled(false);
}

void KirvExportWindow::reject()
{
    cancel();
    QDialog::reject();
}

void KirvExportWindow::finish(const Outcome &outcome, const QString &path)
{
    box->button(QDialogButtonBox::Cancel)->setEnabled(true);
    updateControls();
    if (outcome.isCancelled || !outcome.problem.isEmpty()) {
        exportButton->setFocus();
        showOutcome(outcome.isCancelled ? tr("The export was cancelled; nothing was written.") : outcome.problem);
        return;
    }
    QStringList texts;
    //: %1 = path of a file
    texts << tr("%n accounts were exported to %1.", nullptr, outcome.count)
                 .arg(kirvPlainName(QDir::toNativeSeparators(path)));
    texts << (passwordsBox->isChecked() ? tr("The stored passwords are in it, encrypted with the pass phrase.")
                                        : tr("The file contains no passwords."));
    const QString leftOut = kirvLeftOutText(tr("The following is not in the file:"), outcome.leftOut);
    if (!leftOut.isEmpty())
        texts << leftOut;
    passPhraseLine->clear();
    repetitionLine->clear();
    passwordsBox->setChecked(false);
    box->button(QDialogButtonBox::Close)->setDefault(true);
    box->button(QDialogButtonBox::Close)->setFocus();
    showOutcome(texts.join(QLatin1Char('\n')));
}

void KirvExportWindow::showOutcome(const QString &text)
{
    outcomeText->showText(text);
    outcomeText->show();
    const auto reveal = [this] {
        grow();
        area->ensureWidgetVisible(outcomeText);
    };
    QMetaObject::invokeMethod(this, reveal, Qt::QueuedConnection);
    QAccessibleEvent news(outcomeText, QAccessible::Alert);
    QAccessible::updateAccessibility(&news);
}
