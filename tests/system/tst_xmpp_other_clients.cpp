// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_connection.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/servers/kirv_observing_xmpp_client.h"
#include "tests/support/servers/kirv_xmpp_profile.h"
#include "tools/servers/kirv_prosody_server.h"

#include <QBuffer>
#include <QColor>
#include <QImage>
#include <QSignalSpy>
#include <QTest>
#include <memory>

/// One account in several clients at a time, on a real server.
class tst_XmppOtherClients : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void twoWithTheSameSettingsStayOnLine();
    void comingBackTakesThePlaceOfTheOldSession();
    void messagesStayForClientsThatShowThem_data();
    void messagesStayForClientsThatShowThem();
    void theNewerPictureIsShownHere_data();
    void theNewerPictureIsShownHere();
    void aPictureThatWasChosenHereIsPublished();

private:
    KirvLogin login(const QString &id = "romeo@localhost") const;
    void logIn(KirvXmppConnection &connection) const;
    QByteArray makePicture(QColor colour, const QString &path = QString()) const;

    const KirvPresence available { "available", "Available", QString(), QString() };
    std::unique_ptr<KirvProsodyServer> server;
};

void tst_XmppOtherClients::init()
{
    KirvProsodyServer::Options options;
    options.enabledModules = QStringList { "pep" };
    server = std::make_unique<KirvProsodyServer>(options);
    QVERIFY(KirvXmppProfile::start(*server, { "romeo", "juliet" }));
}

void tst_XmppOtherClients::cleanup()
{
    server.reset();
}

KirvLogin tst_XmppOtherClients::login(const QString &id) const
{
    KirvXmppSettings settings;
    settings.server = server->host();
    settings.port = server->port();
    settings.certificatePath = server->certificatePath();
    return { id, "secret", settings.toFields() };
}

void tst_XmppOtherClients::logIn(KirvXmppConnection &connection) const
{
    connection.logIn(login(), available);
    QTRY_COMPARE_WITH_TIMEOUT(connection.state(), KirvConnection::Online, kirvPatience);
}

void tst_XmppOtherClients::twoWithTheSameSettingsStayOnLine()
{
    KirvXmppConnection one, other;
    QSignalSpy failed(&one, &KirvConnection::failed);
    logIn(one);
    logIn(other);
    QTRY_COMPARE_WITH_TIMEOUT(server->sessions().size(), 2, kirvPatience);
    QVERIFY(one.isLoggedIn() && other.isLoggedIn());
    QCOMPARE(failed.size(), 0);
}

void tst_XmppOtherClients::comingBackTakesThePlaceOfTheOldSession()
{
    KirvXmppConnection connection;
    logIn(connection);
    const QStringList before = server->sessions();
    connection.drop();
    logIn(connection);
    QTRY_COMPARE_WITH_TIMEOUT(server->sessions(), before, kirvPatience);
}

void tst_XmppOtherClients::messagesStayForClientsThatShowThem_data()
{
    QTest::addColumn<QString>("when");
    QTest::newRow("nobody is on line") << "before";
    QTest::newRow("only this client is on line") << "meanwhile";
}

void tst_XmppOtherClients::messagesStayForClientsThatShowThem()
{
    QFETCH(QString, when);
    KirvObservingXmppClient juliet, romeo;
    QVERIFY(juliet.logIn(*server, "juliet"));
    if (when == "before")
        juliet.say("romeo@localhost", "Art thou not Romeo?");
    KirvXmppConnection connection;
    logIn(connection);
    QTRY_VERIFY_WITH_TIMEOUT(server->isOnline("romeo"), kirvPatience);
    if (when == "meanwhile")
        juliet.say("romeo@localhost", "Art thou not Romeo?");
    juliet.vCardOf("juliet@localhost"); // a reply to this comes after what was said
    connection.logOut();
    QTRY_COMPARE_WITH_TIMEOUT(connection.state(), KirvConnection::Offline, kirvPatience);

    QVERIFY(romeo.logIn(*server, "romeo"));
    QTRY_COMPARE_WITH_TIMEOUT(romeo.heard(), QStringList { "Art thou not Romeo?" }, kirvPatience);
}

