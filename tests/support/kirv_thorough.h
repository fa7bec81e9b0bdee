// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_THOROUGH_H
#define KIRV_THOROUGH_H

#include <QtGlobal>

/// Whether a test does all of what it does only a sample of otherwise, as ./test --all wants of those that take long.
inline bool kirvIsThorough()
{
    return !qEnvironmentVariableIsEmpty("KIRV_THOROUGH");
}

#endif
