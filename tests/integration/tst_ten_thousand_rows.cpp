// SPDX-License-Identifier: LGPL-2.1-or-later
#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_settings_window.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/store/kirv_store.h"
#include "tests/integration/kirv_client_windows.h"
#include "tests/support/kirv_patience.h"

#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QTreeWidget>
#include <QtTest>

namespace {

const int accountCount = 10000;
QString idOf(int index)
{
    return QStringLiteral("user%1").arg(index, 5, 10, QLatin1Char('0'));
}

/// What a round cost the program: rows that were painted, and rows of the list that were said to be changed.
struct Work {
    int painted = 0;
    int changed = 0;
};

/// Paints rows as \a original does and counts them.
class CountingDelegate : public QStyledItemDelegate {
public:
    CountingDelegate(QAbstractItemDelegate *original, Work *work, QObject *parent)
        : QStyledItemDelegate(parent)
        , original(original)
        , work(work)
    {
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        work->painted += index.column() == 0;
        original->paint(painter, option, index);
    }

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        return original->sizeHint(option, index);
    }

private:
    QAbstractItemDelegate *original;
    Work *work;
};

} // namespace

/// What is done often takes no more work with very many accounts, the last of which sorts last, than with few: it
/// paints and changes what is visible.
class tst_TenThousandRows : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();

    void repaintPaintsWhatIsVisible();
    void scrollingPaintsWhatIsVisible();
    void keystrokeChangesNoRow();
    void toggleChangesItsRow();
    void changeOfStateChangesItsRow();
    void searchEnds();

private:
    template <typename Function>
    void checkWork(int mostChanged, Function function);

    std::unique_ptr<KirvClientWindows> windows;
    Work work;
};

void tst_TenThousandRows::initTestCase()
{
    windows = std::make_unique<KirvClientWindows>();
    QVERIFY(windows->isReady());
    windows->end();
    {
        KirvStore store;
        QVERIFY2(store.open(windows->options.profileFolder), qPrintable(store.lastError()));
        for (int i = 0; i < accountCount; ++i) {
            KirvAccountRecord record;
            record.key = { idOf(i), QStringLiteral("Fake") };
            record.alias = record.key.id;
            record.enabled = i >= accountCount - 2;
            record.defaultPresence = QStringLiteral("available");
            QVERIFY2(store.insertAccount(record), qPrintable(store.lastError()));
        }
    }
    windows->restart();
    QVERIFY(windows->isReady());
    QVERIFY(QTest::qWaitForWindowExposed(windows->client->window(), kirvPatience));
    KIRV_TRY_COMPARE(windows->list()->topLevelItemCount(), accountCount);
    windows->select(idOf(accountCount - 1));
    // Assistive technology receives the texts of the rows in slices.
    const QTreeWidget *list = windows->list();
    const auto isTold = [list](int row) {
        return !list->topLevelItem(row)->data(0, Qt::AccessibleTextRole).toString().isEmpty();
    };
    for (int row = 0; row < accountCount; ++row)
        KIRV_TRY(isTold(row));
    windows->list()->setItemDelegate(new CountingDelegate(windows->list()->itemDelegate(), &work, this));
    connect(
        windows->list()->model(), &QAbstractItemModel::dataChanged, this,
        [this](const QModelIndex &first, const QModelIndex &last) { work.changed += last.row() - first.row() + 1; });
}

void tst_TenThousandRows::cleanupTestCase()
{
    windows.reset();
}

/// Each of several rounds of \a function paints the visible rows at most twice and changes \a mostChanged at most.
template <typename Function>
void tst_TenThousandRows::checkWork(int mostChanged, Function function)
{
    QTreeWidget *list = windows->list();
    const int visible = list->viewport()->height() / list->visualItemRect(list->currentItem()).height() + 2;
    QVERIFY(visible < 100);
    for (int round = 0; round < 4; ++round) {
        work = Work();
        function(round);
        QVERIFY2(work.painted > 0 && work.painted <= 2 * visible, qPrintable(QString::number(work.painted)));
        QVERIFY2(work.changed <= mostChanged, qPrintable(QString::number(work.changed)));
    }
}

void tst_TenThousandRows::repaintPaintsWhatIsVisible()
{
    checkWork(0, [this](int) { windows->list()->viewport()->repaint(); });
}

void tst_TenThousandRows::scrollingPaintsWhatIsVisible()
{
    checkWork(0, [this](int round) {
        windows->list()->verticalScrollBar()->setValue(round % 2 ? 0 : accountCount);
        windows->list()->viewport()->repaint();
    });
}

void tst_TenThousandRows::keystrokeChangesNoRow()
{
    windows->list()->setFocus();
    checkWork(0, [this](int round) {
        QTest::keyClick(windows->list(), round % 2 ? Qt::Key_Down : Qt::Key_Up);
        QCoreApplication::processEvents();
        windows->list()->viewport()->repaint();
    });
}

/// Of an account that cannot log in: no question comes.
void tst_TenThousandRows::toggleChangesItsRow()
{
    windows->protocol->server->logIn = KirvFakeServer::Refuses;
    QTreeWidgetItem *row = windows->row(idOf(0));
    windows->list()->scrollToItem(row);
    checkWork(8, [this, row](int round) {
        row->setCheckState(0, round % 2 ? Qt::Unchecked : Qt::Checked);
        QCoreApplication::processEvents();
        windows->list()->viewport()->repaint();
    });
    windows->protocol->server->logIn = KirvFakeServer::Accepts;
}

void tst_TenThousandRows::changeOfStateChangesItsRow()
{
    KirvAccount *last = windows->account(idOf(accountCount - 1));
    KIRV_TRY(last->isOnline());
    checkWork(4, [this, last](int round) {
        last->setPresence(
            windows->protocol->presenceWithId(QLatin1String(round % 2 ? "available" : "away"), QString()));
        QCoreApplication::processEvents();
        windows->list()->viewport()->repaint();
    });
}

void tst_TenThousandRows::searchEnds()
{
    auto *field = windows->client->accountsPage()->findChild<QLineEdit *>(QStringLiteral("Accounts_Search"));
    const auto *count = windows->client->accountsPage()->findChild<QLabel *>(QStringLiteral("Accounts_SearchCount"));
    QTest::keyClicks(field, QStringLiteral("user0999"));
    KIRV_TRY_COMPARE(count->text(), QStringLiteral("10 of 10000"));
    QVERIFY(windows->row(idOf(0))->isHidden());
    QVERIFY(!windows->row(idOf(9995))->isHidden());
    QTest::keyClick(field, Qt::Key_Escape);
    KIRV_TRY(!windows->row(idOf(0))->isHidden() && !windows->row(idOf(9000))->isHidden());
    KIRV_TRY_COMPARE(count->text(), QString());
}

QTEST_MAIN(tst_TenThousandRows)
#include "tst_ten_thousand_rows.moc"
