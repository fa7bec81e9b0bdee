// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_route.h"
#include "tests/protocols/fake_xmpp_link.h"
#include "tests/support/fakes/kirv_fake_clock.h"

#include <QHash>
#include <QSignalSpy>
#include <QTest>
#include <memory>

using Records = QList<KirvXmppServiceRecord>;
using Security = QXmppConfiguration::StreamSecurityMode;

Q_DECLARE_METATYPE(Security)
Q_DECLARE_METATYPE(KirvFailure::Kind)
Q_DECLARE_METATYPE(KirvXmppTarget)
Q_DECLARE_METATYPE(KirvXmppServiceRecord)

namespace {

const QString ordinaryName = "_xmpp-client._tcp.example.org";
const QString directName = "_xmpps-client._tcp.example.org";

KirvXmppServiceRecord record(const QString &host, int port, int priority = 0, int weight = 0)
{
    return { host, port, priority, weight };
}

} // namespace

/// The way to a server, with service records, servers and ports that a test scripts.
class tst_XmppRoute : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void aServerThatIsGivenIsNotLookedUp();
    void theServicesFollowTheEncryption_data();
    void theServicesFollowTheEncryption();
    void theNextServerIsTriedWhenOneCannotBeReached_data();
    void theNextServerIsTriedWhenOneCannotBeReached();
    void aServerThatRefusesEndsTheSearch();
    void aSilentLookUpDoesNotHoldTheLogIn();
    void aSilentServerIsLeftForTheNext();
    void theLastServerMayTakeItsTime();
    void aServerThatIsLeftIsAFailedStep_data();
    void aServerThatIsLeftIsAFailedStep();

    void aReferenceIsFollowed_data();
    void aReferenceIsFollowed();
    void referencesWithoutEndAreNotFollowed();
    void aReferenceNeverWeakensSecurity_data();
    void aReferenceNeverWeakensSecurity();
    void privateNetworksAreReachedFromWithinOnly_data();
    void privateNetworksAreReachedFromWithinOnly();
    void aRefusedLocalServerIsNotLookedAt();
    void aReferenceOfASessionEndsIt();

    void theOtherStartIsNamed_data();
    void theOtherStartIsNamed();
    void anotherEndIsReportedAsItIs_data();
    void anotherEndIsReportedAsItIs();

    void aProxyLooksTheServerUp_data();
    void aProxyLooksTheServerUp();
    void aProxyThatFailsEndsIt_data();
    void aProxyThatFailsEndsIt();
    void aProxyThatIsSilentIsNamed();
    void theServerBehindAProxyMayTakeItsTime();
    void theSystemIsQueriedForEachServer();
    void noServerIsTriedWhileTheSystemIsSilent();
    void theProbeGoesThroughTheProxy();

    void everythingIsPassedOn();
    void requestsWithoutAServerFail();
    void nothingComesAfterAnAbort_data();
    void nothingComesAfterAnAbort();
    void closingDuringTheLookUpEndsIt();

private:
    void open(Security security = QXmppConfiguration::TLSRequired, const QString &host = QString(),
              const QNetworkProxy &proxy = QNetworkProxy::NoProxy);
    void answer(const QString &name, const Records &records) { lookUps.take(name)(records); }
    QString address() const
    {
        const QXmppConfiguration &used = server.link()->configuration;
        const bool isDirect = used.streamSecurityMode() == QXmppConfiguration::LegacySSL;
        return QString("%1:%2%3").arg(used.host()).arg(used.port()).arg(isDirect ? " direct" : "");
    }
    KirvFailure ending() const { return ended->isEmpty() ? KirvFailure() : ended->last().first().value<KirvFailure>(); }

    KirvFakeClock clock;
    FakeXmppServer server;
    QHash<QString, std::function<void(const Records &)>> lookUps; ///< without a reply
    QList<std::function<void(bool)>> probes; ///< without a reply
    QNetworkProxy probedThrough;
    QStringList queried; ///< servers that the proxy of the system was requested for
    QList<KirvProxyReceiver> systemProxies;
    std::unique_ptr<KirvXmppRoute> route;
    std::unique_ptr<QSignalSpy> ended;
};

