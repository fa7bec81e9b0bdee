// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_connection.h"
#include "protocols/xmpp/kirv_xmpp_registration_request.h"
#include "tests/support/fakes/kirv_fake_clock.h"
#include "tests/support/kirv_look_ups.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/servers/kirv_failing_proxies.h"
#include "tests/support/servers/kirv_scripted_xmpp_server.h"
#include "tests/support/servers/kirv_tls_irc_server.h"
#include "tests/support/servers/kirv_xmpp_profile.h"
#include "tools/servers/kirv_prosody_server.h"

#include <QSignalSpy>
#include <QTest>
#include <memory>

using Proxy = KirvScriptedProxy;

namespace {

const KirvPresence available("available", "Available", QString(), QString());

KirvProxy settingsFor(const Proxy &proxy, Proxy::Kind kind)
{
    KirvProxy settings;
    settings.kind = kind == Proxy::Http ? KirvProxy::Http : KirvProxy::Socks5;
    settings.host = "127.0.0.1";
    settings.port = proxy.serverPort();
    return settings;
}

} // namespace

/// XMPP through proxies: a real server behind scripted ones, and proxies that fail.
class tst_XmppProxy : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void logsIn_data();
    void logsIn();
    void directTlsLogsIn();
    void theServerProvesItsDomain();
    void theProxyOfTheSystemIsUsed();
    void aSessionThatIsLostReturnsThroughTheProxy();
    void thePasswordIsChangedThroughTheProxy();
    void registersThroughTheProxy();
    void theConfigurationsOfARegistrationKeepTheProxy();

    void aFailingProxyIsNotAvoided_data();
    void aFailingProxyIsNotAvoided();
    void aProxyThatIsNotThereIsNotAvoided_data();
    void aProxyThatIsNotThereIsNotAvoided();
    void aSilentProxyIsNotAvoided_data();
    void aSilentProxyIsNotAvoided();
    void aWrongLogInIsTold_data();
    void aWrongLogInIsTold();
    void aFailingProxyIsTriedAgain();
    void aServerNameCannotForgeHeaders();
    void thePasswordIsStoredAsASecret();

private:
    void logIn(const KirvXmppSettings &settings, const QString &id = "romeo@localhost",
               KirvClock &clock = KirvClock::system());
    KirvFailure failure() const { return connection->lastFailure(); }

    std::unique_ptr<KirvXmppConnection> connection;
};

void tst_XmppProxy::cleanup()
{
    connection.reset();
}

void tst_XmppProxy::logIn(const KirvXmppSettings &settings, const QString &id, KirvClock &clock)
{
    kirvTakeLookUps();
    connection = std::make_unique<KirvXmppConnection>(clock);
    KirvConnection::Timing timing;
    timing.backOff.first = timing.backOff.last = 50;
    connection->setTiming(timing);
    connection->logIn({ id, "secret", settings.toFields() }, available);
}

void tst_XmppProxy::logsIn_data()
{
    QTest::addColumn<Proxy::Kind>("kind");
    QTest::addColumn<bool>("requiresLogIn");
    QTest::addColumn<QString>("server");
    QTest::addColumn<QString>("requested");
    QTest::newRow("SOCKS5") << Proxy::Socks5 << false << ""
                            << "localhost:5222";
    QTest::newRow("SOCKS5, a server is given") << Proxy::Socks5 << false << "some.example"
                                               << "some.example:5222";
    QTest::newRow("SOCKS5, log-in") << Proxy::Socks5 << true << ""
                                    << "localhost:5222";
    QTest::newRow("HTTP") << Proxy::Http << false << ""
                          << "localhost:5222";
    QTest::newRow("HTTP, a server is given") << Proxy::Http << false << "some.example"
                                             << "some.example:5222";
    QTest::newRow("HTTP, log-in") << Proxy::Http << true << ""
                                  << "localhost:5222";
}

