// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_tokenizer.h"

#include <QTest>

namespace {

/// The tokens of \a bytes up to the first error, which come in chunks of \a size.
QByteArray tokensOf(KirvXmppTokenizer &tokenizer, const QByteArray &bytes, int size)
{
    QByteArrayList tokens;
    for (int begin = 0; begin < bytes.size(); begin += size) {
        const QByteArray chunk = bytes.mid(begin, size);
        int position = 0;
        for (auto token = tokenizer.next(chunk, &position); token != KirvXmppTokenizer::Incomplete;
             token = tokenizer.next(chunk, &position)) {
            switch (token) {
            case KirvXmppTokenizer::Opened:
                tokens << '<' + tokenizer.name() + '>';
                break;
            case KirvXmppTokenizer::Empty:
                tokens << '<' + tokenizer.name() + "/>";
                break;
            case KirvXmppTokenizer::Closed:
                tokens << "</" + tokenizer.name() + '>';
                break;
            case KirvXmppTokenizer::Attribute:
                tokens << tokenizer.attributeName() + '=' + tokenizer.attributeValue();
                break;
            case KirvXmppTokenizer::Text:
                tokens << (tokenizer.isBlank() ? "blank" : "text");
                break;
            case KirvXmppTokenizer::Declaration:
                tokens << "declaration";
                break;
            default:
                tokens << (token == KirvXmppTokenizer::Malformed ? "malformed" : "forbidden");
                return tokens.join(' ');
            }
        }
    }
    return tokens.join(' ');
}

QByteArray tokensOf(const QByteArray &bytes)
{
    KirvXmppTokenizer tokenizer;
    return tokensOf(tokenizer, bytes, qMax(1, int(bytes.size())));
}

} // namespace

/// The XML of a stream, taken apart.
class tst_XmppTokenizer : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tokensAreFoundInPiecesOfEverySize_data();
    void tokensAreFoundInPiecesOfEverySize();
    void whatIsNoXmlIsFound_data();
    void whatIsNoXmlIsFound();
    void whatStreamsMustNotHoldIsForbidden_data();
    void whatStreamsMustNotHoldIsForbidden();

    void aTokenEndsWhereTheNextOneBegins();
    void longNamesAreCutAndToldApart();
    void longValuesAreCut_data();
    void longValuesAreCut();
    void referencesAreCounted();
    void theEndWithinATagIsKnown_data();
    void theEndWithinATagIsKnown();
    void aNewStreamStartsAfresh();
};

void tst_XmppTokenizer::tokensAreFoundInPiecesOfEverySize_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("tokens");
    const auto row = [](const char *name, const QByteArray &bytes, const QByteArray &tokens) {
        QTest::newRow(name) << bytes << tokens;
    };
    row("element", "<a></a>", "<a> </a>");
    row("empty element", "<a/><b />", "<a/> <b/>");
    row("prefix", "<x:a></x:a >", "<x:a> </x:a>");
    row("attributes", "<a b='c'\td = \"e\"\n/>", "b=c d=e <a/>");
    row("the other quote", "<a b='\"' c=\"'\">", "b=\" c=' <a>");
    row("signs in a value", "<a b='x>y/=z'>", "b=x>y/=z <a>");
    row("text", "<a>b > c</a>", "<a> text </a>");
    row("white space", " <a>\r\n\t</a>", "blank <a> blank </a>");
    row("references", "<a>&lt;</a>", "<a> text </a>");
    row("references in a value", "<a b='&lt;&gt;&amp;&quot;&apos;&#65;&#x42;'/>", "b=<>&\"'AB <a/>");
    row("a letter by its number", "<a b='&#x1F600;'/>", "b=\xf0\x9f\x98\x80 <a/>");
    row("letters beyond ASCII", "<\xc3\xa9 b='\xe2\x82\xac'>\xf0\x9f\x98\x80</\xc3\xa9>",
        "b=\xe2\x82\xac <\xc3\xa9> text </\xc3\xa9>");
    row("character data", "<a><![CDATA[</a>&b;]]></a>", "<a> text </a>");
    row("brackets in character data", "<a><![CDATA[]]]]></a>", "<a> text </a>");
    row("two sections", "<a><![CDATA[b]]><![CDATA[c]]></a>", "<a> text text </a>");
    row("declaration", "<?xml version='1.0'?><a>", "declaration <a>");
}

