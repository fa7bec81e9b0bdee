// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_account_history.h"
#include "core/accounts/kirv_main_account.h"
#include "core/moving/kirv_account_import.h"
#include "tests/integration/kirv_accounts_fixture.h"
#include "tests/support/fakes/kirv_fake_secret_store.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/kirv_profile_files.h"
#include "tests/support/store_refusal.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QtTest>

namespace {

const QString ann = QStringLiteral("ann");
const QString bob = QStringLiteral("bob");
const QString cleo = QStringLiteral("cleo");
const QString dora = QStringLiteral("dora");
const QString eve = QStringLiteral("eve");

/// An account out of a file, with everything that can be in one.
KirvMovedAccount moved(const QString &id, const QString &protocol = QStringLiteral("Fake"))
{
    KirvMovedAccount account;
    KirvAccountRecord &record = account.record;
    record.key = { id, protocol };
    record.alias = QStringLiteral("Moved ") + id;
    record.password = QStringLiteral("moved word of ") + id;
    record.rememberPassword = true;
    record.defaultPresence = record.lastPresence = QStringLiteral("away");
    record.defaultDescription = QStringLiteral("moved");
    record.restorePresence = true;
    record.settings = { { QStringLiteral("server"), QStringLiteral("moved.example") },
                        { QStringLiteral("server-password"), QStringLiteral("moved secret of ") + id } };
    record.secretSettings = { QStringLiteral("server-password") };
    return account;
}

KirvMovedAccounts movedAccounts(const QStringList &ids)
{
    KirvMovedAccounts accounts;
    for (const QString &id : ids)
        accounts.accounts << moved(id);
    return accounts;
}

} // namespace

/// As a protocol changes them for a test whose port does not matter.
static QList<KirvField> withAnyPort(QList<KirvField> fields)
{
    for (KirvField &field : fields) {
        if (field.getId() == QLatin1String("port"))
            field.setText(QStringLiteral("1"));
    }
    return fields;
}

/// Accounts of a file come into the profile: all that was chosen, or nothing, and back.
class tst_AccountImport : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void newAccountsAreTakenAndExistingOnesKept();
    void rowsSayWhatHinders_data();
    void rowsSayWhatHinders();
    void rowWithAProblemIsNeverTaken();
    void newAccountHasWhatTheFileSays();
    void whatTheFileLacksIsThatOfANewAccount();
    void newAccountsLogInWhenTheyAreEnabled();
    void importFollowsTheOrderOfTheFile();
    void replacedAccountHasWhatTheFileSays();
    void replacedAccountKeepsWhatTheFileLacks();
    void replacedAccountWithAnotherServerKeepsNoSecret();
    void settingsThatDoNotDecideWhereAPasswordGoesDoNotCount();
    void trustedCertificatesAreNotTakenOver();
    void replacedAccountKeepsItsPlaceAndSpelling();
    void replacedAccountLogsInWithWhatIsNew();
    void everythingIsOneChangeOfTheStore();
    void nothingIsNoChange();
    void refusedImportChangesNothing_data();
    void refusedImportChangesNothing();
    void accountThatWasAddedSinceIsNotTouched();
    void accountThatWasRemovedSinceEndsTheImport();
    void protocolThatWasUnloadedSinceEndsTheImport();
    void pictureComesAlong();
    void pictureThatCannotBeReadIsLeftOut();
    void mainAccountOfTheFileIsTakenWhereThereIsNone_data();
    void mainAccountOfTheFileIsTakenWhereThereIsNone();
    void importIsUndoneInOneStep();
    void undoingGivesBackExactlyWhatWas();
    void undoneImportIsMadeAgainWithWhatWasChanged();
    void undoneImportIsMadeAgainAsFarAsLoginsAreFree();
    void undoingReturnsTheMainAccount();
    void refusedUndoChangesNothing();
    void accountsRemovedSinceDoNotHinderUndoing();
    void secretsGoToTheKeyring();
    void undoingReturnsSecretsOfTheKeyring();
    void secretsBeforeGoToNoOtherServer_data();
    void secretsBeforeGoToNoOtherServer();
    void undoingAfterTheKeyringIsGone();
    void lockedSecretsStayAndComeBack();
    void importThatIsUndoneLeavesNoSecretOnTheDisk();
    void manyAccountsAreImportedAndUndone_data();
    void manyAccountsAreImportedAndUndone();

private:
    struct State {
        QList<KirvAccountRecord> stored;
        QStringList order;
        QString main;
    };
    KirvMainAccount &mainAccount() const { return core->services->mainAccountRule; }
    KirvAccountImport importOf(const KirvMovedAccounts &accounts) const
    {
        return KirvAccountImport(*core->accounts, mainAccount(), *history, accounts);
    }
    /// Takes everything that can be taken over.
    void importAll(const KirvMovedAccounts &accounts) const;
    State state() const;
    static QByteArray difference(const State &left, const State &right);
    QStringList secretsInKeyring() const { return keyring->secrets.values(); }

    std::unique_ptr<KirvFakeSecretStore> keyring;
    std::unique_ptr<KirvAccountsFixture> core;
    std::unique_ptr<KirvAccountHistory> history;
};

void tst_AccountImport::init()
{
    core = std::make_unique<KirvAccountsFixture>();
    QVERIFY(core->isReady());
    history = core->createWithHistory({ ann, bob, cleo });
    QVERIFY(history);
}

void tst_AccountImport::cleanup()
{
    history.reset();
    core.reset();
    keyring.reset();
}

tst_AccountImport::State tst_AccountImport::state() const
{
    return { core->store.readAccounts(), core->order(), core->settings->value("main_account") };
}

