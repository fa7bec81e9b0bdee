// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_connection.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/servers/kirv_hostile_xmpp_server.h"
#include "tests/support/servers/kirv_observing_xmpp_client.h"
#include "tests/support/servers/kirv_scripted_session_server.h"
#include "tests/support/servers/kirv_xmpp_login.h"
#include "tests/support/servers/kirv_xmpp_profile.h"
#include "tools/servers/kirv_prosody_server.h"

#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>
#include <QXmppIq.h>

namespace {

const QString romeoAddress = QStringLiteral("romeo@localhost/Kirv");
const QByteArray forgedEntry = "<vCard xmlns='vcard-temp'><FN>Forged</FN></vCard>";

} // namespace

/// Somebody with an account on the same server replies in its place.
class tst_XmppForgedReplies : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void forgedDirectoryEntryIsIgnored();
    void forgedPublicationIsIgnored();
    void forgedResultIsIgnored_data();
    void forgedResultIsIgnored();
    void replyFromAnotherAddressIsIgnored_data();
    void replyFromAnotherAddressIsIgnored();
    void idsDoNotFollowEachOther();

private:
    void startMallory();
    void logIn(const QString &id, quint16 port, const QString &certificate = QString());
    void forge(const QByteArray &content);
    QString fullName();

    std::unique_ptr<KirvProsodyServer> server;
    std::unique_ptr<KirvObservingXmppClient> mallory;
    std::unique_ptr<KirvXmppConnection> romeo;
};

/// Starts a server with Mallory, and with Romeo on line.
void tst_XmppForgedReplies::startMallory()
{
    KirvProsodyServer::Options options;
    options.allowsRegistration = false;
    options.disabledModules = QStringList("register");
    server = std::make_unique<KirvProsodyServer>(options);
    QVERIFY(KirvXmppProfile::start(*server, { "romeo", "mallory" }));
    mallory = std::make_unique<KirvObservingXmppClient>();
    QVERIFY(mallory->logIn(*server, "mallory"));

    romeo = std::make_unique<KirvXmppConnection>();
    logIn("romeo@localhost", server->port(), server->certificatePath());
    KIRV_TRY_COMPARE(romeo->state(), KirvConnection::Online);
    QCOMPARE(fullName(), QString()); // and nothing is under way any more
}

void tst_XmppForgedReplies::cleanup()
{
    romeo.reset();
    mallory.reset();
    if (server)
        server->kill(); // an orderly end takes a second
    server.reset();
}

/// Encrypted when a certificate is to be trusted.
void tst_XmppForgedReplies::logIn(const QString &id, quint16 port, const QString &certificate)
{
    const auto encryption = certificate.isEmpty() ? KirvXmppSettings::None : KirvXmppSettings::Required;
    romeo->logIn(kirvXmppLogin(id, port, encryption, certificate), { "available", QString(), QString() });
}

/// Sends Romeo results with the ids that the library gives to the next requests, and lets them arrive where they wait
/// to be read.
void tst_XmppForgedReplies::forge(const QByteArray &content)
{
    const int forgeries = 30;
    int number = QXmppIq().id().remove(QRegularExpression("^\\D*")).toInt();
    for (int i = 0; i < forgeries; ++i) {
        QVERIFY(mallory->send("<iq type='result' to='" + romeoAddress.toUtf8() + "' id='qxmpp"
                              + QByteArray::number(++number) + "'>" + content + "</iq>"));
    }
    QVERIFY(mallory->synchronise());
}

/// The full name of the entry that Romeo fetches.
QString tst_XmppForgedReplies::fullName()
{
    QSignalSpy answers(romeo.get(), &KirvConnection::directoryAnswered);
    romeo->fetchDirectory();
    if (!answers.wait(kirvPatience))
        return "There is no answer.";
    const auto answer = answers[0][0].value<KirvDirectoryAnswer>();
    for (const KirvField &field : answer.fields) {
        if (field.getId() == QLatin1String("fullname"))
            return field.getText();
    }
    return QString();
}

void tst_XmppForgedReplies::forgedDirectoryEntryIsIgnored()
{
    startMallory();
    forge(forgedEntry);
    QCOMPARE(fullName(), QString());
}

