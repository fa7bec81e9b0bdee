// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_OPEN_SETTINGS_H
#define KIRV_OPEN_SETTINGS_H

#include "core/store/kirv_account_record.h"

/// The settings of \a record that say where and how the account connects: without the secret ones and those of the
/// core.
inline QMap<QString, QString> kirvOpenSettings(const KirvAccountRecord &record)
{
    QMap<QString, QString> open = record.settings;
    for (const QString &secret : record.secretSettings)
        open.remove(secret);
    for (const QLatin1String &own : { KirvOwnSetting::avatarOnServer, KirvOwnSetting::avatarIsChosen })
        open.remove(own);
    return open;
}

#endif
