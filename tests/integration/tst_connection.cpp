// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/fakes/kirv_fake_clock.h"
#include "tests/support/fakes/kirv_fake_connection.h"
#include "tests/support/kirv_patience.h"

#include <QPointer>
#include <QtTest>

#include <stdexcept>

namespace {

using State = KirvConnection::State;

const KirvPresence available(QStringLiteral("available"), QStringLiteral("Available"), QString());
const KirvPresence away(QStringLiteral("away"), QStringLiteral("Away"), QString(), QStringLiteral("at lunch"));
const KirvPresence offline(QStringLiteral("offline"), QStringLiteral("Offline"), QString());
const KirvLogin login { QStringLiteral("ann"), QStringLiteral("secret"), {} };
const KirvLogin otherLogin { QStringLiteral("ann"), QStringLiteral("changed"), {} };

} // namespace

class tst_Connection : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void logsInAndOut();
    void emitsOnlyRealChangesOfTheState();
    void arrivesWithThePresenceThatWasWantedLast();
    void changesThePresenceWhileOnline();
    void aLoginThatTakesTooLongIsBrokenOff();
    void aLoginInTimeIsNotBrokenOff();
    void waitsTwiceAsLongAfterEachFailure();
    void aShortSuccessDoesNotShortenTheWait();
    void aLastingSuccessShortensTheWait();
    void loggingInAgainShortensTheWait();
    void changingThePresenceKeepsTheWait();
    void retriesOnlyWhatMayHelp_data();
    void retriesOnlyWhatMayHelp();
    void emitsEachFailureOnce();
    void forgetsTheFailureAfterASuccess();
    void saysSinceWhenAndUntilWhen();
    void logsOut_data();
    void logsOut();
    void loggingInEndsTheWait();
    void loggingInWhileLoggingOutComesBack();
    void aLogOutCancelsComingBack();
    void aLogoutIsBounded();
    void logsInAgain_data();
    void logsInAgain();
    void theServersNewPasswordKeepsTheSession();
    void itsProtocolSaysWhichPresenceIsOffline();
    void avatarsArePublishedWhileOnline();
    void anotherNetworkIsReactedTo_data();
    void anotherNetworkIsReactedTo();
    void anotherNetworkShortensTheWaits();
    void anotherNetworkKeepsTheTurns();
    void drops_data();
    void drops();
    void ignoresLateReports_data();
    void ignoresLateReports();
    void ignoresReportsOfItsOwnAbort();
    void takesSynchronousAnswers();
    void noExceptionOfTheProtocolLeavesIt();
    void survivesItsDestructionInASlot_data();
    void survivesItsDestructionInASlot();
    void survivesItsDestructionWhenAFailureIsEmitted();
    void survivesItsDestructionInEveryState_data();
    void survivesItsDestructionInEveryState();
    void aSlotMayMoveItOn();
    void theSystemClockCallsLater();
    void theSystemClockForgetsADestroyedContext();

private:
    void bringTo(State state);
    QList<State> takeStates();

    KirvFakeClock clock;
    QPointer<KirvFakeConnection> connection;
    QList<State> states;
    QList<KirvFailure> failures;
};

void tst_Connection::init()
{
    const auto server = std::make_shared<KirvFakeServer>();
    server->logIn = server->logOut = KirvFakeServer::Holds;
    connection = new KirvFakeConnection(server, clock);
    KirvConnection::Timing timing;
    timing.backOff.jitter = 0;
    connection->setTiming(timing);
    states.clear();
    failures.clear();
    connect(connection, &KirvConnection::stateChanged, this, [this](State state) { states.append(state); });
    connect(connection, &KirvConnection::failed, this,
            [this](const KirvFailure &failure) { failures.append(failure); });
}

void tst_Connection::cleanup()
{
    delete connection;
}

/// Brings a new connection to \a state and forgets how it came there.
void tst_Connection::bringTo(State state)
{
    if (state != State::Offline)
        connection->logIn(login, available);
    if (state == State::Waiting)
        connection->loginFailed(KirvFailure::ConnectionRefused);
    if (state == State::Online || state == State::Disconnecting)
        connection->loginSucceeded();
    if (state == State::Disconnecting)
        connection->logOut();
    QCOMPARE(connection->state(), state);
    connection->takeCalls();
    states.clear();
    failures.clear();
}

