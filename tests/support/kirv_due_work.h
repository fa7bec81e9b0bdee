// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_DUE_WORK_H
#define KIRV_DUE_WORK_H

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

/// Handles the events that are due, timers without delay and deletions included, and \a rounds times what follows from
/// them.
inline void kirvRunDueWork(int rounds)
{
    for (int round = 0; round < rounds; ++round) {
        QEventLoop loop;
        QTimer::singleShot(0, &loop, &QEventLoop::quit); // after those that are due
        loop.exec();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

#endif