void tst_XmppTokenizer::tokensAreFoundInPiecesOfEverySize()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QByteArray, tokens);
    for (int size = 1; size <= bytes.size(); ++size) {
        KirvXmppTokenizer tokenizer;
        QCOMPARE(tokensOf(tokenizer, bytes, size), tokens);
    }
}

void tst_XmppTokenizer::whatIsNoXmlIsFound_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const auto row = [](const char *name, const QByteArray &bytes) { QTest::newRow(name) << bytes; };
    row("no name", "<>");
    row("space before the name", "< a>");
    row("digit before the name", "<1a>");
    row("end without a name", "</>");
    row("end with an attribute", "</a b='c'>");
    row("attribute without a value", "<a b>");
    row("value without quotes", "<a b=c>");
    row("no space between attributes", "<a b='c'd='e'>");
    row("bracket in a value", "<a b='<'>");
    row("space in the end", "<a/ >");
    row("unknown reference", "&eacute;");
    row("empty reference", "&;");
    row("reference without digits", "&#;");
    row("reference without hexadecimal digits", "&#x;");
    row("reference with a sign", "&#-65;");
    row("reference that is no number", "&#6x5;");
    row("reference that does not end", "&aaaaaaaaaaaaaaa");
    row("reference to nothing", "&#0;");
    row("reference to a control character", "&#1;");
    row("reference to half a character", "&#xD800;");
    row("reference beyond all characters", "&#x110000;");
    row("reference to no character", "&#xFFFE;");
    row("unknown reference in a value", "<a b='&nbsp;'>");
    row("control character", "\x01");
    row("null character", QByteArray(1, '\0'));
    row("control character in a value", "<a b='\x02'>");
    row("control character in character data", "<![CDATA[\x02]]>");
    row("continuation without a beginning", "\x80");
    row("beginning without a continuation", "\xc3<");
    row("byte that no character has", "\xff");
    row("ASCII in two bytes", "\xc0\xaf");
    row("two bytes in three", "\xe0\x80\xaf");
    row("three bytes in four", "\xf0\x8f\xbf\xbf");
    row("half a character", "\xed\xa0\x80");
    row("beyond all characters in bytes", "\xf4\x90\x80\x80");
}

void tst_XmppTokenizer::whatIsNoXmlIsFound()
{
    QFETCH(QByteArray, bytes);
    const QByteArray tokens = tokensOf("<a>" + bytes + "</a>");
    QVERIFY2(tokens.startsWith("<a> ") && tokens.endsWith("malformed"), tokens.constData());
    QVERIFY2(!tokens.contains("</a>"), tokens.constData());
}

void tst_XmppTokenizer::whatStreamsMustNotHoldIsForbidden_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("comment") << QByteArray("<a><!-- b -->");
    QTest::newRow("document type") << QByteArray("<!DOCTYPE a>");
    QTest::newRow("entity") << QByteArray("<?xml version='1.0'?><!DOCTYPE a [<!ENTITY b 'c'>]>");
    QTest::newRow("unknown section") << QByteArray("<a><![INCLUDE[b]]>");
    QTest::newRow("processing instruction") << QByteArray("<?b c?>");
    QTest::newRow("style sheet") << QByteArray("<?xml-stylesheet href='a'?>");
    QTest::newRow("declaration that comes later") << QByteArray("<a><?xml version='1.0'?>");
    QTest::newRow("declaration after text") << QByteArray("b<?xml version='1.0'?>");
    QTest::newRow("second declaration") << QByteArray("<?xml version='1.0'?><?xml version='1.0'?>");
}

void tst_XmppTokenizer::whatStreamsMustNotHoldIsForbidden()
{
    QFETCH(QByteArray, bytes);
    const QByteArray tokens = tokensOf(bytes);
    QVERIFY2(tokens.endsWith("forbidden"), tokens.constData());
}

void tst_XmppTokenizer::aTokenEndsWhereTheNextOneBegins()
{
    const QByteArray bytes = "<a b='c'>text</a>";
    KirvXmppTokenizer tokenizer;
    int position = 0;
    QCOMPARE(tokenizer.next(bytes, &position), KirvXmppTokenizer::Attribute);
    QCOMPARE(position, int(bytes.indexOf('>')));
    QCOMPARE(tokenizer.next(bytes, &position), KirvXmppTokenizer::Opened);
    QCOMPARE(position, int(bytes.indexOf("text")));
    QCOMPARE(tokenizer.next(bytes, &position), KirvXmppTokenizer::Text);
    QCOMPARE(position, int(bytes.indexOf("</a>")));
    QCOMPARE(tokenizer.next(bytes, &position), KirvXmppTokenizer::Closed);
    QCOMPARE(position, int(bytes.size()));
    QCOMPARE(tokenizer.next(bytes, &position), KirvXmppTokenizer::Incomplete);
}

