// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/protocol/kirv_proxy.h"
#include "core/protocol/kirv_system_proxy.h"
#include "tests/support/fakes/kirv_fake_clock.h"
#include "tests/support/kirv_field_texts.h"
#include "tests/support/kirv_patience.h"

#include <QSemaphore>
#include <QtTest>
#include <atomic>
#include <memory>

Q_DECLARE_METATYPE(KirvProxy::Kind)
Q_DECLARE_METATYPE(KirvFailure::Kind)

namespace {

KirvProxy proxyWith(const QMap<QString, QString> &values)
{
    QList<KirvField> fields;
    for (auto value = values.begin(); value != values.end(); ++value)
        fields << text(value.key(), value.value());
    return KirvProxy(fields);
}

} // namespace

/// The settings of a proxy, what the system says about one, and what its errors are called.
class tst_Proxy : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fieldsAreReadAndWrittenAlike();
    void thereIsNoProxyByDefault();
    void thePasswordIsSecret();
    void whatCannotBeUsedIsSaid_data();
    void whatCannotBeUsedIsSaid();
    void theProxyLooksNamesUp_data();
    void theProxyLooksNamesUp();
    void errorsOfTheProxyAreTold_data();
    void errorsOfTheProxyAreTold();

    // That of the system.
    void theSystemIsNotQueriedForOthers();
    void theSystemIsQueriedInAThread();
    void aSystemThatIsSilentGivesNoConnection();
    void aSystemThatIsSilentIsNotQueriedMore();
    void nothingComesForWhoIsGone();
    void theObjectMayGoWhileAQueryRuns();
    void theFirstUsableAnswerCounts_data();
    void theFirstUsableAnswerCounts();
};

void tst_Proxy::fieldsAreReadAndWrittenAlike()
{
    KirvProxy proxy;
    for (const KirvProxy::Kind kind :
         { KirvProxy::None, KirvProxy::System, KirvProxy::Socks5, KirvProxy::Http, KirvProxy::Unknown }) {
        proxy.kind = kind;
        proxy.host = "proxy.example.org";
        proxy.port = 3128;
        proxy.user = "ann";
        proxy.password = " with blanks ";
        const KirvProxy again(proxy.toFields());
        QCOMPARE(again.kind, kind);
        QCOMPARE(again.host, proxy.host);
        QCOMPARE(again.port, proxy.port);
        QCOMPARE(again.user, proxy.user);
        QCOMPARE(again.password, proxy.password);
        QVERIFY(again.toFields() == proxy.toFields());
    }
}

void tst_Proxy::thereIsNoProxyByDefault()
{
    QCOMPARE(KirvProxy(QList<KirvField>()).kind, KirvProxy::None);
    QCOMPARE(proxyWith({ { "proxy", "" } }).kind, KirvProxy::None);
    // Not the one that the application or the system may have.
    QCOMPARE(KirvProxy().toNetworkProxy().type(), QNetworkProxy::NoProxy);
    QCOMPARE(KirvProxy().problem(), QString());
}

void tst_Proxy::thePasswordIsSecret()
{
    int secrets = 0;
    for (const KirvField &field : KirvProxy().toFields()) {
        QVERIFY2(field.getId().startsWith("proxy"), qPrintable(field.getId()));
        secrets += field.getKind() == KirvField::Password;
        QCOMPARE(field.getKind() == KirvField::Password, field.getId() == QLatin1String("proxy_password"));
    }
    QCOMPARE(secrets, 1);
}

