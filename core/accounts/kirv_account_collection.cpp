// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_account_collection.h"

#include "core/accounts/kirv_account_fields.h"
#include "core/store/kirv_store.h"

#include <QEventLoop>
#include <QTimer>
#include <algorithm>
#include <utility>

namespace {

QList<QPointer<KirvAccount>> guarded(const QList<KirvAccount *> &accounts)
{
    return QList<QPointer<KirvAccount>>(accounts.begin(), accounts.end());
}

} // namespace

KirvAccountCollection::KirvAccountCollection(KirvStore &store, QObject *parent)
    : QObject(parent)
    , store(store)
    , keeper(store)
{
    nextTurn.setSingleShot(true);
    connect(&nextTurn, &QTimer::timeout, this, &KirvAccountCollection::notifyOfNetwork);
    nextFollowing.setSingleShot(true);
    connect(&nextFollowing, &QTimer::timeout, this, &KirvAccountCollection::followNext);
    // When several accounts were disabled or removed, their connections follow a few at a time; none logs in before.
    queue.setCondition([](const KirvConnection &connection) {
        const auto *account = qobject_cast<const KirvAccount *>(connection.parent());
        return !account || (account->record().enabled && !account->isRemoved());
    });
    const QList<KirvAccountRecord> records = store.readAccounts();
    error = store.lastError();
    byKey.reserve(int(records.size()));
    for (const KirvAccountRecord &record : records)
        append(record);
}

KirvAccountCollection::~KirvAccountCollection()
{
    for (const QPointer<KirvAccount> &account : guarded(allWithRemoved())) {
        if (account)
            account->disconnect(this);
        delete account;
    }
}

QList<KirvAccount *> KirvAccountCollection::accountsOf(const QString &protocol) const
{
    return byProtocol.value(protocol).accounts;
}

QList<KirvAccountInfo *> KirvAccountCollection::descriptionsOf(const QString &protocol) const
{
    return byProtocol.value(protocol).infos;
}

void KirvAccountCollection::setMainAccount(std::function<KirvAccount *()> newMainAccount)
{
    mainAccount = std::move(newMainAccount);
    queue.setMainConnection([this]() -> const KirvConnection * {
        const KirvAccount *account = mainAccount ? mainAccount() : nullptr;
        return account ? account->connection() : nullptr;
    });
}

/// \a accounts with the main account in front when it is among them.
QList<KirvAccount *> KirvAccountCollection::mainFirst(QList<KirvAccount *> accounts) const
{
    const int index = mainAccount ? int(accounts.indexOf(mainAccount())) : -1;
    if (index > 0)
        accounts.move(index, 0);
    return accounts;
}

void KirvAccountCollection::protocolLoaded(KirvProtocolBase *protocol, bool logIn)
{
    const QString name = protocol->getName();
    if (protocols.value(name) == protocol)
        return;
    const QPointer<KirvAccountCollection> alive(this);
    const QPointer<KirvProtocolBase> loaded(protocol);
    protocolAboutToBeUnloaded(name);
    if (!alive || !loaded || protocols.contains(name)) // a slot was quicker
        return;
    protocols.insert(name, loaded);
    QStringList ids;
    for (const KirvAccount *account : accountsOf(name))
        ids << account->key().id;
    logins.load(protocol, name, ids);
    connect(protocol, &KirvProtocolBase::directoryRequested, this, &KirvAccountCollection::requestDirectory);
    connect(protocol, &QObject::destroyed, this, [this, name] {
        if (protocols.contains(name) && !protocols.value(name))
            protocolAboutToBeUnloaded(name);
    });

    // Where this fails, more than necessary counts as secret until the next time.
    const QStringList settings = kirvStoredValues(protocol->accountSettings()).keys();
    store.classifySettings(name, QSet<QString>(settings.begin(), settings.end()),
                           kirvSecretFields(protocol->accountSettings()));

    for (const QPointer<KirvAccount> &account : guarded(mainFirst(accountsOf(name)))) {
        if (!alive || !loaded || protocols.value(name) != loaded)
            return;
        if (account)
            account->load(protocol, logIn);
        if (account)
            Q_EMIT account->changed();
    }
    if (alive && loaded && protocols.value(name) == loaded)
        reportDuplicateLogins(name);
}

/// One text for all of them: there may be many.
void KirvAccountCollection::reportDuplicateLogins(const QString &protocol)
{
    const QList<QStringList> groups = logins.duplicateLogins(protocol);
    if (groups.isEmpty())
        return;
    const QString first = groups.first().at(0), second = groups.first().at(1);
    //: %1 and %2 are logins, %3 is the name of a protocol
    QString text =
        tr("The accounts \"%1\" and \"%2\" (%3) are the same to the server. Both are kept; remove the one that "
           "is not needed.")
            .arg(first, second, protocol);
    if (groups.size() > 1)
        text += QLatin1Char('\n') + tr("The same is true of %n further logins.", nullptr, int(groups.size()) - 1);
    Q_EMIT problemOccurred(text);
}

