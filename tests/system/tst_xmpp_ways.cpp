// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_connection.h"
#include "protocols/xmpp/kirv_xmpp_server_link.h"
#include "tests/support/kirv_load_meter.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/servers/kirv_scripted_session_server.h"
#include "tests/support/servers/kirv_scripted_xmpp_server.h"
#include "tests/support/servers/kirv_xmpp_profile.h"
#include "tools/servers/kirv_prosody_server.h"

#include <QSignalSpy>
#include <QTest>
#include <memory>

Q_DECLARE_METATYPE(KirvXmppSettings::Encryption)
Q_DECLARE_METATYPE(KirvFailure::Kind)

namespace {

/// A server that refers everybody to \a address.
KirvScriptedXmppServer::Script referringTo(const QByteArray &address)
{
    return [address](const QByteArray &received) -> QByteArray {
        if (!received.contains("<stream:stream"))
            return QByteArray();
        return "<?xml version='1.0'?><stream:stream xmlns='jabber:client' "
               "xmlns:stream='http://etherx.jabber.org/streams' id='1' from='localhost' version='1.0'><stream:error>"
               "<see-other-host xmlns='urn:ietf:params:xml:ns:xmpp-streams'>"
            + address + "</see-other-host></stream:error></stream:stream>";
    };
}

} // namespace

/// The ways to servers that are elsewhere, or speak in another way, than the settings say; and how streams end.
class tst_XmppWays : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void directTlsLogsIn();
    void theOtherStartIsNamed_data();
    void theOtherStartIsNamed();
    void aSilentPortIsNoOtherStart();
    void serviceRecordsLeadToTheServer_data();
    void serviceRecordsLeadToTheServer();
    void aReferenceIsFollowed();
    void aReferenceToNowhereIsReported_data();
    void aReferenceToNowhereIsReported();
    void serversThatReferToOneAnotherAreLeft();
    void aLocalServerIsRefusedBeforeAnythingIsSent();
    void theServersWordsAreReported_data();
    void theServersWordsAreReported();

private:
    KirvXmppSettings settingsFor(const KirvProsodyServer &server) const;
    void logIn(const KirvXmppSettings &settings, const QString &id = "romeo@localhost");
    KirvFailure failure() const { return connection->lastFailure(); }

    std::unique_ptr<KirvXmppConnection> connection;
};

void tst_XmppWays::cleanup()
{
    connection.reset();
}

KirvXmppSettings tst_XmppWays::settingsFor(const KirvProsodyServer &server) const
{
    KirvXmppSettings settings;
    settings.server = server.host();
    settings.port = server.port();
    settings.certificatePath = server.certificatePath();
    return settings;
}

void tst_XmppWays::logIn(const KirvXmppSettings &settings, const QString &id)
{
    if (!connection)
        connection = std::make_unique<KirvXmppConnection>();
    connection->logIn({ id, "secret", settings.toFields() }, { "available", "Available", QString(), QString() });
}

void tst_XmppWays::directTlsLogsIn()
{
    KirvProsodyServer::Options options;
    options.encryptsAtOnce = true;
    KirvProsodyServer server(options);
    QVERIFY(KirvXmppProfile::start(server));
    KirvXmppSettings settings = settingsFor(server);
    settings.encryption = KirvXmppSettings::Direct;
    logIn(settings);
    QTRY_COMPARE_WITH_TIMEOUT(connection->state(), KirvConnection::Online, kirvPatience);
    QVERIFY(server.isOnline("romeo"));

    // It is no reason to trust a certificate.
    settings.certificatePath.clear();
    logIn(settings);
    QTRY_COMPARE_WITH_TIMEOUT(failure().kind(), KirvFailure::UntrustedCertificate, kirvPatience);
}

void tst_XmppWays::theOtherStartIsNamed_data()
{
    QTest::addColumn<bool>("encryptsAtOnce");
    QTest::addColumn<KirvXmppSettings::Encryption>("encryption");
    QTest::newRow("TLS at once, required") << true << KirvXmppSettings::Required;
    QTest::newRow("TLS at once, if offered") << true << KirvXmppSettings::IfOffered;
    QTest::newRow("TLS at once, none") << true << KirvXmppSettings::None;
    QTest::newRow("TLS later, direct") << false << KirvXmppSettings::Direct;
}

