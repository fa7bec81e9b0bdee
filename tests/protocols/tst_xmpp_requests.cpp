// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_connection.h"
#include "protocols/xmpp/kirv_xmpp_deletion_request.h"
#include "protocols/xmpp/kirv_xmpp_password_request.h"
#include "protocols/xmpp/kirv_xmpp_protocol.h"
#include "protocols/xmpp/kirv_xmpp_registration_request.h"
#include "tests/protocols/fake_xmpp_link.h"
#include "tests/support/fakes/kirv_fake_clock.h"
#include "tests/support/kirv_field_texts.h"

#include <QCryptographicHash>
#include <QFile>
#include <QImage>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

using Step = KirvServerRequest::Step;
using Result = KirvServerRequest::Result;

namespace {

QList<KirvField> filled(QList<KirvField> fields, const QString &id, const QString &text)
{
    for (KirvField &field : fields) {
        if (field.getId() == id)
            field.setText(text);
    }
    return fields;
}

QByteArray registrationForm(const QByteArray &fields)
{
    return "<query xmlns='jabber:iq:register'>" + fields + "</query>";
}

/// The fields of a form with a picture that the server knows by \a challenge.
QByteArray pictureForm(const QByteArray &challenge)
{
    return "<x xmlns='jabber:x:data'><field type='hidden' var='challenge'><value>" + challenge
        + "</value></field><field var='username'/><field var='password' type='text-private'/>"
          "<field var='ocr' label='What is there?'><media xmlns='urn:xmpp:media-element'><uri>https://example.org/"
        + challenge + "</uri></media></field></x>";
}

/// The value of the field \a name in the data form of \a query.
QString sentValue(const QDomElement &query, const QString &name)
{
    for (QDomElement field = query.firstChildElement("x").firstChildElement("field"); !field.isNull();
         field = field.nextSiblingElement("field")) {
        if (field.attribute("var") == name)
            return field.firstChildElement("value").text();
    }
    return QString();
}

/// Everything that a request emits, in its order.
class Listener {
public:
    explicit Listener(KirvServerRequest &request)
    {
        QObject::connect(&request, &KirvServerRequest::stepReady, &context, [this](const Step &ready) {
            events << "step";
            step = ready;
        });
        QObject::connect(&request, &KirvServerRequest::waiting, &context, [this](const QString &text) {
            events << "waiting";
            texts << text;
        });
        QObject::connect(&request, &KirvServerRequest::failed, &context, [this](const KirvFailure &reason) {
            events << "failed";
            failure = reason;
        });
        QObject::connect(&request, &KirvServerRequest::inputRejected, &context, [this](const QString &text) {
            events << "rejected";
            texts << text;
        });
        QObject::connect(&request, &KirvServerRequest::succeeded, &context, [this](const Result &achieved) {
            events << "succeeded";
            result = achieved;
        });
    }

    QStringList take()
    {
        const QStringList taken = events;
        events.clear();
        return taken;
    }

    Step step;
    KirvFailure failure;
    Result result;
    QStringList texts;

private:
    QObject context;
    QStringList events;
};

} // namespace

/// The requests of XMPP to a server, over a link that a test replies on.
class tst_XmppRequests : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void theResourceStaysForTheConnection();
    void theProtocolOffersThem();
    void actionsNeedAConnectionOfTheProtocol();

    void aNewPasswordIsEnteredTwice();
    void aPasswordThatCannotBeSentIsRejected_data();
    void aPasswordThatCannotBeSentIsRejected();
    void thePasswordIsChangedWithoutReconnecting();
    void aRefusedPasswordCanBeSentAgain();
    void whatWasSentCannotBeCancelled();
    void theEndOfTheConnectionFailsTheRequest_data();
    void theEndOfTheConnectionFailsTheRequest();
    void aReplyAfterTheFailureIsIgnored();
    void theRequestCanGoFirst_data();
    void theRequestCanGoFirst();

    void deletionIsConfirmedTwice();
    void theAccountIsDeletedAndTheConnectionEnds();
    void aRefusedDeletionKeepsTheConnection();

    void registrationStartsWithTheServer();
    void aServerIsNeeded_data();
    void aServerIsNeeded();
    void theFormFollowsTheServer();
    void theNewAccountIsTheResult();
    void anUntrustedCertificateIsAskedAbout();
    void theCertificateOfAnotherServerIsAskedAboutAgain();
    void aFormWithoutAUserNameHasNoAccount();
    void goingBackKeepsBothSteps();
    void aTakenNameIsReported();
    void aWrongAnswerToAPictureGetsANewOne();
    void aFormThatWasRefusedIsNotSentAgain_data();
    void aFormThatWasRefusedIsNotSentAgain();
    void hiddenFieldsAreThoseOfTheLatestForm();
    void anotherFormKeepsWhatWasTyped();
    void aFormWithoutFieldsCannotBeSent();
    void registrationThatIsNotOfferedIsReported_data();
    void registrationThatIsNotOfferedIsReported();
    void aSilentServerTimesOut();
    void aStreamThatEndedMeanwhileIsOpenedAgain();
    void aStreamThatEndsWhileSendingFails();
    void badSettingsAreReported();
    void registrationCanBeCancelled();
    void registrationCanGoInAnySlot_data();
    void registrationCanGoInAnySlot();

    void onlyTheChangesArePublishedOverAFreshEntry();
    void directoryRequestsAreDoneOneAfterTheOther();
    void directoryErrorsAreReported();
    void theAvatarIsPublished();
    void thePictureOfAnotherClientIsReported();

