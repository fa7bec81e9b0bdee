// SPDX-License-Identifier: LGPL-2.1-or-later
// For tests that open many profiles and care for what is in files, not for when it is on the disk: a program that is
// linked with this never waits for one.
#include <unistd.h>

extern "C" int fsync(int)
{
    return 0;
}

extern "C" int fdatasync(int)
{
    return 0;
}
