// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_account.h"

#include "core/accounts/kirv_account_p.h"
#include "core/accounts/kirv_account_registry_p.h"

namespace {

bool isSame(const KirvStore::Account &left, const KirvStore::Account &right)
{
    return left.isStoredLike(right) && left.password == right.password;
}

}

QString kirvStoredValue(const KirvField &field)
{
    if (field.getKind() == KirvField::CheckBox)
        return QLatin1String(field.isChecked() ? "true" : "false");
    return field.getText();
}

QMap<QString, QString> kirvStoredValues(const QList<KirvField> &fields)
{
    QMap<QString, QString> values;
    for (const KirvField &field : fields) {
        if (field.getKind() != KirvField::Label && !field.getId().isEmpty())
            values.insert(field.getId(), kirvStoredValue(field));
    }
    return values;
}

KirvField kirvWithStoredValue(KirvField field, const QString &value)
{
    if (field.getKind() == KirvField::CheckBox)
        field.setChecked(value == QLatin1String("true"));
    else if (field.getKind() != KirvField::Label)
        field.setText(value);
    return field;
}

KirvAccount::KirvAccount(std::unique_ptr<Private> priv, QObject *parent)
    : QObject(parent)
    , d(std::move(priv))
{
    d->account = this;
}

KirvAccount::~KirvAccount()
{
    d->abandon();
}

KirvAccountKey KirvAccount::key() const
{
    return d->record.key;
}

QString KirvAccount::displayName() const
{
    return d->record.alias.isEmpty() ? d->record.key.id : d->record.alias;
}

KirvConnection *KirvAccount::connection() const
{
    return d->connection;
}

bool KirvAccount::isLoaded() const
{
    return d->connection;
}

bool KirvAccount::isMainAccount() const
{
    return d->registry.mainAccount == this;
}

bool KirvAccount::remembersPassword() const
{
    return d->record.rememberPassword;
}

bool KirvAccount::restoresLastPresence() const
{
    return d->record.restorePresence;
}

bool KirvAccount::restoresLastDescription() const
{
    return d->record.restoreDescription;
}

KirvPresence KirvAccount::presence() const
{
    return d->askedPresence ? *d->askedPresence : d->startPresence();
}

KirvFailure KirvAccount::lastFailure() const
{
    return d->failure;
}

QDateTime KirvAccount::lastFailureTime() const
{
    return d->failureTime;
}

void KirvAccount::providePassword(const QString &password, bool remember)
{
    const QPointer<KirvAccount> alive(this);
    const bool stored = d->change([&](KirvStore::Account &record) {
        record.password = password;
        record.rememberPassword = remember;
    });
    if (!alive || d->isRemoved)
        return;
    if (!stored) { // it still serves this run
        d->record.password = password;
        d->record.rememberPassword = d->record.rememberPassword && remember;
    }
    if (d->record.enabled && d->connection)
        d->goTo(d->logInPresence());
}

void KirvAccount::beginSave()
{
    if (d->saveDepth++ == 0)
        d->recordBefore = d->record;
}

bool KirvAccount::endSave()
{
    if (d->saveDepth == 0 || --d->saveDepth > 0)
        return true;
    const bool isChanged = !isSame(d->record, d->recordBefore);
    const bool isNewAvatar = d->record.avatar != d->recordBefore.avatar;
    const bool isStored = !d->isRemoved
        && (d->record.isStoredLike(d->recordBefore) || d->registry.d->taken(d->store.updateAccount(d->record)));
    if (!isStored)
        d->record = d->recordBefore;
    for (const QString &avatar : qAsConst(d->importedAvatars)) {
        if (avatar != d->record.avatar)
            d->store.discardAvatar(avatar);
    }
    d->importedAvatars.clear();
    const bool hasNews = std::exchange(d->hasNews, false) || (isStored && isChanged);
    d->refreshInfo();

    if (isStored && isNewAvatar && d->connection && d->connection->isLoggedIn())
        d->connection->publishAvatar();
    const QPointer<KirvAccount> alive(this);
    if (hasNews)
        d->tellChanged();
    if (!isStored && alive && !d->isRemoved)
        d->registry.reportProblem();
    return isStored;
}

KirvAccount::Private::Private(KirvAccountRegistry &registry, KirvStore &store, const KirvStore::Account &record)
    : registry(registry)
    , store(store)
    , record(record)
{
    refreshInfo();
}

void KirvAccount::Private::refreshInfo()
{
    info = KirvAccountInfo(record.key.id, record.alias, record.enabled);
}

void KirvAccount::Private::tellChanged()
{
    if (isRemoved)
        return;
    const QPointer<KirvAccount> alive(account);
    Q_EMIT account->changed();
    if (alive && !isRemoved)
        Q_EMIT registry.accountChanged(account);
}

