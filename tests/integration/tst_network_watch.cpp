// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_kernel_network.h"
#include "core/accounts/kirv_network_watch.h"
#include "tests/support/kirv_patience.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QSignalSpy>
#include <QtTest>
#include <cstdio>
#include <memory>
#include <sys/socket.h>
#include <unistd.h>

/// What makes the watch say that the network is another one. Messages come over a socket of the test, and once from the
/// kernel.
class tst_NetworkWatch : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void tenThousandMessagesAreOneChange();
    void messagesWithoutAChangeAreIgnored();
    void aNetworkThatChangesAllTheTimeIsReportedNowAndThen();
    void noNetworkIsNoChange();
    void theFirstNetworkIsAChange();
    void aSuspensionIsAChange();
    void aSuspensionIsReportedWhenThereIsANetwork();
    void theClockThatGoesOnIsNoSuspension();
    void aSourceThatEndsIsLeftAlone();

    void addressesThatLastCount();
    void defaultRoutesCount();
    void theKernelIsListenedTo();

private:
    KirvNetworkWatch::Source source();
    void watch(const KirvNetworkWatch::Timing &timing);
    void send(int count);
    void waitForLooks(int count);

    QByteArray network;
    qint64 suspended = 0;
    int looks = 0; ///< at the time of suspension
    int sender = -1;
    std::unique_ptr<KirvNetworkWatch> watcher;
    std::unique_ptr<QSignalSpy> changes;
};

void tst_NetworkWatch::init()
{
    network = "eth0 192.0.2.1";
    suspended = 1234567;
}

void tst_NetworkWatch::cleanup()
{
    changes.reset();
    watcher.reset();
    if (sender >= 0)
        ::close(sender);
    sender = -1;
}

/// Without messages.
KirvNetworkWatch::Source tst_NetworkWatch::source()
{
    KirvNetworkWatch::Source source;
    source.network = [this] { return network; };
    source.suspended = [this] {
        ++looks;
        return suspended;
    };
    return source;
}

void tst_NetworkWatch::watch(const KirvNetworkWatch::Timing &timing)
{
    int ends[2] = { -1, -1 };
    QCOMPARE(::socketpair(AF_UNIX, SOCK_DGRAM | SOCK_NONBLOCK, 0, ends), 0);
    sender = ends[0];
    KirvNetworkWatch::Source from = source();
    from.messages = ends[1];
    watcher = std::make_unique<KirvNetworkWatch>(from, timing);
    changes = std::make_unique<QSignalSpy>(watcher.get(), &KirvNetworkWatch::changed);
}

void tst_NetworkWatch::send(int count)
{
    const QByteArray message(300, 'x');
    while (count > 0) {
        if (::send(sender, message.constData(), size_t(message.size()), 0) > 0)
            --count;
        else
            QCoreApplication::processEvents();
    }
}

/// What follows from one look has happened before the second one after it: settling takes no longer here than the time
/// between two looks.
void tst_NetworkWatch::waitForLooks(int count)
{
    const int last = looks + count;
    KIRV_TRY(looks >= last);
}

void tst_NetworkWatch::tenThousandMessagesAreOneChange()
{
    KirvNetworkWatch::Timing timing;
    timing.settling = 300;
    timing.distance = 0;
    watch(timing);
    network = "wlan0 198.51.100.1";
    send(10000);
    KIRV_TRY(!changes->isEmpty());
    send(1);
    const int before = watcher->comparisons();
    KIRV_TRY(watcher->comparisons() > before);
    QCOMPARE(changes->size(), 1);
    QVERIFY2(watcher->comparisons() < 200, QByteArray::number(watcher->comparisons()).constData());
}

void tst_NetworkWatch::messagesWithoutAChangeAreIgnored()
{
    KirvNetworkWatch::Timing timing;
    timing.settling = 20;
    timing.distance = 0;
    watch(timing);
    for (int round = 1; round <= 3; ++round) { // an address that is renewed, say
        send(100);
        KIRV_TRY(watcher->comparisons() >= round);
    }
    QCOMPARE(changes->size(), 0);
}

void tst_NetworkWatch::aNetworkThatChangesAllTheTimeIsReportedNowAndThen()
{
    KirvNetworkWatch::Timing timing;
    timing.settling = 10;
    timing.distance = 300;
    watch(timing);
    QElapsedTimer time;
    time.start();
    for (int number = 0; changes->size() < 3 && time.elapsed() < kirvPatience; ++number) {
        network = QByteArray::number(number);
        send(10);
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    }
    QVERIFY(changes->size() >= 3);
    QVERIFY2(changes->size() <= 1 + time.elapsed() / timing.distance, qPrintable(QString::number(changes->size())));
    // The last one is not lost.
    const int before = changes->size();
    network = "the last";
    send(1);
    KIRV_TRY(changes->size() > before);
}

