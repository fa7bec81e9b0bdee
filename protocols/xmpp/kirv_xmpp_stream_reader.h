// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_XMPP_STREAM_READER_H
#define KIRV_XMPP_STREAM_READER_H

#include "protocols/xmpp/kirv_xmpp_stream_guard.h"

#include <QObject>

class QDomElement;
class KirvXmppTurns;
class QSslSocket;
class QXmppOutgoingClient;

/// Reads the socket of a stream in the library's place and hands on to it what the guard lets through.
///
/// The library collects what comes without a bound, and makes a tree of all of it again for each piece that comes. It
/// never sees the bytes now: a little is read in each turn of the event loop, of one stream at a time, and the library
/// receives single stanzas as elements. While the server does not read what it has caused to be sent, nothing is read
/// either.
class KirvXmppStreamReader : public QObject {
    Q_OBJECT

public:
    static constexpr int bytesPerTurn = 32768;
    static constexpr int piecesPerTurn = 20;
    static constexpr int largestBacklog = 65536; ///< bytes that wait to be sent

    /// \a stream is not owned and outlives the object.
    KirvXmppStreamReader(QXmppOutgoingClient &stream, const KirvXmppStreamGuard::Filter &isUsed,
                         QObject *parent = nullptr);

    /// Whether what is sent now is encrypted.
    bool isEncrypted() const;
    /// The version of encryption, as "TLSv1.3"; empty while there is none.
    QString encryptionName() const;
    /// Reads and emits nothing any more.
    void stop();

Q_SIGNALS:
    /// A stanza that is used has broken a bound, or its content cannot be read; it was dropped.
    void stanzaDropped(const KirvXmppStanzaStart &start);
    /// The server has sent what no stream may hold. Nothing is read any more.
    void streamBroken(KirvXmppStreamGuard::Violation violation);

private:
    void goOn();
    void takeTurn();
    void takeRest();
    bool deliver(const KirvXmppStreamGuard::Piece &piece);
    void deliverHeader(const QByteArray &text);
    void deliverStanza(const KirvXmppStreamGuard::Piece &piece);
    void breakStream(KirvXmppStreamGuard::Violation violation);
    bool isBacklogged() const;

    QXmppOutgoingClient &stream;
    QSslSocket *const socket;
    KirvXmppStreamGuard guard;
    KirvXmppTurns &turns; ///< shared by all streams
    QByteArray header; ///< of the stream: stanzas are read with its namespaces
    QByteArray footer;
    bool hasUnread = false; ///< the guard has more to give
    bool isStopped = false;
};

#endif
