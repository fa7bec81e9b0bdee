// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_XMPP_STREAM_GUARD_H
#define KIRV_XMPP_STREAM_GUARD_H

#include "protocols/xmpp/kirv_xmpp_tokenizer.h"

#include <QVector>
#include <functional>

/// What the start tag of a stanza says, or of another element directly below the stream's. A value type.
struct KirvXmppStanzaStart {
    QByteArray name; ///< without a prefix
    QByteArray
        from; ///< these are empty where they are missing, and cut off where they are longer than addresses can be
    QByteArray id;
    QByteArray type;

    /// Whether a server forwards such elements for others.
    bool isStanza() const { return name == "message" || name == "presence" || name == "iq"; }
};

/// Takes the stream of a server apart into whole stanzas and keeps the few that are used, within bounds.
///
/// It stands before whatever builds a tree of the stream: what it lets through is bounded in its length, its depth and
/// the number of its elements, attributes and references. A stanza that is not used is dropped whatever it holds, and
/// one that breaks a bound is dropped alone, because others can have written it. What only the server itself can have
/// done (XML that is none, a stanza without end) breaks the stream. Memory and work are bounded by what is appended at
/// a time.
class KirvXmppStreamGuard {
public:
    static constexpr int longestTag = 65536; ///< bytes of the stream's own start tag
    static constexpr int longestUsed = 1792 * 1024; ///< bytes of a stanza that is used; a picture of 1.3 MB fits
    static constexpr int deepestUsed = 64; ///< elements in one another, the stanza included
    static constexpr int mostNodes = 10000; ///< elements and attributes of one
    static constexpr int mostReferences = 50000; ///< such as "&amp;"
    static constexpr int longestStanza = 16 * 1024 * 1024; ///< bytes of any stanza; longer ones break the stream

    /// Whether a stanza with this start is used; the others are not even collected.
    using Filter = std::function<bool(const KirvXmppStanzaStart &)>;
    enum Violation {
        None,
        NoStream, ///< no stream begins
        TooLarge, ///< a stanza has no end, or the server has broken another bound itself
        Malformed, ///< no well-formed XML
        Forbidden ///< XML that streams must not hold, such as a document type
    };
    struct Piece {
        enum Kind {
            Nothing, ///< everything that was appended has been read
            Header, ///< the start tag of the stream
            Stanza, ///< a whole stanza
            Oversized, ///< a used stanza has broken a bound and was dropped; the text is empty
            End, ///< the end tag of the stream
            Broken ///< the stream has ended with a violation
        };
        Kind kind = Nothing;
        KirvXmppStanzaStart start; ///< of stanzas
        QByteArray text;
    };

    explicit KirvXmppStreamGuard(Filter isUsed);

    /// A new connection begins, or encryption has. What has not been read is thrown away.
    void reset();
    void append(const QByteArray &bytes);
    /// The next piece that is used. Nothing follows an end or a violation until reset().
    Piece take();
    Violation violation() const { return violated; }
    /// How many bytes are kept now.
    int size() const { return unread.size() - position + kept.size(); }

private:
    enum Phase { AwaitsHeader, InStream, AwaitsEncryption, Over };

    Piece handle(KirvXmppTokenizer::Token token);
    Piece handleOpened();
    Piece handleClosed();
    Piece finishHeader();
    Piece finishStanza();
    Piece checkBounds();
    void noteAttribute();
    void beginStanza();
    void drop();
    bool isTooComplex() const;
    void startOver();
    Piece endWith(Violation violation);
    bool isOutsideOfStanzas() const { return depth < 2; }

    const Filter isUsed;
    KirvXmppTokenizer tokenizer;
    Phase phase = AwaitsHeader;
    Violation violated = None;
    QByteArray unread;
    int position = 0; ///< in unread
    QByteArray kept; ///< of the stanza that is being read
    QVector<quint32> names; ///< of the open elements, as hashes
    int depth = 0; ///< of open elements; 1 is the stream
    int nodes = 0; ///< of the stanza so far, as the next two are
    int references = 0;
    int length = 0; ///< in bytes
    bool isOversized = false;
    bool isDropped = false;
    KirvXmppStanzaStart start;
};

#endif
