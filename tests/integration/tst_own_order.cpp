// SPDX-License-Identifier: LGPL-2.1-or-later
#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_account_order.h"
#include "client/kirv_message_bar.h"
#include "client/kirv_settings_window.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/store/kirv_store.h"
#include "tests/integration/kirv_client_windows.h"
#include "tests/support/gui/kirv_scripted_answers.h"
#include "tests/support/kirv_patience.h"
#include "tests/support/store_refusal.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDropEvent>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QTreeWidget>
#include <QtTest>

namespace {

const QString ann = QStringLiteral("ann");
const QString bob = QStringLiteral("bob");
const QString cleo = QStringLiteral("cleo");
const QString dora = QStringLiteral("dora");
const QString sorted = QStringLiteral("The list is sorted by a column. Accounts can be moved only in your own order.");

} // namespace

/// The user's own order of the accounts, and sorting, which is a view of it.
class tst_OwnOrder : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void thirdClickReturnsToTheOwnOrder_data();
    void thirdClickReturnsToTheOwnOrder();
    void keysMoveTheCurrentAccount();
    void keysMoveSeveralAccounts();
    void keysMoveNothingWhileItIsSorted();
    void sortedListSaysWhyNothingMoves_data();
    void sortedListSaysWhyNothingMoves();
    void keysMoveOnceTheOwnOrderIsChosen();
    void selectingInASortedListSaysNothing();
    void movesSkipRowsThatTheSearchHides();
    void menuMoves();
    void movingReachesNoSlotOfThePage();
    void refusedMoveShowsWhatIsStored();
    void manyMovesKeepTheOrder();
    void mainAccountIsTheFirstOfTheOwnOrder();
    void removedAccountComesBackAtItsPlace();
    void dragMoves_data();
    void dragMoves();
    void severalAreDragged();
    void draggingSeveralIsOneChangeOfTheStore();
    void refusedDragOfSeveralMovesNone();
    void manyDragsOfSeveralKeepTheOrder();
    void dropFromElsewhereIsRefused();
    void sortingAndPageAreRemembered();
    void widthIsRemembered();
    void aliasHasTheRoomThatTheProtocolDoesNotNeed();

private:
    QTreeWidget *list() const { return windows->list(); }
    QMenu *menu() const { return qobject_cast<QMenu *>(QApplication::activePopupWidget()); }
    void clickHeader(int column);
    void press(const QString &id, Qt::Key key);
    void drag(const QString &id, const QString &onto, Qt::KeyboardModifiers modifiers);
    QStringList storedIds() const;
    void useOwnOrder();

    std::unique_ptr<KirvClientWindows> windows;
};

void tst_OwnOrder::init()
{
    windows = std::make_unique<KirvClientWindows>();
    QVERIFY(windows->isReady());
    for (const QString &id : { cleo, ann, dora, bob })
        windows->addAccount(id);
    windows->client->window()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(windows->client->window(), kirvPatience));
}

void tst_OwnOrder::cleanup()
{
    if (menu())
        menu()->close();
    windows.reset();
}

void tst_OwnOrder::clickHeader(int column)
{
    QHeaderView *header = list()->header();
    const QPoint place(header->sectionViewportPosition(column) + header->sectionSize(column) / 2, header->height() / 2);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, place);
    KirvClientWindows::settle();
}

void tst_OwnOrder::press(const QString &id, Qt::Key key)
{
    windows->select(id);
    list()->setFocus();
    QTest::keyClick(list(), key, Qt::AltModifier);
    KirvClientWindows::settle();
}

void tst_OwnOrder::drag(const QString &id, const QString &onto, Qt::KeyboardModifiers modifiers)
{
    QWidget *viewport = list()->viewport();
    const QPoint from = list()->visualItemRect(windows->row(id)).center();
    const QPoint to = list()->visualItemRect(windows->row(onto)).center() + QPoint(2, 2);
    QTest::mousePress(viewport, Qt::LeftButton, modifiers, from);
    QMouseEvent move(QEvent::MouseMove, to, viewport->mapToGlobal(to), Qt::NoButton, Qt::LeftButton, modifiers);
    QApplication::sendEvent(viewport, &move);
    QTest::mouseRelease(viewport, Qt::LeftButton, modifiers, to);
    KirvClientWindows::settle();
}

