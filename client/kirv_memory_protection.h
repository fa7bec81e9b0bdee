// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_MEMORY_PROTECTION_H
#define KIRV_MEMORY_PROTECTION_H

/// Keeps the passwords in the memory of the process out of core dumps, and the memory away from other programs of the
/// same user; the latter not in a build with sanitizers, which read it themselves. False when the system refuses.
bool kirvProtectMemory();

#endif
