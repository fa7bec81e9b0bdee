// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/integration/kirv_kill_point.h"

#include <atomic>
#include <csignal>
#include <cstdio>
#include <dlfcn.h>
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