void tst_Proxy::whatCannotBeUsedIsSaid_data()
{
    using Values = QMap<QString, QString>;
    QTest::addColumn<Values>("values");
    QTest::addColumn<QString>("word");
    const auto row = [](const char *name, Values values, const char *word) {
        if (!values.contains("proxy"))
            values.insert("proxy", "socks5");
        if (!values.contains("proxy_host"))
            values.insert("proxy_host", "proxy.example.org");
        QTest::newRow(name) << values << word;
    };
    row("all is well", {}, "");
    row("with a log-in", { { "proxy_user", "ann" }, { "proxy_password", "secret" } }, "");
    row("address", { { "proxy_host", "2001:db8::1" } }, "");
    row("unknown kind", { { "proxy", "socks4" } }, "kind");
    row("no host", { { "proxy_host", "  " } }, "no host");
    row("host of two words", { { "proxy_host", "a b" } }, "not the name");
    row("host with a line feed", { { "proxy_host", "a\nb" } }, "not the name");
    row("host as an address of the web", { { "proxy_host", "http://a" } }, "not the name");
    row("long host", { { "proxy_host", QString(256, 'a') } }, "not the name");
    row("port is no number", { { "proxy_port", "http" } }, "port");
    row("port 0", { { "proxy_port", "0" } }, "port");
    row("port is too large", { { "proxy_port", "65536" } }, "port");
    row("long user", { { "proxy_user", QString(128, QChar(0xe9)) } }, "too long");
    row("password of two lines", { { "proxy_user", "ann" }, { "proxy_password", "a\r\nb" } }, "cannot be sent");
    row("user with a colon", { { "proxy", "http" }, { "proxy_user", "a:b" } }, "colon");
    row("password without a user", { { "proxy_password", "secret" } }, "no user");
    row("not used", { { "proxy", "none" }, { "proxy_host", "" }, { "proxy_port", "" } }, "");
    row("of the system", { { "proxy", "system" }, { "proxy_host", "" } }, "");
}

void tst_Proxy::whatCannotBeUsedIsSaid()
{
    using Values = QMap<QString, QString>;
    QFETCH(Values, values);
    QFETCH(QString, word);
    const QString problem = proxyWith(values).problem();
    QCOMPARE(problem.isEmpty(), word.isEmpty());
    QVERIFY2(problem.contains(word) && problem.size() < 400, qPrintable(problem));
}

void tst_Proxy::theProxyLooksNamesUp_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("type");
    QTest::newRow("SOCKS5") << "socks5" << int(QNetworkProxy::Socks5Proxy);
    QTest::newRow("HTTP") << "http" << int(QNetworkProxy::HttpProxy);
}

void tst_Proxy::theProxyLooksNamesUp()
{
    QFETCH(QString, kind);
    const QNetworkProxy proxy = proxyWith({ { "proxy", kind },
                                            { "proxy_host", " proxy.example.org " },
                                            { "proxy_port", "3128" },
                                            { "proxy_user", "ann" },
                                            { "proxy_password", "secret" } })
                                    .toNetworkProxy();
    QTEST(int(proxy.type()), "type");
    QCOMPARE(proxy.hostName(), QString("proxy.example.org"));
    QCOMPARE(int(proxy.port()), 3128);
    QCOMPARE(proxy.user(), QString("ann"));
    QCOMPARE(proxy.password(), QString("secret"));
    QVERIFY(proxy.capabilities() & QNetworkProxy::HostNameLookupCapability);
    QVERIFY(proxy.capabilities() & QNetworkProxy::TunnelingCapability);
}

void tst_Proxy::errorsOfTheProxyAreTold_data()
{
    QTest::addColumn<QAbstractSocket::SocketError>("error");
    QTest::addColumn<KirvFailure::Kind>("kind");
    QTest::addColumn<QString>("sentence");
    QTest::newRow("refused") << QAbstractSocket::ProxyConnectionRefusedError << KirvFailure::ProxyNotReached
                             << "The proxy [::1]:1080 cannot be reached.";
    QTest::newRow("not found") << QAbstractSocket::ProxyNotFoundError << KirvFailure::ProxyNotReached
                               << "The proxy [::1]:1080 cannot be reached.";
    QTest::newRow("silent") << QAbstractSocket::ProxyConnectionTimeoutError << KirvFailure::ProxyTimedOut
                            << "The proxy [::1]:1080 did not connect to the server in time.";
    QTest::newRow("log-in") << QAbstractSocket::ProxyAuthenticationRequiredError << KirvFailure::ProxyLoginRefused
                            << "The proxy [::1]:1080 did not accept the user or the password.";
    QTest::newRow("denied") << QAbstractSocket::SocketAccessError << KirvFailure::ProxyDenied
                            << "The proxy [::1]:1080 does not allow a connection to the server.";
    QTest::newRow("closed") << QAbstractSocket::ProxyConnectionClosedError << KirvFailure::ProxyFailed
                            << "The connection through the proxy failed: reason";
    QTest::newRow("network") << QAbstractSocket::NetworkError << KirvFailure::ProxyFailed
                             << "The connection through the proxy failed: reason";
    QTest::newRow("not allowed, or not found")
        << QAbstractSocket::HostNotFoundError << KirvFailure::ProxyFailed
        << "The connection through the proxy failed: it does not find the server, or";
    QTest::newRow("of the server") << QAbstractSocket::ConnectionRefusedError << KirvFailure::None << "";
}

