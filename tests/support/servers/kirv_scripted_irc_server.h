// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_SCRIPTED_IRC_SERVER_H
#define KIRV_SCRIPTED_IRC_SERVER_H

#include <QTcpServer>
#include <QTcpSocket>
#include <algorithm>
#include <functional>
#include <iterator>

/// A server that does what a test tells it: answers lines with lines.
class KirvScriptedIrcServer : public QTcpServer {
public:
    /// Gives the lines that answer \a line, each with its line feed; nothing for no answer.
    using Script = std::function<QByteArray(const QByteArray &line)>;

    explicit KirvScriptedIrcServer(Script script, const QByteArray &greeting = QByteArray())
        : script(std::move(script))
    {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this, greeting] {
            QTcpSocket *socket = nextPendingConnection();
            socket->write(greeting);
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] { answer(socket); });
        });
    }

    bool hasReceived(const QByteArray &part) const { return !linesWith(part).isEmpty(); }
    QByteArrayList linesWith(const QByteArray &part) const
    {
        QByteArrayList lines;
        std::copy_if(received.begin(), received.end(), std::back_inserter(lines),
                     [&part](const QByteArray &line) { return line.contains(part); });
        return lines;
    }

    /// Breaks all connections.
    void hangUp()
    {
        const QList<QTcpSocket *> sockets = findChildren<QTcpSocket *>();
        for (QTcpSocket *socket : sockets)
            socket->abort();
    }

private:
    void answer(QTcpSocket *socket)
    {
        while (socket->canReadLine()) {
            received += socket->readLine().trimmed();
            if (script)
                socket->write(script(received.last()));
        }
    }

    Script script;
    QByteArrayList received;
};

#endif
