// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_FULL_DISK_H
#define KIRV_FULL_DISK_H

#include <QString>

/// From the write number \a write from now, counted from 0, the disk is full for what is below \a folder: writing,
/// making a file longer and making files and folders give ENOSPC; a file that is there can be read, cut and removed.
/// The test program that is linked with this has those functions in front of the C library's.
void kirvFillDiskAt(const QString &folder, int write);
/// There is space again.
void kirvFreeDisk();
/// How many writes, refused ones too, were made since the disk was filled or is about to be.
int kirvDiskWrites();

#endif
