// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_SETTINGS_MANAGER_H
#define KIRV_SETTINGS_MANAGER_H

#include "host/kirv_field.h"

#include <QList>
#include <QString>

/// The process-wide settings manager. Call it from the GUI thread only.
class KirvSettingsManager {
public:
    /// The settings manager of this process; not owned by the caller.
    static KirvSettingsManager *getInstance();

    /// The directory of the current contact-list theme, with a slash at its end. Its subdirectory
    /// "icons" holds the presence icons.
    QString getCurrentRosterThemeDir() const;
};

/// The part of the settings manager that reads and writes stored values.
class KirvSettingsManagerPrivate {
public:
    /// Not owned by this pointer; null before the client core is up and after it has gone.
    static KirvSettingsManagerPrivate *settingsMgrPrivInstance;

    /// The general settings of an account as fields with the ids "alias", "password",
    /// "password/remember", "presence/restore" and "presence/restore_desc"; others may follow.
    /// Empty when no account has that key.
    QList<KirvField> readAccountGlobals(const QString &id, const QString &protocol);
    /// Stores one client-wide setting: the field's id is the key, its text the value.
    void writeGlobalSetting(const KirvField &field);
};

#endif
