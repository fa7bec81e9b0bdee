// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_background_work.h"

KirvBackgroundWork::KirvBackgroundWork(const std::function<void(const KirvBackgroundJob::Flag &)> &work,
                                       const KirvBackgroundJob::Flag &isWanted)
    : work(work)
    , isWanted(isWanted)
{
}

void KirvBackgroundWork::run()
{
    if (*isWanted)
        work(isWanted);
    Q_EMIT done();
}
