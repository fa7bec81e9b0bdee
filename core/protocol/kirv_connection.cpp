// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/protocol/kirv_connection_p.h"

#include "core/protocol/kirv_plugin_call.h"
#include "core/protocol/kirv_same_value.h"

#include <QPointer>
#include <algorithm>
#include <utility>

/// Enters \a next and emits it. False when a slot has moved the connection on or destroyed it (and this object with
/// it): there is nothing left to do then.
bool KirvConnection::Private::enter(State next)
{
    const quint64 entered = ++visit;
    if (next != Waiting) {
        nextRetry = QDateTime();
        waitsForTurn = false;
    }
    if (next == state)
        return true;
    state = next;
    since = clock.now();
    const QPointer<KirvConnection> alive(connection);
    // A slot may log in again and make new requests: these are not the ones that ended.
    const QList<int> ended = next == Online ? QList<int>() : outstanding;
    Q_EMIT connection->stateChanged(next);
    return alive && failRequests(ended) && visit == entered;
}

/// False when a slot has destroyed the connection.
bool KirvConnection::Private::failRequests(const QList<int> &requests)
{
    const QPointer<KirvConnection> alive(connection);
    for (int request : requests) {
        connection->failDirectoryRequest(request, KirvFailure::connectionEnded());
        if (!alive)
            return false;
    }
    return true;
}

/// Calls \a callback later, unless the state has been left (or entered again) by then.
void KirvConnection::Private::inThisState(int milliseconds, std::function<void()> callback)
{
    clock.callLater(milliseconds, connection, [this, visitNow = visit, callback = std::move(callback)] {
        if (visit == visitNow)
            callback();
    });
}

/// Logs in when it is the connection's turn, now or later.
void KirvConnection::Private::logInNow()
{
    logsInAgain = false;
    if (mayBegin && !mayBegin())
        waitForTurn();
    else
        begin();
}

void KirvConnection::Private::waitForTurn()
{
    const bool waitedForTime = state == Waiting && !waitsForTurn;
    nextRetry = QDateTime();
    waitsForTurn = true;
    if (enter(Waiting) && waitedForTime)
        Q_EMIT connection->turnAwaited();
}

void KirvConnection::Private::begin()
{
    if (!enter(Connecting))
        return;
    inThisState(timing.loginTimeout, [this] { fail(KirvFailure::TimedOut); });
    applied = wanted;
    lastStep.reset();
    shownCertificate = refusedCertificate = KirvServerCertificate();
    callProtocol([this] { connection->startLogin(wanted); }, [this](const KirvFailure &failure) { fail(failure); });
}

void KirvConnection::Private::startLogOut(bool logInAgain)
{
    logsInAgain = logInAgain;
    backOff.reset();
    if (!enter(Disconnecting))
        return;
    const auto end = [this] {
        if (abort())
            finishLogOut();
    };
    inThisState(timing.logoutTimeout, end);
    callProtocol([this] { connection->startLogout(); }, [end](const KirvFailure &) { end(); });
}

void KirvConnection::Private::finishLogOut()
{
    if (enter(Offline) && logsInAgain)
        logInNow();
}

/// False when a slot has destroyed the connection.
bool KirvConnection::Private::abort()
{
    return callWith(aborting, [this] { callProtocol([this] { connection->abortConnection(); }, {}); });
}

/// Sets \a flag during \a call. False when a slot has destroyed the connection.
bool KirvConnection::Private::callWith(bool &flag, const std::function<void()> &call)
{
    const QPointer<KirvConnection> alive(connection);
    const bool before = std::exchange(flag, true);
    call();
    if (alive)
        flag = before;
    return alive;
}

/// Runs code of the protocol; an exception that leaves it is handed to \a onException, if the connection is still
/// there.
void KirvConnection::Private::callProtocol(const std::function<void()> &call,
                                           const std::function<void(const KirvFailure &)> &onException)
{
    const QPointer<KirvConnection> alive(connection);
    QString problem;
    if (!kirvCallPlugin(call, &problem) && alive && onException)
        onException(KirvFailure(KirvFailure::Other, problem));
}

