// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_connection.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/servers/kirv_hostile_xmpp_server.h"
#include "tests/support/servers/kirv_observing_xmpp_client.h"
#include "tests/support/servers/kirv_scripted_session_server.h"
#include "tests/support/servers/kirv_xmpp_login.h"
#include "tests/support/servers/kirv_xmpp_profile.h"
#include "tools/servers/kirv_prosody_server.h"

#include <QSignalSpy>
#include <QSysInfo>
#include <QTest>

namespace {

KirvPresence presence(const QString &id)
{
    return { id, QString(), QString() };
}

} // namespace

/// What others learn of an account that they have not been told.
class tst_XmppPrivacy : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void strangersAreNotAnswered_data();
    void strangersAreNotAnswered();
    void invisibleAccountAnswersItsServer();
    void requestsAreAnsweredAsTheSenderNeeds_data();
    void requestsAreAnsweredAsTheSenderNeeds();
    void presenceTellsNothingOfTheProgram();
    void passwordIsSentInClearOnlyWhereThatIsChosen_data();
    void passwordIsSentInClearOnlyWhereThatIsChosen();
};

void tst_XmppPrivacy::strangersAreNotAnswered_data()
{
    QTest::addColumn<QByteArray>("request");
    QTest::addColumn<QString>("presenceId");
    for (const QString &id : { QString("available"), QString("invisible") }) {
        const auto row = [&id](const QByteArray &name, const QByteArray &request) {
            QTest::newRow(id.toLatin1() + ": " + name) << request << id;
        };
        row("version", "<query xmlns='jabber:iq:version'/>");
        row("time", "<time xmlns='urn:xmpp:time'/>");
        row("ping", "<ping xmlns='urn:xmpp:ping'/>");
        row("abilities", "<query xmlns='http://jabber.org/protocol/disco#info'/>");
        row("items", "<query xmlns='http://jabber.org/protocol/disco#items'/>");
        row("unknown request", "<query xmlns='urn:example:unknown'/>");
    }
}

void tst_XmppPrivacy::strangersAreNotAnswered()
{
    QFETCH(QByteArray, request);
    QFETCH(QString, presenceId);
    KirvProsodyServer server;
    QVERIFY(KirvXmppProfile::start(server, { "romeo", "mallory" }));
    KirvObservingXmppClient mallory;
    QVERIFY(mallory.logIn(server, "mallory"));
    KirvXmppConnection romeo;
    const KirvLogin login =
        kirvXmppLogin("romeo@localhost", server.port(), KirvXmppSettings::Required, server.certificatePath());
    romeo.logIn(login, presence(presenceId));
    KIRV_TRY_COMPARE(romeo.state(), KirvConnection::Online);

    QVERIFY(mallory.send("<iq type='get' id='probe' to='romeo@localhost/Kirv'>" + request + "</iq>"));
    QVERIFY(mallory.synchronise());
    // Romeo has read the request when he has the first answer, and the server his reply when he has the second.
    for (int i = 0; i < 2; ++i) {
        QSignalSpy answers(&romeo, &KirvConnection::directoryAnswered);
        romeo.fetchDirectory();
        QVERIFY(answers.wait(kirvPatience));
    }
    QVERIFY(mallory.synchronise());
    QVERIFY2(!mallory.received().contains("probe"), qPrintable(mallory.received()));
    server.kill(); // an orderly end takes a second
}

/// Else it would end the session.
void tst_XmppPrivacy::invisibleAccountAnswersItsServer()
{
    KirvHostileXmppServer server(KirvHostileXmppServer::Attack {});
    KirvXmppConnection connection;
    connection.logIn(kirvXmppLogin("ann@localhost", server.port(), KirvXmppSettings::None), presence("invisible"));
    KIRV_TRY(server.isDigested());
    QCOMPARE(connection.state(), KirvConnection::Online);
}

void tst_XmppPrivacy::requestsAreAnsweredAsTheSenderNeeds_data()
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("request");
    QTest::addColumn<QByteArray>("answer"); // its type, and what it holds
    const QByteArray ping = "<ping xmlns='urn:xmpp:ping'/>", version = "<query xmlns='jabber:iq:version'/>",
                     unknown = "<query xmlns='urn:example:unknown'/>", push = "<query xmlns='jabber:iq:roster'/>", none;
    const QByteArray refusal = "error feature-not-implemented";
    const QByteArray server = " from='localhost'";
    QTest::newRow("server: ping") << server << ping << QByteArray("result");
    QTest::newRow("server: version") << server << version << refusal;
    QTest::newRow("server: unknown") << server << unknown << refusal;
    QTest::newRow("server: list of contacts") << server << push << refusal;
    QTest::newRow("server without a name: unknown") << none << unknown << refusal;
    for (const QByteArray &sender : { QByteArray("contact@localhost/x"), QByteArray("contact@elsewhere.example/x"),
                                      QByteArray("ann@localhost/other"), QByteArray("elsewhere.example") }) {
        QTest::newRow(sender + ": ping") << " from='" + sender + '\'' << ping << none;
        QTest::newRow(sender + ": unknown") << " from='" + sender + '\'' << unknown << none;
    }
}

