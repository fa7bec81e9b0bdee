// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/irc/kirv_irc_connection.h"
#include "tests/support/kirv_load_meter.h"
#include "tests/support/servers/kirv_hostile_irc_server.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace {

const qint64 megabyte = 1 << 20;

const qint64 floodSize = (KirvLoadMeter::measuresMemory ? 645 : 16) * megabyte;

/// \a line repeated to a block of about 64 kB.
QByteArray blockOf(const QByteArray &line)
{
    return line.repeated(qMax(1, 65536 / line.size()));
}

/// A self-signed certificate for 127.0.0.1 and its key, both PEM.
bool createCertificate(const QString &certificateFile, const QString &keyFile)
{
    return QProcess::execute(QStringLiteral("openssl"),
                             { "req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:prime256v1", "-nodes",
                               "-days", "30", "-subj", "/CN=localhost", "-addext", "subjectAltName=IP:127.0.0.1",
                               "-keyout", keyFile, "-out", certificateFile })
        == 0;
}

} // namespace

/// Servers that send what no server should: the event loop and the memory of the program do not suffer from them.
class TestIrcHostileServers : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void lineWithoutEndEndsTheConnection_data();
    void lineWithoutEndEndsTheConnection();
    void floodIsDigested_data();
    void floodIsDigested();
    void serverThatDoesNotReadIsNotReadEither();
    void floodOverTlsIsDigested();

private:
    /// Encrypted when a certificate is to be trusted.
    static KirvLogin loginTo(quint16 port, const QString &certificate = QString());

    KirvLoadMeter meter;
};

KirvLogin TestIrcHostileServers::loginTo(quint16 port, const QString &certificate)
{
    KirvLogin login;
    login.id = QStringLiteral("alice");
    login.settings = KirvIrcSettings::defaultFields();
    for (KirvField &field : login.settings) {
        if (field.getId() == QLatin1String("server"))
            field.setText(QStringLiteral("127.0.0.1"));
        else if (field.getId() == QLatin1String("port"))
            field.setText(QString::number(port));
        else if (field.getId() == QLatin1String("encryption") && certificate.isEmpty())
            field.setText(QStringLiteral("none"));
        else if (field.getId() == QLatin1String("certificate"))
            field.setText(certificate);
    }
    return login;
}

void TestIrcHostileServers::lineWithoutEndEndsTheConnection_data()
{
    QTest::addColumn<bool>("beforeWelcome");
    QTest::newRow("line without end") << false;
    QTest::newRow("line without end before the welcome") << true;
}

void TestIrcHostileServers::lineWithoutEndEndsTheConnection()
{
    QFETCH(bool, beforeWelcome);
    KirvHostileIrcServer server({ QByteArray(65536, 'x'), floodSize, beforeWelcome, true, false });
    KirvIrcConnection connection;
    QSignalSpy failures(&connection, &KirvConnection::failed);
    connection.logIn(loginTo(server.port()), { QStringLiteral("available"), QString(), QString() });
    QVERIFY(meter.runUntil([&] { return !failures.isEmpty() || server.sentBytes() >= floodSize; }));
    meter.report(server.sentBytes());
    QCOMPARE(failures.size(), 1);
    const auto failure = failures[0][0].value<KirvFailure>();
    QVERIFY2(failure.detail().contains(QLatin1String("line")), qPrintable(failure.text()));
    QVERIFY(server.sentBytes() < 16 * megabyte);
    if (KirvLoadMeter::measuresMemory)
        QVERIFY2(meter.peakGrowth() < 16 * 1024, qPrintable(QString::number(meter.peakGrowth())));
}

