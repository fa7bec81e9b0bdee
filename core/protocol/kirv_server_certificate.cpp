// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/protocol/kirv_server_certificate.h"

#include "core/values/kirv_single_line.h"
#include "core/values/kirv_visible_text.h"

#include <QCryptographicHash>
#include <QLocale>
#include <QSslCertificate>
#include <QSslError>
#include <algorithm>

namespace {

constexpr int longestCertificateText = 200;
constexpr int mostNames = 10;
/// Of one kind, of those that a certificate gives several of.
constexpr int mostParts = 3;

/// \a text in one line of limited length, without what cannot be seen.
QString toLine(const QString &text)
{
    QString line = text.left(4 * longestCertificateText);
    std::replace_if(line.begin(), line.end(), kirvIsInvisible, QChar(QChar::ReplacementCharacter));
    return kirvSingleLine(line, longestCertificateText);
}

QString joined(const QStringList &parts)
{
    return toLine(QStringList(parts.mid(0, mostParts)).join(QLatin1String(", ")));
}

/// "example.org", or "Name of it (Organization)".
QString described(const QStringList &commonNames, const QStringList &organizations)
{
    const QString name = joined(commonNames), organization = joined(organizations);
    if (name.isEmpty() || organization.isEmpty() || name == organization)
        return name.isEmpty() ? organization : name;
    //: whom a certificate is for or from: %1 = name, %2 = organization
    return KirvServerCertificate::tr("%1 (%2)").arg(name, organization);
}

QStringList namesOf(const QSslCertificate &certificate)
{
    QStringList names;
    const auto alternatives = certificate.subjectAlternativeNames();
    for (const QSsl::AlternativeNameEntryType type : { QSsl::DnsEntry, QSsl::IpAddressEntry }) {
        const QStringList all = alternatives.values(type); // the last one first
        for (auto name = all.crbegin(); name != all.crend() && names.size() < mostNames; ++name)
            names << toLine(*name);
    }
    return names;
}

QString dateText(const QDateTime &date)
{
    return QLocale().toString(date.toLocalTime(), QLocale::ShortFormat);
}

QString otherHostText(const KirvServerCertificate &certificate)
{
    const QString owner =
        certificate.names.isEmpty() ? certificate.subject : toLine(certificate.names.join(QLatin1String(", ")));
    return owner.isEmpty()
        //: %1 = name of a server
        ? KirvServerCertificate::tr("It is not for %1.").arg(certificate.host)
        //: %1 and %2 = names of servers
        : KirvServerCertificate::tr("It is for %1, and not for %2.").arg(owner, certificate.host);
}

/// What \a error, which is about the certificate of the server itself when \a isOwn, means for people.
QString problemText(const QSslError &error, bool isOwn, const KirvServerCertificate &certificate)
{
    switch (error.error()) {
    case QSslError::SelfSignedCertificate:
        return KirvServerCertificate::tr("It is self-signed: no authority has issued it.");
    case QSslError::UnableToGetIssuerCertificate:
    case QSslError::UnableToGetLocalIssuerCertificate:
    case QSslError::UnableToVerifyFirstCertificate:
    case QSslError::SelfSignedCertificateInChain:
    case QSslError::CertificateUntrusted:
        return KirvServerCertificate::tr("It is not from an authority that this computer trusts.");
    case QSslError::HostNameMismatch:
        return otherHostText(certificate);
    case QSslError::CertificateExpired:
        //: %1 = date and time
        return isOwn
            ? KirvServerCertificate::tr("It has expired: it was valid until %1.").arg(dateText(certificate.validUntil))
            : KirvServerCertificate::tr("A certificate of its issuer has expired.");
    case QSslError::CertificateNotYetValid:
        //: %1 = date and time
        return isOwn ? KirvServerCertificate::tr("It is not valid before %1.").arg(dateText(certificate.validFrom))
                     : KirvServerCertificate::tr("A certificate of its issuer is not valid yet.");
    case QSslError::CertificateRevoked:
    case QSslError::CertificateBlacklisted:
        return KirvServerCertificate::tr("It was withdrawn.");
    default:
        return toLine(error.errorString());
    }
}

} // namespace

KirvServerCertificate::KirvServerCertificate(const QSslCertificate &certificate, const QList<QSslError> &errors,
                                             const QString &host)
    : host(toLine(host))
{
    if (!certificate.isNull()) // it has a digest, too
        fingerprint = certificate.digest(QCryptographicHash::Sha256);
    subject = described(certificate.subjectInfo(QSslCertificate::CommonName),
                        certificate.subjectInfo(QSslCertificate::Organization));
    issuer = described(certificate.issuerInfo(QSslCertificate::CommonName),
                       certificate.issuerInfo(QSslCertificate::Organization));
    names = namesOf(certificate);
    validFrom = certificate.effectiveDate();
    validUntil = certificate.expiryDate();
    for (const QSslError &error : errors) {
        const bool isOwn = error.certificate().isNull() || error.certificate() == certificate;
        isSelfIssued = isSelfIssued || (isOwn && error.error() == QSslError::SelfSignedCertificate);
        const QString problem = problemText(error, isOwn, *this);
        if (!problem.isEmpty() && !problems.contains(problem))
            problems << problem;
    }
}

QString KirvServerCertificate::fingerprintText(const QByteArray &fingerprint)
{
    return QString::fromLatin1(fingerprint.toHex(':').toUpper());
}

QList<KirvServerCertificate::Detail> KirvServerCertificate::details() const
{
    QList<Detail> result;
    const auto add = [&result](const QString &label, const QString &text) {
        if (!text.isEmpty())
            result.append({ label, text });
    };
    const QLocale locale;
    const auto dateOf = [&locale](const QDateTime &date) {
        return locale.toString(date.toLocalTime().date(), QLocale::LongFormat);
    };
    //: the servers that a certificate is for
    add(tr("For"), names.isEmpty() ? subject : toLine(names.join(QLatin1String(", "))));
    //: whom a certificate is for
    add(tr("Owner"), names.isEmpty() || names.contains(subject) ? QString() : subject);
    //: as in "Issued by: itself"
    add(tr("Issued by"), isSelfIssued ? tr("itself") : issuer);
    add(tr("Valid from"), dateOf(validFrom));
    add(tr("Valid until"), dateOf(validUntil));
    add(tr("Fingerprint (SHA-256)"), fingerprintText());
    return result;
}

bool KirvServerCertificate::operator==(const KirvServerCertificate &other) const
{
    return fingerprint == other.fingerprint && host == other.host && problems == other.problems;
}
