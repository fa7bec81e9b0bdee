// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_turns.h"

#include <QCoreApplication>
#include <QPointer>

KirvXmppTurns::KirvXmppTurns(QObject *parent)
    : QObject(parent)
{
    // A timer and no queued call: other events are handled between two turns.
    next.setSingleShot(true);
    connect(&next, &QTimer::timeout, this, &KirvXmppTurns::takeTurn);
}

KirvXmppTurns &KirvXmppTurns::instance()
{
    static QPointer<KirvXmppTurns> shared;
    if (!shared)
        shared = new KirvXmppTurns(QCoreApplication::instance());
    return *shared;
}

void KirvXmppTurns::request(QObject *owner, const std::function<void()> &step)
{
    if (steps.contains(owner))
        return;
    connect(owner, &QObject::destroyed, this, &KirvXmppTurns::cancel, Qt::UniqueConnection);
    order.enqueue(owner);
    steps.insert(owner, step);
    if (!next.isActive())
        next.start(0);
}

/// \a owner may be under destruction.
void KirvXmppTurns::cancel(QObject *owner)
{
    if (steps.remove(owner) > 0)
        order.removeOne(owner);
}

void KirvXmppTurns::takeTurn()
{
    if (order.isEmpty())
        return;
    const std::function<void()> step = steps.take(order.dequeue());
    if (!order.isEmpty())
        next.start(0); // whatever the step does
    step();
}
