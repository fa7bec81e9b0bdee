// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/connection/kirv_connection.h"

#include "host/kirv_account_connection.h"

#include <QPointer>
#include <QRandomGenerator>
#include <QScopedValueRollback>

namespace {

bool isSame(const KirvPresence &left, const KirvPresence &right)
{
    return left.getId() == right.getId() && left.getDescription() == right.getDescription();
}

} // namespace

class KirvConnection::Private {
public:
    Private(KirvConnection *connection, KirvAccountConnection *account, KirvClock &clock)
        : connection(connection)
        , account(account)
        , clock(clock)
        , since(clock.now())
    {
    }

    bool enter(State next);
    void inThisState(int milliseconds, std::function<void()> callback);

    void logInNow();
    void startLogOut(bool comeBack);
    void finishLogOut();
    void abort();
    void fail(KirvFailure failure);
    void waitAndRetry();
    int nextWait();
    bool hears(State expected) const { return state == expected && !aborting; }

    QString accountPassword() const { return account ? account->getPassword() : QString(); }
    bool isOutstanding(int request) const { return outstandingRequest && (!request || request == outstandingRequest); }

    KirvConnection *const connection;
    KirvAccountConnection *const account;
    KirvClock &clock;
    Timing timing;

    State state = Offline;
    quint64 visit = 0; ///< counts the states entered, so that a timer can tell whether it is still wanted
    QDateTime since;
    QDateTime nextRetry;
    KirvFailure lastFailure;
    KirvPresence wanted;
    KirvPresence applied; ///< what the server was told last
    QString usedPassword;
    int retryDelay = 0; ///< the wait of the last retry, without jitter; 0: none yet
    bool aborting = false; ///< what the protocol reports meanwhile does not count
    bool comesBack = false; ///< the log-out is followed by a log-in

    int lastRequest = 0;
    int outstandingRequest = 0;
};

/// Enters \a next and tells it. False when a slot has moved the connection on or destroyed it (and this object
/// with it): there is nothing left to do then.
bool KirvConnection::Private::enter(State next)
{
    const quint64 entered = ++visit;
    if (next != Waiting)
        nextRetry = QDateTime();
    if (next == state)
        return true;
    state = next;
    since = clock.now();
    const int unanswered = next == Online ? 0 : outstandingRequest;
    const QPointer<KirvConnection> alive(connection);
    Q_EMIT connection->stateChanged(next);
    if (alive && unanswered) {
        const QString reason = KirvConnection::tr("The connection ended before the server answered.");
        connection->failDirectoryRequest(KirvFailure(KirvFailure::RequestFailed, reason), unanswered);
    }
    return alive && visit == entered;
}

/// Calls \a callback later, unless the state has been left (or entered again) by then.
void KirvConnection::Private::inThisState(int milliseconds, std::function<void()> callback)
{
    clock.callLater(milliseconds, connection, [this, visitNow = visit, callback = std::move(callback)] {
        if (visit == visitNow)
            callback();
    });
}

void KirvConnection::Private::logInNow()
{
    comesBack = false;
    usedPassword = accountPassword();
    if (!enter(Connecting))
        return;
    inThisState(timing.loginTimeout, [this] { fail(KirvFailure::TimedOut); });
    applied = wanted;
    connection->startLogin(wanted);
}

void KirvConnection::Private::startLogOut(bool comeBack)
{
    comesBack = comeBack;
    retryDelay = 0;
    if (!enter(Disconnecting))
        return;
    inThisState(timing.logoutTimeout, [this] {
        abort();
        finishLogOut();
    });
    connection->startLogout();
}

void KirvConnection::Private::finishLogOut()
{
    if (enter(Offline) && comesBack)
        logInNow();
}

void KirvConnection::Private::abort()
{
    const QScopedValueRollback<bool> deaf(aborting, true);
    connection->abortConnection();
}

void KirvConnection::Private::fail(KirvFailure failure)
{
    abort();
    lastFailure = failure;
    const QPointer<KirvConnection> alive(connection);
    if (failure.isWorthRetrying())
        waitAndRetry();
    else
        enter(Offline);
    if (alive)
        Q_EMIT connection->failed(failure);
}

void KirvConnection::Private::waitAndRetry()
{
    const int wait = nextWait();
    nextRetry = clock.now().addMSecs(wait);
    if (enter(Waiting))
        inThisState(wait, [this] { logInNow(); });
}

int KirvConnection::Private::nextWait()
{
    const bool wasStable = state == Online && since.msecsTo(clock.now()) >= timing.stableAfter;
    if (wasStable || !retryDelay)
        retryDelay = timing.firstRetry;
    else
        retryDelay = int(qMin<qint64>(2 * qint64(retryDelay), timing.lastRetry));
    const double chance = 2 * QRandomGenerator::global()->generateDouble() - 1;
    return qRound(retryDelay * (1 + chance * timing.retryJitter));
}

KirvConnection::KirvConnection(KirvAccountConnection *account, KirvClock &clock, QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>(this, account, clock))
{
}

