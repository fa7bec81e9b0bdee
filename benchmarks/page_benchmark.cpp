// SPDX-License-Identifier: LGPL-2.1-or-later
// The page beside bare Qt widgets, in one run: the same rows, the same layout, the same core in memory.
//
// "bare" does by hand what the page does by its rules: it fills the list, and whenever a row changes it asks the core
// about every row and refills the selector, with the list disabled meanwhile. "least" asks nobody and changes only the
// entry concerned.
// All of it is work of one thread that waits for nothing, so its processor time is measured.
#include "benchmarks/measurement.h"
#include "tests/consumer/client/memory_host.h"

#include "accounts_tab/kirv_accounts_tab.h"
#include "host/kirv_ui_loader.h"

#include <QAction>
#include <QApplication>
#include <QBoxLayout>
#include <QComboBox>
#include <QCommandLineParser>
#include <QDir>
#include <QHeaderView>
#include <QMenu>
#include <QMessageBox>
#include <QPixmap>
#include <QPushButton>
#include <QTemporaryDir>
#include <QToolButton>
#include <QTreeWidget>
#include <algorithm>
#include <cstdio>
#include <map>
#include <memory>
#include <numeric>
#include <random>

namespace {

const QString protocolName = QStringLiteral("Memory");

/// Something that shows the accounts of the host in a window.
class Contestant {
public:
    virtual ~Contestant() = default;

    virtual void fill() = 0;
    virtual void show() = 0;
    /// Looks the rows up once, so that this is not measured: a user has the row under the pointer.
    virtual void learnRows() = 0;
    virtual void toggle(MemoryAccount *account) = 0;
    virtual void changeAlias(MemoryAccount *account, const QString &alias) = 0;
    /// Opens the question whether to remove the account.
    virtual void askToRemove(MemoryAccount *account) = 0;

    void hide() { window->hide(); }
    void answerYes() { window->findChild<QMessageBox *>()->button(QMessageBox::Yes)->click(); }
    /// Lays out and paints what has changed.
    void settle()
    {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        window->repaint();
    }

protected:
    std::unique_ptr<QWidget> window = std::make_unique<QWidget>();
    QTreeWidget *list = nullptr;
    QComboBox *selector = nullptr;
};

class Page : public Contestant {
public:
    Page()
    {
        page = KirvAccountsTab::getInstance();
        (new QVBoxLayout(window.get()))->addWidget(page);
        list = page->findChild<QTreeWidget *>(QStringLiteral("Accounts_List"));
        removeButton = page->findChild<QToolButton *>(QStringLiteral("Accounts_RemoveButton"));
    }

    void fill() override { page->readProtocolAccounts(protocolName); }
    void show() override { window->show(); }
    void toggle(MemoryAccount *account) override
    {
        rowOf(account)->setCheckState(0, account->enabled ? Qt::Unchecked : Qt::Checked);
    }
    void changeAlias(MemoryAccount *account, const QString &alias) override
    {
        account->setAlias(alias);
        page->updateAccount(account);
    }
    void askToRemove(MemoryAccount *account) override
    {
        list->setCurrentItem(rowOf(account));
        removeButton->click();
    }

    void learnRows() override
    {
        for (int i = 0; i < list->topLevelItemCount(); ++i)
            rows[list->topLevelItem(i)->text(2)] = list->topLevelItem(i);
    }

private:
    QTreeWidgetItem *rowOf(MemoryAccount *account) { return rows.value(account->id); }

    KirvAccountsTab *page;
    QToolButton *removeButton;
    QHash<QString, QTreeWidgetItem *> rows;
};

class Bare : public Contestant {
public:
    explicit Bare(bool refills)
        : refills(refills)
    {
        QWidget *loaded = KirvUILoader::getInstance()->loadUI(QStringLiteral("Accounts"), window.get(), QString());
        list = loaded->findChild<QTreeWidget *>(QStringLiteral("Accounts_List"));
        selector = loaded->findChild<QComboBox *>(QStringLiteral("Accounts_MainAccount"));
        list->setColumnCount(4);
        list->setColumnHidden(2, true);
        list->setColumnHidden(3, true);
        list->setHeaderLabels({ QStringLiteral("Alias"), QStringLiteral("Protocol"), QStringLiteral("uid") });
        list->setItemsExpandable(true);
        list->setIndentation(0);
        list->setSortingEnabled(true);
        list->sortByColumn(0, Qt::AscendingOrder);
        list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
        auto *addButton = loaded->findChild<QToolButton *>(QStringLiteral("Accounts_AddButton"));
        addButton->setPopupMode(QToolButton::InstantPopup);
        addButton->setMenu(&addMenu);
    }

    void fill() override
    {
        MemoryHost *host = MemoryHost::current();
        icon = QIcon(host->protocol.getIconPath(0));
        addMenu.addAction(icon, protocolName);
        QList<QTreeWidgetItem *> items;
        items.reserve(host->infos().size());
        for (const KirvAccountInfo *info : host->infos()) {
            auto *row = new Row(host->account(info->getId(), protocolName));
            row->setIcon(1, icon);
            row->setCheckState(0, info->isEnabled() ? Qt::Checked : Qt::Unchecked);
            items.append(row);
        }
        list->addTopLevelItems(items);
    }

