// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_accounts_page_companion.h"

#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_name_delegate.h"
#include "client/kirv_plain_text.h"
#include "core/accounts/kirv_account_collection.h"

#include <QCoreApplication>
#include <QItemSelectionModel>
#include <QPalette>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTreeWidget>

#include <utility>

namespace {
enum Column { AliasColumn, ProtocolColumn, IdColumn };
}

KirvAccountsPageCompanion::KirvAccountsPageCompanion(QWidget *top, KirvAccountCollection &accounts)
    : QObject(top)
    , accounts(accounts)
    , list(top->findChild<QTreeWidget *>(QStringLiteral("Accounts_List")))
{
    list->setItemDelegate(new KirvNameDelegate(list));
    // The add dialog makes the row of its account itself, after this; accounts that come another way have none. The
    // page takes the row away itself, after this, when it removed the account.
    connect(&accounts, &KirvAccountCollection::accountAdded, this,
            [this](const KirvAccount *account) { syncRowLater(account->key()); });
    connect(&accounts, &KirvAccountCollection::accountRemoved, this,
            [this](const QString &id, const QString &protocol) {
                syncRowLater({ id, protocol });
            });
    connect(&accounts, &KirvAccountCollection::removalRefused, this, &KirvAccountsPageCompanion::keepRow);
}

KirvAccountsPageCompanion::~KirvAccountsPageCompanion() = default;

/// The page lists the accounts of a protocol anew each time it is loaded and keeps the rows of one that was unloaded:
/// the kept ones make room, so that each account stands there once.
void KirvAccountsPageCompanion::protocolLoaded(const QString &protocol)
{
    KirvAccountsTab *page = KirvAccountsTab::getInstance();
    const KirvAccountKey kept = current();
    removeAll(protocol);
    page->readProtocolAccounts(protocol);
    setCurrent(kept);
    if (page->isVisible())
        page->updateAccounts();
}

void KirvAccountsPageCompanion::protocolUnloaded(const QString &protocol)
{
    KirvAccountsTab *page = KirvAccountsTab::getInstance();
    page->removeProtocolAccounts(protocol);
    markUnloaded(protocol);
    if (page->isVisible())
        page->updateAccounts();
}

/// The page takes the row of an account away after each attempt to remove the account.
void KirvAccountsPageCompanion::keepRow(const KirvAccount *account)
{
    QTreeWidgetItem *row = find(account->key());
    if (!row)
        return;
    keptRows.push_back({ std::unique_ptr<QTreeWidgetItem>(row->clone()), list->indexOfTopLevelItem(row),
                         row == list->currentItem() ? list->currentColumn() : -1, row->isSelected(),
                         list->verticalScrollBar()->value() });
    syncRowLater(account->key());
}

/// To the place, state and selection that it had, in all of which the view has put a neighbour meanwhile.
void KirvAccountsPageCompanion::putBack(KeptRow kept)
{
    QTreeWidgetItem *row = kept.copy.release();
    {
        const QSignalBlocker noSignals(list);
        // The list would put it before the rows that compare equal; sorting it as a whole keeps their order.
        const bool isSorted = list->isSortingEnabled();
        list->setSortingEnabled(false);
        list->insertTopLevelItem(qBound(0, kept.index, list->topLevelItemCount()), row);
        list->setSortingEnabled(isSorted);
        if (kept.currentColumn >= 0)
            list->setCurrentItem(row, kept.currentColumn,
                                 kept.isSelected ? QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows
                                                 : QItemSelectionModel::NoUpdate);
        else
            row->setSelected(kept.isSelected);
        list->doItemsLayout(); // the range of the scroll bar follows the rows later otherwise
        list->verticalScrollBar()->setValue(kept.scrollValue);
    }
    Q_EMIT list->itemSelectionChanged(); // for the buttons of the page
}

void KirvAccountsPageCompanion::syncRowLater(const KirvAccountKey &key)
{
    unsynced << key;
    refreshLater();
}

