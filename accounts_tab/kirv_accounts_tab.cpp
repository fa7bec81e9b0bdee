// SPDX-License-Identifier: LGPL-2.1-or-later
#include "accounts_tab/kirv_accounts_tab.h"

#include "accounts_tab/kirv_account_row_p.h"
#include "accounts_tab/kirv_account_window_p.h"
#include "accounts_tab/kirv_qt_compat_p.h"
#include "add_account/kirv_add_account_dialog.h"
#include "edit_account/kirv_edit_account_dialog.h"
#include "host/kirv_account_connection.h"
#include "host/kirv_account_info.h"
#include "host/kirv_account_manager.h"
#include "host/kirv_plugin_manager.h"
#include "host/kirv_protocol.h"
#include "host/kirv_settings_manager.h"
#include "host/kirv_ui_loader.h"

#include <QAction>
#include <QComboBox>
#include <QCoreApplication>
#include <QHeaderView>
#include <QIcon>
#include <QList>
#include <QMenu>
#include <QMessageBox>
#include <QShortcut>
#include <QStringList>
#include <QToolButton>
#include <QTreeWidget>

#include <new>

using namespace KirvAccountRow;

namespace {

/// Leaves a box alone that shows this already. Setting the same state again has no effect either, but takes longer.
void showEnabled(QTreeWidgetItem *row, bool enabled)
{
    const Qt::CheckState state = enabled ? Qt::Checked : Qt::Unchecked;
    const QVariant shown = row->data(AliasColumn, Qt::CheckStateRole);
    if (!shown.isValid() || shown.toInt() != state)
        row->setCheckState(AliasColumn, state);
}

bool isConfigured(const QString &accountId, const QString &protocolName)
{
    const QList<KirvAccountInfo *> accounts = KirvAccountManager::getInstance()->getAccountsInfo(protocolName);
    for (const KirvAccountInfo *info : accounts) {
        if (info->getId() == accountId)
            return true;
    }
    return false;
}

}

KirvAccountsTab *KirvAccountsTab::instance = nullptr;

KirvAccountsTab *KirvAccountsTab::getInstance()
{
    if (!instance)
        instance = new (std::nothrow) KirvAccountsTab(nullptr, Qt::WindowFlags());
    return instance;
}

KirvAccountsTab::KirvAccountsTab(QWidget *parent, Qt::WindowFlags f)
    : QWidget(parent, f)
    , mainAccountBox(nullptr)
    , accountList(nullptr)
    , addMenu(new QMenu(this))
    , addButton(nullptr)
    , editButton(nullptr)
    , removeButton(nullptr)
    , pendingItem(nullptr)
    , accEdit(nullptr)
    , refreshCount(0)
    , rowInQuestion(nullptr)
{
    setupGui();
}

KirvAccountsTab::~KirvAccountsTab()
{
    instance = nullptr;
}

void KirvAccountsTab::setupGui()
{
    QWidget *page = KirvUILoader::getInstance()->loadUI(QLatin1String("Accounts"), this, QString());
    accountList = page->findChild<QTreeWidget *>(QLatin1String("Accounts_List"));
    mainAccountBox = page->findChild<QComboBox *>(QLatin1String("Accounts_MainAccount"));
    setupList();

    addButton = page->findChild<QToolButton *>(QLatin1String("Accounts_AddButton"));
    addButton->setPopupMode(QToolButton::InstantPopup);
    addButton->setMenu(addMenu);

    editButton = page->findChild<QToolButton *>(QLatin1String("Accounts_EditButton"));
    editButton->setEnabled(false);
    connect(editButton, SIGNAL(clicked()), this, SLOT(editAccount()));

    removeButton = page->findChild<QToolButton *>(QLatin1String("Accounts_RemoveButton"));
    removeButton->setEnabled(false);
    connect(removeButton, SIGNAL(clicked()), this, SLOT(removeAccount()));

    QToolButton *registerButton = page->findChild<QToolButton *>(QLatin1String("Accounts_RegisterButton"));
    connect(registerButton, SIGNAL(clicked()), this, SLOT(registerAccount()));
}

