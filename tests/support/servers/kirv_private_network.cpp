// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/servers/kirv_private_network.h"

#include <cerrno>
#include <cstring>
#include <fstream>
#include <net/if.h>
#include <sched.h>
#include <sys/ioctl.h>
#include <sys/mount.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

bool write(const char *file, const std::string &text)
{
    std::ofstream stream(file);
    stream << text;
    return bool(stream.flush());
}

/// Root inside stands for the user outside.
bool becomeRoot(uid_t user, gid_t group)
{
    return write("/proc/self/setgroups", "deny") && write("/proc/self/uid_map", "0 " + std::to_string(user) + " 1")
        && write("/proc/self/gid_map", "0 " + std::to_string(group) + " 1");
}

bool separate()
{
    const uid_t user = geteuid();
    const gid_t group = getegid();
    if (user == 0 && unshare(CLONE_NEWNET | CLONE_NEWNS) == 0)
        return true;
    return unshare(CLONE_NEWUSER | CLONE_NEWNET | CLONE_NEWNS) == 0 && becomeRoot(user, group);
}

/// Switches on the addresses of this computer.
bool startLoopback()
{
    const int socket = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    ifreq request {};
    std::strcpy(request.ifr_name, "lo");
    request.ifr_flags = IFF_UP | IFF_RUNNING;
    const bool good = socket >= 0 && ioctl(socket, SIOCSIFFLAGS, &request) == 0;
    close(socket);
    return good;
}

/// What is mounted from now on is seen by this process only.
bool mountResolver(const std::string &file)
{
    return mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0
        && mount(file.c_str(), "/etc/resolv.conf", nullptr, MS_BIND, nullptr) == 0;
}

} // namespace

bool kirvEnterPrivateNetwork(const std::string &resolverFile, std::string *problem)
{
    const char *step = "no network of its own";
    bool good = separate();
    if (good) {
        step = "no loopback";
        good = startLoopback();
    }
    if (good) {
        step = "no resolver of its own";
        good = mountResolver(resolverFile);
    }
    if (!good)
        *problem = std::string(step) + ": " + std::strerror(errno);
    return good;
}
