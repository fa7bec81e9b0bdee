// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_XMPP_TOKENIZER_H
#define KIRV_XMPP_TOKENIZER_H

#include <QByteArray>
#include <utility>

/// Takes the XML of a stream apart as it comes, in constant memory and in time proportional to its length.
///
/// It finds the bounds of tags and text and checks what can be checked without remembering: the encoding, characters,
/// quotes, references. That end tags fit their start tags is for the caller to check. Nothing that well-formed XML may
/// hold is an error, apart from what streams must not hold: comments, processing instructions and declarations.
class KirvXmppTokenizer {
public:
    enum Token {
        Incomplete, ///< the bytes have been used up
        Opened, ///< a start tag
        Empty, ///< the tag of an empty element
        Closed, ///< an end tag
        Attribute, ///< of the start tag that is under way
        Text, ///< what stands before the next tag
        Declaration, ///< the XML declaration, which only the beginning may have
        Malformed, ///< no XML
        Forbidden ///< XML that streams must not hold
    };

    static constexpr int longestName = 128; ///< of what name() and attributeName() keep, in bytes
    static constexpr int longestValue = 4096; ///< of what attributeValue() keeps, in bytes

    /// Whether XML takes \a byte for white space.
    static bool isSpace(char byte) { return byte == ' ' || byte == '\t' || byte == '\n' || byte == '\r'; }

    /// A new stream begins.
    void reset() { *this = KirvXmppTokenizer(); }
    /// Reads \a bytes from \a position to the end of the next token, and moves \a position there.
    Token next(const QByteArray &bytes, int *position);

    /// The name in the latest tag, with its prefix; cut off when it is longer.
    QByteArray name() const { return tagName; }
    /// Tells the names of tags apart in their whole length.
    quint32 nameHash() const { return hash; }
    QByteArray attributeName() const { return valueName; }
    /// The value of the latest attribute, without references; longer ones are cut off behind longestValue.
    QByteArray attributeValue() const { return value; }
    /// How many references there were since the last call.
    int takeReferences() { return std::exchange(references, 0); }
    /// Whether the text has nothing but white space so far.
    bool isBlank() const { return blank; }
    /// Whether the bytes have ended within a tag, and not between two.
    bool isInTag() const { return (state == InReference ? stateBeforeReference : state) != InText; }

private:
    enum State {
        InText,
        AfterBracket,
        InName,
        BetweenAttributes,
        InAttributeName,
        BeforeEquals,
        BeforeValue,
        InValue,
        AfterValue,
        BeforeEmptyEnd,
        InEndName,
        BeforeEnd,
        InReference,
        AfterExclamation,
        InCharacterData,
        InDeclaration
    };

    bool isLegal(uchar byte);
    int plainLength(const char *begin, const char *end) const;
    Token read(char byte);
    Token readText(char byte);
    Token readBracket(char byte);
    Token readName(char byte);
    Token readBetweenAttributes(char byte);
    Token readAttributeName(char byte);
    Token readEquals(char byte);
    Token readValue(char byte);
    Token readEndName(char byte);
    Token readReference(char byte);
    Token readCharacterData(char byte);
    Token readDeclaration(char byte);
    void collect(char byte);
    void collectReferenced(uint character);

    State state = InText;
    State stateBeforeReference = InText;
    bool isAtBeginning = true; ///< a declaration may follow
    bool blank = true;
    bool hasText = false;
    int references = 0;
    char quote = '"';
    char last[2] = { 0, 0 }; ///< the bytes before this one, within character data and declarations
    int continuations = 0; ///< how many bytes of the character are missing
    uchar lowest = 0x80; ///< bounds of the next one of them
    uchar highest = 0xbf;
    quint32 hash = 0;
    QByteArray tagName;
    QByteArray valueName;
    QByteArray value;
    QByteArray word; ///< of a reference, or behind an exclamation mark
};

#endif
