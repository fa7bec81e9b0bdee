// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_server_assistant.h"
#include "client/kirv_wrapped_text.h"
#include "host/kirv_field_widget.h"
#include "tests/support/fakes/kirv_fake_server_request.h"
#include "tests/support/kirv_field_texts.h"
#include "tests/support/kirv_load_meter.h"
#include "tests/support/kirv_patience.h"

#include <QAbstractItemView>
#include <QBuffer>
#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QDate>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QThreadPool>
#include <QTimer>
#include <memory>

using Step = KirvServerRequest::Step;

namespace {

QByteArray png(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::green);
    QByteArray data;
    QBuffer buffer(&data);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return data;
}

/// A file of few bytes with so many pixels.
QByteArray blank(const QSize &size)
{
    QImage image(size, QImage::Format_Mono);
    image.fill(0);
    QByteArray data;
    QBuffer buffer(&data);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return data;
}

KirvField line(const QString &id)
{
    return KirvField::textEdit("Field " + id, id, QString(), QString());
}

Step step(const QList<KirvField> &fields = { line("one"), line("two") })
{
    Step result;
    result.text = "Fill it in.";
    result.fields = fields;
    result.command = "Continue";
    return result;
}

/// A word that no line has room for.
QString longAddress(int length)
{
    return "https://example.org/" + QString(length - 20, 'x');
}

} // namespace

/// The window for a request to a server, whatever the request is.
class tst_ServerAssistant : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void aStepIsShownWhole();
    void whatAStepLacksIsHidden();
    void textsAreShownAsTheyAre();
    void longWordsDoNotWidenTheWindow_data();
    void longWordsDoNotWidenTheWindow();
    void aLongStepScrolls();
    void theWindowGrowsWithItsStep();

    void whatWasTypedIsSubmitted();
    void whatWasTypedStaysWhenTheServerRefuses_data();
    void whatWasTypedStaysWhenTheServerRefuses();
    void goingBackPassesOnWhatWasTyped();
    void aConfigurationFillsTheFields();
    void theConfigurationStaysChosen();

    void theKeyboardStartsInTheFirstField();
    void theKeyboardReturnsAfterWaiting();
    void theKeyboardStaysInAFieldThatComesAgain();
    void theKeyboardGoesToTheFirstWrongField_data();
    void theKeyboardGoesToTheFirstWrongField();
    void theKeyboardGoesToAnErrorWithoutAField();
    void theKeyboardStaysInTheFormOnAnErrorWithoutAField();
    void providersAreOffered();
    void providersAreOfferedFromTheKeyboard();
    void withoutProvidersNothingIsOffered();
    void nothingCanBeSentTwice();
    void enterSubmits();
    void dangerousCommandsAreNotTheDefault();
    void mnemonicsDoNotClash();

    void picturesAreShown();
    void picturesAreBounded();
    void picturesAreReadOutsideTheGuiThread();
    void hugePicturesBlockNothing_data();
    void hugePicturesBlockNothing();

    void anOutcomeStays();
    void theRequestMayGoFirst();

private:
    void show(const Step &step);
    template <class Widget>
    Widget *child(const QString &name) const
    {
        return window->findChild<Widget *>("ServerAssistant_" + name);
    }
    QLineEdit *edit(const QString &field) const { return window->findChild<QLineEdit *>("KirvField_" + field); }
    QPushButton *button(const QString &name) const { return child<QPushButton>(name + "Button"); }
    QString message() const
    {
        return child<QWidget>("MessageRow")->isVisible() ? child<QTextEdit>("Message")->toPlainText() : QString();
    }
    QString typed(const QString &field) const { return valueOf(request->filled, field); }

    std::unique_ptr<KirvFakeServerRequest> request;
    std::unique_ptr<KirvServerAssistant> window;
};

void tst_ServerAssistant::init()
{
    request = std::make_unique<KirvFakeServerRequest>();
    request->isHeld = true;
    window = std::make_unique<KirvServerAssistant>(request.get(), nullptr);
}

void tst_ServerAssistant::cleanup()
{
    window.reset();
    request.reset();
}

