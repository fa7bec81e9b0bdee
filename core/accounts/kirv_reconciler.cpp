// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_reconciler.h"

#include "core/protocol/kirv_same_value.h"

#include <utility>

KirvReconciler::KirvReconciler(std::function<Wanted()> wanted, KirvLoginQueue &logins, KirvReconcilerQueue &turns,
                               QObject *parent)
    : QObject(parent)
    , wanted(std::move(wanted))
    , logins(logins)
    , turns(turns)
{
}

void KirvReconciler::setConnection(KirvConnection *connection)
{
    if (target) {
        target->disconnect(this);
        target->setLoginGate(nullptr);
    }
    target = connection;
    requestedStep = None;
    isLoginUrgent = false;
    if (!target)
        return;
    target->setLoginGate(
        [this] { return logins.request(*target, isLoginUrgent ? KirvLoginQueue::Urgent : KirvLoginQueue::Ordinary); });
    connect(target, &KirvConnection::stateChanged, this, [this](KirvConnection::State state) {
        if (state == KirvConnection::Connecting)
            isLoginUrgent = false; // the attempts that follow are the connection's own
        schedule();
    });
    schedule();
}

KirvConnection *KirvReconciler::connection() const
{
    return target;
}

void KirvReconciler::schedule()
{
    if (scheduled || !target)
        return;
    scheduled = true;
    turns.append(this);
}

void KirvReconciler::requestStep(RequestedStep step)
{
    requestedStep = qMax(requestedStep, step);
    schedule();
}

void KirvReconciler::hold()
{
    if (holds++ == 0)
        requestedStepBefore = requestedStep;
}

void KirvReconciler::release(bool kept)
{
    if (--holds == 0 && !kept)
        requestedStep = requestedStepBefore;
    schedule();
}

KirvReconciler::Step KirvReconciler::nextStep(const Wanted &wanted, const KirvConnection &connection,
                                              RequestedStep requestedStep)
{
    const KirvConnection::State state = connection.state();
    if (!wanted.online) {
        const bool isLeaving = state == KirvConnection::Disconnecting && !connection.willLogInAgain();
        return state == KirvConnection::Offline || isLeaving ? Nothing : LogOut;
    }
    const bool isOtherLogin = connection.login() != wanted.login;
    const bool isOtherPresence = !kirvIsSamePresence(connection.presence(), wanted.presence);
    switch (state) {
    case KirvConnection::Offline: {
        const bool gaveUp = connection.lastFailure().isFailure();
        return gaveUp && !isOtherLogin && requestedStep == None ? Nothing : LogIn;
    }
    case KirvConnection::Waiting:
        if (isOtherLogin || requestedStep != None)
            return LogIn;
        break;
    case KirvConnection::Connecting:
    case KirvConnection::Online:
        if (isOtherLogin || requestedStep == Reconnect)
            return LogIn;
        break;
    case KirvConnection::Disconnecting:
        if (isOtherLogin || !connection.willLogInAgain())
            return LogIn;
        break;
    }
    return isOtherPresence ? ChangePresence : Nothing;
}

void KirvReconciler::reconcile()
{
    scheduled = false;
    if (!target || holds > 0)
        return;
    const QPointer<KirvReconciler> alive(this);
    const Wanted now = wanted();
    const Step step = nextStep(now, *target, requestedStep);
    if (now.online && now.awaitsSecrets && (step == LogIn || requestedStep != None)) {
        waitForSecrets(now);
        return; // schedule() follows when they are there
    }
    const bool endsSession = target->isLoggedIn() && (step == LogIn || step == LogOut);
    if (!endsSession) { // an avatar is not published over a session that is not wanted any more
        target->setAvatar(now.avatar);
        if (!alive || !target || scheduled) // a slot has changed something
            return;
    }
    take(step, now, std::exchange(requestedStep, None));
    if (endsSession && alive && target)
        target->setAvatar(now.avatar);
    if (alive && target && (step == Nothing || step == ChangePresence))
        Q_EMIT settled();
}

/// A session or an attempt with a login that is not wanted any more ends at once; nothing else begins.
void KirvReconciler::waitForSecrets(const Wanted &now)
{
    const KirvConnection::State state = target->state();
    const bool isUsed =
        state == KirvConnection::Disconnecting ? target->willLogInAgain() : state != KirvConnection::Offline;
    if (isUsed && target->login() != now.login)
        take(LogOut, now, None);
}

void KirvReconciler::take(Step step, const Wanted &now, RequestedStep followed)
{
    if (step != Nothing)
        Q_EMIT stepTaken(step);
    switch (step) {
    case LogIn:
        // A session that is interrupted comes back before accounts that were not there yet.
        isLoginUrgent = isLoginUrgent || followed != None || target->isLoggedIn()
            || target->state() == KirvConnection::Disconnecting;
        target->logIn(now.login, now.presence);
        break;
    case ChangePresence:
        target->changePresence(now.presence);
        break;
    case LogOut:
        isLoginUrgent = false;
        target->logOut();
        break;
    case Nothing:
        break;
    }
}