    void show() override
    {
        refill();
        window->show();
    }

    void learnRows() override
    {
        for (int i = 0; i < list->topLevelItemCount(); ++i) {
            auto *row = static_cast<Row *>(list->topLevelItem(i));
            rows.insert(row->account, row);
        }
    }

    void toggle(MemoryAccount *account) override
    {
        account->enabled = !account->enabled;
        account->refreshInfo();
        rows.value(account)->setCheckState(0, account->enabled ? Qt::Checked : Qt::Unchecked);
        if (refills)
            refillWhileDisabled();
        else if (account->enabled)
            selector->addItem(icon, account->alias, pointerTo(account));
        else
            selector->removeItem(entryOf(account));
    }

    void changeAlias(MemoryAccount *account, const QString &alias) override
    {
        account->setAlias(alias);
        rows.value(account)->setText(0, alias);
        if (refills)
            refillWhileDisabled();
        else
            selector->setItemText(entryOf(account), alias);
    }

    void askToRemove(MemoryAccount *account) override
    {
        list->setCurrentItem(rows.value(account));
        auto *box = new QMessageBox(QMessageBox::Question, QStringLiteral("Removing account"), account->alias,
                                    QMessageBox::Yes | QMessageBox::No, window.get());
        box->setAttribute(Qt::WA_DeleteOnClose);
        box->setWindowModality(Qt::WindowModal);
        QObject::connect(box, &QMessageBox::finished, window.get(), [this, account] { remove(account); });
        box->show();
    }

private:
    struct Row : QTreeWidgetItem {
        explicit Row(MemoryAccount *account)
            : QTreeWidgetItem(QStringList { account->alias, protocolName, account->id })
            , account(account)
        {
        }
        MemoryAccount *account;
    };

    static QVariant pointerTo(MemoryAccount *account) { return QVariant::fromValue(static_cast<void *>(account)); }
    int entryOf(MemoryAccount *account) const { return selector->findData(pointerTo(account)); }

    void refill()
    {
        KirvAccountManager *manager = KirvAccountManager::getInstance();
        selector->clear();
        for (int i = 0; i < list->topLevelItemCount(); ++i) {
            auto *row = static_cast<Row *>(list->topLevelItem(i));
            const bool enabled = !refills || manager->accountEnabled(row->account->id, protocolName);
            row->setCheckState(0, enabled ? Qt::Checked : Qt::Unchecked);
            if (!enabled)
                continue;
            KirvAccountConnection *account =
                refills ? manager->getAccount(row->account->id, protocolName) : row->account;
            selector->addItem(icon, row->account->alias, QVariant::fromValue(static_cast<void *>(account)));
            if (account == manager->getMainAccount())
                selector->setCurrentIndex(selector->count() - 1);
        }
    }

    /// The list is painted anew then, which takes longer than all else with few rows.
    void refillWhileDisabled()
    {
        list->setEnabled(false);
        refill();
        list->setEnabled(true);
        list->setFocus(Qt::OtherFocusReason);
    }

    void remove(MemoryAccount *account)
    {
        selector->removeItem(entryOf(account));
        delete rows.take(account);
        MemoryHost::current()->removeAccount(account->id);
    }

    bool refills;
    QMenu addMenu;
    QIcon icon;
    QHash<MemoryAccount *, Row *> rows;
};

/// Every operation takes three accounts of its own.
const int fewestRows = 9;

enum Operation { Fill, FirstShow, SecondShow, Toggle, Alias, Removal, OperationCount };
const char *const operationNames[OperationCount] = { "fill",   "first show",   "second show",
                                                     "toggle", "alias change", "removal" };
enum Side { PageSide, BareSide, LeastSide, SideCount };
const char *const sideNames[SideCount] = { "page", "bare", "least" };

/// Milliseconds of every repetition.
struct Samples {
    QVector<double> of[OperationCount][SideCount];

