// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/store/kirv_profile_rescue.h"
#include "core/store/kirv_store.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/kirv_profile_files.h"
#include "tests/support/kirv_profile_tool.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

/// The program, started by its command line and without a display.
class tst_ProfileCommands : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void wholeProfileIsFoundWhole();
    void damagedProfileIsReportedWithItsCopies_data();
    void damagedProfileIsReportedWithItsCopies();
    void newestCopyIsRestored();
    void namedCopyIsRestored_data();
    void namedCopyIsRestored();
    void unknownCopyIsRefused();
    void wholeProfileIsRestoredOnlyToANamedCopy();
    void readableRowsAreRecovered();
    void otherFoldersAreRefused_data();
    void otherFoldersAreRefused();
    void wrongCommandLinesAreRefused_data();
    void wrongCommandLinesAreRefused();
    void withoutAHomeThereIsNoProfile_data();
    void withoutAHomeThereIsNoProfile();
    void relativeDataFolderCountsAsUnset();

private:
    struct Result {
        int status = -1;
        QString output, errors;
    };
    Result run(const QStringList &arguments, const QStringList &unset = {}, const QStringList &set = {}) const;
    Result runOnProfile(const QStringList &arguments) const
    {
        return run(QStringList { QStringLiteral("--profile"), folder } + arguments);
    }
    void addAccounts(int count);
    void damage() const;
    int storedAccounts() const;
    QStringList copyNames() const;

    std::unique_ptr<QTemporaryDir> home;
    QString folder;
    int accounts = 0;
};

void tst_ProfileCommands::init()
{
    home = std::make_unique<QTemporaryDir>();
    QVERIFY(home->isValid());
    folder = home->filePath(QStringLiteral("profile"));
    accounts = 0;
}

/// Runs the program without any display.
tst_ProfileCommands::Result tst_ProfileCommands::run(const QStringList &arguments, const QStringList &unset,
                                                     const QStringList &set) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *variable : { "DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM" })
        environment.remove(QLatin1String(variable));
    environment.insert(QStringLiteral("HOME"), home->path());
    environment.remove(QStringLiteral("XDG_DATA_HOME"));
    for (const QString &variable : unset)
        environment.remove(variable);
    for (const QString &assignment : set)
        environment.insert(assignment.section(QLatin1Char('='), 0, 0), assignment.section(QLatin1Char('='), 1));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(home->path());
    process.start(QStringLiteral(KIRV_PROGRAM), arguments);
    if (!process.waitForFinished(kirvPatience) || process.exitStatus() != QProcess::NormalExit) {
        process.kill();
        process.waitForFinished(kirvPatience);
        return {};
    }
    return { process.exitCode(), QString::fromLocal8Bit(process.readAllStandardOutput()),
             QString::fromLocal8Bit(process.readAllStandardError()) };
}

/// Keeps a copy with so many accounts more.
void tst_ProfileCommands::addAccounts(int count)
{
    KirvStore store;
    QVERIFY2(store.open(folder), qPrintable(store.lastError()));
    for (int number = accounts; number < accounts + count; ++number) {
        KirvAccountRecord account;
        account.key = { QStringLiteral("user%1").arg(number), QStringLiteral("XMPP") };
        account.password = QStringLiteral("secret");
        account.rememberPassword = true;
        QVERIFY(store.insertAccount(account));
    }
    accounts += count;
}

void tst_ProfileCommands::damage() const
{
    QCOMPARE(runInDatabase(databaseIn(folder), { QStringLiteral("DROP TABLE avatar_file") }), QVariant());
}

int tst_ProfileCommands::storedAccounts() const
{
    KirvStore store;
    return store.open(folder) ? int(store.readAccounts().size()) : -1;
}

QStringList tst_ProfileCommands::copyNames() const
{
    QStringList names;
    const QList<KirvProfileCopy> copies = KirvProfileRescue(folder).copies();
    for (const KirvProfileCopy &copy : copies)
        names << QFileInfo(copy.path).fileName();
    return names;
}

void tst_ProfileCommands::wholeProfileIsFoundWhole()
{
    addAccounts(2);
    const auto before = treeOf(folder);
    const Result result = runOnProfile({ QStringLiteral("--check") });
    QCOMPARE(result.status, 0);
    QVERIFY2(result.output.contains(QLatin1String("not damaged")), qPrintable(result.output));
    QVERIFY2(result.output.contains(copyNames().first()), qPrintable(result.output));
    QCOMPARE(result.errors, QString());
    QCOMPARE(treeOf(folder), before);
}

void tst_ProfileCommands::damagedProfileIsReportedWithItsCopies_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("environment");
    QTest::newRow("checked") << QStringList { "--check" } << QStringList();
    QTest::newRow("started without a display") << QStringList() << QStringList();
    QTest::newRow("started off-screen") << QStringList() << QStringList { "QT_QPA_PLATFORM=offscreen" };
}

void tst_ProfileCommands::damagedProfileIsReportedWithItsCopies()
{
    QFETCH(QStringList, arguments);
    QFETCH(QStringList, environment);
    addAccounts(2);
    addAccounts(3);
    damage();
    const auto before = treeOf(folder);
    const Result result = run(QStringList { QStringLiteral("--profile"), folder } + arguments, {}, environment);
    QCOMPARE(result.status, 2);
    QCOMPARE(result.output, QString());
    for (const QString &part : { folder, QStringLiteral("Tables or columns"), QStringLiteral("Accounts: 5"),
                                 QStringLiteral("Accounts: 2"), QStringLiteral("--restore"), copyNames().first() })
        QVERIFY2(result.errors.contains(part), qPrintable(result.errors));
    QCOMPARE(treeOf(folder), before);
}

