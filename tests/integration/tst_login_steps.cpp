// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/fakes/kirv_fake_clock.h"
#include "tests/support/fakes/kirv_fake_connection.h"

#include <QSignalSpy>
#include <QTest>
#include <stdexcept>

using Step = KirvLoginStep;

/// What a connection reports of a log-in while it goes on.
class tst_LoginSteps : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void logInWithoutReportsIsOneStep();
    void reportedStepsComeInTheirOrder();
    void runningStepFailsWithTheAttempt_data();
    void runningStepFailsWithTheAttempt();
    void failureWithoutARunningStepIsOneOfTheLogIn();
    void stepOfAnEarlierAttemptDoesNotFail();
    void nothingIsReportedOutsideOfALogIn();
    void textIsOneBoundedLine();

private:
    void logIn();
    QStringList steps() const;

    KirvFakeClock clock;
    std::unique_ptr<KirvFakeConnection> connection;
    QList<Step> reported;
};

void tst_LoginSteps::init()
{
    reported.clear();
    connection = std::make_unique<KirvFakeConnection>(std::make_shared<KirvFakeServer>(), clock);
    connect(connection.get(), &KirvConnection::loginStep, this, [this](const Step &step) {
        QCOMPARE(connection->state(), KirvConnection::Connecting);
        reported << step;
    });
}

void tst_LoginSteps::cleanup()
{
    connection.reset();
}

void tst_LoginSteps::logIn()
{
    connection->logIn({ QStringLiteral("ann"), QStringLiteral("secret"), {} },
                      { QStringLiteral("available"), QString(), QString() });
}

QStringList tst_LoginSteps::steps() const
{
    QStringList lines;
    for (const Step &step : reported)
        lines << QString("%1 %2 %3").arg(step.kind()).arg(step.outcome()).arg(step.text()).trimmed();
    return lines;
}

void tst_LoginSteps::logInWithoutReportsIsOneStep()
{
    logIn();
    QCOMPARE(reported, QList<Step> { Step(Step::LogIn, Step::Done) });
}

void tst_LoginSteps::reportedStepsComeInTheirOrder()
{
    connection->onLogIn = [this] {
        connection->reportStep({ Step::NameLookup, Step::Running, QStringLiteral("example.org") });
        connection->reportStep({ Step::NameLookup, Step::Done });
        connection->reportStep({ Step::LogIn, Step::Done, QStringLiteral("SASL PLAIN") });
        connection->loginSucceeded();
    };
    logIn();
    QCOMPARE(steps(), QStringList({ "0 0 example.org", "0 1", "3 1 SASL PLAIN" }));
}

void tst_LoginSteps::runningStepFailsWithTheAttempt_data()
{
    QTest::addColumn<int>("how");
    QTest::newRow("the log-in fails") << 0;
    QTest::newRow("the connection is lost") << 1;
    QTest::newRow("nothing comes in time") << 2;
    QTest::newRow("the protocol throws") << 3;
}

void tst_LoginSteps::runningStepFailsWithTheAttempt()
{
    QFETCH(int, how);
    connection->onLogIn = [this, how] {
        connection->reportStep({ Step::Encryption, Step::Running });
        if (how == 0)
            connection->loginFailed(KirvFailure::UntrustedCertificate);
        else if (how == 1)
            connection->connectionLost(KirvFailure::ConnectionLost);
        else if (how == 3)
            throw std::runtime_error("oops");
    };
    logIn();
    clock.advance(connection->timing().loginTimeout);
    QVERIFY(reported.size() >= 2);
    QCOMPARE(reported.at(1).kind(), Step::Encryption);
    QCOMPARE(reported.at(1).outcome(), Step::Failed);
    QCOMPARE(reported.at(1).text(), connection->lastFailure().text());
    QVERIFY(!reported.at(1).text().isEmpty());
}

void tst_LoginSteps::failureWithoutARunningStepIsOneOfTheLogIn()
{
    connection->onLogIn = [this] {
        connection->reportStep({ Step::Connection, Step::Done });
        connection->loginFailed(KirvFailure::WrongPassword);
    };
    logIn();
    QCOMPARE(reported.size(), 2);
    QCOMPARE(reported.last(), Step(Step::LogIn, Step::Failed, KirvFailure(KirvFailure::WrongPassword).text()));
}

void tst_LoginSteps::stepOfAnEarlierAttemptDoesNotFail()
{
    connection->onLogIn = [this] { connection->reportStep({ Step::NameLookup, Step::Running }); };
    logIn();
    connection->onLogIn = [this] { connection->loginFailed(KirvFailure::PasswordMissing); };
    logIn();
    QCOMPARE(reported.size(), 2);
    QCOMPARE(reported.last().kind(), Step::LogIn);
}

void tst_LoginSteps::nothingIsReportedOutsideOfALogIn()
{
    connection->reportStep({ Step::NameLookup, Step::Running });
    QCOMPARE(reported.size(), 0);
    logIn();
    reported.clear();
    connection->reportStep({ Step::Encryption, Step::Done });
    connection->connectionLost(KirvFailure::ConnectionLost);
    QCOMPARE(reported.size(), 0);
}

void tst_LoginSteps::textIsOneBoundedLine()
{
    const Step step(Step::LogIn, Step::Failed, QStringLiteral("one\ntwo") + QChar(0x202e) + QString(5000, 'x'));
    QVERIFY(step.text().startsWith(QLatin1String("one two x")));
    QVERIFY(step.text().size() <= 400);
    QVERIFY(step.text().endsWith(QChar(0x2026)));
}

QTEST_GUILESS_MAIN(tst_LoginSteps)
#include "tst_login_steps.moc"
