// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/kirv_patience.h"
#include "tests/support/servers/kirv_private_bus.h"
#include "tests/support/servers/kirv_scripted_secret_service.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

/// The demo as a user starts it: it leaves nothing behind and does not touch the keyring of the session, which the
/// client itself does.
class tst_Demo : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void keyringIsForTheUsersOwnAccounts_data();
    void keyringIsForTheUsersOwnAccounts();

private:
    static bool hasLoadedPlugins(const QString &folder);
};

/// The profile is somewhere in \a folder.
bool tst_Demo::hasLoadedPlugins(const QString &folder)
{
    return QDirIterator(folder, { QStringLiteral("plugins.json") }, QDir::Files, QDirIterator::Subdirectories)
        .hasNext();
}

void tst_Demo::keyringIsForTheUsersOwnAccounts_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<bool>("isDemo");
    QTest::newRow("client") << KIRV_PROGRAM << false;
    QTest::newRow("demo") << KIRV_DEMO << true;
}

void tst_Demo::keyringIsForTheUsersOwnAccounts()
{
    QFETCH(QString, program);
    QFETCH(bool, isDemo);
    KirvScriptedSecretService service(KirvScriptedSecretService::SaysItsState);
    QVERIFY(service.appear());
    QTemporaryDir home;
    for (const char *name : { "temporary", "home", "data" })
        QVERIFY(QDir(home.path()).mkdir(QLatin1String(name)));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("TMPDIR"), home.filePath(QStringLiteral("temporary")));
    environment.insert(QStringLiteral("HOME"), home.filePath(QStringLiteral("home")));
    environment.insert(QStringLiteral("XDG_DATA_HOME"), home.filePath(QStringLiteral("data")));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, QStringList());
    QVERIFY(process.waitForStarted(kirvPatience));
    QTRY_VERIFY_WITH_TIMEOUT(hasLoadedPlugins(home.path()), kirvPatienceWithProgram);
    if (!isDemo)
        KIRV_TRY(!service.calls().isEmpty());
    process.terminate();
    QTRY_COMPARE_WITH_TIMEOUT(process.state(), QProcess::NotRunning, kirvPatienceWithProgram);
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
    QCOMPARE(service.calls().isEmpty(), isDemo);
    if (!isDemo)
        return; // it keeps its profile
    for (const char *name : { "temporary", "home", "data" }) {
        const QDir folder(home.filePath(QLatin1String(name)));
        QCOMPARE(folder.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot), QStringList());
    }
}

int main(int argc, char *argv[])
{
    kirvEnterPrivateBus(argv);
    kirvForgetPrivateBusFile();
    QCoreApplication application(argc, argv);
    tst_Demo test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_demo.moc"
