// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PROFILE_PATHS_H
#define KIRV_PROFILE_PATHS_H

#include <QDir>
#include <QString>

/// Where things stand in the folder of a profile. Private to the store.
struct KirvProfilePaths {
    QString folder; ///< absolute

    QString database() const { return in("profile.sqlite"); }
    /// What SQLite puts beside the database.
    QString log() const { return in("profile.sqlite-wal"); }
    QString logIndex() const { return in("profile.sqlite-shm"); }
    QString journal() const { return in("profile.sqlite-journal"); }
    /// A database that is being made; it becomes the profile's by being renamed.
    QString unfinished() const { return in("profile.sqlite.unfinished"); }
    /// Never removed: the system's lock on it counts, not its content.
    QString lock() const { return in("profile.lock"); }
    QString avatars() const { return in("avatars"); }
    QString copies() const { return in("copies"); }

    QString nativeFolder() const { return QDir::toNativeSeparators(folder); }

private:
    QString in(const char *name) const { return QDir(folder).filePath(QLatin1String(name)); }
};

#endif
