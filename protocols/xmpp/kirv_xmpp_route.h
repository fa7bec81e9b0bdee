// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_XMPP_ROUTE_H
#define KIRV_XMPP_ROUTE_H

#include "core/protocol/kirv_proxy.h"
#include "protocols/xmpp/kirv_xmpp_link.h"
#include "protocols/xmpp/kirv_xmpp_port_probe.h"
#include "protocols/xmpp/kirv_xmpp_server_finder.h"

#include <QPointer>

/// A link that finds its way to the server.
///
/// Without a host in the configuration it looks the service records of the domain up and tries the servers they name,
/// one after the other, until one answers; then the domain itself. It goes where a server refers to (see-other-host), a
/// few times, never to weaker security, and from outside into no private network. Where a port expects TLS from the
/// first byte and the settings do not, or the other way round, the end says so.
///
/// Nothing goes round the proxy of the configuration: where there is one, it looks names up, and service records are
/// not looked up. What the system says about proxies counts for each server that is tried.
class KirvXmppRoute : public KirvXmppLink {
    Q_OBJECT

public:
    static const int mostReferences = 5;
    /// How long a server may be silent before another one is tried, in milliseconds.
    static const int silence = 8000;

    /// \a createLink makes the links to single servers.
    KirvXmppRoute(Purpose purpose, KirvClock &clock, int replyTimeout, KirvXmppLinkFactory createLink,
                  KirvXmppServiceLookup lookUp = kirvXmppLookUpService, KirvXmppPortProbe probe = kirvXmppProbePort,
                  KirvProxyFinder findProxy = kirvFindProxy);
    ~KirvXmppRoute() override;
    /// To real servers. A KirvXmppLinkFactory.
    static KirvXmppLink *create(Purpose purpose, KirvClock &clock, int replyTimeout);

    void open(const QXmppConfiguration &configuration, const QXmppPresence &presence) override;
    void close() override;
    void abort() override;
    bool isReady() const override { return link && link->isReady(); }
    QString securityText() const override { return link ? link->securityText() : QString(); }
    QString mechanism() const override { return link ? link->mechanism() : QString(); }
    void sendPresence(const QXmppPresence &presence) override;
    void sendRequest(QXmppIq::Type type, const QDomDocument &payload, const Receiver &receiver,
                     const QString &to) override;

private:
    void findProxyOfDomain();
    void lookUpServers();
    void receiveRecords(bool isDirect, const QList<KirvXmppServiceRecord> &records);
    void tryNext(const KirvFailure &failure = KirvFailure());
    void start(const KirvXmppTarget &target);
    void openLink(const QNetworkProxy &found);
    void watchProxy();
    void connectLink();
    void receiveStep(const KirvLoginStep &reported);
    void follow(const QString &host, int port, bool wasEncrypted);
    void receiveEnd(const KirvFailure &failure);
    void receiveNothing();
    void explainEnd(const KirvFailure &failure);
    KirvFailure otherStart() const;
    void dropLink();
    void end(const KirvFailure &failure);

    const Purpose purpose;
    KirvClock &clock;
    const int replyTimeout;
    const KirvXmppLinkFactory createLink;
    const KirvXmppServiceLookup lookUp;
    const KirvXmppPortProbe probe;
    const KirvProxyFinder findProxy;

    QXmppConfiguration configuration;
    QXmppPresence presence;
    QList<KirvXmppServiceRecord> ordinaryRecords, directRecords;
    int lookUps = 0; ///< without a reply
    QList<KirvXmppTarget> targets; ///< not tried yet
    KirvXmppTarget target; ///< the present one
    QNetworkProxy proxy; ///< the one to the present target
    KirvLoginStep::Kind lastStep = KirvLoginStep::NameLookup; ///< to the present target
    int references = 0; ///< that were followed
    bool mayBeLocal = true; ///< nobody outside has led here
    int attempt = 0; ///< tells a timer or a probe whether it is still wanted
    bool isReached = false; ///< there is a connection to the present server
    bool hasFeatures = false; ///< the present server has sent what it offers
    bool hasArrived = false;
    bool isOver = false;
    QPointer<KirvXmppLink> link;
};

#endif
