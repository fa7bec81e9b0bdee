// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_account_batch.h"
#include "tests/integration/kirv_accounts_fixture.h"
#include "tests/support/fakes/kirv_fake_secret_store.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/store_refusal.h"

#include <QSignalSpy>
#include <QTimer>
#include <QtTest>
#include <algorithm>
#include <memory>

namespace {

const QString password = QStringLiteral("word of id");
const QString newer = QStringLiteral("newer");

QString logIn(const QString &with)
{
    return QStringLiteral("id log in available ") + with;
}

} // namespace

/// When accounts wait for secrets that are in the keyring, and what they use when they do not.
class tst_WaitingForSecrets : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void aPasswordThatTheProfileRefusedIsNotReplacedByTheOneBefore_data();
    void aPasswordThatTheProfileRefusedIsNotReplacedByTheOneBefore();
    void noLoginBeginsWithoutItsSecrets_data();
    void noLoginBeginsWithoutItsSecrets();
    void aSessionGoesOnUntilItsSecretsAreRead();
    void aPasswordThatIsNotWrittenYetIsUsed_data();
    void aPasswordThatIsNotWrittenYetIsUsed();
    void knownPasswordsAreUsedWhenTheKeyringCannotBeRead_data();
    void knownPasswordsAreUsedWhenTheKeyringCannotBeRead();
    void aPasswordForNowIsUsedWhenTheKeyringCannotBeRead();
    void aPasswordThatIsNotRememberedAnyMoreIsNotAwaited();
    void aLostConnectionUsesWhatTheKeyringHoldsNow_data();
    void aLostConnectionUsesWhatTheKeyringHoldsNow();
    void aLostConnectionDoesNotAskToUnlockTheKeyring_data();
    void aLostConnectionDoesNotAskToUnlockTheKeyring();

private:
    void settle();
    void restart(KirvSecretStore::State state);
    KirvAccount *account() const { return core->account(); }
    int awaiting() const;

    std::unique_ptr<KirvFakeSecretStore> keyring;
    std::unique_ptr<KirvAccountsFixture> core;
};

void tst_WaitingForSecrets::init()
{
    keyring = std::make_unique<KirvFakeSecretStore>();
    core = std::make_unique<KirvAccountsFixture>();
    QVERIFY(core->isReady());
    core->accounts->secrets().setKeyring(keyring.get());
    QVERIFY(core->create());
    settle();
    QCOMPARE(keyring->secrets.values(), QStringList(password));
    core->takeCalls();
}

void tst_WaitingForSecrets::cleanup()
{
    core.reset();
    keyring.reset();
}

/// Each operation of the keyring follows from the event loop from the one before.
void tst_WaitingForSecrets::settle()
{
    for (int round = 0; round < 100; ++round)
        core->settle();
}

void tst_WaitingForSecrets::restart(KirvSecretStore::State state)
{
    keyring->setState(state);
    core->restart(true, [this] { core->accounts->secrets().setKeyring(keyring.get()); });
    settle();
}

/// How many accounts wait.
int tst_WaitingForSecrets::awaiting() const
{
    const QList<KirvAccount *> all = core->accounts->accounts();
    return int(
        std::count_if(all.begin(), all.end(), [](const KirvAccount *account) { return account->awaitsSecrets(); }));
}

void tst_WaitingForSecrets::aPasswordThatTheProfileRefusedIsNotReplacedByTheOneBefore_data()
{
    QTest::addColumn<bool>("isTyped");
    QTest::addColumn<QString>("event");
    for (const bool isTyped : { false, true }) {
        for (const char *event : { "reconnect", "wrong password", "wrong password without it" })
            QTest::addRow("%s, %s", isTyped ? "typed" : "changed on the server", event) << isTyped << event;
    }
}

