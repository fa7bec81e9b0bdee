// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_NETWORK_WATCH_H
#define KIRV_NETWORK_WATCH_H

#include <QByteArray>
#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <functional>

class QSocketNotifier;

/// Notices that the computer has another network than before, or was suspended.
///
/// What counts of the network are the addresses that others can reach and the default routes; without any the next
/// network counts as another one. The kernel says when something of it may have changed, and the watch compares.
/// However much the kernel says, changed() is emitted once for it, and never in quick succession.
class KirvNetworkWatch : public QObject {
    Q_OBJECT

public:
    /// Where the watch has its knowledge from.
    struct Source {
        /// A datagram socket; each message means that the network may have changed. The watch closes it. -1: none.
        int messages = -1;
        /// What counts of the network, in a form that can be compared; empty: there is no network.
        std::function<QByteArray()> network;
        /// How long the computer has been suspended since it was started, in milliseconds.
        std::function<qint64()> suspended;
    };
    /// Milliseconds.
    struct Timing {
        int settling = 1000; ///< from the first message to the comparison
        int distance = 5000; ///< between two changes at least
        int suspensionCheck = 3000; ///< between two looks at the clock
    };

    static const int messagesPerTurn = 64;

    /// Watches the network and the clock of this computer.
    explicit KirvNetworkWatch(QObject *parent = nullptr);
    KirvNetworkWatch(const Source &source, const Timing &timing, QObject *parent = nullptr);
    ~KirvNetworkWatch() override;

    /// How often the network was compared.
    int comparisons() const { return comparisonCount; }

Q_SIGNALS:
    /// There is a network, and connections from before may not work any more.
    void changed();

private:
    void takeMessages();
    void checkSuspension();
    void compare();

    const Source source;
    const Timing timing;
    QSocketNotifier *notifier = nullptr; ///< owned by this
    QTimer settling;
    QTimer suspension;
    QElapsedTimer sinceChange; ///< invalid: there was none
    QByteArray known; ///< a hash of the network that is in use
    qint64 lastSuspended = 0;
    bool isDue = false; ///< a change is to be emitted as soon as there is a network
    int comparisonCount = 0;
};

#endif
