// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_page_commands.h"

#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_account_actions_menu.h"
#include "client/kirv_account_group.h"
#include "client/kirv_account_help.h"
#include "client/kirv_account_invitation.h"
#include "client/kirv_account_order.h"
#include "client/kirv_account_rows.h"
#include "client/kirv_account_status.h"
#include "client/kirv_account_undo.h"
#include "client/kirv_alias_editor.h"
#include "client/kirv_message_bar.h"
#include "client/kirv_moving_windows.h"
#include "client/kirv_plain_text.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/accounts/kirv_main_account.h"
#include "host/kirv_settings_manager.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QShortcut>
#include <QToolButton>
#include <QTreeWidget>

#include <algorithm>

namespace {

template <typename Function>
QAction *addCommand(QMenu *menu, const char *name, const QString &text, QObject *context, Function function)
{
    QAction *action = menu->addAction(text);
    action->setObjectName(QLatin1String(name));
    QObject::connect(action, &QAction::triggered, context, function);
    return action;
}

} // namespace

KirvPageCommands::KirvPageCommands(const Environment &environment, KirvAliasEditor *editor, QWidget *top,
                                   QTreeWidget *list)
    : QObject(top)
    , environment(environment)
    , editor(editor)
    , top(top)
    , list(list)
    , addButton(top->findChild<QToolButton *>(QStringLiteral("Accounts_AddButton")))
    , removeButton(top->findChild<QAbstractButton *>(QStringLiteral("Accounts_RemoveButton")))
    , editButton(top->findChild<QAbstractButton *>(QStringLiteral("Accounts_EditButton")))
{
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    // The page makes its own connections after this.
    QMetaObject::invokeMethod(this, &KirvPageCommands::joinPage, Qt::QueuedConnection);
    list->installEventFilter(this);
    list->viewport()->installEventFilter(this);
    if (auto *invitation = top->findChild<KirvAccountInvitation *>())
        invitation->installEventFilter(this);
    auto *rename = new QShortcut(Qt::Key_F2, list);
    rename->setContext(Qt::WidgetShortcut);
    connect(rename, &QShortcut::activated, this, &KirvPageCommands::rename);
    auto *add = new QShortcut(QKeySequence::New, top);
    connect(add, &QShortcut::activated, this, &KirvPageCommands::openAddMenu);
}

bool KirvPageCommands::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ActionAdded)
        environment.messages.removeMessage(KirvAccountInvitation::noProtocolText());
    if (event->type() == QEvent::ContextMenu) {
        const auto *request = static_cast<QContextMenuEvent *>(event);
        if (request->reason() == QContextMenuEvent::Keyboard)
            openMenuOfCurrentRow();
        else if (const QTreeWidgetItem *row = watched == list->viewport() ? list->itemAt(request->pos()) : nullptr)
            openMenu(KirvAccountRows::keyOf(row), request->globalPos());
        else
            openGeneralMenu(request->globalPos());
        return true;
    }
    if (event->type() != QEvent::KeyPress || watched != list)
        return false;
    // Not every platform makes a request for the menu of these keys.
    const auto *key = static_cast<QKeyEvent *>(event);
    if (key->key() != Qt::Key_Menu && !(key->key() == Qt::Key_F10 && key->modifiers() == Qt::ShiftModifier))
        return false;
    openMenuOfCurrentRow();
    return true;
}

void KirvPageCommands::joinPage()
{
    connect(list, &QTreeWidget::itemSelectionChanged, this, &KirvPageCommands::updateButtons);
    connect(removeButton, &QAbstractButton::clicked, this, &KirvPageCommands::removeSeveral);
    const auto shortcuts = list->findChildren<QShortcut *>();
    for (const QShortcut *shortcut : shortcuts) {
        if (shortcut->key() == QKeySequence(QKeySequence::Delete))
            connect(shortcut, &QShortcut::activated, this, &KirvPageCommands::removeSeveral);
    }
    updateButtons();
}

/// The page looks at the current row only.
void KirvPageCommands::updateButtons()
{
    if (list->selectionModel()->selectedRows().size() > 1)
        editButton->setEnabled(false);
}

/// One is removed by the page.
void KirvPageCommands::removeSeveral()
{
    const QList<KirvAccountKey> keys = selectedKeys();
    if (keys.size() > 1)
        environment.group.remove(keys);
}

/// In the order of the rows.
QList<KirvAccountKey> KirvPageCommands::selectedKeys() const
{
    QModelIndexList selected = list->selectionModel()->selectedRows();
    std::sort(selected.begin(), selected.end());
    QList<KirvAccountKey> keys;
    for (const QModelIndex &index : qAsConst(selected)) {
        if (!list->isRowHidden(index.row(), QModelIndex()))
            keys << KirvAccountRows::keyOf(index);
    }
    return keys;
}

