// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/store/kirv_avatar_folder.h"
#include "core/store/kirv_profile_rescue.h"
#include "core/store/kirv_store.h"
#include "core/store/kirv_store_schema.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/kirv_profile_files.h"

#include <QLockFile>
#include <QProcess>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QtTest>
#include <csignal>
#include <cstdio>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const QString databaseName = QStringLiteral("profile.sqlite");

KirvAccountRecord makeAccount(const QString &id, const QString &protocol = QStringLiteral("XMPP"))
{
    KirvAccountRecord account;
    account.key = { id, protocol };
    account.alias = QStringLiteral("Alias of ") + id;
    account.settings = { { "server", "talk.example.org" }, { "encrypted", "true" } };
    return account;
}

KirvAccountRecord makeFullAccount()
{
    KirvAccountRecord account = makeAccount(QStringLiteral("full@example.org"));
    account.alias = QString::fromUtf8("Zoë '); DROP TABLE account; --\n\u202b\U0001f600");
    account.password = QStringLiteral("s3cret word");
    account.rememberPassword = true;
    account.enabled = false;
    account.restorePresence = true;
    account.restoreDescription = true;
    account.defaultPresence = QStringLiteral("away");
    account.defaultDescription = QStringLiteral("line\nbreak");
    account.lastPresence = QStringLiteral("dnd");
    account.lastDescription = QStringLiteral("<b>busy</b>");
    account.trustedCertificate = QString(64, QLatin1Char('c'));
    account.settings.insert(QStringLiteral("empty"), QString());
    return account;
}

QStringList idsOf(KirvStore &store)
{
    QStringList ids;
    const QList<KirvAccountRecord> accounts = store.readAccounts();
    for (const KirvAccountRecord &account : accounts)
        ids << account.key.id;
    return ids;
}

int permissionsOf(const QString &path)
{
    struct stat status;
    return ::stat(QFile::encodeName(path).constData(), &status) == 0 ? int(status.st_mode & 0777) : -1;
}

/// Limits the size of every file that this process writes: writing beyond fails as on a full disk.
class FileSizeLimit {
public:
    explicit FileSizeLimit(qint64 bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &before);
        rlimit limit = before;
        limit.rlim_cur = rlim_t(bytes);
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() { ::setrlimit(RLIMIT_FSIZE, &before); }

private:
    Q_DISABLE_COPY(FileSizeLimit)
    rlimit before;
};

/// Opens the profile like another process does: as "hold" it keeps it until it is killed, as "try" it says how
/// it went, without the rights of the superuser.
int runAsOtherProcess(const QStringList &arguments)
{
    const bool holds = arguments.at(1) == QLatin1String("--hold");
    if (!holds && ::geteuid() == 0 && (::setgid(65534) != 0 || ::setuid(65534) != 0))
        return 2;
    KirvStore store;
    const bool opened = store.open(arguments.at(2));
    std::printf("%s\n", opened ? "opened" : qPrintable(store.lastError()));
    std::fflush(stdout);
    while (holds && opened)
        ::pause();
    return opened ? 0 : 1;
}

}

