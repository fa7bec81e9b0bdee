// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/kirv_profile_files.h"
#include "tests/support/servers/kirv_observing_xmpp_client.h"
#include "tests/support/servers/kirv_scripted_xmpp_server.h"
#include "tests/support/servers/kirv_xmpp_profile.h"
#include "tools/servers/kirv_prosody_server.h"

#include <QFile>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

using Values = KirvPluginProfile::Values;

namespace {

KirvProsodyServer::Options unencrypted()
{
    KirvProsodyServer::Options options;
    options.offersEncryption = false;
    return options;
}

const QString romeoAddress = "romeo@localhost";

/// Starts \a server with Romeo and Juliet, who see each other's presence; Juliet is logged in.
bool startWithFriend(KirvProsodyServer &server, KirvObservingXmppClient &juliet)
{
    return KirvXmppProfile::start(server, { "romeo", "juliet" }) && juliet.logIn(server, "juliet")
        && juliet.befriend(server, "romeo");
}

} // namespace

/// The XMPP plug-in in our core, against a real server where that can do it, and a scripted one where it cannot.
class tst_XmppConnection : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void loginsAreBareAddresses_data();
    void loginsAreBareAddresses();
    void everyConfigurationFillsTheForm();
    void localConfigurationKnowsTheServerOfTheDemo();
    void iconIsThere();
    void unusableSettingsAreSaid_data();
    void unusableSettingsAreSaid();
    void loginsThatCannotWorkMakeNoAccount_data();
    void loginsThatCannotWorkMakeNoAccount();

    void logsInAndOut_data();
    void logsInAndOut();
    void wrongPasswordIsSaidAndNotTriedAgain();
    void missingPasswordIsSaid();
    void nobodyListens();
    void hostIsNotFound();
    void domainThatTheServerDoesNotServe();
    void untrustedCertificateIsRefusedUntilItIsTrusted();
    void passwordIsNotSentWithoutEncryption();
    void serverThatRequiresEncryptionIsNotLeftOut();
    void noWayToLogIn();
    void hungServerTimesOut_data();
    void hungServerTimesOut();

    void presenceIsSeenByOthers_data();
    void presenceIsSeenByOthers();
    void arrivesWithItsPresence();
    void invisibleIsNotSeen();
    void statusThatCannotBeSentKeepsTheSession();
    void priorityAndResourceAreTaken();

    void killedServerIsReachedAgain();
    void stoppedServerIsReachedAgain();
    void sameResourceTwiceEndsTheOlder();
    void changedPasswordIsUsed();
    void disabledAccountLeavesTheServer();
    void removedAccountLeavesTheServer();

private:
    QString tryToLogIn(KirvAccount *account, KirvFailure::Kind expected);

    std::unique_ptr<KirvXmppProfile> profile;
};

void tst_XmppConnection::init()
{
    profile = std::make_unique<KirvXmppProfile>();
    QVERIFY2(profile->problem().isEmpty(), qPrintable(profile->problem()));
}

void tst_XmppConnection::cleanup()
{
    profile.reset();
}

void tst_XmppConnection::loginsAreBareAddresses_data()
{
    QTest::addColumn<QString>("login");
    QTest::addColumn<bool>("matches");
    QTest::newRow("ordinary") << "romeo@example.org" << true;
    QTest::newRow("one label") << "romeo@localhost" << true;
    QTest::newRow("address of a host") << "romeo@127.0.0.1" << true;
    QTest::newRow("signs") << "ro.me-o_1+x!#$%*=?^`{|}~@ex-ample.org" << true;
    QTest::newRow("letters beyond ASCII") << QString::fromUtf8("jürgen@bücher.example") << true;
    QTest::newRow("empty") << "" << false;
    QTest::newRow("no domain") << "romeo" << false;
    QTest::newRow("empty domain") << "romeo@" << false;
    QTest::newRow("empty name") << "@example.org" << false;
    QTest::newRow("with a resource") << "romeo@example.org/home" << false;
    QTest::newRow("two at signs") << "romeo@juliet@example.org" << false;
    QTest::newRow("blank") << "ro meo@example.org" << false;
    QTest::newRow("empty label") << "romeo@example..org" << false;
    QTest::newRow("markup") << "<b>romeo@example.org" << false;
}

