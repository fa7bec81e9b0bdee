// SPDX-License-Identifier: LGPL-2.1-or-later
#include "host/kirv_settings_manager.h"

#include "core/accounts/kirv_account.h"
#include "core/accounts/kirv_account_registry.h"
#include "core/settings/kirv_settings_registry.h"
#include "core/settings/kirv_settings_table.h"

#include <QCoreApplication>
#include <QHash>
#include <QVariant>

namespace {

KirvSettingsRegistry *settingsRegistry()
{
    return static_cast<KirvSettingsRegistry *>(KirvSettingsManagerPrivate::settingsMgrPrivInstance);
}

KirvAccountRegistry *accountRegistry()
{
    return static_cast<KirvAccountRegistry *>(KirvAccountManagerPrivate::ampInstance);
}

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

QVariant globalOf(const KirvAccount &account, const KirvSetting &setting)
{
    if (setting.key == KirvSettingKey::alias)
        return account.getAlias();
    if (setting.key == KirvSettingKey::password)
        return account.getPassword();
    if (setting.key == KirvSettingKey::rememberPassword)
        return account.remembersPassword();
    if (setting.key == KirvSettingKey::restorePresence)
        return account.restoresLastPresence();
    if (setting.key == KirvSettingKey::restoreDescription)
        return account.restoresLastDescription();
    return setting.defaultValue;
}

KirvField fieldOf(const KirvSetting &setting, const QVariant &value)
{
    const QString text = label(setting.key);
    switch (setting.kind) {
    case KirvField::CheckBox:
        return KirvField::checkBox(text, setting.key, value.toBool(), QString());
    case KirvField::Password:
        return KirvField::password(text, setting.key, value.toString(), QString());
    default:
        return KirvField::textEdit(text, setting.key, value.toString(), QString());
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
    const KirvSettingsRegistry *registry = settingsRegistry();
    return registry ? registry->rosterThemeDir() : QString();
}

QList<KirvField> KirvSettingsManagerPrivate::readAccountGlobals(const QString &id, const QString &protocol)
{
    const KirvAccountRegistry *registry = accountRegistry();
    const KirvAccount *account = registry ? registry->find({ id, protocol }) : nullptr;
    QList<KirvField> fields;
    if (!account)
        return fields;
    for (const KirvSetting &setting : kirvSettingsTable()) {
        if (setting.scope == KirvSetting::Account)
            fields << fieldOf(setting, globalOf(*account, setting));
    }
    return fields;
}

void KirvSettingsManagerPrivate::writeGlobalSetting(const KirvField &field)
{
    KirvSettingsRegistry *settings = settingsRegistry();
    if (!settings || settings->setValue(field.getId(), field.getText()))
        return;
    if (KirvAccountRegistry *accounts = accountRegistry())
        accounts->reportStoreProblem();
}