private:
    void logIn();
    void createRegistration();
    void receiveForm(const QByteArray &fields);
    void refuseCertificate(const QByteArray &fingerprint);

    const KirvLogin login { "romeo@example.org", "secret", KirvXmppSettings().toFields() };
    KirvFakeClock clock;
    FakeXmppServer server;
    std::unique_ptr<KirvXmppConnection> connection;
    std::unique_ptr<KirvServerRequest> request;
    std::unique_ptr<Listener> listener;
};

void tst_XmppRequests::init()
{
    qRegisterMetaType<KirvConnection::State>("KirvConnection::State");
    server = FakeXmppServer();
    connection = std::make_unique<KirvXmppConnection>(clock, nullptr, server.factory());
    logIn();
}

void tst_XmppRequests::cleanup()
{
    listener.reset();
    request.reset();
    connection.reset();
}

void tst_XmppRequests::logIn()
{
    connection->logIn(login, KirvPresence("available", "Available", QString(), QString()));
    server.link()->arrive();
    server.link()->refuse("item-not-found"); // the picture among the personal events
    server.link()->reply("<vCard xmlns='vcard-temp'/>");
    QCOMPARE(connection->state(), KirvConnection::Online);
    QVERIFY(!server.isAwaited());
}

void tst_XmppRequests::createRegistration()
{
    request = std::make_unique<KirvXmppRegistrationRequest>(clock, nullptr, server.factory());
    listener = std::make_unique<Listener>(*request);
    request->start();
    QCOMPARE(listener->take(), QStringList { "step" });
}

/// The server shows a certificate that is not trusted.
void tst_XmppRequests::refuseCertificate(const QByteArray &fingerprint)
{
    KirvServerCertificate certificate;
    certificate.fingerprint = fingerprint;
    certificate.names = QStringList { "example.org" };
    certificate.problems = QStringList { "It is self-signed." };
    Q_EMIT server.link()->certificateShown(certificate);
    server.link()->end(KirvFailure::UntrustedCertificate);
}

/// Goes to the second step, with these \a fields in the form of the server.
void tst_XmppRequests::receiveForm(const QByteArray &fields)
{
    request->submit(filled(listener->step.fields, "domain", "example.org"));
    server.link()->arrive();
    server.link()->reply(registrationForm(fields));
    QCOMPARE(listener->take(), QStringList({ "waiting", "step" }));
}

void tst_XmppRequests::theResourceStaysForTheConnection()
{
    const QString resource = server.link()->configuration.resource();
    QVERIFY(!resource.isEmpty() && resource != KirvXmppSettings().resource);
    connection->drop();
    logIn();
    QCOMPARE(server.link()->configuration.resource(), resource);
    connection = std::make_unique<KirvXmppConnection>(clock, nullptr, server.factory());
    logIn();
    QVERIFY(server.link()->configuration.resource() != resource);
}

void tst_XmppRequests::theProtocolOffersThem()
{
    KirvXmppProtocol protocol;
    QVERIFY(protocol.offersRegistration());
    QVERIFY(QFile::exists(protocol.getIconPath(0)));
    request.reset(protocol.createRegistration());
    QVERIFY(request && !request->title().isEmpty());
    QCOMPARE(protocol.accountActions().size(), 2);
    for (const KirvAccountAction &action : protocol.accountActions()) {
        request.reset(protocol.createAccountRequest(action.id, connection.get()));
        QVERIFY2(request && !action.text.isEmpty() && !request->title().isEmpty(), qPrintable(action.id));
    }
}

void tst_XmppRequests::actionsNeedAConnectionOfTheProtocol()
{
    KirvXmppProtocol protocol;
    QVERIFY(!protocol.createAccountRequest("no such action", connection.get()));
    for (const KirvAccountAction &action : protocol.accountActions())
        QVERIFY(!protocol.createAccountRequest(action.id, nullptr));
}

void tst_XmppRequests::aNewPasswordIsEnteredTwice()
{
    KirvXmppPasswordRequest password(connection.get());
    Listener heard(password);
    password.start();
    QCOMPARE(heard.take(), QStringList { "step" });
    QVERIFY(heard.step.text.contains("romeo@example.org"));
    QCOMPARE(heard.step.fields.size(), 2);
    for (const KirvField &field : heard.step.fields)
        QVERIFY(field.getKind() == KirvField::Password && field.isRequired() && field.getText().isEmpty());
    QVERIFY(!heard.step.command.isEmpty() && !heard.step.isDangerous && !heard.step.hasPassword);
}

void tst_XmppRequests::aPasswordThatCannotBeSentIsRejected_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("different") << "new"
                               << "New";
    QTest::newRow("only once") << "new"
                               << "";
    QTest::newRow("control character") << QString("a") + QChar(1) << QString("a") + QChar(1);
}

void tst_XmppRequests::aPasswordThatCannotBeSentIsRejected()
{
    QFETCH(QString, first);
    QFETCH(QString, second);
    KirvXmppPasswordRequest password(connection.get());
    Listener heard(password);
    password.start();
    password.submit(filled(filled(heard.step.fields, "new_password", first), "repetition", second));
    QCOMPARE(heard.take(), QStringList({ "step", "rejected" }));
    QVERIFY(!heard.texts.last().isEmpty());
    QVERIFY(!server.isAwaited());
    QVERIFY(password.cancel());
}

