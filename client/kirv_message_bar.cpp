// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_message_bar.h"

#include "client/kirv_focus_return.h"
#include "client/kirv_plain_text.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QCursor>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {
const int mostMessages = 3;
/// In average characters. The width of the bar is no matter of its messages: their buttons stay where they are.
const int longestLine = 90;
}

KirvMessageBar::KirvMessageBar(QWidget *parent)
    : QFrame(parent)
    , area(new QScrollArea(this))
    , content(new QWidget)
    , layout(new QVBoxLayout(content))
    , focusReturn(new KirvFocusReturn(this))
{
    setObjectName(QStringLiteral("MessageBar"));
    setAccessibleName(tr("Messages"));
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    layout->setSizeConstraint(QLayout::SetNoConstraint);
    layout->setContentsMargins(layout->contentsMargins() / 2);
    layout->setSpacing(qMax(0, style()->pixelMetric(QStyle::PM_LayoutVerticalSpacing, nullptr, this)) / 2);
    content->setObjectName(QStringLiteral("MessageBar_Content"));
    content->installEventFilter(this);
    area->setObjectName(QStringLiteral("MessageBar_Area"));
    area->setAccessibleName(accessibleName());
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setWidget(content);
    area->viewport()->setAutoFillBackground(false);
    content->setAutoFillBackground(false);
    secondClick.setSingleShot(true);
    connect(&secondClick, &QTimer::timeout, this, [this] {
        if (texts.isEmpty())
            closeGaps();
        settle();
    });
    hide();
}

void KirvMessageBar::showMessage(const QString &message)
{
    showMessage(message, QString(), {});
}

void KirvMessageBar::showMessage(const QString &message, const QString &command, const std::function<void()> &action,
                                 Kind kind)
{
    const QString text = kirvPlainSentence(message);
    if (text.isEmpty() || texts.contains(text))
        return;
    settle(); // the pointer may have left unseen
    if (texts.size() == mostMessages)
        removeRow(0);
    texts << text;
    QPushButton *button = nullptr;
    if (action) {
        button = new QPushButton(command);
        button->setObjectName(QStringLiteral("MessageBar_Command"));
        connect(button, &QPushButton::clicked, this, action);
    }
    rows << createRow(text, button, kind);
    insertRow(rows.last());
    isNewestDue = true;
    if (!isPointerOver())
        chooseEdge();
    arrange();
    show();
    raise();
    showNewest();
    QAccessibleEvent news(rows.last(), QAccessible::Alert);
    QAccessible::updateAccessibility(&news);
}

void KirvMessageBar::removeMessage(const QString &message)
{
    const int index = int(texts.indexOf(kirvPlainSentence(message)));
    if (index >= 0)
        removeRow(index);
}

/// \a button may be null; the row owns it.
QWidget *KirvMessageBar::createRow(const QString &text, QWidget *button, Kind kind)
{
    auto *row = new QWidget(content);
    row->setObjectName(QStringLiteral("MessageBar_Row"));

    auto *icon = new QLabel(row);
    icon->setObjectName(QStringLiteral("MessageBar_Icon"));
    icon->setAccessibleName(kind == Problem ? tr("Problem") : tr("Information"));
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    const auto picture = kind == Problem ? QStyle::SP_MessageBoxWarning : QStyle::SP_MessageBoxInformation;
    icon->setPixmap(style()->standardIcon(picture, nullptr, this).pixmap(size, size));

    auto *label = new QLabel(row);
    label->setObjectName(QStringLiteral("MessageBar_Text"));
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setWordWrap(true);
    label->setMinimumWidth(1); // a word that is longer than the window is cut off
    label->setText(text);
    label->setForegroundRole(foregroundRole());

    auto *close = new QToolButton(row);
    close->setObjectName(QStringLiteral("MessageBar_Close"));
    close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton, nullptr, this));
    close->setAutoRaise(true);
    close->setToolTip(tr("Close this message."));
    close->setAccessibleName(tr("Close This Message"));
    connect(close, &QToolButton::clicked, this, [this, row] { removeRow(int(rows.indexOf(row))); });

    auto *parts = new QHBoxLayout(row);
    parts->setContentsMargins(0, 0, 0, 0);
    parts->addWidget(icon, 0, Qt::AlignTop);
    parts->addWidget(label, 1);
    if (button)
        parts->addWidget(button, 0, Qt::AlignTop);
    parts->addWidget(close, 0, Qt::AlignTop);
    row->setAccessibleName(text);
    return row;
}

/// The newest stands where the bar grows.
void KirvMessageBar::insertRow(QWidget *row)
{
    layout->insertWidget(isAtTop ? -1 : 0, row);
    row->show();
}

void KirvMessageBar::removeRow(int index)
{
    texts.removeAt(index);
    vacate(rows.takeAt(index));
    settle();
}

/// Its place stays as it is. The row's own button may have caused this.
void KirvMessageBar::vacate(QWidget *row)
{
    QSizePolicy policy = row->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    row->setSizePolicy(policy);
    focusReturn->leave(row, place());
    row->hide();
    gaps << row;
    if (texts.isEmpty())
        secondClick.start(QApplication::doubleClickInterval());
}

