// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/kirv_patience.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <memory>

namespace {

const QString crashOrEnd = QStringLiteral("it crashed when it was tested|it ended the process in which it was tested");
const QString notSurvived = QStringLiteral("the program ended when it was loaded the last time");

} // namespace

/// One plug-in that misbehaves in a folder with a good one, loaded by the real client in a process of its own.
class tst_BadPlugins : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void theProgramStartsWithoutIt_data();
    void theProgramStartsWithoutIt();
    void anExceptionIsItsError_data();
    void anExceptionIsItsError();
    void theVerdictIsRemembered();
    void aChangedFileIsTestedAnew();
    void aKnownPluginIsNotTestedAgain();
    void aStartThatItEndedLeavesItOut_data();
    void aStartThatItEndedLeavesItOut();
    void theLoadButtonTriesItAgain();
    void aConnectionThatCrashesLeavesItOut();
    void anExceptionForAConnectionLeavesTheAccountOut();
    void anExceptionOfAConnectionEndsNothing_data();
    void anExceptionOfAConnectionEndsNothing();
    void theTestHasTenSeconds();
    void everythingHappensAfterTheFirstPaint();
    void aTestThatRunsEndsWithTheProgram();

private:
    struct Start {
        bool crashed = true;
        int exitCode = -1;
        qint64 milliseconds = 0;
        QStringList lines;

        QStringList of(const char *kind) const
        {
            return lines.filter(QRegularExpression(QLatin1Char('^') + QLatin1String(kind) + QStringLiteral("\\|")));
        }
        QString state(const QString &plugin) const
        {
            const QStringList shown = lines.filter(QStringLiteral("plugin|") + plugin + QLatin1Char('|'));
            return shown.isEmpty() ? QString() : shown.last().section(QLatin1Char('|'), 2);
        }
    };

    void prepare(QProcess &process, const QString &misdeed, const QStringList &commands) const;
    Start start(const QString &misdeed, const QStringList &commands = {}) const;

    std::unique_ptr<QTemporaryDir> folder;
    QString plugins;
    bool sparesTester = false; ///< whether it misbehaves in the client only
    int limit = 1500; ///< of a test, in milliseconds
};

void tst_BadPlugins::init()
{
    folder = std::make_unique<QTemporaryDir>();
    plugins = folder->filePath(QStringLiteral("plugins"));
    QVERIFY(QDir().mkdir(plugins));
    QVERIFY(QFile::copy(QStringLiteral(KIRV_MISBEHAVING_PLUGIN), plugins + QStringLiteral("/a.so")));
    QVERIFY(QFile::copy(QStringLiteral(KIRV_EXAMPLE_PLUGIN), plugins + QStringLiteral("/b.so")));
    sparesTester = false;
    limit = 1500;
}

void tst_BadPlugins::prepare(QProcess &process, const QString &misdeed, const QStringList &commands) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("KIRV_FIXTURE_MISDEED"), misdeed);
    if (sparesTester)
        environment.insert(QStringLiteral("KIRV_FIXTURE_SPARED"), QStringLiteral("kirv_plugin_tester"));
    environment.insert(QStringLiteral("KIRV_OBSERVED_LIMIT"), QString::number(limit));
    process.setProcessEnvironment(environment);
    process.setProgram(QStringLiteral(KIRV_OBSERVED_CLIENT));
    process.setArguments(QStringList { folder->filePath(QStringLiteral("profile")), plugins } + commands);
    process.setStandardErrorFile(QProcess::nullDevice());
}

tst_BadPlugins::Start tst_BadPlugins::start(const QString &misdeed, const QStringList &commands) const
{
    QProcess process;
    prepare(process, misdeed, commands);
    QElapsedTimer timer;
    timer.start();
    process.start();
    Start result;
    if (!process.waitForFinished(kirvPatienceWithProgram))
        return result;
    result.milliseconds = timer.elapsed();
    result.crashed = process.exitStatus() == QProcess::CrashExit;
    result.exitCode = process.exitCode();
    result.lines = QString::fromLocal8Bit(process.readAllStandardOutput()).split(QLatin1Char('\n'));
    return result;
}

void tst_BadPlugins::theProgramStartsWithoutIt_data()
{
    QTest::addColumn<QString>("reason");
    const QString late = QStringLiteral("it was not ready within 1.5 s when it was tested");
    for (const char *place : { "initializer", "constructor", "protocol", "name", "connection" }) {
        QTest::newRow(qPrintable(QStringLiteral("crash in ") + place)) << crashOrEnd;
        QTest::newRow(qPrintable(QStringLiteral("abort in ") + place)) << crashOrEnd;
        QTest::newRow(qPrintable(QStringLiteral("exit in ") + place)) << crashOrEnd;
    }
    QTest::newRow("exception in initializer") << crashOrEnd;
    QTest::newRow("loop in initializer") << late;
    QTest::newRow("loop in name") << late;
    QTest::newRow("work in protocol") << late;
}

