// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/moving/kirv_json_bounds.h"

namespace {

/// What a character outside of strings adds to the number of parts.
int partsOf(char character)
{
    switch (character) {
    case '{':
    case '[':
        return 4; // a container takes several times the memory of another value
    case ',':
    case ':':
        return 1;
    default:
        return 0;
    }
}

int deeperBy(char character)
{
    if (character == '{' || character == '[')
        return 1;
    return character == '}' || character == ']' ? -1 : 0;
}

} // namespace

/// Up to the first error of \a json this sees the same strings as a parser; behind it a parser reads nothing.
bool kirvIsBoundedJson(const QByteArray &json, int mostDepth, int mostParts)
{
    int depth = 0, parts = 0;
    bool isInString = false, isEscaped = false;
    for (const char character : json) {
        if (isEscaped) {
            isEscaped = false;
        } else if (isInString) {
            isEscaped = character == '\\';
            isInString = character != '"';
        } else if (character == '"') {
            isInString = true;
        } else {
            depth += deeperBy(character);
            parts += partsOf(character);
            if (depth > mostDepth || parts > mostParts)
                return false;
        }
    }
    return true;
}
