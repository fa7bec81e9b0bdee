// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/values/kirv_text_limit.h"
#include "host/kirv_field_widget.h"
#include "tests/support/kirv_patience.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QSpinBox>
#include <QTest>
#include <QToolButton>
#include <QWheelEvent>

#include <limits>

Q_DECLARE_METATYPE(KirvField)

namespace {

const QString Id = QStringLiteral("id");

KirvField withText(KirvField field, const QString &text)
{
    field.setText(text);
    return field;
}

KirvField withRule(const QString &text, const QString &pattern, bool required)
{
    KirvField field = KirvField::textEdit("Label", Id, text, "The tip.");
    field.setPattern(pattern);
    field.setRequired(required);
    return field;
}

KirvField port(const QString &text)
{
    return withText(KirvField::number("Port", Id, 1, 1, 65535, QString()), text);
}

} // namespace

/// A form for one field, or some, on the screen.
class Form : public KirvFieldWidget {
public:
    explicit Form(const QList<KirvField> &fields, Layout layout = LabelsBeside)
        : KirvFieldWidget(fields, nullptr, layout)
    {
        show();
    }

    template <class T>
    T *control(const QString &id = Id) const
    {
        return findChild<T *>("KirvField_" + id);
    }
    QLabel *label() const { return findChild<QLabel *>("KirvField_id_Label"); }
    QString hint() const
    {
        const auto *label = findChild<QLabel *>("KirvField_id_Hint");
        return label && label->isVisible() ? label->text() : QString();
    }
    KirvField field() const { return getFields().value(0); }
};

class tst_FieldWidget : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void untouchedFieldComesBackUnchanged_data();
    void untouchedFieldComesBackUnchanged();
    void editedTextIsGivenBack();
    void editedPasswordIsGivenBack();
    void editedCheckBoxIsGivenBack();
    void editedChoiceIsGivenBack();
    void editedNumberIsGivenBack();
    void editedMultiLineTextIsGivenBack();
    void undoneEditGivesTheFieldAsItCame();
    void choiceShowsDisplaysAndKeepsAnUnknownValue();
    void numberThatMustNotStandThereIsShownAsItIs();
    void passwordIsMaskedUntilItIsRevealed();
    void textThatDoesNotFitOneLineGetsLines();
    void overlongTextCannotBeSpoilt();
    void textOfManyTurnsIsShownInPart();
    void fieldsComeInOrder();
    void emptyListMakesAnEmptyWidget();
    void refillReplacesEverything();
    void refillLeaksNothing();
    void refillKeepsTheFocus();
    void hintTellsWhatIsWrong_data();
    void hintTellsWhatIsWrong();
    void hintComesAndGoesWhileTyping();
    void emptyRequiredFieldIsNotBlamedBeforeItIsLeft();
    void valueWithAHintIsGivenBackAllTheSame();
    void hintIsTheAccessibleDescription();
    void labelIsBuddyAndAccessibleName_data();
    void labelIsBuddyAndAccessibleName();
    void labelsWithoutTextShowTheId();
    void ampersandStandsForItself();
    void mnemonicsDiffer();
    void markupIsShownAsText();
    void labelsStandAboveWhenAsked();
    void wheelPassesOverControlsWithoutFocus();
    void tabLeavesAMultiLineField();
    void hugeTextsAreShownInABoundedWidth_data();
    void hugeTextsAreShownInABoundedWidth();
};

void tst_FieldWidget::initTestCase()
{
    QApplication::setFont(QFont("DejaVu Sans", 10));
}

