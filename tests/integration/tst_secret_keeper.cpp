// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/integration/kirv_accounts_fixture.h"
#include "tests/support/fakes/kirv_fake_secret_store.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/kirv_profile_files.h"
#include "tests/support/store_refusal.h"

#include <QLibrary>
#include <QSignalSpy>
#include <QSqlDatabase>
#include <QSqlDriver>
#include <QSqlError>
#include <QSqlQuery>
#include <QTimer>
#include <QtTest>
#include <memory>
#include <utility>

namespace {

const QString password = QStringLiteral("word of id");

/// Runs \a statement in the profile that is open; gives what is wrong with it.
QByteArray runInOpenProfile(const QString &statement)
{
    QSqlQuery query(QSqlDatabase::database(QSqlDatabase::connectionNames().value(0), false));
    return query.exec(statement) ? QByteArray() : query.lastError().text().toUtf8();
}

KirvField serverPassword(const QString &text)
{
    return KirvField::password(QString(), QStringLiteral("server-password"), text, QString());
}

/// Notes what a database connection executes, by a function of the SQLite that Qt has loaded.
class StatementLog {
public:
    explicit StatementLog(const QSqlDatabase &connection)
        : connection(connection)
    {
        trace(traceStatements, [](unsigned, void *log, void *, void *text) {
            static_cast<StatementLog *>(log)->statements << QString::fromUtf8(static_cast<const char *>(text));
            return 0;
        });
    }
    ~StatementLog() { trace(0, nullptr); }
    Q_DISABLE_COPY(StatementLog)

    bool isOn() const { return isTracing; }

    QStringList statements;

private:
    using Receiver = int (*)(unsigned event, void *context, void *statement, void *text);
    using Trace = int (*)(void *database, unsigned events, Receiver receiver, void *context);
    static constexpr unsigned traceStatements = 1; // SQLITE_TRACE_STMT

    void trace(unsigned events, Receiver receiver)
    {
        const QVariant handle = connection.driver()->handle();
        const auto set = reinterpret_cast<Trace>(QLibrary(QStringLiteral("sqlite3"), 0).resolve("sqlite3_trace_v2"));
        isTracing = set && handle.isValid()
            && set(*static_cast<void *const *>(handle.constData()), events, receiver, this) == 0;
    }

    const QSqlDatabase connection;
    bool isTracing = false;
};

} // namespace

/// The secrets of accounts over a scripted keyring.
class tst_SecretKeeper : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void aPasswordGoesToTheKeyringAndNotIntoTheProfile();
    void everySecretSettingGoesThere();
    void withoutAKeyringThePasswordStaysInTheProfile();
    void whatIsStoredBeforeTheStateIsKnownFindsItsPlace_data();
    void whatIsStoredBeforeTheStateIsKnownFindsItsPlace();
    void aChangedPasswordReplacesTheOldOne();
    void aChangeOfSomethingElseWritesNoSecret();
    void aChangeInTheKeyringRewritesNoSecretOfTheProfile();
    void aPasswordThatIsNotRememberedAnyMoreIsRemoved();
    void aRemovedAccountLeavesNothingInTheKeyring();
    void aRestoredAccountHasItsPasswordInTheKeyringAgain();
    void aRestoredAccountKeepsAPasswordThatWasNotRead_data();
    void aRestoredAccountKeepsAPasswordThatWasNotRead();
    void aPasswordThatCannotBeRestoredAnyMoreIsRemoved();
    void removingManyAccountsReadsOnceWhatIsToBeRemoved();
    void theItemsOfAnAccountAreFoundByAnIndex();
    void whatCouldNotBeRemovedIsRemovedAtTheNextStart();
    void whatIsLockedElsewhereHoldsNothingUp();
    void itemsOfOtherProfilesAreLeftAlone();

    void theLoginWaitsForItsSecrets();
    void aSecretThatIsGoneIsRequestedFromTheUser();
    void aSecretThatWasChangedThereIsUsed_data();
    void aSecretThatWasChangedThereIsUsed();
    void aSaveThatDoesNotTouchAnUnknownPasswordLeavesItAlone();
    void aSaveThatTypesAPasswordReplacesAnUnknownOne();
    void aSecretThatIsSavedWhileTheKeyringIsSilentIsReported();
    void whatCannotBeReadIsRequestedOnce_data();
    void whatCannotBeReadIsRequestedOnce();
    void aLockedKeyringIsAskedForEnabledAccountsOnly();
    void aLockedKeyringIsAskedForDisabledAccountsOnRequest();
    void aPasswordForNowChangesNothingThatIsStored();
    void aPasswordForNowLastsUntilTheProgramEnds_data();
    void aPasswordForNowLastsUntilTheProgramEnds();
    void aPasswordForNowIsNotUsedWithoutTheOtherSecrets();
    void aWriteThatFailsIsReportedOnceAndTriedAgain();
    void eachPasswordThatCouldNotBeKeptIsReported_data();
    void eachPasswordThatCouldNotBeKeptIsReported();
    void aPasswordThatGoesIntoTheProfileIsNotReported();
    void whatTheProfileRefusesIsStoredWithTheNextChange();
    void aNewSecretThatWasNeverWrittenIsTheOneBefore();
    void aNewSecretThatWasWrittenIsUsed();
    void aProfileThatRefusesAChangeCostsNoPassword();
    void aRefusedSaveBringsNoMissingPasswordBack();

    void whatTheProfileRefusesIsNotTriedForEver();
    void theCoreMayEndInASlot_data();
    void theCoreMayEndInASlot();

    void aTurnOfTheEventLoopServesAFewAccounts();

    void theProfileIsMovedOnce();
    void aMoveThatFailsLosesNothing_data();
    void aMoveThatFailsLosesNothing();
    void aSaveDuringTheMoveCounts();
    void whatChangesDuringTheMoveLeavesNothingBehind_data();
    void whatChangesDuringTheMoveLeavesNothingBehind();
    void aMoveComesBackToWhatFailed();
    void whatAMoveHasLeftIsNotRemovedDuringASave();
    void aProfileSavedElsewhereKeepsItsSecrets();
    void aProfileSavedElsewhereKeepsWhatIsNotSettled();
    void aProfileSavedElsewhereKeepsWhatAMoveHasWritten();

private:
    void settle();
    void restart();
    void startWithSavedProfile();
    KirvAccount *account() const { return core->account(); }
    bool isInProfile(const QString &text) const { return isTextInFiles(text, core->store.folder()); }

    std::unique_ptr<KirvFakeSecretStore> keyring;
    std::unique_ptr<KirvAccountsFixture> core;
};

