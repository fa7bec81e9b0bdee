// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PROFILE_RESCUE_H
#define KIRV_PROFILE_RESCUE_H

#include "core/store/kirv_profile_copies.h"
#include "core/store/kirv_profile_paths.h"
#include "core/store/kirv_profile_state.h"

#include <QCoreApplication>
#include <QList>
#include <QString>

class KirvDatabase;
class KirvProfileLock;

/// What can be done about a profile that KirvStore::open() has found to be damaged. Nothing here is needed for one that
/// is whole.
///
/// Each operation holds the profile's lock while it runs. The database that was there is never overwritten: it is kept
/// in the same folder under a name with the date, with its log or journal, and with the secrets that are in it.
class KirvProfileRescue {
    Q_DECLARE_TR_FUNCTIONS(KirvProfileRescue)

public:
    /// What recover() has found. A value type.
    struct Recovered {
        int accounts = 0;
        int accountSettings = 0;
        int secrets = 0; ///< passwords and secret settings
        int clientSettings = 0;
        bool isComplete = true; ///< false: some rows, nobody knows how many, could not be read
    };

    explicit KirvProfileRescue(const QString &folder);

    /// Finds out what is wrong; writes nothing. A profile in which an interrupted change is yet to be undone is Good.
    KirvProfileState check();
    /// The copies that are whole, the newest first.
    QList<KirvProfileCopy> copies() const;

    /// Puts \a copy in the place of the database. Passwords and secret settings are in no copy; those that are in a
    /// store of secrets are there still, as long as nothing has replaced them since.
    bool restore(const KirvProfileCopy &copy);
    /// Makes a database of everything that can still be read, row by row. False when not even a table can be read.
    bool recover(Recovered *found);
    /// Makes an empty database.
    bool startFresh();

    /// Where the last operation has put the database that was there; empty when there was none.
    QString keptFile() const { return kept; }
    /// A sentence for the user; empty when the last operation worked.
    QString lastError() const { return error; }

private:
    bool begin(KirvProfileLock &lock);
    bool replaceDatabase();
    bool keepAside();
    bool fail(const QString &reason);
    bool prepareUnfinished();
    static bool upgrade(KirvDatabase &database);

    const KirvProfilePaths paths;
    QString kept;
    QString error;
};

#endif
