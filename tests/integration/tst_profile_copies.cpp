// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/store/kirv_profile_rescue.h"
#include "core/store/kirv_store.h"
#include "tests/support/kirv_profile_files.h"
#include "tests/support/kirv_profile_tool.h"

#include <QTemporaryDir>
#include <QtTest>
#include <algorithm>
#include <memory>
#include <unistd.h>

namespace {

const QString protocol = QStringLiteral("XMPP");

QString passwordOf(int number)
{
    return QStringLiteral("password <%1> of an account").arg(number);
}

KirvAccountRecord makeAccount(int number)
{
    KirvAccountRecord account;
    account.key = { QStringLiteral("user%1@example.org").arg(number), protocol };
    account.alias = QStringLiteral("User %1").arg(number);
    account.password = passwordOf(number);
    account.rememberPassword = true;
    account.settings = { { "server", QStringLiteral("host%1.example.org").arg(number) },
                         { "server-password", passwordOf(number + 100000) } };
    account.secretSettings = { QStringLiteral("server-password") };
    return account;
}

/// What a copy has of an account.
KirvAccountRecord withoutSecrets(KirvAccountRecord account)
{
    account.password.clear();
    account.settings.remove(QStringLiteral("server-password"));
    account.secretSettings.clear();
    return account;
}

}

class tst_ProfileCopies : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void aCopyIsKeptAfterChangesAndNotWithoutThem();
    void aCopyIsKeptAtTheStartAfterAKill();
    void threeCopiesAreKept();
    void filesOfOthersStayAmongTheCopies();
    void noSecretIsInACopy();
    void aCopyIsKeptBeforeAnUpgradeWithoutItsSecrets();
    void settingsOfEarlyProfilesAreSecretUntilTheyAreClassified();
    void aCopyThatCannotBeKeptIsSaidAndLosesNothing();
    void theDatabaseIsCheckedWithoutWriting_data();
    void theDatabaseIsCheckedWithoutWriting();
    void aCopyIsRestoredAndTheDamagedFileKept();
    void whatARepairDoesNotUseIsRemovedFromTheKeyring();
    void aRepairKeepsTheValueThatCounts();
    void aCopyFromBeforeTheKeyringKnowsWhatIsInIt_data();
    void aCopyFromBeforeTheKeyringKnowsWhatIsInIt();
    void aDamagedCopyIsNotOffered();
    void readableRowsAreRecovered_data();
    void readableRowsAreRecovered();
    void aFreshStartKeepsTheOldDatabase();
    void aLogIsKeptWithItsDatabase();
    void onlyAProfileThatIsOursIsRepaired_data();
    void onlyAProfileThatIsOursIsRepaired();
    void aDeletedProfileRefusesChangesAndIsSavedElsewhere_data();
    void aDeletedProfileRefusesChangesAndIsSavedElsewhere();

private:
    void makeProfile(int accounts, int first = 0) const;
    QString database() const { return databaseIn(folder); }
    QString copiesFolder() const { return QDir(folder).filePath(QStringLiteral("copies")); }

    std::unique_ptr<QTemporaryDir> home;
    QString folder;
};

void tst_ProfileCopies::init()
{
    home = std::make_unique<QTemporaryDir>();
    QVERIFY(home->isValid());
    folder = home->filePath(QStringLiteral("profile"));
}

/// Adds so many accounts.
void tst_ProfileCopies::makeProfile(int accounts, int first) const
{
    KirvStore store;
    QVERIFY2(store.open(folder), qPrintable(store.lastError()));
    QVERIFY(store.begin());
    for (int number = first; number < first + accounts; ++number)
        QVERIFY(store.insertAccount(makeAccount(number)));
    QVERIFY(store.writeSetting(QStringLiteral("main_account"), QStringLiteral("a@@b")));
    QVERIFY(store.commit());
}

