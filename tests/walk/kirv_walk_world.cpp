// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/walk/kirv_walk_world.h"

#include "accounts_tab/kirv_accounts_tab.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/protocol/kirv_connection.h"
#include "host/kirv_account_manager.h"

KirvWalkWorld::KirvWalkWorld(KirvWalk &walk)
    : walk(walk)
{
}

std::vector<KirvWalkStep> KirvWalkWorld::steps()
{
    return {
        { "load or unload", 4, [this] { walk.toggleProtocol(); } },
        { "server accepts", 40, [this] { serverDoes("serverAccepts"); } },
        { "server refuses", 4, [this] { serverDoes("serverRefuses"); } },
        { "server goes", 4, [this] { serverDoes("serverGoes"); } },
        { "time passes", 6, [this] { timePasses(); } },
        { "server answers requests", 12, [this] { walk.answerServerRequests(walk.maybe(70)); } },
        { "store refuses", 3, [this] { refuse(); } },
        { "store takes again", 8, [this] { walk.refusal.reset(); } },
        { "removed behind the back", 1, [this] { removeBehindTheBack(); } },
        { "removed while logging out", 4, [this] { removeWhileLoggingOut(); } },
        { "enabled or disabled behind the back", 3, [this] { enableOrDisableBehindTheBack(); } },
    };
}

void KirvWalkWorld::serverDoes(const char *what)
{
    if (KirvConnection *connection = walk.anyConnection())
        QMetaObject::invokeMethod(connection, what);
}

void KirvWalkWorld::timePasses()
{
    if (KirvConnection *connection = walk.anyConnection())
        QMetaObject::invokeMethod(connection, "advance", Q_ARG(int, 1 << walk.below(18)));
}

void KirvWalkWorld::refuse()
{
    if (walk.refusal)
        return;
    static const char *const changes[] = { "UPDATE", "UPDATE", "INSERT", "DELETE" };
    walk.refusal = std::make_unique<StoreRefusal>(walk.profileFolder(), QStringLiteral("1"),
                                                  QLatin1String(changes[walk.below(4)]));
}

void KirvWalkWorld::remove(const KirvAccount *account)
{
    KirvAccountManager::getInstance()->removeAccount(account->key().id, account->key().protocol);
}

void KirvWalkWorld::removeBehindTheBack()
{
    if (const KirvAccount *account = walk.anyAccount())
        remove(account);
}

void KirvWalkWorld::removeWhileLoggingOut()
{
    const QList<KirvAccount *> accounts = walk.client->accounts().accounts();
    for (const KirvAccount *account : accounts) {
        if (!account->connection() || account->connection()->state() != KirvConnection::Disconnecting)
            continue;
        walk.saw(QStringLiteral("an account that is removed while it logs out"));
        remove(account);
        return;
    }
    // One for the next time.
    const KirvAccount *account = walk.anyAccount();
    if (account && account->isOnline()) {
        KirvAccountManager::getInstance()->disableAccount(account->key().id, account->key().protocol);
        walk.page()->updateAccounts();
    }
}

void KirvWalkWorld::enableOrDisableBehindTheBack()
{
    const KirvAccount *account = walk.anyAccount();
    if (!account)
        return;
    const KirvAccountKey key = account->key();
    if (walk.maybe(50))
        KirvAccountManager::getInstance()->enableAccount(key.id, key.protocol);
    else
        KirvAccountManager::getInstance()->disableAccount(key.id, key.protocol);
    // The page learns of it when it is shown or refreshed.
    walk.page()->updateAccounts();
}