void tst_XmppRoute::init()
{
    qRegisterMetaType<KirvFailure>("KirvFailure");
    server = FakeXmppServer();
    lookUps.clear();
    probes.clear();
    queried.clear();
    systemProxies.clear();
    probedThrough = QNetworkProxy();
    route = std::make_unique<KirvXmppRoute>(
        KirvXmppLink::LogIn, clock, 1000, server.factory(),
        [this](const QString &name, QObject *, const std::function<void(const Records &)> &receiver) {
            lookUps.insert(name, receiver);
        },
        [this](const KirvXmppTarget &, const QNetworkProxy &proxy, KirvClock &, QObject *,
               const std::function<void(bool)> &receiver) {
            probes << receiver;
            probedThrough = proxy;
        },
        [this](const QNetworkProxy &proxy, const QString &host, int, KirvClock &, QObject *,
               const KirvProxyReceiver &receiver) {
            if (proxy.type() != QNetworkProxy::DefaultProxy)
                return receiver(proxy, KirvFailure());
            queried << host;
            systemProxies << receiver;
        });
    ended = std::make_unique<QSignalSpy>(route.get(), &KirvXmppLink::ended);
}

void tst_XmppRoute::cleanup()
{
    ended.reset();
    route.reset();
}

void tst_XmppRoute::open(Security security, const QString &host, const QNetworkProxy &proxy)
{
    QXmppConfiguration configuration;
    configuration.setDomain("example.org");
    configuration.setHost(host);
    configuration.setPort(security == QXmppConfiguration::LegacySSL ? 5223 : 5222);
    configuration.setStreamSecurityMode(security);
    configuration.setNetworkProxy(proxy);
    route->open(configuration, QXmppPresence());
}

void tst_XmppRoute::aServerThatIsGivenIsNotLookedUp()
{
    open(QXmppConfiguration::TLSRequired, "127.0.0.1");
    QVERIFY(lookUps.isEmpty());
    QCOMPARE(address(), QString("127.0.0.1:5222"));
    server.link()->end(KirvFailure::ConnectionRefused);
    QCOMPARE(ending().kind(), KirvFailure::ConnectionRefused);
    QCOMPARE(server.links, 1);
}

void tst_XmppRoute::theServicesFollowTheEncryption_data()
{
    QTest::addColumn<Security>("security");
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("domain");
    QTest::newRow("required") << QXmppConfiguration::TLSRequired << QStringList { ordinaryName, directName }
                              << "example.org:5222";
    QTest::newRow("offered") << QXmppConfiguration::TLSEnabled << QStringList { ordinaryName, directName }
                             << "example.org:5222";
    QTest::newRow("none") << QXmppConfiguration::TLSDisabled << QStringList { ordinaryName } << "example.org:5222";
    QTest::newRow("direct") << QXmppConfiguration::LegacySSL << QStringList { directName } << "example.org:5223 direct";
}

void tst_XmppRoute::theServicesFollowTheEncryption()
{
    QFETCH(Security, security);
    QFETCH(QStringList, names);
    open(security);
    QStringList requested = lookUps.keys();
    requested.sort();
    QCOMPARE(requested, names);
    QCOMPARE(server.links, 0);
    for (const QString &name : names)
        answer(name, Records());
    QTEST(address(), "domain");
    QCOMPARE(server.link()->configuration.streamSecurityMode(), security);
}

void tst_XmppRoute::theNextServerIsTriedWhenOneCannotBeReached_data()
{
    QTest::addColumn<KirvFailure::Kind>("kind");
    QTest::newRow("not found") << KirvFailure::HostNotFound;
    QTest::newRow("refused") << KirvFailure::ConnectionRefused;
    QTest::newRow("lost at once") << KirvFailure::ConnectionLost;
}

