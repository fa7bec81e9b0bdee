// SPDX-License-Identifier: LGPL-2.1-or-later
#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_account_row_delegate.h"
#include "client/kirv_account_status.h"
#include "client/kirv_event_delegate.h"
#include "client/kirv_settings_window.h"
#include "core/accounts/kirv_account.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/plugins/kirv_plugin_loader.h"
#include "core/protocol/kirv_login_step.h"
#include "host/kirv_account_manager.h"
#include "tests/integration/kirv_client_windows.h"
#include "tests/support/kirv_patience.h"

#include <QHeaderView>
#include <QImage>
#include <QListWidget>
#include <QMap>
#include <QStyle>
#include <QStyleOptionViewItem>
#include <QTreeWidget>
#include <QtTest>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

using Windows = KirvClientWindows;

qreal lightness(const QColor &color)
{
    const auto linear = [](qreal value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

/// From 1, the same, to 21, black and white.
qreal contrast(const QColor &one, const QColor &other)
{
    const qreal brighter = std::max(lightness(one), lightness(other));
    return (brighter + 0.05) / (std::min(lightness(one), lightness(other)) + 0.05);
}

/// The contrast between \a paper and what stands out most from it in \a area of \a image.
qreal strongest(const QImage &image, const QRect &area, const QColor &paper)
{
    qreal most = 1;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            most = std::max(most, contrast(image.pixelColor(x, y), paper));
    }
    return most;
}

/// Those that styles use, as light and dark themes have them.
struct Colors {
    const char *name;
    QColor base;
    QColor alternate; ///< of every other row
    QColor text;
};

QList<Colors> themes()
{
    return { { "black on white", Qt::white, QColor(245, 245, 245), Qt::black },
             { "grey on nearly white", QColor(252, 252, 252), QColor(239, 240, 241), QColor(35, 38, 41) },
             { "light grey on nearly black", QColor(27, 30, 32), QColor(35, 38, 41), QColor(239, 240, 241) } };
}

void setColors(QWidget *list, const Colors &colors, const QColor &highlight)
{
    QPalette palette = list->palette();
    for (const QPalette::ColorGroup group : { QPalette::Active, QPalette::Inactive }) {
        palette.setColor(group, QPalette::Base, colors.base);
        palette.setColor(group, QPalette::AlternateBase, colors.alternate);
        palette.setColor(group, QPalette::Text, colors.text);
        palette.setColor(group, QPalette::Highlight, highlight);
        palette.setColor(group, QPalette::HighlightedText, Qt::white);
    }
    list->setPalette(palette);
    QFont large = list->font();
    large.setPixelSize(30); // its strokes are wider than what smooths their edges
    list->setFont(large);
}

const QColor darkBlue(20, 80, 140);

} // namespace

/// The icons and texts of each row can be made out, on light and dark rows and on the selected one.
class tst_ReadableRows : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void rowCanBeRead_data();
    void rowCanBeRead();
    void eventCanBeRead_data() { rowCanBeRead_data(); }
    void eventCanBeRead();
    void protocolCanBeRecognized_data();
    void protocolCanBeRecognized();

private:
    /// Accounts in all states, each with its id.
    static QMap<KirvAccountStatus::Kind, QString> addAccounts(Windows &windows);
    /// Looks at the row of each account, which is selected then or is not.
    static void checkRows(const Windows &windows, const QStringList &ids, bool isSelected);
    /// Whether most of the protocol's icon stands out from what is directly behind it.
    static bool isIconVisible(QTreeWidget *list, QTreeWidgetItem *row);
};

void tst_ReadableRows::rowCanBeRead_data()
{
    QTest::addColumn<int>("theme");
    QTest::addColumn<bool>("isSelected");
    for (const bool isSelected : { false, true }) {
        for (int theme = 0; theme < themes().size(); ++theme)
            QTest::addRow("%s%s", themes().at(theme).name, isSelected ? ", selected" : "") << theme << isSelected;
    }
}

