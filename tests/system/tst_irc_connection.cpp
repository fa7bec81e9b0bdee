// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/kirv_patience.h"
#include "tests/support/servers/kirv_observing_irc_client.h"
#include "tests/support/servers/kirv_plugin_profile.h"
#include "tests/support/servers/kirv_scripted_irc_server.h"
#include "tools/servers/kirv_ngircd_server.h"

#include <QFile>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QSslSocket>
#include <QTcpServer>
#include <algorithm>
#include <memory>
#include <vector>

Q_DECLARE_METATYPE(KirvFailure::Kind)

using Values = KirvPluginProfile::Values;

namespace {

/// A server that can do nothing but prove who it is.
class TlsServer : public QTcpServer {
public:
    TlsServer(const QString &certificateFile, const QString &keyFile)
        : certificateFile(certificateFile)
        , keyFile(keyFile)
    {
    }

protected:
    void incomingConnection(qintptr handle) override
    {
        auto *socket = new QSslSocket(this);
        socket->setSocketDescriptor(handle);
        socket->setLocalCertificate(certificateFile);
        socket->setPrivateKey(keyFile);
        socket->startServerEncryption();
    }

private:
    QString certificateFile;
    QString keyFile;
};

/// The answers of a server that lets everybody in, and knows nothing of capabilities.
QByteArray welcome(const QByteArray &line)
{
    return line.startsWith("USER ") ? ":server 001 alice :Welcome\r\n" : "";
}

QByteArray welcomeAndPong(const QByteArray &line)
{
    return line.startsWith("PING ") ? ":server PONG server :" + line.mid(5) + "\r\n" : welcome(line);
}

/// The answers of a server that has SASL; \a judgement is the numeric that follows the credentials.
KirvScriptedIrcServer::Script saslServer(const QByteArray &judgement,
                                         const QByteArray &capabilities = "multi-prefix sasl")
{
    return [judgement, capabilities](const QByteArray &line) -> QByteArray {
        if (line.startsWith("CAP LS"))
            return ":server CAP * LS :" + capabilities + "\r\n";
        if (line.startsWith("CAP REQ"))
            return ":server CAP * ACK :sasl\r\n";
        if (line == "AUTHENTICATE PLAIN")
            return "AUTHENTICATE +\r\n";
        if (line.startsWith("AUTHENTICATE "))
            return line.size() == 413 ? "" : ":server " + judgement + " * :That is my judgement\r\n";
        return line == "CAP END" ? ":server 001 alice :Welcome\r\n" : "";
    };
}

} // namespace

/// The IRC plug-in in our core, against a real server where that can do it, and a scripted one where it cannot.
class tst_IrcConnection : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void loginsAreNicksWithAnOptionalNetwork_data();
    void loginsAreNicksWithAnOptionalNetwork();
    void configurationsFillTheForm();
    void localConfigurationKnowsThePortOfTheDemo();
    void thereIsNoDirectory();
    void unusableSettingsAreSaid_data();
    void unusableSettingsAreSaid();
    void loginsThatCannotWorkMakeNoAccount_data();
    void loginsThatCannotWorkMakeNoAccount();

    void logsInAndOut_data();
    void logsInAndOut();
    void loginNamesTheServerWhenNoSettingDoes_data();
    void loginNamesTheServerWhenNoSettingDoes();
    void untrustedCertificateIsRefused();
    void certificateForAnotherNameIsRefused();
    void serverWithoutEncryptionIsRefused();

    void takenNickIsReplaced_data();
    void takenNickIsReplaced();
    void allNicksTaken();
    void nickThatTheServerRefuses();

    void serverPassword_data();
    void serverPassword();
    void passwordIsKeptWhenItIsNotUsed();
    void missingPasswordIsAskedForOnlyWhenItIsUsed_data();
    void missingPasswordIsAskedForOnlyWhenItIsUsed();

    void awayIsSeenByOthers_data();
    void awayIsSeenByOthers();
    void backIsSeenByOthers();
    void arrivesAway();
    void longAwayTextKeepsTheConnection();

    void killedServerIsReachedAgain();
    void stoppedServerSaysGoodbye();
    void hungServerTimesOut();
    void serverThatFallsSilentIsLost();
    void quietServerIsKept();
    void nobodyListens();
    void serverIsNotFound();
    void bannedUserStaysOut_data();
    void bannedUserStaysOut();
    void serverThatIsBusyIsTriedAgain();
    void removedAccountLeavesTheServer();
    void othersLearnTheNameOfTheProgram();

    void saslLogsIn_data();
    void saslLogsIn();
    void saslPasswordIsRefused();
    void saslIsNotOffered_data();
    void saslIsNotOffered();