QStringList tst_OwnOrder::storedIds() const
{
    QStringList ids;
    const QList<KirvAccountRecord> records = windows->client->profile().readAccounts();
    for (const KirvAccountRecord &record : records)
        ids << record.key.id;
    return ids;
}

void tst_OwnOrder::useOwnOrder()
{
    clickHeader(0);
    if (windows->rowIds() != QStringList({ cleo, ann, dora, bob }))
        clickHeader(0);
    QCOMPARE(windows->rowIds(), QStringList({ cleo, ann, dora, bob }));
}

void tst_OwnOrder::thirdClickReturnsToTheOwnOrder_data()
{
    QTest::addColumn<int>("column");
    QTest::newRow("alias") << 0;
    QTest::newRow("protocol") << 1;
}

void tst_OwnOrder::thirdClickReturnsToTheOwnOrder()
{
    QFETCH(int, column);
    useOwnOrder();
    for (int round = 0; round < 2; ++round) {
        clickHeader(column);
        QCOMPARE(list()->header()->sortIndicatorSection(), column);
        QCOMPARE(list()->header()->sortIndicatorOrder(), Qt::AscendingOrder);
        if (column == 0)
            QCOMPARE(windows->rowIds(), QStringList({ ann, bob, cleo, dora }));
        clickHeader(column);
        QCOMPARE(list()->header()->sortIndicatorSection(), column);
        QCOMPARE(list()->header()->sortIndicatorOrder(), Qt::DescendingOrder);
        clickHeader(column);
        QCOMPARE(windows->rowIds(), QStringList({ cleo, ann, dora, bob }));
        QVERIFY(list()->header()->isSectionHidden(list()->header()->sortIndicatorSection()));
    }
    windows->addAccount(QStringLiteral("aaa"));
    QCOMPARE(windows->rowIds().last(), QStringLiteral("aaa"));
    QCOMPARE(storedIds().mid(0, 4), QStringList({ cleo, ann, dora, bob }));
}

void tst_OwnOrder::keysMoveTheCurrentAccount()
{
    useOwnOrder();
    press(dora, Qt::Key_Up);
    QCOMPARE(windows->rowIds(), QStringList({ cleo, dora, ann, bob }));
    QCOMPARE(list()->currentItem(), windows->row(dora));
    QCOMPARE(list()->selectedItems(), QList<QTreeWidgetItem *> { windows->row(dora) });
    press(cleo, Qt::Key_Down);
    press(cleo, Qt::Key_Down);
    press(cleo, Qt::Key_Down);
    press(cleo, Qt::Key_Down); // it is the last one
    QCOMPARE(windows->rowIds(), QStringList({ dora, ann, bob, cleo }));
    press(dora, Qt::Key_Up);
    QCOMPARE(storedIds(), QStringList({ dora, ann, bob, cleo }));
    windows->restart();
    KirvClientWindows::settle();
    QCOMPARE(windows->rowIds(), QStringList({ dora, ann, bob, cleo }));
}