void KirvPageCommands::openGroupMenu(const QPoint &position)
{
    const QList<KirvAccountKey> keys = selectedKeys();
    const int count = int(keys.size());
    KirvAccountGroup *group = &environment.group;
    QMenu *menu = createMenu();
    addCommand(menu, "Accounts_EnableSeveralAction", tr("&Enable %n Accounts", nullptr, count), group,
               [group, keys] { group->enable(keys); });
    addCommand(menu, "Accounts_DisableSeveralAction", tr("&Disable %n Accounts", nullptr, count), group,
               [group, keys] { group->disable(keys); });
    addCommand(menu, "Accounts_RemoveSeveralAction", tr("Re&move %n Accounts…", nullptr, count), group,
               [group, keys] { group->remove(keys); });
    KirvMovingWindows *moving = &environment.moving;
    addCommand(menu, "Accounts_ExportSeveralAction", tr("E&xport %n Accounts…", nullptr, count), moving,
               [moving, keys] { moving->exportAccounts(keys); });
    menu->addSeparator();
    addGeneral(menu);
    menu->popup(position);
    menu->setActiveAction(menu->actions().first());
}

KirvAccountKey KirvPageCommands::currentKey() const
{
    return environment.rows.chosen();
}

void KirvPageCommands::rename()
{
    editor->edit(currentKey());
}

void KirvPageCommands::openAddMenu()
{
    QMenu *menu = addButton->menu();
    if (!menu || menu->actions().isEmpty()) {
        if (menu)
            menu->installEventFilter(this); // tells when there is one
        environment.messages.showMessage(KirvAccountInvitation::noProtocolText(), QString(), {},
                                         KirvMessageBar::Information);
        return;
    }
    const QWidget *place = addButton->isVisible() ? static_cast<QWidget *>(addButton) : top;
    menu->popup(
        place->mapToGlobal(QPoint(place->isRightToLeft() ? place->width() : 0, place == top ? 0 : place->height())));
    menu->setActiveAction(menu->actions().first());
}

void KirvPageCommands::openMenuOfCurrentRow()
{
    QTreeWidgetItem *row = environment.rows.find(currentKey());
    if (QApplication::activePopupWidget())
        return;
    if (!row) {
        const QWidget *place = list->isVisible() ? static_cast<QWidget *>(list->viewport()) : top;
        openGeneralMenu(place->mapToGlobal(place->rect().center()));
        return;
    }
    list->scrollToItem(row);
    openMenu(KirvAccountRows::keyOf(row), list->viewport()->mapToGlobal(list->visualItemRect(row).center()));
}

void KirvPageCommands::openMenu(const KirvAccountKey &key, const QPoint &position)
{
    KirvAccount *account = environment.accounts.find(key);
    QTreeWidgetItem *row = environment.rows.find(key);
    if (!account || !row)
        return;
    if (row->isSelected() && list->selectionModel()->selectedRows().size() > 1) {
        openGroupMenu(position);
        return;
    }
    environment.rows.select(row);
    QMenu *menu = createMenu();
    addEditing(menu, account);
    menu->addSeparator();
    addConnecting(menu, account);
    addHelp(menu, account);
    menu->addSeparator();
    addMoving(menu, account);
    addCommand(menu, "Accounts_RemoveAction", tr("Re&move…"), account, [this, key] { remove(key); });
    KirvMovingWindows *moving = &environment.moving;
    addCommand(menu, "Accounts_ExportAction", tr("E&xport…"), moving,
               [moving, key] { moving->exportAccounts({ key }); });
    menu->addSeparator();
    addGeneral(menu);
    connect(account, &QObject::destroyed, menu, &QWidget::close);
    menu->popup(position);
    menu->setActiveAction(menu->actions().first());
}

void KirvPageCommands::addEditing(QMenu *menu, KirvAccount *account)
{
    const KirvAccountKey key = account->key();
    addCommand(menu, "Accounts_EditAction", tr("&Edit…"), account, [account] {
        if (account->isLoaded())
            KirvAccountsTab::getInstance()->editAccount(account);
    })->setEnabled(account->isLoaded());
    QAction *rename = addCommand(menu, "Accounts_RenameAction", tr("Re&name"), account, [this, key] {
        // The menu gives the focus back first.
        QMetaObject::invokeMethod(
            editor, [this, key] { editor->edit(key); }, Qt::QueuedConnection);
    });
    rename->setShortcut(Qt::Key_F2);
    rename->setShortcutContext(Qt::WidgetShortcut); // shown only: the list has the key
    addCommand(menu, "Accounts_EnableAction", account->record().enabled ? tr("&Disable") : tr("&Enable"), account,
               [this, key] { toggle(key); });
    const bool canBecomeMain = account->isLoaded() && account->record().enabled;
    addCommand(menu, "Accounts_MainAction", tr("Make Main &Account"), account, [this, account] {
        environment.mainAccount.choose(account);
    })->setEnabled(canBecomeMain && account != environment.mainAccount.account());
}