void tst_SecretKeeper::init()
{
    keyring = std::make_unique<KirvFakeSecretStore>();
    core = std::make_unique<KirvAccountsFixture>();
    QVERIFY(core->isReady());
    core->accounts->secrets().setKeyring(keyring.get());
}

void tst_SecretKeeper::cleanup()
{
    core.reset();
    keyring.reset();
}

/// Each operation of the keyring follows from the event loop from the one before.
void tst_SecretKeeper::settle()
{
    for (int round = 0; round < 100; ++round)
        core->settle();
}

void tst_SecretKeeper::restart()
{
    core->restart(true, [this] { core->accounts->secrets().setKeyring(keyring.get()); });
}

void tst_SecretKeeper::aPasswordGoesToTheKeyringAndNotIntoTheProfile()
{
    QVERIFY(core->create());
    QCOMPARE(core->takeCalls().value(0), QStringLiteral("id log in available word of id")); // it is known here
    settle();
    QCOMPARE(keyring->secrets.values(), QStringList(password));
    QCOMPARE(keyring->labels.first(), QStringLiteral("Kirv: id (Fake)"));
    QCOMPARE(keyring->calls, QStringList({ "write", "read" })); // read back
    QVERIFY(!isInProfile(password));
    restart();
    QVERIFY(account()->getPassword().isEmpty());
    settle();
    QCOMPARE(account()->getPassword(), password);
    QVERIFY(core->takeCalls().contains(QStringLiteral("id log in available word of id")));
    QVERIFY(!isInProfile(password));
    QCOMPARE(keyring->secrets.size(), 1);
}

void tst_SecretKeeper::everySecretSettingGoesThere()
{
    QVERIFY(core->create());
    account()->setSettings({ KirvField::password(QString(), QStringLiteral("server-password"),
                                                 QStringLiteral("of the server"), QString()) });
    settle();
    QStringList values = keyring->secrets.values();
    values.sort();
    QCOMPARE(values, QStringList({ "of the server", password }));
    QVERIFY(!isInProfile(QStringLiteral("of the server")));
    restart();
    settle();
    QCOMPARE(account()->record().settings.value(QStringLiteral("server-password")), QStringLiteral("of the server"));
    QCOMPARE(core->connection()->login().settings.last().getText(), QStringLiteral("of the server"));
}

void tst_SecretKeeper::withoutAKeyringThePasswordStaysInTheProfile()
{
    keyring->setState(KirvSecretStore::Unavailable);
    QVERIFY(core->create());
    settle();
    QVERIFY(keyring->calls.isEmpty());
    QVERIFY(isInProfile(password));
    restart();
    QCOMPARE(account()->getPassword(), password); // at once
}

void tst_SecretKeeper::whatIsStoredBeforeTheStateIsKnownFindsItsPlace_data()
{
    QTest::addColumn<bool>("isThere");
    QTest::newRow("there is a keyring") << true;
    QTest::newRow("there is none") << false;
}

void tst_SecretKeeper::whatIsStoredBeforeTheStateIsKnownFindsItsPlace()
{
    QFETCH(bool, isThere);
    KirvFakeSecretStore undecided(KirvSecretStore::Unknown);
    core->accounts->secrets().setKeyring(&undecided);
    QVERIFY(core->create());
    settle();
    QVERIFY(!isInProfile(password));
    QVERIFY(undecided.calls.isEmpty());
    undecided.setState(isThere ? KirvSecretStore::Ready : KirvSecretStore::Unavailable);
    settle();
    QCOMPARE(isInProfile(password), !isThere);
    QCOMPARE(undecided.secrets.values(), isThere ? QStringList(password) : QStringList());
    core->accounts->secrets().setKeyring(nullptr);
}

void tst_SecretKeeper::aChangedPasswordReplacesTheOldOne()
{
    QVERIFY(core->create());
    settle();
    const QString before = keyring->secrets.firstKey();
    keyring->calls.clear();
    account()->setPassword(QStringLiteral("another one"));
    settle();
    QCOMPARE(keyring->secrets.values(), QStringList("another one"));
    QVERIFY(keyring->secrets.firstKey() != before);
    QCOMPARE(keyring->secrets.firstKey().section('/', 0, 0), before.section('/', 0, 0)); // the profile's id
    QCOMPARE(keyring->calls, QStringList({ "write", "read", "remove" }));
    QVERIFY(!isInProfile(QStringLiteral("another one")));
    QVERIFY(core->store.unsettledItems().isEmpty());
}

void tst_SecretKeeper::aChangeOfSomethingElseWritesNoSecret()
{
    QVERIFY(core->create());
    settle();
    keyring->calls.clear();
    account()->setAlias(QStringLiteral("Other"));
    keyring->setState(KirvSecretStore::Unavailable);
    account()->setAlias(QStringLiteral("Another"));
    settle();
    QVERIFY(keyring->calls.isEmpty());
    QVERIFY(!isInProfile(password));
    keyring->setState(KirvSecretStore::Ready);
    restart();
    settle();
    QCOMPARE(account()->getPassword(), password);
}

void tst_SecretKeeper::aChangeInTheKeyringRewritesNoSecretOfTheProfile()
{
    const auto writtenRows = [] {
        QSqlQuery query(QSqlDatabase::database(QSqlDatabase::connectionNames().value(0), false));
        return query.exec(QStringLiteral("SELECT total_changes()")) && query.next() ? query.value(0).toInt() : -1;
    };
    keyring->setState(KirvSecretStore::Unavailable);
    for (int number = 0; number < 50; ++number)
        QVERIFY(core->create(QStringLiteral("id%1").arg(number)));
    keyring->setState(KirvSecretStore::Ready);
    QVERIFY(core->create());
    settle();
    const int before = writtenRows();
    account()->setPassword(QStringLiteral("another one"));
    settle();
    QCOMPARE(keyring->secrets.values(), QStringList("another one"));
    QVERIFY(before > 0);
    QVERIFY2(writtenRows() - before < 20, QByteArray::number(writtenRows() - before).constData());
}

void tst_SecretKeeper::aPasswordThatIsNotRememberedAnyMoreIsRemoved()
{
    QVERIFY(core->create());
    settle();
    account()->setRememberPassword(false);
    settle();
    QVERIFY(keyring->secrets.isEmpty());
    QCOMPARE(account()->getPassword(), password); // in this run
    account()->setRememberPassword(true);
    settle();
    QCOMPARE(keyring->secrets.values(), QStringList(password));
}

void tst_SecretKeeper::aRemovedAccountLeavesNothingInTheKeyring()
{
    QVERIFY(core->create());
    QVERIFY(core->create(QStringLiteral("other")));
    settle();
    QVERIFY(core->accounts->remove(account()));
    settle();
    QCOMPARE(keyring->secrets.values(), QStringList("word of other"));
    QVERIFY(core->store.unsettledItems().isEmpty());
}