private:
    KirvAccount *createAccount(const KirvLocalServer &server, Values values = {}, const QString &password = "secret");
    KirvAccount *createAccount(const QTcpServer &server, Values values = {}, const QString &password = "secret");
    /// An account without encryption that is available; null when it does not get on line.
    template <class Server>
    KirvAccount *logIn(const Server &server);
    static Values plain() { return { { "encryption", "none" } }; }

    std::unique_ptr<KirvPluginProfile> profile;
    KirvProtocolBase *protocol = nullptr; ///< of the profile
};

void tst_IrcConnection::init()
{
    profile = std::make_unique<KirvPluginProfile>(KIRV_IRC_PLUGIN, "IRC");
    QVERIFY2(profile->problem().isEmpty(), qPrintable(profile->problem()));
    protocol = profile->protocol();
}

void tst_IrcConnection::cleanup()
{
    profile.reset();
}

KirvAccount *tst_IrcConnection::createAccount(const KirvLocalServer &server, Values values, const QString &password)
{
    values.insert("server", server.host());
    values.insert("port", QString::number(server.port()));
    return profile->createAccount("alice", values, password);
}

KirvAccount *tst_IrcConnection::createAccount(const QTcpServer &server, Values values, const QString &password)
{
    values.insert("server", server.serverAddress().toString());
    values.insert("port", QString::number(server.serverPort()));
    return profile->createAccount("alice", values, password);
}

template <class Server>
KirvAccount *tst_IrcConnection::logIn(const Server &server)
{
    KirvAccount *account = createAccount(server, plain());
    profile->goTo(account, "available");
    return QTest::qWaitFor([account] { return account->isOnline(); }, kirvPatience) ? account : nullptr;
}

void tst_IrcConnection::loginsAreNicksWithAnOptionalNetwork_data()
{
    QTest::addColumn<QString>("login");
    QTest::addColumn<bool>("matches");
    QTest::newRow("nick") << "alice" << true;
    QTest::newRow("special characters") << "[a]\\`_^{|}-9" << true;
    QTest::newRow("nick and network") << "alice@irc.libera.chat" << true;
    QTest::newRow("nick and address") << "alice@127.0.0.1" << true;
    QTest::newRow("empty") << "" << false;
    QTest::newRow("digit first") << "9alice" << false;
    QTest::newRow("hyphen first") << "-alice" << false;
    QTest::newRow("space") << "al ice" << false;
    QTest::newRow("channel") << "#alice" << false;
    QTest::newRow("no nick") << "@irc.libera.chat" << false;
    QTest::newRow("no network") << "alice@" << false;
    QTest::newRow("line break") << "alice\r\nQUIT" << false;
}

void tst_IrcConnection::loginsAreNicksWithAnOptionalNetwork()
{
    QFETCH(QString, login);
    const QRegularExpression pattern(QRegularExpression::anchoredPattern(protocol->getLoginPattern()));
    QTEST(pattern.match(login).hasMatch(), "matches");
}

void tst_IrcConnection::configurationsFillTheForm()
{
    QVERIFY(protocol->getConfigurations().size() >= 5);
    const int expected = protocol->accountSettings().size();
    for (const QString &name : protocol->getConfigurations()) {
        Values values;
        for (const KirvField &field : protocol->getConfigurationFields(name))
            values.insert(field.getId(), field.getText());
        QCOMPARE(values.size(), expected);
        QVERIFY(!values.contains("login"));
        const bool isLocal = values["server"] == "127.0.0.1";
        QCOMPARE(values["encryption"], isLocal ? QString("none") : QString("required"));
        QCOMPARE(values["port"], isLocal ? QString("6667") : QString("6697"));
        QVERIFY(!values["server"].isEmpty());
    }
    QVERIFY(protocol->getConfigurationFields("Nowhere").isEmpty());
}

