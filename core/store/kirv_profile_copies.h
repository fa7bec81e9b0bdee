// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PROFILE_COPIES_H
#define KIRV_PROFILE_COPIES_H

#include "core/store/kirv_profile_paths.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QList>

class KirvDatabase;

/// One copy that the program has kept of a profile's database. A value type.
struct KirvProfileCopy {
    QString path;
    QDateTime date; ///< when it was made, UTC
    int accounts = 0;
};

/// The copies of a profile's database. No secret is in them: they are filled row by row from the tables that have none.
/// Private to the store; see KirvProfileRescue.
class KirvProfileCopies {
    Q_DECLARE_TR_FUNCTIONS(KirvProfileCopies)

public:
    /// So many are kept; the oldest make room.
    static constexpr int most = 3;

    explicit KirvProfileCopies(const KirvProfilePaths &paths)
        : paths(paths)
    {
    }

    /// Copies the database, which must have been found whole and may be open; gives the name of the copy, which is
    /// complete and was read back then. Empty when it could not be made; lastError() then says why.
    QString make();
    /// Removes those that are there. False when one stays.
    bool removeAll() const;
    /// Those that are there and whole, the newest first.
    QList<KirvProfileCopy> list() const;
    /// Whether it has the form of the names that make() gives.
    static bool isName(const QString &name);
    /// Whether the copy of that name is there.
    bool has(const QString &name) const;
    QString lastError() const { return error; }

private:
    QString unfinished() const;
    bool prepareFolder() const;
    bool fill(KirvDatabase &copy) const;
    bool isWhole(const QString &file) const;
    QString finish();

    const KirvProfilePaths paths;
    QString error;
};

#endif