void KirvAccountCollection::protocolAboutToBeUnloaded(const QString &protocol)
{
    if (!protocols.contains(protocol))
        return;
    logins.unload(protocol);
    if (KirvProtocolBase *unloaded = protocols.take(protocol))
        unloaded->disconnect(this);
    // Those that were removed and are still logging out have connections of the protocol, too.
    for (const QPointer<KirvAccount> &account : guarded(allWithRemoved())) {
        if (!account || account->key().protocol != protocol)
            continue;
        if (account->protocol() && account->protocol() == protocols.value(protocol)) // by a slot, again
            continue;
        account->unload();
        if (account && !account->isRemoved())
            Q_EMIT account->changed();
    }
}

/// Another change starts over: it may have come after an account has reacted.
void KirvAccountCollection::networkChanged()
{
    networkChangePending = guarded(mainFirst(all));
    nextTurn.start(0);
}

void KirvAccountCollection::notifyOfNetwork()
{
    const QPointer<KirvAccountCollection> alive(this);
    for (int reacted = 0; alive && reacted < accountsPerTurn && !networkChangePending.isEmpty(); ++reacted) {
        const QPointer<KirvAccount> account = networkChangePending.takeFirst();
        if (account && !account->isRemoved() && account->connection())
            account->connection()->networkChanged();
    }
    if (alive && !networkChangePending.isEmpty())
        nextTurn.start(0);
}

