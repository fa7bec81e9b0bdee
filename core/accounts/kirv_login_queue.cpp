// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_login_queue.h"

#include <QPointer>
#include <algorithm>
#include <utility>

KirvLoginQueue::KirvLoginQueue(KirvClock &clock, QObject *parent)
    : QObject(parent)
    , clock(clock)
{
    nextTurn.setSingleShot(true);
    connect(&nextTurn, &QTimer::timeout, this, &KirvLoginQueue::takeTurn);
}

void KirvLoginQueue::setMainConnection(std::function<const KirvConnection *()> newMainConnection)
{
    mainConnection = std::move(newMainConnection);
}

void KirvLoginQueue::setCondition(std::function<bool(const KirvConnection &)> newCondition)
{
    mayStart = std::move(newCondition);
}

bool KirvLoginQueue::request(KirvConnection &connection, Priority priority)
{
    if (mayStart && !mayStart(connection)) {
        forget(&connection);
        return false;
    }
    connect(&connection, &KirvConnection::stateChanged, this, &KirvLoginQueue::onStateChanged, Qt::UniqueConnection);
    connect(&connection, &QObject::destroyed, this, &KirvLoginQueue::forget, Qt::UniqueConnection);
    attempts.remove(&connection); // a new one replaces it
    if (!hasStarted && hasRoom(priority) && isFirst(&connection, priority)) {
        forget(&connection);
        start(&connection, priority);
        goOn();
        return true;
    }
    enqueue(&connection, priority);
    goOn();
    return false;
}

void KirvLoginQueue::onStateChanged(KirvConnection::State state)
{
    auto *connection = static_cast<KirvConnection *>(sender());
    const bool isStillWanted = state == KirvConnection::Waiting && !attempts.contains(connection);
    if (state != KirvConnection::Connecting && !isStillWanted)
        forget(connection);
}

/// \a connection may be under destruction, when it is none any more: only its address is used.
void KirvLoginQueue::forget(QObject *connection)
{
    const auto isForgotten = [connection](const QObject *other) { return other == connection; };
    for (QList<KirvConnection *> &list : waiting)
        list.erase(std::remove_if(list.begin(), list.end(), isForgotten), list.end());
    for (auto attempt = attempts.begin(); attempt != attempts.end(); ++attempt) {
        if (!isForgotten(attempt.key()))
            continue;
        attempts.erase(attempt);
        goOn();
        return;
    }
}

bool KirvLoginQueue::isWaiting(KirvConnection *connection, Priority priority) const
{
    return waiting[priority].contains(connection);
}

bool KirvLoginQueue::hasRoom(Priority priority) const
{
    const auto count = std::count_if(attempts.cbegin(), attempts.cend(),
                                     [priority](const Attempt &attempt) { return attempt.priority == priority; });
    return count < (priority == Urgent ? bounds.urgentAttempts : bounds.attempts);
}

/// Whether nothing else that waits has its turn before \a connection.
bool KirvLoginQueue::isFirst(KirvConnection *connection, Priority priority) const
{
    if (!waiting[Urgent].isEmpty() && hasRoom(Urgent))
        return false;
    if (priority == Urgent)
        return waiting[Urgent].isEmpty();
    return waiting[Ordinary].isEmpty() || (mainConnection && mainConnection() == connection);
}

void KirvLoginQueue::enqueue(KirvConnection *connection, Priority priority)
{
    if (isWaiting(connection, Urgent) || isWaiting(connection, priority))
        return;
    waiting[Ordinary].removeOne(connection);
    waiting[priority].append(connection);
}

/// Null when there is none that may start now.
KirvConnection *KirvLoginQueue::takeNext(Priority *priority)
{
    for (const Priority candidate : { Urgent, Ordinary }) {
        QList<KirvConnection *> &line = waiting[candidate];
        if (line.isEmpty() || !hasRoom(candidate))
            continue;
        *priority = candidate;
        const KirvConnection *main = mainConnection ? mainConnection() : nullptr;
        const auto first = std::find(line.begin(), line.end(), main);
        return line.takeAt(first == line.end() ? 0 : int(first - line.begin()));
    }
    return nullptr;
}

void KirvLoginQueue::start(KirvConnection *connection, Priority priority)
{
    const quint64 number = ++lastNumber;
    hasStarted = true;
    attempts.insert(connection, { priority, number });
    clock.callLater(bounds.countedFor, this, [this, connection, number] { endCounting(connection, number); });
}

/// \a connection may be destroyed, and another one may have its address.
void KirvLoginQueue::endCounting(KirvConnection *connection, quint64 number)
{
    if (attempts.value(connection).number != number)
        return;
    attempts.remove(connection);
    goOn();
}

/// A timer and no queued call: other events are handled between two turns.
void KirvLoginQueue::goOn()
{
    const bool canStart =
        (!waiting[Urgent].isEmpty() && hasRoom(Urgent)) || (!waiting[Ordinary].isEmpty() && hasRoom(Ordinary));
    if ((hasStarted || canStart) && !nextTurn.isActive())
        nextTurn.start(0);
}

void KirvLoginQueue::takeTurn()
{
    hasStarted = false;
    Priority priority = Ordinary;
    KirvConnection *connection = takeNext(&priority);
    while (connection && mayStart && !mayStart(*connection))
        connection = takeNext(&priority);
    if (!connection)
        return;
    start(connection, priority);
    const QPointer<KirvLoginQueue> alive(this);
    connection->beginLogin();
    if (alive)
        goOn();
}