void tst_XmppProxy::logsIn()
{
    QFETCH(Proxy::Kind, kind);
    QFETCH(bool, requiresLogIn);
    QFETCH(QString, server);
    QFETCH(QString, requested);
    KirvProsodyServer prosody;
    QVERIFY(KirvXmppProfile::start(prosody));
    Proxy proxy(kind, prosody.port());
    KirvXmppSettings settings;
    settings.server = server;
    settings.certificatePath = prosody.certificatePath();
    settings.proxy = settingsFor(proxy, kind);
    if (requiresLogIn) {
        proxy.requireLogIn("ann", "pass word");
        settings.proxy.user = "ann";
        settings.proxy.password = "pass word";
    }
    logIn(settings);
    QTRY_COMPARE_WITH_TIMEOUT(connection->state(), KirvConnection::Online, kirvPatience);
    QVERIFY(prosody.isOnline("romeo"));
    QCOMPARE(proxy.requested(), QStringList { requested });
    QCOMPARE(proxy.logIns().isEmpty(), !requiresLogIn);
    QCOMPARE(kirvTakeLookUps(), QStringList());
}

void tst_XmppProxy::directTlsLogsIn()
{
    KirvProsodyServer::Options options;
    options.encryptsAtOnce = true;
    KirvProsodyServer prosody(options);
    QVERIFY(KirvXmppProfile::start(prosody));
    Proxy proxy(Proxy::Socks5, prosody.port());
    KirvXmppSettings settings;
    settings.encryption = KirvXmppSettings::Direct;
    settings.certificatePath = prosody.certificatePath();
    settings.proxy = settingsFor(proxy, Proxy::Socks5);
    logIn(settings);
    QTRY_COMPARE_WITH_TIMEOUT(connection->state(), KirvConnection::Online, kirvPatience);
    QCOMPARE(proxy.requested(), QStringList { "localhost:5223" });
}

void tst_XmppProxy::theServerProvesItsDomain()
{
    KirvProsodyServer prosody; // for its certificate, which is for "localhost"
    QVERIFY(KirvXmppProfile::start(prosody));
    KirvTlsIrcServer server(prosody.certificatePath(), prosody.folder() + "/localhost.key",
                            [](const QByteArray &) { return QByteArray(); });
    Proxy proxy(Proxy::Socks5, server.serverPort());
    KirvXmppSettings settings;
    settings.server = "localhost";
    settings.encryption = KirvXmppSettings::Direct;
    settings.certificatePath = prosody.certificatePath();
    settings.proxy = settingsFor(proxy, Proxy::Socks5);
    logIn(settings, "romeo@domain.example");
    QTRY_VERIFY_WITH_TIMEOUT(failure().isFailure(), kirvPatience);
    QVERIFY2(failure().kind() == KirvFailure::UntrustedCertificate, qPrintable(failure().text()));
    QVERIFY2(failure().text().contains("not for domain.example"), qPrintable(failure().text()));
    QCOMPARE(proxy.requested(), QStringList { "localhost:5223" });
}

void tst_XmppProxy::theProxyOfTheSystemIsUsed()
{
    KirvProsodyServer prosody;
    QVERIFY(KirvXmppProfile::start(prosody));
    Proxy proxy(Proxy::Socks5, prosody.port());
    KirvXmppSettings settings;
    settings.server = "some.example";
    settings.certificatePath = prosody.certificatePath();
    settings.proxy.kind = KirvProxy::System;
    qputenv("all_proxy", "socks5h://127.0.0.1:" + QByteArray::number(proxy.serverPort()));
    logIn(settings);
    QTRY_COMPARE_WITH_TIMEOUT(connection->state(), KirvConnection::Online, kirvPatience);
    QCOMPARE(proxy.requested(), QStringList { "some.example:5222" });
    QCOMPARE(kirvTakeLookUps(), QStringList());

    // "None" is none, whatever the system says.
    settings.proxy.kind = KirvProxy::None;
    settings.server = prosody.host();
    settings.port = prosody.port();
    logIn(settings);
    QTRY_COMPARE_WITH_TIMEOUT(connection->state(), KirvConnection::Online, kirvPatience);
    QCOMPARE(proxy.connections(), 1);
    qunsetenv("all_proxy");
}

