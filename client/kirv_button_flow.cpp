// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_button_flow.h"

#include <QStyle>
#include <QWidget>

#include <algorithm>

KirvButtonFlow::KirvButtonFlow(QWidget *parent)
    : QLayout(parent)
{
}

KirvButtonFlow::~KirvButtonFlow()
{
    qDeleteAll(items);
}

void KirvButtonFlow::addItem(QLayoutItem *item)
{
    items << item;
}

int KirvButtonFlow::count() const
{
    return int(items.size());
}

QLayoutItem *KirvButtonFlow::itemAt(int index) const
{
    return items.value(index);
}

QLayoutItem *KirvButtonFlow::takeAt(int index)
{
    return index >= 0 && index < items.size() ? items.takeAt(index) : nullptr;
}

int KirvButtonFlow::gap() const
{
    if (spacing() >= 0)
        return spacing();
    const QWidget *widget = parentWidget();
    return widget ? qMax(0, widget->style()->pixelMetric(QStyle::PM_LayoutHorizontalSpacing, nullptr, widget)) : 0;
}

int KirvButtonFlow::widthOf(const QList<QLayoutItem *> &line) const
{
    int width = -gap();
    for (const QLayoutItem *item : line)
        width += gap() + item->sizeHint().width();
    return width;
}

int KirvButtonFlow::heightOf(const QList<QLayoutItem *> &line)
{
    int height = 0;
    for (const QLayoutItem *item : line)
        height = std::max(height, item->sizeHint().height());
    return height;
}

QList<QList<QLayoutItem *>> KirvButtonFlow::lines(int width) const
{
    QList<QList<QLayoutItem *>> all;
    for (QLayoutItem *item : items) {
        if (item->isEmpty())
            continue;
        if (all.isEmpty() || widthOf(all.last()) + gap() + item->sizeHint().width() > width)
            all << QList<QLayoutItem *>();
        all.last() << item;
    }
    return all;
}

int KirvButtonFlow::heightForWidth(int width) const
{
    int height = -gap();
    for (const QList<QLayoutItem *> &line : lines(width))
        height += gap() + heightOf(line);
    return std::max(0, height);
}

QSize KirvButtonFlow::minimumSize() const
{
    QSize size;
    for (const QLayoutItem *item : items) {
        if (!item->isEmpty())
            size = size.expandedTo(item->sizeHint());
    }
    return size;
}

QSize KirvButtonFlow::sizeHint() const
{
    QList<QLayoutItem *> shown;
    std::copy_if(items.begin(), items.end(), std::back_inserter(shown),
                 [](const QLayoutItem *item) { return !item->isEmpty(); });
    return QSize(std::max(0, widthOf(shown)), heightOf(shown));
}

void KirvButtonFlow::setGeometry(const QRect &area)
{
    QLayout::setGeometry(area);
    const Qt::LayoutDirection direction = parentWidget() ? parentWidget()->layoutDirection() : Qt::LeftToRight;
    int top = area.top();
    for (const QList<QLayoutItem *> &line : lines(area.width())) {
        int left = area.left() + area.width() - widthOf(line);
        for (QLayoutItem *item : line) {
            const QRect place(QPoint(left, top), item->sizeHint());
            item->setGeometry(QStyle::visualRect(direction, area, place));
            left += item->sizeHint().width() + gap();
        }
        top += heightOf(line) + gap();
    }
}
