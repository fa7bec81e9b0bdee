// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_account.h"

#include "core/accounts/kirv_account_log.h"
#include "core/accounts/kirv_secret_keeper.h"
#include "core/protocol/kirv_plugin_call.h"
#include "core/protocol/kirv_same_value.h"
#include "core/store/kirv_store.h"
#include "core/values/kirv_text_limit.h"

#include <algorithm>
#include <utility>

namespace {

bool isBlank(const QString &alias)
{
    return alias.trimmed().isEmpty();
}

bool isSame(const std::optional<KirvPresence> &left, const std::optional<KirvPresence> &right)
{
    if (!left || !right)
        return left.has_value() == right.has_value();
    return kirvIsSamePresence(*left, *right);
}

} // namespace

KirvAccount::KirvAccount(KirvStore &store, KirvLoginQueue &logins, KirvReconcilerQueue &turns,
                         KirvSecretKeeper &secrets, const KirvAccountRecord &record, QObject *parent)
    : QObject(parent)
    , profile(store)
    , keeper(secrets)
    , current(record)
    , awaited(record.unreadSecrets)
    , reconciler([this] { return wanted(); }, logins, turns)
{
    refreshDescription();
    keeper.add(this);
    connect(&reconciler, &KirvReconciler::stepTaken, this,
            [this](KirvReconciler::Step step) { log().addAction(step); });
    connect(&reconciler, &KirvReconciler::settled, &entry, &KirvAccountDirectory::connectionSettled);
    connect(
        &entry, &KirvAccountDirectory::answered, this,
        [this](KirvAccountDirectory::Operation, const KirvDirectoryAnswer &answer) { onDirectoryAnswered(answer); });
}

KirvAccount::~KirvAccount()
{
    keeper.remove(this);
    entry.disconnect(this);
    dropConnection();
}

QString KirvAccount::displayName() const
{
    return kirvShortName(isBlank(current.alias) ? current.key.id : current.alias);
}

bool KirvAccount::change(const std::function<void(KirvAccountRecord &)> &makeChange)
{
    beginSave();
    makeChange(current);
    return endSave();
}

void KirvAccount::beginSave()
{
    if (saveDepth++ > 0)
        return;
    recordBefore = current;
    presenceBefore = requestedPresence;
    reconciler.hold();
    entry.hold();
}

bool KirvAccount::endSave()
{
    if (saveDepth == 0 || --saveDepth > 0)
        return true;
    const bool isKept = !std::exchange(isCancelled, false);
    if (!isKept)
        takeBackChanges();
    const bool isChanged = current != recordBefore || !isSame(requestedPresence, presenceBefore);
    const bool isStored = isKept && store();
    recordBefore = KirvAccountRecord(); // it may have the last copy of a password
    discardUnusedAvatars();
    refreshDescription();
    entry.release(isStored);
    reconciler.release(isStored);

    const QPointer<KirvAccount> alive(this);
    if (isStored && isChanged && !removed)
        Q_EMIT changed();
    if (isKept && !isStored && alive && !removed)
        Q_EMIT refused(profile.lastError());
    return isStored;
}

/// Stores the changes of the save that ends, or undoes them.
bool KirvAccount::store()
{
    KirvAccountRecord placed = current;
    keeper.place(placed, recordBefore, unstoredPassword ? QSet<QString> { QString() } : QSet<QString>());
    const bool isSameAsStored = !unstoredPassword && placed.isStoredLike(recordBefore);
    if (!removed && (isSameAsStored || profile.updateAccount(placed))) {
        unstoredPassword = false;
        current = placed;
        awaited.intersect(current.unreadSecrets);
        if (current.secretItems != recordBefore.secretItems || keeper.hasUnstoredSecret())
            keeper.scheduleLoad();
        return true;
    }
    takeBackChanges();
    return false;
}

void KirvAccount::takeBackChanges()
{
    current = recordBefore;
    requestedPresence = presenceBefore;
}