void tst_XmppConnection::loginsAreBareAddresses()
{
    QFETCH(QString, login);
    const QString pattern = profile->protocol()->getLoginPattern();
    const QRegularExpression modern(QRegularExpression::anchoredPattern(pattern));
    QTEST(modern.match(login).hasMatch(), "matches");
    QTEST(QRegExp(pattern).exactMatch(login), "matches");
}

void tst_XmppConnection::everyConfigurationFillsTheForm()
{
    const QStringList names = profile->protocol()->getConfigurations();
    QVERIFY(names.contains("Server on this computer"));
    for (const QString &name : names) {
        QStringList ids;
        QStringList expected;
        for (const KirvField &field : profile->protocol()->getConfigurationFields(name))
            ids << field.getId();
        for (const KirvField &field : profile->protocol()->accountSettings())
            expected << field.getId();
        QCOMPARE(ids, expected);
    }
    QVERIFY(profile->protocol()->getConfigurationFields("Nowhere").isEmpty());
}

void tst_XmppConnection::localConfigurationKnowsTheServerOfTheDemo()
{
    qputenv("KIRV_XMPP_LOCAL_PORT", "12345");
    qputenv("KIRV_XMPP_LOCAL_CERTIFICATE", "/somewhere/localhost.crt");
    Values values;
    for (const KirvField &field : profile->protocol()->getConfigurationFields("Server on this computer"))
        values.insert(field.getId(), field.getText());
    qunsetenv("KIRV_XMPP_LOCAL_PORT");
    qunsetenv("KIRV_XMPP_LOCAL_CERTIFICATE");
    QCOMPARE(values["server"], QString("127.0.0.1"));
    QCOMPARE(values["port"], QString("12345"));
    QCOMPARE(values["certificate"], QString("/somewhere/localhost.crt"));
    QCOMPARE(values["encryption"], QString("required"));
}

void tst_XmppConnection::iconIsThere()
{
    QVERIFY(QFile::exists(profile->protocol()->getIconPath(0)));
}

void tst_XmppConnection::unusableSettingsAreSaid_data()
{
    QTest::addColumn<Values>("values");
    QTest::newRow("certificate is not there") << Values { { "certificate", "/nonexistent.pem" } };
    QTest::newRow("certificate is none") << Values { { "certificate", "/etc/passwd" } };
    QTest::newRow("certificate is a folder") << Values { { "certificate", "/" } };
}

void tst_XmppConnection::unusableSettingsAreSaid()
{
    QFETCH(Values, values);
    KirvAccount *account = profile->createAccount(romeoAddress, values);
    profile->goTo(account, "available");
    KIRV_TRY_FAILURE(account, BadSettings);
    QCOMPARE(state(account), KirvConnection::Offline);
    QVERIFY(!account->connection()->lastFailure().detail().isEmpty());
}

void tst_XmppConnection::loginsThatCannotWorkMakeNoAccount_data()
{
    QTest::addColumn<QString>("login");
    QTest::newRow("no domain") << "romeo";
    QTest::newRow("no user") << "@localhost";
}

void tst_XmppConnection::loginsThatCannotWorkMakeNoAccount()
{
    QFETCH(QString, login);
    QVERIFY(!profile->createAccount(login, {}));
}

void tst_XmppConnection::logsInAndOut_data()
{
    QTest::addColumn<bool>("encrypted");
    QTest::addColumn<QString>("encryption");
    QTest::newRow("encrypted") << true << "required";
    QTest::newRow("encrypted because it is offered") << true << "offered";
    QTest::newRow("plain") << false << "none";
    QTest::newRow("plain because nothing else is offered") << false << "offered";
}

