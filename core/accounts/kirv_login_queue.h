// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_LOGIN_QUEUE_H
#define KIRV_LOGIN_QUEUE_H

#include "core/protocol/kirv_connection.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QTimer>
#include <functional>

/// Gives connections their turns to log in, so that many accounts neither block the event loop nor flood a server.
///
/// At most one log-in is started in each turn of the event loop, and only a few attempts are in progress at once. An
/// attempt that takes long does not count any more after a while, so that one that hangs does not stop the others.
/// Urgent log-ins come first, then the main account's, then the others in the order of their requests; urgent ones also
/// have places of their own, which the others do not use.
class KirvLoginQueue : public QObject {
    Q_OBJECT

public:
    struct Limits {
        int attempts = 6; ///< in progress at once, of those that are not urgent
        int urgentAttempts = 6; ///< in progress at once, of those that are
        int countedFor = 3000; ///< milliseconds after which an attempt does not count any more
    };
    enum Priority {
        Ordinary,
        Urgent ///< requested by the user for this account
    };

    /// \a clock is not owned and outlives the queue.
    explicit KirvLoginQueue(KirvClock &clock = KirvClock::system(), QObject *parent = nullptr);

    Limits limits() const { return bounds; }
    void setLimits(const Limits &limits) { bounds = limits; }
    /// \a mainConnection is called for the connection of the main account; its result may be null.
    void setMainConnection(std::function<const KirvConnection *()> mainConnection);
    /// \a mayStart is called before a connection has its turn; one that may not start has none, and waits until it is
    /// requested again or logged out.
    void setCondition(std::function<bool(const KirvConnection &)> mayStart);

    /// What a login gate replies: whether \a connection may start to log in now. Otherwise its beginLogin() is called
    /// in its turn, unless it is not Waiting any more then. A connection that waits already keeps its place, or gets a
    /// better one. The connection is not owned and may be destroyed at any time.
    bool request(KirvConnection &connection, Priority priority);

    /// How many connections wait for their turn.
    int waitingCount() const { return int(waiting[Ordinary].size() + waiting[Urgent].size()); }
    /// How many attempts that count are in progress.
    int attemptCount() const { return int(attempts.size()); }

private:
    struct Attempt {
        Priority priority = Ordinary;
        quint64 number = 0;
    };

    void onStateChanged(KirvConnection::State state);
    void forget(QObject *connection);
    bool isWaiting(KirvConnection *connection, Priority priority) const;
    bool hasRoom(Priority priority) const;
    bool isFirst(KirvConnection *connection, Priority priority) const;
    void enqueue(KirvConnection *connection, Priority priority);
    KirvConnection *takeNext(Priority *priority);
    void start(KirvConnection *connection, Priority priority);
    void endCounting(KirvConnection *connection, quint64 number);
    void goOn();
    void takeTurn();

    KirvClock &clock;
    Limits bounds;
    std::function<const KirvConnection *()> mainConnection;
    std::function<bool(const KirvConnection &)> mayStart; ///< null: all may
    QList<KirvConnection *> waiting[2]; ///< by priority; the first one is the next
    QHash<KirvConnection *, Attempt> attempts;
    quint64 lastNumber = 0;
    bool hasStarted = false; ///< a log-in in this turn of the event loop
    QTimer nextTurn;
};

#endif
