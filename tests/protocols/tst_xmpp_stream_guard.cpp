// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_stream_guard.h"

#include <QTest>

using Guard = KirvXmppStreamGuard;
using Piece = KirvXmppStreamGuard::Piece;

namespace {

const QByteArray header = "<stream:stream xmlns='jabber:client' xmlns:stream='http://etherx.jabber.org/streams'>";

bool isNoMessage(const KirvXmppStanzaStart &start)
{
    return start.name != "message";
}

/// The pieces as one text: stanzas as they are, the rest by its kind. The bytes come in chunks of \a size.
QByteArray piecesOf(Guard &guard, const QByteArray &bytes, int size = 32768)
{
    static const char *const names[] = { "", "header", "", "oversized", "end", "broken" };
    QByteArrayList pieces;
    for (int i = 0; i < bytes.size(); i += size) {
        guard.append(bytes.mid(i, size));
        for (Piece piece = guard.take(); piece.kind != Piece::Nothing; piece = guard.take())
            pieces << (piece.kind == Piece::Stanza ? piece.text : QByteArray(names[piece.kind]));
    }
    return pieces.join('|');
}

/// The pieces behind the header.
QByteArray piecesAfterHeader(const QByteArray &bytes, int size = 32768)
{
    Guard guard(isNoMessage);
    return piecesOf(guard, header + bytes, size).mid(int(qstrlen("header|")));
}

QByteArray nested(const QByteArray &name, int depth)
{
    return '<' + name + '>' + QByteArray("<a>").repeated(depth - 1) + QByteArray("</a>").repeated(depth - 1) + "</"
        + name + '>';
}

} // namespace

/// What of a server's stream reaches the library.
class tst_XmppStreamGuard : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void stanzasAreKeptOrDropped_data();
    void stanzasAreKeptOrDropped();
    void headerIsGiven_data();
    void headerIsGiven();
    void startIsRead();
    void largeUsedStanzaIsDroppedAlone_data();
    void largeUsedStanzaIsDroppedAlone();
    void largeUnusedStanzaDoesNoHarm_data();
    void largeUnusedStanzaDoesNoHarm();
    void unusedStanzaIsNotCollected();
    void violationBreaksTheStream_data();
    void violationBreaksTheStream();
    void whatIsNoStreamIsKnown_data();
    void whatIsNoStreamIsKnown();
    void nothingFollowsAViolation();
    void streamStartsOverAfterTheLogIn();
    void nothingIsReadBetweenTheAgreementAndEncryption();
    void resetForgetsEverything();
};

void tst_XmppStreamGuard::stanzasAreKeptOrDropped_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("pieces");
    const auto kept = [](const char *name, const QByteArray &bytes) { QTest::newRow(name) << bytes << bytes; };
    const auto dropped = [](const char *name, const QByteArray &bytes) {
        QTest::newRow(name) << bytes << QByteArray();
    };
    kept("empty element", "<iq/>");
    kept("empty element with a space", "<iq />");
    kept("element with content", "<iq id='1'><a><b/></a>text</iq>");
    kept("element with a prefix", "<stream:features><a/></stream:features>");
    kept("both quotes", "<iq a='\"' b=\"'\"/>");
    kept("signs in a value", "<iq a='x>y/ = z'/>");
    kept("space in tags", "<iq\n a = 'b'\t></iq\r\n>");
    kept("references", "<iq a='&lt;&#65;'>&amp;&quot;&apos;&gt;&#x1F600;</iq>");
    kept("character data", "<iq><![CDATA[<a>&b;]]]]><![CDATA[></iq>]]></iq>");
    kept("letters beyond ASCII", QByteArray::fromHex("3c69713ec3a9e282acf09f98803c2f69713e"));
    kept("names beyond ASCII", QByteArray::fromHex("3c69713e3cc3a92f3e3c2f69713e"));
    kept("element named as its parent", "<iq><iq><iq/></iq></iq>");
    dropped("message", "<message from='a@b'><body>Hello</body></message>");
    dropped("message without content", "<message/>");
    dropped("space", " \r\n\t ");
    QTest::newRow("message between") << QByteArray("<iq/> <message><iq/></message>\n<iq a='b'/>")
                                     << QByteArray("<iq/>|<iq a='b'/>");
    QTest::newRow("end") << QByteArray("<iq/></stream:stream>") << QByteArray("<iq/>|end");
    QTest::newRow("after the end") << QByteArray("</stream:stream><iq/>") << QByteArray("end");
}

