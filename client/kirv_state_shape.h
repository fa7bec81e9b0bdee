// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_STATE_SHAPE_H
#define KIRV_STATE_SHAPE_H

#include "client/kirv_account_status.h"

class QPainter;
class QPalette;
class QColor;
class QPixmap;
class QRect;
class QWidget;

// The icon of the state of an account. Each state has a shape of its own; the colour only adds to it.

/// Paints the shape of \a kind into the middle of \a place.
void kirvPaintStateShape(QPainter *painter, const QRect &place, KirvAccountStatus::Kind kind, const QColor &color);
/// The colour of \a kind on the base of \a palette, light or dark.
QColor kirvStateColor(KirvAccountStatus::Kind kind, const QPalette &palette);
/// The shape for a label of \a widget, with edges of \a size device-independent pixels.
QPixmap kirvStatePixmap(KirvAccountStatus::Kind kind, const QWidget *widget, int size);

#endif
