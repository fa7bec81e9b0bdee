// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_account_registry.h"

#include "core/accounts/kirv_account_registry_p.h"
#include "core/settings/kirv_settings_table.h"

#include <QEventLoop>
#include <QTimer>
#include <algorithm>

KirvAccountRegistry::KirvAccountRegistry(KirvStore &store, QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>(this, store))
{
    const QList<KirvStore::Account> records = store.readAccounts();
    d->error = store.lastError();
    d->byKey.reserve(int(records.size()));
    for (const KirvStore::Account &record : records)
        d->append(record);
    ampInstance = this;
}

KirvAccountRegistry::~KirvAccountRegistry()
{
    for (KirvAccount *account : findChildren<KirvAccount *>(QString(), Qt::FindDirectChildrenOnly))
        account->d->abandon();
    if (ampInstance == this)
        ampInstance = nullptr;
}

QList<KirvAccount *> KirvAccountRegistry::accounts() const
{
    return d->accounts;
}

QList<KirvAccount *> KirvAccountRegistry::accountsOf(const QString &protocol) const
{
    return d->byProtocol.value(protocol).accounts;
}

KirvAccount *KirvAccountRegistry::find(const KirvAccountKey &key) const
{
    return d->byKey.value(key);
}

void KirvAccountRegistry::protocolLoaded(KirvProtocolBase *protocol, bool logIn)
{
    const QString name = protocol->getName();
    if (d->protocols.value(name) == protocol)
        return;
    protocolAboutToBeUnloaded(name);
    const QPointer<KirvProtocolBase> guarded(protocol);
    d->protocols.insert(name, guarded);
    connect(protocol, &QObject::destroyed, this, [this, name] {
        if (d->protocols.contains(name) && !d->protocols.value(name))
            protocolAboutToBeUnloaded(name);
    });

    const auto isStillThere = [&] { return guarded && d->protocols.value(name) == guarded; };
    for (const QPointer<KirvAccount> &account : d->guardedAccountsOf(name)) {
        if (!account || !isStillThere())
            continue;
        account->d->load(protocol);
        account->d->tellChanged();
        if (logIn && account && account->isLoaded() && account->isEnabled())
            account->d->goTo(account->presence());
    }
}

void KirvAccountRegistry::protocolAboutToBeUnloaded(const QString &protocol)
{
    if (!d->protocols.contains(protocol))
        return;
    d->protocols.remove(protocol);
    for (const QPointer<KirvAccount> &account : d->guardedAccountsOf(protocol)) {
        if (account)
            account->d->unload();
        if (account)
            account->d->tellChanged();
    }
    const QList<QPointer<KirvAccount>> leaving = d->leavingAccounts;
    for (const QPointer<KirvAccount> &account : leaving) {
        if (account && account->key().protocol == protocol)
            account->d->abandon();
    }
}

void KirvAccountRegistry::restoreMainAccount()
{
    const QString setting =
        d->store.readSetting(KirvSettingKey::mainAccount, kirvSettingDefault(KirvSettingKey::mainAccount));
    if (KirvAccount *account = find(KirvAccountKey::fromSetting(setting)))
        mainAccount = account;
}

void KirvAccountRegistry::logOutAll(int milliseconds)
{
    QList<QPointer<KirvConnection>> open;
    for (KirvAccount *account : findChildren<KirvAccount *>(QString(), Qt::FindDirectChildrenOnly)) {
        if (account->d->connection)
            open << account->d->connection;
        if (account->d->leavingConnection)
            open << account->d->leavingConnection;
    }
    for (const QPointer<KirvConnection> &connection : qAsConst(open)) {
        if (connection)
            connection->logOut();
    }

    const auto isDone = [&open] {
        return std::all_of(open.cbegin(), open.cend(), [](const QPointer<KirvConnection> &connection) {
            return !connection || connection->state() == KirvConnection::Offline;
        });
    };
    if (isDone())
        return;
    QEventLoop loop;
    const auto quitWhenDone = [&] {
        if (isDone())
            loop.quit();
    };
    for (const QPointer<KirvConnection> &connection : qAsConst(open)) {
        if (!connection)
            continue;
        connect(connection, &KirvConnection::stateChanged, &loop, quitWhenDone);
        connect(connection, &QObject::destroyed, &loop, quitWhenDone);
    }
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
}

QString KirvAccountRegistry::lastError() const
{
    return d->error;
}

void KirvAccountRegistry::reportStoreProblem()
{
    d->taken(false);
    reportProblem();
}

void KirvAccountRegistry::reportProblem()
{
    Q_EMIT problemOccurred(d->error);
}

