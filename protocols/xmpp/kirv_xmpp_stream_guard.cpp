// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_stream_guard.h"

#include <utility>

namespace {

/// How many open elements are compared with their end tags; deeper ones are only counted.
const int mostNames = 65536;
/// The room for them that is kept between stanzas.
const int keptNames = 256;

QByteArray withoutPrefix(const QByteArray &name)
{
    return name.mid(name.indexOf(':') + 1);
}

} // namespace

KirvXmppStreamGuard::KirvXmppStreamGuard(Filter isUsed)
    : isUsed(std::move(isUsed))
{
}

void KirvXmppStreamGuard::reset()
{
    unread.clear();
    position = 0;
    violated = None;
    startOver();
}

/// A new stream begins with what is unread.
void KirvXmppStreamGuard::startOver()
{
    tokenizer.reset();
    phase = AwaitsHeader;
    names.clear();
    depth = 0;
    beginStanza();
}

void KirvXmppStreamGuard::beginStanza()
{
    kept.clear();
    nodes = 0;
    references = 0;
    length = 0;
    isOversized = false;
    isDropped = false;
    start = KirvXmppStanzaStart();
}

void KirvXmppStreamGuard::append(const QByteArray &bytes)
{
    if (phase == Over)
        return;
    unread.remove(0, position);
    position = 0;
    unread += bytes;
}

KirvXmppStreamGuard::Piece KirvXmppStreamGuard::take()
{
    while (phase != Over && position < unread.size()) {
        if (phase == AwaitsEncryption) {
            // What comes in clear now would count as encrypted later.
            if (!KirvXmppTokenizer::isSpace(unread.at(position++)))
                return endWith(Forbidden);
            continue;
        }
        const int begin = position;
        const KirvXmppTokenizer::Token token = tokenizer.next(unread, &position);
        length += position - begin;
        references += tokenizer.takeReferences();
        if (!isDropped)
            kept.append(unread.constData() + begin, position - begin);
        const Piece piece = handle(token);
        if (piece.kind != Piece::Nothing)
            return piece;
    }
    if (position == unread.size()) {
        unread.clear();
        position = 0;
    }
    return Piece();
}

KirvXmppStreamGuard::Piece KirvXmppStreamGuard::handle(KirvXmppTokenizer::Token token)
{
    switch (token) {
    case KirvXmppTokenizer::Malformed:
        return endWith(depth == 0 ? NoStream : Malformed);
    case KirvXmppTokenizer::Forbidden:
        return endWith(depth == 0 ? NoStream : Forbidden);
    case KirvXmppTokenizer::Attribute:
        noteAttribute();
        return checkBounds();
    case KirvXmppTokenizer::Opened:
    case KirvXmppTokenizer::Empty: {
        const Piece piece = handleOpened();
        return piece.kind == Piece::Nothing && token == KirvXmppTokenizer::Empty ? handleClosed() : piece;
    }
    case KirvXmppTokenizer::Closed:
        return handleClosed();
    case KirvXmppTokenizer::Declaration:
        kept.clear();
        return Piece();
    case KirvXmppTokenizer::Text:
    case KirvXmppTokenizer::Incomplete:
        break;
    }
    if (isOutsideOfStanzas() && !tokenizer.isInTag()) {
        beginStanza(); // what came was the space between two
        if (!tokenizer.isBlank())
            return endWith(depth == 0 ? NoStream : Malformed);
    }
    return checkBounds();
}

void KirvXmppStreamGuard::noteAttribute()
{
    ++nodes;
    if (depth != 1)
        return;
    const QByteArray name = tokenizer.attributeName();
    if (name == "from")
        start.from = tokenizer.attributeValue();
    else if (name == "id")
        start.id = tokenizer.attributeValue();
    else if (name == "type")
        start.type = tokenizer.attributeValue();
}

KirvXmppStreamGuard::Piece KirvXmppStreamGuard::handleOpened()
{
    if (names.size() == depth && depth < mostNames)
        names << tokenizer.nameHash();
    ++depth;
    ++nodes;
    if (depth == 1)
        return finishHeader();
    if (depth == 2) {
        start.name = withoutPrefix(tokenizer.name());
        if (!isUsed(start))
            drop();
    }
    return checkBounds();
}

KirvXmppStreamGuard::Piece KirvXmppStreamGuard::handleClosed()
{
    if (depth == 0 || (depth <= names.size() && names.at(depth - 1) != tokenizer.nameHash()))
        return endWith(depth == 0 ? NoStream : Malformed);
    if (depth <= names.size())
        names.removeLast();
    const Piece violation = checkBounds();
    --depth;
    if (violation.kind != Piece::Nothing || depth > 1)
        return violation;
    if (depth == 1)
        return finishStanza();
    phase = Over;
    Piece piece;
    piece.kind = Piece::End;
    return piece;
}

KirvXmppStreamGuard::Piece KirvXmppStreamGuard::finishHeader()
{
    if (withoutPrefix(tokenizer.name()) != "stream" || kept.endsWith("/>") || kept.size() > longestTag)
        return endWith(NoStream);
    phase = InStream;
    Piece piece;
    piece.kind = Piece::Header;
    piece.text = kept;
    beginStanza();
    return piece;
}

KirvXmppStreamGuard::Piece KirvXmppStreamGuard::finishStanza()
{
    Piece piece;
    if (!isDropped || isOversized) {
        piece.kind = isOversized ? Piece::Oversized : Piece::Stanza;
        piece.start = start;
        piece.text = kept;
    }
    if (names.capacity() > keptNames)
        names.squeeze();
    const QByteArray name = isDropped ? QByteArray() : start.name;
    beginStanza();
    if (name == "success")
        startOver();
    else if (name == "proceed")
        phase = AwaitsEncryption;
    return piece;
}

KirvXmppStreamGuard::Piece KirvXmppStreamGuard::checkBounds()
{
    if (length > longestStanza)
        return endWith(TooLarge);
    if (depth == 0 && kept.size() > longestTag)
        return endWith(NoStream);
    if (depth > 1 && !start.isStanza() && isTooComplex())
        return endWith(TooLarge); // nobody but the server sends it
    if (!isDropped && isTooComplex()) {
        isOversized = depth > 1; // in the start tag it is not known yet whether the stanza is used
        drop();
    }
    return Piece();
}

bool KirvXmppStreamGuard::isTooComplex() const
{
    return depth - 1 > deepestUsed || nodes > mostNodes || references > mostReferences || length > longestUsed;
}

void KirvXmppStreamGuard::drop()
{
    isDropped = true;
    kept.clear();
}

KirvXmppStreamGuard::Piece KirvXmppStreamGuard::endWith(Violation violation)
{
    phase = Over;
    violated = violation;
    unread.clear();
    position = 0;
    drop();
    Piece piece;
    piece.kind = Piece::Broken;
    return piece;
}