QByteArray tst_AccountImport::difference(const State &left, const State &right)
{
    if (left.order != right.order)
        return "order";
    if (left.main != right.main)
        return "main account";
    if (left.stored.size() != right.stored.size())
        return "number";
    for (int i = 0; i < left.stored.size(); ++i) {
        KirvAccountRecord other = right.stored.at(i);
        if (other.avatar.isEmpty() == left.stored.at(i).avatar.isEmpty())
            other.avatar = left.stored.at(i).avatar; // names of pictures are never used twice
        if (!left.stored.at(i).isStoredLike(other))
            return left.stored.at(i).key.id.toUtf8();
    }
    return QByteArray();
}

void tst_AccountImport::importAll(const KirvMovedAccounts &accounts) const
{
    KirvAccountImport importing = importOf(accounts);
    for (int row = 0; row < importing.rows().size(); ++row)
        importing.setTaken(row, true);
    QString problem;
    QVERIFY2(importing.apply(&problem), qPrintable(problem));
}

void tst_AccountImport::newAccountsAreTakenAndExistingOnesKept()
{
    const State before = state();
    KirvMovedAccounts accounts = movedAccounts({ dora, bob });
    accounts.accounts.last().record.alias.clear();
    accounts.leftOut << QStringLiteral("A sentence.");
    KirvAccountImport importing = importOf(accounts);
    const QList<KirvAccountImport::Row> rows = importing.rows();
    QCOMPARE(int(rows.size()), 2);
    QVERIFY(rows.at(0).isNew());
    QVERIFY(rows.at(0).isTaken);
    QCOMPARE(rows.at(0).name, QStringLiteral("Moved dora"));
    QVERIFY(!rows.at(1).isNew());
    QVERIFY(!rows.at(1).isTaken);
    QCOMPARE(rows.at(1).existing.id, bob);
    QCOMPARE(rows.at(1).name, bob);
    QCOMPARE(importing.takenCount(), 1);
    QCOMPARE(importing.leftOut(), accounts.leftOut);
    QCOMPARE(difference(state(), before), QByteArray());

    QString problem;
    QVERIFY2(importing.apply(&problem), qPrintable(problem));
    QCOMPARE(core->order(), QStringList({ ann, bob, cleo, dora }));
    QCOMPARE(core->account(bob)->record().alias, QStringLiteral("Alias of bob"));
    QCOMPARE(history->kindOf(history->latest()), KirvAccountHistory::Import);
    QCOMPARE(history->namesOf(history->latest()), QStringList { "Moved dora" });
}

void tst_AccountImport::rowsSayWhatHinders_data()
{
    QTest::addColumn<QStringList>("logins"); ///< "login" or "login protocol"
    QTest::addColumn<QStringList>("problems");
    const QString twice =
        QStringLiteral("The file contains this login twice: \"%1\" is the same as \"%2\" to the server.");
    const QString odd = QStringLiteral("odd");
    QTest::newRow("new ones") << QStringList { dora, eve } << QStringList { "", "" };
    QTest::newRow("existing") << QStringList { bob, "BOB" } << QStringList { "", twice.arg("BOB", bob) };
    QTest::newRow("the same twice") << QStringList { dora, dora } << QStringList { "", twice.arg(dora, dora) };
    QTest::newRow("two spellings") << QStringList { "DORA", dora } << QStringList { "", twice.arg(dora, "DORA") };
    QTest::newRow("three spellings") << QStringList { dora, "DORA", "Dora" }
                                     << QStringList { "", twice.arg("DORA", dora), twice.arg("Dora", dora) };
    QTest::newRow("no login") << QStringList { "" } << QStringList { "The account has no login." };
    QTest::newRow("wrong login") << QStringList { odd } << QStringList { "No login." };
    QTest::newRow("unloaded protocol") << QStringList { "dora None", "dora" }
                                       << QStringList { "The protocol None is not loaded.", "" };
    QTest::newRow("no protocol") << QStringList { "dora " } << QStringList { "The protocol  is not loaded." };
    QTest::newRow("protocol of two lines")
        << QStringList { QStringLiteral("dora a\nb\u202e") } << QStringList { "The protocol a b is not loaded." };
}

void tst_AccountImport::rowsSayWhatHinders()
{
    QFETCH(QStringList, logins);
    core->accounts->protocolAboutToBeUnloaded(core->fake);
    core->protocol->normalize = [](const QString &login) { return login.toLower(); };
    core->protocol->findProblem = [](const QString &login) {
        return login == QLatin1String("odd") ? QStringLiteral("No login.") : QString();
    };
    core->accounts->protocolLoaded(core->protocol.get());
    KirvMovedAccounts accounts;
    for (const QString &login : logins) {
        const bool hasProtocol = login.contains(QLatin1Char(' '));
        accounts.accounts << moved(login.section(QLatin1Char(' '), 0, 0),
                                   hasProtocol ? login.section(QLatin1Char(' '), 1) : core->fake);
    }
    QStringList problems;
    const KirvAccountImport importing = importOf(accounts);
    for (const KirvAccountImport::Row &row : importing.rows())
        problems << row.problem;
    QTEST(problems, "problems");
}

void tst_AccountImport::rowWithAProblemIsNeverTaken()
{
    KirvMovedAccounts accounts = movedAccounts({ dora, dora });
    KirvAccountImport importing = importOf(accounts);
    importing.setTaken(1, true);
    importing.setTaken(2, true);
    importing.setTaken(-1, true);
    QCOMPARE(importing.takenCount(), 1);
    importing.setTaken(0, false);
    QCOMPARE(importing.takenCount(), 0);
    QVERIFY(!importing.rows().at(1).isTaken);
}

