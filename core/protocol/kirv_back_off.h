// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_BACK_OFF_H
#define KIRV_BACK_OFF_H

#include "core/values/kirv_values_export.h"

/// How long to wait before each attempt to connect: twice as long each time, up to a limit, and a little longer or
/// shorter by chance, so that clients do not all come back at once. Times are in milliseconds.
class KIRV_PROTOCOL_EXPORT KirvBackOff {
public:
    /// Between what the waits grow; milliseconds.
    struct Limits {
        int first = 2000; ///< the first wait
        int last = 300000; ///< no wait is longer, but for the jitter
        double jitter = 0.2; ///< each wait is up to this fraction shorter or longer
    };

    /// The next wait.
    int next(const Limits &limits);
    /// The same with a number from 0 to 1 in place of chance: 0 makes the wait shortest, 1 longest.
    int next(const Limits &limits, double chance);
    /// The next wait is the first one again.
    void reset() { delay = 0; }

private:
    int delay = 0; ///< the last wait without jitter; 0: none yet
};

#endif