void tst_ServerAssistant::show(const Step &first)
{
    Q_EMIT request->stepReady(first);
    window->show();
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window.get(), kirvPatience));
    QCoreApplication::processEvents();
}

void tst_ServerAssistant::aStepIsShownWhole()
{
    Step whole = step();
    whole.configurations = QStringList { "First", "Second" };
    whole.pictures = { { "A picture", png({ 60, 20 }), QString() } };
    whole.notice = "Look at this.";
    whole.canGoBack = true;
    whole.hasPassword = true;
    show(whole);
    QCOMPARE(window->objectName(), QString("ServerAssistant"));
    QCOMPARE(window->windowTitle(), QString("Fake Request"));
    QCOMPARE(child<QTextEdit>("Text")->toPlainText(), QString("Fill it in."));
    QCOMPARE(child<QComboBox>("Configuration")->count(), 2);
    QCOMPARE(child<KirvFieldWidget>("Fields")->getFields().size(), 2);
    KIRV_TRY(child<QLabel>("Picture1"));
    QCOMPARE(child<QLabel>("Picture1")->pixmap(Qt::ReturnByValue).size(), QSize(60, 20));
    QVERIFY(child<QCheckBox>("Remember")->isVisible() && window->isPasswordToBeRemembered());
    QCOMPARE(message(), QString("Look at this."));
    QCOMPARE(button("Next")->text().remove('&'), QString("Continue"));
    QVERIFY(button("Back")->isVisible() && button("Close")->isVisible());
    QVERIFY(!child<QProgressBar>("Progress")->isVisible());
    for (QWidget *widget : window->findChildren<QWidget *>(QRegularExpression("^ServerAssistant_"))) {
        const bool isControl = widget->focusPolicy() != Qt::NoFocus && !qobject_cast<QAbstractButton *>(widget);
        QVERIFY2(!isControl || !widget->isVisible() || !widget->accessibleName().isEmpty(),
                 qPrintable(widget->objectName()));
    }
}

void tst_ServerAssistant::whatAStepLacksIsHidden()
{
    Step whole = step();
    whole.configurations = QStringList { "First" };
    whole.pictures = { { "A picture", png({ 60, 20 }), QString() } };
    whole.notice = "Look at this.";
    whole.canGoBack = whole.hasPassword = true;
    show(whole);
    Q_EMIT request->stepReady(Step());
    for (const char *part : { "Text", "ConfigurationRow", "Pictures", "Fields", "Remember", "Icon", "MessageRow",
                              "BackButton", "NextButton" })
        QVERIFY2(!child<QWidget>(part)->isVisible(), part);
    QVERIFY(button("Close")->isDefault());
}

void tst_ServerAssistant::textsAreShownAsTheyAre()
{
    const QString markup = "<b>bold</b> <img src='file:///etc/passwd'> &amp; & one\ntwo";
    Step marked = step({ KirvField::textEdit(markup, "one", QString(), markup) });
    marked.text = markup;
    marked.command = markup;
    marked.pictures = { { markup, QByteArray(), markup } };
    show(marked);
    Q_EMIT request->failed(KirvFailure(KirvFailure::RequestFailed, "<i>no</i>"));
    QCOMPARE(child<QTextEdit>("Text")->toPlainText(), markup);
    QVERIFY(message().contains("<i>no</i>"));
    KIRV_TRY(child<QTextEdit>("Picture1")->toPlainText().contains("cannot be shown"));
    QVERIFY(child<QTextEdit>("Picture1")->toPlainText().contains("<b>bold</b>"));
    QVERIFY(button("Next")->text().contains("&&"));
    for (const QLabel *label : window->findChildren<QLabel *>())
        QVERIFY2(label->textFormat() == Qt::PlainText || label->text().isEmpty() || !label->text().contains('<'),
                 qPrintable(label->objectName()));
}

void tst_ServerAssistant::longWordsDoNotWidenTheWindow_data()
{
    QTest::addColumn<QString>("place");
    QTest::addColumn<int>("length");
    for (const char *place :
         { "text", "message", "outcome", "picture", "label", "note", "choice", "configuration", "check box" }) {
        for (int length : { 200, 5000 })
            QTest::addRow("%s, %d", place, length) << place << length;
    }
}

