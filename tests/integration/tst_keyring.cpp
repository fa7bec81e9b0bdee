// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/store/kirv_keyring.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/servers/kirv_gnome_keyring.h"
#include "tests/support/servers/kirv_private_bus.h"
#include "tests/support/servers/kirv_scripted_secret_service.h"
#include "tests/support/servers/kirv_scripted_wallet.h"
#include "tests/support/servers/kirv_silent_bus.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QMetaEnum>
#include <QProcess>
#include <QSignalSpy>
#include <QSocketNotifier>
#include <QTemporaryFile>
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

/// Counts turns of the event loop. What waits for a tenth of a second or longer in one of them leaves none.
class Turns : public QObject {
public:
    Turns() { startTimer(10, Qt::PreciseTimer); }
    int count = 0;

protected:
    void timerEvent(QTimerEvent *) override { ++count; }
};

/// Starts this program again, with its last arguments and with variables of its own: the library for the bus reads the
/// address once, and QtKeychain chooses once.
void startAgain(QProcess &process, const QString &argument, const QMap<QString, QByteArray> &variables)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (auto variable = variables.constBegin(); variable != variables.constEnd(); ++variable)
        environment.insert(variable.key(), QString::fromLatin1(*variable));
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(), { argument });
}

/// Only the state that a service does not say comes in time.
const KirvKeyring::Limits onlyTheReply { 10 * kirvPatience, 10 * kirvPatience, 500 };

const QString busVariable = QStringLiteral("DBUS_SESSION_BUS_ADDRESS");

} // namespace

class tst_Keyring : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void withoutABusThereIsNoKeyringAtOnce_data();
    void withoutABusThereIsNoKeyringAtOnce();
    void aBusThatDoesNotAnswerHoldsNothingUp_data();
    void aBusThatDoesNotAnswerHoldsNothingUp();
    void aBusThatHangsUpIsNone();
    void theServiceThatIsShownIsUsedInEverySession();
    void onlyTheBusSaysWhoOffersTheService();
    void withoutAServiceThereIsNoKeyring();
    void aSecretIsWrittenReadAndRemoved();
    void whatIsNotThereIsMissing();
    void lockingAndUnlockingAreNoticed();
    void aLockedSecretIsNotMissing();
    void aKeyringThatGoesAndComesIsNoticed();
    void aServiceThatNeverRepliesIsSilent();
    void anOperationThatHangsHoldsNothingUp();
    void aRefusalToUnlockIsNoMissingSecret();
    void aQuestionThatIsAnsweredLateIsAskedOnce();
    void aReplyForADestroyedObjectIsDropped();
    void aReplyMayDestroyTheKeyring_data();
    void aReplyMayDestroyTheKeyring();
    void anItemInAnotherKeyringThatIsLockedIsNotRemoved();
    void aSecretIsNotMissingWhenTheKeyringIsUnlockedMeanwhile();
    void aLockedServiceThatHangsIsSilent();
    void theProgramOutlivesItsBus();
    void aKeyringThatIsInstalledIsStarted();
    void aKeyringThatCannotBeStartedIsNone();
};

void tst_Keyring::withoutABusThereIsNoKeyringAtOnce_data()
{
    QTest::addColumn<QByteArray>("bus");
    QTest::newRow("no address") << QByteArray();
    QTest::newRow("no socket") << QByteArray("unix:path=/nonexistent");
    QTest::newRow("nothing listens") << QByteArray("unix:abstract=/nonexistent-kirv-bus");
    QTest::newRow("nonsense") << QByteArray("nonsense");
}

void tst_Keyring::withoutABusThereIsNoKeyringAtOnce()
{
    QFETCH(QByteArray, bus);
    QProcess process;
    startAgain(process, QStringLiteral("--write"), { { busVariable, bus } });
    QVERIFY(process.waitForFinished(kirvPatience));
    QCOMPARE(process.readAllStandardOutput(), QByteArray("unavailable at once, then failed"));
}

