// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/store/kirv_default_profile.h"
#include "core/store/kirv_profile_rescue.h"
#include "core/store/kirv_store.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/kirv_profile_files.h"
#include "tests/support/kirv_profile_tool.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <memory>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace {

const QString protocol = QStringLiteral("XMPP");
const QString pictureName = QStringLiteral("4f2a7c52-6a52-4e58-9a2b-1d3d1cf0a111.png");

KirvAccountRecord makeAccount(const QString &id)
{
    KirvAccountRecord account;
    account.key = { id, protocol };
    account.alias = QStringLiteral("Alias of ") + id;
    account.settings = { { "server", "talk.example.org" }, { "encrypted", "true" } };
    return account;
}

/// Another tool that is killed in the middle of a transaction, when its changes are in the database already.
int crashWhileWriting(const QString &file)
{
    QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"));
    database.setDatabaseName(file);
    if (!database.open())
        return 1;
    for (const char *statement : { "PRAGMA journal_mode = DELETE", "PRAGMA cache_size = 1", "BEGIN",
                                   "UPDATE account SET alias = alias || ' (half of a change)'" }) {
        if (!QSqlQuery(database).exec(QLatin1String(statement)))
            return 2;
    }
    std::printf("%d", int(QFile::exists(file + QLatin1String("-journal"))));
    std::fflush(stdout);
    ::raise(SIGKILL);
    return 3;
}

/// Says whether the profile opens and keeps it until it is killed.
int hold(const QString &folder)
{
    KirvStore store;
    std::printf("%s\n",
                store.open(folder)              ? "opened"
                    : store.isLockedByAnother() ? "locked"
                                                : qPrintable(store.lastError()));
    std::fflush(stdout);
    ::pause();
    return 0;
}

}

class tst_ProfileOpening : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void aFolderThatIsNoProfileIsRefusedUntouched_data();
    void aFolderThatIsNoProfileIsRefusedUntouched();
    void anEmptyFolderBecomesAProfileAndKeepsItsMode();
    void anUnfinishedCreationIsTakenUpAgain();
    void filesOfOthersStayInTheAvatarFolder();
    void noLinkLeadsOutOfTheProfile_data();
    void noLinkLeadsOutOfTheProfile();
    void aPipeOrFolderInPlaceOfAFileIsSaid_data();
    void aPipeOrFolderInPlaceOfAFileIsSaid();
    void anAvatarNameThatLeavesTheFolderIsNeverUsed_data();
    void anAvatarNameThatLeavesTheFolderIsNeverUsed();
    void aLostDatabaseIsNeverNew_data();
    void aLostDatabaseIsNeverNew();
    void aDatabaseThatDiffersIsRefusedUntouched_data();
    void aDatabaseThatDiffersIsRefusedUntouched();
    void aMissingValueOfAnAccountIsItsDefault_data();
    void aMissingValueOfAnAccountIsItsDefault();
    void aMissingValueElsewhereIsRefused_data();
    void aMissingValueElsewhereIsRefused();
    void aProfileOfTheVersionBeforeIsTakenOver();
    void aNewProfileCarriesTheMarkOfTheProgram();
    void aDeadLockLocksNobodyOut_data();
    void aDeadLockLocksNobodyOut();
    void theLockIsFoundOnEveryWayToTheProfile_data();
    void theLockIsFoundOnEveryWayToTheProfile();
    void whatAnotherInstanceHoldsIsNotDamaged_data();
    void whatAnotherInstanceHoldsIsNotDamaged();
    void ofSixAtOnceOneOpens();
    void aHotJournalIsRolledBack();
    void aLogThatWasLeftIsReplayed();
    void oddTextsAreReadChangedAndRemoved_data();
    void oddTextsAreReadChangedAndRemoved();
    void bytesThatAreNoTextStayWhenSomethingElseIsChanged();
    void theDefaultFolderNeedsAHome_data();
    void theDefaultFolderNeedsAHome();

