// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_memory_protection.h"

#include <QtGlobal>

#ifdef Q_OS_UNIX
#include <sys/resource.h>
#endif
#ifdef Q_OS_LINUX
#include <sys/prctl.h>
#endif

bool kirvProtectMemory()
{
    bool isProtected = true;
#ifdef Q_OS_UNIX
    const rlimit none {};
    isProtected = setrlimit(RLIMIT_CORE, &none) == 0;
#endif
#if defined(Q_OS_LINUX) && !defined(KIRV_SANITIZED)
    isProtected = prctl(PR_SET_DUMPABLE, 0) == 0 && isProtected;
#endif
    return isProtected;
}
