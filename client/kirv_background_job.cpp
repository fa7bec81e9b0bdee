// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_background_job.h"

#include "client/kirv_thread_work.h"

#include <QThreadPool>

KirvBackgroundJob::~KirvBackgroundJob()
{
    drop();
}

void KirvBackgroundJob::start(const std::function<void(const Flag &)> &work, const std::function<void()> &whenDone)
{
    drop();
    isWanted = std::make_shared<std::atomic<bool>>(true);
    const auto begin = [work, wanted = isWanted] {
        if (*wanted)
            work(wanted);
    };
    const auto finish = [this, wanted = isWanted, whenDone] {
        if (!*wanted)
            return;
        isWanted.reset();
        whenDone();
    };
    KirvThreadWork::start(*QThreadPool::globalInstance(), this, begin, finish);
}

void KirvBackgroundJob::drop()
{
    if (isWanted)
        *isWanted = false;
    isWanted.reset();
}
