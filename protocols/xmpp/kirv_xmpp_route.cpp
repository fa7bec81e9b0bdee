// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_route.h"

#include "protocols/xmpp/kirv_xmpp_server_link.h"
#include "protocols/xmpp/kirv_xmpp_settings.h"

#include <QHostAddress>
#include <QRandomGenerator>

namespace {

const int lookUpTimeout = 5000; // in milliseconds

int randomUpTo(int largest)
{
    return QRandomGenerator::global()->bounded(largest + 1);
}

/// Whether another server of the domain may be reached.
bool isUnreachable(const KirvFailure &failure)
{
    return failure.kind() == KirvFailure::HostNotFound || failure.kind() == KirvFailure::ConnectionRefused;
}

} // namespace

KirvXmppRoute::KirvXmppRoute(Purpose purpose, KirvClock &clock, int replyTimeout, KirvXmppLinkFactory createLink,
                             KirvXmppServiceLookup lookUp, KirvXmppPortProbe probe, KirvProxyFinder findProxy)
    : purpose(purpose)
    , clock(clock)
    , replyTimeout(replyTimeout)
    , createLink(std::move(createLink))
    , lookUp(std::move(lookUp))
    , probe(std::move(probe))
    , findProxy(std::move(findProxy))
{
}

KirvXmppRoute::~KirvXmppRoute()
{
    dropLink();
}

KirvXmppLink *KirvXmppRoute::create(Purpose purpose, KirvClock &clock, int replyTimeout)
{
    return new KirvXmppRoute(purpose, clock, replyTimeout, KirvXmppServerLink::create);
}

void KirvXmppRoute::open(const QXmppConfiguration &newConfiguration, const QXmppPresence &newPresence)
{
    configuration = newConfiguration;
    presence = newPresence;
    const bool isDirect = configuration.streamSecurityMode() == QXmppConfiguration::LegacySSL;
    if (configuration.host().isEmpty())
        findProxyOfDomain();
    else
        start({ configuration.host(), configuration.port(), isDirect });
}

/// A look-up would go round the proxy: the domain itself is tried then.
void KirvXmppRoute::findProxyOfDomain()
{
    const auto receive = [this, started = attempt](const QNetworkProxy &found, const KirvFailure &failure) {
        if (started != attempt || isOver)
            return;
        if (failure.isFailure())
            end(failure);
        else if (found.type() == QNetworkProxy::NoProxy)
            lookUpServers();
        else
            tryNext();
    };
    findProxy(configuration.networkProxy(), configuration.domain(), configuration.port(), clock, this, receive);
}

/// A domain without encryption has no use for the one service, and one with nothing but direct TLS none for the other.
void KirvXmppRoute::lookUpServers()
{
    const auto security = configuration.streamSecurityMode();
    QList<bool> services;
    if (security != QXmppConfiguration::LegacySSL)
        services << false;
    if (security != QXmppConfiguration::TLSDisabled)
        services << true;
    lookUps = int(services.size());
    //: %1 = a domain
    receiveStep({ KirvLoginStep::NameLookup, KirvLoginStep::Running, tr("servers of %1").arg(configuration.domain()) });
    const int started = attempt;
    clock.callLater(lookUpTimeout, this, [this, started] {
        if (started == attempt && !isOver && lookUps > 0)
            tryNext();
    });
    for (const bool isDirect : qAsConst(services)) {
        lookUp(kirvXmppServiceName(configuration.domain(), isDirect), this,
               [this, started, isDirect](const QList<KirvXmppServiceRecord> &records) {
                   if (started == attempt && !isOver)
                       receiveRecords(isDirect, records);
               });
    }
}

void KirvXmppRoute::receiveRecords(bool isDirect, const QList<KirvXmppServiceRecord> &records)
{
    (isDirect ? directRecords : ordinaryRecords) = records;
    if (--lookUps == 0)
        tryNext();
}