KirvAccount *KirvAccountRegistry::Private::append(const KirvStore::Account &record)
{
    auto *account = new KirvAccount(std::make_unique<KirvAccount::Private>(*registry, store, record), registry);
    accounts.append(account);
    byKey.insert(record.key, account);
    ProtocolAccounts &siblings = byProtocol[record.key.protocol];
    siblings.accounts.append(account);
    siblings.infos.append(&account->d->info);
    return account;
}

void KirvAccountRegistry::Private::takeOut(KirvAccount *account)
{
    accounts.removeOne(account);
    byKey.remove(account->key());
    ProtocolAccounts &siblings = byProtocol[account->key().protocol];
    siblings.accounts.removeOne(account);
    siblings.infos.removeOne(&account->d->info);
    if (registry->mainAccount == account)
        registry->mainAccount = nullptr;
}

QList<QPointer<KirvAccount>> KirvAccountRegistry::Private::guardedAccountsOf(const QString &protocol) const
{
    QList<QPointer<KirvAccount>> guarded;
    for (KirvAccount *account : byProtocol.value(protocol).accounts)
        guarded << account;
    return guarded;
}

KirvAccount *KirvAccountRegistry::Private::create(const KirvStore::Account &record, KirvProtocol *protocol)
{
    if (byKey.contains(record.key)) {
        error = tr("The account \"%1\" (%2) exists already.").arg(record.key.id, record.key.protocol);
        return nullptr;
    }
    KirvProtocolBase *known = protocols.value(record.key.protocol);
    if (!known || known != protocol) {
        refuse(tr("The account \"%1\" could not be created: the protocol %2 is not loaded.")
                   .arg(record.key.id, record.key.protocol));
        return nullptr;
    }
    if (record.key.id.isEmpty()) {
        refuse(tr("An account needs a login."));
        return nullptr;
    }
    KirvStore::Account complete = record;
    complete.settings = kirvStoredValues(known->accountSettings());
    for (auto value = record.settings.constBegin(); value != record.settings.constEnd(); ++value)
        complete.settings.insert(value.key(), value.value());
    if (!taken(store.insertAccount(complete))) {
        registry->reportProblem();
        return nullptr;
    }

    KirvAccount *account = append(complete);
    account->d->load(known);
    const QPointer<KirvAccount> guarded(account);
    Q_EMIT registry->accountAdded(account);
    if (guarded && account->isLoaded() && account->isEnabled())
        account->d->goTo(account->d->defaultPresence());
    return guarded && byKey.value(record.key) == account ? account : nullptr;
}

void KirvAccountRegistry::Private::setEnabled(KirvAccount *account, bool enabled)
{
    if (!account || account->d->isRemoved || account->isEnabled() == enabled)
        return;
    const QPointer<KirvAccount> guarded(account);
    if (!account->d->change([enabled](KirvStore::Account &record) { record.enabled = enabled; }))
        return;
    // A slot may have thought otherwise meanwhile.
    if (!guarded || account->d->isRemoved || account->isEnabled() != enabled)
        return;
    if (!enabled) {
        account->d->askedPresence.reset();
        if (account->isLoaded())
            account->connection()->logOut();
    } else if (loaded(account)) {
        account->d->goTo(account->d->logInPresence());
    }
}

void KirvAccountRegistry::Private::remove(KirvAccount *account)
{
    if (!account || account->d->isRemoved)
        return;
    // The one step that can be refused comes first: nothing has happened yet then.
    if (!taken(store.removeAccount(account->key()))) {
        registry->reportProblem();
        return;
    }
    const KirvAccountKey key = account->key();
    leavingAccounts.erase(std::remove(leavingAccounts.begin(), leavingAccounts.end(), nullptr), leavingAccounts.end());
    leavingAccounts << account;
    account->d->leave();
    Q_EMIT registry->accountAboutToBeRemoved(account);
    takeOut(account);
    account->d->letGo();
    Q_EMIT registry->accountRemoved(key.id, key.protocol);
}

KirvAccount *KirvAccountRegistry::Private::loaded(KirvAccount *account)
{
    if (!account)
        return nullptr;
    KirvProtocolBase *protocol = protocols.value(account->key().protocol);
    if (protocol && !account->isLoaded())
        account->d->load(protocol);
    return account->isLoaded() ? account : nullptr;
}

bool KirvAccountRegistry::Private::taken(bool accepted)
{
    error = accepted ? QString() : store.lastError();
    return accepted;
}

void KirvAccountRegistry::Private::refuse(const QString &reason)
{
    error = reason;
    registry->reportProblem();
}
