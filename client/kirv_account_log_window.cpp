// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_account_log_window.h"

#include "client/kirv_button_flow.h"
#include "client/kirv_event_delegate.h"
#include "client/kirv_plain_text.h"
#include "core/accounts/kirv_account.h"
#include "core/accounts/kirv_account_log.h"
#include "core/protocol/kirv_login_step.h"

#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QListWidget>
#include <QLocale>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

KirvAccountLogWindow::KirvAccountLogWindow(KirvAccount &account, QWidget *parent)
    : QDialog(parent)
    , accountKey(account.key())
    , log(account.log())
    , list(new QListWidget(this))
{
    setObjectName(QStringLiteral("AccountLog"));
    //: %1 = name of an account
    setWindowTitle(tr("Log of %1").arg(kirvPlainName(account.displayName())));
    createList();
    arrange();
    connect(&log, &KirvAccountLog::entryAdded, this, &KirvAccountLogWindow::refreshLater);
    const int unit = fontMetrics().averageCharWidth();
    const QSize available = parent->screen()->availableSize();
    resize(std::min(80 * unit, available.width()), std::min(45 * unit, available.height()));
    refresh();
    list->setFocus();
}

void KirvAccountLogWindow::createList()
{
    list->setObjectName(QStringLiteral("AccountLog_Entries"));
    list->setAccessibleName(windowTitle());
    list->setItemDelegate(new KirvEventDelegate(list));
    list->setResizeMode(QListView::Adjust);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    auto *copyKey = new QShortcut(QKeySequence::Copy, list);
    copyKey->setContext(Qt::WidgetShortcut);
    connect(copyKey, &QShortcut::activated, this, &KirvAccountLogWindow::copy);
}

void KirvAccountLogWindow::arrange()
{
    auto *copyButton = new QPushButton(tr("&Copy"), this);
    copyButton->setObjectName(QStringLiteral("AccountLog_Copy"));
    copyButton->setToolTip(tr("Copies the selected entries, or all when none is selected. They hold no passwords."));
    connect(copyButton, &QPushButton::clicked, this, &KirvAccountLogWindow::copy);
    auto *reportButton = new QPushButton(tr("&Report…"), this);
    reportButton->setObjectName(QStringLiteral("AccountLog_Report"));
    reportButton->setToolTip(tr("Puts the log and the versions of the program together for somebody who helps."));
    connect(reportButton, &QPushButton::clicked, this, [this] { Q_EMIT reportRequested(accountKey); });
    auto *close = new QDialogButtonBox(QDialogButtonBox::Close, this);
    close->setObjectName(QStringLiteral("AccountLog_Buttons"));
    connect(close, &QDialogButtonBox::rejected, this, &QDialog::reject);
    close->button(QDialogButtonBox::Close)->setDefault(true);
    auto *buttons = new KirvButtonFlow(this);
    buttons->addAtBeginning(copyButton);
    buttons->addAtBeginning(reportButton);
    buttons->addAtEnd(close);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(list, 1);
    layout->addWidget(buttons);
}

void KirvAccountLogWindow::refreshLater()
{
    if (!std::exchange(isRefreshDue, true))
        QMetaObject::invokeMethod(this, &KirvAccountLogWindow::refresh, Qt::QueuedConnection);
}

/// Adds the rows that are missing; what the user looks at stays where it is, unless that is the end.
void KirvAccountLogWindow::refresh()
{
    isRefreshDue = false;
    const QScrollBar *bar = list->verticalScrollBar();
    const bool isAtEnd = bar->value() >= bar->maximum();
    const QList<KirvAccountLog::Entry> entries = log.entries();
    const quint64 missing = std::min(log.total() - shown, quint64(entries.size()));
    shown = log.total();
    for (int i = int(entries.size()) - int(missing); i < entries.size(); ++i) {
        const KirvAccountLog::Entry &entry = entries.at(i);
        const QString time = QLocale().toString(entry.time.time(), QStringLiteral("HH:mm:ss"));
        //: %1 = time of day, %2 = an event
        auto *row = new QListWidgetItem(tr("%1  %2").arg(time, kirvVisibleText(entry.text)), list);
        if (entry.isFailure)
            row->setData(KirvEventDelegate::OutcomeRole, int(KirvLoginStep::Failed));
    }
    while (list->count() > KirvAccountLog::mostEntries)
        delete list->takeItem(0);
    if (isAtEnd)
        list->scrollToBottom();
}

void KirvAccountLogWindow::copy() const
{
    const bool isAll = list->selectedItems().isEmpty();
    QStringList lines;
    for (int row = 0; row < list->count(); ++row) {
        if (isAll || list->item(row)->isSelected())
            lines << list->item(row)->text();
    }
    QApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}
