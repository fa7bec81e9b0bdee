// SPDX-License-Identifier: LGPL-2.1-or-later
#include "accounts_tab/kirv_accounts_tab.h"
#include "client/kirv_settings_window.h"
#include "core/accounts/kirv_account_collection.h"
#include "tests/integration/kirv_client_windows.h"
#include "tests/support/kirv_patience.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QDir>
#include <QListWidget>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QtTest>

namespace {

const QSize small(480, 360);
const int generalPage = 2;

} // namespace

/// The settings window is usable on a small screen: it can be made that small, and nothing in it is cut off.
class tst_SmallWindow : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void windowCanBeSmall_data();
    void windowCanBeSmall();

private:
    QWidget *window() const { return windows->client->window(); }
    /// The viewport that scrolls \a widget, or the window.
    const QWidget *shownIn(const QWidget *widget) const;
    /// What stands outside of its window or of the widget around it, or has less room than it needs.
    QStringList misplaced() const;

    std::unique_ptr<KirvClientWindows> windows;
    std::unique_ptr<QTemporaryDir> longFolder;
    const QByteArray shortFolder = QDir::tempPath().toLocal8Bit();
};

void tst_SmallWindow::init()
{
    // The page "General" names the folder of the profile; it must fit with a long path, too.
    QFETCH(int, page);
    if (page == generalPage) {
        longFolder = std::make_unique<QTemporaryDir>(QDir::tempPath()
                                                     + QStringLiteral("/a folder with a name of two lines at least, ")
                                                     + QString(60, QLatin1Char('m')) + QStringLiteral("-XXXXXX"));
        QVERIFY(longFolder->isValid());
        qputenv("TMPDIR", longFolder->path().toLocal8Bit());
    }
    windows = std::make_unique<KirvClientWindows>();
    QVERIFY(windows->isReady());
}

void tst_SmallWindow::cleanup()
{
    windows.reset();
    longFolder.reset();
    qputenv("TMPDIR", shortFolder);
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

const QWidget *tst_SmallWindow::shownIn(const QWidget *widget) const
{
    const QWidget *around = widget->parentWidget();
    for (; around != window(); around = around->parentWidget()) {
        const auto *area = qobject_cast<const QAbstractScrollArea *>(around->parentWidget());
        if (area && around == area->viewport())
            break;
    }
    return around;
}

QStringList tst_SmallWindow::misplaced() const
{
    QStringList names;
    const QList<QWidget *> widgets = window()->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        const QWidget *around = widget->parentWidget();
        // What is scrolled may be larger than the area around it.
        const bool isScrolled = qobject_cast<const QAbstractScrollArea *>(around->parentWidget())
            || qobject_cast<const QAbstractScrollArea *>(around);
        if (!widget->isVisible() || isScrolled)
            continue;
        const QWidget *frame = shownIn(widget);
        QRect inFrame(widget->mapTo(frame, QPoint()), widget->size());
        if (frame != window())
            inFrame = QRect(inFrame.left(), 0, inFrame.width(), 1); // it can be scrolled into view
        if (!frame->rect().contains(inFrame) || !around->rect().contains(widget->geometry()))
            names << widget->objectName() + QLatin1String(" outside");
        if (qobject_cast<const QAbstractButton *>(widget) && widget->width() < widget->minimumSizeHint().width())
            names << widget->objectName() + QLatin1String(" too narrow");
    }
    return names;
}

void tst_SmallWindow::windowCanBeSmall_data()
{
    QTest::addColumn<int>("accounts");
    QTest::addColumn<int>("page");
    QTest::addColumn<bool>("isRightToLeft");
    for (const bool isRightToLeft : { false, true }) {
        const QByteArray direction = isRightToLeft ? " from right to left" : "";
        QTest::newRow("no account" + direction) << 0 << 0 << isRightToLeft;
        QTest::newRow("one account" + direction) << 1 << 0 << isRightToLeft;
        QTest::newRow("many accounts and the search" + direction) << 12 << 0 << isRightToLeft;
        QTest::newRow("plug-ins" + direction) << 1 << 1 << isRightToLeft;
        QTest::newRow("general" + direction) << 1 << generalPage << isRightToLeft;
    }
}

void tst_SmallWindow::windowCanBeSmall()
{
    QFETCH(int, accounts);
    QFETCH(int, page);
    QFETCH(bool, isRightToLeft);
    QApplication::setLayoutDirection(isRightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    for (int i = 0; i < accounts; ++i)
        windows->addAccount(QStringLiteral("somebody%1@a.long.name.of.a.server.example.org").arg(i));
    KirvClientWindows::child<QListWidget>(window(), "Settings_Pages")->setCurrentRow(page);
    window()->resize(small);
    KirvClientWindows::settle();
    QVERIFY2(window()->minimumSizeHint().width() <= small.width(),
             qPrintable(QString::number(window()->minimumSizeHint().width())));
    QVERIFY2(window()->minimumSizeHint().height() <= small.height(),
             qPrintable(QString::number(window()->minimumSizeHint().height())));
    QCOMPARE(window()->size(), small);
    QVERIFY2(misplaced().isEmpty(), qPrintable(misplaced().join(QLatin1String(", "))));
    if (accounts > 0 && page == 0)
        QVERIFY(windows->list()->viewport()->height()
                >= windows->list()->visualItemRect(windows->list()->topLevelItem(0)).height());
}

QTEST_MAIN(tst_SmallWindow)
#include "tst_small_window.moc"