void tst_SecretKeeper::aRestoredAccountHasItsPasswordInTheKeyringAgain()
{
    QVERIFY(core->create());
    settle();
    const QString before = keyring->secrets.firstKey();
    const KirvRemovedAccount removed = core->accounts->copyOf(account());
    QVERIFY(core->accounts->remove(account()));
    settle();
    QVERIFY(keyring->secrets.isEmpty());
    QVERIFY(core->accounts->restore(removed));
    settle();
    QCOMPARE(keyring->secrets.values(), QStringList(password));
    QVERIFY(keyring->secrets.firstKey() != before); // a key is never used twice
    QVERIFY(!isInProfile(password));
    restart();
    settle();
    QCOMPARE(account()->getPassword(), password);
}

void tst_SecretKeeper::aRestoredAccountKeepsAPasswordThatWasNotRead_data()
{
    QTest::addColumn<bool>("isUnlockedFirst");
    QTest::newRow("unlocked after the undo") << false;
    QTest::newRow("unlocked before the undo") << true;
}

void tst_SecretKeeper::aRestoredAccountKeepsAPasswordThatWasNotRead()
{
    QFETCH(bool, isUnlockedFirst);
    QVERIFY(core->create());
    account()->setSettings({ serverPassword(QStringLiteral("of the server")) });
    settle();
    const QMap<QString, QString> before = keyring->secrets;
    QCOMPARE(before.size(), 2);
    keyring->setState(KirvSecretStore::Locked);
    keyring->outcome = KirvSecretStore::Refused;
    restart();
    settle();
    const KirvRemovedAccount removed = core->accounts->copyOf(account());
    QVERIFY(core->accounts->remove(account()));
    settle();
    keyring->outcome = KirvSecretStore::Done;
    if (isUnlockedFirst)
        keyring->setState(KirvSecretStore::Ready);
    settle();
    QVERIFY(core->accounts->restore(removed));
    if (!isUnlockedFirst)
        keyring->setState(KirvSecretStore::Ready);
    settle();
    QCOMPARE(keyring->secrets, before);
    QCOMPARE(account()->getPassword(), password);
    QCOMPARE(account()->record().settings.value(QStringLiteral("server-password")), QStringLiteral("of the server"));
    QVERIFY(core->store.unsettledItems().isEmpty());
    restart();
    settle();
    QCOMPARE(account()->getPassword(), password);
}

void tst_SecretKeeper::aPasswordThatCannotBeRestoredAnyMoreIsRemoved()
{
    QVERIFY(core->create());
    settle();
    keyring->setState(KirvSecretStore::Locked);
    keyring->outcome = KirvSecretStore::Refused;
    restart();
    settle();
    keyring->outcome = KirvSecretStore::Done;
    {
        const KirvRemovedAccount removed = core->accounts->copyOf(account());
        QVERIFY(core->accounts->remove(account()));
        keyring->setState(KirvSecretStore::Ready);
        settle();
        QCOMPARE(keyring->secrets.size(), 1);
    }
    settle();
    QVERIFY(keyring->secrets.isEmpty());
    QVERIFY(core->store.unsettledItems().isEmpty());
}

void tst_SecretKeeper::removingManyAccountsReadsOnceWhatIsToBeRemoved()
{
    QVERIFY(core->store.begin());
    QList<KirvAccount *> many;
    for (int number = 0; number < 100; ++number) {
        KirvAccountRecord record;
        record.key = { QStringLiteral("id%1").arg(number), core->fake };
        record.password = password;
        record.rememberPassword = true;
        record.enabled = false;
        many << core->accounts->create(record, core->protocol.get());
        QVERIFY(many.last());
    }
    QVERIFY(core->store.commit());
    KIRV_TRY(core->store.unsettledItems().isEmpty());
    QCOMPARE(keyring->secrets.size(), 100);
    StatementLog log(QSqlDatabase::database(QSqlDatabase::connectionNames().value(0), false));
    QVERIFY(log.isOn());
    QVERIFY(core->accounts->remove(many));
    KIRV_TRY(keyring->secrets.isEmpty());
    const QStringList reads = log.statements.filter(QStringLiteral("i.stage IN"));
    QVERIFY2(!reads.isEmpty() && reads.size() <= 2, QByteArray::number(reads.size()).constData());
}

/// Otherwise each change of an account would read the items of all of them.
void tst_SecretKeeper::theItemsOfAnAccountAreFoundByAnIndex()
{
    for (const char *statement : { "SELECT key FROM secret_item WHERE account = 1 AND stage <> 2",
                                   "UPDATE secret_item SET stage = 1 WHERE account = 1 AND field = ''" }) {
        QSqlQuery query(QSqlDatabase::database(QSqlDatabase::connectionNames().value(0), false));
        QVERIFY(query.exec(QStringLiteral("EXPLAIN QUERY PLAN ") + QLatin1String(statement)));
        QVERIFY(query.next());
        const QString plan = query.value(3).toString();
        QVERIFY2(plan.contains(QStringLiteral("secret_item_account")), qPrintable(plan));
    }
}

void tst_SecretKeeper::whatCouldNotBeRemovedIsRemovedAtTheNextStart()
{
    QVERIFY(core->create());
    settle();
    keyring->setState(KirvSecretStore::Locked);
    QVERIFY(core->accounts->remove(account()));
    settle();
    QCOMPARE(keyring->secrets.size(), 1); // nobody is asked to unlock it for that
    restart();
    settle();
    QCOMPARE(keyring->secrets.size(), 1);
    keyring->setState(KirvSecretStore::Ready);
    settle();
    QVERIFY(keyring->secrets.isEmpty());
}

/// The user has moved it into another keyring, which is locked.
void tst_SecretKeeper::whatIsLockedElsewhereHoldsNothingUp()
{
    QVERIFY(core->create());
    QVERIFY(core->create(QStringLiteral("other")));
    settle();
    keyring->outcome = KirvSecretStore::Refused;
    QVERIFY(core->accounts->remove(account()));
    settle();
    QVERIFY(keyring->calls.contains(QStringLiteral("remove")));
    QCOMPARE(core->accounts->secrets().obstacle(), KirvSecretKeeper::None);
    keyring->outcome = KirvSecretStore::Done;
    restart();
    settle();
    QCOMPARE(keyring->secrets.values(), QStringList("word of other")); // tried again
}