void KirvAccountsTab::setupList()
{
    accountList->setColumnCount(ColumnCount);
    accountList->setColumnHidden(IdColumn, true);
    accountList->setColumnHidden(UnusedColumn, true);

    QStringList labels;
    labels << QCoreApplication::translate("translation", "Alias", "account alias in account list");
    labels << QCoreApplication::translate("translation", "Protocol", "account protocol in account list");
    labels << QLatin1String("uid"); // in a hidden column, so not translated
    accountList->setHeaderLabels(labels);

    accountList->setItemsExpandable(true);
    accountList->setIndentation(0);
    accountList->setSortingEnabled(true);
    // Qt starts with the descending order otherwise.
    accountList->sortByColumn(AliasColumn, Qt::AscendingOrder);
    kirvSetResizeMode(accountList->header(), AliasColumn, QHeaderView::Stretch);

    QShortcut *deleteShortcut = new QShortcut(QKeySequence(QKeySequence::Delete), accountList);
    deleteShortcut->setContext(Qt::WindowShortcut);
    connect(deleteShortcut, SIGNAL(activated()), this, SLOT(removeAccount()));

    connect(accountList, SIGNAL(itemActivated(QTreeWidgetItem *, int)), this,
            SLOT(itemActivated(QTreeWidgetItem *, int)));
    connect(accountList, SIGNAL(itemSelectionChanged()), this, SLOT(itemSelectionChanged()));
    connectCheckBoxes(true);
}

void KirvAccountsTab::showEvent(QShowEvent *event)
{
    updateAccounts();
    QWidget::showEvent(event);
}

void KirvAccountsTab::readProtocolAccounts(const QString &proto)
{
    KirvProtocol *protocol = KirvPluginManager::getInstance()->getProtocolByName(proto);
    if (!protocol)
        return;

    const QString iconPath = protocol->getIconPath(0);
    const QIcon icon(iconPath);
    icons.insert(iconPath, icon);
    lastIconPath = iconPath;
    lastIcon = icon;
    QAction *action = new QAction(protocol->getName(), this);
    if (!icon.isNull())
        action->setIcon(icon);
    connect(action, SIGNAL(triggered()), this, SLOT(addAccount()));
    protocolActions[action] = proto;
    addMenu->addAction(action);

    const QList<KirvAccountInfo *> accounts = KirvAccountManager::getInstance()->getAccountsInfo(proto);
    QList<QTreeWidgetItem *> rows;
    rows.reserve(accounts.size());
    for (const KirvAccountInfo *info : accounts)
        rows << createRow(info->getAlias(), protocol->getName(), info->getId(), icon, info->isEnabled());
    accountList->addTopLevelItems(rows);
}

void KirvAccountsTab::removeProtocolAccounts(const QString &proto)
{
    if (QAction *action = protocolActions.key(proto)) {
        protocolActions.remove(action);
        addMenu->removeAction(action);
        delete action;
    }
    // Intended: this column is never filled, so the rows of the protocol stay in the list.
    qDeleteAll(accountList->findItems(proto, Qt::MatchExactly, UnusedColumn));
}

void KirvAccountsTab::addAccountEntry(KirvAccountConnection *account)
{
    KirvProtocol *protocol = account->getProtocol();
    const QString alias = account->getAlias();
    const QString protocolName = protocol->getName();
    const QString accountId = account->getUid();
    // Intended: listed as enabled whatever the account manager says.
    accountList->addTopLevelItem(createRow(alias, protocolName, accountId, QIcon(protocol->getIconPath(0)), true));
}

void KirvAccountsTab::updateAccount(KirvAccountConnection *account)
{
    const QString accountId = account->getUid();
    const QString protocolName = account->getProtocolName();
    const QTreeWidgetItem *root = accountList->invisibleRootItem(); // topLevelItem() looks it up for each row
    for (int i = 0; i < root->childCount(); ++i) {
        QTreeWidgetItem *row = rowInLoop(root, i);
        if (accountIdOf(row) == accountId && protocolNameOf(row) == protocolName) {
            // Intended: a new alias reaches setAccountEnabled() like a change of the check box.
            row->setText(AliasColumn, account->getAlias());
            return;
        }
    }
}

