// SPDX-License-Identifier: LGPL-2.1-or-later
// From the start of the client to its first window, and the memory that it takes then, beside a bare program of Qt with
// the same rows. The X server says when the window is mapped, the kernel how much memory is taken: neither program
// knows that it is measured. The programs take turns, so that what else the computer does concerns all of them.
#include "benchmarks/measurement.h"
#include "benchmarks/offline_profile.h"
#include "benchmarks/virtual_display.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <csignal>
#include <cstdlib>
#include <ctime>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

const int rounds = 21;

struct Program {
    QString name;
    QStringList command;
    QString library; ///< that it loads behind its window; empty: none
};

struct Figures {
    QVector<double> window; ///< milliseconds until it is mapped
    QVector<double> painting; ///< milliseconds until it is painted
    QVector<double> resident; ///< megabytes
    QVector<double> proportional; ///< megabytes, with its part of what several processes share
};

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString processFile(pid_t process, const char *name)
{
    return QStringLiteral("/proc/%1/%2").arg(process).arg(QLatin1String(name));
}

/// The number behind \a key, which is in kB, in MB; 0 when the kernel does not say it.
double megabytes(const QByteArray &table, const QByteArray &key)
{
    for (const QByteArray &line : table.split('\n')) {
        if (line.startsWith(key))
            return line.mid(key.size()).simplified().split(' ').first().toDouble() / 1024;
    }
    return 0;
}

/// What all threads of the process have used of the processor, in nanoseconds.
qint64 processorTime(pid_t process)
{
    clockid_t clock {};
    timespec used {};
    if (clock_getcpuclockid(process, &clock) != 0 || clock_gettime(clock, &used) != 0)
        qFatal("The process has ended");
    return qint64(used.tv_sec) * 1000 * 1000 * 1000 + used.tv_nsec;
}

/// Waits until the process has loaded \a library and then done nearly nothing for half a second. The client keeps
/// others from its memory, so that only root sees what it has loaded; for all others it is enough that nothing is done.
void waitUntilIdle(pid_t process, const QString &library)
{
    const qint64 negligible = 2 * 1000 * 1000;
    const qint64 end = VirtualDisplay::now() + 60LL * 1000 * 1000 * 1000;
    for (qint64 before = 0, used = 0; VirtualDisplay::now() < end; before = used) {
        used = processorTime(process);
        const QByteArray loaded = contentOf(processFile(process, "maps"));
        const bool isComplete = loaded.isEmpty() || loaded.contains(library.toUtf8());
        if (isComplete && before > 0 && used - before < negligible)
            return;
        usleep(500 * 1000);
    }
    qFatal("The process is not idle after a minute, or has not loaded %s", qPrintable(library));
}

pid_t start(const QStringList &command)
{
    QVector<QByteArray> words;
    for (const QString &word : command)
        words << QFile::encodeName(word);
    QVector<char *> pointers;
    for (QByteArray &word : words)
        pointers << word.data();
    pointers << nullptr;
    pid_t process = 0;
    if (posix_spawn(&process, pointers.first(), nullptr, nullptr, pointers.data(), environ) != 0)
        qFatal("%s cannot be started", pointers.first());
    return process;
}

void runOnce(const Program &program, VirtualDisplay &display, Figures *figures)
{
    const qint64 begin = VirtualDisplay::now();
    const pid_t process = start(program.command);
    const qint64 mapped = display.timeOfFirstWindow(process);
    const qint64 painted = display.timeOfFirstPainting();
    if (mapped < 0 || painted < 0)
        qFatal("%s shows no window", qPrintable(program.name));
    waitUntilIdle(process, program.library);
    figures->window << double(mapped - begin) / 1e6;
    figures->painting << double(painted - begin) / 1e6;
    figures->resident << megabytes(contentOf(processFile(process, "status")), "VmRSS:");
    figures->proportional << megabytes(contentOf(processFile(process, "smaps_rollup")), "Pss:");
    kill(process, SIGTERM);
    waitpid(process, nullptr, 0);
}

