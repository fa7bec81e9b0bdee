// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/moving/kirv_pass_phrase.h"

#include <algorithm>

namespace {

int characters(const QString &text)
{
    return int(std::count_if(text.begin(), text.end(), [](QChar unit) { return !unit.isLowSurrogate(); }));
}

/// In UTF-8, without making a copy of it.
int bytes(const QString &text)
{
    int count = 0;
    for (const QChar unit : text) {
        if (unit.isSurrogate())
            count += 2; // four of each pair
        else
            count += unit.unicode() < 0x80 ? 1 : unit.unicode() < 0x800 ? 2 : 3;
    }
    return count;
}

} // namespace

QString KirvPassPhrase::fromBytes(const QByteArray &bytes)
{
    const QString text = QString::fromUtf8(bytes);
    return text.contains(QChar(QChar::ReplacementCharacter)) ? QString::fromLocal8Bit(bytes) : text;
}

QString KirvPassPhrase::problemWithNew(const QString &phrase)
{
    if (characters(phrase) < shortest)
        return tr("The pass phrase needs at least %n characters.", nullptr, shortest);
    return bytes(phrase) > longest ? tr("The pass phrase is too long.") : QString();
}