void tst_ProfileCopies::aCopyIsKeptAfterChangesAndNotWithoutThem()
{
    const KirvProfileRescue rescue(folder);
    QVERIFY(KirvStore().open(folder));
    QCOMPARE(rescue.copies().size(), 0); // of nothing
    makeProfile(3);
    QCOMPARE(rescue.copies().size(), 1);
    QCOMPARE(rescue.copies().first().accounts, 3);
    QVERIFY(qAbs(rescue.copies().first().date.secsTo(QDateTime::currentDateTimeUtc())) < 60);
    const auto before = filesIn(copiesFolder());
    QVERIFY(KirvStore().open(folder));
    QCOMPARE(filesIn(copiesFolder()), before);
    makeProfile(1, 3);
    QCOMPARE(rescue.copies().size(), 2);
    QCOMPARE(rescue.copies().first().accounts, 4);
    const auto copies = filesIn(copiesFolder());
    for (auto copy = copies.constBegin(); copy != copies.constEnd(); ++copy)
        QVERIFY2(permissionsOf(copy.key()) == 0600, qPrintable(copy.key()));
    QCOMPARE(permissionsOf(copiesFolder()), 0700);
}

void tst_ProfileCopies::aCopyIsKeptAtTheStartAfterAKill()
{
    makeProfile(3);
    const QString killed = home->filePath(QStringLiteral("killed"));
    {
        KirvStore store;
        QVERIFY(store.open(folder));
        QVERIFY(store.insertAccount(makeAccount(3)));
        QVERIFY(QDir().mkpath(killed));
        for (const char *suffix : { "", "-wal" })
            QVERIFY(QFile::copy(database() + QLatin1String(suffix), databaseIn(killed) + QLatin1String(suffix)));
    }
    QVERIFY(KirvProfileRescue(killed).copies().isEmpty());
    KirvStore store;
    QVERIFY2(store.open(killed), qPrintable(store.lastError()));
    QCOMPARE(KirvProfileRescue(killed).copies().size(), 1);
    QCOMPARE(KirvProfileRescue(killed).copies().first().accounts, 4);
}

void tst_ProfileCopies::threeCopiesAreKept()
{
    for (int number = 0; number < 6; ++number)
        makeProfile(1, number);
    const QList<KirvProfileCopy> copies = KirvProfileRescue(folder).copies();
    QCOMPARE(copies.size(), 3);
    for (int index = 0; index < 3; ++index)
        QCOMPARE(copies.at(index).accounts, 6 - index);
    QCOMPARE(filesIn(copiesFolder()).size(), 3);
}

void tst_ProfileCopies::filesOfOthersStayAmongTheCopies()
{
    makeProfile(1);
    const QString photo = copiesFolder() + QLatin1String("/photo1.jpg");
    const QString likeACopy = copiesFolder() + QLatin1String("/copy-20000101-000000-000.sqlite");
    QVERIFY(writeFile(photo, "photo") && writeFile(likeACopy, "photo"));
    for (int number = 1; number < 6; ++number)
        makeProfile(1, number);
    QCOMPARE(contentOf(photo), QByteArray("photo"));
    QCOMPARE(contentOf(likeACopy), QByteArray("photo"));
    QCOMPARE(KirvProfileRescue(folder).copies().size(), 3);
}

void tst_ProfileCopies::noSecretIsInACopy()
{
    makeProfile(300);
    QVERIFY(isTextInFiles(QStringLiteral("password <"), folder));
    QVERIFY(!isTextInFiles(QStringLiteral("password <"), copiesFolder()));
    QVERIFY(isTextInFiles(QStringLiteral("host299.example.org"), copiesFolder()));
}

void tst_ProfileCopies::aCopyIsKeptBeforeAnUpgradeWithoutItsSecrets()
{
    QVERIFY(QDir().mkpath(folder));
    QVERIFY(QFile::copy(QStringLiteral(KIRV_TEST_DATA "/profile_version_1.sqlite"), database()));
    QVERIFY(isTextInFiles(QStringLiteral("wherefore"), folder));
    {
        KirvStore store;
        QVERIFY2(store.open(folder), qPrintable(store.lastError()));
        const QList<KirvProfileCopy> copies = KirvProfileRescue(folder).copies();
        QVERIFY(!copies.isEmpty());
        QCOMPARE(copies.last().accounts, 3);
        QVERIFY(!isTextInFiles(QStringLiteral("wherefore"), copiesFolder()));
    }
    // The oldest copy is that of the early version.
    const KirvProfileCopy copy = KirvProfileRescue(folder).copies().last();
    KirvProfileRescue rescue(folder);
    QVERIFY2(rescue.restore(copy), qPrintable(rescue.lastError()));
    KirvStore store;
    QVERIFY2(store.open(folder), qPrintable(store.lastError()));
    QCOMPARE(store.readAccounts().first().alias, QStringLiteral("Romeo"));
    QCOMPARE(store.readAccounts().first().defaultPresence, QStringLiteral("away"));
    QVERIFY(store.readAccounts().first().password.isEmpty());
}

