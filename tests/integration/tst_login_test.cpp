// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_login_test.h"
#include "tests/support/fakes/kirv_fake_clock.h"
#include "tests/support/fakes/kirv_fake_protocol.h"

#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <stdexcept>

using Step = KirvLoginStep;

namespace {
const QString password = QStringLiteral("correct horse");
}

/// The test of a log-in, over a protocol without a network.
class tst_LoginTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void stepsAreShownWithTheirTimes();
    void stepThatGoesOnIsOneStep();
    void otherServerIsAnotherStep();
    void successLogsOutAgain();
    void failureIsSaidByItsStep_data();
    void failureIsSaidByItsStep();
    void thereIsOneAttempt();
    void silenceEndsIt();
    void sessionThatBreaksAfterwardsDoesNotComeBack();
    void cancelEndsItAtOnce();
    void destroyedTestLeavesNoConnection_data();
    void destroyedTestLeavesNoConnection();
    void slotMayDestroyTheTest();
    void protocolThatGoesEndsIt();
    void protocolWithoutAConnectionFails_data();
    void protocolWithoutAConnectionFails();
    void settingsForTestsAreUsed();
    void arrivesInvisibly();
    void reportHoldsNoSecrets();
    void stepsAreBounded();

private:
    void start(bool isRun = true);
    QStringList lines() const;

    KirvFakeClock clock;
    std::unique_ptr<KirvFakeProtocol> protocol;
    std::unique_ptr<KirvLoginTest> test;
    QPointer<KirvFakeConnection> connection;
};

void tst_LoginTest::init()
{
    protocol = std::make_unique<KirvFakeProtocol>(QStringLiteral("Fake"), clock);
    protocol->server->logIn = KirvFakeServer::Holds;
    protocol->onConnection = [this](KirvFakeConnection *created) { connection = created; };
}

void tst_LoginTest::cleanup()
{
    test.reset();
    QCOMPARE(protocol ? protocol->server->connections : 0, 0);
    protocol.reset();
}

void tst_LoginTest::start(bool isRun)
{
    QList<KirvField> settings = protocol->settings;
    settings.last().setText(QStringLiteral("server secret"));
    test = std::make_unique<KirvLoginTest>(*protocol, KirvLogin { QStringLiteral("ann"), password, settings }, clock);
    test->start();
    if (isRun)
        clock.advance(0);
}

QStringList tst_LoginTest::lines() const
{
    QStringList result;
    for (const KirvLoginTest::Step &step : test->steps())
        result << QString("%1 %2 %3")
                      .arg(KirvLoginTest::outcomeOf(step), KirvLoginTest::lineOf(step))
                      .arg(step.milliseconds);
    return result;
}

void tst_LoginTest::stepsAreShownWithTheirTimes()
{
    start();
    connection->reportStep({ Step::NameLookup, Step::Running, QStringLiteral("example.org") });
    QCOMPARE(lines(), QStringList { "running Name look-up: example.org 0" });
    clock.advance(12);
    connection->reportStep({ Step::NameLookup, Step::Done });
    connection->reportStep({ Step::Connection, Step::Running });
    clock.advance(18);
    connection->reportStep({ Step::Connection, Step::Done, QStringLiteral("192.0.2.7") });
    QVERIFY(test->isRunning());
    connection->serverAccepts();
    QCOMPARE(lines(),
             QStringList({ "done Name look-up: example.org 12", "done Connection: 192.0.2.7 18", "done Log-in 0" }));
    QCOMPARE(test->state(), KirvLoginTest::Succeeded);
}

void tst_LoginTest::stepThatGoesOnIsOneStep()
{
    start();
    connection->reportStep({ Step::NameLookup, Step::Running, QStringLiteral("servers of example.org") });
    connection->reportStep({ Step::NameLookup, Step::Running, QStringLiteral("one.example.org") });
    QCOMPARE(lines(), QStringList { "running Name look-up: one.example.org 0" });
}

