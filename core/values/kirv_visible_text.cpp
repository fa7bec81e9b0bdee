// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/values/kirv_visible_text.h"

#include "core/values/kirv_text_limit.h"

namespace {

/// The characters with the property Bidi_Control.
bool changesDirection(QChar character)
{
    const ushort code = character.unicode();
    return code == 0x061C || code == 0x200E || code == 0x200F || kirvTurnsDirection(character);
}

} // namespace

QString kirvVisibleText(const QString &text)
{
    QString visible;
    visible.reserve(text.size());
    for (const QChar character : text) {
        if (changesDirection(character))
            visible += QStringLiteral("[U+%1]").arg(int(character.unicode()), 4, 16, QLatin1Char('0')).toUpper();
        else
            visible += character;
    }
    return visible;
}
