// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_SETTINGS_REGISTRY_H
#define KIRV_SETTINGS_REGISTRY_H

#include "host/kirv_settings_manager.h"

#include <QString>
#include <memory>

class KirvStore;

/// Client-wide settings over a store: what stands behind KirvSettingsManager. One per process; it is
/// KirvSettingsManagerPrivate::settingsMgrPrivInstance while it lives.
class KirvSettingsRegistry : public KirvSettingsManagerPrivate {
public:
    /// \a store is not owned and outlives the registry.
    explicit KirvSettingsRegistry(KirvStore &store);
    ~KirvSettingsRegistry();

    QString value(const QString &key) const; ///< the default of the settings table when it is not set
    bool setValue(const QString &key, const QString &value);

    /// The directory of the current contact-list theme, with a slash at its end.
    QString rosterThemeDir() const;
    /// Where themes are looked for besides the built-in one; may be empty.
    void setThemeFolder(const QString &folder);

private:
    Q_DISABLE_COPY(KirvSettingsRegistry)
    class Private;
    const std::unique_ptr<Private> d;
};

#endif
