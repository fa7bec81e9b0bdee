// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/irc/kirv_irc_connection.h"
#include "protocols/xmpp/kirv_xmpp_connection.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/servers/kirv_test_certificates.h"
#include "tests/support/servers/kirv_tls_irc_server.h"
#include "tests/support/servers/kirv_xmpp_profile.h"
#include "tools/servers/kirv_prosody_server.h"

#include <QSignalSpy>
#include <QSslConfiguration>
#include <QTest>
#include <memory>

namespace {

const KirvPresence available(QStringLiteral("available"), QStringLiteral("Available"), QString());

QByteArray welcome(const QByteArray &line)
{
    return line.startsWith("USER ") ? ":server 001 alice :Welcome\r\n" : "";
}

} // namespace

/// What the protocols make of the certificates of their servers.
class tst_ServerCertificates : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void everyProblemIsNamed_data();
    void everyProblemIsNamed();
    void theTrustedOneIsUsedWhateverIsWrongWithIt_data() { everyProblemIsNamed_data(); }
    void theTrustedOneIsUsedWhateverIsWrongWithIt();
    void theOneThatWasTrustedVouchesForNoOther_data() { protocols(); }
    void theOneThatWasTrustedVouchesForNoOther();
    void anotherOneIsRefused_data() { protocols(); }
    void anotherOneIsRefused();
    void anotherOneThatTheSystemTrustsIsRefused_data() { protocols(); }
    void anotherOneThatTheSystemTrustsIsRefused();
    void oneThatTheSystemTrustsIsUsed_data() { protocols(); }
    void oneThatTheSystemTrustsIsUsed();
    void theTrustedOneIsUsedWhenTheSystemTrustsItToo_data() { protocols(); }
    void theTrustedOneIsUsedWhenTheSystemTrustsItToo();
    void theRefusedOneIsForgottenWithTheNextLogin();
    void aSessionGoesOnWithTheTrustedOne_data();
    void aSessionGoesOnWithTheTrustedOne();

private:
    static void protocols();
    void trustAuthority();
    void serve(const QString &certificate);
    void logIn(bool isXmpp, const QByteArray &trusted = QByteArray());
    bool isRefused() const { return connection->lastFailure().kind() == KirvFailure::UntrustedCertificate; }

    const QSslConfiguration untouched = QSslConfiguration::defaultConfiguration();
    KirvTestCertificates certificates;
    std::unique_ptr<KirvTlsIrcServer> server;
    std::unique_ptr<KirvConnection> connection;
};

void tst_ServerCertificates::protocols()
{
    QTest::addColumn<bool>("isXmpp");
    QTest::newRow("XMPP") << true;
    QTest::newRow("IRC") << false;
}

void tst_ServerCertificates::initTestCase()
{
    qRegisterMetaType<KirvConnection::State>("KirvConnection::State");
    using Wish = KirvTestCertificates::Wish;
    Wish authority;
    authority.subject = "/O=Authority";
    authority.names = "DNS:authority.test";
    authority.isAuthority = true;
    QVERIFY(certificates.make("authority", authority));
    QVERIFY(certificates.make("self-signed", Wish()));
    QVERIFY(certificates.make("self-signed-too", Wish()));
    Wish wish;
    wish.issuer = "authority";
    QVERIFY(certificates.make("issued", wish));
    wish = Wish();
    wish.names = "DNS:other.test,DNS:more.test";
    wish.subject = "/CN=other.test/O=Others";
    QVERIFY(certificates.make("other-host", wish));
    wish = Wish();
    wish.from = -30;
    wish.until = -2;
    QVERIFY(certificates.make("expired", wish));
    wish.names = "DNS:other.test";
    wish.subject = "/CN=other.test";
    QVERIFY(certificates.make("expired-other-host", wish));
    wish = Wish();
    wish.from = 2;
    QVERIFY(certificates.make("early", wish));
    wish = Wish();
    wish.isAuthority = true;
    QVERIFY(certificates.make("issuing", wish));
    wish = Wish();
    wish.issuer = "issuing";
    QVERIFY(certificates.make("issued-by-it", wish));
}

void tst_ServerCertificates::cleanup()
{
    connection.reset();
    server.reset();
    QSslConfiguration::setDefaultConfiguration(untouched);
}

void tst_ServerCertificates::serve(const QString &certificate)
{
    const quint16 port = server ? server->serverPort() : 0;
    server.reset();
    server = std::make_unique<KirvTlsIrcServer>(certificates.certificate(certificate), certificates.key(certificate),
                                                welcome);
    if (port != 0) {
        server->close();
        QVERIFY(server->listen(QHostAddress::LocalHost, port));
    }
}

