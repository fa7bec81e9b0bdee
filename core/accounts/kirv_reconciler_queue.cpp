// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_reconciler_queue.h"

#include "core/accounts/kirv_reconciler.h"

#include <utility>

KirvReconcilerQueue::KirvReconcilerQueue(QObject *parent)
    : QObject(parent)
{
    nextTurn.setSingleShot(true);
    connect(&nextTurn, &QTimer::timeout, this, &KirvReconcilerQueue::takeTurn);
}

/// The first turn is a queued call, which comes before timers. What is requested in a turn follows in a turn of its
/// own, when it cannot follow in this one: a queued call would be made in the same turn of the event loop.
void KirvReconcilerQueue::append(KirvReconciler *reconciler)
{
    waiting.append(reconciler);
    if (nextTurn.isActive() || isPosted)
        return;
    if (isInTurn) {
        nextTurn.start(0);
        return;
    }
    isPosted = true;
    QMetaObject::invokeMethod(this, &KirvReconcilerQueue::takeTurn, Qt::QueuedConnection);
}

/// A slot may run an event loop of its own, or destroy this.
void KirvReconcilerQueue::takeTurn()
{
    isPosted = false;
    const QPointer<KirvReconcilerQueue> alive(this);
    const bool wasInTurn = std::exchange(isInTurn, true);
    for (int count = 0; alive && count < perTurn && !waiting.isEmpty(); ++count) {
        const QPointer<KirvReconciler> reconciler = waiting.takeFirst();
        if (reconciler)
            reconciler->reconcile();
    }
    if (!alive)
        return;
    isInTurn = wasInTurn;
    if (waiting.isEmpty())
        nextTurn.stop();
    else
        nextTurn.start(0);
}