QList<KirvField> KirvAccount::settings() const
{
    return loadedProtocol ? kirvFieldsWithValues(loadedProtocol->accountSettings(), current.settings)
                          : QList<KirvField>();
}

bool KirvAccount::setSettings(const QList<KirvField> &fields)
{
    const QMap<QString, QString> values = kirvStoredValues(fields);
    return change([&](KirvAccountRecord &record) {
        for (auto value = values.constBegin(); value != values.constEnd(); ++value)
            kirvSetValue(record, value.key(), value.value());
        kirvClassify(record, fields);
    });
}

bool KirvAccount::setEnabled(bool enabled)
{
    if (removed || current.enabled == enabled)
        return true;
    const KirvPresence presence = logInPresence();
    const QPointer<KirvAccount> alive(this);
    if (!enabled) {
        presenceWhenDisabled = this->presence();
        Q_EMIT disablingBegins();
    }
    const bool isStored = change([&](KirvAccountRecord &record) {
        record.enabled = enabled;
        if (enabled)
            requestedPresence = presence;
        else
            requestedPresence.reset();
    });
    if (alive && isStored && enabled) {
        readSecretsAgain();
        tryAgain();
    }
    return isStored;
}

/// Also in a save that is open, which would undo it when it is refused.
void KirvAccount::setStoredEnabled(bool enabled, bool isAgain)
{
    if (enabled) {
        requestedPresence = isAgain && presenceWhenDisabled ? *presenceWhenDisabled : logInPresence();
    } else {
        presenceWhenDisabled = presence();
        requestedPresence.reset();
    }
    current.enabled = enabled;
    if (isSaving()) {
        recordBefore.enabled = enabled;
        presenceBefore = requestedPresence;
    }
    refreshDescription();
}

void KirvAccount::followEnabled()
{
    const QPointer<KirvAccount> alive(this);
    Q_EMIT changed();
    if (!alive || removed)
        return;
    if (current.enabled) {
        readSecretsAgain();
        tryAgain();
    } else {
        reconciler.schedule();
    }
}

/// While the protocol is not loaded only the id is known of a presence.
KirvPresence KirvAccount::createPresence(const QString &id, const QString &description) const
{
    return loadedProtocol ? loadedProtocol->presenceWithId(id, description)
                          : KirvPresence(id, id, QString(), description);
}

KirvPresence KirvAccount::defaultPresence() const
{
    return createPresence(current.defaultPresence, current.defaultDescription);
}

KirvPresence KirvAccount::startPresence() const
{
    const bool hasLast = !current.lastPresence.isEmpty();
    return createPresence(hasLast && current.restorePresence ? current.lastPresence : current.defaultPresence,
                          hasLast && current.restoreDescription ? current.lastDescription : current.defaultDescription);
}

KirvPresence KirvAccount::presence() const
{
    return requestedPresence ? *requestedPresence : startPresence();
}

/// Nothing is known of a presence while the protocol is not loaded.
bool KirvAccount::isOffline(const KirvPresence &presence) const
{
    return connection() && connection()->isOfflinePresence(presence);
}

/// The presence for a log-in that is wanted explicitly: never an off-line one when there is a better one.
KirvPresence KirvAccount::logInPresence() const
{
    for (const KirvPresence &candidate : { presence(), startPresence() }) {
        if (!isOffline(candidate))
            return candidate;
    }
    return defaultPresence();
}

/// The same for one that the user requests while the account may start off line.
KirvPresence KirvAccount::onlinePresence() const
{
    const KirvPresence usual = logInPresence();
    const QList<KirvPresence> offered = loadedProtocol ? loadedProtocol->presences() : QList<KirvPresence>();
    const auto better =
        std::find_if(offered.begin(), offered.end(), [this](const auto &one) { return !isOffline(one); });
    return isOffline(usual) && better != offered.end() ? *better : usual;
}

