// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_registration.h"
#include "tests/protocols/fake_xmpp_link.h"
#include "tests/support/fakes/kirv_fake_clock.h"
#include "tests/support/kirv_field_texts.h"

#include <QSignalSpy>
#include <QTest>
#include <functional>
#include <memory>
#include <utility>

namespace {

using Reaction = std::function<void(FakeXmppLink &)>;

const QByteArray plainForm = "<query xmlns='jabber:iq:register'><username/><password/></query>";
const QByteArray otherForm = "<query xmlns='jabber:iq:register'><username/><password/><email/></query>";

/// A form whose picture the server knows by \a challenge, once.
QByteArray pictureForm(const QByteArray &challenge)
{
    return "<query xmlns='jabber:iq:register'><x xmlns='jabber:x:data'><field type='hidden' var='challenge'><value>"
        + challenge
        + "</value></field><field var='username'/><field var='ocr'><media xmlns='urn:xmpp:media-element'>"
          "<uri>https://example.org/"
        + challenge + "</uri></media></field></x></query>";
}

} // namespace

Q_DECLARE_METATYPE(Reaction)

/// How requests for a registration end: each in one signal, whatever the server does.
class tst_XmppRegistrationEnds : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void theFormIsRequestedFromTheDomain();
    void aRequestForTheFormEndsOnce_data();
    void aRequestForTheFormEndsOnce();
    void aSubmissionEndsOnce_data();
    void aSubmissionEndsOnce();
    void anEarlierRequestDoesNotTimeOutALaterOne();
    void fillingInTakesAnyTime();

    void aRefusalKeepsTheStream();
    void aFormThatHasChangedIsNotSent();
    void aFormForOneUseIsRequestedAnew();
    void theRefusalCountsWhenNoNewFormComes();

    void cancellingIsSilent_data();
    void cancellingIsSilent();
    void certificatesAreHandedOn();
    void aSlotMayDestroyIt_data();
    void aSlotMayDestroyIt();

private:
    void fetch();
    void receiveForm(const QByteArray &form = plainForm);
    void submit() { registration->submit({ text("username", "juliet"), text("password", "secret") }); }
    QStringList takeEvents();

    KirvFakeClock clock;
    FakeXmppServer server;
    std::unique_ptr<KirvXmppRegistration> registration;
    QStringList events; ///< the signals, in their order, with the kind of failure
};

void tst_XmppRegistrationEnds::init()
{
    server = FakeXmppServer();
    events.clear();
    registration = std::make_unique<KirvXmppRegistration>(clock, nullptr, server.factory());
    const auto note = [this](const char *signal, const KirvFailure &failure) {
        events << (failure.isFailure() ? QStringLiteral("%1 %2").arg(QLatin1String(signal)).arg(failure.kind())
                                       : QString::fromLatin1(signal));
    };
    connect(registration.get(), &KirvXmppRegistration::formReceived, this,
            [note](const KirvXmppRegistrationForm &, const KirvFailure &refusal) { note("form", refusal); });
    connect(registration.get(), &KirvXmppRegistration::succeeded, this, [note] { note("succeeded", KirvFailure()); });
    connect(registration.get(), &KirvXmppRegistration::failed, this,
            [note](const KirvFailure &failure) { note("failed", failure); });
}

void tst_XmppRegistrationEnds::cleanup()
{
    registration.reset();
}

void tst_XmppRegistrationEnds::fetch()
{
    registration->fetchForm(QStringLiteral("example.org"), KirvXmppSettings());
}

void tst_XmppRegistrationEnds::receiveForm(const QByteArray &form)
{
    fetch();
    server.link()->arrive();
    server.link()->reply(form);
    QCOMPARE(takeEvents(), QStringList { "form" });
}

QStringList tst_XmppRegistrationEnds::takeEvents()
{
    return std::exchange(events, QStringList());
}

void tst_XmppRegistrationEnds::theFormIsRequestedFromTheDomain()
{
    fetch();
    QCOMPARE(int(server.link()->purpose), int(KirvXmppLink::Register));
    QCOMPARE(server.link()->configuration.domain(), QStringLiteral("example.org"));
    QVERIFY(!server.isAwaited()); // the server has not spoken yet
    server.link()->arrive();
    QCOMPARE(server.link()->requests.size(), 1);
    QCOMPARE(server.link()->requests.first().type, QXmppIq::Get);
    QCOMPARE(server.link()->requests.first().to, QStringLiteral("example.org"));
    QCOMPARE(server.payload().namespaceURI(), QStringLiteral("jabber:iq:register"));
}

