// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/irc/kirv_irc_text.h"

#include <QByteArray>

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