void tst_XmppWays::theOtherStartIsNamed()
{
    QFETCH(bool, encryptsAtOnce);
    QFETCH(KirvXmppSettings::Encryption, encryption);
    KirvProsodyServer::Options options;
    options.encryptsAtOnce = encryptsAtOnce;
    KirvProsodyServer server(options);
    QVERIFY(KirvXmppProfile::start(server));
    KirvXmppSettings settings = settingsFor(server);
    settings.encryption = encryption;
    logIn(settings);
    QTRY_VERIFY_WITH_TIMEOUT(failure().isFailure(), kirvPatience);
    QCOMPARE(failure().kind(), KirvFailure::BadSettings);
    QVERIFY2(failure().text().contains(QString::number(server.port())), qPrintable(failure().text()));
    QCOMPARE(failure().text().contains("does not start with encryption"), !encryptsAtOnce);
}

void tst_XmppWays::aSilentPortIsNoOtherStart()
{
    KirvScriptedXmppServer server([](const QByteArray &) { return QByteArray(); });
    KirvXmppSettings settings;
    settings.server = "127.0.0.1";
    settings.port = server.serverPort();
    settings.encryption = KirvXmppSettings::None;
    connection = std::make_unique<KirvXmppConnection>();
    logIn(settings);
    QTRY_VERIFY_WITH_TIMEOUT(server.connections() == 1, kirvPatience);
    server.hangUp();
    QTRY_COMPARE_WITH_TIMEOUT(server.connections(), 2, kirvPatience); // to find out
    server.hangUp();
    QTRY_COMPARE_WITH_TIMEOUT(failure().kind(), KirvFailure::ConnectionLost, kirvPatience);
}

void tst_XmppWays::serviceRecordsLeadToTheServer_data()
{
    QTest::addColumn<bool>("encryptsAtOnce");
    QTest::newRow("ordinary") << false;
    QTest::newRow("TLS at once") << true;
}

void tst_XmppWays::serviceRecordsLeadToTheServer()
{
    QFETCH(bool, encryptsAtOnce);
    KirvProsodyServer::Options options;
    options.encryptsAtOnce = encryptsAtOnce;
    KirvProsodyServer server(options);
    QVERIFY(KirvXmppProfile::start(server));
    QTcpServer closed;
    QVERIFY(closed.listen(QHostAddress::LocalHost));
    const int nobody = closed.serverPort();
    closed.close();

    QStringList names;
    const auto lookUp = [&](const QString &name, QObject *context,
                            const std::function<void(const QList<KirvXmppServiceRecord> &)> &receiver) {
        names << name;
        QList<KirvXmppServiceRecord> records { { "127.0.0.1", nobody, 10, 0 } };
        if (name.startsWith(encryptsAtOnce ? "_xmpps-client." : "_xmpp-client."))
            records << KirvXmppServiceRecord { "127.0.0.1", server.port(), 20, 0 };
        QMetaObject::invokeMethod(
            context, [=] { receiver(records); }, Qt::QueuedConnection);
    };
    const auto createLink = [&](KirvXmppLink::Purpose purpose, KirvClock &clock, int replyTimeout) -> KirvXmppLink * {
        return new KirvXmppRoute(purpose, clock, replyTimeout, KirvXmppServerLink::create, lookUp);
    };
    connection = std::make_unique<KirvXmppConnection>(KirvClock::system(), nullptr, createLink);
    KirvXmppSettings settings;
    settings.certificatePath = server.certificatePath();
    logIn(settings);
    QTRY_COMPARE_WITH_TIMEOUT(connection->state(), KirvConnection::Online, kirvPatience);
    QVERIFY(server.isOnline("romeo"));
    names.sort();
    QCOMPARE(names, QStringList({ "_xmpp-client._tcp.localhost", "_xmpps-client._tcp.localhost" }));
}

void tst_XmppWays::aReferenceIsFollowed()
{
    KirvProsodyServer server;
    QVERIFY(KirvXmppProfile::start(server));
    KirvScriptedXmppServer referring(referringTo("127.0.0.1:" + QByteArray::number(server.port())));
    KirvXmppSettings settings = settingsFor(server);
    settings.port = referring.serverPort();
    logIn(settings);
    QTRY_COMPARE_WITH_TIMEOUT(connection->state(), KirvConnection::Online, kirvPatience);
    QVERIFY(server.isOnline("romeo"));
    QCOMPARE(referring.connections(), 1);
    QVERIFY(!connection->lastFailure().isFailure());
}

void tst_XmppWays::aReferenceToNowhereIsReported_data()
{
    QTest::addColumn<QByteArray>("address");
    for (const char *address : { "", " ", ":5222", "a b", "user@host", "host/path", "host:port", "[::1" })
        QTest::newRow(address) << QByteArray(address);
}

