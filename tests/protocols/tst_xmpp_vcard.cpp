// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_vcard.h"
#include "tests/protocols/xmpp_parsing.h"
#include "tests/support/kirv_field_texts.h"

#include <QDate>
#include <QImage>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

namespace {

/// An entry with all fields and much that the page has no field for.
const QByteArray fullEntry =
    "<vCard xmlns='vcard-temp'>"
    "<FN>Anna Example</FN><N><FAMILY>Example</FAMILY><GIVEN>Anna</GIVEN></N><NICKNAME>anna</NICKNAME>"
    "<BDAY>1990-02-28</BDAY><TEL><WORK/><VOICE/><NUMBER>123</NUMBER></TEL><TEL><HOME/><NUMBER>456</NUMBER></TEL>"
    "<EMAIL><INTERNET/><USERID>anna@example.org</USERID></EMAIL><URL>https://example.org/</URL>"
    "<ADR><HOME/><STREET>Long Street 1</STREET><LOCALITY>Town</LOCALITY><PCODE>12345</PCODE><CTRY>Country</CTRY></ADR>"
    "<ORG><ORGNAME>Organisation</ORGNAME><ORGUNIT>Unit</ORGUNIT></ORG><TITLE>Head</TITLE>"
    "<DESC>One\nTwo &lt;b&gt;</DESC><PHOTO><TYPE>image/png</TYPE><BINVAL>QUJD</BINVAL></PHOTO>"
    "<x:extra xmlns:x='urn:extra' x:kind='odd'>kept</x:extra></vCard>";

KirvXmppVCard card(const QByteArray &xml)
{
    return KirvXmppVCard(parsed(xml).documentElement());
}

QString valueOf(const KirvXmppVCard &card, const QString &id)
{
    return valueOf(card.toFields(), id);
}

QDomElement root(const KirvXmppVCard &card)
{
    return card.document().documentElement();
}

QString saved(const QImage &image, const QString &path)
{
    return image.save(path) ? path : QString();
}

QImage noise(int side)
{
    QImage image(side, side, QImage::Format_ARGB32);
    QRandomGenerator random(1);
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x)
            image.setPixel(x, y, random.generate());
    }
    return image;
}

} // namespace

/// A directory entry as fields and back.
class tst_XmppVcard : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void birthdaysAreDates_data();
    void birthdaysAreDates();
    void webPagesAreAddresses_data();
    void webPagesAreAddresses();

    void eachFieldHasItsPlace_data();
    void eachFieldHasItsPlace();
    void anEntryWithoutTextsHasNoFields_data();
    void anEntryWithoutTextsHasNoFields();
    void onlyTheGivenFieldsAreChanged();
    void whatHasNoFieldStays();
    void prefixesOfNamespacesMakeNoDifference();
    void anEmptyTextRemovesItsElementAlone();
    void unknownFieldsAreIgnored();
    void whatCannotBeSentIsLeftOut();
    void whatXmlWouldNotKeepIsNotStored();
    void clearingKeepsThePicture();
    void aPictureIsSetAndRemoved();
    void aPictureFileIsMadeSmall_data();
    void aPictureFileIsMadeSmall();
    void aFileWithoutAPictureGivesNone_data();
    void aFileWithoutAPictureGivesNone();
    void theSizeIsThatOfTheXml();
};

void tst_XmppVcard::eachFieldHasItsPlace_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("value");
    QTest::newRow("full name") << "fullname"
                               << "FN"
                               << "Anna Example";
    QTest::newRow("nickname") << "nickname"
                              << "NICKNAME"
                              << "anna";
    QTest::newRow("birthday") << "birthday"
                              << "BDAY"
                              << "1990-02-28";
    QTest::newRow("e-mail") << "email"
                            << "EMAIL/USERID"
                            << "anna@example.org";
    QTest::newRow("telephone") << "telephone"
                               << "TEL/NUMBER"
                               << "123";
    QTest::newRow("town") << "town"
                          << "ADR/LOCALITY"
                          << "Town";
    QTest::newRow("country") << "country"
                             << "ADR/CTRY"
                             << "Country";
    QTest::newRow("web page") << "web"
                              << "URL"
                              << "https://example.org/";
    QTest::newRow("organisation") << "organisation"
                                  << "ORG/ORGNAME"
                                  << "Organisation";
    QTest::newRow("about") << "about"
                           << "DESC"
                           << "One\nTwo <b>";
}

