// SPDX-License-Identifier: LGPL-2.1-or-later
#include "host/kirv_account_connection.h"

#include "core/accounts/kirv_account.h"
#include "core/values/kirv_text_limit.h"

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

// The page gets as much of a text as its fields can hold. What comes back exactly as it was given stays what is stored.

QString edited(const QString &stored, const QString &text)
{
    return text == kirvEditablePart(stored) ? stored : text;
}

/// \a text as a text edit gives it back.
QString asEdited(QString text)
{
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    for (QChar &character : text) {
        switch (character.unicode()) {
        case '\r':
        case 0xfdd0: // in a document these begin and end a frame
        case 0xfdd1:
        case QChar::ParagraphSeparator:
        case QChar::LineSeparator:
            character = QLatin1Char('\n');
            break;
        case QChar::Nbsp:
            character = QLatin1Char(' ');
            break;
        default:
            break;
        }
    }
    return text;
}

QString editedDescription(const QString &stored, const QString &text)
{
    return text == asEdited(kirvEditablePart(stored)) ? stored : edited(stored, text);
}

KirvPresence withDescription(const KirvPresence &presence, const QString &description)
{
    return KirvPresence(presence.getId(), presence.getDisplay(), presence.getIcon(), description);
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
    return kirvEditablePart(self(this).record().alias);
}

void KirvAccountConnection::setAlias(const QString &alias)
{
    self(this).change([&](KirvAccountRecord &record) { record.alias = edited(record.alias, alias); });
}

QString KirvAccountConnection::getPassword() const
{
    return kirvEditablePart(self(this).record().password);
}

void KirvAccountConnection::setPassword(const QString &password)
{
    self(this).change(
        [&](KirvAccountRecord &record) { kirvSetValue(record, QString(), edited(record.password, password)); });
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
    const KirvPresence presence = self(this).defaultPresence();
    return withDescription(presence, kirvEditablePart(presence.getDescription()));
}

void KirvAccountConnection::setDefaultPresence(const KirvPresence &presence)
{
    self(this).change([&](KirvAccountRecord &record) {
        record.defaultPresence = presence.getId();
        record.defaultDescription = editedDescription(record.defaultDescription, presence.getDescription());
    });
}

void KirvAccountConnection::setPresence(const KirvPresence &presence)
{
    const QString stored = self(this).record().defaultDescription;
    self(this).setPresence(withDescription(presence, editedDescription(stored, presence.getDescription())));
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