void tst_ProfileCopies::settingsOfEarlyProfilesAreSecretUntilTheyAreClassified()
{
    QVERIFY(QDir().mkpath(folder));
    QVERIFY(QFile::copy(QStringLiteral(KIRV_TEST_DATA "/profile_version_1.sqlite"), database()));
    const QSet<QString> fields { "server", "encrypted", "server-password" };
    {
        KirvStore store;
        QVERIFY(store.open(folder));
        const KirvAccountRecord romeo = store.readAccounts().first();
        QCOMPARE(romeo.secretSettings, QSet<QString>({ "server", "encrypted" }));
        QVERIFY(store.classifySettings(romeo.key.protocol, fields, { "server-password" }));
        QCOMPARE(store.commitCount(), 1);
        QVERIFY(store.classifySettings(romeo.key.protocol, fields, { "server-password" }));
        QCOMPARE(store.commitCount(), 1);
        QCOMPARE(store.readAccounts().first().settings, romeo.settings);
        QVERIFY(store.readAccounts().first().secretSettings.isEmpty());
        QVERIFY(store.classifySettings(romeo.key.protocol, fields, { "server" }));
        QCOMPARE(store.readAccounts().first().secretSettings, QSet<QString>({ "server" }));
        QCOMPARE(store.readAccounts().first().settings, romeo.settings);
        QVERIFY(store.classifySettings(romeo.key.protocol, fields, {}));
    }
    QVERIFY(isTextInFiles(QStringLiteral("talk.example.org"), copiesFolder()));
}

void tst_ProfileCopies::aCopyThatCannotBeKeptIsSaidAndLosesNothing()
{
    makeProfile(1);
    QVERIFY(QDir(copiesFolder()).removeRecursively());
    QVERIFY(writeFile(copiesFolder(), "x"));
    {
        KirvStore store;
        QVERIFY2(store.open(folder), qPrintable(store.lastError()));
        QVERIFY(store.copyError().contains(QLatin1String("copies")));
        QVERIFY(store.lastError().isEmpty());
        QVERIFY(store.insertAccount(makeAccount(1)));
    }
    KirvStore store;
    QVERIFY(store.open(folder));
    QCOMPARE(store.readAccounts().size(), 2);
    QCOMPARE(contentOf(copiesFolder()), QByteArray("x"));
}

void tst_ProfileCopies::theDatabaseIsCheckedWithoutWriting_data()
{
    QTest::addColumn<QString>("damage");
    QTest::addColumn<int>("kind");
    QTest::newRow("none") << "" << int(KirvProfileState::Good);
    QTest::newRow("another structure") << "ALTER TABLE account DROP COLUMN avatar" << int(KirvProfileState::Damaged);
    QTest::newRow("a newer version") << "PRAGMA user_version = 77" << int(KirvProfileState::Newer);
    QTest::newRow("another program") << "PRAGMA application_id = 77" << int(KirvProfileState::NotAProfile);
}

void tst_ProfileCopies::theDatabaseIsCheckedWithoutWriting()
{
    QFETCH(QString, damage);
    QFETCH(int, kind);
    KirvProfileRescue rescue(folder);
    QCOMPARE(rescue.check().kind, KirvProfileState::New);
    QVERIFY(!QFile::exists(folder));
    makeProfile(3);
    if (!damage.isEmpty())
        QCOMPARE(runInDatabase(database(), { damage }), QVariant());
    const auto before = treeOf(folder);
    QCOMPARE(int(rescue.check().kind), kind);
    QCOMPARE(rescue.check().text.isEmpty(), kind == KirvProfileState::Good);
    QCOMPARE(treeOf(folder), before);
    KirvStore store;
    QCOMPARE(store.open(folder), kind == KirvProfileState::Good);
    QCOMPARE(int(store.state()), kind);
    if (store.isOpen())
        QCOMPARE(rescue.check().kind, KirvProfileState::InUse);
}