/// Together, in one change of the store, and side by side as when they are dragged.
void tst_OwnOrder::keysMoveSeveralAccounts()
{
    useOwnOrder();
    windows->select(cleo);
    windows->row(ann)->setSelected(true);
    const auto pressKey = [this](Qt::Key key) {
        const int before = windows->client->profile().commitCount();
        QTest::keyClick(list(), key, Qt::AltModifier);
        KirvClientWindows::settle();
        return windows->client->profile().commitCount() - before;
    };
    list()->setFocus();
    QCOMPARE(pressKey(Qt::Key_Up), 0); // they are the first ones
    QCOMPARE(pressKey(Qt::Key_Down), 1);
    QCOMPARE(windows->rowIds(), QStringList({ dora, cleo, ann, bob }));
    QCOMPARE(int(list()->selectedItems().size()), 2);
    QCOMPARE(pressKey(Qt::Key_Down), 1);
    QCOMPARE(pressKey(Qt::Key_Down), 0);
    QCOMPARE(windows->rowIds(), QStringList({ dora, bob, cleo, ann }));
    QCOMPARE(pressKey(Qt::Key_Up), 1);
    QCOMPARE(storedIds(), QStringList({ dora, cleo, ann, bob }));
    windows->row(ann)->setSelected(false);
    windows->row(bob)->setSelected(true); // dora is between none of them, ann between both
    QCOMPARE(pressKey(Qt::Key_Up), 1);
    QCOMPARE(windows->rowIds(), QStringList({ cleo, bob, dora, ann }));
    QTest::keyRelease(list(), Qt::Key_Alt);
}

void tst_OwnOrder::keysMoveNothingWhileItIsSorted()
{
    QCOMPARE(windows->rowIds(), QStringList({ ann, bob, cleo, dora }));
    press(bob, Qt::Key_Up);
    QCOMPARE(windows->rowIds(), QStringList({ ann, bob, cleo, dora }));
    QCOMPARE(storedIds(), QStringList({ cleo, ann, dora, bob }));
}

void tst_OwnOrder::sortedListSaysWhyNothingMoves_data()
{
    QTest::addColumn<bool>("isDrag");
    QTest::newRow("keys") << false;
    QTest::newRow("drag") << true;
}

void tst_OwnOrder::sortedListSaysWhyNothingMoves()
{
    QFETCH(bool, isDrag);
    const auto moveIt = [this, isDrag] {
        if (isDrag)
            drag(ann, bob, Qt::NoModifier);
        else
            press(bob, Qt::Key_Up);
    };
    moveIt();
    QCOMPARE(windows->messages(), QStringList { sorted });
    auto *button =
        KirvClientWindows::child<QAbstractButton>(windows->client->window()->messageBar(), "MessageBar_Command");
    QVERIFY(button);
    QCOMPARE(button->text(), QStringLiteral("&Own Order"));
    button->click();
    KirvClientWindows::settle();
    QCOMPARE(windows->rowIds(), QStringList({ cleo, ann, dora, bob }));
    QCOMPARE(windows->messages(), QStringList());
    press(bob, Qt::Key_Up);
    QCOMPARE(windows->rowIds(), QStringList({ cleo, ann, bob, dora }));
    QCOMPARE(windows->messages(), QStringList());
    clickHeader(0);
    moveIt();
    QCOMPARE(windows->messages(), QStringList { sorted });
    clickHeader(0);
    clickHeader(0); // to the own order
    QCOMPARE(windows->messages(), QStringList());
}

/// The button does not keep the focus.
void tst_OwnOrder::keysMoveOnceTheOwnOrderIsChosen()
{
    clickHeader(0);
    press(bob, Qt::Key_Down);
    QCOMPARE(windows->messages(), QStringList(sorted));
    auto *own = KirvClientWindows::child<QAbstractButton>(windows->client->window(), "MessageBar_Command");
    QTest::mouseClick(own, Qt::LeftButton);
    KirvClientWindows::settle();
    QCOMPARE(windows->messages(), QStringList());
    const QStringList before = windows->rowIds();
    QCOMPARE(QApplication::focusWidget(), list());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up, Qt::AltModifier);
    KirvClientWindows::settle();
    QVERIFY(windows->rowIds() != before);
}

void tst_OwnOrder::selectingInASortedListSaysNothing()
{
    drag(ann, cleo, Qt::ShiftModifier);
    drag(ann, ann, Qt::NoModifier);
    press(bob, Qt::Key_Left);
    QCOMPARE(windows->messages(), QStringList());
}

