// SPDX-License-Identifier: LGPL-2.1-or-later
// Many accounts log in to a private server at once, and again after it was restarted. Every measurement is a process of
// its own with the client's own parts and its window; the server runs beside it, on the same computer.
#include "benchmarks/measurement.h"

#include "client/kirv_application.h"
#include "client/kirv_client.h"
#include "client/kirv_settings_window.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/store/kirv_store.h"
#include "tools/servers/kirv_prosody_server.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <sys/resource.h>

namespace {

const QString accountProtocol = QStringLiteral("XMPP");

/// The time on the clock that all processes of this computer share, in nanoseconds.
qint64 now()
{
    return std::chrono::nanoseconds(std::chrono::steady_clock::now().time_since_epoch()).count();
}

/// What this process has used of the processor, in milliseconds.
double processorTime()
{
    rusage used {};
    getrusage(RUSAGE_SELF, &used);
    const auto milliseconds = [](const timeval &time) {
        return double(time.tv_sec) * 1e3 + double(time.tv_usec) / 1e3;
    };
    return milliseconds(used.ru_utime) + milliseconds(used.ru_stime);
}

/// The resident memory of this process, in kB.
qint64 residentMemory()
{
    QFile file(QStringLiteral("/proc/self/status"));
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray &line : file.readAll().split('\n')) {
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').first().toLongLong();
    }
    return -1;
}

/// The average number of processes that wanted to run in the last minute.
QString loadOfTheMachine()
{
    double load = 0;
    return getloadavg(&load, 1) == 1 ? QString::number(load, 'f', 1) : QString();
}

/// What this thread has used of the processor, in milliseconds.
double threadTime()
{
    timespec used {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &used);
    return double(used.tv_sec) * 1e3 + double(used.tv_nsec) / 1e6;
}

/// The longest of some times, and the one that 99 % of them do not exceed, in milliseconds.
struct Spread {
    explicit Spread(QVector<double> times = {})
    {
        if (times.isEmpty())
            return;
        std::sort(times.begin(), times.end());
        longest = times.last();
        percentile99 = times.at(int(0.99 * double(times.size() - 1)));
    }

    double longest = 0;
    double percentile99 = 0;
};

/// The gaps of the event loop: how long after one millisecond's timer the next one comes, and how much of that the
/// program has worked itself. The rest it has waited for the processor.
class GapMeter : public QObject {
public:
    GapMeter()
    {
        timer.setTimerType(Qt::PreciseTimer);
        connect(&timer, &QTimer::timeout, this, [this] {
            const double used = threadTime();
            gaps.append(double(sinceLast.nsecsElapsed()) / 1e6);
            workInGaps.append(used - usedBefore);
            usedBefore = used;
            sinceLast.restart();
        });
        restart();
        timer.start(1);
    }

    void restart()
    {
        gaps.clear();
        workInGaps.clear();
        usedBefore = threadTime();
        sinceLast.start();
    }

    Spread whole() const { return Spread(gaps); }
    Spread work() const { return Spread(workInGaps); }

private:
    QTimer timer;
    QElapsedTimer sinceLast;
    double usedBefore = 0;
    QVector<double> gaps;
    QVector<double> workInGaps;
};

/// What the started program does: the same as the client's main(), and it prints a line whenever all of its accounts
/// have come on line: the time on the clock, the processor's time, the memory and the gaps since the line before.
class ObservedClient : public QObject {
public:
    explicit ObservedClient(KirvClient &client)
        : client(client)
    {
        connect(&timer, &QTimer::timeout, this, &ObservedClient::look);
        timer.start(2);
    }

private:
    void look()
    {
        if (!client.arePluginsLoaded())
            return;
        const QList<KirvAccount *> accounts = client.accounts().accounts();
        const auto isOnline = [](const KirvAccount *account) { return account->isOnline(); };
        if (accounts.isEmpty() || !accounts.first()->record().enabled)
            return print();
        if (isLeft ? std::none_of(accounts.cbegin(), accounts.cend(), isOnline)
                   : std::all_of(accounts.cbegin(), accounts.cend(), isOnline)) {
            if (!isLeft)
                print();
            isLeft = !isLeft;
            processorBefore = processorTime();
            meter.restart();
        }
    }

