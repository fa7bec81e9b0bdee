// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_WIPED_TEXT_H
#define KIRV_WIPED_TEXT_H

#include <QString>

/// Empties \a text, which is a secret that is not needed any more. Its memory is overwritten when nothing else shares
/// it.
inline void kirvWipe(QString &text)
{
    if (text.isDetached())
        text.fill(QLatin1Char('\0'));
    text.clear();
}

#endif