void tst_ProfileCopies::aCopyIsRestoredAndTheDamagedFileKept()
{
    makeProfile(3);
    makeProfile(1, 3);
    const QByteArray damaged = QByteArray("SQLite format 3\0", 16) + QByteArray(8000, 'x');
    QVERIFY(writeFile(database(), damaged));
    KirvStore store;
    QVERIFY(!store.open(folder));
    QCOMPARE(store.state(), KirvProfileState::NotAProfile);
    QVERIFY(writeFile(database(), damaged.left(10)));
    QVERIFY(!store.open(folder));
    QCOMPARE(store.state(), KirvProfileState::Damaged);

    KirvProfileRescue rescue(folder);
    QCOMPARE(rescue.copies().size(), 2);
    QVERIFY2(rescue.restore(rescue.copies().at(1)), qPrintable(rescue.lastError()));
    QCOMPARE(contentOf(rescue.keptFile()), damaged.left(10));
    QVERIFY2(store.open(folder), qPrintable(store.lastError()));
    const QList<KirvAccountRecord> accounts = store.readAccounts();
    QCOMPARE(accounts.size(), 3);
    for (int number = 0; number < 3; ++number)
        QVERIFY(accounts.at(number).isStoredLike(withoutSecrets(makeAccount(number))));
    QCOMPARE(store.readSetting(QStringLiteral("main_account")), QStringLiteral("a@@b"));
}

void tst_ProfileCopies::whatARepairDoesNotUseIsRemovedFromTheKeyring()
{
    KirvAccountRecord account;
    account.key = { QStringLiteral("ann"), QStringLiteral("XMPP") };
    account.rememberPassword = true;
    account.password = QStringLiteral("is in the keyring");
    KirvStore store;
    for (const char *key : { "p/1", "p/2" }) {
        account.secretItems.insert(QString(), { QLatin1String(key), QStringLiteral("Kirv: ann (XMPP)") });
        QVERIFY(store.open(folder));
        QVERIFY(store.readAccounts().isEmpty() ? store.insertAccount(account) : store.updateAccount(account));
        QCOMPARE(store.keepSecretItems({ QLatin1String(key) }), QStringList(QLatin1String(key)));
        store.forgetSecretItems({ QStringLiteral("p/1") }); // the second time
        store.close();
    }
    QVERIFY(!isTextInFiles(account.password, folder));
    const auto itemOf = [&store] { return store.readAccounts().value(0).secretItems.value(QString()).key; };
    const auto releasedKey = [&store] {
        QString key;
        const QList<KirvStoredItem> items = store.unsettledItems();
        for (const KirvStoredItem &row : items) {
            if (row.stage == KirvStoredItem::Obsolete)
                key += row.item.key;
        }
        return key;
    };

    KirvProfileRescue rescue(folder);
    QVERIFY2(rescue.restore(rescue.copies().at(1)), qPrintable(rescue.lastError()));
    QVERIFY(store.open(folder));
    QCOMPARE(itemOf(), QStringLiteral("p/1"));
    QCOMPARE(releasedKey(), QStringLiteral("p/2"));
    store.close();

    KirvProfileRescue::Recovered found;
    QVERIFY2(rescue.recover(&found), qPrintable(rescue.lastError()));
    QCOMPARE(found.secrets, 1);
    QVERIFY(found.isComplete);
    QVERIFY(store.open(folder));
    QCOMPARE(itemOf(), QStringLiteral("p/1"));
    QCOMPARE(releasedKey(), QStringLiteral("p/2"));
}

/// A new password may never have been written to the keyring.
void tst_ProfileCopies::aRepairKeepsTheValueThatCounts()
{
    KirvAccountRecord account;
    account.key = { QStringLiteral("ann"), QStringLiteral("XMPP") };
    account.rememberPassword = true;
    const QString label = QStringLiteral("Kirv: ann (XMPP)");
    account.secretItems.insert(QString(), { QStringLiteral("p/1"), label });
    KirvStore store;
    QVERIFY(store.open(folder));
    QVERIFY(store.insertAccount(account));
    QCOMPARE(store.keepSecretItems({ QStringLiteral("p/1") }), QStringList("p/1"));
    account.secretItems.insert(QString(), { QStringLiteral("p/2"), label });
    QVERIFY(store.updateAccount(account));
    store.close();

    KirvProfileRescue rescue(folder);
    KirvProfileRescue::Recovered found;
    QVERIFY2(rescue.recover(&found), qPrintable(rescue.lastError()));
    QCOMPARE(found.secrets, 1);
    QVERIFY(store.open(folder));
    QCOMPARE(store.readAccounts().value(0).secretItems.value(QString()).key, QStringLiteral("p/2"));
    QCOMPARE(store.secretItem(account.key, QString(), KirvStoredItem::New).key, QStringLiteral("p/2"));
    QCOMPARE(store.secretItem(account.key, QString(), KirvStoredItem::Kept).key, QStringLiteral("p/1"));
    QCOMPARE(store.unsettledItems().size(), 1);
}

