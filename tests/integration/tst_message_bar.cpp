// SPDX-License-Identifier: LGPL-2.1-or-later
#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_message_bar.h"
#include "client/kirv_settings_window.h"
#include "tests/integration/kirv_client_windows.h"
#include "tests/support/kirv_patience.h"

#include <QAbstractButton>
#include <QCursor>
#include <QLabel>
#include <QListWidget>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyleOptionViewItem>
#include <QTreeWidget>
#include <QtTest>

/// Messages come and go without moving what is under the pointer.
class tst_MessageBar : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { windows.reset(); }

    void nothingMovesWithMessages_data();
    void nothingMovesWithMessages();
    void olderMessagesStayWhereTheyAre_data();
    void olderMessagesStayWhereTheyAre();
    void barStaysInItsWindow_data();
    void barStaysInItsWindow();
    void barFollowsItsPlace();
    void secondClickHitsNoOtherButton_data();
    void secondClickHitsNoOtherButton();
    void secondClickOnTheLastMessageHitsNoRow();
    void newMessagesMoveNothingUnderThePointer();
    void scrollBarMovesNothingUnderThePointer();
    void barGrowsAwayFromThePointer();
    void barIsBounded_data();
    void barIsBounded();
    void headerAndCheckBoxesStayFree();
    void lastRowCanBeScrolledAboveTheBar_data();
    void lastRowCanBeScrolledAboveTheBar();
    void rowStaysWhereItIsWhenTheBarGoes();
    void currentRowIsShownAboveTheBar();
    void marksOfTheTranslationStay();
    void focusReturnsWhereItWas_data();
    void focusReturnsWhereItWas();
    void focusGoesToTheListWhereThereIsNoOther_data();
    void focusGoesToTheListWhereThereIsNoOther();
    void focusElsewhereStaysThere();

private:
    void show(const QString &text)
    {
        bar()->showMessage(text, QStringLiteral("&Undo"), [this, text] {
            pressed << text;
            bar()->removeMessage(text);
        });
        KirvClientWindows::settle();
    }
    /// Of the message \a text.
    QAbstractButton *command(const QString &text) const;
    void point(const QPoint &place);
    void activate() const;
    /// A click on whatever is there.
    void click(const QPoint &place);
    QTreeWidget *list() const { return windows->list(); }
    QRect viewport() const { return areaOf(list()->viewport()); }
    /// Where the row is in the window.
    QRect rowArea(int row) const
    {
        return list()->visualItemRect(list()->topLevelItem(row)).translated(viewport().topLeft());
    }
    QWidget *window() const { return windows->client->window(); }
    KirvMessageBar *bar() const { return windows->client->window()->messageBar(); }
    QRect areaOf(const QWidget *widget) const { return QRect(widget->mapTo(window(), QPoint()), widget->size()); }
    /// Of every visible widget but those of the bar.
    QList<QRect> areas() const;

    std::unique_ptr<KirvClientWindows> windows;
    QStringList pressed;
};

void tst_MessageBar::init()
{
    pressed.clear();
    windows = std::make_unique<KirvClientWindows>();
    QVERIFY(windows->isReady());
    windows->addAccount(QStringLiteral("ann"));
    QVERIFY(QTest::qWaitForWindowExposed(window(), kirvPatience));
    QCursor::setPos(window()->mapToGlobal(QPoint(5, 5)));
}

QList<QRect> tst_MessageBar::areas() const
{
    QList<QRect> all;
    const QList<QWidget *> widgets = window()->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        if (widget->isVisible() && widget != bar() && !bar()->isAncestorOf(widget))
            all << areaOf(widget);
    }
    return all;
}

void tst_MessageBar::nothingMovesWithMessages_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("usual") << QSize(800, 600);
    QTest::newRow("small") << QSize(480, 360);
}

void tst_MessageBar::nothingMovesWithMessages()
{
    QFETCH(QSize, size);
    window()->resize(size);
    KirvClientWindows::settle();
    const QSize before = window()->size();
    const QList<QRect> places = areas();
    QVERIFY(places.size() > 10);
    for (const char *text : { "one", "two", "three", "four" }) {
        bar()->showMessage(QLatin1String(text));
        KirvClientWindows::settle();
        QCOMPARE(areas(), places);
    }
    while (bar()->isVisible()) {
        KirvClientWindows::child<QAbstractButton>(bar(), "MessageBar_Close")->click();
        KirvClientWindows::settle();
        QCOMPARE(areas(), places);
    }
    QCOMPARE(window()->size(), before);
}

