// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_SETTINGS_TABLE_H
#define KIRV_SETTINGS_TABLE_H

#include "host/kirv_field.h"

#include <QList>
#include <QString>

/// One setting that the core knows. A value type.
struct KirvSetting {
    enum Scope { Client, Account };

    QString key;
    KirvField::Kind kind; ///< a check box holds "true" or "false", every other kind its text
    QString defaultValue;
    Scope scope;
};

/// Every setting of the core, in display order: the one place that says key, kind, default and scope.
/// Settings that the table does not hold are texts of the client's own with an empty default.
const QList<KirvSetting> &kirvSettingsTable();

/// The default of the client-wide setting \a key.
QString kirvSettingDefault(const QString &key);

namespace KirvSettingKey {
const QLatin1String mainAccount("main_account"); ///< see KirvAccountKey::toSetting()
const QLatin1String rosterTheme("roster_theme"); ///< the name of a theme; empty: the built-in one
const QLatin1String alias("alias");
const QLatin1String password("password");
const QLatin1String rememberPassword("password/remember");
const QLatin1String restorePresence("presence/restore");
const QLatin1String restoreDescription("presence/restore_desc");
}

#endif
