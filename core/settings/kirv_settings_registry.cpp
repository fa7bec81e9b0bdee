// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/settings/kirv_settings_registry.h"

#include "core/settings/kirv_settings_table.h"
#include "core/settings/kirv_store.h"

#include <QDir>
#include <QFileInfo>

class KirvSettingsRegistry::Private {
public:
    explicit Private(KirvStore &store)
        : store(store)
    {
    }

    KirvStore &store;
    QString themeFolder;
};

KirvSettingsRegistry::KirvSettingsRegistry(KirvStore &store)
    : d(std::make_unique<Private>(store))
{
    settingsMgrPrivInstance = this;
}

KirvSettingsRegistry::~KirvSettingsRegistry()
{
    if (settingsMgrPrivInstance == this)
        settingsMgrPrivInstance = nullptr;
}

QString KirvSettingsRegistry::value(const QString &key) const
{
    return d->store.readSetting(key, kirvSettingDefault(key));
}

bool KirvSettingsRegistry::setValue(const QString &key, const QString &value)
{
    return d->store.writeSetting(key, value);
}

QString KirvSettingsRegistry::rosterThemeDir() const
{
    const QString builtIn = QStringLiteral(":/kirv/roster/default/");
    const QString theme = value(KirvSettingKey::rosterTheme);
    const bool isPlainName =
        !theme.isEmpty() && QFileInfo(theme).fileName() == theme && !theme.startsWith(QLatin1Char('.'));
    if (!isPlainName || d->themeFolder.isEmpty())
        return builtIn;
    const QString folder = QDir(d->themeFolder).absoluteFilePath(theme) + QLatin1Char('/');
    return QFileInfo(folder + QLatin1String("icons")).isDir() ? folder : builtIn;
}

void KirvSettingsRegistry::setThemeFolder(const QString &folder)
{
    d->themeFolder = folder;
}
