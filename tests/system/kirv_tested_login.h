// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_TESTED_LOGIN_H
#define KIRV_TESTED_LOGIN_H

#include "core/accounts/kirv_login_test.h"
#include "tests/support/kirv_patience.h"

#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

// What the test of a log-in shows, whatever the protocol.

/// The last step of that kind in \a test.
inline KirvLoginTest::Step kirvStepOf(const KirvLoginTest &test, KirvLoginStep::Kind kind)
{
    KirvLoginTest::Step found;
    for (const KirvLoginTest::Step &taken : test.steps()) {
        if (taken.kind == kind)
            found = taken;
    }
    return found;
}

/// The rows of a test with a server that is not reached: its "host" and the "kind" of the step that fails.
inline void kirvAddUnreachableServers()
{
    QTest::addColumn<QString>("host");
    QTest::addColumn<int>("kind");
    QTest::newRow("nobody listens") << "127.0.0.1" << int(KirvLoginStep::Connection);
    QTest::newRow("there is no such host") << "no-such-host.invalid" << int(KirvLoginStep::NameLookup);
}

/// Verifies that \a test has ended with the step \a kind, which did not reach \a host.
inline void kirvVerifyUnreachable(const KirvLoginTest &test, const QString &host, int kind)
{
    QCOMPARE(test.state(), KirvLoginTest::Failed);
    QCOMPARE(int(test.steps().last().kind), kind);
    QCOMPARE(test.steps().last().outcome, KirvLoginStep::Failed);
    QVERIFY2(test.steps().last().problem.contains(host), qPrintable(test.report()));
}

/// Verifies that \a test has ended because the certificate of localhost is not trusted.
inline void kirvVerifyUntrusted(const KirvLoginTest &test)
{
    QCOMPARE(test.state(), KirvLoginTest::Failed);
    const KirvLoginTest::Step failed = test.steps().last();
    QCOMPARE(failed.kind, KirvLoginStep::Encryption);
    QCOMPARE(failed.outcome, KirvLoginStep::Failed);
    QVERIFY2(failed.text.contains("certificate of localhost"), qPrintable(test.report()));
    QVERIFY(!failed.problem.isEmpty());
    QCOMPARE(test.result(), failed.problem);
}

/// Starts \a test, which logs in to \a server, which says nothing, and verifies that cancelling it closes the
/// connection.
inline void kirvVerifyCancelling(KirvLoginTest &test, QTcpServer &server)
{
    test.start();
    KIRV_TRY(server.hasPendingConnections());
    QTcpSocket *socket = server.nextPendingConnection();
    KIRV_TRY(kirvStepOf(test, KirvLoginStep::Connection).outcome == KirvLoginStep::Done);
    QVERIFY(test.isRunning());
    test.cancel();
    QCOMPARE(test.state(), KirvLoginTest::Cancelled);
    KIRV_TRY_COMPARE(socket->state(), QAbstractSocket::UnconnectedState);
}

#endif