void KirvPageCommands::addConnecting(QMenu *menu, KirvAccount *account)
{
    const KirvAccountStatus status(*account, false);
    addCommand(menu, "Accounts_ReconnectAction", tr("&Reconnect"), account, [account] {
        account->reconnect();
    })->setEnabled(status.canReconnect());
    addCommand(menu, "Accounts_PasswordAction", tr("Enter &Password…"), account, [this, account] {
        emit passwordRequested(account);
    })->setEnabled(status.canEnterPassword());
    if (status.canShowCertificate()) {
        addCommand(menu, "Accounts_CertificateAction", tr("Show &Certificate…"), account,
                   [this, account] { emit certificateRequested(account); });
    }
    if (status.canReconnect())
        addPresences(menu, account);
    if (KirvAccountActionsMenu::isUseful(account->key(), environment.serverCommands))
        menu->addMenu(new KirvAccountActionsMenu(account->key(), environment.serverCommands, list->window(), menu));
}

void KirvPageCommands::addHelp(QMenu *menu, KirvAccount *account)
{
    KirvAccountHelp *help = &environment.help;
    addCommand(menu, "Accounts_TestAction", tr("&Test Log-In"), account, [help, account] {
        help->testLogin(account);
    })->setEnabled(KirvAccountStatus(*account, false).canTestLogin());
    addCommand(menu, "Accounts_LogAction", tr("L&og"), account, [help, account] { help->showLog(account); });
}

void KirvPageCommands::addPresences(QMenu *menu, KirvAccount *account)
{
    QMenu *choices = menu->addMenu(tr("Pre&sence"));
    choices->setObjectName(QStringLiteral("Accounts_PresenceMenu"));
    const QString icons = KirvSettingsManager::getInstance()->getCurrentRosterThemeDir() + QLatin1String("icons/");
    const QList<KirvPresence> presences = account->protocol()->presences();
    for (const KirvPresence &presence : presences) {
        QAction *action =
            choices->addAction(QIcon(icons + presence.getIcon()), kirvPlainCommand(presence.getDisplay()));
        action->setCheckable(true);
        action->setChecked(presence.getId() == account->presence().getId());
        connect(action, &QAction::triggered, account, [account, presence] {
            account->setPresence(presence);
            account->tryAgain();
        });
    }
}

void KirvPageCommands::openGeneralMenu(const QPoint &position)
{
    QMenu *menu = createMenu();
    addGeneral(menu);
    menu->popup(position);
    menu->setActiveAction(menu->actions().first());
}

QMenu *KirvPageCommands::createMenu()
{
    auto *menu = new QMenu(top);
    menu->setObjectName(QStringLiteral("Accounts_Menu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    return menu;
}

/// Only in the user's own order.
void KirvPageCommands::addMoving(QMenu *menu, KirvAccount *account)
{
    const KirvAccountKey key = account->key();
    if (!environment.order.isOwn())
        return;
    for (const bool isUp : { true, false }) {
        QAction *action = addCommand(menu, isUp ? "Accounts_MoveUpAction" : "Accounts_MoveDownAction",
                                     isUp ? tr("Move Up") : tr("Move Down"), account,
                                     [this, key, isUp] { environment.order.move(key, isUp); });
        action->setEnabled(environment.order.canMove(key, isUp));
        action->setShortcut(QKeySequence(int(Qt::ALT) | int(isUp ? Qt::Key_Up : Qt::Key_Down)));
        action->setShortcutContext(Qt::WidgetShortcut); // shown only: the list has the keys
    }
    menu->addSeparator();
}

/// What needs no row.
void KirvPageCommands::addGeneral(QMenu *menu)
{
    addCommand(menu, "Accounts_DisableAllAction", tr("Disable A&ll…"), &environment.group, [this] {
        environment.group.disableAll();
    })->setEnabled(environment.group.canDisableAll());
    if (environment.group.canEnableAgain())
        addCommand(menu, "Accounts_EnableAgainAction", tr("Enable Those &Again"), &environment.group,
                   [this] { environment.group.enableAgain(); });
    QAction *own = addCommand(menu, "Accounts_OwnOrderAction", tr("&Own Order"), &environment.order,
                              [this] { environment.order.setOwn(!environment.order.isOwn()); });
    own->setCheckable(true);
    own->setChecked(environment.order.isOwn());
    const QString undo = environment.undo.command();
    QAction *action = addCommand(menu, "Accounts_UndoAction", undo.isEmpty() ? tr("&Undo") : undo, &environment.undo,
                                 [this] { environment.undo.undoLatest(); });
    action->setEnabled(!undo.isEmpty());
    action->setShortcut(QKeySequence::Undo);
    action->setShortcutContext(Qt::WidgetShortcut); // shown only: the window has the key
}

/// As a click on the check box does, with its question.
void KirvPageCommands::toggle(const KirvAccountKey &key)
{
    if (QTreeWidgetItem *row = environment.rows.find(key))
        row->setCheckState(KirvAliasColumn,
                           row->checkState(KirvAliasColumn) == Qt::Checked ? Qt::Unchecked : Qt::Checked);
}

void KirvPageCommands::remove(const KirvAccountKey &key)
{
    if (QTreeWidgetItem *row = environment.rows.find(key)) {
        environment.rows.select(row);
        removeButton->click();
    }
}
