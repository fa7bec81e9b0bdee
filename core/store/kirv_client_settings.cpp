// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/store/kirv_client_settings.h"

#include "core/store/kirv_settings_table.h"
#include "core/store/kirv_store.h"

#include <QDir>
#include <QFileInfo>

KirvClientSettings::KirvClientSettings(KirvStore &store, QObject *parent)
    : QObject(parent)
    , store(store)
{
}

QString KirvClientSettings::value(const QString &key) const
{
    return store.readSetting(key, kirvSettingDefault(key));
}

bool KirvClientSettings::setValue(const QString &key, const QString &value)
{
    if (store.writeSetting(key, value))
        return true;
    Q_EMIT writeFailed(store.lastError());
    return false;
}

QString KirvClientSettings::rosterThemeDir() const
{
    const QString builtIn = QStringLiteral(":/kirv/roster/default/");
    const QString theme = value(KirvSettingKey::rosterTheme);
    const bool isPlainName =
        !theme.isEmpty() && QFileInfo(theme).fileName() == theme && !theme.startsWith(QLatin1Char('.'));
    if (!isPlainName || themeFolder.isEmpty())
        return builtIn;
    const QString folder = QDir(themeFolder).absoluteFilePath(theme) + QLatin1Char('/');
    return QFileInfo(folder + QLatin1String("icons")).isDir() ? folder : builtIn;
}

void KirvClientSettings::setThemeFolder(const QString &folder)
{
    themeFolder = folder;
}
