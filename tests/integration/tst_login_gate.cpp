// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/fakes/kirv_fake_clock.h"
#include "tests/support/fakes/kirv_fake_connection.h"

#include <QSignalSpy>
#include <QtTest>
#include <set>

using State = KirvConnection::State;

namespace {

const KirvPresence available(QStringLiteral("available"), QStringLiteral("Available"), QString());
const KirvLogin login { QStringLiteral("ann"), QStringLiteral("secret"), {} };

} // namespace

/// Connections that wait for their turn to log in, and chance in their waits.
class tst_LoginGate : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void anOpenGateChangesNothing();
    void aClosedGateMakesTheLogInWait();
    void theTurnStartsTheLogIn();
    void anAttemptThatIsDueWaitsForItsTurn();
    void aLogInAfterALogOutWaitsForItsTurn();
    void anAttemptThatIsReplacedWaitsForItsTurn();
    void theLatestLoginIsUsed();
    void whatIsGivenUpHasNoTurn();
    void theTimeOutBeginsWithTheTurn();
    void aTurnThatNobodyAwaitsDoesNothing_data();
    void aTurnThatNobodyAwaitsDoesNothing();
    void chanceSpreadsTheReturnOfManyConnections();

private:
    KirvFakeClock clock;
    std::unique_ptr<KirvFakeConnection> connection;
    bool isOpen = false;
    int knocks = 0;
};

void tst_LoginGate::init()
{
    qRegisterMetaType<KirvConnection::State>("KirvConnection::State");
    const auto server = std::make_shared<KirvFakeServer>();
    server->logIn = server->logOut = KirvFakeServer::Holds;
    connection = std::make_unique<KirvFakeConnection>(server, clock);
    KirvConnection::Timing timing;
    timing.backOff.jitter = 0;
    connection->setTiming(timing);
    isOpen = false;
    knocks = 0;
    connection->setLoginGate([this] {
        ++knocks;
        return isOpen;
    });
}

void tst_LoginGate::cleanup()
{
    connection.reset();
}

void tst_LoginGate::anOpenGateChangesNothing()
{
    isOpen = true;
    connection->logIn(login, available);
    QCOMPARE(knocks, 1);
    QCOMPARE(connection->state(), State::Connecting);
    QCOMPARE(connection->takeCalls(), QStringList { "ann log in available secret" });
}

void tst_LoginGate::aClosedGateMakesTheLogInWait()
{
    connection->logIn(login, available);
    QCOMPARE(knocks, 1);
    QCOMPARE(connection->state(), State::Waiting);
    QVERIFY(connection->isWaitingForTurn());
    QVERIFY(!connection->nextRetry().isValid());
    QVERIFY(!connection->lastFailure().isFailure());
    clock.advance(1000000);
    QCOMPARE(connection->takeCalls(), QStringList());
    QCOMPARE(knocks, 1);
}

void tst_LoginGate::theTurnStartsTheLogIn()
{
    connection->logIn(login, available);
    connection->beginLogin();
    QCOMPARE(knocks, 1);
    QCOMPARE(connection->state(), State::Connecting);
    QVERIFY(!connection->isWaitingForTurn());
    QCOMPARE(connection->takeCalls(), QStringList { "ann log in available secret" });
    connection->serverAccepts();
    QCOMPARE(connection->state(), State::Online);
}

void tst_LoginGate::anAttemptThatIsDueWaitsForItsTurn()
{
    connection->logIn(login, available);
    connection->beginLogin();
    connection->serverGoes();
    connection->takeCalls();
    QVERIFY(!connection->isWaitingForTurn());
    QSignalSpy awaited(connection.get(), &KirvConnection::turnAwaited);
    QSignalSpy changed(connection.get(), &KirvConnection::stateChanged);
    clock.advance(2000);
    QCOMPARE(connection->state(), State::Waiting);
    QVERIFY(connection->isWaitingForTurn());
    QVERIFY(!connection->nextRetry().isValid());
    QVERIFY(connection->lastFailure().isFailure());
    QCOMPARE(awaited.size(), 1);
    QCOMPARE(changed.size(), 0);
    QCOMPARE(connection->takeCalls(), QStringList());
    connection->beginLogin();
    QCOMPARE(connection->takeCalls(), QStringList { "ann log in available secret" });
    connection->serverGoes(); // and the next wait is longer
    QCOMPARE(clock.now().msecsTo(connection->nextRetry()), 4000);
}