/// The click that is on its way to a button must not hit another one.
void tst_MessageBar::olderMessagesStayWhereTheyAre_data()
{
    QTest::addColumn<bool>("isUnderPointer");
    QTest::newRow("at the bottom") << false;
    QTest::newRow("at the top, away from the pointer") << true;
}

void tst_MessageBar::olderMessagesStayWhereTheyAre()
{
    QFETCH(bool, isUnderPointer);
    window()->resize(800, 900); // three messages are a third of the list at most
    KirvClientWindows::settle();
    bar()->showMessage(QStringLiteral("one"));
    const QRect usual = areaOf(bar());
    const QRect list = areaOf(windows->list());
    QVERIFY(list.contains(usual));
    QVERIFY(usual.center().y() > list.center().y());
    if (isUnderPointer) {
        bar()->removeMessage(QStringLiteral("one"));
        QCursor::setPos(window()->mapToGlobal(usual.center()));
        bar()->showMessage(QStringLiteral("one"));
        QVERIFY(list.contains(areaOf(bar())));
        QVERIFY(areaOf(bar()).center().y() < list.center().y());
    }
    KirvClientWindows::settle();
    const QWidget *first = KirvClientWindows::child<QWidget>(bar(), "MessageBar_Row");
    const QRect place = areaOf(first);
    for (const char *text : { "two", "three" }) {
        bar()->showMessage(QLatin1String(text));
        KirvClientWindows::settle();
        QCOMPARE(areaOf(first), place);
    }
}

void tst_MessageBar::barStaysInItsWindow_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("text");
    QTest::newRow("many words") << QSize(700, 500) << QStringLiteral("many words ").repeated(40);
    QTest::newRow("no space") << QSize(700, 500) << QString(400, QLatin1Char('x'));
    QTest::newRow("small window") << QSize(480, 360) << QStringLiteral("many words ").repeated(10);
}

void tst_MessageBar::barStaysInItsWindow()
{
    QFETCH(QSize, size);
    QFETCH(QString, text);
    window()->resize(size);
    KirvClientWindows::settle();
    bar()->showMessage(text, QStringLiteral("Do It"), [] {});
    KirvClientWindows::settle();
    const QRect area = areaOf(bar());
    QVERIFY2(window()->rect().contains(area), qPrintable(QStringLiteral("%1 + %2").arg(area.y()).arg(area.height())));
    for (const char *name : { "MessageBar_Command", "MessageBar_Close", "MessageBar_Text" }) {
        const auto *part = KirvClientWindows::child<QWidget>(bar(), name);
        const QRect place = areaOf(part); // a long text is scrolled
        QVERIFY2(place.top() >= area.top() && place.left() >= area.left() && place.right() <= area.right(), name);
        QVERIFY2(part->height() >= part->minimumSizeHint().height(), name);
    }
    const auto *label = KirvClientWindows::child<QLabel>(bar(), "MessageBar_Text");
    QVERIFY(label->height() >= label->heightForWidth(label->width()));
}

void tst_MessageBar::barFollowsItsPlace()
{
    bar()->showMessage(QStringLiteral("one"));
    window()->resize(900, 700);
    KirvClientWindows::settle();
    QVERIFY(areaOf(windows->list()).contains(areaOf(bar())));
    auto *pages = KirvClientWindows::child<QListWidget>(window(), "Settings_Pages");
    pages->setCurrentRow(pages->count() - 1);
    KirvClientWindows::settle();
    QVERIFY(!windows->list()->isVisible());
    QVERIFY(bar()->isVisible());
    QVERIFY(areaOf(KirvClientWindows::child<QWidget>(window(), "Settings_Stack")).contains(areaOf(bar())));
}

QAbstractButton *tst_MessageBar::command(const QString &text) const
{
    const QList<QWidget *> rows = bar()->findChildren<QWidget *>(QStringLiteral("MessageBar_Row"));
    for (const QWidget *row : rows) {
        if (row->isVisible() && row->accessibleName() == text)
            return KirvClientWindows::child<QAbstractButton>(row, "MessageBar_Command");
    }
    return nullptr;
}

void tst_MessageBar::point(const QPoint &place)
{
    QCursor::setPos(window()->mapToGlobal(place));
    QTest::mouseMove(window()->windowHandle(), place); // by which widgets are entered and left
    KirvClientWindows::settle();
}

