// SPDX-License-Identifier: LGPL-2.1-or-later
// Accounts that have their turns to log in.
#include "tests/integration/kirv_accounts_fixture.h"
#include "tests/support/kirv_patience.h"

#include <QPointer>
#include <QTimer>
#include <QtTest>
#include <utility>

using State = KirvConnection::State;

class tst_LoginTurns : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void aHundredAccountsStartOneByOne();
    void aTurnOfTheEventLoopBringsAFewAccountsOnTheirWay();
    void onlyAFewAttemptsAreInProgress();
    void theMainAccountIsFirst();
    void theMainAccountIsFirstWhenAllReturn();
    void theOthersLogInInOrder();
    void anAccountThatFailsDoesNotOvertake();
    void attemptsThatHangDoNotBlockTheOthers();

    // Accounts that wait, and what happens to them meanwhile.
    void aWaitingAccountIsNeitherOnlineNorConnecting();
    void aWaitThatIsOverBecomesAWaitForATurn();
    void unloadingTheProtocolEndsAllWaits();
    void aRemovedAccountDoesNotLogIn();
    void aDisabledAccountDoesNotLogIn();
    void quittingEndsAllWaits();
    void aSaveThatIsOpenDelaysNoTurn();

    // Another network.
    void allReturnInTurnsWhenTheNetworkIsBack();
    void sessionsAreCheckedAFewInATurn();
    void aChangeOfTheNetworkLeavesOthersAlone();

    // What does not wait.
    void loggingOutIsNotDelayed();
    void reconnectingIsNotDelayed_data();
    void reconnectingIsNotDelayed();
    void aPresenceIsNotDelayed();
    void aNewAccountIsNotDelayed();
    void aPublicationFollowsTheTurn();

private:
    void start(int count, int patience = 60000);
    static void settle();
    KirvFakeConnection *connection(int number) const { return core->connection(id(number)); }
    KirvAccount *account(int number) const { return core->account(id(number)); }
    static QString id(int number) { return QStringLiteral("%1").arg(number, 3, 10, QLatin1Char('0')); }
    QStringList started();
    static QStringList ids(const QList<int> &numbers);
    void setLimits(int attempts, int patience);

    std::unique_ptr<KirvAccountsFixture> core;
    int mainAccount = -1; ///< of the accounts that start() starts with
};

void tst_LoginTurns::init()
{
    mainAccount = -1;
    core = std::make_unique<KirvAccountsFixture>();
    QVERIFY(core->isReady());
}

void tst_LoginTurns::cleanup()
{
    core.reset();
}

void tst_LoginTurns::setLimits(int attempts, int patience)
{
    KirvLoginQueue::Limits limits;
    limits.attempts = limits.urgentAttempts = attempts;
    limits.countedFor = patience;
    core->accounts->loginQueue().setLimits(limits);
}

/// Starts the core with \a count accounts, three of which log in at once; the server holds their log-ins. An attempt
/// does not count any more after \a patience milliseconds.
void tst_LoginTurns::start(int count, int patience)
{
    for (int number = 0; number < count; ++number)
        QVERIFY(core->create(id(number)));
    settle();
    core->server().logIn = KirvFakeServer::Holds;
    core->restart(true, [this, patience] {
        setLimits(3, patience);
        if (mainAccount >= 0)
            core->manager().setMainAccount(account(mainAccount));
    });
    core->server().calls.clear();
    QCOMPARE(core->accounts->accounts().size(), count);
}

/// More turns of the event loop than log-ins can start.
void tst_LoginTurns::settle()
{
    for (int turn = 0; turn < 60; ++turn)
        KirvAccountsFixture::settle();
}

/// The accounts that have started to log in since the last call.
QStringList tst_LoginTurns::started()
{
    settle();
    QStringList result;
    for (const QString &call : core->server().takeCalls().filter(QStringLiteral(" log in")))
        result << call.section(' ', 0, 0);
    return result;
}

QStringList tst_LoginTurns::ids(const QList<int> &numbers)
{
    QStringList result;
    for (const int number : numbers)
        result << id(number);
    return result;
}

void tst_LoginTurns::aHundredAccountsStartOneByOne()
{
    const int count = 100;
    start(count);
    core->server().logIn = KirvFakeServer::Accepts;
    int turn = 0;
    int logIns = 0;
    int most = 0;
    QTimer turns;
    connect(&turns, &QTimer::timeout, this, [&] {
        ++turn;
        const int begun = int(core->server().takeCalls().filter(QStringLiteral(" log in")).size());
        logIns += begun;
        most = qMax(most, begun);
    });
    turns.start(0);
    KIRV_TRY_COMPARE(logIns, count);
    // Before this timer's turn one log-in may have been started and after the last one another.
    QVERIFY2(most <= 2, qPrintable(QString::number(most)));
    QVERIFY(turn >= count / 2);
    for (int number = 0; number < count; ++number)
        QVERIFY(account(number)->isOnline());
}

