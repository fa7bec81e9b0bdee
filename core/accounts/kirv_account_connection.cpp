// SPDX-License-Identifier: LGPL-2.1-or-later
#include "host/kirv_account_connection.h"

#include "core/accounts/kirv_account_p.h"
#include "core/accounts/kirv_account_registry_p.h"

#include <QDir>

namespace {

/// Every account connection of this core is a KirvAccount.
KirvAccount *self(KirvAccountConnection *connection)
{
    return static_cast<KirvAccount *>(connection);
}

const KirvAccount *self(const KirvAccountConnection *connection)
{
    return static_cast<const KirvAccount *>(connection);
}

}

QString KirvAccountConnection::getUid() const
{
    return self(this)->d->record.key.id;
}

QString KirvAccountConnection::getProtocolName() const
{
    return self(this)->d->record.key.protocol;
}

KirvProtocol *KirvAccountConnection::getProtocol() const
{
    return self(this)->d->protocol;
}

QString KirvAccountConnection::getAlias() const
{
    return self(this)->d->record.alias;
}

void KirvAccountConnection::setAlias(const QString &alias)
{
    self(this)->d->change([&](KirvStore::Account &record) { record.alias = alias; });
}

QString KirvAccountConnection::getPassword() const
{
    return self(this)->d->record.password;
}

void KirvAccountConnection::setPassword(const QString &password)
{
    self(this)->d->change([&](KirvStore::Account &record) { record.password = password; });
}

void KirvAccountConnection::setRememberPassword(bool remember)
{
    self(this)->d->change([&](KirvStore::Account &record) { record.rememberPassword = remember; });
}

void KirvAccountConnection::setRestoreLastPresence(bool restore)
{
    self(this)->d->change([&](KirvStore::Account &record) { record.restorePresence = restore; });
}

void KirvAccountConnection::setRestoreLastDescription(bool restore)
{
    self(this)->d->change([&](KirvStore::Account &record) { record.restoreDescription = restore; });
}

KirvPresence KirvAccountConnection::getDefaultPresence() const
{
    return self(this)->d->defaultPresence();
}

void KirvAccountConnection::setDefaultPresence(const KirvPresence &presence)
{
    self(this)->d->change([&](KirvStore::Account &record) {
        record.defaultPresence = presence.getId();
        record.defaultDescription = presence.getDescription();
    });
}

void KirvAccountConnection::setPresence(const KirvPresence &presence)
{
    KirvAccount::Private &account = *self(this)->d;
    account.askedPresence = presence;
    account.hasNews = true;
    if (account.connection)
        account.connection->setWantedPresence(presence);
    account.change([&](KirvStore::Account &record) {
        record.lastPresence = presence.getId();
        record.lastDescription = presence.getDescription();
    });
}

QString KirvAccountConnection::getCurrentAvatarPath() const
{
    const KirvAccount::Private &account = *self(this)->d;
    return account.record.avatar.isEmpty() ? QString()
                                           : QDir(account.store.avatarFolder()).filePath(account.record.avatar);
}

void KirvAccountConnection::setAvatar(const QString &path)
{
    KirvAccount::Private &account = *self(this)->d;
    if (account.isRemoved)
        return;
    QString avatar;
    if (!path.isEmpty()) {
        avatar = account.store.importAvatar(path);
        if (!account.registry.d->taken(!avatar.isEmpty())) {
            account.registry.reportProblem();
            return;
        }
    }
    account.change([&](KirvStore::Account &record) {
        record.avatar = avatar;
        account.importedAvatars << avatar;
    });
}

QList<KirvField> KirvAccountConnection::getAccountSettingsInOrder() const
{
    const KirvAccount::Private &account = *self(this)->d;
    if (!account.protocol)
        return {};
    QList<KirvField> fields = account.protocol->accountSettings();
    for (KirvField &field : fields) {
        const auto value = account.record.settings.constFind(field.getId());
        if (value != account.record.settings.constEnd())
            field = kirvWithStoredValue(field, *value);
    }
    return fields;
}

void KirvAccountConnection::setAccountSettings(const QList<KirvField> &settings)
{
    const QMap<QString, QString> values = kirvStoredValues(settings);
    self(this)->d->change([&](KirvStore::Account &record) {
        for (auto value = values.constBegin(); value != values.constEnd(); ++value)
            record.settings.insert(value.key(), value.value());
    });
}

bool KirvAccountConnection::isEnabled() const
{
    return self(this)->d->record.enabled;
}

bool KirvAccountConnection::isLoggedIn() const
{
    const KirvConnection *connection = self(this)->d->connection;
    return connection && connection->isLoggedIn();
}
