// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_stream_reader.h"

#include "protocols/xmpp/kirv_xmpp_turns.h"

#include <QDomDocument>
#include <QPointer>
#include <QSslCipher>
#include <QSslSocket>
#include <QXmlStreamReader>
#include <QXmppOutgoingClient.h>
#include <cstring>

namespace {

/// What the library keeps for classes that derive from a stream.
class Stream : public QXmppOutgoingClient {
public:
    static void receiveHeader(QXmppOutgoingClient &stream, const QDomElement &element)
    {
        (stream.*(&Stream::handleStream))(element);
    }
    /// A null element shows that the server is there.
    static void receiveStanza(QXmppOutgoingClient &stream, const QDomElement &element)
    {
        (stream.*(&Stream::handleStanza))(element);
    }
};

/// How much is read of a connection that has ended, in turns.
const int lastTurns = 16;

} // namespace

KirvXmppStreamReader::KirvXmppStreamReader(QXmppOutgoingClient &stream, const KirvXmppStreamGuard::Filter &isUsed,
                                           QObject *parent)
    : QObject(parent)
    , stream(stream)
    , socket(stream.socket())
    , guard(isUsed)
    , turns(KirvXmppTurns::instance())
{
    disconnect(socket, SIGNAL(readyRead()), &stream, nullptr);
    socket->setReadBufferSize(2 * bytesPerTurn);
    const auto startOver = [this] {
        guard.reset();
        hasUnread = false;
    };
    connect(socket, &QAbstractSocket::connected, this, startOver);
    connect(socket, &QSslSocket::encrypted, this, startOver);
    connect(socket, &QIODevice::readyRead, this, &KirvXmppStreamReader::goOn);
    connect(socket, &QIODevice::bytesWritten, this, &KirvXmppStreamReader::goOn);
    connect(socket, &QSslSocket::encryptedBytesWritten, this, &KirvXmppStreamReader::goOn);
    connect(socket, &QAbstractSocket::errorOccurred, this, &KirvXmppStreamReader::takeRest);
    connect(socket, &QAbstractSocket::disconnected, this, &KirvXmppStreamReader::takeRest);
}

bool KirvXmppStreamReader::isEncrypted() const
{
    return socket->isEncrypted();
}

QString KirvXmppStreamReader::encryptionName() const
{
    return socket->isEncrypted() ? socket->sessionCipher().protocolString() : QString();
}

void KirvXmppStreamReader::stop()
{
    isStopped = true;
    turns.cancel(this);
    socket->disconnect(this);
}

void KirvXmppStreamReader::goOn()
{
    if (!isStopped && (hasUnread || socket->bytesAvailable() > 0))
        turns.request(this, [this] { takeTurn(); });
}

bool KirvXmppStreamReader::isBacklogged() const
{
    return socket->state() == QAbstractSocket::ConnectedState
        && socket->bytesToWrite() + socket->encryptedBytesToWrite() > largestBacklog;
}

void KirvXmppStreamReader::takeTurn()
{
    if (isStopped || isBacklogged())
        return; // the bytes that are written go on
    const QPointer<KirvXmppStreamReader> alive(this);
    bool hasDelivered = false;
    if (!hasUnread) {
        const QByteArray bytes = socket->bytesAvailable() > 0 ? socket->read(bytesPerTurn) : QByteArray();
        hasUnread = !bytes.isEmpty();
        guard.append(bytes);
    }
    for (int i = 0; i < piecesPerTurn && hasUnread; ++i) {
        const KirvXmppStreamGuard::Piece piece = guard.take();
        hasUnread = piece.kind != KirvXmppStreamGuard::Piece::Nothing;
        hasDelivered = deliver(piece) || hasDelivered;
        if (!alive || isStopped)
            return;
    }
    if (!hasDelivered)
        Stream::receiveStanza(stream, QDomElement());
    if (alive)
        goOn();
}

/// The connection has ended: what came before is still used.
void KirvXmppStreamReader::takeRest()
{
    const QPointer<KirvXmppStreamReader> alive(this);
    for (int i = 0; alive && !isStopped && i < lastTurns && (hasUnread || socket->bytesAvailable() > 0); ++i)
        takeTurn();
}

/// False when the library receives nothing of \a piece.
bool KirvXmppStreamReader::deliver(const KirvXmppStreamGuard::Piece &piece)
{
    switch (piece.kind) {
    case KirvXmppStreamGuard::Piece::Nothing:
        return false;
    case KirvXmppStreamGuard::Piece::Header:
        deliverHeader(piece.text);
        return true;
    case KirvXmppStreamGuard::Piece::Stanza:
        deliverStanza(piece);
        return true;
    case KirvXmppStreamGuard::Piece::Oversized:
        Q_EMIT stanzaDropped(piece.start);
        return false;
    case KirvXmppStreamGuard::Piece::End:
        stream.disconnectFromHost();
        return true;
    case KirvXmppStreamGuard::Piece::Broken:
        breakStream(guard.violation());
        return false;
    }
    return false;
}

void KirvXmppStreamReader::deliverHeader(const QByteArray &text)
{
    header = text.trimmed();
    int nameEnd = 1;
    while (nameEnd < header.size() && !strchr(" \t\r\n>", header.at(nameEnd)))
        ++nameEnd;
    footer = "</" + header.mid(1, nameEnd - 1) + '>';
    QDomDocument document;
    QXmlStreamReader reader(header + footer);
    if (document.setContent(&reader, true))
        Stream::receiveHeader(stream, document.documentElement());
    else
        breakStream(KirvXmppStreamGuard::NoStream);
}

void KirvXmppStreamReader::deliverStanza(const KirvXmppStreamGuard::Piece &piece)
{
    QDomDocument document;
    QXmlStreamReader reader;
    reader.addData(header);
    reader.addData(piece.text);
    reader.addData(footer);
    if (document.setContent(&reader, true))
        Stream::receiveStanza(stream, document.documentElement().firstChildElement());
    else if (piece.start.isStanza())
        Q_EMIT stanzaDropped(piece.start); // others can have written what is in it
    else
        breakStream(KirvXmppStreamGuard::Malformed);
}

void KirvXmppStreamReader::breakStream(KirvXmppStreamGuard::Violation violation)
{
    stop();
    Q_EMIT streamBroken(violation);
}
