// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/store/kirv_profile_lock.h"

#include <QFile>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// Whether the open file is still the one of that name: earlier versions removed it when they ended.
bool isStillNamed(int descriptor, const QByteArray &path)
{
    struct stat opened {
    }, named {};
    return ::fstat(descriptor, &opened) == 0 && ::lstat(path.constData(), &named) == 0 && opened.st_dev == named.st_dev
        && opened.st_ino == named.st_ino;
}

bool isRegularFile(int descriptor)
{
    struct stat status { };
    return ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
}

}

KirvProfileLock::Result KirvProfileLock::acquire(const QString &path, Mode mode)
{
    release();
    const QByteArray name = QFile::encodeName(path);
    const int flags = O_RDWR | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | (mode == Create ? O_CREAT : 0);
    for (int attempt = 0; attempt < 10; ++attempt) {
        const int opened = ::open(name.constData(), flags, S_IRUSR | S_IWUSR);
        if (opened < 0)
            return mode == Existing && errno == ENOENT ? Missing : Failed;
        errno = 0;
        const bool locked = isRegularFile(opened) && ::flock(opened, LOCK_EX | LOCK_NB) == 0;
        const bool isOthers = !locked && errno == EWOULDBLOCK;
        if (locked && isStillNamed(opened, name)) {
            descriptor = opened;
            return Locked;
        }
        ::close(opened);
        if (!locked)
            return isOthers ? HeldByAnother : Failed;
    }
    return Failed;
}

void KirvProfileLock::release()
{
    if (descriptor >= 0)
        ::close(descriptor);
    descriptor = -1;
}