private:
    void makeProfile(int accounts = 3) const;
    /// Opening is refused with a sentence that has \a reason in it, and nothing in the folder changes.
    void verifyRefused(const QString &reason) const;
    /// Makes the values in a column NULL, which its table does not take.
    void takeValueAway(const QString &table, const QString &column, const QString &type) const;
    QString database() const { return databaseIn(folder); }
    QString path(const char *name) const { return QDir(folder).filePath(QLatin1String(name)); }

    std::unique_ptr<QTemporaryDir> home;
    QString folder;
};

void tst_ProfileOpening::init()
{
    home = std::make_unique<QTemporaryDir>();
    QVERIFY(home->isValid());
    folder = home->filePath(QStringLiteral("profile"));
}

void tst_ProfileOpening::makeProfile(int accounts) const
{
    KirvStore store;
    QVERIFY2(store.open(folder), qPrintable(store.lastError()));
    QVERIFY(store.begin());
    for (int number = 0; number < accounts; ++number)
        QVERIFY(store.insertAccount(makeAccount(QString::number(number))));
    QVERIFY(store.commit());
}

void tst_ProfileOpening::verifyRefused(const QString &reason) const
{
    const auto before = treeOf(folder);
    KirvStore store;
    QVERIFY(!store.open(folder));
    QVERIFY2(store.lastError().contains(reason), qPrintable(store.lastError()));
    QVERIFY(!store.isLockedByAnother());
    QVERIFY(!store.isOpen());
    const auto after = treeOf(folder);
    QCOMPARE(after.keys(), before.keys());
    QCOMPARE(after, before);
}

void tst_ProfileOpening::aFolderThatIsNoProfileIsRefusedUntouched_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<QString>("reason");
    QTest::newRow("a document") << "letter.txt"
                                << "not a profile";
    QTest::newRow("a hidden file") << ".letter"
                                   << "not a profile";
    QTest::newRow("a folder") << "letters/letter.txt"
                              << "not a profile";
    QTest::newRow("pictures in a folder of that name") << "avatars/photo1.jpg"
                                                       << "not a profile";
    QTest::newRow("a file of that name") << "avatars"
                                         << "not a profile";
    QTest::newRow("copies of something else") << "copies/letter.txt"
                                              << "not a profile";
    QTest::newRow("a database of a similar name") << "profile.sqlite3"
                                                  << "not a profile";
    QTest::newRow("a picture as this program names them")
        << QStringLiteral("avatars/") + pictureName << "database is missing";
    QTest::newRow("a copy as this program names them") << "copies/copy-20260101-120000-000.sqlite"
                                                       << "database is missing";
    QTest::newRow("a log") << "profile.sqlite-wal"
                           << "database is missing";
    QTest::newRow("a damaged database that was kept") << "profile.sqlite.damaged-20260101-120000-000"
                                                      << "database is missing";
}

void tst_ProfileOpening::aFolderThatIsNoProfileIsRefusedUntouched()
{
    QFETCH(QString, content);
    QFETCH(QString, reason);
    const QString file = QDir(folder).filePath(content);
    QVERIFY(QDir().mkpath(QFileInfo(file).path()));
    QVERIFY(writeFile(file, "content"));
    QCOMPARE(::chmod(QFile::encodeName(folder).constData(), 0755), 0);
    verifyRefused(reason);
}

void tst_ProfileOpening::anEmptyFolderBecomesAProfileAndKeepsItsMode()
{
    QVERIFY(QDir().mkpath(folder));
    QCOMPARE(::chmod(QFile::encodeName(folder).constData(), 0750), 0);
    makeProfile();
    QCOMPARE(permissionsOf(folder), 0750);
    QCOMPARE(permissionsOf(database()), 0600);
    QCOMPARE(permissionsOf(path("avatars")), 0700);
}

void tst_ProfileOpening::anUnfinishedCreationIsTakenUpAgain()
{
    QVERIFY(QDir().mkpath(folder));
    QVERIFY(writeFile(path("profile.lock"), QByteArray()));
    QVERIFY(writeFile(path("profile.sqlite.unfinished"), "SQLite format 3"));
    makeProfile();
    QVERIFY(!QFile::exists(path("profile.sqlite.unfinished")));
}

