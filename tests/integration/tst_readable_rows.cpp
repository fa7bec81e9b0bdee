// SPDX-License-Identifier: LGPL-2.1-or-later
#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_settings_window.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/plugins/kirv_plugin_loader.h"
#include "host/kirv_account_manager.h"
#include "tests/integration/kirv_client_windows.h"

#include <QHeaderView>
#include <QImage>
#include <QTreeWidget>
#include <QtTest>

#include <algorithm>
#include <cmath>

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

} // namespace

/// The icon and both lines of each row can be read, on light and dark rows and on the selected one.
class tst_ReadableRows : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void rowCanBeRead_data();
    void rowCanBeRead();
};

void tst_ReadableRows::rowCanBeRead_data()
{
    QTest::addColumn<QColor>("base");
    QTest::addColumn<QColor>("text");
    QTest::addColumn<bool>("isSelected");
    for (const bool isSelected : { false, true }) {
        const QByteArray where = isSelected ? ", selected" : "";
        QTest::newRow("black on white" + where) << QColor(Qt::white) << QColor(Qt::black) << isSelected;
        QTest::newRow("grey on nearly white" + where) << QColor(252, 252, 252) << QColor(35, 38, 41) << isSelected;
        QTest::newRow("light grey on nearly black" + where)
            << QColor(27, 30, 32) << QColor(239, 240, 241) << isSelected;
    }
}

void tst_ReadableRows::rowCanBeRead()
{
    QFETCH(QColor, base);
    QFETCH(QColor, text);
    QFETCH(bool, isSelected);
    Windows windows;
    QVERIFY(windows.isReady());
    for (const char *id : { "ann", "bob", "cleo" })
        QVERIFY(windows.addAccount(QLatin1String(id)));
    windows.account(QStringLiteral("bob"))->setEnabled(false);
    windows.protocol->server->logIn = KirvFakeServer::Refuses;
    windows.account(QStringLiteral("cleo"))->reconnect();
    auto *other = new KirvFakeProtocol(QStringLiteral("Other"));
    QVERIFY(windows.client->plugins().addProtocol(other));
    const QString dan = QStringLiteral("dan");
    KirvAccountManager::getInstance()->createAccount(dan, dan, QString(), true, other, other->presences().first(),
                                                     other->accountSettings());
    windows.client->accounts().protocolAboutToBeUnloaded(QStringLiteral("Other"));
    windows.client->accountsPage()->updateAccounts();

    QTreeWidget *list = windows.list();
    QPalette palette = list->palette();
    for (const QPalette::ColorGroup group : { QPalette::Active, QPalette::Inactive }) {
        palette.setColor(group, QPalette::Base, base);
        palette.setColor(group, QPalette::AlternateBase, base);
        palette.setColor(group, QPalette::Text, text);
        palette.setColor(group, QPalette::Highlight, QColor(20, 80, 140));
        palette.setColor(group, QPalette::HighlightedText, Qt::white);
    }
    list->setPalette(palette);
    QFont large = list->font();
    large.setPixelSize(30); // its strokes are wider than what smooths their edges
    list->setFont(large);
    list->header()->resizeSection(0, 400);
    windows.client->window()->resize(700, 700);
    Windows::settle();

    for (const char *id : { "ann", "bob", "cleo", "dan" }) {
        QTreeWidgetItem *row = windows.row(QLatin1String(id));
        windows.select(isSelected ? QLatin1String(id) : QLatin1String(qstrcmp(id, "ann") == 0 ? "bob" : "ann"));
        list->scrollToItem(row);
        Windows::settle();
        QRect cell = list->visualItemRect(row);
        cell.setRight(list->columnViewportPosition(0) + list->columnWidth(0) - 1);
        const QImage image = list->viewport()->grab(cell).toImage();
        const QColor paper = image.pixelColor(image.width() - 3, image.height() / 2);
        const int iconEnd = list->visualItemRect(row).left() + 64;
        const QRect upper(iconEnd, 2, image.width() - iconEnd - 10, image.height() / 2 - 4);
        const QRect icon(28, 2, iconEnd - 30, image.height() - 4);
        QVERIFY2(strongest(image, upper, paper) >= 4.5, id);
        QVERIFY2(strongest(image, upper.translated(0, image.height() / 2 + 2), paper) >= 4.5,
                 qPrintable(QString::number(strongest(image, upper.translated(0, image.height() / 2 + 2), paper))));
        QVERIFY2(strongest(image, icon, paper) >= 3, id);
        QRect protocol = cell;
        protocol.setLeft(list->columnViewportPosition(1) + 24);
        protocol.setWidth(list->columnWidth(1) - 30);
        const QImage second = list->viewport()->grab(protocol).toImage();
        QVERIFY2(strongest(second, second.rect(), second.pixelColor(second.width() - 3, 3)) >= 4.5, id);
    }
}

QTEST_MAIN(tst_ReadableRows)
#include "tst_readable_rows.moc"