/// What that process does.
static int writeWithoutBus()
{
    KirvKeyring keyring;
    const bool isAtOnce = keyring.state() == KirvSecretStore::Unavailable;
    Answer answer;
    keyring.write(item, QStringLiteral("secret"), &answer, answer.taker());
    const bool isLater = !answer.has(); // from the event loop
    const bool isAnswered = QTest::qWaitFor([&] { return answer.has(); }, kirvPatience);
    std::printf("%s, then %s", isAtOnce && isLater ? "unavailable at once" : "something else",
                isAnswered && answer.outcome() == KirvSecretStore::Failed ? "failed" : "something else");
    return 0;
}

void tst_Keyring::aBusThatDoesNotAnswerHoldsNothingUp_data()
{
    QTest::addColumn<int>("script");
    QTest::addColumn<bool>("answersLater");
    QTest::newRow("never answers") << int(KirvSilentBus::NeverAnswers) << false;
    QTest::newRow("answers the log-in only") << int(KirvSilentBus::AnswersLogin) << false;
    QTest::newRow("accepts no connection") << int(KirvSilentBus::AcceptsNothing) << false;
    QTest::newRow("answers late") << int(KirvSilentBus::NeverAnswers) << true;
    QTest::newRow("accepts connections late") << int(KirvSilentBus::AcceptsNothing) << true;
}

void tst_Keyring::aBusThatDoesNotAnswerHoldsNothingUp()
{
    QFETCH(int, script);
    QFETCH(bool, answersLater);
    KirvGnomeKeyring daemon;
    QVERIFY(daemon.start());
    KirvSilentBus bus { KirvSilentBus::Script(script) };
    QVERIFY(bus.isReady());
    QProcess process;
    startAgain(process, QStringLiteral("--follow"), { { busVariable, bus.address() } });
    QByteArray said;
    const auto says = [&](const char *text) {
        said += process.readAllStandardOutput();
        return said.contains(text);
    };
    KIRV_TRY_SAYING(says("\n"), "nothing in time");
    KIRV_TRY_SAYING(says("wrote TimedOut\n"), said.constData());
    QVERIFY2(said.startsWith("Unknown, Silent while it turns"), said.constData());
    if (answersLater) {
        bus.pass();
        KIRV_TRY_SAYING(says("Ready"), said.constData());
    }
    process.closeWriteChannel(); // which ends it
    KIRV_TRY_COMPARE(process.state(), QProcess::NotRunning);
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
}

/// What that process does.
static int followStates()
{
    const Turns turns;
    KirvKeyring keyring(onlyTheReply);
    const auto say = [&keyring] {
        std::printf("%s", QMetaEnum::fromType<KirvSecretStore::State>().valueToKey(keyring.state()));
    };
    say();
    Answer answer;
    QObject::connect(&keyring, &KirvSecretStore::stateChanged, &answer, [&] {
        std::printf(", ");
        say();
        if (keyring.state() == KirvSecretStore::Silent && !answer.has()) {
            std::printf(turns.count > 3 ? " while it turns\n" : " after %d turns\n", turns.count);
            keyring.write(item, QStringLiteral("secret"), &answer, [&](const KirvSecretStore::Reply &reply) {
                std::printf("wrote %s\n", QMetaEnum::fromType<KirvSecretStore::Outcome>().valueToKey(reply.outcome));
                std::fflush(stdout);
            });
        }
        std::fflush(stdout);
    });
    const QSocketNotifier input(fileno(stdin), QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &answer, &QCoreApplication::quit);
    return QCoreApplication::exec();
}

void tst_Keyring::aBusThatHangsUpIsNone()
{
    const KirvSilentBus bus(KirvSilentBus::HangsUp);
    QVERIFY(bus.isReady());
    QProcess process;
    startAgain(process, QStringLiteral("--follow"), { { busVariable, bus.address() } });
    QByteArray said;
    KIRV_TRY_SAYING((said += process.readAllStandardOutput()).contains("Unavailable"), said.constData());
    QCOMPARE(said, QByteArray("Unknown, Unavailable"));
    process.closeWriteChannel();
    KIRV_TRY_COMPARE(process.state(), QProcess::NotRunning);
}

