// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_connection_view.h"

#include "client/kirv_account_actions_menu.h"
#include "client/kirv_connection_model.h"
#include "client/kirv_plain_text.h"
#include "core/accounts/kirv_account_collection.h"
#include "host/kirv_settings_manager.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QTreeView>
#include <QVBoxLayout>

namespace {
/// A submenu of the presences that the account's protocol offers.
QMenu *createPresenceMenu(KirvAccount *account, QMenu *parent)
{
    auto *menu = parent->addMenu(KirvConnectionView::tr("&Presence"));
    menu->setObjectName(QStringLiteral("Connections_PresenceMenu"));
    const QString icons = KirvSettingsManager::getInstance()->getCurrentRosterThemeDir() + QLatin1String("icons/");
    const QList<KirvPresence> presences = account->protocol()->presences();
    for (const KirvPresence &presence : presences) {
        QAction *action = menu->addAction(QIcon(icons + presence.getIcon()), kirvPlainCommand(presence.getDisplay()));
        action->setCheckable(true);
        action->setChecked(presence.getId() == account->presence().getId());
        QObject::connect(action, &QAction::triggered, account, [account, presence] {
            account->setPresence(presence);
            account->tryAgain();
        });
    }
    return menu;
}
} // namespace

KirvConnectionView::KirvConnectionView(KirvAccountCollection &accounts, KirvServerCommands &serverCommands,
                                       QWidget *parent)
    : QWidget(parent)
    , serverCommands(serverCommands)
    , model(new KirvConnectionModel(accounts, this))
    , sorted(new QSortFilterProxyModel(this))
    , list(new QTreeView(this))
    , details(new QLabel(this))
    , editButton(new QPushButton(tr("&Edit Account…"), this))
    , reconnectButton(new QPushButton(tr("&Reconnect"), this))
    , passwordButton(new QPushButton(tr("Enter &Password…"), this))
{
    setObjectName(QStringLiteral("Connections"));
    setupList();
    setupButtons();

    details->setObjectName(QStringLiteral("Connections_Details"));
    details->setAccessibleName(tr("Last problem of the account"));
    details->setTextFormat(Qt::PlainText);
    details->setTextInteractionFlags(Qt::TextSelectableByMouse);
    details->setWordWrap(true);

    auto *buttons = new QHBoxLayout;
    buttons->addWidget(editButton);
    buttons->addWidget(reconnectButton);
    buttons->addWidget(passwordButton);
    buttons->addStretch();
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(list, 1);
    layout->addWidget(details);
    layout->addLayout(buttons);
    updateDetails();
}

void KirvConnectionView::setupList()
{
    sorted->setSourceModel(model);
    sorted->setSortRole(KirvConnectionModel::SortRole);
    sorted->setSortCaseSensitivity(Qt::CaseInsensitive);
    sorted->setSortLocaleAware(true);
    sorted->setDynamicSortFilter(false); // rows do not jump away while the user looks at them

    list->setObjectName(QStringLiteral("Connections_List"));
    list->setAccessibleName(tr("Connections"));
    list->setModel(sorted);
    list->setRootIsDecorated(false);
    list->setUniformRowHeights(true);
    list->setAllColumnsShowFocus(true);
    list->setAlternatingRowColors(true);
    list->setSortingEnabled(true);
    list->setContextMenuPolicy(Qt::CustomContextMenu);
    list->header()->setSortIndicator(-1, Qt::AscendingOrder); // the order of the accounts, until the user sorts
    const int unit = fontMetrics().averageCharWidth();
    list->setColumnWidth(KirvConnectionModel::AccountColumn, 24 * unit);
    list->setColumnWidth(KirvConnectionModel::ProtocolColumn, 11 * unit);
    list->setColumnWidth(KirvConnectionModel::StateColumn, 24 * unit);
    list->setColumnWidth(KirvConnectionModel::SinceColumn, 12 * unit);

    connect(list, &QTreeView::activated, this, &KirvConnectionView::edit);
    connect(list, &QTreeView::customContextMenuRequested, this, &KirvConnectionView::showMenu);
    connect(list->selectionModel(), &QItemSelectionModel::currentRowChanged, this, &KirvConnectionView::updateDetails);
    connect(sorted, &QAbstractItemModel::dataChanged, this, &KirvConnectionView::updateDetails);
    connect(sorted, &QAbstractItemModel::rowsRemoved, this, &KirvConnectionView::updateDetails);
}

void KirvConnectionView::setupButtons()
{
    editButton->setObjectName(QStringLiteral("Connections_EditButton"));
    reconnectButton->setObjectName(QStringLiteral("Connections_ReconnectButton"));
    reconnectButton->setToolTip(tr("Logs the account out and in again."));
    passwordButton->setObjectName(QStringLiteral("Connections_PasswordButton"));
    passwordButton->setToolTip(tr("Takes another password and logs the account in with it."));
    connect(editButton, &QPushButton::clicked, this, &KirvConnectionView::edit);
    connect(reconnectButton, &QPushButton::clicked, this, &KirvConnectionView::reconnect);
    connect(passwordButton, &QPushButton::clicked, this, &KirvConnectionView::enterPassword);
}

void KirvConnectionView::refreshMainAccount()
{
    model->refreshMainAccount();
}

KirvAccount *KirvConnectionView::currentAccount() const
{
    return model->accountAt(sorted->mapToSource(list->currentIndex()).row());
}

void KirvConnectionView::setCurrentAccount(const KirvAccount *account)
{
    list->setCurrentIndex(sorted->mapFromSource(model->index(model->rowOf(account), 0)));
}

void KirvConnectionView::updateDetails()
{
    const KirvAccount *account = currentAccount();
    details->setText(account ? account->lastFailure().text() : QString());
    const bool isLoaded = account && account->isLoaded();
    editButton->setEnabled(isLoaded);
    reconnectButton->setEnabled(isLoaded && account->record().enabled);
    passwordButton->setEnabled(isLoaded && account->record().enabled);
}

void KirvConnectionView::edit()
{
    KirvAccount *account = currentAccount();
    if (account && account->isLoaded())
        emit editRequested(account);
}

void KirvConnectionView::reconnect()
{
    KirvAccount *account = currentAccount();
    if (!account || !account->isLoaded() || !account->record().enabled)
        return;
    account->reconnect();
}

void KirvConnectionView::enterPassword()
{
    KirvAccount *account = currentAccount();
    if (account && account->isLoaded())
        emit passwordRequested(account);
}

void KirvConnectionView::showMenu(const QPoint &position)
{
    KirvAccount *account = currentAccount();
    if (!account || !list->indexAt(position).isValid())
        return;
    auto *menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("Connections_Menu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (QPushButton *button : { editButton, reconnectButton, passwordButton }) {
        QAction *action = menu->addAction(button->text(), button, &QPushButton::click);
        action->setEnabled(button->isEnabled());
    }
    if (account->isLoaded() && account->record().enabled)
        createPresenceMenu(account, menu);
    if (KirvAccountActionsMenu::isUseful(account->key(), serverCommands))
        menu->addMenu(new KirvAccountActionsMenu(account->key(), serverCommands, window(), menu));
    menu->popup(list->viewport()->mapToGlobal(position));
}
