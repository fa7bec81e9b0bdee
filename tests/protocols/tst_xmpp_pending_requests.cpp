// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_pending_requests.h"

#include <QTest>

/// Which replies count.
class tst_XmppPendingRequests : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void repliesCountOnlyFromTheAddressOfTheRequest_data();
    void repliesCountOnlyFromTheAddressOfTheRequest();
    void unknownIdsAreNotAwaited();
    void requestsAreForgottenWhenTaken();
    void idsCannotBeGuessed();
    void serverIsKnown_data();
    void serverIsKnown();
};

void tst_XmppPendingRequests::repliesCountOnlyFromTheAddressOfTheRequest_data()
{
    QTest::addColumn<QString>("to");
    QTest::addColumn<QString>("from");
    QTest::addColumn<bool>("counts");
    const QString account = "Ann@Example.org";
    for (const QString &to : { QString(), account }) {
        const QByteArray where = to.isEmpty() ? "account without an address: " : "account: ";
        const auto row = [&](const char *name, const QString &from, bool counts) {
            QTest::newRow(where + name) << to << from << counts;
        };
        row("no sender", QString(), true);
        row("account", "ann@example.org", true);
        row("account in other letters", "ANN@EXAMPLE.ORG", true);
        row("this client", "ann@example.org/Kirv", true);
        row("server", "example.org", true);
        row("another client of the account", "ann@example.org/phone", false);
        row("resource in other letters", "ann@example.org/kirv", false);
        row("stranger", "mallory@example.org", false);
        row("stranger's client", "mallory@example.org/Kirv", false);
        row("namesake elsewhere", "ann@example.net", false);
        row("part of the server", "conference.example.org", false);
        row("similar server", "example.org.elsewhere.example", false);
        row("resource that looks so", "mallory@elsewhere.example/ann@example.org", false);
    }
    const auto row = [](const char *name, const QString &to, const QString &from, bool counts) {
        QTest::newRow(name) << to << from << counts;
    };
    row("server: no sender", "example.org", QString(), true);
    row("server: server", "example.org", "example.org", true);
    row("server: in other letters", "example.org", "Example.ORG", true);
    row("server: account", "example.org", "ann@example.org", false);
    row("server: stranger", "example.org", "mallory@example.org/x", false);
    row("server: resource of the server", "example.org", "example.org/x", false);
    row("other: itself", "bob@example.net", "bob@example.net", true);
    row("other: no sender", "bob@example.net", QString(), false);
    row("other: server", "bob@example.net", "example.org", false);
    row("international domain", QString::fromUtf8("bücher.example"), "xn--bcher-kva.example", true);
}

void tst_XmppPendingRequests::repliesCountOnlyFromTheAddressOfTheRequest()
{
    QFETCH(QString, to);
    QFETCH(QString, from);
    KirvXmppPendingRequests requests;
    requests.setAccount("Ann@Example.org/Kirv");
    if (to.endsWith(QLatin1String(".example")))
        requests.setAccount("ann@" + to);
    const QString id = requests.add(to, KirvXmppPendingRequests::Receiver());
    QTEST(requests.isAwaited(id, from), "counts");
}

void tst_XmppPendingRequests::unknownIdsAreNotAwaited()
{
    KirvXmppPendingRequests requests;
    requests.setAccount("ann@example.org");
    requests.add(QString(), KirvXmppPendingRequests::Receiver());
    for (const QString &id : { QString(), QString("1"), QString("qxmpp1") })
        QVERIFY(!requests.isAwaited(id, "ann@example.org"));
}

void tst_XmppPendingRequests::requestsAreForgottenWhenTaken()
{
    KirvXmppPendingRequests requests;
    requests.setAccount("ann@example.org");
    bool isCalled = false;
    const QString id = requests.add(QString(), [&isCalled](const KirvXmppReply &) { isCalled = true; });
    requests.take(id)(KirvXmppReply());
    QVERIFY(isCalled);
    QVERIFY(!requests.contains(id));
    QVERIFY(!requests.isAwaited(id, QString()));
    QVERIFY(!requests.take(id));
}

void tst_XmppPendingRequests::idsCannotBeGuessed()
{
    KirvXmppPendingRequests requests;
    QStringList ids;
    for (int i = 0; i < 100; ++i)
        ids << requests.add(QString(), KirvXmppPendingRequests::Receiver());
    QCOMPARE(ids.removeDuplicates(), 0);
    // Two neighbours of a sequence would differ in a few characters only.
    for (int i = 1; i < ids.size(); ++i) {
        QVERIFY(ids.at(i).size() >= 32);
        int differences = 0;
        for (int j = 0; j < ids.at(i).size(); ++j)
            differences += ids.at(i).at(j) != ids.at(i - 1).at(j);
        QVERIFY2(differences > 16, qPrintable(ids.at(i)));
    }
}

void tst_XmppPendingRequests::serverIsKnown_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<bool>("isServer");
    QTest::newRow("none") << QString() << true;
    QTest::newRow("server") << "example.org" << true;
    QTest::newRow("account") << "ann@example.org" << true;
    QTest::newRow("this client") << "ann@example.org/Kirv" << true;
    QTest::newRow("another client") << "ann@example.org/phone" << false;
    QTest::newRow("resource of the server") << "example.org/x" << false;
    QTest::newRow("stranger") << "mallory@example.org/Kirv" << false;
    QTest::newRow("another server") << "example.net" << false;
}

void tst_XmppPendingRequests::serverIsKnown()
{
    QFETCH(QString, address);
    KirvXmppPendingRequests requests;
    requests.setAccount("ann@example.org/Kirv");
    QTEST(requests.isOwnServer(address), "isServer");
}

QTEST_APPLESS_MAIN(tst_XmppPendingRequests)
#include "tst_xmpp_pending_requests.moc"
