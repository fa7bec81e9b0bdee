// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_OBSERVING_XMPP_CLIENT_H
#define KIRV_OBSERVING_XMPP_CLIENT_H

#include <QHash>
#include <QStringList>
#include <QXmppClient.h>
#include <QXmppIq.h>
#include <QXmppVCardIq.h>

class KirvProsodyServer;

/// Another user's client on the same server, which shares no code with ours.
class KirvObservingXmppClient {
public:
    KirvObservingXmppClient();

    /// Logs in as \a user and waits for it; false when the server refuses, too.
    bool logIn(const KirvProsodyServer &server, const QString &user, const QString &password = "secret",
               const QString &resource = "observer");
    void logOut();
    /// Makes \a user and this one see each other's presence. \a user must not be on line.
    bool befriend(const KirvProsodyServer &server, const QString &user, const QString &password = "secret");

    /// The last presence that was seen of the bare address \a address; an unavailable one when there was none.
    QXmppPresence presenceOf(const QString &address) const;
    bool sees(const QString &address) const { return presenceOf(address).type() == QXmppPresence::Available; }
    /// The directory entry of \a address, as the server has it now.
    QXmppVCardIq vCardOf(const QString &address);
    /// Publishes \a card as one's own.
    bool publish(QXmppVCardIq card);
    /// Sends \a stanza as it is and at once.
    bool send(const QByteArray &stanza);
    /// Everything that has come, as it came.
    QString received() const { return everything; }
    /// Waits until the server has done all that was sent before, and has sent what followed from that. Nobody else in
    /// this program reads or writes meanwhile.
    bool synchronise();
    /// Puts \a picture, a PNG, among one's own personal events (urn:xmpp:avatar).
    bool publishEvent(const QByteArray &picture);
    void say(const QString &address, const QString &text) { client.sendMessage(address, text); }
    /// The texts of the messages that came, in their order.
    QStringList heard() const { return messages; }

private:
    QXmppClient client;
    bool request(QXmppIq::Type type, const QDomElement &payload);

    QHash<QString, QXmppPresence> presences;
    QString everything;
    int synchronisations = 0;
    QStringList messages;
};

#endif