/// In Plasma QtKeychain prefers another interface of KWallet to the Secret Service, whoever offers that.
void tst_Keyring::theServiceThatIsShownIsUsedInEverySession()
{
    KirvGnomeKeyring daemon;
    QVERIFY(daemon.start());
    KirvScriptedWallet wallet;
    QVERIFY(wallet.appear());
    QProcess process;
    startAgain(process, QStringLiteral("--keep"),
               { { QStringLiteral("XDG_CURRENT_DESKTOP"), "KDE" },
                 { QStringLiteral("KDE_SESSION_VERSION"), "5" },
                 { QStringLiteral("KDE_FULL_SESSION"), "true" } });
    KIRV_TRY_COMPARE(process.state(), QProcess::NotRunning);
    QCOMPARE(process.readAllStandardOutput(), QByteArray("GNOME Keyring Done KDE"));
    QCOMPARE(daemon.count(), 1);
    QCOMPARE(wallet.calls(), 0);
}

/// What that process does.
static int keepInPlasma()
{
    KirvKeyring keyring;
    Answer answer;
    keyring.write(item, QStringLiteral("secret"), &answer, answer.taker());
    if (!QTest::qWaitFor([&] { return answer.has(); }, kirvPatience))
        return 1;
    std::printf("%s %s %s", qPrintable(keyring.providerName()),
                QMetaEnum::fromType<KirvSecretStore::Outcome>().valueToKey(answer.outcome()),
                qgetenv("XDG_CURRENT_DESKTOP").constData());
    return 0;
}

void tst_Keyring::onlyTheBusSaysWhoOffersTheService()
{
    KirvGnomeKeyring daemon;
    QVERIFY(daemon.start());
    KirvKeyring keyring;
    KIRV_TRY_COMPARE(keyring.state(), KirvSecretStore::Ready);
    QSignalSpy changes(&keyring, &KirvSecretStore::stateChanged);
    const QString bus = QStringLiteral("org.freedesktop.DBus");
    QDBusMessage forged =
        QDBusMessage::createSignal(QStringLiteral("/org/freedesktop/DBus"), bus, QStringLiteral("NameOwnerChanged"));
    forged.setArguments({ QStringLiteral("org.freedesktop.secrets"), QStringLiteral(":1.1"), QString() });
    QVERIFY(QDBusConnection::sessionBus().send(forged));
    Answer written; // later than the signal
    keyring.write(item, QStringLiteral("secret"), &written, written.taker());
    KIRV_TRY(written.has());
    QCOMPARE(written.outcome(), KirvSecretStore::Done);
    QCOMPARE(keyring.state(), KirvSecretStore::Ready);
    QVERIFY(changes.isEmpty());
}

void tst_Keyring::withoutAServiceThereIsNoKeyring()
{
    KirvKeyring keyring;
    KIRV_TRY_COMPARE(keyring.state(), KirvSecretStore::Unavailable);
}

void tst_Keyring::aSecretIsWrittenReadAndRemoved()
{
    KirvGnomeKeyring daemon;
    QVERIFY(daemon.start());
    KirvKeyring keyring;
    KIRV_TRY_COMPARE(keyring.state(), KirvSecretStore::Ready);
    QCOMPARE(keyring.providerName(), QStringLiteral("GNOME Keyring"));
    const QString secret = QString::fromUtf8("pass \xc3\xa4\xe2\x82\xac\xf0\x9f\x94\x91\nword ") + QString(5000, u'x');
    Answer written, read, removed, gone;
    keyring.write(item, secret, &written, written.taker());
    keyring.read(item, &read, read.taker());
    keyring.remove(item, &removed, removed.taker());
    keyring.read(item, &gone, gone.taker());
    KIRV_TRY(gone.has());
    QCOMPARE(written.outcome(), KirvSecretStore::Done);
    QCOMPARE(read.outcome(), KirvSecretStore::Done);
    QCOMPARE(read.reply->secret, secret);
    QCOMPARE(removed.outcome(), KirvSecretStore::Missing); // now
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
    KIRV_TRY(removed.has());
    QCOMPARE(read.outcome(), KirvSecretStore::Missing);
    QCOMPARE(removed.outcome(), KirvSecretStore::Missing);
}

