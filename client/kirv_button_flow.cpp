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

int KirvButtonFlow::spareCount() const
{
    return int(std::count_if(items.begin(), items.end(), [](const Item &item) { return item.isSpare; }));
}

/// How many of the spare ones are not left out at \a width.
int KirvButtonFlow::spareFor(int width) const
{
    int spare = spareCount();
    if (hasRoomForRows())
        return spare;
    while (spare > 0 && widthOf(wanted(spare)) > width)
        --spare;
    return spare;
}

/// What is shown with the first \a spare of the spare ones.
KirvButtonFlow::Row KirvButtonFlow::wanted(int spare) const
{
    Row row;
    for (const Item &item : items) {
        if (item.isSpare ? spare-- > 0 : !item.widget->isHidden())
            row.append(item);
    }
    return row;
}

QList<KirvButtonFlow::Row> KirvButtonFlow::rowsFor(int width, int spare) const
{
    QList<Row> rows;
    const Row all = wanted(spare);
    for (const Item &item : all) {
        if (!rows.isEmpty() && widthOf(rows.last() + Row { item }) <= width)
            rows.last().append(item);
        else
            rows.append(Row { item });
    }
    return rows;
}

int KirvButtonFlow::heightFor(int width, int spare) const
{
    int height = 0;
    const QList<Row> rows = rowsFor(width, spare);
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
    const int spare = spareFor(width());
    int spareLeft = spare;
    for (const Item &item : qAsConst(items)) {
        if (!item.isSpare)
            continue;
        const bool isShown = spareLeft-- > 0;
        if (item.widget->isHidden() == isShown)
            item.widget->setVisible(isShown);
    }
    const QList<Row> rows = rowsFor(width(), spare);
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
    if (neededHeight != heightFor(width(), spare)) {
        neededHeight = heightFor(width(), spare);
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
        updateGeometry(); // what was asked for before did not depend on the width
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
    const int wholeWidth = widthOf(wanted(spareCount()));
    const int rowWidth = isVisible() ? width() : wholeWidth;
    return { wholeWidth, heightFor(rowWidth, spareFor(rowWidth)) };
}

/// Those that are never left out stand in one row where others can be.
QSize KirvButtonFlow::minimumSizeHint() const
{
    const Row needed = wanted(0);
    int widest = spareCount() > 0 ? widthOf(needed) : 0;
    for (const Item &item : needed)
        widest = std::max(widest, item.widget->minimumSizeHint().width());
    return { widest, heightFor(isVisible() ? std::max(width(), widest) : widthOf(needed), 0) };
}