/// In pieces of every size, as a network delivers them.
void tst_XmppStreamGuard::stanzasAreKeptOrDropped()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QByteArray, pieces);
    for (int size = 1; size <= header.size() + bytes.size(); ++size)
        QCOMPARE(piecesAfterHeader(bytes, size), pieces);
}

void tst_XmppStreamGuard::headerIsGiven_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::newRow("alone") << QByteArray();
    QTest::newRow("declaration") << QByteArray("<?xml version='1.0'?>");
    QTest::newRow("declaration and space") << QByteArray("<?xml version=\"1.0\" encoding='UTF-8' ?>\n");
    QTest::newRow("space") << QByteArray("\n");
}

void tst_XmppStreamGuard::headerIsGiven()
{
    QFETCH(QByteArray, before);
    for (int size = 1; size < before.size() + header.size(); ++size) {
        Guard guard(isNoMessage);
        Piece piece;
        for (int i = 0; i < before.size() + header.size(); i += size) {
            QCOMPARE(int(piece.kind), int(Piece::Nothing));
            guard.append((before + header).mid(i, size));
            piece = guard.take();
        }
        QCOMPARE(int(piece.kind), int(Piece::Header));
        QCOMPARE(piece.text, header);
    }
}

void tst_XmppStreamGuard::startIsRead()
{
    Guard guard(isNoMessage);
    guard.append(header + "<iq from='a&amp;b@c/&#x20AC;' type=\"result\" xml:id='no' id='1'><a from='x' id='2'/></iq>");
    QCOMPARE(int(guard.take().kind), int(Piece::Header));
    const Piece piece = guard.take();
    QCOMPARE(piece.start.name, QByteArray("iq"));
    QCOMPARE(piece.start.from, QByteArray("a&b@c/\xe2\x82\xac"));
    QCOMPARE(piece.start.type, QByteArray("result"));
    QCOMPARE(piece.start.id, QByteArray("1"));
}

void tst_XmppStreamGuard::largeUsedStanzaIsDroppedAlone_data()
{
    QTest::addColumn<QByteArray>("stanza");
    QTest::addColumn<bool>("isOversized");
    const int text = Guard::longestUsed - int(qstrlen("<iq></iq>"));
    QTest::newRow("as deep as allowed") << nested("iq", Guard::deepestUsed) << false;
    QTest::newRow("deeper") << nested("iq", Guard::deepestUsed + 1) << true;
    QTest::newRow("as long as allowed") << "<iq>" + QByteArray(text, 'x') + "</iq>" << false;
    QTest::newRow("longer") << "<iq>" + QByteArray(text + 1, 'x') + "</iq>" << true;
    QTest::newRow("as many elements as allowed")
        << "<iq>" + QByteArray("<a/>").repeated(Guard::mostNodes - 1) + "</iq>" << false;
    QTest::newRow("more elements") << "<iq>" + QByteArray("<a/>").repeated(Guard::mostNodes) + "</iq>" << true;
    QTest::newRow("as many references as allowed")
        << "<iq a='" + QByteArray("&lt;").repeated(Guard::mostReferences) + "'/>" << false;
    QTest::newRow("more references") << "<iq><a b='&lt;'>" + QByteArray("&#9;").repeated(Guard::mostReferences)
            + "</a></iq>" << true;
    QTest::newRow("more attributes") << "<iq><a" + QByteArray(" b='c'").repeated(Guard::mostNodes) + "/></iq>" << true;
}

void tst_XmppStreamGuard::largeUsedStanzaIsDroppedAlone()
{
    QFETCH(QByteArray, stanza);
    QFETCH(bool, isOversized);
    const QByteArray pieces = piecesAfterHeader(stanza + "<iq/>");
    QVERIFY(pieces == (isOversized ? QByteArray("oversized") : stanza) + "|<iq/>");
}

