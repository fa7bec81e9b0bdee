// SPDX-License-Identifier: LGPL-2.1-or-later
#include "add_account/kirv_add_account_dialog.h"
#include "tests/unit/kirv_page_fixture.h"

#include <QDialog>
#include <QLineEdit>
#include <QValidator>
#include <QtTest>

#include <memory>

namespace {

int warnings = 0;

void countWarning(QtMsgType type, const QMessageLogContext &, const QString &)
{
    if (type != QtDebugMsg)
        ++warnings;
}

}

/// What the login pattern of a protocol lets through in the add dialog: the same with every major of Qt.
class tst_LoginValidation : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { fixture = std::make_unique<KirvPageFixture>(); }
    void cleanup();

    void typingIsValidated_data();
    void typingIsValidated();
    void textIsValidated_data();
    void textIsValidated();
    void theDotMatchesALineFeed();
    void thePositionOfInvalidTextIsItsEnd_data();
    void thePositionOfInvalidTextIsItsEnd();
    void anInvalidPatternIsNotLogged();
    void theValidatorGoesWithTheController();

private:
    void open(const QString &pattern);

    std::unique_ptr<KirvPageFixture> fixture;
    QPointer<KirvAddAccountDialog> dialog;
    QLineEdit *login = nullptr;
};

void tst_LoginValidation::cleanup()
{
    delete dialog;
    fixture.reset();
}

void tst_LoginValidation::open(const QString &pattern)
{
    fixture->xmpp->loginPattern = pattern;
    dialog = new KirvAddAccountDialog(fixture->xmpp, QString(), fixture->page(), Qt::Sheet);
    login = fixture->page()->findChild<QLineEdit *>("AddAccount_UsernameEdit");
}

void tst_LoginValidation::typingIsValidated_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("taken");
    // clang-format off
    QTest::newRow("acceptable") << "[a-z]+@[a-z]+" << "me@home" << "me@home";
    QTest::newRow("case-sensitive") << "[a-z]+@[a-z]+" << "Me@hOme" << "e@hme";
    QTest::newRow("as a whole") << "[0-9]{3}" << "1x2345" << "123";
    QTest::newRow("empty pattern") << "" << "me" << "";
    QTest::newRow("invalid pattern") << "[a-z" << "me" << "";
    // clang-format on
}

void tst_LoginValidation::typingIsValidated()
{
    QFETCH(QString, pattern);
    QFETCH(QString, typed);
    QFETCH(QString, taken);
    open(pattern);
    QTest::keyClicks(login, typed);
    QCOMPARE(login->text(), taken);
}

