// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/irc/kirv_irc_connection.h"
#include "tests/support/fakes/kirv_fake_clock.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/servers/kirv_scripted_irc_server.h"

#include <QSignalSpy>
#include <QTest>
#include <memory>

Q_DECLARE_METATYPE(KirvFailure::Kind)

namespace {

/// Replies of a server that has SASL while \a offersSasl, and otherwise knows nothing of it.
QByteArray answer(const QByteArray &line, bool offersSasl)
{
    if (line.startsWith("CAP LS"))
        return offersSasl ? ":server CAP * LS :sasl\r\n" : ":server CAP * LS :multi-prefix\r\n";
    if (line.startsWith("CAP REQ"))
        return ":server CAP * ACK :sasl\r\n";
    if (line == "AUTHENTICATE PLAIN")
        return "AUTHENTICATE +\r\n";
    if (line.startsWith("AUTHENTICATE "))
        return ":server 903 alice :Welcome back\r\n";
    return line == "CAP END" ? ":server 001 alice :Welcome\r\n" : "";
}

QByteArray welcome(const QByteArray &line)
{
    return line.startsWith("USER ") ? ":server 001 alice :Welcome\r\n" : "";
}

} // namespace

/// What a server says when it does not want an account, or not now, and what follows from it.
class tst_IrcRefusals : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void refusalsAreFinalOrPass_data();
    void refusalsAreFinalOrPass();
    void reasonOfABanIsTold_data();
    void reasonOfABanIsTold();
    void banWithoutAGoodbyeIsFinal();
    void banWhileOnLineIsFinal();

    void saslThatWorkedBeforeIsAwaited_data();
    void saslThatWorkedBeforeIsAwaited();
    void saslThatNeverWorkedIsNotAwaited();
    void wrongPasswordIsFinalEvenWhenItWorkedBefore();

    void nicksAreShownCleaned();
    void changesOfTheNickAreToldNowAndThen();
    void silentServerIsNoticedWithinAMinute();
    void onlyTheNameOfTheProgramIsTold();

private:
    void serve(KirvScriptedIrcServer::Script script);
    void logIn(const QString &passwordUse = QStringLiteral("none"));
    KirvFailure lastFailure() const { return failures->value(failures->size() - 1).value(0).value<KirvFailure>(); }

    KirvFakeClock clock;
    std::unique_ptr<KirvScriptedIrcServer> server;
    std::unique_ptr<KirvIrcConnection> connection;
    std::unique_ptr<QSignalSpy> failures;
    std::unique_ptr<QSignalSpy> notices;
};

#define TRY_STATE(expected) QTRY_COMPARE_WITH_TIMEOUT(connection->state(), KirvConnection::expected, kirvPatience)

void tst_IrcRefusals::init()
{
    connection = std::make_unique<KirvIrcConnection>(clock);
    failures = std::make_unique<QSignalSpy>(connection.get(), &KirvConnection::failed);
    notices = std::make_unique<QSignalSpy>(connection.get(), &KirvConnection::noticeReceived);
}

void tst_IrcRefusals::cleanup()
{
    notices.reset();
    failures.reset();
    connection.reset();
    server.reset();
}

void tst_IrcRefusals::serve(KirvScriptedIrcServer::Script script)
{
    server = std::make_unique<KirvScriptedIrcServer>(std::move(script));
}

void tst_IrcRefusals::logIn(const QString &passwordUse)
{
    const QMap<QString, QString> values { { "server", "127.0.0.1" },
                                          { "port", QString::number(server->serverPort()) },
                                          { "encryption", "none" },
                                          { "password_use", passwordUse } };
    KirvLogin login;
    login.id = QStringLiteral("alice");
    login.password = QStringLiteral("secret");
    login.settings = KirvIrcSettings::defaultFields();
    for (KirvField &field : login.settings) {
        if (values.contains(field.getId()))
            field.setText(values[field.getId()]);
    }
    connection->logIn(login, { QStringLiteral("available"), QString(), QString() });
}

