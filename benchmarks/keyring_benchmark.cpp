// SPDX-License-Identifier: LGPL-2.1-or-later
// The client with remembered passwords in a real keyring, on a session bus of its own: from the start to the painted
// window and until all accounts are on line, the move of a profile, and saves. The accounts are those of the example
// protocol, which has no network. Every start is a process of its own.
#include "benchmarks/measurement.h"

#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_application.h"
#include "client/kirv_client.h"
#include "client/kirv_settings_window.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/store/kirv_store.h"
#include "tests/support/servers/kirv_gnome_keyring.h"
#include "tests/support/servers/kirv_private_bus.h"

#include <QEventLoop>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeWidget>
#include <algorithm>
#include <cstdio>
#include <ctime>
#include <memory>

namespace {

const int patience = 300000; ///< milliseconds

KirvClientOptions optionsFor(const QString &profileFolder, bool usesKeyring)
{
    KirvClientOptions options = KirvClientOptions::defaults();
    options.profileFolder = profileFolder;
    options.pluginFolder = QStringLiteral(KIRV_EXAMPLE_PROTOCOLS);
    options.usesKeyring = usesKeyring;
    return options;
}

void createProfile(const QString &folder, int accountCount)
{
    KirvStore store;
    bool good = store.open(folder) && store.begin();
    for (int i = 0; good && i < accountCount; ++i) {
        KirvAccountRecord account;
        account.key = { QStringLiteral("user%1").arg(i), QStringLiteral("Example") };
        account.rememberPassword = true;
        account.password = QStringLiteral("password of %1").arg(i);
        account.settings.insert(QStringLiteral("latency"), QStringLiteral("0"));
        good = store.insertAccount(account);
    }
    if (!good || !store.commit())
        qFatal("The profile cannot be made: %s", qPrintable(store.lastError()));
}

/// The longest time between two turns of the event loop, and the most that this thread has worked itself in one. The
/// rest it has waited, for the processor or the disk. Milliseconds.
class Gaps : public QObject {
public:
    Gaps()
        : used(threadTime())
    {
        clock.start();
        startTimer(1, Qt::PreciseTimer);
    }
    double longest = 0;
    double mostWork = 0;

protected:
    void timerEvent(QTimerEvent *) override
    {
        const double now = threadTime();
        longest = std::max(longest, double(clock.nsecsElapsed()) / 1e6);
        mostWork = std::max(mostWork, now - used);
        used = now;
        clock.restart();
    }

private:
    static double threadTime()
    {
        timespec time {};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
    }

    QElapsedTimer clock;
    double used;
};

bool areAllOnline(const KirvClient &client)
{
    const QList<KirvAccount *> accounts = client.accounts().accounts();
    return std::all_of(accounts.begin(), accounts.end(),
                       [](const KirvAccount *account) { return account->isOnline(); });
}

/// Runs the event loop until \a isDone; false when that takes too long.
bool runUntil(const std::function<bool()> &isDone)
{
    QEventLoop loop;
    QTimer check, limit;
    QObject::connect(&check, &QTimer::timeout, [&] {
        if (isDone())
            loop.quit();
    });
    QObject::connect(&limit, &QTimer::timeout, &loop, &QEventLoop::quit);
    check.start(1);
    limit.start(patience);
    loop.exec();
    return isDone();
}

double elapsed(const QElapsedTimer &timer)
{
    return double(timer.nsecsElapsed()) / 1e6;
}

/// One start: prints the milliseconds to the window and until all are on line, and the longest gap of the event loop
/// and the most work in one between the two.
int startOnce(const QString &folder, bool usesKeyring)
{
    QElapsedTimer timer;
    timer.start();
    KirvClient client(optionsFor(folder, usesKeyring));
    if (!client.start())
        return 1;
    bool isPainted = false;
    class Filter : public QObject {
    public:
        explicit Filter(bool &seen)
            : seen(seen)
        {
        }
        bool eventFilter(QObject *, QEvent *event) override
        {
            seen = seen || event->type() == QEvent::Paint;
            return false;
        }
        bool &seen;
    } filter(isPainted);
    auto *list = client.accountsPage()->findChild<QTreeWidget *>(QStringLiteral("Accounts_List"));
    list->viewport()->installEventFilter(&filter);
    client.window()->show();
    if (!runUntil([&] { return isPainted; }))
        return 1;
    const double window = elapsed(timer);
    const Gaps gaps;
    if (!runUntil([&] { return client.arePluginsLoaded() && areAllOnline(client); }))
        return 1;
    std::printf("%f %f %f %f", window, elapsed(timer), gaps.longest, gaps.mostWork);
    return 0;
}

QVector<double> start(const QString &folder, bool usesKeyring)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(),
                  { QStringLiteral("--start"), folder, QLatin1String(usesKeyring ? "keyring" : "file") });
    process.waitForFinished(patience);
    const QList<QByteArray> answer = process.readAllStandardOutput().split(' ');
    if (answer.size() != 4)
        qFatal("A start failed");
    return { answer.at(0).toDouble(), answer.at(1).toDouble(), answer.at(2).toDouble(), answer.at(3).toDouble() };
}

