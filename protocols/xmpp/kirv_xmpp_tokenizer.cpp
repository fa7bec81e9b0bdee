// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_tokenizer.h"

#include <QString>
#include <cctype>
#include <cstring>

namespace {

const int longestReference = 10; // "#x0010FFFF"
const quint32 hashStart = 2166136261U; // FNV-1a
const quint32 hashFactor = 16777619U;
const QByteArray characterDataStart = QByteArrayLiteral("[CDATA[");

/// Whether \a byte may stand in a name. Which letters beyond ASCII may is left to whoever uses the name.
bool isOfName(char byte)
{
    return !KirvXmppTokenizer::isSpace(byte) && !strchr("<>/=\"'&", byte);
}

bool startsName(char byte)
{
    return isOfName(byte) && !strchr("-.0123456789!?", byte);
}

bool isCharacter(uint code)
{
    if (code < 0x20)
        return code == '\t' || code == '\n' || code == '\r';
    return code <= 0x10ffff && !(code >= 0xd800 && code <= 0xdfff) && code != 0xfffe && code != 0xffff;
}

/// The character that the reference \a word means; 0 when it means none.
uint referenced(const QByteArray &word)
{
    if (word == "lt")
        return '<';
    if (word == "gt")
        return '>';
    if (word == "amp")
        return '&';
    if (word == "quot")
        return '"';
    if (word == "apos")
        return '\'';
    const bool isHexadecimal = word.startsWith("#x");
    const QByteArray digits = word.mid(isHexadecimal ? 2 : 1);
    bool isNumber = word.startsWith('#') && !digits.isEmpty() && isxdigit(uchar(digits.at(0)));
    const uint code = isNumber ? digits.toUInt(&isNumber, isHexadecimal ? 16 : 10) : 0;
    return isNumber && isCharacter(code) ? code : 0;
}

} // namespace

KirvXmppTokenizer::Token KirvXmppTokenizer::next(const QByteArray &bytes, int *position)
{
    const char *const data = bytes.constData();
    while (*position < bytes.size()) {
        *position += plainLength(data + *position, data + bytes.size());
        if (*position == bytes.size())
            break;
        const char byte = data[*position];
        if (state == InText && byte == '<' && hasText && continuations == 0) {
            hasText = false;
            return Text;
        }
        ++*position;
        const Token token = isLegal(uchar(byte)) ? read(byte) : Malformed;
        if (token != Incomplete)
            return token;
    }
    return Incomplete;
}

/// Checks the encoding (UTF-8, the only one that streams may have) and the control characters.
bool KirvXmppTokenizer::isLegal(uchar byte)
{
    if (continuations > 0) {
        const bool fits = byte >= lowest && byte <= highest;
        lowest = 0x80;
        highest = 0xbf;
        --continuations;
        return fits;
    }
    if (byte < 0x80)
        return isCharacter(byte);
    if (byte < 0xc2 || byte > 0xf4)
        return false;
    if (byte < 0xe0)
        continuations = 1;
    else if (byte < 0xf0)
        continuations = 2;
    else
        continuations = 3;
    if (byte == 0xe0)
        lowest = 0xa0;
    else if (byte == 0xf0)
        lowest = 0x90;
    else if (byte == 0xed)
        highest = 0x9f;
    else if (byte == 0xf4)
        highest = 0x8f;
    return true;
}

/// How many bytes mean nothing but themselves and have not to be kept: the quick way through long texts.
int KirvXmppTokenizer::plainLength(const char *begin, const char *end) const
{
    const bool isLongValue = state == InValue && value.size() > longestValue;
    if (continuations > 0 || !((state == InText && !blank) || isLongValue))
        return 0;
    const char *byte = begin;
    while (byte < end && *byte >= 0x20 && *byte != '<' && *byte != '&' && !(isLongValue && *byte == quote))
        ++byte;
    return int(byte - begin);
}

KirvXmppTokenizer::Token KirvXmppTokenizer::read(char byte)
{
    switch (state) {
    case InText:
        return readText(byte);
    case AfterBracket:
        return readBracket(byte);
    case InName:
        return readName(byte);
    case BetweenAttributes:
    case AfterValue:
        return readBetweenAttributes(byte);
    case InAttributeName:
        return readAttributeName(byte);
    case BeforeEquals:
    case BeforeValue:
        return readEquals(byte);
    case InValue:
        return readValue(byte);
    case BeforeEmptyEnd:
        state = InText;
        return byte == '>' ? Empty : Malformed;
    case InEndName:
    case BeforeEnd:
        return readEndName(byte);
    case InReference:
        return readReference(byte);
    case AfterExclamation:
    case InCharacterData:
        return readCharacterData(byte);
    case InDeclaration:
        return readDeclaration(byte);
    }
    return Malformed;
}

KirvXmppTokenizer::Token KirvXmppTokenizer::readText(char byte)
{
    if (byte == '<') {
        state = AfterBracket;
        return Incomplete;
    }
    hasText = true;
    blank = blank && isSpace(byte);
    isAtBeginning = isAtBeginning && blank;
    if (byte == '&') {
        stateBeforeReference = state;
        state = InReference;
        word.clear();
    }
    return Incomplete;
}

