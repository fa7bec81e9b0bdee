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
#include <memory>

class KirvAccountConnection;

/// The connection of one account to its server: the state machine that all protocols share.
///
/// A protocol derives from it and implements the four start…/abort/apply operations; it reports what the
/// server does through the protected loginSucceeded(), loginFailed(), connectionLost() and logoutFinished().
/// Time-out of log-in and log-out, waiting with back-off after a lost connection and the memory of the last
/// failure are done here, once. Everything runs on the GUI thread.
///
///     Offline → Connecting → Online → Disconnecting → Offline
///                   ↓  ↑        ↓
///                  Waiting  ←───┘      (a failure that is worth retrying)
///
/// Reports that come too late, after drop() or a time-out say, are ignored. Slots may do with the connection
/// what they like, also destroy it. Destroying it says nothing to anybody and answers no request: drop() it
/// first when somebody waits; the protocol's destructor closes what is open.
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
        double retryJitter = 0.2; ///< each wait is up to this fraction shorter or longer, by chance
        int stableAfter = 30000; ///< how long on line until the next wait is firstRetry again
    };

    /// \a account is not owned and outlives the connection; null is an account that is not configured (yet).
    /// \a clock is not owned.
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
    /// Keeps \a presence as the wanted one without going there.
    void setWantedPresence(const KirvPresence &presence);
    /// Whether the account's password is another one than at the last log-in.
    bool isPasswordOutdated() const;
    /// Whether \a presence means being logged out; for most protocols the one with the id "offline".
    virtual bool isOfflinePresence(const KirvPresence &presence) const;

    /// Directory requests. Each is answered by exactly one directoryAnswered(), also on an error, a time-out
    /// and when the connection ends; without fields in these cases. One request is outstanding at a time: a
    /// newer one takes its place, and the older one is answered without fields. The default answers with
    /// nothing (from the event loop, never before the call returns).
    virtual void fetchDirectory();
    virtual void publishDirectory(const QList<KirvField> &fields);
    virtual void deleteDirectory();
    /// Whether a request of those is still without its answer.
    bool isAskingDirectory() const;
    /// Answers a request that cannot be made: without fields, from the event loop.
    void answerWithoutDirectory();
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
    /// Ends the connection at once; reports nothing. Called after every failure too, and also when nothing is
    /// open (any more): does no harm then.
    virtual void abortConnection() = 0;
    /// Sends \a presence; called in state Online only.
    virtual void applyPresence(const KirvPresence &presence) = 0;

    void loginSucceeded();
    void loginFailed(const KirvFailure &failure);
    /// Ends a log-in, too; what is lost while logging out is logged out.
    void connectionLost(const KirvFailure &failure);
    void logoutFinished();
    /// Tells a failed request without touching the state.
    void requestFailed(const KirvFailure &failure);

    /// Begins a directory request and returns its number, which is never 0. The time-out runs from now on, and
    /// the end of the connection answers the request.
    int beginDirectoryRequest();
    /// Answers request number \a request, or the outstanding one whatever its number when \a request is 0.
    /// Nothing happens when that request has been answered already.
    void finishDirectoryRequest(const QList<KirvField> &fields, int request = 0);
    /// The same for a request that failed: tells \a failure and answers without fields.
    void failDirectoryRequest(const KirvFailure &failure, int request = 0);

    KirvClock &clock() const;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

#endif
