// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_CONNECTION_P_H
#define KIRV_CONNECTION_P_H

#include "core/protocol/kirv_connection.h"

#include <functional>
#include <optional>

/// The state machine behind a connection.
class KirvConnection::Private {
public:
    Private(KirvConnection *connection, KirvClock &clock)
        : connection(connection)
        , clock(clock)
        , since(clock.now())
    {
    }

    bool enter(State next);
    bool failRequests(const QList<int> &requests);
    void inThisState(int milliseconds, std::function<void()> callback);

    void logInNow();
    void waitForTurn();
    void begin();
    void startLogOut(bool logInAgain);
    void finishLogOut();
    bool abort();
    void fail(const KirvFailure &reported);
    void waitAndRetry();
    bool accepts(State expected) const { return state == expected && !aborting; }

    void emitStep(const KirvLoginStep &step);
    void failStep(const KirvFailure &failure);
    void finishSteps();

    bool callWith(bool &flag, const std::function<void()> &call);
    void callProtocol(const std::function<void()> &call, const std::function<void(const KirvFailure &)> &onException);
    int startRequest(const std::function<void(int)> &start);
    void answer(const KirvDirectoryAnswer &answer);

    KirvConnection *const connection;
    KirvClock &clock;
    Timing timing;

    State state = Offline;
    quint64 visit = 0; ///< counts the states entered, so that a timer can tell whether it is still wanted
    QDateTime since;
    QDateTime nextRetry;
    KirvFailure lastFailure;
    KirvServerCertificate shownCertificate; ///< that the server of this log-in has shown, when it has problems
    KirvServerCertificate refusedCertificate;
    KirvLogin login;
    KirvPresence wanted;
    KirvPresence applied; ///< what the server received last
    KirvAvatar avatar;
    KirvBackOff backOff;
    std::function<double()> random;
    std::function<bool()> mayBegin; ///< null: always
    bool waitsForTurn = false;
    bool aborting = false; ///< reports of the protocol are ignored meanwhile
    std::optional<KirvLoginStep> lastStep; ///< of this attempt
    bool logsInAgain = false; ///< the log-out is followed by a log-in

    int lastRequest = 0;
    bool starting = false; ///< a directory request is being started
    QList<int> outstanding; ///< in the order in which they were made
};

#endif
