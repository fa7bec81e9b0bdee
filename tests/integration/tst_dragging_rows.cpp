// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_settings_window.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/store/kirv_store.h"
#include "tests/integration/kirv_client_windows.h"
#include "tests/support/kirv_patience.h"

#include <QApplication>
#include <QHeaderView>
#include <QTimer>
#include <QTreeWidget>
#include <QWindow>
#include <QtTest>

#include <functional>

namespace {

const QString ann = QStringLiteral("ann");
const QString bob = QStringLiteral("bob");
const QString cleo = QStringLiteral("cleo");
const QString dora = QStringLiteral("dora");

/// Whether something is dragged over a widget.
class DragObserver : public QObject {
public:
    explicit DragObserver(QWidget *widget) { widget->installEventFilter(this); }

    bool isOver = false;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        isOver = isOver || event->type() == QEvent::DragMove;
        return false;
    }
};

} // namespace

/// Rows are dragged with the mouse: the drag is that of the platform, which is why this test needs a display. It is run
/// with a virtual one.
class tst_DraggingRows : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void mouseDrags_data();
    void mouseDrags();
    void severalRowsAreDragged();
    void nothingIsDraggedInASortedList();

private:
    QTreeWidget *list() const { return windows->list(); }
    QStringList storedIds() const;
    /// Presses the mouse on the row of \a id, moves it to \a target in the list and releases it there.
    void drag(const QString &id, const QPoint &target);

    std::unique_ptr<KirvClientWindows> windows;
};

void tst_DraggingRows::init()
{
    windows = std::make_unique<KirvClientWindows>();
    QVERIFY(windows->isReady());
    for (const QString &id : { cleo, ann, dora, bob })
        QVERIFY(windows->addAccount(id));
    QVERIFY(QTest::qWaitForWindowExposed(windows->client->window(), kirvPatience));
    // Three clicks on the header lead to the user's own order.
    for (int click = 0; click < 3 && windows->rowIds() != QStringList({ cleo, ann, dora, bob }); ++click) {
        QTest::mouseClick(list()->header()->viewport(), Qt::LeftButton, {}, QPoint(40, list()->header()->height() / 2));
        KirvClientWindows::settle();
    }
    QCOMPARE(windows->rowIds(), QStringList({ cleo, ann, dora, bob }));
}

void tst_DraggingRows::cleanup()
{
    windows.reset();
}

QStringList tst_DraggingRows::storedIds() const
{
    QStringList ids;
    const QList<KirvAccountRecord> records = windows->client->profile().readAccounts();
    for (const KirvAccountRecord &record : records)
        ids << record.key.id;
    return ids;
}

void tst_DraggingRows::drag(const QString &id, const QPoint &target)
{
    QWindow *window = windows->client->window()->windowHandle();
    const auto inWindow = [&](const QPoint &point) {
        return list()->viewport()->mapTo(windows->client->window(), point);
    };
    const QPoint start = list()->visualItemRect(windows->row(id)).center();
    const DragObserver observer(list()->viewport());
    bool hasEnded = false;
    int moves = 0;
    // The drag runs an event loop of its own until the button is released. Each step has a timer of its own: one that
    // is being handled does not fire again in that loop.
    const std::function<void()> step = [&] {
        if (observer.isOver || ++moves > 100) { // where nothing may be dragged there is nothing to wait for
            QTest::mouseRelease(window, Qt::LeftButton, {}, inWindow(target));
            hasEnded = true;
            return;
        }
        QTimer::singleShot(5, this, step);
        QTest::mouseMove(window, inWindow(target - QPoint(moves % 2, 0)));
    };
    QTest::mousePress(window, Qt::LeftButton, {}, inWindow(start));
    QTest::mouseMove(window, inWindow(start + QPoint(1, 0)));
    QTimer::singleShot(5, this, step);
    QTest::mouseMove(window, inWindow(start + QPoint(2 * QApplication::startDragDistance(), 0)));
    KIRV_TRY(hasEnded);
    KirvClientWindows::settle();
}

void tst_DraggingRows::mouseDrags_data()
{
    QTest::addColumn<QString>("onto");
    QTest::addColumn<int>("fromCenter"); // in tenths of the height of a row
    QTest::addColumn<QStringList>("ids");
    QTest::newRow("above the middle of a row") << cleo << -2 << QStringList { dora, cleo, ann, bob };
    QTest::newRow("below the middle of a row") << cleo << 2 << QStringList { cleo, dora, ann, bob };
    QTest::newRow("onto the last row") << bob << 2 << QStringList { cleo, ann, bob, dora };
}

void tst_DraggingRows::mouseDrags()
{
    QFETCH(QString, onto);
    QFETCH(int, fromCenter);
    QFETCH(QStringList, ids);
    const QRect place = list()->visualItemRect(windows->row(onto));
    drag(dora, place.center() + QPoint(0, fromCenter * place.height() / 10));
    QCOMPARE(windows->rowIds(), ids);
    QCOMPARE(storedIds(), ids);
    for (const QString &id : ids)
        QCOMPARE(windows->row(id)->childCount(), 0); // no row is dropped onto another one
}

void tst_DraggingRows::severalRowsAreDragged()
{
    windows->select(dora);
    windows->row(cleo)->setSelected(true);
    const QRect place = list()->visualItemRect(windows->row(bob));
    drag(dora, place.center() + QPoint(0, place.height() / 5));
    QCOMPARE(windows->rowIds(), QStringList({ ann, bob, cleo, dora }));
    QCOMPARE(storedIds(), QStringList({ ann, bob, cleo, dora }));
}

void tst_DraggingRows::nothingIsDraggedInASortedList()
{
    QTest::mouseClick(list()->header()->viewport(), Qt::LeftButton, {}, QPoint(40, list()->header()->height() / 2));
    KirvClientWindows::settle();
    const QStringList shown { ann, bob, cleo, dora };
    QCOMPARE(windows->rowIds(), shown);
    drag(dora, list()->visualItemRect(windows->row(ann)).center());
    QCOMPARE(windows->rowIds(), shown);
    QCOMPARE(storedIds(), QStringList({ cleo, ann, dora, bob }));
}

QTEST_MAIN(tst_DraggingRows)
#include "tst_dragging_rows.moc"