void tst_XmppVcard::eachFieldHasItsPlace()
{
    QFETCH(QString, id);
    QFETCH(QString, path);
    QFETCH(QString, value);
    const KirvXmppVCard full = card(fullEntry);
    QCOMPARE(valueOf(full, id), value);
    QCOMPARE(full.toFields().size(), KirvXmppVCard::blankFields().size());

    KirvXmppVCard made;
    made.setFields({ text(id, value) });
    QCOMPARE(textAt(root(made), path), value);
    QCOMPARE(root(made).childNodes().size(), 1);
    QCOMPARE(valueOf(KirvXmppVCard(root(made)), id), value);
}

void tst_XmppVcard::anEntryWithoutTextsHasNoFields_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::newRow("empty") << QByteArray("<vCard xmlns='vcard-temp'/>");
    QTest::newRow("blank elements") << QByteArray("<vCard xmlns='vcard-temp'><FN/><TEL><NUMBER/></TEL></vCard>");
    QTest::newRow("picture alone") << QByteArray(
        "<vCard xmlns='vcard-temp'><PHOTO><BINVAL>QUJD</BINVAL></PHOTO></vCard>");
    QTest::newRow("other namespace") << QByteArray("<vCard xmlns='urn:other'><FN>Anna</FN></vCard>");
}

void tst_XmppVcard::anEntryWithoutTextsHasNoFields()
{
    QFETCH(QByteArray, xml);
    QVERIFY(card(xml).toFields().isEmpty());
    QVERIFY(KirvXmppVCard(QDomElement()).toFields().isEmpty());
}

void tst_XmppVcard::onlyTheGivenFieldsAreChanged()
{
    const QList<KirvField> before = card(fullEntry).toFields();
    KirvXmppVCard changed = card(fullEntry);
    changed.setFields({ text("telephone", "789") });
    const QList<KirvField> after = changed.toFields();
    QCOMPARE(after.size(), before.size());
    for (int i = 0; i < before.size(); ++i) {
        const bool isTheOne = before.at(i).getId() == "telephone";
        QCOMPARE(after.at(i).getText(), isTheOne ? QString("789") : before.at(i).getText());
    }
}

void tst_XmppVcard::whatHasNoFieldStays()
{
    KirvXmppVCard changed = card(fullEntry);
    changed.setFields({ text("telephone", "789"), text("town", "Elsewhere"), text("fullname", "New Name") });
    QDomElement element = root(changed);
    QCOMPARE(textAt(element, "N/GIVEN"), QString("Anna"));
    QCOMPARE(textAt(element, "ADR/STREET"), QString("Long Street 1"));
    QCOMPARE(textAt(element, "ADR/PCODE"), QString("12345"));
    QCOMPARE(textAt(element, "ORG/ORGUNIT"), QString("Unit"));
    QCOMPARE(textAt(element, "TITLE"), QString("Head"));
    QVERIFY(!element.firstChildElement("TEL").firstChildElement("WORK").isNull());
    QCOMPARE(textAt(element.firstChildElement("TEL").nextSiblingElement("TEL"), "NUMBER"), QString("456"));
    QCOMPARE(textAt(element, "PHOTO/BINVAL"), QString("QUJD"));
    const QByteArray xml = changed.document().toByteArray(-1);
    QVERIFY2(xml.contains("urn:extra") && xml.contains("odd") && xml.contains("kept"), xml.constData());
}

void tst_XmppVcard::prefixesOfNamespacesMakeNoDifference()
{
    const QDomDocument entry = parsed("<v:vCard xmlns:v='vcard-temp'><v:FN>Ann</v:FN><v:ORG><v:ORGNAME>Post</v:ORGNAME>"
                                      "</v:ORG><x:OTHER xmlns:x='urn:x'>1</x:OTHER></v:vCard>");
    KirvXmppVCard read(entry.documentElement());
    QCOMPARE(valueOf(read, "fullname"), QString("Ann"));
    QCOMPARE(valueOf(read, "organisation"), QString("Post"));
    read.setFields({ text("fullname", "Bea") });
    QCOMPARE(root(read).childNodes().size(), 3);
    QCOMPARE(root(read).lastChildElement().namespaceURI(), QString("urn:x"));
}