void tst_OwnOrder::movesSkipRowsThatTheSearchHides()
{
    useOwnOrder();
    QTest::keyClick(list(), Qt::Key_F, Qt::ControlModifier);
    auto *field = KirvClientWindows::child<QLineEdit>(windows->client->accountsPage(), "Accounts_Search");
    for (const QString &id : { cleo, dora, bob })
        windows->account(id)->setAlias(QStringLiteral("of the team"));
    field->setText(QStringLiteral("team"));
    KirvClientWindows::settle();
    QVERIFY(windows->row(ann)->isHidden());
    press(dora, Qt::Key_Up);
    QCOMPARE(storedIds(), QStringList({ dora, cleo, ann, bob }));
    QVERIFY(windows->row(ann)->isHidden());
}

void tst_OwnOrder::menuMoves()
{
    windows->select(ann);
    list()->setFocus();
    QTest::keyClick(list(), Qt::Key_Menu);
    QVERIFY(!menu()->findChild<QAction *>("Accounts_MoveUpAction"));
    auto *own = menu()->findChild<QAction *>("Accounts_OwnOrderAction");
    QVERIFY(own && !own->isChecked());
    own->trigger();
    menu()->close();
    KirvClientWindows::settle();
    QCOMPARE(windows->rowIds(), QStringList({ cleo, ann, dora, bob }));
    QTest::keyClick(list(), Qt::Key_Menu);
    menu()->findChild<QAction *>("Accounts_MoveUpAction")->trigger();
    menu()->close();
    KirvClientWindows::settle();
    QCOMPARE(windows->rowIds(), QStringList({ ann, cleo, dora, bob }));
    QTest::keyClick(list(), Qt::Key_Menu);
    QVERIFY(!menu()->findChild<QAction *>("Accounts_MoveUpAction")->isEnabled());
    QVERIFY(menu()->findChild<QAction *>("Accounts_OwnOrderAction")->isChecked());
    menu()->findChild<QAction *>("Accounts_OwnOrderAction")->trigger();
    QCOMPARE(windows->rowIds(), QStringList({ ann, bob, cleo, dora }));
}

void tst_OwnOrder::movingReachesNoSlotOfThePage()
{
    int handled = 0;
    connect(list(), &QTreeWidget::itemChanged, this, [&handled] { ++handled; });
    useOwnOrder();
    press(dora, Qt::Key_Up);
    windows->addAccount(QStringLiteral("eve"));
    list()->disconnect(this);
    QCOMPARE(handled, 0);
}

void tst_OwnOrder::refusedMoveShowsWhatIsStored()
{
    useOwnOrder();
    const StoreRefusal refusal(windows->profileFolder());
    press(dora, Qt::Key_Up);
    QCOMPARE(windows->rowIds(), QStringList({ cleo, ann, dora, bob }));
    QCOMPARE(int(windows->messages().size()), 1);
}

/// More often than numbers between two others can be found.
void tst_OwnOrder::manyMovesKeepTheOrder()
{
    useOwnOrder();
    for (int i = 0; i < 80; ++i) {
        press(i % 2 ? dora : ann, Qt::Key_Down);
        press(i % 2 ? bob : dora, Qt::Key_Up);
        QCOMPARE(windows->rowIds(), storedIds());
    }
}

void tst_OwnOrder::mainAccountIsTheFirstOfTheOwnOrder()
{
    useOwnOrder();
    QCOMPARE(windows->shownMainAccount(), cleo);
    press(bob, Qt::Key_Up);
    press(bob, Qt::Key_Up);
    QCOMPARE(windows->rowIds(), QStringList({ cleo, bob, ann, dora }));
    QCOMPARE(windows->shownMainAccount(), cleo);
    windows->removeInPage(cleo);
    QCOMPARE(windows->shownMainAccount(), bob);
}

