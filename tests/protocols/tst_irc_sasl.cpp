// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/irc/kirv_irc_sasl.h"
#include "tests/protocols/fake_irc_socket.h"

#include <IrcConnection>
#include <QSignalSpy>
#include <QTest>
#include <memory>

/// The negotiation of a log-in with SASL, line by line.
class tst_IrcSasl : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void passwordIsSentOnceAndOnlyWhenItIsRequested();
    void theNegotiationEndsWhenThePasswordIsAccepted_data();
    void theNegotiationEndsWhenThePasswordIsAccepted();
    void refusalsFail_data();
    void refusalsFail();
    void refusalBeforeThePasswordIsNoJudgement_data();
    void refusalBeforeThePasswordIsNoJudgement();
    void alreadyLoggedInNeedsNoPassword();
    void nothingIsSentTwiceOrUnrequested();
    void offersAreRead_data();
    void offersAreRead();
    void aListInSeveralLinesIsReadToItsEnd();
    void aRefusedCapabilityFails();
    void longCredentialsAreSentInPieces_data();
    void longCredentialsAreSentInPieces();
    void aServerWithoutCapabilitiesGetsNoPassword();

private:
    void connectWith(const QString &password);
    QStringList receive(const QByteArray &line);
    KirvFailure::Kind failure() const;
    void offerSasl();

    std::unique_ptr<IrcConnection> connection;
    FakeIrcSocket *socket = nullptr;
    KirvIrcSasl *sasl = nullptr;
    std::unique_ptr<QSignalSpy> failed;
    QStringList opening;
};

void tst_IrcSasl::init()
{
    connectWith("secret");
}

void tst_IrcSasl::cleanup()
{
    failed.reset();
    connection.reset();
}

void tst_IrcSasl::connectWith(const QString &password)
{
    failed.reset();
    connection = std::make_unique<IrcConnection>();
    socket = new FakeIrcSocket(connection.get());
    connection->setSocket(socket);
    connection->setHost("irc.example.org");
    connection->setUserName("alice");
    connection->setNickName("alice");
    connection->setRealName("Alice");
    sasl = new KirvIrcSasl(connection.get(), "alice", password);
    connection->setProtocol(sasl);
    failed = std::make_unique<QSignalSpy>(sasl, &KirvIrcSasl::failed);
    connection->open();
    opening = socket->takeSent();
}

/// What the client sends in reply to \a line.
QStringList tst_IrcSasl::receive(const QByteArray &line)
{
    socket->receive(line);
    QCoreApplication::processEvents(); // the library sends some lines later
    return socket->takeSent();
}

KirvFailure::Kind tst_IrcSasl::failure() const
{
    return failed->isEmpty() ? KirvFailure::None : failed->first().first().value<KirvFailure>().kind();
}

void tst_IrcSasl::offerSasl()
{
    QVERIFY2(opening.contains("CAP LS 302") || opening.contains("CAP LS"), qPrintable(opening.join(" / ")));
    const QStringList requested = receive(":irc CAP * LS :multi-prefix sasl");
    QVERIFY2(requested.contains("CAP REQ :sasl"), qPrintable(requested.join(" / ")));
}

void tst_IrcSasl::passwordIsSentOnceAndOnlyWhenItIsRequested()
{
    const QString encoded = QByteArray(QByteArray("\0alice\0secret", 13).toBase64());
    offerSasl();
    QCOMPARE(receive(":irc CAP * ACK :sasl").filter("AUTHENTICATE"), QStringList { "AUTHENTICATE PLAIN" });
    QVERIFY(receive(":irc CAP * ACK :multi-prefix").filter("AUTHENTICATE").isEmpty());
    QCOMPARE(receive("AUTHENTICATE +"), QStringList { "AUTHENTICATE " + encoded });
    QVERIFY(!sasl->isAccepted());
    QCOMPARE(failure(), KirvFailure::None);
    QVERIFY(opening.filter("secret").isEmpty() && opening.filter("PASS").isEmpty());
}

void tst_IrcSasl::theNegotiationEndsWhenThePasswordIsAccepted_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("success") << QByteArray(":irc 903 alice :SASL authentication successful");
    QTest::newRow("already") << QByteArray(":irc 907 alice :You have already authenticated");
}