void tst_XmppTokenizer::longNamesAreCutAndToldApart()
{
    const QByteArray name(2 * KirvXmppTokenizer::longestName, 'x');
    KirvXmppTokenizer tokenizer;
    const auto hashOf = [&tokenizer](const QByteArray &tag) {
        int position = 0;
        tokenizer.next(tag, &position);
        return tokenizer.nameHash();
    };
    const quint32 hash = hashOf('<' + name + '>');
    QCOMPARE(tokenizer.name(), name.left(KirvXmppTokenizer::longestName));
    QCOMPARE(hashOf("</" + name + '>'), hash);
    QVERIFY(hashOf("</" + name + "y>") != hash);
    QCOMPARE(tokenizer.name(), name.left(KirvXmppTokenizer::longestName));
}

void tst_XmppTokenizer::longValuesAreCut_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("kept");
    const int longest = KirvXmppTokenizer::longestValue;
    QTest::newRow("as long as possible") << longest << longest;
    // One more, by which the caller sees it.
    QTest::newRow("longer") << longest + 2 << longest + 1;
    QTest::newRow("far longer") << 100 * longest << longest + 1;
}

void tst_XmppTokenizer::longValuesAreCut()
{
    QFETCH(int, length);
    KirvXmppTokenizer tokenizer;
    const QByteArray bytes = "<a b='" + QByteArray(length, 'x') + "' c='d'>";
    int position = 0;
    QCOMPARE(tokenizer.next(bytes, &position), KirvXmppTokenizer::Attribute);
    QTEST(int(tokenizer.attributeValue().size()), "kept");
    QCOMPARE(tokenizer.next(bytes, &position), KirvXmppTokenizer::Attribute);
    QCOMPARE(tokenizer.attributeValue(), QByteArray("d"));
}

void tst_XmppTokenizer::referencesAreCounted()
{
    KirvXmppTokenizer tokenizer;
    QCOMPARE(tokensOf(tokenizer, "<a b='&lt;&gt;'>&amp;</a>", 1), QByteArray("b=<> <a> text </a>"));
    QCOMPARE(tokenizer.takeReferences(), 3);
    QCOMPARE(tokenizer.takeReferences(), 0);
}

void tst_XmppTokenizer::theEndWithinATagIsKnown_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("isInTag");
    QTest::newRow("nothing") << QByteArray() << false;
    QTest::newRow("bracket") << QByteArray("<") << true;
    QTest::newRow("name") << QByteArray("<a") << true;
    QTest::newRow("value") << QByteArray("<a b='c") << true;
    QTest::newRow("reference in a value") << QByteArray("<a b='&am") << true;
    QTest::newRow("end tag") << QByteArray("<a></a") << true;
    QTest::newRow("character data") << QByteArray("<a><![CDATA[b") << true;
    QTest::newRow("tag") << QByteArray("<a>") << false;
    QTest::newRow("text") << QByteArray("<a>b") << false;
    QTest::newRow("reference in text") << QByteArray("<a>&am") << false;
}

void tst_XmppTokenizer::theEndWithinATagIsKnown()
{
    QFETCH(QByteArray, bytes);
    KirvXmppTokenizer tokenizer;
    tokensOf(tokenizer, bytes, 1);
    QTEST(tokenizer.isInTag(), "isInTag");
}

void tst_XmppTokenizer::aNewStreamStartsAfresh()
{
    KirvXmppTokenizer tokenizer;
    for (const char *before : { "<a b='", "<a>&#6", "<a><![CDATA[", "<a>\xe2\x82", "<?xml ", "<a></b" }) {
        tokensOf(tokenizer, before, 1);
        tokenizer.reset();
        QCOMPARE(tokensOf(tokenizer, "<?xml version='1.0'?><a>", 1), QByteArray("declaration <a>"));
    }
}

QTEST_APPLESS_MAIN(tst_XmppTokenizer)
#include "tst_xmpp_tokenizer.moc"
