// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_accounts_page_companion.h"

#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_account_group.h"
#include "client/kirv_account_help.h"
#include "client/kirv_account_invitation.h"
#include "client/kirv_account_list_frame.h"
#include "client/kirv_account_order.h"
#include "client/kirv_account_row_delegate.h"
#include "client/kirv_account_row_states.h"
#include "client/kirv_account_rows.h"
#include "client/kirv_account_search.h"
#include "client/kirv_account_strip.h"
#include "client/kirv_account_undo.h"
#include "client/kirv_alias_editor.h"
#include "client/kirv_main_account_selector.h"
#include "client/kirv_moving_windows.h"
#include "client/kirv_narrow_buttons.h"
#include "client/kirv_page_commands.h"
#include "client/kirv_plain_text.h"
#include "client/kirv_style_without_hint.h"
#include "core/accounts/kirv_account_collection.h"
#include "host/kirv_account_manager.h"
#include "host/kirv_plugin_manager.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QMessageBox>
#include <QScrollBar>
#include <QSet>
#include <QSignalBlocker>
#include <QToolButton>
#include <QTreeWidget>

#include <algorithm>
#include <utility>

namespace {

/// What the row of an account without an alias shows is its login.
QString shownName(const KirvAccount &account)
{
    const QString alias = account.getAlias();
    return alias.trimmed().isEmpty() ? account.displayName() : alias;
}

} // namespace

KirvAccountsPageCompanion::KirvAccountsPageCompanion(QWidget *top, const Environment &environment)
    : QObject(top)
    , accounts(environment.accounts)
    , list(top->findChild<QTreeWidget *>(QStringLiteral("Accounts_List")))
    , rows(new KirvAccountRows(list))
    , states(new KirvAccountRowStates(accounts, *rows, list))
    , strip(new KirvAccountStrip)
    , searchBar(new KirvAccountSearch(accounts, *rows, list))
    , invitation(new KirvAccountInvitation)
    , moving(environment.moving)
    , addButton(top->findChild<QToolButton *>(QStringLiteral("Accounts_AddButton")))
{
    addWidgets(top, environment.help);
    addCommands(top, environment);
    connectMoving();
    // The add dialog makes the row of its account itself, after this; accounts that come another way have none. The
    // page takes the row away itself, after this, when it removed the account.
    connect(&accounts, &KirvAccountCollection::accountAdded, this, [this](const KirvAccount *account) {
        added = account->key();
        syncRowLater(account->key());
    });
    connect(&accounts, &KirvAccountCollection::accountChanged, this, [this](const KirvAccount *account) {
        const QTreeWidgetItem *row = rows->find(account->key());
        if (row && !isUpToDate(row, *account)) {
            updateRow(account);
            refreshLater();
        }
    });
    connect(&accounts, &KirvAccountCollection::enabledChanged, this, &KirvAccountsPageCompanion::updateCheckBoxes);
    // After a save the page rewrites the row, with an alias that may be empty. Where it is sorted in, it moves first.
    connect(list, &QTreeWidget::itemChanged, this, [this](const QTreeWidgetItem *row, int column) {
        const KirvAccount *account = accounts.find(KirvAccountRows::keyOf(row));
        if (column == KirvAliasColumn && account && row->text(column) != shownName(*account))
            syncRowLater(account->key());
    });
    connect(&accounts, &KirvAccountCollection::accountRemoved, this,
            [this](const QString &id, const QString &protocol) {
                syncRowLater({ id, protocol });
            });
    connect(&accounts, &KirvAccountCollection::removalRefused, this, &KirvAccountsPageCompanion::keepRow);
}

KirvAccountsPageCompanion::~KirvAccountsPageCompanion() = default;

void KirvAccountsPageCompanion::addWidgets(QWidget *top, KirvAccountHelp &help)
{
    auto *frame = new KirvAccountListFrame(list);
    frame->addAbove(searchBar);
    frame->addBelow(strip);
    frame->addBelow(invitation);
    strip->chooseMnemonics();
    invitation->chooseMnemonics();
    invitation->hide();
    connectStrip(help);
    connect(invitation, &KirvAccountInvitation::registrationRequested, this, [] {
        KirvPluginManagerPrivate::instance->emitCoreSignal(QStringLiteral("register_account"), QList<KirvArg>());
    });
    if (auto *box = top->findChild<QComboBox *>(QStringLiteral("Accounts_MainAccount")))
        selector = new KirvMainAccountSelector(box, accounts);
    QList<QToolButton *> buttons; // the tool tips and the keys tell what they do
    for (const char *name :
         { "Accounts_RegisterButton", "Accounts_RemoveButton", "Accounts_EditButton", "Accounts_AddButton" })
        buttons << top->findChildren<QToolButton *>(QLatin1String(name));
    new KirvNarrowButtons(buttons, top);
    // Room for one row, also in a small window.
    list->setMinimumHeight(list->header()->sizeHint().height() + 3 * list->fontMetrics().lineSpacing());
    updateInvitation();
    // The page gives the button its menu after this.
    QMetaObject::invokeMethod(
        this, [this] { invitation->setAddMenu(addButton->menu()); }, Qt::QueuedConnection);
}

