// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_client.h"
#include "client/kirv_message_bar.h"
#include "client/kirv_running_instance.h"
#include "client/kirv_settings_window.h"
#include "tests/support/gui/kirv_window_watcher.h"
#include "tests/support/kirv_patience.h"

#include <QDialog>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QLocalServer>
#include <QLocalSocket>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <atomic>
#include <memory>
#include <sys/socket.h>
#include <sys/un.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {
const QString ircLink = QStringLiteral("irc://ann@irc.example.org/");
}

/// The program is started again while it runs.
class tst_SecondStart : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void windowComesToTheFront();
    void linkIsOpenedByTheFirst();
    void linkBeforeThePlugInsWaitsForThem();
    void linkBehindAnOpenWindowIsSaid();
    void wordsThatAreNoLinkRaiseOnly();
    void longLinkRaisesOnlyAndIsSaid();
    void attemptsPauseWhileTheFirstDoesNotReply();

    void profilesAreApart();
    void sameProfileByAnotherPathIsTheSame();
    void nobodyListens();
    void silentFirstIsNotWaitedForForever();
    void leftSocketIsReplaced();
    void filesOfOthersAreKept();
    void folderThatOthersCanUseIsNotUsed_data();
    void folderThatOthersCanUseIsNotUsed();
    void tooMuchIsNotRead();
    void manyAtOnceAreBounded();

private:
    QString profile(const char *name = "profile") const { return folder->filePath(QLatin1String(name)); }
    QString runtime() const { return folder->filePath(QStringLiteral("run")); }
    QStringList sockets() const { return QDir(runtime()).entryList(QDir::System | QDir::Files); }
    QString socketOfProfile() const;
    /// A program with the profile open, and its window shown.
    void startFirst();
    /// Starts the program itself and gives its exit status.
    int startAgain(const QStringList &arguments);
    /// Hands over from another thread, as this one is that of the first program.
    bool handOver(const QString &profileFolder, const QString &text, int milliseconds = kirvPatience);

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<KirvClient> client;
    std::unique_ptr<KirvRunningInstance> instance;
    QString said; ///< what the second one printed
};

void tst_SecondStart::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(folder->isValid());
    for (const char *name : { "run", "plugins", "profile", "other" })
        QVERIFY(QDir().mkdir(profile(name)));
    QVERIFY(QFile::setPermissions(runtime(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtime()));
}

void tst_SecondStart::cleanup()
{
    instance.reset();
    client.reset();
    QCOMPARE(sockets(), QStringList()); // nothing is left behind
    folder.reset();
}

void tst_SecondStart::startFirst()
{
    QVERIFY(QFile::copy(QStringLiteral(KIRV_NAMED_PROTOCOL), folder->filePath(QStringLiteral("plugins/named.so"))));
    qputenv("KIRV_FIXTURE_PROTOCOL", "IRC");
    KirvClientOptions options;
    options.profileFolder = profile();
    options.pluginFolder = profile("plugins");
    client = std::make_unique<KirvClient>(options);
    QVERIFY2(client->start(), qPrintable(client->errorString()));
    instance = std::make_unique<KirvRunningInstance>(profile());
    QVERIFY(instance->isListening());
    connect(instance.get(), &KirvRunningInstance::laterStart, client.get(), &KirvClient::show, Qt::QueuedConnection);
    client->window()->show();
}

int tst_SecondStart::startAgain(const QStringList &arguments)
{
    QProcess program;
    program.setProcessChannelMode(QProcess::MergedChannels);
    program.start(QStringLiteral(KIRV_PROGRAM), QStringList { "--profile", profile() } + arguments);
    if (!QTest::qWaitFor([&] { return program.state() == QProcess::NotRunning; }, kirvPatience))
        return -1;
    said = QString::fromLocal8Bit(program.readAll());
    return program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -1;
}

bool tst_SecondStart::handOver(const QString &profileFolder, const QString &text, int milliseconds)
{
    bool isDone = false;
    std::atomic<bool> isOver { false };
    std::thread other([&] {
        isDone = KirvRunningInstance::handOver(profileFolder, text, milliseconds);
        isOver = true;
    });
    const bool ended = QTest::qWaitFor([&] { return isOver.load(); }, 2 * kirvPatience);
    other.join();
    return ended && isDone;
}

void tst_SecondStart::windowComesToTheFront()
{
    startFirst();
    client->window()->showMinimized();
    QVERIFY(client->window()->isMinimized());
    QCOMPARE(startAgain({}), 0);
    QCOMPARE(said, QString());
    KIRV_TRY(!client->window()->isMinimized());
    QVERIFY(client->window()->isVisible());
    KIRV_TRY_COMPARE(QApplication::activeWindow(), client->window());
}