void tst_IrcRefusals::refusalsAreFinalOrPass_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<bool>("isFinal");
    const auto pass = [](const char *name, const QByteArray &text) {
        QTest::newRow(name) << "ERROR :Closing Link: 127.0.0.1 (" + text + ")\r\n" << false;
    };
    const auto final = [](const char *name, const QByteArray &text) {
        QTest::newRow(name) << "ERROR :Closing Link: 127.0.0.1 (" + text + ")\r\n" << true;
    };
    pass("too many connections", "Too many connections from your address");
    pass("access denied for the moment", "Access denied: Too many connections");
    pass("no more connections", "Unauthorized: No more connections allowed in your connection class");
    pass("full class", "Access denied, the class is full");
    pass("full server", "Access denied - server is full, try again later");
    pass("too fast", "Throttled: Reconnecting too fast");
    final("banned", "You are banned");
    final("banned for connections", "K-Lined: Too many connections");
    final("denied", "Access denied: Bad password?");
    final("not authorized", "You are not authorized to use this server");
    QTest::newRow("limit with the numeric of a ban")
        << QByteArray(":server 465 alice :Too many connections\r\nERROR :Closing Link: (Try again later)\r\n") << false;
    QTest::newRow("wrong password with its numeric")
        << QByteArray(":server 464 alice :Password incorrect\r\nERROR :Closing Link: (Bad Password)\r\n") << true;
}

void tst_IrcRefusals::refusalsAreFinalOrPass()
{
    QFETCH(QByteArray, lines);
    QFETCH(bool, isFinal);
    serve([lines](const QByteArray &line) { return line.startsWith("USER ") ? lines : ""; });
    logIn();
    QTRY_COMPARE_WITH_TIMEOUT(failures->size(), 1, kirvPatience);
    QCOMPARE(connection->state(), isFinal ? KirvConnection::Offline : KirvConnection::Waiting);
    QCOMPARE(lastFailure().kind() == KirvFailure::AccessDenied, isFinal);
    QVERIFY(lastFailure().detail().contains(QLatin1String("Closing Link")));
}

void tst_IrcRefusals::reasonOfABanIsTold_data()
{
    QTest::addColumn<QByteArray>("between");
    QTest::newRow("at once") << QByteArray();
    QTest::newRow("after a notice") << QByteArray(":server NOTICE alice :Bye\r\n");
}

void tst_IrcRefusals::reasonOfABanIsTold()
{
    QFETCH(QByteArray, between);
    serve([between](const QByteArray &line) -> QByteArray {
        return line.startsWith("USER ") ? ":server 465 alice :You are banned from this server\r\n" + between
                + "ERROR :Closing Link: alice (K-Lined: open proxy\xe2\x80\xae)\r\n"
                                        : "";
    });
    logIn();
    QTRY_COMPARE_WITH_TIMEOUT(failures->size(), 1, kirvPatience);
    QCOMPARE(lastFailure().kind(), KirvFailure::AccessDenied);
    const QString text = lastFailure().text();
    QVERIFY2(text.contains("You are banned") && text.contains("open proxy"), qPrintable(text));
    QVERIFY(!text.contains(QChar(0x202e)));
    QCOMPARE(connection->state(), KirvConnection::Offline);
}

void tst_IrcRefusals::banWithoutAGoodbyeIsFinal()
{
    serve([](const QByteArray &line) {
        return line.startsWith("USER ") ? ":server 465 alice :You are banned\r\nPING :seen\r\n" : "";
    });
    logIn();
    QTRY_VERIFY_WITH_TIMEOUT(server->hasReceived("seen"), kirvPatience);
    clock.advance(5000);
    QCOMPARE(failures->size(), 1);
    QCOMPARE(lastFailure().kind(), KirvFailure::AccessDenied);
    QCOMPARE(lastFailure().detail(), QString("You are banned"));
    QCOMPARE(connection->state(), KirvConnection::Offline);
}

