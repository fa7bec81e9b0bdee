// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/irc/kirv_irc_input.h"
#include "tests/support/fakes/kirv_fake_clock.h"

#include <QTest>

/// What of a server's lines reaches the library.
class tst_IrcInput : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void linesAreKeptOrDropped_data();
    void linesAreKeptOrDropped();
    void piecesAreJoined();
    void takesNoMoreThanItMay();
    void longLinesAreCut();
    void lineThatIsTooLongIsAnError_data();
    void lineThatIsTooLongIsAnError();
    void negotiationIsBounded();
    void requestsForTheNameAreBounded();
};

void tst_IrcInput::linesAreKeptOrDropped_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QByteArray>("kept");
    const auto kept = [](const char *name, const QByteArray &line) { QTest::newRow(name) << line << line; };
    const auto dropped = [](const char *name, const QByteArray &line) { QTest::newRow(name) << line << QByteArray(); };
    kept("welcome", ":server 001 alice :Welcome to the network");
    kept("PING", "PING :12345");
    kept("PING of a server", ":server PING server :12345");
    kept("ERROR", "ERROR :Closing Link: (K-Lined)");
    kept("nick in use", ":server 433 * alice :Nickname is already in use");
    kept("banned", ":server 465 alice :You are banned");
    kept("capabilities", ":server CAP * LS * :multi-prefix sasl");
    kept("authentication", "AUTHENTICATE +");
    kept("judgement", ":server 903 alice :Well done");
    kept("change of the nick", ":alice!a@host NICK :alice2");
    kept("request for the name", ":bob!b@host PRIVMSG alice :\1VERSION\1");
    dropped("nothing", "");
    dropped("spaces", "   ");
    dropped("prefix alone", ":server");
    dropped("tags alone", "@a=b");
    dropped("PING without a text", "PING");
    dropped("NICK without a nick", ":alice NICK");
    dropped("message", ":bob!b@host PRIVMSG alice :Hello");
    dropped("request for the time", ":bob!b@host PRIVMSG alice :\1TIME\1");
    dropped("request for more than the name", ":bob!b@host PRIVMSG alice :\1VERSION please\1");
    dropped("notice", ":server NOTICE * :Looking up your host name");
    dropped("QUIT of another", ":bob!b@host QUIT :Bye");
    dropped("JOIN", ":bob!b@host JOIN #channel");
    dropped("message of the day", ":server 372 alice :- Hello");
    dropped("support", ":server 005 alice CASEMAPPING=ascii :are supported");
    dropped("names", ":server 353 alice = #channel :bob");
    dropped("batch", "BATCH +abc netsplit a b");
    dropped("numeric of four digits", ":server 0001 alice :Welcome");
    dropped("numeric with a sign", ":server +01 alice :Welcome");
    dropped("unknown command", "XYZZY :nothing happens");
    QTest::newRow("tags") << QByteArray("@time=now;batch=1 :server 001 alice :Hi")
                          << QByteArray(":server 001 alice :Hi");
    QTest::newRow("many spaces") << QByteArray(":server   001   alice :Hi  there")
                                 << QByteArray(":server 001 alice :Hi  there");
    QTest::newRow("space at the start") << QByteArray("  PING :a") << QByteArray("PING :a");
}

void tst_IrcInput::linesAreKeptOrDropped()
{
    QFETCH(QByteArray, line);
    QFETCH(QByteArray, kept);
    KirvFakeClock clock;
    for (const QByteArray end : { "\r\n", "\n" }) {
        KirvIrcInput input(clock);
        input.append(line + end);
        QCOMPARE(input.takeLines(10), kept.isEmpty() ? kept : kept + "\r\n");
        QVERIFY(!input.hasLines());
    }
}

