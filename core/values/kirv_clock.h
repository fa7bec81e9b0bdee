// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_CLOCK_H
#define KIRV_CLOCK_H

#include "core/values/kirv_values_export.h"

#include <QDateTime>
#include <functional>

class QObject;

/// What a connection knows of time: what time it is, and being called later. Tests put a clock of
/// their own in its place and move it by hand.
class KIRV_VALUES_EXPORT KirvClock {
public:
    virtual ~KirvClock() = default;

    /// What time it is.
    virtual QDateTime now() const = 0;
    /// Calls \a callback once, \a milliseconds from now, unless \a context is destroyed before.
    virtual void callLater(int milliseconds, QObject *context, std::function<void()> callback) = 0;

    /// The clock on the wall, driven by the event loop. Lives as long as the process.
    static KirvClock &system();
};

#endif
