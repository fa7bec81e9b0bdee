// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_MOVED_SAMPLES_H
#define KIRV_MOVED_SAMPLES_H

#include "core/moving/kirv_moved_accounts.h"

#include <QBuffer>
#include <QImage>

// Accounts for tests of files of accounts.

inline QByteArray samplePicture()
{
    QImage image(QSize(4, 4), QImage::Format_RGB32);
    image.fill(qRgb(200, 100, 50));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    return buffer.open(QIODevice::WriteOnly) && image.save(&buffer, "png") ? bytes : QByteArray();
}

inline KirvMovedAccount sampleAccount(const QString &id, const QString &protocol = QStringLiteral("XMPP"))
{
    KirvMovedAccount account;
    KirvAccountRecord &record = account.record;
    record.key = { id, protocol };
    record.alias = QStringLiteral("Alias of ") + id;
    record.password = QStringLiteral("password of ") + id;
    record.rememberPassword = true;
    record.defaultPresence = QStringLiteral("away");
    record.lastDescription = QString::fromUtf8("two\nlines \xe2\x80\x9cquoted\xe2\x80\x9d \\ \"");
    record.settings = { { QStringLiteral("server"), QStringLiteral("chat.example.org") },
                        { QStringLiteral("port"), QStringLiteral("5222") },
                        { QStringLiteral("proxy_password"), QStringLiteral("secret of ") + id } };
    record.secretSettings = { QStringLiteral("proxy_password") };
    return account;
}

/// Two of XMPP, the first with a picture, and the main account of IRC.
inline KirvMovedAccounts sampleAccounts()
{
    KirvMovedAccounts moved;
    moved.accounts = { sampleAccount(QStringLiteral("zoe@example.org")),
                       sampleAccount(QStringLiteral("anna@irc.example.org"), QStringLiteral("IRC")),
                       sampleAccount(QStringLiteral("anna@example.org")) };
    moved.accounts[0].picture = samplePicture();
    moved.accounts[1].record.trustedCertificate = QString(64, QLatin1Char('a'));
    moved.accounts[1].record.enabled = false;
    moved.mainAccount = moved.accounts.at(1).record.key;
    return moved;
}

#endif