void tst_MessageBar::click(const QPoint &place)
{
    point(place);
    QWidget *hit = window()->childAt(place);
    QVERIFY(hit);
    QTest::mouseClick(hit, Qt::LeftButton, {}, hit->mapFrom(window(), place));
    KirvClientWindows::settle();
}

void tst_MessageBar::secondClickHitsNoOtherButton_data()
{
    QTest::addColumn<QString>("first");
    for (const char *text : { "one", "two", "three" })
        QTest::newRow(text) << QString::fromLatin1(text);
}

void tst_MessageBar::secondClickHitsNoOtherButton()
{
    QFETCH(QString, first);
    window()->resize(800, 900); // three messages are a third of the list at most
    KirvClientWindows::settle();
    for (const char *text : { "one", "two", "three" })
        show(QLatin1String(text));
    QVERIFY(command(first));
    const QPoint place = areaOf(command(first)).center();
    const QRect area = areaOf(bar());
    click(place);
    QCOMPARE(pressed, QStringList { first });
    QCOMPARE(areaOf(bar()), area);
    click(place);
    QCOMPARE(pressed, QStringList { first });
    QCOMPARE(int(bar()->messages().size()), 2);
    point(QPoint(5, 5));
    QVERIFY(areaOf(bar()).height() < area.height());
    for (const QString &text : bar()->messages()) {
        QVERIFY(command(text));
        QVERIFY(areaOf(bar()).contains(areaOf(command(text))));
    }
}

/// It would open the account.
void tst_MessageBar::secondClickOnTheLastMessageHitsNoRow()
{
    show(QStringLiteral("one"));
    const QPoint place = areaOf(command(QStringLiteral("one"))).center();
    click(place);
    QCOMPARE(bar()->messages(), QStringList());
    QVERIFY(bar()->isVisible());
    QVERIFY(!list()->isAncestorOf(window()->childAt(place)));
    KIRV_TRY(!bar()->isVisible()); // also when the pointer stays
    show(QStringLiteral("two"));
    click(areaOf(command(QStringLiteral("two"))).center());
    QVERIFY(bar()->isVisible());
    point(QPoint(5, 5));
    QVERIFY(!bar()->isVisible());
}

void tst_MessageBar::newMessagesMoveNothingUnderThePointer()
{
    window()->resize(800, 900); // three messages are a third of the list at most
    KirvClientWindows::settle();
    for (const char *text : { "one", "two", "three" })
        show(QLatin1String(text));
    const QAbstractButton *button = command(QStringLiteral("two"));
    QVERIFY(button);
    const QRect place = areaOf(button);
    point(place.center());
    for (const char *text : { "four", "five" }) { // "one" goes, then "two" itself
        show(QLatin1String(text));
        if (command(QStringLiteral("two")))
            QCOMPARE(areaOf(button), place);
        const QWidget *under = window()->childAt(place.center());
        QVERIFY(under == button || !qobject_cast<const QAbstractButton *>(under));
    }
    QCOMPARE(bar()->messages(), QStringList({ "three", "four", "five" }));
    point(QPoint(5, 5));
    const QRect newest = areaOf(command(QStringLiteral("five")));
    QVERIFY(areaOf(bar()).contains(newest));
}

void tst_MessageBar::scrollBarMovesNothingUnderThePointer()
{
    show(QStringLiteral("one"));
    show(QStringLiteral("two"));
    const auto *area = bar()->findChild<QScrollArea *>();
    QVERIFY(!area->verticalScrollBar()->isVisible());
    const QAbstractButton *button = command(QStringLiteral("two"));
    QVERIFY(button);
    const QRect place = areaOf(button);
    point(place.center());
    show(QStringLiteral("three"));
    QVERIFY(area->verticalScrollBar()->isVisible());
    QCOMPARE(areaOf(button), place);
}

void tst_MessageBar::barGrowsAwayFromThePointer()
{
    show(QStringLiteral("one"));
    const QPoint above(areaOf(bar()).center().x(), areaOf(bar()).top() - 5);
    QVERIFY(viewport().contains(above));
    point(above);
    show(QStringLiteral("two"));
    QVERIFY(!areaOf(bar()).contains(above));
    QVERIFY(command(QStringLiteral("one")) && command(QStringLiteral("two")));
}