void tst_XmppRoute::theNextServerIsTriedWhenOneCannotBeReached()
{
    QFETCH(KirvFailure::Kind, kind);
    open();
    answer(directName, Records { record("one", 443, 10) });
    QCOMPARE(server.links, 0);
    answer(ordinaryName, Records { record("two", 5000, 20) });
    const auto fail = [&] {
        server.link()->end(kind);
        if (!probes.isEmpty())
            probes.takeFirst()(false);
    };
    QCOMPARE(address(), QString("one:443 direct"));
    fail();
    QCOMPARE(address(), QString("two:5000"));
    QCOMPARE(server.link()->configuration.streamSecurityMode(), QXmppConfiguration::TLSRequired);
    fail();
    QCOMPARE(address(), QString("example.org:5222"));
    QCOMPARE(ended->size(), 0);
    fail();
    QCOMPARE(ended->size(), 1);
    QCOMPARE(ending().kind(), kind);
}

void tst_XmppRoute::aServerThatRefusesEndsTheSearch()
{
    open();
    answer(directName, Records());
    answer(ordinaryName, Records { record("one", 1), record("two", 2, 10) });
    Q_EMIT server.link()->featuresReceived();
    server.link()->end(KirvFailure::WrongPassword);
    QCOMPARE(ending().kind(), KirvFailure::WrongPassword);
    QCOMPARE(server.links, 1);
}

void tst_XmppRoute::aSilentLookUpDoesNotHoldTheLogIn()
{
    open();
    answer(directName, Records { record("one", 443) });
    const auto late = lookUps.take(ordinaryName);
    clock.advance(4999);
    QCOMPARE(server.links, 0);
    clock.advance(1);
    QCOMPARE(address(), QString("one:443 direct"));
    late(Records { record("two", 2) });
    QCOMPARE(server.links, 1);
}

void tst_XmppRoute::aSilentServerIsLeftForTheNext()
{
    open();
    answer(directName, Records());
    answer(ordinaryName, Records { record("one", 1), record("two", 2, 10) });
    clock.advance(KirvXmppRoute::silence);
    QCOMPARE(address(), QString("two:2"));
    Q_EMIT server.link()->featuresReceived();
    clock.advance(KirvXmppRoute::silence);
    QCOMPARE(address(), QString("two:2"));
    QCOMPARE(ended->size(), 0);
}

void tst_XmppRoute::aServerThatIsLeftIsAFailedStep_data()
{
    QTest::addColumn<int>("why");
    QTest::newRow("it cannot be reached") << 0;
    QTest::newRow("it is silent") << 1;
    QTest::newRow("it hangs up") << 2;
}

void tst_XmppRoute::aServerThatIsLeftIsAFailedStep()
{
    QFETCH(int, why);
    QList<KirvLoginStep> steps;
    connect(route.get(), &KirvXmppLink::step, this, [&steps](const KirvLoginStep &step) { steps << step; });
    open();
    QCOMPARE(steps.size(), 1);
    QCOMPARE(steps.first(), KirvLoginStep(KirvLoginStep::NameLookup, KirvLoginStep::Running, "servers of example.org"));
    answer(ordinaryName, { record("one.example.org", 1), record("two.example.org", 2, 1) });
    answer(directName, {});
    server.link()->step({ KirvLoginStep::Connection, KirvLoginStep::Running, "192.0.2.7" });
    KirvFailure expected(KirvFailure::ConnectionRefused, "one.example.org");
    if (why == 1) {
        expected = KirvFailure(KirvFailure::TimedOut, "one.example.org");
        clock.advance(KirvXmppRoute::silence);
    } else if (why == 2) {
        expected = KirvFailure::ConnectionLost;
        server.link()->end(expected);
        probes.takeFirst()(false);
    } else {
        server.link()->end(expected);
    }
    QCOMPARE(address(), QString("two.example.org:2"));
    QCOMPARE(steps.size(), 3);
    QCOMPARE(steps.last(), KirvLoginStep(KirvLoginStep::Connection, KirvLoginStep::Failed, expected.text()));
    QVERIFY(ended->isEmpty());
}

void tst_XmppRoute::theLastServerMayTakeItsTime()
{
    open(QXmppConfiguration::TLSRequired, "one");
    clock.advance(KirvXmppRoute::silence);
    QCOMPARE(probes.size(), 1);
    Q_EMIT server.link()->featuresReceived();
    probes.takeFirst()(true); // too late
    QSignalSpy loggedIn(route.get(), &KirvXmppLink::loggedIn);
    server.link()->arrive();
    QCOMPARE(loggedIn.size(), 1);
    QCOMPARE(ended->size(), 0);
}

