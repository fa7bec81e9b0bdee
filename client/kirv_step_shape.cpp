// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_step_shape.h"

#include "client/kirv_state_shape.h"

#include <QPainter>
#include <QPalette>
#include <QPolygonF>

namespace {

KirvAccountStatus::Kind similarState(KirvLoginStep::Outcome outcome)
{
    if (outcome == KirvLoginStep::Done)
        return KirvAccountStatus::Connected;
    return outcome == KirvLoginStep::Failed ? KirvAccountStatus::Failed : KirvAccountStatus::Connecting;
}

void paintTick(QPainter *painter, const QRect &place, const QColor &color)
{
    const qreal edge = qMin(place.width(), place.height());
    const QPointF middle = QRectF(place).center();
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(color, edge * 0.16, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->setBrush(Qt::NoBrush);
    QPolygonF tick;
    tick << middle + QPointF(-0.3 * edge, 0.02 * edge) << middle + QPointF(-0.08 * edge, 0.26 * edge)
         << middle + QPointF(0.32 * edge, -0.28 * edge);
    painter->drawPolyline(tick);
    painter->restore();
}

} // namespace

void kirvPaintStepShape(QPainter *painter, const QRect &place, KirvLoginStep::Outcome outcome, const QPalette &palette,
                        bool isSelected)
{
    const KirvAccountStatus::Kind state = similarState(outcome);
    const QColor color = isSelected ? palette.color(QPalette::HighlightedText) : kirvStateColor(state, palette);
    if (outcome == KirvLoginStep::Done)
        paintTick(painter, place, color);
    else
        kirvPaintStateShape(painter, place, state, color);
}
