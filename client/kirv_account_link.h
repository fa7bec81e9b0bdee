// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNT_LINK_H
#define KIRV_ACCOUNT_LINK_H

#include <QMetaType>
#include <QString>

class KirvAccountsTab;
class QMimeData;

/// What a link says of an account that could be added: xmpp:user\@server, xmpp://user\@server/…,
/// irc://nick\@server:port/… and the same with ircs.
struct KirvAccountLink {
    QString protocol; ///< its name; empty: this is no link
    /// Empty when the link does not say whose account it is. A link of IRC without a nick names a server:
    /// "\@server:port".
    QString login;
    bool isTooLong = false; ///< it begins as one of those above, but has more than \a longest bytes; it is null then

    /// Of a whole link, in bytes of UTF-8.
    static const int longest = 4096;

    bool isNull() const { return protocol.isEmpty(); }
    /// The link in \a text; null when it is none of those above, or too long. An address that an xmpp link names to
    /// write to, or to do anything with but to register there, is somebody else's and no login.
    static KirvAccountLink fromText(const QString &text);
    /// The link in \a data, which is pasted or dropped and may be null.
    static KirvAccountLink fromMimeData(const QMimeData *data);

    /// Runs the window for a new account over \a page, filled with the login. False when the protocol is not loaded.
    bool open(KirvAccountsTab *page) const;
};
Q_DECLARE_METATYPE(KirvAccountLink)

#endif
