// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_SINGLE_LINE_H
#define KIRV_SINGLE_LINE_H

#include "core/values/kirv_values_export.h"

#include <QString>

/// \a text, which may come from anywhere, in one line of at most \a longest characters: without what breaks the line
/// or turns the direction of what follows, with an ellipsis where it was cut.
KIRV_VALUES_EXPORT QString kirvSingleLine(const QString &text, int longest);

#endif