void tst_XmppConnection::logsInAndOut()
{
    QFETCH(bool, encrypted);
    QFETCH(QString, encryption);
    KirvProsodyServer server(encrypted ? KirvProsodyServer::Options() : unencrypted());
    QVERIFY(KirvXmppProfile::start(server));
    KirvAccount *account = profile->createAccount(server, "romeo", { { "encryption", encryption } });

    profile->goTo(account, "available");
    KIRV_TRY_STATE(account, Online);
    QVERIFY(account->isOnline());
    QCOMPARE(server.sessions().size(), 1);
    QVERIFY(server.isOnline("romeo"));

    profile->goTo(account, "offline");
    KIRV_TRY_STATE(account, Offline);
    KIRV_TRY(!server.isOnline("romeo"));
    QCOMPARE(failure(account), KirvFailure::None);
}

/// Lets \a account log in in vain; the text of the failure, null when it is not \a expected.
QString tst_XmppConnection::tryToLogIn(KirvAccount *account, KirvFailure::Kind expected)
{
    QSignalSpy failed(account->connection(), &KirvConnection::failed);
    profile->goTo(account, "available");
    if (!failed.wait(kirvPatience))
        return QString();
    return failure(account) == expected ? account->connection()->lastFailure().text() : QString();
}

void tst_XmppConnection::wrongPasswordIsSaidAndNotTriedAgain()
{
    KirvProsodyServer server;
    QVERIFY(KirvXmppProfile::start(server));
    KirvAccount *account = profile->createAccount(server, "romeo", {}, "wrong");
    QVERIFY(!tryToLogIn(account, KirvFailure::WrongPassword).isEmpty());
    QCOMPARE(state(account), KirvConnection::Offline);
    QVERIFY(!server.isOnline("romeo"));
}

void tst_XmppConnection::missingPasswordIsSaid()
{
    KirvAccount *account = profile->createAccount(romeoAddress, {}, "");
    QVERIFY(!tryToLogIn(account, KirvFailure::PasswordMissing).isEmpty());
}

void tst_XmppConnection::nobodyListens()
{
    const QString port = QString::number(KirvLocalServer::findFreePort());
    KirvAccount *account = profile->createAccount(romeoAddress, { { "server", "127.0.0.1" }, { "port", port } });
    QVERIFY(tryToLogIn(account, KirvFailure::ConnectionRefused).contains("127.0.0.1"));
    QCOMPARE(state(account), KirvConnection::Waiting);
}

void tst_XmppConnection::hostIsNotFound()
{
    KirvAccount *account = profile->createAccount(romeoAddress, { { "server", "nowhere.invalid" } });
    QVERIFY(tryToLogIn(account, KirvFailure::HostNotFound).contains("nowhere.invalid"));
    QCOMPARE(state(account), KirvConnection::Waiting);
}

void tst_XmppConnection::domainThatTheServerDoesNotServe()
{
    KirvProsodyServer server;
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    KirvAccount *account = profile->createAccount(
        "romeo@elsewhere.invalid", { { "server", server.host() }, { "port", QString::number(server.port()) } });
    QVERIFY(!tryToLogIn(account, KirvFailure::BadSettings).isEmpty());
    QCOMPARE(state(account), KirvConnection::Offline);
}

void tst_XmppConnection::untrustedCertificateIsRefusedUntilItIsTrusted()
{
    KirvProsodyServer server;
    QVERIFY(KirvXmppProfile::start(server));
    KirvAccount *account = profile->createAccount(server, "romeo", { { "certificate", "" } });
    QVERIFY(!tryToLogIn(account, KirvFailure::UntrustedCertificate).isEmpty());
    QCOMPARE(state(account), KirvConnection::Offline);

    profile->setValue(account, "certificate", server.certificatePath());
    profile->goTo(account, "available");
    KIRV_TRY_STATE(account, Online);
}