void tst_IrcConnection::localConfigurationKnowsThePortOfTheDemo()
{
    qputenv("KIRV_IRC_LOCAL_PORT", "12345");
    const QList<KirvField> fields = protocol->getConfigurationFields(protocol->getConfigurations().last());
    qunsetenv("KIRV_IRC_LOCAL_PORT");
    QCOMPARE(fields.at(0).getText(), QString("127.0.0.1"));
    QCOMPARE(fields.at(1).getText(), QString("12345"));
}

void tst_IrcConnection::thereIsNoDirectory()
{
    QVERIFY(protocol->getPubdirAccountFields().isEmpty());
    QVERIFY(!QFile::exists("irc.svg") && QFile::exists(protocol->getIconPath(0)));
}

void tst_IrcConnection::unusableSettingsAreSaid_data()
{
    QTest::addColumn<Values>("values");
    const Values local { { "server", "127.0.0.1" } };
    const auto with = [&local](const QString &id, const QString &value) {
        Values values = local;
        values.insert(id, value);
        return values;
    };
    QTest::newRow("no server") << with("server", "");
    QTest::newRow("server of two lines") << with("server", "a\r\nb");
    QTest::newRow("port 0") << with("port", "0");
    QTest::newRow("port too large") << with("port", "70000");
    QTest::newRow("certificate is not there") << with("certificate", "/nonexistent.pem");
    QTest::newRow("certificate is none") << with("certificate", KIRV_IRC_PLUGIN);
}

/// Of an account that is there; one without a server is not added.
void tst_IrcConnection::unusableSettingsAreSaid()
{
    QFETCH(Values, values);
    KirvAccount *account = profile->createAccount("alice", { { "server", "127.0.0.1" } });
    QVERIFY(account);
    account->change([&values](KirvAccountRecord &record) {
        for (auto value = values.constBegin(); value != values.constEnd(); ++value)
            record.settings.insert(value.key(), value.value());
    });
    profile->goTo(account, "available");
    KIRV_TRY_FAILURE(account, BadSettings);
    KIRV_TRY_STATE(account, Offline);
    QVERIFY(!account->connection()->lastFailure().detail().isEmpty());
}

void tst_IrcConnection::loginsThatCannotWorkMakeNoAccount_data()
{
    QTest::addColumn<QString>("login");
    QTest::addColumn<QString>("server");
    QTest::newRow("nick that is none") << "9 lives"
                                       << "127.0.0.1";
    QTest::newRow("nick of two lines") << "alice\r\nQUIT"
                                       << "127.0.0.1";
    QTest::newRow("no server") << "alice"
                               << "";
    QTest::newRow("server of two lines") << "alice"
                                         << "a\r\nb";
}

void tst_IrcConnection::loginsThatCannotWorkMakeNoAccount()
{
    QFETCH(QString, login);
    QFETCH(QString, server);
    QVERIFY(!profile->createAccount(login, { { "server", server } }));
}

void tst_IrcConnection::logsInAndOut_data()
{
    QTest::addColumn<bool>("encrypted");
    QTest::newRow("plain") << false;
    QTest::newRow("TLS") << true;
}

void tst_IrcConnection::logsInAndOut()
{
    QFETCH(bool, encrypted);
    KirvNgircdServer server;
    server.setEncrypted(encrypted);
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    KirvAccount *account =
        createAccount(server, encrypted ? Values { { "certificate", server.certificateFile() } } : plain());
    QSignalSpy notices(account->connection(), &KirvConnection::noticeReceived);

    profile->goTo(account, "available");
    KIRV_TRY_STATE(account, Online);
    QCOMPARE(failure(account), KirvFailure::None);
    QVERIFY(notices.isEmpty());

    profile->goTo(account, "offline");
    KIRV_TRY_STATE(account, Offline);
    QCOMPARE(failure(account), KirvFailure::None);
    QTRY_VERIFY2_WITH_TIMEOUT(server.output().contains("Got QUIT command"), qPrintable(server.output()), kirvPatience);
}

void tst_IrcConnection::loginNamesTheServerWhenNoSettingDoes_data()
{
    QTest::addColumn<bool>("withPort");
    QTest::newRow("server") << false;
    QTest::newRow("server and port") << true;
}

