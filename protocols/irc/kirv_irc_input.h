// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_IRC_INPUT_H
#define KIRV_IRC_INPUT_H

#include "core/values/kirv_clock.h"

#include <QByteArray>
#include <QDateTime>
#include <QHash>

/// Takes what a server sends apart into lines and keeps the few that an account uses.
///
/// The library behind it keeps lists without a bound, does work in proportion to the square of a line's length and
/// dereferences null when some replies come out of order. It therefore receives only what log-in and session need,
/// in a canonical form: without tags, with single spaces before the parameters, in at most longestUsedLine bytes.
class KirvIrcInput {
public:
    static constexpr int longestLine = 65536; ///< bytes without a line end; more is an error
    static constexpr int longestUsedLine = 2048; ///< bytes; the rest of a line is cut off

    /// \a clock is not owned and outlives the object.
    explicit KirvIrcInput(KirvClock &clock);

    void append(const QByteArray &bytes);
    /// Whether takeLines() has something to look at.
    bool hasLines() const { return !isTooLong() && unread.indexOf('\n', searched) >= 0; }
    /// Up to \a maximum of the used lines, each with its end; what precedes them is thrown away.
    QByteArray takeLines(int maximum);
    /// Whether the server has sent a line that is longer than longestLine. Nothing can be taken then.
    bool isTooLong() const { return tooLong; }

private:
    QByteArray usedPart(const QByteArray &line);
    bool isUsed(const QByteArray &command, const QByteArray &parameters);
    bool isVersionRequest(const QByteArray &parameters);

    KirvClock &clock;
    QByteArray unread;
    int searched = 0; ///< how much of unread has no line end
    bool tooLong = false;
    QHash<QByteArray, int> negotiation; ///< how many lines of the log-in have been taken, by command
    QDateTime versionMinute; ///< the minute in which versionReplies requests for the name were let through
    int versionReplies = 0;
};

#endif