/// A forged entry would be written back with the change, over the real one.
void tst_XmppForgedReplies::forgedPublicationIsIgnored()
{
    startMallory();
    KirvField nickname = KirvField::textEdit("Nickname", "nickname", "Romy", QString());
    QSignalSpy answers(romeo.get(), &KirvConnection::directoryAnswered);
    forge(forgedEntry);
    romeo->publishDirectory({ nickname });
    QVERIFY(answers.wait(kirvPatience));
    const QXmppVCardIq seen = mallory->vCardOf("romeo@localhost");
    QCOMPARE(seen.nickName(), QString("Romy"));
    QCOMPARE(seen.fullName(), QString());
}

void tst_XmppForgedReplies::forgedResultIsIgnored_data()
{
    QTest::addColumn<bool>("isDeletion");
    QTest::newRow("password") << false;
    QTest::newRow("deletion") << true;
}

/// The server does neither; the forged results say that it did.
void tst_XmppForgedReplies::forgedResultIsIgnored()
{
    QFETCH(bool, isDeletion);
    startMallory();
    forge(QByteArray());
    KirvFailure failure;
    bool isAnswered = false;
    const auto receive = [&](const KirvFailure &received) {
        failure = received;
        isAnswered = true;
    };
    if (isDeletion)
        romeo->deleteOnServer(receive);
    else
        romeo->changePassword("stolen", receive);
    KIRV_TRY(isAnswered);
    QVERIFY(failure.isFailure());
    QCOMPARE(romeo->state(), KirvConnection::Online);
}

void tst_XmppForgedReplies::replyFromAnotherAddressIsIgnored_data()
{
    QTest::addColumn<QByteArray>("sender");
    QTest::newRow("stranger") << QByteArray("mallory@localhost/Kirv");
    QTest::newRow("another client of the account") << QByteArray("ann@localhost/phone");
    QTest::newRow("service of the server") << QByteArray("conference.localhost");
    QTest::newRow("account elsewhere") << QByteArray("ann@elsewhere.example");
}

/// Even where the id is known.
void tst_XmppForgedReplies::replyFromAnotherAddressIsIgnored()
{
    QFETCH(QByteArray, sender);
    KirvHostileXmppServer::Attack attack;
    attack.time = KirvHostileXmppServer::InReply;
    attack.start = "<iq type='result' id='%id' from='" + sender + "'>" + forgedEntry + "</iq>"
        + "<iq type='error' id='%id' from='" + sender + "'><error type='cancel'/></iq>"
        + "<iq type='result' id='%id' from='ann@localhost'><vCard xmlns='vcard-temp'><FN>Ann</FN></vCard></iq>";
    KirvHostileXmppServer scripted(attack);
    romeo = std::make_unique<KirvXmppConnection>();
    logIn("ann@localhost", scripted.port());
    KIRV_TRY_COMPARE(romeo->state(), KirvConnection::Online);
    QCOMPARE(fullName(), QString("Ann"));
}

/// Who has seen one request knows nothing of the next one.
void tst_XmppForgedReplies::idsDoNotFollowEachOther()
{
    KirvScriptedSessionServer scripted;
    romeo = std::make_unique<KirvXmppConnection>();
    logIn("ann@localhost", scripted.serverPort());
    KIRV_TRY_COMPARE(romeo->state(), KirvConnection::Online);
    QSignalSpy answers(romeo.get(), &KirvConnection::directoryAnswered);
    romeo->fetchDirectory();
    QVERIFY(answers.wait(kirvPatience));
    romeo->changePassword("new", [](const KirvFailure &) {});
    KIRV_TRY(scripted.receivedInClear().contains("jabber:iq:register"));

    const QString sent = QString::fromUtf8(scripted.receivedInClear());
    QRegularExpression request("<iq [^>]*\\bid=\"([^\"]*)\"[^>]*><(?:vCard|query)");
    int requests = 0;
    for (auto match = request.globalMatch(sent); match.hasNext(); ++requests) {
        const QString id = match.next().captured(1);
        QVERIFY2(id.size() >= 32, qPrintable(id));
    }
    QCOMPARE(requests, 3); // the entry twice, the log-in fetches it, too
}

QTEST_GUILESS_MAIN(tst_XmppForgedReplies)
#include "tst_xmpp_forged_replies.moc"