void tst_FieldWidget::untouchedFieldComesBackUnchanged_data()
{
    QTest::addColumn<KirvField>("field");
    const QString rtl = QString::fromUtf8("שלום \u202e<b>x</b>");
    QTest::newRow("text") << KirvField::textEdit("Label", Id, "value", "Tip");
    QTest::newRow("empty text") << KirvField::textEdit(QString(), Id, QString(), QString());
    QTest::newRow("text with line breaks") << KirvField::textEdit("Label", Id, "a\r\nb\rc\n", QString());
    QTest::newRow("text with other separators") << KirvField::textEdit("Label", Id, "a\u2028b\u2029c\u0085", QString());
    QTest::newRow("text with controls") << KirvField::textEdit("Label", Id, QString::fromUtf8("a\0b\tc\u00a0d", 8),
                                                               QString());
    QTest::newRow("right to left") << KirvField::textEdit(rtl, Id, rtl, rtl);
    QTest::newRow("rules") << withRule("x", "[0-9", true);
    QTest::newRow("half a character") << KirvField::textEdit("L", Id, QString(QChar(0xd800)), QString());
    QTest::newRow("password") << KirvField::password("Label", Id, "se\ncret ", QString());
    QTest::newRow("ticked") << KirvField::checkBox("Label", Id, true, QString());
    QTest::newRow("not ticked") << KirvField::checkBox("Label", Id, false, QString());
    QTest::newRow("choice") << KirvField::choice("Label", Id, "b", { "a", "b" }, { "A", "B" }, QString());
    QTest::newRow("choice of equals") << KirvField::choice("Label", Id, "a", { "b", "a", "a" }, {}, QString());
    QTest::newRow("unknown choice") << KirvField::choice("Label", Id, "c", { "a", "b" }, { "A" }, QString());
    QTest::newRow("no choice made") << KirvField::choice("Label", Id, QString(), { "a" }, {}, QString());
    QTest::newRow("choice of nothing") << KirvField::choice("Label", Id, QString(), {}, { "A" }, QString());
    QTest::newRow("number") << port("5222");
    QTest::newRow("number written otherwise") << port("+05222");
    QTest::newRow("number too small") << port("0");
    QTest::newRow("number too large") << port("70000");
    QTest::newRow("number far too large") << port("99999999999999999999");
    QTest::newRow("number that is none") << port("http");
    QTest::newRow("number left open") << port(QString());
    QTest::newRow("number of full range") << withText(
        KirvField::number("N", Id, 0, std::numeric_limits<int>::min(), std::numeric_limits<int>::max(), QString()),
        "x");
    QTest::newRow("number of empty range") << KirvField::number("N", Id, 5, 10, 1, QString());
    QTest::newRow("note") << KirvField::note("Label", Id, "Read this.", QString());
    QTest::newRow("heading") << KirvField::note("Label", Id, QString(), QString());
    QTest::newRow("note without label") << KirvField::note(QString(), Id, "<b>Read</b>\nthis.", QString());
    QTest::newRow("lines") << KirvField::multiLine("Label", Id, "a\r\nb\u00a0c\u2028d\n\n", "Tip");
}

void tst_FieldWidget::untouchedFieldComesBackUnchanged()
{
    QFETCH(KirvField, field);
    Form form({ field });
    QCOMPARE(form.getFields(), QList<KirvField> { field });
    QCOMPARE(form.field().getText(), field.getText());

    form.fillWithFields({});
    form.fillWithFields({ field, field });
    QCOMPARE(form.getFields(), (QList<KirvField> { field, field }));
}

void tst_FieldWidget::editedTextIsGivenBack()
{
    const KirvField field = withRule("old", ".*", true);
    Form form({ field });
    auto *edit = form.control<QLineEdit>();
    edit->selectAll();
    QTest::keyClicks(edit, "new");
    QCOMPARE(form.field(), withText(field, "new"));
    edit->clear();
    QCOMPARE(form.field(), withText(field, QString()));
}

void tst_FieldWidget::editedPasswordIsGivenBack()
{
    const KirvField field = KirvField::password("Label", Id, QString(), QString());
    Form form({ field });
    QTest::keyClicks(form.control<QLineEdit>(), "secret");
    QCOMPARE(form.field(), withText(field, "secret"));
}

void tst_FieldWidget::editedCheckBoxIsGivenBack()
{
    Form form({ KirvField::checkBox("Label", Id, false, QString()) });
    QTest::keyClick(form.control<QCheckBox>(), Qt::Key_Space);
    QCOMPARE(form.field(), KirvField::checkBox("Label", Id, true, QString()));
}

void tst_FieldWidget::editedChoiceIsGivenBack()
{
    const KirvField field = KirvField::choice("Label", Id, "a", { "a", "b" }, { "First", "Second" }, QString());
    Form form({ field });
    QTest::keyClick(form.control<QComboBox>(), Qt::Key_Down);
    QCOMPARE(form.field(), withText(field, "b"));
}

void tst_FieldWidget::editedNumberIsGivenBack()
{
    Form form({ port("5222") });
    auto *box = form.control<QSpinBox>();
    QCOMPARE(box->minimum(), 1);
    QCOMPARE(box->maximum(), 65535);
    QTest::keyClick(box, Qt::Key_Up);
    QCOMPARE(form.field(), port("5223"));
}