class tst_Store : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        home = std::make_unique<QTemporaryDir>();
        QVERIFY(home->isValid());
        folder = home->filePath(QStringLiteral("profile"));
    }

    void everythingInTheProfileBelongsToItsOwnerAlone()
    {
        KirvStore store;
        QVERIFY2(store.open(folder), qPrintable(store.lastError()));
        KirvAccountRecord account = makeAccount(QStringLiteral("a"));
        account.avatar = store.importAvatar(makePicture(home->filePath(QStringLiteral("picture.png"))));
        QVERIFY(!account.avatar.isEmpty());
        QVERIFY(store.insertAccount(account));

        QCOMPARE(permissionsOf(folder), 0700);
        QCOMPARE(permissionsOf(store.avatarFolder()), 0700);
        const QStringList files = filesIn(folder).keys();
        for (const QString &file : files)
            QVERIFY2(permissionsOf(file) == 0600, qPrintable(file));
        for (const char *suffix : { "", "-wal", "-shm" })
            QVERIFY(files.contains(QDir(folder).filePath(databaseName + QLatin1String(suffix))));
    }

    void filesThatWereOpenToOthersAreClosed()
    {
        QVERIFY(KirvStore().open(folder));
        const QByteArray file = QFile::encodeName(QDir(folder).filePath(databaseName));
        QCOMPARE(::chmod(file.constData(), 0644), 0);
        KirvStore store;
        QVERIFY(store.open(folder));
        QCOMPARE(permissionsOf(QFile::decodeName(file)), 0600);
    }

    void theDatabaseIsWrittenThrough()
    {
        KirvStore store;
        QVERIFY(store.open(folder));
        const auto pragma = [](const char *name) {
            QSqlQuery query(ownConnection());
            query.exec(QLatin1String("PRAGMA ") + QLatin1String(name));
            return query.next() ? query.value(0).toString() : QString();
        };
        QCOMPARE(pragma("journal_mode"), QStringLiteral("wal"));
        QCOMPARE(pragma("synchronous"), QStringLiteral("2"));
        QCOMPARE(pragma("foreign_keys"), QStringLiteral("1"));
        QCOMPARE(pragma("user_version"), QStringLiteral("5"));
    }

    void whatIsStoredIsReadAgain()
    {
        const KirvAccountRecord account = makeFullAccount();
        {
            KirvStore store;
            QVERIFY(store.open(folder));
            QVERIFY(store.insertAccount(makeAccount(account.key.id)));
            QVERIFY2(store.updateAccount(account), qPrintable(store.lastError()));
            QVERIFY(store.insertAccount(makeAccount(account.key.id, QStringLiteral("IRC"))));
            QVERIFY(store.writeSetting(QStringLiteral("main_account"), QStringLiteral("a@@b")));
            QVERIFY(store.writeSetting(QStringLiteral("main_account"), QStringLiteral("c@@d")));
            QVERIFY(store.writeSetting(QStringLiteral("empty"), QString()));
        }
        KirvStore store;
        QVERIFY(store.open(folder));
        const QList<KirvAccountRecord> accounts = store.readAccounts();
        QCOMPARE(accounts.size(), 2);
        QVERIFY(accounts.at(0).isStoredLike(account));
        QCOMPARE(accounts.at(0).password, account.password);
        QVERIFY(accounts.at(1).isStoredLike(makeAccount(account.key.id, QStringLiteral("IRC"))));
        QCOMPARE(store.readSetting(QStringLiteral("main_account")), QStringLiteral("c@@d"));
        QCOMPARE(store.readSetting(QStringLiteral("empty"), QStringLiteral("fallback")), QString());
        QCOMPARE(store.readSetting(QStringLiteral("none"), QStringLiteral("fallback")), QStringLiteral("fallback"));
    }

    void settingsThatAreNoLongerThereAreForgotten()
    {
        KirvStore store;
        QVERIFY(store.open(folder));
        KirvAccountRecord account = makeAccount(QStringLiteral("a"));
        QVERIFY(store.insertAccount(account));
        account.settings = { { "server", "other.example.org" } };
        QVERIFY(store.updateAccount(account));
        QCOMPARE(store.readAccounts().first().settings, account.settings);
    }

    void anAccountIsPlacedBeforeAnother_data()
    {
        QTest::addColumn<QString>("placed");
        QTest::addColumn<QString>("next");
        QTest::addColumn<QString>("order");
        QTest::newRow("down") << "a"
                              << "c"
                              << "b a c d";
        QTest::newRow("up") << "d"
                            << "b"
                            << "a d b c";
        QTest::newRow("to the start") << "c"
                                      << "a"
                                      << "c a b d";
        QTest::newRow("to the end") << "b"
                                    << ""
                                    << "a c d b";
        QTest::newRow("where it is") << "b"
                                     << "c"
                                     << "a b c d";
        QTest::newRow("several to the start") << "d b"
                                              << "a"
                                              << "d b a c";
        QTest::newRow("several from both sides") << "a d"
                                                 << "c"
                                                 << "b a d c";
        QTest::newRow("several to the end") << "c a"
                                            << ""
                                            << "b d c a";
        QTest::newRow("all") << "d c b a"
                             << ""
                             << "d c b a";
    }

    void anAccountIsPlacedBeforeAnother()
    {
        QFETCH(QString, placed);
        QFETCH(QString, next);
        QFETCH(QString, order);
        for (const bool hasEqualPositions : { false, true }) {
            KirvStore store;
            QVERIFY(store.open(folder + QString::number(hasEqualPositions)));
            for (const char *id : { "a", "b", "c", "d" })
                QVERIFY(store.insertAccount(makeAccount(QLatin1String(id))));
            if (hasEqualPositions)
                QVERIFY(QSqlQuery(ownConnection()).exec(QStringLiteral("UPDATE account SET position = 7")));
            QList<KirvAccountKey> keys;
            for (const QString &id : placed.split(QLatin1Char(' ')))
                keys << KirvAccountKey { id, "XMPP" };
            const int commits = store.commitCount();
            QVERIFY(store.placeAccounts(keys, { next, "XMPP" }));
            QCOMPARE(store.commitCount(), commits + 1);
            QCOMPARE(idsOf(store).join(QLatin1Char(' ')), order);
        }
    }

    void anUnknownAccountIsNotPlaced()
    {
        KirvStore store;
        QVERIFY(store.open(folder));
        QVERIFY(store.insertAccount(makeAccount(QStringLiteral("a"))));
        QVERIFY(!store.placeAccount({ "b", "XMPP" }, { "a", "XMPP" }));
        QVERIFY(!store.placeAccount({ "a", "XMPP" }, { "b", "XMPP" }));
        QVERIFY(!store.lastError().isEmpty());
        QVERIFY(store.insertAccount(makeAccount(QStringLiteral("c"))));
        QVERIFY(!store.placeAccounts({ { "c", "XMPP" }, { "b", "XMPP" } }, { "a", "XMPP" }));
        QCOMPARE(idsOf(store), QStringList({ "a", "c" }));
    }

    void severalAreEnabledOrNone()
    {
        KirvStore store;
        QVERIFY(store.open(folder));
        for (const char *id : { "a", "b", "c" })
            QVERIFY(store.insertAccount(makeFullAccountAs(QLatin1String(id))));
        const QList<KirvAccountRecord> before = store.readAccounts();
        const int commits = store.commitCount();
        QVERIFY(!store.enableAccounts({ { "a", "XMPP" }, { "d", "XMPP" } }, false));
        QVERIFY(!store.lastError().isEmpty());
        QCOMPARE(store.commitCount(), commits);
        QVERIFY(store.readAccounts() == before);
        QVERIFY(store.enableAccounts({ { "a", "XMPP" }, { "c", "XMPP" } }, !before.first().enabled));
        QCOMPARE(store.commitCount(), commits + 1);
        QList<KirvAccountRecord> expected = before;
        for (const int index : { 0, 2 })
            expected[index].enabled = !expected[index].enabled;
        QVERIFY(store.readAccounts() == expected);
    }

    void theOrderOfAccountsIsKept()
    {
        {
            KirvStore store;
            QVERIFY(store.open(folder));
            for (const char *id : { "c", "a", "d", "b" })
                QVERIFY(store.insertAccount(makeAccount(QLatin1String(id))));
            QVERIFY(store.removeAccount({ "d", "XMPP" }));
            QVERIFY(store.removeAccount({ "b", "XMPP" }));
            QVERIFY(store.insertAccount(makeAccount(QStringLiteral("aa"))));
            QVERIFY(store.insertAccount(makeAccount(QStringLiteral("d"))));
            QVERIFY(store.updateAccount(makeFullAccountAs(QStringLiteral("c"))));
        }
        KirvStore store;
        QVERIFY(store.open(folder));
        QCOMPARE(idsOf(store), QStringList({ "c", "a", "aa", "d" }));
    }

    void theSameKeyTwiceIsRefused()
    {
        KirvStore store;
        QVERIFY(store.open(folder));
        QVERIFY(store.insertAccount(makeAccount(QStringLiteral("a"))));
        KirvAccountRecord other = makeAccount(QStringLiteral("a"));
        other.alias = QStringLiteral("other");
        QVERIFY(!store.insertAccount(other));
        QVERIFY(!store.lastError().isEmpty());
        QCOMPARE(store.readAccounts().size(), 1);
        QCOMPARE(store.readAccounts().first().alias, QStringLiteral("Alias of a"));
        QVERIFY(store.lastError().isEmpty());
    }

    void anAccountThatIsNotThereIsNotChanged()
    {
        KirvStore store;
        QVERIFY(store.open(folder));
        QVERIFY(!store.updateAccount(makeAccount(QStringLiteral("a"))));
        QVERIFY(store.lastError().contains(QLatin1String("\"a\"")));
        QVERIFY(!store.removeAccount({ "a", "XMPP" }));
        QVERIFY(store.readAccounts().isEmpty());
    }

    void aClosedStoreTakesNothing()
    {
        KirvStore store;
        QVERIFY(!store.insertAccount(makeAccount(QStringLiteral("a"))));
        QVERIFY(!store.lastError().isEmpty());
        QVERIFY(!store.begin());
        QVERIFY(!store.commit());
        QVERIFY(store.readAccounts().isEmpty());
        QVERIFY(!store.lastError().isEmpty());
    }

    void eachChangeIsOneCommit()
    {
        KirvStore store;
        QVERIFY(store.open(folder));
        QCOMPARE(store.commitCount(), 0);
        QVERIFY(store.insertAccount(makeAccount(QStringLiteral("a"))));
        QCOMPARE(store.commitCount(), 1);
        QVERIFY(store.updateAccount(makeFullAccountAs(QStringLiteral("a"))));
        QCOMPARE(store.commitCount(), 2);
        QVERIFY(store.writeSetting(QStringLiteral("key"), QStringLiteral("value")));
        QCOMPARE(store.commitCount(), 3);
        QVERIFY(store.removeAccount({ "a", "XMPP" }));
        QCOMPARE(store.commitCount(), 4);
        QVERIFY(store.readAccounts().isEmpty());
        QCOMPARE(store.commitCount(), 4);
    }

    void nestedTransactionsAreOneCommit()
    {
        KirvStore store;
        QVERIFY(store.open(folder));
        QVERIFY(store.begin());
        QVERIFY(store.insertAccount(makeAccount(QStringLiteral("a"))));
        QVERIFY(store.begin());
        QVERIFY(store.insertAccount(makeAccount(QStringLiteral("b"))));
        QVERIFY(store.commit());
        QCOMPARE(store.commitCount(), 0);
        QVERIFY(store.commit());
        QCOMPARE(store.commitCount(), 1);
        QCOMPARE(idsOf(store), QStringList({ "a", "b" }));
    }

    void oneRefusedChangeUndoesTheWholeTransaction_data()
    {
        QTest::addColumn<bool>("byRollBack");
        QTest::newRow("an inner roll-back") << true;
        QTest::newRow("a change that fails") << false;
    }
    void oneRefusedChangeUndoesTheWholeTransaction()
    {
        QFETCH(bool, byRollBack);
        KirvStore store;
        QVERIFY(store.open(folder));
        QVERIFY(store.insertAccount(makeAccount(QStringLiteral("a"))));
        QVERIFY(store.begin());
        QVERIFY(store.insertAccount(makeAccount(QStringLiteral("b"))));
        if (byRollBack) {
            QVERIFY(store.begin());
            store.rollBack();
        } else {
            QVERIFY(!store.insertAccount(makeAccount(QStringLiteral("a"))));
        }
        QVERIFY(!store.insertAccount(makeAccount(QStringLiteral("c"))));
        QVERIFY(!store.commit());
        QCOMPARE(idsOf(store), QStringList({ "a" }));
        QVERIFY(store.insertAccount(makeAccount(QStringLiteral("d"))));
        QCOMPARE(idsOf(store), QStringList({ "a", "d" }));
    }

    void aSecondRunningInstanceIsRefused()
    {
        QProcess other;
        other.start(QCoreApplication::applicationFilePath(), { "--hold", folder });
        KIRV_TRY(other.canReadLine());
        QCOMPARE(other.readLine().trimmed(), QByteArray("opened"));
        KirvStore store;
        QVERIFY(!store.open(folder));
        QVERIFY(store.isLockedByAnother());
        QVERIFY(!store.isOpen());
        QVERIFY(store.lastError().contains(QLatin1String("another running instance")));

        other.kill();
        QVERIFY(other.waitForFinished(kirvPatience));
        QVERIFY2(store.open(folder), qPrintable(store.lastError()));
        QVERIFY(!store.isLockedByAnother());
        QVERIFY(store.lastError().isEmpty());
    }

    void aSecondStoreOfThisProcessIsRefused()
    {
        KirvStore store;
        QVERIFY(store.open(folder));
        KirvStore second;
        QVERIFY(!second.open(folder));
        QVERIFY(second.isLockedByAnother());
        QVERIFY(store.insertAccount(makeAccount(QStringLiteral("a"))));
        store.close();
        QVERIFY(second.open(folder));
        QCOMPARE(idsOf(second), QStringList({ "a" }));
    }

    void theLockOfADeadProcessWithOurNumberIsTakenOver()
    {
        const QString path = QDir(folder).filePath(QStringLiteral("profile.lock"));
        QVERIFY(QDir().mkpath(folder));
        QLockFile lock(path);
        QVERIFY(lock.tryLock(0));
        const QByteArray ours = contentOf(path);
        lock.unlock();
        write(path, ours);
        KirvStore store;
        QVERIFY2(store.open(folder), qPrintable(store.lastError()));
    }

    void aDamagedProfileIsRefusedAndLeftAlone_data()
    {
        QTest::addColumn<QString>("damage");
        QTest::addColumn<QString>("fault");
        QTest::newRow("no database at all") << "text"
                                            << "does not hold one";
        QTest::newRow("cut off") << "cut"
                                 << "The end of its database";
        QTest::newRow("a page overwritten") << "page"
                                            << "Parts of its database";
        QTest::newRow("the header overwritten") << "header"
                                                << "does not hold one";
    }
    void aDamagedProfileIsRefusedAndLeftAlone()
    {
        QFETCH(QString, damage);
        QFETCH(QString, fault);
        makeProfile(200);
        const QString path = QDir(folder).filePath(databaseName);
        QByteArray content = contentOf(path);
        QVERIFY(content.size() > 20000);
        if (damage == QLatin1String("text"))
            content = QByteArray(5000, 'x');
        else if (damage == QLatin1String("cut"))
            content.truncate(9000);
        else if (damage == QLatin1String("page"))
            content.replace(8192, 4096, QByteArray(4096, '\xa5'));
        else
            content.replace(0, 100, QByteArray(100, '\xa5'));
        write(path, content);

        KirvStore store;
        QVERIFY(!store.open(folder));
        QVERIFY2(store.lastError().contains(QLatin1String("damaged")), qPrintable(store.lastError()));
        QVERIFY2(store.lastError().contains(fault), qPrintable(store.lastError()));
        QVERIFY(!store.isLockedByAnother());
        QCOMPARE(contentOf(path), content);
        QVERIFY(store.readAccounts().isEmpty());
    }

    void aDatabaseThatIsNotOursIsRefusedAndLeftAlone_data()
    {
        QTest::addColumn<QString>("statement");
        QTest::addColumn<QString>("reason");
        QTest::newRow("a newer version") << "PRAGMA user_version = 6"
                                         << "newer version";
        QTest::newRow("a much newer version") << "PRAGMA user_version = 2000000000"
                                              << "newer version";
        QTest::newRow("no version") << "PRAGMA user_version = 0"
                                    << "another program";
        QTest::newRow("an impossible version") << "PRAGMA user_version = -1"
                                               << "another program";
    }
    void aDatabaseThatIsNotOursIsRefusedAndLeftAlone()
    {
        QFETCH(QString, statement);
        QFETCH(QString, reason);
        makeProfile(3);
        const QString path = QDir(folder).filePath(databaseName);
        {
            QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("tool"));
            database.setDatabaseName(path);
            QVERIFY(database.open());
            QVERIFY(QSqlQuery(database).exec(statement));
        }
        QSqlDatabase::removeDatabase(QStringLiteral("tool"));
        const QByteArray content = contentOf(path);
        KirvStore store;
        QVERIFY(!store.open(folder));
        QVERIFY2(store.lastError().contains(reason), qPrintable(store.lastError()));
        store.close();
        QCOMPARE(contentOf(path), content);
    }

    void aProfileOfVersion1IsUpgraded()
    {
        QVERIFY(QDir().mkpath(folder));
        const QString old = QStringLiteral(KIRV_TEST_DATA "/profile_version_1.sqlite");
        QVERIFY(QFile::copy(old, QDir(folder).filePath(databaseName)));
        for (int round = 0; round < 2; ++round) { // the second one finds it upgraded
            KirvStore store;
            QVERIFY2(store.open(folder), qPrintable(store.lastError()));
            const QList<KirvAccountRecord> accounts = store.readAccounts();
            QCOMPARE(idsOf(store).mid(0, 3), QStringList({ "romeo@example.org", "anna", "julia@example.org" }));
            const KirvAccountRecord &romeo = accounts.at(0);
            QCOMPARE(romeo.alias, QStringLiteral("Romeo"));
            QCOMPARE(romeo.password, QStringLiteral("wherefore"));
            QVERIFY(romeo.rememberPassword && romeo.enabled && !romeo.restorePresence && !romeo.restoreDescription);
            QCOMPARE(romeo.defaultPresence, QStringLiteral("away"));
            QVERIFY(romeo.lastPresence.isEmpty() && romeo.avatar.isEmpty());
            const QMap<QString, QString> settings { { "server", "talk.example.org" }, { "encrypted", "true" } };
            QCOMPARE(romeo.settings, settings);
            QVERIFY(!accounts.at(1).enabled);
            QCOMPARE(accounts.at(2).alias, QString::fromUtf8("Zoë ☕"));
            QCOMPARE(store.readSetting(QStringLiteral("main_account")), QStringLiteral("romeo@example.org@@XMPP"));
            QVERIFY(store.insertAccount(makeAccount(QString::number(round))));
            QCOMPARE(idsOf(store).last(), QString::number(round));
        }
    }

    void aProfileOfVersion3IsUpgraded()
    {
        QVERIFY(QDir().mkpath(folder));
        QVERIFY(QFile::copy(QStringLiteral(KIRV_TEST_DATA "/profile_version_3.sqlite"),
                            QDir(folder).filePath(databaseName)));
        KirvStore store;
        QVERIFY2(store.open(folder), qPrintable(store.lastError()));
        const QList<KirvAccountRecord> accounts = store.readAccounts();
        QCOMPARE(idsOf(store), QStringList({ "ann@example.org", "bob", "carl@example.org" }));
        QCOMPARE(accounts.at(0).password, QStringLiteral("first secret"));
        QCOMPARE(accounts.at(1).settings.value(QStringLiteral("server-password")), QStringLiteral("third secret"));
        QCOMPARE(accounts.at(1).secretSettings, QSet<QString> { QStringLiteral("server-password") });
        QVERIFY(accounts.at(0).secretItems.isEmpty() && accounts.at(0).unreadSecrets.isEmpty());
        QCOMPARE(QDir(folder + QStringLiteral("/copies")).entryList(QDir::Files).size(), 2); // before and after
    }

    void aProfileOfVersion4IsUpgraded()
    {
        QVERIFY(QDir().mkpath(folder));
        QVERIFY(QFile::copy(QStringLiteral(KIRV_TEST_DATA "/profile_version_4.sqlite"),
                            QDir(folder).filePath(databaseName)));
        for (int round = 0; round < 2; ++round) { // the second one finds it upgraded, with what was stored
            KirvStore store;
            QVERIFY2(store.open(folder), qPrintable(store.lastError()));
            QList<KirvAccountRecord> accounts = store.readAccounts();
            QCOMPARE(idsOf(store), QStringList({ "ann@example.org", "bob", "carl@example.org" }));
            QCOMPARE(accounts.at(0).password, QStringLiteral("first secret"));
            QCOMPARE(accounts.at(0).trustedCertificate, QString());
            QCOMPARE(accounts.at(1).trustedCertificate, round == 0 ? QString() : QStringLiteral("abcd"));
            QCOMPARE(accounts.at(2).secretItems.value(QString()).key, QStringLiteral("0123/carl"));
            accounts[1].trustedCertificate = QStringLiteral("abcd");
            QVERIFY2(store.updateAccount(accounts.at(1)), qPrintable(store.lastError()));
        }
    }

    void rowsOfEveryVersionAreRecovered_data()
    {
        QTest::addColumn<int>("version");
        for (int version = 1; version <= kirvStoreVersion(); ++version)
            QTest::addRow("version %d", version) << version;
    }
    void rowsOfEveryVersionAreRecovered()
    {
        QFETCH(int, version);
        QVERIFY(QDir().mkpath(folder));
        {
            QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("tool"));
            database.setDatabaseName(QDir(folder).filePath(databaseName));
            QVERIFY(database.open());
            const auto run = [&database](const QString &statement) { return QSqlQuery(database).exec(statement); };
            for (const QStringList &step : kirvStoreSchemaSteps().mid(0, version)) {
                for (const QString &statement : step)
                    QVERIFY2(run(statement), qPrintable(statement));
            }
            QStringList values;
            const QStringList columns = kirvColumnsOfVersion(version, QStringLiteral("account"));
            for (const QString &column : columns)
                values << (column == QLatin1String("number") ? QStringLiteral("7") : "'" + column.left(4) + "'");
            QVERIFY(run(QStringLiteral("INSERT INTO account VALUES (%1)").arg(values.join(','))));
            QVERIFY(run(QStringLiteral("INSERT INTO account_setting VALUES (7, 'server', 'talk')")));
            QVERIFY(run(QStringLiteral("PRAGMA user_version = %1").arg(version)));
            if (version >= kirvFirstMarkedVersion)
                QVERIFY(run(QStringLiteral("PRAGMA application_id = %1").arg(kirvProfileId)));
        }
        QSqlDatabase::removeDatabase(QStringLiteral("tool"));
        KirvProfileRescue rescue(folder);
        KirvProfileRescue::Recovered found;
        QVERIFY2(rescue.recover(&found), qPrintable(rescue.lastError()));
        QVERIFY(found.isComplete);
        KirvStore store;
        QVERIFY2(store.open(folder), qPrintable(store.lastError()));
        QCOMPARE(store.readAccounts().size(), 1);
        const KirvAccountRecord account = store.readAccounts().first();
        QCOMPARE(account.key, (KirvAccountKey { "id", "prot" }));
        QCOMPARE(account.alias, QStringLiteral("alia"));
        QCOMPARE(account.lastDescription, version == 1 ? QString() : QStringLiteral("last"));
        QCOMPARE(account.settings.value("server"), QStringLiteral("talk"));
        QCOMPARE(account.trustedCertificate, version < 5 ? QString() : QStringLiteral("trus"));
    }

    void anUpgradeThatFailsLeavesTheOldProfile()
    {
        QVERIFY(QDir().mkpath(folder));
        const QString path = QDir(folder).filePath(databaseName);
        QVERIFY(QFile::copy(QStringLiteral(KIRV_TEST_DATA "/profile_version_1.sqlite"), path));
        {
            const FileSizeLimit limit(3000);
            KirvStore store;
            QVERIFY(!store.open(folder));
            QVERIFY(!store.lastError().isEmpty());
        }
        KirvStore store;
        QVERIFY2(store.open(folder), qPrintable(store.lastError()));
        QCOMPARE(store.readAccounts().size(), 3);
    }

    void aProfileThatCannotBeWrittenIsRefused_data()
    {
        QTest::addColumn<QString>("place");
        QTest::addColumn<int>("permissions");
        QTest::addColumn<bool>("isOurs");
        QTest::newRow("a read-only folder") << "" << 0500 << true;
        QTest::newRow("a read-only database") << databaseName << 0400 << true;
        QTest::newRow("a read-only avatar folder that is not there") << "avatars" << 0 << true;
        if (::geteuid() == 0) // nobody else can give a folder away
            QTest::newRow("the folder of somebody else") << "" << 0755 << false;
    }
    void aProfileThatCannotBeWrittenIsRefused()
    {
        QFETCH(QString, place);
        QFETCH(int, permissions);
        QFETCH(bool, isOurs);
        makeProfile(3);
        if (place == QLatin1String("avatars")) { // a file is where the folder should be
            QVERIFY(QDir(folder).rmdir(place));
            write(QDir(folder).filePath(place), "x");
        } else {
            QCOMPARE(::chmod(QFile::encodeName(QDir(folder).filePath(place)).constData(), mode_t(permissions)), 0);
        }
        if (::geteuid() == 0) { // the other program gives up being the superuser, who may write anywhere
            QCOMPARE(::chmod(QFile::encodeName(home->path()).constData(), 0755), 0);
            for (const QString &path : filesIn(folder).keys() + QStringList(folder)) {
                if (isOurs)
                    QCOMPARE(::chown(QFile::encodeName(path).constData(), 65534, 65534), 0);
            }
        }
        const QByteArray content = contentOf(QDir(folder).filePath(databaseName));
        QProcess other;
        other.start(QCoreApplication::applicationFilePath(), { "--try", folder });
        QVERIFY(other.waitForFinished(kirvPatience));
        QCOMPARE(other.exitStatus(), QProcess::NormalExit);
        QCOMPARE(other.exitCode(), 1);
        const QByteArray said = other.readAllStandardOutput();
        QVERIFY2(said.contains("cannot be written") || said.contains("could not be closed"), said.constData());
        QCOMPARE(contentOf(QDir(folder).filePath(databaseName)), content);
        ::chmod(QFile::encodeName(folder).constData(), 0700);
    }

    void aFolderThatCannotBeMadeIsRefused()
    {
        write(home->filePath(QStringLiteral("file")), "x");
        KirvStore store;
        QVERIFY(!store.open(home->filePath(QStringLiteral("file/profile"))));
        QVERIFY(store.lastError().contains(QLatin1String("could not be made")));
    }

    void aFullDiskLosesNothing_data()
    {
        QTest::addColumn<bool>("inTheDatabase");
        QTest::newRow("the database has no room") << true;
        QTest::newRow("the file system has no room") << false;
    }
    void aFullDiskLosesNothing()
    {
        QFETCH(bool, inTheDatabase);
        KirvStore store;
        QVERIFY(store.open(folder));
        KirvAccountRecord account = makeFullAccount();
        QVERIFY(store.insertAccount(account));
        KirvAccountRecord large = account;
        large.lastDescription = QString(200000, QLatin1Char('x'));
        const auto limitPages = [](const char *pages) {
            return QSqlQuery(ownConnection()).exec(QLatin1String("PRAGMA max_page_count = ") + QLatin1String(pages));
        };
        {
            std::unique_ptr<FileSizeLimit> limit;
            if (inTheDatabase)
                QVERIFY(limitPages("1")); // as many as there are
            else
                limit = std::make_unique<FileSizeLimit>(
                    QFileInfo(QDir(folder).filePath(databaseName + QLatin1String("-wal"))).size());
            QVERIFY(!store.updateAccount(large));
            QVERIFY2(store.lastError().contains(QLatin1String(inTheDatabase ? "no space left" : "may be full")),
                     qPrintable(store.lastError()));
            QVERIFY(!store.begin() || !store.updateAccount(large) || !store.commit());
            store.rollBack();
            QVERIFY(store.readAccounts().first().isStoredLike(account));
        }
        if (inTheDatabase)
            QVERIFY(limitPages("1000000"));
        QVERIFY2(store.updateAccount(large), qPrintable(store.lastError()));
        store.close();
        QVERIFY(store.open(folder));
        QVERIFY(store.readAccounts().first().isStoredLike(large));
    }

    void aPasswordThatIsNotToBeRememberedIsNeverWritten()
    {
        const QString password = QStringLiteral("correct horse battery");
        KirvStore store;
        QVERIFY(store.open(folder));
        KirvAccountRecord account = makeAccount(QStringLiteral("a"));
        account.password = password;
        QVERIFY(store.insertAccount(account));
        account.alias = QStringLiteral("b");
        QVERIFY(store.updateAccount(account));
        QVERIFY(!isTextInFiles(password, folder));
        account.rememberPassword = true;
        QVERIFY(store.updateAccount(account));
        QVERIFY(isTextInFiles(password, folder));
    }

    void aPasswordThatGoesLeavesNoTrace_data()
    {
        QTest::addColumn<QString>("change");
        QTest::addColumn<bool>("inTransaction");
        for (const char *change : { "forget", "overwrite", "remove account", "overwrite setting" }) {
            QTest::addRow("%s", change) << change << false;
            QTest::addRow("%s in a transaction", change) << change << true;
        }
    }
    void aPasswordThatGoesLeavesNoTrace()
    {
        QFETCH(QString, change);
        QFETCH(bool, inTransaction);
        const QString password = QStringLiteral("correct horse battery");
        KirvStore store;
        QVERIFY(store.open(folder));
        KirvAccountRecord account = makeAccount(QStringLiteral("a"));
        const bool isSetting = change == QLatin1String("overwrite setting");
        account.password = isSetting ? QString() : password;
        account.rememberPassword = true;
        account.settings.insert(QStringLiteral("server-password"), isSetting ? password : QString());
        QVERIFY(store.insertAccount(makeAccount(QStringLiteral("b"))));
        QVERIFY(store.insertAccount(account));
        QVERIFY(isTextInFiles(password, folder));
        if (inTransaction)
            QVERIFY(store.begin());
        if (change == QLatin1String("remove account")) {
            QVERIFY(store.removeAccount(account.key));
        } else {
            account.rememberPassword = change != QLatin1String("forget");
            account.settings.insert(QStringLiteral("server-password"), QStringLiteral("other"));
            account.password = QStringLiteral("other");
            QVERIFY(store.updateAccount(account));
        }
        if (inTransaction)
            QVERIFY(store.commit());
        QVERIFY(!isTextInFiles(password, folder));
    }

    void anAvatarIsCopiedAndTheOldOneRemoved()
    {
        KirvStore store;
        QVERIFY(store.open(folder));
        KirvAccountRecord account = makeAccount(QStringLiteral("a"));
        const QString picture = makePicture(home->filePath(QStringLiteral("picture.png")));
        account.avatar = store.importAvatar(picture);
        QVERIFY(store.insertAccount(account));
        const QString first = QDir(store.avatarFolder()).filePath(account.avatar);
        QCOMPARE(contentOf(first), contentOf(picture));
        QVERIFY(QFile::remove(picture));

        KirvAccountRecord changed = account;
        changed.avatar = store.importAvatar(makePicture(picture, QSize(8, 8)));
        QVERIFY(changed.avatar != account.avatar);
        QVERIFY(store.begin());
        QVERIFY(store.updateAccount(changed));
        store.rollBack();
        QVERIFY(QFile::exists(first));
        QVERIFY(store.updateAccount(changed));
        QVERIFY(!QFile::exists(first));
        QVERIFY(QFile::exists(QDir(store.avatarFolder()).filePath(changed.avatar)));
        QVERIFY(store.removeAccount(account.key));
        QVERIFY(filesIn(store.avatarFolder()).isEmpty());
    }

    void avatarsOfNobodyAreRemovedAtTheStart()
    {
        KirvStore store;
        QVERIFY(store.open(folder));
        KirvAccountRecord account = makeAccount(QStringLiteral("a"));
        const QString picture = makePicture(home->filePath(QStringLiteral("picture.png")));
        account.avatar = store.importAvatar(picture);
        QVERIFY(store.insertAccount(account));
        QVERIFY(!store.importAvatar(picture).isEmpty());
        QCOMPARE(filesIn(store.avatarFolder()).size(), 2);
        store.close();
        QVERIFY(store.open(folder));
        const QString kept = QDir(store.avatarFolder()).filePath(account.avatar);
        QCOMPARE(filesIn(store.avatarFolder()).keys(), QStringList(kept));
    }

    void whatIsNoUsablePictureIsRefused_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("reason");
        QTest::newRow("nothing there") << "missing"
                                       << "cannot be read";
        QTest::newRow("a folder") << "folder"
                                  << "cannot be read";
        QTest::newRow("a pipe that nobody writes") << "pipe"
                                                   << "cannot be read";
        QTest::newRow("a device without an end") << "device"
                                                 << "cannot be read";
        QTest::newRow("text") << "text"
                              << "not a picture";
        QTest::newRow("an empty file") << "empty"
                                       << "not a picture";
        QTest::newRow("100 MB") << "bytes"
                                << "too large";
        QTest::newRow("50 megapixels") << "pixels"
                                       << "10000 × 5000 pixels";
    }
    void whatIsNoUsablePictureIsRefused()
    {
        QFETCH(QString, kind);
        QFETCH(QString, reason);
        QString path = home->filePath(QStringLiteral("picture.png"));
        if (kind == QLatin1String("folder"))
            QVERIFY(QDir().mkpath(path));
        else if (kind == QLatin1String("pipe"))
            QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
        else if (kind == QLatin1String("device"))
            path = QStringLiteral("/dev/zero");
        else if (kind == QLatin1String("text"))
            write(path, "Not a picture");
        else if (kind == QLatin1String("empty"))
            write(path, QByteArray());
        else if (kind == QLatin1String("bytes"))
            QVERIFY(QFile(makePicture(path)).resize(100 * 1024 * 1024));
        else if (kind == QLatin1String("pixels"))
            QVERIFY(!makePicture(path, QSize(10000, 5000)).isEmpty());
        KirvStore store;
        QVERIFY(store.open(folder));
        QCOMPARE(store.importAvatar(path), QString());
        QVERIFY2(store.lastError().contains(reason), qPrintable(store.lastError()));
        QVERIFY(kind == QLatin1String("pixels") || store.lastError().contains(QFileInfo(path).fileName()));
        QVERIFY(filesIn(store.avatarFolder()).isEmpty());
    }

    void anAvatarThatFindsNoRoomIsRefused_data()
    {
        QTest::addColumn<int>("side");
        QTest::newRow("smaller than a buffer") << 200;
        QTest::newRow("larger than a buffer") << 2000;
    }
    void anAvatarThatFindsNoRoomIsRefused()
    {
        QFETCH(int, side);
        const QString picture = home->filePath(QStringLiteral("picture.bmp"));
        QVERIFY(!makePicture(picture, QSize(side, side)).isEmpty());
        KirvStore store;
        QVERIFY(store.open(folder));
        const FileSizeLimit limit(1000);
        QCOMPARE(store.importAvatar(picture), QString());
        QVERIFY2(store.lastError().contains(QLatin1String("could not be copied")), qPrintable(store.lastError()));
        QVERIFY(filesIn(store.avatarFolder()).isEmpty());
    }

    void tenThousandAccountsAreReadInTheirOrder()
    {
        makeProfile(10000);
        KirvStore store;
        QVERIFY(store.open(folder));
        const QList<KirvAccountRecord> accounts = store.readAccounts();
        QCOMPARE(accounts.size(), 10000);
        for (int number = 0; number < 10000; ++number)
            QCOMPARE(accounts.at(number), makeAccount(QString::number(number)));
    }

private:
    static void write(const QString &path, const QByteArray &content)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(content), qint64(content.size()));
    }

    static KirvAccountRecord makeFullAccountAs(const QString &id)
    {
        KirvAccountRecord account = makeFullAccount();
        account.key.id = id;
        return account;
    }

    /// The connection of the only open store of this process.
    static QSqlDatabase ownConnection()
    {
        return QSqlDatabase::database(QSqlDatabase::connectionNames().value(0), false);
    }

    void makeProfile(int accounts)
    {
        KirvStore store;
        QVERIFY(store.open(folder));
        QVERIFY(store.begin());
        for (int number = 0; number < accounts; ++number)
            QVERIFY(store.insertAccount(makeAccount(QString::number(number))));
        QVERIFY(store.commit());
    }

    std::unique_ptr<QTemporaryDir> home;
    QString folder;
};

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() == 3
        && (arguments.at(1) == QLatin1String("--hold") || arguments.at(1) == QLatin1String("--try")))
        return runAsOtherProcess(arguments);
    tst_Store test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_store.moc"