void tst_Proxy::errorsOfTheProxyAreTold()
{
    QFETCH(QAbstractSocket::SocketError, error);
    QFETCH(KirvFailure::Kind, kind);
    QFETCH(QString, sentence);
    const QNetworkProxy proxy(QNetworkProxy::Socks5Proxy, "::1", 1080);
    const KirvFailure failure = kirvProxyFailure(proxy, error, "reason");
    QCOMPARE(failure.kind(), kind);
    QVERIFY2(sentence.isEmpty() || failure.text().startsWith(sentence), qPrintable(failure.text()));
    QCOMPARE(failure.isOfProxy(), kind != KirvFailure::None);
    // A refused log-in is refused again, everything else may pass.
    QCOMPARE(failure.isWorthRetrying(), failure.isOfProxy() && kind != KirvFailure::ProxyLoginRefused);
    QCOMPARE(kirvProxyFailure(QNetworkProxy::NoProxy, error, "reason").kind(), KirvFailure::None);
}

void tst_Proxy::theSystemIsNotQueriedForOthers()
{
    KirvFakeClock clock;
    for (const auto type : { QNetworkProxy::NoProxy, QNetworkProxy::Socks5Proxy, QNetworkProxy::HttpProxy }) {
        int replies = 0;
        kirvFindProxy(QNetworkProxy(type, "proxy", 1), "server", 2, clock, this,
                      [&](const QNetworkProxy &found, const KirvFailure &failure) {
                          ++replies;
                          QCOMPARE(found.type(), type);
                          QVERIFY(!failure.isFailure());
                      });
        QCOMPARE(replies, 1); // at once
    }
}

void tst_Proxy::theSystemIsQueriedInAThread()
{
    std::atomic<Qt::HANDLE> thread { nullptr };
    KirvSystemProxy system([&](const QNetworkProxyQuery &query) {
        thread = QThread::currentThreadId();
        return QList<QNetworkProxy> { QNetworkProxy(QNetworkProxy::HttpProxy, "for-" + query.peerHostName(),
                                                    quint16(query.peerPort())) };
    });
    QStringList found;
    for (const char *server : { "a", "b", "c" }) {
        system.request(server, 5222, KirvClock::system(), this, [&](const std::optional<QNetworkProxy> &proxy) {
            found << (proxy ? proxy->hostName() : QString());
        });
    }
    QVERIFY(found.isEmpty());
    KIRV_TRY_COMPARE(found, QStringList({ "for-a", "for-b", "for-c" }));
    QVERIFY(thread.load() != QThread::currentThreadId());
}

void tst_Proxy::aSystemThatIsSilentGivesNoConnection()
{
    KirvFakeClock clock;
    QSemaphore go;
    KirvSystemProxy system([&](const QNetworkProxyQuery &) {
        go.acquire();
        return QList<QNetworkProxy> { QNetworkProxy(QNetworkProxy::NoProxy) };
    });
    int replies = 0;
    std::optional<QNetworkProxy> last;
    system.request("server", 1, clock, this, [&](const std::optional<QNetworkProxy> &proxy) {
        ++replies;
        last = proxy;
    });
    clock.advance(KirvSystemProxy::replyTimeout - 1);
    QCOMPARE(replies, 0);
    clock.advance(1);
    QCOMPARE(replies, 1);
    QVERIFY(!last);
    go.release(); // too late
    bool isAnswered = false;
    system.request("other", 1, clock, this, [&](const std::optional<QNetworkProxy> &proxy) {
        isAnswered = proxy && proxy->type() == QNetworkProxy::NoProxy;
    });
    go.release();
    KIRV_TRY(isAnswered);
    QCOMPARE(replies, 1);
}

