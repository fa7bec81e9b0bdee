// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_running_instance.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocalSocket>
#include <QThread>
#include <QTimer>

#include <sys/stat.h>
#include <unistd.h>

namespace {

const int millisecondsBetweenAttempts = 50;
const int millisecondsForALink = 5000;
const int mostLinksAtOnce = 8;
const QByteArray reply = QByteArrayLiteral("shown\n");

/// The desktop's folder for the user's running programs; empty when there is none that nobody else can use.
QString runtimeFolder()
{
    const QByteArray folder = qgetenv("XDG_RUNTIME_DIR");
    struct stat status { };
    const bool isOwn = folder.startsWith('/') && ::stat(folder.constData(), &status) == 0 && S_ISDIR(status.st_mode)
        && status.st_uid == ::geteuid() && (status.st_mode & (S_IRWXG | S_IRWXO)) == 0;
    return isOwn ? QFile::decodeName(folder) : QString();
}

/// Whether \a path can be listened at: it is free, or a socket that nobody listens at any more.
bool makeRoomAt(const QString &path)
{
    struct stat status { };
    if (::lstat(QFile::encodeName(path).constData(), &status) != 0)
        return true;
    return S_ISSOCK(status.st_mode) && QLocalServer::removeServer(path);
}

} // namespace

KirvRunningInstance::KirvRunningInstance(const QString &profileFolder, QObject *parent)
    : QObject(parent)
{
    const QString path = socketPath(profileFolder);
    if (path.isEmpty() || !makeRoomAt(path))
        return;
    server.setSocketOptions(QLocalServer::UserAccessOption);
    server.setMaxPendingConnections(mostLinksAtOnce);
    connect(&server, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket *socket = server.nextPendingConnection())
            accept(socket);
    });
    server.listen(path);
}

KirvRunningInstance::~KirvRunningInstance() = default;

QString KirvRunningInstance::socketPath(const QString &profileFolder)
{
    const QString folder = runtimeFolder();
    // The same folder has one name here, whatever links lead to it. It exists, as somebody has it open.
    const QString profile = QFileInfo(profileFolder).canonicalFilePath();
    if (folder.isEmpty() || profile.isEmpty())
        return QString();
    // Short, as the system allows some 100 bytes only.
    const QByteArray hash = QCryptographicHash::hash(profile.toUtf8(), QCryptographicHash::Sha256).toHex().left(16);
    return QDir(folder).filePath(QLatin1String("kirv-") + QString::fromLatin1(hash));
}

void KirvRunningInstance::accept(QLocalSocket *socket)
{
    connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
    if (server.findChildren<QLocalSocket *>().size() > mostLinksAtOnce)
        return socket->abort();
    socket->setReadBufferSize(longestLink + 1);
    connect(socket, &QLocalSocket::readyRead, this, [this, socket] { read(socket); });
    QTimer::singleShot(millisecondsForALink, socket, [socket] { socket->abort(); });
    read(socket);
}

void KirvRunningInstance::read(QLocalSocket *socket)
{
    if (!socket->canReadLine()) {
        if (socket->bytesAvailable() > longestLink)
            socket->abort();
        return;
    }
    const QString link = QString::fromUtf8(socket->readLine(longestLink + 1).trimmed());
    socket->disconnect(this);
    socket->write(reply);
    socket->disconnectFromServer();
    Q_EMIT startedAgain(KirvAccountLink::fromText(link));
}

bool KirvRunningInstance::handOver(const QString &profileFolder, const QString &link, int milliseconds)
{
    const QString path = socketPath(profileFolder);
    const QByteArray message = link.toUtf8();
    if (path.isEmpty() || message.size() >= longestLink || message.contains('\n'))
        return false;
    const QDeadlineTimer deadline(milliseconds);
    QLocalSocket socket;
    // A program that has just been started has the profile open before it listens.
    for (;;) {
        socket.connectToServer(path);
        if (socket.waitForConnected(int(deadline.remainingTime())))
            break;
        if (deadline.remainingTime() <= millisecondsBetweenAttempts)
            return false;
        QThread::msleep(millisecondsBetweenAttempts);
    }
    socket.write(message + '\n');
    QByteArray received;
    while (!received.contains('\n') && socket.waitForReadyRead(int(deadline.remainingTime())))
        received += socket.read(reply.size());
    return received == reply;
}