void tst_ProfileCopies::aCopyFromBeforeTheKeyringKnowsWhatIsInIt_data()
{
    QTest::addColumn<bool>("isOfVersion3");
    QTest::addColumn<bool>("isAfterFreshStart");
    QTest::newRow("of this version") << false << false;
    QTest::newRow("of version 3") << true << false;
    QTest::newRow("after a fresh start") << false << true;
    QTest::newRow("of version 3 after a fresh start") << true << true;
}

/// Otherwise what the profile has in the keyring would stay there for ever.
void tst_ProfileCopies::aCopyFromBeforeTheKeyringKnowsWhatIsInIt()
{
    QFETCH(bool, isOfVersion3);
    QFETCH(bool, isAfterFreshStart);
    makeProfile(2); // with a copy at the end
    KirvProfileRescue rescue(folder);
    const QString copy = rescue.copies().first().path;
    if (isOfVersion3) {
        QVERIFY(QFile::remove(copy));
        QVERIFY(QFile::copy(QStringLiteral(KIRV_TEST_DATA "/profile_version_3.sqlite"), copy));
        const QVariant result =
            runInDatabase(copy, { "DELETE FROM secret", QStringLiteral("PRAGMA application_id = %1").arg(0x4b697243) });
        QVERIFY2(!result.isValid(), qPrintable(result.toString()));
    }
    KirvStore store;
    QVERIFY2(store.open(folder), qPrintable(store.lastError()));
    const QString idSetting = QStringLiteral("profile/id"), key = QStringLiteral("ours/1");
    QVERIFY(store.writeSetting(idSetting, QStringLiteral("ours")));
    QVERIFY(store.addSecretItems({ { { key, QStringLiteral("Kirv") }, makeAccount(0).key, QString() } }));
    QCOMPARE(store.keepSecretItems({ key }), QStringList(key));
    store.close();
    if (isAfterFreshStart) {
        QVERIFY2(rescue.startFresh(), qPrintable(rescue.lastError()));
        QVERIFY2(store.open(folder), qPrintable(store.lastError()));
        QVERIFY(store.readAccounts().isEmpty());
        QVERIFY(store.unsettledItems().isEmpty()); // what is in the keyring stays there
        store.close();
    }
    const QList<KirvProfileCopy> copies = rescue.copies();
    const auto chosen =
        std::find_if(copies.begin(), copies.end(), [&](const KirvProfileCopy &one) { return one.path == copy; });
    QVERIFY(chosen != copies.end());
    QVERIFY2(rescue.restore(*chosen), qPrintable(rescue.lastError()));
    QVERIFY2(store.open(folder), qPrintable(store.lastError()));
    QCOMPARE(store.readAccounts().size(), isOfVersion3 ? 3 : 2);
    QCOMPARE(store.readSetting(idSetting), QStringLiteral("ours"));
    const QList<KirvStoredItem> items = store.unsettledItems();
    QCOMPARE(items.size(), 1);
    QCOMPARE(items.first().item.key, key);
    QCOMPARE(items.first().stage, KirvStoredItem::Obsolete);
}

void tst_ProfileCopies::aDamagedCopyIsNotOffered()
{
    makeProfile(3);
    makeProfile(1, 3);
    const KirvProfileCopy newest = KirvProfileRescue(folder).copies().first();
    QByteArray content = contentOf(newest.path);
    content.replace(4096, 4096, QByteArray(4096, '\xa5'));
    QVERIFY(writeFile(newest.path, content));
    KirvProfileRescue rescue(folder);
    QCOMPARE(rescue.copies().size(), 1);
    QCOMPARE(rescue.copies().first().accounts, 3);
    const auto before = treeOf(folder);
    QVERIFY(!rescue.restore(newest));
    QVERIFY(rescue.lastError().contains(QLatin1String("damaged")));
    QCOMPARE(treeOf(folder), before);
}