void KirvAccountsTab::updateAccounts()
{
    KirvAccountManager *manager = KirvAccountManager::getInstance();
    const int refresh = ++refreshCount;
    if (mainAccountBox) {
        connectSelector(false);
        mainAccountBox->clear();
        offeredAccounts.clear();
        offeredAccounts.reserve(accountList->topLevelItemCount());
    }

    const QTreeWidgetItem *root = accountList->invisibleRootItem();
    for (int i = 0; i < root->childCount(); ++i) {
        QTreeWidgetItem *row = rowInLoop(root, i);
        AccountKey key;
        key.first = accountIdOf(row);
        key.second = protocolNameOf(row);
        const bool enabled = manager->accountEnabled(key.first, key.second);
        // Intended: a check box that really changes reaches setAccountEnabled(), which refreshes again. The
        // refresh begun last fills and connects the selector; those around it only go on with the boxes.
        showEnabled(row, enabled);
        if (!enabled || refresh != refreshCount)
            continue;

        KirvAccountConnection *account = manager->getAccount(key.first, key.second);
        if (account && mainAccountBox && refresh == refreshCount)
            offerAsMainAccount(account, key, aliasOf(row));
    }

    // Made without a selector too; Qt then warns.
    if (refresh == refreshCount)
        connectSelector(true);
}

/// When a call of the host begins another refresh, that one makes the entry. The list of entries takes \a key over.
void KirvAccountsTab::offerAsMainAccount(KirvAccountConnection *account, AccountKey &key, const QString &alias)
{
    const int refresh = refreshCount;
    const QString iconPath = account->getProtocol()->getIconPath(0);
    if (refresh != refreshCount)
        return;
    if (iconPath != lastIconPath) {
        if (!icons.contains(iconPath))
            icons.insert(iconPath, QIcon(iconPath));
        lastIconPath = iconPath;
        lastIcon = icons.value(iconPath);
    }

    const int index = mainAccountBox->count();
    mainAccountBox->insertItem(index, lastIcon, alias, QVariant::fromValue(static_cast<void *>(account)));
    offeredAccounts.append(AccountKey());
    qSwap(offeredAccounts.last(), key);
    if (account == KirvAccountManager::getInstance()->getMainAccount() && refresh == refreshCount)
        mainAccountBox->setCurrentIndex(index);
}

void KirvAccountsTab::removeFromSelector(const QString &accountId, const QString &protocolName)
{
    if (!mainAccountBox)
        return;
    const AccountKey key(accountId, protocolName);
    // The entry that becomes current in place of a removed one was not chosen by the user.
    connectSelector(false);
    for (int i = offeredAccounts.indexOf(key); i != -1; i = offeredAccounts.indexOf(key)) {
        offeredAccounts.remove(i);
        mainAccountBox->removeItem(i);
    }
    connectSelector(true);
}

void KirvAccountsTab::connectSelector(bool connected)
{
    if (connected)
        connect(mainAccountBox, SIGNAL(currentIndexChanged(int)), this, SLOT(mainAccountChanged(int)));
    else
        disconnect(mainAccountBox, SIGNAL(currentIndexChanged(int)), this, SLOT(mainAccountChanged(int)));
}

void KirvAccountsTab::itemSelectionChanged()
{
    const bool hasCurrentRow = accountList->selectionModel()->currentIndex().isValid();
    removeButton->setEnabled(hasCurrentRow);
    editButton->setEnabled(hasCurrentRow);
}

void KirvAccountsTab::addAccount()
{
    QAction *action = qobject_cast<QAction *>(sender());
    if (!action)
        return;
    KirvProtocol *protocol = KirvPluginManager::getInstance()->getProtocolByName(protocolActions[action]);
    if (!protocol)
        return;
    KirvAddAccountDialog *dialog = new KirvAddAccountDialog(protocol, QLatin1String(""), this, Qt::Sheet);
    dialog->exec(); // deletes itself when its window has finished
}

