// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_connection.h"
#include "protocols/xmpp/kirv_xmpp_login_guard.h"
#include "tests/support/kirv_load_meter.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/servers/kirv_scram.h"
#include "tests/support/servers/kirv_scripted_xmpp_server.h"
#include "tests/support/servers/kirv_xmpp_profile.h"
#include "tools/servers/kirv_prosody_server.h"

#include <QSignalSpy>
#include <QTest>

namespace {

QByteArray features(const QByteArray &content)
{
    return "<stream:features>" + content + "</stream:features>";
}

/// A server that logs \a scram's client in and binds it to \a address.
KirvScriptedXmppServer::Script logsIn(KirvScram scram, const QByteArray &address = "ann@localhost/x",
                                      const QByteArray &lastFeatures = QByteArray())
{
    bool isLoggedIn = false;
    return [=](const QByteArray &received) mutable -> QByteArray {
        if (received.contains("<stream:stream"))
            return KirvScriptedXmppServer::stream(isLoggedIn ? "<bind xmlns='urn:ietf:params:xml:ns:xmpp-bind'/>"
                                                          + lastFeatures
                                                             : kirvMechanisms({ "PLAIN", scram.mechanism }));
        if (received.contains("<auth") || received.contains("<response")) {
            const QByteArray answer = scram.answer(received);
            isLoggedIn = answer.startsWith("<success");
            return answer;
        }
        if (received.contains("urn:ietf:params:xml:ns:xmpp-bind"))
            return "<iq type='result' id='" + KirvScriptedXmppServer::attribute(received, "id")
                + "'><bind xmlns='urn:ietf:params:xml:ns:xmpp-bind'><jid>" + address + "</jid></bind></iq>";
        return QByteArray();
    };
}

KirvLogin loginTo(quint16 port, KirvXmppSettings::Encryption encryption = KirvXmppSettings::None)
{
    KirvXmppSettings settings;
    settings.server = "127.0.0.1";
    settings.port = port;
    settings.encryption = encryption;
    return { "ann@localhost", "secret", settings.toFields() };
}

} // namespace

Q_DECLARE_METATYPE(KirvScriptedXmppServer::Script)

/// Servers that do not keep to the order of a log-in, pretend it, or demand more of it than is reasonable.
class tst_XmppHostileLogins : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void honestServersLogIn_data();
    void honestServersLogIn();
    void othersAreLeftWithASentence_data();
    void othersAreLeftWithASentence();
    void nothingIsSentForMechanismsWithoutThePassword();
    void protectionOfTheSessionIsKnown_data();
    void protectionOfTheSessionIsKnown();
};

void tst_XmppHostileLogins::honestServersLogIn_data()
{
    QTest::addColumn<KirvScriptedXmppServer::Script>("script");
    QTest::newRow("proof at the end") << logsIn(KirvScram());
    KirvScram inChallenge;
    inChallenge.provesInChallenge = true;
    QTest::newRow("proof in a challenge") << logsIn(inChallenge);
    QTest::newRow("no address") << logsIn(KirvScram(), "");
    QTest::newRow("address in capitals") << logsIn(KirvScram(), "Ann@LOCALHOST/x");
    QTest::newRow("mechanisms after the log-in") << logsIn(KirvScram(), "ann@localhost/x", kirvMechanisms({ "PLAIN" }));
    KirvScram laborious;
    laborious.rounds = QByteArray::number(KirvXmppLoginGuard::mostRounds);
    QTest::newRow("30,000 rounds of SHA-1") << logsIn(laborious);
    laborious.mechanism = "SCRAM-SHA-256";
    laborious.hash = QCryptographicHash::Sha256;
    QTest::newRow("30,000 rounds of SHA-256") << logsIn(laborious);
    laborious.mechanism = "SCRAM-SHA-512";
    laborious.hash = QCryptographicHash::Sha512;
    laborious.rounds = QByteArray::number(KirvXmppLoginGuard::mostRoundsOfSha512);
    QTest::newRow("20,000 rounds of SHA-512") << logsIn(laborious);
}