void tst_XmppVcard::anEmptyTextRemovesItsElementAlone()
{
    KirvXmppVCard changed = card(fullEntry);
    changed.setFields({ text("town", ""), text("nickname", ""), text("web", "") });
    QVERIFY(root(changed).firstChildElement("NICKNAME").isNull());
    QVERIFY(root(changed).firstChildElement("URL").isNull());
    QVERIFY(root(changed).firstChildElement("ADR").firstChildElement("LOCALITY").isNull());
    QCOMPARE(textAt(root(changed), "ADR/CTRY"), QString("Country"));

    KirvXmppVCard alone;
    alone.setFields({ text("town", "Town") });
    alone.setFields({ text("town", "") });
    QVERIFY(!root(alone).hasChildNodes());
}

void tst_XmppVcard::unknownFieldsAreIgnored()
{
    KirvXmppVCard made;
    made.setFields({ text("shoe size", "43"), text("", "nothing") });
    QVERIFY(!root(made).hasChildNodes());
}

void tst_XmppVcard::whatCannotBeSentIsLeftOut()
{
    KirvXmppVCard made;
    made.setFields({ text("about", QString("a") + QChar(0x1) + "b\n" + QChar(0xd800) + QString::fromUtf8("c😀")) });
    QCOMPARE(valueOf(made, "about"), QString::fromUtf8("ab\nc😀"));
}

void tst_XmppVcard::whatXmlWouldNotKeepIsNotStored()
{
    KirvXmppVCard made;
    made.setFields({ text("about", "a\r\nb\rc"), text("town", " \t ") });
    QCOMPARE(valueOf(made, "about"), QString("a\nb\nc"));
    QCOMPARE(valueOf(made, "town"), QString());
}

void tst_XmppVcard::clearingKeepsThePicture()
{
    KirvXmppVCard cleared = card(fullEntry);
    cleared.clear();
    QCOMPARE(root(cleared).childNodes().size(), 1);
    QCOMPARE(cleared.photo().data, QByteArray("ABC"));
    QVERIFY(cleared.toFields().isEmpty());
}

void tst_XmppVcard::aPictureIsSetAndRemoved()
{
    KirvXmppVCard changed = card(fullEntry);
    changed.setPhoto({ "new", "image/jpeg" });
    QCOMPARE(changed.photo().data, QByteArray("new"));
    QCOMPARE(changed.photo().type, QString("image/jpeg"));
    QCOMPARE(changed.photo().hash().toHex(), QByteArray("c2a6b03f190dfb2b4aa91f8af8d477a9bc3401dc"));
    QCOMPARE(root(changed).elementsByTagName("PHOTO").size(), 1);

    changed.setPhoto({});
    QVERIFY(changed.photo().isNull() && changed.photo().hash().isEmpty());
    QVERIFY(root(changed).firstChildElement("PHOTO").isNull());
    QCOMPARE(valueOf(changed, "fullname"), QString("Anna Example"));
}

void tst_XmppVcard::aPictureFileIsMadeSmall_data()
{
    QTest::addColumn<QImage>("image");
    QTest::addColumn<QString>("type");
    QImage plain(1000, 500, QImage::Format_RGB32);
    plain.fill(Qt::blue);
    QTest::newRow("simple") << plain << "image/png";
    QTest::newRow("detailed") << noise(400) << "image/jpeg";
}

void tst_XmppVcard::aPictureFileIsMadeSmall()
{
    QFETCH(QImage, image);
    QFETCH(QString, type);
    QTemporaryDir folder;
    const KirvXmppPhoto photo = KirvXmppPhoto::fromFile(saved(image, folder.filePath("picture.png")));
    QCOMPARE(photo.type, type);
    const QImage sent = QImage::fromData(photo.data);
    QCOMPARE(qMax(sent.width(), sent.height()), 192);
    QVERIFY(photo.data.size() < KirvXmppVCard::largestSize / 2);
}

