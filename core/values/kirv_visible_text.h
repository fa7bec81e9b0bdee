// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_VISIBLE_TEXT_H
#define KIRV_VISIBLE_TEXT_H

#include "core/values/kirv_values_export.h"

#include <QString>

/// Whether \a character would break a line, turn its direction, or cannot be seen.
inline bool kirvIsInvisible(QChar character)
{
    switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return false;
    }
}

/// \a text with a mark such as "[U+202E]" in place of each character that changes the direction of what follows and is
/// invisible itself: a name from elsewhere could otherwise read as another one, and turn the sentence around it.
KIRV_VALUES_EXPORT QString kirvVisibleText(const QString &text);

#endif