void KirvAccountsTab::editAccount()
{
    const QList<QTreeWidgetItem *> selected = accountList->selectedItems();
    if (selected.size() == 1)
        openEditDialog(accountIdOf(selected.first()), protocolNameOf(selected.first()));
}

void KirvAccountsTab::editAccount(KirvAccountConnection *account)
{
    const QString accountId = account->getUid();
    openEditDialog(accountId, account->getProtocolName());
}

void KirvAccountsTab::itemActivated(QTreeWidgetItem *item, int column)
{
    Q_UNUSED(column); // any cell opens the account, the check box's too
    openEditDialog(accountIdOf(item), protocolNameOf(item));
}

void KirvAccountsTab::openEditDialog(const QString &accountId, const QString &protocolName)
{
    KirvEditAccountDialog *opened = new KirvEditAccountDialog(accountId, protocolName, this, Qt::Sheet);
    // A dialog for an unknown protocol is not recorded, so it has no other owner. One that is neither recorded nor
    // alive was replaced and deleted while its window was being shown.
    if (getInstance()->getAccEdit() != opened && KirvAccountWindow::hasController(opened))
        delete opened;
}

KirvEditAccountDialog *KirvAccountsTab::getAccEdit() const
{
    return accEdit;
}

void KirvAccountsTab::registerAccount()
{
    KirvPluginManagerPrivate::instance->emitCoreSignal(QLatin1String("register_account"), QList<KirvArg>());
}

void KirvAccountsTab::removeAccount()
{
    const QList<QTreeWidgetItem *> selected = accountList->selectedItems();
    if (selected.size() != 1)
        return;
    const QString title = QCoreApplication::translate("translation", "Removing account", "message box title");
    const QString protocolName = protocolNameOf(selected.first());
    const QString alias = aliasOf(selected.first());
    const QString question =
        QCoreApplication::translate("translation", "Do you want to remove account '%1' (%2) and all related data?",
                                    "%1 = account alias, %2 = account protocol. Confirmation of removing account");
    showQuestion(title, question.arg(alias).arg(protocolName), SLOT(removeAccountAccepted(int)));
}

void KirvAccountsTab::removeAccountAccepted(int result)
{
    // Intended: the selection is read again, and what is selected now is removed.
    const QList<QTreeWidgetItem *> selected = accountList->selectedItems();
    if (selected.size() != 1 || result != QMessageBox::Yes)
        return;
    QTreeWidgetItem *row = selected.first();
    const QString protocolName = protocolNameOf(row);
    const QString accountId = accountIdOf(row);

    removeFromSelector(accountId, protocolName);
    KirvAccountManager::getInstance()->removeAccount(accountId, protocolName);
    if (row == pendingItem)
        pendingItem = nullptr;
    // The host may have removed the row itself, with the account.
    if (accountList->indexOfTopLevelItem(row) != -1)
        delete row;
}

void KirvAccountsTab::setAccountEnabled(QTreeWidgetItem *item, int column)
{
    Q_UNUSED(column); // intended: a change in any column is handled through the check box
    // A call of the host may change other rows, and with them what is pending: it gets copies.
    const QString protocolName = protocolNameOf(item);
    const QString accountId = accountIdOf(item);
    pendingProtocol = protocolName;
    pendingAccountId = accountId;
    pendingItem = item;
    accountList->setEnabled(false);

    QTreeWidgetItem *const outerRowInQuestion = rowInQuestion;
    KirvAccountManager *manager = KirvAccountManager::getInstance();
    if (item->data(AliasColumn, Qt::CheckStateRole).toInt() == Qt::Checked) {
        manager->enableAccount(accountId, protocolName);
    } else {
        KirvAccountConnection *account = manager->getAccount(accountId, protocolName);
        // The refresh below unticks an account that is disabled but still logged in again: one question is enough.
        if (account && account->isLoggedIn() && item != rowInQuestion) {
            rowInQuestion = item;
            setCheckStateDisconnected(item, Qt::Checked); // still enabled while the question is open
            showDisableQuestion(accountId, protocolName);
        } else {
            disableAccount();
        }
    }

    updateAccounts();
    rowInQuestion = outerRowInQuestion;
    accountList->setEnabled(true);
    accountList->setFocus(Qt::OtherFocusReason);
}