void tst_IrcSasl::theNegotiationEndsWhenThePasswordIsAccepted()
{
    QFETCH(QByteArray, line);
    offerSasl();
    QStringList sent = receive(":irc CAP * ACK :sasl");
    sent += receive("AUTHENTICATE +");
    QVERIFY2(!sent.contains("CAP END"), qPrintable(sent.join(" / ")));
    sent = receive(line);
    QVERIFY2(sent.contains("CAP END"), qPrintable(sent.join(" / ")));
    QVERIFY(sasl->isAccepted());
    QCOMPARE(failed->size(), 0);
}

void tst_IrcSasl::refusalsFail_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("said");
    QTest::addColumn<bool>("isWorthRetrying");
    QTest::newRow("locked nick") << QByteArray(":irc 902 alice :You must use another nick")
                                 << int(KirvFailure::AccessDenied) << "another nick" << false;
    QTest::newRow("wrong password") << QByteArray(":irc 904 alice :failed") << int(KirvFailure::WrongPassword)
                                    << "password" << false;
    QTest::newRow("too long") << QByteArray(":irc 905 alice :SASL message too long") << int(KirvFailure::BadSettings)
                              << "longer" << false;
    QTest::newRow("aborted") << QByteArray(":irc 906 alice :aborted") << int(KirvFailure::ServiceUnavailable) << "SASL"
                             << true;
    QTest::newRow("other mechanisms") << QByteArray(":irc 908 alice EXTERNAL :are available")
                                      << int(KirvFailure::AuthenticationNotOffered) << "no way" << false;
}

void tst_IrcSasl::refusalsFail()
{
    QFETCH(QByteArray, line);
    offerSasl();
    receive(":irc CAP * ACK :sasl");
    receive("AUTHENTICATE +");
    const QStringList sent = receive(line);
    QVERIFY2(!sent.contains("CAP END"), qPrintable(sent.join(" / ")));
    QTEST(int(failure()), "kind");
    const auto refusal = failed->first().first().value<KirvFailure>();
    QFETCH(QString, said);
    QVERIFY2(refusal.text().contains(said), qPrintable(refusal.text()));
    QTEST(refusal.isWorthRetrying(), "isWorthRetrying");
    QVERIFY(!sasl->isAccepted());
}

/// A server whose services are away refuses before it has seen the password.
void tst_IrcSasl::refusalBeforeThePasswordIsNoJudgement_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<int>("kind");
    QTest::newRow("failed") << QByteArray(":irc 904 alice :failed") << int(KirvFailure::AuthenticationNotOffered);
    QTest::newRow("too long") << QByteArray(":irc 905 alice :too long") << int(KirvFailure::AuthenticationNotOffered);
    QTest::newRow("aborted") << QByteArray(":irc 906 alice :aborted") << int(KirvFailure::ServiceUnavailable);
}

void tst_IrcSasl::refusalBeforeThePasswordIsNoJudgement()
{
    QFETCH(QByteArray, line);
    offerSasl();
    receive(":irc CAP * ACK :sasl");
    receive(line);
    QTEST(int(failure()), "kind");
}

/// A server can know already who a user is.
void tst_IrcSasl::alreadyLoggedInNeedsNoPassword()
{
    QVERIFY(!receive(":irc 907 alice :already").contains("CAP END"));
    offerSasl();
    receive(":irc CAP * ACK :sasl");
    const QStringList sent = receive(":irc 907 alice :You have already authenticated");
    QVERIFY2(sent.contains("CAP END"), qPrintable(sent.join(" / ")));
    QVERIFY(sasl->isAccepted());
    QVERIFY(receive("AUTHENTICATE +").filter("AUTHENTICATE").isEmpty());
}

/// Whatever the server sends, in whatever order.
void tst_IrcSasl::nothingIsSentTwiceOrUnrequested()
{
    QVERIFY(receive("AUTHENTICATE +").filter("AUTHENTICATE").isEmpty());
    QVERIFY(!receive(":irc 903 alice :welcome").contains("CAP END"));
    QVERIFY(!sasl->isAccepted());
    offerSasl();
    receive(":irc CAP * ACK :sasl");
    QCOMPARE(receive("AUTHENTICATE +").filter("AUTHENTICATE").size(), 1);
    QVERIFY(receive("AUTHENTICATE +").filter("AUTHENTICATE").isEmpty());
    QCOMPARE(receive(":irc 903 alice :welcome").filter("CAP END").size(), 1);
    QVERIFY(receive(":irc 903 alice :welcome").filter("CAP END").isEmpty());
}

