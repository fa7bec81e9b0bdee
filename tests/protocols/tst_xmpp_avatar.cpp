// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_avatar.h"
#include "protocols/xmpp/kirv_xmpp_directory.h"
#include "tests/protocols/fake_xmpp_link.h"

#include <QCryptographicHash>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

using Result = KirvXmppAvatar::Result;

namespace {

QByteArray hashOf(const QByteArray &picture)
{
    return picture.isEmpty() ? QByteArray() : QCryptographicHash::hash(picture, QCryptographicHash::Sha1).toHex();
}

QByteArray card(const QByteArray &picture)
{
    const QByteArray photo = "<PHOTO><BINVAL>" + picture.toBase64() + "</BINVAL></PHOTO>";
    return "<vCard xmlns='vcard-temp'>" + (picture.isEmpty() ? QByteArray() : photo) + "</vCard>";
}

QByteArray item(const QByteArray &node, const QByteArray &id, const QByteArray &content)
{
    return "<pubsub xmlns='http://jabber.org/protocol/pubsub'><items node='" + node + "'><item id='" + id + "'>"
        + content + "</item></items></pubsub>";
}

QByteArray metadata(const QByteArray &picture)
{
    return item("urn:xmpp:avatar:metadata", hashOf(picture),
                "<metadata xmlns='urn:xmpp:avatar:metadata'><info id='" + hashOf(picture) + "'/></metadata>");
}

} // namespace

/// The picture here and the ones on the server.
class tst_XmppAvatar : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void theNewerPictureWins_data();
    void theNewerPictureWins();
    void aChosenPictureIsPublishedWhateverTheServerHas_data();
    void aChosenPictureIsPublishedWhateverTheServerHas();
    void aRemovedPictureIsRemovedThere();
    void ourPictureFillsAnEmptyPlace();
    void ourOwnPublicationIsNoChange();
    void whatIsNotKnownChangesNothing_data();
    void whatIsNotKnownChangesNothing();
    void aPictureThatIsNotThereChangesNothing();
    void aDisabledPictureIsNone();

private:
    /// Synchronises with a server whose entry and whose events hold these pictures.
    Result synchronize(const KirvAvatar &avatar, const QByteArray &entry, const QByteArray &event);
    void replyToEvent(const QByteArray &event);
    QString makePicture();
    bool isRequested(const QByteArray &text) const
    {
        return !link->requests.isEmpty() && link->requests.first().payload.toByteArray().contains(text);
    }

    std::unique_ptr<FakeXmppLink> link;
    std::unique_ptr<KirvXmppDirectory> directory;
    std::unique_ptr<KirvXmppAvatar> picture;
    QTemporaryDir folder;
    Result result;
    int results = 0;
    const KirvXmppAvatar::Receiver receive = [this](const Result &received) {
        result = received;
        ++results;
    };
};

void tst_XmppAvatar::init()
{
    link = std::make_unique<FakeXmppLink>(KirvXmppLink::LogIn);
    link->arrive();
    directory = std::make_unique<KirvXmppDirectory>(*link);
    picture = std::make_unique<KirvXmppAvatar>(*link, *directory);
    result = Result();
    results = 0;
}

QString tst_XmppAvatar::makePicture()
{
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(Qt::red);
    const QString path = folder.filePath("red.png");
    return image.save(path) ? path : QString();
}

void tst_XmppAvatar::replyToEvent(const QByteArray &event)
{
    if (event.isEmpty())
        link->refuse("item-not-found");
    else
        link->reply(metadata(event));
}