void tst_ServerAssistant::longWordsDoNotWidenTheWindow()
{
    QFETCH(QString, place);
    QFETCH(int, length);
    show(step());
    const int ordinary = window->width();

    const QString address = longAddress(length);
    Step wide = step();
    if (place == "text")
        wide.text = "Go to " + address + " first.";
    else if (place == "picture")
        wide.pictures = { { address, QByteArray(), address } };
    else if (place == "label")
        wide.fields = { KirvField::textEdit(address, "one", QString(), QString()) };
    else if (place == "note")
        wide.fields = { KirvField::note(QString(), "one", address, QString()) };
    else if (place == "choice")
        wide.fields = { KirvField::choice("Choose", "one", address, { address }, {}, QString()) };
    else if (place == "check box")
        wide.fields = { KirvField::checkBox(address, "one", false, QString()) };
    else if (place == "configuration")
        wide.configurations = QStringList { address };
    Q_EMIT request->stepReady(wide);
    if (place == "message")
        Q_EMIT request->inputRejected("Not " + address);
    else if (place == "outcome")
        window->showOutcome("Not " + address, "Store Again");
    const auto cutOff = [this] {
        QStringList names;
        for (const KirvWrappedText *text : window->findChildren<KirvWrappedText *>()) {
            const QSizeF size = text->document()->size();
            if (text->isVisible() && (size.height() > text->height() || size.width() > text->width()))
                names << text->objectName();
        }
        return names;
    };
    if (place == "picture") // read in a thread
        KIRV_TRY(window->findChild<KirvWrappedText *>("ServerAssistant_Picture1")->toPlainText().contains("cannot"));
    KIRV_TRY_COMPARE(cutOff(), QStringList());
    QVERIFY2(window->minimumSizeHint().width() <= 600, qPrintable(QString::number(window->minimumSizeHint().width())));
    QVERIFY2(window->width() <= qMax(ordinary + 100, 650), qPrintable(QString::number(window->width())));
    QVERIFY(window->height() <= window->screen()->availableGeometry().height());
    QVERIFY(button("Close")->isVisible() && !button("Close")->visibleRegion().isEmpty());
}

void tst_ServerAssistant::aLongStepScrolls()
{
    QList<KirvField> fields;
    for (int i = 0; i < 100; ++i)
        fields << line(QString::number(i));
    Step many = step(fields);
    many.text = QString("A paragraph of the server.\n\n").repeated(100);
    show(many);
    QVERIFY(window->height() <= window->screen()->availableGeometry().height());
    const auto *area = child<QScrollArea>("Area");
    QVERIFY(area->verticalScrollBar()->maximum() > 0);
    QVERIFY(!area->horizontalScrollBar()->isVisible());
    edit("99")->setFocus();
    QVERIFY(!edit("99")->visibleRegion().isEmpty());
    // The text can be read with the keyboard alone, too.
    auto *text = child<QTextEdit>("Text");
    text->setFocus();
    text->moveCursor(QTextCursor::End);
    QTest::keyClick(text, Qt::Key_Left, Qt::ShiftModifier);
    const QPoint end = text->viewport()->mapTo(area->viewport(), text->cursorRect().center());
    QVERIFY(area->viewport()->rect().contains(end));
}

void tst_ServerAssistant::theWindowGrowsWithItsStep()
{
    show(step({ line("one") }));
    const int height = window->height();
    QList<KirvField> fields;
    for (int i = 0; i < 8; ++i)
        fields << line(QString::number(i));
    Step larger = step(fields);
    larger.text = "Words of the server. " + QString("More words. ").repeated(30);
    Q_EMIT request->stepReady(larger);
    KIRV_TRY(window->height() > height);
    KIRV_TRY(!child<QScrollArea>("Area")->verticalScrollBar()->isVisible());
    const QTextEdit *text = child<QTextEdit>("Text");
    QVERIFY(text->document()->size().height() <= text->height());
}

