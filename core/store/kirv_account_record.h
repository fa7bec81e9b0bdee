// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNT_RECORD_H
#define KIRV_ACCOUNT_RECORD_H

#include "core/store/kirv_secret_item.h"
#include "core/values/kirv_account_key.h"

#include <QLatin1String>
#include <QMap>
#include <QSet>
#include <QString>

/// What the core itself stores among the settings of a protocol; no field of a protocol is called like that.
namespace KirvOwnSetting {
const QLatin1String avatarOnServer("kirv/avatar_on_server"); ///< see KirvAvatar::onServer
const QLatin1String avatarIsChosen("kirv/avatar_is_chosen"); ///< "true", or missing
}

/// What is stored of one account. A value type.
struct KirvAccountRecord {
    KirvAccountKey key;
    QString alias;
    QString password; ///< stored only while rememberPassword is set
    bool rememberPassword = false;
    bool enabled = true;
    bool restorePresence = false;
    bool restoreDescription = false;
    QString defaultPresence; ///< id
    QString defaultDescription;
    QString lastPresence; ///< id; empty: none yet
    QString lastDescription;
    QString avatar; ///< file name inside KirvStore::avatarFolder(); empty: none
    /// The certificate of a server that the user trusts for this account: its SHA-256 digest in hexadecimal; empty:
    /// none.
    QString trustedCertificate;
    /// Protocol settings by field id; "true" and "false" for check boxes. And those of KirvOwnSetting.
    QMap<QString, QString> settings;
    /// The ids of those settings that are secret, as passwords are: no copy of the profile holds them. Ids that are
    /// not in settings mean nothing.
    QSet<QString> secretSettings;
    /// Where the secrets are that stand in a store of secrets instead of the profile, by field id; that of the password
    /// is empty.
    QMap<QString, KirvSecretItem> secretItems;
    /// Those of secretItems whose values are not known here: password and settings lack them.
    QSet<QString> unreadSecrets;

    /// Whether both are the same, as far as they are stored.
    bool isStoredLike(const KirvAccountRecord &other) const;
    /// Whether both are the same, with the passwords that are not stored.
    bool operator==(const KirvAccountRecord &other) const { return password == other.password && isStoredLike(other); }
    bool operator!=(const KirvAccountRecord &other) const { return !(*this == other); }
};

#endif