/// Adds the rows of all programs to \a table, the first of which the others are compared with.
void measure(const QVector<Program> &programs, int accounts, VirtualDisplay &display, Table *table)
{
    QVector<Figures> figures(programs.size());
    Figures unused;
    for (const Program &program : programs)
        runOnce(program, display, &unused); // warms the caches up, and tests the plug-ins
    for (int round = 0; round < rounds; ++round) {
        for (int i = 0; i < programs.size(); ++i)
            runOnce(programs.at(i), display, &figures[i]);
    }
    const double least = median(figures.first().window);
    const double leastMemory = median(figures.first().resident);
    const auto number = [](double value, int decimals) { return QString::number(value, 'f', decimals); };
    for (int i = 0; i < programs.size(); ++i) {
        const double window = median(figures.at(i).window);
        const double resident = median(figures.at(i).resident);
        const double proportional = median(figures.at(i).proportional);
        table->addRow({ programs.at(i).name, QString::number(accounts), number(window, 1), number(window / least, 2),
                        number(median(figures.at(i).painting), 1), number(resident, 1),
                        number(resident - leastMemory, 1),
                        proportional > 0 ? number(proportional, 1) : QStringLiteral("unknown") });
    }
}

/// The desktop that both sides find: a display, nothing of the user's own and no session bus, so no keyring.
void setEnvironment(const QString &folder, const VirtualDisplay &display)
{
    const QByteArray home = QFile::encodeName(folder);
    for (const char *name : { "QT_QPA_PLATFORM", "QT_QPA_PLATFORMTHEME", "QT_STYLE_OVERRIDE", "WAYLAND_DISPLAY",
                              "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_CURRENT_DESKTOP" })
        qunsetenv(name);
    qputenv("HOME", home);
    qputenv("XDG_RUNTIME_DIR", home);
    qputenv("DISPLAY", display.name());
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent");
    qputenv("LC_ALL", "C.UTF-8");
}

QString loadOfTheMachine()
{
    double load = 0;
    return getloadavg(&load, 1) == 1 ? QString::number(load, 'f', 1) : QString();
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QDir programs(QCoreApplication::applicationDirPath());
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Measures the start and the memory of the client beside a bare window."));
    parser.addHelpOption();
    addProfileOptions(&parser, "10,1000");
    parser.addOption({ QStringLiteral("client"), QStringLiteral("Measures the client <program>."),
                       QStringLiteral("program"), programs.filePath(QStringLiteral("kirv")) });
    parser.process(application);

    VirtualDisplay display;
    const QTemporaryDir home(QDir::current().absoluteFilePath(parser.value(QStringLiteral("folder")))
                             + QStringLiteral("/home-XXXXXX"));
    setEnvironment(home.path(), display);
    const QString load = loadOfTheMachine();
    const QString bare = programs.filePath(QStringLiteral("kirv_bare_window"));
    Table table({ QStringLiteral("program"), QStringLiteral("accounts"), QStringLiteral("window ms"),
                  QStringLiteral("to bare"), QStringLiteral("painted ms"), QStringLiteral("resident MB"),
                  QStringLiteral("above bare MB"), QStringLiteral("proportional MB") });
    for (const QString &number : parser.value(QStringLiteral("accounts")).split(QLatin1Char(','))) {
        const QString profile = QDir(home.path()).filePath(QStringLiteral("profile-") + number);
        makeOfflineProfile(profile, number.toInt());
        measure(
            { { QStringLiteral("bare window"), { bare, number }, QString() },
              { QStringLiteral("bare window without OpenGL"), { bare, number, QStringLiteral("--raster") }, QString() },
              { QStringLiteral("client"),
                { parser.value(QStringLiteral("client")), QStringLiteral("--profile"), profile },
                QStringLiteral("kirv_protocol_xmpp.so") } },
            number.toInt(), display, &table);
    }
    table.print(
        QStringLiteral("From the start of a program to its first mapped window under a virtual display, and the "
                       "memory that it takes when it is idle (medians of %1 starts in turns; load average %2 at "
                       "the beginning, %3 at the end)")
            .arg(QString::number(rounds), load, loadOfTheMachine()));
    return 0;
}
