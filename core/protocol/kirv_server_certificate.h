// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_SERVER_CERTIFICATE_H
#define KIRV_SERVER_CERTIFICATE_H

#include "core/values/kirv_values_export.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QDateTime>
#include <QList>
#include <QMetaType>
#include <QString>
#include <QStringList>

class QSslCertificate;
class QSslError;

/// What a server has shown of itself for an encrypted connection, and what is wrong with that. A value type.
///
/// All texts are plain text in one line of bearable length, whatever a server sends.
class KIRV_PROTOCOL_EXPORT KirvServerCertificate {
    Q_DECLARE_TR_FUNCTIONS(KirvServerCertificate)

public:
    /// Of nobody; null.
    KirvServerCertificate() = default;
    /// \a certificate is the one of the server itself, \a errors are what its check has found, and \a host is the name
    /// that it was to be for.
    KirvServerCertificate(const QSslCertificate &certificate, const QList<QSslError> &errors, const QString &host);

    /// Whether it is of nobody.
    bool isNull() const { return fingerprint.isEmpty(); }

    QString host; ///< that the connection was to
    QString subject; ///< whom the certificate is for, as it says itself; empty when it says nothing
    QString issuer; ///< who has issued it, as it says itself; empty when it says nothing
    bool isSelfIssued = false; ///< both are the same
    QStringList names; ///< the servers that it is for, without those beyond the first ten
    QDateTime validFrom; ///< from when on it is valid; invalid when it does not say so
    QDateTime validUntil; ///< until when it is valid; invalid when it does not say so
    QByteArray fingerprint; ///< the SHA-256 digest of the certificate, 32 bytes
    QStringList problems; ///< all that is wrong with it, one or two sentences each

    /// A line about it.
    struct Detail {
        QString label; ///< translated, without a colon
        QString text; ///< in one line, not translated where it is the server's
    };
    /// Whom it is for, who has issued it, its dates and its fingerprint, in display order, without what it does not
    /// say.
    QList<Detail> details() const;

    /// \a fingerprint as people compare it, as "9F:3A:…".
    static QString fingerprintText(const QByteArray &fingerprint);
    /// The fingerprint of this one as people compare it; empty when it is null.
    QString fingerprintText() const { return fingerprintText(fingerprint); }

    /// Whether both servers have shown the same, for the same name and with the same problems.
    bool operator==(const KirvServerCertificate &other) const;
    /// Whether anything differs.
    bool operator!=(const KirvServerCertificate &other) const { return !(*this == other); }
};

Q_DECLARE_METATYPE(KirvServerCertificate)

#endif
