// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_account_batch.h"
#include "tests/integration/kirv_accounts_fixture.h"
#include "tests/support/fakes/kirv_fake_secret_store.h"
#include "tests/support/store_refusal.h"

#include <QtTest>
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

private:
    void settle();
    void restart(KirvSecretStore::State state);
    KirvAccount *account() const { return core->account(); }

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

QTEST_MAIN(tst_WaitingForSecrets)
#include "tst_waiting_for_secrets.moc"
