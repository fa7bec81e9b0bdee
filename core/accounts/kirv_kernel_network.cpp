// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_kernel_network.h"

#include <QFile>
#include <QHostAddress>
#include <algorithm>
#include <ctime>

#ifdef Q_OS_LINUX
#include <ifaddrs.h>
#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <net/if.h>
#include <sys/socket.h>
#include <unistd.h>
#endif

namespace {

const int longestTable = 65536; // bytes; default routes are at the beginning

/// The words of each line of \a table that has at least \a count of them.
QList<QByteArrayList> rows(const QByteArray &table, int count)
{
    QList<QByteArrayList> result;
    const QByteArrayList lines = table.split('\n');
    for (const QByteArray &line : lines) {
        const QByteArrayList words = line.simplified().split(' ');
        if (words.size() >= count)
            result << words;
    }
    return result;
}

bool isZero(const QByteArray &number)
{
    return !number.isEmpty() && number.count('0') == number.size();
}

bool hasFlag(const QByteArray &flags, uint flag)
{
    return (flags.toUInt(nullptr, 16) & flag) != 0;
}

/// Where a table of routes has what.
struct RouteColumns {
    int count;
    int device, gateway, flags;
    QList<int> destination; ///< all zero of a default route
};

/// Those that are in use, except the one of the loopback interface that refuses what no other takes.
QStringList defaultRoutes(const QByteArray &table, const RouteColumns &columns)
{
    const uint isUp = 0x0001, isRejected = 0x0200;
    QStringList routes;
    const QList<QByteArrayList> entries = rows(table, columns.count);
    for (const QByteArrayList &entry : entries) {
        const QByteArray flags = entry.at(columns.flags), device = entry.at(columns.device);
        const bool isDefault = std::all_of(columns.destination.begin(), columns.destination.end(),
                                           [&entry](int column) { return isZero(entry.at(column)); });
        if (isDefault && hasFlag(flags, isUp) && !hasFlag(flags, isRejected) && device != "lo")
            routes << QString::fromLatin1(device + ' ' + entry.at(columns.gateway));
    }
    return routes;
}

} // namespace

QStringList kirvLastingAddresses(const QByteArray &table)
{
    const uint passing = 0x01 | 0x08 | 0x40; // temporary, found twice, not checked yet
    QStringList addresses;
    const QList<QByteArrayList> entries = rows(table, 6);
    for (const QByteArrayList &entry : entries) {
        if (isZero(entry.at(3)) && !hasFlag(entry.at(4), passing)) // the scope is global
            addresses << QString::fromLatin1(entry.at(5) + ' ' + entry.at(0));
    }
    return addresses;
}

QStringList kirvDefaultRoutes(const QByteArray &table)
{
    return defaultRoutes(table, { 8, 0, 2, 3, { 1, 7 } });
}

QStringList kirvDefaultRoutesOfIPv6(const QByteArray &table)
{
    return defaultRoutes(table, { 10, 9, 4, 8, { 0, 1 } });
}

#ifdef Q_OS_LINUX

namespace {

QByteArray readTable(const char *name)
{
    QFile file(QLatin1String("/proc/net/") + QLatin1String(name));
    return file.open(QIODevice::ReadOnly) ? file.read(longestTable) : QByteArray();
}

QStringList addressesOfIPv4()
{
    QStringList addresses;
    ifaddrs *first = nullptr;
    if (::getifaddrs(&first) != 0)
        return addresses;
    for (const ifaddrs *entry = first; entry; entry = entry->ifa_next) {
        const bool isUsed = entry->ifa_addr && entry->ifa_addr->sa_family == AF_INET && (entry->ifa_flags & IFF_UP)
            && (entry->ifa_flags & IFF_RUNNING) && !(entry->ifa_flags & IFF_LOOPBACK);
        const QHostAddress address = isUsed ? QHostAddress(entry->ifa_addr) : QHostAddress();
        if (isUsed && !address.isLinkLocal())
            addresses << QString::fromLocal8Bit(entry->ifa_name) + QLatin1Char(' ') + address.toString();
    }
    ::freeifaddrs(first);
    return addresses;
}

QByteArray presentNetwork()
{
    QStringList parts = addressesOfIPv4() + kirvLastingAddresses(readTable("if_inet6"))
        + kirvDefaultRoutes(readTable("route")) + kirvDefaultRoutesOfIPv6(readTable("ipv6_route"));
    parts.sort();
    return parts.join(QLatin1Char('\n')).toUtf8();
}

qint64 milliseconds(clockid_t clock)
{
    timespec time {};
    ::clock_gettime(clock, &time);
    return qint64(time.tv_sec) * 1000 + time.tv_nsec / 1000000;
}

/// -1 when there is none.
int openMessages()
{
    const int handle = ::socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC | SOCK_NONBLOCK, NETLINK_ROUTE);
    sockaddr_nl address {};
    address.nl_family = AF_NETLINK;
    address.nl_groups = RTMGRP_LINK | RTMGRP_IPV4_IFADDR | RTMGRP_IPV6_IFADDR | RTMGRP_IPV4_ROUTE | RTMGRP_IPV6_ROUTE;
    if (handle >= 0 && ::bind(handle, reinterpret_cast<sockaddr *>(&address), sizeof address) != 0) {
        ::close(handle);
        return -1;
    }
    return handle;
}

} // namespace

KirvNetworkWatch::Source kirvKernelNetwork()
{
    KirvNetworkWatch::Source source;
    source.messages = openMessages();
    source.network = presentNetwork;
    source.suspended = [] { return milliseconds(CLOCK_BOOTTIME) - milliseconds(CLOCK_MONOTONIC); };
    return source;
}

#else

KirvNetworkWatch::Source kirvKernelNetwork()
{
    KirvNetworkWatch::Source source;
    source.network = [] { return QByteArray(); };
    source.suspended = [] { return 0; };
    return source;
}

#endif