void tst_Keyring::lockingAndUnlockingAreNoticed()
{
    KirvGnomeKeyring daemon;
    QVERIFY(daemon.start());
    KirvKeyring keyring;
    KIRV_TRY_COMPARE(keyring.state(), KirvSecretStore::Ready);
    QVERIFY(daemon.lock());
    KIRV_TRY_COMPARE(keyring.state(), KirvSecretStore::Locked);
    QVERIFY(daemon.unlock());
    KIRV_TRY_COMPARE(keyring.state(), KirvSecretStore::Ready);
}

void tst_Keyring::aLockedSecretIsNotMissing()
{
    KirvGnomeKeyring daemon;
    QVERIFY(daemon.start());
    KirvKeyring keyring;
    Answer written, read;
    keyring.write(item, QStringLiteral("secret"), &written, written.taker());
    KIRV_TRY(written.has());
    QVERIFY2(written.outcome() == KirvSecretStore::Done, written.text());
    QVERIFY(daemon.lock());
    KIRV_TRY_COMPARE(keyring.state(), KirvSecretStore::Locked);
    keyring.read(item, &read, read.taker()); // nobody is there who could be asked
    KIRV_TRY(read.has());
    QVERIFY2(read.outcome() != KirvSecretStore::Missing, qPrintable(read.reply->text));
    QVERIFY(read.outcome() != KirvSecretStore::Done);
}

void tst_Keyring::aKeyringThatGoesAndComesIsNoticed()
{
    KirvGnomeKeyring daemon;
    QVERIFY(daemon.start());
    KirvKeyring keyring;
    KIRV_TRY_COMPARE(keyring.state(), KirvSecretStore::Ready);
    Answer written, failed, read;
    keyring.write(item, QStringLiteral("secret"), &written, written.taker());
    KIRV_TRY(written.has());
    QVERIFY2(written.outcome() == KirvSecretStore::Done, written.text());
    daemon.stop();
    KIRV_TRY_COMPARE(keyring.state(), KirvSecretStore::Unavailable);
    keyring.read(item, &failed, failed.taker());
    KIRV_TRY_COMPARE(failed.count, 1);
    QCOMPARE(failed.outcome(), KirvSecretStore::Failed);
    QVERIFY(daemon.start());
    KIRV_TRY_COMPARE(keyring.state(), KirvSecretStore::Ready);
    keyring.read(item, &read, read.taker());
    KIRV_TRY(read.has());
    QCOMPARE(read.outcome(), KirvSecretStore::Done);
    QCOMPARE(read.reply->secret, QStringLiteral("secret"));
}

void tst_Keyring::aServiceThatNeverRepliesIsSilent()
{
    KirvScriptedSecretService service(KirvScriptedSecretService::NeverReplies);
    QVERIFY(service.appear());
    const Turns turns;
    KirvKeyring keyring(onlyTheReply);
    Answer early, late;
    keyring.read(item, &early, early.taker());
    QCOMPARE(keyring.state(), KirvSecretStore::Unknown);
    KIRV_TRY_COMPARE(keyring.state(), KirvSecretStore::Silent);
    KIRV_TRY(early.has());
    keyring.read(item, &late, late.taker());
    KIRV_TRY(late.has());
    QCOMPARE(late.outcome(), KirvSecretStore::TimedOut);
    QVERIFY2(turns.count > 3, QByteArray::number(turns.count).constData());
    service.leave();
    KIRV_TRY_COMPARE(keyring.state(), KirvSecretStore::Unavailable);
}

void tst_Keyring::anOperationThatHangsHoldsNothingUp()
{
    KirvScriptedSecretService service(KirvScriptedSecretService::SaysItsState);
    QVERIFY(service.appear());
    KirvKeyring keyring({ 300, 300, 3000 });
    KIRV_TRY_COMPARE(keyring.state(), KirvSecretStore::Ready);
    std::vector<Answer> answers(20);
    const Turns turns;
    for (Answer &answer : answers)
        keyring.read(item, &answer, answer.taker());
    for (const Answer &answer : answers) {
        KIRV_TRY(answer.has());
        QCOMPARE(answer.outcome(), KirvSecretStore::TimedOut);
    }
    QVERIFY(service.calls().count(QStringLiteral("GetAll"))
            < int(answers.size()) / 2); // one, and what is left of others
    QCOMPARE(keyring.state(), KirvSecretStore::Silent);
    QVERIFY2(turns.count > 3, QByteArray::number(turns.count).constData());
    service.leave(); // which ends the operation
    KIRV_TRY_COMPARE(keyring.state(), KirvSecretStore::Unavailable);
}

