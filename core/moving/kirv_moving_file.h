// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_MOVING_FILE_H
#define KIRV_MOVING_FILE_H

#include "core/moving/kirv_account_file.h"

#include <QByteArray>
#include <QString>

#include <functional>

/// The files in which accounts move, on the disk. Everything here may run in a thread; nothing waits for a pipe or a
/// device, and nothing is read beyond the bounds of its format.
namespace KirvMovingFile {

struct Content {
    QByteArray bytes;
    QString problem; ///< a sentence for the user; empty: bytes is the whole file
};

/// The bytes of the file \a path, which must be an ordinary one and no larger than what its format allows.
Content read(const QString &path);
/// The accounts in \a bytes, of either format: see KirvAccountFile and KirvPidginFile. A file of Pidgin has no use for
/// \a passPhrase.
KirvAccountFile::Result accounts(const QByteArray &bytes, const QString &passPhrase);
/// Whether \a path is an ordinary file that can be read and begins as one of Pidgin does.
bool isPidginFile(const QString &path);

/// Writes \a bytes to \a path, for its owner only and as a whole: until the end there is what was there before. An
/// ordinary file of that name is replaced, and nothing else is: no link, device or folder. \a isWanted is called before
/// that; when it is false, nothing is written. Gives a sentence for the user, or nothing when it is done.
QString write(const QString &path, const QByteArray &bytes, const std::function<bool()> &isWanted);

}

#endif