void tst_ProfileOpening::filesOfOthersStayInTheAvatarFolder()
{
    makeProfile();
    QVERIFY(writeFile(path("avatars/photo1.jpg"), "photo"));
    QVERIFY(writeFile(QDir(path("avatars")).filePath(pictureName), "photo"));
    const auto before = filesIn(path("avatars"));
    KirvStore store;
    QVERIFY(store.open(folder));
    store.discardAvatar(QStringLiteral("photo1.jpg"));
    store.discardAvatar(pictureName);
    store.close();
    QVERIFY(store.open(folder));
    QCOMPARE(filesIn(path("avatars")), before);
}

void tst_ProfileOpening::noLinkLeadsOutOfTheProfile_data()
{
    QTest::addColumn<QString>("link");
    QTest::newRow("the avatar folder") << "avatars";
    QTest::newRow("an avatar") << "avatars/%1";
    QTest::newRow("the database") << "profile.sqlite";
    QTest::newRow("the lock") << "profile.lock";
}

void tst_ProfileOpening::noLinkLeadsOutOfTheProfile()
{
    QFETCH(QString, link);
    QString avatar;
    {
        KirvStore store;
        QVERIFY(store.open(folder));
        KirvAccountRecord account = makeAccount(QStringLiteral("a"));
        account.avatar = store.importAvatar(makePicture(home->filePath(QStringLiteral("picture.png"))));
        avatar = account.avatar;
        QVERIFY(store.insertAccount(account));
    }
    const QString inside = QDir(folder).filePath(link.contains(QLatin1Char('%')) ? link.arg(avatar) : link);
    const QString outside = home->filePath(QStringLiteral("outside"));
    QVERIFY(QFile::rename(inside, outside));
    QVERIFY(QFile::link(outside, inside));
    if (link == QLatin1String("avatars"))
        QVERIFY(writeFile(outside + QLatin1String("/photo1.jpg"), "photo"));
    const auto before = treeOf(outside);
    KirvStore store;
    if (!store.open(folder)) {
        QVERIFY2(store.lastError().contains(QLatin1String("link")), qPrintable(store.lastError()));
        QVERIFY(!link.contains(QLatin1Char('%')));
    } else {
        QCOMPARE(link, QStringLiteral("avatars/%1"));
        QVERIFY(store.readAccounts().first().avatar.isEmpty());
        QVERIFY(store.removeAccount({ "a", protocol }));
    }
    store.close();
    store.open(folder);
    QCOMPARE(treeOf(outside), before);
}

void tst_ProfileOpening::aPipeOrFolderInPlaceOfAFileIsSaid_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isPipe");
    for (const char *name : { "profile.sqlite", "profile.sqlite-wal", "profile.sqlite-shm", "profile.sqlite-journal",
                              "profile.sqlite.unfinished", "profile.lock" }) {
        QTest::addRow("pipe %s", name) << name << true;
        QTest::addRow("folder %s", name) << name << false;
    }
}

/// Whoever reads a pipe waits for its other end: opening is tried in a process of its own.
void tst_ProfileOpening::aPipeOrFolderInPlaceOfAFileIsSaid()
{
    QFETCH(QString, name);
    QFETCH(bool, isPipe);
    makeProfile();
    const QString file = QDir(folder).filePath(name);
    QFile::remove(file);
    if (isPipe)
        QCOMPARE(::mkfifo(QFile::encodeName(file).constData(), 0600), 0);
    else
        QVERIFY(QDir().mkdir(file));
    QProcess holder;
    holder.start(QCoreApplication::applicationFilePath(), { "--hold", folder });
    const bool hasReplied = holder.waitForReadyRead(kirvPatience);
    const QByteArray reply = holder.readAll();
    holder.kill();
    holder.waitForFinished(kirvPatience);
    QVERIFY(hasReplied);
    QVERIFY2(reply.contains("is not an ordinary file") && reply.contains(name.toLatin1()), reply.constData());
}

void tst_ProfileOpening::anAvatarNameThatLeavesTheFolderIsNeverUsed_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : { "../../x", "../x", "/%1/x", "sub/../../../x", "..", ".", "x/", "profile.sqlite" })
        QTest::newRow(name) << name;
}