void tst_LoginGate::aLogInAfterALogOutWaitsForItsTurn()
{
    connection->logIn(login, available);
    connection->beginLogin();
    connection->serverAccepts();
    connection->logIn({ "ann", "other", {} }, available);
    QVERIFY(connection->willLogInAgain());
    connection->takeCalls();
    connection->serverAccepts();
    QVERIFY(connection->isWaitingForTurn());
    QVERIFY(!connection->willLogInAgain());
    connection->beginLogin();
    QCOMPARE(connection->takeCalls(), QStringList { "ann log in available other" });
}

void tst_LoginGate::anAttemptThatIsReplacedWaitsForItsTurn()
{
    connection->logIn(login, available);
    connection->beginLogin();
    connection->logIn({ "ann", "other", {} }, available);
    QVERIFY(connection->isWaitingForTurn());
    QCOMPARE(connection->takeCalls(), (QStringList { "ann log in available secret", "ann abort" }));
    connection->serverAccepts(); // too late
    QVERIFY(connection->isWaitingForTurn());
}

void tst_LoginGate::theLatestLoginIsUsed()
{
    connection->logIn(login, available);
    connection->logIn({ "ann", "other", {} }, KirvPresence("away", "Away", QString()));
    connection->changePresence(KirvPresence("chat", "Chat", QString()));
    QCOMPARE(knocks, 2);
    connection->beginLogin();
    QCOMPARE(connection->takeCalls(), QStringList { "ann log in chat other" });
}

void tst_LoginGate::whatIsGivenUpHasNoTurn()
{
    connection->logIn(login, available);
    connection->logOut();
    QCOMPARE(connection->state(), State::Offline);
    QVERIFY(!connection->isWaitingForTurn());
    connection->takeCalls();
    connection->beginLogin();
    QCOMPARE(connection->takeCalls(), QStringList());
}

void tst_LoginGate::theTimeOutBeginsWithTheTurn()
{
    connection->logIn(login, available);
    clock.advance(29000);
    connection->beginLogin();
    clock.advance(29000);
    QCOMPARE(connection->state(), State::Connecting);
    clock.advance(1000);
    QCOMPARE(connection->state(), State::Waiting);
    QCOMPARE(connection->lastFailure().kind(), KirvFailure::TimedOut);
}

void tst_LoginGate::aTurnThatNobodyAwaitsDoesNothing_data()
{
    QTest::addColumn<State>("state");
    QTest::newRow("Offline") << State::Offline;
    QTest::newRow("Connecting") << State::Connecting;
    QTest::newRow("Online") << State::Online;
    QTest::newRow("Disconnecting") << State::Disconnecting;
    QTest::newRow("Waiting") << State::Waiting;
}

void tst_LoginGate::aTurnThatNobodyAwaitsDoesNothing()
{
    QFETCH(State, state);
    isOpen = true;
    if (state != State::Offline)
        connection->logIn(login, available);
    if (state == State::Online || state == State::Disconnecting)
        connection->serverAccepts();
    if (state == State::Disconnecting)
        connection->logOut();
    if (state == State::Waiting)
        connection->serverGoes();
    QCOMPARE(connection->state(), state);
    connection->takeCalls();
    connection->beginLogin();
    QCOMPARE(connection->state(), state);
    QCOMPARE(connection->takeCalls(), QStringList());
}

void tst_LoginGate::chanceSpreadsTheReturnOfManyConnections()
{
    const int count = 9;
    std::set<qint64> waits;
    for (int number = 0; number < count; ++number) {
        KirvFakeConnection each(std::make_shared<KirvFakeServer>(), clock);
        each.setRandomSource([number] { return double(number) / (count - 1); });
        each.logIn(login, available);
        QCOMPARE(each.state(), State::Online);
        each.serverGoes();
        waits.insert(clock.now().msecsTo(each.nextRetry()));
    }
    QCOMPARE(waits, (std::set<qint64> { 1600, 1700, 1800, 1900, 2000, 2100, 2200, 2300, 2400 }));
}

QTEST_GUILESS_MAIN(tst_LoginGate)
#include "tst_login_gate.moc"