void tst_IrcConnection::loginNamesTheServerWhenNoSettingDoes()
{
    QFETCH(bool, withPort);
    KirvNgircdServer server;
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    const QString port = QString::number(server.port());
    KirvAccount *account = withPort
        ? profile->createAccount("alice@127.0.0.1:" + port, plain())
        : profile->createAccount("alice@127.0.0.1", { { "port", port }, { "encryption", "none" } });
    profile->goTo(account, "available");
    KIRV_TRY_STATE(account, Online);
    KirvObservingIrcClient bob;
    QVERIFY(bob.logIn(server, "bob"));
    QVERIFY(bob.sees("alice"));
}

void tst_IrcConnection::untrustedCertificateIsRefused()
{
    KirvNgircdServer server;
    server.setEncrypted(true);
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    KirvAccount *account = createAccount(server);
    profile->goTo(account, "available");
    KIRV_TRY_FAILURE(account, UntrustedCertificate);
    KIRV_TRY_STATE(account, Offline);
    QVERIFY(!server.output().contains("alice"));
}

void tst_IrcConnection::certificateForAnotherNameIsRefused()
{
    KirvNgircdServer server;
    server.setEncrypted(true);
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    // The same certificate at an address that it does not name.
    TlsServer other(server.certificateFile(), server.folder() + "/key.pem");
    QVERIFY2(other.listen(QHostAddress("127.0.0.2")), qPrintable(other.errorString()));
    KirvAccount *account = createAccount(other, { { "certificate", server.certificateFile() } });
    profile->goTo(account, "available");
    KIRV_TRY_FAILURE(account, UntrustedCertificate);
    KIRV_TRY_STATE(account, Offline);
}

void tst_IrcConnection::serverWithoutEncryptionIsRefused()
{
    KirvScriptedIrcServer server(nullptr, ":server NOTICE * :*** Looking up your name\r\n");
    KirvAccount *account = createAccount(server);
    profile->goTo(account, "available");
    KIRV_TRY_FAILURE(account, EncryptionNotOffered);
    KIRV_TRY_STATE(account, Offline);
}

void tst_IrcConnection::takenNickIsReplaced_data()
{
    QTest::addColumn<QString>("alternatives");
    QTest::addColumn<QStringList>("taken");
    QTest::addColumn<QString>("expected");
    QTest::newRow("alternative") << "alice2, alice3" << QStringList { "alice" } << "alice2";
    QTest::newRow("second alternative") << "alice2, alice3" << QStringList { "alice", "alice2" } << "alice3";
    QTest::newRow("alternative that the server refuses")
        << "muchtoolongforanicktobeacceptedhere,alice3" << QStringList { "alice" } << "alice3";
    QTest::newRow("alternative that is no nick") << "9lives,alice3" << QStringList { "alice" } << "alice3";
    QTest::newRow("no alternative") << "" << QStringList { "alice" } << "alice_";
    QTest::newRow("alternative taken, too") << "alice2" << QStringList { "alice", "alice2", "alice_" } << "alice__";
}

void tst_IrcConnection::takenNickIsReplaced()
{
    QFETCH(QString, alternatives);
    QFETCH(QStringList, taken);
    QFETCH(QString, expected);
    KirvNgircdServer server;
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    std::vector<KirvObservingIrcClient> others(taken.size());
    for (int i = 0; i < taken.size(); ++i)
        QVERIFY(others[i].logIn(server, taken[i]));

    KirvAccount *account = createAccount(server, { { "encryption", "none" }, { "alternative_nicks", alternatives } });
    QSignalSpy notices(account->connection(), &KirvConnection::noticeReceived);
    profile->goTo(account, "available");
    KIRV_TRY_STATE(account, Online);
    QVERIFY(others[0].sees(expected));
    KIRV_TRY_COMPARE(notices.size(), 1);
    QVERIFY(notices[0][0].toString().contains(QString("\"%1\"").arg(expected)));
}

void tst_IrcConnection::allNicksTaken()
{
    KirvNgircdServer server;
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    const QStringList taken { "alice", "alice2", "alice_", "alice__", "alice___" };
    std::vector<KirvObservingIrcClient> others(taken.size());
    for (int i = 0; i < taken.size(); ++i)
        QVERIFY(others[i].logIn(server, taken[i]));

    KirvAccount *account = createAccount(server, { { "encryption", "none" }, { "alternative_nicks", "alice2" } });
    profile->goTo(account, "available");
    KIRV_TRY_FAILURE(account, NameInUse);
    KIRV_TRY_STATE(account, Offline);
    QCOMPARE(account->connection()->lastFailure().detail(), QString("alice"));
}

