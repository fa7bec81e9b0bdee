// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_RECONCILER_H
#define KIRV_RECONCILER_H

#include "core/accounts/kirv_login_queue.h"
#include "core/accounts/kirv_reconciler_queue.h"
#include "core/protocol/kirv_connection.h"

#include <QObject>
#include <QPointer>
#include <functional>

/// Brings the connection of one account to what is wanted of it.
///
/// Whatever changes an account only calls schedule(); from the event loop, and not while a save is open, the reconciler
/// compares what is wanted with what the connection really uses and takes the one step that is needed. So nothing is
/// sent from uncommitted state, and several changes make one step. Log-ins have their turns from a queue; those that
/// the user requests for this account are urgent there.
class KirvReconciler : public QObject {
    Q_OBJECT

public:
    /// What is stored, and what the user wants.
    struct Wanted {
        bool online = false;
        bool awaitsSecrets = false; ///< a log-in waits for what login lacks; a session with the same login goes on
        KirvLogin login;
        KirvPresence presence;
        KirvAvatar avatar;
    };
    enum Step {
        Nothing,
        LogIn, ///< also again: out and in when it is logged in
        ChangePresence,
        LogOut
    };
    /// What is requested explicitly, besides what is wanted.
    enum RequestedStep {
        None,
        Retry, ///< a connection that gave up or waits tries again at once
        Reconnect ///< also, a connection that is logged in logs out and in again, and an attempt starts afresh
    };

    /// \a wanted is called for what is wanted now. \a logins and \a turns are not owned and outlive the reconciler.
    KirvReconciler(std::function<Wanted()> wanted, KirvLoginQueue &logins, KirvReconcilerQueue &turns,
                   QObject *parent = nullptr);

    /// The connection to look after; not owned. Null: there is none.
    void setConnection(KirvConnection *connection);
    KirvConnection *connection() const;

    /// Something that is wanted may have changed.
    void schedule();
    void requestStep(RequestedStep step);
    /// Nothing is done between hold() and the release() that belongs to it. What requestStep() requested meanwhile
    /// counts only when it is \a kept.
    void hold();
    void release(bool kept);

    /// Takes the step that is needed. For the queue.
    void reconcile();

    /// The one step from the present state of \a connection towards \a wanted.
    static Step nextStep(const Wanted &wanted, const KirvConnection &connection, RequestedStep requestedStep);

Q_SIGNALS:
    /// \a step is about to be taken; it is not Nothing. A slot changes nothing.
    void stepTaken(KirvReconciler::Step step);
    /// The connection uses what is wanted; or it gave up, or waits.
    void settled();

private:
    void waitForSecrets(const Wanted &wanted);
    void take(Step step, const Wanted &wanted, RequestedStep requestedStep);

    const std::function<Wanted()> wanted;
    KirvLoginQueue &logins;
    KirvReconcilerQueue &turns;
    QPointer<KirvConnection> target;
    RequestedStep requestedStep = None;
    RequestedStep requestedStepBefore = None; ///< when hold() was called
    int holds = 0;
    bool scheduled = false;
    bool isLoginUrgent = false; ///< the one that is to start
};

#endif
