// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_SCRIPTED_XMPP_SERVER_H
#define KIRV_SCRIPTED_XMPP_SERVER_H

#include <QTcpServer>
#include <QTcpSocket>
#include <functional>

/// A server that does what a real one would not do: answers what a test tells it, and nothing without a script.
class KirvScriptedXmppServer : public QTcpServer {
public:
    /// Gives the answer to a chunk of \a received; an empty one for none.
    using Script = std::function<QByteArray(const QByteArray &received)>;

    explicit KirvScriptedXmppServer(Script answers = {})
        : script(std::move(answers))
    {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket *socket = nextPendingConnection();
            ++connectionCount;
            ++openCount;
            connect(socket, &QTcpSocket::disconnected, this, [this] { --openCount; });
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] { answer(socket); });
        });
    }

    int connections() const { return connectionCount; }
    /// How many of them have not ended.
    int open() const { return openCount; }
    QByteArray received() const { return everything; }
    /// Breaks all connections.
    void hangUp()
    {
        const QList<QTcpSocket *> sockets = findChildren<QTcpSocket *>();
        for (QTcpSocket *socket : sockets)
            socket->abort();
    }

    /// The opening of a stream that offers \a features.
    static QByteArray stream(const QByteArray &features)
    {
        return "<?xml version='1.0'?><stream:stream xmlns='jabber:client' "
               "xmlns:stream='http://etherx.jabber.org/streams' id='1' from='localhost' version='1.0'>"
               "<stream:features>"
            + features + "</stream:features>";
    }
    /// The value of the attribute \a name in \a text; empty when it has none.
    static QByteArray attribute(const QByteArray &text, const QByteArray &name)
    {
        const QByteArray start = ' ' + name + "=\"";
        const int begin = text.indexOf(start);
        return begin < 0
            ? QByteArray()
            : text.mid(begin + start.size(), text.indexOf('"', begin + start.size()) - begin - start.size());
    }

private:
    void answer(QTcpSocket *socket)
    {
        const QByteArray chunk = socket->readAll();
        everything += chunk;
        if (script)
            socket->write(script(chunk));
    }

    Script script;
    QByteArray everything;
    int connectionCount = 0;
    int openCount = 0;
};

#endif
