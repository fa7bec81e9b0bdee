// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/fakes/kirv_fake_clock.h"
#include "tests/support/fakes/kirv_fake_connection.h"

#include <QPointer>
#include <QtTest>

namespace {

const KirvPresence available(QStringLiteral("available"), QStringLiteral("Available"), QString());
const KirvLogin login { QStringLiteral("ann"), QStringLiteral("secret"), {} };

QList<KirvField> entry(const QString &name)
{
    return { KirvField::textEdit(QString(), QStringLiteral("name"), name, QString()) };
}

/// A connection whose protocol has no directory.
class WithoutDirectory : public KirvFakeConnection {
public:
    using KirvFakeConnection::KirvFakeConnection;

protected:
    void startDirectoryFetch(int request) override { KirvConnection::startDirectoryFetch(request); }
    void startDirectoryPublication(int request, const QList<KirvField> &changes) override
    {
        KirvConnection::startDirectoryPublication(request, changes);
    }
    void startDirectoryDeletion(int request) override { KirvConnection::startDirectoryDeletion(request); }
};

} // namespace

class tst_DirectoryRequests : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void eachRequestHasANumberOfItsOwn();
    void aRequestIsAnsweredOnceWithItsNumber();
    void anEmptyEntryIsNone();
    void aPublicationPassesOnlyItsChanges();
    void severalRequestsAreAnsweredEachByItsNumber();
    void aReplyInsideTheRequestIsEmittedLater();
    void aRequestThatTakesTooLongFails();
    void eachRequestHasATimeOutOfItsOwn();
    void aRequestThatFailsSaysWhy();
    void aFailureWithoutAReasonIsOne();
    void requestsFailWhenTheConnectionEnds_data();
    void requestsFailWhenTheConnectionEnds();
    void requestsOfOneSessionFailInTheirOrder();
    void repliesAfterTheEndAreIgnored();
    void aSlotsRequestInTheNextSessionIsNotFailed();
    void aRequestWhileOfflineFailsLater_data();
    void aRequestWhileOfflineFailsLater();
    void aProtocolWithoutADirectorySaysSo();
    void anAnswerMayDestroyTheConnection_data();
    void anAnswerMayDestroyTheConnection();
    void startingARequestMayDestroyTheConnection();
    void destroyingTheConnectionAnswersNothing();

private:
    void connectTo(KirvFakeConnection *newConnection);
    KirvDirectoryAnswer takeAnswer();

    KirvFakeClock clock;
    QPointer<KirvFakeConnection> connection;
    QList<KirvDirectoryAnswer> answers;
    QList<KirvFailure> failures;
};

void tst_DirectoryRequests::init()
{
    const auto server = std::make_shared<KirvFakeServer>();
    server->directory = KirvFakeServer::Holds;
    connectTo(new KirvFakeConnection(server, clock));
}

void tst_DirectoryRequests::cleanup()
{
    delete connection;
}

/// Uses \a newConnection, logged in, in the test.
void tst_DirectoryRequests::connectTo(KirvFakeConnection *newConnection)
{
    delete connection;
    connection = newConnection;
    answers.clear();
    failures.clear();
    connect(connection, &KirvConnection::directoryAnswered, this,
            [this](const KirvDirectoryAnswer &answer) { answers.append(answer); });
    connect(connection, &KirvConnection::failed, this,
            [this](const KirvFailure &failure) { failures.append(failure); });
    connection->logIn(login, available);
    QVERIFY(connection->isLoggedIn());
    connection->takeCalls();
}

/// The only answer since the last take; one without a number when there is none or more than one.
KirvDirectoryAnswer tst_DirectoryRequests::takeAnswer()
{
    const QList<KirvDirectoryAnswer> taken = std::exchange(answers, {});
    return taken.size() == 1 ? taken.first() : KirvDirectoryAnswer();
}

void tst_DirectoryRequests::eachRequestHasANumberOfItsOwn()
{
    const QList<int> numbers { connection->fetchDirectory(), connection->publishDirectory(entry("Ann")),
                               connection->deleteDirectory(), connection->fetchDirectory() };
    QVERIFY(!numbers.contains(0));
    QCOMPARE(int(QSet<int>(numbers.begin(), numbers.end()).size()), 4);
    QCOMPARE(connection->heldRequests(), numbers);
    QCOMPARE(connection->takeCalls(), (QStringList { "ann fetch", "ann publish name", "ann delete", "ann fetch" }));
}

