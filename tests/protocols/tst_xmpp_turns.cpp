// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_turns.h"
#include "tests/support/kirv_patience.h"

#include <QtTest>
#include <memory>
#include <vector>

class tst_XmppTurns : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void oneStepIsTakenInATurnOfTheEventLoop();
    void stepsAreTakenInOrder();
    void aStreamWaitsOnce();
    void aStreamThatGoesOnComesBehindTheOthers();
    void cancelledStepsAreNotTaken();
    void stepsOfDestroyedStreamsAreNotTaken();
    void aStepMayDestroyAStream();

private:
    void request(
        int number, const std::function<void()> &alsoDo = [] {});
    void settle();

    std::unique_ptr<KirvXmppTurns> turns;
    std::vector<std::unique_ptr<QObject>> streams;
    QList<int> taken;
};

void tst_XmppTurns::init()
{
    turns = std::make_unique<KirvXmppTurns>();
    streams.clear();
    for (int number = 0; number < 10; ++number)
        streams.push_back(std::make_unique<QObject>());
    taken.clear();
}

void tst_XmppTurns::request(int number, const std::function<void()> &alsoDo)
{
    turns->request(streams[size_t(number)].get(), [this, number, alsoDo] {
        taken << number;
        alsoDo();
    });
}

void tst_XmppTurns::settle()
{
    for (int turn = 0; turn < 50; ++turn)
        QCoreApplication::processEvents();
}

void tst_XmppTurns::oneStepIsTakenInATurnOfTheEventLoop()
{
    QList<int> seen; // how many there were in each turn
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] { seen << int(taken.size()); });
    timer.start(0);
    for (int number = 0; number < 10; ++number)
        request(number);
    QCOMPARE(taken.size(), 0);
    KIRV_TRY_COMPARE(taken.size(), 10);
    for (int i = 1; i < seen.size(); ++i)
        QVERIFY(seen.at(i) - seen.at(i - 1) <= 1);
    QVERIFY(seen.size() >= 9);
}

void tst_XmppTurns::stepsAreTakenInOrder()
{
    for (const int number : { 3, 1, 2 })
        request(number);
    settle();
    QCOMPARE(taken, (QList<int> { 3, 1, 2 }));
}

void tst_XmppTurns::aStreamWaitsOnce()
{
    request(1);
    request(1);
    QVERIFY(turns->isRequested(streams[1].get()));
    settle();
    QCOMPARE(taken, QList<int> { 1 });
    QVERIFY(!turns->isRequested(streams[1].get()));
    request(1);
    settle();
    QCOMPARE(taken, (QList<int> { 1, 1 }));
}

void tst_XmppTurns::aStreamThatGoesOnComesBehindTheOthers()
{
    request(1, [this] { request(1); });
    request(2);
    settle();
    QCOMPARE(taken, (QList<int> { 1, 2, 1 }));
}

void tst_XmppTurns::cancelledStepsAreNotTaken()
{
    request(1);
    request(2);
    request(3);
    turns->cancel(streams[2].get());
    turns->cancel(streams[4].get()); // which waits for nothing
    settle();
    QCOMPARE(taken, (QList<int> { 1, 3 }));
}

void tst_XmppTurns::stepsOfDestroyedStreamsAreNotTaken()
{
    request(1);
    request(2);
    request(3);
    streams[1].reset();
    streams[3].reset();
    settle();
    QCOMPARE(taken, QList<int> { 2 });
}

void tst_XmppTurns::aStepMayDestroyAStream()
{
    request(1, [this] { streams[1].reset(); });
    request(2, [this] { streams[3].reset(); });
    request(3);
    request(4);
    settle();
    QCOMPARE(taken, (QList<int> { 1, 2, 4 }));
}

QTEST_GUILESS_MAIN(tst_XmppTurns)
#include "tst_xmpp_turns.moc"
