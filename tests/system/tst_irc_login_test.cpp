// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_account_log.h"
#include "core/accounts/kirv_login_test.h"
#include "tests/support/servers/kirv_plugin_profile.h"
#include "tests/system/kirv_tested_login.h"
#include "tools/servers/kirv_ngircd_server.h"

#include <QSignalSpy>
#include <QTcpServer>
#include <QTest>

using Step = KirvLoginStep;
using Values = KirvPluginProfile::Values;

/// The test of a log-in with the IRC plug-in against a real server.
class tst_IrcLoginTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void everyStepIsShown_data();
    void everyStepIsShown();
    void wrongPasswordFailsInTheLogIn();
    void unreachableServerFailsInItsStep_data();
    void unreachableServerFailsInItsStep();
    void untrustedCertificateFailsInTheEncryption();
    void cancelledTestLeavesTheServer();
    void runningSessionIsNotReplaced();

private:
    void run(const Values &values, const QString &password = QString());
    KirvLoginTest::Step step(Step::Kind kind) const { return kirvStepOf(*test, kind); }
    static Values valuesFor(const KirvNgircdServer &server);

    std::unique_ptr<KirvPluginProfile> profile;
    std::unique_ptr<KirvLoginTest> test;
};

void tst_IrcLoginTest::init()
{
    profile = std::make_unique<KirvPluginProfile>(KIRV_IRC_PLUGIN, "IRC");
    QVERIFY2(profile->problem().isEmpty(), qPrintable(profile->problem()));
}

void tst_IrcLoginTest::cleanup()
{
    test.reset();
    profile.reset();
}

Values tst_IrcLoginTest::valuesFor(const KirvNgircdServer &server)
{
    return { { "server", server.host() },
             { "port", QString::number(server.port()) },
             { "encryption", server.isEncrypted() ? "required" : "none" },
             { "certificate", server.isEncrypted() ? server.certificateFile() : QString() } };
}

/// Tests the log-in of alice to its end.
void tst_IrcLoginTest::run(const Values &values, const QString &password)
{
    const QList<KirvField> settings = KirvPluginProfile::withValues(profile->protocol()->accountSettings(), values);
    test = std::make_unique<KirvLoginTest>(*profile->protocol(), KirvLogin { "alice", password, settings });
    test->start();
    KIRV_TRY(!test->isRunning());
}

void tst_IrcLoginTest::everyStepIsShown_data()
{
    QTest::addColumn<bool>("isEncrypted");
    QTest::newRow("encrypted") << true;
    QTest::newRow("not encrypted") << false;
}

void tst_IrcLoginTest::everyStepIsShown()
{
    QFETCH(bool, isEncrypted);
    KirvNgircdServer server;
    server.setEncrypted(isEncrypted);
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    run(valuesFor(server));
    QVERIFY2(test->state() == KirvLoginTest::Succeeded, qPrintable(test->report()));
    QCOMPARE(test->steps().size(), 4);
    for (const KirvLoginTest::Step &taken : test->steps())
        QCOMPARE(taken.outcome, Step::Done);
    QCOMPARE(step(Step::NameLookup).text, QString("127.0.0.1, port %1").arg(server.port()));
    QCOMPARE(step(Step::Connection).text, QString("127.0.0.1"));
    const QString text = step(Step::Encryption).text;
    if (isEncrypted)
        QVERIFY2(text.startsWith("TLS 1.") && text.contains("certificate of localhost"), qPrintable(text));
    else
        QVERIFY2(text.startsWith("none"), qPrintable(text));
    QVERIFY(profile->accounts().accounts().isEmpty());
}

void tst_IrcLoginTest::wrongPasswordFailsInTheLogIn()
{
    KirvNgircdServer server;
    server.setPassword("sesame");
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    Values values = valuesFor(server);
    values["password_use"] = "server";
    run(values, "sesame");
    QVERIFY2(test->state() == KirvLoginTest::Succeeded, qPrintable(test->report()));
    run(values, "open wide");
    QCOMPARE(test->state(), KirvLoginTest::Failed);
    QCOMPARE(test->steps().last().kind, Step::LogIn);
    QCOMPARE(test->steps().last().outcome, Step::Failed);
    QVERIFY2(test->steps().last().problem.contains("password", Qt::CaseInsensitive), qPrintable(test->report()));
    QVERIFY2(!test->report().contains("open wide"), qPrintable(test->report()));
}

void tst_IrcLoginTest::unreachableServerFailsInItsStep_data()
{
    kirvAddUnreachableServers();
}

void tst_IrcLoginTest::unreachableServerFailsInItsStep()
{
    QFETCH(QString, host);
    QFETCH(int, kind);
    run({ { "server", host }, { "port", QString::number(KirvLocalServer::findFreePort()) } });
    kirvVerifyUnreachable(*test, host, kind);
}

void tst_IrcLoginTest::untrustedCertificateFailsInTheEncryption()
{
    KirvNgircdServer server;
    server.setEncrypted(true);
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    Values values = valuesFor(server);
    values["certificate"].clear();
    run(values);
    kirvVerifyUntrusted(*test);
}

/// A server that accepts connections and says nothing.
void tst_IrcLoginTest::cancelledTestLeavesTheServer()
{
    QTcpServer silent;
    QVERIFY(silent.listen(QHostAddress::LocalHost));
    const Values values { { "server", "127.0.0.1" },
                          { "port", QString::number(silent.serverPort()) },
                          { "encryption", "none" } };
    test = std::make_unique<KirvLoginTest>(
        *profile->protocol(),
        KirvLogin { "alice", QString(),
                    KirvPluginProfile::withValues(profile->protocol()->accountSettings(), values) });
    kirvVerifyCancelling(*test, silent);
}

/// The nick is in use then: the test has another one.
void tst_IrcLoginTest::runningSessionIsNotReplaced()
{
    KirvNgircdServer server;
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    KirvAccount *account = profile->createAccount("alice", valuesFor(server));
    QVERIFY(account);
    profile->goTo(account, "available");
    KIRV_TRY_STATE(account, Online);
    QSignalSpy states(account->connection(), &KirvConnection::stateChanged);
    run(valuesFor(server));
    QVERIFY2(test->state() == KirvLoginTest::Succeeded, qPrintable(test->report()));
    QCOMPARE(states.size(), 0);
    QVERIFY(account->isOnline());
}

QTEST_GUILESS_MAIN(tst_IrcLoginTest)
#include "tst_irc_login_test.moc"
