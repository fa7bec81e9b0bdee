// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_SETTING_ROWS_H
#define KIRV_SETTING_ROWS_H

#include "core/store/kirv_database.h"

// The rows of the table "setting" of a profile. What fails leaves the reason in the database's error.

/// The value of the row \a key; not valid when there is none, or when it cannot be read.
inline QVariant kirvReadSettingRow(KirvDatabase &database, const QString &key)
{
    return database.valueOf(QStringLiteral("SELECT value FROM setting WHERE key = ?"), { key });
}

/// Replaces the value of the row \a key, or adds the row.
inline bool kirvWriteSettingRow(KirvDatabase &database, const QString &key, const QString &value)
{
    return database.execute(QStringLiteral("INSERT INTO setting (key, value) VALUES (?, ?) "
                                           "ON CONFLICT (key) DO UPDATE SET value = excluded.value"),
                            { key, value });
}

/// Removes the row \a key if there is one.
inline bool kirvRemoveSettingRow(KirvDatabase &database, const QString &key)
{
    return database.execute(QStringLiteral("DELETE FROM setting WHERE key = ?"), { key });
}

#endif
