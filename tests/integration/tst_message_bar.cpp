// SPDX-License-Identifier: LGPL-2.1-or-later
#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_message_bar.h"
#include "client/kirv_settings_window.h"
#include "tests/integration/kirv_client_windows.h"

#include <QAbstractButton>
#include <QCursor>
#include <QLabel>
#include <QListWidget>
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

private:
    QWidget *window() const { return windows->client->window(); }
    KirvMessageBar *bar() const { return windows->client->window()->messageBar(); }
    QRect areaOf(const QWidget *widget) const { return QRect(widget->mapTo(window(), QPoint()), widget->size()); }
    /// Of every visible widget but those of the bar.
    QList<QRect> areas() const;

    std::unique_ptr<KirvClientWindows> windows;
};

void tst_MessageBar::init()
{
    windows = std::make_unique<KirvClientWindows>();
    QVERIFY(windows->isReady());
    windows->addAccount(QStringLiteral("ann"));
    QVERIFY(QTest::qWaitForWindowExposed(window()));
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
        QVERIFY2(areaOf(bar()).contains(areaOf(part)), name);
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

QTEST_MAIN(tst_MessageBar)
#include "tst_message_bar.moc"
