// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_account_log.h"
#include "core/accounts/kirv_secret_blank.h"
#include "tests/integration/kirv_accounts_fixture.h"

#include <QSignalSpy>
#include <QTest>

/// What is noted of an account while the program runs.
class tst_AccountLog : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void logInIsNoted();
    void failureIsNoted();
    void noticeIsNoted();
    void logOutIsNoted();
    void waitNamesItsTime();
    void holdsTheLastEvents();
    void entryIsBounded();
    void secretsAreLeftOut_data();
    void secretsAreLeftOut();
    void passwordThatTheConnectionStillUsesIsLeftOut();
    void removedAccountIsNotedWithoutHarm();
    void disabledAccountHasNoEntries();

private:
    QStringList texts() const;

    std::unique_ptr<KirvAccountsFixture> core;
};

void tst_AccountLog::init()
{
    core = std::make_unique<KirvAccountsFixture>();
    QVERIFY(core->isReady());
}

void tst_AccountLog::cleanup()
{
    core.reset();
}

QStringList tst_AccountLog::texts() const
{
    QStringList result;
    for (const KirvAccountLog::Entry &entry : core->account()->log().entries())
        result << entry.text;
    return result;
}

void tst_AccountLog::logInIsNoted()
{
    core->server().logIn = KirvFakeServer::Holds;
    core->create();
    core->settle();
    KirvFakeConnection *connection = core->connection();
    connection->reportStep({ KirvLoginStep::NameLookup, KirvLoginStep::Running, QStringLiteral("example.org") });
    connection->reportStep({ KirvLoginStep::NameLookup, KirvLoginStep::Done });
    connection->security = QStringLiteral("TLSv1.3, SASL PLAIN");
    connection->serverAccepts();
    QCOMPARE(texts(),
             QStringList({ "The program requests a log-in", "Connecting", "Name look-up begins: example.org",
                           "Name look-up done", "Log-in done", "Connected: TLSv1.3, SASL PLAIN" }));
    const QDateTime time = core->account()->log().entries().first().time;
    QVERIFY(qAbs(time.msecsTo(QDateTime::currentDateTime())) < 60000);
}

void tst_AccountLog::failureIsNoted()
{
    core->server().logIn = KirvFakeServer::Refuses;
    core->create();
    core->settle();
    const QList<KirvAccountLog::Entry> entries = core->account()->log().entries();
    const QString text = KirvFailure(KirvFailure::WrongPassword).text();
    QCOMPARE(entries.last().text, text);
    QVERIFY(entries.last().isFailure);
    QVERIFY(texts().contains("Log-in failed: " + text));
    QVERIFY(!entries.first().isFailure);
}

void tst_AccountLog::noticeIsNoted()
{
    core->create();
    core->settle();
    Q_EMIT core->connection()->noticeReceived(QStringLiteral("Maintenance\ntonight"));
    QCOMPARE(texts().last(), QString("Maintenance tonight"));
}

void tst_AccountLog::logOutIsNoted()
{
    core->create();
    core->settle();
    core->account()->setEnabled(false);
    core->settle();
    QCOMPARE(texts().mid(texts().size() - 3),
             QStringList({ "The program requests a log-out", "Logging out", "Off line" }));
}

void tst_AccountLog::waitNamesItsTime()
{
    core->create();
    core->settle();
    core->connection()->connectionLost(KirvFailure::ConnectionLost);
    QVERIFY2(texts().filter("Waiting: the next try is at ").size() == 1, qPrintable(texts().join('|')));
}

void tst_AccountLog::holdsTheLastEvents()
{
    KirvAccountLog log;
    QSignalSpy added(&log, &KirvAccountLog::entryAdded);
    const int count = KirvAccountLog::mostEntries + 123;
    for (int i = 0; i < count; ++i)
        log.addNotice(QString("event %1").arg(i), KirvSecretBlank());
    QCOMPARE(log.count(), int(KirvAccountLog::mostEntries));
    QCOMPARE(log.total(), quint64(count));
    QCOMPARE(added.size(), count);
    const QList<KirvAccountLog::Entry> entries = log.entries();
    QCOMPARE(entries.size(), int(KirvAccountLog::mostEntries));
    for (int i = 0; i < entries.size(); ++i)
        QCOMPARE(entries.at(i).text, QString("event %1").arg(123 + i));
}