void KirvConnection::Private::fail(const KirvFailure &reported)
{
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): a slot may destroy what it belongs to
    const KirvFailure failure = reported;
    failStep(failure);
    if (!abort())
        return;
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
    const bool wasStable = state == Online && since.msecsTo(clock.now()) >= timing.stableAfter;
    if (wasStable)
        backOff.reset();
    const int wait = random ? backOff.next(timing.backOff, random()) : backOff.next(timing.backOff);
    nextRetry = clock.now().addMSecs(wait);
    waitsForTurn = false;
    if (enter(Waiting))
        inThisState(wait, [this] { logInNow(); });
}

/// Gives the request its number and its time-out and calls \a start with it, when the account is logged in.
int KirvConnection::Private::startRequest(const std::function<void(int)> &start)
{
    const int request = ++lastRequest;
    outstanding.append(request);
    if (state == Online) {
        clock.callLater(timing.requestTimeout, connection,
                        [this, request] { connection->failDirectoryRequest(request, KirvFailure::TimedOut); });
        callWith(starting, [&] {
            callProtocol([&] { start(request); },
                         [&](const KirvFailure &failure) { connection->failDirectoryRequest(request, failure); });
        });
    } else {
        const KirvFailure failure(KirvFailure::RequestFailed, KirvConnection::tr("The account is not connected."));
        clock.callLater(0, connection,
                        [this, request, failure] { connection->failDirectoryRequest(request, failure); });
    }
    return request;
}

void KirvConnection::Private::answer(const KirvDirectoryAnswer &answer)
{
    if (starting) // the caller does not know the number yet
        clock.callLater(0, connection, [this, answer] { this->answer(answer); });
    else if (outstanding.removeOne(answer.request))
        Q_EMIT connection->directoryAnswered(answer);
}

KirvConnection::KirvConnection(KirvClock &clock, QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>(this, clock))
{
}

KirvConnection::~KirvConnection() = default;

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

bool KirvConnection::isWaitingForTurn() const
{
    return d->waitsForTurn;
}

KirvConnection::Timing KirvConnection::timing() const
{
    return d->timing;
}

void KirvConnection::setTiming(const Timing &timing)
{
    d->timing = timing;
}

const KirvLogin &KirvConnection::login() const
{
    return d->login;
}

KirvPresence KirvConnection::presence() const
{
    return d->wanted;
}

bool KirvConnection::willLogInAgain() const
{
    return d->state == Disconnecting && d->logsInAgain;
}

bool KirvConnection::isOfflinePresence(const KirvPresence &presence) const
{
    return presence.getId() == QLatin1String("offline");
}

void KirvConnection::logIn(const KirvLogin &login, const KirvPresence &presence)
{
    d->login = login;
    d->wanted = presence;
    d->backOff.reset();
    switch (d->state) {
    case Offline:
    case Waiting:
        d->logInNow();
        break;
    case Connecting:
        if (d->abort())
            d->logInNow();
        break;
    case Online:
        d->startLogOut(true);
        break;
    case Disconnecting:
        d->logsInAgain = true;
        break;
    }
}

void KirvConnection::changePresence(const KirvPresence &presence)
{
    d->wanted = presence;
    if (d->state != Online)
        return;
    d->applied = presence;
    d->callProtocol([&] { applyPresence(presence); }, [this](const KirvFailure &failure) { requestFailed(failure); });
}

void KirvConnection::logOut()
{
    if (d->state == Online)
        d->startLogOut(false);
    else if (d->state == Disconnecting)
        d->logsInAgain = false;
    else
        drop();
}

void KirvConnection::drop()
{
    d->logsInAgain = false;
    if (d->state == Offline)
        return;
    if (d->abort())
        d->enter(Offline);
}