void tst_Keyring::aRefusalToUnlockIsNoMissingSecret()
{
    KirvScriptedSecretService service(KirvScriptedSecretService::RefusesToUnlock);
    service.isLocked = true;
    QVERIFY(service.appear());
    KirvKeyring keyring;
    KIRV_TRY_COMPARE(keyring.state(), KirvSecretStore::Locked);
    Answer read, written;
    keyring.read(item, &read, read.taker());
    KIRV_TRY(read.has());
    QVERIFY(service.calls().contains(QStringLiteral("Prompt")));
    QCOMPARE(read.outcome(), KirvSecretStore::Refused);
}

void tst_Keyring::aQuestionThatIsAnsweredLateIsAskedOnce()
{
    KirvScriptedSecretService service(KirvScriptedSecretService::Asks);
    service.isLocked = true;
    QVERIFY(service.appear());
    KirvKeyring keyring({ 10 * kirvPatience, 3000, 10 * kirvPatience });
    KIRV_TRY_COMPARE(keyring.state(), KirvSecretStore::Locked);
    Answer late, next, last;
    const Turns turns;
    keyring.read(item, &late, late.taker());
    KIRV_TRY(late.has());
    QCOMPARE(late.outcome(), KirvSecretStore::TimedOut);
    QVERIFY2(turns.count > 3, QByteArray::number(turns.count).constData());
    keyring.read(item, &next, next.taker());
    KIRV_TRY(next.has());
    QCOMPARE(next.outcome(), KirvSecretStore::TimedOut); // the question is still open
    KIRV_TRY_COMPARE(service.calls().count(QStringLiteral("Prompt")), 1);
    service.acceptQuestion();
    KIRV_TRY_COMPARE(keyring.state(), KirvSecretStore::Ready);
    keyring.read(item, &last, last.taker());
    KIRV_TRY(last.has());
    QCOMPARE(last.outcome(), KirvSecretStore::Done);
    QCOMPARE(last.reply->secret, KirvScriptedSecretService::secret());
    QCOMPARE(service.calls().count(QStringLiteral("Prompt")), 1);
}

void tst_Keyring::aReplyMayDestroyTheKeyring_data()
{
    QTest::addColumn<bool>("saysItsState");
    QTest::newRow("of an operation that hangs") << true;
    QTest::newRow("of one that was not started") << false;
}

void tst_Keyring::aReplyMayDestroyTheKeyring()
{
    QFETCH(bool, saysItsState);
    KirvScriptedSecretService service(saysItsState ? KirvScriptedSecretService::SaysItsState
                                                   : KirvScriptedSecretService::NeverReplies);
    QVERIFY(service.appear());
    auto keyring = std::make_unique<KirvKeyring>(KirvKeyring::Limits { 300, 300, saysItsState ? 3000 : 500 });
    if (saysItsState)
        KIRV_TRY_COMPARE(keyring->state(), KirvSecretStore::Ready);
    QObject context;
    keyring->read(item, &context, [&keyring](const KirvSecretStore::Reply &) { keyring.reset(); });
    KIRV_TRY(!keyring);
    service.leave();
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
    KIRV_TRY(kept.has());
    QVERIFY(!dropped.has());
    keyring->read(item, &dropped, dropped.taker());
    KIRV_TRY(keyring->state() == KirvSecretStore::Ready);
    QCoreApplication::processEvents(); // the job runs
    keyring.reset();
    KirvKeyring other; // jobs run one after the other, so the one of the destroyed keyring ends before this one's
    Answer later;
    other.read(item, &later, later.taker());
    KIRV_TRY(later.has());
    QVERIFY(!dropped.has());
}