/// The first time with what the records say; then after the \a failure of the present server.
void KirvXmppRoute::tryNext(const KirvFailure &failure)
{
    if (failure.isFailure())
        receiveStep({ lastStep, KirvLoginStep::Failed, failure.text() });
    if (attempt == 0) {
        targets = kirvXmppTargets(ordinaryRecords, directRecords, randomUpTo);
        const bool isDirect = configuration.streamSecurityMode() == QXmppConfiguration::LegacySSL;
        targets << KirvXmppTarget { configuration.domain(), configuration.port(), isDirect };
    }
    start(targets.takeFirst());
}

void KirvXmppRoute::start(const KirvXmppTarget &next)
{
    dropLink();
    target = next;
    isReached = hasFeatures = false;
    const auto receive = [this, started = attempt](const QNetworkProxy &found, const KirvFailure &failure) {
        if (started != attempt || isOver)
            return;
        if (failure.isFailure())
            end(failure);
        else
            openLink(found);
    };
    findProxy(configuration.networkProxy(), target.host, target.port, clock, this, receive);
}

void KirvXmppRoute::openLink(const QNetworkProxy &found)
{
    proxy = found;
    link = createLink(purpose, clock, replyTimeout);
    link->setParent(this);
    link->setTrustedCertificate(trustedCertificate());
    if (!mayBeLocal)
        link->refuseLocalServers();
    connectLink();
    QXmppConfiguration own = configuration;
    own.setHost(target.host);
    own.setPort(target.port);
    own.setNetworkProxy(proxy);
    if (target.isDirect)
        own.setStreamSecurityMode(QXmppConfiguration::LegacySSL);
    clock.callLater(silence, this, [this, started = attempt] {
        if (started == attempt && !hasFeatures && !isOver)
            receiveNothing();
    });
    watchProxy();
    link->open(own, presence);
}

/// A proxy may accept the connection and say nothing.
void KirvXmppRoute::watchProxy()
{
    if (proxy.type() == QNetworkProxy::NoProxy)
        return;
    clock.callLater(KirvProxy::timeout, this, [this, started = attempt] {
        if (started == attempt && !isReached && !hasFeatures && !hasArrived && !isOver)
            end(kirvProxyTimedOut(proxy));
    });
}

void KirvXmppRoute::connectLink()
{
    connect(link, &KirvXmppLink::step, this, &KirvXmppRoute::receiveStep);
    connect(link, &KirvXmppLink::reached, this, [this] { isReached = true; });
    connect(link, &KirvXmppLink::featuresReceived, this, [this] { hasFeatures = true; });
    connect(link, &KirvXmppLink::certificateShown, this, &KirvXmppLink::certificateShown);
    connect(link, &KirvXmppLink::redirected, this, &KirvXmppRoute::follow);
    connect(link, &KirvXmppLink::ended, this, &KirvXmppRoute::receiveEnd);
    connect(link, &KirvXmppLink::loggedIn, this, [this] {
        hasArrived = true;
        Q_EMIT loggedIn();
    });
    connect(link, &KirvXmppLink::readyToRegister, this, [this](bool isOffered) {
        hasArrived = true;
        Q_EMIT readyToRegister(isOffered);
    });
}

void KirvXmppRoute::receiveStep(const KirvLoginStep &reported)
{
    lastStep = reported.kind();
    Q_EMIT step(reported);
}

void KirvXmppRoute::follow(const QString &host, int port, bool wasEncrypted)
{
    if (hasArrived) { // the next log-in is referred again, before it is one
        end(KirvFailure::ServerShutDown);
        return;
    }
    if (++references > mostReferences) {
        end(KirvFailure(KirvFailure::ServiceUnavailable, tr("servers refer to one another without end")));
        return;
    }
    mayBeLocal = link && link->isServerLocal();
    const QHostAddress address(host);
    if (!mayBeLocal && !address.isNull() && kirvXmppIsLocal(address)) {
        end(KirvFailure(KirvFailure::ServerShutDown, tr("it refers to a server of a private network")));
        return;
    }
    if (wasEncrypted && configuration.streamSecurityMode() == QXmppConfiguration::TLSEnabled)
        configuration.setStreamSecurityMode(QXmppConfiguration::TLSRequired);
    //: %1 = a server
    receiveStep({ lastStep, KirvLoginStep::Done, tr("the server refers to %1").arg(host) });
    targets.clear();
    const int ordinary = target.isDirect ? KirvXmppSettings::directPort : KirvXmppSettings::defaultPort;
    start({ host, port > 0 ? port : ordinary, target.isDirect });
}