/// XMPP with TLS from the first byte, as IRC has it.
void tst_ServerCertificates::logIn(bool isXmpp, const QByteArray &trusted)
{
    KirvLogin login;
    const QMap<QString, QString> values { { "server", "127.0.0.1" },
                                          { "port", QString::number(server->serverPort()) },
                                          { "encryption", isXmpp ? "direct" : "required" } };
    if (isXmpp)
        login = { "romeo@localhost", "secret", KirvPluginProfile::withValues(KirvXmppSettings().toFields(), values) };
    else
        login = { "alice", QString(), KirvPluginProfile::withValues(KirvIrcSettings::defaultFields(), values) };
    login.trustedCertificate = trusted;
    connection.reset();
    if (isXmpp)
        connection = std::make_unique<KirvXmppConnection>();
    else
        connection = std::make_unique<KirvIrcConnection>();
    connection->logIn(login, available);
}

void tst_ServerCertificates::everyProblemIsNamed_data()
{
    QTest::addColumn<bool>("isXmpp");
    QTest::addColumn<QString>("certificate");
    QTest::addColumn<QStringList>("problems"); // how they begin
    const QString selfSigned = "It is self-signed", otherHost = "It is for other.test", expired = "It has expired",
                  early = "It is not valid before", unknown = "It is not from an authority";
    for (const bool isXmpp : { true, false }) {
        const auto add = [isXmpp](const QString &certificate, const QStringList &problems) {
            QTest::addRow("%s, %s", isXmpp ? "XMPP" : "IRC", qPrintable(certificate))
                << isXmpp << certificate << problems;
        };
        add("self-signed", { selfSigned });
        add("issued", { unknown });
        add("other-host", { selfSigned, otherHost });
        add("expired", { selfSigned, expired });
        add("early", { selfSigned, early });
        add("expired-other-host", { selfSigned, expired, otherHost });
    }
}

void tst_ServerCertificates::everyProblemIsNamed()
{
    QFETCH(bool, isXmpp);
    QFETCH(QString, certificate);
    QFETCH(QStringList, problems);
    serve(certificate);
    logIn(isXmpp);
    QStringList order;
    connect(connection.get(), &KirvConnection::certificateRefused, this,
            [&](const KirvServerCertificate &refused) { order << "refused " + refused.host; });
    connect(connection.get(), &KirvConnection::failed, this, [&] { order << "failed"; });
    KIRV_TRY(isRefused());
    QCOMPARE(order, QStringList({ isXmpp ? "refused localhost" : "refused 127.0.0.1", "failed" }));
    QCOMPARE(connection->state(), KirvConnection::Offline);
    QVERIFY(!server->wasSpokenTo());

    const KirvServerCertificate &refused = connection->refusedCertificate();
    const QSslCertificate shown = certificates.read(certificate);
    QCOMPARE(refused.fingerprint, certificates.digest(certificate));
    QCOMPARE(refused.validUntil, shown.expiryDate());
    QCOMPARE(refused.isSelfIssued, certificate != "issued");
    QCOMPARE(refused.issuer.contains("Authority"), certificate == "issued");
    QCOMPARE(refused.problems.size(), problems.size());
    for (const QString &problem : problems) {
        QVERIFY2(!refused.problems.filter(problem).isEmpty(), qPrintable(refused.problems.join('\n')));
        QVERIFY2(connection->lastFailure().text().contains(problem), qPrintable(connection->lastFailure().text()));
    }
    QVERIFY(connection->pinnedCertificate().isNull());
}

void tst_ServerCertificates::theTrustedOneIsUsedWhateverIsWrongWithIt()
{
    QFETCH(bool, isXmpp);
    QFETCH(QString, certificate);
    QFETCH(QStringList, problems);
    serve(certificate);
    logIn(isXmpp, certificates.digest(certificate));
    QSignalSpy refused(connection.get(), &KirvConnection::certificateRefused);
    KIRV_TRY(server->wasSpokenTo());
    QCOMPARE(refused.size(), 0);
    QVERIFY(connection->refusedCertificate().isNull());
    if (isXmpp)
        return; // aSessionGoesOnWithTheTrustedOne() has a server that says more
    KIRV_TRY(connection->isLoggedIn());
    QCOMPARE(connection->pinnedCertificate().fingerprint, certificates.digest(certificate));
    QCOMPARE(connection->pinnedCertificate().problems.size(), problems.size());
}

/// Nor does it where the server sends it along.
void tst_ServerCertificates::theOneThatWasTrustedVouchesForNoOther()
{
    QFETCH(bool, isXmpp);
    for (const bool isSentAlong : { false, true }) {
        if (isSentAlong) {
            QFile issuer(certificates.certificate("issuing")), chain(certificates.certificate("issued-by-it"));
            QVERIFY(issuer.open(QIODevice::ReadOnly) && chain.open(QIODevice::Append));
            chain.write(issuer.readAll());
        }
        serve("issued-by-it");
        logIn(isXmpp, certificates.digest("issuing"));
        KIRV_TRY(isRefused());
        QVERIFY(!server->wasSpokenTo());
        QCOMPARE(connection->refusedCertificate().fingerprint, certificates.digest("issued-by-it"));
    }
}

