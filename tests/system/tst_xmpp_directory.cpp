// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/kirv_field_texts.h"
#include "tests/support/servers/kirv_observing_xmpp_client.h"
#include "tests/support/servers/kirv_scripted_xmpp_server.h"
#include "tests/support/servers/kirv_xmpp_profile.h"
#include "tools/servers/kirv_prosody_server.h"

#include <QCryptographicHash>
#include <QImage>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>

using Values = KirvPluginProfile::Values;

namespace {

const QString romeoAddress = "romeo@localhost";

} // namespace

/// The directory entry and the picture of an XMPP account, on a real server and as another client sees them.
class tst_XmppDirectory : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void fieldsAreBlank();
    void thereIsNoEntryAtFirst();
    void publishedEntryIsSeenByOthers();
    void publishedEntryIsFetchedAgain();
    void whatHasNoFieldIsKept();
    void emptyTextTakesTheElementAway();
    void deletedEntryIsGone();
    void deletingKeepsThePicture();
    void entryThatIsTooLongIsRefusedBeforeItIsSent();
    void textThatCannotBeSentIsCleaned();
    void unknownFieldsAreIgnored();
    void requestOfAnAccountThatIsOffLineIsAnswered();
    void refusedRequestIsAnswered();
    void silentServerIsAnswered();
    void serverGoneInTheMiddle();

    void pictureIsSeenByOthers();
    void pictureChosenOffLineIsPublishedAtLogIn();
    void samePictureIsNotPublishedAgain();
    void pictureTakenAwayIsRemoved();
    void pictureOfAnotherClientIsAdvertised();
    void largePictureIsMadeSmall();
    void pictureAndEntryAtOnceKeepEachOther();

private:
    KirvDirectoryAnswer request(const std::function<void()> &send);
    KirvDirectoryAnswer fetch();
    KirvDirectoryAnswer publish(const Values &values);
    KirvDirectoryAnswer deleteEntry();
    QString createPicture(const QString &name, const QSize &size, QRgb color) const;
    QByteArray seenHash() { return juliet->presenceOf(romeoAddress).photoHash(); }

    std::unique_ptr<KirvXmppProfile> profile;
    std::unique_ptr<KirvProsodyServer> server;
    std::unique_ptr<KirvObservingXmppClient> juliet;
    KirvAccount *romeo = nullptr;
};

void tst_XmppDirectory::init()
{
    profile = std::make_unique<KirvXmppProfile>();
    QVERIFY2(profile->problem().isEmpty(), qPrintable(profile->problem()));
    server = std::make_unique<KirvProsodyServer>();
    QVERIFY(KirvXmppProfile::start(*server, { "romeo", "juliet" }));
    juliet = std::make_unique<KirvObservingXmppClient>();
    QVERIFY(juliet->logIn(*server, "juliet") && juliet->befriend(*server, "romeo"));
    romeo = profile->logIn(*server);
    QVERIFY(romeo);
    KIRV_TRY(juliet->sees(romeoAddress));
}

void tst_XmppDirectory::cleanup()
{
    juliet.reset();
    profile.reset();
    server->kill(); // an orderly end takes a second
    server.reset();
}

/// The one answer to what \a send requests.
KirvDirectoryAnswer tst_XmppDirectory::request(const std::function<void()> &send)
{
    KirvDirectoryAnswer answer;
    int answers = 0;
    QObject context;
    connect(&romeo->directory(), &KirvAccountDirectory::answered, &context,
            [&](KirvAccountDirectory::Operation, const KirvDirectoryAnswer &received) {
                answer = received;
                ++answers;
            });
    send();
    if (!QTest::qWaitFor([&] { return answers > 0; }, kirvPatience))
        qWarning("There is no answer.");
    return answer;
}

KirvDirectoryAnswer tst_XmppDirectory::fetch()
{
    return request([this] { profile->protocol()->fetchPubdirInfo(romeo); });
}

/// Publishes an entry of \a values alone in the place of the one that is fetched before, unless it is known.
KirvDirectoryAnswer tst_XmppDirectory::publish(const Values &values)
{
    if (!romeo->directory().isKnown())
        fetch();
    const QList<KirvField> fields = KirvPluginProfile::withValues(profile->protocol()->directoryFields(), values);
    return request([&] { profile->protocol()->publishPubdirInfo(romeo, fields); });
}

