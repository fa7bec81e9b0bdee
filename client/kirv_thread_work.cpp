// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_thread_work.h"

#include <QThreadPool>

KirvThreadWork::KirvThreadWork(const std::function<void()> &work)
    : work(work)
{
}

void KirvThreadWork::start(QThreadPool &pool, QObject *context, const std::function<void()> &work,
                           const std::function<void()> &then)
{
    auto *job = new KirvThreadWork(work);
    connect(job, &KirvThreadWork::done, context, then, Qt::QueuedConnection);
    pool.start(job);
}

void KirvThreadWork::run()
{
    work();
    Q_EMIT done();
}