void tst_SecondStart::linkIsOpenedByTheFirst()
{
    QString filled;
    KirvWindowWatcher<QDialog> watcher([&filled](QDialog *window) {
        if (const auto *line = window->findChild<QLineEdit *>(QStringLiteral("AddAccount_UsernameEdit")))
            filled = line->text();
        window->reject();
    });
    startFirst();
    KIRV_TRY(client->arePluginsLoaded());
    QCOMPARE(startAgain({ ircLink }), 0);
    QCOMPARE(said, QString());
    KIRV_TRY_COMPARE(watcher.shown, 1);
    KIRV_TRY_COMPARE(filled, QStringLiteral("ann@irc.example.org"));
}

void tst_SecondStart::linkBeforeThePlugInsWaitsForThem()
{
    KirvWindowWatcher<QDialog> watcher([](QDialog *window) { window->reject(); });
    startFirst();
    QVERIFY(!client->arePluginsLoaded());
    client->show(KirvAccountLink::fromText(ircLink));
    QCOMPARE(watcher.shown, 0);
    KIRV_TRY_COMPARE(watcher.shown, 1);
    QVERIFY(client->arePluginsLoaded());
}

void tst_SecondStart::linkBehindAnOpenWindowIsSaid()
{
    startFirst();
    KIRV_TRY(client->arePluginsLoaded());
    QDialog other(client->window());
    other.setModal(true);
    other.show();
    KirvWindowWatcher<QDialog> watcher([](QDialog *window) { window->reject(); });
    QCOMPARE(startAgain({ ircLink }), 0);
    KIRV_TRY_COMPARE(client->window()->messageBar()->messages(),
                     QStringList { QStringLiteral("The link was not opened because another window waits for an answer. "
                                                  "Close that, and open the link again.") });
    QCOMPARE(watcher.shown, 0);
}

void tst_SecondStart::wordsThatAreNoLinkRaiseOnly()
{
    startFirst();
    KIRV_TRY(client->arePluginsLoaded());
    KirvWindowWatcher<QDialog> watcher([](QDialog *window) { window->reject(); });
    QSignalSpy started(instance.get(), &KirvRunningInstance::laterStart);
    for (const char *text : { "", "https://example.org", "\x01\x02", "file:///etc/passwd" })
        QVERIFY(handOver(profile(), QString::fromLatin1(text)));
    KIRV_TRY_COMPARE(started.size(), 4);
    QCoreApplication::processEvents();
    QCOMPARE(watcher.shown, 0);
    QVERIFY(client->window()->messageBar()->messages().isEmpty());
}

void tst_SecondStart::longLinkRaisesOnlyAndIsSaid()
{
    startFirst();
    KIRV_TRY(client->arePluginsLoaded());
    KirvWindowWatcher<QDialog> watcher([](QDialog *window) { window->reject(); });
    client->window()->showMinimized();
    QCOMPARE(startAgain({ ircLink + QString(KirvAccountLink::longest, QLatin1Char('x')) }), 0);
    QCOMPARE(said, QString());
    KIRV_TRY(!client->window()->isMinimized());
    KIRV_TRY_COMPARE(client->window()->messageBar()->messages(),
                     QStringList { QStringLiteral("The link was not opened because it is too long.") });
    QCOMPARE(watcher.shown, 0);
}

void tst_SecondStart::attemptsPauseWhileTheFirstDoesNotReply()
{
    startFirst();
    const QString path = QDir(runtime()).filePath(sockets().value(0));
    instance.reset();
    QLocalServer other;
    QVERIFY(other.listen(path));
    const int attempts = 8;
    QList<qint64> times;
    QElapsedTimer clock;
    clock.start();
    const auto hangUp = [&] {
        while (QLocalSocket *socket = other.nextPendingConnection()) {
            times << clock.elapsed();
            socket->abort();
            socket->deleteLater();
        }
        if (times.size() < attempts || !other.isListening())
            return;
        other.close();
        instance = std::make_unique<KirvRunningInstance>(profile());
    };
    connect(&other, &QLocalServer::newConnection, this, hangUp, Qt::QueuedConnection);
    QCOMPARE(startAgain({}), 0);
    QVERIFY(times.size() >= attempts);
    // A pause of 50 ms each; some of it may pass before the first is noticed here.
    QVERIFY2(times.last() - times.first() >= (attempts - 2) * 50, qPrintable(QString::number(times.last())));
}

void tst_SecondStart::profilesAreApart()
{
    KirvRunningInstance first(profile());
    KirvRunningInstance other(profile("other"));
    QVERIFY(first.isListening() && other.isListening());
    QSignalSpy firstStarted(&first, &KirvRunningInstance::laterStart);
    QSignalSpy otherStarted(&other, &KirvRunningInstance::laterStart);
    QVERIFY(handOver(profile("other"), ircLink));
    KIRV_TRY_COMPARE(otherStarted.size(), 1);
    QCOMPARE(firstStarted.size(), 0);
}

