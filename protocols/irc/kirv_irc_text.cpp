// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/irc/kirv_irc_text.h"

#include <QByteArray>
#include <algorithm>

namespace {

/// The marks, embeddings, overrides and isolates of bidirectional writing.
bool turnsDirection(QChar character)
{
    const ushort code = character.unicode();
    return code == 0x061c || code == 0x200e || code == 0x200f || (code >= 0x202a && code <= 0x202e)
        || (code >= 0x2066 && code <= 0x2069);
}

} // namespace

QString kirvIrcLine(const QString &text, int maximum)
{
    // No character takes less than a byte: what is cut here would not fit anyhow.
    QString line = text.left(maximum);
    for (QChar &character : line) {
        if (character.category() == QChar::Other_Control)
            character = QLatin1Char(' ');
    }
    while (line.toUtf8().size() > maximum)
        line.chop(line.size() > 1 && line.at(line.size() - 1).isLowSurrogate() ? 2 : 1);
    if (!line.isEmpty() && line.at(line.size() - 1).isHighSurrogate())
        line.chop(1);
    return line;
}

QString kirvIrcShown(const QString &text, int maximum)
{
    QString shown = text;
    shown.truncate(int(std::remove_if(shown.begin(), shown.end(), turnsDirection) - shown.begin()));
    return kirvIrcLine(shown, maximum).simplified();
}