    void print()
    {
        const Spread gaps = meter.whole(), work = meter.work();
        std::printf("%lld %f %lld %f %f %f %f\n", static_cast<long long>(now()), processorTime() - processorBefore,
                    static_cast<long long>(residentMemory()), gaps.longest, gaps.percentile99, work.longest,
                    work.percentile99);
        std::fflush(stdout);
    }

    KirvClient &client;
    QTimer timer;
    GapMeter meter;
    double processorBefore = processorTime();
    bool isLeft = false; ///< all were on line, and none is awaited
};

int startClient(const QString &profileFolder)
{
    KirvClientOptions options = KirvClientOptions::defaults();
    options.profileFolder = profileFolder;
    KirvClient client(options);
    if (!client.start()) {
        std::fprintf(stderr, "%s\n", qPrintable(client.errorString()));
        return 1;
    }
    client.window()->show();
    const ObservedClient observed(client);
    return QCoreApplication::exec();
}

/// What an observed client has printed.
struct Report {
    qint64 time = 0;
    double processor = 0; ///< milliseconds
    qint64 memory = 0; ///< kB
    double longestGap = 0;
    double gap99 = 0;
    double longestWork = 0; ///< in a gap
    double work99 = 0;
    bool isGood = false;
};

/// An observed client in a process of its own.
class ClientProcess {
public:
    explicit ClientProcess(const QString &profileFolder)
    {
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        started = now();
        process.start(QCoreApplication::applicationFilePath(), { QStringLiteral("--start"), profileFolder });
    }
    ~ClientProcess()
    {
        process.kill();
        process.waitForFinished();
    }

    Report next(int milliseconds)
    {
        QElapsedTimer timer;
        timer.start();
        while (!process.canReadLine() && timer.elapsed() < milliseconds && process.state() != QProcess::NotRunning) {
            process.waitForReadyRead(100);
            QCoreApplication::processEvents(); // reads what the server prints, which would wait for that otherwise
        }
        const QList<QByteArray> line = process.readLine().trimmed().split(' ');
        if (line.size() != 7)
            return {};
        return { line.at(0).toLongLong(), line.at(1).toDouble(), line.at(2).toLongLong(), line.at(3).toDouble(),
                 line.at(4).toDouble(),   line.at(5).toDouble(), line.at(6).toDouble(),   true };
    }

    qint64 started = 0;

private:
    QProcess process;
};

QString userName(int number)
{
    return QStringLiteral("user%1").arg(number);
}

/// The accounts of the server are files; its own tool would take a second for each.
void createUsers(const KirvProsodyServer &server, int count)
{
    const QDir folder(server.folder() + QStringLiteral("/data/%1/accounts").arg(server.domain()));
    folder.mkpath(QStringLiteral("."));
    for (int i = 0; i < count; ++i) {
        QFile file(folder.filePath(userName(i) + QStringLiteral(".dat")));
        if (!file.open(QIODevice::WriteOnly) || file.write("return { [\"password\"] = \"secret\"; };\n") < 0)
            qFatal("The account cannot be made: %s", qPrintable(file.errorString()));
    }
}

void createProfile(const QString &folder, const KirvProsodyServer &server, int count, bool areEnabled)
{
    const bool isEncrypted = !server.certificatePath().isEmpty();
    KirvStore store;
    bool good = store.open(folder) && store.begin();
    for (int i = 0; good && i < count; ++i) {
        KirvAccountRecord account;
        account.key = { userName(i) + QLatin1Char('@') + server.domain(), accountProtocol };
        account.password = QStringLiteral("secret");
        account.rememberPassword = true;
        account.enabled = areEnabled;
        account.defaultPresence = QStringLiteral("available");
        account.settings = { { QStringLiteral("server"), server.host() },
                             { QStringLiteral("port"), QString::number(server.port()) },
                             { QStringLiteral("encryption"),
                               isEncrypted ? QStringLiteral("required") : QStringLiteral("none") },
                             { QStringLiteral("certificate"), server.certificatePath() } };
        good = store.insertAccount(account);
    }
    if (!good || !store.commit())
        qFatal("The profile cannot be made: %s", qPrintable(store.lastError()));
}

