// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PRIVATE_NETWORK_H
#define KIRV_PRIVATE_NETWORK_H

#include <string>

/// Moves the process into a network of its own, which has nothing but the addresses of this computer (127.0.0.0/8), and
/// gives it \a resolverFile in the place of /etc/resolv.conf. What it starts is there, too.
///
/// To be called before any other thread is started. False, with the \a problem, where the system does not allow it:
/// it takes root, or user namespaces.
bool kirvEnterPrivateNetwork(const std::string &resolverFile, std::string *problem);

#endif