/// However many are enabled at the start.
void tst_LoginTurns::aTurnOfTheEventLoopBringsAFewAccountsOnTheirWay()
{
    const int count = 200;
    start(count);
    int begun = 0, begunInTurn = 0, most = 0;
    QObject context; // of the slots
    for (int number = 0; number < count; ++number)
        connect(connection(number), &KirvConnection::stateChanged, &context, [&](State state) {
            begun += state == State::Waiting ? 1 : 0;
            begunInTurn += state == State::Waiting ? 1 : 0;
        });
    QTimer turns; // times out once in each
    connect(&turns, &QTimer::timeout, this, [&] { most = qMax(most, std::exchange(begunInTurn, 0)); });
    turns.start(0);
    KIRV_TRY(begun >= count - 1); // the first one starts without a wait
    most = qMax(most, begunInTurn);
    QVERIFY2(most > 0 && most <= 2 * KirvReconcilerQueue::perTurn, QByteArray::number(most).constData());
}

void tst_LoginTurns::onlyAFewAttemptsAreInProgress()
{
    start(50);
    QCOMPARE(started().size(), 3);
    for (int number = 0; number < 47; ++number) {
        connection(number)->serverAccepts();
        QCOMPARE(started(), QStringList { id(number + 3) });
        QCOMPARE(core->accounts->loginQueue().attemptCount(), 3);
    }
}

void tst_LoginTurns::theMainAccountIsFirst()
{
    mainAccount = 40;
    start(50);
    QCOMPARE(started(), ids({ 40, 0, 1 }));
}

void tst_LoginTurns::theMainAccountIsFirstWhenAllReturn()
{
    mainAccount = 7;
    start(10);
    core->server().logIn = KirvFakeServer::Accepts;
    for (const QString &held : started())
        core->connection(held)->serverAccepts();
    started();
    core->server().logIn = KirvFakeServer::Holds;
    setLimits(1, 60000);
    for (int number = 0; number < 10; ++number) {
        KirvConnection::Timing timing;
        timing.backOff.first = number == 0 ? 1 : 20;
        timing.backOff.jitter = 0;
        connection(number)->setTiming(timing);
        QVERIFY(account(number)->isOnline());
        connection(number)->serverGoes();
    }
    KIRV_TRY_COMPARE(core->accounts->loginQueue().waitingCount(), 9);
    QCOMPARE(started(), ids({ 0 })); // it was back before the others
    connection(0)->serverAccepts();
    QCOMPARE(started(), ids({ 7 }));
}

void tst_LoginTurns::theOthersLogInInOrder()
{
    start(20);
    QStringList all = started();
    while (all.size() < 20) {
        core->connection(all.at(all.size() - 3))->serverAccepts();
        all << started();
    }
    QStringList expected;
    for (int number = 0; number < 20; ++number)
        expected << id(number);
    QCOMPARE(all, expected);
}

void tst_LoginTurns::anAccountThatFailsDoesNotOvertake()
{
    start(6);
    QCOMPARE(started(), ids({ 0, 1, 2 }));
    KirvConnection::Timing timing;
    timing.backOff.first = 1;
    connection(0)->setTiming(timing);
    setLimits(2, 60000); // of which two are taken
    connection(0)->serverGoes();
    KIRV_TRY(connection(0)->isWaitingForTurn());
    connection(1)->serverAccepts();
    QCOMPARE(started(), ids({ 3 }));
    connection(2)->serverAccepts();
    QCOMPARE(started(), ids({ 4 }));
    connection(3)->serverAccepts();
    connection(4)->serverAccepts();
    QCOMPARE(started(), ids({ 5, 0 }));
}

void tst_LoginTurns::attemptsThatHangDoNotBlockTheOthers()
{
    start(12, 20);
    KIRV_TRY_COMPARE(connection(2)->state(), State::Connecting);
    KIRV_TRY_COMPARE(connection(11)->state(), State::Connecting);
    QCOMPARE(connection(0)->state(), State::Connecting);
    KIRV_TRY_COMPARE(core->accounts->loginQueue().attemptCount(), 0);
    connection(0)->serverAccepts();
    QVERIFY(account(0)->isOnline());
}

