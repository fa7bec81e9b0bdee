// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/protocol/kirv_connection.h"
#include "tests/support/kirv_fake_clock.h"

#include <QPointer>
#include <QSignalSpy>
#include <QtTest>

#include <set>

namespace {

using State = KirvConnection::State;

const KirvPresence available(QStringLiteral("available"), QStringLiteral("Available"), QString());
const KirvPresence away(QStringLiteral("away"), QStringLiteral("Away"), QString(), QStringLiteral("at lunch"));
const KirvPresence offline(QStringLiteral("offline"), QStringLiteral("Offline"), QString());
const QList<KirvField> entry { KirvField::textEdit(QString(), QStringLiteral("name"), QStringLiteral("Ann"),
                                                   QString()) };

/// Writes down what it is asked to do and answers when the test says so.
class ScriptedConnection : public KirvConnection {
public:
    explicit ScriptedConnection(KirvClock &clock)
        : KirvConnection(nullptr, clock)
    {
        Timing timing;
        timing.retryJitter = 0;
        setTiming(timing);
    }

    void fetchDirectory() override { request = beginDirectoryRequest(); }

    using KirvConnection::connectionLost;
    using KirvConnection::failDirectoryRequest;
    using KirvConnection::finishDirectoryRequest;
    using KirvConnection::loginFailed;
    using KirvConnection::loginSucceeded;
    using KirvConnection::logoutFinished;
    using KirvConnection::requestFailed;

    /// What was asked since the last look.
    QStringList takeCalls() { return std::exchange(calls, {}); }

    std::function<void()> answerToLogin = [] {};
    std::function<void()> answerToLogout = [] {};
    std::function<void()> answerToAbort = [] {};
    int request = 0;

protected:
    void startLogin(const KirvPresence &presence) override
    {
        calls.append(QStringLiteral("login ") + presence.getId());
        answerToLogin();
    }
    void startLogout() override
    {
        calls.append(QStringLiteral("logout"));
        answerToLogout();
    }
    void abortConnection() override
    {
        calls.append(QStringLiteral("abort"));
        answerToAbort();
    }
    void applyPresence(const KirvPresence &presence) override
    {
        calls.append(QStringLiteral("presence ") + presence.getId());
    }

private:
    QStringList calls;
};

} // namespace

class tst_Connection : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void logsInAndOut();
    void tellsOnlyRealChangesOfTheState();
    void arrivesWithThePresenceAskedForLast();
    void changesThePresenceWhileOnline();
    void aLoginThatTakesTooLongIsBrokenOff();
    void aLoginInTimeIsNotBrokenOff();
    void waitsTwiceAsLongAfterEachFailure();
    void waitsUpToAFifthMoreOrLess();
    void aShortSuccessDoesNotShortenTheWait();
    void aLastingSuccessShortensTheWait();
    void askingAgainShortensTheWait();
    void retriesOnlyWhatMayHelp_data();
    void retriesOnlyWhatMayHelp();
    void tellsEachFailureOnce();
    void forgetsTheFailureAfterASuccess();
    void saysSinceWhenAndUntilWhen();
    void goesOffline_data();
    void goesOffline();
    void goingSomewhereEndsTheWait();
    void goingSomewhereWhileLoggingOutComesBack();
    void changesItsMindAboutComingBack();
    void aLogoutIsBounded();
    void reconnects_data();
    void reconnects();
    void drops_data();
    void drops();
    void ignoresLateReports_data();
    void ignoresLateReports();
    void ignoresReportsOfItsOwnAbort();
    void takesSynchronousAnswers();
    void survivesItsDestructionInASlot_data();
    void survivesItsDestructionInASlot();
    void survivesItsDestructionWhenAFailureIsTold();
    void survivesItsDestructionInEveryState_data();
    void survivesItsDestructionInEveryState();
    void aSlotMayMoveItOn();
    void keepsTheWantedPresenceWithoutActing();
    void answersADirectoryRequestOnce();
    void answersADirectoryRequestThatTakesTooLong();
    void answersADirectoryRequestThatFails();
    void answersADirectoryRequestWhenTheConnectionEnds_data();
    void answersADirectoryRequestWhenTheConnectionEnds();
    void aNewerDirectoryRequestTakesThePlace();
    void survivesItsDestructionByADirectoryAnswer();
    void answersWithoutADirectory();
    void theSystemClockCallsLater();
    void theSystemClockForgetsADestroyedContext();

