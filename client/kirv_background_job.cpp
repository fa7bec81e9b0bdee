// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_background_job.h"

#include "client/kirv_background_work.h"

#include <QThreadPool>

KirvBackgroundJob::~KirvBackgroundJob()
{
    drop();
}

void KirvBackgroundJob::start(const std::function<void(const Flag &)> &work, const std::function<void()> &whenDone)
{
    drop();
    isWanted = std::make_shared<std::atomic<bool>>(true);
    auto *running = new KirvBackgroundWork(work, isWanted);
    const auto finish = [this, wanted = isWanted, whenDone] {
        if (!*wanted)
            return;
        isWanted.reset();
        whenDone();
    };
    connect(running, &KirvBackgroundWork::done, this, finish, Qt::QueuedConnection);
    QThreadPool::globalInstance()->start(running);
}

void KirvBackgroundJob::drop()
{
    if (isWanted)
        *isWanted = false;
    isWanted.reset();
}