QList<State> tst_Connection::takeStates()
{
    return std::exchange(states, {});
}

void tst_Connection::logsInAndOut()
{
    QCOMPARE(connection->state(), State::Offline);
    connection->logIn(login, available);
    QCOMPARE(connection->state(), State::Connecting);
    QVERIFY(!connection->isLoggedIn());
    connection->loginSucceeded();
    QVERIFY(connection->isLoggedIn());
    QCOMPARE(connection->takeCalls(), QStringList { "ann log in available secret" });

    connection->logOut();
    QCOMPARE(connection->state(), State::Disconnecting);
    QCOMPARE(connection->takeCalls(), QStringList { "ann log out" });
    connection->logoutFinished();
    QCOMPARE(takeStates(), (QList<State> { State::Connecting, State::Online, State::Disconnecting, State::Offline }));
    clock.advance(1000000);
    QCOMPARE(connection->takeCalls(), QStringList());
    QCOMPARE(takeStates(), QList<State>());
}

void tst_Connection::emitsOnlyRealChangesOfTheState()
{
    connection->logIn(login, available);
    connection->logIn(login, available);
    connection->logIn(otherLogin, away);
    QCOMPARE(takeStates(), QList<State> { State::Connecting });
    connection->loginSucceeded();
    connection->loginSucceeded();
    connection->changePresence(available);
    QCOMPARE(takeStates(), QList<State> { State::Online });
    connection->drop();
    connection->drop();
    connection->logOut();
    QCOMPARE(takeStates(), QList<State> { State::Offline });
}

void tst_Connection::arrivesWithThePresenceThatWasWantedLast()
{
    connection->changePresence(away);
    QCOMPARE(connection->takeCalls(), QStringList());
    connection->logIn(login, available);
    connection->changePresence(away);
    QCOMPARE(connection->takeCalls(), QStringList { "ann log in available secret" });
    connection->loginSucceeded();
    QCOMPARE(connection->takeCalls(), QStringList { "ann presence away" });
    QCOMPARE(connection->presence().getDescription(), QStringLiteral("at lunch"));
}

void tst_Connection::changesThePresenceWhileOnline()
{
    bringTo(State::Online);
    connection->changePresence(away);
    QCOMPARE(connection->takeCalls(), QStringList { "ann presence away" });
    QCOMPARE(takeStates(), QList<State>());
}

void tst_Connection::aLoginThatTakesTooLongIsBrokenOff()
{
    bringTo(State::Connecting);
    clock.advance(connection->timing().loginTimeout - 1);
    QCOMPARE(connection->state(), State::Connecting);
    clock.advance(1);
    QCOMPARE(connection->takeCalls(), QStringList { "ann abort" });
    QCOMPARE(connection->state(), State::Waiting);
    QCOMPARE(connection->lastFailure().kind(), KirvFailure::TimedOut);
    clock.advance(connection->timing().backOff.first);
    QCOMPARE(connection->takeCalls(), QStringList { "ann log in available secret" });
    QCOMPARE(connection->state(), State::Connecting);
}

void tst_Connection::aLoginInTimeIsNotBrokenOff()
{
    bringTo(State::Online);
    clock.advance(connection->timing().loginTimeout);
    QCOMPARE(connection->takeCalls(), QStringList());
    QVERIFY(connection->isLoggedIn());
}

void tst_Connection::waitsTwiceAsLongAfterEachFailure()
{
    connection->logIn(login, available);
    for (const int wait : { 2000, 4000, 8000, 16000, 32000, 64000, 128000, 256000, 300000, 300000 }) {
        connection->loginFailed(KirvFailure::HostNotFound);
        QCOMPARE(connection->state(), State::Waiting);
        clock.advance(wait - 1);
        QCOMPARE(connection->state(), State::Waiting);
        clock.advance(1);
        QCOMPARE(connection->state(), State::Connecting);
    }
}