void KirvXmppRoute::receiveEnd(const KirvFailure &failure)
{
    const bool wasReached = hasFeatures || hasArrived || !failure.isFailure();
    if (wasReached || failure.isOfProxy() || (isUnreachable(failure) && targets.isEmpty()))
        end(failure);
    else if (isUnreachable(failure))
        tryNext(failure);
    else
        explainEnd(failure);
}

/// The server goes on being waited for where there is no other one.
void KirvXmppRoute::receiveNothing()
{
    if (!targets.isEmpty()) {
        tryNext(KirvFailure(KirvFailure::TimedOut, target.host));
        return;
    }
    if (!mayBeLocal)
        return; // what looks at the port does not look where it leads
    if (!isReached && proxy.type() != QNetworkProxy::NoProxy)
        return; // the proxy is silent, not the server
    const auto receive = [this, started = attempt](bool isOther) {
        if (started == attempt && !isOver && !hasFeatures && isOther)
            end(otherStart());
    };
    probe(target, proxy, clock, this, receive);
}

/// The server has closed the connection, or sent what is no XMPP, before it sent what it offers.
void KirvXmppRoute::explainEnd(const KirvFailure &failure)
{
    if (failure.kind() == KirvFailure::UntrustedCertificate || !mayBeLocal) {
        end(failure);
        return;
    }
    dropLink();
    const auto receive = [this, failure, started = attempt](bool isOther) {
        if (started != attempt || isOver)
            return;
        if (!targets.isEmpty())
            tryNext(failure);
        else
            end(isOther ? otherStart() : failure);
    };
    probe(target, proxy, clock, this, receive);
}

KirvFailure KirvXmppRoute::otherStart() const
{
    const QString name = QStringLiteral("%1:%2").arg(target.host).arg(target.port);
    //: %1 is a server and its port
    const QString direct = tr("%1 starts with encryption at once. Choose direct TLS, or another port.");
    //: %1 is a server and its port
    const QString ordinary =
        tr("%1 does not start with encryption at once. Do not choose direct TLS, or choose another "
           "port.");
    return KirvFailure(KirvFailure::BadSettings, (target.isDirect ? ordinary : direct).arg(name));
}

void KirvXmppRoute::close()
{
    if (link)
        link->close();
    else
        clock.callLater(0, this, [this] { end(KirvFailure()); });
}

void KirvXmppRoute::abort()
{
    isOver = true;
    dropLink();
}

/// What comes of it later is not wanted any more.
void KirvXmppRoute::dropLink()
{
    ++attempt;
    if (!link)
        return;
    link->disconnect(this);
    link->abort();
    link->deleteLater();
    link.clear();
}

/// Emits only once.
void KirvXmppRoute::end(const KirvFailure &failure)
{
    if (isOver)
        return;
    abort();
    Q_EMIT ended(failure);
}

void KirvXmppRoute::sendPresence(const QXmppPresence &newPresence)
{
    if (link)
        link->sendPresence(newPresence);
}

void KirvXmppRoute::sendRequest(QXmppIq::Type type, const QDomDocument &payload, const Receiver &receiver,
                                const QString &to)
{
    if (link) {
        link->sendRequest(type, payload, receiver, to);
        return;
    }
    clock.callLater(0, this, [receiver] {
        KirvXmppReply none;
        none.failure = KirvFailure::ConnectionLost;
        receiver(none);
    });
}
