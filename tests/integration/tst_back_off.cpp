// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/protocol/kirv_back_off.h"

#include <QtTest>
#include <limits>
#include <set>

class tst_BackOff : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theDefaultsAreWhatIsDocumented();
    void eachWaitIsTwiceTheLastOne();
    void resettingStartsAgain();
    void theLongestWaitCanBeDoubledWithoutHarm();
    void jitterStaysWithinItsFraction();
    void jitterDoesNotAddUp();
    void chanceCanBeReplaced_data();
    void chanceCanBeReplaced();
};

void tst_BackOff::theDefaultsAreWhatIsDocumented()
{
    const KirvBackOff::Limits limits;
    QCOMPARE(limits.first, 2000);
    QCOMPARE(limits.last, 300000);
    QCOMPARE(limits.jitter, 0.2);
}

void tst_BackOff::eachWaitIsTwiceTheLastOne()
{
    KirvBackOff::Limits limits;
    limits.jitter = 0;
    KirvBackOff backOff;
    for (const int wait : { 2000, 4000, 8000, 16000, 32000, 64000, 128000, 256000, 300000, 300000 })
        QCOMPARE(backOff.next(limits), wait);
}

void tst_BackOff::resettingStartsAgain()
{
    KirvBackOff::Limits limits;
    limits.jitter = 0;
    KirvBackOff backOff;
    backOff.next(limits);
    backOff.next(limits);
    backOff.reset();
    QCOMPARE(backOff.next(limits), 2000);
    QCOMPARE(backOff.next(limits), 4000);
}

void tst_BackOff::theLongestWaitCanBeDoubledWithoutHarm()
{
    KirvBackOff::Limits limits;
    limits.first = limits.last = std::numeric_limits<int>::max();
    limits.jitter = 0;
    KirvBackOff backOff;
    for (int attempt = 0; attempt < 3; ++attempt)
        QCOMPARE(backOff.next(limits), limits.last);
}

void tst_BackOff::jitterStaysWithinItsFraction()
{
    const KirvBackOff::Limits limits;
    std::set<int> waits;
    for (int attempt = 0; attempt < 1000; ++attempt) {
        KirvBackOff backOff;
        const int wait = backOff.next(limits);
        QVERIFY2(wait >= 1600 && wait <= 2400, qPrintable(QString::number(wait)));
        waits.insert(wait);
    }
    QVERIFY(waits.size() > 1);
}

void tst_BackOff::jitterDoesNotAddUp()
{
    KirvBackOff::Limits limits;
    limits.jitter = 0.9;
    KirvBackOff backOff;
    backOff.next(limits);
    backOff.next(limits);
    limits.jitter = 0;
    QCOMPARE(backOff.next(limits), 4 * limits.first);
}

void tst_BackOff::chanceCanBeReplaced_data()
{
    QTest::addColumn<double>("chance");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("second");
    QTest::newRow("shortest") << 0.0 << 1600 << 3200;
    QTest::newRow("shorter") << 0.25 << 1800 << 3600;
    QTest::newRow("middle") << 0.5 << 2000 << 4000;
    QTest::newRow("longest") << 1.0 << 2400 << 4800;
}

void tst_BackOff::chanceCanBeReplaced()
{
    QFETCH(double, chance);
    KirvBackOff backOff;
    QTEST(backOff.next(KirvBackOff::Limits(), chance), "first");
    QTEST(backOff.next(KirvBackOff::Limits(), chance), "second");
}

QTEST_APPLESS_MAIN(tst_BackOff)
#include "tst_back_off.moc"
