// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/values/kirv_single_line.h"

#include "core/values/kirv_text_limit.h"

#include <algorithm>

namespace {

/// Characters that would break the line or turn the direction of what stands around the text.
bool isLayoutControl(QChar character)
{
    return kirvTurnsDirection(character) || character.category() == QChar::Other_Control;
}

} // namespace

QString kirvSingleLine(const QString &text, int longest)
{
    QString line = text.left(4 * longest);
    std::replace_if(line.begin(), line.end(), isLayoutControl, QLatin1Char(' '));
    line = line.simplified();
    if (line.size() <= longest)
        return line;
    line.truncate(longest - 1);
    if (line.at(line.size() - 1).isHighSurrogate())
        line.chop(1);
    return line + QChar(0x2026);
}
