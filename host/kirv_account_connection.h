// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNT_CONNECTION_H
#define KIRV_ACCOUNT_CONNECTION_H

#include "host/kirv_field.h"
#include "host/kirv_presence.h"

#include <QList>
#include <QString>

class KirvProtocol;

/// A configured account loaded into the client, with its connection to the server.
///
/// The account manager owns it: it lives as long as its account is configured, and
/// KirvAccountManager::removeAccount() destroys it. A client core derives its own account class
/// from this one and defines the operations; none of them is virtual.
class KirvAccountConnection {
public:
    /// The account id: the name under which the account logs in.
    QString getUid() const;
    /// The name of the account's protocol. Stays known while the protocol is not loaded.
    QString getProtocolName() const;
    /// The same pointer that KirvPluginManager::getProtocolByName() returns for getProtocolName().
    KirvProtocol *getProtocol() const;

    /// The name shown for the account; may be empty.
    QString getAlias() const;
    /// Changes the name shown for the account.
    void setAlias(const QString &alias);

    /// The password as it is known now; empty when it is not known.
    QString getPassword() const;
    /// Changes the password that the next log-in uses; an empty one means that none is known.
    void setPassword(const QString &password);
    /// Whether the password is kept between runs.
    void setRememberPassword(bool remember);

    /// Whether the last presence is restored when the client starts.
    void setRestoreLastPresence(bool restore);
    /// Whether the last description is restored when the client starts.
    void setRestoreLastDescription(bool restore);

    /// The presence, with its description, taken at log-in.
    KirvPresence getDefaultPresence() const;
    /// Changes the presence taken at log-in; the current one stays.
    void setDefaultPresence(const KirvPresence &presence);
    /// Changes the current presence now.
    void setPresence(const KirvPresence &presence);

    /// The path of the avatar image file; empty when the account has none.
    QString getCurrentAvatarPath() const;
    /// Takes the image at \a path as the avatar, at once. An empty path takes the avatar away.
    void setAvatar(const QString &path);

    /// The protocol-specific settings of this account, in display order.
    QList<KirvField> getAccountSettingsInOrder() const;
    /// Changes the protocol-specific settings to \a settings.
    void setAccountSettings(const QList<KirvField> &settings);

    /// Whether the account is enabled. One that is disabled stays configured and does not log in.
    bool isEnabled() const;
    /// Whether the account is connected now.
    bool isLoggedIn() const;
};

#endif
