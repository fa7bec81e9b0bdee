// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_XMPP_AVATAR_H
#define KIRV_XMPP_AVATAR_H

#include "core/protocol/kirv_avatar.h"
#include "core/values/kirv_failure.h"
#include "protocols/xmpp/kirv_xmpp_vcard.h"

#include <QCoreApplication>
#include <functional>

class KirvXmppDirectory;
class KirvXmppLink;
struct KirvXmppReply;

/// The picture of an account on its server. It can be at two places, which servers keep in line or not: in the
/// directory entry (vcard-temp) and, put there by other clients, among the personal events (PEP, urn:xmpp:avatar).
///
/// Ours is published in the entry. Which of the places has changed since is seen by the hashes of what they held.
class KirvXmppAvatar {
    Q_DECLARE_TR_FUNCTIONS(KirvXmppAvatar)

public:
    /// What a job has led to. A value type.
    struct Result {
        enum Kind {
            Unchanged,
            Published, ///< the entry holds ours now
            Received ///< another client has changed the picture: image is the one to show, empty: none
        };

        KirvFailure failure; ///< None when there was none; the rest means nothing otherwise
        Kind kind = Unchanged;
        KirvXmppPhoto photo; ///< what the entry holds
        QByteArray image; ///< of an image file
        QByteArray onServer; ///< see KirvAvatar::onServer
    };
    /// Not called when the link is aborted or destroyed before.
    using Receiver = std::function<void(const Result &)>;

    /// They are not owned and live longer.
    KirvXmppAvatar(KirvXmppLink &link, KirvXmppDirectory &directory);

    /// Publishes \a avatar where it was chosen here; otherwise looks whether the server has another one.
    void synchronize(const KirvAvatar &avatar, const Receiver &receiver);
    void publish(const KirvAvatar &avatar, const Receiver &receiver);

private:
    /// What the two places hold: the SHA-1 hashes, in hexadecimal digits; empty: nothing.
    struct Places {
        QByteArray entry;
        QByteArray event;

        static Places fromBytes(const QByteArray &bytes);
        QByteArray toBytes() const { return entry + '/' + event; }
    };
    using EventReceiver = std::function<void(const KirvFailure &failure, const QByteArray &hash)>;

    void readEvent(const EventReceiver &receiver);
    void writeEntry(const KirvAvatar &avatar, const QByteArray &event, const Receiver &receiver);
    void readEntry(const KirvAvatar &avatar, const QByteArray &event, const Receiver &receiver);
    void compare(const KirvAvatar &avatar, const QByteArray &event, Result result, const Receiver &receiver);
    void fetchEvent(const QByteArray &hash, const Result &result, const Receiver &receiver);
    void requestItem(const QString &node, const QByteArray &id,
                     const std::function<void(const KirvXmppReply &)> &receiver);

    KirvXmppLink &link;
    KirvXmppDirectory &directory;
};

#endif
