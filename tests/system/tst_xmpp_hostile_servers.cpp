// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_connection.h"
#include "protocols/xmpp/kirv_xmpp_stream_guard.h"
#include "tests/support/kirv_load_meter.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/servers/kirv_hostile_xmpp_server.h"

#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace {

using Server = KirvHostileXmppServer;

const qint64 megabyte = 1 << 20;
const qint64 largestGrowth = 16 * 1024; // kB
/// Far more than the memory may grow, and no more: a busy machine digests little of it in a second.
const qint64 floodSize = (KirvLoadMeter::measuresMemory ? 96 : 32) * megabyte;

/// \a block repeated to about 64 kB.
QByteArray blockOf(const QByteArray &block)
{
    return block.repeated(qMax(1, 65536 / block.size()));
}

/// A message of a stranger with \a depth elements in one another.
QByteArray deepMessage(int depth)
{
    return "<message from='mallory@elsewhere.example/x' to='ann@localhost'>" + QByteArray("<a>").repeated(depth)
        + QByteArray("</a>").repeated(depth) + "</message>";
}

/// A self-signed certificate for 127.0.0.1 and its key, both PEM.
bool createCertificate(const QString &certificateFile, const QString &keyFile)
{
    return QProcess::execute(QStringLiteral("openssl"),
                             { "req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:prime256v1", "-nodes",
                               "-days", "30", "-subj", "/CN=localhost", "-addext",
                               "subjectAltName=DNS:localhost,IP:127.0.0.1", "-keyout", keyFile, "-out",
                               certificateFile })
        == 0;
}

} // namespace

/// Servers and strangers that send what they should not: neither the event loop nor the memory of the program suffers.
class tst_XmppHostileServers : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void strangersAreDigested_data();
    void strangersAreDigested();
    void streamThatCannotGoOnIsEnded_data();
    void streamThatCannotGoOnIsEnded();
    void largeReplyIsBounded_data();
    void largeReplyIsBounded();
    void serverThatDoesNotReadIsNotReadEither();

private:
    KirvLogin loginTo(quint16 port, bool encrypted) const;
    std::unique_ptr<Server> startServer(const Server::Attack &attack, bool encrypted) const;

    QTemporaryDir folder;
    KirvLoadMeter meter;
};

void tst_XmppHostileServers::initTestCase()
{
    QVERIFY(createCertificate(folder.filePath("certificate.pem"), folder.filePath("key.pem")));
}

KirvLogin tst_XmppHostileServers::loginTo(quint16 port, bool encrypted) const
{
    KirvLogin login;
    login.id = QStringLiteral("ann@localhost");
    login.password = QStringLiteral("secret");
    KirvXmppSettings settings;
    settings.server = QStringLiteral("127.0.0.1");
    settings.port = port;
    settings.encryption = encrypted ? KirvXmppSettings::Required : KirvXmppSettings::None;
    if (encrypted)
        settings.certificatePath = folder.filePath("certificate.pem");
    login.settings = settings.toFields();
    return login;
}

std::unique_ptr<Server> tst_XmppHostileServers::startServer(const Server::Attack &attack, bool encrypted) const
{
    return encrypted ? std::make_unique<Server>(attack, folder.filePath("certificate.pem"), folder.filePath("key.pem"))
                     : std::make_unique<Server>(attack);
}

