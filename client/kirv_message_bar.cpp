// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_message_bar.h"

#include "client/kirv_plain_text.h"

#include <QAccessible>
#include <QCursor>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
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
    , layout(new QVBoxLayout(this))
{
    setObjectName(QStringLiteral("MessageBar"));
    setAccessibleName(tr("Messages"));
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    layout->setSizeConstraint(QLayout::SetNoConstraint);
    hide();
}

void KirvMessageBar::showMessage(const QString &message)
{
    showMessage(message, QString(), {});
}

void KirvMessageBar::showMessage(const QString &message, const QString &command, const std::function<void()> &action,
                                 Kind kind)
{
    const QString text = kirvPlainName(message);
    if (text.isEmpty() || texts.contains(text))
        return;
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
    layout->insertWidget(isAtTop ? -1 : 0, rows.last());
    if (isHidden())
        chooseEdge();
    arrange();
    show();
    raise();
    QAccessibleEvent news(rows.last(), QAccessible::Alert);
    QAccessible::updateAccessibility(&news);
}

void KirvMessageBar::removeMessage(const QString &message)
{
    const int index = int(texts.indexOf(kirvPlainName(message)));
    if (index >= 0)
        removeRow(index);
}

/// \a button may be null; the row owns it.
QWidget *KirvMessageBar::createRow(const QString &text, QWidget *button, Kind kind)
{
    auto *row = new QWidget(this);
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

void KirvMessageBar::removeRow(int index)
{
    texts.removeAt(index);
    QWidget *row = rows.takeAt(index);
    layout->removeWidget(row);
    row->hide();
    row->deleteLater(); // its own button may have caused this
    setVisible(!texts.isEmpty());
    arrange();
}

void KirvMessageBar::floatOver(QWidget *place)
{
    places.prepend(place);
    place->installEventFilter(this);
    arrange();
}

bool KirvMessageBar::eventFilter(QObject *watched, QEvent *event)
{
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
    if (event->type() == QEvent::LayoutRequest)
        arrange();
    return isHandled;
}

const QWidget *KirvMessageBar::place() const
{
    const auto visible =
        std::find_if(places.begin(), places.end(), [](const auto &place) { return place && place->isVisible(); });
    return visible == places.end() ? parentWidget() : visible->data();
}

/// As high as the messages need, also when that is more than the place has.
QRect KirvMessageBar::areaAt(bool isTop) const
{
    const QWidget *under = place();
    const int margin = style()->pixelMetric(QStyle::PM_LayoutBottomMargin, nullptr, this);
    const QRect room = QRect(under->mapTo(parentWidget(), QPoint()), under->size()).adjusted(margin, 0, -margin, 0);
    const int width = qMin(room.width(), longestLine * fontMetrics().averageCharWidth());
    QRect area(0, 0, width, heightForWidth(width));
    area.moveCenter(room.center());
    if (isTop)
        area.moveTop(room.top() + margin);
    else
        area.moveBottom(qMax(room.bottom() - margin, area.height()));
    return area;
}

void KirvMessageBar::chooseEdge()
{
    isAtTop = parentWidget() && areaAt(false).contains(parentWidget()->mapFromGlobal(QCursor::pos()));
}

void KirvMessageBar::arrange()
{
    if (parentWidget() && !texts.isEmpty())
        setGeometry(areaAt(isAtTop));
}