bool KirvAccount::setPresence(const KirvPresence &presence)
{
    const QPointer<KirvAccount> alive(this);
    const bool wasOffline = isOffline(this->presence());
    const bool isStored = change([&](KirvAccountRecord &record) {
        requestedPresence = presence;
        record.lastPresence = presence.getId();
        record.lastDescription = presence.getDescription();
    });
    // Not in a save, whose password may be another one than that in the keyring.
    if (alive && isStored && current.enabled && wasOffline && !isOffline(presence) && !isSaving())
        readSecretsAgain();
    return isStored;
}

void KirvAccount::resume(const KirvPresence &presence)
{
    requestedPresence = presence;
    reconciler.schedule();
}

void KirvAccount::adopt(const KirvAccountRecord &stored, const KirvPresence &wanted)
{
    const bool becomesEnabled = stored.enabled && !current.enabled;
    current = stored;
    if (isSaving())
        recordBefore = stored;
    unstoredPassword = false;
    if (!current.enabled)
        requestedPresence.reset();
    else if (!wanted.getId().isEmpty())
        requestedPresence = wanted;
    else if (becomesEnabled)
        requestedPresence = logInPresence();
    awaited = current.unreadSecrets;
    if (usesPasswordForNow())
        awaited.remove(QString());
    if (!awaited.isEmpty())
        keeper.read(this);
    refreshDescription();
    if (becomesEnabled)
        tryAgain();
    reconciler.schedule();
}

void KirvAccount::tryAgain()
{
    mayLogIn = true;
    reconciler.requestStep(KirvReconciler::Retry);
}

void KirvAccount::reconnect()
{
    mayLogIn = true;
    requestedPresence = onlinePresence();
    readSecretsAgain();
    reconciler.requestStep(KirvReconciler::Reconnect);
}

bool KirvAccount::acceptServerPassword(const QString &password)
{
    if (removed)
        return false;
    if (connection())
        connection()->acceptPassword(password);
    // Stored by itself: it stays the password also when a save that is open is refused.
    KirvAccountRecord accepted = isSaving() ? recordBefore : current;
    const KirvAccountRecord before = accepted;
    accepted.password = password;
    accepted.unreadSecrets.remove(QString());
    keeper.place(accepted, before);
    const bool isStored = !accepted.rememberPassword || profile.updateAccount(accepted);
    current.password = password;
    current.unreadSecrets.remove(QString());
    if (isSaving()) {
        recordBefore.password = password;
        recordBefore.unreadSecrets.remove(QString());
    }
    awaited.remove(QString());
    if (isStored && accepted.rememberPassword) {
        current.secretItems = accepted.secretItems;
        if (isSaving())
            recordBefore.secretItems = accepted.secretItems;
        keeper.scheduleLoad();
    }
    unstoredPassword = !isStored;
    const QPointer<KirvAccount> alive(this);
    const QString reason = profile.lastError();
    Q_EMIT changed();
    if (!isStored && alive && !removed)
        Q_EMIT refused(reason);
    return isStored;
}

bool KirvAccount::isOnline() const
{
    return current.enabled && !removed && connection() && connection()->isLoggedIn();
}

KirvReconciler::Wanted KirvAccount::wanted() const
{
    KirvReconciler::Wanted result;
    result.presence = presence();
    result.login = { current.key.id, current.password, settings(), trustedCertificate() };
    result.avatar = avatar();
    result.awaitsSecrets = awaitsSecrets();
    result.online =
        mayLogIn && !removed && current.enabled && connection() && !connection()->isOfflinePresence(result.presence);
    return result;
}