void tst_XmppHostileServers::strangersAreDigested_data()
{
    QTest::addColumn<QByteArray>("start");
    QTest::addColumn<QByteArray>("block");
    QTest::addColumn<qint64>("total");
    QTest::addColumn<bool>("encrypted");
    const auto once = [](const char *name, const QByteArray &stanza) {
        QTest::newRow(name) << stanza << QByteArray() << qint64(0) << false;
    };
    const auto flood = [](const char *name, const QByteArray &stanza, qint64 count, bool encrypted = false) {
        QTest::newRow(name) << QByteArray() << blockOf(stanza) << count * stanza.size() << encrypted;
    };
    const QByteArray from = " from='mallory@elsewhere.example/x' to='ann@localhost/Kirv'";
    once("message of depth 2,000", deepMessage(2000));
    once("message of depth 9,000", deepMessage(9000));
    once("message of depth 500,000", deepMessage(500000));
    once("message of 8 MB", "<message" + from + "><body>" + QByteArray(8 * megabyte, 'x') + "</body></message>");
    once("message of a million elements",
         "<message" + from + '>' + QByteArray("<a/>").repeated(1000000) + "</message>");
    once("reply of depth 2,000",
         "<iq type='result' id='qxmpp3'" + from + '>' + QByteArray("<a>").repeated(2000)
             + QByteArray("</a>").repeated(2000) + "</iq>");
    once("start of 8 MB", "<message" + from + " a='" + QByteArray(8 * megabyte, 'x') + "'/>");
    flood("100,000 messages", "<message" + from + "><body>Hello there</body></message>", 100000);
    flood("100,000 presences", "<presence" + from + "><status>Gone to lunch</status></presence>", 100000);
    flood("100,000 requests for the version",
          "<iq type='get' id='1'" + from + "><query xmlns='jabber:iq:version'/></iq>", 100000);
    flood("100,000 forged replies", "<iq type='result' id='1'" + from + "><vCard xmlns='vcard-temp'/></iq>", 100000);
    flood("100,000 replies that nobody awaits", "<iq type='result' id='1'><vCard xmlns='vcard-temp'/></iq>", 100000);
    flood("100,000 unknown requests of the server", "<iq type='set' id='1' from='localhost'><a xmlns='urn:x'/></iq>",
          100000);
    flood("100,000 messages over TLS", "<message" + from + "><body>Hello there</body></message>", 100000, true);
    flood("spaces without end", QByteArray(65536, ' '), floodSize / 65536);
}

void tst_XmppHostileServers::strangersAreDigested()
{
    QFETCH(QByteArray, start);
    QFETCH(QByteArray, block);
    QFETCH(qint64, total);
    QFETCH(bool, encrypted);
    Server::Attack attack;
    attack.start = start;
    attack.block = block;
    attack.total = total;
    const auto server = startServer(attack, encrypted);
    KirvXmppConnection connection;
    QSignalSpy failures(&connection, &KirvConnection::failed);
    connection.logIn(loginTo(server->port(), encrypted), { QStringLiteral("available"), QString(), QString() });
    const bool isDigested = meter.runUntil([&] { return server->isDigested() || !failures.isEmpty(); });
    meter.report(start.size() + server->sentBytes());
    QVERIFY(isDigested && failures.isEmpty());
    QCOMPARE(connection.state(), KirvConnection::Online);
    if (KirvLoadMeter::measuresMemory)
        QVERIFY2(meter.peakGrowth() < largestGrowth, qPrintable(QString::number(meter.peakGrowth())));
}

