// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/recording_host/kirv_recording_account.h"

#include "tests/support/recording_host/kirv_recording_host.h"

namespace {

// Every account of this host is a recording one.
KirvRecordingAccount *self(KirvAccountConnection *account)
{
    return static_cast<KirvRecordingAccount *>(account);
}

const KirvRecordingAccount *self(const KirvAccountConnection *account)
{
    return static_cast<const KirvRecordingAccount *>(account);
}

void record(const KirvAccountConnection *account, const QString &operation, const QString &argument)
{
    KirvRecordingHost::instance().record(self(account)->written(), operation, { argument });
}

void record(const KirvAccountConnection *account, const QString &operation)
{
    KirvRecordingHost::instance().record(self(account)->written(), operation, {});
}

}

KirvRecordingAccount::KirvRecordingAccount(const QString &id, KirvRecordingProtocol *protocol)
    : id(id)
    , protocolName(protocol->name)
    , protocol(protocol)
    , alias(QStringLiteral("Alias of ") + id)
    , password(QStringLiteral("secret"))
    , defaultPresence(protocol->presence(QStringLiteral("online"), QString()))
{
}

QString KirvRecordingAccount::written() const
{
    return id + QLatin1Char('@') + protocolName;
}

QString KirvAccountConnection::getUid() const
{
    record(this, QStringLiteral("getUid"));
    return self(this)->id;
}

QString KirvAccountConnection::getProtocolName() const
{
    record(this, QStringLiteral("getProtocolName"));
    return self(this)->protocolName;
}

KirvProtocol *KirvAccountConnection::getProtocol() const
{
    record(this, QStringLiteral("getProtocol"));
    return self(this)->protocol;
}

QString KirvAccountConnection::getAlias() const
{
    record(this, QStringLiteral("getAlias"));
    return self(this)->alias;
}

void KirvAccountConnection::setAlias(const QString &alias)
{
    record(this, QStringLiteral("setAlias"), kirvWritten(alias));
    self(this)->alias = alias;
}

QString KirvAccountConnection::getPassword() const
{
    record(this, QStringLiteral("getPassword"));
    return self(this)->password;
}

void KirvAccountConnection::setPassword(const QString &password)
{
    record(this, QStringLiteral("setPassword"), kirvWritten(password));
    self(this)->password = password;
}

void KirvAccountConnection::setRememberPassword(bool remember)
{
    record(this, QStringLiteral("setRememberPassword"), kirvWritten(remember));
}

void KirvAccountConnection::setRestoreLastPresence(bool restore)
{
    record(this, QStringLiteral("setRestoreLastPresence"), kirvWritten(restore));
}

void KirvAccountConnection::setRestoreLastDescription(bool restore)
{
    record(this, QStringLiteral("setRestoreLastDescription"), kirvWritten(restore));
}

KirvPresence KirvAccountConnection::getDefaultPresence() const
{
    record(this, QStringLiteral("getDefaultPresence"));
    return self(this)->defaultPresence;
}

void KirvAccountConnection::setDefaultPresence(const KirvPresence &presence)
{
    record(this, QStringLiteral("setDefaultPresence"), kirvWritten(presence));
    self(this)->defaultPresence = presence;
}

void KirvAccountConnection::setPresence(const KirvPresence &presence)
{
    record(this, QStringLiteral("setPresence"), kirvWritten(presence));
}

QString KirvAccountConnection::getCurrentAvatarPath() const
{
    record(this, QStringLiteral("getCurrentAvatarPath"));
    return self(this)->avatarPath;
}

void KirvAccountConnection::setAvatar(const QString &path)
{
    record(this, QStringLiteral("setAvatar"), kirvWritten(path));
    self(this)->avatarPath = path;
}

QList<KirvField> KirvAccountConnection::getAccountSettingsInOrder() const
{
    record(this, QStringLiteral("getAccountSettingsInOrder"));
    return self(this)->settings;
}

void KirvAccountConnection::setAccountSettings(const QList<KirvField> &settings)
{
    record(this, QStringLiteral("setAccountSettings"), kirvWritten(settings));
    self(this)->settings = settings;
}

bool KirvAccountConnection::isEnabled() const
{
    record(this, QStringLiteral("isEnabled"));
    return self(this)->enabled;
}

bool KirvAccountConnection::isLoggedIn() const
{
    record(this, QStringLiteral("isLoggedIn"));
    return self(this)->loggedIn;
}
