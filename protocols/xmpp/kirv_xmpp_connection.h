// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_XMPP_CONNECTION_H
#define KIRV_XMPP_CONNECTION_H

#include "core/protocol/kirv_connection.h"
#include "protocols/xmpp/kirv_xmpp_avatar.h"
#include "protocols/xmpp/kirv_xmpp_route.h"
#include "protocols/xmpp/kirv_xmpp_settings.h"
#include "protocols/xmpp/kirv_xmpp_vcard.h"

#include <QScopedPointer>
#include <functional>

class KirvXmppDirectory;
class QDomDocument;

/// The connection of an XMPP account to its server.
///
/// A picture that was chosen or removed here is published in the directory entry as soon as that is done, or at the
/// next log-in when the account is off line then. Otherwise the picture that another client has published since is
/// used here. Deleting the entry keeps the picture.
///
/// The random part of the resource is chosen once for the connection: a new session takes the place of one that the
/// server still holds for a link that broke.
class KirvXmppConnection : public KirvConnection {
    Q_OBJECT

public:
    /// \a clock is not owned and outlives the connection.
    explicit KirvXmppConnection(KirvClock &clock = KirvClock::system(), QObject *parent = nullptr,
                                KirvXmppLinkFactory createLink = KirvXmppRoute::create);
    ~KirvXmppConnection() override;

    QString securityText() const override;

    /// Called once with how a request ended, unless the connection is dropped or destroyed before.
    using Receiver = std::function<void(const KirvFailure &)>;
    /// Changes the password on the server. The session goes on with it; login() stays for the owner to bring in line.
    void changePassword(const QString &password, const Receiver &receiver);
    /// Deletes the account on the server, which ends the connection: it is off line when \a receiver is called.
    void deleteOnServer(const Receiver &receiver);

protected:
    void startLogin(const KirvPresence &presence) override;
    void startLogout() override;
    void abortConnection() override;
    void applyPresence(const KirvPresence &presence) override;
    void checkSession(int milliseconds) override;
    void publishAvatar() override;
    void startDirectoryFetch(int request) override;
    void startDirectoryPublication(int request, const QList<KirvField> &changes) override;
    void startDirectoryDeletion(int request) override;

private:
    void connectLink();
    void finishLogin();
    void receiveEnd(const KirvFailure &failure);

    void changeDirectory(int request, const std::function<bool(KirvXmppVCard &)> &change);
    void finishAvatar(const KirvAvatar &own, const KirvXmppAvatar::Result &result);
    void advertise(const KirvXmppPhoto &photo);
    void sendToServer(const QDomDocument &request, const Receiver &receiver);
    QXmppPresence toXmpp(const KirvPresence &presence) const;

    const KirvXmppLinkFactory createLink;
    /// Deleted later, as it may be in the middle of a signal.
    QScopedPointer<KirvXmppLink, QScopedPointerDeleteLater> link;
    QScopedPointer<KirvXmppDirectory> directory; ///< of the link
    QScopedPointer<KirvXmppAvatar> picture; ///< of the link
    const QString randomPart = KirvXmppSettings::randomPart(); ///< of the resource
    KirvXmppSettings settings;
    QByteArray photoHash;
    QXmppPresence::VCardUpdateType photoState = QXmppPresence::VCardUpdateNotReady;
};

#endif