void tst_NetworkWatch::noNetworkIsNoChange()
{
    KirvNetworkWatch::Timing timing;
    timing.settling = 10;
    timing.distance = 0;
    watch(timing);
    const QByteArray before = network;
    network.clear();
    send(1);
    KIRV_TRY_COMPARE(watcher->comparisons(), 1);
    QCOMPARE(changes->size(), 0);
    network = before; // back: what waits need not wait any more
    send(1);
    KIRV_TRY_COMPARE(changes->size(), 1);
}

void tst_NetworkWatch::theFirstNetworkIsAChange()
{
    network.clear();
    KirvNetworkWatch::Timing timing;
    timing.settling = 10;
    timing.distance = 10 * kirvPatience; // to a change before, of which there is none
    watch(timing);
    network = "eth0 192.0.2.1";
    send(1);
    KIRV_TRY_COMPARE(changes->size(), 1);
}

void tst_NetworkWatch::aSuspensionIsAChange()
{
    KirvNetworkWatch::Timing timing;
    timing.settling = timing.suspensionCheck = 10;
    timing.distance = 0;
    watch(timing);
    suspended += 60000;
    KIRV_TRY_COMPARE(changes->size(), 1);
    suspended += 60000;
    KIRV_TRY_COMPARE(changes->size(), 2);
    waitForLooks(5);
    QCOMPARE(changes->size(), 2);
}

void tst_NetworkWatch::aSuspensionIsReportedWhenThereIsANetwork()
{
    KirvNetworkWatch::Timing timing;
    timing.settling = timing.suspensionCheck = 10;
    timing.distance = 0;
    watch(timing);
    const QByteArray before = network;
    network.clear();
    suspended += 60000;
    KIRV_TRY_COMPARE(watcher->comparisons(), 1);
    QCOMPARE(changes->size(), 0);
    network = before;
    send(1);
    KIRV_TRY_COMPARE(changes->size(), 1);
}

void tst_NetworkWatch::theClockThatGoesOnIsNoSuspension()
{
    KirvNetworkWatch::Timing timing;
    timing.settling = timing.suspensionCheck = 10;
    watch(timing);
    suspended += 500;
    waitForLooks(10);
    QCOMPARE(changes->size(), 0);
    QCOMPARE(watcher->comparisons(), 0);
}

void tst_NetworkWatch::aSourceThatEndsIsLeftAlone()
{
    for (int kind = 0; kind < 2; ++kind) {
        int ends[2] = { -1, -1 };
        if (kind == 1) {
            QCOMPARE(::pipe(ends), 0); // recv() fails
            ::close(ends[1]);
        }
        KirvNetworkWatch::Source from = source();
        from.messages = ends[0];
        KirvNetworkWatch::Timing timing;
        timing.settling = timing.suspensionCheck = 10;
        KirvNetworkWatch other(from, timing);
        KIRV_TRY_COMPARE(other.comparisons(), kind);
        waitForLooks(10);
        QCOMPARE(other.comparisons(), kind);
    }
}

void tst_NetworkWatch::addressesThatLastCount()
{
    const QByteArray table = "fd000000000000000000000000000002 04 40 00 82     eth0\n"
                             "fe8000000000000000fc00fffe000001 04 40 20 80     eth0\n"
                             "00000000000000000000000000000001 01 80 10 80       lo\n"
                             "20010db8000000000000000000000001 02 40 00 01    wlan0\n"
                             "20010db8000000000000000000000002 02 40 00 40    wlan0\n"
                             "20010db8000000000000000000000003 02 40 00 08    wlan0\n"
                             "20010db8000000000000000000000004 02 40 00 a0    wlan0\n"
                             "20010db8000000000000000000000005 02 40 00\n\n";
    QCOMPARE(kirvLastingAddresses(table),
             QStringList({ "eth0 fd000000000000000000000000000002", "wlan0 20010db8000000000000000000000004" }));
    QCOMPARE(kirvLastingAddresses(QByteArray()), QStringList());
}

