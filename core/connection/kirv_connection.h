// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_CONNECTION_H
#define KIRV_CONNECTION_H

#include "core/connection/kirv_clock.h"
#include "core/connection/kirv_failure.h"
#include "host/kirv_field.h"
#include "host/kirv_presence.h"

#include <QDateTime>
#include <QList>
#include <QObject>

class KirvAccountConnection;

/// The connection of one account to its server: the state machine that all protocols share.
///
/// A protocol derives from it and implements the five start…/abort/apply operations; it reports what the
/// server does through the protected loginSucceeded(), loginFailed(), connectionLost() and logoutFinished().
/// Time-out of log-in and log-out, waiting with back-off after a lost connection and the memory of the last
/// failure are done here, once. Everything runs on the GUI thread.
///
///     Offline → Connecting → Online → Disconnecting → Offline
///                   ↓  ↑        ↓
///                  Waiting  ←───┘      (a failure that is worth retrying)
class KirvConnection : public QObject {
    Q_OBJECT

public:
    enum State { Offline, Connecting, Online, Disconnecting, Waiting };
    Q_ENUM(State)

    /// How long the server may take, and how long to wait between attempts; milliseconds.
    struct Timing {
        int loginTimeout = 30000;
        int logoutTimeout = 3000;
        int requestTimeout = 15000;
        int firstRetry = 2000;
        int lastRetry = 300000;
    };

    /// \a account is not owned and outlives the connection. \a clock is not owned.
    explicit KirvConnection(KirvAccountConnection *account, KirvClock &clock = KirvClock::system(),
                            QObject *parent = nullptr);
    ~KirvConnection() override;

    KirvAccountConnection *account() const;
    State state() const;
    bool isLoggedIn() const; ///< state() is Online
    QDateTime since() const; ///< when the state was entered
    KirvFailure lastFailure() const; ///< of the last attempt; None after a success
    QDateTime nextRetry() const; ///< when Waiting ends; invalid otherwise

    Timing timing() const;
    void setTiming(const Timing &timing);

    /// Goes to \a presence: logs in when off line (reading password and settings from the account afresh),
    /// changes the presence when on line, logs out when isOfflinePresence(). While it is logging in, the new
    /// presence is the one it will arrive with. Waiting ends and an attempt starts at once.
    void goTo(const KirvPresence &presence);
    /// Logs out and in again, with the account's present password and settings. Off line: just logs in.
    void reconnect(const KirvPresence &presence);
    /// Logs out in an orderly way, within timing().logoutTimeout. Does nothing when off line.
    void logOut();
    /// Breaks the connection at once, without a word to the server. The state is Offline afterwards.
    void drop();

    /// The presence that was asked for last.
    KirvPresence wantedPresence() const;
    /// Whether \a presence means being logged out; for most protocols the one with the id "offline".
    virtual bool isOfflinePresence(const KirvPresence &presence) const;

    /// Directory requests. Each is answered by exactly one directoryAnswered(), also on an error, a time-out
    /// and when the connection ends; without fields in these cases. The default answers at once with nothing.
    virtual void fetchDirectory();
    virtual void publishDirectory(const QList<KirvField> &fields);
    virtual void deleteDirectory();
    /// Tells a connected server about the account's new avatar; the default does nothing.
    virtual void publishAvatar();

Q_SIGNALS:
    void stateChanged(KirvConnection::State state);
    /// A log-in, a request or the connection failed; lastFailure() says it too when it was not a request.
    void failed(const KirvFailure &failure);
    /// Empty \a fields: no data (refused, timed out, gone, or there is none).
    void directoryAnswered(const QList<KirvField> &fields);
    /// The server tells something that the user should read although nothing failed.
    void noticeReceived(const QString &text);

protected:
    /// Starts to log in; called in state Connecting only. Answer with loginSucceeded() or loginFailed(),
    /// also synchronously.
    virtual void startLogin(const KirvPresence &presence) = 0;
    /// Starts an orderly log-out; answer with logoutFinished().
    virtual void startLogout() = 0;
    /// Ends the connection at once; reports nothing.
    virtual void abortConnection() = 0;
    /// Sends \a presence; called in state Online only.
    virtual void applyPresence(const KirvPresence &presence) = 0;

    void loginSucceeded();
    void loginFailed(const KirvFailure &failure);
    void connectionLost(const KirvFailure &failure);
    void logoutFinished();
    /// Tells a failed request without touching the state.
    void requestFailed(const KirvFailure &failure);
    KirvClock &clock() const;

private:
    class Private;
    Private *d;
};

#endif