void tst_XmppRoute::aReferenceIsFollowed_data()
{
    QTest::addColumn<Security>("security");
    QTest::addColumn<int>("port");
    QTest::addColumn<QString>("followed");
    QTest::newRow("with a port") << QXmppConfiguration::TLSRequired << 5333 << "other:5333";
    QTest::newRow("without a port") << QXmppConfiguration::TLSRequired << 0 << "other:5222";
    QTest::newRow("direct") << QXmppConfiguration::LegacySSL << 0 << "other:5223 direct";
}

void tst_XmppRoute::aReferenceIsFollowed()
{
    QFETCH(Security, security);
    QFETCH(int, port);
    open(security, "one");
    Q_EMIT server.link()->featuresReceived();
    Q_EMIT server.link()->redirected("other", port, true);
    QTEST(address(), "followed");
    QCOMPARE(server.link()->configuration.domain(), QString("example.org")); // whose certificate it needs
    QCOMPARE(ended->size(), 0);
    server.link()->arrive();
    QVERIFY(route->isReady());
}

void tst_XmppRoute::referencesWithoutEndAreNotFollowed()
{
    open(QXmppConfiguration::TLSRequired, "one");
    for (int i = 0; i < 100 && ended->isEmpty(); ++i)
        Q_EMIT server.link()->redirected("other", 5222, true);
    QCOMPARE(server.links, 1 + KirvXmppRoute::mostReferences);
    QCOMPARE(ended->size(), 1);
    QCOMPARE(ending().kind(), KirvFailure::ServiceUnavailable);
}

void tst_XmppRoute::aReferenceNeverWeakensSecurity_data()
{
    QTest::addColumn<Security>("before");
    QTest::addColumn<bool>("wasEncrypted");
    QTest::addColumn<Security>("after");
    QTest::newRow("required") << QXmppConfiguration::TLSRequired << false << QXmppConfiguration::TLSRequired;
    QTest::newRow("direct") << QXmppConfiguration::LegacySSL << true << QXmppConfiguration::LegacySSL;
    QTest::newRow("offered and used") << QXmppConfiguration::TLSEnabled << true << QXmppConfiguration::TLSRequired;
    QTest::newRow("offered, not used yet") << QXmppConfiguration::TLSEnabled << false << QXmppConfiguration::TLSEnabled;
    QTest::newRow("none") << QXmppConfiguration::TLSDisabled << false << QXmppConfiguration::TLSDisabled;
}

void tst_XmppRoute::aReferenceNeverWeakensSecurity()
{
    QFETCH(Security, before);
    QFETCH(bool, wasEncrypted);
    open(before, "one");
    Q_EMIT server.link()->redirected("other", 5222, wasEncrypted);
    QTEST(server.link()->configuration.streamSecurityMode(), "after");
    // The reference after it was received in clear.
    Q_EMIT server.link()->redirected("third", 5222, false);
    QTEST(server.link()->configuration.streamSecurityMode(), "after");
}

void tst_XmppRoute::privateNetworksAreReachedFromWithinOnly_data()
{
    QTest::addColumn<QString>("host");
    QTest::addColumn<bool>("isLocal"); // the server that refers
    QTest::addColumn<bool>("isFollowed");
    for (const char *host :
         { "127.0.0.1", "127.9.9.9", "0.0.0.0", "10.1.2.3", "172.31.0.1", "192.168.1.1", "169.254.169.254",
           "100.64.0.1", "::1", "::", "fe80::1", "fd00::1", "::ffff:127.0.0.1" }) {
        QTest::newRow(host) << host << false << false;
        QTest::newRow(QByteArray("from within: ") + host) << host << true << true;
    }
    for (const char *host : { "192.0.2.1", "172.32.0.1", "100.128.0.1", "2001:db8::1", "other.example" }) {
        QTest::newRow(host) << host << false << true;
        QTest::newRow(QByteArray("from within: ") + host) << host << true << true;
    }
}

