// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/irc/kirv_irc_input.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>

namespace {

/// The log-in of the largest networks takes a tenth of this; a list without an end is not collected.
const int longestNegotiation = 100;

/// How many requests for the name of the program are answered in a minute.
const int versionRepliesPerMinute = 3;
const int minute = 60000;

/// The numeric replies that decide about a log-in.
const int usedNumerics[] = {
    1, // welcome
    432, 433, 436, 437, // the nick is refused or in use
    464, 465, // the password is wrong, the user is banned
    902, 903, 904, 905, 906, 907, 908, // SASL
};

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

/// Removes the text up to the next space from \a line, and the spaces after it, and gives it.
QByteArray takeWord(QByteArray &line)
{
    const int end = line.indexOf(' ');
    const QByteArray word = line.left(end);
    int next = end < 0 ? line.size() : end;
    while (next < line.size() && line.at(next) == ' ')
        ++next;
    line.remove(0, next);
    return word;
}

} // namespace

KirvIrcInput::KirvIrcInput(KirvClock &clock)
    : clock(clock)
{
}

void KirvIrcInput::append(const QByteArray &bytes)
{
    unread += bytes;
    if (!hasLines()) {
        searched = unread.size();
        tooLong = tooLong || searched > longestLine;
    }
}

QByteArray KirvIrcInput::takeLines(int maximum)
{
    QByteArray lines;
    int begin = 0;
    for (int taken = 0; taken < maximum && !tooLong;) {
        const int end = unread.indexOf('\n', std::max(begin, searched));
        searched = 0;
        if (end < 0)
            break;
        tooLong = end - begin > longestLine;
        const QByteArray used = tooLong ? QByteArray() : usedPart(unread.mid(begin, end - begin).trimmed());
        begin = end + 1;
        if (used.isEmpty())
            continue;
        lines += used + "\r\n";
        ++taken;
    }
    unread.remove(0, begin);
    searched = 0;
    if (!hasLines())
        append(QByteArray());
    return lines;
}

/// The canonical form of \a line; empty when the line is not used.
QByteArray KirvIrcInput::usedPart(const QByteArray &line)
{
    QByteArray rest = line;
    if (rest.startsWith('@'))
        takeWord(rest);
    QByteArray prefix;
    if (rest.startsWith(':'))
        prefix = takeWord(rest) + ' ';
    const QByteArray command = takeWord(rest);
    if (!isUsed(command, rest))
        return QByteArray();
    return (prefix + command + ' ' + rest).left(longestUsedLine);
}

bool KirvIrcInput::isUsed(const QByteArray &command, const QByteArray &parameters)
{
    if (command == "PING" || command == "ERROR" || command == "NICK")
        return !parameters.isEmpty();
    if (command == "PRIVMSG")
        return isVersionRequest(parameters);
    if (command == "CAP" || command == "AUTHENTICATE")
        return ++negotiation[command] <= longestNegotiation;
    const bool isNumeric = command.size() == 3 && std::all_of(command.begin(), command.end(), isDigit);
    const int numeric = isNumeric ? command.toInt() : 0;
    return std::find(std::begin(usedNumerics), std::end(usedNumerics), numeric) != std::end(usedNumerics);
}

/// Whether this is a request for the name of the program, and not one of too many.
bool KirvIrcInput::isVersionRequest(const QByteArray &parameters)
{
    const int text = parameters.indexOf(':');
    if (text < 0 || parameters.mid(text + 1).trimmed() != "\1VERSION\1")
        return false;
    const QDateTime now = clock.now();
    if (!versionMinute.isValid() || std::abs(versionMinute.msecsTo(now)) >= minute) {
        versionMinute = now;
        versionReplies = 0;
    }
    return ++versionReplies <= versionRepliesPerMinute;
}
