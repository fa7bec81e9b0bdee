// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/kirv_full_disk.h"

#include <QFile>
#include <atomic>
#include <cerrno>
#include <climits>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

namespace {

char watchedFolder[PATH_MAX];
std::size_t watchedLength = 0; ///< 0: the disk has space
int firstRefused = 0;
std::atomic<int> writesMade { 0 };

bool isWatched(const char *path)
{
    return watchedLength > 0 && path && std::strncmp(path, watchedFolder, watchedLength) == 0;
}

bool isWatched(int file)
{
    if (watchedLength == 0)
        return false;
    char link[64];
    char path[PATH_MAX];
    std::snprintf(link, sizeof link, "/proc/self/fd/%d", file);
    const ssize_t length = ::readlink(link, path, sizeof path - 1);
    if (length <= 0)
        return false;
    path[length] = '\0';
    return isWatched(path);
}

/// Whether there is no space for a write.
bool isRefused()
{
    if (writesMade++ < firstRefused)
        return false;
    errno = ENOSPC;
    return true;
}

bool isLonger(int file, off64_t size)
{
    struct stat64 status { };
    return ::fstat64(file, &status) == 0 && size > status.st_size;
}

bool isMissing(const char *path)
{
    struct stat64 status { };
    return ::lstat64(path, &status) != 0;
}

/// The C library's function of that name.
template <typename Function>
Function next(const char *name)
{
    return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

} // namespace

void kirvFillDiskAt(const QString &folder, int write)
{
    const QByteArray path = QFile::encodeName(folder);
    watchedLength = 0;
    writesMade = 0;
    firstRefused = write;
    std::strncpy(watchedFolder, path.constData(), sizeof watchedFolder - 1);
    watchedLength = std::size_t(path.size());
}

void kirvFreeDisk()
{
    watchedLength = 0;
}

int kirvDiskWrites()
{
    return writesMade;
}

extern "C" ssize_t write(int file, const void *data, size_t size)
{
    static const auto original = next<ssize_t (*)(int, const void *, size_t)>("write");
    return isWatched(file) && isRefused() ? -1 : original(file, data, size);
}

extern "C" ssize_t pwrite(int file, const void *data, size_t size, off_t offset)
{
    static const auto original = next<ssize_t (*)(int, const void *, size_t, off_t)>("pwrite");
    return isWatched(file) && isRefused() ? -1 : original(file, data, size, offset);
}

extern "C" ssize_t pwrite64(int file, const void *data, size_t size, off64_t offset)
{
    static const auto original = next<ssize_t (*)(int, const void *, size_t, off64_t)>("pwrite64");
    return isWatched(file) && isRefused() ? -1 : original(file, data, size, offset);
}

extern "C" int ftruncate(int file, off_t size) noexcept
{
    static const auto original = next<int (*)(int, off_t)>("ftruncate");
    return isWatched(file) && isLonger(file, size) && isRefused() ? -1 : original(file, size);
}

extern "C" int ftruncate64(int file, off64_t size) noexcept
{
    static const auto original = next<int (*)(int, off64_t)>("ftruncate64");
    return isWatched(file) && isLonger(file, size) && isRefused() ? -1 : original(file, size);
}

extern "C" int mkdir(const char *path, mode_t mode) noexcept
{
    static const auto original = next<int (*)(const char *, mode_t)>("mkdir");
    return isWatched(path) && isRefused() ? -1 : original(path, mode);
}

/// Only what makes a file needs space.
#define KIRV_REFUSED_OPEN(name, beforeNames, before, beforeTypes)                                                      \
    extern "C" int name beforeNames                                                                                    \
    {                                                                                                                  \
        static const auto original = next<int(*) beforeTypes>(#name);                                                  \
        std::va_list arguments;                                                                                        \
        va_start(arguments, flags);                                                                                    \
        const bool isMaking = (flags & O_CREAT) || (flags & O_TMPFILE) == O_TMPFILE;                                   \
        const mode_t mode = isMaking ? va_arg(arguments, mode_t) : 0;                                                  \
        va_end(arguments);                                                                                             \
        const bool needsSpace = (flags & O_TMPFILE) == O_TMPFILE || ((flags & O_CREAT) && isMissing(path));            \
        return needsSpace && isWatched(path) && isRefused() ? -1 : original before;                                    \
    }

KIRV_REFUSED_OPEN(open, (const char *path, int flags, ...), (path, flags, mode), (const char *, int, ...))
KIRV_REFUSED_OPEN(open64, (const char *path, int flags, ...), (path, flags, mode), (const char *, int, ...))
KIRV_REFUSED_OPEN(openat, (int folder, const char *path, int flags, ...), (folder, path, flags, mode),
                  (int, const char *, int, ...))
KIRV_REFUSED_OPEN(openat64, (int folder, const char *path, int flags, ...), (folder, path, flags, mode),
                  (int, const char *, int, ...))
