// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_XMPP_LINK_H
#define KIRV_XMPP_LINK_H

#include "core/values/kirv_clock.h"
#include "core/values/kirv_failure.h"

#include <QDomElement>
#include <QHash>
#include <QObject>
#include <QXmppClient.h>
#include <QXmppIq.h>
#include <functional>

/// The answer to a question that was put to the server. A value type.
struct KirvXmppAnswer {
    QDomElement iq; ///< the whole answer; null when there came none
    QDomElement payload; ///< its first element that is not an error; may be null
    QString condition; ///< the error's condition ("conflict"); empty: no error
    KirvFailure failure; ///< None when it is no error

    bool isError() const { return failure.isFailure(); }
};

/// One stream to a server, from connecting to its end; used once.
///
/// What the server and the library tell is brought down to three signals, and every end has its reason as a
/// KirvFailure. Destroy it with deleteLater(): it may be in the middle of a signal.
class KirvXmppLink : public QObject {
    Q_OBJECT

public:
    enum Purpose {
        LogIn, ///< authenticates and reports loggedIn()
        Register ///< stops before that and reports readyToRegister()
    };

    /// \a clock is not owned; questions without an answer fail after \a answerTimeout milliseconds.
    KirvXmppLink(Purpose purpose, KirvClock &clock, int answerTimeout, QObject *parent = nullptr);
    ~KirvXmppLink() override;

    void open(const QXmppConfiguration &configuration, const QXmppPresence &presence = QXmppPresence());
    /// Ends the stream in an orderly way; ended() follows.
    void close();
    /// Ends it without a word to anybody on this side: no answers and no ended().
    void abort();
    /// Whether questions can be asked: after loggedIn() or readyToRegister(), until the end.
    bool isReady() const;

    /// Sends a presence; an unavailable one hides the session and keeps it.
    void sendPresence(const QXmppPresence &presence);
    using Receiver = std::function<void(const KirvXmppAnswer &)>;
    /// Sends \a payload to the account (\a to is empty) or to the server, to be answered within the time that was
    /// given. \a receiver is called exactly once, unless the link is aborted or destroyed before.
    void ask(QXmppIq::Type type, const QDomDocument &payload, const Receiver &receiver, const QString &to = QString());

    /// user@domain as it was opened with.
    QString bareAddress() const { return address; }

Q_SIGNALS:
    void loggedIn();
    /// The stream is as safe as it was to be. \a isOffered: the server says that it offers registration; some
    /// offer it without saying so.
    void readyToRegister(bool isOffered);
    /// The stream is over. Emitted once; None when close() has ended it.
    void ended(const KirvFailure &failure);

private:
    class Tap;

    bool receive(const QDomElement &stanza);
    bool receiveFeatures(const QDomElement &features);
    void receiveStreamError(const QDomElement &error);
    void receiveRefusal(const QDomElement &failure);
    bool receiveAnswer(const QDomElement &iq);
    void receiveConnected();
    void receiveError(QXmppClient::Error error);
    void receiveSslErrors(const QList<QSslError> &errors);

    void answer(const QString &id, const KirvXmppAnswer &answer);
    void fail(const KirvFailure &failure);
    void endSoon();
    void end();
    KirvFailure socketFailure();
    KirvFailure silentEnd() const;
    QString serverName();

    const Purpose purpose;
    KirvClock &clock;
    const int answerTimeout;
    QXmppClient client;
    QString address;
    QHash<QString, Receiver> receivers; ///< by the id of the question
    KirvFailure reason; ///< the first one that was told
    bool isEncrypted = false;
    bool isClosing = false;
    bool hasArrived = false; ///< loggedIn() or readyToRegister() was told
    bool hasEnded = false;
    bool hasMechanisms = false; ///< the server has offered ways to log in
};

#endif
