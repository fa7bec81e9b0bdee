// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/irc/kirv_irc_text.h"

#include <QTest>

/// Texts as one line of the protocol.
class tst_IrcText : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void textsBecomeOneLine_data();
    void textsBecomeOneLine();
    void aLineNeverExceedsItsBytes();
    void shownTextKeepsItsDirection_data();
    void shownTextKeepsItsDirection();
};

void tst_IrcText::textsBecomeOneLine_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<QString>("line");
    QTest::newRow("plain") << "hello there" << 100 << "hello there";
    QTest::newRow("empty") << "" << 100 << "";
    QTest::newRow("line breaks") << "a\r\nQUIT" << 100 << "a  QUIT";
    QTest::newRow("formatting and null") << QString("a") + QChar(2) + "b" + QChar(0) + "c" << 100 << "a b c";
    QTest::newRow("C1 controls") << QString("a") + QChar(0x85) + "b" << 100 << "a b";
    QTest::newRow("cut") << "abcdef" << 3 << "abc";
    QTest::newRow("nothing fits") << "abc" << 0 << "";
    QTest::newRow("two bytes each") << QString::fromUtf8("äöü") << 5 << QString::fromUtf8("äö");
    QTest::newRow("whole pairs") << QString::fromUtf8("😀😀") << 7 << QString::fromUtf8("😀");
    QTest::newRow("pair at the end") << QString::fromUtf8("a😀") << 2 << "a";
    QTest::newRow("pair alone") << QString::fromUtf8("😀") << 3 << "";
}

void tst_IrcText::textsBecomeOneLine()
{
    QFETCH(QString, text);
    QFETCH(int, maximum);
    QTEST(kirvIrcLine(text, maximum), "line");
}

void tst_IrcText::aLineNeverExceedsItsBytes()
{
    const QString text = QString::fromUtf8("aä€😀\n").repeated(20);
    for (int maximum = 0; maximum < 60; ++maximum) {
        const QString line = kirvIrcLine(text, maximum);
        QVERIFY(line.toUtf8().size() <= maximum);
        QCOMPARE(QString::fromUtf8(line.toUtf8()), line); // no half of a pair
        QVERIFY(line.toUtf8().size() > maximum - 4);
        QVERIFY(!line.contains('\n'));
    }
}

void tst_IrcText::shownTextKeepsItsDirection_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");
    QTest::newRow("plain") << "alice"
                           << "alice";
    QTest::newRow("marks") << QString::fromUtf8("a\u200eb\u200fc\u061cd") << "abcd";
    QTest::newRow("embeddings and overrides") << QString::fromUtf8("\u202aa\u202bb\u202cc\u202dd\u202e") << "abcd";
    QTest::newRow("isolates") << QString::fromUtf8("\u2066a\u2067b\u2068c\u2069") << "abc";
    QTest::newRow("nothing else") << QString::fromUtf8("\u202e\u2066") << "";
    QTest::newRow("Hebrew stays") << QString::fromUtf8("\u05d0\u05d1") << QString::fromUtf8("\u05d0\u05d1");
    QTest::newRow("joiners stay") << QString::fromUtf8("\u0645\u200c\u0645") << QString::fromUtf8("\u0645\u200c\u0645");
    QTest::newRow("one line") << " a\r\n\2b "
                              << "a b";
    QTest::newRow("cut") << QString(100, 'x') << QString(20, 'x');
}

void tst_IrcText::shownTextKeepsItsDirection()
{
    QFETCH(QString, text);
    QTEST(kirvIrcShown(text, 20), "shown");
}

QTEST_APPLESS_MAIN(tst_IrcText)
#include "tst_irc_text.moc"
