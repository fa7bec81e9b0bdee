// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_event_delegate.h"

#include "client/kirv_step_shape.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QPainter>
#include <QTextLayout>
#include <QtMath>

namespace {

const int margin = 4; // around a row, in device-independent pixels

/// Lays \a layout out in lines of \a width and gives their height.
qreal layOut(QTextLayout &layout, qreal width, Qt::LayoutDirection direction)
{
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setTextDirection(direction);
    layout.setTextOption(option);
    layout.beginLayout();
    qreal height = 0;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        line.setPosition(QPointF(0, height));
        height += line.height();
    }
    layout.endLayout();
    return height;
}

} // namespace

KirvEventDelegate::KirvEventDelegate(QAbstractItemView *view)
    : QStyledItemDelegate(view)
    , view(view)
{
}

bool KirvEventDelegate::isFailure(const QModelIndex &index)
{
    const QVariant outcome = index.data(OutcomeRole);
    return outcome.isValid() && outcome.toInt() == KirvLoginStep::Failed;
}

QFont KirvEventDelegate::fontOf(const QStyleOptionViewItem &option, const QModelIndex &index)
{
    QFont font = option.font;
    font.setBold(isFailure(index));
    return font;
}

KirvEventDelegate::Places KirvEventDelegate::placesIn(const QRect &row, const QStyleOptionViewItem &option,
                                                      const QModelIndex &index) const
{
    const QRect inner = row.adjusted(margin, margin, -margin, -margin);
    const int line = option.fontMetrics.height();
    const QString end = index.data(EndRole).toString();
    const int endWidth = end.isEmpty() ? 0 : option.fontMetrics.horizontalAdvance(end) + 2 * margin;
    const int shapeWidth = line + 2 * margin;
    Places places;
    places.shape = QRect(inner.left(), inner.top(), line, line);
    places.text = inner.adjusted(shapeWidth, 0, -endWidth, 0);
    places.end = QRect(inner.right() + 1 - endWidth, inner.top(), endWidth, line);
    for (QRect *place : { &places.shape, &places.text, &places.end })
        *place = QStyle::visualRect(option.direction, row, *place);
    return places;
}

void KirvEventDelegate::paint(QPainter *painter, const QStyleOptionViewItem &given, const QModelIndex &index) const
{
    QStyleOptionViewItem option = given;
    initStyleOption(&option, index);
    option.text.clear();
    QStyle *style = view->style();
    style->drawControl(QStyle::CE_ItemViewItem, &option, painter, view);

    const bool isSelected = option.state & QStyle::State_Selected;
    const Places places = placesIn(option.rect, option, index);
    const QVariant outcome = index.data(OutcomeRole);
    if (outcome.isValid())
        kirvPaintStepShape(painter, places.shape, KirvLoginStep::Outcome(outcome.toInt()), option.palette, isSelected);
    QPalette::ColorGroup group = option.state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
    painter->save();
    painter->setPen(option.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text));
    QTextLayout layout(index.data().toString(), fontOf(option, index));
    layOut(layout, places.text.width(), option.direction);
    layout.draw(painter, places.text.topLeft());
    painter->setFont(option.font);
    painter->drawText(places.end, int(Qt::AlignTrailing | Qt::AlignTop), index.data(EndRole).toString());
    painter->restore();
}

QSize KirvEventDelegate::sizeHint(const QStyleOptionViewItem &given, const QModelIndex &index) const
{
    QStyleOptionViewItem option = given;
    initStyleOption(&option, index);
    const int width = view->viewport()->width();
    const int textWidth = placesIn(QRect(0, 0, width, option.fontMetrics.height()), option, index).text.width();
    QTextLayout layout(index.data().toString(), fontOf(option, index));
    const int height = qCeil(layOut(layout, qMax(textWidth, option.fontMetrics.averageCharWidth()), option.direction));
    return QSize(option.fontMetrics.averageCharWidth() * 10, height + 2 * margin);
}