void tst_AccountImport::newAccountHasWhatTheFileSays()
{
    KirvMovedAccounts accounts = movedAccounts({ dora });
    accounts.accounts.first().record.enabled = false;
    importAll(accounts);
    KirvAccountRecord expected = accounts.accounts.first().record;
    expected.settings.insert("port", "5222");
    expected.settings.insert("encrypted", "true");
    QVERIFY(core->account(dora)->record() == expected);
    history.reset();
    core->restart();
    QVERIFY(core->account(dora)->record().isStoredLike(expected));
    QVERIFY(isTextInFiles("moved word of dora", core->store.folder()));
}

void tst_AccountImport::whatTheFileLacksIsThatOfANewAccount()
{
    KirvMovedAccounts accounts;
    KirvMovedAccount account;
    account.record.key = { dora, core->fake };
    // Names of files and items in a keyring belong to another profile.
    account.record.avatar = QStringLiteral("00000000-0000-0000-0000-000000000000.png");
    account.record.secretItems = { { QString(), { "key", "label" } } };
    account.record.unreadSecrets = { QString() };
    accounts.accounts << account;
    importAll(accounts);
    const KirvAccountRecord record = core->account(dora)->record();
    QCOMPARE(record.settings.value("server"), QStringLiteral("localhost"));
    QCOMPARE(record.secretSettings, QSet<QString> { "server-password" });
    QCOMPARE(record.defaultPresence, QStringLiteral("available"));
    QCOMPARE(record.avatar, QString());
    QVERIFY(record.secretItems.isEmpty());
    QVERIFY(record.unreadSecrets.isEmpty());
    QVERIFY(!core->account(dora)->awaitsSecrets());
}

void tst_AccountImport::newAccountsLogInWhenTheyAreEnabled()
{
    KirvMovedAccounts accounts = movedAccounts({ dora, eve });
    accounts.accounts.last().record.enabled = false;
    core->takeCalls();
    QSignalSpy added(core->accounts.get(), &KirvAccountCollection::accountAdded);
    importAll(accounts);
    QCOMPARE(added.size(), 2);
    KIRV_TRY(core->account(dora)->isOnline());
    QCOMPARE(core->takeCalls(), QStringList { "dora log in away moved word of dora" });
    QVERIFY(!core->account(eve)->isOnline());
}

void tst_AccountImport::importFollowsTheOrderOfTheFile()
{
    importAll(movedAccounts({ eve, bob, dora }));
    const QStringList expected { ann, bob, cleo, eve, dora };
    QCOMPARE(core->order(), expected);
    QCOMPARE(KirvAccountsFixture::idsOf(core->fake), expected);
    history.reset();
    core->restart();
    QCOMPARE(core->order(), expected);
}

void tst_AccountImport::replacedAccountHasWhatTheFileSays()
{
    core->changeEverything(core->account(bob));
    core->settle();
    const KirvMovedAccounts accounts = movedAccounts({ bob });
    const QSignalSpy changed(core->account(bob), &KirvAccount::changed);
    KirvAccount *same = core->account(bob);
    const QString picture = same->record().avatar;
    importAll(accounts);
    QCOMPARE(core->account(bob), same);
    QCOMPARE(changed.size(), 1);
    KirvAccountRecord expected = accounts.accounts.first().record;
    expected.settings.insert("port", "5222");
    expected.settings.insert("encrypted", "true");
    expected.avatar = picture;
    KirvAccountRecord record = core->account(bob)->record();
    for (const QLatin1String &own : { KirvOwnSetting::avatarOnServer, KirvOwnSetting::avatarIsChosen })
        record.settings.remove(own);
    QVERIFY(record == expected);
    QCOMPARE(core->account(bob)->displayName(), QStringLiteral("Moved bob"));
    history.reset();
    core->restart();
    QVERIFY(core->account(bob)->record().password == expected.password);
    QCOMPARE(core->account(bob)->record().avatar, picture);
}

void tst_AccountImport::replacedAccountKeepsWhatTheFileLacks()
{
    core->account(bob)->setAccountSettings(
        { KirvField::password(QString(), QStringLiteral("server-password"), QStringLiteral("kept"), QString()) });
    QVERIFY(core->account(bob)->setAvatar(core->makePicture()));
    KirvMovedAccounts accounts = movedAccounts({ bob });
    KirvAccountRecord &record = accounts.accounts.first().record;
    record.password.clear();
    record.rememberPassword = false;
    record.settings.clear();
    importAll(accounts);
    const KirvAccountRecord after = core->account(bob)->record();
    QCOMPARE(after.password, QStringLiteral("word of bob"));
    QVERIFY(after.rememberPassword);
    QCOMPARE(after.settings.value("server-password"), QStringLiteral("kept"));
    QVERIFY(QFile::exists(core->account(bob)->avatarPath()));
}

/// A file, which anybody may have written, sends no password of the profile to another server.
void tst_AccountImport::replacedAccountWithAnotherServerKeepsNoSecret()
{
    core->account(bob)->setAccountSettings(
        { KirvField::password(QString(), QStringLiteral("server-password"), QStringLiteral("kept"), QString()) });
    QVERIFY(core->account(bob)->change(
        [](KirvAccountRecord &record) { record.trustedCertificate = QString(64, QLatin1Char('a')); }));
    KirvMovedAccounts accounts = movedAccounts({ bob });
    KirvAccountRecord &record = accounts.accounts.first().record;
    record.password.clear();
    record.settings = { { QStringLiteral("server"), QStringLiteral("elsewhere.example") } };
    KirvAccountImport importing = importOf(accounts);
    QVERIFY(importing.rows().first().losesSecrets);
    QCOMPARE(importing.lostSecrets(), QStringList()); // it is kept
    importing.setTaken(0, true);
    const QStringList lost { QStringLiteral("Stored passwords of the account \"Moved bob\" are not kept, because its "
                                            "settings in the file differ. They must be entered again.") };
    QCOMPARE(importing.lostSecrets(), lost);
    QString problem;
    QVERIFY2(importing.apply(&problem), qPrintable(problem));
    QCOMPARE(importing.lostSecrets(), lost);
    QCOMPARE(importing.leftOut(), QStringList());
    const KirvAccountRecord after = core->account(bob)->record();
    QCOMPARE(after.settings.value("server"), QStringLiteral("elsewhere.example"));
    QCOMPARE(after.password, QString());
    QCOMPARE(after.settings.value("server-password"), QString());
    QCOMPARE(after.trustedCertificate, QString());
}

