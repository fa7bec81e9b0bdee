// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/protocol/kirv_system_proxy.h"
#include "protocols/irc/kirv_irc_connection.h"
#include "protocols/irc/kirv_irc_protocol.h"
#include "tests/support/fakes/kirv_fake_clock.h"
#include "tests/support/kirv_look_ups.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/servers/kirv_failing_proxies.h"
#include "tests/support/servers/kirv_scripted_irc_server.h"
#include "tools/servers/kirv_ngircd_server.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>
#include <memory>

using Proxy = KirvScriptedProxy;
using Values = QMap<QString, QString>;

namespace {

const KirvPresence available("available", "Available", QString(), QString());

Values through(const Proxy &proxy, Proxy::Kind kind)
{
    return { { "encryption", "none" },
             { "proxy", kind == Proxy::Http ? "http" : "socks5" },
             { "proxy_host", "127.0.0.1" },
             { "proxy_port", QString::number(proxy.serverPort()) } };
}

} // namespace

/// IRC through proxies: a real server behind scripted ones, and proxies that fail.
class tst_IrcProxy : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void logsIn_data();
    void logsIn();
    void theServerProvesItsName();
    void theProxyOfTheSystemIsUsed();
    void aDestroyedConnectionOpensNothing();
    void thePasswordIsSecret();
    void settingsOfAProxyAreChecked();

    void aFailingProxyIsNotAvoided_data();
    void aFailingProxyIsNotAvoided();
    void aProxyThatIsNotThereIsNotAvoided_data();
    void aProxyThatIsNotThereIsNotAvoided();
    void aSilentProxyIsNotAvoided_data();
    void aSilentProxyIsNotAvoided();
    void aWrongLogInIsTold_data();
    void aWrongLogInIsTold();

private:
    void logIn(const Values &values, KirvClock &clock = KirvClock::system());
    KirvFailure failure() const { return connection->lastFailure(); }

    std::unique_ptr<KirvIrcConnection> connection;
};

void tst_IrcProxy::cleanup()
{
    connection.reset();
}

void tst_IrcProxy::logIn(const Values &values, KirvClock &clock)
{
    QList<KirvField> fields = KirvIrcSettings::defaultFields();
    for (KirvField &field : fields) {
        if (values.contains(field.getId()))
            field.setText(values.value(field.getId()));
    }
    kirvTakeLookUps();
    connection = std::make_unique<KirvIrcConnection>(clock);
    KirvConnection::Timing timing;
    timing.backOff.first = timing.backOff.last = 50;
    connection->setTiming(timing);
    connection->logIn({ "alice", QString(), fields }, available);
}

void tst_IrcProxy::logsIn_data()
{
    QTest::addColumn<Proxy::Kind>("kind");
    QTest::addColumn<bool>("requiresLogIn");
    QTest::addColumn<bool>("isEncrypted");
    for (const auto kind : { Proxy::Socks5, Proxy::Http }) {
        const char *name = kind == Proxy::Http ? "HTTP" : "SOCKS5";
        QTest::addRow("%s", name) << kind << false << false;
        QTest::addRow("%s, log-in", name) << kind << true << false;
        QTest::addRow("%s, encrypted", name) << kind << false << true;
    }
}

void tst_IrcProxy::logsIn()
{
    QFETCH(Proxy::Kind, kind);
    QFETCH(bool, requiresLogIn);
    QFETCH(bool, isEncrypted);
    KirvNgircdServer server;
    server.setEncrypted(isEncrypted);
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    Proxy proxy(kind, server.port());
    Values values = through(proxy, kind);
    values.insert("server", "localhost");
    values.insert("port", "6000");
    if (isEncrypted) {
        values.insert("encryption", "required");
        values.insert("certificate", server.certificateFile());
    }
    if (requiresLogIn) {
        proxy.requireLogIn("ann", "pass word");
        values.insert("proxy_user", "ann");
        values.insert("proxy_password", "pass word");
    }
    logIn(values);
    QTRY_COMPARE_WITH_TIMEOUT(connection->state(), KirvConnection::Online, kirvPatience);
    QCOMPARE(connection->securityText().startsWith("TLS"), isEncrypted);
    QCOMPARE(proxy.requested(), QStringList { "localhost:6000" });
    QCOMPARE(kirvTakeLookUps(), QStringList());

    QSignalSpy failures(connection.get(), &KirvConnection::failed);
    proxy.hangUp();
    QTRY_COMPARE_WITH_TIMEOUT(failures.size(), 1, kirvPatience);
    QTRY_COMPARE_WITH_TIMEOUT(connection->state(), KirvConnection::Online, kirvPatience);
    QCOMPARE(proxy.requested(), QStringList({ "localhost:6000", "localhost:6000" }));
    QCOMPARE(kirvTakeLookUps(), QStringList());
}