private:
    void bringTo(State state);
    QList<State> takeStates();

    KirvFakeClock clock;
    QPointer<ScriptedConnection> connection;
    QList<State> states;
    QList<KirvFailure> failures;
};

Q_DECLARE_METATYPE(KirvField)

void tst_Connection::initTestCase()
{
    qRegisterMetaType<QList<KirvField>>("QList<KirvField>");
}

void tst_Connection::init()
{
    connection = new ScriptedConnection(clock);
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
        connection->goTo(available);
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
    connection->goTo(available);
    QCOMPARE(connection->state(), State::Connecting);
    QVERIFY(!connection->isLoggedIn());
    connection->loginSucceeded();
    QVERIFY(connection->isLoggedIn());
    QCOMPARE(connection->takeCalls(), QStringList { "login available" });

    connection->logOut();
    QCOMPARE(connection->state(), State::Disconnecting);
    QCOMPARE(connection->takeCalls(), QStringList { "logout" });
    connection->logoutFinished();
    QCOMPARE(takeStates(), (QList<State> { State::Connecting, State::Online, State::Disconnecting, State::Offline }));
    clock.advance(1000000);
    QCOMPARE(connection->takeCalls(), QStringList());
    QCOMPARE(takeStates(), QList<State>());
}

void tst_Connection::tellsOnlyRealChangesOfTheState()
{
    connection->goTo(available);
    connection->goTo(available);
    connection->reconnect(available);
    QCOMPARE(takeStates(), QList<State> { State::Connecting });
    connection->loginSucceeded();
    connection->loginSucceeded();
    connection->goTo(away);
    QCOMPARE(takeStates(), QList<State> { State::Online });
    connection->drop();
    connection->drop();
    connection->logOut();
    connection->goTo(offline);
    QCOMPARE(takeStates(), QList<State> { State::Offline });
}

void tst_Connection::arrivesWithThePresenceAskedForLast()
{
    connection->goTo(available);
    connection->goTo(offline);
    connection->goTo(available);
    connection->goTo(away);
    connection->takeCalls();
    connection->loginSucceeded();
    QCOMPARE(connection->takeCalls(), QStringList { "presence away" });
    QCOMPARE(connection->wantedPresence().getDescription(), QStringLiteral("at lunch"));
}

void tst_Connection::changesThePresenceWhileOnline()
{
    bringTo(State::Online);
    connection->goTo(away);
    QCOMPARE(connection->takeCalls(), QStringList { "presence away" });
    QCOMPARE(takeStates(), QList<State>());
}

void tst_Connection::aLoginThatTakesTooLongIsBrokenOff()
{
    bringTo(State::Connecting);
    clock.advance(connection->timing().loginTimeout - 1);
    QCOMPARE(connection->state(), State::Connecting);
    clock.advance(1);
    QCOMPARE(connection->takeCalls(), QStringList { "abort" });
    QCOMPARE(connection->state(), State::Waiting);
    QCOMPARE(connection->lastFailure().kind(), KirvFailure::TimedOut);
    clock.advance(connection->timing().backOff.first);
    QCOMPARE(connection->takeCalls(), QStringList { "login available" });
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
    connection->goTo(available);
    for (const int wait : { 2000, 4000, 8000, 16000, 32000, 64000, 128000, 256000, 300000, 300000 }) {
        connection->loginFailed(KirvFailure::HostNotFound);
        QCOMPARE(connection->state(), State::Waiting);
        clock.advance(wait - 1);
        QCOMPARE(connection->state(), State::Waiting);
        clock.advance(1);
        QCOMPARE(connection->state(), State::Connecting);
    }
}