/// What the protocol changes for a log-in that is only a test, which goes to the same server.
void tst_AccountImport::settingsThatDoNotDecideWhereAPasswordGoesDoNotCount()
{
    core->protocol->changeForTest = &withAnyPort;
    QVERIFY(core->account(bob)->change(
        [](KirvAccountRecord &record) { record.trustedCertificate = QString(64, QLatin1Char('a')); }));
    KirvMovedAccounts accounts = movedAccounts({ bob });
    KirvAccountRecord &record = accounts.accounts.first().record;
    record.password.clear();
    record.settings = { { QStringLiteral("port"), QStringLiteral("5333") } };
    QVERIFY(!importOf(accounts).rows().first().losesSecrets);
    importAll(accounts);
    const KirvAccountRecord after = core->account(bob)->record();
    QCOMPARE(after.settings.value("port"), QStringLiteral("5333"));
    QCOMPARE(after.password, QStringLiteral("word of bob"));
    QCOMPARE(after.trustedCertificate, QString(64, QLatin1Char('a')));
}

void tst_AccountImport::trustedCertificatesAreNotTakenOver()
{
    KirvMovedAccounts accounts = movedAccounts({ bob, dora });
    for (KirvMovedAccount &account : accounts.accounts)
        account.record.trustedCertificate = QString(64, QLatin1Char('b'));
    importAll(accounts);
    QCOMPARE(core->account(bob)->record().trustedCertificate, QString());
    QCOMPARE(core->account(dora)->record().trustedCertificate, QString());
}

void tst_AccountImport::replacedAccountKeepsItsPlaceAndSpelling()
{
    core->accounts->protocolAboutToBeUnloaded(core->fake);
    core->protocol->normalize = [](const QString &login) { return login.toLower(); };
    core->accounts->protocolLoaded(core->protocol.get());
    importAll(movedAccounts({ QStringLiteral("ANN") }));
    QCOMPARE(core->order(), QStringList({ ann, bob, cleo }));
    QCOMPARE(core->account(ann)->record().alias, QStringLiteral("Moved ANN"));
    QCOMPARE(history->undo(history->latest()), QStringList());
    QCOMPARE(core->account(ann)->record().alias, QStringLiteral("Alias of ann"));
}

void tst_AccountImport::replacedAccountLogsInWithWhatIsNew()
{
    QVERIFY(core->account(cleo)->setEnabled(false));
    core->settle();
    core->takeCalls();
    KirvMovedAccounts accounts = movedAccounts({ ann, bob, cleo });
    accounts.accounts[0].record.enabled = false;
    importAll(accounts);
    KIRV_TRY(core->account(cleo)->isOnline());
    KIRV_TRY(core->account(bob)->isOnline());
    KIRV_TRY(!core->account(ann)->isOnline());
    const QStringList calls = core->takeCalls();
    QVERIFY2(calls.contains("ann log out"), qPrintable(calls.join(", ")));
    QVERIFY2(calls.contains("bob log in available moved word of bob"), qPrintable(calls.join(", ")));
    QVERIFY2(calls.filter("cleo log in").value(0).endsWith("moved word of cleo"), qPrintable(calls.join(", ")));
}

void tst_AccountImport::everythingIsOneChangeOfTheStore()
{
    const int commits = core->store.commitCount();
    importAll(movedAccounts({ bob, dora, ann, eve }));
    QCOMPARE(core->store.commitCount(), commits + 1);
    QVERIFY(history->undo(history->latest()).isEmpty());
    QCOMPARE(core->store.commitCount(), commits + 2);
}

void tst_AccountImport::nothingIsNoChange()
{
    const int commits = core->store.commitCount();
    KirvAccountImport importing = importOf(movedAccounts({ bob }));
    QString problem;
    QVERIFY(importing.apply(&problem));
    QCOMPARE(core->store.commitCount(), commits);
    QCOMPARE(history->latest(), 0);
}

void tst_AccountImport::refusedImportChangesNothing_data()
{
    QTest::addColumn<QString>("condition");
    QTest::addColumn<QString>("change");
    QTest::addColumn<QString>("table");
    const QString any = QStringLiteral("1");
    QTest::newRow("first new") << any << "INSERT"
                               << "account";
    QTest::newRow("last new") << "NEW.id = 'eve'"
                              << "INSERT"
                              << "account";
    QTest::newRow("replaced") << "NEW.id = 'bob'"
                              << "UPDATE"
                              << "account";
    QTest::newRow("last replaced") << "NEW.id = 'cleo'"
                                   << "UPDATE"
                                   << "account";
    QTest::newRow("setting") << "NEW.value = 'moved.example'"
                             << "INSERT"
                             << "account_setting";
    QTest::newRow("secret") << "NEW.value LIKE 'moved wo_d of cleo'"
                            << "INSERT"
                            << "secret";
    QTest::newRow("picture") << any << "INSERT"
                             << "avatar_file";
    QTest::newRow("main account") << any << "INSERT"
                                  << "setting";
}