void KirvAccountsTab::showDisableQuestion(const QString &accountId, const QString &protocolName)
{
    const QString title = QCoreApplication::translate("translation", "Disabling account", "message box title");
    // Intended: no question mark, the translations are keyed on this text.
    const QString question = QCoreApplication::translate(
        "translation", "Do you want to disable account '%1' (%2) in which you are currently logged in.",
        "%1 = account id, %2 = account protocol. Confirmation of disabling account");
    showQuestion(title, question.arg(accountId).arg(protocolName), SLOT(disableAccountAccepted(int)));
}

void KirvAccountsTab::disableAccountAccepted(int result)
{
    if (result != QMessageBox::Yes)
        return;
    // Intended: the answer counts for the row whose check box or text changed last.
    if (pendingRowIsListed())
        setCheckStateDisconnected(pendingItem, Qt::Unchecked);
    else if (!isConfigured(pendingAccountId, pendingProtocol))
        return;
    disableAccount();
    updateAccounts();
}

void KirvAccountsTab::disableAccount()
{
    const QString accountId = pendingAccountId; // copies, as above
    const QString protocolName = pendingProtocol;
    KirvAccountManager::getInstance()->disableAccount(accountId, protocolName);
}

/// The pointer alone is not enough: the row may have been deleted and another one created at its address.
bool KirvAccountsTab::pendingRowIsListed() const
{
    return pendingItem && accountList->indexOfTopLevelItem(pendingItem) != -1
        && accountIdOf(pendingItem) == pendingAccountId && protocolNameOf(pendingItem) == pendingProtocol;
}

void KirvAccountsTab::setCheckStateDisconnected(QTreeWidgetItem *row, Qt::CheckState state)
{
    connectCheckBoxes(false);
    row->setData(AliasColumn, Qt::CheckStateRole, QVariant(static_cast<int>(state)));
    connectCheckBoxes(true);
}

void KirvAccountsTab::connectCheckBoxes(bool connected)
{
    if (connected) {
        connect(accountList, SIGNAL(itemChanged(QTreeWidgetItem *, int)), this,
                SLOT(setAccountEnabled(QTreeWidgetItem *, int)));
    } else {
        disconnect(accountList, SIGNAL(itemChanged(QTreeWidgetItem *, int)), this,
                   SLOT(setAccountEnabled(QTreeWidgetItem *, int)));
    }
}

void KirvAccountsTab::showQuestion(const QString &title, const QString &question, const char *answerSlot)
{
    QMessageBox *box = new QMessageBox(QMessageBox::Question, title, question, QMessageBox::Yes | QMessageBox::No, this,
                                       Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
    box->setTextFormat(Qt::PlainText); // an alias may hold what looks like markup
    box->setWindowModality(Qt::WindowModal);
    box->setAttribute(Qt::WA_DeleteOnClose, true);
    connect(box, SIGNAL(finished(int)), this, answerSlot);
    box->show();
}

void KirvAccountsTab::mainAccountChanged(int index)
{
    const QVariant entry = mainAccountBox->itemData(index, Qt::UserRole);
    KirvAccountConnection *account = static_cast<KirvAccountConnection *>(entry.value<void *>());
    if (!account)
        return;

    KirvAccountManager::getInstance()->setMainAccount(account);
    const QString protocolName = account->getProtocolName();
    const QString value = account->getUid() + QLatin1String("@@") + protocolName;
    KirvSettingsManagerPrivate::settingsMgrPrivInstance->writeGlobalSetting(
        KirvField::textEdit(QLatin1String(""), QLatin1String("main_account"), value, QLatin1String("")));
    emit mainAccountChanged();
}