void tst_FieldWidget::editedMultiLineTextIsGivenBack()
{
    const KirvField field = KirvField::multiLine("Label", Id, QString(), QString());
    Form form({ field });
    auto *edit = form.control<QPlainTextEdit>();
    QTest::keyClicks(edit, "one");
    QTest::keyClick(edit, Qt::Key_Return);
    QTest::keyClicks(edit, "two");
    QCOMPARE(form.field(), withText(field, "one\ntwo"));
}

void tst_FieldWidget::undoneEditGivesTheFieldAsItCame()
{
    const KirvField field = KirvField::multiLine("Label", Id, "a\u00a0b\r\n", QString());
    Form form({ field });
    auto *edit = form.control<QPlainTextEdit>();
    QTest::keyClicks(edit, "x");
    QVERIFY(form.field() != field);
    edit->undo();
    QCOMPARE(form.field(), field);
}

void tst_FieldWidget::choiceShowsDisplaysAndKeepsAnUnknownValue()
{
    const KirvField field = KirvField::choice("Label", Id, "c", { "a", "b" }, { "First" }, QString());
    Form form({ field });
    auto *box = form.control<QComboBox>();
    QStringList texts;
    for (int i = 0; i < box->count(); ++i)
        texts += box->itemText(i);
    QCOMPARE(texts, (QStringList { "c", "First", "b" }));
    QCOMPARE(box->currentText(), QStringLiteral("c"));
    box->setCurrentIndex(2);
    QCOMPARE(form.field(), withText(field, "b"));
    box->setCurrentIndex(0);
    QCOMPARE(form.field(), field);
}

void tst_FieldWidget::numberThatMustNotStandThereIsShownAsItIs()
{
    Form form({ port("70000") });
    auto *box = form.control<QSpinBox>();
    QCOMPARE(box->text(), QStringLiteral("70000"));
    QTest::keyClick(box, Qt::Key_Up);
    QCOMPARE(box->text(), QStringLiteral("1"));
    QCOMPARE(form.field(), port("1"));
}

void tst_FieldWidget::passwordIsMaskedUntilItIsRevealed()
{
    Form form({ KirvField::password("Label", Id, "secret", QString()) });
    auto *edit = form.control<QLineEdit>();
    auto *reveal = form.findChild<QToolButton *>("KirvField_id_Reveal");
    QCOMPARE(edit->echoMode(), QLineEdit::Password);
    QVERIFY(reveal->focusPolicy() & Qt::TabFocus);
    QVERIFY(!reveal->icon().isNull());
    const QString offer = reveal->accessibleName();
    QCOMPARE(reveal->toolTip(), offer);

    QTest::keyClick(reveal, Qt::Key_Space);
    QCOMPARE(edit->echoMode(), QLineEdit::Normal);
    QVERIFY(!offer.isEmpty() && !reveal->accessibleName().isEmpty() && reveal->accessibleName() != offer);
    QTest::keyClick(reveal, Qt::Key_Space);
    QCOMPARE(edit->echoMode(), QLineEdit::Password);

    QTest::keyClick(reveal, Qt::Key_Space);
    form.fillWithFields(form.getFields());
    QCOMPARE(form.control<QLineEdit>()->echoMode(), QLineEdit::Password);
}

void tst_FieldWidget::textThatDoesNotFitOneLineGetsLines()
{
    Form form({ KirvField::textEdit("Label", Id, "one\ntwo", QString()) });
    QVERIFY(!form.control<QLineEdit>());
    QCOMPARE(form.control<QPlainTextEdit>()->blockCount(), 2);
    form.fillWithFields({ KirvField::textEdit("Label", Id, "one", QString()) });
    QVERIFY(form.control<QLineEdit>());
}

void tst_FieldWidget::overlongTextCannotBeSpoilt()
{
    const KirvField field = KirvField::multiLine("Label", Id, QString("x").repeated(1000000), QString());
    Form form({ field });
    auto *edit = form.control<QPlainTextEdit>();
    QVERIFY(edit->isReadOnly());
    QVERIFY(form.hint().contains("too long"));
    QTest::keyClicks(edit, "y");
    QCOMPARE(form.field(), field);
}