/// The memory of the client with the same accounts while they are switched off.
qint64 memoryWithoutConnections(const QString &folder, const KirvProsodyServer &server, int count)
{
    const QTemporaryDir profile(folder + QStringLiteral("/profile-XXXXXX"));
    createProfile(profile.path(), server, count, false);
    ClientProcess(profile.path()).next(60000); // tests the plug-ins
    return ClientProcess(profile.path()).next(60000).memory;
}

QStringList row(const QString &name, int count, const Report &report, qint64 since, qint64 memoryBefore, int seen)
{
    if (!report.isGood)
        return { name, QString::number(count), QStringLiteral("not all"), QString::number(seen) };
    return { name,
             QString::number(count),
             QString::number(double(report.time - since) / 1e9, 'f', 2),
             QString::number(seen),
             QString::number(report.processor / 1e3, 'f', 2),
             QString::number(double(report.memory) / 1024, 'f', 1),
             QString::number(double(report.memory - memoryBefore) / 1024 / count, 'f', 3),
             QString::number(report.longestGap, 'f', 1),
             QString::number(report.gap99, 'f', 1),
             QString::number(report.longestWork, 'f', 1),
             QString::number(report.work99, 'f', 1),
             loadOfTheMachine() };
}

void measure(const QString &folder, int count, bool isEncrypted, int patience, Table *table)
{
    KirvProsodyServer::Options options;
    options.offersEncryption = options.requiresEncryption = isEncrypted;
    KirvProsodyServer server(options);
    if (!server.start())
        qFatal("The server cannot be started: %s", qPrintable(server.errorString()));
    createUsers(server, count);
    const QString name = isEncrypted ? QStringLiteral("TLS") : QStringLiteral("plain");
    const qint64 memory = memoryWithoutConnections(folder, server, count);

    const QTemporaryDir profile(folder + QStringLiteral("/profile-XXXXXX"));
    createProfile(profile.path(), server, 0, false);
    ClientProcess(profile.path()).next(60000); // tests the plug-ins
    createProfile(profile.path(), server, count, true);
    ClientProcess client(profile.path());
    const Report arrival = client.next(patience);
    table->addRow(row(name, count, arrival, client.started, memory, int(server.sessions().size())));
    if (!arrival.isGood)
        return;
    server.stop();
    if (!server.start())
        qFatal("The server cannot be started again: %s", qPrintable(server.errorString()));
    const qint64 restarted = now();
    const Report returned = client.next(patience);
    table->addRow(row(name + QStringLiteral(", server restarted"), count, returned, restarted, memory,
                      int(server.sessions().size())));
}

} // namespace

int main(int argc, char **argv)
{
    KirvApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Measures the log-in of many accounts."));
    parser.addHelpOption();
    addProfileOptions(&parser, "5,100,1000");
    parser.addOption({ QStringLiteral("patience"), QStringLiteral("Gives up after <seconds>."),
                       QStringLiteral("seconds"), QStringLiteral("120") });
    parser.addOption({ QStringLiteral("start"), QStringLiteral("Starts the client with the profile in <folder>."),
                       QStringLiteral("folder") });
    parser.process(application);
    if (parser.isSet(QStringLiteral("start")))
        return startClient(parser.value(QStringLiteral("start")));

    Table table({ QStringLiteral("encryption"), QStringLiteral("accounts"), QStringLiteral("all on line s"),
                  QStringLiteral("seen by the server"), QStringLiteral("processor s"), QStringLiteral("memory MB"),
                  QStringLiteral("MB each"), QStringLiteral("longest gap ms"), QStringLiteral("gap ms, 99 %"),
                  QStringLiteral("most work in a gap ms"), QStringLiteral("work ms, 99 %"), QStringLiteral("load") });
    const int patience = 1000 * parser.value(QStringLiteral("patience")).toInt();
    for (const QString &number : parser.value(QStringLiteral("accounts")).split(QLatin1Char(','))) {
        for (const bool isEncrypted : { false, true })
            measure(parser.value(QStringLiteral("folder")), number.toInt(), isEncrypted, patience, &table);
    }
    table.print(QStringLiteral("Accounts that log in at the start of the program, and again after the server was "
                               "restarted"));
    return 0;
}
