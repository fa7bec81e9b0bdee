// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_SESSION_BUS_GUARD_H
#define KIRV_SESSION_BUS_GUARD_H

#include <QByteArray>

/// Keeps a session bus that does not answer from holding up the windows.
///
/// Qt connects to the session bus by itself, at the latest for assistive technology before the first window, and waits
/// up to 25 seconds each time. So while the guard exists, Qt does not find a bus that does not answer. The keyring is
/// looked for in a way that never waits, and finds the bus as always once the guard is gone.
class KirvSessionBusGuard {
public:
    /// How long an answer is waited for, in milliseconds. A bus is told apart from one that is merely slow: without it
    /// assistive technology cannot read the windows.
    static constexpr int patience = 3000;

    /// Probes the bus. To be made before the QGuiApplication; there must be no application of any kind.
    KirvSessionBusGuard(int &argc, char **argv);
    /// To be called with the QGuiApplication there: Qt looks for assistive technology now, and never again.
    ~KirvSessionBusGuard();

    KirvSessionBusGuard(const KirvSessionBusGuard &) = delete;
    KirvSessionBusGuard &operator=(const KirvSessionBusGuard &) = delete;

private:
    bool isHiding = false;
    bool hadAddress = false;
    QByteArray address; ///< as the environment has it, while isHiding
};

#endif