void tst_Connection::waitsUpToAFifthMoreOrLess()
{
    KirvConnection::Timing timing;
    QCOMPARE(timing.retryJitter, 0.2);
    connection->setTiming(timing);
    std::set<qint64> waits;
    for (int i = 0; i < 200; ++i) {
        connection->goTo(available);
        connection->loginFailed(KirvFailure::HostNotFound);
        waits.insert(clock.now().msecsTo(connection->nextRetry()));
    }
    QVERIFY(*waits.begin() >= 1600);
    QVERIFY(*waits.rbegin() <= 2400);
    QVERIFY(*waits.begin() < 1800 && *waits.rbegin() > 2200);
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

void tst_Connection::askingAgainShortensTheWait()
{
    bringTo(State::Waiting);
    clock.advance(2000);
    connection->loginFailed(KirvFailure::ConnectionRefused);
    connection->goTo(available);
    connection->loginFailed(KirvFailure::ConnectionRefused);
    QCOMPARE(clock.now().msecsTo(connection->nextRetry()), 2000);
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

    connection->goTo(available);
    connection->loginSucceeded();
    connection->connectionLost(failure);
    QCOMPARE(connection->state(), expected);
    connection->takeCalls();
    clock.advance(1000000);
    QCOMPARE(!connection->takeCalls().isEmpty(), retries);
}

void tst_Connection::tellsEachFailureOnce()
{
    bringTo(State::Connecting);
    connection->loginFailed(KirvFailure::WrongPassword);
    connection->loginFailed(KirvFailure::WrongPassword);
    connection->connectionLost(KirvFailure::ConnectionLost);
    QCOMPARE(failures.size(), 1);
    QCOMPARE(failures.first().kind(), KirvFailure::WrongPassword);

    connection->goTo(available);
    connection->connectionLost(KirvFailure());
    QCOMPARE(failures.size(), 2);
    QCOMPARE(failures.last().kind(), KirvFailure::ConnectionLost);
}

void tst_Connection::forgetsTheFailureAfterASuccess()
{
    bringTo(State::Waiting);
    QVERIFY(connection->lastFailure().isFailure());
    connection->goTo(available);
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

void tst_Connection::goesOffline_data()
{
    QTest::addColumn<State>("state");
    QTest::addColumn<QStringList>("calls");
    QTest::addColumn<State>("reached");
    QTest::newRow("Offline") << State::Offline << QStringList() << State::Offline;
    QTest::newRow("Connecting") << State::Connecting << QStringList { "abort" } << State::Offline;
    QTest::newRow("Online") << State::Online << QStringList { "logout" } << State::Disconnecting;
    QTest::newRow("Disconnecting") << State::Disconnecting << QStringList() << State::Disconnecting;
    QTest::newRow("Waiting") << State::Waiting << QStringList { "abort" } << State::Offline;
}

void tst_Connection::goesOffline()
{
    QFETCH(State, state);
    QFETCH(QStringList, calls);
    QFETCH(State, reached);
    bringTo(state);
    connection->goTo(offline);
    QCOMPARE(connection->takeCalls(), calls);
    QCOMPARE(connection->state(), reached);
    QCOMPARE(connection->wantedPresence().getId(), QStringLiteral("offline"));
    connection->logoutFinished();
    clock.advance(1000000);
    QCOMPARE(connection->takeCalls(), QStringList());
    QCOMPARE(connection->state(), State::Offline);
    QCOMPARE(failures.size(), 0);
}

void tst_Connection::goingSomewhereEndsTheWait()
{
    bringTo(State::Waiting);
    connection->goTo(away);
    QCOMPARE(connection->takeCalls(), QStringList { "login away" });
    QVERIFY(!connection->nextRetry().isValid());
    clock.advance(connection->timing().backOff.first);
    QCOMPARE(connection->takeCalls(), QStringList());
}

void tst_Connection::goingSomewhereWhileLoggingOutComesBack()
{
    bringTo(State::Disconnecting);
    connection->goTo(away);
    QCOMPARE(connection->state(), State::Disconnecting);
    connection->logoutFinished();
    QCOMPARE(connection->takeCalls(), QStringList { "login away" });
    QCOMPARE(takeStates(), (QList<State> { State::Offline, State::Connecting }));
    connection->loginSucceeded();
    connection->logOut();
    connection->logoutFinished();
    QCOMPARE(connection->state(), State::Offline);
}

void tst_Connection::changesItsMindAboutComingBack()
{
    bringTo(State::Disconnecting);
    connection->goTo(away);
    connection->goTo(offline);
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
    QCOMPARE(connection->takeCalls(), (QStringList { "logout", "abort" }));
    QCOMPARE(failures.size(), 0);
}

void tst_Connection::reconnects_data()
{
    QTest::addColumn<State>("state");
    QTest::addColumn<QStringList>("calls");
    QTest::newRow("Offline") << State::Offline << QStringList { "login away" };
    QTest::newRow("Connecting") << State::Connecting << QStringList { "abort", "login away" };
    QTest::newRow("Online") << State::Online << QStringList { "logout", "login away" };
    QTest::newRow("Disconnecting") << State::Disconnecting << QStringList { "login away" };
    QTest::newRow("Waiting") << State::Waiting << QStringList { "login away" };
}

void tst_Connection::reconnects()
{
    QFETCH(State, state);
    QFETCH(QStringList, calls);
    bringTo(state);
    connection->reconnect(away);
    connection->logoutFinished();
    QCOMPARE(connection->takeCalls(), calls);
    QCOMPARE(connection->state(), State::Connecting);
    connection->reconnect(offline);
    QCOMPARE(connection->state(), State::Offline);
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
        connection->goTo(away);
    connection->drop();
    QCOMPARE(connection->state(), State::Offline);
    QCOMPARE(connection->takeCalls(), state == State::Offline ? QStringList() : QStringList { "abort" });
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
    connection->answerToAbort = [this] {
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
    connection->answerToLogin = [this] { connection->loginFailed(KirvFailure::ConnectionRefused); };
    connection->goTo(available);
    QCOMPARE(connection->takeCalls(), (QStringList { "login available", "abort" }));
    QCOMPARE(takeStates(), (QList<State> { State::Connecting, State::Waiting }));
    connection->answerToLogin = [this] { connection->loginSucceeded(); };
    connection->answerToLogout = [this] { connection->logoutFinished(); };
    clock.advance(connection->timing().backOff.first);
    QVERIFY(connection->isLoggedIn());
    connection->reconnect(available);
    QVERIFY(connection->isLoggedIn());
    connection->logOut();
    QCOMPARE(connection->state(), State::Offline);
    QCOMPARE(takeStates(),
             (QList<State> { State::Connecting, State::Online, State::Disconnecting, State::Offline, State::Connecting,
                             State::Online, State::Disconnecting, State::Offline }));
}

void tst_Connection::survivesItsDestructionInASlot_data()
{
    QTest::addColumn<State>("before");
    QTest::addColumn<State>("entered");
    QTest::addColumn<int>("action");
    enum Action { GoTo, Succeed, Fail, Lose, LogOut, Finish, Drop, Advance };
    QTest::newRow("goTo") << State::Offline << State::Connecting << int(GoTo);
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
        [this] { connection->goTo(available); },
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

void tst_Connection::survivesItsDestructionWhenAFailureIsTold()
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
    connect(connection, &KirvConnection::stateChanged, this, [this](State state) {
        if (state == State::Connecting && connection->wantedPresence().getId() == QLatin1String("available"))
            connection->goTo(offline);
        else if (state == State::Waiting)
            connection->goTo(away);
        else if (state == State::Online)
            connection->goTo(available);
    });
    connection->goTo(available);
    QCOMPARE(connection->state(), State::Offline);
    QCOMPARE(connection->takeCalls(), QStringList { "abort" });

    connection->goTo(away);
    connection->loginFailed(KirvFailure::TimedOut);
    QCOMPARE(connection->state(), State::Connecting);
    QCOMPARE(connection->takeCalls(), (QStringList { "login away", "abort", "login away" }));
    connection->loginSucceeded();
    QCOMPARE(connection->takeCalls(), QStringList { "presence available" });
    clock.advance(1000000);
    QVERIFY(connection->isLoggedIn());
}

void tst_Connection::keepsTheWantedPresenceWithoutActing()
{
    bringTo(State::Online);
    connection->setWantedPresence(away);
    QCOMPARE(connection->wantedPresence().getId(), QStringLiteral("away"));
    QCOMPARE(connection->takeCalls(), QStringList());
    connection->goTo(connection->wantedPresence());
    QCOMPARE(connection->takeCalls(), QStringList { "presence away" });
}

void tst_Connection::answersADirectoryRequestOnce()
{
    QSignalSpy answers(connection, &KirvConnection::directoryAnswered);
    bringTo(State::Online);
    connection->fetchDirectory();
    QCOMPARE(answers.size(), 0);
    connection->finishDirectoryRequest(entry);
    connection->finishDirectoryRequest(entry);
    connection->failDirectoryRequest(KirvFailure::RequestFailed);
    clock.advance(1000000);
    connection->drop();
    QCOMPARE(answers.size(), 1);
    QCOMPARE(answers.first().first().value<QList<KirvField>>(), entry);
    QCOMPARE(failures.size(), 0);
}

void tst_Connection::answersADirectoryRequestThatTakesTooLong()
{
    QSignalSpy answers(connection, &KirvConnection::directoryAnswered);
    bringTo(State::Online);
    connection->fetchDirectory();
    clock.advance(connection->timing().requestTimeout - 1);
    QCOMPARE(answers.size(), 0);
    clock.advance(1);
    QCOMPARE(answers.size(), 1);
    QVERIFY(answers.first().first().value<QList<KirvField>>().isEmpty());
    QCOMPARE(failures.size(), 1);
    QCOMPARE(failures.first().kind(), KirvFailure::TimedOut);
    QVERIFY(connection->isLoggedIn());
    QVERIFY(!connection->lastFailure().isFailure());
    connection->finishDirectoryRequest(entry);
    QCOMPARE(answers.size(), 1);
}

void tst_Connection::answersADirectoryRequestThatFails()
{
    QSignalSpy answers(connection, &KirvConnection::directoryAnswered);
    bringTo(State::Online);
    connection->fetchDirectory();
    connection->failDirectoryRequest({ KirvFailure::RequestFailed, QStringLiteral("no room") });
    QCOMPARE(answers.size(), 1);
    QVERIFY(answers.first().first().value<QList<KirvField>>().isEmpty());
    QCOMPARE(failures.size(), 1);
    QCOMPARE(failures.first().detail(), QStringLiteral("no room"));
}

void tst_Connection::answersADirectoryRequestWhenTheConnectionEnds_data()
{
    QTest::addColumn<int>("action");
    QTest::addColumn<QList<int>>("kinds");
    QTest::newRow("logOut") << 0 << QList<int> { KirvFailure::RequestFailed };
    QTest::newRow("drop") << 1 << QList<int> { KirvFailure::RequestFailed };
    QTest::newRow("lost") << 2 << QList<int> { KirvFailure::RequestFailed, KirvFailure::ConnectionLost };
    QTest::newRow("reconnect") << 3 << QList<int> { KirvFailure::RequestFailed };
}

void tst_Connection::answersADirectoryRequestWhenTheConnectionEnds()
{
    QFETCH(int, action);
    QFETCH(QList<int>, kinds);
    const std::function<void()> actions[] = {
        [this] { connection->logOut(); },
        [this] { connection->drop(); },
        [this] { connection->connectionLost(KirvFailure::ConnectionLost); },
        [this] { connection->reconnect(available); },
    };
    QSignalSpy answers(connection, &KirvConnection::directoryAnswered);
    bringTo(State::Online);
    connection->fetchDirectory();
    actions[action]();
    QCOMPARE(answers.size(), 1);
    QVERIFY(answers.first().first().value<QList<KirvField>>().isEmpty());
    QList<int> told;
    for (const KirvFailure &failure : failures)
        told.append(failure.kind());
    QCOMPARE(told, kinds);
    clock.advance(connection->timing().requestTimeout);
    connection->finishDirectoryRequest(entry);
    QCOMPARE(answers.size(), 1);
}

void tst_Connection::aNewerDirectoryRequestTakesThePlace()
{
    QSignalSpy answers(connection, &KirvConnection::directoryAnswered);
    bringTo(State::Online);
    connection->fetchDirectory();
    const int first = connection->request;
    clock.advance(10000);
    connection->fetchDirectory();
    QTRY_COMPARE(answers.size(), 1);
    QVERIFY(answers.first().first().value<QList<KirvField>>().isEmpty());

    connection->finishDirectoryRequest(entry, first);
    clock.advance(connection->timing().requestTimeout - 10000);
    QCOMPARE(answers.size(), 1);
    connection->finishDirectoryRequest(entry, connection->request);
    QCOMPARE(answers.size(), 2);
    QCOMPARE(answers.last().first().value<QList<KirvField>>(), entry);
}

void tst_Connection::survivesItsDestructionByADirectoryAnswer()
{
    bringTo(State::Online);
    connection->fetchDirectory();
    connect(connection, &KirvConnection::directoryAnswered, this, [this] { delete connection; });
    clock.advance(connection->timing().requestTimeout);
    QVERIFY(!connection);
}

void tst_Connection::answersWithoutADirectory()
{
    QSignalSpy answers(connection, &KirvConnection::directoryAnswered);
    bringTo(State::Online);
    connection->KirvConnection::fetchDirectory();
    connection->publishDirectory(entry);
    connection->deleteDirectory();
    QCOMPARE(answers.size(), 0);
    QTRY_COMPARE(answers.size(), 3);
    for (const QList<QVariant> &answer : answers)
        QVERIFY(answer.first().value<QList<KirvField>>().isEmpty());
    QCOMPARE(failures.size(), 0);
}

void tst_Connection::theSystemClockCallsLater()
{
    int calls = 0;
    QElapsedTimer elapsed;
    elapsed.start();
    KirvClock::system().callLater(50, this, [&] { ++calls; });
    QCOMPARE(calls, 0);
    QTRY_COMPARE(calls, 1);
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
    QTRY_VERIFY(later);
    QVERIFY(!called);
}

QTEST_GUILESS_MAIN(tst_Connection)
#include "tst_connection.moc"