void tst_XmppHostileLogins::honestServersLogIn()
{
    QFETCH(KirvScriptedXmppServer::Script, script);
    KirvScriptedXmppServer server(script);
    KirvXmppConnection connection;
    connection.logIn(loginTo(server.serverPort()), { "available", QString(), QString() });
    KirvLoadMeter meter;
    QVERIFY(meter.runUntil(
        [&] { return connection.state() == KirvConnection::Online || connection.lastFailure().isFailure(); }));
    meter.report(server.received().size());
    QVERIFY2(connection.state() == KirvConnection::Online, qPrintable(connection.lastFailure().text()));
    QCOMPARE(server.received().count("<auth"), 1);
    // The library's reply to the proof is sent only where the server waits for one.
    const bool isAwaited = QByteArray(QTest::currentDataTag()) == "proof in a challenge";
    QCOMPARE(server.received().count("<response"), isAwaited ? 2 : 1);
    QVERIFY(connection.securityText().startsWith("not encrypted, SASL SCRAM-SHA-"));
}

void tst_XmppHostileLogins::othersAreLeftWithASentence_data()
{
    QTest::addColumn<KirvScriptedXmppServer::Script>("script");
    QTest::addColumn<QString>("said");
    const auto row = [](const char *name, const KirvScram &scram, const char *said) {
        QTest::newRow(name) << logsIn(scram) << said;
    };
    KirvScram scram;
    scram.rounds = "2147483647";
    row("rounds of hours", scram, "2147483647 rounds");
    scram.rounds = "99999999999999999999";
    row("rounds beyond numbers", scram, "rounds");
    scram.rounds = QByteArray::number(KirvXmppLoginGuard::mostRounds + 1);
    row("one round too many", scram, "rounds");
    scram.mechanism = "SCRAM-SHA-512";
    scram.hash = QCryptographicHash::Sha512;
    scram.rounds = QByteArray::number(KirvXmppLoginGuard::mostRoundsOfSha512 + 1);
    row("one round too many of SHA-512", scram, "rounds");
    scram = KirvScram();
    scram.padding = ',' + QByteArray(1000000, 'x');
    row("challenge of a megabyte", scram, "more than a log-in needs");
    scram = KirvScram();
    scram.sendsChallenge = false;
    row("success without a challenge", scram, "proved");
    scram = KirvScram();
    scram.proves = false;
    row("success without a proof", scram, "proved");
    scram = KirvScram();
    scram.password = "another";
    row("server that does not know the password", scram, "proved");
    scram.provesInChallenge = true;
    row("wrong proof in a challenge", scram, "part of the log-in is wrong");
    scram = KirvScram();
    scram.proves = false;
    scram.padding = ",v=AAAA";
    row("proof in the first challenge", scram, "part of the log-in is wrong");
    scram = KirvScram();
    scram.padding = ",i=2000000";
    row("rounds twice", scram, "part of the log-in is wrong");
    scram = KirvScram();
    scram.padding = ",s=QSXCR+Q6sek8bf92";
    row("salt twice", scram, "part of the log-in is wrong");
    scram = KirvScram();
    scram.noncePrefix = "x";
    row("answer to somebody else", scram, "part of the log-in is wrong");
    scram = KirvScram();
    scram.repeatsChallenge = true;
    row("challenges without end", scram, "part of the log-in is wrong");
    QTest::newRow("another account") << logsIn(KirvScram(), "eve@localhost/x") << "eve@localhost";
    QTest::newRow("another domain") << logsIn(KirvScram(), "ann@elsewhere.example/x") << "ann@elsewhere.example";
    QTest::newRow("success before anything") << KirvScriptedXmppServer::Script([](const QByteArray &received) {
        return received.contains("<stream:stream")
            ? KirvScriptedXmppServer::stream(QByteArray()) + kirvSaslElement("success")
            : QByteArray();
    }) << "no way to log in";
    QTest::newRow("encryption that was not requested")
        << KirvScriptedXmppServer::Script([](const QByteArray &received) {
               return received.contains("<stream:stream")
                   ? KirvScriptedXmppServer::stream(QByteArray()).split('>').value(1) + '>'
                       + "<proceed xmlns='urn:ietf:params:xml:ns:xmpp-tls'/><a/>"
                   : QByteArray();
           })
        << "";
    QTest::newRow("log-in again and again") << KirvScriptedXmppServer::Script([](const QByteArray &received) {
        if (received.contains("<stream:stream"))
            return KirvScriptedXmppServer::stream(kirvMechanisms({ "PLAIN" }));
        return received.contains("<auth") ? features(kirvMechanisms({ "PLAIN" })) : QByteArray();
    }) << "again and again";
}