Result tst_XmppAvatar::synchronize(const KirvAvatar &avatar, const QByteArray &entry, const QByteArray &event)
{
    picture->synchronize(avatar, receive);
    if (isRequested("urn:xmpp:avatar:metadata"))
        replyToEvent(event);
    while (isRequested("vcard-temp") && link->requests.first().type == QXmppIq::Get)
        link->reply(card(entry));
    if (isRequested("urn:xmpp:avatar:data") && isRequested(hashOf(event)))
        link->reply(item("urn:xmpp:avatar:data", hashOf(event),
                         "<data xmlns='urn:xmpp:avatar:data'>" + event.toBase64() + "</data>"));
    if (isRequested("BINVAL"))
        link->reply();
    return results == 1 && link->requests.isEmpty() ? result : Result { KirvFailure::Other, {}, {}, "unfinished", {} };
}

void tst_XmppAvatar::theNewerPictureWins_data()
{
    QTest::addColumn<QByteArray>("known");
    QTest::addColumn<QByteArray>("entry");
    QTest::addColumn<QByteArray>("event");
    QTest::addColumn<bool>("isReceived");
    QTest::addColumn<QByteArray>("image");
    const QByteArray old = hashOf("old") + '/', both = hashOf("old") + '/' + hashOf("old event"), none;
    const QByteArray in("new"), before("old");
    QTest::newRow("nothing known, nothing there") << none << none << none << false << none;
    QTest::newRow("nothing known, an entry") << none << in << none << true << in;
    QTest::newRow("nothing known, an event") << none << none << in << true << in;
    QTest::newRow("nothing known, the same at both") << none << in << in << true << in;
    QTest::newRow("nothing known, both") << none << before << in << true << in;
    QTest::newRow("nothing has changed") << old << before << none << false << none;
    QTest::newRow("nothing has changed at both") << both << before << QByteArray("old event") << false << none;
    QTest::newRow("another entry") << old << in << none << true << in;
    QTest::newRow("another entry, the old event") << both << in << QByteArray("old event") << true << in;
    QTest::newRow("another event") << both << before << in << true << in;
    QTest::newRow("a first event") << old << before << in << true << in;
    QTest::newRow("the server has copied ours to the events") << old << before << before << false << none;
    QTest::newRow("another one at both") << both << in << in << true << in;
    QTest::newRow("the entry was removed") << old << none << none << true << none;
    QTest::newRow("nothing before, nothing now") << QByteArray("/") << none << none << false << none;
    QTest::newRow("nothing before, an entry now") << QByteArray("/") << in << none << true << in;
}

void tst_XmppAvatar::theNewerPictureWins()
{
    QFETCH(QByteArray, known);
    QFETCH(QByteArray, entry);
    QFETCH(QByteArray, event);
    const Result last = synchronize({ QString(), known, false }, entry, event);
    QVERIFY2(!last.failure.isFailure(), last.image.constData());
    QTEST(last.kind == Result::Received, "isReceived");
    QVERIFY(last.kind != Result::Published);
    QTEST(last.image, "image");
    QCOMPARE(last.photo.data, entry);
    QCOMPARE(last.onServer, hashOf(entry) + '/' + hashOf(event));
    // The next log-in finds nothing new.
    init();
    QCOMPARE(int(synchronize({ "/taken.png", last.onServer, false }, entry, event).kind), int(Result::Unchanged));
}

void tst_XmppAvatar::aChosenPictureIsPublishedWhateverTheServerHas_data()
{
    QTest::addColumn<QByteArray>("known");
    QTest::addColumn<QByteArray>("entry");
    QTest::addColumn<QByteArray>("event");
    for (const char *known : { "", "/", "0123/4567" }) {
        QTest::addRow("known %s, nothing there", known) << QByteArray(known) << QByteArray() << QByteArray();
        QTest::addRow("known %s, an entry", known) << QByteArray(known) << QByteArray("new") << QByteArray();
        QTest::addRow("known %s, an event", known) << QByteArray(known) << QByteArray() << QByteArray("new");
    }
}