void KirvAccountsPageCompanion::connectMoving()
{
    connect(invitation, &KirvAccountInvitation::importRequested, &moving, &KirvMovingWindows::importAccounts);
    connect(invitation, &KirvAccountInvitation::pidginRequested, &moving, &KirvMovingWindows::importFrom);
    connect(&moving, &KirvMovingWindows::pidginFound, invitation, &KirvAccountInvitation::offerPidgin);
    connect(&moving, &KirvMovingWindows::imported, this, [this](const QList<KirvAccountKey> &keys) {
        imported = keys;
        refreshLater();
    });
}

void KirvAccountsPageCompanion::addCommands(QWidget *top, const Environment &environment)
{
    auto *delegate = new KirvAccountRowDelegate(accounts, list);
    list->setItemDelegate(delegate);
    list->setStyle(new KirvStyleWithoutHint(QStyle::SH_ItemView_ActivateItemOnSingleClick, list));
    aliasEditor = new KirvAliasEditor(accounts, *rows, *delegate, list);
    auto *order = new KirvAccountOrder(accounts, *rows, environment.settings, list);
    auto *group = new KirvAccountGroup(accounts, environment.mainAccount, environment.undo, list);
    auto *commands =
        new KirvPageCommands({ accounts, *rows, environment.serverCommands, environment.mainAccount, environment.undo,
                               *group, *order, environment.help, environment.moving, environment.messages },
                             aliasEditor, top, list);
    connect(commands, &KirvPageCommands::passwordRequested, this, &KirvAccountsPageCompanion::passwordRequested);
    connect(commands, &KirvPageCommands::certificateRequested, this, &KirvAccountsPageCompanion::certificateRequested);
}

/// What the user does in the list is not disturbed: an open question is answered for what is selected then.
bool KirvAccountsPageCompanion::maySelect() const
{
    const auto questions = KirvAccountsTab::getInstance()->findChildren<QMessageBox *>();
    const bool isAsked =
        std::any_of(questions.begin(), questions.end(), [](const QMessageBox *box) { return box->isVisible(); });
    return !isAsked && !aliasEditor->isOpen();
}

void KirvAccountsPageCompanion::selectNewRow(const KirvAccountKey &key)
{
    QTreeWidgetItem *row = rows->find(key);
    if (!row || !maySelect())
        return;
    searchBar->reveal(key);
    rows->select(row);
    list->scrollToItem(row);
}

void KirvAccountsPageCompanion::selectImported(const QList<KirvAccountKey> &keys)
{
    if (keys.isEmpty() || !maySelect())
        return;
    const QSet<KirvAccountKey> wanted(keys.begin(), keys.end());
    QItemSelection selection;
    for (int i = 0; i < list->topLevelItemCount(); ++i) {
        const KirvAccountKey key = KirvAccountRows::keyOf(list->topLevelItem(i));
        if (!wanted.contains(key))
            continue;
        searchBar->reveal(key);
        const QModelIndex index = list->model()->index(i, KirvAliasColumn);
        selection.select(index, index);
    }
    if (selection.isEmpty())
        return;
    const QModelIndex first = selection.constFirst().topLeft();
    list->selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
    list->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    list->scrollTo(first);
}

/// Shows the invitation while there is no account, and otherwise the list.
void KirvAccountsPageCompanion::updateInvitation()
{
    const bool isEmpty = accounts.accounts().isEmpty();
    if (list->isHidden() == isEmpty)
        return;
    const QWidget *focused = list->window()->focusWidget();
    const bool hadFocus =
        focused && (focused == list || strip->isAncestorOf(focused) || invitation->isAncestorOf(focused));
    // Hidden first, shown then: both together would make the window higher.
    QList<QWidget *> shown { list, strip };
    QList<QWidget *> hidden { invitation };
    if (isEmpty)
        shown.swap(hidden);
    for (QWidget *widget : qAsConst(hidden))
        widget->hide();
    for (QWidget *widget : qAsConst(shown))
        widget->show();
    if (hadFocus)
        takeFocus();
    if (isEmpty)
        moving.lookForPidgin();
}

