// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/store/kirv_keyring.h"
#include "tests/support/servers/kirv_gnome_keyring.h"
#include "tests/support/servers/kirv_private_bus.h"
#include "tests/support/servers/kirv_scripted_secret_service.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QtTest>
#include <cstdio>
#include <memory>
#include <vector>

namespace {

const KirvSecretItem item { QStringLiteral("profile/1"), QStringLiteral("Kirv: name@example.org (XMPP)") };
const KirvSecretItem other { QStringLiteral("profile/2"), QStringLiteral("Kirv: name@example.org (XMPP)") };

/// Takes the reply to one operation; the context of the request.
class Answer : public QObject {
public:
    std::unique_ptr<KirvSecretStore::Reply> reply;
    int count = 0;

    bool has() const { return bool(reply); }
    KirvSecretStore::Outcome outcome() const { return reply ? reply->outcome : KirvSecretStore::Failed; }
    QByteArray text() const
    {
        return reply ? QByteArray::number(reply->outcome) + ": " + reply->text.toUtf8() : QByteArray("no reply");
    }
    KirvSecretStore::Callback taker()
    {
        return [this](const KirvSecretStore::Reply &received) {
            reply = std::make_unique<KirvSecretStore::Reply>(received);
            ++count;
        };
    }
};

/// The longest time between two turns of the event loop, milliseconds.
class Gaps : public QObject {
public:
    Gaps()
    {
        clock.start();
        startTimer(1, Qt::PreciseTimer);
    }
    qint64 longest = 0;

protected:
    void timerEvent(QTimerEvent *) override { longest = qMax(longest, clock.restart()); }

private:
    QElapsedTimer clock;
};

} // namespace

class tst_Keyring : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void withoutABusThereIsNoKeyringAtOnce_data();
    void withoutABusThereIsNoKeyringAtOnce();
    void withoutAServiceThereIsNoKeyring();
    void aSecretIsWrittenReadAndRemoved();
    void whatIsNotThereIsMissing();
    void lockingAndUnlockingAreNoticed();
    void aLockedSecretIsNotMissing();
    void aKeyringThatGoesAndComesIsNoticed();
    void aServiceThatNeverRepliesIsSilent();
    void anOperationThatHangsHoldsNothingUp();
    void aRefusalToUnlockIsNoMissingSecret();
    void aReplyForADestroyedObjectIsDropped();
};

void tst_Keyring::withoutABusThereIsNoKeyringAtOnce_data()
{
    QTest::addColumn<QByteArray>("bus");
    QTest::newRow("no address") << QByteArray();
    QTest::newRow("no socket") << QByteArray("unix:path=/nonexistent");
    QTest::newRow("nothing listens") << QByteArray("unix:abstract=/nonexistent-kirv-bus");
    QTest::newRow("nonsense") << QByteArray("nonsense");
}

/// In a process of its own: the library for the bus reads the address once.
void tst_Keyring::withoutABusThereIsNoKeyringAtOnce()
{
    QFETCH(QByteArray, bus);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), QString::fromLatin1(bus));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationFilePath(), { QStringLiteral("--write") });
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.readAllStandardOutput(), QByteArray("unavailable at once, then failed"));
}

/// What that process does.
static int writeWithoutBus()
{
    QElapsedTimer timer;
    timer.start();
    KirvKeyring keyring;
    const bool isAtOnce = keyring.state() == KirvSecretStore::Unavailable && timer.elapsed() < 50;
    Answer answer;
    keyring.write(item, QStringLiteral("secret"), &answer, answer.taker());
    const bool isLater = !answer.has(); // from the event loop
    const bool isAnswered = QTest::qWaitFor([&] { return answer.has(); });
    std::printf("%s, then %s", isAtOnce && isLater ? "unavailable at once" : "something else",
                isAnswered && answer.outcome() == KirvSecretStore::Failed ? "failed" : "something else");
    return 0;
}

void tst_Keyring::withoutAServiceThereIsNoKeyring()
{
    KirvKeyring keyring;
    QTRY_COMPARE(keyring.state(), KirvSecretStore::Unavailable);
}

