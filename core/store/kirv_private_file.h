// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PRIVATE_FILE_H
#define KIRV_PRIVATE_FILE_H

#include <QString>

/// Takes every permission on the file or folder \a path away from everyone but its owner, whose own
/// permissions stay as they are. True when only the owner has any afterwards.
bool kirvMakePrivate(const QString &path);

/// Puts the names in \a folder on the disk, so that a file renamed into it is still there after a power cut.
bool kirvSyncFolder(const QString &folder);

#endif
