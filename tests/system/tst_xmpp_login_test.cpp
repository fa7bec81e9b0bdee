// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_account_log.h"
#include "core/accounts/kirv_login_test.h"
#include "tests/support/servers/kirv_xmpp_profile.h"
#include "tests/system/kirv_tested_login.h"
#include "tools/servers/kirv_prosody_server.h"

#include <QLocale>
#include <QSignalSpy>
#include <QSslCertificate>
#include <QTcpServer>
#include <QTest>

using Step = KirvLoginStep;
using Values = KirvPluginProfile::Values;

/// The test of a log-in with the XMPP plug-in against a real server.
class tst_XmppLoginTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void everyStepIsShown();
    void wrongPasswordFailsInTheLogIn();
    void unreachableServerFailsInItsStep_data();
    void unreachableServerFailsInItsStep();
    void untrustedCertificateFailsInTheEncryption();
    void missingEncryptionIsSaid();
    void cancelledTestLeavesTheServer();
    void runningSessionIsNotReplaced();
    void logHoldsNoPassword();

private:
    QList<KirvField> settings(const KirvProsodyServer &server, const Values &values = {}) const;
    void run(const QList<KirvField> &settings, const QString &password = "secret");
    KirvLoginTest::Step step(Step::Kind kind) const { return kirvStepOf(*test, kind); }

    std::unique_ptr<KirvXmppProfile> profile;
    std::unique_ptr<KirvLoginTest> test;
};

void tst_XmppLoginTest::init()
{
    profile = std::make_unique<KirvXmppProfile>();
    QVERIFY2(profile->problem().isEmpty(), qPrintable(profile->problem()));
}

void tst_XmppLoginTest::cleanup()
{
    test.reset();
    profile.reset();
}

QList<KirvField> tst_XmppLoginTest::settings(const KirvProsodyServer &server, const Values &values) const
{
    return KirvPluginProfile::withValues(profile->protocol()->accountSettings(),
                                         KirvXmppProfile::valuesFor(server, values));
}

/// Tests the log-in of Romeo to its end.
void tst_XmppLoginTest::run(const QList<KirvField> &settings, const QString &password)
{
    test = std::make_unique<KirvLoginTest>(*profile->protocol(), KirvLogin { "romeo@localhost", password, settings });
    test->start();
    KIRV_TRY(!test->isRunning());
}

void tst_XmppLoginTest::everyStepIsShown()
{
    KirvProsodyServer server;
    QVERIFY(KirvXmppProfile::start(server));
    run(settings(server));
    QCOMPARE(test->state(), KirvLoginTest::Succeeded);
    QCOMPARE(test->steps().size(), 4);
    for (const KirvLoginTest::Step &taken : test->steps()) {
        QCOMPARE(taken.outcome, Step::Done);
        QVERIFY(taken.milliseconds >= 0 && taken.milliseconds < kirvPatience);
    }
    QCOMPARE(step(Step::NameLookup).text, QString("127.0.0.1, port %1").arg(server.port()));
    QCOMPARE(step(Step::Connection).text, QString("127.0.0.1"));
    QVERIFY(step(Step::LogIn).text.startsWith("SASL "));

    const QSslCertificate certificate = QSslCertificate::fromPath(server.certificatePath()).value(0);
    QVERIFY(!certificate.isNull());
    const QString text = step(Step::Encryption).text;
    for (const QString &part : { QString("TLS 1."), QString("certificate of localhost"),
                                 QLocale().toString(certificate.expiryDate().date(), "d MMMM yyyy"),
                                 QString(certificate.digest(QCryptographicHash::Sha256).toHex(':').toUpper()) })
        QVERIFY2(text.contains(part), qPrintable(text));
    QVERIFY(!test->report().contains("secret"));
    KIRV_TRY(!server.isOnline("romeo"));
    QVERIFY(profile->accounts().accounts().isEmpty());
}

