// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_login_queue.h"

#include "tests/support/fakes/kirv_fake_clock.h"
#include "tests/support/fakes/kirv_fake_connection.h"
#include "tests/support/kirv_patience.h"

#include <QtTest>
#include <memory>
#include <vector>

using State = KirvConnection::State;

class tst_LoginQueue : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    // How much at once.
    void atMostOneLogInStartsInATurnOfTheEventLoop();
    void onlyAFewAttemptsAreInProgress();
    void aFailedAttemptMakesRoom();
    void anAttemptThatHangsDoesNotCountForLong();
    void anAttemptThatIsReplacedCountsOnce();

    // In which order.
    void theFirstRequestIsServedFirst();
    void theMainAccountComesFirst();
    void anUrgentLogInHasAPlaceOfItsOwn();
    void urgentLogInsAreBoundedToo();
    void aRequestThatIsRepeatedKeepsItsPlace();
    void aRequestThatBecomesUrgentMovesForward();

    // What leaves.
    void whatIsNotWantedAnyMoreLeaves();
    void whatIsDestroyedLeaves();
    void anAttemptThatIsDestroyedMakesRoom();

private:
    KirvFakeConnection &connection(int number) { return *connections[size_t(number)]; }
    void create(int count);
    void logIn(int number, KirvLoginQueue::Priority priority = KirvLoginQueue::Ordinary);
    static void settle();
    /// The numbers of the connections that have started to log in since the last call.
    QList<int> started();

    KirvFakeClock clock;
    std::shared_ptr<KirvFakeServer> server;
    std::unique_ptr<KirvLoginQueue> queue;
    std::vector<std::unique_ptr<KirvFakeConnection>> connections;
    QList<KirvLoginQueue::Priority> priorities; ///< of the connections
};

void tst_LoginQueue::init()
{
    server = std::make_shared<KirvFakeServer>();
    server->logIn = KirvFakeServer::Holds;
    queue = std::make_unique<KirvLoginQueue>(clock);
    KirvLoginQueue::Limits limits;
    limits.attempts = 3;
    limits.urgentAttempts = 2;
    limits.countedFor = 3000;
    queue->setLimits(limits);
}

void tst_LoginQueue::cleanup()
{
    connections.clear();
    priorities.clear();
    queue.reset();
}

void tst_LoginQueue::create(int count)
{
    for (int number = 0; number < count; ++number) {
        connections.push_back(std::make_unique<KirvFakeConnection>(server, clock));
        priorities << KirvLoginQueue::Ordinary;
        KirvFakeConnection *created = connections.back().get();
        created->setLoginGate([this, created, number] { return queue->request(*created, priorities.at(number)); });
    }
}

void tst_LoginQueue::logIn(int number, KirvLoginQueue::Priority priority)
{
    priorities[number] = priority;
    KirvLogin login;
    login.id = QString::number(number);
    connection(number).logIn(login, KirvPresence("available", "Available", QString()));
}

/// More turns of the event loop than there are connections.
void tst_LoginQueue::settle()
{
    for (int turn = 0; turn < 100; ++turn)
        QCoreApplication::processEvents();
}

QList<int> tst_LoginQueue::started()
{
    settle();
    QList<int> numbers;
    for (const QString &call : server->takeCalls().filter(" log in"))
        numbers << call.section(' ', 0, 0).toInt();
    return numbers;
}

void tst_LoginQueue::atMostOneLogInStartsInATurnOfTheEventLoop()
{
    const int count = 40;
    create(count);
    int turn = 0;
    QTimer turns;
    connect(&turns, &QTimer::timeout, this, [&] { ++turn; });
    turns.start(0);
    QList<int> turnsOfLogIns;
    for (int number = 0; number < count; ++number) {
        KirvFakeConnection &each = connection(number);
        each.onLogIn = [&] {
            turnsOfLogIns << turn;
            each.loginSucceeded(); // at once: the places do not bound it
        };
    }
    for (int number = 0; number < count; ++number)
        logIn(number);
    QCOMPARE(turnsOfLogIns.size(), 1);
    KIRV_TRY_COMPARE(turnsOfLogIns.size(), count);
    for (int i = 2; i < count; ++i) // the first one was in no turn
        QVERIFY2(turnsOfLogIns.at(i) > turnsOfLogIns.at(i - 1), qPrintable(QString::number(i)));
}

void tst_LoginQueue::onlyAFewAttemptsAreInProgress()
{
    create(10);
    for (int number = 0; number < 10; ++number)
        logIn(number);
    QCOMPARE(started(), (QList<int> { 0, 1, 2 }));
    QCOMPARE(queue->attemptCount(), 3);
    QCOMPARE(queue->waitingCount(), 7);
    QCOMPARE(connection(3).state(), State::Waiting);
    QVERIFY(connection(3).isWaitingForTurn());
    QVERIFY(!connection(3).nextRetry().isValid());
    connection(1).serverAccepts();
    QCOMPARE(started(), QList<int> { 3 });
    QVERIFY(!connection(3).isWaitingForTurn());
    QCOMPARE(queue->attemptCount(), 3);
}

