// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_server_finder.h"

#include <QHostAddress>
#include <QTest>

using Records = QList<KirvXmppServiceRecord>;

Q_DECLARE_METATYPE(KirvXmppTarget)
Q_DECLARE_METATYPE(KirvXmppServiceRecord)

namespace {

KirvXmppServiceRecord record(const QString &host, int port, int priority = 0, int weight = 0)
{
    return { host, port, priority, weight };
}

} // namespace

/// What service records say, without looking any up.
class tst_XmppServerFinder : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void recordsAreTriedInTheirOrder_data();
    void recordsAreTriedInTheirOrder();
    void serviceNamesAreThoseOfTheDomain();
    void aDomainWithManyRecordsIsNotTriedForEver();
    void addressesOfPrivateNetworksAreLocal_data();
    void addressesOfPrivateNetworksAreLocal();
};

void tst_XmppServerFinder::recordsAreTriedInTheirOrder_data()
{
    QTest::addColumn<Records>("ordinary");
    QTest::addColumn<Records>("direct");
    QTest::addColumn<bool>("isHighest");
    QTest::addColumn<QList<KirvXmppTarget>>("targets");
    const KirvXmppTarget a { "a", 1, false }, b { "b", 2, false }, c { "c", 3, true };
    QTest::newRow("none") << Records() << Records() << false << QList<KirvXmppTarget>();
    QTest::newRow("priority") << Records { record("b", 2, 20), record("a", 1, 10) } << Records() << false
                              << QList<KirvXmppTarget> { a, b };
    QTest::newRow("both services, one order")
        << Records { record("b", 2, 20), record("a", 1, 5) } << Records { record("c", 3, 10) } << false
        << QList<KirvXmppTarget> { a, c, b };
    QTest::newRow("weight, the smallest number") << Records { record("a", 1, 0, 10), record("b", 2, 0, 90) }
                                                 << Records() << false << QList<KirvXmppTarget> { a, b };
    QTest::newRow("weight, the largest number") << Records { record("a", 1, 0, 10), record("b", 2, 0, 90) } << Records()
                                                << true << QList<KirvXmppTarget> { b, a };
    QTest::newRow("no such service") << Records { record(".", 0) } << Records { record("", 5223) } << false
                                     << QList<KirvXmppTarget>();
    QTest::newRow("root of the names, port 0") << Records { record("a.", 1), record("b", 0), record("b", 70000) }
                                               << Records() << false << QList<KirvXmppTarget> { a };
}

void tst_XmppServerFinder::recordsAreTriedInTheirOrder()
{
    QFETCH(Records, ordinary);
    QFETCH(Records, direct);
    QFETCH(bool, isHighest);
    QFETCH(QList<KirvXmppTarget>, targets);
    QCOMPARE(kirvXmppTargets(ordinary, direct, [=](int largest) { return isHighest ? largest : 0; }), targets);
}

void tst_XmppServerFinder::serviceNamesAreThoseOfTheDomain()
{
    QCOMPARE(kirvXmppServiceName("example.org", false), QString("_xmpp-client._tcp.example.org"));
    QCOMPARE(kirvXmppServiceName("example.org", true), QString("_xmpps-client._tcp.example.org"));
    QCOMPARE(kirvXmppServiceName(QString::fromUtf8("bücher.example"), false),
             QString("_xmpp-client._tcp.xn--bcher-kva.example"));
}

void tst_XmppServerFinder::aDomainWithManyRecordsIsNotTriedForEver()
{
    Records many;
    for (int i = 1; i < 1000; ++i)
        many << record("a", i);
    QVERIFY(kirvXmppTargets(many, many, [](int) { return 0; }).size() == 40);
}

void tst_XmppServerFinder::addressesOfPrivateNetworksAreLocal_data()
{
    QTest::addColumn<bool>("isLocal");
    for (const char *local : { "127.0.0.1", "127.255.255.255", "0.0.0.0", "10.1.2.3", "100.64.0.1", "100.127.255.255",
                               "169.254.1.1", "172.16.0.1", "172.31.255.255", "192.168.0.1", "::1", "::", "fe80::1",
                               "fec0::1", "fc00::1", "fd12:3456::1", "::ffff:127.0.0.1", "::ffff:192.168.1.1" })
        QTest::newRow(local) << true;
    for (const char *other :
         { "1.1.1.1", "9.255.255.255", "11.0.0.1", "100.63.255.255", "100.128.0.1", "128.0.0.1", "169.253.0.1",
           "172.15.255.255", "172.32.0.1", "192.167.1.1", "192.169.0.1", "2001:db8::1", "::ffff:1.1.1.1" })
        QTest::newRow(other) << false;
}

void tst_XmppServerFinder::addressesOfPrivateNetworksAreLocal()
{
    QFETCH(bool, isLocal);
    const QHostAddress address(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(!address.isNull());
    QCOMPARE(kirvXmppIsLocal(address), isLocal);
}

QTEST_GUILESS_MAIN(tst_XmppServerFinder)
#include "tst_xmpp_server_finder.moc"