void tst_LoginTest::otherServerIsAnotherStep()
{
    start();
    connection->reportStep({ Step::Connection, Step::Running, QStringLiteral("one") });
    connection->reportStep({ Step::Connection, Step::Failed, QStringLiteral("Refused.") });
    connection->reportStep({ Step::Connection, Step::Running, QStringLiteral("two") });
    QCOMPARE(lines(), QStringList({ "failed Connection: one. Refused. 0", "running Connection: two 0" }));
}

void tst_LoginTest::successLogsOutAgain()
{
    start();
    QSignalSpy finished(test.get(), &KirvLoginTest::finished);
    connection->serverAccepts();
    QCOMPARE(finished.size(), 1);
    clock.advance(0);
    QVERIFY(protocol->server->calls.contains("ann log out"));
    clock.advance(0);
    QCOMPARE(protocol->server->connections, 0);
    QCOMPARE(finished.size(), 1);
    QCOMPARE(test->result(), QString("The log-in works."));
}

void tst_LoginTest::failureIsSaidByItsStep_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<int>("kind");
    QTest::newRow("unknown host") << int(Step::NameLookup) << int(KirvFailure::HostNotFound);
    QTest::newRow("refused") << int(Step::Connection) << int(KirvFailure::ConnectionRefused);
    QTest::newRow("certificate") << int(Step::Encryption) << int(KirvFailure::UntrustedCertificate);
    QTest::newRow("password") << int(Step::LogIn) << int(KirvFailure::WrongPassword);
}

void tst_LoginTest::failureIsSaidByItsStep()
{
    QFETCH(int, step);
    QFETCH(int, kind);
    start();
    QSignalSpy finished(test.get(), &KirvLoginTest::finished);
    connection->reportStep({ Step::Kind(step), Step::Running, QStringLiteral("with whom") });
    connection->loginFailed(KirvFailure::Kind(kind));
    QCOMPARE(test->state(), KirvLoginTest::Failed);
    QCOMPARE(finished.size(), 1);
    QCOMPARE(test->steps().size(), 1);
    const KirvLoginTest::Step failed = test->steps().first();
    QCOMPARE(int(failed.kind), step);
    QCOMPARE(failed.outcome, Step::Failed);
    QCOMPARE(failed.text, QString("with whom"));
    QCOMPARE(failed.problem, KirvFailure(KirvFailure::Kind(kind)).text());
    QCOMPARE(test->result(), failed.problem);
}

void tst_LoginTest::thereIsOneAttempt()
{
    protocol->server->logIn = KirvFakeServer::Refuses;
    protocol->server->refusal = KirvFailure::ConnectionRefused; // worth another try
    start();
    QCOMPARE(test->state(), KirvLoginTest::Failed);
    clock.advance(10 * 60 * 1000);
    QCOMPARE(protocol->server->calls.filter("log in").size(), 1);
    QCOMPARE(protocol->server->connections, 0);
}

void tst_LoginTest::silenceEndsIt()
{
    start();
    connection->reportStep({ Step::Connection, Step::Running });
    clock.advance(KirvConnection::Timing().loginTimeout - 1);
    QVERIFY(test->isRunning());
    clock.advance(1);
    QCOMPARE(test->state(), KirvLoginTest::Failed);
    QCOMPARE(test->steps().last().milliseconds, qint64(KirvConnection::Timing().loginTimeout));
}

void tst_LoginTest::sessionThatBreaksAfterwardsDoesNotComeBack()
{
    start();
    connection->serverAccepts();
    connection->connectionLost(KirvFailure::ConnectionLost);
    clock.advance(10 * 60 * 1000);
    QCOMPARE(protocol->server->calls.filter("log in").size(), 1);
    QCOMPARE(test->state(), KirvLoginTest::Succeeded);
    QCOMPARE(protocol->server->connections, 0);
}

void tst_LoginTest::cancelEndsItAtOnce()
{
    start();
    connection->reportStep({ Step::Connection, Step::Running });
    QSignalSpy finished(test.get(), &KirvLoginTest::finished);
    clock.advance(7);
    test->cancel();
    QCOMPARE(protocol->server->connections, 0);
    QCOMPARE(test->state(), KirvLoginTest::Cancelled);
    QCOMPARE(lines(), QStringList { "failed Connection 7" });
    test->cancel();
    QCOMPARE(finished.size(), 1);
}

