// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PROTOCOL_H
#define KIRV_PROTOCOL_H

#include "host/kirv_field.h"
#include "host/kirv_presence.h"

#include <QList>
#include <QString>
#include <QStringList>

class KirvAccountConnection;

/// One loaded protocol plug-in, owned by the plug-in manager.
///
/// The order of the virtual operations is part of the contract with plug-ins that were built
/// before the client: add new ones at the end only. What is not virtual is defined by the client
/// core for all protocols alike.
class KirvProtocol {
public:
    /// The protocol's name: the one by which the plug-in manager finds it and that
    /// KirvAccountConnection::getProtocolName() returns for its accounts.
    virtual QString getName() = 0;
    /// A sentence about the protocol; empty when it has none to say.
    virtual QString getDescription() { return QString(); }
    /// The path of the protocol's icon; which \a variant means what is the protocol's own affair,
    /// 0 is the ordinary one. Empty when there is none.
    virtual QString getIconPath(int variant) = 0;

    /// The names of the ready-made configurations offered for a new account; may be empty.
    virtual QStringList getConfigurations() = 0;
    /// The settings of the configuration \a name. A field with the id "login" presets the login.
    /// An unknown name gives an empty list.
    virtual QList<KirvField> getConfigurationFields(const QString &name) = 0;

    /// Each of these three sends a request to the server. Its reply is a
    /// KirvPubdirAccountReceivedEvent that is delivered later to the open edit dialog; without data
    /// when the server holds no entry. After a request that failed, deliver none: the fields would
    /// be enabled and blank, and a Save would publish that over the entry.
    /// Sends \a fields as the directory entry of \a account.
    virtual void publishPubdirInfo(KirvAccountConnection *account, const QList<KirvField> &fields) = 0;
    /// Requests the directory entry of \a account.
    virtual void fetchPubdirInfo(KirvAccountConnection *account) = 0;
    /// Removes the directory entry of \a account.
    virtual void deletePubdirInfo(KirvAccountConnection *account) = 0;

    /// A regular expression in Qt's default syntax, case-sensitive, that a login must match as a
    /// whole.
    virtual QString getLoginPattern() = 0;

    virtual ~KirvProtocol() { }

    /// Every presence that the protocol offers, in display order; the first is the default.
    QList<KirvPresence> getAllPresences() const;
    /// The settings, with their defaults, that a new account has; may be empty.
    QList<KirvField> getAccountSettings() const;
    /// The blank fields of an account's public-directory entry; empty when there is no directory.
    QList<KirvField> getPubdirAccountFields() const;
    /// The presence with that \a id, carrying \a description. An unknown id gives the protocol's
    /// first presence.
    KirvPresence createPresenceWithId(const QString &id, const QString &description) const;
    /// Tells the protocol that the presence of \a account was set from outside.
    void accountPresenceChanged(KirvAccountConnection *account);
};

#endif
