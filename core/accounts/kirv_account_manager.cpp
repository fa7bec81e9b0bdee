// SPDX-License-Identifier: LGPL-2.1-or-later
#include "host/kirv_account_manager.h"

#include "core/accounts/kirv_account_registry_p.h"
#include "host/kirv_protocol.h"

namespace {

/// Null before the client core is up and after it has gone: nothing is configured then.
KirvAccountRegistry *registry()
{
    return static_cast<KirvAccountRegistry *>(KirvAccountManagerPrivate::ampInstance);
}

KirvAccount *findAccount(const QString &id, const QString &protocol)
{
    return registry() ? registry()->find({ id, protocol }) : nullptr;
}

}

KirvAccountManagerPrivate *KirvAccountManagerPrivate::ampInstance = nullptr;

KirvAccountManager *KirvAccountManager::getInstance()
{
    static KirvAccountManager manager;
    return &manager;
}

QList<KirvAccountInfo *> KirvAccountManager::getAccountsInfo(const QString &protocol) const
{
    return registry() ? registry()->d->byProtocol.value(protocol).infos : QList<KirvAccountInfo *>();
}

bool KirvAccountManager::accountEnabled(const QString &id, const QString &protocol) const
{
    const KirvAccount *account = findAccount(id, protocol);
    return account && account->isEnabled();
}

KirvAccountConnection *KirvAccountManager::getAccount(const QString &id, const QString &protocol)
{
    KirvAccount *account = findAccount(id, protocol);
    return account && account->isLoaded() ? account : nullptr;
}

KirvAccountConnection *KirvAccountManager::loadAccount(const QString &id, const QString &protocol)
{
    KirvAccount *account = findAccount(id, protocol);
    return account ? registry()->d->loaded(account) : nullptr;
}

KirvAccountConnection *KirvAccountManager::getMainAccount() const
{
    return registry() ? registry()->mainAccount : nullptr;
}

KirvAccountConnection *KirvAccountManager::createAccount(const QString &id, const QString &alias,
                                                         const QString &password, bool rememberPassword,
                                                         KirvProtocol *protocol, const KirvPresence &presence,
                                                         const QList<KirvField> &settings)
{
    if (!registry() || !protocol)
        return nullptr;
    KirvStore::Account record;
    record.key = { id, protocol->getName() };
    record.alias = alias;
    record.password = password;
    record.rememberPassword = rememberPassword;
    record.defaultPresence = record.lastPresence = presence.getId();
    record.defaultDescription = record.lastDescription = presence.getDescription();
    record.settings = kirvStoredValues(settings);
    return registry()->d->create(record, protocol);
}

void KirvAccountManager::enableAccount(const QString &id, const QString &protocol)
{
    if (KirvAccount *account = findAccount(id, protocol))
        registry()->d->setEnabled(account, true);
}

void KirvAccountManager::disableAccount(const QString &id, const QString &protocol)
{
    if (KirvAccount *account = findAccount(id, protocol))
        registry()->d->setEnabled(account, false);
}

void KirvAccountManager::removeAccount(const QString &id, const QString &protocol)
{
    if (KirvAccount *account = findAccount(id, protocol))
        registry()->d->remove(account);
}

void KirvAccountManager::setMainAccount(KirvAccountConnection *account)
{
    if (registry())
        registry()->mainAccount = account;
}