void tst_XmppStreamGuard::largeUnusedStanzaDoesNoHarm_data()
{
    QTest::addColumn<QByteArray>("stanza");
    QTest::newRow("depth 9,000") << nested("message", 9000);
    QTest::newRow("depth 500,000") << nested("message", 500000);
    QTest::newRow("many elements") << "<message>" + QByteArray("<a/>").repeated(1000000) + "</message>";
    QTest::newRow("long text") << "<message>" + QByteArray(Guard::longestStanza - 100, 'x') + "</message>";
    QTest::newRow("long value") << "<message a='" + QByteArray(Guard::longestStanza - 100, 'x') + "'/>";
    QTest::newRow("long name") << "<message><" + QByteArray(8000000, 'x') + "/></message>";
    QTest::newRow("used, if it were not so long") << "<iq a='" + QByteArray(Guard::longestUsed, 'x') + "'/>";
}

void tst_XmppStreamGuard::largeUnusedStanzaDoesNoHarm()
{
    QFETCH(QByteArray, stanza);
    QCOMPARE(piecesAfterHeader(stanza + "<iq/>"), QByteArray("<iq/>"));
}

void tst_XmppStreamGuard::unusedStanzaIsNotCollected()
{
    Guard guard(isNoMessage);
    piecesOf(guard, header + "<message>");
    for (int i = 0; i < 100; ++i) {
        QCOMPARE(piecesOf(guard, QByteArray(32768, 'x')), QByteArray());
        QVERIFY(guard.size() == 0);
    }
    QCOMPARE(piecesOf(guard, "</message><iq/>"), QByteArray("<iq/>"));
}

void tst_XmppStreamGuard::violationBreaksTheStream_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("violation");
    const auto malformed = [](const char *name, const QByteArray &bytes) {
        QTest::newRow(name) << bytes << int(Guard::Malformed);
    };
    const auto forbidden = [](const char *name, const QByteArray &bytes) {
        QTest::newRow(name) << bytes << int(Guard::Forbidden);
    };
    const auto tooLarge = [](const char *name, const QByteArray &bytes) {
        QTest::newRow(name) << bytes << int(Guard::TooLarge);
    };
    malformed("wrong end tag", "<message><a></message>");
    malformed("wrong end tag of the stream", "</message>");
    malformed("end tag without a name", "<message></>");
    malformed("end tag with an attribute", "<message></message a='b'>");
    malformed("text between stanzas", "<iq/>hello");
    malformed("reference between stanzas", "<iq/>&#32;");
    malformed("NUL", QByteArray("<message>\0</message>", 20));
    malformed("NUL between stanzas", QByteArray("<iq/>\0", 6));
    malformed("NUL in a value", QByteArray("<message a='\0'/>", 16));
    malformed("control character", "<message>\x1b</message>");
    malformed("referenced NUL", "<message>&#0;</message>");
    malformed("referenced surrogate", "<message>&#xD800;</message>");
    malformed("undeclared entity", "<message>&nbsp;</message>");
    malformed("reference without an end", "<message>& b</message>");
    malformed("empty reference", "<message>&;</message>");
    malformed("value without quotes", "<message a=b/>");
    malformed("attribute without a value", "<message a/>");
    malformed("attributes without a space", "<message a='b'c='d'/>");
    malformed("bracket in a value", "<message a='<'/>");
    malformed("bracket in a tag", "<message <");
    malformed("slash in a tag", "<message / >");
    malformed("no name", "< message/>");
    malformed("number as a name", "<1/>");
    malformed("wrong encoding", "<message>\xe9</message>");
    malformed("cut encoding", "<message>\xe2\x82</message>");
    malformed("overlong encoding", "<message>\xc0\x80</message>");
    malformed("encoded surrogate", "<message>\xed\xa0\x80</message>");
    malformed("character data between stanzas", "<![CDATA[x]]><iq/>");
    forbidden("document type", "<!DOCTYPE a [<!ENTITY b 'c'>]>");
    forbidden("document type in a stanza", "<message><!DOCTYPE a></message>");
    forbidden("entity", "<message><!ENTITY a 'b'></message>");
    forbidden("comment", "<message><!-- a --></message>");
    forbidden("processing instruction", "<message><?a b?></message>");
    forbidden("second declaration", "<?xml version='1.0'?>");
    tooLarge("stanza without end", "<message>" + QByteArray(Guard::longestStanza, 'x'));
    tooLarge("tag without end", "<message a='" + QByteArray(Guard::longestStanza, 'x'));
    tooLarge("name without end", '<' + QByteArray(Guard::longestStanza + 1, 'x'));
    tooLarge("depth without end", "<message>" + QByteArray("<a>").repeated(Guard::longestStanza / 3));
    tooLarge("depth outside of stanzas", QByteArray("<a>").repeated(9000));
    tooLarge("features without end", "<stream:features>" + QByteArray(Guard::longestUsed, 'x'));
    tooLarge("many features", "<stream:features>" + QByteArray("<a/>").repeated(Guard::mostNodes));
}