void tst_LoginTest::destroyedTestLeavesNoConnection_data()
{
    QTest::addColumn<int>("when");
    QTest::newRow("before it begins") << 0;
    QTest::newRow("while it runs") << 1;
    QTest::newRow("while it logs out") << 2;
    QTest::newRow("after it failed") << 3;
}

void tst_LoginTest::destroyedTestLeavesNoConnection()
{
    QFETCH(int, when);
    protocol->server->logOut = KirvFakeServer::Holds;
    start(when > 0);
    if (when == 2) {
        connection->serverAccepts();
        clock.advance(0);
        QCOMPARE(connection->state(), KirvConnection::Disconnecting);
    } else if (when == 3) {
        connection->serverRefuses();
    }
    test.reset();
    QCOMPARE(protocol->server->connections, 0);
    clock.advance(60000);
}

void tst_LoginTest::slotMayDestroyTheTest()
{
    start();
    connect(test.get(), &KirvLoginTest::finished, this, [this] { test.reset(); });
    connection->serverRefuses();
    QVERIFY(!test);
    QCOMPARE(protocol->server->connections, 0);
}

void tst_LoginTest::protocolThatGoesEndsIt()
{
    const std::shared_ptr<KirvFakeServer> server = protocol->server;
    start();
    protocol.reset();
    QCOMPARE(server->connections, 0);
    QCOMPARE(test->state(), KirvLoginTest::Cancelled);
    test->start();
}

void tst_LoginTest::protocolWithoutAConnectionFails_data()
{
    QTest::addColumn<bool>("throws");
    QTest::newRow("gives none") << false;
    QTest::newRow("throws") << true;
}

void tst_LoginTest::protocolWithoutAConnectionFails()
{
    QFETCH(bool, throws);
    protocol->givesConnections = throws;
    if (throws)
        protocol->onConnection = [](KirvFakeConnection *) { throw std::runtime_error("oops"); };
    start();
    QCOMPARE(test->state(), KirvLoginTest::Failed);
    QVERIFY(!test->result().isEmpty());
}

void tst_LoginTest::settingsForTestsAreUsed()
{
    protocol->changeForTest = [](const QList<KirvField> &given) { return given.mid(0, 1); };
    start();
    QCOMPARE(connection->login().settings, protocol->settings.mid(0, 1));
}

void tst_LoginTest::arrivesInvisibly()
{
    start();
    QCOMPARE(connection->presence().getId(), QString("available")); // it has nothing better
    test.reset();
    protocol->offeredPresences.insert(1, { QStringLiteral("invisible"), QString(), QString() });
    start();
    QCOMPARE(connection->presence().getId(), QString("invisible"));
}

void tst_LoginTest::reportHoldsNoSecrets()
{
    start();
    connection->reportStep({ Step::LogIn, Step::Running, QStringLiteral("with ") + password });
    connection->loginFailed(
        KirvFailure(KirvFailure::Other,
                    QStringLiteral("bad word %1 and server secret, AUTHENTICATE %2")
                        .arg(password, QString(QByteArray(QByteArray("\0ann\0", 5) + password.toUtf8()).toBase64()))));
    const QString all = test->report() + test->result() + lines().join(' ');
    QVERIFY(all.contains("bad word"));
    QVERIFY2(!all.contains(password), qPrintable(all));
    QVERIFY2(!all.contains("server secret"), qPrintable(all));
    QVERIFY2(!all.contains(QByteArray(QByteArray("\0ann\0", 5) + password.toUtf8()).toBase64()), qPrintable(all));
}

void tst_LoginTest::stepsAreBounded()
{
    start();
    for (int i = 0; i < 500; ++i) {
        connection->reportStep({ Step::Connection, Step::Running });
        connection->reportStep({ Step::Connection, Step::Failed });
    }
    QCOMPARE(test->steps().size(), int(KirvLoginTest::mostSteps));
}

QTEST_GUILESS_MAIN(tst_LoginTest)
#include "tst_login_test.moc"
