// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_HOSTILE_IRC_SERVER_H
#define KIRV_HOSTILE_IRC_SERVER_H

#include <QSslSocket>
#include <QTcpServer>
#include <QThread>
#include <atomic>

/// A server that sends one client as much as it takes, on a thread of its own and in bounded memory.
///
/// The client is welcomed when it has sent its USER line. The block is then sent again and again until the total is
/// reached; a PING with the text "digested" follows, so that its reply shows when the client is through.
class KirvHostileIrcServer : public QThread {
public:
    struct Attack {
        QByteArray block; ///< sent as it is, over and over
        qint64 total = 0; ///< bytes; rounded up to whole blocks
        bool beforeWelcome = false; ///< starts as soon as the client is there; there is no welcome then
        bool readsReplies = true; ///< whether what the client sends during the attack is read
        bool encrypted = false;
    };

    /// The files are for encrypted attacks, and PEM.
    explicit KirvHostileIrcServer(const Attack &attack, const QString &certificateFile = QString(),
                                  const QString &keyFile = QString())
        : attack(attack)
        , certificateFile(certificateFile)
        , keyFile(keyFile)
    {
        QTcpServer reservation;
        reservation.listen(QHostAddress::LocalHost);
        freePort = reservation.serverPort();
        reservation.close();
        start();
        while (!listening && isRunning())
            msleep(1);
    }
    ~KirvHostileIrcServer() override
    {
        stopped = true;
        wait();
    }

    quint16 port() const { return freePort; }
    qint64 sentBytes() const { return sent; }
    qint64 receivedLines() const { return received; }
    bool isDigested() const { return digested; }
    /// Whether the client has closed the connection.
    bool isLeft() const { return left; }

protected:
    void run() override
    {
        OneClientServer server;
        if (!server.listen(QHostAddress::LocalHost, freePort))
            return;
        listening = true;
        while (!stopped && server.client < 0)
            server.waitForNewConnection(20);
        QSslSocket socket; // without encryption until it is started
        if (server.client < 0 || !socket.setSocketDescriptor(server.client))
            return;
        if (!attack.readsReplies)
            socket.setReadBufferSize(4096);
        if (attack.encrypted) {
            socket.setLocalCertificate(certificateFile);
            socket.setPrivateKey(keyFile, QSsl::Ec);
            socket.startServerEncryption();
            socket.waitForEncrypted();
        }
        serve(socket);
    }

private:
    class OneClientServer : public QTcpServer {
    public:
        qintptr client = -1;

    protected:
        void incomingConnection(qintptr handle) override { client = handle; }
    };

    void serve(QTcpSocket &socket)
    {
        while (!stopped && !attack.beforeWelcome && !read(socket).contains("USER "))
            socket.waitForReadyRead(20);
        if (!attack.beforeWelcome)
            socket.write(":server 001 alice :Welcome\r\n");
        while (sent < attack.total && send(socket, attack.block))
            sent += attack.block.size();
        if (sent >= attack.total)
            send(socket, "PING :digested\r\n");
        while (!stopped && socket.state() == QAbstractSocket::ConnectedState) {
            if (read(socket).contains("digested"))
                digested = true;
            socket.waitForReadyRead(20);
        }
        left = socket.state() != QAbstractSocket::ConnectedState;
    }

    /// False when the client has left or the test has ended.
    bool send(QTcpSocket &socket, const QByteArray &data)
    {
        socket.write(data);
        while (!stopped && socket.state() == QAbstractSocket::ConnectedState && socket.bytesToWrite() > 0) {
            socket.waitForBytesWritten(20);
            if (attack.readsReplies)
                read(socket);
        }
        return !stopped && socket.state() == QAbstractSocket::ConnectedState;
    }

    /// The whole lines that have come. Kept short: there may be as many as there were blocks.
    QByteArray read(QTcpSocket &socket)
    {
        incoming += socket.readAll();
        const int end = incoming.lastIndexOf('\n') + 1;
        const QByteArray lines = incoming.left(end);
        incoming.remove(0, end);
        received += lines.count('\n');
        return lines;
    }

    const Attack attack;
    const QString certificateFile;
    const QString keyFile;
    quint16 freePort = 0;
    QByteArray incoming;
    std::atomic<bool> listening { false };
    std::atomic<bool> stopped { false };
    std::atomic<bool> digested { false };
    std::atomic<bool> left { false };
    std::atomic<qint64> sent { 0 };
    std::atomic<qint64> received { 0 };
};

#endif