void tst_LoginValidation::textIsValidated_data()
{
    const QString accented = QString::fromUtf8("h\u00e9l\u00e8ne");
    const QString decomposed = QString::fromUtf8("he\u0301le\u0300ne");
    const QString hindi = QString::fromUtf8("\u0928\u092e\u0938\u094d\u0924\u0947");
    const QString arabicDigits = QString::fromUtf8("\u0661\u0662\u0663");

    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("state");
    const int invalid = QValidator::Invalid;
    const int intermediate = QValidator::Intermediate;
    const int acceptable = QValidator::Acceptable;
    // clang-format off
    QTest::newRow("nothing yet") << "[a-z]+" << "" << intermediate;
    QTest::newRow("beginning") << "[a-z]+@[a-z]+" << "me@" << intermediate;
    QTest::newRow("alternatives") << "a|bc" << "bc" << acceptable;
    QTest::newRow("beginning of an alternative") << "a|bc" << "b" << intermediate;
    QTest::newRow("more than an alternative") << "a|bc" << "abc" << invalid;
    QTest::newRow("anchors of its own") << "^[a-z]+$" << "me" << acceptable;

    QTest::newRow("word, accented") << "\\w+" << accented << acceptable;
    QTest::newRow("word, decomposed") << "\\w+" << decomposed << acceptable;
    QTest::newRow("word, with vowel signs") << "\\w+" << hindi << acceptable;
    QTest::newRow("word, underscore") << "\\w+" << "a_b" << acceptable;
    QTest::newRow("word, no space") << "\\w+" << "a b" << invalid;
    QTest::newRow("set of words, accented") << "[\\w.-]+" << accented + ".x-y" << acceptable;
    QTest::newRow("set of words, decomposed") << "[\\w.-]+" << decomposed << acceptable;
    QTest::newRow("set that begins with a bracket") << "[]\\w]+" << decomposed + "]" << acceptable;
    QTest::newRow("set without words, decomposed") << "[^\\w]+" << decomposed << invalid;
    QTest::newRow("set without words, punctuation") << "[^\\w]+" << "#-" << acceptable;
    QTest::newRow("no word, accented") << "\\W+" << accented << invalid;
    QTest::newRow("no word, a mark") << "\\W+" << QString(QChar(0x301)) << invalid;
    QTest::newRow("no word, punctuation") << "\\W+" << "#-" << acceptable;
    QTest::newRow("after a set") << "[0-9]\\w+" << "1" + decomposed << acceptable;
    QTest::newRow("after a set of brackets") << "[a[]\\w+" << "[" + decomposed << acceptable;
    QTest::newRow("set without bracket and words") << "[^]\\w]+" << "#-" << acceptable;
    QTest::newRow("backslash and w") << "\\\\w" << "\\w" << acceptable;
    QTest::newRow("backslash and another letter") << "\\\\w" << "\\e" << invalid;
    QTest::newRow("digits") << "\\d+" << arabicDigits << acceptable;
    QTest::newRow("no digits") << "\\D+" << arabicDigits << invalid;
    QTest::newRow("space") << "\\s" << QString(QChar(QChar::Nbsp)) << acceptable;
    QTest::newRow("no space") << "\\S" << QString(QChar(QChar::Nbsp)) << invalid;
    QTest::newRow("end of a word") << "a\\b.b" << QString::fromUtf8("a\u00e9b") << invalid;

    QTest::newRow("empty pattern, no text") << "" << "" << acceptable;
    QTest::newRow("empty pattern, text") << "" << "m" << invalid;
    for (const char *pattern : { "[", "[a-z", "(", "a(b", "*", "a**", "a)", ")", "a\\", "a{2,1}" }) {
        QTest::addRow("invalid pattern %s, no text", pattern) << pattern << "" << intermediate;
        QTest::addRow("invalid pattern %s, its beginning", pattern) << pattern << "a" << invalid;
        QTest::addRow("invalid pattern %s, itself", pattern) << pattern << pattern << invalid;
    }
    // clang-format on
}

void tst_LoginValidation::textIsValidated()
{
    QFETCH(QString, pattern);
    QFETCH(QString, text);
    QFETCH(int, state);
    open(pattern);
    int position = 0;
    QString validated = text;
    QCOMPARE(int(login->validator()->validate(validated, position)), state);
    QCOMPARE(validated, text);
    login->insert(text);
    QCOMPARE(login->text(), state == QValidator::Invalid ? QString() : text);
}

void tst_LoginValidation::theDotMatchesALineFeed()
{
    open(".+");
    int position = 0;
    QString text = "a\nb";
    QCOMPARE(login->validator()->validate(text, position), QValidator::Acceptable);
}

void tst_LoginValidation::thePositionOfInvalidTextIsItsEnd_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::newRow("digits") << "[0-9]+";
    QTest::newRow("empty") << "";
    QTest::newRow("invalid") << "[";
}

void tst_LoginValidation::thePositionOfInvalidTextIsItsEnd()
{
    QFETCH(QString, pattern);
    open(pattern);
    QString text = "12ab";
    int position = 1;
    QCOMPARE(login->validator()->validate(text, position), QValidator::Invalid);
    QCOMPARE(position, 4);
}

void tst_LoginValidation::anInvalidPatternIsNotLogged()
{
    warnings = 0;
    const QtMessageHandler before = qInstallMessageHandler(countWarning);
    open("[a-z");
    login->insert("me");
    login->setText(QString());
    login->insert("x");
    qInstallMessageHandler(before);
    QCOMPARE(warnings, 0);
}

void tst_LoginValidation::theValidatorGoesWithTheController()
{
    open("[a-z]+");
    const QPointer<const QValidator> validator = login->validator();
    QCOMPARE(validator->parent(), dialog.data());
    delete dialog;
    QVERIFY(!validator);
}

QTEST_MAIN(tst_LoginValidation)
#include "tst_login_validation.moc"