void KirvConnection::networkChanged()
{
    d->backOff.reset();
    switch (d->state) {
    case Offline:
    case Disconnecting:
        break;
    case Waiting:
        if (!d->waitsForTurn)
            d->logInNow();
        break;
    case Connecting:
        if (d->abort())
            d->logInNow();
        break;
    case Online:
        d->callProtocol([this] { checkSession(d->timing.requestTimeout / 3); },
                        [this](const KirvFailure &failure) { connectionLost(failure); });
        break;
    }
}

void KirvConnection::acceptPassword(const QString &password)
{
    d->login.password = password;
}

void KirvConnection::setLoginGate(std::function<bool()> mayBegin)
{
    d->mayBegin = std::move(mayBegin);
}

void KirvConnection::beginLogin()
{
    if (d->waitsForTurn)
        d->begin();
}

void KirvConnection::setRandomSource(std::function<double()> random)
{
    d->random = std::move(random);
}

QString KirvConnection::securityText() const
{
    return QString();
}

KirvAvatar KirvConnection::avatar() const
{
    return d->avatar;
}

void KirvConnection::setAvatar(const KirvAvatar &avatar)
{
    const bool isNew = avatar.isChosen && (!d->avatar.isChosen || avatar.path != d->avatar.path);
    d->avatar = avatar;
    if (isNew && d->state == Online)
        d->callProtocol([this] { publishAvatar(); }, [this](const KirvFailure &failure) { requestFailed(failure); });
}

int KirvConnection::fetchDirectory()
{
    return d->startRequest([this](int request) { startDirectoryFetch(request); });
}

int KirvConnection::publishDirectory(const QList<KirvField> &changes)
{
    return d->startRequest([this, &changes](int request) { startDirectoryPublication(request, changes); });
}

int KirvConnection::deleteDirectory()
{
    return d->startRequest([this](int request) { startDirectoryDeletion(request); });
}

void KirvConnection::checkSession(int) { }

void KirvConnection::publishAvatar() { }

void KirvConnection::startDirectoryFetch(int request)
{
    clock().callLater(0, this, [this, request] { failDirectoryRequest(request, KirvFailure::NotSupported); });
}

void KirvConnection::startDirectoryPublication(int request, const QList<KirvField> &)
{
    KirvConnection::startDirectoryFetch(request);
}

void KirvConnection::startDirectoryDeletion(int request)
{
    KirvConnection::startDirectoryFetch(request);
}

void KirvConnection::loginSucceeded()
{
    if (!d->accepts(Connecting))
        return;
    d->finishSteps();
    d->lastFailure = KirvFailure();
    if (d->enter(Online) && !kirvIsSamePresence(d->applied, d->wanted))
        changePresence(d->wanted);
}

void KirvConnection::loginFailed(const KirvFailure &failure)
{
    if (d->accepts(Connecting))
        d->fail(failure.isFailure() ? failure : KirvFailure::Other);
}

void KirvConnection::connectionLost(const KirvFailure &failure)
{
    if (d->accepts(Disconnecting))
        d->finishLogOut();
    else if (d->accepts(Connecting) || d->accepts(Online))
        d->fail(failure.isFailure() ? failure : KirvFailure::ConnectionLost);
}

void KirvConnection::logoutFinished()
{
    if (d->accepts(Disconnecting))
        d->finishLogOut();
}

void KirvConnection::requestFailed(const KirvFailure &failure)
{
    Q_EMIT failed(failure);
}

void KirvConnection::answerDirectoryRequest(int request, const QList<KirvField> &entry)
{
    KirvDirectoryAnswer answer;
    answer.request = request;
    answer.outcome = entry.isEmpty() ? KirvDirectoryAnswer::None : KirvDirectoryAnswer::Data;
    answer.fields = entry;
    d->answer(answer);
}

void KirvConnection::failDirectoryRequest(int request, const KirvFailure &failure)
{
    KirvDirectoryAnswer answer;
    answer.request = request;
    answer.failure = failure.isFailure() ? failure : KirvFailure(KirvFailure::RequestFailed);
    d->answer(answer);
}

KirvClock &KirvConnection::clock() const
{
    return d->clock;
}
