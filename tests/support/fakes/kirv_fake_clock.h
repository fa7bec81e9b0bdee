// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_FAKE_CLOCK_H
#define KIRV_FAKE_CLOCK_H

#include "core/values/kirv_clock.h"

#include <QObject>
#include <QPointer>

#include <map>
#include <utility>

/// A clock that stands still until a test moves it.
class KirvFakeClock : public KirvClock {
public:
    QDateTime now() const override { return QDateTime::fromMSecsSinceEpoch(time, Qt::UTC); }

    void callLater(int milliseconds, QObject *context, std::function<void()> callback) override
    {
        calls.emplace(time + milliseconds, Call { context, std::move(callback) });
    }

    /// Moves on by \a milliseconds and makes the calls that become due, in their order and at their time; those
    /// that they ask for, too.
    void advance(int milliseconds)
    {
        const qint64 end = time + milliseconds;
        while (!calls.empty() && calls.begin()->first <= end) {
            time = qMax(time, calls.begin()->first);
            const Call call = std::move(calls.begin()->second);
            calls.erase(calls.begin());
            if (call.context)
                call.callback();
        }
        time = end;
    }

private:
    struct Call {
        QPointer<QObject> context;
        std::function<void()> callback;
    };

    qint64 time = 1600000000000;
    std::multimap<qint64, Call> calls; ///< by the time they are due
};

#endif
