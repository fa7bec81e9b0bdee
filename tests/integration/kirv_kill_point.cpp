// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/integration/kirv_kill_point.h"

#include <atomic>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

namespace {

std::atomic<int> callsMade { 0 };
std::atomic<int> callToDieAt { -1 }; ///< -1: none

void countCall()
{
    if (callToDieAt >= 0 && callsMade++ == callToDieAt)
        ::raise(SIGKILL);
}

/// The C library's function of that name.
template <typename Function>
Function next(const char *name)
{
    return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

} // namespace

void kirvKillBeforeFileCall(int call)
{
    callsMade = 0;
    callToDieAt = call;
}

int kirvFileCalls()
{
    return callsMade;
}

#define KIRV_COUNTED(Result, name, parameters, arguments)                                                              \
    extern "C" Result name parameters                                                                                  \
    {                                                                                                                  \
        static const auto original = next<Result(*) parameters>(#name);                                                \
        countCall();                                                                                                   \
        return original arguments;                                                                                     \
    }
#define KIRV_COUNTED_NOEXCEPT(Result, name, parameters, arguments)                                                     \
    extern "C" Result name parameters noexcept                                                                         \
    {                                                                                                                  \
        static const auto original = next<Result(*) parameters>(#name);                                                \
        countCall();                                                                                                   \
        return original arguments;                                                                                     \
    }

KIRV_COUNTED(ssize_t, write, (int file, const void *data, size_t size), (file, data, size))
KIRV_COUNTED(ssize_t, pwrite, (int file, const void *data, size_t size, off_t offset), (file, data, size, offset))
KIRV_COUNTED(ssize_t, pwrite64, (int file, const void *data, size_t size, off64_t offset), (file, data, size, offset))
KIRV_COUNTED(int, fsync, (int file), (file))
KIRV_COUNTED(int, fdatasync, (int file), (file))
KIRV_COUNTED_NOEXCEPT(int, ftruncate, (int file, off_t size), (file, size))
KIRV_COUNTED_NOEXCEPT(int, ftruncate64, (int file, off64_t size), (file, size))
KIRV_COUNTED_NOEXCEPT(int, unlink, (const char *path), (path))
KIRV_COUNTED_NOEXCEPT(int, rename, (const char *from, const char *to), (from, to))
KIRV_COUNTED_NOEXCEPT(int, renameat, (int fromFolder, const char *from, int toFolder, const char *to),
                      (fromFolder, from, toFolder, to))
KIRV_COUNTED_NOEXCEPT(int, renameat2,
                      (int fromFolder, const char *from, int toFolder, const char *to, unsigned int flags),
                      (fromFolder, from, toFolder, to, flags))
KIRV_COUNTED_NOEXCEPT(int, link, (const char *from, const char *to), (from, to))
KIRV_COUNTED_NOEXCEPT(int, linkat, (int fromFolder, const char *from, int toFolder, const char *to, int flags),
                      (fromFolder, from, toFolder, to, flags))
KIRV_COUNTED_NOEXCEPT(int, mkdir, (const char *path, mode_t mode), (path, mode))
KIRV_COUNTED_NOEXCEPT(int, rmdir, (const char *path), (path))
KIRV_COUNTED_NOEXCEPT(int, chmod, (const char *path, mode_t mode), (path, mode))
KIRV_COUNTED_NOEXCEPT(int, fchmod, (int file, mode_t mode), (file, mode))
KIRV_COUNTED_NOEXCEPT(int, flock, (int file, int operation), (file, operation))

/// Only what makes or empties a file counts: the others leave everything as it is.
#define KIRV_COUNTED_OPEN(name, beforeNames, before, beforeTypes)                                                      \
    extern "C" int name beforeNames                                                                                    \
    {                                                                                                                  \
        static const auto original = next<int(*) beforeTypes>(#name);                                                  \
        std::va_list arguments;                                                                                        \
        va_start(arguments, flags);                                                                                    \
        const mode_t mode = flags & O_CREAT ? va_arg(arguments, mode_t) : 0;                                           \
        va_end(arguments);                                                                                             \
        if (flags & (O_CREAT | O_TRUNC))                                                                               \
            countCall();                                                                                               \
        return original before;                                                                                        \
    }

KIRV_COUNTED_OPEN(open, (const char *path, int flags, ...), (path, flags, mode), (const char *, int, ...))
KIRV_COUNTED_OPEN(open64, (const char *path, int flags, ...), (path, flags, mode), (const char *, int, ...))
KIRV_COUNTED_OPEN(openat, (int folder, const char *path, int flags, ...), (folder, path, flags, mode),
                  (int, const char *, int, ...))
KIRV_COUNTED_OPEN(openat64, (int folder, const char *path, int flags, ...), (folder, path, flags, mode),
                  (int, const char *, int, ...))