void tst_Keyring::aSecretIsWrittenReadAndRemoved()
{
    KirvGnomeKeyring daemon;
    QVERIFY(daemon.start());
    KirvKeyring keyring;
    QTRY_COMPARE(keyring.state(), KirvSecretStore::Ready);
    QCOMPARE(keyring.providerName(), QStringLiteral("GNOME Keyring"));
    const QString secret = QString::fromUtf8("pass \xc3\xa4\xe2\x82\xac\xf0\x9f\x94\x91\nword ") + QString(5000, u'x');
    Answer written, read, removed, gone;
    keyring.write(item, secret, &written, written.taker());
    keyring.read(item, &read, read.taker());
    keyring.remove(item, &removed, removed.taker());
    keyring.read(item, &gone, gone.taker());
    QTRY_VERIFY(gone.has());
    QCOMPARE(written.outcome(), KirvSecretStore::Done);
    QCOMPARE(read.outcome(), KirvSecretStore::Done);
    QCOMPARE(read.reply->secret, secret);
    QCOMPARE(removed.outcome(), KirvSecretStore::Done);
    QCOMPARE(gone.outcome(), KirvSecretStore::Missing);
    QCOMPARE(written.count + read.count + removed.count + gone.count, 4);
}

void tst_Keyring::whatIsNotThereIsMissing()
{
    KirvGnomeKeyring daemon;
    QVERIFY(daemon.start());
    KirvKeyring keyring;
    Answer read, removed; // requested before the state is known
    keyring.read(other, &read, read.taker());
    keyring.remove(other, &removed, removed.taker());
    QTRY_VERIFY(removed.has());
    QCOMPARE(read.outcome(), KirvSecretStore::Missing);
    QCOMPARE(removed.outcome(), KirvSecretStore::Done);
}

void tst_Keyring::lockingAndUnlockingAreNoticed()
{
    KirvGnomeKeyring daemon;
    QVERIFY(daemon.start());
    KirvKeyring keyring;
    QTRY_COMPARE(keyring.state(), KirvSecretStore::Ready);
    QVERIFY(daemon.lock());
    QTRY_COMPARE(keyring.state(), KirvSecretStore::Locked);
    QVERIFY(daemon.unlock());
    QTRY_COMPARE(keyring.state(), KirvSecretStore::Ready);
}

void tst_Keyring::aLockedSecretIsNotMissing()
{
    KirvGnomeKeyring daemon;
    QVERIFY(daemon.start());
    KirvKeyring keyring;
    Answer written, read;
    keyring.write(item, QStringLiteral("secret"), &written, written.taker());
    QTRY_VERIFY(written.has());
    QVERIFY2(written.outcome() == KirvSecretStore::Done, written.text());
    QVERIFY(daemon.lock());
    QTRY_COMPARE(keyring.state(), KirvSecretStore::Locked);
    keyring.read(item, &read, read.taker()); // nobody is there who could be asked
    QTRY_VERIFY_WITH_TIMEOUT(read.has(), 60000);
    QVERIFY2(read.outcome() != KirvSecretStore::Missing, qPrintable(read.reply->text));
    QVERIFY(read.outcome() != KirvSecretStore::Done);
}

void tst_Keyring::aKeyringThatGoesAndComesIsNoticed()
{
    KirvGnomeKeyring daemon;
    QVERIFY(daemon.start());
    KirvKeyring keyring;
    QTRY_COMPARE(keyring.state(), KirvSecretStore::Ready);
    Answer written, failed, read;
    keyring.write(item, QStringLiteral("secret"), &written, written.taker());
    QTRY_VERIFY(written.has());
    QVERIFY2(written.outcome() == KirvSecretStore::Done, written.text());
    daemon.stop();
    QTRY_COMPARE(keyring.state(), KirvSecretStore::Unavailable);
    keyring.read(item, &failed, failed.taker());
    QTRY_COMPARE(failed.count, 1);
    QCOMPARE(failed.outcome(), KirvSecretStore::Failed);
    QVERIFY(daemon.start());
    QTRY_COMPARE(keyring.state(), KirvSecretStore::Ready);
    keyring.read(item, &read, read.taker());
    QTRY_VERIFY(read.has());
    QCOMPARE(read.outcome(), KirvSecretStore::Done);
    QCOMPARE(read.reply->secret, QStringLiteral("secret"));
}

