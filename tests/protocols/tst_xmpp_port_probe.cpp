// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_port_probe.h"
#include "tests/support/fakes/kirv_fake_clock.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/servers/kirv_test_certificates.h"
#include "tests/support/servers/kirv_tls_irc_server.h"

#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>
#include <memory>

namespace {

/// Answers what comes first with a text, or closes the connection when that is empty; a null text: stays silent.
class FirstAnswer : public QTcpServer {
public:
    explicit FirstAnswer(const QByteArray &answer)
    {
        connect(this, &QTcpServer::newConnection, this, [this, answer] {
            QTcpSocket *socket = nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, this, [this, socket, answer] {
                received += socket->readAll();
                if (answer.isEmpty() && !answer.isNull())
                    socket->disconnectFromHost();
                else
                    socket->write(answer);
            });
        });
        listen(QHostAddress::LocalHost);
    }

    QByteArray received;
};

} // namespace

/// What a port expects, with servers on this computer.
class tst_XmppPortProbe : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void streamInClearIsRecognized_data();
    void streamInClearIsRecognized();
    void encryptionIsRecognized();
    void serverWithoutEncryptionIsNone();
    void portWithoutServerIsNone_data();
    void portWithoutServerIsNone();
    void silentServerIsGivenUp_data();
    void silentServerIsGivenUp();
    void nobodyIsCalledWhoIsGone();

private:
    void probe(int port, bool isDirect);

    KirvFakeClock clock;
    std::unique_ptr<QObject> context;
    QList<bool> replies;
};

void tst_XmppPortProbe::probe(int port, bool isDirect)
{
    replies.clear();
    context = std::make_unique<QObject>();
    const KirvXmppTarget target { QStringLiteral("127.0.0.1"), port, isDirect };
    kirvXmppProbePort(target, QNetworkProxy(QNetworkProxy::NoProxy), clock, context.get(),
                      [this](bool isOther) { replies << isOther; });
    QVERIFY(replies.isEmpty()); // later
}

void tst_XmppPortProbe::streamInClearIsRecognized_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<bool>("isOther");
    QTest::newRow("stream") << QByteArray("<?xml version='1.0'?><stream:stream>") << true;
    QTest::newRow("white space before") << QByteArray(" \r\n<stream:stream>") << true;
    QTest::newRow("another protocol") << QByteArray("HTTP/1.1 400 Bad Request\r\n") << false;
    QTest::newRow("alert of TLS") << QByteArray("\x15\x03\x01\x00\x02\x02\x0a", 7) << false;
    QTest::newRow("hangs up") << QByteArray("") << false;
}

void tst_XmppPortProbe::streamInClearIsRecognized()
{
    QFETCH(QByteArray, answer);
    QFETCH(bool, isOther);
    const FirstAnswer server(answer);
    probe(server.serverPort(), true);
    KIRV_TRY_COMPARE(replies, QList<bool> { isOther });
    QVERIFY(server.received.startsWith("<?xml"));
    QVERIFY(!server.received.contains(" to=")); // whose server it is to be is nobody's business
    clock.advance(10000);
    QCOMPARE(int(replies.size()), 1);
}

void tst_XmppPortProbe::encryptionIsRecognized()
{
    KirvTestCertificates certificates;
    QVERIFY(certificates.make(QStringLiteral("any"), KirvTestCertificates::Wish()));
    const KirvTlsIrcServer server(certificates.certificate(QStringLiteral("any")),
                                  certificates.key(QStringLiteral("any")), nullptr);
    probe(server.serverPort(), false);
    KIRV_TRY_COMPARE(replies, QList<bool> { true });
    QVERIFY(!server.wasSpokenTo()); // beyond the handshake
}

void tst_XmppPortProbe::serverWithoutEncryptionIsNone()
{
    const FirstAnswer server("<stream:error/>");
    probe(server.serverPort(), false);
    KIRV_TRY_COMPARE(replies, QList<bool> { false });
    QVERIFY(server.received.startsWith("\x16\x03")); // a handshake of TLS
}

void tst_XmppPortProbe::portWithoutServerIsNone_data()
{
    QTest::addColumn<bool>("isDirect");
    QTest::newRow("in clear") << false;
    QTest::newRow("TLS from the first byte") << true;
}

void tst_XmppPortProbe::portWithoutServerIsNone()
{
    QFETCH(bool, isDirect);
    QTcpServer closed;
    QVERIFY(closed.listen(QHostAddress::LocalHost));
    const int port = closed.serverPort();
    closed.close();
    probe(port, isDirect);
    KIRV_TRY_COMPARE(replies, QList<bool> { false });
}

void tst_XmppPortProbe::silentServerIsGivenUp_data()
{
    portWithoutServerIsNone_data();
}

void tst_XmppPortProbe::silentServerIsGivenUp()
{
    QFETCH(bool, isDirect);
    const FirstAnswer server { QByteArray() };
    probe(server.serverPort(), isDirect);
    KIRV_TRY(!server.received.isEmpty());
    clock.advance(3999);
    QVERIFY(replies.isEmpty());
    clock.advance(1);
    QCOMPARE(replies, QList<bool> { false });
}

void tst_XmppPortProbe::nobodyIsCalledWhoIsGone()
{
    const FirstAnswer server("<stream:stream>");
    probe(server.serverPort(), true);
    context.reset();
    clock.advance(10000);
    QCoreApplication::sendPostedEvents();
    QVERIFY(replies.isEmpty());
}

QTEST_GUILESS_MAIN(tst_XmppPortProbe)
#include "tst_xmpp_port_probe.moc"