void tst_ProfileOpening::anAvatarNameThatLeavesTheFolderIsNeverUsed()
{
    QFETCH(QString, name);
    if (name.contains(QLatin1Char('%')))
        name = home->filePath(QStringLiteral("x"));
    makeProfile();
    for (const QString &file : { home->filePath(QStringLiteral("x")), path("x") })
        QVERIFY(writeFile(file, "precious"));
    QVERIFY(QDir().mkpath(path("avatars/sub")));
    QCOMPARE(runInDatabase(database(), { QStringLiteral("UPDATE account SET avatar = '%1'").arg(name) }), QVariant());
    runInDatabase(database(), { QStringLiteral("INSERT INTO avatar_file VALUES ('%1')").arg(name) });
    for (int round = 0; round < 2; ++round) {
        KirvStore store;
        QVERIFY2(store.open(folder), qPrintable(store.lastError()));
        const QList<KirvAccountRecord> accounts = store.readAccounts();
        QVERIFY(!accounts.isEmpty());
        QCOMPARE(accounts.first().avatar, QString());
        QVERIFY(store.updateAccount(makeAccount(accounts.first().key.id)));
        QVERIFY(store.removeAccount(accounts.first().key));
        store.discardAvatar(name);
    }
    for (const QString &file : { home->filePath(QStringLiteral("x")), path("x") })
        QCOMPARE(contentOf(file), QByteArray("precious"));
    QVERIFY(QFileInfo(path("avatars/sub")).isDir());
}

void tst_ProfileOpening::aLostDatabaseIsNeverNew_data()
{
    QTest::addColumn<QString>("what");
    for (const char *what : { "zero bytes", "one byte", "missing beside avatars", "missing beside a log",
                              "missing beside empty folders", "zero bytes and nothing else" })
        QTest::newRow(what) << what;
}

void tst_ProfileOpening::aLostDatabaseIsNeverNew()
{
    QFETCH(QString, what);
    {
        KirvStore store;
        QVERIFY(store.open(folder));
        KirvAccountRecord account = makeAccount(QStringLiteral("a"));
        account.avatar = store.importAvatar(makePicture(home->filePath(QStringLiteral("picture.png"))));
        QVERIFY(store.insertAccount(account));
    }
    QVERIFY(QFile::remove(database()));
    if (what.startsWith(QLatin1String("missing"))) {
        if (what.endsWith(QLatin1String("log")))
            QVERIFY(QDir(path("avatars")).removeRecursively() && writeFile(database() + QLatin1String("-wal"), "x"));
        if (what.endsWith(QLatin1String("folders"))) {
            for (const char *name : { "avatars", "copies" })
                QVERIFY(QDir(path(name)).removeRecursively() && QDir(folder).mkdir(QLatin1String(name)));
        }
    } else {
        if (what.endsWith(QLatin1String("else")))
            QVERIFY(QDir(folder).removeRecursively() && QDir().mkpath(folder));
        QVERIFY(writeFile(database(), what == QLatin1String("one byte") ? "x" : ""));
    }
    verifyRefused(QStringLiteral("damaged"));
}

void tst_ProfileOpening::aDatabaseThatDiffersIsRefusedUntouched_data()
{
    QTest::addColumn<QStringList>("statements");
    QTest::addColumn<QString>("reason");
    QTest::newRow("a column is missing") << QStringList("ALTER TABLE account DROP COLUMN last_presence") << "damaged";
    QTest::newRow("a table is missing") << QStringList("DROP TABLE account_setting") << "damaged";
    QTest::newRow("a table too many") << QStringList("CREATE TABLE song (title TEXT)") << "damaged";
    QTest::newRow("a column too many") << QStringList("ALTER TABLE setting ADD COLUMN note TEXT") << "damaged";
    QTest::newRow("a column of another name")
        << QStringList("ALTER TABLE account RENAME COLUMN alias TO aliaz") << "damaged";
    QTest::newRow("another program's") << QStringList({ "PRAGMA application_id = 0", "DROP TABLE account_setting",
                                                        "DROP TABLE account", "CREATE TABLE account (song TEXT)",
                                                        "PRAGMA user_version = 2" })
                                       << "another program";
    QTest::newRow("marked by another program")
        << QStringList("PRAGMA application_id = 1196444487") << "another program";
    QTest::newRow("a newer version") << QStringList("PRAGMA user_version = 1000") << "newer version";
}

