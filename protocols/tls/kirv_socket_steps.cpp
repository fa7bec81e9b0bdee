// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/tls/kirv_socket_steps.h"

#include "core/values/kirv_visible_text.h"

#include <QAbstractSocket>
#include <QCryptographicHash>
#include <QHostAddress>
#include <QLocale>
#include <QSslCertificate>
#include <QSslCipher>
#include <QSslSocket>

namespace {

/// The name for which a certificate was made.
QString nameOf(const QSslCertificate &certificate)
{
    const QStringList common = certificate.subjectInfo(QSslCertificate::CommonName);
    const QStringList others = certificate.subjectAlternativeNames().values(QSsl::DnsEntry);
    return common.isEmpty() ? others.value(0) : common.first();
}

} // namespace

KirvSocketSteps::KirvSocketSteps(QAbstractSocket &socket, QObject *parent)
    : QObject(parent)
    , socket(socket)
    , encrypted(qobject_cast<QSslSocket *>(&socket))
{
    connect(&socket, &QAbstractSocket::hostFound, this, &KirvSocketSteps::receiveAddress);
    connect(&socket, &QAbstractSocket::connected, this, &KirvSocketSteps::receiveConnection);
    if (!encrypted)
        return;
    connect(encrypted, &QSslSocket::encrypted, this, &KirvSocketSteps::receiveEncryption);
    connect(encrypted, QOverload<const QList<QSslError> &>::of(&QSslSocket::sslErrors), this,
            &KirvSocketSteps::receiveWarning);
}

void KirvSocketSteps::begin(const QString &host, int port, const QNetworkProxy &newProxy, Encryption newEncryption)
{
    //: %1 = name of a server, %2 = number of a port
    target = tr("%1, port %2").arg(host, QString::number(port));
    proxy = newProxy;
    encryption = newEncryption;
    hasLogInBegun = false;
    emitStep(KirvLoginStep::NameLookup, KirvLoginStep::Running, target);
    if (proxy.type() == QNetworkProxy::NoProxy)
        return;
    //: %1 = server and port
    emitStep(KirvLoginStep::NameLookup, KirvLoginStep::Done, tr("%1, which the proxy looks up").arg(target));
    //: %1 = name of a proxy
    emitStep(KirvLoginStep::Connection, KirvLoginStep::Running, tr("through the proxy %1").arg(proxy.hostName()));
}

void KirvSocketSteps::receiveAddress()
{
    if (proxy.type() != QNetworkProxy::NoProxy)
        return; // the address is that of the proxy
    emitStep(KirvLoginStep::NameLookup, KirvLoginStep::Done, target);
    emitStep(KirvLoginStep::Connection, KirvLoginStep::Running, target);
}

void KirvSocketSteps::receiveConnection()
{
    const bool isDirect = proxy.type() == QNetworkProxy::NoProxy;
    emitStep(KirvLoginStep::Connection, KirvLoginStep::Done,
             isDirect ? socket.peerAddress().toString() : tr("through the proxy %1").arg(proxy.hostName()));
    if (encryption == Wanted) {
        emitStep(KirvLoginStep::Encryption, KirvLoginStep::Running);
        return;
    }
    emitStep(KirvLoginStep::Encryption, KirvLoginStep::Done, tr("none, as the settings say"));
    emitStep(KirvLoginStep::LogIn, KirvLoginStep::Running);
}

void KirvSocketSteps::receiveEncryption()
{
    emitStep(KirvLoginStep::Encryption, KirvLoginStep::Done, encryptionText());
    emitStep(KirvLoginStep::LogIn, KirvLoginStep::Running);
}

/// Whether that ends the log-in is for others to say.
void KirvSocketSteps::receiveWarning()
{
    emitStep(KirvLoginStep::Encryption, KirvLoginStep::Running, certificateText(encrypted->peerCertificate()));
}

void KirvSocketSteps::goOnUnencrypted()
{
    if (hasLogInBegun)
        return;
    emitStep(KirvLoginStep::Encryption, KirvLoginStep::Done, tr("none: the server offers none"));
    emitStep(KirvLoginStep::LogIn, KirvLoginStep::Running);
}

void KirvSocketSteps::emitStep(KirvLoginStep::Kind kind, KirvLoginStep::Outcome outcome, const QString &text)
{
    hasLogInBegun = hasLogInBegun || kind == KirvLoginStep::LogIn;
    Q_EMIT step({ kind, outcome, text });
}

QString KirvSocketSteps::encryptionText() const
{
    QString version = encrypted->sessionCipher().protocolString();
    version.replace(QLatin1String("TLSv"), QLatin1String("TLS "));
    const QString certificate = certificateText(encrypted->peerCertificate());
    //: %1 = "TLS 1.3", %2 = about a certificate
    return certificate.isEmpty() ? version : tr("%1, %2").arg(version, certificate);
}

QString KirvSocketSteps::certificateText(const QSslCertificate &certificate)
{
    if (certificate.isNull())
        return QString();
    const QByteArray fingerprint = certificate.digest(QCryptographicHash::Sha256).toHex(':').toUpper();
    //: %1 = name of a server, %2 = a date, %3 = hexadecimal digits
    return tr("certificate of %1, valid until %2, fingerprint %3 (SHA-256)")
        .arg(kirvVisibleText(nameOf(certificate).left(100)),
             QLocale().toString(certificate.expiryDate().date(), QStringLiteral("d MMMM yyyy")),
             QString::fromLatin1(fingerprint));
}
