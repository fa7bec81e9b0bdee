// SPDX-License-Identifier: LGPL-2.1-or-later
// What is done often on the page of the client with many accounts: painting, scrolling, a keystroke, a change of state.
// Each takes at most 50 ms with 10,000 accounts. And what changes many accounts at once.
#include "benchmarks/measurement.h"

#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_account_order.h"
#include "client/kirv_account_undo.h"
#include "client/kirv_settings_window.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/accounts/kirv_account_history.h"
#include "core/store/kirv_store.h"
#include "tests/integration/kirv_client_windows.h"
#include "tests/support/kirv_load_meter.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>
#include <QTreeWidget>
#include <algorithm>
#include <cstdio>

namespace {

const int rounds = 21;
const double longestTurn = 50; // milliseconds that the page may be away for
/// More accounts are changed as a whole only: one by one takes minutes.
const int mostOneByOne = 1000;

QString idOf(int index)
{
    return QStringLiteral("user%1").arg(index, 6, 10, QLatin1Char('0'));
}

bool storeAccounts(const QString &folder, int count)
{
    KirvStore store;
    if (!store.open(folder))
        return false;
    for (int i = 0; i < count; ++i) {
        KirvAccountRecord record;
        record.key = { idOf(i), QStringLiteral("Fake") };
        record.alias = record.key.id;
        record.enabled = i >= count - 2;
        record.defaultPresence = QStringLiteral("available");
        if (!store.insertAccount(record))
            return false;
    }
    return true;
}

double slowest = 0; ///< of what was measured

/// The middle of several rounds.
QString measure(const QTreeWidget *list, const std::function<void(bool isOdd)> &work)
{
    QVector<double> times;
    for (int round = 0; round < rounds; ++round) {
        times << millisecondsOf([&] {
            work(round % 2 == 1);
            QCoreApplication::processEvents();
            list->viewport()->repaint();
        });
    }
    const double middle = median(times);
    slowest = std::max(slowest, middle);
    return formatMilliseconds(middle);
}

/// Starts the program with \a count accounts. False when it does not list them in time.
bool showAccounts(KirvClientWindows &windows, int count)
{
    windows.end();
    if (!storeAccounts(windows.profileFolder(), count))
        return false;
    windows.restart();
    return windows.isReady() && QTest::qWaitForWindowExposed(windows.client->window())
        && QTest::qWaitFor([&] { return windows.list()->topLevelItemCount() == count; }, 60000);
}

bool measureWith(int count, Table *table)
{
    KirvClientWindows windows;
    if (!showAccounts(windows, count))
        return false;
    QTreeWidget *list = windows.list();
    const QString last = idOf(count - 1);
    windows.select(last);
    KirvAccount *account = windows.account(last);
    if (!QTest::qWaitFor([&] { return account->isOnline(); }, 60000))
        return false;
    list->setFocus();
    const QString painting = measure(list, [](bool) {});
    const QString scrolling =
        measure(list, [&](bool isOdd) { list->verticalScrollBar()->setValue(isOdd ? 0 : count); });
    const QString keystroke =
        measure(list, [&](bool isOdd) { QTest::keyClick(list, isOdd ? Qt::Key_Down : Qt::Key_Up); });
    const QString state = measure(list, [&](bool isOdd) {
        account->setPresence(windows.protocol->presenceWithId(QLatin1String(isOdd ? "available" : "away"), QString()));
    });
    auto *search = windows.client->accountsPage()->findChild<QLineEdit *>(QStringLiteral("Accounts_Search"));
    const QString searching = measure(list, [&](bool isOdd) {
        if (isOdd)
            QTest::keyClick(search, Qt::Key_Escape);
        else
            QTest::keyClick(search, Qt::Key_9);
    });
    windows.protocol->server->logIn = KirvFakeServer::Refuses; // so that no question comes
    QTreeWidgetItem *row = windows.row(idOf(0));
    const QString toggle =
        measure(list, [&](bool isOdd) { row->setCheckState(0, isOdd ? Qt::Unchecked : Qt::Checked); });
    table->addRow({ QString::number(count), painting, scrolling, keystroke, state, searching, toggle });
    return true;
}

/// A change of all accounts: \a change until it returns, and what follows from the event loop until \a isOver.
void addChange(Table *table, int count, const char *name, const std::function<void()> &change,
               const std::function<bool()> &isOver)
{
    KirvLoadMeter meter;
    QElapsedTimer time;
    time.start();
    const QString call = formatMilliseconds(millisecondsOf(change));
    const bool hasEnded = meter.runUntil(isOver);
    table->addRow({ QString::number(count), QLatin1String(name), call,
                    hasEnded ? formatMilliseconds(double(time.nsecsElapsed()) / 1e6) : QStringLiteral("not in time"),
                    formatMilliseconds(meter.mostWorkMilliseconds()) });
}

bool areAllOnline(const KirvAccountCollection &accounts, bool online)
{
    const QList<KirvAccount *> all = accounts.accounts();
    return std::all_of(all.begin(), all.end(), [online](const KirvAccount *account) {
        return online ? account->isOnline() : account->connection()->state() == KirvConnection::Offline;
    });
}

/// As one change of the store, and one by one.
bool measureSeveral(int count, Table *table)
{
    KirvClientWindows windows;
    if (!showAccounts(windows, count))
        return false;
    QTreeWidget *list = windows.list();
    KirvAccountCollection &accounts = windows.client->accounts();
    const auto areOn = [&] { return areAllOnline(accounts, true); };
    const auto areOff = [&] { return areAllOnline(accounts, false); };
    const auto changeEach = [&](bool enabled) {
        const QList<KirvAccount *> all = accounts.accounts();
        for (KirvAccount *account : all)
            account->setEnabled(enabled);
    };
    addChange(
        table, count, "enable", [&] { accounts.setEnabled(accounts.accounts(), true); }, areOn);
    KirvAccountHistory &history = windows.client->window()->findChild<KirvAccountUndo *>()->history();
    const auto disableAsThePageDoes = [&] {
        history.beginStep(KirvAccountHistory::Disabling);
        accounts.setEnabled(accounts.accounts(), false);
        history.endStep();
    };
    addChange(table, count, "disable", disableAsThePageDoes, areOff);
    if (count <= mostOneByOne) {
        addChange(
            table, count, "enable, one by one", [&] { changeEach(true); }, areOn);
        addChange(
            table, count, "disable, one by one", [&] { changeEach(false); }, areOff);
    }
    auto *order = list->findChild<KirvAccountOrder *>();
    order->setOwn(true);
    list->setCurrentItem(list->topLevelItem(count / 2));
    for (int row = count / 2; row < count; ++row)
        list->topLevelItem(row)->setSelected(true);
    list->scrollToTop();
    const auto isMoved = [&] { return windows.rowIds().first() == idOf(count / 2); };
    addChange(
        table, count, "move the lower half to the top", [&] { order->moveSelection(QPoint(60, 3)); }, isMoved);
    return true;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    Table table({ QStringLiteral("rows"), QStringLiteral("painting"), QStringLiteral("scrolling"),
                  QStringLiteral("keystroke"), QStringLiteral("change of state"), QStringLiteral("search"),
                  QStringLiteral("toggle") });
    for (const int count : { 10, 1000, 10000 }) {
        if (!measureWith(count, &table)) {
            std::fprintf(stderr, "The client with %d accounts could not be started.\n", count);
            return 1;
        }
    }
    table.print(QStringLiteral("The page of the client, in milliseconds"));
    for (const int count : { 1000, 10000 }) {
        Table several({ QStringLiteral("rows"), QStringLiteral("change"), QStringLiteral("call"), QStringLiteral("all"),
                        QStringLiteral("most work in a turn") });
        if (!measureSeveral(count, &several)) {
            std::fprintf(stderr, "The client with %d accounts could not be started.\n", count);
            return 1;
        }
        several.print(QStringLiteral("Many accounts changed at once, in milliseconds"));
    }
    if (slowest <= longestTurn)
        return 0;
    std::fprintf(stderr, "The page was away for %s ms, and not for %s at most.\n",
                 qPrintable(formatMilliseconds(slowest)), qPrintable(formatMilliseconds(longestTurn)));
    return 1;
}
