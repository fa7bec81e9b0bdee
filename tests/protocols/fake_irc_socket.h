// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_FAKE_IRC_SOCKET_H
#define KIRV_FAKE_IRC_SOCKET_H

#include <QAbstractSocket>
#include <QStringList>

/// A socket without a network: it keeps the lines that are sent, and a test gives it what a server sends.
class FakeIrcSocket : public QAbstractSocket {
public:
    explicit FakeIrcSocket(QObject *parent = nullptr)
        : QAbstractSocket(TcpSocket, parent)
    {
    }

    void connectToHost(const QString &, quint16, OpenMode mode, NetworkLayerProtocol) override
    {
        setOpenMode(mode | Unbuffered);
        enter(ConnectingState);
        enter(ConnectedState);
        Q_EMIT connected();
    }
    void disconnectFromHost() override { enter(UnconnectedState); }
    qint64 bytesAvailable() const override { return incoming.size(); }
    bool canReadLine() const override { return incoming.contains('\n'); }

    /// The server sends one line.
    void receive(const QByteArray &line) { receiveBytes(line + "\r\n"); }
    void receiveBytes(const QByteArray &bytes)
    {
        incoming += bytes;
        Q_EMIT readyRead();
    }
    /// The lines sent since the last call.
    QStringList takeSent()
    {
        const QStringList lines = QString::fromUtf8(outgoing).split("\r\n", Qt::SkipEmptyParts);
        outgoing.clear();
        return lines;
    }

protected:
    qint64 readData(char *data, qint64 size) override
    {
        const qint64 count = qMin(size, qint64(incoming.size()));
        memcpy(data, incoming.constData(), size_t(count));
        incoming.remove(0, int(count));
        return count;
    }
    qint64 readLineData(char *data, qint64 size) override
    {
        const int end = incoming.indexOf('\n');
        return readData(data, end < 0 ? size : qMin(size, qint64(end + 1)));
    }
    qint64 writeData(const char *data, qint64 size) override
    {
        outgoing.append(data, int(size));
        return size;
    }

private:
    void enter(SocketState state)
    {
        setSocketState(state);
        Q_EMIT stateChanged(state);
    }

    QByteArray incoming;
    QByteArray outgoing;
};

#endif
