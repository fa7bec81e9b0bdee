// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_XMPP_SERVER_LINK_H
#define KIRV_XMPP_SERVER_LINK_H

#include "protocols/xmpp/kirv_xmpp_link.h"
#include "protocols/xmpp/kirv_xmpp_login_guard.h"
#include "protocols/xmpp/kirv_xmpp_pending_requests.h"
#include "protocols/xmpp/kirv_xmpp_stream_guard.h"

#include <QXmppClient.h>

class KirvSocketSteps;
class KirvXmppStreamReader;

/// The link to a real server, on QXmpp.
///
/// The library receives only what log-in and session need. Nobody but the server is answered, and nothing that the
/// library would say by itself about the program or the system is said.
class KirvXmppServerLink : public KirvXmppLink {
    Q_OBJECT

public:
    /// \a clock is not owned; requests without a reply fail after \a replyTimeout milliseconds.
    KirvXmppServerLink(Purpose purpose, KirvClock &clock, int replyTimeout, QObject *parent = nullptr);
    ~KirvXmppServerLink() override;
    /// A KirvXmppLinkFactory.
    static KirvXmppLink *create(Purpose purpose, KirvClock &clock, int replyTimeout);

    void refuseLocalServers() override { refusesLocal = true; }
    bool isServerLocal() const override { return isLocal; }
    void open(const QXmppConfiguration &configuration, const QXmppPresence &presence) override;
    void close() override;
    void abort() override;
    bool isReady() const override;
    QString securityText() const override;
    QString mechanism() const override { return loginGuard.mechanism(); }
    void sendPresence(const QXmppPresence &presence) override;
    void sendRequest(QXmppIq::Type type, const QDomDocument &payload, const Receiver &receiver,
                     const QString &to) override;

private:
    class Tap;

    void guardStream();
    bool isUsed(const KirvXmppStanzaStart &start) const;
    void receiveViolation(KirvXmppStreamGuard::Violation violation);
    void receiveDropped(const KirvXmppStanzaStart &start);
    void startWithEncryption();
    void checkServerAddress();
    bool receive(const QDomElement &stanza);
    bool receiveFeatures(const QDomElement &features);
    bool receiveStreamError(const QDomElement &error);
    bool receiveReference(const QString &address);
    bool receiveLoginStep(const QDomElement &step);
    bool receiveReply(const QDomElement &iq);
    void receiveConnected();
    void receiveError(QXmppClient::Error error);
    void checkCertificate(const QList<QSslError> &errors);

    void reply(const QString &id, const KirvXmppReply &reply);
    void fail(const KirvFailure &failure);
    void endSoon();
    void end();
    KirvFailure socketFailure();
    KirvFailure endWithoutReason() const;
    QString serverName();

    const Purpose purpose;
    KirvClock &clock;
    const int replyTimeout;
    QXmppClient client;
    KirvXmppStreamReader *reader = nullptr; ///< owned by this
    KirvSocketSteps *steps = nullptr; ///< owned by this
    KirvXmppLoginGuard loginGuard;
    KirvXmppPendingRequests requests;
    QString accountAddress; ///< without a resource
    KirvFailure reason; ///< the first one that was reported
    QString referredHost; ///< the server that this one refers to; empty: none
    int referredPort = 0;
    bool refusesLocal = false;
    bool isLocal = false;
    bool isEncrypted = false;
    bool isClosing = false;
    bool hasArrived = false; ///< loggedIn() or readyToRegister() was emitted
    bool hasEnded = false;
    bool hasMechanisms = false; ///< the server has offered ways to log in
};

#endif
