// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PRIVATE_FILE_H
#define KIRV_PRIVATE_FILE_H

#include <QString>

/// Takes every permission on the file or folder \a path away from everyone but its owner, whose own
/// permissions stay as they are. True when only the owner has any afterwards.
bool kirvMakePrivate(const QString &path);

/// Makes the folder \a path, in a folder that is there, for its owner only. False when it is there already, too.
bool kirvMakePrivateFolder(const QString &path);

/// Makes the empty file \a path for its owner only. False when anything of that name is there.
bool kirvMakePrivateFile(const QString &path);

/// Gives the file \a from the name \a to in one step, in place of whatever file has it. Both are in one file system.
bool kirvReplaceFile(const QString &from, const QString &to);

/// Gives the file \a name the name \a second, too, which must be free; where the file system has no such names, a copy.
bool kirvLinkFile(const QString &name, const QString &second);

/// Puts the content of the file \a path on the disk.
bool kirvSyncFile(const QString &path);

/// Puts the names in \a folder on the disk, so that a file renamed into it is still there after a power cut.
bool kirvSyncFolder(const QString &folder);

#endif