void tst_XmppHostileLogins::othersAreLeftWithASentence()
{
    QFETCH(KirvScriptedXmppServer::Script, script);
    QFETCH(QString, said);
    KirvScriptedXmppServer server(script);
    KirvXmppConnection connection;
    QSignalSpy failures(&connection, &KirvConnection::failed);
    connection.logIn(loginTo(server.serverPort()), { "available", QString(), QString() });
    KIRV_TRY(!failures.isEmpty() || connection.state() == KirvConnection::Online);
    QVERIFY(!failures.isEmpty());
    const auto failure = failures[0][0].value<KirvFailure>();
    QVERIFY2(failure.text().contains(said), qPrintable(failure.text()));
    QVERIFY2(!failure.text().isEmpty() && failure.kind() != KirvFailure::WrongPassword, qPrintable(failure.text()));
    QVERIFY(connection.securityText().isEmpty());
}

/// They would log in nobody, or give the password to others.
void tst_XmppHostileLogins::nothingIsSentForMechanismsWithoutThePassword()
{
    KirvScriptedXmppServer server([](const QByteArray &received) {
        return received.contains("<stream:stream")
            ? KirvScriptedXmppServer::stream(kirvMechanisms({ "ANONYMOUS", "X-FACEBOOK-PLATFORM", "X-OAUTH2" }))
            : QByteArray();
    });
    KirvXmppConnection connection;
    QSignalSpy failures(&connection, &KirvConnection::failed);
    connection.logIn(loginTo(server.serverPort()), { "available", QString(), QString() });
    KIRV_TRY(!failures.isEmpty());
    QCOMPARE(failures[0][0].value<KirvFailure>().kind(), KirvFailure::AuthenticationNotOffered);
    QVERIFY2(!server.received().contains("<auth"), server.received().constData());
}

void tst_XmppHostileLogins::protectionOfTheSessionIsKnown_data()
{
    QTest::addColumn<bool>("isEncrypted");
    QTest::addColumn<QString>("start");
    QTest::newRow("TLS") << true << "TLSv1.";
    QTest::newRow("in clear") << false << "not encrypted, ";
}

void tst_XmppHostileLogins::protectionOfTheSessionIsKnown()
{
    QFETCH(bool, isEncrypted);
    QFETCH(QString, start);
    KirvProsodyServer::Options options;
    options.offersEncryption = options.requiresEncryption = isEncrypted;
    KirvProsodyServer server(options);
    QVERIFY(KirvXmppProfile::start(server, { "ann" }));
    KirvXmppConnection connection;
    KirvLogin login = loginTo(server.port(), isEncrypted ? KirvXmppSettings::Required : KirvXmppSettings::None);
    for (KirvField &field : login.settings) {
        if (field.getId() == "certificate")
            field.setText(server.certificatePath());
    }
    QCOMPARE(connection.securityText(), QString());
    connection.logIn(login, { "available", QString(), QString() });
    KIRV_TRY_COMPARE(connection.state(), KirvConnection::Online);
    const QString text = connection.securityText();
    QVERIFY2(text.startsWith(start) && text.endsWith(", SASL SCRAM-SHA-256"), qPrintable(text));
    connection.logOut();
    QCOMPARE(connection.securityText(), QString());
    server.kill(); // an orderly end takes a second
}

QTEST_GUILESS_MAIN(tst_XmppHostileLogins)
#include "tst_xmpp_hostile_logins.moc"