void KirvAccountsPageCompanion::takeFocus()
{
    if (list->isHidden())
        invitation->takeFocus();
    else
        list->setFocus(Qt::OtherFocusReason);
}

void KirvAccountsPageCompanion::connectStrip(KirvAccountHelp &help)
{
    // The selection model's signals come also while those of the list are blocked.
    connect(list->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &KirvAccountsPageCompanion::refreshStripLater);
    connect(list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &KirvAccountsPageCompanion::refreshStripLater);
    connect(&accounts, &KirvAccountCollection::accountChanged, this, [this](const KirvAccount *account) {
        if (strip->isAbout(account->key()))
            refreshStripLater();
    });
    connect(strip, &KirvAccountStrip::logRequested, &help, [this, &help] { help.showLog(currentAccount()); });
    connect(strip, &KirvAccountStrip::testRequested, &help, [this, &help] { help.testLogin(currentAccount()); });
    connect(strip, &KirvAccountStrip::passwordRequested, this, [this] {
        if (KirvAccount *account = currentAccount())
            emit passwordRequested(account);
    });
    connect(strip, &KirvAccountStrip::certificateRequested, this, [this] {
        if (KirvAccount *account = currentAccount())
            emit certificateRequested(account);
    });
    connect(strip, &KirvAccountStrip::reconnectionRequested, this, [this] {
        if (KirvAccount *account = currentAccount())
            account->reconnect();
    });
    connect(strip, &KirvAccountStrip::editRequested, this, [this] {
        KirvAccount *account = currentAccount();
        if (account && account->isLoaded())
            KirvAccountsTab::getInstance()->editAccount(account);
    });
}

void KirvAccountsPageCompanion::refreshStripLater()
{
    if (!std::exchange(isStripDue, true))
        QMetaObject::invokeMethod(this, &KirvAccountsPageCompanion::refreshStrip, Qt::QueuedConnection);
}

void KirvAccountsPageCompanion::refreshStrip()
{
    isStripDue = false;
    const int selected = int(list->selectionModel()->selectedRows().size());
    if (selected > 1) {
        strip->showSeveral(selected);
        return;
    }
    const KirvAccount *account = currentAccount();
    strip->show(account, account && account == KirvAccountManager::getInstance()->getMainAccount());
}

void KirvAccountsPageCompanion::mainAccountChanged()
{
    states->mainAccountChanged();
    refreshStripLater();
    refreshLater(); // for the selector
}

KirvAccount *KirvAccountsPageCompanion::currentAccount() const
{
    return accounts.find(rows->chosen());
}

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
    const QList<QTreeWidgetItem *> kept = rows->rowsOf(protocol);
    {
        const QSignalBlocker noItemChanged(list);
        for (QTreeWidgetItem *row : kept)
            markUnloaded(row);
    }
    if (page->isVisible())
        page->updateAccounts();
}

/// The page takes the row of an account away after each attempt to remove the account.
void KirvAccountsPageCompanion::keepRow(const KirvAccount *account)
{
    QTreeWidgetItem *row = rows->find(account->key());
    if (!row)
        return;
    keptRows.push_back({ std::unique_ptr<QTreeWidgetItem>(row->clone()), list->indexOfTopLevelItem(row),
                         row == list->currentItem() ? list->currentColumn() : -1, row->isSelected(),
                         list->verticalScrollBar()->value() });
    syncRowLater(account->key());
}

/// To the place, state and selection that it had, in all of which the view has put a neighbour meanwhile.
void KirvAccountsPageCompanion::restoreRow(KeptRow kept)
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
        const KirvAccountKey key = KirvAccountRows::keyOf(row.copy.get());
        if (accounts.find(key) && !rows->find(key))
            restoreRow(std::move(row));
    }
    const QList<KirvAccountKey> keys = std::exchange(unsynced, {});
    for (const KirvAccountKey &key : keys) {
        KirvAccount *account = accounts.find(key);
        if (!account)
            remove(key);
        else if (!rows->find(key) && account->isLoaded())
            page->addAccountEntry(account);
        if (account && rows->find(key))
            updateRow(account);
    }
    listUnloaded();
    updateInvitation();
    searchBar->accountsChanged();
    // Also while the page is hidden: its selector must not keep accounts that are gone.
    page->updateAccounts();
    if (selector)
        selector->correctLater();
    selectNewRow(std::exchange(added, KirvAccountKey()));
    selectImported(std::exchange(imported, {}));
    if (mayListUnloaded && !std::exchange(hasStarted, true))
        rows->selectFirst();
}

