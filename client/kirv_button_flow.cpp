// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_button_flow.h"

#include <QEvent>
#include <QStyle>

#include <algorithm>

namespace {
/// Of text: how high a window is where several rows take no room from what is more important.
const int linesOfRoom = 26;
}

KirvButtonFlow::KirvButtonFlow(QWidget *parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
}

void KirvButtonFlow::add(QWidget *widget, bool isAtBeginning, bool isSpare)
{
    const bool isHidden = widget->isHidden() && widget->testAttribute(Qt::WA_WState_ExplicitShowHide);
    widget->setParent(this);
    widget->setVisible(!isHidden);
    items.append({ widget, isAtBeginning, isSpare });
    arrange();
}

int KirvButtonFlow::gap() const
{
    const int gap = style()->pixelMetric(QStyle::PM_LayoutHorizontalSpacing, nullptr, this);
    return gap >= 0 ? gap : style()->layoutSpacing(QSizePolicy::PushButton, QSizePolicy::PushButton, Qt::Horizontal);
}

int KirvButtonFlow::widthOf(const Row &row) const
{
    int width = row.isEmpty() ? 0 : gap() * (int(row.size()) - 1);
    for (const Item &item : row)
        width += item.widget->sizeHint().width();
    return width;
}

KirvButtonFlow::Row KirvButtonFlow::wanted(bool withSpare) const
{
    Row row;
    for (const Item &item : items) {
        if (item.isSpare ? withSpare : !item.widget->isHidden())
            row.append(item);
    }
    return row;
}

QList<KirvButtonFlow::Row> KirvButtonFlow::rowsFor(int width, bool withSpare) const
{
    QList<Row> rows;
    const Row all = wanted(withSpare);
    for (const Item &item : all) {
        if (!rows.isEmpty() && widthOf(rows.last() + Row { item }) <= width)
            rows.last().append(item);
        else
            rows.append(Row { item });
    }
    return rows;
}

int KirvButtonFlow::heightFor(int width, bool withSpare) const
{
    int height = 0;
    const QList<Row> rows = rowsFor(width, withSpare);
    for (const Row &row : rows) {
        int highest = 0;
        for (const Item &item : row)
            highest = std::max(highest, item.widget->sizeHint().height());
        height += highest + (height > 0 ? gap() : 0);
    }
    return height;
}

bool KirvButtonFlow::hasRoomForRows() const
{
    return window()->height() >= linesOfRoom * fontMetrics().lineSpacing();
}

void KirvButtonFlow::arrange()
{
    int top = 0;
    const bool hasRoom = rowsFor(width(), true).size() == 1 || hasRoomForRows();
    for (const Item &item : qAsConst(items)) {
        if (item.isSpare && item.widget->isHidden() == hasRoom)
            item.widget->setVisible(hasRoom);
    }
    const QList<Row> rows = rowsFor(width(), hasRoom);
    for (const Row &row : rows) {
        int left = 0, highest = 0;
        int restWidth = widthOf(row);
        for (const Item &item : row) {
            const QSize size = item.widget->sizeHint();
            if (!item.isAtBeginning)
                left = std::max(left, width() - restWidth);
            const QRect place(left, top, std::min(size.width(), width()), size.height());
            item.widget->setGeometry(QStyle::visualRect(layoutDirection(), rect(), place));
            left += size.width() + gap();
            restWidth -= size.width() + gap();
            highest = std::max(highest, size.height());
        }
        top += highest + gap();
    }
    if (neededHeight != heightFor(width(), hasRoom)) {
        neededHeight = heightFor(width(), hasRoom);
        updateGeometry();
    }
}

void KirvButtonFlow::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    arrange();
}

bool KirvButtonFlow::event(QEvent *event)
{
    const bool result = QWidget::event(event);
    switch (event->type()) {
    case QEvent::LayoutRequest:
        arrange();
        updateGeometry(); // one that is wider fits into the same rows
        break;
    case QEvent::Show:
        window()->installEventFilter(this);
        arrange();
        break;
    case QEvent::LayoutDirectionChange:
    case QEvent::StyleChange:
    case QEvent::FontChange:
        arrange();
        break;
    default:
        break;
    }
    return result;
}

bool KirvButtonFlow::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize && watched == window())
        arrange();
    return QWidget::eventFilter(watched, event);
}

QSize KirvButtonFlow::sizeHint() const
{
    const int wholeWidth = widthOf(wanted(true));
    const int rowWidth = isVisible() ? width() : wholeWidth;
    const bool hasRoom = rowsFor(rowWidth, true).size() == 1 || hasRoomForRows();
    return { wholeWidth, heightFor(rowWidth, hasRoom) };
}

/// Those that are never left out stand in one row where others can be.
QSize KirvButtonFlow::minimumSizeHint() const
{
    const Row needed = wanted(false);
    const bool hasSpare = std::any_of(items.begin(), items.end(), [](const Item &item) { return item.isSpare; });
    int widest = hasSpare ? widthOf(needed) : 0;
    for (const Item &item : needed)
        widest = std::max(widest, item.widget->minimumSizeHint().width());
    return { widest, heightFor(isVisible() ? std::max(width(), widest) : widthOf(needed), false) };
}
