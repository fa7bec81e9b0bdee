// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_state_shape.h"

#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QWidget>

namespace {

enum Hue { Red = 355, Amber = 38, Green = 145 };

/// A colour that is told from a light and from a dark base.
QColor shade(Hue hue, const QPalette &palette)
{
    const bool isDark = palette.color(QPalette::Base).lightnessF() < 0.5;
    return QColor::fromHslF(hue / 360.0, 0.65, isDark ? 0.62 : 0.37);
}

} // namespace

QColor kirvStateColor(KirvAccountStatus::Kind kind, const QPalette &palette)
{
    switch (kind) {
    case KirvAccountStatus::Connected:
        return shade(Green, palette);
    case KirvAccountStatus::Connecting:
    case KirvAccountStatus::Waiting:
        return shade(Amber, palette);
    case KirvAccountStatus::Failed:
        return shade(Red, palette);
    case KirvAccountStatus::OffLine:
    case KirvAccountStatus::Disabled:
    case KirvAccountStatus::NotLoaded:
        break;
    }
    return palette.color(QPalette::Text);
}

void kirvPaintStateShape(QPainter *painter, const QRect &place, KirvAccountStatus::Kind kind, const QColor &color)
{
    const qreal edge = qMin(place.width(), place.height());
    const qreal line = edge / 8;
    QRectF shape(0, 0, edge - 3 * line, edge - 3 * line);
    shape.moveCenter(QRectF(place).center());
    const QPointF middle = shape.center();
    const qreal radius = shape.width() / 2;

    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(color, line, Qt::SolidLine, Qt::RoundCap, Qt::MiterJoin));
    switch (kind) {
    case KirvAccountStatus::Connected: // a disc
        painter->setBrush(color);
        painter->drawEllipse(shape);
        break;
    case KirvAccountStatus::Connecting: // a ring with a gap
        painter->drawArc(shape, 120 * 16, 270 * 16);
        break;
    case KirvAccountStatus::Waiting: // a clock
        painter->drawEllipse(shape);
        painter->drawLine(middle, middle - QPointF(0, radius * 0.6));
        painter->drawLine(middle, middle + QPointF(radius * 0.5, 0));
        break;
    case KirvAccountStatus::Failed: // a cross
        painter->setPen(QPen(color, line * 1.5, Qt::SolidLine, Qt::RoundCap));
        painter->drawLine(shape.topLeft(), shape.bottomRight());
        painter->drawLine(shape.topRight(), shape.bottomLeft());
        break;
    case KirvAccountStatus::OffLine: // a ring with a bar
        painter->drawEllipse(shape);
        painter->drawLine(middle - QPointF(radius * 0.5, 0), middle + QPointF(radius * 0.5, 0));
        break;
    case KirvAccountStatus::Disabled: // a ring
        painter->drawEllipse(shape);
        break;
    case KirvAccountStatus::NotLoaded: // a square
        painter->drawRect(shape);
        break;
    }
    painter->restore();
}

QPixmap kirvStatePixmap(KirvAccountStatus::Kind kind, const QWidget *widget, int size)
{
    const qreal ratio = widget->devicePixelRatioF();
    QPixmap pixmap(QSize(size, size) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    kirvPaintStateShape(&painter, QRect(0, 0, size, size), kind, kirvStateColor(kind, widget->palette()));
    return pixmap;
}