void tst_IrcSasl::offersAreRead_data()
{
    QTest::addColumn<QByteArray>("offer");
    QTest::addColumn<bool>("isUsable");
    QTest::newRow("without mechanisms") << QByteArray("sasl") << true;
    QTest::newRow("with ours") << QByteArray("away-notify sasl=EXTERNAL,PLAIN") << true;
    QTest::newRow("with others only") << QByteArray("sasl=EXTERNAL,SCRAM-SHA-256") << false;
    QTest::newRow("similar mechanism") << QByteArray("sasl=PLAINER") << false;
    QTest::newRow("similar capability") << QByteArray("saslish") << false;
    QTest::newRow("nothing") << QByteArray("") << false;
}

void tst_IrcSasl::offersAreRead()
{
    QFETCH(QByteArray, offer);
    QFETCH(bool, isUsable);
    const QStringList sent = receive(":irc CAP * LS :" + offer);
    QCOMPARE(sent.contains("CAP REQ :sasl"), isUsable);
    QCOMPARE(failure(), isUsable ? KirvFailure::None : KirvFailure::AuthenticationNotOffered);
    QVERIFY(!sent.contains("CAP END"));
}

void tst_IrcSasl::aListInSeveralLinesIsReadToItsEnd()
{
    QVERIFY(!receive(":irc CAP * LS * :away-notify").contains("CAP REQ :sasl"));
    QCOMPARE(failure(), KirvFailure::None);
    QVERIFY(receive(":irc CAP * LS :sasl").contains("CAP REQ :sasl"));
}

void tst_IrcSasl::aRefusedCapabilityFails()
{
    offerSasl();
    receive(":irc CAP * NAK :sasl");
    QCOMPARE(failure(), KirvFailure::AuthenticationNotOffered);
}

void tst_IrcSasl::longCredentialsAreSentInPieces_data()
{
    QTest::addColumn<int>("length"); // of the password
    QTest::addColumn<QList<int>>("pieces");
    // Two null bytes and the name precede the password; three bytes become four.
    QTest::newRow("just one piece") << 292 << QList<int> { 400, 1 };
    QTest::newRow("one piece and a bit") << 294 << QList<int> { 400, 4 };
    QTest::newRow("short") << 3 << QList<int> { 16 };
    QTest::newRow("exactly two") << 592 << QList<int> { 400, 400, 1 };
}

void tst_IrcSasl::longCredentialsAreSentInPieces()
{
    QFETCH(int, length);
    QFETCH(QList<int>, pieces);
    const QString password(length, 'x');
    connectWith(password);
    offerSasl();
    receive(":irc CAP * ACK :sasl");
    const QStringList sent = receive("AUTHENTICATE +");
    QList<int> sizes;
    QString joined;
    for (const QString &line : sent) {
        QVERIFY(line.startsWith("AUTHENTICATE "));
        sizes << line.size() - int(qstrlen("AUTHENTICATE "));
        joined += line.mid(int(qstrlen("AUTHENTICATE ")));
    }
    QCOMPARE(sizes, pieces);
    joined.remove('+');
    QCOMPARE(QByteArray::fromBase64(joined.toLatin1()), QByteArray("\0alice\0", 7) + password.toLatin1());
}

void tst_IrcSasl::aServerWithoutCapabilitiesGetsNoPassword()
{
    const QStringList sent = receive(":irc 001 alice :Welcome") + receive(":irc 376 alice :End of /MOTD command.");
    QVERIFY2(sent.filter("AUTHENTICATE").isEmpty() && sent.filter("secret").isEmpty(), qPrintable(sent.join(" / ")));
    QVERIFY(!sasl->isAccepted());
}

QTEST_GUILESS_MAIN(tst_IrcSasl)
#include "tst_irc_sasl.moc"