/// The profile still names the item of the one before.
void tst_WaitingForSecrets::aPasswordThatTheProfileRefusedIsNotReplacedByTheOneBefore()
{
    QFETCH(bool, isTyped);
    QFETCH(QString, event);
    const bool isReconnection = event == QLatin1String("reconnect");
    {
        const StoreRefusal refusal(core->store.folder(), QStringLiteral("1"), QStringLiteral("INSERT"),
                                   QStringLiteral("secret_item"));
        QVERIFY(refusal.holds());
        if (isTyped)
            account()->providePassword(newer, true);
        else
            QVERIFY(!account()->acceptServerPassword(newer));
        QVERIFY(account()->hasUnstoredPassword());
        settle();
    }
    core->takeCalls();
    keyring->calls.clear();
    if (event.endsWith(QLatin1String("without it")))
        keyring->secrets.clear();
    if (isReconnection)
        account()->reconnect();
    else
        core->connection()->requestFailed(KirvFailure::WrongPassword);
    settle();
    QVERIFY(isReconnection || keyring->calls.contains(QStringLiteral("read")));
    QCOMPARE(account()->getPassword(), newer);
    QCOMPARE(core->takeCalls(), isReconnection ? QStringList({ "id log out", logIn(newer) }) : QStringList());
    account()->beginSave(); // without any change
    QVERIFY(account()->endSave());
    settle();
    QVERIFY(!account()->hasUnstoredPassword());
    QCOMPARE(keyring->secrets.values(), QStringList(newer));
    restart(KirvSecretStore::Ready);
    QCOMPARE(account()->getPassword(), newer);
}

void tst_WaitingForSecrets::noLoginBeginsWithoutItsSecrets_data()
{
    QTest::addColumn<KirvConnection::State>("state");
    QTest::newRow("on line") << KirvConnection::Online;
    QTest::newRow("connecting") << KirvConnection::Connecting;
    QTest::newRow("waiting for the next attempt") << KirvConnection::Waiting;
    QTest::newRow("logging out and in") << KirvConnection::Disconnecting;
}

/// An account gets another password for a while, as by an import that is undone. What uses it ends.
void tst_WaitingForSecrets::noLoginBeginsWithoutItsSecrets()
{
    QFETCH(KirvConnection::State, state);
    keyring->outcome = KirvSecretStore::Refused;
    restart(KirvSecretStore::Locked);
    QVERIFY(account()->awaitsSecrets());
    KirvAccountBatch undo;
    undo.replaced << core->accounts->copyOf(account());
    KirvAccountBatch change = undo;
    change.replaced.first().record.password = newer;
    change.replaced.first().record.secretItems.clear();
    change.replaced.first().record.unreadSecrets.clear();
    core->server().logIn = state == KirvConnection::Connecting ? KirvFakeServer::Holds : KirvFakeServer::Accepts;
    core->server().logOut = state == KirvConnection::Disconnecting ? KirvFakeServer::Holds : KirvFakeServer::Accepts;
    QVERIFY(core->accounts->apply(change));
    settle();
    QCOMPARE(core->takeCalls(), QStringList(logIn(newer)));
    if (state == KirvConnection::Waiting)
        core->connection()->serverGoes();
    else if (state == KirvConnection::Disconnecting)
        account()->reconnect();
    settle();
    QCOMPARE(core->connection()->state(), state);
    core->takeCalls();

    QVERIFY(core->accounts->apply(undo));
    settle();
    if (state == KirvConnection::Disconnecting)
        core->connection()->serverAccepts();
    settle();
    core->accounts->networkChanged();
    settle();
    QCOMPARE(core->takeCalls().filter(QStringLiteral("log in")), QStringList());
    QVERIFY(account()->awaitsSecrets());
    QCOMPARE(core->connection()->state(), KirvConnection::Offline);
    core->server().logIn = core->server().logOut = KirvFakeServer::Accepts;
    keyring->outcome = KirvSecretStore::Done;
    keyring->setState(KirvSecretStore::Ready);
    settle();
    QCOMPARE(core->takeCalls(), QStringList(logIn(password)));
    QVERIFY(account()->isOnline());
}

void tst_WaitingForSecrets::aSessionGoesOnUntilItsSecretsAreRead()
{
    keyring->isHeld = true;
    account()->reconnect();
    settle();
    QVERIFY(account()->awaitsSecrets());
    QCOMPARE(core->takeCalls(), QStringList());
    QVERIFY(account()->isOnline());
    keyring->release();
    settle();
    QCOMPARE(core->takeCalls(), QStringList({ "id log out", logIn(password) }));
}

void tst_WaitingForSecrets::aPasswordThatIsNotWrittenYetIsUsed_data()
{
    QTest::addColumn<KirvSecretStore::State>("state");
    QTest::addColumn<bool>("isEnabled"); ///< again, in place of a reconnection
    QTest::newRow("refused, reconnect") << KirvSecretStore::Ready << false;
    QTest::newRow("refused, enable") << KirvSecretStore::Ready << true;
    QTest::newRow("locked, reconnect") << KirvSecretStore::Locked << false;
    QTest::newRow("locked, enable") << KirvSecretStore::Locked << true;
}