void tst_IrcProxy::theServerProvesItsName()
{
    KirvNgircdServer server;
    server.setEncrypted(true);
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    Proxy proxy(Proxy::Socks5, server.port());
    Values values = through(proxy, Proxy::Socks5);
    values.insert("server", "other.example");
    values.insert("encryption", "required");
    values.insert("certificate", server.certificateFile());
    logIn(values);
    QTRY_COMPARE_WITH_TIMEOUT(failure().kind(), KirvFailure::UntrustedCertificate, kirvPatience);
}

void tst_IrcProxy::theProxyOfTheSystemIsUsed()
{
    KirvNgircdServer server;
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    Proxy proxy(Proxy::Http, server.port());
    qputenv("all_proxy", "http://127.0.0.1:" + QByteArray::number(proxy.serverPort()));
    logIn({ { "encryption", "none" }, { "server", "some.example" }, { "port", "6000" }, { "proxy", "system" } });
    QCOMPARE(connection->state(), KirvConnection::Connecting);
    QTRY_COMPARE_WITH_TIMEOUT(connection->state(), KirvConnection::Online, kirvPatience);
    QCOMPARE(proxy.requested(), QStringList { "some.example:6000" });

    // What the system says comes too late for an attempt that was given up.
    logIn({ { "encryption", "none" }, { "server", "some.example" }, { "port", "6000" }, { "proxy", "system" } });
    connection->drop();
    logIn({ { "encryption", "none" },
            { "server", server.host() },
            { "port", QString::number(server.port()) },
            { "proxy", "none" } });
    QTRY_COMPARE_WITH_TIMEOUT(connection->state(), KirvConnection::Online, kirvPatience);
    QCOMPARE(proxy.connections(), 1);
    qunsetenv("all_proxy");
}

/// Its socket, which is deleted later, lives on for a moment.
void tst_IrcProxy::aDestroyedConnectionOpensNothing()
{
    Proxy proxy(Proxy::Http, 1);
    qputenv("all_proxy", "http://127.0.0.1:" + QByteArray::number(proxy.serverPort()));
    logIn({ { "encryption", "none" }, { "server", "some.example" }, { "port", "6000" }, { "proxy", "system" } });
    connection.reset();
    // The system replies to one request after the other.
    bool hasReplied = false;
    KirvSystemProxy::instance().request(QStringLiteral("some.example"), 6000, KirvClock::system(), this,
                                        [&](const std::optional<QNetworkProxy> &) { hasReplied = true; });
    QElapsedTimer waited;
    waited.start();
    while (!hasReplied && waited.elapsed() < kirvPatience)
        QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall); // nothing is deleted meanwhile
    QVERIFY(hasReplied);
    qunsetenv("all_proxy");
    QCoreApplication::processEvents();
    QCOMPARE(proxy.connections(), 0);
}

void tst_IrcProxy::thePasswordIsSecret()
{
    KirvIrcProtocol protocol;
    int secrets = 0;
    for (const KirvField &field : protocol.accountSettings()) {
        if (field.getKind() == KirvField::Password) {
            QCOMPARE(field.getId(), QString("proxy_password"));
            ++secrets;
        }
    }
    QCOMPARE(secrets, 1);
}

void tst_IrcProxy::settingsOfAProxyAreChecked()
{
    KirvScriptedIrcServer server({});
    for (const char *kind : { "socks5", "socks4" }) {
        logIn({ { "encryption", "none" },
                { "server", "127.0.0.1" },
                { "port", QString::number(server.serverPort()) },
                { "proxy", kind } });
        QCOMPARE(connection->state(), KirvConnection::Offline);
        QCOMPARE(failure().kind(), KirvFailure::BadSettings);
        QVERIFY2(failure().text().contains("proxy"), qPrintable(failure().text()));
    }
}

void tst_IrcProxy::aFailingProxyIsNotAvoided_data()
{
    kirvAddFailingProxies();
}