void tst_BadPlugins::theProgramStartsWithoutIt()
{
    QFETCH(QString, reason);
    const Start first = start(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(!first.crashed && first.exitCode == 0);
    QCOMPARE(first.state(QStringLiteral("Example")), QStringLiteral("Loaded|"));
    const QString state = first.state(QStringLiteral("Fixture"));
    QVERIFY2(state.startsWith(QLatin1String("Failed|The plug-in was left out")), qPrintable(state));
    QVERIFY2(QRegularExpression(reason).match(state).hasMatch(), qPrintable(state));
    QCOMPARE(first.of("page"), QStringList { QStringLiteral("page|usable") });
}

void tst_BadPlugins::anExceptionIsItsError_data()
{
    QTest::addColumn<QString>("error");
    for (const char *place : { "constructor", "protocol", "name", "icon", "settings", "directory" }) {
        QTest::newRow(qPrintable(QStringLiteral("exception in ") + place)) << "The plug-in failed: no moon tonight";
        QTest::newRow(qPrintable(QStringLiteral("odd exception in ") + place))
            << "The plug-in failed: an exception of an unknown kind";
    }
}

void tst_BadPlugins::anExceptionIsItsError()
{
    QFETCH(QString, error);
    const Start first = start(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(!first.crashed && first.exitCode == 0);
    QCOMPARE(first.state(QStringLiteral("Fixture")), QStringLiteral("Failed|") + error);
    QCOMPARE(first.state(QStringLiteral("Example")), QStringLiteral("Loaded|"));
}

void tst_BadPlugins::theVerdictIsRemembered()
{
    const Start first = start(QStringLiteral("loop in protocol"));
    QVERIFY(first.lines.contains(QStringLiteral("plugin|Fixture|Being tested|")));
    const Start second = start(QStringLiteral("loop in protocol"));
    QVERIFY(!second.lines.contains(QStringLiteral("plugin|Fixture|Being tested|")));
    QCOMPARE(second.state(QStringLiteral("Fixture")), first.state(QStringLiteral("Fixture")));
    QCOMPARE(second.state(QStringLiteral("Example")), QStringLiteral("Loaded|"));
}

void tst_BadPlugins::aChangedFileIsTestedAnew()
{
    QVERIFY(
        start(QStringLiteral("crash in name")).state(QStringLiteral("Fixture")).startsWith(QLatin1String("Failed")));
    QFile file(plugins + QStringLiteral("/a.so"));
    QVERIFY(file.open(QIODevice::Append));
    file.write("\n");
    file.close();
    const Start second = start(QString());
    QCOMPARE(second.state(QStringLiteral("Misbehaving")), QStringLiteral("Loaded|"));
}

void tst_BadPlugins::aKnownPluginIsNotTestedAgain()
{
    const Start first = start(QString());
    QCOMPARE(int(first.lines.filter(QStringLiteral("|Being tested|")).size()), 2);
    const Start second = start(QString());
    QCOMPARE(int(second.lines.filter(QStringLiteral("|Being tested|")).size()), 0);
    QCOMPARE(second.state(QStringLiteral("Misbehaving")), QStringLiteral("Loaded|"));
    QCOMPARE(second.state(QStringLiteral("Example")), QStringLiteral("Loaded|"));
}

void tst_BadPlugins::aStartThatItEndedLeavesItOut_data()
{
    QTest::addColumn<bool>("isKnown");
    for (const char *misdeed :
         { "crash in initializer", "abort in constructor", "exit in protocol", "crash in name" }) {
        QTest::newRow(misdeed) << false;
        QTest::newRow(qPrintable(QLatin1String("known: ") + QLatin1String(misdeed))) << true;
    }
}

void tst_BadPlugins::aStartThatItEndedLeavesItOut()
{
    QFETCH(bool, isKnown);
    const QString misdeed = QString::fromLatin1(QTest::currentDataTag()).remove(QStringLiteral("known: "));
    sparesTester = true;
    if (isKnown)
        QCOMPARE(start(QString()).state(QStringLiteral("Misbehaving")), QStringLiteral("Loaded|"));
    QVERIFY(start(misdeed).of("messages").isEmpty()); // it did not come to its end
    for (int i = 0; i < 2; ++i) {
        const Start next = start(misdeed);
        QVERIFY(!next.crashed && next.exitCode == 0);
        const QString state = next.state(QStringLiteral("Fixture"));
        QVERIFY2(state.startsWith(QLatin1String("Failed|")) && state.contains(notSurvived), qPrintable(state));
        QVERIFY2(next.of("messages").value(0).contains(QLatin1String("The plug-in \"Fixture\" was left out")),
                 qPrintable(next.of("messages").value(0)));
        QCOMPARE(next.state(QStringLiteral("Example")), QStringLiteral("Loaded|"));
    }
}

void tst_BadPlugins::theLoadButtonTriesItAgain()
{
    sparesTester = true;
    const QString misdeed = QStringLiteral("abort in name");
    const QStringList load { QStringLiteral("load"), QStringLiteral("Fixture") };
    start(misdeed);
    QVERIFY(start(misdeed).state(QStringLiteral("Fixture")).contains(notSurvived));
    QVERIFY(start(misdeed, load).of("messages").isEmpty());
    QVERIFY(start(misdeed).state(QStringLiteral("Fixture")).contains(notSurvived));
    QCOMPARE(start(QString(), load).state(QStringLiteral("Misbehaving")), QStringLiteral("Loaded|"));
    QCOMPARE(start(QString()).state(QStringLiteral("Misbehaving")), QStringLiteral("Loaded|"));
}

void tst_BadPlugins::aConnectionThatCrashesLeavesItOut()
{
    const Start first = start(QString(), { QStringLiteral("account"), QStringLiteral("Misbehaving") });
    QVERIFY(!first.crashed);
    const QString misdeed = QStringLiteral("crash in connection");
    QVERIFY(start(misdeed).of("messages").isEmpty());
    const Start next = start(misdeed);
    QVERIFY(!next.crashed && next.state(QStringLiteral("Fixture")).contains(notSurvived));
}

void tst_BadPlugins::anExceptionForAConnectionLeavesTheAccountOut()
{
    start(QString(), { QStringLiteral("account"), QStringLiteral("Misbehaving") });
    const Start next = start(QStringLiteral("exception in connection"));
    QVERIFY(!next.crashed && next.exitCode == 0);
    QCOMPARE(next.of("messages"), QStringList { QStringLiteral("messages|anna: The plug-in failed: no moon tonight") });
}

void tst_BadPlugins::anExceptionOfAConnectionEndsNothing_data()
{
    QTest::addColumn<bool>("isSaid");
    for (const char *place : { "log-in", "end", "event" }) {
        QTest::newRow(qPrintable(QStringLiteral("exception in ") + place)) << (place == QLatin1String("event"));
        QTest::newRow(qPrintable(QStringLiteral("odd exception in ") + place)) << false;
    }
}

void tst_BadPlugins::anExceptionOfAConnectionEndsNothing()
{
    QFETCH(bool, isSaid);
    start(QString(), { QStringLiteral("account"), QStringLiteral("Misbehaving") });
    const Start next = start(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(!next.crashed && next.exitCode == 0);
    QCOMPARE(next.state(QStringLiteral("Misbehaving")), QStringLiteral("Loaded|"));
    if (isSaid)
        QCOMPARE(next.of("messages"), QStringList { QStringLiteral("messages|The plug-in failed: no moon tonight") });
}

void tst_BadPlugins::theTestHasTenSeconds()
{
    limit = 0; // as the client has it
    const Start first = start(QStringLiteral("work in protocol"));
    QVERIFY(!first.crashed && first.exitCode == 0);
    QVERIFY2(first.state(QStringLiteral("Fixture")).contains(QLatin1String("not ready within 10 s")),
             qPrintable(first.state(QStringLiteral("Fixture"))));
    QVERIFY(first.milliseconds >= 10000);
}

void tst_BadPlugins::everythingHappensAfterTheFirstPaint()
{
    const Start first = start(QStringLiteral("loop in name"));
    QCOMPARE(first.lines.value(0), QStringLiteral("painted|0"));
    // The test alone takes its whole time. What waits for it leaves a turn or two.
    const int turns = first.of("turns").value(0).section(QLatin1Char('|'), 1).toInt();
    QVERIFY2(turns >= 20, qPrintable(QString::number(turns)));
}

void tst_BadPlugins::aTestThatRunsEndsWithTheProgram()
{
    limit = 0;
    QProcess process;
    prepare(process, QStringLiteral("loop in initializer"), {});
    process.start();
    QByteArray seen;
    KIRV_TRY((seen += process.readAllStandardOutput()).contains("|Being tested|"));
    const QString children = QStringLiteral("/proc/%1/task/%1/children").arg(process.processId());
    QByteArray tester;
    const auto findTester = [&] {
        QFile file(children);
        tester = file.open(QIODevice::ReadOnly) ? file.readAll().trimmed() : QByteArray();
        QFile command(QStringLiteral("/proc/%1/stat").arg(QString::fromLatin1(tester)));
        return !tester.isEmpty() && command.open(QIODevice::ReadOnly) && command.readAll().contains("kirv_plugin_te");
    };
    KIRV_TRY(findTester());
    KIRV_TRY(QFile(QStringLiteral("/proc/%1/maps").arg(QString::fromLatin1(tester))).exists());
    process.kill();
    QVERIFY(process.waitForFinished(kirvPatience));
    KIRV_TRY(::kill(pid_t(tester.toInt()), 0) != 0
             || QFile(QStringLiteral("/proc/%1/exe").arg(QString::fromLatin1(tester))).symLinkTarget().isEmpty());
}

QTEST_GUILESS_MAIN(tst_BadPlugins)
#include "tst_bad_plugins.moc"