void KirvAccount::load(KirvProtocolBase *protocol, bool logIn)
{
    if (removed || (connection() && loadedProtocol == protocol))
        return;
    if (!dropConnection() || connection())
        return;
    loadedProtocol = protocol;
    mayLogIn = logIn;
    KirvConnection *created = nullptr;
    const auto readProtocol = [&] {
        kirvClassify(current, protocol->accountSettings());
        entry.setBlankFields(protocol->directoryFields());
        created = protocol->createConnection();
    };
    QString problem;
    if (!kirvCallPlugin(readProtocol, &problem))
        Q_EMIT noticeReceived(problem);
    if (!created)
        return;
    created->setParent(this);
    connectConnection(created);
    entry.setConnection(created);
    reconciler.setConnection(created);
}

void KirvAccount::unload()
{
    if (dropConnection())
        loadedProtocol.clear();
}

void KirvAccount::logOutAndDelete()
{
    removed = true;
    keeper.remove(this);
    if (!connection() || connection()->state() == KirvConnection::Offline) {
        deleteLater();
        return;
    }
    connect(connection(), &KirvConnection::stateChanged, this, [this](KirvConnection::State state) {
        if (state != KirvConnection::Offline)
            return;
        connection()->drop(); // it does not log in again
        deleteLater();
    });
    reconciler.schedule();
}

void KirvAccount::connectConnection(KirvConnection *created)
{
    connectLog(created);
    connect(created, &KirvConnection::stateChanged, this, &KirvAccount::onStateChanged);
    connect(created, &KirvConnection::failed, this, &KirvAccount::onFailed);
    connect(created, &KirvConnection::avatarPublished, this, &KirvAccount::onAvatarPublished);
    connect(created, &KirvConnection::avatarReceived, this, &KirvAccount::onAvatarReceived);
    connect(created, &KirvConnection::turnAwaited, this, [this] {
        if (!removed)
            Q_EMIT changed();
    });
    connect(created, &KirvConnection::noticeReceived, this, [this](const QString &text) {
        if (!removed)
            Q_EMIT noticeReceived(text);
    });
}

/// Breaks the connection and destroys it; only outstanding requests are answered. False when a slot has destroyed the
/// account, and the connection with it.
bool KirvAccount::dropConnection()
{
    const QPointer<KirvConnection> dropped = connection();
    if (!dropped)
        return true;
    const QPointer<KirvAccount> alive(this);
    dropped->disconnect(this);
    reconciler.setConnection(nullptr);
    dropped->drop();
    if (alive)
        entry.setConnection(nullptr);
    delete dropped;
    if (alive && removed)
        deleteLater();
    return alive;
}

void KirvAccount::onStateChanged(KirvConnection::State state)
{
    if (removed)
        return;
    if (state == KirvConnection::Online)
        setFailure(KirvFailure());
    else if (state == KirvConnection::Waiting)
        keeper.readUnlocked(this); // another program may change a password before the next attempt
    Q_EMIT changed();
}

void KirvAccount::onFailed(const KirvFailure &failed)
{
    if (removed)
        return;
    setFailure(failed);
    if (failed.kind() == KirvFailure::WrongPassword && !usesPasswordForNow())
        keeper.read(this); // another program may have changed it
    const bool needsPassword = failed.kind() == KirvFailure::PasswordMissing;
    const QPointer<KirvAccount> alive(this);
    Q_EMIT changed();
    if (needsPassword && alive && !removed && current.enabled)
        Q_EMIT passwordNeeded();
}

void KirvAccount::onDirectoryAnswered(const KirvDirectoryAnswer &answer)
{
    const bool isRecovered = !answer.failure.isFailure() && failure.isFailure() && isOnline();
    if (removed || (!answer.failure.isFailure() && !isRecovered))
        return;
    setFailure(answer.failure);
    Q_EMIT changed();
}

void KirvAccount::setFailure(const KirvFailure &newFailure)
{
    failure = newFailure;
    failureTime = failure.isFailure() ? QDateTime::currentDateTime() : QDateTime();
}

void KirvAccount::refreshDescription()
{
    const QString name = isBlank(current.alias) ? displayName() : kirvEditablePart(current.alias);
    description = KirvAccountInfo(current.key.id, name, current.enabled);
}