void measureStarts(const QString &folder, int accounts, bool usesKeyring, Table &table)
{
    const int starts = accounts > 100 ? 3 : 5;
    QVector<double> window, online, gap, work;
    for (int i = 0; i < starts; ++i) {
        const QVector<double> one = start(folder, usesKeyring);
        window << one.at(0);
        online << one.at(1);
        gap << one.at(2);
        work << one.at(3);
    }
    table.addRow({ QString::number(accounts), usesKeyring ? QStringLiteral("keyring") : QStringLiteral("profile"),
                   formatMilliseconds(median(window)), formatMilliseconds(median(online)),
                   formatMilliseconds(*std::max_element(gap.begin(), gap.end())),
                   formatMilliseconds(*std::max_element(work.begin(), work.end())) });
}

void waitUntil(const std::function<bool()> &isDone)
{
    if (!runUntil(isDone))
        qFatal("Something did not end");
}

/// The move of a profile, and then changes of one account in it.
void measureMoveAndSaves(const QString &folder, int accounts, Table &table)
{
    KirvClient client(optionsFor(folder, true));
    if (!client.start())
        qFatal("%s", qPrintable(client.errorString()));
    client.window()->show();
    QElapsedTimer timer;
    timer.start();
    bool isMoved = false;
    QObject::connect(&client.accounts().secrets(), &KirvSecretKeeper::moved, [&isMoved] { isMoved = true; });
    const std::unique_ptr<Gaps> gaps = std::make_unique<Gaps>();
    waitUntil([&] { return isMoved; });
    const QString number = QString::number(accounts);
    table.addRow({ number, QStringLiteral("move of the profile"), formatMilliseconds(elapsed(timer)),
                   formatMilliseconds(gaps->longest), formatMilliseconds(gaps->mostWork) });
    waitUntil([&] { return client.profile().unsettledItems().isEmpty(); });
    QVector<double> saved, settled;
    for (int i = 0; i < 20; ++i) {
        KirvAccount *account = client.accounts().accounts().at(i % accounts);
        timer.start();
        account->setPassword(QStringLiteral("another one %1").arg(i));
        saved << elapsed(timer);
        waitUntil([&] { return client.profile().unsettledItems().isEmpty(); });
        settled << elapsed(timer);
    }
    table.addRow(
        { number, QStringLiteral("save of a password"), formatMilliseconds(median(saved)), QString(), QString() });
    table.addRow({ number, QStringLiteral("until the old one is removed"), formatMilliseconds(median(settled)),
                   QString(), QString() });
}

} // namespace

int main(int argc, char **argv)
{
    kirvEnterPrivateBus(argv);
    kirvForgetPrivateBusFile();
    KirvApplication application(argc, argv);
    const QStringList arguments = KirvApplication::arguments();
    if (arguments.value(1) == QLatin1String("--start"))
        return startOnce(arguments.value(2), arguments.value(3) == QLatin1String("keyring"));

    KirvGnomeKeyring daemon;
    if (!daemon.start())
        qFatal("GNOME Keyring cannot be started");
    const QString folder = arguments.value(1, QDir::tempPath());
    Table starts({ QStringLiteral("accounts"), QStringLiteral("passwords in"), QStringLiteral("window ms"),
                   QStringLiteral("all on line ms"), QStringLiteral("longest gap ms"),
                   QStringLiteral("most work ms") });
    Table changes({ QStringLiteral("accounts"), QStringLiteral("operation"), QStringLiteral("ms"),
                    QStringLiteral("longest gap ms"), QStringLiteral("most work ms") });
    for (const int accounts : { 10, 1000 }) {
        QTemporaryDir profile(folder + QStringLiteral("/profile-XXXXXX"));
        createProfile(profile.path(), accounts);
        measureStarts(profile.path(), accounts, false, starts);
        measureMoveAndSaves(profile.path(), accounts, changes);
        measureStarts(profile.path(), accounts, true, starts);
    }
    starts.print(
        QStringLiteral("From the start to the painted window, and until all accounts are on line (medians, the "
                       "longest gap and the most work in one of all starts)"));
    changes.print(QStringLiteral("The move of a profile to the keyring, and changes of one account"));
    return 0;
}