void tst_Connection::aShortSuccessDoesNotShortenTheWait()
{
    bringTo(State::Waiting);
    clock.advance(2000);
    connection->loginSucceeded();
    clock.advance(29999);
    connection->connectionLost(KirvFailure::ConnectionLost);
    QCOMPARE(clock.now().msecsTo(connection->nextRetry()), 4000);
}

void tst_Connection::aLastingSuccessShortensTheWait()
{
    bringTo(State::Waiting);
    clock.advance(2000);
    connection->loginSucceeded();
    clock.advance(30000);
    connection->connectionLost(KirvFailure::ConnectionLost);
    QCOMPARE(clock.now().msecsTo(connection->nextRetry()), 2000);
}

void tst_Connection::loggingInAgainShortensTheWait()
{
    bringTo(State::Waiting);
    clock.advance(2000);
    connection->loginFailed(KirvFailure::ConnectionRefused);
    connection->logIn(login, available);
    connection->loginFailed(KirvFailure::ConnectionRefused);
    QCOMPARE(clock.now().msecsTo(connection->nextRetry()), 2000);
}

void tst_Connection::changingThePresenceKeepsTheWait()
{
    bringTo(State::Waiting);
    connection->changePresence(away);
    QCOMPARE(connection->state(), State::Waiting);
    QCOMPARE(connection->takeCalls(), QStringList());
    clock.advance(connection->timing().backOff.first);
    QCOMPARE(connection->takeCalls(), QStringList { "ann log in away secret" });
}

void tst_Connection::retriesOnlyWhatMayHelp_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("retries");
    QTest::newRow("WrongPassword") << int(KirvFailure::WrongPassword) << false;
    QTest::newRow("PasswordMissing") << int(KirvFailure::PasswordMissing) << false;
    QTest::newRow("HostNotFound") << int(KirvFailure::HostNotFound) << true;
    QTest::newRow("ConnectionRefused") << int(KirvFailure::ConnectionRefused) << true;
    QTest::newRow("TimedOut") << int(KirvFailure::TimedOut) << true;
    QTest::newRow("UntrustedCertificate") << int(KirvFailure::UntrustedCertificate) << false;
    QTest::newRow("EncryptionNotOffered") << int(KirvFailure::EncryptionNotOffered) << false;
    QTest::newRow("AuthenticationNotOffered") << int(KirvFailure::AuthenticationNotOffered) << false;
    QTest::newRow("ConnectionLost") << int(KirvFailure::ConnectionLost) << true;
    QTest::newRow("ServerShutDown") << int(KirvFailure::ServerShutDown) << true;
    QTest::newRow("LoggedInElsewhere") << int(KirvFailure::LoggedInElsewhere) << false;
    QTest::newRow("NameInUse") << int(KirvFailure::NameInUse) << false;
    QTest::newRow("NameNotAllowed") << int(KirvFailure::NameNotAllowed) << false;
    QTest::newRow("AccessDenied") << int(KirvFailure::AccessDenied) << false;
    QTest::newRow("BadSettings") << int(KirvFailure::BadSettings) << false;
    QTest::newRow("NotSupported") << int(KirvFailure::NotSupported) << false;
    QTest::newRow("RequestFailed") << int(KirvFailure::RequestFailed) << false;
    QTest::newRow("Other") << int(KirvFailure::Other) << true;
}

void tst_Connection::retriesOnlyWhatMayHelp()
{
    QFETCH(int, kind);
    QFETCH(bool, retries);
    const KirvFailure failure { KirvFailure::Kind(kind) };
    const State expected = retries ? State::Waiting : State::Offline;

    bringTo(State::Connecting);
    connection->loginFailed(failure);
    QCOMPARE(connection->state(), expected);
    QCOMPARE(connection->lastFailure().kind(), failure.kind());

    connection->logIn(login, available);
    connection->loginSucceeded();
    connection->connectionLost(failure);
    QCOMPARE(connection->state(), expected);
    connection->takeCalls();
    clock.advance(1000000);
    QCOMPARE(!connection->takeCalls().isEmpty(), retries);
}

