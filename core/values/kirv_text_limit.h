// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_TEXT_LIMIT_H
#define KIRV_TEXT_LIMIT_H

#include <QString>

/// How many characters a text may have that is shown in a field and edited there: as many as QLineEdit takes. Laying
/// out much longer ones blocks the window.
constexpr int kirvLongestEditableText = 32767;

/// How many turns of direction such a text may have. The time that Qt takes to lay out a text grows with their square:
/// seconds for thousands of them.
constexpr int kirvMostTurns = 100;

/// How many characters of a name are shown where it is not edited.
constexpr int kirvLongestShownName = 200;

/// The beginning of \a text, not longer than \a length; no character is cut in two.
inline QString kirvBeginningOf(const QString &text, int length)
{
    if (text.size() <= length)
        return text;
    return text.left(text.at(length - 1).isHighSurrogate() ? length - 1 : length);
}

/// Whether \a character turns the direction of what stands behind it: an embedding, an override or an isolate of
/// Unicode, or the end of one.
inline bool kirvTurnsDirection(QChar character)
{
    const ushort code = character.unicode();
    return (code >= 0x202a && code <= 0x202e) || (code >= 0x2066 && code <= 0x2069);
}

/// How many characters of \a text a field shows: all, or as many as it can hold and lay out.
inline int kirvEditableLength(const QString &text)
{
    const int length = int(qMin<qsizetype>(text.size(), kirvLongestEditableText));
    int turns = 0;
    for (int i = 0; i < length; ++i) {
        if (kirvTurnsDirection(text.at(i)) && ++turns > kirvMostTurns)
            return i;
    }
    return length;
}

/// What a field shows of \a text.
inline QString kirvEditablePart(const QString &text)
{
    return kirvBeginningOf(text, kirvEditableLength(text));
}

/// \a name, or its beginning and an ellipsis.
inline QString kirvShortName(const QString &name)
{
    return name.size() <= kirvLongestShownName ? name : kirvBeginningOf(name, kirvLongestShownName - 1) + QChar(0x2026);
}

#endif