void tst_XmppRegistrationEnds::aRequestForTheFormEndsOnce_data()
{
    QTest::addColumn<Reaction>("reaction"); ///< null: silence
    QTest::addColumn<QString>("event");
    const auto row = [](const char *name, const Reaction &reaction, const QString &event) {
        QTest::newRow(name) << reaction << event;
    };
    const auto failed = [](KirvFailure::Kind kind) { return QStringLiteral("failed %1").arg(kind); };
    row(
        "form",
        [](FakeXmppLink &link) {
            link.arrive();
            link.reply(plainForm);
        },
        "form");
    row(
        "form, though registration is not offered",
        [](FakeXmppLink &link) {
            link.arrive(false);
            link.reply(plainForm);
        },
        "form");
    row(
        "refusal",
        [](FakeXmppLink &link) {
            link.arrive();
            link.refuse("not-allowed", KirvFailure::AccessDenied);
        },
        failed(KirvFailure::AccessDenied));
    row(
        "refusal, as registration is not offered",
        [](FakeXmppLink &link) {
            link.arrive(false);
            link.refuse("not-allowed", KirvFailure::AccessDenied);
        },
        failed(KirvFailure::NotSupported));
    row(
        "end", [](FakeXmppLink &link) { link.end(KirvFailure::ServerShutDown); }, failed(KirvFailure::ServerShutDown));
    row(
        "end without a reason", [](FakeXmppLink &link) { link.end(KirvFailure()); },
        failed(KirvFailure::ConnectionLost));
    row(
        "end in the place of the form",
        [](FakeXmppLink &link) {
            link.arrive();
            link.end(KirvFailure::ServerShutDown);
        },
        failed(KirvFailure::ServerShutDown));
    row(
        "end, as registration is not offered",
        [](FakeXmppLink &link) {
            link.arrive(false);
            link.end(KirvFailure::ServerShutDown);
        },
        failed(KirvFailure::NotSupported));
    row("silence", Reaction(), failed(KirvFailure::TimedOut));
    row(
        "silence after the beginning", [](FakeXmppLink &link) { link.arrive(); }, failed(KirvFailure::TimedOut));
}

void tst_XmppRegistrationEnds::aRequestForTheFormEndsOnce()
{
    QFETCH(Reaction, reaction);
    fetch();
    clock.advance(registration->timeout() - 1);
    if (reaction)
        reaction(*server.link());
    clock.advance(1);
    QStringList ends = takeEvents();
    clock.advance(10 * registration->timeout());
    if (server.link())
        server.link()->end(KirvFailure::ConnectionLost);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QTEST((ends + takeEvents()).join(", "), "event");
}

void tst_XmppRegistrationEnds::aSubmissionEndsOnce_data()
{
    QTest::addColumn<Reaction>("reaction");
    QTest::addColumn<QString>("event");
    const auto failed = [](KirvFailure::Kind kind) { return QStringLiteral("failed %1").arg(kind); };
    QTest::newRow("success") << Reaction([](FakeXmppLink &link) { link.reply(); }) << "succeeded";
    QTest::newRow("name in use") << Reaction([](FakeXmppLink &link) { link.refuse("conflict"); })
                                 << failed(KirvFailure::NameInUse);
    QTest::newRow("refusal") << Reaction([](FakeXmppLink &link) {
        link.refuse("not-acceptable", KirvFailure::RequestFailed);
    }) << failed(KirvFailure::RequestFailed);
    QTest::newRow("end") << Reaction([](FakeXmppLink &link) { link.end(KirvFailure::ServerShutDown); })
                         << failed(KirvFailure::ServerShutDown);
    QTest::newRow("end without a reason")
        << Reaction([](FakeXmppLink &link) { link.end(KirvFailure()); }) << failed(KirvFailure::ConnectionLost);
}

void tst_XmppRegistrationEnds::aSubmissionEndsOnce()
{
    QFETCH(Reaction, reaction);
    receiveForm();
    submit();
    QVERIFY(takeEvents().isEmpty());
    reaction(*server.link());
    QStringList ends = takeEvents();
    clock.advance(10 * registration->timeout());
    if (server.link())
        server.link()->end(KirvFailure::ConnectionLost);
    QTEST((ends + takeEvents()).join(", "), "event");
}

void tst_XmppRegistrationEnds::anEarlierRequestDoesNotTimeOutALaterOne()
{
    fetch();
    clock.advance(registration->timeout() - 1);
    fetch();
    QCOMPARE(server.links, 2);
    clock.advance(registration->timeout() - 1);
    QVERIFY(takeEvents().isEmpty());
    clock.advance(1);
    QCOMPARE(takeEvents().size(), 1);
}

void tst_XmppRegistrationEnds::fillingInTakesAnyTime()
{
    receiveForm();
    clock.advance(100 * registration->timeout());
    QVERIFY(takeEvents().isEmpty());
    submit();
    QCOMPARE(server.links, 1);
    server.link()->reply();
    QCOMPARE(takeEvents(), QStringList { "succeeded" });
}

void tst_XmppRegistrationEnds::aRefusalKeepsTheStream()
{
    receiveForm();
    for (int count = 0; count < 3; ++count) {
        submit();
        QCOMPARE(server.link()->requests.first().type, QXmppIq::Set);
        server.link()->refuse("conflict");
        QCOMPARE(takeEvents().size(), 1);
    }
    submit();
    QCOMPARE(server.links, 1);
    QCOMPARE(textAt(server.payload(), QStringLiteral("username")), QStringLiteral("juliet"));
}