void tst_ProfileOpening::aDatabaseThatDiffersIsRefusedUntouched()
{
    QFETCH(QStringList, statements);
    QFETCH(QString, reason);
    makeProfile();
    statements.prepend(QStringLiteral("PRAGMA journal_mode = DELETE"));
    QVERIFY(!runInDatabase(database(), statements).toString().startsWith(QLatin1String("error")));
    for (const char *mode : { "DELETE", "WAL" }) {
        runInDatabase(database(), { QLatin1String("PRAGMA journal_mode = ") + QLatin1String(mode) });
        verifyRefused(reason);
        if (QTest::currentTestFailed())
            return;
    }
}

void tst_ProfileOpening::takeValueAway(const QString &table, const QString &column, const QString &type) const
{
    const QString loose = QStringLiteral("%1 %2").arg(column, type);
    const QString strict = loose + QStringLiteral(" NOT NULL");
    const auto replaced = [&table](const QString &from, const QString &to) {
        return QStringLiteral("UPDATE sqlite_master SET sql = replace(sql, '%1', '%2') WHERE name = '%3'")
            .arg(from, to, table);
    };
    const QString writable = QStringLiteral("PRAGMA writable_schema = ON");
    const QString update = QStringLiteral("UPDATE %1 SET %2 = NULL").arg(table, column);
    QCOMPARE(runInDatabase(database(), { writable, replaced(strict, loose) }), QVariant());
    QCOMPARE(runInDatabase(database(), { update }), QVariant());
    QCOMPARE(runInDatabase(database(), { writable, replaced(loose, strict) }), QVariant());
}

void tst_ProfileOpening::aMissingValueOfAnAccountIsItsDefault_data()
{
    QTest::addColumn<QString>("column");
    for (const char *column : { "alias", "default_presence", "last_description", "avatar" })
        QTest::newRow(column) << column + QStringLiteral(" TEXT");
    for (const char *column : { "enabled", "remember_password", "restore_presence" })
        QTest::newRow(column) << column + QStringLiteral(" INTEGER");
}

void tst_ProfileOpening::aMissingValueOfAnAccountIsItsDefault()
{
    QFETCH(QString, column);
    makeProfile();
    takeValueAway(QStringLiteral("account"), column.section(QLatin1Char(' '), 0, 0),
                  column.section(QLatin1Char(' '), 1));
    KirvStore store;
    QVERIFY2(store.open(folder), qPrintable(store.lastError()));
    QCOMPARE(store.copyError(), QString());
    const QList<KirvAccountRecord> accounts = store.readAccounts();
    QCOMPARE(accounts.size(), 3);
    KirvAccountRecord expected = makeAccount(QStringLiteral("1"));
    if (column.startsWith(QLatin1String("alias")))
        expected.alias.clear();
    QVERIFY(accounts.at(1) == expected);
    expected.alias = QStringLiteral("changed");
    QVERIFY2(store.updateAccount(expected), qPrintable(store.lastError()));
    QVERIFY(store.readAccounts().at(1) == expected);
    QVERIFY2(store.removeAccount(expected.key), qPrintable(store.lastError()));
    store.close();
    QCOMPARE(store.copyError(), QString());
    QVERIFY(store.open(folder));
    QCOMPARE(store.readAccounts().size(), 2);
}

void tst_ProfileOpening::aMissingValueElsewhereIsRefused_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<QString>("column");
    QTest::newRow("login") << "account"
                           << "id TEXT";
    QTest::newRow("protocol") << "account"
                              << "protocol TEXT";
    QTest::newRow("place") << "account"
                           << "position INTEGER";
    QTest::newRow("value of a setting") << "account_setting"
                                        << "value TEXT";
}

void tst_ProfileOpening::aMissingValueElsewhereIsRefused()
{
    QFETCH(QString, table);
    QFETCH(QString, column);
    makeProfile();
    takeValueAway(table, column.section(QLatin1Char(' '), 0, 0), column.section(QLatin1Char(' '), 1));
    verifyRefused(QStringLiteral("damaged"));
}