void tst_XmppConnection::passwordIsNotSentWithoutEncryption()
{
    KirvScriptedXmppServer server([](const QByteArray &received) {
        return received.contains("<stream:stream") ? KirvScriptedXmppServer::stream(
                   "<mechanisms xmlns='urn:ietf:params:xml:ns:xmpp-sasl'><mechanism>PLAIN</mechanism></mechanisms>")
                                                   : QByteArray();
    });
    const Values values { { "server", "127.0.0.1" }, { "port", QString::number(server.serverPort()) } };
    KirvAccount *account = profile->createAccount(romeoAddress, values);
    QVERIFY(!tryToLogIn(account, KirvFailure::EncryptionNotOffered).isEmpty());
    QCOMPARE(state(account), KirvConnection::Offline);
    QCOMPARE(server.connections(), 1);
    QVERIFY2(!server.received().contains("<auth"), server.received().constData());

    // Encryption where it is offered does not mean a password in clear where somebody has taken the offer out.
    profile->setValue(account, "encryption", "offered");
    QVERIFY(!tryToLogIn(account, KirvFailure::EncryptionNotOffered).isEmpty());
    QVERIFY2(!server.received().contains("<auth"), server.received().constData());

    // The server would have got it from an account that allows that.
    profile->setValue(account, "encryption", "none");
    profile->goTo(account, "available");
    KIRV_TRY(server.received().contains("<auth"));
}

void tst_XmppConnection::serverThatRequiresEncryptionIsNotLeftOut()
{
    KirvProsodyServer server;
    QVERIFY(KirvXmppProfile::start(server));
    KirvAccount *account = profile->createAccount(server, "romeo", { { "encryption", "none" } });
    QVERIFY(tryToLogIn(account, KirvFailure::BadSettings).contains("encryption"));
    QCOMPARE(state(account), KirvConnection::Offline);
}

void tst_XmppConnection::noWayToLogIn()
{
    KirvScriptedXmppServer server([](const QByteArray &received) {
        return received.contains("<stream:stream") ? KirvScriptedXmppServer::stream(
                   "<mechanisms xmlns='urn:ietf:params:xml:ns:xmpp-sasl'><mechanism>X-ODD</mechanism></mechanisms>")
                                                   : QByteArray();
    });
    KirvAccount *account = profile->createAccount(
        romeoAddress,
        { { "server", "127.0.0.1" }, { "port", QString::number(server.serverPort()) }, { "encryption", "none" } });
    QVERIFY(!tryToLogIn(account, KirvFailure::AuthenticationNotOffered).isEmpty());
    QCOMPARE(state(account), KirvConnection::Offline);
}

void tst_XmppConnection::hungServerTimesOut_data()
{
    QTest::addColumn<bool>("opensStream");
    QTest::newRow("says nothing") << false;
    QTest::newRow("stops after the greeting") << true;
}

void tst_XmppConnection::hungServerTimesOut()
{
    QFETCH(bool, opensStream);
    KirvScriptedXmppServer server([opensStream](const QByteArray &received) {
        return opensStream && received.contains("<stream:stream")
            ? KirvScriptedXmppServer::stream("<starttls xmlns='urn:ietf:params:xml:ns:xmpp-tls'/>")
            : QByteArray();
    });
    KirvAccount *account = profile->createAccount(
        romeoAddress, { { "server", "127.0.0.1" }, { "port", QString::number(server.serverPort()) } });
    KirvConnection::Timing timing = account->connection()->timing();
    timing.loginTimeout = 200;
    account->connection()->setTiming(timing);
    QVERIFY(!tryToLogIn(account, KirvFailure::TimedOut).isEmpty());
    KIRV_TRY(server.connections() >= 2); // tried again
    profile->goTo(account, "offline");
    KIRV_TRY_STATE(account, Offline);
}

