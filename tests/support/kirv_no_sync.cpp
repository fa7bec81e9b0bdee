// SPDX-License-Identifier: LGPL-2.1-or-later
// For tests that open many profiles and care for what is in files, not for when it is on the disk: a program that is
// linked with this never waits for one, and counts them.
#include "tests/support/kirv_no_sync.h"

#include <atomic>
#include <unistd.h>

namespace {

std::atomic<int> syncCalls { 0 };

}

int kirvSyncCalls()
{
    return syncCalls;
}

extern "C" int fsync(int)
{
    ++syncCalls;
    return 0;
}

extern "C" int fdatasync(int)
{
    ++syncCalls;
    return 0;
}
