// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_XMPP_CONNECTION_H
#define KIRV_XMPP_CONNECTION_H

#include "core/protocol/kirv_connection.h"
#include "protocols/xmpp/kirv_xmpp_settings.h"
#include "protocols/xmpp/kirv_xmpp_vcard.h"

#include <QScopedPointer>
#include <QXmppPresence.h>
#include <functional>

class KirvXmppDirectory;
class KirvXmppLink;
class QDomDocument;

/// The connection of an XMPP account to its server.
///
/// A picture that was chosen for the account is published in the directory entry as soon as it is chosen, or at
/// the next log-in when the account is off line then; taken away on line, it is removed there too. A picture that
/// another client has published stays as long as none is chosen here. Deleting the entry keeps the picture.
class KirvXmppConnection : public KirvConnection {
    Q_OBJECT

public:
    explicit KirvXmppConnection(KirvAccountConnection *account, KirvClock &clock = KirvClock::system(),
                                QObject *parent = nullptr);
    ~KirvXmppConnection() override;

    void fetchDirectory() override;
    void publishDirectory(const QList<KirvField> &fields) override;
    void deleteDirectory() override;
    void publishAvatar() override;

    /// Told once how a request ended. A connection that is dropped or destroyed before says nothing.
    using Receiver = std::function<void(const KirvFailure &)>;
    /// Changes the password on the server; the account itself is left to \a receiver.
    void changePassword(const QString &password, const Receiver &receiver);
    /// Deletes the account on the server, which ends the connection.
    void deleteOnServer(const Receiver &receiver);

protected:
    void startLogin(const KirvPresence &presence) override;
    void startLogout() override;
    void abortConnection() override;
    void applyPresence(const KirvPresence &presence) override;

private:
    void createLink();
    void finishLogin();
    void receiveEnd(const KirvFailure &failure);

    void changeDirectory(const std::function<bool(KirvXmppVCard &)> &change);
    void advertise(const KirvXmppPhoto &photo);
    void askServer(const QDomDocument &request, const Receiver &receiver);
    QXmppPresence toXmpp(const KirvPresence &presence) const;

    /// Deleted later, as it may be in the middle of a signal.
    QScopedPointer<KirvXmppLink, QScopedPointerDeleteLater> link;
    QScopedPointer<KirvXmppDirectory> directory; ///< of the link
    KirvXmppSettings settings;
    QByteArray photoHash;
    QXmppPresence::VCardUpdateType photoState = QXmppPresence::VCardUpdateNotReady;
};

#endif