KirvDirectoryAnswer tst_XmppDirectory::deleteEntry()
{
    return request([this] { profile->protocol()->deletePubdirInfo(romeo); });
}

QString tst_XmppDirectory::createPicture(const QString &name, const QSize &size, QRgb color) const
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    const QString path = profile->folder() + '/' + name;
    return image.save(path) ? path : QString();
}

void tst_XmppDirectory::fieldsAreBlank()
{
    QStringList ids;
    for (const KirvField &field : profile->protocol()->directoryFields()) {
        ids << field.getId();
        QVERIFY(field.getText().isEmpty() && !field.getLabel().isEmpty());
    }
    const QStringList expected { "fullname", "nickname", "birthday", "email",        "telephone",
                                 "town",     "country",  "web",      "organisation", "about" };
    QCOMPARE(ids, expected);
}

void tst_XmppDirectory::thereIsNoEntryAtFirst()
{
    QSignalSpy failed(romeo->connection(), &KirvConnection::failed);
    QCOMPARE(fetch().outcome, KirvDirectoryAnswer::None);
    QVERIFY(failed.isEmpty());
}

void tst_XmppDirectory::publishedEntryIsSeenByOthers()
{
    const QString about = QString::fromUtf8("Two lines\nwith <b>markup</b> & a ☕");
    const KirvDirectoryAnswer answer = publish({ { "fullname", "Romeo Montague" },
                                                 { "nickname", "Romeo" },
                                                 { "birthday", "1577-07-29" },
                                                 { "email", "romeo@montague.example" },
                                                 { "telephone", "+39 45 1234" },
                                                 { "town", "Verona" },
                                                 { "country", "Italy" },
                                                 { "web", "https://montague.example" },
                                                 { "organisation", "House of Montague" },
                                                 { "about", about } });
    QCOMPARE(valueOf(answer.fields, "about"), about);

    const QXmppVCardIq seen = juliet->vCardOf(romeoAddress);
    QCOMPARE(seen.fullName(), QString("Romeo Montague"));
    QCOMPARE(seen.nickName(), QString("Romeo"));
    QCOMPARE(seen.birthday(), QDate(1577, 7, 29));
    QCOMPARE(seen.email(), QString("romeo@montague.example"));
    QCOMPARE(seen.phones().value(0).number(), QString("+39 45 1234"));
    QCOMPARE(seen.addresses().value(0).locality(), QString("Verona"));
    QCOMPARE(seen.addresses().value(0).country(), QString("Italy"));
    QCOMPARE(seen.url(), QString("https://montague.example"));
    QCOMPARE(seen.organization().organization(), QString("House of Montague"));
    QCOMPARE(seen.description(), about);
}

void tst_XmppDirectory::publishedEntryIsFetchedAgain()
{
    const KirvDirectoryAnswer published = publish({ { "fullname", "Romeo" }, { "town", "Verona" } });
    QCOMPARE(valueOf(published.fields, "fullname"), QString("Romeo"));
    QCOMPARE(fetch().fields, published.fields);
}

void tst_XmppDirectory::whatHasNoFieldIsKept()
{
    QXmppVCardIq card;
    card.setFirstName("Romeo");
    card.setPhoto("a picture");
    card.setPhotoType("image/png");
    QXmppVCardOrganization organization;
    organization.setOrganization("House of Montague");
    organization.setTitle("Heir");
    card.setOrganization(organization);
    QXmppVCardAddress address;
    address.setStreet("Via Cappello");
    card.setAddresses({ address });
    KirvObservingXmppClient otherClient;
    QVERIFY(otherClient.logIn(*server, "romeo") && otherClient.publish(card));

    QCOMPARE(valueOf(fetch().fields, "organisation"), QString("House of Montague"));
    publish({ { "town", "Verona" }, { "organisation", "" } });
    const QXmppVCardIq seen = juliet->vCardOf(romeoAddress);
    QCOMPARE(seen.firstName(), QString("Romeo"));
    QCOMPARE(seen.photo(), QByteArray("a picture"));
    QCOMPARE(seen.organization().title(), QString("Heir"));
    QVERIFY(seen.organization().organization().isEmpty());
    QCOMPARE(seen.addresses().size(), 1);
    QCOMPARE(seen.addresses().value(0).street(), QString("Via Cappello"));
    QCOMPARE(seen.addresses().value(0).locality(), QString("Verona"));
}

