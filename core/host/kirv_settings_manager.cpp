// SPDX-License-Identifier: LGPL-2.1-or-later
#include "host/kirv_settings_manager.h"

#include "core/accounts/kirv_account_collection.h"
#include "core/host/kirv_host_services.h"
#include "core/store/kirv_client_settings.h"
#include "core/store/kirv_settings_table.h"
#include "core/values/kirv_text_limit.h"

#include <QCoreApplication>
#include <QHash>
#include <QVariant>

namespace {

QString label(const QString &key)
{
    static const QHash<QString, const char *> labels {
        { KirvSettingKey::alias, QT_TRANSLATE_NOOP("KirvSettingsManager", "Name shown") },
        { KirvSettingKey::password, QT_TRANSLATE_NOOP("KirvSettingsManager", "Password") },
        { KirvSettingKey::rememberPassword, QT_TRANSLATE_NOOP("KirvSettingsManager", "Remember the password") },
        { KirvSettingKey::restorePresence, QT_TRANSLATE_NOOP("KirvSettingsManager", "Restore the last presence") },
        { KirvSettingKey::restoreDescription,
          QT_TRANSLATE_NOOP("KirvSettingsManager", "Restore the last description") },
    };
    const char *text = labels.value(key);
    return text ? QCoreApplication::translate("KirvSettingsManager", text) : key;
}

QVariant globalOf(const KirvAccountRecord &record, const KirvSetting &setting)
{
    if (setting.key == KirvSettingKey::alias)
        return record.alias;
    if (setting.key == KirvSettingKey::password)
        return record.password;
    if (setting.key == KirvSettingKey::rememberPassword)
        return record.rememberPassword;
    if (setting.key == KirvSettingKey::restorePresence)
        return record.restorePresence;
    if (setting.key == KirvSettingKey::restoreDescription)
        return record.restoreDescription;
    return setting.defaultValue;
}

KirvField fieldOf(const KirvSetting &setting, const QVariant &value)
{
    const QString text = label(setting.key);
    switch (setting.kind) {
    case KirvField::CheckBox:
        return KirvField::checkBox(text, setting.key, value.toBool(), QString());
    case KirvField::Password:
        return KirvField::password(text, setting.key, kirvEditablePart(value.toString()), QString());
    default:
        return KirvField::textEdit(text, setting.key, kirvEditablePart(value.toString()), QString());
    }
}

}

KirvSettingsManagerPrivate *KirvSettingsManagerPrivate::settingsMgrPrivInstance = nullptr;

KirvSettingsManager *KirvSettingsManager::getInstance()
{
    static KirvSettingsManager manager;
    return &manager;
}

QString KirvSettingsManager::getCurrentRosterThemeDir() const
{
    const KirvHostServices *services = KirvHostServices::instance();
    return services ? services->settings.rosterThemeDir() : QString();
}

QList<KirvField> KirvSettingsManagerPrivate::readAccountGlobals(const QString &id, const QString &protocol)
{
    const KirvHostServices *services = KirvHostServices::instance();
    const KirvAccount *account = services ? services->accounts.find({ id, protocol }) : nullptr;
    QList<KirvField> fields;
    if (!account)
        return fields;
    for (const KirvSetting &setting : kirvSettingsTable()) {
        if (setting.scope == KirvSetting::Account)
            fields << fieldOf(setting, globalOf(account->record(), setting));
    }
    return fields;
}

/// A refusal of the store is reported by the settings. The page has assigned a main account before it writes it: the
/// one that is stored is the main account again.
void KirvSettingsManagerPrivate::writeGlobalSetting(const KirvField &field)
{
    KirvHostServices *services = KirvHostServices::instance();
    if (!services || services->settings.setValue(field.getId(), field.getText()))
        return;
    if (field.getId() == KirvSettingKey::mainAccount)
        services->mainAccountRule.restore();
}