void tst_XmppRequests::thePasswordIsChangedWithoutReconnecting()
{
    KirvXmppPasswordRequest password(connection.get());
    Listener heard(password);
    QSignalSpy states(connection.get(), &KirvConnection::stateChanged);
    password.start();
    password.submit(filled(filled(heard.step.fields, "new_password", "a<b"), "repetition", "a<b"));
    QCOMPARE(heard.take(), QStringList({ "step", "waiting" }));
    QCOMPARE(server.link()->requests.size(), 1);
    QCOMPARE(server.link()->requests.first().to, QString("example.org"));
    QCOMPARE(server.link()->requests.first().type, QXmppIq::Set);
    QCOMPARE(server.payload().namespaceURI(), QString("jabber:iq:register"));
    QCOMPARE(textAt(server.payload(), "username"), QString("romeo"));
    QCOMPARE(textAt(server.payload(), "password"), QString("a<b"));

    server.link()->reply();
    QCOMPARE(heard.take(), QStringList { "succeeded" });
    QCOMPARE(int(heard.result.kind), int(Result::PasswordChanged));
    QCOMPARE(heard.result.password, QString("a<b"));
    QCoreApplication::processEvents();
    QCOMPARE(states.size(), 0);
    QCOMPARE(server.links, 1);
}

void tst_XmppRequests::aRefusedPasswordCanBeSentAgain()
{
    KirvXmppPasswordRequest password(connection.get());
    Listener heard(password);
    password.start();
    const QList<KirvField> fields = filled(filled(heard.step.fields, "new_password", "new"), "repetition", "new");
    password.submit(fields);
    server.link()->refuse("not-allowed", KirvFailure(KirvFailure::RequestFailed, "too short"));
    QCOMPARE(heard.take(), QStringList({ "step", "waiting", "failed" }));
    QVERIFY(heard.failure.text().contains("too short"));
    QVERIFY(password.cancel());
    password.submit(fields);
    server.link()->reply();
    QCOMPARE(heard.take(), QStringList({ "waiting", "succeeded" }));
}

void tst_XmppRequests::whatWasSentCannotBeCancelled()
{
    KirvXmppPasswordRequest password(connection.get());
    Listener heard(password);
    password.start();
    QVERIFY(password.cancel());
    password.submit(filled(filled(heard.step.fields, "new_password", "new"), "repetition", "new"));
    QVERIFY(!password.cancel());
    server.link()->reply();
    QCOMPARE(heard.take(), QStringList({ "step", "waiting", "succeeded" }));
    QVERIFY(password.cancel());
}

void tst_XmppRequests::theEndOfTheConnectionFailsTheRequest_data()
{
    QTest::addColumn<QString>("end");
    QTest::addColumn<bool>("isDeletion");
    for (const char *end : { "dropped", "lost", "logged out", "destroyed", "ended before" }) {
        QTest::addRow("password, %s", end) << end << false;
        QTest::addRow("deletion, %s", end) << end << true;
    }
}

void tst_XmppRequests::theEndOfTheConnectionFailsTheRequest()
{
    QFETCH(QString, end);
    QFETCH(bool, isDeletion);
    if (isDeletion)
        request = std::make_unique<KirvXmppDeletionRequest>(connection.get());
    else
        request = std::make_unique<KirvXmppPasswordRequest>(connection.get());
    Listener heard(*request);
    request->start();
    if (isDeletion)
        request->submit({});
    const QList<KirvField> fields = filled(filled(heard.step.fields, "new_password", "new"), "repetition", "new");
    if (end == "ended before")
        connection->drop();
    heard.take();
    request->submit(fields);
    if (end == "dropped")
        connection->drop();
    else if (end == "lost")
        server.link()->end(KirvFailure::ConnectionLost);
    else if (end == "logged out")
        connection->logOut();
    else if (end == "destroyed")
        connection.reset();
    QCoreApplication::processEvents();
    QCOMPARE(heard.take(), QStringList({ "waiting", "failed" }));
    QVERIFY(heard.failure.isFailure());

    // It can be tried again, and fails again without a connection.
    request->submit(fields);
    QCoreApplication::processEvents();
    QCOMPARE(heard.take(), QStringList({ "waiting", "failed" }));
}

void tst_XmppRequests::aReplyAfterTheFailureIsIgnored()
{
    KirvXmppPasswordRequest password(connection.get());
    Listener heard(password);
    password.start();
    password.submit(filled(filled(heard.step.fields, "new_password", "new"), "repetition", "new"));
    const KirvXmppLink::Receiver receiver = server.link()->requests.first().receiver;
    connection->drop();
    QCoreApplication::processEvents();
    receiver(KirvXmppReply());
    QCOMPARE(heard.take(), QStringList({ "step", "waiting", "failed" }));
}

void tst_XmppRequests::theRequestCanGoFirst_data()
{
    QTest::addColumn<QString>("moment");
    for (const char *moment : { "before the reply", "in succeeded", "in failed", "in waiting" })
        QTest::newRow(moment) << moment;
}

void tst_XmppRequests::theRequestCanGoFirst()
{
    QFETCH(QString, moment);
    request = std::make_unique<KirvXmppPasswordRequest>(connection.get());
    QList<KirvField> fields;
    connect(request.get(), &KirvServerRequest::stepReady, this, [&fields](const Step &step) { fields = step.fields; });
    request->start();
    const auto destroy = [this] { request.reset(); };
    if (moment == "in succeeded")
        connect(request.get(), &KirvServerRequest::succeeded, this, destroy);
    else if (moment == "in failed")
        connect(request.get(), &KirvServerRequest::failed, this, destroy);
    else if (moment == "in waiting")
        connect(request.get(), &KirvServerRequest::waiting, this, destroy);
    request->submit(filled(filled(fields, "new_password", "new"), "repetition", "new"));
    if (moment == "before the reply")
        request.reset();
    QCOMPARE(server.isAwaited(), moment != "in waiting");
    if (moment == "in failed")
        server.link()->refuse("not-allowed");
    else if (server.isAwaited())
        server.link()->reply();
    QVERIFY(!request);
    connection->drop();
    QCoreApplication::processEvents();
}

