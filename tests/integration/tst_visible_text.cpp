// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/values/kirv_visible_text.h"

#include <QtTest>

class tst_VisibleText : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void marksWhatChangesTheDirection_data();
    void marksWhatChangesTheDirection();
    void leavesEveryOtherCharacter();
};

void tst_VisibleText::marksWhatChangesTheDirection_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("mark");
    for (const int code :
         { 0x061C, 0x200E, 0x200F, 0x202A, 0x202B, 0x202C, 0x202D, 0x202E, 0x2066, 0x2067, 0x2068, 0x2069 }) {
        const QString mark = QStringLiteral("[U+%1]").arg(QString::number(code, 16).toUpper(), 4, QLatin1Char('0'));
        QTest::newRow(qPrintable(mark)) << code << mark;
    }
}

void tst_VisibleText::marksWhatChangesTheDirection()
{
    QFETCH(int, code);
    QFETCH(QString, mark);
    const QChar character { ushort(code) };
    QCOMPARE(kirvVisibleText(QStringLiteral("a") + character + QStringLiteral("b") + character),
             QStringLiteral("a") + mark + QStringLiteral("b") + mark);
}

void tst_VisibleText::leavesEveryOtherCharacter()
{
    const QString text = QString::fromUtf8("<b>anna</b>\n\u05d0\u0628 \U0001F600 \u200d[U+202E]");
    QCOMPARE(kirvVisibleText(text), text);
    QCOMPARE(kirvVisibleText(QString()), QString());
    int marked = 0;
    for (int code = 0; code < 0x10000; ++code)
        marked += kirvVisibleText(QString(QChar(ushort(code)))).size() > 1;
    QCOMPARE(marked, 12);
}

QTEST_GUILESS_MAIN(tst_VisibleText)
#include "tst_visible_text.moc"