/// What was typed is for another form.
void tst_XmppRegistrationEnds::aFormThatHasChangedIsNotSent()
{
    receiveForm();
    server.link()->end(KirvFailure::ServerShutDown);
    QVERIFY(takeEvents().isEmpty());
    submit();
    QCOMPARE(server.links, 2);
    server.link()->arrive();
    server.link()->reply(otherForm);
    QCOMPARE(takeEvents(), QStringList { "form" });
    QVERIFY(!server.isAwaited());
}

void tst_XmppRegistrationEnds::aFormForOneUseIsRequestedAnew()
{
    receiveForm(pictureForm("first"));
    submit();
    server.link()->refuse("not-allowed", KirvFailure::RequestFailed);
    QVERIFY(takeEvents().isEmpty());
    QCOMPARE(server.link()->requests.first().type, QXmppIq::Get);
    server.link()->reply(pictureForm("second"));
    QCOMPARE(takeEvents(), QStringList { QStringLiteral("form %1").arg(KirvFailure::RequestFailed) });
    submit();
    QCOMPARE(server.links, 1);
    QVERIFY(server.payload().text().contains(QLatin1String("second")));
}

void tst_XmppRegistrationEnds::theRefusalCountsWhenNoNewFormComes()
{
    for (const bool ends : { false, true }) {
        receiveForm(pictureForm("first"));
        submit();
        server.link()->refuse("conflict");
        if (ends)
            server.link()->end(KirvFailure::ServerShutDown);
        else
            server.link()->refuse("resource-constraint", KirvFailure::ServiceUnavailable);
        QCOMPARE(takeEvents(), QStringList { QStringLiteral("failed %1").arg(KirvFailure::NameInUse) });
        // The form that was refused is not sent again.
        const int links = server.links;
        submit();
        QCOMPARE(server.links, links + 1);
        QVERIFY(!server.isAwaited());
    }
}

void tst_XmppRegistrationEnds::cancellingIsSilent_data()
{
    QTest::addColumn<int>("steps"); ///< of a registration, before it is cancelled
    QTest::newRow("before the server speaks") << 0;
    QTest::newRow("while the form is requested") << 1;
    QTest::newRow("while the form is filled in") << 2;
    QTest::newRow("while the form is sent") << 3;
}

void tst_XmppRegistrationEnds::cancellingIsSilent()
{
    QFETCH(int, steps);
    fetch();
    if (steps >= 1)
        server.link()->arrive();
    if (steps >= 2)
        server.link()->reply(plainForm);
    if (steps >= 3)
        submit();
    takeEvents();
    FakeXmppLink *const link = server.link();
    registration->cancel();
    QVERIFY(!link->isOpened);
    Q_EMIT link->ended(KirvFailure::ConnectionLost);
    Q_EMIT link->readyToRegister(true);
    clock.advance(10 * registration->timeout());
    QVERIFY(takeEvents().isEmpty());
    receiveForm(); // it can begin anew
}

void tst_XmppRegistrationEnds::certificatesAreHandedOn()
{
    registration->setTrustedCertificate("digest");
    QSignalSpy shown(registration.get(), &KirvXmppRegistration::certificateShown);
    fetch();
    QCOMPARE(server.link()->trustedCertificate(), QByteArray("digest"));
    KirvServerCertificate certificate;
    certificate.fingerprint = "other";
    Q_EMIT server.link()->certificateShown(certificate);
    QCOMPARE(shown.size(), 1);
    QVERIFY(takeEvents().isEmpty()); // the end of the stream follows
    server.link()->end(KirvFailure::UntrustedCertificate);
    QCOMPARE(takeEvents(), QStringList { QStringLiteral("failed %1").arg(KirvFailure::UntrustedCertificate) });
}

void tst_XmppRegistrationEnds::aSlotMayDestroyIt_data()
{
    QTest::addColumn<QString>("signal");
    for (const char *signal : { "form", "failed", "timed out", "succeeded" })
        QTest::newRow(signal) << signal;
}

void tst_XmppRegistrationEnds::aSlotMayDestroyIt()
{
    QFETCH(QString, signal);
    if (signal == "succeeded")
        receiveForm();
    const auto destroy = [this] { registration.reset(); };
    connect(registration.get(), &KirvXmppRegistration::formReceived, this, destroy);
    connect(registration.get(), &KirvXmppRegistration::failed, this, destroy);
    connect(registration.get(), &KirvXmppRegistration::succeeded, this, destroy);
    if (signal == "succeeded") {
        submit();
        server.link()->reply();
    } else {
        fetch();
        server.link()->arrive();
        if (signal == "form")
            server.link()->reply(plainForm);
        else if (signal == "failed")
            server.link()->refuse("not-allowed");
        else
            clock.advance(registration->timeout());
    }
    QVERIFY(!registration);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QTEST_GUILESS_MAIN(tst_XmppRegistrationEnds)
#include "tst_xmpp_registration_ends.moc"
