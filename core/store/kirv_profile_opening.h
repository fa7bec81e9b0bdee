// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PROFILE_OPENING_H
#define KIRV_PROFILE_OPENING_H

#include "core/store/kirv_profile_paths.h"
#include "core/store/kirv_profile_state.h"

#include <QCoreApplication>

class KirvDatabase;
class KirvProfileLock;

/// Takes a profile from its folder to an open database, step by step; each step is reached only when all before it
/// have found the profile to be ours and whole. Private to the store.
class KirvProfileOpening {
    Q_DECLARE_TR_FUNCTIONS(KirvProfileOpening)

public:
    explicit KirvProfileOpening(const KirvProfilePaths &paths)
        : paths(paths)
    {
    }

    /// What the folder is. Without the lock, files that another instance is just making or emptying look damaged: such
    /// a profile is looked at again with the lock, if it has one.
    KirvProfileState inspect(KirvProfileLock &lock) const;
    /// Locks the profile and, when it can be opened, makes sure that its database is there, complete and readable.
    KirvProfileState prepare(KirvProfileLock &lock);
    /// Opens the database and brings it to the present version.
    KirvProfileState open(KirvDatabase &database);
    /// Locks the profile whatever its state is, for repairs; nothing is made.
    KirvProfileState lockOnly(KirvProfileLock &lock, bool create) const;

    /// Makes a database without rows in \a file, which must not exist, complete on the disk.
    static bool makeDatabase(const QString &file, quint32 applicationId, KirvDatabase &database);

private:
    bool makeFolder() const;
    KirvProfileState makeNew() const;
    bool upgrade(KirvDatabase &database) const;

    const KirvProfilePaths paths;
};

#endif
