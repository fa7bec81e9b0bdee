// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_LOGIN_H
#define KIRV_LOGIN_H

#include "host/kirv_field.h"

#include <QByteArray>
#include <QList>
#include <QString>

/// What a connection logs in with: a copy of what is stored for the account, made when a log-in is wanted. A value
/// type.
struct KirvLogin {
    QString id; ///< the account id
    QString password; ///< empty: none is known
    QList<KirvField> settings; ///< the protocol's settings of the account, in display order
    /// The SHA-256 digest of the one certificate of a server that the user trusts for this account, whatever is wrong
    /// with it; empty: only what the system or the settings trust. See KirvServerCertificate::fingerprint.
    QByteArray trustedCertificate = QByteArray();

    /// Whether a log-in with both is the same.
    bool operator==(const KirvLogin &other) const
    {
        return id == other.id && password == other.password && settings == other.settings
            && trustedCertificate == other.trustedCertificate;
    }
    /// Whether anything differs.
    bool operator!=(const KirvLogin &other) const { return !(*this == other); }
};

#endif