void tst_Connection::emitsEachFailureOnce()
{
    bringTo(State::Connecting);
    connection->loginFailed(KirvFailure::WrongPassword);
    connection->loginFailed(KirvFailure::WrongPassword);
    connection->connectionLost(KirvFailure::ConnectionLost);
    QCOMPARE(failures.size(), 1);
    QCOMPARE(failures.first().kind(), KirvFailure::WrongPassword);

    connection->logIn(login, available);
    connection->connectionLost(KirvFailure());
    QCOMPARE(failures.size(), 2);
    QCOMPARE(failures.last().kind(), KirvFailure::ConnectionLost);
}

void tst_Connection::forgetsTheFailureAfterASuccess()
{
    bringTo(State::Waiting);
    QVERIFY(connection->lastFailure().isFailure());
    connection->logIn(login, available);
    QVERIFY(connection->lastFailure().isFailure());
    connection->loginSucceeded();
    QVERIFY(!connection->lastFailure().isFailure());
}

void tst_Connection::saysSinceWhenAndUntilWhen()
{
    const QDateTime start = clock.now();
    QVERIFY(!connection->nextRetry().isValid());
    clock.advance(5000);
    QCOMPARE(connection->since(), start);
    bringTo(State::Waiting);
    QCOMPARE(connection->since(), start.addSecs(5));
    QCOMPARE(connection->nextRetry(), start.addSecs(7));
    clock.advance(2000);
    QCOMPARE(connection->since(), start.addSecs(7));
    QVERIFY(!connection->nextRetry().isValid());
}

void tst_Connection::logsOut_data()
{
    QTest::addColumn<State>("state");
    QTest::addColumn<QStringList>("calls");
    QTest::addColumn<State>("reached");
    QTest::newRow("Offline") << State::Offline << QStringList() << State::Offline;
    QTest::newRow("Connecting") << State::Connecting << QStringList { "ann abort" } << State::Offline;
    QTest::newRow("Online") << State::Online << QStringList { "ann log out" } << State::Disconnecting;
    QTest::newRow("Disconnecting") << State::Disconnecting << QStringList() << State::Disconnecting;
    QTest::newRow("Waiting") << State::Waiting << QStringList { "ann abort" } << State::Offline;
}

void tst_Connection::logsOut()
{
    QFETCH(State, state);
    QFETCH(QStringList, calls);
    QFETCH(State, reached);
    bringTo(state);
    connection->logOut();
    QCOMPARE(connection->takeCalls(), calls);
    QCOMPARE(connection->state(), reached);
    connection->logoutFinished();
    clock.advance(1000000);
    QCOMPARE(connection->takeCalls(), QStringList());
    QCOMPARE(connection->state(), State::Offline);
    QCOMPARE(failures.size(), 0);
}

void tst_Connection::loggingInEndsTheWait()
{
    bringTo(State::Waiting);
    connection->logIn(otherLogin, away);
    QCOMPARE(connection->takeCalls(), QStringList { "ann log in away changed" });
    QVERIFY(!connection->nextRetry().isValid());
    clock.advance(connection->timing().backOff.first);
    QCOMPARE(connection->takeCalls(), QStringList());
}

void tst_Connection::loggingInWhileLoggingOutComesBack()
{
    bringTo(State::Disconnecting);
    QVERIFY(!connection->willLogInAgain());
    connection->logIn(otherLogin, available);
    QVERIFY(connection->willLogInAgain());
    connection->changePresence(away);
    QCOMPARE(connection->state(), State::Disconnecting);
    connection->logoutFinished();
    QCOMPARE(connection->takeCalls(), QStringList { "ann log in away changed" });
    QCOMPARE(takeStates(), (QList<State> { State::Offline, State::Connecting }));
    QVERIFY(!connection->willLogInAgain());
    connection->loginSucceeded();
    connection->logOut();
    QVERIFY(!connection->willLogInAgain());
    connection->logoutFinished();
    QCOMPARE(connection->state(), State::Offline);
}

void tst_Connection::aLogOutCancelsComingBack()
{
    bringTo(State::Disconnecting);
    connection->logIn(login, away);
    connection->logOut();
    QVERIFY(!connection->willLogInAgain());
    connection->logoutFinished();
    QCOMPARE(connection->state(), State::Offline);
    QCOMPARE(connection->takeCalls(), QStringList());
}