void tst_ServerAssistant::whatWasTypedIsSubmitted()
{
    show(step());
    QTest::keyClicks(edit("one"), "first");
    QTest::keyClicks(edit("two"), "second");
    QTest::mouseClick(button("Next"), Qt::LeftButton);
    QCOMPARE(request->calls, QStringList { "submit" });
    QCOMPARE(typed("one"), QString("first"));
    QCOMPARE(typed("two"), QString("second"));
}

void tst_ServerAssistant::whatWasTypedStaysWhenTheServerRefuses_data()
{
    QTest::addColumn<QString>("reply");
    QTest::newRow("failed") << "failed";
    QTest::newRow("input rejected") << "rejected";
}

void tst_ServerAssistant::whatWasTypedStaysWhenTheServerRefuses()
{
    QFETCH(QString, reply);
    show(step());
    QTest::keyClicks(edit("one"), "first");
    Q_EMIT request->waiting("Sending…");
    QCOMPARE(message(), QString("Sending…"));
    QVERIFY(!child<QLabel>("MessageIcon")->isVisible());
    if (reply == "failed")
        Q_EMIT request->failed(KirvFailure(KirvFailure::NameInUse, "first"));
    else
        Q_EMIT request->inputRejected("That is not possible.");
    QVERIFY(message().contains(reply == "failed" ? "in use" : "not possible"));
    QVERIFY(child<QLabel>("MessageIcon")->isVisible());
    QCOMPARE(edit("one")->text(), QString("first"));
    QVERIFY(button("Next")->isEnabled() && edit("one")->isEnabled());
}

void tst_ServerAssistant::goingBackPassesOnWhatWasTyped()
{
    Step second = step();
    second.canGoBack = true;
    show(second);
    QTest::keyClicks(edit("two"), "typed");
    Q_EMIT request->waiting("Sending…");
    QTest::mouseClick(button("Back"), Qt::LeftButton); // also while a reply is awaited
    QCOMPARE(request->calls, QStringList { "back" });
    QCOMPARE(typed("two"), QString("typed"));
}

void tst_ServerAssistant::aConfigurationFillsTheFields()
{
    Step first = step();
    first.configurations = QStringList { "First", "Second" };
    show(first);
    auto *box = child<QComboBox>("Configuration");
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Down);
    QCOMPARE(edit("one")->text(), QString("Second"));
    QCOMPARE(window->focusWidget(), box);
}

void tst_ServerAssistant::theConfigurationStaysChosen()
{
    Step first = step();
    first.configurations = QStringList { "First", "Second" };
    show(first);
    child<QComboBox>("Configuration")->setCurrentIndex(1);
    Q_EMIT request->stepReady(step());
    Q_EMIT request->stepReady(first);
    QCOMPARE(child<QComboBox>("Configuration")->currentText(), QString("Second"));
    first.configurations = QStringList { "Other" };
    Q_EMIT request->stepReady(first);
    QCOMPARE(child<QComboBox>("Configuration")->currentText(), QString("Other"));
}

void tst_ServerAssistant::theKeyboardStartsInTheFirstField()
{
    show(step());
    QCOMPARE(window->focusWidget(), edit("one"));
    Q_EMIT request->stepReady(step({ KirvField::note(QString(), "note", "Read.", QString()), line("three") }));
    QCOMPARE(window->focusWidget(), edit("three"));
    Q_EMIT request->stepReady(step({}));
    QCOMPARE(window->focusWidget(), button("Next"));
}

void tst_ServerAssistant::theKeyboardReturnsAfterWaiting()
{
    show(step());
    edit("two")->setFocus();
    Q_EMIT request->waiting("Sending…");
    Q_EMIT request->waiting("Still sending…");
    QVERIFY(!edit("two")->hasFocus());
    Q_EMIT request->failed(KirvFailure::TimedOut);
    QVERIFY(edit("two")->hasFocus());
}

void tst_ServerAssistant::theKeyboardStaysInAFieldThatComesAgain()
{
    show(step());
    edit("two")->setFocus();
    Q_EMIT request->waiting("Sending…");
    Q_EMIT request->stepReady(step({ line("zero"), line("one"), line("two") }));
    QCOMPARE(window->focusWidget(), edit("two"));
}

