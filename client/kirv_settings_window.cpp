// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_settings_window.h"

#include "client/kirv_message_bar.h"
#include "core/store/kirv_client_settings.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QScreen>
#include <QShowEvent>
#include <QStackedWidget>
#include <QStyle>
#include <QVBoxLayout>

namespace {
const QLatin1String geometryKey("settings_window/geometry");
const QLatin1String pageKey("settings_window/page");
}

KirvSettingsWindow::KirvSettingsWindow(KirvClientSettings &settings, QWidget *parent)
    : QWidget(parent)
    , settings(settings)
    , banner(new QLabel(this))
    , messages(new KirvMessageBar(this))
    , list(new QListWidget(this))
    , pages(new QStackedWidget(this))
    , quit(new QAction(this))
    , wantedRow(settings.value(pageKey).toInt())
{
    setObjectName(QStringLiteral("Settings"));
    setMainAccount(QString());

    banner->setObjectName(QStringLiteral("Settings_Banner"));
    banner->setTextFormat(Qt::PlainText);
    banner->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    banner->setWordWrap(true);
    banner->setFrameShape(QFrame::StyledPanel);
    banner->setAutoFillBackground(true);
    banner->setBackgroundRole(QPalette::AlternateBase);
    banner->setForegroundRole(QPalette::Text);
    banner->setMargin(style()->pixelMetric(QStyle::PM_LayoutLeftMargin, nullptr, this));
    banner->hide();

    list->setObjectName(QStringLiteral("Settings_Pages"));
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    const int iconSize = style()->pixelMetric(QStyle::PM_LargeIconSize, nullptr, this) * 3 / 4;
    list->setIconSize(QSize(iconSize, iconSize));
    connect(list, &QListWidget::currentRowChanged, pages, &QStackedWidget::setCurrentIndex);

    pages->setObjectName(QStringLiteral("Settings_Stack"));

    quit->setObjectName(QStringLiteral("Settings_Quit"));
    quit->setShortcuts({ QKeySequence::Quit, QKeySequence::Close });
    connect(quit, &QAction::triggered, this, &QWidget::close);
    addAction(quit);

    setTexts();
    arrange();
    restoreSize();
}

void KirvSettingsWindow::setTexts()
{
    list->setAccessibleName(tr("Pages"));
    quit->setText(tr("Quit"));
}

KirvSettingsWindow::~KirvSettingsWindow()
{
    const QString geometry = QString::fromLatin1(saveGeometry().toBase64());
    if (settings.value(geometryKey) != geometry)
        settings.setValue(geometryKey, geometry);
    const QString page = QString::number(list->currentRow());
    if (settings.value(pageKey) != page)
        settings.setValue(pageKey, page);
}

/// Each page has margins of its own; what stands beside and above them gets the same.
void KirvSettingsWindow::arrange()
{
    const int left = style()->pixelMetric(QStyle::PM_LayoutLeftMargin, nullptr, this);
    const int top = style()->pixelMetric(QStyle::PM_LayoutTopMargin, nullptr, this);
    const int bottom = style()->pixelMetric(QStyle::PM_LayoutBottomMargin, nullptr, this);

    auto *listLayout = new QVBoxLayout;
    listLayout->setContentsMargins(0, top, 0, bottom);
    listLayout->addWidget(list);
    auto *pagesLayout = new QHBoxLayout;
    pagesLayout->setSpacing(0);
    pagesLayout->addSpacing(left); // not a margin: that would stay on the left from right to left, too
    pagesLayout->addLayout(listLayout);
    pagesLayout->addWidget(pages, 1);

    auto *messageLayout = new QVBoxLayout;
    messageLayout->setContentsMargins(left, top, left, 0);
    messageLayout->setSpacing(top);
    messageLayout->addWidget(banner);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(messageLayout);
    layout->addLayout(pagesLayout, 1);
    messages->floatOver(pages);
}

void KirvSettingsWindow::addPage(QWidget *page, const QString &title, const QIcon &icon)
{
    pages->addWidget(page);
    auto *item = new QListWidgetItem(icon, title);
    item->setToolTip(title); // in a narrow window only the icon is left
    list->addItem(item);
    fitListToContents();
    const int row = list->count() - 1;
    if (row == 0 || row == wantedRow)
        list->setCurrentRow(row);
}

void KirvSettingsWindow::removePages()
{
    wantedRow = list->currentRow();
    while (pages->count() > 0) {
        QWidget *page = pages->widget(0);
        page->hide(); // the focus must not return to it when a message of its own goes with it
        delete page;
    }
    list->clear();
    setTexts();
}

void KirvSettingsWindow::showPage(QWidget *page)
{
    list->setCurrentRow(pages->indexOf(page));
}

void KirvSettingsWindow::setMainAccount(const QString &name)
{
    //: window title; %1 = name of the main account
    setWindowTitle(name.isEmpty() ? tr("Kirv – Settings") : tr("Kirv – Settings – %1").arg(name.simplified()));
}

void KirvSettingsWindow::setBanner(const QString &text)
{
    banner->setText(text);
    banner->setVisible(!text.isEmpty());
}

void KirvSettingsWindow::restoreSize()
{
    const QByteArray geometry = QByteArray::fromBase64(settings.value(geometryKey).toLatin1());
    if (geometry.isEmpty() || !restoreGeometry(geometry)) {
        const QFontMetrics metrics = fontMetrics();
        const QSize wanted(120 * metrics.averageCharWidth(), 32 * metrics.lineSpacing());
        resize(wanted.boundedTo(screen()->availableSize() * 9 / 10)); // with room for the frame
    }
}

void KirvSettingsWindow::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    // While the pages are built the window may have grown beyond the screen.
    if (!event->spontaneous())
        QMetaObject::invokeMethod(this, &KirvSettingsWindow::fitToScreen, Qt::QueuedConnection);
}

void KirvSettingsWindow::fitToScreen()
{
    const QSize available = screen()->availableSize();
    if (!isMaximized() && !isFullScreen() && size().boundedTo(available) != size())
        resize(size().boundedTo(available * 9 / 10));
}

void KirvSettingsWindow::fitListToContents()
{
    const int edges = 2 * list->frameWidth() + 2 * fontMetrics().averageCharWidth();
    list->setMinimumWidth(list->iconSize().width() + edges);
    list->setMaximumWidth(list->sizeHintForColumn(0) + edges);
}