void tst_IrcRefusals::banWhileOnLineIsFinal()
{
    serve([](const QByteArray &line) {
        return line.startsWith("AWAY :Away") ? ":server 465 alice :You are banned\r\nERROR :Closing Link: (spam)\r\n"
                                             : welcome(line);
    });
    logIn();
    TRY_STATE(Online);
    connection->changePresence({ QStringLiteral("away"), QString(), QString() });
    QTRY_COMPARE_WITH_TIMEOUT(failures->size(), 1, kirvPatience);
    QCOMPARE(lastFailure().kind(), KirvFailure::AccessDenied);
    QVERIFY(lastFailure().detail().contains("spam"));
    QCOMPARE(connection->state(), KirvConnection::Offline);
}

void tst_IrcRefusals::saslThatWorkedBeforeIsAwaited_data()
{
    QTest::addColumn<QByteArray>("onList");
    QTest::addColumn<QByteArray>("onMechanism");
    const QByteArray offered(":server CAP * LS :sasl\r\n");
    QTest::newRow("not offered") << QByteArray(":server CAP * LS :multi-prefix\r\n") << QByteArray();
    QTest::newRow("no capabilities") << QByteArray(":server 421 * CAP :Unknown\r\n:server 001 alice :Welcome\r\n")
                                     << QByteArray();
    QTest::newRow("refused before the password") << offered << QByteArray(":server 904 * :SASL failed\r\n");
    QTest::newRow("aborted before the password") << offered << QByteArray(":server 906 * :SASL aborted\r\n");
    QTest::newRow("no mechanism") << offered << QByteArray(":server 908 * EXTERNAL :are available\r\n");
}

/// The services of a network are often back some seconds after the network.
void tst_IrcRefusals::saslThatWorkedBeforeIsAwaited()
{
    QFETCH(QByteArray, onList);
    QFETCH(QByteArray, onMechanism);
    bool servicesAreBack = true;
    serve([&](const QByteArray &line) {
        if (servicesAreBack)
            return answer(line, true);
        if (line.startsWith("CAP LS"))
            return onList;
        return line == "AUTHENTICATE PLAIN" ? onMechanism : answer(line, true);
    });
    logIn(QStringLiteral("sasl"));
    TRY_STATE(Online);
    servicesAreBack = false;
    server->hangUp();
    TRY_STATE(Waiting);

    clock.advance(int(clock.now().msecsTo(connection->nextRetry())));
    QTRY_COMPARE_WITH_TIMEOUT(failures->size(), 2, kirvPatience);
    QVERIFY2(lastFailure().isWorthRetrying(), qPrintable(lastFailure().text()));
    QVERIFY2(lastFailure().text().contains("SASL"), qPrintable(lastFailure().text()));
    QCOMPARE(connection->state(), KirvConnection::Waiting);

    servicesAreBack = true;
    clock.advance(int(clock.now().msecsTo(connection->nextRetry())));
    TRY_STATE(Online);
}

void tst_IrcRefusals::saslThatNeverWorkedIsNotAwaited()
{
    serve([](const QByteArray &line) { return answer(line, false); });
    logIn(QStringLiteral("sasl"));
    QTRY_COMPARE_WITH_TIMEOUT(failures->size(), 1, kirvPatience);
    QCOMPARE(lastFailure().kind(), KirvFailure::AuthenticationNotOffered);
    QCOMPARE(connection->state(), KirvConnection::Offline);
}

void tst_IrcRefusals::wrongPasswordIsFinalEvenWhenItWorkedBefore()
{
    bool accepts = true;
    serve([&accepts](const QByteArray &line) -> QByteArray {
        const bool isPassword = line.startsWith("AUTHENTICATE ") && line != "AUTHENTICATE PLAIN";
        return isPassword && !accepts ? ":server 904 * :SASL authentication failed\r\n" : answer(line, true);
    });
    logIn(QStringLiteral("sasl"));
    TRY_STATE(Online);
    accepts = false;
    server->hangUp();
    TRY_STATE(Waiting);
    clock.advance(int(clock.now().msecsTo(connection->nextRetry())));
    QTRY_COMPARE_WITH_TIMEOUT(failures->size(), 2, kirvPatience);
    QCOMPARE(lastFailure().kind(), KirvFailure::WrongPassword);
    QCOMPARE(connection->state(), KirvConnection::Offline);
}

