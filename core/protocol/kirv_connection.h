// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_CONNECTION_H
#define KIRV_CONNECTION_H

#include "core/protocol/kirv_avatar.h"
#include "core/protocol/kirv_back_off.h"
#include "core/protocol/kirv_directory_answer.h"
#include "core/protocol/kirv_login.h"
#include "core/protocol/kirv_login_step.h"
#include "core/protocol/kirv_server_certificate.h"
#include "core/values/kirv_clock.h"
#include "core/values/kirv_failure.h"
#include "host/kirv_presence.h"

#include <QDateTime>
#include <QList>
#include <QObject>
#include <functional>
#include <memory>

/// The connection of one account to its server: the state machine that all protocols share.
///
/// A protocol derives from it and implements the four start…/abort/apply operations; it reports what the server does
/// through the protected loginSucceeded(), loginFailed(), connectionLost() and logoutFinished(). Time-outs of log-in,
/// log-out and directory requests, waiting with back-off after a lost connection and the last failure are handled
/// here, once. The connection does not know its account: whoever owns it passes in what it uses. GUI thread only.
///
///     Offline → Connecting → Online → Disconnecting → Offline
///                   ↓  ↑        ↓
///                  Waiting  ←───┘      (a failure that is worth retrying)
///
/// Reports that come too late, after drop() or a time-out say, are ignored. Slots may do with the connection what they
/// like, also destroy it. Destroying it emits nothing and answers no request; drop() it first where a request is
/// outstanding. The protocol's destructor closes what is open.
///
/// Whoever has many connections can make each wait for its turn before it starts to log in: setLoginGate().
class KIRV_PROTOCOL_EXPORT KirvConnection : public QObject {
    Q_OBJECT

public:
    /// Where the connection is in the picture above.
    enum State {
        Offline, ///< not connected, and not about to be
        Connecting, ///< logging in
        Online, ///< logged in
        Disconnecting, ///< logging out
        Waiting ///< for the next attempt to log in, or for its turn: see isWaitingForTurn()
    };
    Q_ENUM(State)

    /// How long the server may take, and how long to wait between attempts; milliseconds.
    struct Timing {
        int loginTimeout = 30000; ///< until a log-in has failed
        int logoutTimeout = 3000; ///< until the connection is broken instead
        int requestTimeout = 15000; ///< until a directory request has failed
        KirvBackOff::Limits backOff; ///< between attempts to log in
        int stableAfter = 30000; ///< how long on line until the next wait is the first one again
    };

    /// \a clock is not owned and outlives the connection.
    explicit KirvConnection(KirvClock &clock = KirvClock::system(), QObject *parent = nullptr);
    ~KirvConnection() override;

    State state() const; ///< Offline at first
    bool isLoggedIn() const; ///< state() is Online
    QDateTime since() const; ///< when the state was entered
    KirvFailure lastFailure() const; ///< of the last attempt; None after a success
    QDateTime nextRetry() const; ///< when the next attempt is due; invalid when it waits for its turn, or for nothing
    /// Whether the state is Waiting and what it waits for is beginLogin().
    bool isWaitingForTurn() const;

    /// The times that the connection keeps to.
    Timing timing() const;
    /// Changes the times, from the next log-in, log-out, request and wait on.
    void setTiming(const Timing &timing);

    /// What the last attempt logged in with, or the next one will when a log-out is followed by a log-in.
    const KirvLogin &login() const;
    /// The presence that the connection has, or will arrive with.
    KirvPresence presence() const;
    /// Whether state() is Disconnecting and a log-in follows.
    bool willLogInAgain() const;

    /// Logs in with \a login and arrives with \a presence. When it is logged in already it logs out and in again; an
    /// attempt that is under way is replaced, and waiting ends.
    void logIn(const KirvLogin &login, const KirvPresence &presence);
    /// Changes the presence when on line; otherwise the next log-in arrives with it.
    void changePresence(const KirvPresence &presence);
    /// Logs out in an orderly way, within timing().logoutTimeout. Does nothing when off line.
    void logOut();
    /// Breaks the connection at once; nothing is sent. The state is Offline afterwards.
    void drop();
    /// The network is another one than before, or the computer was suspended: a wait for the next attempt ends, an
    /// attempt starts afresh, and a session is checked within a third of timing().requestTimeout. Waits begin with the
    /// shortest one again.
    void networkChanged();
    /// The server has changed the password of the account to \a password: the session goes on with it.
    void acceptPassword(const QString &password);

    /// \a mayBegin is called each time before a log-in starts, also one that follows a log-out or a failure. When its
    /// result is false the connection is Waiting until beginLogin(), or until it is not to log in any more. Null: every
    /// log-in starts at once. It must neither change nor destroy the connection.
    void setLoginGate(std::function<bool()> mayBegin);
    /// Starts the log-in that waits for its turn; does nothing when there is none.
    void beginLogin();
    /// \a random gives the numbers from 0 to 1 that make waits longer or shorter by chance; null: the usual ones.
    void setRandomSource(std::function<double()> random);

    /// Whether \a presence means being logged out; for most protocols the one with the id "offline".
    virtual bool isOfflinePresence(const KirvPresence &presence) const;

    /// How the session is protected and how the account has proved who it is, in a few words for the user, as
    /// "TLSv1.3, SASL EXTERNAL". Plain text; empty when off line, and where the protocol does not know it.
    virtual QString securityText() const;

