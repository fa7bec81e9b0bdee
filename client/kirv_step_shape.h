// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_STEP_SHAPE_H
#define KIRV_STEP_SHAPE_H

#include "core/protocol/kirv_login_step.h"

class QPainter;
class QPalette;
class QRect;

/// Paints what became of a step into the middle of \a place: a tick, a cross, or a ring with a gap while it runs. The
/// colour, which only adds to that, is that of \a palette when \a isSelected.
void kirvPaintStepShape(QPainter *painter, const QRect &place, KirvLoginStep::Outcome outcome, const QPalette &palette,
                        bool isSelected);

#endif