void tst_ServerAssistant::theKeyboardGoesToTheFirstWrongField_data()
{
    QTest::addColumn<bool>("isRefusedByServer");
    QTest::newRow("before it was sent") << false;
    QTest::newRow("by the server") << true;
}

void tst_ServerAssistant::theKeyboardGoesToTheFirstWrongField()
{
    QFETCH(bool, isRefusedByServer);
    KirvField year = line("year");
    year.setPattern("[0-9]*");
    KirvField needed = line("needed");
    needed.setRequired(true);
    show(step({ line("one"), year, needed }));
    edit("year")->setText("late");
    button("Next")->setFocus();
    QTest::keyClick(button("Next"), Qt::Key_Space);
    if (isRefusedByServer)
        request->serverRefuses(KirvFailure::RequestFailed);
    else
        Q_EMIT request->inputRejected("Fill in what is missing.");
    QCOMPARE(window->focusWidget(), edit("year"));
    for (const char *hint : { "KirvField_year_Hint", "KirvField_needed_Hint" })
        QVERIFY2(window->findChild<QLabel *>(hint)->isVisible(), hint);
}

void tst_ServerAssistant::theKeyboardGoesToAnErrorWithoutAField()
{
    show(step());
    button("Next")->setFocus();
    QTest::keyClick(button("Next"), Qt::Key_Space);
    request->serverRefuses(KirvFailure::TimedOut);
    QCOMPARE(window->focusWidget(), child<QTextEdit>("Message"));
    QTest::keyClick(window->focusWidget(), Qt::Key_Return); // tries again
    QCOMPARE(request->calls, QStringList({ "submit", "submit" }));
}

void tst_ServerAssistant::theKeyboardStaysInTheFormOnAnErrorWithoutAField()
{
    show(step());
    edit("two")->setFocus();
    QTest::keyClick(edit("two"), Qt::Key_Return);
    request->serverRefuses(KirvFailure::TimedOut);
    QCOMPARE(window->focusWidget(), edit("two"));
}

void tst_ServerAssistant::providersAreOffered()
{
    window->setProviders({ { "chat.example", "Chat", "https://chat.example/", QDate(2026, 1, 2) },
                           { "talk.example", QString(), "a leaflet", QDate(2025, 3, 4) } });
    Step first = step();
    first.providerField = "two";
    show(first);
    edit("two")->setFocus();
    QTest::keyClicks(edit("two"), "TALK");
    QCompleter *completer = edit("two")->completer();
    QVERIFY(completer && !edit("one")->completer());
    QCOMPARE(completer->completionCount(), 1);
    const QString shown = completer->popup()->model()->index(0, 0).data().toString();
    for (const char *part : { "talk.example", "not verified", "a leaflet", "2025" })
        QVERIFY2(shown.contains(part), qPrintable(shown));
    QTest::keyClick(completer->popup(), Qt::Key_Down);
    QTest::keyClick(completer->popup(), Qt::Key_Return);
    QCOMPARE(edit("two")->text(), QString("talk.example"));
    QVERIFY(request->calls.isEmpty());

    // A form that is made anew offers them, too.
    first.configurations = QStringList { "First" };
    Q_EMIT request->stepReady(first);
    QVERIFY(edit("two")->completer());
    Q_EMIT child<QComboBox>("Configuration")->activated(0);
    QVERIFY(edit("two")->completer());
}

void tst_ServerAssistant::providersAreOfferedFromTheKeyboard()
{
    window->setProviders({ { "chat.example", QString(), "a leaflet", QDate(2026, 1, 2) },
                           { "talk.example", QString(), "a leaflet", QDate(2026, 1, 2) } });
    Step first = step();
    first.providerField = "one";
    show(first);
    QTest::keyClick(edit("one"), Qt::Key_Down);
    KIRV_TRY(edit("one")->completer()->popup()->isVisible());
    QCOMPARE(edit("one")->completer()->completionCount(), 2);
    QVERIFY(edit("one")->accessibleDescription().contains("Down"));
}