void tst_SecretKeeper::itemsOfOtherProfilesAreLeftAlone()
{
    QVERIFY(core->create());
    settle();
    keyring->secrets.insert(QStringLiteral("other/1"), QStringLiteral("foreign"));
    KirvStoredItem foreign { { QStringLiteral("other/1"), QStringLiteral("Kirv") }, account()->key(), QString() };
    foreign.field = QStringLiteral("some field");
    QVERIFY(core->store.addSecretItems({ foreign }));
    QVERIFY(core->store.makeItemsObsolete({ foreign.item.key }));
    QVERIFY(core->accounts->remove(account()));
    settle();
    QCOMPARE(keyring->secrets.keys(), QStringList("other/1"));
}

void tst_SecretKeeper::theLoginWaitsForItsSecrets()
{
    QVERIFY(core->create());
    account()->setSettings({ KirvField::password(QString(), QStringLiteral("server-password"),
                                                 QStringLiteral("of the server"), QString()) });
    settle();
    keyring->isHeld = true;
    restart();
    settle();
    QVERIFY(core->takeCalls().isEmpty());
    QVERIFY(account()->awaitsSecrets());
    QCOMPARE(keyring->heldCount(), 1); // one at a time
    QSignalSpy changes(account(), &KirvAccount::changed);
    keyring->release();
    settle();
    QVERIFY(core->takeCalls().isEmpty());
    keyring->release();
    settle();
    QVERIFY(!account()->awaitsSecrets());
    QVERIFY(!changes.isEmpty());
    QCOMPARE(core->takeCalls(), QStringList("id log in available word of id"));
}

void tst_SecretKeeper::aSecretThatIsGoneIsRequestedFromTheUser()
{
    QVERIFY(core->create());
    settle();
    keyring->secrets.clear();
    core->server().needsPassword = true;
    core->restart(true, [this] { core->accounts->secrets().setKeyring(keyring.get()); });
    QSignalSpy requests(core->accounts.get(), &KirvAccountCollection::passwordNeeded);
    settle();
    QCOMPARE(requests.size(), 1);
    account()->providePassword(QStringLiteral("typed"), true);
    settle();
    QCOMPARE(keyring->secrets.values(), QStringList("typed"));
    QVERIFY(account()->isOnline());
    QVERIFY(core->store.unsettledItems().isEmpty());
}

void tst_SecretKeeper::aSecretThatWasChangedThereIsUsed_data()
{
    QTest::addColumn<QString>("when");
    QTest::newRow("at the start") << "start";
    QTest::newRow("when it reconnects") << "reconnect";
    QTest::newRow("when it is enabled") << "enable";
    QTest::newRow("when it goes on line again") << "presence";
}

void tst_SecretKeeper::aSecretThatWasChangedThereIsUsed()
{
    QFETCH(QString, when);
    QVERIFY(core->create());
    settle();
    if (when == QLatin1String("enable"))
        account()->setEnabled(false);
    else if (when == QLatin1String("presence"))
        account()->setPresence(account()->protocol()->presenceWithId(QStringLiteral("offline"), QString()));
    settle();
    core->takeCalls();
    keyring->secrets[keyring->secrets.firstKey()] = QStringLiteral("changed there");
    if (when == QLatin1String("start"))
        restart();
    else if (when == QLatin1String("reconnect"))
        account()->reconnect();
    else if (when == QLatin1String("presence"))
        account()->setPresence(account()->protocol()->presenceWithId(QStringLiteral("available"), QString()));
    else
        account()->setEnabled(true);
    settle();
    QVERIFY(core->takeCalls().contains(QStringLiteral("id log in available changed there")));
    QCOMPARE(keyring->secrets.values(), QStringList("changed there"));
}

void tst_SecretKeeper::aSaveThatDoesNotTouchAnUnknownPasswordLeavesItAlone()
{
    QVERIFY(core->create());
    settle();
    const QMap<QString, QString> before = keyring->secrets;
    keyring->setState(KirvSecretStore::Unavailable);
    restart();
    settle();
    QVERIFY(account()->getPassword().isEmpty());
    account()->beginSave();
    account()->setAlias(QStringLiteral("Other"));
    account()->setRememberPassword(true);
    account()->setPassword(account()->getPassword());
    account()->setAccountSettings(account()->getAccountSettingsInOrder());
    QVERIFY(account()->endSave());
    keyring->setState(KirvSecretStore::Ready);
    settle();
    QCOMPARE(keyring->secrets, before);
    QCOMPARE(account()->getPassword(), password);
}

void tst_SecretKeeper::aSaveThatTypesAPasswordReplacesAnUnknownOne()
{
    QVERIFY(core->create());
    settle();
    keyring->setState(KirvSecretStore::Silent);
    restart();
    settle();
    account()->setPassword(QStringLiteral("typed"));
    settle();
    QVERIFY(!isInProfile(QStringLiteral("typed")));
    QVERIFY(core->takeCalls().contains(QStringLiteral("id log in available typed")));
    keyring->setState(KirvSecretStore::Ready);
    settle();
    QCOMPARE(keyring->secrets.values(), QStringList("typed"));
}

void tst_SecretKeeper::aSecretThatIsSavedWhileTheKeyringIsSilentIsReported()
{
    QSignalSpy notices(core->accounts.get(), &KirvAccountCollection::noticeReceived);
    keyring->setState(KirvSecretStore::Silent);
    QVERIFY(core->create());
    settle();
    QCOMPARE(notices.size(), 1);
    keyring->setState(KirvSecretStore::Silent);
    account()->setAlias(QStringLiteral("Other"));
    settle();
    QCOMPARE(notices.size(), 1);
    keyring->setState(KirvSecretStore::Ready);
    settle();
    QCOMPARE(keyring->secrets.values(), QStringList(password));
    QCOMPARE(notices.size(), 1);
}

void tst_SecretKeeper::whatCannotBeReadIsRequestedOnce_data()
{
    QTest::addColumn<KirvSecretStore::Outcome>("outcome");
    QTest::addColumn<KirvSecretKeeper::Obstacle>("obstacle");
    QTest::newRow("refused") << KirvSecretStore::Refused << KirvSecretKeeper::Refused;
    QTest::newRow("timed out") << KirvSecretStore::TimedOut << KirvSecretKeeper::Silent;
    QTest::newRow("failed") << KirvSecretStore::Failed << KirvSecretKeeper::Failed;
}

