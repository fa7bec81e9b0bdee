// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_AVATAR_FOLDER_H
#define KIRV_AVATAR_FOLDER_H

#include <QCoreApplication>
#include <QSet>
#include <QString>

/// The avatar images of a profile, each a file of its own under a name that is never used again.
class KirvAvatarFolder {
    Q_DECLARE_TR_FUNCTIONS(KirvAvatarFolder)

public:
    explicit KirvAvatarFolder(const QString &path = QString());

    QString path() const { return folder; }
    /// Makes the folder when it is not there yet, for its owner only.
    bool create();
    /// Copies the image at \a source; gives the name of the copy, which is on the disk then. Empty with a
    /// sentence in \a error when the image cannot be taken.
    QString import(const QString &source, QString *error) const;
    void remove(const QString &name) const;
    /// Removes every file that is not among \a names.
    void removeAllBut(const QSet<QString> &names) const;

private:
    QString folder;
};

#endif