void tst_XmppConnection::presenceIsSeenByOthers_data()
{
    QTest::addColumn<QString>("presence");
    QTest::addColumn<int>("seen");
    QTest::newRow("available") << "available" << int(QXmppPresence::Online);
    QTest::newRow("free to chat") << "chat" << int(QXmppPresence::Chat);
    QTest::newRow("away") << "away" << int(QXmppPresence::Away);
    QTest::newRow("extended away") << "xa" << int(QXmppPresence::XA);
    QTest::newRow("do not disturb") << "dnd" << int(QXmppPresence::DND);
}

void tst_XmppConnection::presenceIsSeenByOthers()
{
    QFETCH(QString, presence);
    QFETCH(int, seen);
    KirvProsodyServer server;
    KirvObservingXmppClient juliet;
    QVERIFY(startWithFriend(server, juliet));
    KirvAccount *account = profile->createAccount(server, "romeo");
    profile->goTo(account, presence == "available" ? "away" : "available");
    KIRV_TRY(juliet.sees(romeoAddress));

    const QString text = QString::fromUtf8("Back <soon> & \"well\" ☕");
    profile->goTo(account, presence, text);
    KIRV_TRY(juliet.presenceOf(romeoAddress).statusText() == text);
    QCOMPARE(int(juliet.presenceOf(romeoAddress).availableStatusType()), seen);

    profile->goTo(account, "offline");
    KIRV_TRY(!juliet.sees(romeoAddress));
}

void tst_XmppConnection::arrivesWithItsPresence()
{
    KirvProsodyServer server;
    KirvObservingXmppClient juliet;
    QVERIFY(startWithFriend(server, juliet));
    KirvAccount *account = profile->createAccount(server, "romeo");
    profile->goTo(account, "dnd", "Busy");
    KIRV_TRY(juliet.sees(romeoAddress));
    QCOMPARE(juliet.presenceOf(romeoAddress).availableStatusType(), QXmppPresence::DND);
    QCOMPARE(juliet.presenceOf(romeoAddress).statusText(), QString("Busy"));
}

void tst_XmppConnection::invisibleIsNotSeen()
{
    KirvProsodyServer server;
    KirvObservingXmppClient juliet;
    QVERIFY(startWithFriend(server, juliet));
    KirvAccount *account = profile->createAccount(server, "romeo");

    profile->goTo(account, "invisible");
    KIRV_TRY_STATE(account, Online);
    QVERIFY(server.isOnline("romeo"));
    profile->goTo(account, "available");
    KIRV_TRY(juliet.sees(romeoAddress));
    profile->goTo(account, "invisible");
    KIRV_TRY(!juliet.sees(romeoAddress));
    QVERIFY(account->isOnline());
    QVERIFY(server.isOnline("romeo"));
    // What follows later, such as a new picture, does not give it away either.
    account->setAvatar(makePicture(profile->folder() + "/picture.png"));
    KIRV_TRY(!juliet.vCardOf(romeoAddress).photo().isEmpty());
    QVERIFY(!juliet.sees(romeoAddress));
    QVERIFY(account->isOnline());
}

void tst_XmppConnection::statusThatCannotBeSentKeepsTheSession()
{
    KirvProsodyServer server;
    KirvObservingXmppClient juliet;
    QVERIFY(startWithFriend(server, juliet));
    KirvAccount *account = profile->createAccount(server, "romeo");
    profile->goTo(account, "away", QString("a") + QChar(1) + QChar(0xd800) + "b");
    KIRV_TRY(juliet.presenceOf(romeoAddress).statusText() == "ab");
    profile->goTo(account, "away", QString(1000000, 'x'));
    KIRV_TRY(juliet.presenceOf(romeoAddress).statusText().startsWith("xxx"));
    QVERIFY(account->isOnline());
}