void tst_WaitingForSecrets::aPasswordThatIsNotWrittenYetIsUsed()
{
    QFETCH(KirvSecretStore::State, state);
    QFETCH(bool, isEnabled);
    keyring->outcome = KirvSecretStore::Refused;
    keyring->setState(state);
    account()->setPassword(newer);
    settle();
    if (isEnabled)
        account()->setEnabled(false);
    settle();
    core->takeCalls();
    if (isEnabled)
        account()->setEnabled(true);
    else
        account()->reconnect();
    settle();
    QVERIFY(!account()->awaitsSecrets());
    QCOMPARE(core->takeCalls().filter(QStringLiteral("log in")), QStringList(logIn(newer)));
    QVERIFY(account()->isOnline());
    keyring->outcome = KirvSecretStore::Done;
    keyring->setState(KirvSecretStore::Ready);
    settle();
    QCOMPARE(keyring->secrets.values(), QStringList(newer));
}

void tst_WaitingForSecrets::knownPasswordsAreUsedWhenTheKeyringCannotBeRead_data()
{
    QTest::addColumn<KirvSecretStore::State>("state");
    QTest::addColumn<KirvSecretStore::Outcome>("outcome");
    QTest::newRow("the user refuses") << KirvSecretStore::Locked << KirvSecretStore::Refused;
    QTest::newRow("it fails") << KirvSecretStore::Ready << KirvSecretStore::Failed;
    QTest::newRow("it does not respond") << KirvSecretStore::Silent << KirvSecretStore::TimedOut;
    QTest::newRow("it is gone") << KirvSecretStore::Unavailable << KirvSecretStore::Failed;
}

/// By all accounts, of which the keyring has refused one read.
void tst_WaitingForSecrets::knownPasswordsAreUsedWhenTheKeyringCannotBeRead()
{
    QFETCH(KirvSecretStore::State, state);
    QFETCH(KirvSecretStore::Outcome, outcome);
    const int count = 100;
    for (int number = 1; number < count; ++number)
        QVERIFY(core->create(QStringLiteral("id%1").arg(number)));
    KIRV_TRY_COMPARE(keyring->secrets.size(), count);
    settle();
    core->takeCalls();
    keyring->isHeld = true;
    const QList<KirvAccount *> all = core->accounts->accounts();
    for (KirvAccount *one : all)
        one->reconnect();
    settle();
    QCOMPARE(keyring->heldCount(), 1);
    QCOMPARE(awaiting(), count);
    QCOMPARE(core->takeCalls(), QStringList());

    int before = count, most = 0;
    QTimer turns; // times out once in each
    connect(&turns, &QTimer::timeout, this, [&] {
        most = qMax(most, before - awaiting());
        before = awaiting();
    });
    turns.start(0);
    keyring->outcome = outcome;
    keyring->isHeld = false;
    keyring->setState(state);
    keyring->release();
    KIRV_TRY_COMPARE(awaiting(), 0);
    KIRV_TRY_COMPARE(int(core->server().calls.filter(QStringLiteral("log in")).size()), count);
    for (const KirvAccount *one : all)
        QVERIFY(one->isOnline());
    QVERIFY2(most > 0 && most <= 22, QByteArray::number(most).constData());
}

/// Also by those accounts whose secrets would have been read next.
void tst_WaitingForSecrets::aPasswordForNowIsUsedWhenTheKeyringCannotBeRead()
{
    QVERIFY(core->create(QStringLiteral("other")));
    KIRV_TRY_COMPARE(keyring->secrets.size(), 2);
    keyring->outcome = KirvSecretStore::Refused;
    restart(KirvSecretStore::Locked);
    QCOMPARE(awaiting(), 2);
    const QList<KirvAccount *> all = core->accounts->accounts();
    for (KirvAccount *one : all)
        one->providePasswordForNow(newer);
    settle();
    QCOMPARE(awaiting(), 0);
    keyring->isHeld = true;
    keyring->setState(KirvSecretStore::Ready);
    for (KirvAccount *one : all)
        one->reconnect();
    settle();
    QCOMPARE(awaiting(), 2);
    core->takeCalls();
    keyring->outcome = KirvSecretStore::TimedOut;
    keyring->isHeld = false;
    keyring->release();
    settle();
    QCOMPARE(awaiting(), 0);
    const QStringList logIns = core->takeCalls().filter(QStringLiteral("log in"));
    QCOMPARE(int(logIns.size()), 2);
    QCOMPARE(int(logIns.filter(newer).size()), 2);
}

