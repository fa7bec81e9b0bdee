// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_TEXT_LIMIT_H
#define KIRV_TEXT_LIMIT_H

#include <QString>

/// How many characters a text may have that is shown in a field and edited there: as many as QLineEdit takes. Laying
/// out much longer ones blocks the window.
constexpr int kirvLongestEditableText = 32767;

/// How many characters of a name are shown where it is not edited.
constexpr int kirvLongestShownName = 200;

/// The beginning of \a text, not longer than \a length; no character is cut in two.
inline QString kirvBeginningOf(const QString &text, int length)
{
    if (text.size() <= length)
        return text;
    return text.left(text.at(length - 1).isHighSurrogate() ? length - 1 : length);
}

/// What a field shows of \a text: all of it, or as much as it can hold.
inline QString kirvEditablePart(const QString &text)
{
    return kirvBeginningOf(text, kirvLongestEditableText);
}

/// \a name, or its beginning and an ellipsis.
inline QString kirvShortName(const QString &name)
{
    return name.size() <= kirvLongestShownName ? name : kirvBeginningOf(name, kirvLongestShownName - 1) + QChar(0x2026);
}

#endif
