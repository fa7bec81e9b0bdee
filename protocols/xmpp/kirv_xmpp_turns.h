// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_XMPP_TURNS_H
#define KIRV_XMPP_TURNS_H

#include <QHash>
#include <QObject>
#include <QQueue>
#include <QTimer>
#include <functional>

/// Lets what many streams have received be handled one stream after the other, a single one in each turn of the event
/// loop.
///
/// One step of a log-in can take ten milliseconds, as the derivation of a key from the password does. Without turns all
/// streams that have received something would take such a step before any other event is handled. GUI thread only.
class KirvXmppTurns : public QObject {
    Q_OBJECT

public:
    explicit KirvXmppTurns(QObject *parent = nullptr);
    /// The turns of all streams of the process.
    static KirvXmppTurns &instance();

    /// Calls \a step in a turn of its own, after those that were requested before, unless \a owner is destroyed or
    /// cancels it. Does nothing when \a owner waits for a turn already.
    void request(QObject *owner, const std::function<void()> &step);
    void cancel(QObject *owner);
    bool isRequested(const QObject *owner) const { return steps.contains(owner); }

private:
    void takeTurn();

    QQueue<const QObject *> order;
    QHash<const QObject *, std::function<void()>> steps;
    QTimer next;
};

#endif