QMap<KirvAccountStatus::Kind, QString> tst_ReadableRows::addAccounts(Windows &windows)
{
    const auto add = [&windows](const char *id, KirvFakeServer::Reply reply, const KirvFailure &refusal) {
        windows.protocol->server->logIn = reply;
        windows.protocol->server->refusal = refusal;
        return windows.addAccount(QLatin1String(id));
    };
    add("ann", KirvFakeServer::Accepts, KirvFailure());
    add("bob", KirvFakeServer::Accepts, KirvFailure())->setEnabled(false);
    add("cleo", KirvFakeServer::Refuses, KirvFailure::WrongPassword);
    add("eve", KirvFakeServer::Holds, KirvFailure());
    add("finn", KirvFakeServer::Refuses, KirvFailure::ConnectionRefused);
    KirvAccount *offline = add("gus", KirvFakeServer::Accepts, KirvFailure());
    offline->setPresence(windows.protocol->presenceWithId(QStringLiteral("offline"), QString()));
    auto *other = new KirvFakeProtocol(QStringLiteral("Other"));
    windows.client->plugins().addProtocol(other);
    const QString dan = QStringLiteral("dan");
    KirvAccountManager::getInstance()->createAccount(dan, dan, QString(), true, other, other->presences().first(),
                                                     other->accountSettings());
    windows.client->accounts().protocolAboutToBeUnloaded(QStringLiteral("Other"));
    windows.client->accountsPage()->updateAccounts();
    Windows::settle();
    QMap<KirvAccountStatus::Kind, QString> ids;
    const QList<KirvAccount *> all = windows.client->accounts().accounts();
    for (const KirvAccount *account : all)
        ids.insert(KirvAccountStatus(*account, false).kind(), account->key().id);
    return ids;
}

void tst_ReadableRows::rowCanBeRead()
{
    QFETCH(int, theme);
    QFETCH(bool, isSelected);
    Windows windows;
    QVERIFY(windows.isReady());
    const QMap<KirvAccountStatus::Kind, QString> ids = addAccounts(windows);
    for (int kind = KirvAccountStatus::Connected; kind <= KirvAccountStatus::NotLoaded; ++kind)
        QVERIFY2(ids.contains(KirvAccountStatus::Kind(kind)), QByteArray::number(kind).constData());

    windows.list()->header()->resizeSection(0, 550);
    windows.client->window()->resize(900, 700);
    Colors colors = themes().at(theme);
    for (int alternation = 0; alternation < 2; ++alternation) { // each state on both colours
        setColors(windows.list(), colors, darkBlue);
        checkRows(windows, ids.values(), isSelected);
        std::swap(colors.base, colors.alternate);
    }
}

void tst_ReadableRows::checkRows(const Windows &windows, const QStringList &ids, bool isSelected)
{
    QTreeWidget *list = windows.list();
    const auto *delegate = list->findChild<KirvAccountRowDelegate *>();
    QVERIFY(delegate);
    const int edge = list->style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, list);
    for (const QString &id : ids) {
        QTreeWidgetItem *row = windows.row(id);
        const QString another = id == QLatin1String("ann") ? QStringLiteral("bob") : QStringLiteral("ann");
        windows.select(isSelected ? id : another);
        list->scrollToItem(row);
        Windows::settle();
        const QRect cell = list->visualItemRect(row);
        const QImage image = list->viewport()->grab().toImage();
        const QRect text = delegate->textRect(list->model()->index(list->indexOfTopLevelItem(row), 0));
        const QColor paper = image.pixelColor(text.right() - 1, text.center().y());
        const QRect icon(text.left() - edge - 1, cell.top() + 2, edge, cell.height() - 4);
        const QRect upper(text.left(), cell.top() + 2, text.width() - 8, cell.height() / 2 - 4);
        const auto said = [&](const QRect &area) {
            return (id + QStringLiteral(": %1").arg(strongest(image, area, paper))).toUtf8();
        };
        QVERIFY2(strongest(image, upper, paper) >= 4.5, said(upper));
        const QRect lower = upper.translated(0, cell.height() / 2 + 2);
        QVERIFY2(strongest(image, lower, paper) >= 4.5, said(lower));
        QVERIFY2(strongest(image, icon, paper) >= 3, said(icon));
        const QRect protocol(list->columnViewportPosition(1) + 24, cell.top(), list->columnWidth(1) - 30,
                             cell.height());
        QVERIFY2(strongest(image, protocol, paper) >= 4.5, said(protocol));
    }
}

