// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_FIRST_PAINT_H
#define KIRV_FIRST_PAINT_H

#include <functional>

class QWidget;

/// Calls \a call once, from the event loop: after \a window was painted for the first time, or after half a second when
/// it is not painted. Never when the window is destroyed before that.
void kirvAfterFirstPaint(QWidget *window, const std::function<void()> &call);

#endif
