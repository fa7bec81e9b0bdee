// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_DESCRIPTOR_LIMIT_H
#define KIRV_DESCRIPTOR_LIMIT_H

/// Raises the soft limit of open files, which every connection is, to what thousands of accounts need, as far as the
/// hard limit allows. Never lowers it. False when the system refuses; does nothing where there are no such limits.
bool kirvRaiseDescriptorLimit();

#endif