void tst_XmppRequests::deletionIsConfirmedTwice()
{
    KirvXmppDeletionRequest deletion(connection.get());
    Listener heard(deletion);
    deletion.start();
    const Step first = heard.step;
    deletion.submit({});
    QCOMPARE(heard.take(), QStringList({ "step", "step" }));
    QVERIFY(!server.isAwaited());
    for (const Step &step : { first, heard.step }) {
        QVERIFY(step.text.contains("romeo@example.org"));
        QVERIFY(step.isDangerous && step.fields.isEmpty() && !step.command.isEmpty());
    }
    QVERIFY(first.text != heard.step.text && first.command != heard.step.command);
}

void tst_XmppRequests::theAccountIsDeletedAndTheConnectionEnds()
{
    KirvXmppDeletionRequest deletion(connection.get());
    Listener heard(deletion);
    QSignalSpy failed(connection.get(), &KirvConnection::failed);
    deletion.start();
    deletion.submit({});
    deletion.submit({});
    QCOMPARE(server.link()->requests.first().to, QString("example.org"));
    QVERIFY(!server.payload().firstChildElement("remove").isNull());
    server.link()->reply();
    QCoreApplication::processEvents();
    QCOMPARE(heard.take(), QStringList({ "step", "step", "waiting", "succeeded" }));
    QCOMPARE(int(heard.result.kind), int(Result::AccountDeleted));
    QCOMPARE(connection->state(), KirvConnection::Offline);
    QCOMPARE(failed.size(), 0);
}

void tst_XmppRequests::aRefusedDeletionKeepsTheConnection()
{
    KirvXmppDeletionRequest deletion(connection.get());
    Listener heard(deletion);
    deletion.start();
    deletion.submit({});
    deletion.submit({});
    server.link()->refuse("forbidden");
    QCOMPARE(heard.take(), QStringList({ "step", "step", "waiting", "failed" }));
    QCOMPARE(connection->state(), KirvConnection::Online);
    deletion.submit({}); // the second step is still the present one
    QCOMPARE(heard.take(), QStringList { "waiting" });
}

void tst_XmppRequests::registrationStartsWithTheServer()
{
    createRegistration();
    const Step &step = listener->step;
    QCOMPARE(step.configurations, KirvXmppSettings::configurations());
    QCOMPARE(step.fields.size(), 1 + KirvXmppSettings().toServerFields().size());
    QCOMPARE(step.fields.first().getId(), QString("domain"));
    QVERIFY(!step.canGoBack && !step.hasPassword && !step.isDangerous && !step.command.isEmpty());

    // A configuration for this computer knows its domain, and leaves one that was typed.
    const QString local = step.configurations.at(1);
    QCOMPARE(valueOf(request->fieldsOf(local, step.fields), "domain"), QString("localhost"));
    QCOMPARE(valueOf(request->fieldsOf(local, step.fields), "server"), QString("127.0.0.1"));
    QCOMPARE(valueOf(request->fieldsOf(local, filled(step.fields, "domain", "a.b")), "domain"), QString("a.b"));
    QCOMPARE(valueOf(request->fieldsOf(step.configurations.at(0), step.fields), "domain"), QString());
}

void tst_XmppRequests::aServerIsNeeded_data()
{
    QTest::addColumn<QString>("domain");
    QTest::newRow("empty") << "";
    QTest::newRow("blank") << "  ";
    QTest::newRow("address without a domain") << "romeo@";
    QTest::newRow("control character") << QString("a") + QChar(2);
}

void tst_XmppRequests::aServerIsNeeded()
{
    QFETCH(QString, domain);
    createRegistration();
    request->submit(filled(listener->step.fields, "domain", domain));
    QCOMPARE(listener->take(), QStringList { "rejected" });
    QCOMPARE(server.links, 1); // that of the connection
}

void tst_XmppRequests::theFormFollowsTheServer()
{
    createRegistration();
    request->submit(filled(filled(listener->step.fields, "domain", "romeo@example.org"), "port", "5223"));
    QCOMPARE(listener->take(), QStringList { "waiting" });
    QCOMPARE(server.links, 2);
    QCOMPARE(server.link()->purpose, KirvXmppLink::Register);
    QCOMPARE(server.link()->configuration.domain(), QString("example.org"));
    QCOMPARE(server.link()->configuration.port(), 5223);
    server.link()->arrive();
    QCOMPARE(server.link()->requests.first().type, QXmppIq::Get);
    QCOMPARE(server.link()->requests.first().to, QString("example.org"));
    server.link()->reply(registrationForm("<instructions>Read &lt;this&gt;.</instructions><username/><password/>"
                                          "<x xmlns='jabber:x:oob'><url>https://example.org/</url></x>"));
    QCOMPARE(listener->take(), QStringList { "step" });
    const Step &step = listener->step;
    QVERIFY(step.text.contains("Read <this>.") && step.text.contains("https://example.org/"));
    QCOMPARE(step.fields.size(), 2);
    QVERIFY(step.canGoBack && step.hasPassword && step.notice.isEmpty() && step.configurations.isEmpty());
}

void tst_XmppRequests::theNewAccountIsTheResult()
{
    createRegistration();
    request->submit(filled(filled(listener->step.fields, "domain", "example.org"), "encryption", "offered"));
    server.link()->arrive();
    server.link()->reply(registrationForm("<username/><password/>"));
    listener->take();
    request->submit(listener->step.fields);
    QCOMPARE(listener->take(), QStringList { "rejected" });
    QVERIFY(!server.isAwaited());

    request->submit(filled(filled(listener->step.fields, "username", "juliet"), "password", "new"));
    QCOMPARE(listener->take(), QStringList { "waiting" });
    QCOMPARE(textAt(server.payload(), "username"), QString("juliet"));
    server.link()->reply();
    QCOMPARE(listener->take(), QStringList { "succeeded" });
    QCOMPARE(int(listener->result.kind), int(Result::AccountRegistered));
    QCOMPARE(listener->result.account.id, QString("juliet@example.org"));
    QCOMPARE(listener->result.account.password, QString("new"));
    QCOMPARE(listener->result.account.settings.size(), KirvXmppSettings().toFields().size());
    QCOMPARE(valueOf(listener->result.account.settings, "encryption"), QString("offered"));
}