void tst_ServerAssistant::withoutProvidersNothingIsOffered()
{
    Step first = step();
    first.providerField = "one";
    show(first);
    QVERIFY(!edit("one")->completer());
    Step second = step();
    window->setProviders({ { "chat.example", QString(), "a leaflet", QDate(2026, 1, 2) } });
    Q_EMIT request->stepReady(second); // no field is one for a provider
    QVERIFY(!edit("one")->completer() && !edit("two")->completer());
}

void tst_ServerAssistant::nothingCanBeSentTwice()
{
    show(step());
    Q_EMIT request->waiting("Sending…");
    QVERIFY(child<QProgressBar>("Progress")->isVisible());
    QVERIFY(!button("Next")->isEnabled() && !edit("one")->isEnabled() && button("Close")->isEnabled());
    QTest::keyClick(window.get(), Qt::Key_Return);
    QTest::mouseClick(button("Next"), Qt::LeftButton);
    QVERIFY(request->calls.isEmpty());
    QVERIFY(window->isVisible());
}

void tst_ServerAssistant::enterSubmits()
{
    show(step());
    QTest::keyClick(edit("one"), Qt::Key_Return);
    QCOMPARE(request->calls, QStringList { "submit" });
}

void tst_ServerAssistant::dangerousCommandsAreNotTheDefault()
{
    Step dangerous = step({});
    dangerous.isDangerous = true;
    show(dangerous);
    QVERIFY(child<QLabel>("Icon")->isVisible());
    QVERIFY(!button("Next")->isDefault() && button("Close")->isDefault());
    QCOMPARE(window->focusWidget(), button("Close"));
    QTest::keyClick(window.get(), Qt::Key_Return);
    QVERIFY(request->calls.isEmpty() && !window->isVisible());

    show(dangerous);
    QTest::mouseClick(button("Next"), Qt::LeftButton);
    QCOMPARE(request->calls, QStringList { "submit" });
    Q_EMIT request->stepReady(step());
    QVERIFY(button("Next")->isDefault() && !button("Close")->isDefault());
}

void tst_ServerAssistant::mnemonicsDoNotClash()
{
    Step whole = step({ line("one"), KirvField::checkBox("Remember", "two", false, QString()) });
    whole.command = "Register";
    whole.configurations = QStringList { "First" };
    whole.canGoBack = whole.hasPassword = true;
    show(whole);
    QStringList keys;
    for (const QAbstractButton *each : window->findChildren<QAbstractButton *>())
        keys << QKeySequence::mnemonic(each->text()).toString();
    for (const QLabel *each : window->findChildren<QLabel *>())
        keys << (each->buddy() ? QKeySequence::mnemonic(each->text()).toString() : QString());
    keys.removeAll(QString());
    QVERIFY(keys.size() >= 5);
    QCOMPARE(keys.removeDuplicates(), 0);
}

void tst_ServerAssistant::picturesAreShown()
{
    Step shown = step();
    shown.pictures = { { "Large", png({ 3000, 1000 }), QString() },
                       { "Broken", "no picture", "https://example.org/a" },
                       { "Elsewhere", QByteArray(), "https://example.org/b" } };
    show(shown);
    KIRV_TRY(child<QLabel>("Picture1") && child<QTextEdit>("Picture3")->toPlainText().contains("example.org"));
    QCOMPARE(child<QLabel>("Picture1")->pixmap(Qt::ReturnByValue).width(), 400);
    QCOMPARE(child<QLabel>("Picture1")->accessibleName(), QString("Large"));
    QVERIFY(child<QTextEdit>("Picture2")->toPlainText().contains("https://example.org/a"));
    QVERIFY(child<QTextEdit>("Picture3")->toPlainText().contains("Elsewhere"));
    Q_EMIT request->stepReady(step());
    QVERIFY(!child<QWidget>("Picture1"));
}

void tst_ServerAssistant::picturesAreBounded()
{
    Step shown = step();
    for (int i = 0; i < 100; ++i)
        shown.pictures << KirvServerRequest::Picture { "Picture", png({ 10, 10 }), QString() };
    show(shown);
    QVERIFY(child<QWidget>("Picture4") && !child<QWidget>("Picture5"));
    KIRV_TRY(child<QLabel>("Picture4"));
    QVERIFY(!child<QWidget>("Picture5"));
}