void tst_ProfileOpening::aProfileOfTheVersionBeforeIsTakenOver()
{
    QVERIFY(QDir().mkpath(folder));
    QVERIFY(QFile::copy(QStringLiteral(KIRV_TEST_DATA "/profile_version_1.sqlite"), database()));
    KirvStore store;
    QVERIFY2(store.open(folder), qPrintable(store.lastError()));
    QCOMPARE(store.readAccounts().size(), 3);
    store.close();
    QCOMPARE(runInDatabase(database(), { "PRAGMA application_id" }).toInt(), 0x4b697276);
}

void tst_ProfileOpening::aNewProfileCarriesTheMarkOfTheProgram()
{
    makeProfile();
    QCOMPARE(contentOf(database()).mid(68, 4), QByteArray("Kirv"));
}

void tst_ProfileOpening::aDeadLockLocksNobodyOut_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("garbage") << QByteArray("\xff\0garbage\n\n\n", 12);
    QTest::newRow("our own number") << QByteArray::number(qint64(::getpid())) + "\ntst_profile_opening\nhost\n";
    QTest::newRow("a living process") << QByteArray("1\ninit\n") + QSysInfo::machineHostName().toUtf8() + "\n";
}

void tst_ProfileOpening::aDeadLockLocksNobodyOut()
{
    QFETCH(QByteArray, content);
    makeProfile();
    QVERIFY(writeFile(path("profile.lock"), content));
    KirvStore store;
    QVERIFY2(store.open(folder), qPrintable(store.lastError()));
}

void tst_ProfileOpening::theLockIsFoundOnEveryWayToTheProfile_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("the same") << "profile";
    QTest::newRow("another spelling") << "other/..//profile/.";
    QTest::newRow("a link to the folder") << "link";
    if (::geteuid() == 0)
        QTest::newRow("a bind mount") << "mount";
}

void tst_ProfileOpening::theLockIsFoundOnEveryWayToTheProfile()
{
    QFETCH(QString, way);
    makeProfile();
    const QString other = home->path() + QLatin1Char('/') + way;
    QVERIFY(QDir(home->path()).mkdir(QStringLiteral("other")) && QDir(home->path()).mkdir(QStringLiteral("mount")));
    QVERIFY(QFile::link(folder, home->filePath(QStringLiteral("link"))));
    if (way == QLatin1String("mount")
        && ::mount(QFile::encodeName(folder).constData(), QFile::encodeName(other).constData(), nullptr, MS_BIND,
                   nullptr)
            != 0)
        return; // a container without the right to mount
    QProcess holder;
    holder.start(QCoreApplication::applicationFilePath(), { "--hold", folder });
    QVERIFY(holder.waitForReadyRead(kirvPatience));
    QCOMPARE(holder.readAll(), QByteArray("opened\n"));
    KirvStore store;
    const bool opened = store.open(other);
    const bool locked = store.isLockedByAnother();
    store.close();
    holder.kill();
    holder.waitForFinished(kirvPatience);
    const bool openedAfter = store.open(other);
    store.close();
    if (way == QLatin1String("mount"))
        ::umount2(QFile::encodeName(other).constData(), MNT_DETACH);
    QVERIFY(!opened && locked);
    QVERIFY(openedAfter);
}

void tst_ProfileOpening::whatAnotherInstanceHoldsIsNotDamaged_data()
{
    QTest::addColumn<bool>("isMissing");
    QTest::newRow("its database has no name yet") << true;
    QTest::newRow("its database is empty") << false;
}

/// What can be seen for a moment while the other one makes the database or empties its log.
void tst_ProfileOpening::whatAnotherInstanceHoldsIsNotDamaged()
{
    QFETCH(bool, isMissing);
    makeProfile();
    QProcess holder;
    holder.start(QCoreApplication::applicationFilePath(), { "--hold", folder });
    QVERIFY(holder.waitForReadyRead(kirvPatience));
    for (const char *suffix : { "", "-wal", "-shm" })
        QFile::remove(database() + QLatin1String(suffix));
    if (!isMissing)
        QVERIFY(writeFile(database(), QByteArray()));
    KirvStore store;
    QVERIFY(!store.open(folder));
    QCOMPARE(store.state(), KirvProfileState::InUse);
    QCOMPARE(KirvProfileRescue(folder).check().kind, KirvProfileState::InUse);
    holder.kill();
    holder.waitForFinished(kirvPatience);
    QVERIFY(!store.open(folder));
    QCOMPARE(store.state(), KirvProfileState::Damaged);
    QCOMPARE(KirvProfileRescue(folder).check().kind, KirvProfileState::Damaged);
}