void tst_AccountLog::entryIsBounded()
{
    KirvAccountLog log;
    log.addNotice(QString(100000, QLatin1Char('x')), KirvSecretBlank());
    QVERIFY(log.entries().first().text.size() <= KirvAccountLog::longestText);
    // A secret that would be cut in two is gone before.
    log.addNotice(QString(KirvAccountLog::longestText - 5, QLatin1Char(' ')) + "hunter22 and more",
                  KirvSecretBlank(QStringList { "hunter22" }));
    log.addNotice(QString(KirvAccountLog::longestText - 5, QLatin1Char('x')) + "hunter22 and more",
                  KirvSecretBlank(QStringList { "hunter22" }));
    QVERIFY(!log.entries().at(2).text.contains("hunt"));
}

void tst_AccountLog::secretsAreLeftOut_data()
{
    QTest::addColumn<QString>("secret");
    QTest::addColumn<QString>("said");
    const QString password = QStringLiteral("word of id");
    QTest::newRow("password") << password << password;
    QTest::newRow("secret setting") << "of the server"
                                    << "of the server";
    const QString plain = QByteArray("\0id\0word of id", 14).toBase64();
    QTest::newRow("SASL") << plain << plain;
}

void tst_AccountLog::secretsAreLeftOut()
{
    QFETCH(QString, secret);
    QFETCH(QString, said);
    core->create();
    QList<KirvField> settings = core->account()->settings();
    settings.last().setText(QStringLiteral("of the server"));
    core->account()->setSettings(settings);
    core->settle();
    KirvFakeConnection *connection = core->connection();
    connection->security = "protected by " + said;
    Q_EMIT connection->noticeReceived("a notice with " + said);
    connection->connectionLost(KirvFailure(KirvFailure::ConnectionLost, "a failure with " + said));
    core->account()->reconnect();
    core->settle();
    core->server().logIn = KirvFakeServer::Refuses;
    core->server().refusal = KirvFailure(KirvFailure::AccessDenied, "a step with " + said);
    core->account()->reconnect();
    core->settle();
    const QString all = texts().join(QLatin1Char('\n'));
    for (const char *place : { "protected by", "a notice with", "a failure with", "Log-in failed: " })
        QVERIFY2(all.contains(QLatin1String(place)), qPrintable(all));
    QVERIFY2(!all.contains(secret), qPrintable(all));
}

void tst_AccountLog::passwordThatTheConnectionStillUsesIsLeftOut()
{
    core->create();
    core->settle();
    core->server().logOut = KirvFakeServer::Holds;
    core->account()->providePassword(QStringLiteral("another word"), false);
    Q_EMIT core->connection()->noticeReceived(QStringLiteral("not word of id, not another word"));
    QCOMPARE(texts().last(), QString("not %1, not %1").arg(KirvSecretBlank::blank()));
    core->connection()->drop();
}

void tst_AccountLog::removedAccountIsNotedWithoutHarm()
{
    core->create();
    core->settle();
    core->server().logOut = KirvFakeServer::Holds;
    const QPointer<KirvAccount> account = core->account();
    QVERIFY(core->accounts->remove(account));
    core->settle();
    QVERIFY(account);
    static_cast<KirvFakeConnection *>(account->connection())->serverAccepts();
    core->settleAndDelete();
    QVERIFY(!account);
}

void tst_AccountLog::disabledAccountHasNoEntries()
{
    core->create();
    core->settle();
    core->account()->setEnabled(false);
    core->settle();
    core->restart();
    core->settle();
    QCOMPARE(core->account()->log().count(), 0);
}

QTEST_GUILESS_MAIN(tst_AccountLog)
#include "tst_account_log.moc"
