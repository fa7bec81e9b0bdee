// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_NO_SYNC_H
#define KIRV_NO_SYNC_H

/// How often a program that is linked with kirv_no_sync.cpp has requested that a file be written to the disk.
int kirvSyncCalls();

#endif