QByteArray tst_XmppOtherClients::makePicture(QColor colour, const QString &path) const
{
    QImage image(40, 40, QImage::Format_RGB32);
    image.fill(colour);
    QByteArray data;
    QBuffer buffer(&data);
    buffer.open(QIODevice::WriteOnly);
    const bool isMade = image.save(&buffer, "PNG") && (path.isEmpty() || image.save(path));
    return isMade ? data : QByteArray();
}

void tst_XmppOtherClients::theNewerPictureIsShownHere_data()
{
    QTest::addColumn<bool>("isEvent");
    QTest::newRow("in the directory entry") << false;
    QTest::newRow("among the personal events") << true;
}

void tst_XmppOtherClients::theNewerPictureIsShownHere()
{
    QFETCH(bool, isEvent);
    KirvXmppProfile profile;
    QVERIFY2(profile.problem().isEmpty(), qPrintable(profile.problem()));
    KirvAccount *account = profile.logIn(*server);
    QVERIFY(account);
    QVERIFY(!makePicture(Qt::red, profile.folder() + "/red.png").isEmpty());
    account->setAvatar(profile.folder() + "/red.png");
    KirvObservingXmppClient other;
    QVERIFY(other.logIn(*server, "romeo"));
    QTRY_VERIFY_WITH_TIMEOUT(!other.vCardOf("romeo@localhost").photo().isEmpty(), kirvPatience);
    profile.goTo(account, "offline");
    KIRV_TRY_STATE(account, Offline);

    const QByteArray blue = makePicture(Qt::blue);
    if (isEvent) {
        QVERIFY(other.publishEvent(blue));
    } else {
        QXmppVCardIq card;
        card.setPhoto(blue);
        QVERIFY(other.publish(card));
    }
    const QByteArray before = other.vCardOf("romeo@localhost").photo();
    for (int i = 0; i < 2; ++i) { // the second time it is known
        profile.goTo(account, "available");
        KIRV_TRY_STATE(account, Online);
        QTRY_COMPARE_WITH_TIMEOUT(QImage(account->getCurrentAvatarPath()).pixelColor(20, 20), QColor(Qt::blue),
                                  kirvPatience);
        profile.goTo(account, "offline");
        KIRV_TRY_STATE(account, Offline);
        QCOMPARE(other.vCardOf("romeo@localhost").photo(), before);
    }
}

void tst_XmppOtherClients::aPictureThatWasChosenHereIsPublished()
{
    KirvObservingXmppClient other;
    QVERIFY(other.logIn(*server, "romeo") && other.publishEvent(makePicture(Qt::blue)));
    QXmppVCardIq card;
    card.setPhoto(makePicture(Qt::blue));
    QVERIFY(other.publish(card));

    KirvXmppProfile profile;
    QVERIFY2(profile.problem().isEmpty(), qPrintable(profile.problem()));
    QVERIFY(!makePicture(Qt::red, profile.folder() + "/red.png").isEmpty());
    KirvAccount *account = profile.createAccount(*server, "romeo");
    account->setAvatar(profile.folder() + "/red.png");
    const auto published = [&other] {
        const QImage photo = QImage::fromData(other.vCardOf("romeo@localhost").photo());
        return photo.isNull() ? QColor() : photo.pixelColor(20, 20);
    };
    for (int i = 0; i < 2; ++i) {
        profile.goTo(account, "available");
        KIRV_TRY_STATE(account, Online);
        QTRY_COMPARE_WITH_TIMEOUT(published(), QColor(Qt::red), kirvPatience);
        profile.goTo(account, "offline");
        KIRV_TRY_STATE(account, Offline);
        QCOMPARE(QImage(account->getCurrentAvatarPath()).pixelColor(20, 20), QColor(Qt::red));
    }
}

QTEST_MAIN(tst_XmppOtherClients)
#include "tst_xmpp_other_clients.moc"
