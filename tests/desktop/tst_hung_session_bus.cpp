// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/kirv_patience.h"
#include "tests/support/servers/kirv_silent_bus.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace {
/// Shorter than the 25 seconds for which a connection to a bus waits, and longer than the program's own patience.
const int tooLong = 20000;
}

/// The program is started on X11 while the session bus does not answer.
class tst_HungSessionBus : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void windowDoesNotWait_data();
    void windowDoesNotWait();

private:
    QString filePath(const char *name) const { return folder->filePath(QLatin1String(name)); }

    std::unique_ptr<QTemporaryDir> folder;
    QProcess program;
};

void tst_HungSessionBus::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(folder->isValid());
    for (const char *name : { "run", "plugins", "profile" })
        QVERIFY(QDir().mkdir(filePath(name)));
    QVERIFY(QFile::setPermissions(filePath("run"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

void tst_HungSessionBus::cleanup()
{
    program.kill();
    QVERIFY(QTest::qWaitFor([&] { return program.state() == QProcess::NotRunning; }, kirvPatience));
    folder.reset();
}

void tst_HungSessionBus::windowDoesNotWait_data()
{
    QTest::addColumn<int>("script");
    QTest::newRow("never answers") << int(KirvSilentBus::NeverAnswers);
    QTest::newRow("answers the log-in only") << int(KirvSilentBus::AnswersLogin);
    QTest::newRow("accepts nothing") << int(KirvSilentBus::AcceptsNothing);
    QTest::newRow("hangs up") << int(KirvSilentBus::HangsUp);
}

void tst_HungSessionBus::windowDoesNotWait()
{
    QFETCH(int, script);
    const KirvSilentBus bus { KirvSilentBus::Script(script) };
    QVERIFY(bus.isReady());
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), QString::fromLatin1(bus.address()));
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), filePath("run"));
    environment.insert(QStringLiteral("QT_LINUX_ACCESSIBILITY_ALWAYS_ON"), QStringLiteral("1"));
    program.setProcessEnvironment(environment);
    program.setProcessChannelMode(QProcess::ForwardedChannels);
    program.start(
        QStringLiteral(KIRV_PROGRAM),
        { QStringLiteral("--profile"), filePath("profile"), QStringLiteral("--plugins"), filePath("plugins") });
    // The socket for later starts is there when the window is.
    QTRY_VERIFY_WITH_TIMEOUT(!QDir(filePath("run")).entryList(QDir::System).isEmpty(), tooLong);
    QCOMPARE(program.state(), QProcess::Running);
}

QTEST_MAIN(tst_HungSessionBus)
#include "tst_hung_session_bus.moc"