void tst_OwnOrder::removedAccountComesBackAtItsPlace()
{
    useOwnOrder();
    windows->removeInPage(ann);
    QCOMPARE(windows->rowIds(), QStringList({ cleo, dora, bob }));
    windows->client->window()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(windows->client->window(), kirvPatience));
    QTest::keyClick(list(), Qt::Key_Z, Qt::ControlModifier);
    KirvClientWindows::settle();
    QCOMPARE(windows->rowIds(), QStringList({ cleo, ann, dora, bob }));
}

void tst_OwnOrder::dragMoves_data()
{
    QTest::addColumn<QString>("onto");
    QTest::addColumn<bool>("isUpperHalf");
    QTest::addColumn<QStringList>("ids");
    QTest::newRow("before the first") << cleo << true << QStringList { dora, cleo, ann, bob };
    QTest::newRow("after the first") << cleo << false << QStringList { cleo, dora, ann, bob };
    QTest::newRow("after the last") << bob << false << QStringList { cleo, ann, bob, dora };
    QTest::newRow("onto itself") << dora << true << QStringList { cleo, ann, dora, bob };
    QTest::newRow("below all rows") << QString() << false << QStringList { cleo, ann, bob, dora };
}

void tst_OwnOrder::dragMoves()
{
    QFETCH(QString, onto);
    QFETCH(bool, isUpperHalf);
    QFETCH(QStringList, ids);
    useOwnOrder();
    QPoint target(60, list()->viewport()->height() - 3);
    if (!onto.isEmpty()) {
        const QRect place = list()->visualItemRect(windows->row(onto));
        // In the middle of the row, where the view itself would drop onto it.
        target = place.center() + QPoint(0, isUpperHalf ? -place.height() / 5 : place.height() / 5);
    }
    windows->select(dora);
    auto *order = list()->findChild<KirvAccountOrder *>();
    QVERIFY(order);
    order->moveSelection(target);
    KirvClientWindows::settle();
    QCOMPARE(windows->rowIds(), ids);
    QCOMPARE(storedIds(), ids);
    for (const QString &id : ids)
        QCOMPARE(windows->row(id)->childCount(), 0);
}

void tst_OwnOrder::severalAreDragged()
{
    useOwnOrder();
    windows->select(cleo);
    windows->row(dora)->setSelected(true);
    list()->findChild<KirvAccountOrder *>()->moveSelection(QPoint(60, list()->viewport()->height() - 3));
    KirvClientWindows::settle();
    QCOMPARE(windows->rowIds(), QStringList({ ann, bob, cleo, dora }));
    QCOMPARE(storedIds(), QStringList({ ann, bob, cleo, dora }));
    QCOMPARE(int(list()->selectedItems().size()), 2);
    clickHeader(0);
    clickHeader(0);
    list()->findChild<KirvAccountOrder *>()->moveSelection(QPoint(60, 3)); // sorted: a view moves nothing
    QCOMPARE(storedIds(), QStringList({ ann, bob, cleo, dora }));
}

void tst_OwnOrder::draggingSeveralIsOneChangeOfTheStore()
{
    useOwnOrder();
    windows->select(dora);
    windows->row(bob)->setSelected(true);
    int handled = 0;
    connect(list(), &QTreeWidget::itemChanged, this, [&handled] { ++handled; });
    const int before = windows->client->profile().commitCount();
    list()->findChild<KirvAccountOrder *>()->moveSelection(QPoint(60, 3));
    QCOMPARE(windows->rowIds(), QStringList({ dora, bob, cleo, ann }));
    KirvClientWindows::settle();
    list()->disconnect(this);
    QCOMPARE(windows->client->profile().commitCount(), before + 1);
    QCOMPARE(storedIds(), QStringList({ dora, bob, cleo, ann }));
    QCOMPARE(handled, 0);
    QVERIFY(list()->isSortingEnabled());
}