void tst_XmppLoginTest::wrongPasswordFailsInTheLogIn()
{
    KirvProsodyServer server;
    QVERIFY(KirvXmppProfile::start(server));
    run(settings(server), "tragedy");
    QCOMPARE(test->state(), KirvLoginTest::Failed);
    QCOMPARE(test->steps().size(), 4);
    QCOMPARE(step(Step::Encryption).outcome, Step::Done);
    QCOMPARE(step(Step::LogIn).outcome, Step::Failed);
    QCOMPARE(step(Step::LogIn).problem, KirvFailure(KirvFailure::WrongPassword).text());
    QVERIFY2(!test->report().contains("tragedy"), qPrintable(test->report()));
}

void tst_XmppLoginTest::unreachableServerFailsInItsStep_data()
{
    kirvAddUnreachableServers();
}

void tst_XmppLoginTest::unreachableServerFailsInItsStep()
{
    QFETCH(QString, host);
    QFETCH(int, kind);
    KirvProsodyServer server;
    run(settings(
        server,
        { { "server", host }, { "port", QString::number(KirvLocalServer::findFreePort()) }, { "certificate", "" } }));
    kirvVerifyUnreachable(*test, host, kind);
}

void tst_XmppLoginTest::untrustedCertificateFailsInTheEncryption()
{
    KirvProsodyServer server;
    QVERIFY(KirvXmppProfile::start(server));
    run(settings(server, { { "certificate", "" } }));
    kirvVerifyUntrusted(*test);
}

void tst_XmppLoginTest::missingEncryptionIsSaid()
{
    KirvProsodyServer::Options options;
    options.offersEncryption = false;
    KirvProsodyServer server(options);
    QVERIFY(KirvXmppProfile::start(server));
    run(settings(server));
    QCOMPARE(test->state(), KirvLoginTest::Succeeded);
    QCOMPARE(step(Step::Encryption).outcome, Step::Done);
    QVERIFY(step(Step::Encryption).text.startsWith("none"));
    run(settings(server, { { "encryption", "required" } }));
    QCOMPARE(test->state(), KirvLoginTest::Failed);
    QCOMPARE(test->steps().last().kind, Step::Encryption);
    QCOMPARE(test->steps().last().problem, KirvFailure(KirvFailure::EncryptionNotOffered).text());
}

/// A server that accepts connections and says nothing.
void tst_XmppLoginTest::cancelledTestLeavesTheServer()
{
    QTcpServer silent;
    QVERIFY(silent.listen(QHostAddress::LocalHost));
    KirvProsodyServer unused;
    test = std::make_unique<KirvLoginTest>(
        *profile->protocol(),
        KirvLogin { "romeo@localhost", "secret",
                    settings(unused, { { "port", QString::number(silent.serverPort()) }, { "certificate", "" } }) });
    kirvVerifyCancelling(*test, silent);
}

/// Also when the resource of the account is always the same.
void tst_XmppLoginTest::runningSessionIsNotReplaced()
{
    KirvProsodyServer server;
    QVERIFY(KirvXmppProfile::start(server));
    KirvAccount *account = profile->createAccount(server, "romeo", { { "resource", "balcony" } });
    profile->goTo(account, "available");
    KIRV_TRY_STATE(account, Online);
    const QDateTime since = account->connection()->since();
    QSignalSpy states(account->connection(), &KirvConnection::stateChanged);

    run(account->settings());
    QCOMPARE(test->state(), KirvLoginTest::Succeeded);
    KIRV_TRY(server.sessions().size() == 1);
    QCOMPARE(server.sessions(), QStringList { "romeo@localhost/balcony" });
    QCOMPARE(states.size(), 0);
    QCOMPARE(account->connection()->since(), since);
    QVERIFY(account->isOnline());
}

void tst_XmppLoginTest::logHoldsNoPassword()
{
    KirvProsodyServer server;
    QVERIFY(KirvXmppProfile::start(server));
    KirvAccount *account = profile->logIn(server);
    QVERIFY(account);
    QString all;
    for (const KirvAccountLog::Entry &entry : account->log().entries())
        all += entry.text + '\n';
    for (const char *part : { "Name look-up done", "Connection done: 127.0.0.1", "Encryption done: TLS",
                              "Log-in done: SASL", "Connected: TLS" })
        QVERIFY2(all.contains(QLatin1String(part)), qPrintable(all));
    QVERIFY2(!all.contains("secret"), qPrintable(all));
}

QTEST_GUILESS_MAIN(tst_XmppLoginTest)
#include "tst_xmpp_login_test.moc"
