// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_SCRIPTED_PROXY_H
#define KIRV_SCRIPTED_PROXY_H

#include <QHash>
#include <QHostAddress>
#include <QTcpServer>
#include <QTcpSocket>
#include <QtEndian>

/// A SOCKS5 or HTTP proxy that keeps what is requested of it, and leads all connections to one port of this computer,
/// whatever server was requested.
class KirvScriptedProxy : public QTcpServer {
public:
    enum Kind { Socks5, Http };
    enum Behaviour {
        Serves,
        Hangs, ///< accepts connections and says nothing
        HangsUp, ///< closes connections at once
        Denies, ///< does not allow the server
        FindsNoServer, ///< the server has no address
        FindsServerClosed, ///< the server does not accept connections
        TalksNonsense
    };

    KirvScriptedProxy(Kind kind, quint16 target, Behaviour behaviour = Serves)
        : kind(kind)
        , target(target)
        , behaviour(behaviour)
    {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this] { accept(nextPendingConnection()); });
    }

    /// Only who logs in like that is served. HTTP: \a challenge is how the proxy requests it.
    void requireLogIn(const QByteArray &user, const QByteArray &password,
                      const QByteArray &challenge = "Basic realm=\"proxy\"")
    {
        credentials = user + ':' + password;
        httpChallenge = challenge;
    }
    /// The servers that were requested, each as "name:port".
    QStringList requested() const { return servers; }
    /// The user and password of each log-in, as "user:password".
    QByteArrayList logIns() const { return shown; }
    int connections() const { return connectionCount; }
    /// From now on nothing is led on any more, and all connections stay open.
    void freeze() { isFrozen = true; }
    /// Breaks all connections.
    void hangUp()
    {
        const QList<QTcpSocket *> sockets = findChildren<QTcpSocket *>();
        for (QTcpSocket *socket : sockets)
            socket->abort();
    }