void tst_IrcConnection::nickThatTheServerRefuses()
{
    KirvNgircdServer server;
    server.setMaximumNickLength(4);
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    KirvAccount *account = createAccount(server, { { "encryption", "none" }, { "alternative_nicks", "al" } });
    profile->goTo(account, "available");
    KIRV_TRY_FAILURE(account, NameNotAllowed);
    KIRV_TRY_STATE(account, Offline);
}

void tst_IrcConnection::serverPassword_data()
{
    QTest::addColumn<QString>("use");
    QTest::addColumn<QString>("password");
    QTest::addColumn<KirvFailure::Kind>("expected");
    QTest::newRow("right") << "server"
                           << "open : sesame" << KirvFailure::None;
    QTest::newRow("wrong") << "server"
                           << "shut" << KirvFailure::AccessDenied;
    QTest::newRow("not sent") << "none"
                              << "open : sesame" << KirvFailure::AccessDenied;
    QTest::newRow("two lines") << "server"
                               << "open\r\nQUIT" << KirvFailure::BadSettings;
}

void tst_IrcConnection::serverPassword()
{
    QFETCH(QString, use);
    QFETCH(QString, password);
    QFETCH(KirvFailure::Kind, expected);
    KirvNgircdServer server;
    server.setPassword("open : sesame");
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    KirvAccount *account = createAccount(server, { { "encryption", "none" }, { "password_use", use } }, password);
    profile->goTo(account, "available");
    KIRV_TRY(failure(account) != KirvFailure::None || state(account) == KirvConnection::Online);
    QCOMPARE(failure(account), expected);
    if (expected != KirvFailure::None)
        KIRV_TRY_STATE(account, Offline);
}

void tst_IrcConnection::passwordIsKeptWhenItIsNotUsed()
{
    KirvScriptedIrcServer server(welcome);
    KirvAccount *account = createAccount(server, plain(), "topsecret");
    profile->goTo(account, "available");
    KIRV_TRY_STATE(account, Online);
    QVERIFY(server.hasReceived("NICK alice"));
    QVERIFY(!server.hasReceived("PASS") && !server.hasReceived("topsecret"));
}

void tst_IrcConnection::missingPasswordIsAskedForOnlyWhenItIsUsed_data()
{
    QTest::addColumn<QString>("use");
    QTest::addColumn<bool>("isAskedFor");
    QTest::newRow("not used") << "none" << false;
    QTest::newRow("server") << "server" << true;
    QTest::newRow("SASL") << "sasl" << true;
}

void tst_IrcConnection::missingPasswordIsAskedForOnlyWhenItIsUsed()
{
    QFETCH(QString, use);
    QFETCH(bool, isAskedFor);
    KirvScriptedIrcServer server(welcome);
    KirvAccount *account = createAccount(server, { { "encryption", "none" }, { "password_use", use } }, QString());
    qRegisterMetaType<KirvAccount *>();
    QSignalSpy questions(&profile->accounts(), &KirvAccountCollection::passwordNeeded);
    profile->goTo(account, "available");
    KIRV_TRY(!questions.isEmpty() || state(account) == KirvConnection::Online);
    QCOMPARE(!questions.isEmpty(), isAskedFor);
    QCOMPARE(server.linesWith("NICK").isEmpty(), isAskedFor);
}

void tst_IrcConnection::awayIsSeenByOthers_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("seen");
    QTest::newRow("text") << "Gone fishing"
                          << "Gone fishing";
    QTest::newRow("no text") << ""
                             << "Away";
    QTest::newRow("white space only") << " \n"
                                      << "Away";
    QTest::newRow("other script") << "Schöne Grüße, 日本"
                                  << "Schöne Grüße, 日本";
    QTest::newRow("line breaks") << "Gone\r\nQUIT :by force"
                                 << "Gone  QUIT :by force";
}

