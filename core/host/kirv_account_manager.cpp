// SPDX-License-Identifier: LGPL-2.1-or-later
#include "host/kirv_account_manager.h"

#include "core/accounts/kirv_account_collection.h"
#include "core/host/kirv_host_services.h"
#include "host/kirv_protocol.h"

namespace {

/// Null before the client core is up and after it has gone: nothing is configured then.
KirvAccountCollection *accounts()
{
    return KirvHostServices::instance() ? &KirvHostServices::instance()->accounts : nullptr;
}

KirvAccount *findAccount(const QString &id, const QString &protocol)
{
    return accounts() ? accounts()->find({ id, protocol }) : nullptr;
}

} // namespace

KirvAccountManagerPrivate *KirvAccountManagerPrivate::ampInstance = nullptr;

KirvAccountManager *KirvAccountManager::getInstance()
{
    static KirvAccountManager manager;
    return &manager;
}

QList<KirvAccountInfo *> KirvAccountManager::getAccountsInfo(const QString &protocol) const
{
    return accounts() ? accounts()->descriptionsOf(protocol) : QList<KirvAccountInfo *>();
}

bool KirvAccountManager::accountEnabled(const QString &id, const QString &protocol) const
{
    const KirvAccount *account = findAccount(id, protocol);
    return account && account->record().enabled;
}

KirvAccountConnection *KirvAccountManager::getAccount(const QString &id, const QString &protocol)
{
    KirvAccount *account = findAccount(id, protocol);
    return account && account->isLoaded() ? account : nullptr;
}

KirvAccountConnection *KirvAccountManager::loadAccount(const QString &id, const QString &protocol)
{
    KirvAccount *account = findAccount(id, protocol);
    return account ? accounts()->load(account) : nullptr;
}

KirvAccountConnection *KirvAccountManager::getMainAccount() const
{
    const KirvAccountManagerPrivate *state = KirvAccountManagerPrivate::ampInstance;
    return state ? state->mainAccount : nullptr;
}

KirvAccountConnection *KirvAccountManager::createAccount(const QString &id, const QString &alias,
                                                         const QString &password, bool rememberPassword,
                                                         KirvProtocol *protocol, const KirvPresence &presence,
                                                         const QList<KirvField> &settings)
{
    if (!accounts() || !protocol)
        return nullptr;
    KirvAccountRecord record;
    record.key = { id, protocol->getName() };
    record.alias = alias;
    record.password = password;
    record.rememberPassword = rememberPassword;
    record.defaultPresence = record.lastPresence = presence.getId();
    record.defaultDescription = record.lastDescription = presence.getDescription();
    record.settings = kirvStoredValues(settings);
    record.secretSettings = kirvSecretFields(settings);
    return accounts()->create(record, protocol);
}

void KirvAccountManager::enableAccount(const QString &id, const QString &protocol)
{
    if (KirvAccount *account = findAccount(id, protocol))
        account->setEnabled(true);
}

void KirvAccountManager::disableAccount(const QString &id, const QString &protocol)
{
    if (KirvAccount *account = findAccount(id, protocol))
        account->setEnabled(false);
}

void KirvAccountManager::removeAccount(const QString &id, const QString &protocol)
{
    if (KirvAccount *account = findAccount(id, protocol))
        accounts()->remove(account);
}

void KirvAccountManager::setMainAccount(KirvAccountConnection *account)
{
    if (KirvAccountManagerPrivate *state = KirvAccountManagerPrivate::ampInstance)
        state->mainAccount = account;
}
