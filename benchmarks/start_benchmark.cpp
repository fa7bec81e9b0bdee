// SPDX-License-Identifier: LGPL-2.1-or-later
// From the start of the program to the painted window and list, with no account and with many. Every start is a process
// of its own: this program starts itself, with the client's own parts, and ends when the list has been painted. The
// accounts are switched off, so that nothing is logged in meanwhile. Between the two a timer of a millisecond runs,
// whose gaps say for how long the window did not answer.
#include "benchmarks/measurement.h"
#include "benchmarks/offline_profile.h"

#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_application.h"
#include "client/kirv_client.h"
#include "client/kirv_settings_window.h"

#include <QCommandLineParser>
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeWidget>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <map>

namespace {

const int starts = 15;

/// The time on the clock that all processes of this computer share, in nanoseconds.
qint64 now()
{
    return std::chrono::nanoseconds(std::chrono::steady_clock::now().time_since_epoch()).count();
}

/// Notes when the window is painted, and ends the program when the list with the accounts of all plug-ins is.
class EndWhenPainted : public QObject {
public:
    EndWhenPainted(const KirvClient &client, qint64 started)
        : client(client)
        , list(client.accountsPage()->findChild<QTreeWidget *>(QStringLiteral("Accounts_List")))
        , started(started)
    {
        list->viewport()->installEventFilter(this);
        connect(&timer, &QTimer::timeout, this, &EndWhenPainted::endWhenLoaded);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() != QEvent::Paint)
            return false;
        list->viewport()->removeEventFilter(this);
        // What is painted together with it is painted then.
        QTimer::singleShot(0, this, [this] {
            windowPainted = lastTurn = now();
            timer.start(1);
        });
        return false;
    }

private:
    void endWhenLoaded()
    {
        longestGap = std::max(longestGap, now() - lastTurn);
        lastTurn = now();
        if (!client.arePluginsLoaded())
            return;
        timer.stop();
        list->viewport()->repaint();
        longestGap = std::max(longestGap, now() - lastTurn);
        std::printf("%lld %lld %lld %d\n", static_cast<long long>(windowPainted - started),
                    static_cast<long long>(now() - started), static_cast<long long>(longestGap),
                    list->topLevelItemCount());
        QCoreApplication::quit();
    }

    const KirvClient &client;
    const QTreeWidget *list;
    const qint64 started;
    qint64 windowPainted = 0;
    qint64 lastTurn = 0;
    qint64 longestGap = 0;
    QTimer timer;
};

/// What the started program does: the same as the client's main().
int startClient(const QString &profileFolder, qint64 started)
{
    KirvClientOptions options = KirvClientOptions::defaults();
    options.profileFolder = profileFolder;
    KirvClient client(options);
    if (!client.start()) {
        std::fprintf(stderr, "%s\n", qPrintable(client.errorString()));
        return 1;
    }
    client.window()->show();
    const EndWhenPainted end(client, started);
    return QCoreApplication::exec();
}

/// The milliseconds of one start.
struct Start {
    double window = 0;
    double list = 0;
    double gap = 0; ///< the longest between two turns of the event loop, from the one to the other
};

Start startOnce(const QString &profileFolder, int accountCount)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(),
                  { QStringLiteral("--start"), profileFolder, QStringLiteral("--clock"), QString::number(now()) });
    process.waitForFinished(60000);
    const QList<QByteArray> answer = process.readAllStandardOutput().trimmed().split(' ');
    if (answer.size() != 4 || answer.at(3).toInt() != accountCount)
        qFatal("The page of %d accounts was not shown", accountCount);
    return { answer.at(0).toDouble() / 1e6, answer.at(1).toDouble() / 1e6, answer.at(2).toDouble() / 1e6 };
}

Start measure(const QString &folder, int accountCount)
{
    QTemporaryDir profile(folder + QStringLiteral("/profile-XXXXXX"));
    makeOfflineProfile(profile.path(), accountCount);
    startOnce(profile.path(), accountCount); // warms the caches up, and tests the plug-ins
    QVector<double> window;
    QVector<double> list;
    QVector<double> gap;
    for (int i = 0; i < starts; ++i) {
        const Start start = startOnce(profile.path(), accountCount);
        window.append(start.window);
        list.append(start.list);
        gap.append(start.gap);
    }
    return { median(window), median(list), median(gap) };
}

} // namespace

int main(int argc, char **argv)
{
    KirvApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Measures the start of the client."));
    parser.addHelpOption();
    addProfileOptions(&parser, "0,1000");
    parser.addOption({ QStringLiteral("start"), QStringLiteral("Starts once, with the profile in <folder>."),
                       QStringLiteral("folder") });
    parser.addOption({ QStringLiteral("clock"), QStringLiteral("When --start was asked for, in <nanoseconds>."),
                       QStringLiteral("nanoseconds") });
    parser.process(application);
    if (parser.isSet(QStringLiteral("start")))
        return startClient(parser.value(QStringLiteral("start")), parser.value(QStringLiteral("clock")).toLongLong());

    Table table({ QStringLiteral("accounts"), QStringLiteral("window ms"), QStringLiteral("list ms"),
                  QStringLiteral("longest gap ms") });
    for (const QString &number : parser.value(QStringLiteral("accounts")).split(QLatin1Char(','))) {
        const Start start = measure(parser.value(QStringLiteral("folder")), number.toInt());
        table.addRow({ number, formatMilliseconds(start.window), formatMilliseconds(start.list),
                       formatMilliseconds(start.gap) });
    }
    table.print(QStringLiteral("From the start of the program to the painted window, and to the list with the accounts "
                               "of all plug-ins; the longest gap between two turns of the event loop on the way from "
                               "the one to the other (medians of %1)")
                    .arg(starts));
    return 0;
}