void tst_SecondStart::sameProfileByAnotherPathIsTheSame()
{
    KirvRunningInstance first(profile());
    QVERIFY(QFile::link(profile(), profile("linked")));
    QVERIFY(handOver(profile("linked"), ircLink));
    QVERIFY(handOver(folder->filePath(QStringLiteral("plugins/../profile/")), ircLink));
}

void tst_SecondStart::nobodyListens()
{
    QVERIFY(!KirvRunningInstance::handOver(profile(), ircLink, 1));
    QVERIFY(!KirvRunningInstance::handOver(profile("no such folder"), ircLink, 1));
}

void tst_SecondStart::silentFirstIsNotWaitedForForever()
{
    KirvRunningInstance first(profile());
    QVERIFY(first.isListening());
    // Nothing runs the event loop of the first.
    QVERIFY(!KirvRunningInstance::handOver(profile(), ircLink, 200));
}

QString tst_SecondStart::socketOfProfile() const
{
    const KirvRunningInstance first(profile());
    return QDir(runtime()).filePath(sockets().value(0));
}

void tst_SecondStart::leftSocketIsReplaced()
{
    const QByteArray path = QFile::encodeName(socketOfProfile());
    sockaddr_un address {};
    address.sun_family = AF_UNIX;
    QVERIFY(size_t(path.size()) < sizeof address.sun_path);
    std::copy(path.begin(), path.end(), address.sun_path);
    const int left = ::socket(AF_UNIX, SOCK_STREAM, 0);
    QCOMPARE(::bind(left, reinterpret_cast<sockaddr *>(&address), sizeof address), 0);
    QCOMPARE(::close(left), 0);
    QCOMPARE(sockets().size(), 1);
    QVERIFY(!KirvRunningInstance::handOver(profile(), ircLink, 1));
    const KirvRunningInstance next(profile());
    QVERIFY(next.isListening());
    QVERIFY(handOver(profile(), ircLink));
}

void tst_SecondStart::filesOfOthersAreKept()
{
    const QString path = socketOfProfile();
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    QVERIFY(!KirvRunningInstance(profile()).isListening());
    QVERIFY(QFile::remove(path));
    QVERIFY(QFile::link(profile("other"), path));
    QVERIFY(!KirvRunningInstance(profile()).isListening());
    QVERIFY(QFileInfo(path).isSymLink());
    QVERIFY(QFile::remove(path));
}

void tst_SecondStart::folderThatOthersCanUseIsNotUsed_data()
{
    QTest::addColumn<QString>("runtimeFolder");
    QTest::newRow("none") << "";
    QTest::newRow("relative") << "run";
    QTest::newRow("missing") << "/missing";
    QTest::newRow("open to others") << "/open";
}

void tst_SecondStart::folderThatOthersCanUseIsNotUsed()
{
    QFETCH(QString, runtimeFolder);
    QVERIFY(QDir().mkdir(profile("open")));
    QVERIFY(QFile::setPermissions(profile("open"), QFile::Permissions(0x7755)));
    if (runtimeFolder.startsWith(QLatin1Char('/')))
        runtimeFolder.prepend(folder->path());
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtimeFolder));
    QVERIFY(!KirvRunningInstance(profile()).isListening());
    QVERIFY(!KirvRunningInstance::handOver(profile(), ircLink, 1));
    QVERIFY(QDir(profile("open")).isEmpty());
}

void tst_SecondStart::tooMuchIsNotRead()
{
    KirvRunningInstance first(profile());
    QSignalSpy started(&first, &KirvRunningInstance::laterStart);
    QLocalSocket other;
    other.connectToServer(QDir(runtime()).filePath(sockets().value(0)));
    QVERIFY(other.waitForConnected(kirvPatience));
    other.write(QByteArray(2 * KirvAccountLink::longest, 'x') + '\n');
    KIRV_TRY_COMPARE(other.state(), QLocalSocket::UnconnectedState);
    QCOMPARE(started.size(), 0);
    QVERIFY(handOver(profile(), ircLink));
}

void tst_SecondStart::manyAtOnceAreBounded()
{
    KirvRunningInstance first(profile());
    const QString path = QDir(runtime()).filePath(sockets().value(0));
    std::vector<std::unique_ptr<QLocalSocket>> silent;
    for (int index = 0; index < 20; ++index) {
        silent.push_back(std::make_unique<QLocalSocket>());
        silent.back()->connectToServer(path);
        QCoreApplication::processEvents();
    }
    const auto connected = [&] {
        return std::count_if(silent.begin(), silent.end(),
                             [](const auto &socket) { return socket->state() == QLocalSocket::ConnectedState; });
    };
    // Only these: the patience with silent ones ends for all at once.
    KIRV_TRY_COMPARE(int(connected()), int(KirvRunningInstance::mostAtOnce));
    silent.clear();
    QVERIFY(handOver(profile(), ircLink));
}

QTEST_MAIN(tst_SecondStart)
#include "tst_second_start.moc"