void KirvMessageBar::closeGaps()
{
    for (QWidget *row : qAsConst(gaps)) {
        layout->removeWidget(row);
        row->deleteLater();
    }
    gaps.clear();
}

/// Shows what there is, as far as no click that is on its way could hit something else then.
void KirvMessageBar::settle()
{
    if (!isPointerOver())
        closeGaps();
    if (texts.isEmpty() && gaps.isEmpty())
        hide();
    arrange();
}

bool KirvMessageBar::isPointerOver() const
{
    return isVisible() && rect().contains(mapFromGlobal(QCursor::pos()));
}

void KirvMessageBar::floatOver(QWidget *place)
{
    places.prepend(place);
    place->installEventFilter(this);
    arrange();
}

bool KirvMessageBar::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == content) {
        if (event->type() == QEvent::LayoutRequest)
            arrange();
        return QFrame::eventFilter(watched, event);
    }
    switch (event->type()) {
    case QEvent::Resize:
    case QEvent::Move:
    case QEvent::Show:
    case QEvent::Hide:
        // The place has its new geometry in its window when the layouts around it have run.
        QMetaObject::invokeMethod(this, &KirvMessageBar::arrange, Qt::QueuedConnection);
        break;
    default:
        break;
    }
    return QFrame::eventFilter(watched, event);
}

bool KirvMessageBar::event(QEvent *event)
{
    const bool isHandled = QFrame::event(event);
    if (event->type() == QEvent::Leave) {
        settle();
        showNewest();
    }
    return isHandled;
}

QWidget *KirvMessageBar::place() const
{
    const auto visible =
        std::find_if(places.begin(), places.end(), [](const auto &place) { return place && place->isVisible(); });
    return visible == places.end() ? parentWidget() : visible->data();
}

/// Where the bar may stand, in its window: a header and the check boxes of rows stay free.
QRect KirvMessageBar::room() const
{
    const QWidget *under = place();
    const int margin = style()->pixelMetric(QStyle::PM_LayoutBottomMargin, nullptr, this);
    int side = margin;
    if (const auto *view = qobject_cast<const QAbstractItemView *>(under)) {
        under = view->viewport();
        side += style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, this);
    }
    return QRect(under->mapTo(parentWidget(), QPoint()), under->size()).adjusted(side, margin, -side, -margin);
}

QRect KirvMessageBar::areaAt(bool isTop) const
{
    const QRect bounds = room();
    const int margin = style()->pixelMetric(QStyle::PM_LayoutBottomMargin, nullptr, this);
    const int frame = 2 * frameWidth();
    const int width = qMin(bounds.width(), longestLine * fontMetrics().averageCharWidth());
    const int least =
        frame + layout->contentsMargins().top() + layout->contentsMargins().bottom() + 2 * fontMetrics().lineSpacing();
    const int most = qMax((bounds.height() + 2 * margin) / 3, least);
    QRect wanted(0, 0, width, qMin(contentHeight(width - frame - scrollBarWidth()) + frame, most));
    wanted.moveCenter(bounds.center());
    if (isTop)
        wanted.moveTop(bounds.top());
    else
        wanted.moveBottom(qMax(bounds.bottom(), wanted.height()));
    return wanted;
}

/// Always kept free: buttons would move when it appears.
int KirvMessageBar::scrollBarWidth() const
{
    return area->verticalScrollBar()->sizeHint().width();
}

int KirvMessageBar::contentHeight(int width) const
{
    return layout->hasHeightForWidth() ? layout->totalHeightForWidth(width) : layout->totalSizeHint().height();
}

bool KirvMessageBar::wouldCoverPointer(bool isTop) const
{
    return areaAt(isTop).contains(parentWidget()->mapFromGlobal(QCursor::pos()));
}

/// Called when the last row is new.
void KirvMessageBar::chooseEdge()
{
    if (!parentWidget())
        return;
    const bool wasAtTop = isAtTop;
    if (isHidden())
        isAtTop = false;
    if (wouldCoverPointer(isAtTop) && !wouldCoverPointer(!isAtTop))
        isAtTop = !isAtTop;
    if (isAtTop == wasAtTop)
        return;
    layout->removeWidget(rows.last());
    insertRow(rows.last());
}

/// The rows keep their distance from the edge at which the bar stands.
void KirvMessageBar::arrange()
{
    if (!parentWidget() || (rows.isEmpty() && gaps.isEmpty()))
        return;
    QScrollBar *bar = area->verticalScrollBar();
    const int below = content->height() - area->viewport()->height() - bar->value();
    setGeometry(areaAt(isAtTop));
    area->setGeometry(contentsRect());
    const int width = area->width() - scrollBarWidth();
    content->resize(width, qMax(contentHeight(width), area->height()));
    layout->activate();
    if (!isAtTop)
        bar->setValue(content->height() - area->viewport()->height() - below);
}

/// Once, as soon as the pointer is elsewhere.
void KirvMessageBar::showNewest()
{
    if (isNewestDue && !rows.isEmpty() && !isPointerOver()) {
        isNewestDue = false;
        area->verticalScrollBar()->setValue(rows.last()->y() - layout->contentsMargins().top());
    }
}
