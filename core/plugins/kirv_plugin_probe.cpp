// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/plugins/kirv_plugin_probe.h"

#include "core/plugins/kirv_plugin_tester.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#ifdef Q_OS_UNIX
#include <csignal>
#endif

namespace {

const int maximumReply = 64;

/// The one beside the program comes first, so that a build that is not installed uses its own.
QString testerProgram()
{
    const QDir program(QCoreApplication::applicationDirPath());
    const QStringList candidates { program.filePath(QStringLiteral("../lib/kirv/kirv_plugin_tester")),
                                   program.filePath(QStringLiteral(KIRV_TESTER_FROM_BIN)) };
    for (const QString &candidate : candidates) {
        if (QFileInfo(candidate).isExecutable())
            return QDir::cleanPath(candidate);
    }
    return QString();
}

} // namespace

KirvPluginProbe::KirvPluginProbe(QObject *parent)
    : QObject(parent)
{
    limit.setSingleShot(true);
    limit.setTimerType(Qt::PreciseTimer);
    limit.setInterval(10 * 1000);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    connect(&limit, &QTimer::timeout, this, [this] {
        isLate = true;
        stop();
    });
    connect(&process, &QProcess::readyReadStandardOutput, this, &KirvPluginProbe::read);
    connect(&process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this, &KirvPluginProbe::report);
    connect(&process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) // only then there is no finished()
            report();
    });
}

KirvPluginProbe::~KirvPluginProbe()
{
    disconnect(&process, nullptr, this, nullptr);
    stop();
    process.waitForFinished(1000);
}

void KirvPluginProbe::start(const QString &fileName)
{
    reply.clear();
    isLate = false;
    const QString program = testerProgram();
    if (program.isEmpty()) {
        QTimer::singleShot(0, this, &KirvPluginProbe::report);
        return;
    }
    limit.start();
    process.start(program, { fileName });
}

void KirvPluginProbe::read()
{
    const QByteArray more = process.readAllStandardOutput();
    reply += more.left(maximumReply - int(reply.size()));
}

/// The tester leads a process group of its own, so that what a plug-in has started ends with it.
void KirvPluginProbe::stop()
{
    if (process.state() == QProcess::NotRunning)
        return;
#ifdef Q_OS_UNIX
    if (process.processId() > 1)
        ::kill(-pid_t(process.processId()), SIGKILL);
#endif
    process.kill();
}

void KirvPluginProbe::report()
{
    limit.stop();
    if (process.isOpen())
        read();
    KirvPluginRecord::Verdict verdict = KirvPluginRecord::Ended;
    if (!reply.startsWith(kirvTesterReady)) // no code of the plug-in has run
        verdict = KirvPluginRecord::Unknown;
    else if (reply.endsWith(kirvTesterSurvived))
        verdict = KirvPluginRecord::Survived;
    else if (isLate)
        verdict = KirvPluginRecord::TookTooLong;
    else if (process.exitStatus() == QProcess::CrashExit)
        verdict = KirvPluginRecord::Crashed;
    Q_EMIT finished(verdict);
}
