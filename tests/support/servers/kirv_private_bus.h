// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PRIVATE_BUS_H
#define KIRV_PRIVATE_BUS_H

#include <QByteArray>
#include <QFile>
#include <cstdlib>
#include <unistd.h>
#include <vector>

// A session bus for one test program, apart from that of the user.

/// The configuration of such a bus. It starts the services that files in \a serviceFolder name; none where that is
/// empty.
inline QByteArray kirvPrivateBusConfiguration(const QByteArray &serviceFolder = QByteArray())
{
    const QByteArray services =
        serviceFolder.isEmpty() ? QByteArray() : "<servicedir>" + serviceFolder + "</servicedir>";
    return "<!DOCTYPE busconfig PUBLIC \"-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN\"\n"
           " \"http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd\">\n"
           "<busconfig><type>session</type><listen>unix:tmpdir=/tmp</listen>"
        + services
        + "<auth>EXTERNAL</auth><policy context=\"default\"><allow send_destination=\"*\"/>"
          "<allow eavesdrop=\"false\"/><allow own=\"*\"/></policy></busconfig>\n";
}

/// Starts the program again on a session bus of its own, which lasts as long as the program and starts no services.
/// Returns in the program that is on such a bus; \a argv is that of main().
inline void kirvEnterPrivateBus(char *argv[])
{
    const char *const mark = "KIRV_PRIVATE_BUS";
    if (qEnvironmentVariableIsSet(mark))
        return;
    const QByteArray path = QFile::encodeName(QStringLiteral("/proc/self/exe"));
    char program[4096] = {};
    if (::readlink(path.constData(), program, sizeof program - 1) <= 0)
        std::abort();
    char config[] = "/tmp/kirv-bus-XXXXXX";
    const int file = ::mkstemp(config);
    const QByteArray text = kirvPrivateBusConfiguration();
    if (file < 0 || ::write(file, text.constData(), size_t(text.size())) != ssize_t(text.size()))
        std::abort();
    ::close(file);
    qputenv(mark, config);
    const QByteArray option = QByteArray("--config-file=") + static_cast<const char *>(config);
    std::vector<const char *> arguments { "dbus-run-session", option.constData(), "--",
                                          static_cast<const char *>(program) };
    for (char **argument = argv + 1; *argument; ++argument)
        arguments.push_back(*argument);
    arguments.push_back(nullptr);
    ::execvp(arguments.front(), const_cast<char *const *>(arguments.data()));
    std::abort();
}

/// Removes what kirvEnterPrivateBus() has left; called when the program is on its bus.
inline void kirvForgetPrivateBusFile()
{
    QFile::remove(QFile::decodeName(qgetenv("KIRV_PRIVATE_BUS")));
}

#endif
