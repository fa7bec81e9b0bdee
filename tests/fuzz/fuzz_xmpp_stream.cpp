// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_stream_guard.h"

#include <QXmlStreamReader>
#include <cstdint>
#include <cstdlib>

namespace {

using Guard = KirvXmppStreamGuard;
using Piece = KirvXmppStreamGuard::Piece;

/// Ends the program, which is what the fuzzer takes for a find.
void check(bool holds)
{
    if (!holds)
        abort();
}

/// What is handed on stays within the bounds, as another parser counts them.
void checkBounds(const QByteArray &stanza)
{
    check(stanza.size() <= Guard::longestUsed);
    QXmlStreamReader reader(stanza);
    reader.setNamespaceProcessing(false);
    int depth = 0;
    int nodes = 0;
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        check(token != QXmlStreamReader::DTD && token != QXmlStreamReader::EntityReference);
        check(token != QXmlStreamReader::Comment && token != QXmlStreamReader::ProcessingInstruction);
        if (token == QXmlStreamReader::StartElement) {
            ++depth;
            nodes += 1 + reader.attributes().size();
        } else if (token == QXmlStreamReader::EndElement) {
            --depth;
        }
        check(depth <= Guard::deepestUsed && nodes <= Guard::mostNodes);
    }
}

/// The pieces of \a bytes, which come in chunks of \a size.
QByteArrayList piecesOf(const QByteArray &bytes, int size)
{
    Guard guard([](const KirvXmppStanzaStart &start) { return start.name != "message" && start.from != "a"; });
    QByteArrayList pieces;
    for (int i = 0; i < bytes.size(); i += size) {
        guard.append(bytes.mid(i, size));
        for (Piece piece = guard.take(); piece.kind != Piece::Nothing; piece = guard.take()) {
            if (piece.kind == Piece::Stanza)
                checkBounds(piece.text);
            pieces << QByteArray::number(piece.kind) + piece.start.name + piece.text;
        }
        check(guard.size() <= bytes.size());
    }
    pieces << QByteArray::number(guard.violation());
    return pieces;
}

} // namespace

/// What a server sends, whole and in pieces: both give the same. The first byte is the size of the pieces.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size == 0)
        return 0;
    const QByteArray header = data[0] & 0x80
        ? QByteArrayLiteral("<stream:stream xmlns='jabber:client' xmlns:stream='http://etherx.jabber.org/streams'>")
        : QByteArray();
    const QByteArray input = header + QByteArray(reinterpret_cast<const char *>(data + 1), int(size - 1));
    check(piecesOf(input, 1 + (data[0] & 0x7f)) == piecesOf(input, 1 + input.size()));
    return 0;
}