void tst_LoginQueue::aFailedAttemptMakesRoom()
{
    create(5);
    for (int number = 0; number < 5; ++number)
        logIn(number);
    started();
    connection(0).serverRefuses(); // for good
    QCOMPARE(started(), QList<int> { 3 });
    connection(1).serverGoes(); // it waits and tries again
    QCOMPARE(connection(1).state(), State::Waiting);
    QVERIFY(!connection(1).isWaitingForTurn());
    QCOMPARE(started(), QList<int> { 4 });
}

void tst_LoginQueue::anAttemptThatHangsDoesNotCountForLong()
{
    create(8);
    for (int number = 0; number < 8; ++number)
        logIn(number);
    QCOMPARE(started(), (QList<int> { 0, 1, 2 }));
    clock.advance(2999);
    QCOMPARE(started(), QList<int>());
    clock.advance(1);
    QCOMPARE(started(), (QList<int> { 3, 4, 5 }));
    QCOMPARE(connection(0).state(), State::Connecting); // and may still succeed
    connection(0).serverAccepts();
    QCOMPARE(connection(0).state(), State::Online);
    QCOMPARE(started(), QList<int>()); // its place was given away before
    clock.advance(3000);
    QCOMPARE(started(), (QList<int> { 6, 7 }));
}

void tst_LoginQueue::anAttemptThatIsReplacedCountsOnce()
{
    create(5);
    for (int number = 0; number < 5; ++number)
        logIn(number);
    started();
    logIn(1); // another login, say
    QCOMPARE(connection(1).state(), State::Waiting);
    QCOMPARE(started(), QList<int> { 3 }); // which waited longer
    QCOMPARE(queue->attemptCount(), 3);
    connection(0).serverAccepts();
    connection(2).serverAccepts();
    QCOMPARE(started(), (QList<int> { 4, 1 }));
}

void tst_LoginQueue::theFirstRequestIsServedFirst()
{
    create(9);
    const QList<int> order { 4, 0, 8, 2, 7, 1, 3, 6, 5 };
    for (const int number : order)
        logIn(number);
    QList<int> all = started();
    while (all.size() < order.size()) {
        connection(all.at(all.size() - 3)).serverAccepts();
        all << started();
    }
    QCOMPARE(all, order);
}

void tst_LoginQueue::theMainAccountComesFirst()
{
    create(8);
    queue->setMainConnection([this] { return &connection(6); });
    for (int number = 0; number < 8; ++number)
        logIn(number);
    QCOMPARE(started(), (QList<int> { 0, 6, 1 }));
}

void tst_LoginQueue::anUrgentLogInHasAPlaceOfItsOwn()
{
    create(8);
    for (int number = 0; number < 7; ++number)
        logIn(number);
    QCOMPARE(started(), (QList<int> { 0, 1, 2 }));
    logIn(7, KirvLoginQueue::Urgent);
    QCOMPARE(connection(7).state(), State::Connecting); // at once
    QCOMPARE(started(), QList<int> { 7 });
    QCOMPARE(queue->waitingCount(), 4);
}

void tst_LoginQueue::urgentLogInsAreBoundedToo()
{
    create(8);
    for (int number = 0; number < 8; ++number)
        logIn(number, number < 4 ? KirvLoginQueue::Urgent : KirvLoginQueue::Ordinary);
    QCOMPARE(started(), (QList<int> { 0, 1, 4, 5, 6 }));
    connection(4).serverAccepts();
    QCOMPARE(started(), QList<int> { 7 }); // an ordinary one's place stays an ordinary one's
    connection(0).serverAccepts();
    QCOMPARE(started(), QList<int> { 2 });
}

void tst_LoginQueue::aRequestThatIsRepeatedKeepsItsPlace()
{
    create(6);
    for (int number = 0; number < 6; ++number)
        logIn(number);
    started();
    logIn(3);
    QCOMPARE(queue->waitingCount(), 3);
    connection(0).serverAccepts();
    QCOMPARE(started(), QList<int> { 3 });
}

void tst_LoginQueue::aRequestThatBecomesUrgentMovesForward()
{
    create(6);
    for (int number = 0; number < 6; ++number)
        logIn(number);
    started();
    logIn(5, KirvLoginQueue::Urgent);
    QCOMPARE(started(), QList<int> { 5 });
    QCOMPARE(queue->waitingCount(), 2);
}

void tst_LoginQueue::whatIsNotWantedAnyMoreLeaves()
{
    create(6);
    for (int number = 0; number < 6; ++number)
        logIn(number);
    started();
    connection(3).logOut();
    QCOMPARE(connection(3).state(), State::Offline);
    QCOMPARE(queue->waitingCount(), 2);
    connection(0).drop(); // an attempt
    QCOMPARE(started(), QList<int> { 4 });
}

void tst_LoginQueue::whatIsDestroyedLeaves()
{
    create(6);
    for (int number = 0; number < 6; ++number)
        logIn(number);
    started();
    connections[3].reset();
    QCOMPARE(queue->waitingCount(), 2);
    connection(0).serverAccepts();
    QCOMPARE(started(), QList<int> { 4 });
}

void tst_LoginQueue::anAttemptThatIsDestroyedMakesRoom()
{
    create(6);
    for (int number = 0; number < 6; ++number)
        logIn(number);
    started();
    connections[0].reset();
    QCOMPARE(started(), QList<int> { 3 });
    clock.advance(3000); // also those that are gone
    QCOMPARE(started(), (QList<int> { 4, 5 }));
}

QTEST_GUILESS_MAIN(tst_LoginQueue)
#include "tst_login_queue.moc"