void tst_SecretKeeper::whatCannotBeReadIsRequestedOnce()
{
    QFETCH(KirvSecretStore::Outcome, outcome);
    QFETCH(KirvSecretKeeper::Obstacle, obstacle);
    for (const char *id : { "id", "b", "c" })
        QVERIFY(core->create(QLatin1String(id)));
    settle();
    keyring->calls.clear();
    keyring->setState(KirvSecretStore::Locked);
    keyring->outcome = outcome;
    restart();
    QCOMPARE(core->accounts->secrets().obstacle(), KirvSecretKeeper::Locked);
    settle();
    QCOMPARE(keyring->calls, QStringList("read")); // the others would open the same question
    QCOMPARE(core->accounts->secrets().obstacle(), obstacle);
    QVERIFY(core->takeCalls().isEmpty());
    keyring->outcome = KirvSecretStore::Done;
    keyring->setState(KirvSecretStore::Ready); // unlocked by another program
    settle();
    QCOMPARE(core->takeCalls().size(), 3);
    QCOMPARE(core->accounts->secrets().obstacle(), KirvSecretKeeper::None);
}

void tst_SecretKeeper::aLockedKeyringIsAskedForEnabledAccountsOnly()
{
    QVERIFY(core->create());
    settle();
    account()->setEnabled(false);
    settle();
    keyring->setState(KirvSecretStore::Locked);
    keyring->calls.clear();
    restart();
    settle();
    QVERIFY(keyring->calls.isEmpty());
    account()->setEnabled(true);
    settle();
    QCOMPARE(keyring->calls.value(0), QStringLiteral("read"));
    QVERIFY(account()->isOnline());
}

void tst_SecretKeeper::aLockedKeyringIsAskedForDisabledAccountsOnRequest()
{
    for (const char *id : { "id", "b" }) {
        QVERIFY(core->create(QLatin1String(id)));
        QVERIFY(core->account(QLatin1String(id))->setEnabled(false));
    }
    settle();
    keyring->setState(KirvSecretStore::Locked);
    keyring->outcome = KirvSecretStore::Refused;
    restart();
    settle();
    keyring->calls.clear();
    core->accounts->secrets().unlock();
    settle();
    QCOMPARE(keyring->calls, QStringList("read"));
    keyring->outcome = KirvSecretStore::Done;
    keyring->setState(KirvSecretStore::Locked);
    settle();
    QCOMPARE(keyring->calls, QStringList("read")); // not again without a request
    core->accounts->secrets().unlock();
    settle();
    QCOMPARE(account()->getPassword(), password);
    QCOMPARE(core->account(QStringLiteral("b"))->getPassword(), QStringLiteral("word of b"));
    QCOMPARE(keyring->calls.count(QStringLiteral("read")), 3); // once each, and the one that was refused
}

void tst_SecretKeeper::aPasswordForNowChangesNothingThatIsStored()
{
    QVERIFY(core->create());
    settle();
    keyring->setState(KirvSecretStore::Unavailable);
    restart();
    settle();
    account()->providePasswordForNow(QStringLiteral("for now"));
    settle();
    QCOMPARE(core->takeCalls(), QStringList("id log in available for now"));
    account()->setAlias(QStringLiteral("Other")); // does not store it either
    account()->setPassword(account()->getPassword());
    keyring->setState(KirvSecretStore::Ready);
    settle();
    QVERIFY(core->takeCalls().isEmpty()); // the session goes on
    QCOMPARE(keyring->secrets.values(), QStringList(password));
    QVERIFY(!isInProfile(QStringLiteral("for now")));
    restart();
    settle();
    QCOMPARE(account()->getPassword(), password);
}

void tst_SecretKeeper::aPasswordForNowLastsUntilTheProgramEnds_data()
{
    QTest::addColumn<KirvSecretStore::State>("state");
    QTest::newRow("locked") << KirvSecretStore::Locked;
    QTest::newRow("silent") << KirvSecretStore::Silent;
    QTest::newRow("gone") << KirvSecretStore::Unavailable;
    QTest::newRow("refusing") << KirvSecretStore::Ready;
}

void tst_SecretKeeper::aPasswordForNowLastsUntilTheProgramEnds()
{
    QFETCH(KirvSecretStore::State, state);
    const QStringList logIn(QStringLiteral("id log in available for now"));
    QVERIFY(core->create());
    settle();
    keyring->setState(state);
    keyring->outcome = KirvSecretStore::Refused;
    restart();
    settle();
    account()->providePasswordForNow(QStringLiteral("for now"));
    settle();
    QCOMPARE(core->takeCalls(), logIn);
    account()->reconnect();
    settle();
    QVERIFY(account()->isOnline());
    QVERIFY(core->takeCalls().contains(logIn.first()));
    account()->setEnabled(false);
    settle();
    account()->setEnabled(true);
    settle();
    QVERIFY(account()->isOnline());
    QVERIFY(core->takeCalls().contains(logIn.first()));
    QCOMPARE(keyring->secrets.values(), QStringList(password));
    keyring->outcome = KirvSecretStore::Done;
    keyring->setState(KirvSecretStore::Ready);
    settle();
    account()->reconnect(); // the one that is stored can be read now
    settle();
    QVERIFY(core->takeCalls().contains(QStringLiteral("id log in available word of id")));
}

/// A server would refuse the log-in with an empty one, and that is not tried again.
void tst_SecretKeeper::aPasswordForNowIsNotUsedWithoutTheOtherSecrets()
{
    QVERIFY(core->create());
    account()->setSettings({ serverPassword(QStringLiteral("of the server")) });
    settle();
    keyring->setState(KirvSecretStore::Locked);
    keyring->outcome = KirvSecretStore::Refused;
    restart();
    settle();
    account()->providePasswordForNow(QStringLiteral("for now"));
    settle();
    QCOMPARE(core->takeCalls(), QStringList());
    QVERIFY(account()->awaitsSecrets());
    keyring->outcome = KirvSecretStore::Done;
    keyring->setState(KirvSecretStore::Ready);
    settle();
    QCOMPARE(core->takeCalls(), QStringList("id log in available for now"));
    QCOMPARE(core->connection()->login().settings.last().getText(), QStringLiteral("of the server"));
}

void tst_SecretKeeper::aWriteThatFailsIsReportedOnceAndTriedAgain()
{
    QSignalSpy notices(core->accounts.get(), &KirvAccountCollection::noticeReceived);
    keyring->outcome = KirvSecretStore::Refused;
    QVERIFY(core->create());
    settle();
    QCOMPARE(notices.size(), 1);
    keyring->setState(KirvSecretStore::Locked);
    settle();
    QCOMPARE(notices.size(), 1);
    QVERIFY(!isInProfile(password));
    keyring->outcome = KirvSecretStore::Done;
    keyring->setState(KirvSecretStore::Ready);
    settle();
    QCOMPARE(keyring->secrets.values(), QStringList(password));
}