void tst_XmppWays::aReferenceToNowhereIsReported()
{
    QFETCH(QByteArray, address);
    KirvScriptedXmppServer referring(referringTo(address));
    KirvXmppSettings settings;
    settings.server = "127.0.0.1";
    settings.port = referring.serverPort();
    logIn(settings);
    QTRY_COMPARE_WITH_TIMEOUT(failure().kind(), KirvFailure::ServerShutDown, kirvPatience);
    QVERIFY(!failure().detail().isEmpty());
    QCOMPARE(referring.connections(), 1);
}

void tst_XmppWays::serversThatReferToOneAnotherAreLeft()
{
    QByteArray address;
    KirvScriptedXmppServer referring([&address](const QByteArray &received) { return referringTo(address)(received); });
    address = "127.0.0.1:" + QByteArray::number(referring.serverPort());
    KirvXmppSettings settings;
    settings.server = "127.0.0.1";
    settings.port = referring.serverPort();
    logIn(settings);
    KirvLoadMeter meter;
    QVERIFY(meter.runUntil([this] { return failure().isFailure(); }));
    meter.report(referring.received().size());
    QCOMPARE(failure().kind(), KirvFailure::ServiceUnavailable);
    QCOMPARE(referring.connections(), 1 + KirvXmppRoute::mostReferences);
}

/// Whoever is there receives nothing of what a server outside wanted it to receive.
void tst_XmppWays::aLocalServerIsRefusedBeforeAnythingIsSent()
{
    KirvScriptedXmppServer server([](const QByteArray &) { return QByteArray(); });
    KirvXmppServerLink link(KirvXmppLink::LogIn, KirvClock::system(), 1000);
    link.refuseLocalServers();
    QSignalSpy ended(&link, &KirvXmppLink::ended);
    QXmppConfiguration configuration;
    configuration.setJid("ann@localhost");
    configuration.setHost("127.0.0.1");
    configuration.setPort(server.serverPort());
    link.open(configuration, QXmppPresence());
    QTRY_COMPARE_WITH_TIMEOUT(ended.size(), 1, kirvPatience);
    QTRY_COMPARE_WITH_TIMEOUT(server.connections(), 1, kirvPatience);
    const auto failure = ended[0][0].value<KirvFailure>();
    QVERIFY2(failure.detail().contains("private network"), qPrintable(failure.text()));
    QTRY_COMPARE_WITH_TIMEOUT(server.open(), 0, kirvPatience);
    QCOMPARE(server.received(), QByteArray());
}

void tst_XmppWays::theServersWordsAreReported_data()
{
    QTest::addColumn<QByteArray>("condition");
    QTest::addColumn<QByteArray>("words");
    QTest::addColumn<KirvFailure::Kind>("kind");
    QTest::newRow("conflict") << QByteArray("conflict") << QByteArray() << KirvFailure::LoggedInElsewhere;
    QTest::newRow("conflict with words") << QByteArray("conflict") << QByteArray("Replaced by new connection")
                                         << KirvFailure::LoggedInElsewhere;
    QTest::newRow("ban as a conflict") << QByteArray("conflict") << QByteArray("Banned for spam.")
                                       << KirvFailure::AccessDenied;
    QTest::newRow("ban") << QByteArray("policy-violation") << QByteArray("Banned for spam.")
                         << KirvFailure::AccessDenied;
    QTest::newRow("deleted") << QByteArray("not-authorized") << QByteArray("Account deleted")
                             << KirvFailure::AccessDenied;
    QTest::newRow("shut down") << QByteArray("system-shutdown") << QByteArray("Back at noon.")
                               << KirvFailure::ServerShutDown;
}

void tst_XmppWays::theServersWordsAreReported()
{
    QFETCH(QByteArray, condition);
    QFETCH(QByteArray, words);
    QFETCH(KirvFailure::Kind, kind);
    KirvScriptedSessionServer server;
    KirvXmppSettings settings;
    settings.server = "127.0.0.1";
    settings.port = server.serverPort();
    settings.encryption = KirvXmppSettings::None;
    logIn(settings, "ann@localhost");
    QTRY_COMPARE_WITH_TIMEOUT(connection->state(), KirvConnection::Online, kirvPatience);
    const QByteArray text = "<text xmlns='urn:ietf:params:xml:ns:xmpp-streams'>" + words + "</text>";
    server.say("<stream:error><" + condition + " xmlns='urn:ietf:params:xml:ns:xmpp-streams'/>"
               + (words.isEmpty() ? QByteArray() : text) + "</stream:error></stream:stream>");
    QTRY_COMPARE_WITH_TIMEOUT(failure().kind(), kind, kirvPatience);
    QVERIFY2(failure().text().contains(words), qPrintable(failure().text()));
}

QTEST_GUILESS_MAIN(tst_XmppWays)
#include "tst_xmpp_ways.moc"
