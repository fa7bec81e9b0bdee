// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tools/servers/kirv_local_server.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QHostAddress>
#include <QProcess>
#include <QRandomGenerator>
#include <QStandardPaths>
#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>

#ifdef Q_OS_LINUX
#include <csignal>
#include <sys/prctl.h>
#include <unistd.h>
#endif

namespace {

const int startTimeout = 15000;
const int stopTimeout = 5000;
const int toolTimeout = 30000;
const int pollInterval = 10;

QString translated(const char *text)
{
    return QCoreApplication::translate("KirvLocalServer", text);
}

/// Finds \a program also where servers live and an ordinary user's PATH does not look.
QString findProgram(const QString &program)
{
    const QString found = QStandardPaths::findExecutable(program);
    if (!found.isEmpty())
        return found;
    return QStandardPaths::findExecutable(
        program, { QStringLiteral("/usr/sbin"), QStringLiteral("/usr/local/sbin"), QStringLiteral("/sbin") });
}

#ifdef Q_OS_LINUX
/// Asks the system to end the child when its parent is gone, however that happens. Runs in the child before
/// its program starts.
void endWithParent(pid_t parent)
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != parent)
        _exit(1);
}
#endif

/// A child process that does not outlive its parent.
class ServerProcess : public QProcess {
public:
    ServerProcess()
    {
        setProcessChannelMode(MergedChannels);
        setStandardInputFile(nullDevice());
#if defined(Q_OS_LINUX) && QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
        setChildProcessModifier([parent = getpid()] { endWithParent(parent); });
#endif
    }

#if defined(Q_OS_LINUX) && QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
protected:
    void setupChildProcess() override
    {
        endWithParent(parent);
    }

private:
    const pid_t parent = getpid();
#endif
};

bool answers(quint16 port)
{
    QTcpSocket socket;
    socket.connectToHost(QHostAddress(QHostAddress::LocalHost), port);
    return socket.waitForConnected(1000);
}

} // namespace

KirvLocalServer::KirvLocalServer(quint16 port)
    : process(new ServerProcess)
    , serverPort(port)
{
    QObject::connect(process.get(), &QProcess::readyRead, process.get(), [this] { collected += process->readAll(); });
}

KirvLocalServer::~KirvLocalServer()
{
    stop();
}

bool KirvLocalServer::start()
{
    if (isRunning())
        return true;
    error.clear();
    if (!files.isValid())
        return fail(translated("A temporary folder could not be made: %1").arg(files.errorString()));
    if (serverPort == 0)
        serverPort = findFreePort();
    return writeConfiguration() && launch() && waitUntilReady();
}

bool KirvLocalServer::launch()
{
    const QString path = findProgram(program());
    if (path.isEmpty())
        return fail(translated("The program %1 is not installed.").arg(program()));
    collected.clear();
    process->start(path, arguments());
    if (!process->waitForStarted(startTimeout))
        return fail(translated("%1 could not be started: %2").arg(path, process->errorString()));
    return true;
}

bool KirvLocalServer::waitUntilReady()
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < startTimeout && isRunning()) {
        if (answers(serverPort))
            return true;
        process->waitForFinished(pollInterval);
    }
    const QString printed = output();
    kill();
    return fail(translated("%1 did not come up. It said: %2").arg(program(), printed));
}

void KirvLocalServer::stop()
{
    process->terminate();
    end(stopTimeout);
}

void KirvLocalServer::kill()
{
    end(0);
}

void KirvLocalServer::end(int milliseconds)
{
    if (!isRunning() || process->waitForFinished(milliseconds))
        return;
    process->kill();
    process->waitForFinished(stopTimeout);
}

bool KirvLocalServer::isRunning() const
{
    return process->state() != QProcess::NotRunning;
}

QString KirvLocalServer::output()
{
    if (isRunning())
        process->waitForReadyRead(0);
    collected += process->readAll();
    return QString::fromUtf8(collected);
}

quint16 KirvLocalServer::findFreePort()
{
    // Below the range from which the system takes the ports of outgoing connections, so that none of these
    // takes it between now and the server's start.
    for (;;) {
        const auto port = quint16(QRandomGenerator::global()->bounded(10000, 32000));
        QTcpServer probe;
        if (probe.listen(QHostAddress::LocalHost, port))
            return port;
    }
}

bool KirvLocalServer::fail(const QString &text)
{
    error = text;
    return false;
}

bool KirvLocalServer::writeFile(const QString &name, const QByteArray &content)
{
    QFile file(files.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || !file.setPermissions(QFile::ReadOwner | QFile::WriteOwner)
        || file.write(content) != content.size())
        return fail(translated("%1 could not be written: %2").arg(file.fileName(), file.errorString()));
    return true;
}

bool KirvLocalServer::runTool(const QString &program, const QStringList &arguments, QString *printed)
{
    const QString path = findProgram(program);
    if (path.isEmpty())
        return fail(translated("The program %1 is not installed.").arg(program));
    ServerProcess tool;
    tool.start(path, arguments);
    const bool ended = tool.waitForFinished(toolTimeout);
    const QString text = QString::fromUtf8(tool.readAll());
    if (printed)
        *printed = text;
    if (!ended || tool.exitStatus() != QProcess::NormalExit || tool.exitCode() != 0)
        return fail(translated("%1 failed. It said: %2").arg(program, text));
    return true;
}