void tst_SecretKeeper::eachPasswordThatCouldNotBeKeptIsReported_data()
{
    QTest::addColumn<KirvSecretStore::State>("state"); ///< in which the passwords are stored
    QTest::addColumn<KirvSecretStore::State>("stateAfter");
    QTest::newRow("refused") << KirvSecretStore::Ready << KirvSecretStore::Ready;
    QTest::newRow("locked, and refused") << KirvSecretStore::Locked << KirvSecretStore::Locked;
    QTest::newRow("gone") << KirvSecretStore::Unknown << KirvSecretStore::Unavailable;
}

/// Not the first one of them only.
void tst_SecretKeeper::eachPasswordThatCouldNotBeKeptIsReported()
{
    QFETCH(KirvSecretStore::State, state);
    QFETCH(KirvSecretStore::State, stateAfter);
    const int count = 25; // more than one turn reports
    QSignalSpy notices(core->accounts.get(), &KirvAccountCollection::noticeReceived);
    keyring->outcome = KirvSecretStore::Refused;
    keyring->setState(state);
    for (int number = 0; number < count; ++number)
        QVERIFY(core->create(QStringLiteral("id%1").arg(number)));
    settle();
    keyring->setState(stateAfter);
    KIRV_TRY_COMPARE(notices.size(), count);
    keyring->setState(stateAfter);
    settle();
    QCOMPARE(notices.size(), count);
    keyring->outcome = KirvSecretStore::Done;
    keyring->setState(KirvSecretStore::Ready);
    KIRV_TRY_COMPARE(keyring->secrets.size(), count);
    QCOMPARE(notices.size(), count);
    QVERIFY(!isInProfile(QStringLiteral("word of id")));
}

void tst_SecretKeeper::aPasswordThatGoesIntoTheProfileIsNotReported()
{
    const int count = 25; // more than go there in one turn
    KirvFakeSecretStore undecided(KirvSecretStore::Unknown);
    core->accounts->secrets().setKeyring(&undecided);
    QSignalSpy notices(core->accounts.get(), &KirvAccountCollection::noticeReceived);
    for (int number = 0; number < count; ++number)
        QVERIFY(core->create(QStringLiteral("id%1").arg(number)));
    settle();
    undecided.setState(KirvSecretStore::Unavailable);
    settle();
    for (int number = 0; number < count; ++number)
        QVERIFY(isInProfile(QStringLiteral("word of id%1").arg(number)));
    QVERIFY(notices.isEmpty());
    core->accounts->secrets().setKeyring(nullptr);
}

void tst_SecretKeeper::whatTheProfileRefusesIsStoredWithTheNextChange()
{
    KirvFakeSecretStore undecided(KirvSecretStore::Unknown);
    core->accounts->secrets().setKeyring(&undecided);
    QSignalSpy notices(core->accounts.get(), &KirvAccountCollection::noticeReceived);
    QVERIFY(core->create());
    settle();
    {
        const StoreRefusal refusal(core->store.folder(), QStringLiteral("1"), QStringLiteral("INSERT"),
                                   QStringLiteral("secret"));
        QVERIFY(refusal.holds());
        undecided.setState(KirvSecretStore::Unavailable);
        settle();
        QCOMPARE(notices.size(), 1);
        const QString text = notices.first().last().toString();
        QVERIFY2(text.startsWith(QStringLiteral("A password could not be stored.")), qPrintable(text));
        QVERIFY2(text.contains(QStringLiteral("refused by the test")), qPrintable(text));
        QVERIFY(account()->isOnline());
        account()->setAlias(QStringLiteral("Other"));
        settle();
        QCOMPARE(notices.size(), 1); // once
    }
    QVERIFY(!isInProfile(password));
    account()->setAlias(QStringLiteral("Another"));
    settle();
    QVERIFY(isInProfile(password));
    core->accounts->secrets().setKeyring(nullptr);
}

void tst_SecretKeeper::aNewSecretThatWasNeverWrittenIsTheOneBefore()
{
    QVERIFY(core->create());
    settle();
    keyring->isHeld = true;
    account()->setPassword(QStringLiteral("never written"));
    settle();
    keyring->isHeld = false; // what is held is never carried out, as after a kill
    restart();
    settle();
    QCOMPARE(account()->getPassword(), password);
    QCOMPARE(keyring->secrets.values(), QStringList(password));
    QVERIFY(core->store.unsettledItems().isEmpty());
}

void tst_SecretKeeper::aNewSecretThatWasWrittenIsUsed()
{
    QVERIFY(core->create());
    settle();
    keyring->isHeld = true;
    account()->setPassword(QStringLiteral("written"));
    settle();
    keyring->release(); // and killed before it is read back
    QCOMPARE(keyring->secrets.size(), 2);
    keyring->isHeld = false;
    restart();
    settle();
    QCOMPARE(account()->getPassword(), QStringLiteral("written"));
    QCOMPARE(keyring->secrets.values(), QStringList("written"));
    QVERIFY(core->store.unsettledItems().isEmpty());
}

void tst_SecretKeeper::aProfileThatRefusesAChangeCostsNoPassword()
{
    QVERIFY(core->create());
    settle();
    keyring->isHeld = true;
    account()->setPassword(QStringLiteral("never written"));
    settle();
    keyring->isHeld = false;
    keyring->setState(KirvSecretStore::Unknown);
    restart();
    // It refuses to give up the new one, and would accept that it replaces the other.
    const QString refusal = QStringLiteral("CREATE TEMP TRIGGER refusal BEFORE UPDATE ON secret_item "
                                           "WHEN OLD.stage = %1 AND NEW.stage = %2 "
                                           "BEGIN SELECT RAISE(ABORT, 'refused'); END")
                                .arg(int(KirvStoredItem::New))
                                .arg(int(KirvStoredItem::Obsolete));
    QCOMPARE(runInOpenProfile(refusal), QByteArray());
    keyring->setState(KirvSecretStore::Ready);
    settle();
    QCOMPARE(keyring->secrets.values(), QStringList(password));
    QVERIFY(account()->awaitsSecrets());
    QCOMPARE(runInOpenProfile(QStringLiteral("DROP TRIGGER refusal")), QByteArray());
    keyring->setState(KirvSecretStore::Ready);
    settle();
    QCOMPARE(account()->getPassword(), password);
    QCOMPARE(keyring->secrets.values(), QStringList(password));
    QVERIFY(core->store.unsettledItems().isEmpty());
}

void tst_SecretKeeper::aRefusedSaveBringsNoMissingPasswordBack()
{
    QVERIFY(core->create());
    settle();
    keyring->secrets.clear();
    account()->beginSave();
    account()->reconnect();
    account()->setAlias(KirvAccountsFixture::storeFiller());
    settle();
    QVERIFY(account()->getPassword().isEmpty());
    KirvAccountsFixture::setStoreFull(true);
    QVERIFY(!account()->endSave());
    KirvAccountsFixture::setStoreFull(false);
    QVERIFY(account()->getPassword().isEmpty());
    QVERIFY(account()->record().unreadSecrets.contains(QString()));
}