void KirvAccountsPageCompanion::refreshLater()
{
    if (!std::exchange(isSyncDue, true))
        QMetaObject::invokeMethod(this, &KirvAccountsPageCompanion::syncRows, Qt::QueuedConnection);
}

/// Makes the page list the accounts that came and went exactly when they are configured.
void KirvAccountsPageCompanion::syncRows()
{
    isSyncDue = false;
    KirvAccountsTab *page = KirvAccountsTab::getInstance();
    for (KeptRow &row : std::exchange(keptRows, {})) {
        const KirvAccountKey key = keyOf(row.copy.get());
        if (accounts.find(key) && !find(key))
            putBack(std::move(row));
    }
    const QList<KirvAccountKey> keys = std::exchange(unsynced, {});
    for (const KirvAccountKey &key : keys) {
        KirvAccount *account = accounts.find(key);
        if (!account)
            remove(key);
        else if (account->isLoaded() && !find(key))
            page->addAccountEntry(account);
    }
    // Also while the page is hidden: its selector must not keep accounts that are gone.
    page->updateAccounts();
}

/// A row that was current leaves no current row behind: an open question about it must not become one about its
/// neighbour.
void KirvAccountsPageCompanion::remove(const KirvAccountKey &key)
{
    if (QTreeWidgetItem *row = find(key))
        takeAway(row);
}

void KirvAccountsPageCompanion::removeAll(const QString &protocol)
{
    const QList<QTreeWidgetItem *> rows = rowsOf(protocol);
    for (QTreeWidgetItem *row : rows)
        takeAway(row);
}

void KirvAccountsPageCompanion::markUnloaded(const QString &protocol)
{
    const QSignalBlocker noItemChanged(list);
    const QBrush grey = list->palette().brush(QPalette::Disabled, QPalette::Text);
    const QString reason = QCoreApplication::translate(
        "KirvAccountsPageCompanion", "The plug-in of the protocol %1 is not loaded. Load it on the Plug-ins page.");
    const QList<QTreeWidgetItem *> rows = rowsOf(protocol);
    for (QTreeWidgetItem *row : rows) {
        for (int column : { AliasColumn, ProtocolColumn }) {
            row->setForeground(column, grey);
            row->setToolTip(column, kirvPlainToolTip(reason.arg(protocol)));
        }
    }
}

KirvAccountKey KirvAccountsPageCompanion::current() const
{
    const QTreeWidgetItem *row = list->currentItem();
    return row ? keyOf(row) : KirvAccountKey();
}

void KirvAccountsPageCompanion::setCurrent(const KirvAccountKey &key)
{
    if (QTreeWidgetItem *row = find(key))
        list->setCurrentItem(row);
}

KirvAccountKey KirvAccountsPageCompanion::keyOf(const QTreeWidgetItem *row)
{
    return { row->text(IdColumn), row->text(ProtocolColumn) };
}

QTreeWidgetItem *KirvAccountsPageCompanion::find(const KirvAccountKey &key) const
{
    for (int i = 0; i < list->topLevelItemCount(); ++i) {
        QTreeWidgetItem *row = list->topLevelItem(i);
        if (keyOf(row) == key)
            return row;
    }
    return nullptr;
}

QList<QTreeWidgetItem *> KirvAccountsPageCompanion::rowsOf(const QString &protocol) const
{
    // Qt compares case-insensitively by default; names of protocols may differ in case only.
    return list->findItems(protocol, Qt::MatchExactly | Qt::MatchCaseSensitive, ProtocolColumn);
}

void KirvAccountsPageCompanion::takeAway(QTreeWidgetItem *row)
{
    // Left alone, the view would make and select a neighbour as the current row.
    const bool wasChosen = row->isSelected() || row == list->currentItem();
    if (wasChosen) {
        list->setCurrentItem(nullptr, AliasColumn, QItemSelectionModel::NoUpdate);
        list->clearSelection();
    }
    delete row;
    // A current row need not have been selected: the page needs the signal in any case.
    if (wasChosen)
        Q_EMIT list->itemSelectionChanged();
}