void tst_Keyring::aServiceThatNeverRepliesIsSilent()
{
    KirvScriptedSecretService service(KirvScriptedSecretService::NeverReplies);
    QVERIFY(service.appear());
    Gaps gaps;
    KirvKeyring keyring({ 10000, 120000, 200 });
    Answer early, late;
    keyring.read(item, &early, early.taker());
    QCOMPARE(keyring.state(), KirvSecretStore::Unknown);
    QTRY_COMPARE(keyring.state(), KirvSecretStore::Silent);
    QTRY_VERIFY(early.has());
    keyring.read(item, &late, late.taker());
    QTRY_VERIFY(late.has());
    QCOMPARE(late.outcome(), KirvSecretStore::TimedOut);
    QVERIFY2(gaps.longest < 200, QByteArray::number(gaps.longest).constData());
    service.leave();
    QTRY_COMPARE(keyring.state(), KirvSecretStore::Unavailable);
}

void tst_Keyring::anOperationThatHangsHoldsNothingUp()
{
    KirvScriptedSecretService service(KirvScriptedSecretService::SaysItsState);
    QVERIFY(service.appear());
    KirvKeyring keyring({ 300, 300, 3000 });
    QTRY_COMPARE(keyring.state(), KirvSecretStore::Ready);
    std::vector<Answer> answers(20);
    Gaps gaps;
    QElapsedTimer timer;
    timer.start();
    for (Answer &answer : answers)
        keyring.read(item, &answer, answer.taker());
    for (const Answer &answer : answers) {
        QTRY_VERIFY(answer.has());
        QCOMPARE(answer.outcome(), KirvSecretStore::TimedOut);
    }
    QVERIFY2(timer.elapsed() < 3 * 300, QByteArray::number(timer.elapsed()).constData());
    QCOMPARE(keyring.state(), KirvSecretStore::Silent);
    QVERIFY2(gaps.longest < 200, QByteArray::number(gaps.longest).constData());
    service.leave(); // which ends the operation
    QTRY_COMPARE(keyring.state(), KirvSecretStore::Unavailable);
}

void tst_Keyring::aRefusalToUnlockIsNoMissingSecret()
{
    KirvScriptedSecretService service(KirvScriptedSecretService::RefusesToUnlock);
    service.isLocked = true;
    QVERIFY(service.appear());
    KirvKeyring keyring;
    QTRY_COMPARE(keyring.state(), KirvSecretStore::Locked);
    Answer read, written;
    keyring.read(item, &read, read.taker());
    QTRY_VERIFY_WITH_TIMEOUT(read.has(), 20000);
    QVERIFY(service.calls().contains(QStringLiteral("Prompt")));
    QCOMPARE(read.outcome(), KirvSecretStore::Refused);
}

void tst_Keyring::aReplyForADestroyedObjectIsDropped()
{
    KirvGnomeKeyring daemon;
    QVERIFY(daemon.start());
    auto keyring = std::make_unique<KirvKeyring>();
    auto context = std::make_unique<QObject>();
    Answer dropped, kept;
    keyring->read(item, context.get(), dropped.taker());
    keyring->read(item, &kept, kept.taker());
    context.reset();
    QTRY_VERIFY(kept.has());
    QVERIFY(!dropped.has());
    keyring->read(item, &dropped, dropped.taker());
    QTRY_VERIFY(keyring->state() == KirvSecretStore::Ready);
    QCoreApplication::processEvents(); // the job runs
    keyring.reset();
    KirvKeyring other; // jobs run one after the other, so the one of the destroyed keyring ends before this one's
    Answer later;
    other.read(item, &later, later.taker());
    QTRY_VERIFY(later.has());
    QVERIFY(!dropped.has());
}

int main(int argc, char *argv[])
{
    kirvEnterPrivateBus(argv);
    kirvForgetPrivateBusFile();
    QCoreApplication application(argc, argv);
    if (application.arguments().contains(QStringLiteral("--write")))
        return writeWithoutBus();
    tst_Keyring test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_keyring.moc"