void tst_XmppDirectory::emptyTextTakesTheElementAway()
{
    publish({ { "fullname", "Romeo" }, { "email", "romeo@montague.example" } });
    publish({ { "fullname", "Romeo" } });
    const QXmppVCardIq seen = juliet->vCardOf(romeoAddress);
    QCOMPARE(seen.fullName(), QString("Romeo"));
    QVERIFY(seen.emails().isEmpty());
}

void tst_XmppDirectory::deletedEntryIsGone()
{
    publish({ { "fullname", "Romeo" } });
    QCOMPARE(deleteEntry().outcome, KirvDirectoryAnswer::None);
    QVERIFY(juliet->vCardOf(romeoAddress).fullName().isEmpty());
    QCOMPARE(fetch().outcome, KirvDirectoryAnswer::None);
}

void tst_XmppDirectory::deletingKeepsThePicture()
{
    romeo->setAvatar(createPicture("red.png", QSize(32, 32), qRgb(255, 0, 0)));
    KIRV_TRY(!seenHash().isEmpty());
    publish({ { "fullname", "Romeo" } });
    deleteEntry();
    const QXmppVCardIq seen = juliet->vCardOf(romeoAddress);
    QVERIFY(seen.fullName().isEmpty());
    QVERIFY(!seen.photo().isEmpty());
}

void tst_XmppDirectory::entryThatIsTooLongIsRefusedBeforeItIsSent()
{
    publish({ { "fullname", "Romeo" } });
    const KirvDirectoryAnswer answer = publish({ { "fullname", "Juliet" }, { "about", QString(1024 * 1024, 'x') } });
    QCOMPARE(answer.outcome, KirvDirectoryAnswer::Failed);
    QVERIFY(answer.failure.text().contains("too long"));
    QVERIFY(romeo->lastFailure().text().contains("too long"));
    QVERIFY(romeo->isOnline());
    QCOMPARE(juliet->vCardOf(romeoAddress).fullName(), QString("Romeo"));
}

void tst_XmppDirectory::textThatCannotBeSentIsCleaned()
{
    publish({ { "fullname", QString("Ro") + QChar(2) + "me" + QChar(0xdc00) + "o" } });
    QCOMPARE(juliet->vCardOf(romeoAddress).fullName(), QString("Romeo"));
    QVERIFY(romeo->isOnline());
}

void tst_XmppDirectory::unknownFieldsAreIgnored()
{
    const QList<KirvField> fields { KirvField::textEdit("?", "shoe-size", "43", ""),
                                    KirvField::textEdit("", "fullname", "Romeo", "") };
    fetch();
    const KirvDirectoryAnswer answer = request([&] { profile->protocol()->publishPubdirInfo(romeo, fields); });
    QCOMPARE(valueOf(answer.fields, "fullname"), QString("Romeo"));
    QCOMPARE(juliet->vCardOf(romeoAddress).fullName(), QString("Romeo"));
}

void tst_XmppDirectory::requestOfAnAccountThatIsOffLineIsAnswered()
{
    fetch();
    profile->goTo(romeo, "offline");
    KIRV_TRY_STATE(romeo, Offline);
    QCOMPARE(publish({ { "fullname", "Romeo" } }).outcome, KirvDirectoryAnswer::Failed);
    QCOMPARE(fetch().outcome, KirvDirectoryAnswer::Failed);
    QCOMPARE(deleteEntry().outcome, KirvDirectoryAnswer::Failed);
}

