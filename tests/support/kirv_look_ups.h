// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_LOOK_UPS_H
#define KIRV_LOOK_UPS_H

#include <QStringList>

/// The names of hosts whose addresses this process has looked up since the last call. The source belongs into the
/// program itself: it stands before the function of the C library, which it calls.
QStringList kirvTakeLookUps();

#endif