void tst_IrcRefusals::nicksAreShownCleaned()
{
    const QString nick = QString::fromUtf8("al\u202eice\u2066\u200f\x03") + QString(1000, 'x');
    serve([nick](const QByteArray &line) {
        return line.startsWith("USER ") ? ":server 001 " + nick.toUtf8() + " :Welcome\r\n" : "";
    });
    logIn();
    QTRY_COMPARE_WITH_TIMEOUT(notices->size(), 1, kirvPatience);
    const QString notice = notices->at(0).at(0).toString();
    QVERIFY2(notice.contains("alice"), qPrintable(notice));
    QVERIFY(notice.size() < 300);
    for (const QChar character : notice)
        QVERIFY(character.category() != QChar::Other_Format && character.category() != QChar::Other_Control);
}

void tst_IrcRefusals::changesOfTheNickAreToldNowAndThen()
{
    serve([](const QByteArray &line) -> QByteArray {
        if (!line.startsWith("AWAY :Away"))
            return welcome(line);
        QByteArray changes;
        for (int i = 1; i <= 100; ++i)
            changes += ":" + (i == 1 ? "alice" : "bob" + QByteArray::number(i - 1)) + " NICK bob"
                + QByteArray::number(i) + "\r\n";
        return changes + "PING :seen\r\n";
    });
    logIn();
    TRY_STATE(Online);
    connection->changePresence({ QStringLiteral("away"), QString(), QString() });
    QTRY_VERIFY_WITH_TIMEOUT(server->hasReceived("seen"), kirvPatience);
    QCOMPARE(notices->size(), 1);
    clock.advance(20000);
    QCOMPARE(notices->size(), 2);
    QVERIFY(notices->at(1).at(0).toString().contains("bob100"));
}

/// Also when it was heard just before it was looked at the last time.
void tst_IrcRefusals::silentServerIsNoticedWithinAMinute()
{
    serve([](const QByteArray &line) -> QByteArray {
        return line.startsWith("AWAY :Away") ? ":server NOTICE alice :I am here\r\nPING :seen\r\n" : welcome(line);
    });
    logIn();
    TRY_STATE(Online);
    for (int second = 0; second < 29; ++second)
        clock.advance(1000);
    connection->changePresence({ QStringLiteral("away"), QString(), QString() });
    QTRY_VERIFY_WITH_TIMEOUT(server->hasReceived("seen"), kirvPatience);
    const auto pass = [this](int seconds) {
        for (int second = 0; second < seconds && failures->isEmpty(); ++second)
            clock.advance(1000);
    };
    pass(40);
    QTRY_VERIFY_WITH_TIMEOUT(server->hasReceived("PING "), kirvPatience);
    QCOMPARE(connection->state(), KirvConnection::Online);
    pass(20);
    QCOMPARE(failures->size(), 1);
    QCOMPARE(lastFailure().kind(), KirvFailure::ConnectionLost);
}

/// The time, the system and the like stay our own.
void tst_IrcRefusals::onlyTheNameOfTheProgramIsTold()
{
    serve([](const QByteArray &line) -> QByteArray {
        if (!line.startsWith("AWAY :Away"))
            return welcome(line);
        QByteArray requests;
        for (const char *request : { "TIME", "PING 1", "CLIENTINFO", "USERINFO", "FINGER", "SOURCE", "VERSION" })
            requests += QByteArray(":bob!b@host PRIVMSG alice :\1") + request + "\1\r\n";
        return requests + "PING :seen\r\n";
    });
    logIn();
    TRY_STATE(Online);
    connection->changePresence({ QStringLiteral("away"), QString(), QString() });
    QTRY_VERIFY_WITH_TIMEOUT(server->hasReceived("seen"), kirvPatience);
    const QByteArrayList replies = server->linesWith("NOTICE ");
    QCOMPARE(replies.size(), 1);
    QVERIFY(replies[0].startsWith("NOTICE bob :\1VERSION "));
    QVERIFY(!replies[0].toLower().contains("linux") && !replies[0].contains("Qt"));
}

QTEST_GUILESS_MAIN(tst_IrcRefusals)
#include "tst_irc_refusals.moc"