void tst_SecretKeeper::whatTheProfileRefusesIsNotTriedForEver()
{
    QVERIFY(core->create());
    settle();
    keyring->isHeld = true;
    account()->setPassword(QStringLiteral("another one"));
    settle();
    QVERIFY(QDir(core->store.folder()).removeRecursively());
    keyring->isHeld = false;
    keyring->calls.clear();
    keyring->release();
    settle();
    QVERIFY2(keyring->calls.size() < 5, qPrintable(keyring->calls.join(QLatin1Char(' '))));
    QCOMPARE(account()->getPassword(), QStringLiteral("another one"));
}

void tst_SecretKeeper::theCoreMayEndInASlot_data()
{
    QTest::addColumn<QString>("operation");
    for (const char *operation : { "read", "write", "remove" })
        QTest::newRow(operation) << operation;
}

void tst_SecretKeeper::theCoreMayEndInASlot()
{
    QFETCH(QString, operation);
    const bool isRead = operation == QLatin1String("read"), isWrite = operation == QLatin1String("write");
    if (!isWrite)
        QVERIFY(core->create());
    settle();
    keyring->isHeld = true;
    if (isRead)
        account()->reconnect();
    else if (isWrite)
        QVERIFY(core->create());
    else
        QVERIFY(core->accounts->remove(account()));
    settle();
    QCOMPARE(keyring->heldCount(), 1);
    QCOMPARE(keyring->calls.last(), operation);
    if (isRead)
        connect(core->accounts.get(), &KirvAccountCollection::accountChanged, this, [this] { core->endCore(); });
    else
        connect(&core->accounts->secrets(), &KirvSecretKeeper::changed, this, [this] { core->endCore(); });
    keyring->outcome = KirvSecretStore::Failed;
    keyring->release();
    QVERIFY(!core->accounts);
}

/// However many wait for the keyring: each changes a row of a list.
void tst_SecretKeeper::aTurnOfTheEventLoopServesAFewAccounts()
{
    for (int number = 0; number < 200; ++number)
        QVERIFY(core->create(QStringLiteral("id%1").arg(number)));
    KIRV_TRY_COMPARE(keyring->secrets.size(), 200);
    settle();
    keyring->setState(KirvSecretStore::Unknown);
    restart();
    settle();
    int changes = 0, changesInTurn = 0, most = 0;
    connect(core->accounts.get(), &KirvAccountCollection::accountChanged, this, [&] {
        ++changes;
        ++changesInTurn;
    });
    QTimer turns; // times out once in each
    connect(&turns, &QTimer::timeout, this, [&] { most = qMax(most, std::exchange(changesInTurn, 0)); });
    turns.start(0);
    keyring->setState(KirvSecretStore::Silent);
    KIRV_TRY_COMPARE(changes, 200);
    QVERIFY2(most > 0 && most <= 20, QByteArray::number(most).constData());
}

void tst_SecretKeeper::theProfileIsMovedOnce()
{
    keyring->setState(KirvSecretStore::Unavailable);
    for (int number = 0; number < 50; ++number) {
        QVERIFY(core->create(QStringLiteral("id%1").arg(number)));
        core->account(QStringLiteral("id%1").arg(number))
            ->setSettings({ KirvField::password(QString(), QStringLiteral("server-password"),
                                                QStringLiteral("server word %1").arg(number), QString()) });
    }
    restart();
    QVERIFY(isInProfile(QStringLiteral("word of id7")));
    QSignalSpy moves(&core->accounts->secrets(), &KirvSecretKeeper::moved);
    core->accounts->secrets().startMoving();
    keyring->setState(KirvSecretStore::Locked); // moving opens no question
    settle();
    QVERIFY(keyring->calls.isEmpty());
    keyring->setState(KirvSecretStore::Ready);
    KIRV_TRY_COMPARE(moves.size(), 1);
    QCOMPARE(moves.first().first().toInt(), 100);
    QCOMPARE(keyring->secrets.size(), 100);
    QVERIFY(!isInProfile(QStringLiteral("word of id")));
    QVERIFY(!isInProfile(QStringLiteral("server word")));
    restart();
    QSignalSpy again(&core->accounts->secrets(), &KirvSecretKeeper::moved);
    core->accounts->secrets().startMoving();
    for (int round = 0; round < 10; ++round)
        settle();
    QCOMPARE(again.size(), 0);
    for (int number = 0; number < 50; ++number) {
        const QString id = QStringLiteral("id%1").arg(number);
        QCOMPARE(core->account(id)->getPassword(), QStringLiteral("word of ") + id);
        QCOMPARE(core->account(id)->record().settings.value(QStringLiteral("server-password")),
                 QStringLiteral("server word %1").arg(number));
    }
}

void tst_SecretKeeper::aMoveThatFailsLosesNothing_data()
{
    QTest::addColumn<int>("operations"); // that are carried out before the program ends
    for (int operations = 0; operations <= 8; ++operations)
        QTest::addRow("after %d operations", operations) << operations;
}

void tst_SecretKeeper::aMoveThatFailsLosesNothing()
{
    QFETCH(int, operations);
    keyring->setState(KirvSecretStore::Unavailable);
    for (const char *id : { "a", "b", "c" })
        QVERIFY(core->create(QLatin1String(id)));
    restart();
    keyring->isHeld = true;
    core->accounts->secrets().startMoving();
    keyring->setState(KirvSecretStore::Ready);
    for (int operation = 0; operation < operations; ++operation) {
        settle();
        keyring->release();
    }
    keyring->isHeld = false;
    restart();
    for (const char *id : { "a", "b", "c" }) {
        KIRV_TRY_COMPARE(core->account(QLatin1String(id))->getPassword(),
                         QStringLiteral("word of ") + QLatin1String(id));
    }
    QSignalSpy moves(&core->accounts->secrets(), &KirvSecretKeeper::moved);
    core->accounts->secrets().startMoving();
    KIRV_TRY_COMPARE(keyring->secrets.size(), 3);
    settle();
    settle();
    QCOMPARE(keyring->secrets.size(), 3); // and no orphan
    QVERIFY(core->store.unsettledItems().isEmpty());
    QVERIFY(!isInProfile(QStringLiteral("word of ")));
    QVERIFY(moves.size() <= 1);
}