void tst_DirectoryRequests::aRequestIsAnsweredOnceWithItsNumber()
{
    const int request = connection->fetchDirectory();
    QCOMPARE(answers.size(), 0);
    connection->answerDirectoryRequest(request, entry("Ann"));
    QCOMPARE(answers.size(), 1);
    connection->answerDirectoryRequest(request, entry("Bob"));
    connection->failDirectoryRequest(request, KirvFailure::RequestFailed);
    connection->answerDirectoryRequest(request + 1, entry("Bob"));
    clock.advance(1000000);
    connection->drop();
    QCOMPARE(answers.size(), 1);
    const KirvDirectoryAnswer answer = takeAnswer();
    QCOMPARE(answer.request, request);
    QCOMPARE(answer.outcome, KirvDirectoryAnswer::Data);
    QCOMPARE(answer.fields, entry("Ann"));
    QVERIFY(!answer.failure.isFailure());
    QCOMPARE(failures.size(), 0);
}

void tst_DirectoryRequests::anEmptyEntryIsNone()
{
    const int request = connection->deleteDirectory();
    connection->answerDirectoryRequest(request, {});
    const KirvDirectoryAnswer answer = takeAnswer();
    QCOMPARE(answer.request, request);
    QCOMPARE(answer.outcome, KirvDirectoryAnswer::None);
    QVERIFY(answer.fields.isEmpty() && !answer.failure.isFailure());
}

void tst_DirectoryRequests::aPublicationPassesOnlyItsChanges()
{
    const QList<KirvField> town { KirvField::textEdit(QString(), "town", "Verona", QString()) };
    connection->server->entries["ann"] = entry("Ann");
    connection->publishDirectory(town);
    QCOMPARE(connection->takeCalls(), QStringList { "ann publish town" });
    connection->serverAccepts();
    QCOMPARE(takeAnswer().fields, entry("Ann") + town);
}

void tst_DirectoryRequests::severalRequestsAreAnsweredEachByItsNumber()
{
    const int first = connection->fetchDirectory();
    const int second = connection->publishDirectory(entry("Ann"));
    const int third = connection->deleteDirectory();
    connection->answerDirectoryRequest(second, entry("Ann"));
    QCOMPARE(takeAnswer().request, second);
    connection->failDirectoryRequest(third, KirvFailure::RequestFailed);
    QCOMPARE(takeAnswer().request, third);
    connection->answerDirectoryRequest(first, {});
    QCOMPARE(takeAnswer().request, first);
}

void tst_DirectoryRequests::aReplyInsideTheRequestIsEmittedLater()
{
    connection->server->directory = KirvFakeServer::Accepts;
    connection->server->entries["ann"] = entry("Ann");
    const int fetch = connection->fetchDirectory();
    QCOMPARE(answers.size(), 0);
    clock.advance(0);
    QCOMPARE(takeAnswer().request, fetch);

    connection->server->directory = KirvFakeServer::Refuses;
    const int publication = connection->publishDirectory(entry("Bob"));
    QCOMPARE(answers.size(), 0);
    clock.advance(0);
    const KirvDirectoryAnswer refused = takeAnswer();
    QCOMPARE(refused.request, publication);
    QCOMPARE(refused.outcome, KirvDirectoryAnswer::Failed);
}

void tst_DirectoryRequests::aRequestThatTakesTooLongFails()
{
    const int request = connection->fetchDirectory();
    clock.advance(connection->timing().requestTimeout - 1);
    QCOMPARE(answers.size(), 0);
    clock.advance(1);
    const KirvDirectoryAnswer answer = takeAnswer();
    QCOMPARE(answer.request, request);
    QCOMPARE(answer.outcome, KirvDirectoryAnswer::Failed);
    QCOMPARE(answer.failure.kind(), KirvFailure::TimedOut);
    QVERIFY(connection->isLoggedIn());
    QVERIFY(!connection->lastFailure().isFailure());
    QCOMPARE(failures.size(), 0);
    connection->answerDirectoryRequest(request, entry("too late"));
    QCOMPARE(answers.size(), 0);
}