/// The user has moved it there, and nobody unlocks that.
void tst_Keyring::anItemInAnotherKeyringThatIsLockedIsNotRemoved()
{
    KirvGnomeKeyring daemon;
    QVERIFY(daemon.start());
    KirvKeyring keyring;
    Answer written, read, removed;
    keyring.write(item, QStringLiteral("secret"), &written, written.taker());
    KIRV_TRY(written.has());
    QVERIFY2(written.outcome() == KirvSecretStore::Done, written.text());
    QVERIFY(daemon.moveIntoLockedCollection(QStringLiteral("secret")));
    QCOMPARE(keyring.state(), KirvSecretStore::Ready);
    keyring.read(item, &read, read.taker());
    KIRV_TRY(read.has());
    QVERIFY2(read.outcome() == KirvSecretStore::Missing, read.text()); // for the account, which asks for it
    keyring.remove(item, &removed, removed.taker());
    KIRV_TRY(removed.has());
    QVERIFY2(removed.outcome() == KirvSecretStore::Refused, removed.text());
}

/// The library says of one that it cannot unlock what it says of one that is not there.
void tst_Keyring::aSecretIsNotMissingWhenTheKeyringIsUnlockedMeanwhile()
{
    KirvGnomeKeyring daemon;
    QVERIFY(daemon.start());
    KirvKeyring keyring;
    Answer written;
    keyring.write(item, QStringLiteral("secret"), &written, written.taker());
    KIRV_TRY(written.has());
    for (int turns = 0; turns < 40; ++turns) { // it is unlocked later each time
        QVERIFY(daemon.lock());
        KIRV_TRY_COMPARE(keyring.state(), KirvSecretStore::Locked);
        Answer read;
        keyring.read(item, &read, read.taker());
        for (int turn = 0; turn < turns && !read.has(); ++turn)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents); // the watcher has timers
        QVERIFY(daemon.unlock());
        KIRV_TRY(read.has());
        QVERIFY2(read.outcome() != KirvSecretStore::Missing, QByteArray::number(turns).constData());
        KIRV_TRY_COMPARE(keyring.state(), KirvSecretStore::Ready);
    }
}

/// After it has said that it is locked, which is looked at again and again.
void tst_Keyring::aLockedServiceThatHangsIsSilent()
{
    KirvScriptedSecretService service(KirvScriptedSecretService::RefusesToUnlock);
    service.isLocked = true;
    QVERIFY(service.appear());
    KirvKeyring keyring({ 10 * kirvPatience, 10 * kirvPatience, 1500 });
    KIRV_TRY_COMPARE(keyring.state(), KirvSecretStore::Locked);
    service.isHung = true;
    KIRV_TRY_COMPARE(keyring.state(), KirvSecretStore::Silent);
    service.leave();
    KIRV_TRY_COMPARE(keyring.state(), KirvSecretStore::Unavailable);
}

/// Which ends here with the keyring on it, as at the end of a session.
void tst_Keyring::theProgramOutlivesItsBus()
{
    QTemporaryFile configuration;
    QVERIFY(configuration.open());
    QVERIFY(configuration.write(kirvPrivateBusConfiguration()) > 0 && configuration.flush());
    QProcess bus;
    bus.start(QStringLiteral("dbus-daemon"),
              { QStringLiteral("--config-file=") + configuration.fileName(), QStringLiteral("--nofork"),
                QStringLiteral("--print-address=1") });
    KIRV_TRY(bus.canReadLine());
    QProcess process;
    startAgain(process, QStringLiteral("--outlive"), { { busVariable, bus.readLine().trimmed() } });
    QByteArray said;
    const auto says = [&](const char *text) {
        said += process.readAllStandardOutput();
        return said.contains(text);
    };
    KIRV_TRY_SAYING(says("wrote Done\n"), said.constData());
    bus.kill();
    QVERIFY(bus.waitForFinished(kirvPatience));
    KIRV_TRY_SAYING(says("Unavailable\n"), said.constData());
    KIRV_TRY_SAYING(says("wrote Failed\n"), said.constData());
    KIRV_TRY_COMPARE(process.state(), QProcess::NotRunning);
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
}