void tst_XmppProxy::aSessionThatIsLostReturnsThroughTheProxy()
{
    KirvProsodyServer prosody;
    QVERIFY(KirvXmppProfile::start(prosody));
    Proxy proxy(Proxy::Http, prosody.port());
    KirvXmppSettings settings;
    settings.certificatePath = prosody.certificatePath();
    settings.proxy = settingsFor(proxy, Proxy::Http);
    logIn(settings);
    QTRY_COMPARE_WITH_TIMEOUT(connection->state(), KirvConnection::Online, kirvPatience);
    QSignalSpy failures(connection.get(), &KirvConnection::failed);
    proxy.hangUp();
    QTRY_COMPARE_WITH_TIMEOUT(failures.size(), 1, kirvPatience);
    QCOMPARE(failures.first().first().value<KirvFailure>().kind(), KirvFailure::ConnectionLost);
    QTRY_COMPARE_WITH_TIMEOUT(connection->state(), KirvConnection::Online, kirvPatience);
    QCOMPARE(proxy.requested(), QStringList({ "localhost:5222", "localhost:5222" }));
    QCOMPARE(kirvTakeLookUps(), QStringList());
}

void tst_XmppProxy::thePasswordIsChangedThroughTheProxy()
{
    KirvProsodyServer prosody;
    QVERIFY(KirvXmppProfile::start(prosody));
    Proxy proxy(Proxy::Socks5, prosody.port());
    KirvXmppSettings settings;
    settings.certificatePath = prosody.certificatePath();
    settings.proxy = settingsFor(proxy, Proxy::Socks5);
    logIn(settings);
    QTRY_COMPARE_WITH_TIMEOUT(connection->state(), KirvConnection::Online, kirvPatience);
    int replies = 0;
    const auto count = [&replies](const KirvFailure &failure) { replies += failure.isFailure() ? 100 : 1; };
    connection->changePassword("another", count);
    QTRY_COMPARE_WITH_TIMEOUT(replies, 1, kirvPatience);
    connection->deleteOnServer(count);
    QTRY_COMPARE_WITH_TIMEOUT(replies, 2, kirvPatience);
    QVERIFY(!prosody.hasUser("romeo"));
    QCOMPARE(proxy.connections(), 1);
    QCOMPARE(kirvTakeLookUps(), QStringList());
}

void tst_XmppProxy::registersThroughTheProxy()
{
    qRegisterMetaType<KirvServerRequest::Step>("KirvServerRequest::Step");
    qRegisterMetaType<KirvServerRequest::Result>("KirvServerRequest::Result");
    KirvProsodyServer prosody;
    QVERIFY(KirvXmppProfile::start(prosody));
    Proxy proxy(Proxy::Socks5, prosody.port());
    proxy.requireLogIn("ann", "word");
    kirvTakeLookUps();
    KirvXmppRegistrationRequest request;
    QSignalSpy steps(&request, &KirvServerRequest::stepReady);
    QSignalSpy done(&request, &KirvServerRequest::succeeded);
    request.start();
    QCOMPARE(steps.size(), 1);
    const auto fill = [&steps](const QMap<QString, QString> &values) {
        return KirvPluginProfile::withValues(steps.last().first().value<KirvServerRequest::Step>().fields, values);
    };
    request.submit(fill({ { "domain", "localhost" },
                          { "certificate", prosody.certificatePath() },
                          { "proxy", "socks5" },
                          { "proxy_host", "127.0.0.1" },
                          { "proxy_port", QString::number(proxy.serverPort()) },
                          { "proxy_user", "ann" },
                          { "proxy_password", "word" } }));
    QTRY_COMPARE_WITH_TIMEOUT(steps.size(), 2, kirvPatience);
    request.submit(fill({ { "username", "juliet" }, { "password", "secret" } }));
    QTRY_COMPARE_WITH_TIMEOUT(done.size(), 1, kirvPatience);
    QVERIFY(prosody.hasUser("juliet"));
    QCOMPARE(proxy.requested(), QStringList { "localhost:5222" });
    QCOMPARE(kirvTakeLookUps(), QStringList());

    // The new account goes the same way.
    const KirvLogin account = done.first().first().value<KirvServerRequest::Result>().account;
    const KirvProxy kept(account.settings);
    QCOMPARE(kept.kind, KirvProxy::Socks5);
    QCOMPARE(kept.port, int(proxy.serverPort()));
    QCOMPARE(kept.password, QString("word"));
}

