// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_XMPP_LINK_H
#define KIRV_XMPP_LINK_H

#include "core/protocol/kirv_login_step.h"
#include "core/protocol/kirv_server_certificate.h"
#include "core/values/kirv_clock.h"
#include "core/values/kirv_failure.h"

#include <QDomElement>
#include <QObject>
#include <QXmppConfiguration.h>
#include <QXmppIq.h>
#include <QXmppPresence.h>
#include <functional>

/// The reply to a request to the server. A value type.
struct KirvXmppReply {
    QDomElement iq; ///< the whole reply; null when there was none
    QDomElement payload; ///< its first element that is not an error; may be null
    QString condition; ///< the error's condition ("conflict"); empty: no error
    KirvFailure failure; ///< None when it is no error

    bool isError() const { return failure.isFailure(); }
};

/// One stream to a server, from connecting to its end; used once.
///
/// What the server and the library report comes as three signals, and every end has its reason as a KirvFailure.
/// Destroy it with deleteLater(): it may be in the middle of a signal. Tests put a link of their own in the place of
/// the one to a server.
class KirvXmppLink : public QObject {
    Q_OBJECT

public:
    enum Purpose {
        LogIn, ///< authenticates and emits loggedIn()
        Register ///< stops before that and emits readyToRegister()
    };

    using QObject::QObject;

    /// From now on the link ends, before anything is sent, where its server has an address of this computer or of a
    /// private network.
    virtual void refuseLocalServers() { }
    /// Whether the server has such an address; false while that is not known.
    virtual bool isServerLocal() const { return false; }
    /// From now on a server that shows the certificate with that SHA-256 digest is trusted, whatever is wrong with it;
    /// empty: none is.
    void setTrustedCertificate(const QByteArray &digest) { trusted = digest; }
    const QByteArray &trustedCertificate() const { return trusted; }
    /// The proxy of \a configuration is for kirvFindProxy() unless the link is one to a single server.
    virtual void open(const QXmppConfiguration &configuration, const QXmppPresence &presence) = 0;
    /// Ends the stream in an orderly way; ended() follows.
    virtual void close() = 0;
    /// Ends it at once: no receiver is called any more, and ended() is not emitted.
    virtual void abort() = 0;
    /// Whether requests can be sent: after loggedIn() or readyToRegister(), until the end.
    virtual bool isReady() const = 0;

    /// How the session is protected and how the account has logged in, as "TLSv1.3, SASL SCRAM-SHA-256"; empty before
    /// the log-in and when that is not known.
    virtual QString securityText() const { return QString(); }

    /// How the account proves who it is, as "SCRAM-SHA-256"; empty before that is chosen.
    virtual QString mechanism() const { return QString(); }

    /// Sends a presence; an unavailable one hides the session and keeps it.
    virtual void sendPresence(const QXmppPresence &presence) = 0;
    using Receiver = std::function<void(const KirvXmppReply &)>;
    /// Sends \a payload to the account (\a to is empty) or to the server. \a receiver is called exactly once, within
    /// the time-out, unless the link is aborted or destroyed before.
    virtual void sendRequest(QXmppIq::Type type, const QDomDocument &payload, const Receiver &receiver,
                             const QString &to) = 0;

Q_SIGNALS:
    /// How far the log-in is, see KirvConnection::reportStep().
    void step(const KirvLoginStep &step);
    /// There is a connection to the server, through the proxy where there is one.
    void reached();
    /// The server has sent what it offers. May be emitted several times.
    void featuresReceived();
    /// The server has shown a certificate that has problems, or any while trustedCertificate() is set; the end follows,
    /// unless it is trustedCertificate().
    void certificateShown(const KirvServerCertificate &certificate);
    /// The server refers to another one, in the place of ended(); \a port is 0 when it names none. \a wasEncrypted: it
    /// said so over an encrypted stream.
    void redirected(const QString &host, int port, bool wasEncrypted);
    void loggedIn();
    /// The stream is as safe as it was to be. \a isOffered: the server says that it offers registration; some
    /// offer it without saying so.
    void readyToRegister(bool isOffered);
    /// The stream is over. Emitted once; None when close() has ended it.
    void ended(const KirvFailure &failure);

private:
    QByteArray trusted;
};

/// Creates a link; \a clock is not owned, and requests without a reply fail after \a replyTimeout milliseconds.
using KirvXmppLinkFactory =
    std::function<KirvXmppLink *(KirvXmppLink::Purpose purpose, KirvClock &clock, int replyTimeout)>;

#endif
