// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_KERNEL_NETWORK_H
#define KIRV_KERNEL_NETWORK_H

#include "core/accounts/kirv_network_watch.h"

#include <QStringList>

/// What the kernel of this computer says of its network and its clock.
KirvNetworkWatch::Source kirvKernelNetwork();

/// The addresses in \a table, the text of /proc/net/if_inet6, that others can reach and that last, each with its
/// interface.
QStringList kirvLastingAddresses(const QByteArray &table);
/// The default routes in \a table, the text of /proc/net/route, each as interface and gateway.
QStringList kirvDefaultRoutes(const QByteArray &table);
/// The same of /proc/net/ipv6_route.
QStringList kirvDefaultRoutesOfIPv6(const QByteArray &table);

#endif
