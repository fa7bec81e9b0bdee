// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_instance_connection.h"

#include "client/kirv_instance_message.h"
#include "client/kirv_thread_work.h"

#include <QLocalSocket>
#include <QThreadPool>

#include <memory>
#include <sys/socket.h>
#include <unistd.h>
#include <utility>

namespace {
const int millisecondsWithoutProgress = 5000;
}

bool KirvInstanceConnection::isOfOwnUser(const QLocalSocket &socket)
{
    struct ucred peer { };
    socklen_t size = sizeof peer;
    return ::getsockopt(int(socket.socketDescriptor()), SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0
        && peer.uid == ::geteuid();
}

KirvInstanceConnection::KirvInstanceConnection(QLocalSocket *socket, QThreadPool &threads, QObject *parent)
    : QObject(parent)
    , socket(socket)
    , threads(threads)
{
    socket->setParent(this);
    socket->setReadBufferSize(KirvInstanceMessage::longestSmall);
    patience.setSingleShot(true);
    patience.setInterval(millisecondsWithoutProgress);
    connect(&patience, &QTimer::timeout, this, &KirvInstanceConnection::end);
    connect(socket, &QLocalSocket::disconnected, this, &KirvInstanceConnection::end);
    connect(socket, &QLocalSocket::readyRead, this, &KirvInstanceConnection::read);
    connect(socket, &QLocalSocket::bytesWritten, this, [this] {
        if (this->socket->bytesToWrite() == 0)
            this->socket->disconnectFromServer();
        else
            patience.start();
    });
}

void KirvInstanceConnection::start()
{
    patience.start();
    read();
}

void KirvInstanceConnection::allowLarge()
{
    mayBeLarge = true;
    if (!std::exchange(isWaiting, false))
        return;
    patience.start();
    read();
}

/// While a line is too large for now, it stays where it is: the other end has to wait.
void KirvInstanceConnection::read()
{
    if (isComplete || isWaiting)
        return;
    const QByteArray more = socket->read(KirvInstanceMessage::longestSmall);
    if (more.isEmpty())
        return;
    patience.start();
    line += more;
    if (more.contains('\n'))
        return parse();
    if (line.size() > KirvInstanceMessage::longest)
        return end();
    if (line.size() >= KirvInstanceMessage::longestSmall && !mayBeLarge) {
        isWaiting = true;
        patience.stop();
        Q_EMIT isLarge();
        return;
    }
    if (socket->bytesAvailable() > 0)
        QMetaObject::invokeMethod(this, &KirvInstanceConnection::read, Qt::QueuedConnection);
}

void KirvInstanceConnection::parse()
{
    isComplete = true;
    patience.stop();
    struct Work {
        QByteArray line;
        QJsonObject message;
        QString problem;
    };
    const auto work = std::make_shared<Work>();
    line.truncate(line.indexOf('\n'));
    work->line = std::exchange(line, QByteArray());
    KirvThreadWork::start(
        threads, this,
        [work] {
            work->message = KirvInstanceMessage::fromLine(work->line, &work->problem);
            work->line.fill('\0'); // there may be a pass phrase in it
        },
        [this, work] {
            if (work->problem.isEmpty())
                Q_EMIT received(work->message);
            else
                reply(KirvInstanceMessage::refusal(work->problem));
        });
}

void KirvInstanceConnection::reply(const QJsonObject &message)
{
    const auto reply = std::make_shared<QByteArray>();
    KirvThreadWork::start(
        threads, this, [reply, message] { *reply = KirvInstanceMessage::toLine(message); },
        [this, reply] { send(*reply); });
}

void KirvInstanceConnection::send(const QByteArray &line)
{
    if (hasEnded)
        return;
    patience.start();
    socket->write(line);
}

void KirvInstanceConnection::end()
{
    if (std::exchange(hasEnded, true))
        return;
    patience.stop();
    socket->disconnect(this);
    socket->abort();
    deleteLater();
    Q_EMIT ended();
}
