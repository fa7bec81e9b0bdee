// SPDX-License-Identifier: LGPL-2.1-or-later
// From the start of the program to the painted page, with no account and with many. Every start is a process of its
// own: this program starts itself, with the client's own parts, and ends when the list has been painted. The accounts
// are switched off, so that nothing is logged in meanwhile.
#include "benchmarks/measurement.h"

#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_application.h"
#include "client/kirv_client.h"
#include "client/kirv_settings_window.h"
#include "core/store/kirv_store.h"

#include <QCommandLineParser>
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeWidget>
#include <chrono>
#include <cstdio>
#include <map>

namespace {

const int starts = 15;
const QString accountProtocol = QStringLiteral("XMPP");

/// The time on the clock that all processes of this computer share, in nanoseconds.
qint64 now()
{
    return std::chrono::nanoseconds(std::chrono::steady_clock::now().time_since_epoch()).count();
}

/// Ends the program as soon as everything that is painted together with a widget has been painted.
class EndWhenPainted : public QObject {
public:
    EndWhenPainted(const QTreeWidget *list, qint64 started)
        : QObject(list->viewport())
        , list(list)
        , started(started)
    {
        parent()->installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() != QEvent::Paint)
            return false;
        parent()->removeEventFilter(this);
        QTimer::singleShot(0, this, [this] {
            std::printf("%lld %d\n", static_cast<long long>(now() - started), list->topLevelItemCount());
            QCoreApplication::quit();
        });
        return false;
    }

private:
    const QTreeWidget *list;
    const qint64 started;
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
    new EndWhenPainted(client.accountsPage()->findChild<QTreeWidget *>(QStringLiteral("Accounts_List")), started);
    return QCoreApplication::exec();
}

void createProfile(const QString &folder, int accountCount)
{
    KirvStore store;
    bool good = store.open(folder) && store.begin();
    for (int i = 0; good && i < accountCount; ++i) {
        KirvAccountRecord account;
        account.key = { QStringLiteral("user%1@example.org").arg(i), accountProtocol };
        account.alias = QStringLiteral("Account %1").arg(i);
        account.enabled = false;
        good = store.insertAccount(account);
    }
    if (!good || !store.commit())
        qFatal("The profile cannot be made: %s", qPrintable(store.lastError()));
}

/// The milliseconds of one start.
double startOnce(const QString &profileFolder, int accountCount)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(),
                  { QStringLiteral("--start"), profileFolder, QStringLiteral("--clock"), QString::number(now()) });
    process.waitForFinished(60000);
    const QList<QByteArray> answer = process.readAllStandardOutput().trimmed().split(' ');
    if (answer.size() != 2 || answer.at(1).toInt() != accountCount)
        qFatal("The page of %d accounts was not shown", accountCount);
    return answer.at(0).toDouble() / 1e6;
}

double measure(const QString &folder, int accountCount)
{
    QTemporaryDir profile(folder + QStringLiteral("/profile-XXXXXX"));
    createProfile(profile.path(), accountCount);
    startOnce(profile.path(), accountCount); // warms the caches up
    QVector<double> milliseconds;
    for (int i = 0; i < starts; ++i)
        milliseconds.append(startOnce(profile.path(), accountCount));
    return median(milliseconds);
}

} // namespace

int main(int argc, char **argv)
{
    KirvApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Measures the start of the client."));
    parser.addHelpOption();
    parser.addOption({ QStringLiteral("folder"), QStringLiteral("Makes the profiles in <folder>."),
                       QStringLiteral("folder"), QDir::tempPath() });
    parser.addOption({ QStringLiteral("accounts"), QStringLiteral("The numbers of accounts, separated by commas."),
                       QStringLiteral("numbers"), QStringLiteral("0,1000") });
    parser.addOption({ QStringLiteral("start"), QStringLiteral("Starts once, with the profile in <folder>."),
                       QStringLiteral("folder") });
    parser.addOption({ QStringLiteral("clock"), QStringLiteral("When --start was asked for, in <nanoseconds>."),
                       QStringLiteral("nanoseconds") });
    parser.process(application);
    if (parser.isSet(QStringLiteral("start")))
        return startClient(parser.value(QStringLiteral("start")), parser.value(QStringLiteral("clock")).toLongLong());

    Table table({ QStringLiteral("accounts"), QStringLiteral("ms") });
    for (const QString &number : parser.value(QStringLiteral("accounts")).split(QLatin1Char(',')))
        table.addRow({ number, formatMilliseconds(measure(parser.value(QStringLiteral("folder")), number.toInt())) });
    table.print(QStringLiteral("From the start of the program to the painted page (medians of %1)").arg(starts));
    return 0;
}