void tst_IrcConnection::awayIsSeenByOthers()
{
    QFETCH(QString, text);
    QFETCH(QString, seen);
    KirvNgircdServer server;
    KirvObservingIrcClient bob;
    QVERIFY2(server.start() && bob.logIn(server, "bob"), qPrintable(server.errorString()));
    KirvAccount *account = logIn(server);
    QVERIFY(account);

    profile->goTo(account, "away", text);
    KIRV_TRY_COMPARE(bob.awayTextOf("alice"), seen);
    QCOMPARE(state(account), KirvConnection::Online);
    QVERIFY(bob.sees("alice"));
}

void tst_IrcConnection::backIsSeenByOthers()
{
    KirvNgircdServer server;
    KirvObservingIrcClient bob;
    QVERIFY2(server.start() && bob.logIn(server, "bob"), qPrintable(server.errorString()));
    KirvAccount *account = logIn(server);
    QVERIFY(account);
    profile->goTo(account, "away", "Lunch");
    KIRV_TRY_COMPARE(bob.awayTextOf("alice"), QString("Lunch"));
    profile->goTo(account, "available", "This is not sent");
    KIRV_TRY(bob.awayTextOf("alice").isNull());
    QVERIFY(bob.sees("alice"));
}

void tst_IrcConnection::arrivesAway()
{
    KirvNgircdServer server;
    KirvObservingIrcClient bob;
    QVERIFY2(server.start() && bob.logIn(server, "bob"), qPrintable(server.errorString()));
    KirvAccount *account = createAccount(server, plain());
    profile->goTo(account, "away", "Still asleep");
    KIRV_TRY_STATE(account, Online);
    KIRV_TRY_COMPARE(bob.awayTextOf("alice"), QString("Still asleep"));
}

void tst_IrcConnection::longAwayTextKeepsTheConnection()
{
    KirvNgircdServer server;
    KirvObservingIrcClient bob;
    QVERIFY2(server.start() && bob.logIn(server, "bob"), qPrintable(server.errorString()));
    KirvAccount *account = logIn(server);
    QVERIFY(account);
    profile->goTo(account, "away", QString(1000000, QChar(0x65e5)));
    KIRV_TRY(bob.awayTextOf("alice").startsWith(QString(30, QChar(0x65e5))));
    QCOMPARE(state(account), KirvConnection::Online);
}

void tst_IrcConnection::killedServerIsReachedAgain()
{
    KirvNgircdServer server;
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    KirvAccount *account = createAccount(server, plain());
    profile->goTo(account, "away", "Out");
    KIRV_TRY_STATE(account, Online);

    QSignalSpy failures(account->connection(), &KirvConnection::failed);
    server.kill();
    KIRV_TRY_STATE(account, Waiting);
    QCOMPARE(failures.value(0).value(0).value<KirvFailure>().kind(), KirvFailure::ConnectionLost);

    QVERIFY2(server.start(), qPrintable(server.errorString()));
    KIRV_TRY_STATE(account, Online);
    QCOMPARE(failure(account), KirvFailure::None);
    KirvObservingIrcClient bob;
    QVERIFY(bob.logIn(server, "bob"));
    KIRV_TRY_COMPARE(bob.awayTextOf("alice"), QString("Out"));
}

void tst_IrcConnection::stoppedServerSaysGoodbye()
{
    KirvNgircdServer server;
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    KirvAccount *account = logIn(server);
    QVERIFY(account);

    QSignalSpy failures(account->connection(), &KirvConnection::failed);
    server.stop();
    KIRV_TRY(!failures.isEmpty());
    QCOMPARE(failures[0][0].value<KirvFailure>().kind(), KirvFailure::ServerShutDown);
    profile->goTo(account, "offline");
    KIRV_TRY_STATE(account, Offline);
}

void tst_IrcConnection::hungServerTimesOut()
{
    KirvScriptedIrcServer server(nullptr);
    KirvAccount *account = createAccount(server, plain());
    KirvConnection::Timing timing = account->connection()->timing();
    timing.loginTimeout = 100;
    timing.backOff.first = kirvPatience;
    account->connection()->setTiming(timing);
    profile->goTo(account, "available");
    KIRV_TRY_FAILURE(account, TimedOut);
    QCOMPARE(state(account), KirvConnection::Waiting);
    QVERIFY(server.hasReceived("NICK alice"));
}