void tst_XmppProxy::theConfigurationsOfARegistrationKeepTheProxy()
{
    KirvXmppRegistrationRequest request;
    KirvProxy proxy;
    proxy.kind = KirvProxy::Http;
    proxy.host = "proxy.example";
    for (const QString &name : KirvXmppSettings::configurations()) {
        const KirvProxy kept(request.fieldsOf(name, proxy.toFields()));
        QCOMPARE(kept.kind, KirvProxy::Http);
        QCOMPARE(kept.host, proxy.host);
    }
}

void tst_XmppProxy::aFailingProxyIsNotAvoided_data()
{
    kirvAddFailingProxies();
}

void tst_XmppProxy::aFailingProxyIsNotAvoided()
{
    QFETCH(Proxy::Kind, kind);
    QFETCH(Proxy::Behaviour, behaviour);
    QFETCH(KirvFailure::Kind, failing);
    KirvScriptedXmppServer server;
    Proxy proxy(kind, server.serverPort(), behaviour);
    for (const QString &host : { QString("localhost"), QString() }) {
        KirvXmppSettings settings;
        settings.server = host;
        settings.port = host.isEmpty() ? KirvXmppSettings::defaultPort : server.serverPort();
        settings.proxy = settingsFor(proxy, kind);
        logIn(settings);
        kirvVerifyFailingProxy(*connection, proxy, failing);
        if (QTest::currentTestFailed())
            return;
        QCOMPARE(server.connections(), 0);
        QCOMPARE(kirvTakeLookUps(), QStringList());
    }
}

void tst_XmppProxy::aProxyThatIsNotThereIsNotAvoided_data()
{
    kirvAddMissingProxies();
}

void tst_XmppProxy::aProxyThatIsNotThereIsNotAvoided()
{
    QFETCH(Proxy::Kind, kind);
    QFETCH(QString, host);
    KirvScriptedXmppServer server;
    auto proxy = std::make_unique<Proxy>(kind, server.serverPort());
    KirvXmppSettings settings;
    settings.server = "localhost";
    settings.port = server.serverPort();
    settings.proxy = settingsFor(*proxy, kind);
    settings.proxy.host = host;
    proxy.reset();
    logIn(settings);
    kirvVerifyMissingProxy(*connection, host, settings.proxy.port);
    QCOMPARE(server.connections(), 0);
    QStringList names = kirvTakeLookUps();
    names.removeAll(kirvNoProxyHere); // its own name has to be looked up
    QCOMPARE(names, QStringList());
}

void tst_XmppProxy::aSilentProxyIsNotAvoided_data()
{
    kirvAddKindsOfProxies();
}

void tst_XmppProxy::aSilentProxyIsNotAvoided()
{
    QFETCH(Proxy::Kind, kind);
    KirvScriptedXmppServer server;
    Proxy proxy(kind, server.serverPort(), Proxy::Hangs);
    KirvXmppSettings settings;
    settings.server = "localhost";
    settings.port = server.serverPort();
    settings.proxy = settingsFor(proxy, kind);
    KirvFakeClock clock;
    logIn(settings, "romeo@localhost", clock);
    kirvVerifySilentProxy(*connection, proxy, clock);
    QCOMPARE(server.connections(), 0);
    QCOMPARE(kirvTakeLookUps(), QStringList());
    connection.reset();
}

void tst_XmppProxy::aWrongLogInIsTold_data()
{
    QTest::addColumn<Proxy::Kind>("kind");
    QTest::addColumn<QString>("user");
    QTest::addColumn<QByteArray>("challenge");
    QTest::addColumn<KirvFailure::Kind>("failing");
    const QByteArray basic = "Basic realm=\"proxy\"";
    const auto row = [](const char *name, Proxy::Kind kind, const QString &user, const QByteArray &challenge,
                        KirvFailure::Kind failing = KirvFailure::ProxyLoginRefused) {
        QTest::newRow(name) << kind << user << challenge << failing;
    };
    row("SOCKS5, none", Proxy::Socks5, "", basic);
    row("SOCKS5, wrong", Proxy::Socks5, "eve", basic);
    row("HTTP, none", Proxy::Http, "", basic);
    row("HTTP, wrong", Proxy::Http, "eve", basic);
    row("HTTP, Digest", Proxy::Http, "eve", "Digest realm=\"proxy\", nonce=\"1\"");
    row("HTTP, Negotiate", Proxy::Http, "eve", "Negotiate", KirvFailure::ProxyFailed);
    row("HTTP, unknown", Proxy::Http, "eve", "Unheard", KirvFailure::ProxyFailed);
}