void tst_XmppRequests::anUntrustedCertificateIsAskedAbout()
{
    createRegistration();
    request->submit(filled(listener->step.fields, "domain", "example.org"));
    QVERIFY(server.link()->trustedCertificate().isEmpty());
    refuseCertificate("first");
    QCOMPARE(listener->take(), QStringList({ "waiting", "step" }));
    const Step step = listener->step;
    QVERIFY(step.text.contains("not trusted"));
    QCOMPARE(step.notice, QString("It is self-signed."));
    QVERIFY(step.isDangerous && step.canGoBack && !step.hasPassword);
    QCOMPARE(step.command, QString("Trust for This Account"));
    QStringList said;
    for (const KirvField &field : step.fields) {
        QCOMPARE(field.getKind(), KirvField::Label);
        said << field.getText();
    }
    QVERIFY(said.contains("example.org") && said.contains(KirvServerCertificate::fingerprintText("first")));

    request->submit(step.fields);
    QCOMPARE(listener->take(), QStringList { "waiting" });
    QCOMPARE(server.link()->trustedCertificate(), QByteArray("first"));
    server.link()->arrive();
    server.link()->reply(registrationForm("<username/><password/>"));
    QCOMPARE(listener->take(), QStringList { "step" });
    request->submit(filled(filled(listener->step.fields, "username", "juliet"), "password", "new"));
    server.link()->reply();
    QCOMPARE(listener->take(), QStringList({ "waiting", "succeeded" }));
    QCOMPARE(listener->result.account.trustedCertificate, QByteArray("first"));
}

void tst_XmppRequests::theCertificateOfAnotherServerIsAskedAboutAgain()
{
    createRegistration();
    const QList<KirvField> fields = filled(listener->step.fields, "domain", "example.org");
    request->submit(fields);
    refuseCertificate("first");
    request->goBack(listener->step.fields);
    QCOMPARE(listener->take(), QStringList({ "waiting", "step", "step" }));
    QCOMPARE(valueOf(listener->step.fields, "domain"), QString("example.org"));
    request->submit(fields);
    refuseCertificate("first");
    request->submit(listener->step.fields);
    QCOMPARE(server.link()->trustedCertificate(), QByteArray("first"));
    refuseCertificate("second"); // it has changed meanwhile
    listener->take();
    QVERIFY(listener->step.fields.last().getText() == KirvServerCertificate::fingerprintText("second"));
    request->goBack(listener->step.fields);
    request->submit(fields);
    QVERIFY(server.link()->trustedCertificate().isEmpty());
    server.link()->end(KirvFailure(KirvFailure::UntrustedCertificate)); // none was shown
    QCOMPARE(listener->take(), QStringList({ "step", "waiting", "failed" }));
}

void tst_XmppRequests::aFormWithoutAUserNameHasNoAccount()
{
    createRegistration();
    receiveForm("<email/>");
    QVERIFY(!listener->step.hasPassword);
    request->submit(filled(listener->step.fields, "email", "a@b"));
    server.link()->reply();
    QCOMPARE(listener->take(), QStringList({ "waiting", "succeeded" }));
    QCOMPARE(listener->result.account.id, QString());
}

void tst_XmppRequests::goingBackKeepsBothSteps()
{
    createRegistration();
    receiveForm("<username/><password/>");
    request->goBack(filled(listener->step.fields, "username", "juliet"));
    QCOMPARE(listener->take(), QStringList { "step" });
    QVERIFY(!listener->step.canGoBack);
    QCOMPARE(valueOf(listener->step.fields, "domain"), QString("example.org"));
    receiveForm("<username/><password/><email/>");
    QCOMPARE(valueOf(listener->step.fields, "username"), QString("juliet"));
    QCOMPARE(listener->step.fields.size(), 3);
    QVERIFY(listener->step.notice.isEmpty());

    request->goBack(listener->step.fields);
    request->goBack(listener->step.fields); // there is nothing before the first step
    QCOMPARE(listener->take(), QStringList { "step" });
}

void tst_XmppRequests::aTakenNameIsReported()
{
    createRegistration();
    receiveForm("<username/><password/>");
    const QList<KirvField> fields = filled(listener->step.fields, "password", "new");
    request->submit(filled(fields, "username", "juliet"));
    server.link()->refuse("conflict");
    QCOMPARE(listener->take(), QStringList({ "waiting", "failed" }));
    QCOMPARE(listener->failure.kind(), KirvFailure::NameInUse);
    QCOMPARE(listener->failure.detail(), QString("juliet"));
    // The stream is still there for another name.
    request->submit(filled(fields, "username", "juliet2"));
    QCOMPARE(server.links, 2);
    server.link()->reply();
    QCOMPARE(listener->result.account.id, QString("juliet2@example.org"));
}