void tst_ProfileCopies::readableRowsAreRecovered_data()
{
    QTest::addColumn<QString>("damage");
    QTest::addColumn<int>("fewest");
    QTest::newRow("none") << "" << 500;
    QTest::newRow("one page in the middle") << "page" << 300;
    QTest::newRow("a column of another name") << "ALTER TABLE account RENAME COLUMN id TO ie" << 500;
    QTest::newRow("no table of settings") << "DROP TABLE account_setting" << 500;
    QTest::newRow("the second half is missing") << "half" << 100;
}

void tst_ProfileCopies::readableRowsAreRecovered()
{
    QFETCH(QString, damage);
    QFETCH(int, fewest);
    makeProfile(500);
    if (damage == QLatin1String("page") || damage == QLatin1String("half")) {
        const QByteArray whole = contentOf(database());
        QByteArray content = whole;
        if (damage == QLatin1String("half"))
            content.truncate(content.size() / 2);
        else // the page of an account in the middle
            content.replace(content.indexOf("User 250") / 4096 * 4096, 4096, QByteArray(4096, '\xa5'));
        QVERIFY(writeFile(database(), content));
    } else if (!damage.isEmpty()) {
        QCOMPARE(runInDatabase(database(), { damage }), QVariant());
    }
    const QByteArray content = contentOf(database());
    QCOMPARE(KirvStore().open(folder), damage.isEmpty());

    KirvProfileRescue rescue(folder);
    KirvProfileRescue::Recovered found;
    QVERIFY2(rescue.recover(&found), qPrintable(rescue.lastError()));
    QCOMPARE(contentOf(rescue.keptFile()), content);
    QVERIFY2(found.accounts >= fewest, qPrintable(QString::number(found.accounts)));
    QCOMPARE(found.isComplete, damage.isEmpty() || damage.startsWith(QLatin1String("ALTER")));
    KirvStore store;
    QVERIFY2(store.open(folder), qPrintable(store.lastError()));
    const QList<KirvAccountRecord> accounts = store.readAccounts();
    QCOMPARE(accounts.size(), found.accounts);
    int settings = 0, secrets = 0;
    for (const KirvAccountRecord &account : accounts) {
        const KirvAccountRecord whole = makeAccount(account.alias.section(QLatin1Char(' '), 1).toInt());
        QCOMPARE(account.key, whole.key);
        QVERIFY(account.password.isEmpty() || account.password == whole.password);
        settings += int(account.settings.size() - account.secretSettings.size());
        secrets += int(account.secretSettings.size()) + !account.password.isEmpty();
    }
    QCOMPARE(settings, found.accountSettings);
    QCOMPARE(secrets, found.secrets);
    if (damage.isEmpty() || damage.startsWith(QLatin1String("ALTER"))) {
        for (int number = 0; number < 500; ++number)
            QVERIFY(accounts.at(number).isStoredLike(makeAccount(number)));
        QCOMPARE(store.readSetting(QStringLiteral("main_account")), QStringLiteral("a@@b"));
    }
}

void tst_ProfileCopies::aFreshStartKeepsTheOldDatabase()
{
    makeProfile(3);
    QVERIFY(writeFile(database(), QByteArray()));
    KirvProfileRescue rescue(folder);
    QVERIFY2(rescue.startFresh(), qPrintable(rescue.lastError()));
    const QString first = rescue.keptFile();
    QCOMPARE(contentOf(first), QByteArray());
    KirvStore store;
    QVERIFY2(store.open(folder), qPrintable(store.lastError()));
    QVERIFY(store.readAccounts().isEmpty());
    store.close();
    QVERIFY(QFile::remove(database()));
    QVERIFY(!store.open(folder));
    QVERIFY2(rescue.startFresh(), qPrintable(rescue.lastError()));
    QVERIFY(rescue.keptFile().isEmpty());
    QVERIFY(QFile::exists(first));
    QVERIFY(store.open(folder));
    QCOMPARE(rescue.copies().size(), 1);
}

void tst_ProfileCopies::aLogIsKeptWithItsDatabase()
{
    const QString killed = home->filePath(QStringLiteral("killed"));
    QByteArray log;
    {
        KirvStore store;
        QVERIFY(store.open(folder));
        QVERIFY(store.insertAccount(makeAccount(3)));
        QVERIFY(QDir().mkpath(killed));
        for (const char *suffix : { "", "-wal" })
            QVERIFY(QFile::copy(database() + QLatin1String(suffix), databaseIn(killed) + QLatin1String(suffix)));
        log = contentOf(databaseIn(killed) + QLatin1String("-wal"));
        QVERIFY(!log.isEmpty());
    }
    KirvProfileRescue rescue(killed);
    QVERIFY2(rescue.startFresh(), qPrintable(rescue.lastError()));
    QCOMPARE(contentOf(rescue.keptFile() + QLatin1String("-wal")), log);
    KirvStore store;
    QVERIFY2(store.open(killed), qPrintable(store.lastError()));
    QVERIFY(store.readAccounts().isEmpty());
}