void tst_AccountImport::refusedImportChangesNothing()
{
    QFETCH(QString, condition);
    QFETCH(QString, change);
    QFETCH(QString, table);
    for (const QString &id : { ann, bob, cleo })
        QVERIFY(core->account(id)->setEnabled(false));
    QCOMPARE(mainAccount().account(), nullptr);
    QFile picture(core->makePicture());
    QVERIFY(picture.open(QIODevice::ReadOnly));
    KirvMovedAccounts accounts = movedAccounts({ bob, dora, cleo, eve });
    accounts.accounts[1].picture = picture.readAll();
    accounts.mainAccount = { eve, core->fake };
    KirvAccountImport importing = importOf(accounts);
    for (int row = 0; row < 4; ++row)
        importing.setTaken(row, true);
    core->settle();
    const State before = state();
    const int latest = history->latest();
    QList<KirvAccountRecord> records;
    for (const KirvAccount *account : core->accounts->accounts())
        records << account->record();
    const QStringList pictures = QDir(core->store.avatarFolder()).entryList(QDir::Files);
    {
        const StoreRefusal refusal(core->store.folder(), condition, change, table);
        QVERIFY(refusal.holds());
        QSignalSpy added(core->accounts.get(), &KirvAccountCollection::accountAdded);
        QSignalSpy changed(core->accounts.get(), &KirvAccountCollection::accountChanged);
        QString problem;
        QVERIFY(!importing.apply(&problem));
        QVERIFY(!problem.isEmpty());
        QCOMPARE(int(added.size() + changed.size()), 0);
    }
    QCOMPARE(difference(state(), before), QByteArray());
    for (int i = 0; i < records.size(); ++i)
        QVERIFY(core->accounts->accounts().at(i)->record() == records.at(i));
    QCOMPARE(QDir(core->store.avatarFolder()).entryList(QDir::Files), pictures);
    QCOMPARE(history->latest(), latest);
    QCOMPARE(mainAccount().account(), nullptr);
    QVERIFY(!isTextInFiles("moved word of", core->store.folder()));

    QString problem;
    QVERIFY2(importing.apply(&problem), qPrintable(problem));
    QCOMPARE(core->order(), QStringList({ ann, bob, cleo, dora, eve }));
    QCOMPARE(mainAccount().account(), core->account(eve));
}

void tst_AccountImport::accountThatWasAddedSinceIsNotTouched()
{
    KirvAccountImport importing = importOf(movedAccounts({ dora, eve }));
    QVERIFY(core->create(eve));
    QString problem;
    QVERIFY(!importing.apply(&problem));
    QCOMPARE(problem,
             QStringLiteral("The account \"eve\" cannot be imported. Another account with this login was added or "
                            "removed in the meantime."));
    QCOMPARE(core->order(), QStringList({ ann, bob, cleo, eve }));
    QCOMPARE(core->account(eve)->record().alias, QStringLiteral("Alias of eve"));
}

void tst_AccountImport::accountThatWasRemovedSinceEndsTheImport()
{
    KirvAccountImport importing = importOf(movedAccounts({ bob, eve }));
    importing.setTaken(0, true);
    QVERIFY(core->accounts->remove(core->account(bob)));
    QString problem;
    QVERIFY(!importing.apply(&problem));
    QVERIFY(problem.startsWith("The account \"bob\" cannot be imported."));
    QCOMPARE(core->order(), QStringList({ ann, cleo }));
}

void tst_AccountImport::protocolThatWasUnloadedSinceEndsTheImport()
{
    KirvAccountImport importing = importOf(movedAccounts({ eve }));
    core->accounts->protocolAboutToBeUnloaded(core->fake);
    QString problem;
    QVERIFY(!importing.apply(&problem));
    QCOMPARE(problem, QStringLiteral("The account \"eve\" cannot be imported. The protocol Fake is not loaded."));
    QCOMPARE(core->order(), QStringList({ ann, bob, cleo }));
}

void tst_AccountImport::pictureComesAlong()
{
    KirvMovedAccounts accounts = movedAccounts({ bob, dora });
    for (KirvMovedAccount &account : accounts.accounts)
        account.picture = contentOf(core->makePicture(QSize(40, 40)));
    QVERIFY(core->account(bob)->setAvatar(core->makePicture()));
    const QString before = core->account(bob)->avatarPath();
    const QByteArray bytes = contentOf(before);
    importAll(accounts);
    for (int i = 0; i < 2; ++i) {
        const KirvMovedAccount &account = accounts.accounts.at(i);
        QCOMPARE(contentOf(core->account(account.record.key.id)->avatarPath()), account.picture);
    }
    QVERIFY(!QFile::exists(before));
    QCOMPARE(history->undo(history->latest()), QStringList());
    QCOMPARE(contentOf(core->account(bob)->avatarPath()), bytes);
    QCOMPARE(int(QDir(core->store.avatarFolder()).entryList(QDir::Files).size()), 1);
}

void tst_AccountImport::pictureThatCannotBeReadIsLeftOut()
{
    KirvMovedAccounts accounts = movedAccounts({ dora, eve });
    accounts.accounts[0].picture = "no picture";
    accounts.accounts[0].record.settings.insert(KirvOwnSetting::avatarIsChosen, "true");
    accounts.accounts[1].picture = contentOf(core->makePicture());
    KirvAccountImport importing = importOf(accounts);
    QString problem;
    QVERIFY2(importing.apply(&problem), qPrintable(problem));
    QCOMPARE(core->account(dora)->avatarPath(), QString());
    QVERIFY(!core->account(dora)->record().settings.contains(KirvOwnSetting::avatarIsChosen));
    QVERIFY(!core->account(eve)->avatarPath().isEmpty());
    QCOMPARE(int(importing.leftOut().size()), 1);
    QVERIFY2(importing.leftOut().first().startsWith("The picture of the account \"Moved dora\" was left out."),
             qPrintable(importing.leftOut().first()));
    QCOMPARE(int(QDir(core->store.avatarFolder()).entryList(QDir::Files).size()), 1);
}