/// Thousands of turns of direction would block the window for seconds.
void tst_FieldWidget::textOfManyTurnsIsShownInPart()
{
    const QChar turn(0x202e);
    const KirvField field = KirvField::multiLine("Label", Id, (turn + QString("abc")).repeated(5000), QString());
    Form form({ field });
    auto *edit = form.control<QPlainTextEdit>();
    QVERIFY(edit->isReadOnly());
    QCOMPARE(edit->toPlainText().count(turn), kirvMostTurns);
    QVERIFY(form.hint().contains("too long"));
    QCOMPARE(form.field(), field);

    Form most({ KirvField::multiLine("Label", Id, (turn + QString("abc")).repeated(kirvMostTurns), QString()) });
    QVERIFY(!most.control<QPlainTextEdit>()->isReadOnly());
}

void tst_FieldWidget::fieldsComeInOrder()
{
    QList<KirvField> fields;
    for (const char *id : { "z", "a", "z", "m" })
        fields += KirvField::textEdit(QString(), id, id, QString());
    Form form(fields);
    QCOMPARE(form.getFields(), fields);
    const QList<QLineEdit *> edits = form.findChildren<QLineEdit *>();
    QCOMPARE(edits.size(), 4);
    for (int i = 1; i < 4; ++i)
        QVERIFY(edits.at(i - 1)->mapTo(&form, QPoint()).y() < edits.at(i)->mapTo(&form, QPoint()).y());
}

void tst_FieldWidget::emptyListMakesAnEmptyWidget()
{
    Form form({});
    QCOMPARE(form.getFields(), QList<KirvField>());
    QVERIFY(form.findChildren<QLabel *>().isEmpty());
    QCOMPARE(form.sizeHint().height(), 0);
}

void tst_FieldWidget::refillReplacesEverything()
{
    Form form({ KirvField::textEdit("Label", Id, "old", QString()), KirvField::note("Note", "n", "x", QString()) });
    form.control<QLineEdit>()->setText("typed");
    const QList<KirvField> fields { KirvField::checkBox("Box", "box", true, QString()) };
    form.fillWithFields(fields);
    QVERIFY(!form.control<QLineEdit>());
    QVERIFY(!form.findChild<QWidget *>("KirvField_n"));
    QVERIFY(form.control<QCheckBox>("box")->isVisible());
    QCOMPARE(form.getFields(), fields);
}

void tst_FieldWidget::refillLeaksNothing()
{
    const QList<KirvField> fields { withRule("x", "y", true), KirvField::password("P", "p", "x", QString()),
                                    KirvField::choice("C", "c", "a", { "b" }, {}, QString()), port("1") };
    Form form(fields);
    const int children = int(form.findChildren<QObject *>().size());
    const int widgets = int(QApplication::allWidgets().size());
    QPointer<QWidget> first = form.control<QLineEdit>();
    for (int i = 0; i < 100; ++i)
        form.fillWithFields(fields);
    QCOMPARE(int(form.findChildren<QObject *>().size()), children);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!first);
    QCOMPARE(int(QApplication::allWidgets().size()), widgets);
}

void tst_FieldWidget::refillKeepsTheFocus()
{
    const QList<KirvField> fields { KirvField::textEdit("A", "a", QString(), QString()),
                                    KirvField::textEdit("B", "b", QString(), QString()) };
    Form form(fields);
    form.activateWindow();
    form.control<QLineEdit>("b")->setFocus();
    KIRV_TRY(form.control<QLineEdit>("b")->hasFocus());
    form.fillWithFields(fields);
    KIRV_TRY(form.control<QLineEdit>("b")->hasFocus());
}

void tst_FieldWidget::hintTellsWhatIsWrong_data()
{
    QTest::addColumn<KirvField>("field");
    QTest::addColumn<QString>("hint");
    const QString form = "Invalid format: The tip."; // the tool tip says what is valid
    const QString number = "This must be a whole number from 1 to 65535.";
    QTest::newRow("no rule") << withRule("x", QString(), false) << QString();
    QTest::newRow("match") << withRule("12", "[0-9]+", true) << QString();
    QTest::newRow("part matches") << withRule("12x", "[0-9]+", false) << form;
    QTest::newRow("one alternative matches a part") << withRule("ab", "a|b", false) << form;
    QTest::newRow("empty matches when not required") << withRule(QString(), "[0-9]+", false) << QString();
    QTest::newRow("broken pattern") << withRule("x", "[0-9", false) << QString();
    QTest::newRow("pattern that never ends") << withRule(QString("a").repeated(1000) + "!", "(a+)+", false) << form;
    QTest::newRow("number in range") << port("65535") << QString();
    QTest::newRow("number too small") << port("0") << number;
    QTest::newRow("number too large") << port("65536") << number;
    QTest::newRow("no number") << port("x") << number;
    QTest::newRow("number left open") << port(QString()) << QString();
}