/// What that process does.
static int writeBeforeAndAfter()
{
    KirvGnomeKeyring daemon;
    KirvKeyring keyring;
    const auto write = [&keyring] {
        Answer answer;
        keyring.write(item, QStringLiteral("secret"), &answer, answer.taker());
        const bool isAnswered = QTest::qWaitFor([&] { return answer.has(); }, kirvPatience);
        std::printf("wrote %s\n",
                    isAnswered ? QMetaEnum::fromType<KirvSecretStore::Outcome>().valueToKey(answer.outcome()) : "-");
        std::fflush(stdout);
    };
    if (!daemon.start() || !QTest::qWaitFor([&] { return keyring.state() == KirvSecretStore::Ready; }, kirvPatience))
        return 1;
    write();
    if (!QTest::qWaitFor([&] { return keyring.state() == KirvSecretStore::Unavailable; }, kirvPatience))
        return 1;
    std::printf("Unavailable\n");
    write();
    return 0;
}

/// What a process says that runs with \a argument on a bus that starts the Secret Service by \a command.
static QByteArray saidWithService(const QString &argument, const QString &command)
{
    const QTemporaryDir services;
    QFile service(services.filePath(QStringLiteral("org.freedesktop.secrets.service")));
    QTemporaryFile configuration;
    const bool isWritten = service.open(QIODevice::WriteOnly) && configuration.open()
        && service.write("[D-BUS Service]\nName=org.freedesktop.secrets\nExec=" + command.toUtf8() + '\n') > 0
        && configuration.write(kirvPrivateBusConfiguration(services.path().toUtf8())) > 0 && configuration.flush();
    service.close();
    QProcess bus;
    bus.start(QStringLiteral("dbus-daemon"),
              { QStringLiteral("--config-file=") + configuration.fileName(), QStringLiteral("--nofork"),
                QStringLiteral("--print-address=1") });
    if (!isWritten || !QTest::qWaitFor([&] { return bus.canReadLine(); }, kirvPatience))
        return QByteArray();
    QProcess process;
    startAgain(process, argument, { { busVariable, bus.readLine().trimmed() } });
    const bool hasEnded = process.waitForFinished(kirvPatience);
    bus.terminate();
    return bus.waitForFinished(kirvPatience) && hasEnded ? process.readAllStandardOutput() : QByteArray();
}

/// As after the log-in to a desktop that starts none.
void tst_Keyring::aKeyringThatIsInstalledIsStarted()
{
    KirvGnomeKeyring before;
    QVERIFY(before.start()); // makes its files
    before.stop();
    const QString command = QStringLiteral("/usr/bin/env HOME=%1 XDG_DATA_HOME=%1 XDG_RUNTIME_DIR=%1 "
                                           "gnome-keyring-daemon --start --foreground --components=secrets")
                                .arg(before.folder());
    QCOMPARE(saidWithService(QStringLiteral("--state"), command), QByteArray("GNOME Keyring Locked"));
}

void tst_Keyring::aKeyringThatCannotBeStartedIsNone()
{
    QCOMPARE(saidWithService(QStringLiteral("--state"), QStringLiteral("/bin/false")), QByteArray(" Unavailable"));
}

/// What those processes do.
static int sayState()
{
    KirvKeyring keyring({ 10 * kirvPatience, 10 * kirvPatience, 10 * kirvPatience });
    if (!QTest::qWaitFor([&] { return keyring.state() != KirvSecretStore::Unknown; }, kirvPatience))
        return 1;
    std::printf("%s %s", qPrintable(keyring.providerName()),
                QMetaEnum::fromType<KirvSecretStore::State>().valueToKey(keyring.state()));
    return 0;
}

int main(int argc, char *argv[])
{
    kirvEnterPrivateBus(argv);
    kirvForgetPrivateBusFile();
    QCoreApplication application(argc, argv);
    if (application.arguments().contains(QStringLiteral("--write")))
        return writeWithoutBus();
    if (application.arguments().contains(QStringLiteral("--follow")))
        return followStates();
    if (application.arguments().contains(QStringLiteral("--keep")))
        return keepInPlasma();
    if (application.arguments().contains(QStringLiteral("--outlive")))
        return writeBeforeAndAfter();
    if (application.arguments().contains(QStringLiteral("--state")))
        return sayState();
    tst_Keyring test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_keyring.moc"