private:
    enum State { Greeting, LogIn, Request, Relay };

    void accept(QTcpSocket *client)
    {
        ++connectionCount;
        if (behaviour == HangsUp)
            return client->abort();
        if (behaviour == Hangs)
            return;
        states.insert(client, kind == Http ? Request : Greeting);
        connect(client, &QTcpSocket::readyRead, this, [this, client] { receive(client); });
        receive(client);
    }

    void receive(QTcpSocket *client)
    {
        if (states.value(client) == Relay)
            return;
        QByteArray &input = inputs[client];
        input += client->readAll();
        if (!input.isEmpty() && behaviour == TalksNonsense)
            client->write("SSH-2.0-nonsense\r\n\r\n");
        else if (kind == Http)
            receiveHttp(client, input);
        else
            while (receiveSocks(client, input)) { }
    }

    /// False when \a input has no whole message any more.
    bool receiveSocks(QTcpSocket *client, QByteArray &input)
    {
        switch (states.value(client)) {
        case Greeting: {
            if (input.size() < 2 || input.size() < 2 + uchar(input.at(1)))
                return false;
            const char method = credentials.isEmpty() ? 0 : 2;
            const bool isOffered = input.mid(2, uchar(input.at(1))).contains(method);
            input.remove(0, 2 + uchar(input.at(1)));
            client->write(QByteArray("\x05") + (isOffered ? method : char(0xff)));
            states[client] = method ? LogIn : Request;
            return isOffered;
        }
        case LogIn: {
            const int user = input.size() < 2 ? 0 : uchar(input.at(1));
            if (input.size() < 3 + user || input.size() < 3 + user + uchar(input.at(2 + user)))
                return false;
            shown << input.mid(2, user) + ':' + input.mid(3 + user, uchar(input.at(2 + user)));
            input.clear();
            const bool isRight = shown.last() == credentials;
            client->write(QByteArray("\x01") + char(isRight ? 0 : 1));
            states[client] = Request;
            if (!isRight)
                client->disconnectFromHost();
            return false;
        }
        case Request:
            return receiveSocksRequest(client, input);
        case Relay:
            break;
        }
        return false;
    }

    bool receiveSocksRequest(QTcpSocket *client, QByteArray &input)
    {
        if (input.size() < 7)
            return false;
        const int kindOfAddress = input.at(3);
        const int length = kindOfAddress == 1 ? 4 : kindOfAddress == 4 ? 16 : 1 + uchar(input.at(4));
        if (input.size() < 4 + length + 2)
            return false;
        QString name = QString::fromUtf8(input.mid(5, length - 1));
        if (kindOfAddress == 1)
            name = QHostAddress(qFromBigEndian<quint32>(input.constData() + 4)).toString();
        servers << QStringLiteral("%1:%2").arg(name).arg(qFromBigEndian<quint16>(input.constData() + 4 + length));
        input.clear();
        static const QHash<int, char> errors { { Denies, 2 }, { FindsNoServer, 4 }, { FindsServerClosed, 5 } };
        const QByteArray rest("\x00\x01\x00\x00\x00\x00\x00\x00", 8);
        if (errors.contains(behaviour))
            client->write(QByteArray("\x05") + errors.value(behaviour) + rest);
        else
            relay(client, QByteArray("\x05\x00", 2) + rest);
        return false;
    }

    void receiveHttp(QTcpSocket *client, QByteArray &input)
    {
        if (!input.contains("\r\n\r\n"))
            return;
        const QByteArrayList lines = input.split('\n');
        input.clear();
        QByteArray given;
        for (const QByteArray &line : lines) {
            const QByteArray header = "Proxy-Authorization: Basic ";
            if (line.startsWith(header))
                given = QByteArray::fromBase64(line.mid(header.size()).trimmed());
        }
        if (!given.isEmpty())
            shown << given;
        if (given != credentials && !credentials.isEmpty()) {
            client->write("HTTP/1.1 407 Proxy Authentication Required\r\n"
                          "Proxy-Authenticate: "
                          + httpChallenge + "\r\nContent-Length: 0\r\n\r\n");
            return;
        }
        servers << QString::fromUtf8(lines.first().split(' ').value(1));
        static const QHash<int, QByteArray> errors { { Denies, "403 Forbidden" },
                                                     { FindsNoServer, "404 Not Found" },
                                                     { FindsServerClosed, "503 Service Unavailable" } };
        if (errors.contains(behaviour))
            client->write("HTTP/1.1 " + errors.value(behaviour) + "\r\nContent-Length: 0\r\n\r\n");
        else
            relay(client, "HTTP/1.1 200 Connection established\r\n\r\n");
    }

    /// Sends \a reply as soon as there is a connection to the server.
    void relay(QTcpSocket *client, const QByteArray &reply)
    {
        states[client] = Relay;
        auto *server = new QTcpSocket(client);
        connect(server, &QTcpSocket::connected, client, [=] { client->write(reply); });
        connect(server, &QTcpSocket::readyRead, client, [=] {
            if (client->isOpen() && !isFrozen)
                client->write(server->readAll());
        });
        connect(server, &QTcpSocket::disconnected, client, [=] { client->disconnectFromHost(); });
        connect(client, &QTcpSocket::readyRead, server, [=] {
            if (server->isOpen() && !isFrozen)
                server->write(client->readAll());
        });
        connect(client, &QTcpSocket::disconnected, server, [=] { server->disconnectFromHost(); });
        server->connectToHost(QHostAddress(QHostAddress::LocalHost), target);
    }

    const Kind kind;
    const quint16 target; ///< the port of this computer
    const Behaviour behaviour;
    QByteArray httpChallenge;
    QByteArray credentials; ///< empty: no log-in is required
    QHash<QTcpSocket *, State> states;
    QHash<QTcpSocket *, QByteArray> inputs;
    QStringList servers;
    QByteArrayList shown;
    int connectionCount = 0;
    bool isFrozen = false;
};

#endif