void tst_ServerCertificates::anotherOneIsRefused()
{
    QFETCH(bool, isXmpp);
    serve("self-signed-too");
    logIn(isXmpp, certificates.digest("self-signed"));
    KIRV_TRY(isRefused());
    QVERIFY(!server->wasSpokenTo());
    QCOMPARE(connection->login().trustedCertificate, certificates.digest("self-signed"));
    QCOMPARE(connection->refusedCertificate().fingerprint, certificates.digest("self-signed-too"));
}

void tst_ServerCertificates::trustAuthority()
{
    QSslConfiguration system = untouched;
    system.addCaCertificate(certificates.read("authority"));
    QSslConfiguration::setDefaultConfiguration(system);
}

void tst_ServerCertificates::anotherOneThatTheSystemTrustsIsRefused()
{
    QFETCH(bool, isXmpp);
    trustAuthority();
    serve("issued");
    logIn(isXmpp, certificates.digest("self-signed"));
    QSignalSpy refused(connection.get(), &KirvConnection::certificateRefused);
    KIRV_TRY(isRefused());
    QCOMPARE(refused.size(), 1);
    QCOMPARE(connection->refusedCertificate().fingerprint, certificates.digest("issued"));
    QCOMPARE(connection->refusedCertificate().problems, QStringList());
    QVERIFY(connection->pinnedCertificate().isNull());
    // XMPP has begun its stream by then, as the library does so first.
    QVERIFY(isXmpp || !server->wasSpokenTo());
}

void tst_ServerCertificates::oneThatTheSystemTrustsIsUsed()
{
    QFETCH(bool, isXmpp);
    trustAuthority();
    serve("issued");
    logIn(isXmpp);
    QSignalSpy refused(connection.get(), &KirvConnection::certificateRefused);
    KIRV_TRY(server->wasSpokenTo());
    QCOMPARE(refused.size(), 0);
    QVERIFY(isXmpp || connection->pinnedCertificate().isNull());
}

void tst_ServerCertificates::theTrustedOneIsUsedWhenTheSystemTrustsItToo()
{
    QFETCH(bool, isXmpp);
    trustAuthority();
    serve("issued");
    logIn(isXmpp, certificates.digest("issued"));
    QSignalSpy refused(connection.get(), &KirvConnection::certificateRefused);
    KIRV_TRY(server->wasSpokenTo());
    QCOMPARE(refused.size(), 0);
}

void tst_ServerCertificates::theRefusedOneIsForgottenWithTheNextLogin()
{
    serve("self-signed");
    logIn(false);
    KIRV_TRY(isRefused());
    QVERIFY(!connection->refusedCertificate().isNull());
    KirvLogin trusting = connection->login();
    trusting.trustedCertificate = connection->refusedCertificate().fingerprint;
    connection->logIn(trusting, available);
    QVERIFY(connection->refusedCertificate().isNull());
    KIRV_TRY(connection->isLoggedIn());
    QVERIFY(!connection->pinnedCertificate().isNull());
    connection->drop();
    QVERIFY(connection->pinnedCertificate().isNull());
}

void tst_ServerCertificates::aSessionGoesOnWithTheTrustedOne_data()
{
    QTest::addColumn<bool>("encryptsAtOnce");
    QTest::newRow("STARTTLS") << false;
    QTest::newRow("direct TLS") << true;
}

/// A real XMPP server, which gets another certificate.
void tst_ServerCertificates::aSessionGoesOnWithTheTrustedOne()
{
    QFETCH(bool, encryptsAtOnce);
    KirvProsodyServer::Options options;
    options.encryptsAtOnce = encryptsAtOnce;
    KirvProsodyServer prosody(options);
    QVERIFY(KirvXmppProfile::start(prosody));
    KirvXmppSettings settings;
    settings.server = prosody.host();
    settings.port = prosody.port();
    settings.encryption = encryptsAtOnce ? KirvXmppSettings::Direct : KirvXmppSettings::Required;
    connection = std::make_unique<KirvXmppConnection>();
    KirvLogin login { "romeo@localhost", "secret", settings.toFields() };
    connection->logIn(login, available);
    KIRV_TRY(isRefused());
    login.trustedCertificate = connection->refusedCertificate().fingerprint;
    connection->logIn(login, available);
    KIRV_TRY(connection->isLoggedIn());
    QCOMPARE(connection->pinnedCertificate().fingerprint, login.trustedCertificate);
    QVERIFY(!connection->securityText().isEmpty());

    connection->drop();
    prosody.stop();
    QVERIFY(QFile::remove(prosody.certificatePath()));
    QVERIFY2(prosody.start(), qPrintable(prosody.errorString()));
    connection->logIn(login, available);
    KIRV_TRY(isRefused());
    QVERIFY(connection->refusedCertificate().fingerprint != login.trustedCertificate);
}

QTEST_GUILESS_MAIN(tst_ServerCertificates)
#include "tst_server_certificates.moc"
