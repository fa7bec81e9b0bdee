// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_running_instance.h"

#include "client/kirv_instance_connection.h"
#include "client/kirv_instance_message.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocalSocket>
#include <QThread>

#include <sys/stat.h>
#include <unistd.h>

namespace {

const int millisecondsBetweenAttempts = 50;
const int millisecondsUntilItListens = 500;
const QLatin1String commandKey("command");
const QLatin1String linkKey("link");
const QLatin1String tooLongKey("linkIsTooLong");
const QLatin1String shown("show");

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
    server.setMaxPendingConnections(mostAtOnce);
    threads.setMaxThreadCount(1);
    // Queued, so that connections that have ended by then do not count.
    const auto acceptAll = [this] {
        while (QLocalSocket *socket = server.nextPendingConnection())
            accept(socket);
    };
    connect(&server, &QLocalServer::newConnection, this, acceptAll, Qt::QueuedConnection);
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

bool KirvRunningInstance::canMeet(const QString &profileFolder)
{
    return !socketPath(profileFolder).isEmpty();
}

void KirvRunningInstance::accept(QLocalSocket *socket)
{
    if (connections >= mostAtOnce || !KirvInstanceConnection::isOfOwnUser(*socket)) {
        socket->abort();
        socket->deleteLater();
        return;
    }
    auto *connection = new KirvInstanceConnection(socket, threads, this);
    ++connections;
    connect(connection, &KirvInstanceConnection::ended, this, [this] { --connections; });
    connect(connection, &KirvInstanceConnection::received, this,
            [this, connection](const QJsonObject &message) { handle(connection, message); });
    connect(connection, &KirvInstanceConnection::isLarge, this, [this, connection] {
        large << connection;
        nextLarge();
    });
    connect(connection, &QObject::destroyed, this, &KirvRunningInstance::nextLarge, Qt::QueuedConnection);
    connection->start();
}

void KirvRunningInstance::nextLarge()
{
    while (!currentLarge && !large.isEmpty()) {
        currentLarge = large.takeFirst();
        if (currentLarge)
            currentLarge->allowLarge();
    }
}

void KirvRunningInstance::handle(KirvInstanceConnection *connection, const QJsonObject &message)
{
    const auto reply = [answered = QPointer<KirvInstanceConnection>(connection)](const QJsonObject &answer) {
        if (answered)
            answered->reply(answer);
    };
    if (message.value(commandKey).toString() == shown) {
        KirvAccountLink link = KirvAccountLink::fromText(message.value(linkKey).toString());
        link.isTooLong = link.isTooLong || message.value(tooLongKey).toBool();
        reply({ { commandKey, shown } });
        Q_EMIT laterStart(link);
    } else if (handler) {
        handler(message, reply);
    } else {
        reply(KirvInstanceMessage::unknownCommand());
    }
}

bool KirvRunningInstance::handOver(const QString &profileFolder, const QString &link, int milliseconds,
                                   QString *problem)
{
    const bool isTooLong = KirvAccountLink::fromText(link).isTooLong;
    const QJsonObject message { { commandKey, shown },
                                { linkKey, isTooLong ? QString() : link },
                                { tooLongKey, isTooLong } };
    const Answer answer = request(profileFolder, message, qMin(milliseconds, millisecondsUntilItListens), milliseconds);
    if (problem)
        *problem = answer.problem;
    return answer.message.value(commandKey).toString() == shown;
}

KirvRunningInstance::Answer KirvRunningInstance::request(const QString &profileFolder, const QJsonObject &message,
                                                         int connectMilliseconds, int milliseconds)
{
    Answer answer;
    const QString path = socketPath(profileFolder);
    if (path.isEmpty())
        return answer;
    QDeadlineTimer deadline(connectMilliseconds);
    QLocalSocket socket;
    // A program that has just been started has the profile open before it listens.
    for (;;) {
        socket.connectToServer(path);
        if (socket.waitForConnected(int(deadline.remainingTime())))
            break;
        if (deadline.remainingTime() <= millisecondsBetweenAttempts)
            return answer;
        QThread::msleep(millisecondsBetweenAttempts);
    }
    if (!KirvInstanceConnection::isOfOwnUser(socket))
        return answer;
    answer.isThere = true;
    socket.write(KirvInstanceMessage::toLine(message));
    QByteArray received;
    deadline = QDeadlineTimer(milliseconds);
    while (!received.endsWith('\n') && received.size() <= KirvInstanceMessage::longest
           && socket.waitForReadyRead(int(deadline.remainingTime())))
        received += socket.readAll();
    if (received.endsWith('\n'))
        answer.message = KirvInstanceMessage::fromLine(received, &answer.problem);
    if (answer.problem.isEmpty())
        answer.problem = answer.message.value(QLatin1String("problem")).toString();
    return answer;
}