void tst_IrcConnection::serverThatFallsSilentIsLost()
{
    KirvScriptedIrcServer server(welcome);
    KirvAccount *account = createAccount(server, plain());
    KirvConnection::Timing timing = account->connection()->timing();
    timing.requestTimeout = 50;
    timing.backOff.first = kirvPatience;
    account->connection()->setTiming(timing);
    profile->goTo(account, "available");
    KIRV_TRY_STATE(account, Online);
    KIRV_TRY_FAILURE(account, ConnectionLost);
    QVERIFY(server.hasReceived("PING"));
    QCOMPARE(state(account), KirvConnection::Waiting);
}

void tst_IrcConnection::quietServerIsKept()
{
    KirvScriptedIrcServer server(welcomeAndPong);
    KirvAccount *account = createAccount(server, plain());
    KirvConnection::Timing timing = account->connection()->timing();
    timing.requestTimeout = 200;
    account->connection()->setTiming(timing);
    QSignalSpy failures(account->connection(), &KirvConnection::failed);
    profile->goTo(account, "available");
    const auto pings = [&server] { return server.linesWith("PING").size(); };
    KIRV_TRY(pings() >= 2);
    QCOMPARE(state(account), KirvConnection::Online);
    QVERIFY(failures.isEmpty());
}

void tst_IrcConnection::nobodyListens()
{
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    KirvAccount *account = createAccount(server, plain());
    server.close();
    profile->goTo(account, "available");
    KIRV_TRY_FAILURE(account, ConnectionRefused);
    profile->goTo(account, "offline");
    KIRV_TRY_STATE(account, Offline);
}

void tst_IrcConnection::serverIsNotFound()
{
    // A label of more than 63 characters is no name: nobody has to be asked.
    KirvAccount *account = profile->createAccount("alice", { { "server", QString(70, 'a') + ".invalid" } });
    profile->goTo(account, "available");
    KIRV_TRY_FAILURE(account, HostNotFound);
    profile->goTo(account, "offline");
    KIRV_TRY_STATE(account, Offline);
}

void tst_IrcConnection::bannedUserStaysOut_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::newRow("numeric") << QByteArray(":server 465 alice :You are banned\r\n");
    QTest::newRow("error") << QByteArray("ERROR :Closing Link: 127.0.0.1 (K-Lined)\r\n");
}

void tst_IrcConnection::bannedUserStaysOut()
{
    QFETCH(QByteArray, answer);
    KirvScriptedIrcServer server([answer](const QByteArray &line) { return line.startsWith("USER ") ? answer : ""; });
    KirvAccount *account = createAccount(server, plain());
    profile->goTo(account, "available");
    KIRV_TRY_FAILURE(account, AccessDenied);
    KIRV_TRY_STATE(account, Offline);
}

void tst_IrcConnection::serverThatIsBusyIsTriedAgain()
{
    bool busy = true;
    KirvScriptedIrcServer server([&busy](const QByteArray &line) {
        return busy && line.startsWith("USER ") ? "ERROR :Closing Link: Reconnecting too fast\r\n" : welcome(line);
    });
    KirvAccount *account = createAccount(server, plain());
    profile->goTo(account, "available");
    KIRV_TRY_FAILURE(account, ServerShutDown);
    busy = false;
    KIRV_TRY_STATE(account, Online);
}

void tst_IrcConnection::removedAccountLeavesTheServer()
{
    KirvNgircdServer server;
    KirvObservingIrcClient bob;
    QVERIFY2(server.start() && bob.logIn(server, "bob"), qPrintable(server.errorString()));
    KirvAccount *account = logIn(server);
    QVERIFY(account);
    QVERIFY(bob.sees("alice"));
    KirvAccountManager::getInstance()->removeAccount("alice", "IRC");
    KIRV_TRY(!bob.sees("alice"));
}

void tst_IrcConnection::othersLearnTheNameOfTheProgram()
{
    KirvScriptedIrcServer server([](const QByteArray &line) {
        return line.startsWith("AWAY") ? ":bob!b@host PRIVMSG alice :\1VERSION\1\r\n" : welcome(line);
    });
    KirvAccount *account = createAccount(server, plain());
    profile->goTo(account, "available");
    const QByteArray answer = "NOTICE bob :\1VERSION " + QCoreApplication::applicationName().toUtf8() + '\1';
    KIRV_TRY(server.hasReceived(answer));
}