void KirvAccount::Private::load(KirvProtocolBase *newProtocol)
{
    if (connection || isRemoved)
        return;
    protocol = newProtocol;
    connection = protocol->createConnection(account);
    if (!connection)
        return;
    connection->setParent(account);
    connection->setWantedPresence(account->presence());
    protocol->setConnectionOf(account, connection);
    listenToConnection();
}

void KirvAccount::Private::unload()
{
    const QPointer<KirvAccount> alive(account);
    // Who waits for an answer of the connection gets it now.
    if (connection)
        connection->drop();
    if (alive)
        abandon();
}

void KirvAccount::Private::abandon()
{
    for (KirvConnection *going : { connection.data(), leavingConnection.data() }) {
        if (!going)
            continue;
        going->blockSignals(true);
        going->drop();
        going->blockSignals(false);
        delete going;
    }
    releaseConnection();
    protocol.clear();
    if (mayGo)
        account->deleteLater();
}

void KirvAccount::Private::leave()
{
    isRemoved = true;
    leavingConnection = connection;
    releaseConnection();
    if (!leavingConnection)
        return;
    leavingConnection->disconnect(account);
    leavingConnection->logOut();
}

void KirvAccount::Private::letGo()
{
    mayGo = true;
    // The account outlives its connection, which may still read from it.
    if (!leavingConnection || leavingConnection->state() == KirvConnection::Offline) {
        account->deleteLater();
        return;
    }
    connect(leavingConnection, &KirvConnection::stateChanged, account, [this](KirvConnection::State state) {
        if (state == KirvConnection::Offline)
            account->deleteLater();
    });
}

void KirvAccount::Private::releaseConnection()
{
    connection.clear();
    if (protocol)
        protocol->setConnectionOf(account, nullptr);
}

void KirvAccount::Private::listenToConnection()
{
    connect(connection, &KirvConnection::stateChanged, account,
            [this](KirvConnection::State state) { onStateChanged(state); });
    connect(connection, &KirvConnection::failed, account, [this](const KirvFailure &failed) { onFailed(failed); });
    connect(connection, &KirvConnection::directoryAnswered, account,
            [this](const QList<KirvField> &fields) { onDirectoryAnswered(fields); });
    connect(connection, &KirvConnection::noticeReceived, account,
            [this](const QString &text) { Q_EMIT registry.noticeReceived(account, text); });
}

void KirvAccount::Private::onStateChanged(KirvConnection::State state)
{
    if (state == KirvConnection::Online) {
        failure = KirvFailure();
        failureTime = QDateTime();
    }
    tellChanged();
}

void KirvAccount::Private::onFailed(const KirvFailure &failed)
{
    failure = failed;
    failureTime = QDateTime::currentDateTime();
    const bool asksForPassword = failed.kind() == KirvFailure::PasswordMissing && record.enabled;
    const QPointer<KirvAccount> alive(account);
    tellChanged();
    if (asksForPassword && alive && !isRemoved)
        Q_EMIT registry.passwordNeeded(account);
}

void KirvAccount::Private::onDirectoryAnswered(const QList<KirvField> &fields)
{
    const QPointer<KirvAccount> alive(account);
    if (!fields.isEmpty() && failure.isFailure() && account->isLoggedIn()) {
        failure = KirvFailure();
        failureTime = QDateTime();
        tellChanged();
    }
    if (alive && !isRemoved)
        Q_EMIT registry.directoryAnswered(account, fields);
}

/// While the protocol is away only the id is known of a presence.
KirvPresence KirvAccount::Private::createPresence(const QString &id, const QString &description) const
{
    return protocol ? protocol->createPresenceWithId(id, description) : KirvPresence(id, id, QString(), description);
}

KirvPresence KirvAccount::Private::defaultPresence() const
{
    return createPresence(record.defaultPresence, record.defaultDescription);
}

KirvPresence KirvAccount::Private::startPresence() const
{
    const bool hasLast = !record.lastPresence.isEmpty();
    return createPresence(hasLast && record.restorePresence ? record.lastPresence : record.defaultPresence,
                          hasLast && record.restoreDescription ? record.lastDescription : record.defaultDescription);
}

KirvPresence KirvAccount::Private::logInPresence() const
{
    for (const KirvPresence &presence : { account->presence(), startPresence() }) {
        if (!connection->isOfflinePresence(presence))
            return presence;
    }
    return defaultPresence();
}

void KirvAccount::Private::goTo(const KirvPresence &presence)
{
    askedPresence = presence;
    connection->goTo(presence);
}