void tst_Connection::aLogoutIsBounded()
{
    bringTo(State::Online);
    connection->logOut();
    clock.advance(connection->timing().logoutTimeout - 1);
    QCOMPARE(connection->state(), State::Disconnecting);
    clock.advance(1);
    QCOMPARE(connection->state(), State::Offline);
    QCOMPARE(connection->takeCalls(), (QStringList { "ann log out", "ann abort" }));
    QCOMPARE(failures.size(), 0);
}

void tst_Connection::logsInAgain_data()
{
    QTest::addColumn<State>("state");
    QTest::addColumn<QStringList>("calls");
    QTest::newRow("Offline") << State::Offline << QStringList { "ann log in away changed" };
    QTest::newRow("Connecting") << State::Connecting << QStringList { "ann abort", "ann log in away changed" };
    QTest::newRow("Online") << State::Online << QStringList { "ann log out", "ann log in away changed" };
    QTest::newRow("Disconnecting") << State::Disconnecting << QStringList { "ann log in away changed" };
    QTest::newRow("Waiting") << State::Waiting << QStringList { "ann log in away changed" };
}

void tst_Connection::logsInAgain()
{
    QFETCH(State, state);
    QFETCH(QStringList, calls);
    bringTo(state);
    connection->logIn(otherLogin, away);
    QCOMPARE(connection->willLogInAgain(), connection->state() == State::Disconnecting);
    QCOMPARE(connection->login(), otherLogin);
    connection->logoutFinished();
    QCOMPARE(connection->takeCalls(), calls);
    QCOMPARE(connection->state(), State::Connecting);
    connection->logOut();
    QCOMPARE(connection->state(), State::Offline);
}

void tst_Connection::theServersNewPasswordKeepsTheSession()
{
    bringTo(State::Online);
    connection->acceptPassword(QStringLiteral("changed"));
    QCOMPARE(connection->login(), otherLogin);
    QCOMPARE(connection->takeCalls(), QStringList());
    QCOMPARE(takeStates(), QList<State>());
    connection->connectionLost(KirvFailure::ConnectionLost);
    clock.advance(connection->timing().backOff.first);
    QCOMPARE(connection->takeCalls().last(), QStringLiteral("ann log in available changed"));
}

void tst_Connection::itsProtocolSaysWhichPresenceIsOffline()
{
    QVERIFY(connection->isOfflinePresence(offline));
    QVERIFY(!connection->isOfflinePresence(available));
    QVERIFY(!connection->isOfflinePresence(KirvPresence()));
}

void tst_Connection::avatarsArePublishedWhileOnline()
{
    const auto chosen = [](const char *path) { return KirvAvatar { QString(path), QByteArray(), true }; };
    connection->setAvatar(chosen("one.png"));
    connection->logIn(login, available);
    connection->setAvatar(chosen("two.png"));
    connection->loginSucceeded();
    QCOMPARE(connection->takeCalls(), QStringList { "ann log in available secret" });
    connection->setAvatar(chosen("two.png"));
    QCOMPARE(connection->takeCalls(), QStringList());
    connection->setAvatar(chosen(""));
    QCOMPARE(connection->takeCalls(), QStringList { "ann avatar" });
    // What was not chosen here came from the server.
    connection->setAvatar({ "three.png", "hash", false });
    QCOMPARE(connection->takeCalls(), QStringList());
    QCOMPARE(connection->avatar().path, QString("three.png"));
    QCOMPARE(connection->avatar().onServer, QByteArray("hash"));
    connection->setAvatar({ "three.png", "hash", true });
    QCOMPARE(connection->takeCalls(), QStringList { "ann avatar" });
}

void tst_Connection::anotherNetworkIsReactedTo_data()
{
    QTest::addColumn<State>("before");
    QTest::addColumn<State>("after");
    QTest::addColumn<QStringList>("calls");
    const QString logIn = "ann log in available secret";
    QTest::newRow("Offline") << State::Offline << State::Offline << QStringList();
    QTest::newRow("Connecting") << State::Connecting << State::Connecting << QStringList { "ann abort", logIn };
    QTest::newRow("Online") << State::Online << State::Online << QStringList { "ann check 5000" };
    QTest::newRow("Disconnecting") << State::Disconnecting << State::Disconnecting << QStringList();
    QTest::newRow("Waiting") << State::Waiting << State::Connecting << QStringList { logIn };
}

