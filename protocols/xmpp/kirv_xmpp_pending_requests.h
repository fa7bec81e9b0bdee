// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_XMPP_PENDING_REQUESTS_H
#define KIRV_XMPP_PENDING_REQUESTS_H

#include "protocols/xmpp/kirv_xmpp_link.h"

#include <QHash>
#include <QStringList>

/// The requests that wait for their replies.
///
/// Whoever can send something to the account could send replies, too. One counts only when it has the id of a request,
/// which cannot be guessed, and comes from the address that the request went to.
class KirvXmppPendingRequests {
public:
    using Receiver = KirvXmppLink::Receiver;

    /// The account, with or without its resource: requests without an address go to it.
    void setAccount(const QString &address);

    /// Remembers a request to \a to, empty for the account itself, and returns the id to send it with.
    QString add(const QString &to, const Receiver &receiver);
    /// Whether a reply with \a id from \a from, empty when it has none, is the one to a request.
    bool isAwaited(const QString &id, const QString &from) const;
    bool contains(const QString &id) const { return requests.contains(id); }
    /// Forgets the request \a id and returns its receiver; null when there is none.
    Receiver take(const QString &id) { return requests.take(id).receiver; }
    QStringList ids() const { return requests.keys(); }
    void clear() { requests.clear(); }

    /// Whether \a address is the server of the account or the account itself as its server replies for it; an empty
    /// one is.
    bool isOwnServer(const QString &address) const;

private:
    struct Request {
        QString to;
        Receiver receiver;
    };

    QString fullAddress; ///< these three are normalised
    QString bareAddress;
    QString domain;
    QHash<QString, Request> requests; ///< by the id
};

#endif