void tst_FieldWidget::hintTellsWhatIsWrong()
{
    QFETCH(KirvField, field);
    QFETCH(QString, hint);
    const Form form({ field });
    QCOMPARE(form.hint(), hint);
}

void tst_FieldWidget::hintComesAndGoesWhileTyping()
{
    Form form({ withRule("12", "[0-9]+", true) });
    auto *edit = form.control<QLineEdit>();
    QCOMPARE(form.hint(), QString());
    QTest::keyClicks(edit, "x");
    QVERIFY(form.hint().contains("form"));
    edit->clear();
    QCOMPARE(form.hint(), QStringLiteral("This must be filled in."));
    QTest::keyClicks(edit, "7");
    QCOMPARE(form.hint(), QString());
}

void tst_FieldWidget::emptyRequiredFieldIsNotBlamedBeforeItIsLeft()
{
    Form form({ withRule(QString(), QString(), true), KirvField::textEdit("B", "b", QString(), QString()) });
    form.activateWindow();
    auto *edit = form.control<QLineEdit>();
    QVERIFY(!edit->placeholderText().isEmpty());
    edit->setFocus();
    KIRV_TRY(edit->hasFocus());
    QCOMPARE(form.hint(), QString());
    QTest::keyClick(edit, Qt::Key_Tab);
    QVERIFY(form.control<QLineEdit>("b")->hasFocus());
    QCOMPARE(form.hint(), QStringLiteral("This must be filled in."));
}

void tst_FieldWidget::valueWithAHintIsGivenBackAllTheSame()
{
    const KirvField field = withRule("1", "[0-9]+", true);
    Form form({ field });
    form.control<QLineEdit>()->setText("no number");
    QVERIFY(!form.hint().isEmpty());
    QCOMPARE(form.field(), withText(field, "no number"));
}

void tst_FieldWidget::hintIsTheAccessibleDescription()
{
    Form form({ withRule("12", "[0-9]+", false) });
    auto *edit = form.control<QLineEdit>();
    QCOMPARE(edit->accessibleDescription(), QStringLiteral("The tip."));
    edit->setText("x");
    QCOMPARE(edit->accessibleDescription(), form.hint());
    edit->setText("1");
    QCOMPARE(edit->accessibleDescription(), QStringLiteral("The tip."));
}

void tst_FieldWidget::labelIsBuddyAndAccessibleName_data()
{
    QTest::addColumn<KirvField>("field");
    QTest::newRow("text") << KirvField::textEdit("My Label", Id, "x", "Tip");
    QTest::newRow("password") << KirvField::password("My Label", Id, "x", "Tip");
    QTest::newRow("choice") << KirvField::choice("My Label", Id, "a", { "a" }, {}, "Tip");
    QTest::newRow("number") << KirvField::number("My Label", Id, 1, 0, 2, "Tip");
    QTest::newRow("lines") << KirvField::multiLine("My Label", Id, "x", "Tip");
}

void tst_FieldWidget::labelIsBuddyAndAccessibleName()
{
    QFETCH(KirvField, field);
    const Form form({ field });
    auto *control = form.control<QWidget>();
    QVERIFY(control);
    QCOMPARE(form.label()->buddy(), control);
    QCOMPARE(form.label()->text(), QStringLiteral("&My Label:"));
    QCOMPARE(control->accessibleName(), QStringLiteral("My Label"));
    QCOMPARE(control->toolTip(), QStringLiteral("Tip"));
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(control);
    QCOMPARE(interface->relations(QAccessible::Label).size(), 1);
}

void tst_FieldWidget::labelsWithoutTextShowTheId()
{
    const Form form({ KirvField::textEdit(QString(), Id, QString(), QString()) });
    QCOMPARE(form.label()->text(), QStringLiteral("&id:"));
    QCOMPARE(form.control<QLineEdit>()->accessibleName(), Id);
}

void tst_FieldWidget::ampersandStandsForItself()
{
    Form form({ KirvField::textEdit("Q && A &x", Id, QString(), QString()) });
    QCOMPARE(form.label()->text(), QStringLiteral("&Q &&&& A &&x:"));
    QCOMPARE(form.control<QLineEdit>()->accessibleName(), QStringLiteral("Q && A &x"));
    form.fillWithFields({ KirvField::checkBox("& so on", Id, true, QString()) });
    QCOMPARE(form.control<QCheckBox>()->text(), QStringLiteral("&& &so on"));
}