void tst_NetworkWatch::defaultRoutesCount()
{
    const QByteArray table = "Iface\tDestination\tGateway \tFlags\tRefCnt\tUse\tMetric\tMask\t\tMTU\tWindow\tIRTT \n"
                             "eth0\t00000000\t010200C0\t0003\t0\t0\t0\t00000000\t0\t0\t0\n"
                             "eth0\t000200C0\t00000000\t0001\t0\t0\t0\t00FFFFFF\t0\t0\t0\n"
                             "tun0\t00000000\t00000000\t0001\t0\t0\t0\t00000080\t0\t0\t0\n"
                             "wlan0\t00000000\t010200C0\t0000\t0\t0\t0\t00000000\t0\t0\t0\n";
    QCOMPARE(kirvDefaultRoutes(table), QStringList { "eth0 010200C0" });
    const QByteArray zero(32, '0');
    const QByteArray end = " 00000400 00000003 00000000 ";
    const QByteArray tableOfIPv6 = "fd" + QByteArray(30, '0') + " 40 " + zero + " 00 " + zero + end + "00000001 eth0\n"
        + zero + " 00 " + zero + " 00 " + "fd000000000000000000000000000001" + end + "00000003     eth0\n" + zero
        + " 00 " + zero + " 00 " + zero + end + "00200200       lo\n" + zero + " 00 " + zero + " 00 " + zero + end
        + "00000201 eth1\n";
    QCOMPARE(kirvDefaultRoutesOfIPv6(tableOfIPv6), QStringList { "eth0 fd000000000000000000000000000001" });
}

/// In a network of its own, which the test changes.
void tst_NetworkWatch::theKernelIsListenedTo()
{
    if (QProcess::execute("unshare", { "-r", "-n", "true" }) != 0) {
        qWarning("NOT RUN: no network of its own is allowed here.");
        return;
    }
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start("unshare", { "-r", "-n", QCoreApplication::applicationFilePath(), "--in-a-network" });
    QVERIFY2(process.waitForFinished(kirvPatienceWithProgram), qPrintable(process.errorString()));
    const QByteArray said = process.readAll();
    QVERIFY2(process.exitCode() == 0 && said == "done\n", said.constData());
}

namespace {

class NetworkTour {
public:
    NetworkTour()
        : watch(kirvKernelNetwork(), timing())
    {
        QObject::connect(&watch, &KirvNetworkWatch::changed, &watch, [this] { ++changes; });
    }

    int run()
    {
        expect("nothing", {}, 0);
        expect("an interface without an address",
               { "link add one type veth peer name two", "link set one up", "link set two up" }, 0);
        expect("the loopback", { "link set lo up", "addr add 127.1.2.3/8 dev lo" }, 0);
        expect("the first address", { "addr add 192.0.2.5/24 dev one" }, 1);
        expect("renewals", { "addr change 192.0.2.5/24 dev one valid_lft 1000 preferred_lft 900" }, 0);
        for (int renewal = 0; renewal < 20; ++renewal)
            ip("addr change 192.0.2.5/24 dev one valid_lft 1000 preferred_lft " + QString::number(900 - renewal));
        expect("more renewals", {}, 0);
        expect("a default route", { "route add default via 192.0.2.1" }, 1);
        expect("another route", { "route add 198.51.100.0/24 via 192.0.2.1" }, 0);
        expect("an address of IPv6", { "addr add 2001:db8::5/64 dev one nodad" }, 1);
        expect("no address", { "addr del 2001:db8::5/64 dev one", "addr flush dev one" }, 0);
        expect("an address again", { "addr add 192.0.2.5/24 dev one", "route add default via 192.0.2.1" }, 1);
        std::puts(failed ? "failed" : "done");
        return failed;
    }

private:
    static KirvNetworkWatch::Timing timing()
    {
        KirvNetworkWatch::Timing timing;
        timing.settling = 150;
        timing.distance = 0;
        return timing;
    }

    void ip(const QString &command)
    {
        if (QProcess::execute("ip", command.split(' ')) != 0) {
            std::printf("ip %s has failed\n", qPrintable(command));
            failed = true;
        }
    }

    /// An address of the loopback is no change, but the kernel speaks of it, so the watch compares after the commands.
    void expect(const char *what, const QStringList &commands, int count)
    {
        changes = 0;
        for (const QString &command : commands)
            ip(command);
        const int before = watch.comparisons();
        ip(QStringLiteral("addr add 127.9.9.%1/8 dev lo").arg(++marks));
        if (!QTest::qWaitFor([&] { return watch.comparisons() > before; }, kirvPatience)) {
            std::printf("%s: nothing was compared\n", what);
            failed = true;
        }
        if (changes != count) {
            std::printf("%s: %d changes, not %d\n", what, changes, count);
            failed = true;
        }
    }

    KirvNetworkWatch watch;
    int changes = 0;
    int marks = 0; ///< addresses of the loopback that expect() has added
    bool failed = false;
};

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    if (argc == 2 && qstrcmp(argv[1], "--in-a-network") == 0)
        return NetworkTour().run();
    tst_NetworkWatch test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_network_watch.moc"
