// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_session_bus_guard.h"

#include "core/store/kirv_bus_probe.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

namespace {

const char variable[] = "DBUS_SESSION_BUS_ADDRESS";

/// True, too, for a bus that cannot be probed.
bool answers(int milliseconds)
{
    KirvBusProbe probe;
    QEventLoop loop;
    bool isSilent = false;
    QObject::connect(&probe, &KirvBusProbe::answered, &loop, &QEventLoop::quit);
    QObject::connect(&probe, &KirvBusProbe::refused, &loop, &QEventLoop::quit);
    QTimer::singleShot(milliseconds, &loop, [&] {
        isSilent = true;
        loop.quit();
    });
    if (probe.start(KirvBusProbe::sessionAddress()) == KirvBusProbe::Awaited)
        loop.exec();
    return !isSilent;
}

} // namespace

KirvSessionBusGuard::KirvSessionBusGuard(int &argc, char **argv)
{
    const QCoreApplication application(argc, argv); // the event loop of the probe needs one
    isHiding = !answers(patience);
    if (!isHiding)
        return;
    hadAddress = qEnvironmentVariableIsSet(variable);
    address = qgetenv(variable);
    qputenv(variable, "unix:path=/nonexistent"); // without an address a bus would be looked for elsewhere
}

KirvSessionBusGuard::~KirvSessionBusGuard()
{
    if (!isHiding)
        return;
    QAccessible::isActive(); // makes Qt's connection, which is kept, also when it is none
    if (hadAddress)
        qputenv(variable, address);
    else
        qunsetenv(variable);
}