void tst_Connection::anotherNetworkIsReactedTo()
{
    QFETCH(State, before);
    bringTo(before);
    connection->takeCalls();
    connection->networkChanged();
    QTEST(connection->state(), "after");
    QTEST(connection->takeCalls(), "calls");
    if (before != State::Connecting && before != State::Waiting)
        return;
    clock.advance(29999); // the wait that was cut short is over, and the time-out of the log-in began anew
    QCOMPARE(connection->state(), State::Connecting);
    QCOMPARE(connection->takeCalls(), QStringList());
}

void tst_Connection::anotherNetworkShortensTheWaits()
{
    connection->logIn(login, available);
    for (int failure = 0; failure < 6; ++failure) {
        connection->serverGoes();
        clock.advance(int(clock.now().msecsTo(connection->nextRetry())));
    }
    connection->networkChanged();
    connection->serverGoes();
    QCOMPARE(clock.now().msecsTo(connection->nextRetry()), qint64(2000));
}

void tst_Connection::anotherNetworkKeepsTheTurns()
{
    bool isOpen = false;
    connection->setLoginGate([&isOpen] { return isOpen; });
    connection->logIn(login, available);
    QVERIFY(connection->isWaitingForTurn());
    connection->networkChanged();
    QVERIFY(connection->isWaitingForTurn());
    QCOMPARE(connection->takeCalls(), QStringList());
    connection->beginLogin();
    connection->serverGoes();
    QVERIFY(!connection->isWaitingForTurn());
    connection->takeCalls();
    connection->networkChanged(); // a wait for the time becomes one for the turn
    QVERIFY(connection->isWaitingForTurn());
    clock.advance(100000);
    QCOMPARE(connection->takeCalls(), QStringList());
}

void tst_Connection::drops_data()
{
    QTest::addColumn<State>("state");
    for (const State state : { State::Offline, State::Connecting, State::Online, State::Disconnecting, State::Waiting })
        QTest::newRow(QMetaEnum::fromType<State>().valueToKey(state)) << state;
}

void tst_Connection::drops()
{
    QFETCH(State, state);
    bringTo(state);
    if (state == State::Disconnecting)
        connection->logIn(login, away);
    connection->drop();
    QCOMPARE(connection->state(), State::Offline);
    QCOMPARE(connection->takeCalls(), state == State::Offline ? QStringList() : QStringList { "ann abort" });
    clock.advance(1000000);
    QCOMPARE(connection->takeCalls(), QStringList());
    QCOMPARE(failures.size(), 0);
}

void tst_Connection::ignoresLateReports_data()
{
    QTest::addColumn<State>("state");
    QTest::addColumn<QStringList>("reports");
    QTest::newRow("Offline") << State::Offline << QStringList { "succeeded", "failed", "lost", "finished" };
    QTest::newRow("Connecting") << State::Connecting << QStringList { "finished" };
    QTest::newRow("Online") << State::Online << QStringList { "succeeded", "failed", "finished" };
    QTest::newRow("Disconnecting") << State::Disconnecting << QStringList { "succeeded", "failed" };
    QTest::newRow("Waiting") << State::Waiting << QStringList { "succeeded", "failed", "lost", "finished" };
}

void tst_Connection::ignoresLateReports()
{
    QFETCH(State, state);
    QFETCH(QStringList, reports);
    const QHash<QString, std::function<void()>> report {
        { "succeeded", [this] { connection->loginSucceeded(); } },
        { "failed", [this] { connection->loginFailed(KirvFailure::WrongPassword); } },
        { "lost", [this] { connection->connectionLost(KirvFailure::ConnectionLost); } },
        { "finished", [this] { connection->logoutFinished(); } },
    };
    bringTo(state);
    const KirvFailure before = connection->lastFailure();
    for (const QString &name : reports) {
        report[name]();
        QCOMPARE(connection->state(), state);
    }
    QCOMPARE(takeStates(), QList<State>());
    QCOMPARE(failures.size(), 0);
    QCOMPARE(connection->lastFailure().kind(), before.kind());
}

