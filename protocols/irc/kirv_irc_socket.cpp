// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/irc/kirv_irc_socket.h"

#include <QPointer>
#include <QSslCipher>
#include <QSslSocket>
#include <algorithm>
#include <cstring>

KirvIrcSocket::KirvIrcSocket(QAbstractSocket *transport, KirvClock &clock, QObject *parent)
    : QAbstractSocket(TcpSocket, parent)
    , transport(transport)
    , input(clock)
{
    transport->setParent(this);
    transport->setReadBufferSize(2 * bytesPerTurn);
    nextTurn.setSingleShot(true);
    connect(&nextTurn, &QTimer::timeout, this, &KirvIrcSocket::takeTurn);

    if (auto *encrypted = qobject_cast<QSslSocket *>(transport))
        connect(encrypted, &QSslSocket::encrypted, this, &KirvIrcSocket::begin);
    else
        connect(transport, &QAbstractSocket::connected, this, &KirvIrcSocket::begin);
    connect(transport, &QAbstractSocket::readyRead, this, &KirvIrcSocket::goOn);
    connect(transport, &QAbstractSocket::bytesWritten, this, &KirvIrcSocket::goOn);
    connect(transport, &QAbstractSocket::errorOccurred, this, &KirvIrcSocket::receiveError);
    connect(transport, &QAbstractSocket::disconnected, this, &KirvIrcSocket::end);
}

KirvIrcSocket::~KirvIrcSocket()
{
    breakOff();
}

QString KirvIrcSocket::encryptionName() const
{
    const auto *encrypted = qobject_cast<QSslSocket *>(transport);
    return encrypted && encrypted->isEncrypted() ? encrypted->sessionCipher().protocolString() : QString();
}

void KirvIrcSocket::breakOff()
{
    transport->disconnect(this);
    nextTurn.stop();
    setSocketState(UnconnectedState);
    transport->abort();
}

void KirvIrcSocket::connectToHost(const QString &host, quint16 port, OpenMode mode, NetworkLayerProtocol protocol)
{
    setOpenMode(mode | Unbuffered);
    enter(ConnectingState);
    if (auto *encrypted = qobject_cast<QSslSocket *>(transport))
        encrypted->connectToHostEncrypted(host, port, mode, protocol);
    else
        transport->connectToHost(host, port, mode, protocol);
}

void KirvIrcSocket::disconnectFromHost()
{
    transport->disconnectFromHost();
}

qint64 KirvIrcSocket::bytesAvailable() const
{
    return used.size() + QAbstractSocket::bytesAvailable();
}

bool KirvIrcSocket::canReadLine() const
{
    return used.contains('\n');
}

qint64 KirvIrcSocket::readData(char *data, qint64 size)
{
    const qint64 count = std::min(size, qint64(used.size()));
    memcpy(data, used.constData(), size_t(count));
    used.remove(0, int(count));
    return count;
}

qint64 KirvIrcSocket::readLineData(char *data, qint64 size)
{
    const int end = used.indexOf('\n');
    return readData(data, end < 0 ? size : std::min(size, qint64(end + 1)));
}

qint64 KirvIrcSocket::writeData(const char *data, qint64 size)
{
    return transport->isWritable() ? transport->write(data, size) : -1;
}

void KirvIrcSocket::enter(SocketState state)
{
    setSocketState(state);
    Q_EMIT stateChanged(state);
}

void KirvIrcSocket::begin()
{
    if (ended) // by another slot of the same signal
        return;
    enter(ConnectedState);
    Q_EMIT connected();
    goOn();
}

/// The transport has ended; what it has received is still to be handed on.
void KirvIrcSocket::end()
{
    ended = true;
    goOn();
}

void KirvIrcSocket::receiveError(SocketError error)
{
    endError = error;
    setSocketError(error);
    setErrorString(transport->errorString());
    if (state() == ConnectedState)
        end();
    else
        finish();
}

/// Emits the end of the connection, once.
void KirvIrcSocket::finish()
{
    if (state() == UnconnectedState)
        return;
    nextTurn.stop();
    const QPointer<KirvIrcSocket> alive(this);
    enter(UnconnectedState);
    if (alive && endError != UnknownSocketError)
        Q_EMIT errorOccurred(endError);
    if (alive)
        Q_EMIT disconnected();
}

/// A timer and no queued call: other events are handled between two turns.
void KirvIrcSocket::goOn()
{
    if (!nextTurn.isActive())
        nextTurn.start(0);
}

void KirvIrcSocket::takeTurn()
{
    const QPointer<KirvIrcSocket> alive(this);
    if (ended && state() != ConnectedState)
        return finish();
    if (state() != ConnectedState || (!ended && transport->bytesToWrite() > largestBacklog))
        return; // bytesWritten() or connected() goes on
    if (!input.hasLines()) {
        const QByteArray piece = transport->read(bytesPerTurn);
        input.append(piece);
        if (!piece.isEmpty())
            Q_EMIT received();
    }
    used += input.takeLines(linesPerTurn);
    if (!isOpen())
        used.clear(); // the library reads nothing more and waits for the end
    else if (!used.isEmpty())
        Q_EMIT readyRead();
    if (!alive || state() != ConnectedState)
        return;
    if (input.isTooLong())
        Q_EMIT lineWasTooLong();
    else if (input.hasLines() || transport->bytesAvailable() > 0)
        goOn();
    else if (ended)
        finish();
}
