// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/store/kirv_settings_table.h"

#include <algorithm>

const QList<KirvSetting> &kirvSettingsTable()
{
    static const QLatin1String off("false");
    static const QList<KirvSetting> table {
        { KirvSettingKey::mainAccount, KirvField::Text, QString(), KirvSetting::Client },
        { KirvSettingKey::rosterTheme, KirvField::Text, QString(), KirvSetting::Client },
        { KirvSettingKey::alias, KirvField::Text, QString(), KirvSetting::Account },
        { KirvSettingKey::password, KirvField::Password, QString(), KirvSetting::Account },
        { KirvSettingKey::rememberPassword, KirvField::CheckBox, off, KirvSetting::Account },
        { KirvSettingKey::restorePresence, KirvField::CheckBox, off, KirvSetting::Account },
        { KirvSettingKey::restoreDescription, KirvField::CheckBox, off, KirvSetting::Account },
    };
    return table;
}

QString kirvSettingDefault(const QString &key)
{
    const QList<KirvSetting> &table = kirvSettingsTable();
    const auto setting = std::find_if(table.begin(), table.end(), [&key](const KirvSetting &candidate) {
        return candidate.scope == KirvSetting::Client && candidate.key == key;
    });
    return setting == table.end() ? QString() : setting->defaultValue;
}