void tst_Connection::ignoresReportsOfItsOwnAbort()
{
    connection->onAbort = [this] {
        connection->loginFailed(KirvFailure::Other);
        connection->connectionLost(KirvFailure::ConnectionLost);
        connection->logoutFinished();
    };
    bringTo(State::Connecting);
    clock.advance(connection->timing().loginTimeout);
    QCOMPARE(failures.size(), 1);
    QCOMPARE(connection->lastFailure().kind(), KirvFailure::TimedOut);
    QCOMPARE(takeStates(), QList<State> { State::Waiting });
    clock.advance(connection->timing().backOff.first);
    connection->drop();
    QCOMPARE(failures.size(), 1);
    QCOMPARE(takeStates(), (QList<State> { State::Connecting, State::Offline }));
}

void tst_Connection::takesSynchronousAnswers()
{
    connection->onLogIn = [this] { connection->loginFailed(KirvFailure::ConnectionRefused); };
    connection->logIn(login, available);
    QCOMPARE(connection->takeCalls(), (QStringList { "ann log in available secret", "ann abort" }));
    QCOMPARE(takeStates(), (QList<State> { State::Connecting, State::Waiting }));
    connection->onLogIn = [this] { connection->loginSucceeded(); };
    connection->onLogOut = [this] { connection->logoutFinished(); };
    clock.advance(connection->timing().backOff.first);
    QVERIFY(connection->isLoggedIn());
    connection->logIn(login, available);
    QVERIFY(connection->isLoggedIn());
    connection->logOut();
    QCOMPARE(connection->state(), State::Offline);
    QCOMPARE(takeStates(),
             (QList<State> { State::Connecting, State::Online, State::Disconnecting, State::Offline, State::Connecting,
                             State::Online, State::Disconnecting, State::Offline }));
}

void tst_Connection::noExceptionOfTheProtocolLeavesIt()
{
    const auto throwing = [] { throw std::runtime_error("no moon tonight"); };
    connection->onLogIn = connection->onLogOut = connection->onAbort = connection->onAvatar = throwing;
    connection->onDirectory = [throwing](int) { throwing(); };
    connection->logIn(login, available);
    QCOMPARE(connection->state(), connection->lastFailure().isWorthRetrying() ? State::Waiting : State::Offline);
    QVERIFY(failures.value(0).text().contains(QLatin1String("no moon tonight")));
    connection->onLogIn = nullptr;
    connection->logIn(login, available);
    connection->loginSucceeded();
    failures.clear();
    connection->setAvatar({ QStringLiteral("/picture.png"), QByteArray(), true });
    QCOMPARE(int(failures.size()), 1);
    QStringList reasons;
    connect(connection, &KirvConnection::directoryAnswered, this,
            [&](const KirvDirectoryAnswer &answer) { reasons << answer.failure.text(); });
    connection->fetchDirectory();
    connection->publishDirectory({});
    connection->deleteDirectory();
    clock.advance(0);
    QCOMPARE(int(reasons.filter(QStringLiteral("no moon tonight")).size()), 3);
    QVERIFY(connection->isLoggedIn());
    connection->logOut();
    QCOMPARE(connection->state(), State::Offline);
}

void tst_Connection::survivesItsDestructionInASlot_data()
{
    QTest::addColumn<State>("before");
    QTest::addColumn<State>("entered");
    QTest::addColumn<int>("action");
    enum Action { LogIn, Succeed, Fail, Lose, LogOut, Finish, Drop, Advance };
    QTest::newRow("logIn") << State::Offline << State::Connecting << int(LogIn);
    QTest::newRow("loginSucceeded") << State::Connecting << State::Online << int(Succeed);
    QTest::newRow("loginFailed") << State::Connecting << State::Waiting << int(Fail);
    QTest::newRow("connectionLost") << State::Online << State::Waiting << int(Lose);
    QTest::newRow("logOut") << State::Online << State::Disconnecting << int(LogOut);
    QTest::newRow("logoutFinished") << State::Disconnecting << State::Offline << int(Finish);
    QTest::newRow("drop") << State::Online << State::Offline << int(Drop);
    QTest::newRow("login time-out") << State::Connecting << State::Waiting << int(Advance);
    QTest::newRow("logout time-out") << State::Disconnecting << State::Offline << int(Advance);
    QTest::newRow("retry") << State::Waiting << State::Connecting << int(Advance);
}

