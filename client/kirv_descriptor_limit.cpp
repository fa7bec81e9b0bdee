// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_descriptor_limit.h"

#include <QtGlobal>

#ifdef Q_OS_UNIX
#include <algorithm>
#include <sys/resource.h>
#endif

bool kirvRaiseDescriptorLimit()
{
#ifdef Q_OS_UNIX
    const rlim_t wanted = 16384;
    rlimit limit {};
    if (getrlimit(RLIMIT_NOFILE, &limit) != 0)
        return false;
    if (limit.rlim_cur >= std::min(wanted, limit.rlim_max))
        return true;
    limit.rlim_cur = std::min(wanted, limit.rlim_max);
    return setrlimit(RLIMIT_NOFILE, &limit) == 0;
#else
    return true;
#endif
}
