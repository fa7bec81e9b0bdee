// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_CLIENT_SETTINGS_H
#define KIRV_CLIENT_SETTINGS_H

#include <QObject>
#include <QString>

class KirvStore;

/// The settings of the client as a whole, over a store.
class KirvClientSettings : public QObject {
    Q_OBJECT

public:
    /// \a store is not owned and outlives the settings.
    explicit KirvClientSettings(KirvStore &store, QObject *parent = nullptr);

    /// The default of the settings table when the key is not set.
    QString value(const QString &key) const;
    /// False when the store refused; writeFailed() has been emitted then.
    bool setValue(const QString &key, const QString &value);

    /// The directory of the current contact-list theme, with a slash at its end.
    QString rosterThemeDir() const;
    /// Where themes are looked for besides the built-in one; may be empty.
    void setThemeFolder(const QString &folder);

Q_SIGNALS:
    /// \a reason is a sentence for the user.
    void writeFailed(const QString &reason);

private:
    KirvStore &store;
    QString themeFolder;
};

#endif