bool KirvAccountsPageCompanion::isUpToDate(const QTreeWidgetItem *row, const KirvAccount &account)
{
    return row->text(KirvAliasColumn) == shownName(account)
        && (row->checkState(KirvAliasColumn) == Qt::Checked) == account.record().enabled;
}

/// What another part of the program changed. The check box comes before the next refresh of the page, which would
/// handle it as a click.
void KirvAccountsPageCompanion::updateRow(const KirvAccount *account)
{
    const QSignalBlocker noItemChanged(list);
    QTreeWidgetItem *row = rows->find(account->key());
    row->setText(KirvAliasColumn, shownName(*account));
    row->setCheckState(KirvAliasColumn, account->record().enabled ? Qt::Checked : Qt::Unchecked);
}

/// Of several, before anything can refresh the page. What the model reports costs time in proportion to the number of
/// rows, so it reports only those that are visible.
void KirvAccountsPageCompanion::updateCheckBoxes(const QList<KirvAccountKey> &keys)
{
    const QSet<const QTreeWidgetItem *> visible = rows->visible();
    const QSignalBlocker noItemChanged(list);
    for (const KirvAccountKey &key : keys) {
        const KirvAccount *account = accounts.find(key);
        QTreeWidgetItem *row = account ? rows->find(key) : nullptr;
        if (!row)
            continue;
        const QSignalBlocker noDataChanged(visible.contains(row) ? nullptr : list->model());
        row->setCheckState(KirvAliasColumn, account->record().enabled ? Qt::Checked : Qt::Unchecked);
    }
    refreshLater();
}

/// The page lists the accounts of loaded protocols only.
void KirvAccountsPageCompanion::listUnloaded()
{
    if (!mayListUnloaded)
        return;
    QList<QTreeWidgetItem *> missing;
    const QList<KirvAccount *> all = accounts.accounts();
    for (const KirvAccount *account : all) {
        const KirvAccountKey key = account->key();
        if (account->isLoaded() || rows->find(key))
            continue;
        auto *row = new QTreeWidgetItem({ shownName(*account), key.protocol, key.id });
        row->setCheckState(KirvAliasColumn, account->record().enabled ? Qt::Checked : Qt::Unchecked);
        markUnloaded(row);
        missing << row;
    }
    list->addTopLevelItems(missing);
}

void KirvAccountsPageCompanion::pluginsLoaded()
{
    mayListUnloaded = true;
    refreshLater();
}

/// A row that was current leaves no current row behind: an open question about it must not become one about its
/// neighbour.
void KirvAccountsPageCompanion::remove(const KirvAccountKey &key)
{
    if (QTreeWidgetItem *row = rows->find(key))
        deleteRow(row);
}

void KirvAccountsPageCompanion::removeAll(const QString &protocol)
{
    const QList<QTreeWidgetItem *> removed = rows->rowsOf(protocol);
    for (QTreeWidgetItem *row : removed)
        deleteRow(row);
}

void KirvAccountsPageCompanion::markUnloaded(QTreeWidgetItem *row) const
{
    const QString reason = QCoreApplication::translate(
        "KirvAccountsPageCompanion", "The plug-in of the protocol %1 is not loaded. Load it on the Plug-ins page.");
    for (int column : { KirvAliasColumn, KirvProtocolColumn })
        row->setToolTip(column, kirvPlainToolTip(reason.arg(row->text(KirvProtocolColumn))));
}

KirvAccountKey KirvAccountsPageCompanion::current() const
{
    const QTreeWidgetItem *row = list->currentItem();
    return row ? KirvAccountRows::keyOf(row) : KirvAccountKey();
}

void KirvAccountsPageCompanion::setCurrent(const KirvAccountKey &key)
{
    if (QTreeWidgetItem *row = rows->find(key))
        rows->select(row);
}

void KirvAccountsPageCompanion::deleteRow(QTreeWidgetItem *row)
{
    // Left alone, the view would make and select a neighbour as the current row.
    const bool wasChosen = row->isSelected() || row == list->currentItem();
    if (wasChosen) {
        list->setCurrentItem(nullptr, KirvAliasColumn, QItemSelectionModel::NoUpdate);
        list->clearSelection();
    }
    delete row;
    // A current row need not have been selected: the page needs the signal in any case.
    if (wasChosen)
        Q_EMIT list->itemSelectionChanged();
}