void tst_IrcConnection::saslLogsIn_data()
{
    QTest::addColumn<QString>("user");
    QTest::addColumn<QString>("password");
    QTest::addColumn<QByteArray>("capabilities");
    QTest::newRow("nick") << ""
                          << "pass word" << QByteArray("sasl");
    QTest::newRow("another user") << "alicia"
                                  << "päss:wörd" << QByteArray("multi-prefix sasl=EXTERNAL,PLAIN");
    QTest::newRow("long password") << "" << QString(400, 'x') << QByteArray("sasl");
    // 300 bytes of credentials make one piece of full size, which must be followed by an empty one.
    QTest::newRow("full piece") << "" << QString(293, 'x') << QByteArray("sasl");
}

void tst_IrcConnection::saslLogsIn()
{
    QFETCH(QString, user);
    QFETCH(QString, password);
    QFETCH(QByteArray, capabilities);
    KirvScriptedIrcServer server(saslServer("903", capabilities));
    const Values values { { "encryption", "none" }, { "password_use", "sasl" }, { "sasl_user", user } };
    KirvAccount *account = createAccount(server, values, password);
    profile->goTo(account, "available");
    KIRV_TRY_STATE(account, Online);

    QByteArray credentials;
    for (const QByteArray &line : server.linesWith("AUTHENTICATE ")) {
        if (line != "AUTHENTICATE PLAIN" && line != "AUTHENTICATE +")
            credentials += line.mid(13);
    }
    const QString name = user.isEmpty() ? "alice" : user;
    QCOMPARE(QByteArray::fromBase64(credentials).split('\0'),
             (QByteArrayList { "", name.toUtf8(), password.toUtf8() }));
    QVERIFY(!server.hasReceived("PASS"));
    QCOMPARE(server.linesWith("CAP END").size(), 1);
}

void tst_IrcConnection::saslPasswordIsRefused()
{
    KirvScriptedIrcServer server(saslServer("904"));
    KirvAccount *account = createAccount(server, { { "encryption", "none" }, { "password_use", "sasl" } });
    profile->goTo(account, "available");
    KIRV_TRY_FAILURE(account, WrongPassword);
    KIRV_TRY_STATE(account, Offline);
    QVERIFY(!server.hasReceived("CAP END"));
}

void tst_IrcConnection::saslIsNotOffered_data()
{
    QTest::addColumn<QByteArray>("answerToList");
    QTest::addColumn<QByteArray>("answerToRequest");
    QTest::newRow("no capabilities at all") << QByteArray(":server 421 * CAP :Unknown command\r\n") << QByteArray();
    QTest::newRow("no such capability") << QByteArray(":server CAP * LS :multi-prefix\r\n") << QByteArray();
    QTest::newRow("empty list") << QByteArray(":server CAP * LS :\r\n") << QByteArray();
    QTest::newRow("other mechanisms") << QByteArray(":server CAP * LS :sasl=EXTERNAL\r\n") << QByteArray();
    QTest::newRow("request refused") << QByteArray(":server CAP * LS * :a b\r\n:server CAP * LS :sasl\r\n")
                                     << QByteArray(":server CAP * NAK :sasl\r\n");
}

void tst_IrcConnection::saslIsNotOffered()
{
    QFETCH(QByteArray, answerToList);
    QFETCH(QByteArray, answerToRequest);
    KirvScriptedIrcServer server([=](const QByteArray &line) {
        if (line.startsWith("CAP LS"))
            return answerToList;
        return line.startsWith("CAP REQ")  ? answerToRequest
            : answerToList.contains("421") ? welcome(line)
                                           : QByteArray();
    });
    const Values values { { "encryption", "none" }, { "password_use", "sasl" } };
    KirvAccount *account = createAccount(server, values, "topsecret");
    profile->goTo(account, "available");
    KIRV_TRY_FAILURE(account, AuthenticationNotOffered);
    KIRV_TRY_STATE(account, Offline);
    QVERIFY(!server.hasReceived("topsecret") && !server.hasReceived(QByteArray("\0alice\0topsecret", 16).toBase64()));
}

QTEST_GUILESS_MAIN(tst_IrcConnection)
#include "tst_irc_connection.moc"