void tst_XmppVcard::aFileWithoutAPictureGivesNone_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("text") << QByteArray("no picture");
    QTest::newRow("drawing") << QByteArray("<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>");
    QTest::newRow("more than the limit") << QByteArray(11 * 1024 * 1024, 'x');
    QTest::newRow("empty") << QByteArray();
}

void tst_XmppVcard::aFileWithoutAPictureGivesNone()
{
    QFETCH(QByteArray, content);
    QTemporaryDir folder;
    QFile file(folder.filePath("picture"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    file.close();
    QVERIFY(KirvXmppPhoto::fromFile(file.fileName()).isNull());
    QVERIFY(KirvXmppPhoto::fromFile(folder.filePath("none")).isNull());
    QVERIFY(KirvXmppPhoto::fromFile("/dev/zero").isNull());
}

void tst_XmppVcard::theSizeIsThatOfTheXml()
{
    KirvXmppVCard made;
    made.setFields({ text("nickname", "anna") });
    QCOMPARE(made.size(),
             int(qstrlen("<vCard xmlns=\"vcard-temp\"><NICKNAME xmlns=\"vcard-temp\">anna</NICKNAME></vCard>")));
}

namespace {

/// Whether the form takes \a text for the field \a id; the field says what it takes.
bool isTaken(const QString &id, const QString &text)
{
    const QList<KirvField> fields = KirvXmppVCard::blankFields();
    for (const KirvField &field : fields) {
        if (field.getId() != id)
            continue;
        const QRegularExpression pattern(QRegularExpression::anchoredPattern(field.getPattern()));
        return !field.getToolTip().isEmpty() && !field.getPattern().isEmpty() && pattern.isValid()
            && pattern.match(text).hasMatch();
    }
    return false;
}

} // namespace

void tst_XmppVcard::birthdaysAreDates_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isDate");
    QTest::newRow("none") << "" << true;
    QTest::newRow("a day") << "1999-12-31" << true;
    QTest::newRow("leap day") << "2000-02-29" << true;
    QTest::newRow("leap day of another leap year") << "1996-02-29" << true;
    QTest::newRow("no leap year") << "1999-02-29" << false;
    QTest::newRow("no leap year in spite of 4") << "1900-02-29" << false;
    QTest::newRow("short month") << "1999-04-31" << false;
    QTest::newRow("month 13") << "1999-13-01" << false;
    QTest::newRow("month 0") << "1999-00-10" << false;
    QTest::newRow("day 0") << "1999-01-00" << false;
    QTest::newRow("other order") << "31.12.1999" << false;
    QTest::newRow("with a time") << "1999-12-31T00:00:00Z" << false;
    QTest::newRow("words") << "in spring" << false;
}

void tst_XmppVcard::birthdaysAreDates()
{
    QFETCH(QString, text);
    QFETCH(bool, isDate);
    QCOMPARE(isTaken("birthday", text), isDate);
    if (!text.isEmpty() && text.size() == 10)
        QCOMPARE(QDate::fromString(text, Qt::ISODate).isValid(), isDate); // the pattern agrees with the calendar
}

void tst_XmppVcard::webPagesAreAddresses_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isAddress");
    QTest::newRow("none") << "" << true;
    QTest::newRow("a host") << "https://example.org" << true;
    QTest::newRow("a page") << "http://www.example.org:8080/~juliet/?a=b#c" << true;
    QTest::newRow("capitals") << "HTTPS://Example.Org/" << true;
    QTest::newRow("letters of other scripts") << QString::fromUtf8("https://b\u00fccher.example/") << true;
    QTest::newRow("address in digits") << "http://[2001:db8::1]/" << true;
    QTest::newRow("no scheme") << "example.org" << false;
    QTest::newRow("no host") << "https://" << false;
    QTest::newRow("no host but a path") << "https:///page" << false;
    QTest::newRow("a blank") << "https://example.org/my page" << false;
    QTest::newRow("a script") << "javascript:alert(1)" << false;
    QTest::newRow("words") << "my page" << false;
}

void tst_XmppVcard::webPagesAreAddresses()
{
    QFETCH(QString, text);
    QFETCH(bool, isAddress);
    QCOMPARE(isTaken("web", text), isAddress);
}

QTEST_MAIN(tst_XmppVcard)
#include "tst_xmpp_vcard.moc"
