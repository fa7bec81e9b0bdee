// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/values/kirv_failure.h"

#include <QSet>
#include <QtTest>

class tst_Failure : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyKindHasASentenceOfItsOwn();
    void nothingFailedSaysNothing();
    void theDetailStandsInTheSentence_data();
    void theDetailStandsInTheSentence();
    void theDetailIsTakenLiterally();
    void theDetailIsOneLine();
    void theDetailDoesNotTurnTheSentence();
    void theDetailHasASaneLength();
};

void tst_Failure::everyKindHasASentenceOfItsOwn()
{
    QSet<QString> sentences;
    for (int kind = KirvFailure::WrongPassword; kind <= KirvFailure::Other; ++kind) {
        const KirvFailure plain { KirvFailure::Kind(kind) };
        const KirvFailure detailed(KirvFailure::Kind(kind), QStringLiteral("example.org"));
        QVERIFY(plain.isFailure());
        QVERIFY2(plain.text().endsWith(QLatin1Char('.')), qPrintable(plain.text()));
        QVERIFY(plain.text().at(0).isUpper());
        QVERIFY(!plain.text().contains(QLatin1Char('%')));
        QVERIFY(!detailed.text().isEmpty());
        QVERIFY(!detailed.text().contains(QLatin1Char('%')));
        sentences.insert(plain.text());
    }
    QCOMPARE(int(sentences.size()), int(KirvFailure::Other));
}

void tst_Failure::nothingFailedSaysNothing()
{
    QCOMPARE(KirvFailure().text(), QString());
    QCOMPARE(KirvFailure(KirvFailure::None, QStringLiteral("detail")).text(), QString());
    QVERIFY(!KirvFailure().isFailure());
    QVERIFY(!KirvFailure().isWorthRetrying());
}

void tst_Failure::theDetailStandsInTheSentence_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("text");
    QTest::newRow("WrongPassword") << int(KirvFailure::WrongPassword)
                                   << "The server did not accept the login or the password.";
    QTest::newRow("HostNotFound")
        << int(KirvFailure::HostNotFound)
        << "The server \"some.host\" could not be found. Check its name and your network connection.";
    QTest::newRow("TimedOut") << int(KirvFailure::TimedOut) << "The server \"some.host\" did not answer in time.";
    QTest::newRow("NameInUse") << int(KirvFailure::NameInUse)
                               << "The name \"some.host\" is already in use on the server.";
    QTest::newRow("AccessDenied") << int(KirvFailure::AccessDenied) << "The server denied access: some.host";
    QTest::newRow("ServiceUnavailable") << int(KirvFailure::ServiceUnavailable)
                                        << "The server cannot log the account in at the moment: some.host";
    QTest::newRow("Other") << int(KirvFailure::Other) << "An error occurred: some.host";
}

void tst_Failure::theDetailStandsInTheSentence()
{
    QFETCH(int, kind);
    QFETCH(QString, text);
    QCOMPARE(KirvFailure(KirvFailure::Kind(kind), QStringLiteral("some.host")).text(), text);
}

void tst_Failure::theDetailIsTakenLiterally()
{
    const QString detail = QStringLiteral("<b>50%</b> %1 %2 &amp;");
    QCOMPARE(KirvFailure(KirvFailure::Other, detail).text(), QStringLiteral("An error occurred: ") + detail);
}

void tst_Failure::theDetailIsOneLine()
{
    const KirvFailure failure(KirvFailure::Other, QStringLiteral("  one\r\ntwo\tthree\x07\x1b[31m\u2028four\u0085 "));
    QCOMPARE(failure.detail(), QStringLiteral("one two three [31m four"));
}

void tst_Failure::theDetailDoesNotTurnTheSentence()
{
    const KirvFailure failure(KirvFailure::Other, QStringLiteral("a\u202eb\u2066c\u05d0"));
    QCOMPARE(failure.detail(), QStringLiteral("a b c\u05d0"));
}

void tst_Failure::theDetailHasASaneLength()
{
    const QString longText(1 << 20, QLatin1Char('x'));
    QCOMPARE(int(KirvFailure(KirvFailure::Other, longText).detail().size()), 300);
    QVERIFY(KirvFailure(KirvFailure::Other, longText).text().endsWith(QChar(0x2026)));
    QCOMPARE(KirvFailure(KirvFailure::Other, longText.left(300)).detail(), longText.left(300));

    const QString smiley = QString::fromUtf8("\xf0\x9f\x98\x80");
    for (const QString &text : { smiley.repeated(400), QLatin1Char('x') + smiley.repeated(400) }) {
        const QString detail = KirvFailure(KirvFailure::Other, text).detail();
        QCOMPARE(detail, QString::fromUtf8(detail.toUtf8())); // no half of a character is left
    }
}

QTEST_GUILESS_MAIN(tst_Failure)
#include "tst_failure.moc"