void tst_XmppDirectory::refusedRequestIsAnswered()
{
    KirvProsodyServer::Options options;
    options.disabledModules << "vcard";
    KirvProsodyServer without(options);
    QVERIFY(KirvXmppProfile::start(without));
    profile->setValue(romeo, "port", QString::number(without.port()));
    profile->setValue(romeo, "certificate", without.certificatePath());
    KIRV_TRY(without.isOnline("romeo"));
    KIRV_TRY_STATE(romeo, Online);

    const KirvDirectoryAnswer fetched = fetch();
    QCOMPARE(fetched.outcome, KirvDirectoryAnswer::Failed);
    QCOMPARE(fetched.failure.kind(), KirvFailure::NotSupported);
    QCOMPARE(deleteEntry().failure.kind(), KirvFailure::NotSupported);
    QVERIFY(romeo->isOnline());
}

/// The replies of a server that accepts the log-in and answers no request after that.
KirvScriptedXmppServer::Script logInAndSayNothing()
{
    return [isLoggedIn = false](const QByteArray &received) mutable -> QByteArray {
        const QByteArray id = KirvScriptedXmppServer::attribute(received, "id");
        if (received.contains("<stream:stream"))
            return KirvScriptedXmppServer::stream(isLoggedIn ? "<bind xmlns='urn:ietf:params:xml:ns:xmpp-bind'/>"
                                                             : "<mechanisms xmlns='urn:ietf:params:xml:ns:xmpp-sasl'>"
                                                               "<mechanism>PLAIN</mechanism></mechanisms>");
        if (received.contains("<auth")) {
            isLoggedIn = true;
            return "<success xmlns='urn:ietf:params:xml:ns:xmpp-sasl'/>";
        }
        if (received.contains("xmpp-bind"))
            return "<iq type='result' id='" + id
                + "'><bind xmlns='urn:ietf:params:xml:ns:xmpp-bind'><jid>romeo@localhost/Kirv</jid></bind></iq>";
        return QByteArray();
    };
}

void tst_XmppDirectory::silentServerIsAnswered()
{
    KirvScriptedXmppServer silent(logInAndSayNothing());
    KirvConnection::Timing timing = romeo->connection()->timing();
    timing.requestTimeout = 200;
    romeo->connection()->setTiming(timing);
    profile->setValue(romeo, "port", QString::number(silent.serverPort()));
    profile->setValue(romeo, "encryption", "none");
    KIRV_TRY(silent.received().contains("<presence"));
    KIRV_TRY_STATE(romeo, Online);

    QCOMPARE(fetch().failure.kind(), KirvFailure::TimedOut);
    QVERIFY(romeo->isOnline());
    // A request without a reply does not keep back the next one.
    QCOMPARE(fetch().failure.kind(), KirvFailure::TimedOut);
    KIRV_TRY(silent.received().count("<vCard") == 2);
}

void tst_XmppDirectory::serverGoneInTheMiddle()
{
    fetch();
    QSignalSpy answered(romeo->connection(), &KirvConnection::directoryAnswered);
    const QList<KirvField> fields =
        KirvPluginProfile::withValues(profile->protocol()->directoryFields(), { { "fullname", "Romeo" } });
    const KirvDirectoryAnswer answer = request([&] {
        profile->protocol()->publishPubdirInfo(romeo, fields);
        server->kill();
    });
    QCOMPARE(answer.outcome, KirvDirectoryAnswer::Failed);

    QVERIFY2(server->start(), qPrintable(server->errorString()));
    KIRV_TRY_STATE(romeo, Online);
    QCOMPARE(valueOf(publish({ { "fullname", "Romeo" } }).fields, "fullname"), QString("Romeo"));
    QCOMPARE(answered.size(), 2);
}

void tst_XmppDirectory::pictureIsSeenByOthers()
{
    romeo->setAvatar(createPicture("red.png", QSize(48, 48), qRgb(255, 0, 0)));
    KIRV_TRY(!seenHash().isEmpty());
    const QXmppVCardIq seen = juliet->vCardOf(romeoAddress);
    QCOMPARE(QCryptographicHash::hash(seen.photo(), QCryptographicHash::Sha1), seenHash());
    QCOMPARE(seen.photoType(), QString("image/png"));
    const QImage image = QImage::fromData(seen.photo());
    QCOMPARE(image.size(), QSize(48, 48));
    QCOMPARE(image.pixel(24, 24), qRgb(255, 0, 0));
}

