// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_stream_reader.h"
#include "protocols/xmpp/kirv_xmpp_turns.h"
#include "tests/support/kirv_patience.h"

#include <QDomElement>
#include <QTcpServer>
#include <QTcpSocket>
#include <QXmppClient.h>
#include <QXmppOutgoingClient.h>
#include <QtTest>
#include <memory>

namespace {

const QByteArray header = "<stream:stream xmlns='jabber:client' xmlns:stream='http://etherx.jabber.org/streams' "
                          "version='1.0' id='1' from='localhost'>";
const QByteArray used = "<iq from='localhost'/>";
/// A kilobyte that is not used.
const QByteArray unused = "<message><body>" + QByteArray(1024 - 32, 'x') + "</body></message>";

} // namespace

/// How much of a stream is handled in a turn of the event loop.
class tst_XmppStreamReader : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void fewStanzasAreHandledInATurn();
    void fewBytesAreReadInATurn();
    void nothingIsReadAfterTheStop();

private:
    void takeTurn();

    QTcpServer server;
    QTcpSocket *peer = nullptr; ///< the server's side
    std::unique_ptr<QXmppClient> client;
    QXmppOutgoingClient *stream = nullptr; ///< of the client
    std::unique_ptr<KirvXmppStreamReader> reader;
    std::unique_ptr<QObject> counter; ///< has every other turn
    int stanzas = 0; ///< that were used
    int starts = 0; ///< of all stanzas
    int mostStanzas = 0; ///< between two turns of the counter
    int mostStarts = 0;
    int stanzasBefore = 0;
    int startsBefore = 0;
};

/// Connects, and counts from the start of the stream.
void tst_XmppStreamReader::init()
{
    stanzas = starts = mostStanzas = mostStarts = stanzasBefore = startsBefore = 0;
    QVERIFY(server.isListening() || server.listen(QHostAddress::LocalHost));
    client = std::make_unique<QXmppClient>();
    stream = client->findChild<QXmppOutgoingClient *>();
    reader = std::make_unique<KirvXmppStreamReader>(*stream, [this](const KirvXmppStanzaStart &start) {
        ++starts;
        return start.name == "iq";
    });
    connect(stream, &QXmppOutgoingClient::elementReceived, this, [this](const QDomElement &stanza, bool &isHandled) {
        stanzas += stanza.isNull() ? 0 : 1; // a null one shows that the server is there
        isHandled = true;
    });
    QXmppConfiguration configuration;
    configuration.setJid("ann@localhost");
    configuration.setHost("127.0.0.1");
    configuration.setPort(server.serverPort());
    configuration.setAutoReconnectionEnabled(false);
    client->connectToServer(configuration);
    KIRV_TRY(server.hasPendingConnections());
    peer = server.nextPendingConnection();
    peer->write(header);
    KIRV_TRY(peer->bytesAvailable() > 0);
    counter = std::make_unique<QObject>();
    takeTurn();
}

void tst_XmppStreamReader::cleanup()
{
    counter.reset();
    reader.reset();
    client.reset();
    delete peer;
}

/// Of two that want turns each has every other one.
void tst_XmppStreamReader::takeTurn()
{
    mostStanzas = qMax(mostStanzas, stanzas - stanzasBefore);
    mostStarts = qMax(mostStarts, starts - startsBefore);
    stanzasBefore = stanzas;
    startsBefore = starts;
    KirvXmppTurns::instance().request(counter.get(), [this] { takeTurn(); });
}

void tst_XmppStreamReader::fewStanzasAreHandledInATurn()
{
    const int count = 20 * KirvXmppStreamReader::piecesPerTurn;
    peer->write(used.repeated(count));
    KIRV_TRY_COMPARE(stanzas, count);
    QVERIFY2(mostStanzas <= KirvXmppStreamReader::piecesPerTurn, qPrintable(QString::number(mostStanzas)));
}

void tst_XmppStreamReader::fewBytesAreReadInATurn()
{
    const int count = 20 * KirvXmppStreamReader::bytesPerTurn / int(unused.size());
    peer->write(unused.repeated(count));
    KIRV_TRY_COMPARE(starts, count);
    QCOMPARE(stanzas, 0);
    const int most = KirvXmppStreamReader::bytesPerTurn / int(unused.size()) + 1;
    QVERIFY2(mostStarts <= most, qPrintable(QString::number(mostStarts)));
}

void tst_XmppStreamReader::nothingIsReadAfterTheStop()
{
    reader->stop();
    peer->write(used);
    KIRV_TRY(peer->bytesToWrite() == 0);
    for (int turn = 0; turn < 20; ++turn)
        QCoreApplication::processEvents();
    QCOMPARE(starts, 0);
}

QTEST_GUILESS_MAIN(tst_XmppStreamReader)
#include "tst_xmpp_stream_reader.moc"