void tst_XmppHostileServers::streamThatCannotGoOnIsEnded_data()
{
    QTest::addColumn<QByteArray>("start");
    QTest::addColumn<QByteArray>("block");
    QTest::addColumn<int>("time");
    QTest::addColumn<bool>("encrypted");
    QTest::addColumn<QString>("said");
    const QByteArray endless(65536, 'x');
    const auto row = [](const char *name, const QByteArray &start, const QByteArray &block, Server::Time time,
                        bool encrypted,
                        const char *said) { QTest::newRow(name) << start << block << int(time) << encrypted << said; };
    row("stanza without end", "<message><body>", endless, Server::AfterLogIn, false, "longer");
    row("stanza without end before TLS", "<message><body>", endless, Server::BeforeEncryption, true, "longer");
    row("features without end before TLS", "<stream:features><a>", endless, Server::BeforeEncryption, true, "longer");
    row("stanza without end after TLS", "<message><body>", endless, Server::BeforeLogIn, true, "longer");
    row("stanza without end after TLS and log-in", "<message><body>", endless, Server::AfterLogIn, true, "longer");
    row("tag without end", "<message a='", endless, Server::AfterLogIn, false, "longer");
    row("name without end", "<", endless, Server::AfterLogIn, false, "longer");
    row("depth without end", "<message>", blockOf("<a>"), Server::AfterLogIn, false, "longer");
    row("elements without end", "<message>", blockOf("<a/>"), Server::AfterLogIn, false, "longer");
    row("depth outside of stanzas", QByteArray("<a>").repeated(9000), {}, Server::AfterLogIn, false, "longer");
    row("text outside of stanzas", "hello", {}, Server::AfterLogIn, false, "XML");
    row("wrong end tag", "<message><body></message>", {}, Server::AfterLogIn, false, "XML");
    row("end tag too many", "<message/></message>", {}, Server::AfterLogIn, false, "XML");
    row("no attribute value", "<message a=></message>", {}, Server::AfterLogIn, false, "XML");
    row("NUL", QByteArray("<message><body>\0</body></message>", 34), {}, Server::AfterLogIn, false, "XML");
    row("NUL outside of stanzas", QByteArray("\0", 1), {}, Server::AfterLogIn, false, "XML");
    row("DOCTYPE", "<!DOCTYPE a [<!ENTITY b 'c'>]>", {}, Server::AfterLogIn, false, "XML");
    const QByteArray sasl = " xmlns='urn:ietf:params:xml:ns:xmpp-sasl'>";
    const QByteArray offer =
        "<stream:features><mechanisms" + sasl + "<mechanism>SCRAM-SHA-1</mechanism></mechanisms></stream:features>";
    row("features again and again", {}, blockOf(offer), Server::BeforeLogIn, false, "again and again");
    row("challenges without end", offer, blockOf("<challenge" + sasl + "cj14LHM9eCxpPTE=</challenge>"),
        Server::BeforeLogIn, false, "more than a log-in needs");
    row("success again and again", offer, blockOf("<success" + sasl + "</success>"), Server::BeforeLogIn, false,
        "proved");
    row("challenge of a megabyte", offer, "<challenge" + sasl + QByteArray(megabyte, 'x') + "</challenge>",
        Server::BeforeLogIn, false, "more than a log-in needs");
    row("processing instruction", "<?a b?>", {}, Server::AfterLogIn, false, "XML");
    row("undeclared entity", "<message><body>&b;</body></message>", {}, Server::AfterLogIn, false, "XML");
}

void tst_XmppHostileServers::streamThatCannotGoOnIsEnded()
{
    QFETCH(QByteArray, start);
    QFETCH(QByteArray, block);
    QFETCH(int, time);
    QFETCH(bool, encrypted);
    QFETCH(QString, said);
    Server::Attack attack;
    attack.start = start;
    attack.block = block;
    attack.total = block.isEmpty() ? 0 : floodSize;
    attack.time = Server::Time(time);
    const auto server = startServer(attack, encrypted);
    KirvXmppConnection connection;
    QSignalSpy failures(&connection, &KirvConnection::failed);
    connection.logIn(loginTo(server->port(), encrypted), { QStringLiteral("available"), QString(), QString() });
    meter.runUntil([&] { return !failures.isEmpty() || server->isSpent(); });
    KIRV_TRY(!failures.isEmpty());
    meter.report(start.size() + server->sentBytes());
    const auto failure = failures[0][0].value<KirvFailure>();
    QVERIFY2(failure.detail().contains(said), qPrintable(failure.text()));
    QVERIFY(failure.isWorthRetrying());
    QVERIFY(server->sentBytes() < 32 * megabyte);
    if (KirvLoadMeter::measuresMemory)
        QVERIFY2(meter.peakGrowth() < largestGrowth, qPrintable(QString::number(meter.peakGrowth())));
}