void tst_DirectoryRequests::eachRequestHasATimeOutOfItsOwn()
{
    const int first = connection->fetchDirectory();
    clock.advance(10000);
    const int second = connection->fetchDirectory();
    clock.advance(connection->timing().requestTimeout - 10000);
    QCOMPARE(takeAnswer().request, first);
    clock.advance(9999);
    QCOMPARE(answers.size(), 0);
    clock.advance(1);
    QCOMPARE(takeAnswer().request, second);
}

void tst_DirectoryRequests::aRequestThatFailsSaysWhy()
{
    const int request = connection->fetchDirectory();
    connection->failDirectoryRequest(request, { KirvFailure::RequestFailed, QStringLiteral("no room") });
    const KirvDirectoryAnswer answer = takeAnswer();
    QCOMPARE(answer.outcome, KirvDirectoryAnswer::Failed);
    QCOMPARE(answer.failure.detail(), QStringLiteral("no room"));
    QVERIFY(answer.fields.isEmpty());
    QCOMPARE(failures.size(), 0);
    QVERIFY(!connection->lastFailure().isFailure());
}

void tst_DirectoryRequests::aFailureWithoutAReasonIsOne()
{
    connection->failDirectoryRequest(connection->fetchDirectory(), KirvFailure());
    QCOMPARE(takeAnswer().failure.kind(), KirvFailure::RequestFailed);
}

void tst_DirectoryRequests::requestsFailWhenTheConnectionEnds_data()
{
    QTest::addColumn<int>("action");
    QTest::addColumn<int>("failures");
    QTest::newRow("logOut") << 0 << 0;
    QTest::newRow("drop") << 1 << 0;
    QTest::newRow("lost, retried") << 2 << 1;
    QTest::newRow("lost, given up") << 3 << 1;
    QTest::newRow("logIn again") << 4 << 0;
}

void tst_DirectoryRequests::requestsFailWhenTheConnectionEnds()
{
    QFETCH(int, action);
    QFETCH(int, failures);
    const std::function<void()> actions[] = {
        [this] { connection->logOut(); },
        [this] { connection->drop(); },
        [this] { connection->connectionLost(KirvFailure::ConnectionLost); },
        [this] { connection->connectionLost(KirvFailure::LoggedInElsewhere); },
        [this] { connection->logIn(login, available); },
    };
    connection->server->logOut = KirvFakeServer::Holds;
    const int request = connection->fetchDirectory();
    actions[action]();
    const KirvDirectoryAnswer answer = takeAnswer();
    QCOMPARE(answer.request, request);
    QCOMPARE(answer.outcome, KirvDirectoryAnswer::Failed);
    QCOMPARE(answer.failure.detail(), QStringLiteral("The connection ended before the server answered."));
    QCOMPARE(this->failures.size(), failures);
}

void tst_DirectoryRequests::requestsOfOneSessionFailInTheirOrder()
{
    QList<int> requests;
    for (int count = 0; count < 20; ++count)
        requests << connection->fetchDirectory();
    connection->drop();
    QList<int> answered;
    for (const KirvDirectoryAnswer &answer : qAsConst(answers))
        answered << answer.request;
    QCOMPARE(answered, requests);
}

void tst_DirectoryRequests::repliesAfterTheEndAreIgnored()
{
    const int request = connection->fetchDirectory();
    connection->connectionLost(KirvFailure::ConnectionLost);
    QCOMPARE(takeAnswer().request, request);
    connection->answerDirectoryRequest(request, entry("Ann"));
    connection->logIn(login, available);
    QVERIFY(connection->isLoggedIn());
    connection->answerDirectoryRequest(request, entry("Ann"));
    clock.advance(1000000);
    QCOMPARE(answers.size(), 0);
    QVERIFY(connection->fetchDirectory() != request);
}

void tst_DirectoryRequests::aSlotsRequestInTheNextSessionIsNotFailed()
{
    int next = 0;
    connect(connection, &KirvConnection::stateChanged, this, [&](KirvConnection::State state) {
        if (state == KirvConnection::Waiting)
            connection->logIn(login, available);
        else if (state == KirvConnection::Online)
            next = connection->fetchDirectory();
    });
    const int first = connection->fetchDirectory();
    connection->connectionLost(KirvFailure::ConnectionLost);
    QVERIFY(connection->isLoggedIn() && next);
    QCOMPARE(takeAnswer().request, first);
    connection->answerDirectoryRequest(next, entry("Ann"));
    QCOMPARE(takeAnswer().outcome, KirvDirectoryAnswer::Data);
}