void tst_SecretKeeper::aSaveDuringTheMoveCounts()
{
    keyring->setState(KirvSecretStore::Unavailable);
    QVERIFY(core->create());
    restart();
    keyring->isHeld = true;
    core->accounts->secrets().startMoving();
    keyring->setState(KirvSecretStore::Ready);
    settle();
    keyring->release(); // the old password is written
    account()->setPassword(QStringLiteral("newer"));
    keyring->isHeld = false;
    for (int count = 0; count < 10; ++count) {
        keyring->release();
        settle();
    }
    QCOMPARE(keyring->secrets.values(), QStringList("newer"));
    QVERIFY(!isInProfile(password));
    QVERIFY(!isInProfile(QStringLiteral("newer")));
    restart();
    settle();
    QCOMPARE(account()->getPassword(), QStringLiteral("newer"));
}

void tst_SecretKeeper::whatChangesDuringTheMoveLeavesNothingBehind_data()
{
    QTest::addColumn<bool>("isRemoved");
    QTest::newRow("another password is saved") << false;
    QTest::newRow("the account is removed") << true;
}

/// Also of those whose turn has not come yet.
void tst_SecretKeeper::whatChangesDuringTheMoveLeavesNothingBehind()
{
    QFETCH(bool, isRemoved);
    const QStringList ids { "a", "b", "c" };
    keyring->setState(KirvSecretStore::Unavailable);
    for (const QString &id : ids)
        QVERIFY(core->create(id));
    restart();
    keyring->isHeld = true;
    core->accounts->secrets().startMoving();
    keyring->setState(KirvSecretStore::Ready);
    settle();
    QCOMPARE(keyring->heldCount(), 1);
    for (const QString &id : ids) {
        if (isRemoved)
            QVERIFY(core->accounts->remove(core->account(id)));
        else
            core->account(id)->setPassword(QStringLiteral("newer ") + id);
    }
    while (keyring->heldCount() > 0) {
        keyring->release();
        settle();
    }
    QStringList values = keyring->secrets.values();
    values.sort();
    QCOMPARE(values, isRemoved ? QStringList() : QStringList({ "newer a", "newer b", "newer c" }));
    QVERIFY(core->store.unsettledItems().isEmpty());
    QVERIFY(!isInProfile(QStringLiteral("word of ")));
}

void tst_SecretKeeper::aMoveComesBackToWhatFailed()
{
    const int count = 25; // more than are moved at once
    keyring->setState(KirvSecretStore::Unavailable);
    for (int number = 0; number < count; ++number)
        QVERIFY(core->create(QStringLiteral("id%1").arg(number)));
    restart();
    keyring->outcome = KirvSecretStore::Failed;
    core->accounts->secrets().startMoving();
    keyring->setState(KirvSecretStore::Ready);
    settle();
    QVERIFY(keyring->secrets.isEmpty());
    keyring->outcome = KirvSecretStore::Done;
    keyring->setState(KirvSecretStore::Ready);
    KIRV_TRY_COMPARE(keyring->secrets.size(), count);
    KIRV_TRY(core->store.unsettledItems().isEmpty());
    QVERIFY(!isInProfile(QStringLiteral("word of ")));
}

/// It may be what the save ends with.
void tst_SecretKeeper::whatAMoveHasLeftIsNotRemovedDuringASave()
{
    QVERIFY(core->create());
    settle();
    keyring->calls.clear();
    KirvSecretItem left = account()->record().secretItems.value(QString());
    left.key += QStringLiteral("-left");
    QVERIFY(core->store.addSecretItems({ { left, account()->key(), QString() } }));
    account()->beginSave();
    keyring->setState(KirvSecretStore::Ready);
    settle();
    QVERIFY(!keyring->calls.contains(QStringLiteral("remove")));
    QVERIFY(account()->endSave());
    keyring->setState(KirvSecretStore::Ready);
    settle();
    QCOMPARE(keyring->calls, QStringList("remove"));
    QCOMPARE(keyring->secrets.values(), QStringList(password));
    QVERIFY(core->store.unsettledItems().isEmpty());
}

void tst_SecretKeeper::aProfileSavedElsewhereKeepsItsSecrets()
{
    QVERIFY(core->create());
    settle();
    startWithSavedProfile();
    QCOMPARE(account()->getPassword(), password);
    account()->setPassword(QStringLiteral("later"));
    settle();
    QCOMPARE(keyring->secrets.values(), QStringList("later")); // its items are still its own
}

/// Saves the profile to another folder and starts again with that one.
void tst_SecretKeeper::startWithSavedProfile()
{
    const QString folder = core->home.filePath(QStringLiteral("saved"));
    QVERIFY2(core->store.saveTo(folder), qPrintable(core->store.lastError()));
    core->endCore();
    core->store.close();
    QVERIFY(core->store.open(folder));
    keyring->isHeld = false; // what was held is never carried out
    restart();
    settle();
}

void tst_SecretKeeper::aProfileSavedElsewhereKeepsWhatIsNotSettled()
{
    const QString gone = QStringLiteral("gone");
    QVERIFY(core->create());
    QVERIFY(core->create(gone));
    settle();
    const QStringList before { QStringLiteral("word of gone"), password };
    QStringList values = keyring->secrets.values();
    values.sort();
    QCOMPARE(values, before);
    keyring->isHeld = true;
    account()->setPassword(QStringLiteral("never written"));
    QVERIFY(core->accounts->remove(core->account(gone)));
    startWithSavedProfile();
    QCOMPARE(account()->getPassword(), password); // the one before counts
    QCOMPARE(keyring->secrets.values(), QStringList(password));
    QVERIFY(core->store.unsettledItems().isEmpty());
}

void tst_SecretKeeper::aProfileSavedElsewhereKeepsWhatAMoveHasWritten()
{
    const QString other = QStringLiteral("other");
    QVERIFY(core->create());
    settle();
    keyring->setState(KirvSecretStore::Unavailable);
    QVERIFY(core->create(other)); // into the profile
    KirvSecretItem item = account()->record().secretItems.value(QString());
    item.key += QStringLiteral("-moved");
    QVERIFY(core->store.addSecretItems({ { item, core->account(other)->key(), QString() } }));
    keyring->secrets.insert(item.key, QStringLiteral("word of other"));
    keyring->setState(KirvSecretStore::Silent); // nothing is removed before the profile is saved
    startWithSavedProfile();
    QCOMPARE(core->account(other)->getPassword(), QStringLiteral("word of other"));
    keyring->setState(KirvSecretStore::Ready);
    settle();
    QVERIFY(!keyring->secrets.contains(item.key));
    QCOMPARE(keyring->secrets.values(), QStringList(password));
}

QTEST_MAIN(tst_SecretKeeper)
#include "tst_secret_keeper.moc"
