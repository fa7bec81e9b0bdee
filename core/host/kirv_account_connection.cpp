// SPDX-License-Identifier: LGPL-2.1-or-later
#include "host/kirv_account_connection.h"

#include "core/accounts/kirv_account.h"

namespace {

/// Every account connection of this core is a KirvAccount.
KirvAccount &self(KirvAccountConnection *connection)
{
    return *static_cast<KirvAccount *>(connection);
}

const KirvAccount &self(const KirvAccountConnection *connection)
{
    return *static_cast<const KirvAccount *>(connection);
}

} // namespace

QString KirvAccountConnection::getUid() const
{
    return self(this).key().id;
}

QString KirvAccountConnection::getProtocolName() const
{
    return self(this).key().protocol;
}

KirvProtocol *KirvAccountConnection::getProtocol() const
{
    return self(this).protocol();
}

QString KirvAccountConnection::getAlias() const
{
    return self(this).record().alias;
}

void KirvAccountConnection::setAlias(const QString &alias)
{
    self(this).change([&](KirvAccountRecord &record) { record.alias = alias; });
}

QString KirvAccountConnection::getPassword() const
{
    return self(this).record().password;
}

void KirvAccountConnection::setPassword(const QString &password)
{
    self(this).change([&](KirvAccountRecord &record) { record.password = password; });
}

void KirvAccountConnection::setRememberPassword(bool remember)
{
    self(this).change([&](KirvAccountRecord &record) { record.rememberPassword = remember; });
}

void KirvAccountConnection::setRestoreLastPresence(bool restore)
{
    self(this).change([&](KirvAccountRecord &record) { record.restorePresence = restore; });
}

void KirvAccountConnection::setRestoreLastDescription(bool restore)
{
    self(this).change([&](KirvAccountRecord &record) { record.restoreDescription = restore; });
}

KirvPresence KirvAccountConnection::getDefaultPresence() const
{
    return self(this).defaultPresence();
}

void KirvAccountConnection::setDefaultPresence(const KirvPresence &presence)
{
    self(this).change([&](KirvAccountRecord &record) {
        record.defaultPresence = presence.getId();
        record.defaultDescription = presence.getDescription();
    });
}

void KirvAccountConnection::setPresence(const KirvPresence &presence)
{
    self(this).setPresence(presence);
}

QString KirvAccountConnection::getCurrentAvatarPath() const
{
    return self(this).avatarPath();
}

void KirvAccountConnection::setAvatar(const QString &path)
{
    self(this).setAvatar(path);
}

QList<KirvField> KirvAccountConnection::getAccountSettingsInOrder() const
{
    return self(this).settings();
}

void KirvAccountConnection::setAccountSettings(const QList<KirvField> &settings)
{
    self(this).setSettings(settings);
}

bool KirvAccountConnection::isEnabled() const
{
    return self(this).record().enabled;
}

bool KirvAccountConnection::isLoggedIn() const
{
    return self(this).isOnline();
}