void tst_XmppProxy::aWrongLogInIsTold()
{
    QFETCH(Proxy::Kind, kind);
    QFETCH(QString, user);
    QFETCH(QByteArray, challenge);
    QFETCH(KirvFailure::Kind, failing);
    KirvScriptedXmppServer server;
    Proxy proxy(kind, server.serverPort());
    proxy.requireLogIn("ann", "word", challenge);
    KirvXmppSettings settings;
    settings.server = "localhost";
    settings.port = server.serverPort();
    settings.proxy = settingsFor(proxy, kind);
    settings.proxy.user = user;
    settings.proxy.password = user.isEmpty() ? "" : "word";
    logIn(settings);
    QTRY_VERIFY_WITH_TIMEOUT(failure().isFailure(), kirvPatience);
    QVERIFY2(failure().kind() == failing, qPrintable(failure().text()));
    if (failing == KirvFailure::ProxyLoginRefused)
        QCOMPARE(connection->state(), KirvConnection::Offline); // it stays wrong
    QVERIFY(proxy.logIns().size() <= 2);
    QCOMPARE(server.connections(), 0);
    // With Kerberos the library looks the proxy up once more, for the name of the service.
    QStringList names = kirvTakeLookUps();
    names.removeAll(settings.proxy.host);
    QVERIFY2(names.isEmpty(), qPrintable(names.join(' ')));
}

void tst_XmppProxy::aFailingProxyIsTriedAgain()
{
    KirvProsodyServer prosody;
    QVERIFY(KirvXmppProfile::start(prosody));
    auto proxy = std::make_unique<Proxy>(Proxy::Socks5, prosody.port());
    const quint16 port = proxy->serverPort();
    KirvXmppSettings settings;
    settings.certificatePath = prosody.certificatePath();
    settings.proxy = settingsFor(*proxy, Proxy::Socks5);
    proxy.reset();
    logIn(settings);
    QTRY_COMPARE_WITH_TIMEOUT(failure().kind(), KirvFailure::ProxyNotReached, kirvPatience);
    proxy = std::make_unique<Proxy>(Proxy::Socks5, prosody.port());
    proxy->close();
    QVERIFY(proxy->listen(QHostAddress::LocalHost, port));
    QTRY_COMPARE_WITH_TIMEOUT(connection->state(), KirvConnection::Online, kirvPatience);
    QVERIFY(!failure().isFailure());
}

void tst_XmppProxy::aServerNameCannotForgeHeaders()
{
    KirvScriptedXmppServer server;
    Proxy proxy(Proxy::Http, server.serverPort());
    KirvXmppSettings settings;
    settings.server = "a:1 HTTP/1.1\r\nX-Forged: yes\r\nX: ";
    settings.proxy = settingsFor(proxy, Proxy::Http);
    logIn(settings);
    QTRY_VERIFY_WITH_TIMEOUT(failure().isFailure() || !proxy.requested().isEmpty(), kirvPatience);
    for (const QString &requested : proxy.requested())
        QVERIFY2(!requested.contains("a:1"), qPrintable(requested));
}

void tst_XmppProxy::thePasswordIsStoredAsASecret()
{
    KirvXmppProfile profile;
    QVERIFY2(profile.problem().isEmpty(), qPrintable(profile.problem()));
    KirvAccount *account = profile.createAccount("romeo@localhost", { { "proxy_password", "word" } });
    QVERIFY(account->record().secretSettings.contains("proxy_password"));
    QCOMPARE(account->record().settings.value("proxy_password"), QString("word"));
    QVERIFY(!account->record().secretSettings.contains("proxy_user"));
}

QTEST_GUILESS_MAIN(tst_XmppProxy)
#include "tst_xmpp_proxy.moc"
