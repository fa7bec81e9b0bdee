// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_BUS_PROBE_H
#define KIRV_BUS_PROBE_H

#include <QByteArray>
#include <QObject>
#include <QTimer>
#include <memory>

class QSocketNotifier;

/// Finds out, without waiting, whether a message bus answers.
///
/// Whatever connects to a bus by Qt waits until the bus has answered, for up to 25 seconds, and so does everything else
/// in the process that uses D-Bus, the end of the program included. The probe logs in to the bus over a socket that
/// does not block, so that Qt connects only to one that answers.
class KirvBusProbe : public QObject {
    Q_OBJECT

public:
    enum Finding {
        NoBus, ///< the address is none, or nothing listens there
        Awaited, ///< one of the signals follows
        NotProbed ///< the address is of another kind than a socket of this computer
    };

    explicit KirvBusProbe(QObject *parent = nullptr);
    ~KirvBusProbe() override;

    /// The address of the session's bus; empty when there is none. None is started.
    static QByteArray sessionAddress();

    /// Probes the bus at \a addresses, which are separated by semicolons; the first at which something listens counts.
    Finding start(const QByteArray &addresses);

Q_SIGNALS:
    void answered();
    /// It has closed the connection without an answer.
    void refused();

private:
    enum Step { Authentication, Hello };

    Finding connectTo(const QByteArray &path, bool isAbstract);
    Finding retry();
    void readSocket();
    void send(const QByteArray &bytes);
    void finish(bool hasAnswered);

    int handle = -1;
    Step step = Authentication;
    QByteArray received;
    QByteArray unaccepted; ///< the address of a bus that accepts no more connections at present
    std::unique_ptr<QSocketNotifier> notifier;
    QTimer nextTry;
};

#endif