void tst_XmppAvatar::aChosenPictureIsPublishedWhateverTheServerHas()
{
    QFETCH(QByteArray, known);
    QFETCH(QByteArray, entry);
    QFETCH(QByteArray, event);
    const Result last = synchronize({ makePicture(), known, true }, entry, event);
    QCOMPARE(int(last.kind), int(Result::Published));
    QVERIFY(!last.failure.isFailure() && QImage::fromData(last.photo.data).size() == QSize(8, 8));
    // The older event does not replace it at the next log-in.
    init();
    const Result next = synchronize({ makePicture(), last.onServer, false }, last.photo.data, event);
    QCOMPARE(int(next.kind), int(Result::Unchanged));
}

void tst_XmppAvatar::aRemovedPictureIsRemovedThere()
{
    picture->synchronize({ QString(), hashOf("old") + '/', true }, receive);
    replyToEvent(QByteArray());
    link->reply(card("old"));
    QVERIFY(isRequested("vCard") && !isRequested("PHOTO"));
    link->reply();
    QCOMPARE(int(result.kind), int(Result::Published));
    QCOMPARE(result.onServer, QByteArray("/"));
}

void tst_XmppAvatar::ourPictureFillsAnEmptyPlace()
{
    const Result last = synchronize({ makePicture(), QByteArray(), false }, QByteArray(), QByteArray());
    QCOMPARE(int(last.kind), int(Result::Published));
    QVERIFY(!last.photo.isNull());
}

void tst_XmppAvatar::ourOwnPublicationIsNoChange()
{
    picture->publish({ makePicture(), QByteArray(), true }, receive);
    replyToEvent(QByteArray());
    link->reply(card("old"));
    link->reply();
    const QByteArray ours = result.photo.data;
    init();
    const Result next = synchronize({ makePicture(), hashOf(ours) + '/', false }, ours, QByteArray());
    QCOMPARE(int(next.kind), int(Result::Unchanged));
}

void tst_XmppAvatar::whatIsNotKnownChangesNothing_data()
{
    QTest::addColumn<QString>("condition");
    QTest::addColumn<bool>("isChosen");
    for (const char *condition : { "", "internal-server-error", "remote-server-timeout", "resource-constraint" }) {
        for (const bool isChosen : { false, true })
            QTest::addRow("%s, %d", condition, isChosen) << condition << isChosen;
    }
}

void tst_XmppAvatar::whatIsNotKnownChangesNothing()
{
    QFETCH(QString, condition);
    QFETCH(bool, isChosen);
    // The events are not known: the entry is not written, or an older event would count as a newer one later.
    picture->synchronize({ makePicture(), "0123/", isChosen }, receive);
    link->refuse(condition, KirvFailure::TimedOut);
    QCOMPARE(results, 1);
    QVERIFY(result.failure.isFailure() && link->requests.isEmpty());
    // The entry is not known.
    picture->synchronize({ makePicture(), "0123/", isChosen }, receive);
    replyToEvent(QByteArray());
    link->refuse(condition, KirvFailure::TimedOut);
    QCOMPARE(results, 2);
    QVERIFY(result.failure.isFailure() && link->requests.isEmpty());
}

void tst_XmppAvatar::aPictureThatIsNotThereChangesNothing()
{
    picture->synchronize({ "/ours.png", hashOf("old") + '/', false }, receive);
    replyToEvent("new");
    link->reply(card("old"));
    QVERIFY(isRequested("urn:xmpp:avatar:data"));
    link->refuse("item-not-found");
    QCOMPARE(int(result.kind), int(Result::Unchanged));
    QVERIFY(!result.failure.isFailure());
    QCOMPARE(result.photo.data, QByteArray("old")); // what is announced
}

void tst_XmppAvatar::aDisabledPictureIsNone()
{
    picture->synchronize({ QString(), hashOf("old") + '/', false }, receive);
    link->reply(item("urn:xmpp:avatar:metadata", "current", "<metadata xmlns='urn:xmpp:avatar:metadata'/>"));
    link->reply(card("old"));
    QCOMPARE(int(result.kind), int(Result::Unchanged));
}

QTEST_MAIN(tst_XmppAvatar)
#include "tst_xmpp_avatar.moc"