void tst_MessageBar::barIsBounded_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("text");
    QTest::newRow("short") << QSize(800, 600) << QStringLiteral("short");
    QTest::newRow("long") << QSize(800, 600) << QStringLiteral("many words ").repeated(60);
    QTest::newRow("small window") << QSize(480, 360) << QStringLiteral("many words ").repeated(20);
}

void tst_MessageBar::barIsBounded()
{
    QFETCH(QSize, size);
    QFETCH(QString, text);
    window()->resize(size);
    KirvClientWindows::settle();
    for (int i = 0; i < 5; ++i) {
        const QString shown = QStringLiteral("%1 %2").arg(i).arg(text).trimmed();
        show(shown);
        const int height = areaOf(bar()).height();
        const int least = bar()->fontMetrics().lineSpacing() * 4;
        QVERIFY2(height <= qMax(viewport().height() / 3, least), qPrintable(QString::number(height)));
        QVERIFY(int(bar()->messages().size()) <= 3);
        // The newest can be used at once.
        QVERIFY(command(bar()->messages().last()));
        QVERIFY(areaOf(bar()).contains(areaOf(command(bar()->messages().last()))));
    }
}

void tst_MessageBar::headerAndCheckBoxesStayFree()
{
    for (const bool isAtTop : { false, true }) {
        if (isAtTop)
            point(viewport().center() + QPoint(0, viewport().height() / 2 - 15));
        show(QStringLiteral("one"));
        QVERIFY((areaOf(bar()).center().y() < viewport().center().y()) == isAtTop);
        QVERIFY(viewport().contains(areaOf(bar())));
        QStyleOptionViewItem option;
        option.initFrom(list());
        option.rect = rowArea(0);
        option.features = QStyleOptionViewItem::HasCheckIndicator;
        const QRect box = list()->style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, list());
        QVERIFY(box.isValid());
        QVERIFY(areaOf(bar()).left() > box.right());
        bar()->removeMessage(QStringLiteral("one"));
        QVERIFY(!bar()->isVisible());
    }
}

void tst_MessageBar::lastRowCanBeScrolledAboveTheBar_data()
{
    QTest::addColumn<int>("accounts");
    QTest::addColumn<bool>("isPerPixel");
    QTest::newRow("few") << 2 << false;
    QTest::newRow("as many as fit") << 0 << false;
    QTest::newRow("as many as fit, by pixels") << 0 << true;
    QTest::newRow("many") << 40 << false;
    QTest::newRow("many, by pixels") << 40 << true;
}

void tst_MessageBar::lastRowCanBeScrolledAboveTheBar()
{
    QFETCH(int, accounts);
    QFETCH(bool, isPerPixel);
    if (isPerPixel)
        list()->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    if (!accounts)
        accounts = viewport().height() / rowArea(0).height();
    for (int i = 1; i < accounts; ++i)
        windows->addAccount(QStringLiteral("u%1").arg(i));
    QScrollBar *scrollBar = list()->verticalScrollBar();
    scrollBar->setValue(0);
    KirvClientWindows::settle();
    const int last = list()->topLevelItemCount() - 1;
    const int ownMaximum = scrollBar->maximum();
    const bool hasScrollBar = scrollBar->isVisible();
    const QRect first = rowArea(0);
    show(QStringLiteral("one"));
    QCOMPARE(rowArea(0), first);
    QCOMPARE(scrollBar->isVisible(), hasScrollBar);
    scrollBar->setValue(scrollBar->maximum());
    QVERIFY2(rowArea(last).bottom() < areaOf(bar()).top(), qPrintable(QString::number(scrollBar->maximum())));
    QVERIFY(rowArea(last).top() >= viewport().top());
    if (accounts == 2)
        QCOMPARE(scrollBar->maximum(), ownMaximum);
    scrollBar->setValue(0);
    bar()->removeMessage(QStringLiteral("one"));
    KirvClientWindows::settle();
    QCOMPARE(scrollBar->maximum(), ownMaximum);
    QCOMPARE(list()->verticalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
}

void tst_MessageBar::rowStaysWhereItIsWhenTheBarGoes()
{
    for (int i = 1; i < 40; ++i)
        windows->addAccount(QStringLiteral("u%1").arg(i));
    const int last = list()->topLevelItemCount() - 1;
    QScrollBar *scrollBar = list()->verticalScrollBar();
    const int ownMaximum = scrollBar->maximum();
    show(QStringLiteral("one"));
    scrollBar->setValue(scrollBar->maximum());
    const QRect place = rowArea(last);
    bar()->removeMessage(QStringLiteral("one"));
    KirvClientWindows::settle();
    QCOMPARE(rowArea(last), place);
    scrollBar->setValue(0);
    QCOMPARE(scrollBar->maximum(), ownMaximum);
}

void tst_MessageBar::currentRowIsShownAboveTheBar()
{
    for (int i = 1; i < 40; ++i)
        windows->addAccount(QStringLiteral("u%1").arg(i));
    window()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window(), kirvPatience));
    show(QStringLiteral("one"));
    list()->setFocus();
    QTest::keyClick(list(), Qt::Key_End);
    KirvClientWindows::settle();
    const int last = list()->topLevelItemCount() - 1;
    QCOMPARE(list()->currentItem(), list()->topLevelItem(last));
    QVERIFY(rowArea(last).bottom() < areaOf(bar()).top());
    QVERIFY(rowArea(last).top() >= viewport().top());
}