void tst_XmppConnection::priorityAndResourceAreTaken()
{
    KirvProsodyServer server;
    KirvObservingXmppClient juliet;
    QVERIFY(startWithFriend(server, juliet));
    KirvAccount *account = profile->createAccount(server, "romeo", { { "resource", "balcony" }, { "priority", "-7" } });
    profile->goTo(account, "available");
    KIRV_TRY(juliet.sees(romeoAddress));
    QCOMPARE(juliet.presenceOf(romeoAddress).from(), romeoAddress + "/balcony");
    QCOMPARE(juliet.presenceOf(romeoAddress).priority(), -7);
}

void tst_XmppConnection::killedServerIsReachedAgain()
{
    KirvProsodyServer server;
    QVERIFY(KirvXmppProfile::start(server));
    KirvAccount *account = profile->logIn(server);
    QVERIFY(account);

    QSignalSpy failed(account->connection(), &KirvConnection::failed);
    server.kill();
    KIRV_TRY_STATE(account, Waiting);
    QVERIFY(!failed.isEmpty());
    QCOMPARE(failed.first().first().value<KirvFailure>().kind(), KirvFailure::ConnectionLost);
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    KIRV_TRY_STATE(account, Online);
    QVERIFY(server.isOnline("romeo"));
}

void tst_XmppConnection::stoppedServerIsReachedAgain()
{
    KirvProsodyServer server;
    QVERIFY(KirvXmppProfile::start(server));
    KirvAccount *account = profile->logIn(server);
    QVERIFY(account);

    QSignalSpy failed(account->connection(), &KirvConnection::failed);
    server.stop();
    KIRV_TRY_STATE(account, Waiting);
    QCOMPARE(failed.first().first().value<KirvFailure>().kind(), KirvFailure::ServerShutDown);
    QVERIFY2(server.start(), qPrintable(server.errorString()));
    KIRV_TRY_STATE(account, Online);
}

void tst_XmppConnection::sameResourceTwiceEndsTheOlder()
{
    KirvProsodyServer server;
    QVERIFY(KirvXmppProfile::start(server));
    KirvAccount *account = profile->createAccount(server, "romeo", { { "resource", "balcony" } });
    profile->goTo(account, "available");
    KIRV_TRY_STATE(account, Online);

    KirvObservingXmppClient other;
    QVERIFY(other.logIn(server, "romeo", "secret", "balcony"));
    KIRV_TRY_FAILURE(account, LoggedInElsewhere);
    QCOMPARE(state(account), KirvConnection::Offline);
}

void tst_XmppConnection::changedPasswordIsUsed()
{
    KirvProsodyServer server;
    QVERIFY(KirvXmppProfile::start(server));
    KirvAccount *account = profile->logIn(server);
    QVERIFY(account);

    account->setPassword("wrong");
    profile->goTo(account, "available");
    KIRV_TRY_FAILURE(account, WrongPassword);
    KIRV_TRY(!server.isOnline("romeo"));
    account->setPassword("secret");
    profile->goTo(account, "available");
    KIRV_TRY_STATE(account, Online);
}

void tst_XmppConnection::disabledAccountLeavesTheServer()
{
    KirvProsodyServer server;
    QVERIFY(KirvXmppProfile::start(server));
    KirvAccount *account = profile->logIn(server);
    QVERIFY(account);
    KirvAccountManager::getInstance()->disableAccount(romeoAddress, "XMPP");
    KIRV_TRY(!server.isOnline("romeo"));
    QVERIFY(!account->isOnline());
}

void tst_XmppConnection::removedAccountLeavesTheServer()
{
    KirvProsodyServer server;
    QVERIFY(KirvXmppProfile::start(server));
    KirvAccount *account = profile->logIn(server);
    QVERIFY(account);
    KirvAccountManager::getInstance()->removeAccount(romeoAddress, "XMPP");
    KIRV_TRY(!server.isOnline("romeo"));
}

QTEST_MAIN(tst_XmppConnection)
#include "tst_xmpp_connection.moc"