void tst_XmppRoute::privateNetworksAreReachedFromWithinOnly()
{
    QFETCH(QString, host);
    QFETCH(bool, isLocal);
    QFETCH(bool, isFollowed);
    open(QXmppConfiguration::TLSRequired, "one");
    QVERIFY(!server.link()->refusesLocal); // it stands in the settings
    server.link()->isLocal = isLocal;
    Q_EMIT server.link()->redirected(host, 5222, true);
    QCOMPARE(server.links, isFollowed ? 2 : 1);
    QCOMPARE(ended->size(), isFollowed ? 0 : 1);
    if (isFollowed)
        QCOMPARE(server.link()->refusesLocal, !isLocal); // its name may have such an address
    else
        QVERIFY(ending().detail().contains("private network"));
}

/// To find out how its port starts would be to connect to it again.
void tst_XmppRoute::aRefusedLocalServerIsNotLookedAt()
{
    open(QXmppConfiguration::TLSRequired, "one");
    Q_EMIT server.link()->redirected("other.example", 5222, true);
    server.link()->end(KirvFailure(KirvFailure::ServerShutDown, "a private network"));
    QCOMPARE(ending().detail(), QString("a private network"));
    QVERIFY(probes.isEmpty());
}

void tst_XmppRoute::aReferenceOfASessionEndsIt()
{
    open(QXmppConfiguration::TLSRequired, "one");
    server.link()->arrive();
    Q_EMIT server.link()->redirected("other", 5222, true);
    QCOMPARE(ending().kind(), KirvFailure::ServerShutDown); // and the account comes back by itself
    QCOMPARE(server.links, 1);
}

void tst_XmppRoute::theOtherStartIsNamed_data()
{
    QTest::addColumn<Security>("security");
    QTest::addColumn<bool>("isSilent");
    QTest::newRow("TLS at once, silent") << QXmppConfiguration::TLSRequired << true;
    QTest::newRow("TLS at once, hangs up") << QXmppConfiguration::TLSRequired << false;
    QTest::newRow("TLS later, silent") << QXmppConfiguration::LegacySSL << true;
    QTest::newRow("TLS later, hangs up") << QXmppConfiguration::LegacySSL << false;
}

void tst_XmppRoute::theOtherStartIsNamed()
{
    QFETCH(Security, security);
    QFETCH(bool, isSilent);
    open(security, "one");
    if (isSilent)
        clock.advance(KirvXmppRoute::silence);
    else
        server.link()->end(KirvFailure::ConnectionLost);
    QCOMPARE(probes.size(), 1);
    QCOMPARE(ended->size(), 0);
    probes.takeFirst()(true);
    QCOMPARE(ending().kind(), KirvFailure::BadSettings);
    const QString text = ending().detail();
    QVERIFY2(text.contains("one:522") && text.contains("direct TLS"), qPrintable(text));
    QCOMPARE(text.contains("Do not choose"), security == QXmppConfiguration::LegacySSL);
}

void tst_XmppRoute::anotherEndIsReportedAsItIs_data()
{
    QTest::addColumn<KirvFailure::Kind>("kind");
    QTest::addColumn<int>("probed");
    QTest::newRow("lost") << KirvFailure::ConnectionLost << 1;
    QTest::newRow("handshake") << KirvFailure::Other << 1;
    QTest::newRow("certificate") << KirvFailure::UntrustedCertificate << 0;
    QTest::newRow("not found") << KirvFailure::HostNotFound << 0;
}

void tst_XmppRoute::anotherEndIsReportedAsItIs()
{
    QFETCH(KirvFailure::Kind, kind);
    QFETCH(int, probed);
    open(QXmppConfiguration::TLSRequired, "one");
    server.link()->end(kind);
    QCOMPARE(probes.size(), probed);
    if (!probes.isEmpty())
        probes.takeFirst()(false);
    QCOMPARE(ending().kind(), kind);
    QCOMPARE(ended->size(), 1);
}

void tst_XmppRoute::aProxyLooksTheServerUp_data()
{
    QTest::addColumn<QNetworkProxy>("proxy");
    QTest::newRow("SOCKS5") << QNetworkProxy(QNetworkProxy::Socks5Proxy, "proxy", 1080);
    QTest::newRow("HTTP") << QNetworkProxy(QNetworkProxy::HttpProxy, "proxy", 3128);
}

