// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PROFILE_CHECK_H
#define KIRV_PROFILE_CHECK_H

#include "core/store/kirv_profile_paths.h"
#include "core/store/kirv_profile_state.h"

#include <QCoreApplication>
#include <QStringList>

class KirvDatabase;

/// Finds out what a folder is, without writing anything. Private to the store.
class KirvProfileCheck {
    Q_DECLARE_TR_FUNCTIONS(KirvProfileCheck)

public:
    explicit KirvProfileCheck(const KirvProfilePaths &paths)
        : paths(paths)
    {
    }

    /// What names and the first bytes of files say. Needs no lock.
    KirvProfileState inspect() const;
    /// Reads the whole database, of which inspect() has said Good: schema, structure and every row. Needs the lock, or
    /// that no instance can hold it. When \a mayRecover, an interrupted change is undone or completed first, as SQLite
    /// does whenever it opens a file; otherwise such a database is taken as Good.
    KirvProfileState examine(bool mayRecover) const;
    /// The same for any database that is not in use and has no journal: \a applicationId is the one it must have.
    KirvProfileState examineFile(const QString &file, quint32 applicationId) const;
    /// Whether the database has a mark of ours; one of an early version has none.
    bool isMarked() const;

    KirvProfileState inUse() const;
    KirvProfileState notWritable() const;
    KirvProfileState noDatabase() const;
    KirvProfileState unreadable() const;

private:
    /// \a fault is a sentence about what is wrong.
    KirvProfileState damaged(const QString &fault) const;
    KirvProfileState checkDatabaseFile() const;
    KirvProfileState checkFolderWithoutDatabase() const;
    bool hasTracesOfDatabase(const QStringList &content) const;
    bool isFolderOfOurs(const QString &folder, bool (*isOurs)(const QString &)) const;
    KirvProfileState examineOpen(KirvDatabase &database) const;
    KirvProfileState anotherProgram() const;
    QString linkInside() const;
    QString specialFileInside() const;

    const KirvProfilePaths paths;
};

#endif
