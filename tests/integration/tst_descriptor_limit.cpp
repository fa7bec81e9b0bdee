// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_descriptor_limit.h"

#include <QtTest>
#include <sys/resource.h>

class tst_DescriptorLimit : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theSoftLimitIsRaised_data();
    void theSoftLimitIsRaised();
};

void tst_DescriptorLimit::theSoftLimitIsRaised_data()
{
    QTest::addColumn<int>("soft");
    QTest::addColumn<int>("hard");
    QTest::addColumn<int>("expected");
    // In this order: a hard limit that was lowered stays so.
    QTest::newRow("a high one stays") << 17000 << 18000 << 17000;
    QTest::newRow("as far as is useful") << 1024 << 18000 << 16384;
    QTest::newRow("as far as is allowed") << 1024 << 2000 << 2000;
    QTest::newRow("nothing more is allowed") << 1500 << 1500 << 1500;
}

void tst_DescriptorLimit::theSoftLimitIsRaised()
{
    QFETCH(int, soft);
    QFETCH(int, hard);
    QFETCH(int, expected);
    rlimit limit {};
    QCOMPARE(getrlimit(RLIMIT_NOFILE, &limit), 0);
    // Systems with lower limits than these have fewer to show.
    const auto bounded = [allowed = limit.rlim_max](int value) { return std::min(rlim_t(value), allowed); };
    limit = { bounded(soft), bounded(hard) };
    QCOMPARE(setrlimit(RLIMIT_NOFILE, &limit), 0);
    const rlim_t allowed = limit.rlim_max;
    QVERIFY(kirvRaiseDescriptorLimit());
    QCOMPARE(getrlimit(RLIMIT_NOFILE, &limit), 0);
    QCOMPARE(qulonglong(limit.rlim_cur), qulonglong(bounded(expected)));
    QCOMPARE(qulonglong(limit.rlim_max), qulonglong(allowed));
}

QTEST_APPLESS_MAIN(tst_DescriptorLimit)
#include "tst_descriptor_limit.moc"
