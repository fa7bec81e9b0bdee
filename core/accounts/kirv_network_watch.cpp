// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_network_watch.h"

#include "core/accounts/kirv_kernel_network.h"

#include <QCryptographicHash>
#include <QSocketNotifier>
#include <cerrno>
#include <sys/socket.h>
#include <unistd.h>

namespace {

const int shortestSuspension = 1000; // milliseconds; the two clocks are not read at the same moment

} // namespace

KirvNetworkWatch::KirvNetworkWatch(QObject *parent)
    : KirvNetworkWatch(kirvKernelNetwork(), Timing(), parent)
{
}

KirvNetworkWatch::KirvNetworkWatch(const Source &source, const Timing &timing, QObject *parent)
    : QObject(parent)
    , source(source)
    , timing(timing)
{
    settling.setSingleShot(true);
    connect(&settling, &QTimer::timeout, this, &KirvNetworkWatch::compare);
    connect(&suspension, &QTimer::timeout, this, &KirvNetworkWatch::checkSuspension);
    if (source.messages >= 0) {
        notifier = new QSocketNotifier(source.messages, QSocketNotifier::Read, this);
        connect(notifier, &QSocketNotifier::activated, this, &KirvNetworkWatch::takeMessages);
    }
    const QByteArray network = source.network();
    known = QCryptographicHash::hash(network, QCryptographicHash::Sha256);
    isDue = network.isEmpty();
    lastSuspended = source.suspended();
    suspension.start(timing.suspensionCheck);
}

KirvNetworkWatch::~KirvNetworkWatch()
{
    delete notifier;
    if (source.messages >= 0)
        ::close(source.messages);
}

/// Their content does not matter: the network is compared as a whole.
void KirvNetworkWatch::takeMessages()
{
    for (int taken = 0; taken < messagesPerTurn; ++taken) {
        char beginning = 0;
        if (::recv(source.messages, &beginning, sizeof beginning, MSG_DONTWAIT | MSG_TRUNC) >= 0)
            continue;
        const bool mayGoOn = errno == EAGAIN || errno == EWOULDBLOCK || errno == EINTR || errno == ENOBUFS;
        if (!mayGoOn)
            notifier->setEnabled(false);
        break;
    }
    if (!settling.isActive())
        settling.start(timing.settling);
}

/// The timers of the program stand still while the computer is suspended, and so do the waits of connections.
void KirvNetworkWatch::checkSuspension()
{
    const qint64 suspended = source.suspended();
    if (suspended - lastSuspended < shortestSuspension)
        return;
    lastSuspended = suspended;
    isDue = true;
    if (!settling.isActive())
        settling.start(timing.settling);
}

void KirvNetworkWatch::compare()
{
    ++comparisonCount;
    const QByteArray network = source.network();
    if (network.isEmpty()) {
        isDue = true;
        return;
    }
    const QByteArray hash = QCryptographicHash::hash(network, QCryptographicHash::Sha256);
    if (hash == known && !isDue)
        return;
    const qint64 elapsed = sinceChange.isValid() ? sinceChange.elapsed() : timing.distance;
    if (elapsed < timing.distance) {
        settling.start(int(timing.distance - elapsed));
        return;
    }
    known = hash;
    isDue = false;
    sinceChange.start();
    Q_EMIT changed();
}