void tst_XmppDirectory::pictureChosenOffLineIsPublishedAtLogIn()
{
    profile->goTo(romeo, "offline");
    KIRV_TRY(!juliet->sees(romeoAddress));
    romeo->setAvatar(createPicture("red.png", QSize(48, 48), qRgb(255, 0, 0)));
    profile->goTo(romeo, "available");
    KIRV_TRY(juliet->presenceOf(romeoAddress).vCardUpdateType() == QXmppPresence::VCardUpdateValidPhoto);
    QVERIFY(!juliet->vCardOf(romeoAddress).photo().isEmpty());
}

void tst_XmppDirectory::samePictureIsNotPublishedAgain()
{
    romeo->setAvatar(createPicture("red.png", QSize(48, 48), qRgb(255, 0, 0)));
    KIRV_TRY(!seenHash().isEmpty());
    const QByteArray hash = seenHash();
    profile->goTo(romeo, "offline");
    KIRV_TRY(!juliet->sees(romeoAddress));
    profile->goTo(romeo, "available");
    KIRV_TRY(seenHash() == hash);
}

void tst_XmppDirectory::pictureTakenAwayIsRemoved()
{
    romeo->setAvatar(createPicture("red.png", QSize(48, 48), qRgb(255, 0, 0)));
    KIRV_TRY(!seenHash().isEmpty());
    publish({ { "fullname", "Romeo" } });
    romeo->setAvatar(QString());
    KIRV_TRY(juliet->presenceOf(romeoAddress).vCardUpdateType() == QXmppPresence::VCardUpdateNoPhoto);
    const QXmppVCardIq seen = juliet->vCardOf(romeoAddress);
    QVERIFY(seen.photo().isEmpty());
    QCOMPARE(seen.fullName(), QString("Romeo"));
}

void tst_XmppDirectory::pictureOfAnotherClientIsAdvertised()
{
    profile->goTo(romeo, "offline");
    KIRV_TRY(!juliet->sees(romeoAddress));
    QXmppVCardIq card;
    card.setPhoto("a picture");
    card.setPhotoType("image/png");
    KirvObservingXmppClient otherClient;
    QVERIFY(otherClient.logIn(*server, "romeo") && otherClient.publish(card));
    otherClient.logOut();
    KIRV_TRY(!juliet->sees(romeoAddress));

    profile->goTo(romeo, "available");
    KIRV_TRY(seenHash() == QCryptographicHash::hash("a picture", QCryptographicHash::Sha1));
    QCOMPARE(juliet->vCardOf(romeoAddress).photo(), QByteArray("a picture"));
}

void tst_XmppDirectory::largePictureIsMadeSmall()
{
    QImage noise(1200, 800, QImage::Format_ARGB32);
    QRandomGenerator generator(1);
    generator.fillRange(reinterpret_cast<quint32 *>(noise.bits()), int(noise.sizeInBytes() / 4));
    const QString path = profile->folder() + "/noise.png";
    QVERIFY(noise.save(path));
    romeo->setAvatar(path);
    KIRV_TRY(!seenHash().isEmpty());
    const QXmppVCardIq seen = juliet->vCardOf(romeoAddress);
    QVERIFY2(seen.photo().size() < 100000, qPrintable(QString::number(seen.photo().size())));
    const QImage image = QImage::fromData(seen.photo());
    QCOMPARE(image.width(), 192);
    QCOMPARE(image.height(), 128);
    QVERIFY(romeo->isOnline());
}

void tst_XmppDirectory::pictureAndEntryAtOnceKeepEachOther()
{
    fetch(); // so that nothing is waited for between the two
    romeo->setAvatar(createPicture("red.png", QSize(48, 48), qRgb(255, 0, 0)));
    publish({ { "fullname", "Romeo" } });
    KIRV_TRY(!seenHash().isEmpty());
    const QXmppVCardIq seen = juliet->vCardOf(romeoAddress);
    QVERIFY(!seen.photo().isEmpty());
    QCOMPARE(seen.fullName(), QString("Romeo"));
}

QTEST_MAIN(tst_XmppDirectory)
#include "tst_xmpp_directory.moc"