void tst_Proxy::aSystemThatIsSilentIsNotQueriedMore()
{
    KirvFakeClock clock;
    QSemaphore go;
    std::atomic<int> queries { 0 };
    KirvSystemProxy system([&](const QNetworkProxyQuery &) {
        ++queries;
        go.acquire();
        return QList<QNetworkProxy>();
    });
    int replies = 0;
    for (int round = 0; round < 100; ++round) {
        system.request("server", 1, clock, this, [&](const std::optional<QNetworkProxy> &) { ++replies; });
        KIRV_TRY_COMPARE(queries.load(), 1); // the others are given up before their turn
        clock.advance(KirvSystemProxy::replyTimeout);
    }
    QCOMPARE(replies, 100);
    go.release();
    system.request("server", 1, clock, this, [&](const std::optional<QNetworkProxy> &) { ++replies; });
    go.release();
    KIRV_TRY_COMPARE(replies, 101);
    QCOMPARE(queries.load(), 2);
}

void tst_Proxy::nothingComesForWhoIsGone()
{
    KirvFakeClock clock;
    KirvSystemProxy system([](const QNetworkProxyQuery &) { return QList<QNetworkProxy>(); });
    auto context = std::make_unique<QObject>();
    int replies = 0;
    system.request("server", 1, clock, context.get(), [&](const std::optional<QNetworkProxy> &) { ++replies += 10; });
    context.reset();
    system.request("server", 1, clock, this, [&](const std::optional<QNetworkProxy> &) { ++replies; });
    KIRV_TRY_COMPARE(replies, 1);
    clock.advance(KirvSystemProxy::replyTimeout);
    QCOMPARE(replies, 1);
}

void tst_Proxy::theObjectMayGoWhileAQueryRuns()
{
    KirvFakeClock clock;
    const auto go = std::make_shared<QSemaphore>();
    const auto isDone = std::make_shared<std::atomic<bool>>(false);
    auto system = std::make_unique<KirvSystemProxy>([go, isDone](const QNetworkProxyQuery &) {
        go->acquire();
        *isDone = true;
        return QList<QNetworkProxy>();
    });
    int replies = 0;
    system->request("server", 1, clock, this, [&](const std::optional<QNetworkProxy> &) { ++replies; });
    system.reset();
    go->release();
    KIRV_TRY(isDone->load() || go->available() == 1); // or the thread had not begun
    clock.advance(KirvSystemProxy::replyTimeout);
    QCoreApplication::processEvents();
    QCOMPARE(replies, 0);
}

void tst_Proxy::theFirstUsableAnswerCounts_data()
{
    QTest::addColumn<QList<QNetworkProxy>>("said");
    QTest::addColumn<QString>("used");
    const QNetworkProxy direct(QNetworkProxy::NoProxy), socks(QNetworkProxy::Socks5Proxy, "socks", 1);
    const QNetworkProxy http(QNetworkProxy::HttpProxy, "http", 1);
    QNetworkProxy local = socks;
    local.setCapabilities(QNetworkProxy::TunnelingCapability); // names are looked up here
    QTest::newRow("nothing") << QList<QNetworkProxy>() << "unknown";
    QTest::newRow("directly") << QList<QNetworkProxy> { direct } << "2 ";
    QTest::newRow("the first") << QList<QNetworkProxy> { http, direct } << "3 http";
    QTest::newRow("one for FTP") << QList<QNetworkProxy> { QNetworkProxy(QNetworkProxy::FtpCachingProxy, "ftp", 1),
                                                           socks }
                                 << "1 socks";
    QTest::newRow("one that caches") << QList<QNetworkProxy> { QNetworkProxy(QNetworkProxy::HttpCachingProxy, "a", 1) }
                                     << "unknown";
    QTest::newRow("without a name") << QList<QNetworkProxy> { QNetworkProxy(QNetworkProxy::HttpProxy) } << "unknown";
    QTest::newRow("names looked up here") << QList<QNetworkProxy> { local } << "1 socks";
}

void tst_Proxy::theFirstUsableAnswerCounts()
{
    QFETCH(QList<QNetworkProxy>, said);
    const std::optional<QNetworkProxy> found = KirvSystemProxy::usable(said);
    const QString used =
        found ? QStringLiteral("%1 %2").arg(int(found->type())).arg(found->hostName()) : QStringLiteral("unknown");
    QTEST(used, "used");
    if (found && found->type() != QNetworkProxy::NoProxy)
        QVERIFY(found->capabilities() & QNetworkProxy::HostNameLookupCapability);
}

QTEST_GUILESS_MAIN(tst_Proxy)
#include "tst_proxy.moc"