void tst_ProfileCopies::onlyAProfileThatIsOursIsRepaired_data()
{
    QTest::addColumn<QString>("statement");
    QTest::newRow("another program") << "PRAGMA application_id = 77";
    QTest::newRow("a newer version") << "PRAGMA user_version = 77";
    QTest::newRow("in use") << "";
}

void tst_ProfileCopies::onlyAProfileThatIsOursIsRepaired()
{
    QFETCH(QString, statement);
    makeProfile(3);
    KirvStore store;
    if (statement.isEmpty())
        QVERIFY(store.open(folder));
    else
        QCOMPARE(runInDatabase(database(), { statement }), QVariant());
    KirvProfileRescue rescue(folder);
    KirvProfileRescue::Recovered found;
    const auto before = treeOf(folder);
    QVERIFY(!rescue.startFresh());
    QVERIFY(!rescue.recover(&found));
    QVERIFY(!rescue.restore(rescue.copies().first()));
    QVERIFY(!rescue.lastError().isEmpty());
    QCOMPARE(treeOf(folder), before);
}

void tst_ProfileCopies::aDeletedProfileRefusesChangesAndIsSavedElsewhere_data()
{
    QTest::addColumn<QString>("how");
    QTest::newRow("deleted") << "delete";
    QTest::newRow("moved away") << "move";
    QTest::newRow("replaced") << "replace";
    QTest::newRow("only the database deleted") << "database";
}

void tst_ProfileCopies::aDeletedProfileRefusesChangesAndIsSavedElsewhere()
{
    QFETCH(QString, how);
    makeProfile(3);
    KirvStore store;
    QVERIFY(store.open(folder));
    KirvAccountRecord withAvatar = makeAccount(3);
    withAvatar.avatar = store.importAvatar(makePicture(home->filePath(QStringLiteral("picture.png"))));
    QVERIFY(store.insertAccount(withAvatar));
    QVERIFY(store.isInPlace());

    if (how == QLatin1String("delete"))
        QVERIFY(QDir(folder).removeRecursively());
    else if (how == QLatin1String("database"))
        QVERIFY(QFile::remove(database()));
    else
        QVERIFY(QFile::rename(folder, home->filePath(QStringLiteral("moved"))));
    KirvStore replacement;
    if (how == QLatin1String("replace"))
        QVERIFY(replacement.open(folder));

    QVERIFY(!store.isInPlace());
    const auto before = treeOf(home->path());
    QVERIFY(!store.insertAccount(makeAccount(4)));
    QVERIFY2(store.lastError().contains(QLatin1String("deleted")), qPrintable(store.lastError()));
    QVERIFY(!store.begin());
    QVERIFY(!store.updateAccount(makeAccount(1)));
    QVERIFY(!store.writeSetting(QStringLiteral("a"), QStringLiteral("b")));
    QCOMPARE(store.importAvatar(home->filePath(QStringLiteral("picture.png"))), QString());
    QCOMPARE(treeOf(home->path()), before);
    QCOMPARE(store.readAccounts().size(), 4);

    const QString other = home->filePath(QStringLiteral("other"));
    QVERIFY2(store.saveTo(other), qPrintable(store.lastError()));
    QVERIFY(!store.saveTo(other));
    store.close();
    KirvStore saved;
    QVERIFY2(saved.open(other), qPrintable(saved.lastError()));
    const QList<KirvAccountRecord> accounts = saved.readAccounts();
    QCOMPARE(accounts.size(), 4);
    for (int number = 0; number < 3; ++number)
        QVERIFY(accounts.at(number).isStoredLike(makeAccount(number)));
    QCOMPARE(accounts.at(3).avatar.isEmpty(), how != QLatin1String("database"));
    QCOMPARE(saved.readSetting(QStringLiteral("main_account")), QStringLiteral("a@@b"));
}

QTEST_GUILESS_MAIN(tst_ProfileCopies)

#include "tst_profile_copies.moc"