/// Those of a name are shown where they would turn the text around.
void tst_MessageBar::marksOfTheTranslationStay()
{
    const QString mark(QChar(0x200E)), override(QChar(0x202E));
    bar()->showMessage(QStringLiteral("The file %1a%2b.json%1 was read.").arg(mark, override));
    QCOMPARE(windows->messages(), QStringList(QStringLiteral("The file %1a[U+202E]b.json%1 was read.").arg(mark)));
}

void tst_MessageBar::activate() const
{
    window()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window(), kirvPatience));
}

void tst_MessageBar::focusReturnsWhereItWas_data()
{
    QTest::addColumn<QByteArray>("before"); // has the focus
    QTest::addColumn<QByteArray>("pressed");
    QTest::addColumn<bool>("isByKey");
    QTest::newRow("click") << QByteArray("Accounts_List") << QByteArray("MessageBar_Command") << false;
    QTest::newRow("key") << QByteArray("Accounts_List") << QByteArray("MessageBar_Command") << true;
    QTest::newRow("key that closes") << QByteArray("Accounts_List") << QByteArray("MessageBar_Close") << true;
    QTest::newRow("another widget") << QByteArray("Accounts_MainAccount") << QByteArray("MessageBar_Command") << false;
}

void tst_MessageBar::focusReturnsWhereItWas()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, pressed);
    QFETCH(bool, isByKey);
    activate();
    auto *first = KirvClientWindows::child<QWidget>(window(), before);
    first->setFocus();
    QCOMPARE(window()->focusWidget(), first);
    for (const char *text : { "one", "two" }) { // also when the first one has left another
        show(QLatin1String(text));
        auto *button = KirvClientWindows::child<QAbstractButton>(command(QLatin1String(text))->parentWidget(), pressed);
        if (isByKey) {
            button->setFocus(Qt::TabFocusReason);
            QTest::keyClick(button, Qt::Key_Space);
        } else {
            click(areaOf(button).center());
        }
        KirvClientWindows::settle();
        QCOMPARE(bar()->messages(), QStringList());
        QCOMPARE(window()->focusWidget(), first);
        QVERIFY(first->hasFocus());
    }
}

void tst_MessageBar::focusGoesToTheListWhereThereIsNoOther_data()
{
    QTest::addColumn<bool>("isGone");
    QTest::newRow("nothing had it") << false;
    QTest::newRow("what had it is hidden") << true;
}

void tst_MessageBar::focusGoesToTheListWhereThereIsNoOther()
{
    QFETCH(bool, isGone);
    activate();
    auto *edit = windows->pageButton("Accounts_EditButton");
    windows->select(QStringLiteral("ann"));
    edit->setFocus();
    if (!isGone)
        edit->clearFocus();
    show(QStringLiteral("one"));
    QAbstractButton *button = command(QStringLiteral("one"));
    button->setFocus();
    QVERIFY(button->hasFocus());
    edit->hide();
    QTest::keyClick(button, Qt::Key_Space);
    KirvClientWindows::settle();
    QVERIFY(list()->hasFocus());
}

void tst_MessageBar::focusElsewhereStaysThere()
{
    activate();
    show(QStringLiteral("one"));
    command(QStringLiteral("one"))->setFocus();
    auto *selector = KirvClientWindows::child<QWidget>(window(), "Accounts_MainAccount");
    selector->setFocus();
    bar()->removeMessage(QStringLiteral("one"));
    KirvClientWindows::settle();
    QVERIFY(selector->hasFocus());
}

QTEST_MAIN(tst_MessageBar)
#include "tst_message_bar.moc"