void tst_LoginTurns::aWaitingAccountIsNeitherOnlineNorConnecting()
{
    start(5);
    started();
    QCOMPARE(connection(4)->state(), State::Waiting);
    QVERIFY(connection(4)->isWaitingForTurn());
    QVERIFY(!connection(4)->lastFailure().isFailure());
    QVERIFY(!account(4)->isOnline());
    QCOMPARE(connection(2)->state(), State::Connecting);
    QVERIFY(!connection(2)->isWaitingForTurn());
}

void tst_LoginTurns::aWaitThatIsOverBecomesAWaitForATurn()
{
    start(5);
    started();
    KirvConnection::Timing timing;
    timing.backOff.first = 10;
    connection(0)->setTiming(timing);
    connection(0)->serverGoes();
    QVERIFY(connection(0)->nextRetry().isValid());
    QVERIFY(!connection(0)->isWaitingForTurn());
    int changes = 0;
    connect(account(0), &KirvAccount::changed, this, [&] { ++changes; });
    KIRV_TRY(connection(0)->isWaitingForTurn());
    QVERIFY(!connection(0)->nextRetry().isValid());
    QCOMPARE(changes, 1);
}

void tst_LoginTurns::unloadingTheProtocolEndsAllWaits()
{
    start(20);
    started();
    core->accounts->protocolAboutToBeUnloaded(core->fake);
    QCOMPARE(core->server().connections, 0);
    QCOMPARE(core->accounts->loginQueue().waitingCount(), 0);
    QCOMPARE(core->accounts->loginQueue().attemptCount(), 0);
    QCOMPARE(started(), QStringList());
    core->accounts->protocolLoaded(core->protocol.get());
    QCOMPARE(started(), ids({ 0, 1, 2 }));
}

void tst_LoginTurns::aRemovedAccountDoesNotLogIn()
{
    start(6);
    started();
    const QPointer<KirvAccount> removed(account(3));
    core->manager().removeAccount(id(3), core->fake);
    connection(0)->serverAccepts(); // before the account has left
    connection(1)->serverAccepts();
    QCOMPARE(started(), ids({ 4, 5 }));
    KIRV_TRY(!removed);
    QCOMPARE(core->accounts->loginQueue().waitingCount(), 0);
}

void tst_LoginTurns::aDisabledAccountDoesNotLogIn()
{
    start(6);
    started();
    account(3)->setEnabled(false);
    settle();
    QCOMPARE(connection(3)->state(), State::Offline);
    connection(0)->serverAccepts();
    QCOMPARE(started(), ids({ 4 }));
    account(3)->setEnabled(true);
    QCOMPARE(started(), ids({ 3 }));
}

void tst_LoginTurns::quittingEndsAllWaits()
{
    start(20);
    started();
    core->accounts->logOutAll(3000);
    QCOMPARE(core->accounts->loginQueue().waitingCount(), 0);
    for (int number = 0; number < 20; ++number)
        QCOMPARE(connection(number)->state(), State::Offline);
    QCOMPARE(started(), QStringList());
}

void tst_LoginTurns::aSaveThatIsOpenDelaysNoTurn()
{
    start(5);
    started();
    account(3)->beginSave();
    account(3)->setPassword("new");
    connection(0)->serverAccepts();
    connection(1)->serverAccepts();
    QCOMPARE(started(), ids({ 3, 4 }));
    QCOMPARE(connection(3)->login().password, QString("word of 003")); // what is stored
    QVERIFY(account(3)->endSave());
    QVERIFY(connection(3)->login().password != QString("new"));
    started();
    QCOMPARE(connection(3)->login().password, QString("new"));
}

void tst_LoginTurns::allReturnInTurnsWhenTheNetworkIsBack()
{
    const int count = 100;
    start(count);
    KirvConnection::Timing timing;
    timing.backOff.first = timing.backOff.last = 3600 * 1000;
    for (int number = 0; number < count; ++number)
        connection(number)->setTiming(timing);
    for (int tries = 0; tries < count && !started().isEmpty(); ++tries) {
        for (int number = 0; number < count; ++number)
            connection(number)->serverGoes();
    }
    for (int number = 0; number < count; ++number) {
        QCOMPARE(connection(number)->state(), State::Waiting);
        QVERIFY(connection(number)->nextRetry().isValid());
    }
    core->accounts->networkChanged();
    QCOMPARE(started().size(), 3); // the server holds them
    QCOMPARE(core->accounts->loginQueue().waitingCount(), count - 3);

    core->server().logIn = KirvFakeServer::Accepts;
    for (int number = 0; number < count; ++number)
        connection(number)->serverAccepts();
    KIRV_TRY_COMPARE(core->accounts->loginQueue().waitingCount(), 0);
    for (int number = 0; number < count; ++number)
        QVERIFY(account(number)->isOnline());
    core->server().takeCalls();
}