void KirvAccountCollection::logOutAll(int milliseconds)
{
    networkChangePending.clear();
    following.clear();
    QList<QPointer<KirvConnection>> open;
    for (KirvAccount *account : allWithRemoved()) {
        if (account->connection())
            open << account->connection();
        account->stopReconciling();
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

KirvAccount *KirvAccountCollection::append(const KirvAccountRecord &record)
{
    auto *account = new KirvAccount(store, queue, reconcilers, keeper, record, this);
    all.append(account);
    places.append(account);
    byKey.insert(record.key, account);
    logins.insert(record.key);
    ProtocolAccounts &siblings = byProtocol[record.key.protocol];
    siblings.accounts.append(account);
    siblings.infos.append(account->info());

    connect(account, &KirvAccount::changed, this, [this, account] { Q_EMIT accountChanged(account); });
    connect(account, &KirvAccount::disablingBegins, this, [this, account] { Q_EMIT disablingBegins(account); });
    connect(account, &KirvAccount::refused, this, &KirvAccountCollection::refuse);
    connect(account, &KirvAccount::passwordNeeded, this, [this, account] { Q_EMIT passwordNeeded(account); });
    connect(account, &KirvAccount::noticeReceived, this,
            [this, account](const QString &text) { Q_EMIT noticeReceived(account, text); });
    return account;
}

/// \a account may be destroyed already.
void KirvAccountCollection::takeOut(KirvAccount *account, const KirvAccountKey &key)
{
    all.removeOne(account);
    places.leave(account);
    byKey.remove(key);
    logins.remove(key);
    ProtocolAccounts &siblings = byProtocol[key.protocol];
    const int index = int(siblings.accounts.indexOf(account));
    siblings.accounts.removeAt(index);
    siblings.infos.removeAt(index);
}

/// With the removed ones that are not logged out yet.
QList<KirvAccount *> KirvAccountCollection::allWithRemoved() const
{
    return findChildren<KirvAccount *>(QString(), Qt::FindDirectChildrenOnly);
}

/// Also of an account whose protocol is not loaded.
QString KirvAccountCollection::idWithSameLogin(const KirvAccountKey &key) const
{
    return byKey.contains(key) ? key.id : logins.find(key);
}

/// Empty when there is no such account.
QString KirvAccountCollection::existenceProblem(const KirvAccountKey &key) const
{
    const QString same = idWithSameLogin(key);
    if (same.isEmpty())
        return QString();
    if (same == key.id)
        return tr("The account \"%1\" (%2) exists already.").arg(key.id, key.protocol);
    //: %1 and %3 are two spellings of a login, %2 is the name of a protocol
    return tr("The account \"%1\" (%2) exists already: it is the same as \"%3\" to the server.")
        .arg(key.id, key.protocol, same);
}

QString KirvAccountCollection::problemWithNew(const KirvAccountKey &key) const
{
    const QString twin = existenceProblem(key);
    if (!twin.isEmpty())
        return twin;
    const KirvProtocolBase *protocol = protocols.value(key.protocol);
    if (!protocol)
        return protocolIsNotLoaded(key);
    return key.id.isEmpty() ? tr("An account needs a login.") : protocol->loginProblem(key.id);
}

QString KirvAccountCollection::protocolIsNotLoaded(const KirvAccountKey &key)
{
    return tr("The account \"%1\" could not be created: the protocol %2 is not loaded.").arg(key.id, key.protocol);
}

KirvAccount *KirvAccountCollection::create(const KirvAccountRecord &record, KirvProtocol *protocol)
{
    KirvProtocolBase *known = protocols.value(record.key.protocol);
    QString reason = problemWithNew(record.key);
    if (reason.isEmpty() && known != protocol)
        reason = protocolIsNotLoaded(record.key);
    if (!reason.isEmpty())
        return refuseCreation(record.key, reason);
    KirvAccountRecord complete = record;
    const QList<KirvField> fields = known->accountSettings();
    complete.settings = kirvStoredValues(fields);
    for (auto value = record.settings.constBegin(); value != record.settings.constEnd(); ++value)
        complete.settings.insert(value.key(), value.value());
    complete.secretSettings += kirvSecretFields(fields);
    reason = known->settingsProblem(complete.key.id, kirvFieldsWithValues(fields, complete.settings));
    if (!reason.isEmpty())
        return refuseCreation(record.key, reason);
    keeper.place(complete, KirvAccountRecord());
    if (!store.insertAccount(complete))
        return refuseCreation(record.key, store.lastError());
    error.clear();
    const QPointer<KirvAccountCollection> alive(this);
    const QPointer<KirvAccount> account = append(complete);
    keeper.scheduleLoad();
    account->load(known, true);
    account->tryAgain(); // the user has just made it: it does not wait behind the others
    Q_EMIT accountAdded(account);
    return alive && account && byKey.value(record.key) == account ? account.data() : nullptr;
}

bool KirvAccountCollection::remove(KirvAccount *account)
{
    return remove(QList<KirvAccount *> { account });
}

bool KirvAccountCollection::remove(const QList<KirvAccount *> &accounts)
{
    QList<QPointer<KirvAccount>> removed;
    for (KirvAccount *account : accounts) {
        if (account->isRemoved())
            continue;
        removed << account;
        Q_EMIT removalBegins(account);
    }
    if (removed.isEmpty())
        return true;
    // The one step that can be refused comes first: nothing has happened yet then.
    const bool isStored = store.begin() && std::all_of(removed.begin(), removed.end(), [this](const auto &account) {
                              return store.removeAccount(account->key());
                          });
    if (!isStored)
        store.rollBack();
    if (!isStored || !store.commit()) {
        refuseRemoval(removed);
        return false;
    }
    error.clear();
    const QPointer<KirvAccountCollection> alive(this);
    for (const QPointer<KirvAccount> &account : qAsConst(removed)) {
        if (alive && account && !account->isRemoved())
            removeStored(account);
    }
    return true;
}

void KirvAccountCollection::refuseRemoval(const QList<QPointer<KirvAccount>> &accounts)
{
    const QPointer<KirvAccountCollection> alive(this);
    refuse(store.lastError());
    for (const QPointer<KirvAccount> &account : accounts) {
        if (alive && account)
            Q_EMIT removalRefused(account);
    }
}

/// The store has removed it already.
void KirvAccountCollection::removeStored(KirvAccount *account)
{
    const KirvAccountKey key = account->key();
    account->logOutAndDelete();
    keeper.scheduleLoad();
    const QPointer<KirvAccountCollection> alive(this);
    Q_EMIT accountAboutToBeRemoved(account);
    if (!alive)
        return;
    takeOut(account, key);
    Q_EMIT accountRemoved(key.id, key.protocol);
}

KirvAccount *KirvAccountCollection::load(KirvAccount *account)
{
    KirvProtocolBase *protocol = protocols.value(account->key().protocol);
    if (protocol && !account->isLoaded())
        account->load(protocol, true);
    return account->isLoaded() ? account : nullptr;
}

void KirvAccountCollection::requestDirectory(KirvAccountConnection *connection,
                                             KirvProtocolBase::DirectoryOperation operation,
                                             const QList<KirvField> &fields)
{
    auto *account = static_cast<KirvAccount *>(connection);
    if (!all.contains(account))
        return;
    switch (operation) {
    case KirvProtocolBase::FetchDirectory:
        account->directory().fetch();
        break;
    case KirvProtocolBase::PublishDirectory:
        account->directory().publish(fields);
        break;
    case KirvProtocolBase::DeleteDirectory:
        account->directory().deleteEntry();
        break;
    }
}

/// Always null.
KirvAccount *KirvAccountCollection::refuseCreation(const KirvAccountKey &key, const QString &reason)
{
    error = reason;
    Q_EMIT creationRefused(key, reason);
    return nullptr;
}

void KirvAccountCollection::refuse(const QString &reason)
{
    error = reason;
    Q_EMIT problemOccurred(reason);
}
