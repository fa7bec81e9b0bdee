// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/irc/kirv_irc_connection.h"
#include "tests/support/fakes/kirv_fake_clock.h"
#include "tests/support/kirv_load_meter.h"
#include "tests/support/servers/kirv_hostile_irc_server.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace {

const qint64 megabyte = 1 << 20;

/// Far more than the memory may grow, and no more: a busy machine digests little of it in a second.
const qint64 floodSize = (KirvLoadMeter::measuresMemory ? 96 : 16) * megabyte;

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
class tst_IrcHostileServers : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void whatCannotGoOnEndsTheConnection_data();
    void whatCannotGoOnEndsTheConnection();
    void floodIsDigested_data();
    void floodIsDigested();
    void logInWithoutEndIsLeft_data();
    void logInWithoutEndIsLeft();
    void serverThatDoesNotReadIsNotReadEither();
    void floodOverTlsIsDigested();

private:
    /// Encrypted when a certificate is to be trusted.
    static KirvLogin loginTo(quint16 port, const QString &certificate = QString(),
                             const QString &passwordUse = QStringLiteral("none"));

    KirvLoadMeter meter;
};

KirvLogin tst_IrcHostileServers::loginTo(quint16 port, const QString &certificate, const QString &passwordUse)
{
    KirvLogin login;
    login.id = QStringLiteral("alice");
    login.password = QStringLiteral("secret");
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
        else if (field.getId() == QLatin1String("password_use"))
            field.setText(passwordUse);
    }
    return login;
}

void tst_IrcHostileServers::whatCannotGoOnEndsTheConnection_data()
{
    QTest::addColumn<QByteArray>("block");
    QTest::addColumn<bool>("beforeWelcome");
    QTest::addColumn<QString>("said");
    const QByteArray endless(65536, 'x');
    QTest::newRow("line without end") << endless << false << "line";
    QTest::newRow("line without end before the welcome") << endless << true << "line";
    QTest::newRow("goodbyes without end") << blockOf("ERROR :Closing Link: bye\r\n") << false << "Closing Link";
    QTest::newRow("goodbyes without end before the welcome")
        << blockOf("ERROR :Closing Link: bye\r\n") << true << "Closing Link";
    QTest::newRow("bans without end") << blockOf(":server 465 alice :You are banned\r\n") + "ERROR :K-lined\r\n"
                                      << false << "banned";
    QTest::newRow("nicks that are in use without end")
        << blockOf(":server 433 * alice :Nickname is already in use\r\n") << true << "alice";
    QTest::newRow("refusals of SASL without end")
        << blockOf(":server CAP * LS :sasl\r\n:server CAP * ACK :sasl\r\n:server 906 * :aborted\r\n") << true << "SASL";
}

void tst_IrcHostileServers::whatCannotGoOnEndsTheConnection()
{
    QFETCH(QByteArray, block);
    QFETCH(bool, beforeWelcome);
    QFETCH(QString, said);
    KirvHostileIrcServer server({ block, floodSize, beforeWelcome, true, false });
    KirvIrcConnection connection;
    QSignalSpy failures(&connection, &KirvConnection::failed);
    connection.logIn(loginTo(server.port(), QString(), said == "SASL" ? "sasl" : "none"),
                     { QStringLiteral("available"), QString(), QString() });
    QVERIFY(meter.runUntil([&] { return !failures.isEmpty() || server.sentBytes() >= floodSize; }));
    meter.report(server.sentBytes());
    QCOMPARE(failures.size(), 1);
    const auto failure = failures[0][0].value<KirvFailure>();
    QVERIFY2(failure.detail().contains(said), qPrintable(failure.text()));
    QVERIFY(server.sentBytes() < 16 * megabyte);
    if (KirvLoadMeter::measuresMemory)
        QVERIFY2(meter.peakGrowth() < 16 * 1024, qPrintable(QString::number(meter.peakGrowth())));
}

void tst_IrcHostileServers::floodIsDigested_data()
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
    lines("1,000 lists of abilities", ":server 005 alice NICKLEN=9" + QByteArray(60000, '9') + " :are supported\r\n",
          1000);
    lines("100,000 welcomes with another nick", ":server 001 mallory :Welcome\r\n", 100000);
    lines("100,000 bans of somebody else", ":server 474 alice #channel :Cannot join\r\n", 100000);
    lines("100,000 PING lines", "PING :are you there\r\n", 100000);
}

void tst_IrcHostileServers::floodIsDigested()
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

void tst_IrcHostileServers::logInWithoutEndIsLeft_data()
{
    QTest::addColumn<QByteArray>("block");
    QTest::newRow("capabilities without end") << blockOf(":server CAP * LS * :multi-prefix away-notify\r\n");
    QTest::newRow("capabilities that come and go without end")
        << blockOf(":server CAP * NEW :a=b\r\n:server CAP * DEL :a\r\n:server CAP * ACK :b\r\n");
    QTest::newRow("pieces of SASL without end") << blockOf(
        ":server CAP * LS :sasl\r\n:server CAP * ACK :sasl\r\nAUTHENTICATE " + QByteArray(400, 'A') + "\r\n");
    QTest::newRow("requests for the password without end")
        << blockOf(":server CAP * LS :sasl\r\n:server CAP * ACK :sasl\r\nAUTHENTICATE +\r\n");
}

/// It is left when its time is over, whatever the server sends until then.
void tst_IrcHostileServers::logInWithoutEndIsLeft()
{
    QFETCH(QByteArray, block);
    KirvHostileIrcServer server({ block, floodSize / 2, true, true, false });
    KirvFakeClock clock;
    KirvIrcConnection connection(clock);
    QSignalSpy failures(&connection, &KirvConnection::failed);
    connection.logIn(loginTo(server.port(), QString(), "sasl"), { QStringLiteral("available"), QString(), QString() });
    QVERIFY(meter.runUntil([&] { return server.isDigested(); }));
    meter.report(server.sentBytes());
    QCOMPARE(connection.state(), KirvConnection::Connecting);
    QVERIFY(server.receivedLines() < 20); // a few bytes of a server must not cause many of ours
    clock.advance(60000);
    QCOMPARE(failures.size(), 1);
    QCOMPARE(failures[0][0].value<KirvFailure>().kind(), KirvFailure::TimedOut);
    if (KirvLoadMeter::measuresMemory)
        QVERIFY2(meter.peakGrowth() < 16 * 1024, qPrintable(QString::number(meter.peakGrowth())));
}

/// The replies to a server that does not read them are not collected.
void tst_IrcHostileServers::serverThatDoesNotReadIsNotReadEither()
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
void tst_IrcHostileServers::floodOverTlsIsDigested()
{
    QTemporaryDir folder;
    const QString certificate = folder.filePath("certificate.pem");
    const QString key = folder.filePath("key.pem");
    QVERIFY(createCertificate(certificate, key));
    KirvHostileIrcServer::Attack attack { blockOf(":server 372 alice :- Welcome, welcome, welcome\r\n"),
                                          floodSize / 2 };
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

QTEST_GUILESS_MAIN(tst_IrcHostileServers)
#include "tst_irc_hostile_servers.moc"