void tst_XmppRoute::aProxyLooksTheServerUp()
{
    QFETCH(QNetworkProxy, proxy);
    open(QXmppConfiguration::TLSRequired, QString(), proxy);
    QVERIFY(lookUps.isEmpty()); // which would go round it
    QCOMPARE(address(), QString("example.org:5222"));
    QCOMPARE(server.link()->configuration.networkProxy(), proxy);
    Q_EMIT server.link()->featuresReceived();
    Q_EMIT server.link()->redirected("other", 5333, true);
    QCOMPARE(address(), QString("other:5333"));
    QCOMPARE(server.link()->configuration.networkProxy(), proxy);
    server.link()->arrive();
    clock.advance(100000);
    QCOMPARE(ended->size(), 0);
    QVERIFY(lookUps.isEmpty());
}

void tst_XmppRoute::aProxyThatFailsEndsIt_data()
{
    QTest::addColumn<KirvFailure::Kind>("kind");
    QTest::newRow("not reached") << KirvFailure::ProxyNotReached;
    QTest::newRow("log-in") << KirvFailure::ProxyLoginRefused;
    QTest::newRow("denied") << KirvFailure::ProxyDenied;
    QTest::newRow("other") << KirvFailure::ProxyFailed;
}

void tst_XmppRoute::aProxyThatFailsEndsIt()
{
    QFETCH(KirvFailure::Kind, kind);
    open(QXmppConfiguration::TLSRequired, QString(), QNetworkProxy(QNetworkProxy::Socks5Proxy, "proxy", 1080));
    server.link()->end(KirvFailure(kind, "proxy:1080"));
    QCOMPARE(ended->size(), 1);
    QCOMPARE(ending().kind(), kind);
    QCOMPARE(server.links, 1);
    QVERIFY(probes.isEmpty());
    QVERIFY(lookUps.isEmpty());
}

void tst_XmppRoute::aProxyThatIsSilentIsNamed()
{
    open(QXmppConfiguration::TLSRequired, "one", QNetworkProxy(QNetworkProxy::Socks5Proxy, "proxy", 1080));
    clock.advance(KirvProxy::timeout - 1);
    QCOMPARE(ended->size(), 0);
    QVERIFY(probes.isEmpty());
    clock.advance(1);
    QCOMPARE(ending().kind(), KirvFailure::ProxyTimedOut);
    QCOMPARE(ending().detail(), QString("proxy:1080"));
}

void tst_XmppRoute::theServerBehindAProxyMayTakeItsTime()
{
    open(QXmppConfiguration::TLSRequired, "one", QNetworkProxy(QNetworkProxy::Socks5Proxy, "proxy", 1080));
    Q_EMIT server.link()->reached();
    clock.advance(KirvProxy::timeout);
    QCOMPARE(ended->size(), 0);
    QCOMPARE(probes.size(), 1); // the server is silent
}

void tst_XmppRoute::theSystemIsQueriedForEachServer()
{
    const QNetworkProxy socks(QNetworkProxy::Socks5Proxy, "proxy", 1080);
    open(QXmppConfiguration::TLSRequired, QString(), QNetworkProxy::DefaultProxy);
    QCOMPARE(queried, QStringList { "example.org" });
    QVERIFY(lookUps.isEmpty());
    systemProxies.takeFirst()(QNetworkProxy::NoProxy, KirvFailure());
    answer(directName, Records());
    answer(ordinaryName, Records { record("one", 1), record("two", 2, 10) });
    QCOMPARE(server.links, 0);
    QCOMPARE(queried.last(), QString("one"));
    systemProxies.takeFirst()(QNetworkProxy::NoProxy, KirvFailure());
    QCOMPARE(address(), QString("one:1"));
    QCOMPARE(server.link()->configuration.networkProxy().type(), QNetworkProxy::NoProxy);
    server.link()->end(KirvFailure::ConnectionRefused);
    QCOMPARE(server.links, 1);
    QCOMPARE(queried.last(), QString("two"));
    systemProxies.takeFirst()(socks, KirvFailure());
    QCOMPARE(address(), QString("two:2"));
    QCOMPARE(server.link()->configuration.networkProxy(), socks);
}