void tst_XmppRequests::aWrongAnswerToAPictureGetsANewOne()
{
    createRegistration();
    receiveForm(pictureForm("first"));
    const QList<KirvField> fields = filled(filled(listener->step.fields, "username", "juliet"), "password", "new");
    request->submit(filled(fields, "ocr", "wrong"));
    QCOMPARE(sentValue(server.payload(), "challenge"), QString("first"));
    server.link()->refuse("not-allowed", KirvFailure(KirvFailure::RequestFailed, "The answer is wrong."));
    QCOMPARE(listener->take(), QStringList { "waiting" });
    QCOMPARE(server.link()->requests.first().type, QXmppIq::Get);
    server.link()->reply(registrationForm(pictureForm("second")));

    QCOMPARE(listener->take(), QStringList { "step" });
    QVERIFY2(listener->step.notice.contains("The answer is wrong."), qPrintable(listener->step.notice));
    QCOMPARE(listener->step.pictures.first().address, QString("https://example.org/second"));
    QCOMPARE(valueOf(listener->step.fields, "username"), QString("juliet"));
    QCOMPARE(valueOf(listener->step.fields, "password"), QString("new"));
    QCOMPARE(valueOf(listener->step.fields, "ocr"), QString());

    request->submit(filled(listener->step.fields, "ocr", "right"));
    QCOMPARE(sentValue(server.payload(), "challenge"), QString("second"));
    QCOMPARE(sentValue(server.payload(), "ocr"), QString("right"));
    server.link()->reply();
    QCOMPARE(listener->take(), QStringList({ "waiting", "succeeded" }));
    QCOMPARE(server.links, 2);
}

void tst_XmppRequests::aFormThatWasRefusedIsNotSentAgain_data()
{
    QTest::addColumn<QString>("instead");
    QTest::newRow("no new form") << "refuses";
    QTest::newRow("the stream ends") << "ends";
    QTest::newRow("cancelled") << "cancelled";
}

void tst_XmppRequests::aFormThatWasRefusedIsNotSentAgain()
{
    QFETCH(QString, instead);
    createRegistration();
    receiveForm(pictureForm("first"));
    const QList<KirvField> fields = filled(listener->step.fields, "username", "juliet");
    request->submit(fields);
    server.link()->refuse("conflict");
    if (instead == "refuses")
        server.link()->refuse("resource-constraint");
    else if (instead == "ends")
        server.link()->end(KirvFailure::ConnectionLost);
    else
        QVERIFY(request->cancel());
    if (instead != "cancelled") {
        QCOMPARE(listener->take(), QStringList({ "waiting", "failed" }));
        QCOMPARE(listener->failure.kind(), KirvFailure::NameInUse); // what it is all about
    }
    request->submit(fields);
    QCOMPARE(server.links, 3);
    server.link()->arrive();
    QCOMPARE(server.link()->requests.first().type, QXmppIq::Get);
    server.link()->reply(registrationForm(pictureForm("second")));
    QCOMPARE(listener->step.pictures.first().address, QString("https://example.org/second"));
    QVERIFY(!server.isAwaited());
}

void tst_XmppRequests::hiddenFieldsAreThoseOfTheLatestForm()
{
    createRegistration();
    receiveForm("<username/><password/><key>first</key>");
    const QList<KirvField> fields = filled(filled(listener->step.fields, "username", "juliet"), "password", "new");
    request->submit(fields);
    server.link()->refuse("conflict");
    server.link()->reply(registrationForm("<username/><password/><key>second</key>"));
    QCOMPARE(listener->take(), QStringList({ "waiting", "step" }));
    QVERIFY2(listener->step.notice.contains("juliet"), qPrintable(listener->step.notice));
    request->submit(filled(listener->step.fields, "username", "juliet2"));
    QCOMPARE(textAt(server.payload(), "key"), QString("second"));

    // The same when the stream had to be opened again.
    server.link()->end(KirvFailure::ConnectionLost);
    request->submit(listener->step.fields);
    server.link()->arrive();
    server.link()->reply(registrationForm("<username/><password/><key>third</key>"));
    QCOMPARE(textAt(server.payload(), "key"), QString("third"));
}

void tst_XmppRequests::anotherFormKeepsWhatWasTyped()
{
    createRegistration();
    receiveForm("<username/><password/>");
    server.link()->end(KirvFailure::ConnectionLost);
    request->submit(filled(filled(listener->step.fields, "username", "juliet"), "password", "new"));
    server.link()->arrive();
    server.link()->reply(registrationForm("<username/><password/><email/>"));
    QCOMPARE(listener->take(), QStringList({ "waiting", "step" }));
    QVERIFY(!listener->step.notice.isEmpty());
    QCOMPARE(valueOf(listener->step.fields, "username"), QString("juliet"));
    QCOMPARE(valueOf(listener->step.fields, "password"), QString("new"));
    QCOMPARE(valueOf(listener->step.fields, "email"), QString());
}

void tst_XmppRequests::aFormWithoutFieldsCannotBeSent()
{
    createRegistration();
    receiveForm("<instructions>Go there.</instructions><x xmlns='jabber:x:oob'><url>https://a/</url></x>");
    QVERIFY(listener->step.command.isEmpty() && listener->step.canGoBack);
    QVERIFY(listener->step.notice.contains("from within a client"));
}

void tst_XmppRequests::registrationThatIsNotOfferedIsReported_data()
{
    QTest::addColumn<bool>("ends");
    QTest::newRow("refused") << false;
    QTest::newRow("stream closed") << true;
}

void tst_XmppRequests::registrationThatIsNotOfferedIsReported()
{
    QFETCH(bool, ends);
    createRegistration();
    request->submit(filled(listener->step.fields, "domain", "example.org"));
    server.link()->arrive(false);
    if (ends)
        server.link()->end(KirvFailure::ConnectionLost);
    else
        server.link()->refuse("service-unavailable");
    QCOMPARE(listener->take(), QStringList({ "waiting", "failed" }));
    QCOMPARE(listener->failure.kind(), KirvFailure::NotSupported);
}