void tst_AccountImport::mainAccountOfTheFileIsTakenWhereThereIsNone_data()
{
    QTest::addColumn<bool>("hasMain");
    QTest::addColumn<QString>("ofFile");
    QTest::addColumn<bool>("isEnabled"); ///< in the file
    QTest::addColumn<QString>("main");
    QTest::newRow("there is one") << true << eve << true << ann;
    QTest::newRow("there is none") << false << eve << true << eve;
    QTest::newRow("disabled in the file") << false << eve << false << dora;
    QTest::newRow("replaced") << false << bob << true << bob;
    QTest::newRow("not in the file") << false << QStringLiteral("x") << true << bob;
    QTest::newRow("none in the file") << false << QString() << true << bob;
}

void tst_AccountImport::mainAccountOfTheFileIsTakenWhereThereIsNone()
{
    QFETCH(bool, hasMain);
    QFETCH(QString, ofFile);
    QFETCH(bool, isEnabled);
    QFETCH(QString, main);
    for (const QString &id : { ann, bob, cleo })
        QVERIFY(core->account(id)->setEnabled(hasMain));
    KirvMovedAccounts accounts = movedAccounts({ dora, eve, bob });
    accounts.mainAccount = { ofFile, ofFile.isEmpty() ? QString() : core->fake };
    accounts.accounts[1].record.enabled = isEnabled;
    accounts.accounts[2].record.enabled = main != dora;
    const int commits = core->store.commitCount();
    importAll(accounts);
    QCOMPARE(mainAccount().account(), core->account(main));
    QCOMPARE(core->settings->value("main_account"), main + "@@Fake");
    if (main == ofFile)
        QCOMPARE(core->store.commitCount(), commits + 1);
}

void tst_AccountImport::importIsUndoneInOneStep()
{
    const State before = state();
    QSignalSpy removed(core->accounts.get(), &KirvAccountCollection::accountRemoved);
    importAll(movedAccounts({ dora, bob, eve }));
    core->settle();
    QCOMPARE(history->namesOf(history->latest()), QStringList({ "Moved bob", "Moved dora", "Moved eve" }));
    QCOMPARE(history->undo(history->latest()), QStringList());
    core->settleAndDelete();
    QCOMPARE(difference(state(), before), QByteArray());
    QCOMPARE(removed.size(), 2);
    QCOMPARE(history->latest(), 0);
    KIRV_TRY(core->account(bob)->isOnline());
    history.reset();
    core->restart();
    QCOMPARE(difference(state(), before), QByteArray());
}

void tst_AccountImport::undoingGivesBackExactlyWhatWas()
{
    core->changeEverything(core->account(bob));
    core->account(bob)->setAccountSettings(
        { KirvField::password(QString(), QStringLiteral("server-password"), QStringLiteral("kept"), QString()) });
    core->settle();
    KirvAccountRecord before = core->account(bob)->record();
    const QByteArray picture = contentOf(core->account(bob)->avatarPath());
    const QString presence = core->account(bob)->presence().getId();
    KirvMovedAccounts accounts = movedAccounts({ bob });
    accounts.accounts.first().picture = contentOf(core->makePicture(QSize(50, 50)));
    accounts.accounts.first().record.enabled = false;
    importAll(accounts);
    core->settle();
    QVERIFY(core->account(bob)->change([](KirvAccountRecord &record) { record.alias = QStringLiteral("since"); }));
    QCOMPARE(history->undo(history->latest()), QStringList());
    core->settle();
    KirvAccountRecord after = core->account(bob)->record();
    QCOMPARE(contentOf(core->account(bob)->avatarPath()), picture);
    before.avatar = after.avatar;
    for (KirvAccountRecord *record : { &before, &after }) { // what the server holds is told by its reply
        record->settings.remove(KirvOwnSetting::avatarOnServer);
        record->settings.remove(KirvOwnSetting::avatarIsChosen);
    }
    QVERIFY(after == before);
    QVERIFY(core->account(bob)->isEnabled());
    QCOMPARE(core->account(bob)->presence().getId(), presence);
}

void tst_AccountImport::undoneImportIsMadeAgainWithWhatWasChanged()
{
    const State before = state();
    importAll(movedAccounts({ dora, bob, eve }));
    for (const QString &id : { dora, bob }) {
        QVERIFY(core->account(id)->change([](KirvAccountRecord &record) {
            record.alias = QStringLiteral("since");
            record.password = QStringLiteral("typed since");
        }));
    }
    core->settle();
    const State changed = state();
    QSignalSpy steps(history.get(), &KirvAccountHistory::stepAdded);
    QCOMPARE(history->undo(history->latest()), QStringList());
    core->settleAndDelete();
    QCOMPARE(difference(state(), before), QByteArray());
    QCOMPARE(steps.size(), 1);
    const int step = steps.first().first().toInt();
    QCOMPARE(history->kindOf(step), KirvAccountHistory::UndoneImport);
    QVERIFY(history->canUndo(step));
    QCOMPARE(history->latestUndoable(), 0);
    QCOMPARE(history->undo(step), QStringList());
    core->settleAndDelete();
    QCOMPARE(difference(state(), changed), QByteArray());
    QCOMPARE(core->account(dora)->getPassword(), QStringLiteral("typed since"));
    QCOMPARE(history->kindOf(history->latestUndoable()), KirvAccountHistory::Import);
    QCOMPARE(history->undo(history->latest()), QStringList());
    core->settleAndDelete();
    QCOMPARE(difference(state(), before), QByteArray());
}