void tst_XmppRoute::noServerIsTriedWhileTheSystemIsSilent()
{
    for (const QString &host : { QString(), QString("one") }) {
        cleanup();
        init();
        open(QXmppConfiguration::TLSRequired, host, QNetworkProxy::DefaultProxy);
        clock.advance(100000);
        QCOMPARE(server.links, 0);
        QVERIFY(lookUps.isEmpty());
        systemProxies.takeFirst()(QNetworkProxy(), KirvFailure::ProxyUnknown);
        QCOMPARE(ending().kind(), KirvFailure::ProxyUnknown);
        QCOMPARE(server.links, 0);
        QVERIFY(lookUps.isEmpty() && probes.isEmpty());
    }
}

void tst_XmppRoute::theProbeGoesThroughTheProxy()
{
    const QNetworkProxy socks(QNetworkProxy::Socks5Proxy, "proxy", 1080);
    open(QXmppConfiguration::TLSRequired, "one", QNetworkProxy::DefaultProxy);
    systemProxies.takeFirst()(socks, KirvFailure());
    server.link()->end(KirvFailure::ConnectionLost);
    QCOMPARE(probes.size(), 1);
    QCOMPARE(probedThrough, socks);
}

void tst_XmppRoute::everythingIsPassedOn()
{
    open(QXmppConfiguration::TLSRequired, "one");
    QSignalSpy loggedIn(route.get(), &KirvXmppLink::loggedIn);
    QVERIFY(!route->isReady());
    server.link()->arrive();
    QCOMPARE(loggedIn.size(), 1);
    QVERIFY(route->isReady());
    route->sendPresence(QXmppPresence());
    QCOMPARE(server.link()->presences.size(), 1);
    int replies = 0;
    route->sendRequest(
        QXmppIq::Get, QDomDocument(), [&replies](const KirvXmppReply &) { ++replies; }, "to");
    QCOMPARE(server.link()->requests.first().to, QString("to"));
    server.link()->reply("<a xmlns='b'/>");
    QCOMPARE(replies, 1);
    route->close();
    QCOMPARE(ended->size(), 1);
    QVERIFY(!ending().isFailure());
}

void tst_XmppRoute::requestsWithoutAServerFail()
{
    int replies = 0;
    KirvXmppReply last;
    route->sendRequest(
        QXmppIq::Get, QDomDocument(),
        [&](const KirvXmppReply &reply) {
            ++replies;
            last = reply;
        },
        QString());
    QCOMPARE(replies, 0);
    clock.advance(0);
    QCOMPARE(replies, 1);
    QCOMPARE(last.failure.kind(), KirvFailure::ConnectionLost);
}

void tst_XmppRoute::nothingComesAfterAnAbort_data()
{
    QTest::addColumn<QString>("moment");
    for (const char *moment : { "look-up", "connecting", "probing" })
        QTest::newRow(moment) << moment;
}

void tst_XmppRoute::nothingComesAfterAnAbort()
{
    QFETCH(QString, moment);
    open(QXmppConfiguration::TLSRequired, moment == "look-up" ? "" : "one");
    if (moment == "probing")
        server.link()->end(KirvFailure::ConnectionLost);
    route->abort();
    for (const QString &name : lookUps.keys())
        answer(name, Records { record("one", 1) });
    for (const auto &probe : probes)
        probe(true);
    clock.advance(100000);
    QCoreApplication::processEvents();
    QCOMPARE(ended->size(), 0);
    QCOMPARE(server.links, moment == "look-up" ? 0 : 1);
}

void tst_XmppRoute::closingDuringTheLookUpEndsIt()
{
    open();
    route->close();
    QCOMPARE(ended->size(), 0);
    clock.advance(0);
    QCOMPARE(ended->size(), 1);
    QVERIFY(!ending().isFailure());
}

QTEST_GUILESS_MAIN(tst_XmppRoute)
#include "tst_xmpp_route.moc"
