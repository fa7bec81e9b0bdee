// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/xmpp/scripted_xmpp_server.h"
#include "tests/support/xmpp/xmpp_observer.h"
#include "tests/support/xmpp/xmpp_profile.h"
#include "tools/servers/kirv_prosody_server.h"

#include <QCryptographicHash>
#include <QImage>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>

Q_DECLARE_METATYPE(KirvField)

namespace {

const QString romeoAddress = "romeo@localhost";

QString valueOf(const QList<KirvField> &fields, const QString &id)
{
    for (const KirvField &field : fields) {
        if (field.getId() == id)
            return field.getText();
    }
    return "there is no such field";
}

} // namespace

/// The directory entry and the picture of an XMPP account, on a real server and as another client sees them.
class TestXmppDirectory : public QObject {
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
    QList<KirvField> request(const std::function<void()> &ask);
    QList<KirvField> fetch();
    QList<KirvField> publish(const Values &values);
    QString createPicture(const QString &name, const QSize &size, QRgb color) const;
    QByteArray seenHash() { return juliet->presenceOf(romeoAddress).photoHash(); }

    std::unique_ptr<XmppProfile> profile;
    std::unique_ptr<KirvProsodyServer> server;
    std::unique_ptr<XmppObserver> juliet;
    KirvAccount *romeo = nullptr;
};

void TestXmppDirectory::init()
{
    qRegisterMetaType<QList<KirvField>>("QList<KirvField>");
    profile = std::make_unique<XmppProfile>();
    QVERIFY2(profile->problem().isEmpty(), qPrintable(profile->problem()));
    server = std::make_unique<KirvProsodyServer>();
    QVERIFY2(server->start() && server->addUser("romeo", "secret") && server->addUser("juliet", "secret"),
             qPrintable(server->errorString()));
    juliet = std::make_unique<XmppObserver>();
    QVERIFY(juliet->logIn(*server, "juliet") && juliet->befriend(*server, "romeo"));
    romeo = profile->createAccount(*server, "romeo");
    profile->goTo(romeo, "available");
    TRY_STATE(romeo, Online);
    TRY(juliet->sees(romeoAddress));
}

void TestXmppDirectory::cleanup()
{
    juliet.reset();
    profile.reset();
    server->kill(); // an orderly end takes a second
    server.reset();
}

/// The one answer to what \a ask asks.
QList<KirvField> TestXmppDirectory::request(const std::function<void()> &ask)
{
    QSignalSpy answered(romeo->connection(), &KirvConnection::directoryAnswered);
    ask();
    if (answered.isEmpty() && !answered.wait(patience))
        qWarning("There is no answer.");
    return answered.value(0).value(0).value<QList<KirvField>>();
}

QList<KirvField> TestXmppDirectory::fetch()
{
    return request([this] { profile->protocol()->fetchPubdirInfo(romeo); });
}

QList<KirvField> TestXmppDirectory::publish(const Values &values)
{
    QList<KirvField> fields = profile->protocol()->getPubdirAccountFields();
    for (KirvField &field : fields) {
        if (values.contains(field.getId()))
            field.setText(values[field.getId()]);
    }
    return request([&] { profile->protocol()->publishPubdirInfo(romeo, fields); });
}

QString TestXmppDirectory::createPicture(const QString &name, const QSize &size, QRgb color) const
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    const QString path = profile->folder() + '/' + name;
    return image.save(path) ? path : QString();
}

void TestXmppDirectory::fieldsAreBlank()
{
    QStringList ids;
    for (const KirvField &field : profile->protocol()->getPubdirAccountFields()) {
        ids << field.getId();
        QVERIFY(field.getText().isEmpty() && !field.getLabel().isEmpty());
    }
    const QStringList expected { "fullname", "nickname", "birthday", "email",        "telephone",
                                 "town",     "country",  "web",      "organisation", "about" };
    QCOMPARE(ids, expected);
}

void TestXmppDirectory::thereIsNoEntryAtFirst()
{
    QSignalSpy failed(romeo->connection(), &KirvConnection::failed);
    QVERIFY(fetch().isEmpty());
    QVERIFY(failed.isEmpty());
}

