// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/kirv_look_ups.h"

#include <QMutex>
#include <QMutexLocker>
#include <dlfcn.h>
#include <netdb.h>
#include <utility>

namespace {

QMutex mutex; // look-ups are made in threads
QStringList names;

} // namespace

QStringList kirvTakeLookUps()
{
    const QMutexLocker locker(&mutex);
    return std::exchange(names, {});
}

extern "C" Q_DECL_EXPORT int getaddrinfo(const char *name, const char *service, const addrinfo *hints,
                                         addrinfo **result)
{
    {
        const QMutexLocker locker(&mutex);
        names << QString::fromUtf8(name);
    }
    using Function = int (*)(const char *, const char *, const addrinfo *, addrinfo **);
    static const auto original = reinterpret_cast<Function>(dlsym(RTLD_NEXT, "getaddrinfo"));
    return original(name, service, hints, result);
}
