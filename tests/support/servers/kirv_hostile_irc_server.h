// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_HOSTILE_IRC_SERVER_H
#define KIRV_HOSTILE_IRC_SERVER_H

#include "tests/support/servers/kirv_hostile_server.h"

/// A server that sends one client as much as it takes, on a thread of its own and in bounded memory.
///
/// The client is welcomed when it has sent its USER line. The block is then sent again and again until the total is
/// reached; a PING with the text "digested" follows, so that its reply shows when the client is through.
class KirvHostileIrcServer : public KirvHostileServer {
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
        : KirvHostileServer(certificateFile, keyFile)
        , attack(attack)
    {
        listen();
    }
    ~KirvHostileIrcServer() override { end(); }

    qint64 receivedLines() const { return received; }

private:
    void serve(QSslSocket &socket) override
    {
        if (!attack.readsReplies)
            socket.setReadBufferSize(4096);
        if (attack.encrypted)
            startEncryption(socket);
        while (isAlive(socket) && !attack.beforeWelcome && !read(socket).contains("USER "))
            socket.waitForReadyRead(20);
        if (!attack.beforeWelcome)
            socket.write(":server 001 alice :Welcome\r\n");
        while (sent < attack.total && send(socket, attack.block))
            sent += attack.block.size();
        if (sent >= attack.total)
            send(socket, "PING :digested\r\n");
        while (isAlive(socket)) {
            if (read(socket).contains("digested"))
                digested = true;
            socket.waitForReadyRead(20);
        }
    }

    /// False when the client has left or the test has ended.
    bool send(QSslSocket &socket, const QByteArray &data)
    {
        socket.write(data);
        // What is encrypted already waits in a queue of its own.
        while (isAlive(socket) && socket.bytesToWrite() + socket.encryptedBytesToWrite() > 0) {
            socket.waitForBytesWritten(20);
            if (attack.readsReplies)
                read(socket);
        }
        return isAlive(socket);
    }

    /// The whole lines that have come. Kept short: there may be as many as there were blocks.
    QByteArray read(QSslSocket &socket)
    {
        incoming += socket.readAll();
        const int end = incoming.lastIndexOf('\n') + 1;
        const QByteArray lines = incoming.left(end);
        incoming.remove(0, end);
        received += lines.count('\n');
        return lines;
    }

    const Attack attack;
    QByteArray incoming;
    std::atomic<qint64> received { 0 };
};

#endif