void tst_AccountImport::undoneImportIsMadeAgainAsFarAsLoginsAreFree()
{
    importAll(movedAccounts({ dora, bob, eve }));
    QSignalSpy steps(history.get(), &KirvAccountHistory::stepAdded);
    QCOMPARE(history->undo(history->latest()), QStringList());
    core->settleAndDelete();
    const int step = steps.first().first().toInt();
    QVERIFY(core->create(dora));
    QVERIFY(core->accounts->remove(core->account(bob)));
    QCOMPARE(history->undo(step),
             QStringList({ core->accounts->problemWithNew({ dora, core->fake }),
                           QStringLiteral("The account \"Moved bob\" cannot be imported again: it was removed.") }));
    QCOMPARE(core->order(), QStringList({ ann, cleo, eve, dora }));
    QCOMPARE(core->account(dora)->record().alias, QStringLiteral("Alias of dora"));
    QVERIFY(history->has(step)); // dora is still held
    QVERIFY(!history->canUndo(step));
}

void tst_AccountImport::undoingReturnsTheMainAccount()
{
    QCOMPARE(mainAccount().account(), core->account(ann));
    KirvMovedAccounts accounts = movedAccounts({ ann });
    accounts.accounts.first().record.enabled = false;
    importAll(accounts);
    QCOMPARE(mainAccount().account(), core->account(bob));
    QCOMPARE(history->undo(history->latest()), QStringList());
    QCOMPARE(mainAccount().account(), core->account(ann));
    QCOMPARE(core->settings->value("main_account"), QStringLiteral("ann@@Fake"));
}

void tst_AccountImport::refusedUndoChangesNothing()
{
    importAll(movedAccounts({ bob, dora }));
    const State imported = state();
    const int step = history->latest();
    {
        const StoreRefusal refusal(core->store.folder(), QStringLiteral("1"), QStringLiteral("DELETE"));
        QCOMPARE(int(history->undo(step).size()), 1);
    }
    QCOMPARE(difference(state(), imported), QByteArray());
    QCOMPARE(core->account(bob)->record().alias, QStringLiteral("Moved bob"));
    QCOMPARE(history->latest(), step);
    QCOMPARE(history->undo(step), QStringList());
    QCOMPARE(core->order(), QStringList({ ann, bob, cleo }));
    QCOMPARE(core->account(bob)->record().alias, QStringLiteral("Alias of bob"));
}

void tst_AccountImport::accountsRemovedSinceDoNotHinderUndoing()
{
    importAll(movedAccounts({ bob, cleo, dora, eve }));
    const int step = history->latest();
    QVERIFY(core->accounts->remove({ core->account(bob), core->account(dora) }));
    QCOMPARE(history->undo(step),
             QStringList {
                 "The account \"Moved bob\" cannot be restored to what it was before the import: it was removed." });
    QCOMPARE(core->order(), QStringList({ ann, cleo }));
    QCOMPARE(core->account(cleo)->record().alias, QStringLiteral("Alias of cleo"));
    QVERIFY(!history->has(step));
}

void tst_AccountImport::secretsGoToTheKeyring()
{
    keyring = std::make_unique<KirvFakeSecretStore>();
    core->accounts->secrets().setKeyring(keyring.get());
    importAll(movedAccounts({ bob, dora }));
    QVERIFY(!isTextInFiles("moved word of", core->store.folder()));
    KIRV_TRY_COMPARE(int(secretsInKeyring().filter("moved").size()), 4);
    const KirvAccountRecord record = core->account(dora)->record();
    QCOMPARE(keyring->secrets.value(record.secretItems.value(QString()).key), QStringLiteral("moved word of dora"));
    QVERIFY(!isTextInFiles("moved word of", core->store.folder()));
}

void tst_AccountImport::undoingReturnsSecretsOfTheKeyring()
{
    keyring = std::make_unique<KirvFakeSecretStore>();
    core->accounts->secrets().setKeyring(keyring.get());
    core->account(bob)->setPassword(QStringLiteral("in the keyring"));
    KIRV_TRY(secretsInKeyring().contains("in the keyring"));
    importAll(movedAccounts({ bob, dora }));
    KIRV_TRY_COMPARE(int(secretsInKeyring().filter("moved").size()), 4);
    KIRV_TRY(!secretsInKeyring().contains("in the keyring"));
    QCOMPARE(history->undo(history->latest()), QStringList());
    KIRV_TRY_COMPARE(secretsInKeyring(), QStringList { "in the keyring" });
    QCOMPARE(core->account(bob)->record().password, QStringLiteral("in the keyring"));
    QCOMPARE(keyring->secrets.value(core->account(bob)->record().secretItems.value(QString()).key),
             QStringLiteral("in the keyring"));
}

void tst_AccountImport::secretsBeforeGoToNoOtherServer_data()
{
    QTest::addColumn<QString>("setting"); ///< of the file
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("password"); ///< that counts at the next start
    const QString before = QStringLiteral("in the keyring");
    QTest::newRow("another server") << QStringLiteral("server") << QStringLiteral("moved.example") << QString();
    QTest::newRow("the same server") << QStringLiteral("server") << QStringLiteral("localhost") << before;
    QTest::newRow("what does not decide that") << QStringLiteral("port") << QStringLiteral("5333") << before;
}

/// The program ends before the keyring has the secrets of the file.
void tst_AccountImport::secretsBeforeGoToNoOtherServer()
{
    QFETCH(QString, setting);
    QFETCH(QString, value);
    core->protocol->changeForTest = &withAnyPort;
    keyring = std::make_unique<KirvFakeSecretStore>();
    core->accounts->secrets().setKeyring(keyring.get());
    core->account(bob)->setPassword(QStringLiteral("in the keyring"));
    KIRV_TRY(secretsInKeyring().contains("in the keyring"));
    KIRV_TRY(core->store.unsettledItems().isEmpty());
    KirvMovedAccounts accounts = movedAccounts({ bob });
    QMap<QString, QString> &settings = accounts.accounts.first().record.settings;
    settings.insert(QStringLiteral("server"), QStringLiteral("localhost"));
    settings.insert(setting, value);
    keyring->isHeld = true;
    importAll(accounts);
    QCOMPARE(core->account(bob)->record().password, QStringLiteral("moved word of bob"));
    history.reset();
    keyring->isHeld = false;
    core->restart(true, [this] { core->accounts->secrets().setKeyring(keyring.get()); });
    KIRV_TRY(!core->account(bob)->awaitsPassword());
    QTEST(core->account(bob)->record().password, "password");
    KIRV_TRY(core->store.unsettledItems().isEmpty());
    QCOMPARE(secretsInKeyring().contains("in the keyring"), !core->account(bob)->record().password.isEmpty());
}

