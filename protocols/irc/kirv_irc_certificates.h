// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_IRC_CERTIFICATES_H
#define KIRV_IRC_CERTIFICATES_H

#include <QList>
#include <QSslCertificate>
#include <QSslKey>
#include <QString>

/// What the PEM file at \a path holds. Files that are no regular ones or have more than 1 MB are not read; nothing, or
/// a null key, then and when there is none in the file. A key that is protected by a password cannot be read.
QList<QSslCertificate> kirvReadCertificates(const QString &path);
QSslKey kirvReadPrivateKey(const QString &path);

/// Whether others than the owner of the file at \a path may read or change it.
bool kirvIsReadableByOthers(const QString &path);

#endif
