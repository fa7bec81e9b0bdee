// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/irc/kirv_irc_certificates.h"

#include <QFile>
#include <QFileInfo>

namespace {

/// A file that is larger than a bundle of certificates is none; opening a pipe would wait for who writes to it.
QByteArray readSmallFile(const QString &path)
{
    const qint64 largest = 1 << 20;
    QFile file(path);
    if (!QFileInfo(path).isFile() || file.size() > largest || !file.open(QIODevice::ReadOnly))
        return {};
    return file.read(largest);
}

} // namespace

QList<QSslCertificate> kirvReadCertificates(const QString &path)
{
    return QSslCertificate::fromData(readSmallFile(path), QSsl::Pem);
}

QSslKey kirvReadPrivateKey(const QString &path)
{
    const QByteArray pem = readSmallFile(path);
    for (const QSsl::KeyAlgorithm algorithm : { QSsl::Ec, QSsl::Rsa, QSsl::Dsa }) {
        const QSslKey key(pem, algorithm);
        if (!key.isNull())
            return key;
    }
    return {};
}

bool kirvIsReadableByOthers(const QString &path)
{
    const QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    return QFile::permissions(path) & others;
}