void tst_ProfileOpening::ofSixAtOnceOneOpens()
{
    for (int round = 0; round < 5; ++round) {
        std::vector<std::unique_ptr<QProcess>> processes;
        for (int number = 0; number < 6; ++number) {
            processes.push_back(std::make_unique<QProcess>());
            processes.back()->start(QCoreApplication::applicationFilePath(), { "--hold", folder });
        }
        int opened = 0, locked = 0;
        QByteArray said;
        for (const auto &process : processes) {
            QVERIFY(process->canReadLine() || process->waitForReadyRead(kirvPatience));
            const QByteArray line = process->readLine();
            opened += line == "opened\n";
            locked += line == "locked\n";
            said += line;
        }
        for (const auto &process : processes) {
            process->kill();
            process->waitForFinished(kirvPatience);
        }
        QVERIFY2(opened == 1 && locked == 5, said.constData());
    }
}

void tst_ProfileOpening::aHotJournalIsRolledBack()
{
    makeProfile(500);
    QProcess tool;
    tool.start(QCoreApplication::applicationFilePath(), { "--crash-while-writing", database() });
    QVERIFY(tool.waitForFinished(kirvPatience));
    QCOMPARE(tool.exitStatus(), QProcess::CrashExit);
    QCOMPARE(tool.readAllStandardOutput(), QByteArray("1"));
    QVERIFY(contentOf(database()).contains("(half of a change)"));
    KirvStore store;
    QVERIFY2(store.open(folder), qPrintable(store.lastError()));
    const QList<KirvAccountRecord> accounts = store.readAccounts();
    QCOMPARE(accounts.size(), 500);
    for (const KirvAccountRecord &account : accounts)
        QCOMPARE(account.alias, QStringLiteral("Alias of ") + account.key.id);
}

void tst_ProfileOpening::aLogThatWasLeftIsReplayed()
{
    const QString copy = home->filePath(QStringLiteral("copy"));
    {
        KirvStore store;
        QVERIFY(store.open(folder));
        for (int number = 0; number < 20; ++number)
            QVERIFY(store.insertAccount(makeAccount(QString::number(number))));
        // What a power cut leaves: the database and its log.
        QVERIFY(QDir().mkpath(copy + QLatin1String("/avatars")));
        for (const char *suffix : { "", "-wal" })
            QVERIFY(QFile::copy(database() + QLatin1String(suffix), databaseIn(copy) + QLatin1String(suffix)));
    }
    KirvStore store;
    QVERIFY2(store.open(copy), qPrintable(store.lastError()));
    QCOMPARE(store.readAccounts().size(), 20);
}

void tst_ProfileOpening::oddTextsAreReadChangedAndRemoved_data()
{
    QTest::addColumn<QString>("column");
    QTest::addColumn<QString>("value");
    for (const char *column : { "id", "alias" }) {
        QTest::addRow("%s: no valid UTF-8", column) << column << "CAST(x'ff61fe' AS TEXT)";
        QTest::addRow("%s: half a surrogate", column) << column << "CAST(x'eda08061' AS TEXT)";
        QTest::addRow("%s: bytes", column) << column << "x'6161ff'";
        QTest::addRow("%s: a null character", column) << column << "CAST(x'610062' AS TEXT)";
        QTest::addRow("%s: ten megabytes", column)
            << column << "CAST(replace(hex(zeroblob(5000000)), '0', 'x') AS TEXT)";
    }
}

