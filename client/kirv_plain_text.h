// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PLAIN_TEXT_H
#define KIRV_PLAIN_TEXT_H

#include "core/values/kirv_visible_text.h"

#include <QString>
#include <QStringList>

/// A login, alias or other name as labels and boxes show it: nothing in it turns the text around. What shows it must be
/// set to plain text.
inline QString kirvPlainName(const QString &name)
{
    return kirvVisibleText(name);
}

/// A sentence with such names. What a translation puts around them stays: its left-to-right marks, which order what is
/// beside them and turn nothing around.
inline QString kirvPlainSentence(const QString &sentence)
{
    const QChar mark(0x200E);
    QStringList parts = sentence.split(mark);
    for (QString &part : parts)
        part = kirvVisibleText(part);
    return parts.join(mark);
}

/// A tool tip that shows \a text as it stands: Qt takes tool tips for markup when they look like it.
inline QString kirvPlainToolTip(const QString &text)
{
    return text.isEmpty() ? QString() : QStringLiteral("<qt>%1</qt>").arg(text.toHtmlEscaped());
}

/// The text of a command or a button that holds \a text: an ampersand is shown and makes no mnemonic.
inline QString kirvPlainCommand(const QString &text)
{
    return QString(text).replace(QLatin1Char('&'), QLatin1String("&&"));
}

#endif