    /// The certificate for which the last log-in was refused; null when there is none, and from the beginning of the
    /// next log-in on.
    const KirvServerCertificate &refusedCertificate() const;
    /// The certificate of the server's that this session trusts only because login() names it; null otherwise, and
    /// when off line.
    KirvServerCertificate pinnedCertificate() const;

    /// The account's avatar.
    KirvAvatar avatar() const;
    /// Changes the avatar. One that was chosen is published at once when on line.
    void setAvatar(const KirvAvatar &avatar);

    /// Requests the entry of the public directory. This and the two requests that follow return the number of the
    /// request, never 0, and are answered by exactly one directoryAnswered() of that number, from the event loop or
    /// later: also on an error, on a time-out and when the connection ends. Several can be outstanding.
    int fetchDirectory();
    /// Changes the fields in \a changes, and no others, over the entry that the server holds then.
    int publishDirectory(const QList<KirvField> &changes);
    /// Removes the entry from the server.
    int deleteDirectory();

Q_SIGNALS:
    /// The connection has entered \a state.
    void stateChanged(KirvConnection::State state);
    /// A step of the log-in has begun or ended; emitted in the state Connecting. The last one of an attempt is the
    /// log-in when that is done, or the step that failed. A slot of this signal neither changes nor destroys the
    /// connection, whose protocol is in the middle of what it reports.
    void loginStep(const KirvLoginStep &step);
    /// The wait for the next attempt has become one for its turn; the state stays Waiting.
    void turnAwaited();
    /// The server has shown a certificate that is not trusted; failed() follows.
    void certificateRefused(const KirvServerCertificate &certificate);
    /// A log-in, the connection or a request without an answer of its own failed.
    void failed(const KirvFailure &failure);
    /// A request to the public directory was answered, see fetchDirectory().
    void directoryAnswered(const KirvDirectoryAnswer &answer);
    /// The server says something that the user should read although nothing failed.
    void noticeReceived(const QString &text);
    /// The server holds the picture of the file \a path now, or none when it is empty; \a onServer is for
    /// KirvAvatar::onServer.
    void avatarPublished(const QString &path, const QByteArray &onServer);
    /// Another client has changed the picture on the server: \a image, the bytes of an image file, takes the place of
    /// avatar(). Empty: it was removed.
    void avatarReceived(const QByteArray &image, const QByteArray &onServer);

protected:
    /// Starts to log in with login(); called in state Connecting only. Reply with loginSucceeded() or loginFailed(),
    /// also synchronously.
    virtual void startLogin(const KirvPresence &presence) = 0;
    /// Starts an orderly log-out; reply with logoutFinished().
    virtual void startLogout() = 0;
    /// Ends the connection at once; reports nothing. Called after every failure too, and also when nothing is open
    /// (any more): does no harm then.
    virtual void abortConnection() = 0;
    /// Sends \a presence; called in state Online only.
    virtual void applyPresence(const KirvPresence &presence) = 0;
    /// Finds out whether the server still answers; called in state Online only. Report connectionLost() when it has not
    /// within \a milliseconds. May be called again before. The default does nothing.
    virtual void checkSession(int milliseconds);
    /// Publishes avatar(); called in state Online only, when one was chosen. Emit avatarPublished() then. At the log-in
    /// the protocol looks for itself whether it is to be published. The default does nothing.
    virtual void publishAvatar();

    /// Starts to fetch the directory entry. This and the two operations that follow are called in state Online only.
    /// Reply with answerDirectoryRequest() or failDirectoryRequest(). The defaults reply that the protocol has no
    /// directory.
    virtual void startDirectoryFetch(int request);
    /// Starts to change the fields in \a changes, and no others, over the entry that the server holds then.
    virtual void startDirectoryPublication(int request, const QList<KirvField> &changes);
    /// Starts to remove the directory entry.
    virtual void startDirectoryDeletion(int request);

    /// The log-in that startLogin() has started succeeded.
    void loginSucceeded();
    /// The log-in failed. The next attempt is made by itself when \a failure is worth retrying.
    void loginFailed(const KirvFailure &failure);
    /// The server's certificate has problems, or login() trusts one, so that no other is accepted silently. True when
    /// \a certificate is the one that login() trusts: the protocol ignores its problems then and goes on. Otherwise
    /// call failForCertificate() when nothing is under way any more; no password is sent.
    bool acceptsCertificate(const KirvServerCertificate &certificate);
    /// Ends the log-in for the certificate that acceptsCertificate() has not accepted.
    void failForCertificate();
    /// Ends a log-in, too; a connection lost while logging out is logged out.
    void connectionLost(const KirvFailure &failure);
    /// The log-out that startLogout() has started is complete.
    void logoutFinished();
    /// Reports how far the log-in is, before loginSucceeded(). A step that begins is Running, with what is known of it;
    /// then it is Done. Whatever runs when the log-in fails is reported as failed by loginFailed(), connectionLost()
    /// and the time-out. Without any report the log-in is the only step.
    void reportStep(const KirvLoginStep &step);
    /// Reports a failed request that has no answer of its own; the state stays.
    void requestFailed(const KirvFailure &failure);

    /// \a entry is what the server holds now; empty: no entry. Nothing happens when the request was answered before.
    void answerDirectoryRequest(int request, const QList<KirvField> &entry);
    /// The directory request has failed. Nothing happens when it was answered before.
    void failDirectoryRequest(int request, const KirvFailure &failure);

    /// The clock by which the connection waits, for what the protocol itself waits for.
    KirvClock &clock() const;

private:
    class Q_DECL_HIDDEN Private;
    const std::unique_ptr<Private> d;
};

#endif
