// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_RECONCILER_QUEUE_H
#define KIRV_RECONCILER_QUEUE_H

#include <QList>
#include <QObject>
#include <QPointer>
#include <QTimer>

class KirvReconciler;

/// Lets reconcilers act from the event loop, a few in each turn, so that many accounts that change at once do not block
/// it.
class KirvReconcilerQueue : public QObject {
    Q_OBJECT

public:
    /// How many act in one turn.
    static const int perTurn = 20;

    explicit KirvReconcilerQueue(QObject *parent = nullptr);

    /// Calls KirvReconciler::reconcile() later, in the order of the requests. \a reconciler is not owned and may be
    /// destroyed before.
    void append(KirvReconciler *reconciler);

private:
    void takeTurn();

    QList<QPointer<KirvReconciler>> waiting;
    QTimer nextTurn;
    bool isPosted = false; ///< the first turn
    bool isInTurn = false;
};

#endif