void tst_LoginTurns::sessionsAreCheckedAFewInATurn()
{
    const int count = 3 * KirvAccountCollection::accountsPerTurn;
    start(count);
    core->server().logIn = KirvFakeServer::Accepts;
    for (int number = 0; number < count; ++number)
        connection(number)->serverAccepts();
    settle();
    core->server().takeCalls();
    core->accounts->networkChanged();
    core->accounts->networkChanged(); // is one
    int checks = 0, most = 0;
    QTimer turns;
    connect(&turns, &QTimer::timeout, this, [&] {
        const int begun = int(core->server().takeCalls().filter(QStringLiteral(" check ")).size());
        checks += begun;
        most = qMax(most, begun);
    });
    turns.start(0);
    KIRV_TRY_COMPARE(checks, count);
    QVERIFY2(most <= 2 * KirvAccountCollection::accountsPerTurn, qPrintable(QString::number(most)));
}

void tst_LoginTurns::aChangeOfTheNetworkLeavesOthersAlone()
{
    start(3);
    QVERIFY(account(0)->setEnabled(false));
    core->server().refusal = KirvFailure::WrongPassword;
    settle();
    connection(1)->serverRefuses();
    const QPointer<KirvAccount> removed(account(2));
    QVERIFY(core->accounts->remove(removed));
    settle();
    core->server().takeCalls();
    core->accounts->networkChanged();
    settle();
    QCOMPARE(core->server().takeCalls(), QStringList());
    QCOMPARE(connection(0)->state(), State::Offline);
    QCOMPARE(connection(1)->state(), State::Offline); // a wrong password stays wrong
}

void tst_LoginTurns::loggingOutIsNotDelayed()
{
    start(20);
    started();
    connection(0)->serverAccepts();
    started();
    core->setPresence("offline", id(0)); // on line
    core->setPresence("offline", id(1)); // an attempt
    core->setPresence("offline", id(15)); // waits
    KirvAccountsFixture::settle();
    for (const int number : { 0, 1, 15 })
        QCOMPARE(connection(number)->state(), State::Offline);
}

void tst_LoginTurns::reconnectingIsNotDelayed_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("on line") << 0;
    QTest::newRow("an attempt") << 1;
    QTest::newRow("waits for its turn") << 15;
}

void tst_LoginTurns::reconnectingIsNotDelayed()
{
    QFETCH(int, number);
    start(20);
    started();
    connection(0)->serverAccepts();
    started();
    account(number)->reconnect();
    QCOMPARE(started().value(0), id(number));
    QCOMPARE(connection(number)->state(), State::Connecting);
    QVERIFY(core->accounts->loginQueue().waitingCount() >= 15);
}

void tst_LoginTurns::aPresenceIsNotDelayed()
{
    start(20);
    started();
    connection(0)->serverAccepts();
    started();
    core->setPresence("away", id(0));
    KirvAccountsFixture::settle();
    QCOMPARE(core->server().takeCalls(), QStringList { id(0) + " presence away" });
    core->setPresence("away", id(15)); // picked by the user for an account that waits
    QCOMPARE(started(), ids({ 15 }));
    QCOMPARE(connection(15)->presence().getId(), QString("away"));
}

void tst_LoginTurns::aNewAccountIsNotDelayed()
{
    start(20);
    started();
    QVERIFY(core->create("new"));
    QCOMPARE(started(), QStringList { "new" });
}

/// A session that is left to use new settings comes back behind urgent ones; what is to be published waits for it.
void tst_LoginTurns::aPublicationFollowsTheTurn()
{
    start(4);
    for (int number = 0; number < 3; ++number) {
        settle();
        connection(number)->serverAccepts();
    }
    started();
    connection(3)->serverAccepts();
    setLimits(1, 60000);
    account(0)->directory().fetch();
    settle();
    account(1)->reconnect(); // takes the one place
    started();
    account(0)->beginSave();
    account(0)->setPassword("new");
    QList<KirvField> entry = core->protocol->directory;
    entry[0].setText("Ann");
    account(0)->directory().publish(entry);
    QVERIFY(account(0)->endSave());
    settle();
    QVERIFY(connection(0)->isWaitingForTurn());
    QVERIFY(core->server().takeCalls().filter("publish").isEmpty());
    connection(1)->serverAccepts();
    settle();
    connection(0)->serverAccepts();
    settle();
    QCOMPARE(core->server().takeCalls().filter("publish"), QStringList { id(0) + " publish name" });
}

QTEST_MAIN(tst_LoginTurns)
#include "tst_login_turns.moc"