void tst_XmppStreamGuard::violationBreaksTheStream()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, violation);
    Guard guard(isNoMessage);
    QVERIFY(piecesOf(guard, header + bytes).endsWith("broken"));
    QCOMPARE(int(guard.violation()), violation);
    if (bytes.size() > 1000)
        return;
    Guard slow(isNoMessage);
    QVERIFY(piecesOf(slow, header + bytes, 1).endsWith("broken"));
    QCOMPARE(int(slow.violation()), violation);
}

void tst_XmppStreamGuard::whatIsNoStreamIsKnown_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("another protocol") << QByteArray("HTTP/1.1 400 Bad Request\r\n");
    QTest::newRow("TLS") << QByteArray::fromHex("15030300020246");
    QTest::newRow("another document") << QByteArray("<html>");
    QTest::newRow("no content") << QByteArray("<stream:stream/>");
    QTest::newRow("end tag") << QByteArray("</stream:stream>");
    QTest::newRow("document type") << QByteArray("<?xml version='1.0'?><!DOCTYPE a>");
    QTest::newRow("two declarations") << QByteArray("<?xml version='1.0'?><?xml version='1.0'?>");
    QTest::newRow("another instruction") << QByteArray("<?xsl version='1.0'?>");
    QTest::newRow("endless tag") << "<stream:stream a='" + QByteArray(Guard::longestTag, 'x');
}

void tst_XmppStreamGuard::whatIsNoStreamIsKnown()
{
    QFETCH(QByteArray, bytes);
    Guard guard(isNoMessage);
    QCOMPARE(piecesOf(guard, bytes), QByteArray("broken"));
    QCOMPARE(int(guard.violation()), int(Guard::NoStream));
}

void tst_XmppStreamGuard::nothingFollowsAViolation()
{
    Guard guard(isNoMessage);
    QCOMPARE(piecesOf(guard, header + "<iq/></wrong><iq/>"), QByteArray("header|<iq/>|broken"));
    QCOMPARE(piecesOf(guard, "<iq/>"), QByteArray());
    QCOMPARE(guard.size(), 0);
}

void tst_XmppStreamGuard::streamStartsOverAfterTheLogIn()
{
    const QByteArray bytes = header + "<success a='b'/>" + "<?xml version='1.0'?>" + header + "<iq/></stream:stream>";
    for (int size = 1; size < bytes.size(); ++size) {
        Guard guard(isNoMessage);
        QCOMPARE(piecesOf(guard, bytes, size), QByteArray("header|<success a='b'/>|header|<iq/>|end"));
    }
}

/// What was sent in clear would count as encrypted.
void tst_XmppStreamGuard::nothingIsReadBetweenTheAgreementAndEncryption()
{
    Guard guard(isNoMessage);
    QCOMPARE(piecesOf(guard, header + "<proceed/>\n"), QByteArray("header|<proceed/>"));
    guard.reset();
    QCOMPARE(piecesOf(guard, header + "<iq/>"), QByteArray("header|<iq/>"));

    guard.reset();
    QCOMPARE(piecesOf(guard, header + "<proceed/>" + header + "<iq/>"), QByteArray("header|<proceed/>|broken"));
    QCOMPARE(int(guard.violation()), int(Guard::Forbidden));
}

void tst_XmppStreamGuard::resetForgetsEverything()
{
    for (const QByteArray &before : { QByteArray("<iq a='"), QByteArray("<iq><a>"), QByteArray("<message>&am"),
                                      QByteArray("<message>\xe2"), QByteArray("</wrong>") }) {
        Guard guard(isNoMessage);
        piecesOf(guard, header + before);
        guard.reset();
        QCOMPARE(piecesOf(guard, header + "<iq/>"), QByteArray("header|<iq/>"));
        QCOMPARE(int(guard.violation()), int(Guard::None));
    }
}

QTEST_APPLESS_MAIN(tst_XmppStreamGuard)
#include "tst_xmpp_stream_guard.moc"