void tst_OwnOrder::refusedDragOfSeveralMovesNone()
{
    useOwnOrder();
    const StoreRefusal refusal(windows->profileFolder(),
                               QStringLiteral("OLD.id = 'bob' AND NEW.position < OLD.position"));
    windows->select(dora);
    windows->row(bob)->setSelected(true);
    list()->findChild<KirvAccountOrder *>()->moveSelection(QPoint(60, 3));
    KirvClientWindows::settle();
    QCOMPARE(windows->rowIds(), QStringList({ cleo, ann, dora, bob }));
    QCOMPARE(storedIds(), QStringList({ cleo, ann, dora, bob }));
    QCOMPARE(int(windows->messages().size()), 1);
}

/// More often than numbers between two others can be found.
void tst_OwnOrder::manyDragsOfSeveralKeepTheOrder()
{
    useOwnOrder();
    for (int i = 0; i < 80; ++i) {
        list()->clearSelection();
        const QStringList ids = windows->rowIds();
        for (const int row : { 1, 3 })
            windows->row(ids.at(row))->setSelected(true);
        const QRect second = list()->visualItemRect(windows->row(ids.at(1)));
        list()->findChild<KirvAccountOrder *>()->moveSelection(second.center() - QPoint(0, second.height() / 4));
        QCOMPARE(windows->rowIds(), QStringList({ ids.at(0), ids.at(1), ids.at(3), ids.at(2) }));
        QCOMPARE(windows->rowIds(), storedIds());
    }
}

void tst_OwnOrder::dropFromElsewhereIsRefused()
{
    useOwnOrder();
    windows->select(dora);
    QMimeData data;
    data.setData(QStringLiteral("application/x-qabstractitemmodeldatalist"), QByteArray(16, '\0'));
    QDragEnterEvent enter(QPoint(10, 5), Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.setAccepted(false);
    QApplication::sendEvent(list()->viewport(), &enter);
    QVERIFY(!enter.isAccepted());
    QCOMPARE(windows->rowIds(), QStringList({ cleo, ann, dora, bob }));
}

void tst_OwnOrder::sortingAndPageAreRemembered()
{
    clickHeader(0);
    const QStringList descending { dora, cleo, bob, ann };
    QCOMPARE(windows->rowIds(), descending);
    auto *pages = KirvClientWindows::child<QListWidget>(windows->client->window(), "Settings_Pages");
    pages->setCurrentRow(1);
    windows->restart();
    KirvClientWindows::settle();
    QCOMPARE(windows->rowIds(), descending);
    pages = KirvClientWindows::child<QListWidget>(windows->client->window(), "Settings_Pages");
    QCOMPARE(pages->currentRow(), 1);
    pages->setCurrentRow(0);
    clickHeader(0); // the third time
    QCOMPARE(windows->rowIds(), QStringList({ cleo, ann, dora, bob }));
    windows->restart();
    KirvClientWindows::settle();
    QCOMPARE(windows->rowIds(), QStringList({ cleo, ann, dora, bob }));
    QVERIFY(windows->client->accountsPage()->isVisible());
}

void tst_OwnOrder::widthIsRemembered()
{
    const int before = list()->columnWidth(1);
    list()->header()->resizeSection(1, before + 37);
    windows->restart();
    KirvClientWindows::settle();
    QCOMPARE(list()->columnWidth(1), before + 37);
}

void tst_OwnOrder::aliasHasTheRoomThatTheProtocolDoesNotNeed()
{
    const QHeaderView *header = list()->header();
    QVERIFY(header->sectionSize(1) >= static_cast<QAbstractItemView *>(list())->sizeHintForColumn(1));
    QVERIFY(header->sectionSize(1) < header->sectionSize(0) / 2);
    QCOMPARE(header->length(), list()->viewport()->width());
    // Another size of the window: the alias is as wide as there is room.
    const int alias = header->sectionSize(0), protocol = header->sectionSize(1);
    windows->client->window()->resize(windows->client->window()->width() + 60, windows->client->window()->height());
    KirvClientWindows::settle();
    QCOMPARE(header->sectionSize(0), alias + 60);
    QCOMPARE(header->sectionSize(1), protocol);
}

QTEST_MAIN(tst_OwnOrder)
#include "tst_own_order.moc"
