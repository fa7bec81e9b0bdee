// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PROGRAM_RUN_H
#define KIRV_PROGRAM_RUN_H

#include "tests/support/kirv_patience.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QProcessEnvironment>
#include <QtTest>

/// What a run of the program has printed. A value type.
struct KirvProgramRun {
    int status = -1; ///< -1: it did not end by itself
    QByteArray output, errors;

    QString text() const { return QString::fromUtf8(output); }
    QString errorText() const { return QString::fromUtf8(errors); }
    /// What it printed as JSON, when that was one line.
    QJsonObject json() const
    {
        return output.count('\n') == 1 && output.endsWith('\n') ? QJsonDocument::fromJson(output).object()
                                                                : QJsonObject();
    }
};

/// Runs \a program in \a folder, without a display, and hands \a input to it. The event loop of this process turns
/// meanwhile.
inline KirvProgramRun kirvRunProgram(const QString &program, const QStringList &arguments, const QString &folder,
                                     const QByteArray &input = QByteArray())
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *variable : { "DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM" })
        environment.remove(QLatin1String(variable));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(folder);
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    if (!QTest::qWaitFor([&] { return process.state() == QProcess::NotRunning; }, kirvPatienceWithProgram)
        || process.exitStatus() != QProcess::NormalExit) {
        process.kill();
        process.waitForFinished(kirvPatience);
        return { -1, process.readAllStandardOutput(), process.readAllStandardError() };
    }
    return { process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError() };
}

#endif