void tst_AccountImport::undoingAfterTheKeyringIsGone()
{
    keyring = std::make_unique<KirvFakeSecretStore>();
    core->accounts->secrets().setKeyring(keyring.get());
    core->account(bob)->setPassword(QStringLiteral("in the keyring"));
    KIRV_TRY(secretsInKeyring().contains("in the keyring"));
    importAll(movedAccounts({ bob }));
    KIRV_TRY(!secretsInKeyring().contains("in the keyring"));
    keyring->setState(KirvSecretStore::Unavailable);
    core->settle();
    QCOMPARE(history->undo(history->latest()), QStringList());
    QCOMPARE(core->account(bob)->record().password, QStringLiteral("in the keyring"));
    QVERIFY(core->account(bob)->record().secretItems.isEmpty());
    QVERIFY(isTextInFiles("in the keyring", core->store.folder()));
}

/// What was never read is neither lost nor needed.
void tst_AccountImport::lockedSecretsStayAndComeBack()
{
    keyring = std::make_unique<KirvFakeSecretStore>();
    core->accounts->secrets().setKeyring(keyring.get());
    for (const QString &id : { ann, bob }) {
        core->account(id)->setPassword(QStringLiteral("locked word of ") + id);
        KIRV_TRY(secretsInKeyring().contains("locked word of " + id));
    }
    KIRV_TRY(core->store.unsettledItems().isEmpty());
    history.reset();
    keyring->outcome = KirvSecretStore::Refused;
    keyring->setState(KirvSecretStore::Locked);
    core->restart(true, [this] { core->accounts->secrets().setKeyring(keyring.get()); });
    mainAccount().restore();
    history = std::make_unique<KirvAccountHistory>(*core->accounts, mainAccount());
    core->settle();
    QVERIFY(core->account(bob)->awaitsPassword());

    KirvMovedAccounts accounts = movedAccounts({ ann, bob });
    accounts.accounts[0].record.password.clear(); // stays
    accounts.accounts[0].record.settings = { { QStringLiteral("server"), QStringLiteral("moved.example") } };
    QVERIFY(importOf(accounts).rows().first().losesSecrets); // although nobody has read it
    accounts.accounts[0].record.settings.clear();
    QVERIFY(!importOf(accounts).rows().first().losesSecrets);
    importAll(accounts);
    QVERIFY(core->account(ann)->awaitsPassword());
    QVERIFY(!core->account(bob)->awaitsPassword());
    QCOMPARE(history->undo(history->latest()), QStringList());
    QVERIFY(core->account(bob)->awaitsPassword());
    keyring->outcome = KirvSecretStore::Done;
    keyring->setState(KirvSecretStore::Ready);
    for (const QString &id : { ann, bob })
        KIRV_TRY_COMPARE(core->account(id)->record().password, "locked word of " + id);
    KIRV_TRY_COMPARE(int(secretsInKeyring().filter("moved").size()), 0);
}

void tst_AccountImport::importThatIsUndoneLeavesNoSecretOnTheDisk()
{
    importAll(movedAccounts({ bob, dora }));
    QVERIFY(isTextInFiles("moved word of bob", core->store.folder()));
    QCOMPARE(history->undo(history->latest()), QStringList());
    QVERIFY(!isTextInFiles("moved word of", core->store.folder()));
    QVERIFY(!isTextInFiles("moved secret of", core->store.folder()));
    QVERIFY(isTextInFiles("word of bob", core->store.folder()));
}

void tst_AccountImport::manyAccountsAreImportedAndUndone_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("a thousand") << 1000;
    if (qEnvironmentVariableIsSet("KIRV_MANY_ACCOUNTS"))
        QTest::newRow("ten thousand") << 10000;
}

/// The second half replaces what the first import has added.
void tst_AccountImport::manyAccountsAreImportedAndUndone()
{
    QFETCH(int, count);
    QStringList ids;
    for (int i = 0; i < count; ++i)
        ids << QStringLiteral("many%1").arg(i);
    KirvMovedAccounts accounts = movedAccounts(ids);
    for (KirvMovedAccount &account : accounts.accounts)
        account.record.enabled = false;
    const State before = state();
    QElapsedTimer timer;
    QStringList times;
    const auto measure = [&](const char *what, const std::function<void()> &work) {
        timer.start();
        work();
        times << QStringLiteral("%1 %2 ms").arg(QLatin1String(what)).arg(timer.elapsed());
    };
    measure("rows", [&] { QCOMPARE(importOf(accounts).takenCount(), count); });
    measure("import", [&] { importAll(accounts); });
    const int first = history->latest();
    measure("replacement", [&] { importAll(accounts); });
    measure("undo of replacement", [&] { QCOMPARE(history->undo(history->latest()), QStringList()); });
    measure("undo of import", [&] { QCOMPARE(history->undo(first), QStringList()); });
    measure("deletion", [&] { core->settleAndDelete(); });
    QCOMPARE(difference(state(), before), QByteArray());
    qInfo("%d accounts: %s", count, qPrintable(times.join(", ")));
}

QTEST_GUILESS_MAIN(tst_AccountImport)
#include "tst_account_import.moc"