KirvConnection::~KirvConnection() = default;

KirvAccountConnection *KirvConnection::account() const
{
    return d->account;
}

KirvConnection::State KirvConnection::state() const
{
    return d->state;
}

bool KirvConnection::isLoggedIn() const
{
    return d->state == Online;
}

QDateTime KirvConnection::since() const
{
    return d->since;
}

KirvFailure KirvConnection::lastFailure() const
{
    return d->lastFailure;
}

QDateTime KirvConnection::nextRetry() const
{
    return d->nextRetry;
}

KirvConnection::Timing KirvConnection::timing() const
{
    return d->timing;
}

void KirvConnection::setTiming(const Timing &timing)
{
    d->timing = timing;
}

KirvPresence KirvConnection::wantedPresence() const
{
    return d->wanted;
}

void KirvConnection::setWantedPresence(const KirvPresence &presence)
{
    d->wanted = presence;
}

bool KirvConnection::isPasswordOutdated() const
{
    return d->usedPassword != d->accountPassword();
}

bool KirvConnection::isOfflinePresence(const KirvPresence &presence) const
{
    return presence.getId() == QLatin1String("offline");
}

void KirvConnection::goTo(const KirvPresence &presence)
{
    d->wanted = presence;
    if (isOfflinePresence(presence)) {
        logOut();
        return;
    }
    d->retryDelay = 0;
    switch (d->state) {
    case Offline:
    case Waiting:
        d->logInNow();
        break;
    case Connecting: // arrives with it, see loginSucceeded()
        break;
    case Online:
        d->applied = presence;
        applyPresence(presence);
        break;
    case Disconnecting:
        d->comesBack = true;
        break;
    }
}

void KirvConnection::reconnect(const KirvPresence &presence)
{
    const bool isConnected = d->state == Connecting || d->state == Online;
    if (!isConnected || isOfflinePresence(presence)) {
        goTo(presence);
        return;
    }
    d->wanted = presence;
    d->retryDelay = 0;
    if (d->state == Online) {
        d->startLogOut(true);
    } else {
        d->abort();
        d->logInNow();
    }
}

void KirvConnection::logOut()
{
    if (d->state == Online)
        d->startLogOut(false);
    else if (d->state == Disconnecting)
        d->comesBack = false;
    else
        drop();
}

void KirvConnection::drop()
{
    d->comesBack = false;
    if (d->state == Offline)
        return;
    d->abort();
    d->enter(Offline);
}

void KirvConnection::fetchDirectory()
{
    answerWithoutDirectory();
}

void KirvConnection::publishDirectory(const QList<KirvField> &)
{
    answerWithoutDirectory();
}

void KirvConnection::deleteDirectory()
{
    answerWithoutDirectory();
}

bool KirvConnection::isAskingDirectory() const
{
    return d->outstandingRequest;
}

void KirvConnection::answerWithoutDirectory()
{
    QMetaObject::invokeMethod(
        this, [this] { Q_EMIT directoryAnswered({}); }, Qt::QueuedConnection);
}

void KirvConnection::publishAvatar() { }

void KirvConnection::loginSucceeded()
{
    if (!d->hears(Connecting))
        return;
    d->lastFailure = KirvFailure();
    if (d->enter(Online) && !isSame(d->applied, d->wanted))
        goTo(d->wanted);
}

void KirvConnection::loginFailed(const KirvFailure &failure)
{
    if (d->hears(Connecting))
        d->fail(failure.isFailure() ? failure : KirvFailure::Other);
}

void KirvConnection::connectionLost(const KirvFailure &failure)
{
    if (d->hears(Disconnecting))
        d->finishLogOut();
    else if (d->hears(Connecting) || d->hears(Online))
        d->fail(failure.isFailure() ? failure : KirvFailure::ConnectionLost);
}

void KirvConnection::logoutFinished()
{
    if (d->hears(Disconnecting))
        d->finishLogOut();
}

void KirvConnection::requestFailed(const KirvFailure &failure)
{
    Q_EMIT failed(failure);
}

int KirvConnection::beginDirectoryRequest()
{
    if (d->outstandingRequest)
        answerWithoutDirectory();
    const int request = d->outstandingRequest = ++d->lastRequest;
    clock().callLater(d->timing.requestTimeout, this,
                      [this, request] { failDirectoryRequest(KirvFailure::TimedOut, request); });
    return request;
}

void KirvConnection::finishDirectoryRequest(const QList<KirvField> &fields, int request)
{
    if (!d->isOutstanding(request))
        return;
    d->outstandingRequest = 0;
    Q_EMIT directoryAnswered(fields);
}

void KirvConnection::failDirectoryRequest(const KirvFailure &failure, int request)
{
    if (!d->isOutstanding(request))
        return;
    d->outstandingRequest = 0;
    const QPointer<KirvConnection> alive(this);
    requestFailed(failure);
    if (alive)
        Q_EMIT directoryAnswered({});
}

KirvClock &KirvConnection::clock() const
{
    return d->clock;
}
