// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_AVATAR_FOLDER_H
#define KIRV_AVATAR_FOLDER_H

#include <QCoreApplication>
#include <QString>

class KirvDatabase;

/// The avatar images of a profile, each a file of its own under a name that is never used again.
///
/// The database records each name before there is such a file: what is not recorded is not ours and never removed.
/// Private to the store.
class KirvAvatarFolder {
    Q_DECLARE_TR_FUNCTIONS(KirvAvatarFolder)

public:
    /// \a database is not owned.
    explicit KirvAvatarFolder(KirvDatabase &database)
        : database(database)
    {
    }

    void setPath(const QString &path) { folder = path; }
    QString path() const { return folder; }
    /// Whether it has the form of the names that import() makes; such a name stays inside the folder.
    static bool isName(const QString &name);
    /// Copies the image at \a source; gives the name of the copy, which is on the disk then. Empty with a
    /// sentence in \a error when the image cannot be taken.
    QString import(const QString &source, QString *error);
    /// Removes the file when the program has written it.
    void remove(const QString &name);
    /// Removes every recorded file that no account has.
    void removeUnused();
    /// \a name when it is that of an avatar of ours and the file is not a link; empty otherwise.
    QString usableName(const QString &name) const;

private:
    bool write(const QString &name, const QByteArray &data, QString *reason) const;
    bool isRecorded(const QString &name);

    KirvDatabase &database;
    QString folder;
};

#endif
