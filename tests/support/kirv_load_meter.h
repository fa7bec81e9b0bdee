// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_LOAD_METER_H
#define KIRV_LOAD_METER_H

#include "tests/support/kirv_patience.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QTest>
#include <QTimer>
#include <ctime>
#include <functional>

/// Runs the event loop and measures what the program suffers meanwhile.
class KirvLoadMeter {
public:
#if defined(KIRV_SANITIZED)
    static constexpr bool measuresMemory = false; ///< what is freed is kept for a while there
#else
    static constexpr bool measuresMemory = true;
#endif

    /// Runs the event loop until \a condition holds, which may take as long as a program; whether it holds.
    bool runUntil(const std::function<bool()> &condition)
    {
        longestGap = 0;
        mostWork = 0;
        forgetPeak();
        const qint64 before = processValue("VmRSS");
        QElapsedTimer sinceLast;
        QElapsedTimer sinceStart;
        qint64 usedBefore = threadTime();
        QEventLoop loop;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, &loop, [&] {
            const qint64 used = threadTime();
            longestGap = qMax(longestGap, sinceLast.nsecsElapsed() / 1000);
            mostWork = qMax(mostWork, used - usedBefore);
            usedBefore = used;
            if (condition() || sinceStart.elapsed() > kirvPatienceWithProgram)
                loop.quit();
            sinceLast.restart();
        });
        sinceStart.start();
        sinceLast.start();
        timer.start(1);
        loop.exec();
        peak = processValue("VmHWM") - before;
        return condition();
    }

    /// How much the peak of the resident memory has grown, in kB.
    qint64 peakGrowth() const
    {
        return peak;
    }

    /// How long the program was busy at a stretch, in milliseconds; what else the processor did does not count.
    double mostWorkMilliseconds() const
    {
        return double(mostWork) / 1000;
    }

    void report(qint64 sentBytes) const
    {
        qInfo("%s: %.1f MB sent, longest gap %.1f ms, most work in a gap %.1f ms, peak memory +%.1f MB",
              QTest::currentDataTag() ? QTest::currentDataTag() : QTest::currentTestFunction(),
              double(sentBytes) / double(1 << 20), double(longestGap) / 1000, double(mostWork) / 1000,
              double(peak) / 1024);
    }

private:
    /// What this thread has used of the processor, in microseconds.
    static qint64 threadTime()
    {
        timespec used {};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &used);
        return qint64(used.tv_sec) * 1000000 + used.tv_nsec / 1000;
    }

    /// A value of this process in kB, or -1.
    static qint64 processValue(const QByteArray &name)
    {
        QFile file(QStringLiteral("/proc/self/status"));
        if (!file.open(QIODevice::ReadOnly))
            return -1;
        const QList<QByteArray> lines = file.readAll().split('\n');
        for (const QByteArray &line : lines) {
            if (line.startsWith(name + ':'))
                return line.mid(name.size() + 1).trimmed().split(' ').first().toLongLong();
        }
        return -1;
    }

    /// Sets the peak of this process back to what it uses now.
    static void forgetPeak()
    {
        QFile file(QStringLiteral("/proc/self/clear_refs"));
        if (file.open(QIODevice::WriteOnly))
            file.write("5");
    }

    qint64 longestGap = 0; ///< of the event loop, in microseconds
    qint64 mostWork = 0; ///< of this thread in a gap, in microseconds; the rest it has waited for the processor
    qint64 peak = 0;
};

#endif