void tst_FieldWidget::mnemonicsDiffer()
{
    QList<KirvField> fields;
    for (int i = 0; i < 4; ++i)
        fields += KirvField::textEdit("aba", QString::number(i), QString(), QString());
    const Form form(fields);
    QStringList texts;
    for (int i = 0; i < 4; ++i)
        texts += form.findChild<QLabel *>(QStringLiteral("KirvField_%1_Label").arg(i))->text();
    QCOMPARE(texts, (QStringList { "&aba:", "a&ba:", "aba:", "aba:" }));
}

void tst_FieldWidget::markupIsShownAsText()
{
    const QString markup = "<b>bold</b>";
    Form form({ KirvField::textEdit(markup, Id, markup, markup), KirvField::note(QString(), "note", markup, markup) });
    QCOMPARE(form.label()->textFormat(), Qt::PlainText);
    QCOMPARE(form.control<QLabel>("note")->textFormat(), Qt::PlainText);
    QCOMPARE(form.control<QLabel>("note")->text(), markup);
    QCOMPARE(form.control<QLineEdit>()->toolTip(), QStringLiteral("<p>&lt;b&gt;bold&lt;/b&gt;</p>"));
}

void tst_FieldWidget::labelsStandAboveWhenAsked()
{
    const QList<KirvField> fields { KirvField::textEdit("Label", Id, "x", QString()) };
    const Form beside(fields, KirvFieldWidget::LabelsBeside);
    QVERIFY(beside.label()->geometry().right() < beside.control<QWidget>()->geometry().left());
    const Form above(fields, KirvFieldWidget::LabelsAbove);
    QVERIFY(above.label()->geometry().bottom() < above.control<QWidget>()->geometry().top());
}

void tst_FieldWidget::wheelPassesOverControlsWithoutFocus()
{
    Form form({ KirvField::textEdit("A", "a", QString(), QString()), port("80") });
    form.activateWindow();
    form.control<QLineEdit>("a")->setFocus();
    KIRV_TRY(form.control<QLineEdit>("a")->hasFocus());
    auto *box = form.control<QSpinBox>();
    const auto turn = [box] {
        QWheelEvent event(box->rect().center(), box->mapToGlobal(box->rect().center()), QPoint(), QPoint(0, 120),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(box, &event);
    };
    turn();
    QCOMPARE(form.getFields().at(1), port("80"));
    box->setFocus();
    turn();
    QCOMPARE(form.getFields().at(1), port("81"));
}

void tst_FieldWidget::tabLeavesAMultiLineField()
{
    Form form({ KirvField::multiLine("A", "a", QString(), QString()), port("80") });
    form.activateWindow();
    auto *edit = form.control<QPlainTextEdit>("a");
    edit->setFocus();
    KIRV_TRY(edit->hasFocus());
    QTest::keyClick(edit, Qt::Key_Tab);
    QVERIFY(form.control<QSpinBox>()->hasFocus());
    QCOMPARE(edit->toPlainText(), QString());
}

void tst_FieldWidget::hugeTextsAreShownInABoundedWidth_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("words") << QString("word ").repeated(200000);
    QTest::newRow("one word") << QString("x").repeated(1000000);
    QTest::newRow("lines") << QString("line\n").repeated(200000);
    QTest::newRow("right to left") << QString::fromUtf8("\u202eשלום<b>").repeated(100000);
}

void tst_FieldWidget::hugeTextsAreShownInABoundedWidth()
{
    QFETCH(QString, text);
    const QList<KirvField> fields {
        KirvField::textEdit(text, "a", text, text),
        KirvField::password(text, "b", text.left(50000), text),
        KirvField::checkBox(text, "c", true, text),
        KirvField::choice(text, "d", text, { text }, { text }, text),
        withText(port(QString()), text),
        KirvField::note(text, "f", text, text),
        KirvField::note(QString(), "g", text, QString()),
        KirvField::multiLine(text, "h", text, text),
    };
    Form form(fields);
    QVERIFY(!form.grab().isNull());
    QVERIFY2(form.width() < 1000, qPrintable(QString::number(form.width())));
    QCOMPARE(form.getFields(), fields);
}

QTEST_MAIN(tst_FieldWidget)
#include "tst_field_widget.moc"
