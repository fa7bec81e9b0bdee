// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_account_actions_menu.h"

#include "client/kirv_plain_text.h"
#include "core/accounts/kirv_account.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/protocol/kirv_protocol_base.h"

namespace {
/// Null when the account is gone or its protocol is not loaded.
KirvProtocolBase *protocolOf(KirvAccount *account)
{
    return account && account->isLoaded() ? dynamic_cast<KirvProtocolBase *>(account->getProtocol()) : nullptr;
}
} // namespace

KirvAccountActionsMenu::KirvAccountActionsMenu(const KirvAccountKey &key, KirvAccountCollection &accounts,
                                               QWidget *window, QWidget *parent)
    : QMenu(parent)
    , key(key)
    , accounts(accounts)
    , window(window)
{
    setObjectName(QStringLiteral("AccountActions"));
    setTitle(tr("&Server Account"));
    setToolTipsVisible(true);
    connect(this, &QMenu::aboutToShow, this, &KirvAccountActionsMenu::fill);
}

bool KirvAccountActionsMenu::isUseful(const KirvAccountKey &key, const KirvAccountCollection &accounts)
{
    KirvAccount *account = accounts.find(key);
    const KirvProtocolBase *protocol = protocolOf(account);
    return protocol && !protocol->accountActions(account).isEmpty();
}

void KirvAccountActionsMenu::fill()
{
    clear();
    KirvAccount *account = accounts.find(key);
    const KirvProtocolBase *protocol = protocolOf(account);
    const QList<KirvAccountAction> commands = protocol ? protocol->accountActions(account) : QList<KirvAccountAction>();
    for (const KirvAccountAction &command : commands) {
        QAction *action = addAction(command.text);
        action->setObjectName(command.id);
        action->setToolTip(kirvPlainToolTip(command.toolTip));
        action->setEnabled(!command.needsConnection || account->isLoggedIn());
        connect(action, &QAction::triggered, this, [this, id = command.id] { run(id); });
    }
}

void KirvAccountActionsMenu::run(const QString &actionId)
{
    KirvAccount *account = accounts.find(key);
    if (KirvProtocolBase *protocol = protocolOf(account))
        protocol->runAccountAction(actionId, account, window);
}