void tst_ServerAssistant::hugePicturesBlockNothing_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::newRow("picture of 16,000 x 16,000 pixels") << blank({ 16000, 16000 });
    QTest::newRow("picture of 30,000 x 30,000 pixels") << blank({ 30000, 30000 });
    QTest::newRow("picture of 8 MB") << png({ 60, 20 }) + QByteArray(8 << 20, 'x');
    QTest::newRow("picture that ends early") << png({ 3000, 3000 }).left(3000);
}

/// Whatever a server sends as a picture is read beside the window, or refused before it is decoded.
void tst_ServerAssistant::hugePicturesBlockNothing()
{
    QFETCH(QByteArray, data);
    show(step());
    Step shown = step();
    shown.pictures = { { "Picture", data, QString() }, { "Other", png({ 60, 20 }), QString() } };
    KirvLoadMeter meter;
    QTimer::singleShot(0, request.get(), [&] { Q_EMIT request->stepReady(shown); });
    QVERIFY(meter.runUntil([this] { return child<QLabel>("Picture2"); })); // the other one is read after it
    meter.report(data.size());
    if (KirvLoadMeter::measuresMemory)
        QVERIFY2(meter.peakGrowth() < 16 * 1024, qPrintable(QString::number(meter.peakGrowth())));
}

void tst_ServerAssistant::picturesAreReadOutsideTheGuiThread()
{
    Step shown = step();
    shown.pictures = { { "Picture", png({ 60, 20 }), QString() } };
    show(step());
    Q_EMIT request->stepReady(shown);
    QVERIFY(!child<QLabel>("Picture1")); // the window is there before the picture
    QVERIFY(child<QTextEdit>("Picture1")->toPlainText().contains("Picture"));
    KIRV_TRY(child<QLabel>("Picture1"));

    // Neither the next step nor the end of the window waits for one.
    Q_EMIT request->stepReady(shown);
    Q_EMIT request->stepReady(step());
    QVERIFY(QThreadPool::globalInstance()->waitForDone(kirvPatience));
    QCoreApplication::processEvents();
    QVERIFY(!child<QWidget>("Picture1"));
    Q_EMIT request->stepReady(shown);
    window.reset();
    QVERIFY(QThreadPool::globalInstance()->waitForDone(kirvPatience));
    QCoreApplication::processEvents();
}

void tst_ServerAssistant::anOutcomeStays()
{
    show(step());
    QSignalSpy triggered(window.get(), &KirvServerAssistant::outcomeCommandTriggered);
    Q_EMIT request->waiting("Sending…");
    window->showOutcome("It could not be stored.", "Store Again");
    QCOMPARE(message(), QString("It could not be stored."));
    QVERIFY(!child<QProgressBar>("Progress")->isVisible() && !edit("one")->isEnabled());
    QCOMPARE(button("Next")->text().remove('&'), QString("Store Again"));
    QCOMPARE(button("Close")->text().remove('&'), QString("Close"));
    QTest::keyClick(window.get(), Qt::Key_Return);
    QCOMPARE(triggered.size(), 1);
    QVERIFY(request->calls.isEmpty());

    window->showOutcome("Nothing can be done.", QString());
    QVERIFY(!button("Next")->isVisible() && button("Close")->isDefault());
}

void tst_ServerAssistant::theRequestMayGoFirst()
{
    Step second = step();
    second.canGoBack = true;
    second.configurations = QStringList { "First", "Second" };
    show(second);
    request.reset();
    QTest::mouseClick(button("Next"), Qt::LeftButton);
    QTest::mouseClick(button("Back"), Qt::LeftButton);
    QTest::keyClick(child<QComboBox>("Configuration"), Qt::Key_Down);
    QTest::mouseClick(button("Close"), Qt::LeftButton);
    QVERIFY(!window->isVisible());
}

QTEST_MAIN(tst_ServerAssistant)
#include "tst_server_assistant.moc"