void tst_IrcInput::piecesAreJoined()
{
    KirvFakeClock clock;
    KirvIrcInput input(clock);
    QByteArray taken;
    for (const char character : QByteArray("PING :one\r\n:bob NOTICE a :b\r\nPING :two\r\nPING :thr")) {
        input.append(QByteArray(1, character));
        taken += input.takeLines(10);
    }
    QCOMPARE(taken, QByteArray("PING :one\r\nPING :two\r\n"));
    input.append("ee\n");
    QVERIFY(input.hasLines());
    QCOMPARE(input.takeLines(10), QByteArray("PING :three\r\n"));
}

void tst_IrcInput::takesNoMoreThanItMay()
{
    KirvFakeClock clock;
    KirvIrcInput input(clock);
    input.append("PING :1\nNOTICE a :b\nPING :2\nPING :3\nNOTICE a :b\n");
    QCOMPARE(input.takeLines(2), QByteArray("PING :1\r\nPING :2\r\n"));
    QVERIFY(input.hasLines());
    QCOMPARE(input.takeLines(2), QByteArray("PING :3\r\n"));
    QVERIFY(!input.hasLines());
}

void tst_IrcInput::longLinesAreCut()
{
    KirvFakeClock clock;
    KirvIrcInput input(clock);
    const QByteArray text = "ERROR :" + QByteArray(60000, 'x');
    input.append("@" + QByteArray(5000, 't') + ' ' + text + "\r\nPING :a\r\n");
    QCOMPARE(input.takeLines(10), text.left(KirvIrcInput::longestUsedLine) + "\r\nPING :a\r\n");
}

void tst_IrcInput::lineThatIsTooLongIsAnError_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<bool>("hasEnd");
    QTest::addColumn<bool>("isError");
    QTest::newRow("longest") << KirvIrcInput::longestLine << true << false;
    QTest::newRow("longest so far") << KirvIrcInput::longestLine << false << false;
    QTest::newRow("too long") << KirvIrcInput::longestLine + 1 << true << true;
    QTest::newRow("too long so far") << KirvIrcInput::longestLine + 1 << false << true;
}

void tst_IrcInput::lineThatIsTooLongIsAnError()
{
    QFETCH(int, size);
    QFETCH(bool, hasEnd);
    KirvFakeClock clock;
    KirvIrcInput input(clock);
    input.append("PING :a\r\n");
    input.append(QByteArray(size, 'x'));
    if (hasEnd)
        input.append("\n");
    input.append(hasEnd ? "PING :b\n" : "");
    const QByteArray taken = input.takeLines(10);
    QVERIFY(taken.startsWith("PING :a\r\n"));
    QTEST(input.isTooLong(), "isError");
    if (input.isTooLong()) {
        QVERIFY(!taken.contains(":b") && !input.hasLines());
        input.append("PING :c\n");
        QVERIFY(input.isTooLong() && input.takeLines(10).isEmpty());
    }
}

void tst_IrcInput::negotiationIsBounded()
{
    KirvFakeClock clock;
    KirvIrcInput input(clock);
    input.append(QByteArray("CAP * LS * :a\r\n").repeated(1000) + QByteArray("AUTHENTICATE +\r\n").repeated(1000));
    const QByteArray taken = input.takeLines(10000);
    QVERIFY2(taken.count("CAP") >= 20 && taken.count("CAP") <= 100, qPrintable(QString::number(taken.count("CAP"))));
    QVERIFY(taken.count("AUTH") >= 20 && taken.count("AUTH") <= 100);
}

void tst_IrcInput::requestsForTheNameAreBounded()
{
    KirvFakeClock clock;
    KirvIrcInput input(clock);
    const auto answered = [&input] {
        input.append(QByteArray(":bob!b@host PRIVMSG alice :\1VERSION\1\r\n").repeated(100));
        return input.takeLines(1000).count("VERSION");
    };
    QCOMPARE(answered(), 3);
    clock.advance(30000);
    QCOMPARE(answered(), 0);
    clock.advance(30000);
    QCOMPARE(answered(), 3);
}

QTEST_GUILESS_MAIN(tst_IrcInput)
#include "tst_irc_input.moc"