void TestXmppDirectory::publishedEntryIsSeenByOthers()
{
    const QString about = QString::fromUtf8("Two lines\nwith <b>markup</b> & a ☕");
    const QList<KirvField> answer = publish({ { "fullname", "Romeo Montague" },
                                              { "nickname", "Romeo" },
                                              { "birthday", "1577-07-29" },
                                              { "email", "romeo@montague.example" },
                                              { "telephone", "+39 45 1234" },
                                              { "town", "Verona" },
                                              { "country", "Italy" },
                                              { "web", "https://montague.example" },
                                              { "organisation", "House of Montague" },
                                              { "about", about } });
    QCOMPARE(valueOf(answer, "about"), about);

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

void TestXmppDirectory::publishedEntryIsFetchedAgain()
{
    const QList<KirvField> published = publish({ { "fullname", "Romeo" }, { "town", "Verona" } });
    QCOMPARE(valueOf(published, "fullname"), QString("Romeo"));
    QCOMPARE(fetch(), published);
}

void TestXmppDirectory::whatHasNoFieldIsKept()
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
    XmppObserver otherClient;
    QVERIFY(otherClient.logIn(*server, "romeo") && otherClient.publish(card));

    QCOMPARE(valueOf(fetch(), "organisation"), QString("House of Montague"));
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

void TestXmppDirectory::emptyTextTakesTheElementAway()
{
    publish({ { "fullname", "Romeo" }, { "email", "romeo@montague.example" } });
    publish({ { "fullname", "Romeo" } });
    const QXmppVCardIq seen = juliet->vCardOf(romeoAddress);
    QCOMPARE(seen.fullName(), QString("Romeo"));
    QVERIFY(seen.emails().isEmpty());
}

void TestXmppDirectory::deletedEntryIsGone()
{
    publish({ { "fullname", "Romeo" } });
    QVERIFY(request([this] { profile->protocol()->deletePubdirInfo(romeo); }).isEmpty());
    QVERIFY(juliet->vCardOf(romeoAddress).fullName().isEmpty());
    QVERIFY(fetch().isEmpty());
}

void TestXmppDirectory::deletingKeepsThePicture()
{
    romeo->setAvatar(createPicture("red.png", QSize(32, 32), qRgb(255, 0, 0)));
    TRY(!seenHash().isEmpty());
    publish({ { "fullname", "Romeo" } });
    request([this] { profile->protocol()->deletePubdirInfo(romeo); });
    const QXmppVCardIq seen = juliet->vCardOf(romeoAddress);
    QVERIFY(seen.fullName().isEmpty());
    QVERIFY(!seen.photo().isEmpty());
}

void TestXmppDirectory::entryThatIsTooLongIsRefusedBeforeItIsSent()
{
    publish({ { "fullname", "Romeo" } });
    QSignalSpy failed(romeo->connection(), &KirvConnection::failed);
    QVERIFY(publish({ { "fullname", "Juliet" }, { "about", QString(1024 * 1024, 'x') } }).isEmpty());
    QCOMPARE(failed.size(), 1);
    QVERIFY(failed.first().first().value<KirvFailure>().text().contains("too long"));
    QVERIFY(romeo->isLoggedIn());
    QCOMPARE(juliet->vCardOf(romeoAddress).fullName(), QString("Romeo"));
}

void TestXmppDirectory::textThatCannotBeSentIsCleaned()
{
    publish({ { "fullname", QString("Ro") + QChar(2) + "me" + QChar(0xdc00) + "o" } });
    QCOMPARE(juliet->vCardOf(romeoAddress).fullName(), QString("Romeo"));
    QVERIFY(romeo->isLoggedIn());
}

void TestXmppDirectory::unknownFieldsAreIgnored()
{
    const QList<KirvField> fields { KirvField::textEdit("?", "shoe-size", "43", ""),
                                    KirvField::textEdit("", "fullname", "Romeo", "") };
    QCOMPARE(valueOf(request([&] { profile->protocol()->publishPubdirInfo(romeo, fields); }), "fullname"),
             QString("Romeo"));
    QCOMPARE(juliet->vCardOf(romeoAddress).fullName(), QString("Romeo"));
}

void TestXmppDirectory::requestOfAnAccountThatIsOffLineIsAnswered()
{
    profile->goTo(romeo, "offline");
    TRY_STATE(romeo, Offline);
    QVERIFY(fetch().isEmpty());
    QVERIFY(publish({ { "fullname", "Romeo" } }).isEmpty());
}

void TestXmppDirectory::refusedRequestIsAnswered()
{
    KirvProsodyServer::Options options;
    options.disabledModules << "vcard";
    KirvProsodyServer without(options);
    QVERIFY2(without.start() && without.addUser("romeo", "secret"), qPrintable(without.errorString()));
    XmppProfile::setValue(romeo, "port", QString::number(without.port()));
    XmppProfile::setValue(romeo, "certificate", without.certificatePath());
    romeo->connection()->reconnect(profile->protocol()->createPresenceWithId("available", ""));
    TRY(without.isOnline("romeo"));
    TRY_STATE(romeo, Online);

    QSignalSpy failed(romeo->connection(), &KirvConnection::failed);
    QVERIFY(publish({ { "fullname", "Romeo" } }).isEmpty());
    QCOMPARE(failed.size(), 1);
    QCOMPARE(failed.first().first().value<KirvFailure>().kind(), KirvFailure::NotSupported);
    QVERIFY(romeo->isLoggedIn());
}

/// The answers of a server that logs somebody in and answers no question after that.
ScriptedXmppServer::Script logInAndSayNothing()
{
    return [isLoggedIn = false](const QByteArray &received) mutable -> QByteArray {
        const QByteArray id = ScriptedXmppServer::attribute(received, "id");
        if (received.contains("<stream:stream"))
            return ScriptedXmppServer::stream(isLoggedIn ? "<bind xmlns='urn:ietf:params:xml:ns:xmpp-bind'/>"
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

void TestXmppDirectory::silentServerIsAnswered()
{
    ScriptedXmppServer silent(logInAndSayNothing());
    KirvConnection::Timing timing = romeo->connection()->timing();
    timing.requestTimeout = 200;
    romeo->connection()->setTiming(timing);
    XmppProfile::setValue(romeo, "port", QString::number(silent.serverPort()));
    XmppProfile::setValue(romeo, "encryption", "none");
    romeo->connection()->reconnect(profile->protocol()->createPresenceWithId("available", ""));
    TRY(silent.received().contains("<presence"));
    TRY_STATE(romeo, Online);

    QSignalSpy failed(romeo->connection(), &KirvConnection::failed);
    QVERIFY(fetch().isEmpty());
    QCOMPARE(failed.size(), 1);
    QCOMPARE(failed.first().first().value<KirvFailure>().kind(), KirvFailure::TimedOut);
    QVERIFY(romeo->isLoggedIn());
    // A question without an answer does not keep the next one from being asked: at log-in, and twice here.
    QVERIFY(fetch().isEmpty());
    TRY(silent.received().count("<vCard") == 3);
}

void TestXmppDirectory::serverGoneInTheMiddle()
{
    QSignalSpy answered(romeo->connection(), &KirvConnection::directoryAnswered);
    QList<KirvField> fields = profile->protocol()->getPubdirAccountFields();
    fields.first().setText("Romeo");
    profile->protocol()->publishPubdirInfo(romeo, fields);
    server->kill();
    QVERIFY(answered.wait(patience));
    QVERIFY(answered.first().first().value<QList<KirvField>>().isEmpty());

    QVERIFY2(server->start(), qPrintable(server->errorString()));
    TRY_STATE(romeo, Online);
    QCOMPARE(valueOf(publish({ { "fullname", "Romeo" } }), "fullname"), QString("Romeo"));
    QCOMPARE(answered.size(), 2);
}

void TestXmppDirectory::pictureIsSeenByOthers()
{
    romeo->setAvatar(createPicture("red.png", QSize(48, 48), qRgb(255, 0, 0)));
    TRY(!seenHash().isEmpty());
    const QXmppVCardIq seen = juliet->vCardOf(romeoAddress);
    QCOMPARE(QCryptographicHash::hash(seen.photo(), QCryptographicHash::Sha1), seenHash());
    QCOMPARE(seen.photoType(), QString("image/png"));
    const QImage image = QImage::fromData(seen.photo());
    QCOMPARE(image.size(), QSize(48, 48));
    QCOMPARE(image.pixel(24, 24), qRgb(255, 0, 0));
}

void TestXmppDirectory::pictureChosenOffLineIsPublishedAtLogIn()
{
    profile->goTo(romeo, "offline");
    TRY(!juliet->sees(romeoAddress));
    romeo->setAvatar(createPicture("red.png", QSize(48, 48), qRgb(255, 0, 0)));
    profile->goTo(romeo, "available");
    TRY(juliet->presenceOf(romeoAddress).vCardUpdateType() == QXmppPresence::VCardUpdateValidPhoto);
    QVERIFY(!juliet->vCardOf(romeoAddress).photo().isEmpty());
}

void TestXmppDirectory::samePictureIsNotPublishedAgain()
{
    romeo->setAvatar(createPicture("red.png", QSize(48, 48), qRgb(255, 0, 0)));
    TRY(!seenHash().isEmpty());
    const QByteArray hash = seenHash();
    profile->goTo(romeo, "offline");
    TRY(!juliet->sees(romeoAddress));
    profile->goTo(romeo, "available");
    TRY(seenHash() == hash);
}

void TestXmppDirectory::pictureTakenAwayIsRemoved()
{
    romeo->setAvatar(createPicture("red.png", QSize(48, 48), qRgb(255, 0, 0)));
    TRY(!seenHash().isEmpty());
    publish({ { "fullname", "Romeo" } });
    romeo->setAvatar(QString());
    TRY(juliet->presenceOf(romeoAddress).vCardUpdateType() == QXmppPresence::VCardUpdateNoPhoto);
    const QXmppVCardIq seen = juliet->vCardOf(romeoAddress);
    QVERIFY(seen.photo().isEmpty());
    QCOMPARE(seen.fullName(), QString("Romeo"));
}

void TestXmppDirectory::pictureOfAnotherClientIsAdvertised()
{
    profile->goTo(romeo, "offline");
    TRY(!juliet->sees(romeoAddress));
    QXmppVCardIq card;
    card.setPhoto("a picture");
    card.setPhotoType("image/png");
    XmppObserver otherClient;
    QVERIFY(otherClient.logIn(*server, "romeo") && otherClient.publish(card));
    otherClient.logOut();
    TRY(!juliet->sees(romeoAddress));

    profile->goTo(romeo, "available");
    TRY(seenHash() == QCryptographicHash::hash("a picture", QCryptographicHash::Sha1));
    QCOMPARE(juliet->vCardOf(romeoAddress).photo(), QByteArray("a picture"));
}

void TestXmppDirectory::largePictureIsMadeSmall()
{
    QImage noise(1200, 800, QImage::Format_ARGB32);
    QRandomGenerator generator(1);
    generator.fillRange(reinterpret_cast<quint32 *>(noise.bits()), int(noise.sizeInBytes() / 4));
    const QString path = profile->folder() + "/noise.png";
    QVERIFY(noise.save(path));
    romeo->setAvatar(path);
    TRY(!seenHash().isEmpty());
    const QXmppVCardIq seen = juliet->vCardOf(romeoAddress);
    QVERIFY2(seen.photo().size() < 100000, qPrintable(QString::number(seen.photo().size())));
    const QImage image = QImage::fromData(seen.photo());
    QCOMPARE(image.width(), 192);
    QCOMPARE(image.height(), 128);
    QVERIFY(romeo->isLoggedIn());
}

void TestXmppDirectory::pictureAndEntryAtOnceKeepEachOther()
{
    romeo->setAvatar(createPicture("red.png", QSize(48, 48), qRgb(255, 0, 0)));
    publish({ { "fullname", "Romeo" } });
    TRY(!seenHash().isEmpty());
    const QXmppVCardIq seen = juliet->vCardOf(romeoAddress);
    QVERIFY(!seen.photo().isEmpty());
    QCOMPARE(seen.fullName(), QString("Romeo"));
}

QTEST_MAIN(TestXmppDirectory)
#include "tst_xmpp_directory.moc"