void tst_XmppRequests::aSilentServerTimesOut()
{
    createRegistration();
    request->setProperty("timeout", 5000);
    request->submit(filled(filled(listener->step.fields, "domain", "example.org"), "server", "xmpp.example.org"));
    clock.advance(4999);
    QCOMPARE(listener->take(), QStringList { "waiting" });
    clock.advance(1);
    QCOMPARE(listener->take(), QStringList { "failed" });
    QCOMPARE(listener->failure.kind(), KirvFailure::TimedOut);
    QCOMPARE(listener->failure.detail(), QString("xmpp.example.org"));
    clock.advance(100000);
    QVERIFY(listener->take().isEmpty());
}

void tst_XmppRequests::aStreamThatEndedMeanwhileIsOpenedAgain()
{
    createRegistration();
    receiveForm("<username/><password/>");
    server.link()->end(KirvFailure::ServerShutDown);
    QVERIFY(listener->take().isEmpty());
    request->submit(filled(filled(listener->step.fields, "username", "juliet"), "password", "new"));
    QCOMPARE(server.links, 3);
    server.link()->arrive();
    server.link()->reply(registrationForm("<username/><password/>")); // the same form: it is sent at once
    QCOMPARE(server.link()->requests.first().type, QXmppIq::Set);
    server.link()->reply();
    QCOMPARE(listener->take(), QStringList({ "waiting", "succeeded" }));
}

void tst_XmppRequests::aStreamThatEndsWhileSendingFails()
{
    createRegistration();
    receiveForm("<username/><password/>");
    const QList<KirvField> fields = filled(filled(listener->step.fields, "username", "juliet"), "password", "new");
    request->submit(fields);
    server.link()->end(KirvFailure::ConnectionLost);
    QCOMPARE(listener->take(), QStringList({ "waiting", "failed" }));
    QCOMPARE(listener->failure.kind(), KirvFailure::ConnectionLost);
    request->submit(fields);
    QCOMPARE(listener->take(), QStringList { "waiting" });
    QCOMPARE(server.links, 3);
}

void tst_XmppRequests::badSettingsAreReported()
{
    createRegistration();
    request->submit(filled(filled(listener->step.fields, "domain", "example.org"), "certificate", "/no/such/file"));
    QCOMPARE(listener->take(), QStringList({ "waiting", "failed" }));
    QCOMPARE(listener->failure.kind(), KirvFailure::BadSettings);
    QCOMPARE(server.links, 1);
}

void tst_XmppRequests::registrationCanBeCancelled()
{
    createRegistration();
    request->submit(filled(listener->step.fields, "domain", "example.org"));
    server.link()->arrive();
    QVERIFY(request->cancel());
    clock.advance(1000000);
    QCoreApplication::processEvents();
    QCOMPARE(listener->take(), QStringList { "waiting" });
    receiveForm("<username/><password/>"); // the step can be submitted again
}

void tst_XmppRequests::registrationCanGoInAnySlot_data()
{
    QTest::addColumn<QString>("moment");
    for (const char *moment : { "in stepReady", "in waiting", "in failed", "in inputRejected", "in succeeded" })
        QTest::newRow(moment) << moment;
}

void tst_XmppRequests::registrationCanGoInAnySlot()
{
    QFETCH(QString, moment);
    createRegistration();
    if (moment != "in stepReady")
        receiveForm("<username/><password/>");
    const QPointer<KirvServerRequest> alive(request.get());
    Listener &heard = *listener;
    connect(request.get(), &KirvServerRequest::stepReady, this, [=] { delete alive.data(); });
    connect(request.get(), &KirvServerRequest::failed, this, [=] { delete alive.data(); });
    connect(request.get(), &KirvServerRequest::inputRejected, this, [=] { delete alive.data(); });
    connect(request.get(), &KirvServerRequest::succeeded, this, [=] { delete alive.data(); });
    if (moment == "in waiting")
        connect(request.get(), &KirvServerRequest::waiting, this, [=] { delete alive.data(); });
    request.release(); // it is one of the slots that destroys it

    if (moment == "in stepReady") {
        alive->submit(filled(heard.step.fields, "domain", "example.org"));
        server.link()->arrive();
        server.link()->reply(registrationForm("<username/>"));
    } else {
        const QString name = moment == "in inputRejected" ? QString() : QString("juliet");
        alive->submit(filled(filled(heard.step.fields, "username", name), "password", "new"));
        if (moment == "in failed")
            server.link()->refuse("conflict");
        else if (moment == "in succeeded")
            server.link()->reply();
    }
    QVERIFY(!alive);
    QCoreApplication::processEvents();
}

void tst_XmppRequests::onlyTheChangesArePublishedOverAFreshEntry()
{
    QSignalSpy answered(connection.get(), &KirvConnection::directoryAnswered);
    const int number = connection->publishDirectory({ KirvField::textEdit("", "telephone", "789", "") });
    QCOMPARE(server.link()->requests.first().type, QXmppIq::Get);
    server.link()->reply("<vCard xmlns='vcard-temp'><FN>New since then</FN><TEL><NUMBER>123</NUMBER></TEL>"
                         "<ROLE>unknown here</ROLE></vCard>");
    QCOMPARE(server.link()->requests.first().type, QXmppIq::Set);
    QCOMPARE(textAt(server.payload(), "FN"), QString("New since then"));
    QCOMPARE(textAt(server.payload(), "TEL/NUMBER"), QString("789"));
    QCOMPARE(textAt(server.payload(), "ROLE"), QString("unknown here"));
    server.link()->reply();
    QCOMPARE(answered.size(), 1);
    const auto answer = answered.first().first().value<KirvDirectoryAnswer>();
    QCOMPARE(answer.request, number);
    QCOMPARE(int(answer.outcome), int(KirvDirectoryAnswer::Data));
    QCOMPARE(valueOf(answer.fields, "telephone"), QString("789"));
    QCOMPARE(valueOf(answer.fields, "fullname"), QString("New since then"));
}