    double middle(int operation, int side) const { return median(of[operation][side]); }
};

/// The host's accounts, in an order that has nothing to do with their names.
QVector<MemoryAccount *> addAccounts(MemoryHost &host, int count)
{
    QVector<int> numbers(count);
    std::iota(numbers.begin(), numbers.end(), 0);
    std::shuffle(numbers.begin(), numbers.end(), std::mt19937(1));
    QVector<MemoryAccount *> accounts;
    for (const int number : numbers) {
        accounts.append(host.addAccount(QStringLiteral("user%1@example.org").arg(number, 6, 10, QLatin1Char('0')),
                                        QStringLiteral("Account %1").arg(number, 6, 10, QLatin1Char('0'))));
    }
    return accounts;
}

std::unique_ptr<Contestant> createContestant(Side side)
{
    if (side == PageSide)
        return std::make_unique<Page>();
    return std::make_unique<Bare>(side == BareSide);
}

void measure(Side side, int rowCount, const QString &iconPath, Samples &samples)
{
    MemoryHost host(QStringLiteral(KIRV_LAYOUTS));
    host.protocol.iconPath = iconPath;
    const QVector<MemoryAccount *> accounts = addAccounts(host, rowCount);
    std::unique_ptr<Contestant> contestant = createContestant(side);
    const auto take = [&](Operation operation, const std::function<void()> &work) {
        samples.of[operation][side].append(processorMillisecondsOf(work));
    };

    take(Fill, [&] { contestant->fill(); });
    take(FirstShow, [&] {
        contestant->show();
        contestant->settle();
    });
    contestant->hide();
    contestant->settle();
    take(SecondShow, [&] {
        contestant->show();
        contestant->settle();
    });
    contestant->learnRows();

    // Accounts from everywhere in the list, each used once.
    const int step = rowCount / fewestRows;
    for (int i = 0; i < 3; ++i) {
        take(Toggle, [&] {
            contestant->toggle(accounts.at(3 * i * step));
            contestant->settle();
        });
        take(Alias, [&] {
            contestant->changeAlias(accounts.at((3 * i + 1) * step), QStringLiteral("Renamed %1").arg(i));
            contestant->settle();
        });
        contestant->askToRemove(accounts.at((3 * i + 2) * step));
        contestant->settle();
        take(Removal, [&] {
            contestant->answerYes();
            contestant->settle();
        });
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

Samples measureAll(int rowCount, const QString &iconPath)
{
    const int runs = rowCount <= 100 ? 21 : rowCount <= 1000 ? 11 : rowCount <= 10000 ? 7 : 3;
    Samples samples;
    for (int run = -1; run < runs; ++run) {
        Samples unused; // the first run of all warms caches up
        for (const Side side : { PageSide, BareSide, LeastSide })
            measure(side, rowCount, iconPath, run < 0 ? unused : samples);
    }
    return samples;
}

void report(const std::map<int, Samples> &results)
{
    Table table({ QStringLiteral("operation"), QStringLiteral("rows"), QStringLiteral("page ms"),
                  QStringLiteral("bare ms"), QStringLiteral("page/bare"), QStringLiteral("page-bare ms"),
                  QStringLiteral("least ms") });
    for (int operation = 0; operation < OperationCount; ++operation) {
        for (const auto &[rowCount, samples] : results) {
            const double page = samples.middle(operation, PageSide);
            const double bare = samples.middle(operation, BareSide);
            table.addRow({ QLatin1String(operationNames[operation]), QString::number(rowCount),
                           formatMilliseconds(page), formatMilliseconds(bare), QString::number(page / bare, 'f', 2),
                           formatMilliseconds(page - bare), formatMilliseconds(samples.middle(operation, LeastSide)) });
        }
    }
    table.print(QStringLiteral("The page beside bare widgets of Qt %1 (medians of processor time)")
                    .arg(QLatin1String(qVersion())));
}

QVector<Panel> panelsOf(const std::map<int, Samples> &results)
{
    QVector<Panel> panels;
    for (int operation = 0; operation < OperationCount; ++operation) {
        Panel panel { QLatin1String(operationNames[operation]), {} };
        for (int side = 0; side < SideCount; ++side) {
            Series series { QLatin1String(sideNames[side]), {}, {} };
            for (const auto &[rowCount, samples] : results) {
                series.x.append(rowCount);
                series.y.append(samples.middle(operation, side));
            }
            panel.series.append(series);
        }
        panels.append(panel);
    }
    return panels;
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Measures the page beside bare Qt widgets."));
    parser.addHelpOption();
    parser.addOption({ QStringLiteral("large"), QStringLiteral("Also measures 100,000 rows (takes minutes).") });
    parser.addOption({ QStringLiteral("rows"), QStringLiteral("The numbers of rows, separated by commas."),
                       QStringLiteral("numbers"), QStringLiteral("10,1000,10000") });
    parser.addOption(
        { QStringLiteral("plot"), QStringLiteral("Draws the results into <file>."), QStringLiteral("file") });
    parser.process(application);

    QTemporaryDir folder;
    const QString iconPath = folder.filePath(QStringLiteral("protocol.png"));
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::darkCyan);
    pixmap.save(iconPath);

    std::map<int, Samples> results;
    for (const QString &number : parser.value(QStringLiteral("rows")).split(QLatin1Char(','))) {
        const int rowCount = number.toInt();
        if (rowCount < fewestRows) {
            std::fprintf(stderr, "--rows takes numbers from %d on\n", fewestRows);
            return 1;
        }
        results[rowCount] = measureAll(rowCount, iconPath);
    }

    report(results);
    const QString file = parser.value(QStringLiteral("plot"));
    if (!file.isEmpty()
        && !plot(file, QStringLiteral("The page beside bare widgets of Qt %1").arg(QLatin1String(qVersion())),
                 QStringLiteral("milliseconds of the processor (median) over rows"), panelsOf(results))) {
        std::fprintf(stderr, "%s cannot be written\n", qPrintable(file));
        return 1;
    }
    return 0;
}