void tst_WaitingForSecrets::aPasswordThatIsNotRememberedAnyMoreIsNotAwaited()
{
    keyring->outcome = KirvSecretStore::Refused;
    restart(KirvSecretStore::Locked);
    QVERIFY(account()->awaitsSecrets());
    core->server().needsPassword = true;
    QSignalSpy requests(core->accounts.get(), &KirvAccountCollection::passwordNeeded);
    QVERIFY(account()->change([](KirvAccountRecord &record) { record.rememberPassword = false; }));
    settle();
    QVERIFY(!account()->awaitsSecrets());
    QVERIFY(account()->record().unreadSecrets.isEmpty());
    QCOMPARE(requests.size(), 1);
    keyring->outcome = KirvSecretStore::Done;
    keyring->setState(KirvSecretStore::Ready);
    settle();
    QVERIFY(keyring->secrets.isEmpty());
    QVERIFY(account()->getPassword().isEmpty());
}

void tst_WaitingForSecrets::aLostConnectionUsesWhatTheKeyringHoldsNow_data()
{
    QTest::addColumn<QString>("held");
    QTest::addColumn<QStringList>("logIns"); ///< before the time of the connection's own attempt
    QTest::addColumn<int>("requests");
    QTest::newRow("the same") << password << QStringList() << 0;
    QTest::newRow("changed by another program") << newer << QStringList(logIn(newer)) << 0;
    QTest::newRow("deleted by another program") << QString() << QStringList(logIn(QString())) << 1;
}

/// Also where nobody requests the log-in: the connection tries again by itself.
void tst_WaitingForSecrets::aLostConnectionUsesWhatTheKeyringHoldsNow()
{
    QFETCH(QString, held);
    QFETCH(QStringList, logIns);
    QFETCH(int, requests);
    core->server().needsPassword = true;
    QSignalSpy asked(core->accounts.get(), &KirvAccountCollection::passwordNeeded);
    if (held.isEmpty())
        keyring->secrets.clear();
    else
        keyring->secrets.first() = held;
    keyring->calls.clear();
    core->connection()->serverGoes();
    settle();
    QCOMPARE(keyring->calls, QStringList("read"));
    QCOMPARE(core->takeCalls().filter(QStringLiteral("log in")), logIns);
    QCOMPARE(int(asked.size()), requests);
    QCOMPARE(account()->getPassword(), held);
    QVERIFY(!account()->awaitsSecrets());
}

void tst_WaitingForSecrets::aLostConnectionDoesNotAskToUnlockTheKeyring_data()
{
    QTest::addColumn<KirvSecretStore::State>("state");
    QTest::addColumn<KirvSecretStore::Outcome>("outcome"); ///< of a read before
    QTest::newRow("locked") << KirvSecretStore::Locked << KirvSecretStore::Done;
    QTest::newRow("refused before") << KirvSecretStore::Ready << KirvSecretStore::Refused;
    QTest::newRow("silent") << KirvSecretStore::Silent << KirvSecretStore::Done;
    QTest::newRow("gone") << KirvSecretStore::Unavailable << KirvSecretStore::Done;
}

/// What is known is used.
void tst_WaitingForSecrets::aLostConnectionDoesNotAskToUnlockTheKeyring()
{
    QFETCH(KirvSecretStore::State, state);
    QFETCH(KirvSecretStore::Outcome, outcome);
    keyring->setState(state);
    keyring->outcome = outcome;
    if (outcome != KirvSecretStore::Done)
        account()->reconnect();
    settle();
    keyring->calls.clear();
    core->takeCalls();
    core->connection()->serverGoes();
    settle();
    QCOMPARE(keyring->calls, QStringList());
    QCOMPARE(account()->getPassword(), password);
    QCOMPARE(core->connection()->state(), KirvConnection::Waiting);
    QVERIFY(!account()->awaitsSecrets());
}

QTEST_MAIN(tst_WaitingForSecrets)
#include "tst_waiting_for_secrets.moc"