void TestIrcHostileServers::floodIsDigested_data()
{
    QTest::addColumn<QByteArray>("block");
    QTest::addColumn<qint64>("total");
    const auto lines = [](const char *name, const QByteArray &line, qint64 count) {
        QTest::newRow(name) << blockOf(line) << count * line.size();
    };
    lines("10,000 notices", ":server NOTICE alice :This is a notice that nobody wants to read\r\n", 10000);
    lines("100,000 QUIT lines", ":somebody!user@host.example QUIT :Gone to lunch\r\n", 100000);
    lines("100,000 messages", ":somebody!user@host.example PRIVMSG alice :Hello there\r\n", 100000);
    const QByteArray welcomeText = ":server 372 alice :- Welcome, welcome, welcome\r\n";
    lines("message of the day without end", welcomeText, floodSize / welcomeText.size());
    lines("100,000 requests for the name", ":somebody!user@host.example PRIVMSG alice :\1VERSION\1\r\n", 100000);
    lines("100,000 empty lines", "\r\n", 100000);
    lines("1,000 long lines", ":server NOTICE alice :" + QByteArray(60000, 'x') + "\r\n", 1000);
    lines("1,000 lines of many words", ":server 001 alice" + QByteArray(" a").repeated(4000) + "\r\n", 1000);
    lines("100,000 changes of the nick", ":alice!user@host.example NICK alice\r\n", 100000);
    lines("100,000 capabilities", ":server CAP * LS * :multi-prefix sasl\r\n", 100000);
    lines("100,000 PING lines", "PING :are you there\r\n", 100000);
}

void TestIrcHostileServers::floodIsDigested()
{
    QFETCH(QByteArray, block);
    QFETCH(qint64, total);
    KirvHostileIrcServer server({ block, total, false, true, false });
    KirvIrcConnection connection;
    QSignalSpy failures(&connection, &KirvConnection::failed);
    connection.logIn(loginTo(server.port()), { QStringLiteral("available"), QString(), QString() });
    QVERIFY(meter.runUntil([&] { return server.isDigested(); }));
    meter.report(server.sentBytes());
    QCOMPARE(connection.state(), KirvConnection::Online);
    QVERIFY(failures.isEmpty());
    if (KirvLoadMeter::measuresMemory)
        QVERIFY2(meter.peakGrowth() < 16 * 1024, qPrintable(QString::number(meter.peakGrowth())));
}

/// The replies to a server that does not read them are not collected.
void TestIrcHostileServers::serverThatDoesNotReadIsNotReadEither()
{
    KirvHostileIrcServer::Attack attack { blockOf("PING :are you there\r\n"), floodSize };
    attack.readsReplies = false;
    KirvHostileIrcServer server(attack);
    KirvIrcConnection connection;
    connection.logIn(loginTo(server.port()), { QStringLiteral("available"), QString(), QString() });
    qint64 sent = -1;
    QElapsedTimer unchanged;
    QVERIFY(meter.runUntil([&] {
        if (sent != server.sentBytes())
            unchanged.start();
        sent = server.sentBytes();
        return sent >= floodSize || (sent > 0 && unchanged.elapsed() > 500);
    }));
    meter.report(server.sentBytes());
    QVERIFY(sent < floodSize);
    if (KirvLoadMeter::measuresMemory)
        QVERIFY2(meter.peakGrowth() < 16 * 1024, qPrintable(QString::number(meter.peakGrowth())));
}

/// The socket for TLS has buffers of its own.
void TestIrcHostileServers::floodOverTlsIsDigested()
{
    QTemporaryDir folder;
    const QString certificate = folder.filePath("certificate.pem");
    const QString key = folder.filePath("key.pem");
    QVERIFY(createCertificate(certificate, key));
    KirvHostileIrcServer::Attack attack { blockOf(":server 372 alice :- Welcome, welcome, welcome\r\n"),
                                          floodSize / 4 };
    attack.encrypted = true;
    KirvHostileIrcServer server(attack, certificate, key);
    KirvIrcConnection connection;
    connection.logIn(loginTo(server.port(), certificate), { QStringLiteral("available"), {}, {} });
    QVERIFY(meter.runUntil([&] { return server.isDigested(); }));
    meter.report(server.sentBytes());
    QCOMPARE(connection.state(), KirvConnection::Online);
    if (KirvLoadMeter::measuresMemory)
        QVERIFY2(meter.peakGrowth() < 16 * 1024, qPrintable(QString::number(meter.peakGrowth())));
}

QTEST_GUILESS_MAIN(TestIrcHostileServers)
#include "tst_irc_hostile_servers.moc"
