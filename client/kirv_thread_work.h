// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_THREAD_WORK_H
#define KIRV_THREAD_WORK_H

#include <QObject>
#include <QRunnable>

#include <functional>

class QThreadPool;

/// Work of some moments for a thread pool, which deletes it.
class KirvThreadWork : public QObject, public QRunnable {
    Q_OBJECT

public:
    /// Runs \a work in a thread of \a pool, and then, from the event loop of \a context, calls \a then, unless \a
    /// context is destroyed before. What both use must be owned by both.
    static void start(QThreadPool &pool, QObject *context, const std::function<void()> &work,
                      const std::function<void()> &then);

    void run() override;

Q_SIGNALS:
    /// Emitted by the thread that has done the work.
    void done();

private:
    explicit KirvThreadWork(const std::function<void()> &work);

    const std::function<void()> work;
};

#endif
