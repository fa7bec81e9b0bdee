// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/tls/kirv_system_certificates.h"
#include "protocols/xmpp/kirv_xmpp_server_link.h"
#include "tests/support/kirv_patience.h"

#include <QSslCertificate>
#include <QTcpServer>
#include <QTcpSocket>
#include <QtTest>

/// A link that trusts a certificate of its own waits for those of the system.
class tst_XmppLinkCertificates : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aLinkConnectsWhenTheyWereRead();
    void aLinkThatIsAbortedMeanwhileDoesNotConnect_data();
    void aLinkThatIsAbortedMeanwhileDoesNotConnect();

private:
    QXmppConfiguration configurationFor(const QTcpServer &server) const;
};

QXmppConfiguration tst_XmppLinkCertificates::configurationFor(const QTcpServer &server) const
{
    QXmppConfiguration configuration;
    configuration.setHost("127.0.0.1");
    configuration.setPort(server.serverPort());
    configuration.setJid("ann@localhost");
    configuration.setCaCertificates({ QSslCertificate() });
    return configuration;
}

void tst_XmppLinkCertificates::aLinkConnectsWhenTheyWereRead()
{
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    KirvXmppServerLink link(KirvXmppLink::LogIn, KirvClock::system(), 1000);
    link.open(configurationFor(server), QXmppPresence());
    KIRV_TRY(server.hasPendingConnections());
}

void tst_XmppLinkCertificates::aLinkThatIsAbortedMeanwhileDoesNotConnect_data()
{
    QTest::addColumn<bool>("isOrderly");
    QTest::newRow("aborted") << false;
    QTest::newRow("closed") << true;
}

void tst_XmppLinkCertificates::aLinkThatIsAbortedMeanwhileDoesNotConnect()
{
    QFETCH(bool, isOrderly);
    delete &KirvSystemCertificates::instance(); // they are read again
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    KirvXmppServerLink link(KirvXmppLink::LogIn, KirvClock::system(), 1000);
    int ends = 0;
    connect(&link, &KirvXmppLink::ended, this, [&] { ++ends; });
    link.open(configurationFor(server), QXmppPresence());
    if (isOrderly)
        link.close();
    else
        link.abort();
    // Connections come in the order in which they were begun: one that comes later shows that none came before.
    KirvXmppServerLink later(KirvXmppLink::LogIn, KirvClock::system(), 1000);
    QXmppConfiguration laterConfiguration = configurationFor(server);
    laterConfiguration.setJid("ann@later.test");
    later.open(laterConfiguration, QXmppPresence());
    QByteArrayList received;
    connect(&server, &QTcpServer::newConnection, this, [&] {
        QTcpSocket *socket = server.nextPendingConnection();
        connect(socket, &QTcpSocket::readyRead, this, [&received, socket] { received << socket->readAll(); });
    });
    KIRV_TRY(received.join().contains("later.test"));
    QVERIFY(!received.join().contains("localhost"));
    QCOMPARE(ends, isOrderly ? 1 : 0);
}

QTEST_GUILESS_MAIN(tst_XmppLinkCertificates)
#include "tst_xmpp_link_certificates.moc"