/// The server receives an error for what is not known here. Others would learn from it that the account is on line.
void tst_XmppPrivacy::requestsAreAnsweredAsTheSenderNeeds()
{
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, request);
    QFETCH(QByteArray, answer);
    KirvScriptedSessionServer server;
    KirvXmppConnection connection;
    connection.logIn(kirvXmppLogin("ann@localhost", server.serverPort(), KirvXmppSettings::None),
                     presence("available"));
    KIRV_TRY_COMPARE(connection.state(), KirvConnection::Online);
    for (const QByteArray &type : { QByteArray("get"), QByteArray("set") })
        server.say("<iq type='" + type + "' id='probe'" + from + " to='ann@localhost/Kirv'>" + request + "</iq>");
    server.say("<iq type='get' id='last' from='localhost'><ping xmlns='urn:xmpp:ping'/></iq>");
    KIRV_TRY(server.receivedInClear().contains("id=\"last\""));
    const QByteArray received = server.receivedInClear();
    const int reply = received.indexOf("id=\"probe\"");
    QCOMPARE(reply >= 0, !answer.isEmpty());
    const QByteArray stanza = received.mid(received.lastIndexOf("<iq", reply)).split('\n').value(0);
    for (const QByteArray &part : answer.split(' '))
        QVERIFY2(answer.isEmpty() || stanza.contains(part), stanza.constData());
    QCOMPARE(connection.state(), KirvConnection::Online);
}

void tst_XmppPrivacy::presenceTellsNothingOfTheProgram()
{
    KirvScriptedSessionServer server;
    KirvXmppConnection connection;
    connection.logIn(kirvXmppLogin("ann@localhost", server.serverPort(), KirvXmppSettings::None),
                     presence("available"));
    KIRV_TRY_COMPARE(connection.state(), KirvConnection::Online);
    KIRV_TRY(!server.presences().isEmpty());
    connection.changePresence(presence("away"));
    KIRV_TRY(server.lastPresence().contains("away"));
    for (const QByteArray &sent : server.presences())
        QVERIFY2(!sent.contains("/caps"), sent.constData());
    QVERIFY(!server.receivedInClear().contains(QSysInfo::prettyProductName().toUtf8()));
    QVERIFY(!server.receivedInClear().contains("roster"));
}

void tst_XmppPrivacy::passwordIsSentInClearOnlyWhereThatIsChosen_data()
{
    QTest::addColumn<int>("encryption");
    QTest::addColumn<bool>("isSent");
    QTest::newRow("required") << int(KirvXmppSettings::Required) << false;
    QTest::newRow("if offered") << int(KirvXmppSettings::IfOffered) << false;
    QTest::newRow("none") << int(KirvXmppSettings::None) << true;
}

/// Somebody on the way takes encryption out of what the server offers.
void tst_XmppPrivacy::passwordIsSentInClearOnlyWhereThatIsChosen()
{
    QFETCH(int, encryption);
    QFETCH(bool, isSent);
    KirvScriptedSessionServer server;
    KirvXmppConnection connection;
    QSignalSpy failures(&connection, &KirvConnection::failed);
    connection.logIn(kirvXmppLogin("ann@localhost", server.serverPort(), KirvXmppSettings::Encryption(encryption)),
                     presence("available"));
    KIRV_TRY(connection.state() == KirvConnection::Online || !failures.isEmpty());
    QCOMPARE(connection.state() == KirvConnection::Online, isSent);
    QCOMPARE(server.passwords(), isSent ? QByteArrayList { "secret" } : QByteArrayList());
    QVERIFY2(isSent || !server.receivedInClear().contains("<auth"), server.receivedInClear().constData());
    if (!isSent)
        QCOMPARE(failures[0][0].value<KirvFailure>().kind(), KirvFailure::EncryptionNotOffered);
}

QTEST_GUILESS_MAIN(tst_XmppPrivacy)
#include "tst_xmpp_privacy.moc"
