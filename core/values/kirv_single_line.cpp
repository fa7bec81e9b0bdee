// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/values/kirv_single_line.h"

#include <algorithm>

namespace {

/// Characters that would break the line or turn the direction of what stands around the text.
bool isLayoutControl(QChar character)
{
    const ushort code = character.unicode();
    const bool turnsDirection = (code >= 0x202a && code <= 0x202e) || (code >= 0x2066 && code <= 0x2069);
    return turnsDirection || character.category() == QChar::Other_Control;
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
