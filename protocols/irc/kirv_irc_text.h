// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_IRC_TEXT_H
#define KIRV_IRC_TEXT_H

#include <QString>

/// Makes \a text one line that is safe to send and to show: control characters (line breaks, formatting) become
/// spaces, what exceeds \a maximum bytes of UTF-8 is cut off at the end of a character.
QString kirvIrcLine(const QString &text, int maximum);

/// Makes \a text, which comes from a server, safe to show within a sentence: as kirvIrcLine(), and what turns the
/// direction of writing is removed.
QString kirvIrcShown(const QString &text, int maximum);

#endif
