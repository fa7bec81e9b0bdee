// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_KILL_POINT_H
#define KIRV_KILL_POINT_H

/// Kills the process, with the signal that cannot be handled, before the call number \a call from now, counted from 0,
/// of a function of the system that changes a file or its name: open to create or truncate, mkdir, rmdir, chmod,
/// fchmod, flock, write, pwrite, fsync, fdatasync, ftruncate, rename, link or unlink. The test program that is linked
/// with this has those functions in front of the C library's.
void kirvKillBeforeFileCall(int call);
/// How many such calls were made since.
int kirvFileCalls();

#endif