void tst_XmppRequests::directoryRequestsAreDoneOneAfterTheOther()
{
    QSignalSpy answered(connection.get(), &KirvConnection::directoryAnswered);
    const int publication = connection->publishDirectory({ KirvField::textEdit("", "nickname", "romeo", "") });
    const int deletion = connection->deleteDirectory();
    const int fetch = connection->fetchDirectory();
    QCOMPARE(server.link()->requests.size(), 1);
    server.link()->refuse("item-not-found"); // there is no entry yet
    server.link()->reply();
    server.link()->reply("<vCard xmlns='vcard-temp'><NICKNAME>romeo</NICKNAME></vCard>");
    QVERIFY(!server.payload().hasChildNodes());
    server.link()->reply();
    server.link()->reply("<vCard xmlns='vcard-temp'/>");
    QCOMPARE(answered.size(), 3);
    const int requests[] = { publication, deletion, fetch };
    const int outcomes[] = { KirvDirectoryAnswer::Data, KirvDirectoryAnswer::None, KirvDirectoryAnswer::None };
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(answered.at(i).first().value<KirvDirectoryAnswer>().request, requests[i]);
        QCOMPARE(int(answered.at(i).first().value<KirvDirectoryAnswer>().outcome), outcomes[i]);
    }
}

void tst_XmppRequests::directoryErrorsAreReported()
{
    QSignalSpy answered(connection.get(), &KirvConnection::directoryAnswered);
    connection->publishDirectory({ KirvField::textEdit("", "nickname", "romeo", "") });
    server.link()->refuse("internal-server-error"); // nothing is written over what could not be read
    QVERIFY(!server.isAwaited());
    connection->publishDirectory({ KirvField::textEdit("", "about", QString(300000, 'x'), "") });
    server.link()->reply("<vCard xmlns='vcard-temp'/>");
    QVERIFY(!server.isAwaited());
    connection->fetchDirectory();
    server.link()->end(KirvFailure::ConnectionLost);
    QCOMPARE(answered.size(), 3);
    for (const QList<QVariant> &arguments : answered)
        QCOMPARE(int(arguments.first().value<KirvDirectoryAnswer>().outcome), int(KirvDirectoryAnswer::Failed));
}

void tst_XmppRequests::theAvatarIsPublished()
{
    QTemporaryDir folder;
    QImage image(20, 20, QImage::Format_RGB32);
    image.fill(Qt::red);
    QVERIFY(image.save(folder.filePath("a.png")));
    QSignalSpy published(connection.get(), &KirvConnection::avatarPublished);
    connection->setAvatar({ folder.filePath("a.png"), QByteArray(), true });
    server.link()->refuse("item-not-found");
    server.link()->reply("<vCard xmlns='vcard-temp'><FN>Romeo</FN></vCard>");
    QCOMPARE(textAt(server.payload(), "FN"), QString("Romeo"));
    QCOMPARE(textAt(server.payload(), "PHOTO/TYPE"), QString("image/png"));
    const QByteArray sent = QByteArray::fromBase64(textAt(server.payload(), "PHOTO/BINVAL").toLatin1());
    QCOMPARE(QImage::fromData(sent).size(), QSize(20, 20));
    server.link()->reply();
    const QByteArray hash = QCryptographicHash::hash(sent, QCryptographicHash::Sha1);
    QCOMPARE(server.link()->presences.last().photoHash(), hash);
    QCOMPARE(published.size(), 1);
    QCOMPARE(published.first().first().toString(), folder.filePath("a.png"));

    connection->setAvatar({ QString(), QByteArray(), true });
    server.link()->refuse("item-not-found");
    server.link()->reply("<vCard xmlns='vcard-temp'><FN>Romeo</FN><PHOTO><BINVAL>QUJD</BINVAL></PHOTO></vCard>");
    QVERIFY(server.payload().firstChildElement("PHOTO").isNull());

    QSignalSpy failed(connection.get(), &KirvConnection::failed);
    server.link()->reply();
    connection->setAvatar({ folder.filePath("none.png"), QByteArray(), true });
    server.link()->refuse("item-not-found");
    QCOMPARE(failed.size(), 1);
}

void tst_XmppRequests::thePictureOfAnotherClientIsReported()
{
    QSignalSpy received(connection.get(), &KirvConnection::avatarReceived);
    QSignalSpy failed(connection.get(), &KirvConnection::failed);
    connection->setAvatar({ "/a.png", "0123/", false });
    connection->drop();
    connection->logIn(login, KirvPresence("available", "Available", QString(), QString()));
    server.link()->arrive();
    server.link()->refuse("item-not-found");
    server.link()->reply("<vCard xmlns='vcard-temp'><PHOTO><BINVAL>QUJD</BINVAL></PHOTO></vCard>");
    QVERIFY(!server.isAwaited());
    QCOMPARE(received.size(), 1);
    QCOMPARE(received.first().first().toByteArray(), QByteArray("ABC"));
    const QByteArray hash = QCryptographicHash::hash("ABC", QCryptographicHash::Sha1);
    QCOMPARE(server.link()->presences.last().photoHash(), hash);

    // A server that has no directory is nothing to report: no picture was to be published.
    connection->drop();
    connection->logIn(login, KirvPresence("available", "Available", QString(), QString()));
    server.link()->arrive();
    server.link()->refuse("service-unavailable");
    server.link()->refuse("service-unavailable");
    QCOMPARE(received.size(), 1);
    QCOMPARE(failed.size(), 0);
}

QTEST_MAIN(tst_XmppRequests)
#include "tst_xmpp_requests.moc"