void tst_Connection::survivesItsDestructionInASlot()
{
    QFETCH(State, before);
    QFETCH(State, entered);
    QFETCH(int, action);
    const std::function<void()> actions[] = {
        [this] { connection->logIn(login, available); },
        [this] { connection->loginSucceeded(); },
        [this] { connection->loginFailed(KirvFailure::HostNotFound); },
        [this] { connection->connectionLost(KirvFailure::ConnectionLost); },
        [this] { connection->logOut(); },
        [this] { connection->logoutFinished(); },
        [this] { connection->drop(); },
        [this] { clock.advance(30000); },
    };
    bringTo(before);
    if (before == State::Online)
        connection->fetchDirectory();
    connect(connection, &KirvConnection::stateChanged, this, [&](State state) {
        if (state == entered)
            delete connection;
    });
    actions[action]();
    QVERIFY(!connection);
    clock.advance(1000000);
    QCOMPARE(failures.size(), 0);
}

void tst_Connection::survivesItsDestructionWhenAFailureIsEmitted()
{
    bringTo(State::Online);
    connection->fetchDirectory();
    connect(connection, &KirvConnection::failed, this, [this] { delete connection; });
    connection->connectionLost(KirvFailure::ConnectionLost);
    QVERIFY(!connection);
    clock.advance(1000000);
}

void tst_Connection::survivesItsDestructionInEveryState_data()
{
    drops_data();
}

void tst_Connection::survivesItsDestructionInEveryState()
{
    QFETCH(State, state);
    bringTo(state);
    if (state == State::Online)
        connection->fetchDirectory();
    delete connection;
    clock.advance(1000000);
    QCOMPARE(takeStates(), QList<State>());
    QCOMPARE(failures.size(), 0);
}

void tst_Connection::aSlotMayMoveItOn()
{
    const auto movesOn = connect(connection, &KirvConnection::stateChanged, this, [this](State state) {
        if (state == State::Connecting && connection->login() == login)
            connection->logOut();
        else if (state == State::Waiting)
            connection->logIn(otherLogin, away);
        else if (state == State::Online)
            connection->changePresence(available);
    });
    connection->logIn(login, available);
    QCOMPARE(connection->state(), State::Offline);
    QCOMPARE(connection->takeCalls(), QStringList { "ann abort" });

    connection->logIn(otherLogin, away);
    connection->loginFailed(KirvFailure::TimedOut);
    QCOMPARE(connection->state(), State::Connecting);
    QCOMPARE(connection->takeCalls(),
             (QStringList { "ann log in away changed", "ann abort", "ann log in away changed" }));
    connection->loginSucceeded();
    QCOMPARE(connection->takeCalls(), QStringList { "ann presence available" });
    clock.advance(1000000);
    QVERIFY(connection->isLoggedIn());
    disconnect(movesOn);
}

void tst_Connection::theSystemClockCallsLater()
{
    int calls = 0;
    QElapsedTimer elapsed;
    elapsed.start();
    KirvClock::system().callLater(50, this, [&] { ++calls; });
    QCOMPARE(calls, 0);
    KIRV_TRY_COMPARE(calls, 1);
    QVERIFY(elapsed.elapsed() >= 45);
    QVERIFY(qAbs(KirvClock::system().now().msecsTo(QDateTime::currentDateTime())) < 5000);
}

void tst_Connection::theSystemClockForgetsADestroyedContext()
{
    bool called = false;
    bool later = false;
    auto context = std::make_unique<QObject>();
    KirvClock::system().callLater(1, context.get(), [&] { called = true; });
    KirvClock::system().callLater(30, this, [&] { later = true; });
    context.reset();
    KIRV_TRY(later);
    QVERIFY(!called);
}

QTEST_GUILESS_MAIN(tst_Connection)
#include "tst_connection.moc"