void tst_DirectoryRequests::aRequestWhileOfflineFailsLater_data()
{
    QTest::addColumn<KirvConnection::State>("state");
    QTest::newRow("Offline") << KirvConnection::Offline;
    QTest::newRow("Connecting") << KirvConnection::Connecting;
    QTest::newRow("Disconnecting") << KirvConnection::Disconnecting;
    QTest::newRow("Waiting") << KirvConnection::Waiting;
}

void tst_DirectoryRequests::aRequestWhileOfflineFailsLater()
{
    QFETCH(KirvConnection::State, state);
    connection->server->logIn = connection->server->logOut = KirvFakeServer::Holds;
    if (state == KirvConnection::Offline)
        connection->drop();
    else if (state == KirvConnection::Waiting)
        connection->serverGoes();
    else
        connection->logOut();
    if (state == KirvConnection::Connecting) {
        connection->drop();
        connection->logIn(login, available);
    }
    QCOMPARE(connection->state(), state);
    connection->takeCalls();
    const int request = connection->publishDirectory(entry("Ann"));
    QCOMPARE(answers.size(), 0);
    clock.advance(0);
    const KirvDirectoryAnswer answer = takeAnswer();
    QCOMPARE(answer.request, request);
    QCOMPARE(answer.outcome, KirvDirectoryAnswer::Failed);
    QCOMPARE(answer.failure.detail(), QStringLiteral("The account is not connected."));
    QCOMPARE(connection->takeCalls(), QStringList());
}

void tst_DirectoryRequests::aProtocolWithoutADirectorySaysSo()
{
    connectTo(new WithoutDirectory(std::make_shared<KirvFakeServer>(), clock));
    const QList<int> requests { connection->fetchDirectory(), connection->publishDirectory(entry("Ann")),
                                connection->deleteDirectory() };
    QCOMPARE(answers.size(), 0);
    clock.advance(0);
    QCOMPARE(answers.size(), 3);
    for (int index = 0; index < 3; ++index) {
        QCOMPARE(answers.at(index).request, requests.at(index));
        QCOMPARE(answers.at(index).outcome, KirvDirectoryAnswer::Failed);
        QCOMPARE(answers.at(index).failure.kind(), KirvFailure::NotSupported);
    }
    QCOMPARE(failures.size(), 0);
}

void tst_DirectoryRequests::anAnswerMayDestroyTheConnection_data()
{
    QTest::addColumn<int>("action");
    QTest::newRow("answered") << 0;
    QTest::newRow("time-out") << 1;
    QTest::newRow("the connection ends") << 2;
}

void tst_DirectoryRequests::anAnswerMayDestroyTheConnection()
{
    QFETCH(int, action);
    connection->fetchDirectory();
    connection->fetchDirectory();
    connect(connection, &KirvConnection::directoryAnswered, this, [this] { delete connection; });
    if (action == 0)
        connection->serverAccepts();
    else if (action == 1)
        clock.advance(connection->timing().requestTimeout);
    else
        connection->connectionLost(KirvFailure::ConnectionLost);
    QVERIFY(!connection);
    QCOMPARE(answers.size(), 1);
    clock.advance(1000000);
}

void tst_DirectoryRequests::startingARequestMayDestroyTheConnection()
{
    connection->onDirectory = [this](int) { connection->connectionLost(KirvFailure::ConnectionLost); };
    connect(connection, &KirvConnection::stateChanged, this, [this] { delete connection; });
    QVERIFY(connection->fetchDirectory() != 0);
    QVERIFY(!connection);
    clock.advance(1000000);
}

void tst_DirectoryRequests::destroyingTheConnectionAnswersNothing()
{
    connection->fetchDirectory();
    delete connection;
    clock.advance(1000000);
    QCOMPARE(answers.size(), 0);
}

QTEST_GUILESS_MAIN(tst_DirectoryRequests)
#include "tst_directory_requests.moc"
