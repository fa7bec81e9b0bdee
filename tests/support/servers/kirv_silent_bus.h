// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_SILENT_BUS_H
#define KIRV_SILENT_BUS_H

#include <QByteArray>
#include <QFile>
#include <QList>
#include <QLocalServer>
#include <QLocalSocket>
#include <QObject>
#include <QTemporaryDir>
#include <QVector>
#include <cerrno>
#include <cstring>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

/// Stands where a session bus is expected and does not behave like one, until pass() makes it the session bus of the
/// test program. For other processes: it needs the event loop.
class KirvSilentBus : public QObject {
public:
    enum Script {
        NeverAnswers,
        AnswersLogin, ///< and nothing after it
        AcceptsNothing, ///< whoever connects without non-blocking calls waits for ever
        HangsUp
    };

    explicit KirvSilentBus(Script script)
        : script(script)
    {
        sockaddr_un name {};
        name.sun_family = AF_UNIX;
        const QByteArray path = QFile::encodeName(folder.filePath(QStringLiteral("bus")));
        std::memcpy(name.sun_path, path.constData(), size_t(path.size()));
        const auto *generic = reinterpret_cast<const sockaddr *>(&name);
        listening = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        isGood = listening >= 0 && ::bind(listening, generic, sizeof name) == 0
            && ::listen(listening, script == AcceptsNothing ? 0 : 50) == 0;
        bool isFull = script != AcceptsNothing;
        while (isGood && !isFull) {
            const int filler = ::socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
            isFull = ::connect(filler, generic, sizeof name) != 0;
            isGood = !isFull || errno == EAGAIN;
            fillers << filler;
        }
        connect(&server, &QLocalServer::newConnection, this, &KirvSilentBus::accept);
        if (script != AcceptsNothing)
            isGood = isGood && server.listen(listening);
    }
    ~KirvSilentBus() override
    {
        for (const int filler : qAsConst(fillers))
            ::close(filler);
        if (!server.isListening())
            ::close(listening);
    }

    bool isReady() const { return isGood; }
    QByteArray address() const { return "unix:path=" + QFile::encodeName(folder.filePath(QStringLiteral("bus"))); }

    /// From now on everything goes to the session bus and comes from there, what has been received before, too.
    void pass()
    {
        isPassing = true;
        for (const int filler : qAsConst(fillers))
            ::close(filler);
        fillers.clear();
        if (!server.isListening())
            server.listen(listening);
        for (QLocalSocket *socket : qAsConst(held))
            forward(socket);
    }

private:
    void accept()
    {
        while (QLocalSocket *socket = server.nextPendingConnection()) {
            held << socket;
            if (isPassing)
                forward(socket);
            else if (script == HangsUp)
                socket->disconnectFromServer();
            else if (script == AnswersLogin)
                connect(socket, &QLocalSocket::readyRead, socket, [socket] {
                    if (socket->readAll().contains("AUTH"))
                        socket->write("OK 0123456789abcdef0123456789abcdef\r\n");
                });
        }
    }

    void forward(QLocalSocket *socket)
    {
        auto *bus = new QLocalSocket(socket);
        const QByteArray path = qgetenv("DBUS_SESSION_BUS_ADDRESS").split('=').value(1).split(',').first();
        bus->connectToServer(QFile::decodeName(path));
        connect(socket, &QLocalSocket::readyRead, bus, [socket, bus] { bus->write(socket->readAll()); });
        connect(bus, &QLocalSocket::readyRead, socket, [socket, bus] { socket->write(bus->readAll()); });
        bus->write(socket->readAll());
    }

    const Script script;
    QTemporaryDir folder;
    int listening = -1;
    QVector<int> fillers;
    QLocalServer server;
    QList<QLocalSocket *> held;
    bool isGood = false;
    bool isPassing = false;
};

#endif