void tst_ProfileCommands::newestCopyIsRestored()
{
    addAccounts(2);
    addAccounts(3);
    damage();
    const Result result = runOnProfile({ QStringLiteral("--restore") });
    QCOMPARE(result.status, 0);
    QVERIFY2(result.output.contains(QLatin1String("Accounts: 5")), qPrintable(result.output));
    QVERIFY2(result.output.contains(QLatin1String("profile.sqlite.damaged-")), qPrintable(result.output));
    QCOMPARE(storedAccounts(), 5);
}

void tst_ProfileCommands::namedCopyIsRestored_data()
{
    QTest::addColumn<bool>("byPath");
    QTest::newRow("by its name") << false;
    QTest::newRow("by its path") << true;
}

void tst_ProfileCommands::namedCopyIsRestored()
{
    QFETCH(bool, byPath);
    addAccounts(2);
    addAccounts(3);
    damage();
    const QString name = copyNames().last();
    const Result result =
        runOnProfile({ QStringLiteral("--restore"), byPath ? QLatin1String("profile/copies/") + name : name });
    QVERIFY2(result.status == 0, qPrintable(result.errors));
    QCOMPARE(storedAccounts(), 2);
}

void tst_ProfileCommands::unknownCopyIsRefused()
{
    addAccounts(2);
    damage();
    const auto before = treeOf(folder);
    const Result result = runOnProfile({ QStringLiteral("--restore"), QStringLiteral("copy-1.sqlite") });
    QCOMPARE(result.status, 1);
    QVERIFY2(result.errors.contains(QLatin1String("copy-1.sqlite")), qPrintable(result.errors));
    QVERIFY2(result.errors.contains(copyNames().first()), qPrintable(result.errors));
    QCOMPARE(treeOf(folder), before);
}

void tst_ProfileCommands::wholeProfileIsRestoredOnlyToANamedCopy()
{
    addAccounts(2);
    addAccounts(3);
    QCOMPARE(runOnProfile({ QStringLiteral("--restore") }).status, 1);
    QCOMPARE(runOnProfile({ QStringLiteral("--recover") }).status, 1);
    QCOMPARE(storedAccounts(), 5);
    QCOMPARE(runOnProfile({ QStringLiteral("--restore"), copyNames().last() }).status, 0);
    QCOMPARE(storedAccounts(), 2);
}

void tst_ProfileCommands::readableRowsAreRecovered()
{
    addAccounts(4);
    damage();
    const Result result = runOnProfile({ QStringLiteral("--recover") });
    QCOMPARE(result.status, 0);
    QVERIFY2(result.output.contains(QLatin1String("Passwords and other secret settings: 4")),
             qPrintable(result.output));
    QCOMPARE(storedAccounts(), 4);
}

void tst_ProfileCommands::otherFoldersAreRefused_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QString>("reason");
    QTest::newRow("newer") << "PRAGMA user_version = 77"
                           << "newer version";
    QTest::newRow("of another program") << "PRAGMA application_id = 77"
                                        << "another program";
}

void tst_ProfileCommands::otherFoldersAreRefused()
{
    QFETCH(QString, statement);
    QFETCH(QString, reason);
    addAccounts(2);
    QCOMPARE(runInDatabase(databaseIn(folder), { statement }), QVariant());
    const auto before = treeOf(folder);
    for (const QStringList &arguments :
         { QStringList { "--check" }, QStringList { "--restore" }, QStringList { "--recover" }, QStringList() }) {
        const Result result = runOnProfile(arguments);
        QCOMPARE(result.status, 1);
        QVERIFY2(result.errors.contains(reason), qPrintable(result.errors));
    }
    QCOMPARE(treeOf(folder), before);
}

void tst_ProfileCommands::wrongCommandLinesAreRefused_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("two commands") << QStringList { "--check", "--restore" };
    QTest::newRow("two copies") << QStringList { "--restore", "a", "b" };
    QTest::newRow("a copy to check") << QStringList { "--check", "a" };
    QTest::newRow("a word") << QStringList { "word" };
    QTest::newRow("no folder") << QStringList { "--check", "--profile", "" };
}

void tst_ProfileCommands::wrongCommandLinesAreRefused()
{
    QFETCH(QStringList, arguments);
    const Result result = run(arguments);
    QCOMPARE(result.status, 1);
    QVERIFY(result.errors.startsWith(QLatin1String("kirv: ")));
    QVERIFY(QDir(home->path()).isEmpty());
}

void tst_ProfileCommands::withoutAHomeThereIsNoProfile_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("environment");
    QTest::newRow("checked") << QStringList { "--check" } << QStringList();
    QTest::newRow("restored") << QStringList { "--restore" } << QStringList();
    QTest::newRow("started without a display") << QStringList() << QStringList();
    QTest::newRow("started off-screen") << QStringList() << QStringList { "QT_QPA_PLATFORM=offscreen" };
}

void tst_ProfileCommands::withoutAHomeThereIsNoProfile()
{
    QFETCH(QStringList, arguments);
    QFETCH(QStringList, environment);
    const Result result = run(arguments, { QStringLiteral("HOME") }, environment);
    QCOMPARE(result.status, 1);
    QVERIFY2(result.errors.contains(QLatin1String("HOME is not set")), qPrintable(result.errors));
    QVERIFY(QDir(home->path()).isEmpty()); // it is the working folder, too
}

void tst_ProfileCommands::relativeDataFolderCountsAsUnset()
{
    const Result result = run({ QStringLiteral("--check") }, {}, { QStringLiteral("XDG_DATA_HOME=data") });
    QCOMPARE(result.status, 0);
    QVERIFY2(result.output.contains(home->filePath(QStringLiteral(".local/share/kirv"))), qPrintable(result.output));
}

QTEST_GUILESS_MAIN(tst_ProfileCommands)

#include "tst_profile_commands.moc"
