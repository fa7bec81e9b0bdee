// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_HOSTILE_SERVER_H
#define KIRV_HOSTILE_SERVER_H

#include "tests/support/kirv_patience.h"

#include <QSslSocket>
#include <QTcpServer>
#include <QThread>
#include <atomic>

/// A server for one client, on a thread of its own, so that it goes on sending while the client is busy.
///
/// Classes that derive from it call listen() at the end of their constructor and end() in their destructor.
class KirvHostileServer : public QThread {
public:
    quint16 port() const { return chosenPort; }
    qint64 sentBytes() const { return sent; }
    /// Whether the client has replied to what was sent last.
    bool isDigested() const { return digested; }
    /// Whether the client has closed the connection.
    bool isLeft() const { return left; }

protected:
    /// The files are for encryption, and PEM.
    KirvHostileServer(const QString &certificateFile, const QString &keyFile)
        : certificateFile(certificateFile)
        , keyFile(keyFile)
    {
    }

    void listen()
    {
        start();
        while (chosenPort == 0 && isRunning())
            msleep(1);
    }
    void end()
    {
        stopped = true;
        wait();
    }

    /// Runs on the thread, with a client that is not encrypted yet.
    virtual void serve(QSslSocket &socket) = 0;

    bool encrypts() const { return !certificateFile.isEmpty(); }
    void startEncryption(QSslSocket &socket) const
    {
        socket.setLocalCertificate(certificateFile);
        socket.setPrivateKey(keyFile, QSsl::Ec);
        socket.startServerEncryption();
        socket.waitForEncrypted(kirvPatience);
    }
    /// False when the client has left or the test has ended.
    bool isAlive(const QSslSocket &socket) const
    {
        return !stopped && socket.state() == QAbstractSocket::ConnectedState;
    }

    std::atomic<bool> digested { false };
    std::atomic<qint64> sent { 0 };

private:
    class OneClientServer : public QTcpServer {
    public:
        qintptr client = -1;

    protected:
        void incomingConnection(qintptr handle) override { client = handle; }
    };

    void run() override
    {
        OneClientServer server;
        if (!server.listen(QHostAddress::LocalHost))
            return;
        chosenPort = server.serverPort();
        while (!stopped && server.client < 0)
            server.waitForNewConnection(20);
        QSslSocket socket;
        if (server.client < 0 || !socket.setSocketDescriptor(server.client))
            return;
        serve(socket);
        left = socket.state() != QAbstractSocket::ConnectedState;
    }

    const QString certificateFile;
    const QString keyFile;
    std::atomic<quint16> chosenPort { 0 };
    std::atomic<bool> stopped { false };
    std::atomic<bool> left { false };
};

#endif