/// In the log of an account, and among the steps of a test.
void tst_ReadableRows::eventCanBeRead()
{
    QFETCH(int, theme);
    QFETCH(bool, isSelected);
    QListWidget list;
    list.setItemDelegate(new KirvEventDelegate(&list));
    setColors(&list, themes().at(theme), darkBlue);
    const QString end = QStringLiteral("12 ms");
    for (const int outcome :
         { -1, int(KirvLoginStep::Running), int(KirvLoginStep::Done), int(KirvLoginStep::Failed) }) {
        auto *item = new QListWidgetItem(QStringLiteral("Name look-up"), &list);
        item->setData(KirvEventDelegate::EndRole, end);
        if (outcome >= 0)
            item->setData(KirvEventDelegate::OutcomeRole, outcome);
    }
    list.resize(600, 400);
    list.show();
    QVERIFY(QTest::qWaitForWindowExposed(&list, kirvPatience));
    for (int i = 0; i < list.count(); ++i) {
        list.setCurrentRow(isSelected ? i : -1);
        const QRect row = list.visualItemRect(list.item(i)).adjusted(4, 4, -4, -4);
        const QImage image = list.viewport()->grab().toImage();
        const int line = list.fontMetrics().height();
        const QColor paper = image.pixelColor(row.right() + 2, row.bottom() + 2);
        const int endWidth = list.fontMetrics().horizontalAdvance(end) + 4;
        const auto check = [&](const QRect &area, qreal least) {
            const qreal most = strongest(image, area, paper);
            QVERIFY2(most >= least, qPrintable(QStringLiteral("row %1: %2").arg(i).arg(most)));
        };
        if (list.item(i)->data(KirvEventDelegate::OutcomeRole).isValid())
            check(QRect(row.left(), row.top(), line, line), 3);
        check(QRect(row.left() + line + 4, row.top(), row.width() - line - endWidth - 8, row.height()), 4.5);
        check(QRect(row.right() - endWidth, row.top(), endWidth, row.height()), 4.5);
    }
}

void tst_ReadableRows::protocolCanBeRecognized_data()
{
    QTest::addColumn<int>("theme");
    QTest::addColumn<QColor>("highlight");
    QTest::addColumn<QString>("icon");
    for (int theme = 0; theme < themes().size(); ++theme) {
        for (const char *icon : { "xmpp", "irc" }) {
            for (const QColor &highlight : { darkBlue, QColor(61, 174, 233), QColor(110, 110, 110) })
                QTest::addRow("%s of %s, %s", icon, themes().at(theme).name, qPrintable(highlight.name()))
                    << theme << highlight << QStringLiteral(KIRV_SOURCE_FOLDER "/protocols/%1/%1.svg").arg(icon);
        }
    }
}

bool tst_ReadableRows::isIconVisible(QTreeWidget *list, QTreeWidgetItem *row)
{
    const QSize size = list->iconSize();
    QStyleOptionViewItem option;
    option.initFrom(list);
    option.rect = list->visualItemRect(row);
    option.rect.setLeft(list->columnViewportPosition(1));
    option.rect.setWidth(list->columnWidth(1));
    option.features = QStyleOptionViewItem::HasDecoration | QStyleOptionViewItem::HasDisplay;
    option.decorationSize = size;
    option.decorationAlignment = Qt::AlignCenter;
    option.displayAlignment = Qt::AlignLeft | Qt::AlignVCenter;
    option.text = row->text(1);
    option.icon = row->icon(1);
    const QRect place = list->style()->subElementRect(QStyle::SE_ItemViewItemDecoration, &option, list);
    const QImage shown = list->viewport()->grab(QRect(place.topLeft(), size)).toImage();
    const QImage icon = row->icon(1).pixmap(size).toImage();
    const QPoint middle = icon.rect().center();
    QPoint nearest; // to the middle, where there is nothing of the icon
    QList<QColor> drawn;
    for (int y = 0; y < icon.height(); ++y) {
        for (int x = 0; x < icon.width(); ++x) {
            const QPoint point(x, y);
            const int alpha = icon.pixelColor(point).alpha();
            if (alpha == 255)
                drawn << shown.pixelColor(point);
            else if (alpha == 0 && (point - middle).manhattanLength() < (nearest - middle).manhattanLength())
                nearest = point;
        }
    }
    const QColor behind = shown.pixelColor(nearest);
    const auto visible = std::count_if(drawn.begin(), drawn.end(),
                                       [&behind](const QColor &color) { return contrast(color, behind) >= 3; });
    return !drawn.isEmpty() && 2 * visible > drawn.size();
}

void tst_ReadableRows::protocolCanBeRecognized()
{
    QFETCH(int, theme);
    QFETCH(QColor, highlight);
    QFETCH(QString, icon);
    Windows windows;
    windows.prepare = [&icon](KirvFakeProtocol *protocol) { protocol->iconPath = icon; };
    windows.restart();
    QVERIFY(windows.isReady());
    const QString ann = QStringLiteral("ann"), bob = QStringLiteral("bob"); // one of them on the other colour
    for (const QString &id : { ann, bob })
        windows.addAccount(id);
    QTreeWidget *list = windows.list();
    setColors(list, themes().at(theme), highlight);
    list->setIconSize(QSize(32, 32)); // with enough pixels that no edge goes through
    Windows::settle();
    for (const QString &selected : { ann, bob }) {
        windows.select(selected);
        Windows::settle();
        for (const QString &id : { ann, bob })
            QVERIFY2(isIconVisible(list, windows.row(id)), id == selected ? "selected" : "not selected");
    }
}

QTEST_MAIN(tst_ReadableRows)
#include "tst_readable_rows.moc"