void tst_IrcProxy::aFailingProxyIsNotAvoided()
{
    QFETCH(Proxy::Kind, kind);
    QFETCH(Proxy::Behaviour, behaviour);
    QFETCH(KirvFailure::Kind, failing);
    KirvScriptedIrcServer server({});
    QSignalSpy reached(&server, &QTcpServer::newConnection);
    Proxy proxy(kind, server.serverPort(), behaviour);
    Values values = through(proxy, kind);
    values.insert("server", "localhost");
    values.insert("port", QString::number(server.serverPort()));
    for (const char *encryption : { "none", "required" }) {
        values.insert("encryption", encryption);
        logIn(values);
        kirvVerifyFailingProxy(*connection, proxy, failing);
        if (QTest::currentTestFailed())
            return;
        QCOMPARE(reached.size(), 0);
        QCOMPARE(kirvTakeLookUps(), QStringList());
    }
}

void tst_IrcProxy::aProxyThatIsNotThereIsNotAvoided_data()
{
    kirvAddMissingProxies();
}

void tst_IrcProxy::aProxyThatIsNotThereIsNotAvoided()
{
    QFETCH(Proxy::Kind, kind);
    QFETCH(QString, host);
    KirvScriptedIrcServer server({});
    QSignalSpy reached(&server, &QTcpServer::newConnection);
    auto proxy = std::make_unique<Proxy>(kind, server.serverPort());
    Values values = through(*proxy, kind);
    values.insert("server", "localhost");
    values.insert("port", QString::number(server.serverPort()));
    values.insert("proxy_host", host);
    proxy.reset();
    logIn(values);
    kirvVerifyMissingProxy(*connection, host, values.value("proxy_port").toInt());
    QCOMPARE(reached.size(), 0);
    QStringList names = kirvTakeLookUps();
    names.removeAll(kirvNoProxyHere); // its own name has to be looked up
    QCOMPARE(names, QStringList());
}

void tst_IrcProxy::aSilentProxyIsNotAvoided_data()
{
    kirvAddKindsOfProxies();
}

void tst_IrcProxy::aSilentProxyIsNotAvoided()
{
    QFETCH(Proxy::Kind, kind);
    KirvScriptedIrcServer server({});
    QSignalSpy reached(&server, &QTcpServer::newConnection);
    Proxy proxy(kind, server.serverPort(), Proxy::Hangs);
    Values values = through(proxy, kind);
    values.insert("server", "localhost");
    KirvFakeClock clock;
    logIn(values, clock);
    kirvVerifySilentProxy(*connection, proxy, clock);
    QCOMPARE(reached.size(), 0);
    QCOMPARE(kirvTakeLookUps(), QStringList());
    connection.reset();
}

void tst_IrcProxy::aWrongLogInIsTold_data()
{
    QTest::addColumn<Proxy::Kind>("kind");
    QTest::addColumn<QString>("user");
    QTest::newRow("SOCKS5, none") << Proxy::Socks5 << "";
    QTest::newRow("SOCKS5, wrong") << Proxy::Socks5 << "eve";
    QTest::newRow("HTTP, none") << Proxy::Http << "";
    QTest::newRow("HTTP, wrong") << Proxy::Http << "eve";
}

void tst_IrcProxy::aWrongLogInIsTold()
{
    QFETCH(Proxy::Kind, kind);
    QFETCH(QString, user);
    KirvScriptedIrcServer server({});
    QSignalSpy reached(&server, &QTcpServer::newConnection);
    Proxy proxy(kind, server.serverPort());
    proxy.requireLogIn("ann", "word");
    Values values = through(proxy, kind);
    values.insert("server", "localhost");
    values.insert("proxy_user", user);
    values.insert("proxy_password", user.isEmpty() ? "" : "word");
    logIn(values);
    QTRY_VERIFY_WITH_TIMEOUT(failure().isFailure(), kirvPatience);
    QCOMPARE(failure().kind(), KirvFailure::ProxyLoginRefused);
    QCOMPARE(connection->state(), KirvConnection::Offline); // it stays wrong
    QVERIFY(proxy.logIns().size() <= 2);
    QCOMPARE(reached.size(), 0);
    QCOMPARE(kirvTakeLookUps(), QStringList());
}

QTEST_GUILESS_MAIN(tst_IrcProxy)
#include "tst_irc_proxy.moc"
