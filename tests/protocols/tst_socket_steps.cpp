// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/tls/kirv_socket_steps.h"
#include "tests/support/servers/kirv_test_certificates.h"

#include <QHostAddress>
#include <QLocale>
#include <QSslSocket>
#include <QTest>
#include <memory>

namespace {

/// A socket that connects to nothing: a test emits what it does.
template <typename Socket>
class ScriptedSocket : public Socket {
public:
    ScriptedSocket() { this->setPeerAddress(QHostAddress(QStringLiteral("192.0.2.7"))); }
};

QString shown(const KirvLoginStep &step)
{
    static const char *const kinds[] = { "look-up", "connection", "encryption", "log-in" };
    static const char *const outcomes[] = { "runs", "done", "failed" };
    const QString text = step.text().isEmpty() ? QString() : QStringLiteral(": ") + step.text();
    return QString::fromLatin1(kinds[step.kind()]) + ' ' + QString::fromLatin1(outcomes[step.outcome()]) + text;
}

} // namespace

/// The steps of a log-in, as they are read off a socket.
class tst_SocketSteps : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void stepsFollowTheSocket_data();
    void stepsFollowTheSocket();
    void certificateIsDescribed_data();
    void certificateIsDescribed();
    void noCertificateHasNoWords();
};

void tst_SocketSteps::stepsFollowTheSocket_data()
{
    QTest::addColumn<bool>("isSecure");
    QTest::addColumn<QString>("proxy");
    QTest::addColumn<QString>("events"); ///< what happens, in its order
    QTest::addColumn<QStringList>("steps");
    const QString target = QStringLiteral("irc.example.org, port 6697");
    const QStringList found { "look-up runs: " + target, "look-up done: " + target, "connection runs: " + target };
    const QStringList connected = found + QStringList { "connection done: 192.0.2.7", "encryption runs" };
    const QStringList encrypted = connected + QStringList { "encryption done", "log-in runs" };
    const QStringList plain =
        connected + QStringList { "encryption done: none: the server offers none", "log-in runs" };
    const QStringList throughProxy { "look-up runs: " + target,
                                     "look-up done: " + target + ", which the proxy looks up",
                                     "connection runs: through the proxy proxy.example.org" };
    const QStringList proxyConnected =
        throughProxy + QStringList { "connection done: through the proxy proxy.example.org", "encryption runs" };
    const auto row = [](const char *name, bool isSecure, const char *events, const QStringList &steps,
                        const char *proxy = "") {
        QTest::newRow(name) << isSecure << QString(proxy) << QString(events) << steps;
    };
    row("look-up", true, "begin", found.mid(0, 1));
    row("address", true, "begin found", found);
    row("connection", true, "begin found connected", connected);
    row("encryption", true, "begin found connected encrypted", encrypted);
    row("encryption after a warning", true, "begin found connected warning encrypted",
        connected + QStringList { "encryption runs", "encryption done", "log-in runs" });
    row("no encryption wanted", false, "begin-plain found connected",
        found
            + QStringList { "connection done: 192.0.2.7", "encryption done: none, as the settings say",
                            "log-in runs" });
    row("no encryption offered", true, "begin found connected plain", plain);
    row("no encryption offered, said twice", true, "begin found connected plain plain", plain);
    row("encrypted, then said to be plain", true, "begin found connected encrypted plain", encrypted);
    row("a socket without encryption", false, "begin found connected plain", plain);
    row("the next attempt", true, "begin found connected encrypted begin found connected plain", encrypted + plain);
    row("proxy", true, "begin", throughProxy, "proxy.example.org");
    row("address of the proxy", true, "begin found", throughProxy, "proxy.example.org");
    row("connection through the proxy", true, "begin found connected", proxyConnected, "proxy.example.org");
}

void tst_SocketSteps::stepsFollowTheSocket()
{
    QFETCH(bool, isSecure);
    QFETCH(QString, proxy);
    QFETCH(QString, events);
    std::unique_ptr<QAbstractSocket> socket;
    if (isSecure)
        socket = std::make_unique<ScriptedSocket<QSslSocket>>();
    else
        socket = std::make_unique<ScriptedSocket<QTcpSocket>>();
    auto *const secure = qobject_cast<QSslSocket *>(socket.get());
    KirvSocketSteps steps(*socket, nullptr);
    QStringList reported;
    connect(&steps, &KirvSocketSteps::step, this, [&](const KirvLoginStep &step) { reported << shown(step); });

    QNetworkProxy through(QNetworkProxy::NoProxy);
    if (!proxy.isEmpty())
        through = QNetworkProxy(QNetworkProxy::Socks5Proxy, proxy, 1080);
    for (const QString &event : events.split(' ')) {
        if (event == "begin")
            steps.begin(QStringLiteral("irc.example.org"), 6697, through, KirvSocketSteps::Wanted);
        else if (event == "begin-plain")
            steps.begin(QStringLiteral("irc.example.org"), 6697, through, KirvSocketSteps::None);
        else if (event == "found")
            Q_EMIT socket->hostFound();
        else if (event == "connected")
            Q_EMIT socket->connected();
        else if (event == "encrypted")
            Q_EMIT secure->encrypted();
        else if (event == "warning")
            Q_EMIT secure->sslErrors(QList<QSslError> { QSslError(QSslError::SelfSignedCertificate) });
        else if (event == "plain")
            steps.goOnUnencrypted();
        else
            QFAIL(qPrintable("unknown event: " + event));
    }
    QTEST(reported, "steps");
}

void tst_SocketSteps::certificateIsDescribed_data()
{
    QTest::addColumn<QString>("subject");
    QTest::addColumn<QString>("names");
    QTest::addColumn<QString>("shownName");
    QTest::newRow("common name") << "/CN=irc.example.org"
                                 << "DNS:other.example.org"
                                 << "irc.example.org";
    QTest::newRow("alternative name") << "/O=Example"
                                      << "DNS:other.example.org"
                                      << "other.example.org";
    const QString part = QString(50, QLatin1Char('x'));
    const QString name = QStringList { part, part, part }.join('.');
    QTest::newRow("long name") << "/O=Example"
                               << "DNS:" + name << name.left(100);
    QTest::newRow("no name") << "/O=Example"
                             << "IP:192.0.2.7"
                             << "";
}

void tst_SocketSteps::certificateIsDescribed()
{
    QFETCH(QString, subject);
    QFETCH(QString, names);
    QFETCH(QString, shownName);
    KirvTestCertificates certificates;
    KirvTestCertificates::Wish wish;
    wish.subject = subject;
    wish.names = names;
    QVERIFY(certificates.make(QStringLiteral("server"), wish));
    const QSslCertificate certificate = certificates.read(QStringLiteral("server"));
    const QString date = QLocale().toString(certificate.expiryDate().date(), QStringLiteral("d MMMM yyyy"));
    const QString fingerprint = QString::fromLatin1(certificates.digest(QStringLiteral("server")).toHex(':')).toUpper();
    QCOMPARE(KirvSocketSteps::certificateText(certificate),
             QStringLiteral("certificate of %1, valid until %2, fingerprint %3 (SHA-256)")
                 .arg(shownName, date, fingerprint));
}

void tst_SocketSteps::noCertificateHasNoWords()
{
    QCOMPARE(KirvSocketSteps::certificateText(QSslCertificate()), QString());
}

QTEST_GUILESS_MAIN(tst_SocketSteps)
#include "tst_socket_steps.moc"