KirvXmppTokenizer::Token KirvXmppTokenizer::readBracket(char byte)
{
    blank = true;
    tagName.clear();
    hash = hashStart;
    word.clear();
    last[0] = last[1] = 0;
    if (byte == '?' && isAtBeginning) {
        state = InDeclaration;
        return Incomplete;
    }
    isAtBeginning = false;
    if (byte == '?')
        return Forbidden;
    if (byte == '!') {
        state = AfterExclamation;
        return Incomplete;
    }
    if (byte == '/') {
        state = InEndName;
        return Incomplete;
    }
    if (!startsName(byte))
        return Malformed;
    state = InName;
    return readName(byte);
}

KirvXmppTokenizer::Token KirvXmppTokenizer::readName(char byte)
{
    if (!isOfName(byte)) {
        state = AfterValue;
        return readBetweenAttributes(byte);
    }
    hash = (hash ^ uchar(byte)) * hashFactor;
    if (tagName.size() < longestName)
        tagName += byte;
    return Incomplete;
}

KirvXmppTokenizer::Token KirvXmppTokenizer::readBetweenAttributes(char byte)
{
    if (isSpace(byte)) {
        state = BetweenAttributes;
        return Incomplete;
    }
    if (byte == '/') {
        state = BeforeEmptyEnd;
        return Incomplete;
    }
    if (byte == '>') {
        state = InText;
        return Opened;
    }
    if (state == AfterValue || !startsName(byte))
        return Malformed;
    state = InAttributeName;
    valueName = QByteArray(1, byte);
    value.clear();
    return Incomplete;
}

KirvXmppTokenizer::Token KirvXmppTokenizer::readAttributeName(char byte)
{
    if (!isOfName(byte)) {
        state = BeforeEquals;
        return readEquals(byte);
    }
    if (valueName.size() < longestName)
        valueName += byte;
    return Incomplete;
}

KirvXmppTokenizer::Token KirvXmppTokenizer::readEquals(char byte)
{
    if (isSpace(byte))
        return Incomplete;
    if (state == BeforeEquals) {
        state = BeforeValue;
        return byte == '=' ? Incomplete : Malformed;
    }
    quote = byte;
    state = InValue;
    return byte == '"' || byte == '\'' ? Incomplete : Malformed;
}

KirvXmppTokenizer::Token KirvXmppTokenizer::readValue(char byte)
{
    if (byte == quote) {
        state = AfterValue;
        return Attribute;
    }
    if (byte == '<')
        return Malformed;
    if (byte == '&') {
        stateBeforeReference = state;
        state = InReference;
        word.clear();
    } else {
        collect(byte);
    }
    return Incomplete;
}

KirvXmppTokenizer::Token KirvXmppTokenizer::readEndName(char byte)
{
    if (byte == '>' && hash != hashStart) {
        state = InText;
        return Closed;
    }
    if (isSpace(byte) && hash != hashStart) {
        state = BeforeEnd;
        return Incomplete;
    }
    if (state == BeforeEnd || !isOfName(byte))
        return Malformed;
    return readName(byte);
}

KirvXmppTokenizer::Token KirvXmppTokenizer::readReference(char byte)
{
    if (byte != ';') {
        word += byte;
        return word.size() <= longestReference ? Incomplete : Malformed;
    }
    ++references;
    const uint character = referenced(word);
    state = stateBeforeReference;
    if (state == InValue)
        collectReferenced(character);
    return character ? Incomplete : Malformed;
}

/// Reads what follows "<!": only character data is allowed.
KirvXmppTokenizer::Token KirvXmppTokenizer::readCharacterData(char byte)
{
    if (state == AfterExclamation) {
        word += byte;
        if (!characterDataStart.startsWith(word))
            return Forbidden;
        if (word.size() == characterDataStart.size()) {
            state = InCharacterData;
            hasText = true;
            blank = false;
        }
        return Incomplete;
    }
    if (last[0] == ']' && last[1] == ']' && byte == '>')
        state = InText;
    last[0] = last[1];
    last[1] = byte;
    return Incomplete;
}

KirvXmppTokenizer::Token KirvXmppTokenizer::readDeclaration(char byte)
{
    if (word.size() < 4)
        word += byte;
    if (word.size() == 4 && (!word.startsWith("xml") || !isSpace(word.at(3))))
        return Forbidden;
    const bool isEnd = last[1] == '?' && byte == '>';
    last[1] = byte;
    if (!isEnd)
        return Incomplete;
    isAtBeginning = false;
    state = InText;
    return Declaration;
}

void KirvXmppTokenizer::collect(char byte)
{
    if (value.size() <= longestValue)
        value += byte;
}

void KirvXmppTokenizer::collectReferenced(uint character)
{
    const QByteArray bytes = QString::fromUcs4(&character, 1).toUtf8();
    for (const char byte : bytes)
        collect(byte);
}