void tst_ProfileOpening::oddTextsAreReadChangedAndRemoved()
{
    QFETCH(QString, column);
    QFETCH(QString, value);
    makeProfile();
    QCOMPARE(
        runInDatabase(database(), { QStringLiteral("UPDATE account SET %1 = %2 WHERE number = 2").arg(column, value) }),
        QVariant());
    QElapsedTimer timer;
    timer.start();
    KirvStore store;
    QVERIFY2(store.open(folder), qPrintable(store.lastError()));
    const QList<KirvAccountRecord> accounts = store.readAccounts();
    QCOMPARE(accounts.size(), 3);
    QCOMPARE(accounts.at(1).settings, makeAccount(QString()).settings);
    QVERIFY((column == QLatin1String("id") ? accounts.at(1).key.id : accounts.at(1).alias).size() >= 2);
    KirvAccountRecord changed = accounts.at(1);
    changed.alias = QStringLiteral("changed");
    QVERIFY2(store.updateAccount(changed), qPrintable(store.lastError()));
    QVERIFY(store.readAccounts().at(1) == changed);
    QVERIFY2(store.removeAccount(changed.key), qPrintable(store.lastError()));
    QCOMPARE(store.readAccounts().size(), 2);
    QVERIFY2(timer.elapsed() < kirvPatience, qPrintable(QString::number(timer.elapsed())));
}

void tst_ProfileOpening::bytesThatAreNoTextStayWhenSomethingElseIsChanged()
{
    makeProfile();
    QCOMPARE(runInDatabase(database(),
                           { QStringLiteral(
                               "UPDATE account SET alias = CAST(x'ff61fe' AS TEXT), last_description = x'6161ff'") }),
             QVariant());
    KirvStore store;
    QVERIFY(store.open(folder));
    KirvAccountRecord changed = store.readAccounts().at(1);
    changed.enabled = false;
    changed.defaultDescription = QStringLiteral("away");
    QVERIFY2(store.updateAccount(changed), qPrintable(store.lastError()));
    QVERIFY(store.readAccounts().at(1) == changed);
    store.close();
    QCOMPARE(runInDatabase(database(),
                           { QStringLiteral("SELECT hex(alias) || ' ' || hex(last_description) FROM account "
                                            "WHERE id = '1'") })
                 .toString(),
             QStringLiteral("FF61FE 6161FF"));
}

void tst_ProfileOpening::theDefaultFolderNeedsAHome_data()
{
    QTest::addColumn<QByteArray>("home");
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<QString>("folder");
    QTest::newRow("both") << QByteArray("/home/anna") << QByteArray("/data") << "/data/kirv";
    QTest::newRow("only a home") << QByteArray("/home/anna") << QByteArray() << "/home/anna/.local/share/kirv";
    QTest::newRow("a relative folder for data")
        << QByteArray("/home/anna") << QByteArray("data") << "/home/anna/.local/share/kirv";
    QTest::newRow("only a folder for data") << QByteArray() << QByteArray("/data/") << "/data/kirv";
    QTest::newRow("neither") << QByteArray() << QByteArray() << "";
    QTest::newRow("a relative home") << QByteArray("anna") << QByteArray("./data") << "";
}

void tst_ProfileOpening::theDefaultFolderNeedsAHome()
{
    QFETCH(QByteArray, home);
    QFETCH(QByteArray, data);
    QFETCH(QString, folder);
    const QByteArray homeBefore = qgetenv("HOME"), dataBefore = qgetenv("XDG_DATA_HOME");
    home.isNull() ? qunsetenv("HOME") : qputenv("HOME", home);
    data.isNull() ? qunsetenv("XDG_DATA_HOME") : qputenv("XDG_DATA_HOME", data);
    QString error;
    const QString found = kirvDefaultProfileFolder(&error);
    qputenv("HOME", homeBefore);
    dataBefore.isNull() ? qunsetenv("XDG_DATA_HOME") : qputenv("XDG_DATA_HOME", dataBefore);
    QCOMPARE(found, folder);
    QCOMPARE(error.contains(QLatin1String("HOME")), folder.isEmpty());
}

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() == 3 && arguments.at(1) == QLatin1String("--crash-while-writing"))
        return crashWhileWriting(arguments.at(2));
    if (arguments.size() == 3 && arguments.at(1) == QLatin1String("--hold"))
        return hold(arguments.at(2));
    tst_ProfileOpening test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_profile_opening.moc"