void tst_XmppHostileServers::largeReplyIsBounded_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("outcome");
    const int most = KirvXmppStreamGuard::longestUsed - 200;
    QTest::newRow("reply of 1.7 MB") << "<DESC>" + QByteArray(most, 'x') + "</DESC>" << int(KirvDirectoryAnswer::Data);
    QTest::newRow("reply of 1.7 MB beyond ASCII")
        << "<DESC>" + QByteArray("\xc3\xa4").repeated(most / 2) + "</DESC>" << int(KirvDirectoryAnswer::Data);
    QTest::newRow("reply of references") << "<FN>A</FN><DESC>" + QByteArray("&amp;").repeated(49000) + "</DESC>"
                                         << int(KirvDirectoryAnswer::Data);
    QTest::newRow("reply of many elements")
        << "<FN>A</FN>" + QByteArray("<X/>").repeated(9990) << int(KirvDirectoryAnswer::Data);
    QTest::newRow("reply of too many elements")
        << "<FN>A</FN>" + QByteArray("<X/>").repeated(10000) << int(KirvDirectoryAnswer::Failed);
    QTest::newRow("reply of 3 MB") << "<FN>A</FN><DESC>" + QByteArray(3 * megabyte, 'x') + "</DESC>"
                                   << int(KirvDirectoryAnswer::Failed);
    QTest::newRow("reply that is too deep")
        << "<FN>A</FN>" + QByteArray("<X>").repeated(9000) + QByteArray("</X>").repeated(9000)
        << int(KirvDirectoryAnswer::Failed);
}

/// The reply is the server's, but others can have written what is in it.
void tst_XmppHostileServers::largeReplyIsBounded()
{
    QFETCH(QByteArray, content);
    QFETCH(int, outcome);
    Server::Attack attack;
    attack.start = "<iq type='result' id='%id'><vCard xmlns='vcard-temp'>" + content + "</vCard></iq>";
    attack.time = Server::InReply;
    const auto server = startServer(attack, false);
    KirvXmppConnection connection;
    QSignalSpy failures(&connection, &KirvConnection::failed);
    QSignalSpy answers(&connection, &KirvConnection::directoryAnswered);
    connection.logIn(loginTo(server->port(), false), { QStringLiteral("available"), QString(), QString() });
    KIRV_TRY_COMPARE(connection.state(), KirvConnection::Online);
    connection.fetchDirectory();
    QVERIFY(meter.runUntil([&] { return server->isDigested() && !answers.isEmpty(); }));
    meter.report(attack.start.size());
    QVERIFY(failures.isEmpty());
    const auto answer = answers[0][0].value<KirvDirectoryAnswer>();
    QVERIFY2(int(answer.outcome) == outcome, qPrintable(answer.failure.text()));
    QVERIFY(outcome == KirvDirectoryAnswer::Data || answer.failure.detail().contains("too large"));
    if (KirvLoadMeter::measuresMemory)
        QVERIFY2(meter.peakGrowth() < largestGrowth, qPrintable(QString::number(meter.peakGrowth())));
}

/// The replies to a server that does not read them are not collected.
void tst_XmppHostileServers::serverThatDoesNotReadIsNotReadEither()
{
    Server::Attack attack;
    attack.block = blockOf("<iq type='get' id='1' from='localhost'><ping xmlns='urn:xmpp:ping'/></iq>");
    attack.total = floodSize;
    attack.readsReplies = false;
    const auto server = startServer(attack, false);
    KirvXmppConnection connection;
    connection.logIn(loginTo(server->port(), false), { QStringLiteral("available"), QString(), QString() });
    qint64 sent = -1;
    QElapsedTimer unchanged;
    QVERIFY(meter.runUntil([&] {
        if (sent != server->sentBytes())
            unchanged.start();
        sent = server->sentBytes();
        return sent >= floodSize || (sent > 0 && unchanged.elapsed() > 500);
    }));
    meter.report(sent);
    QVERIFY(sent < floodSize);
    if (KirvLoadMeter::measuresMemory)
        QVERIFY2(meter.peakGrowth() < largestGrowth, qPrintable(QString::number(meter.peakGrowth())));
}

QTEST_GUILESS_MAIN(tst_XmppHostileServers)
#include "tst_xmpp_hostile_servers.moc"
