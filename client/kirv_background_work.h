// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_BACKGROUND_WORK_H
#define KIRV_BACKGROUND_WORK_H

#include "client/kirv_background_job.h"

#include <QObject>
#include <QRunnable>

#include <functional>

/// What a KirvBackgroundJob gives to the thread pool, which deletes it.
class KirvBackgroundWork : public QObject, public QRunnable {
    Q_OBJECT

public:
    KirvBackgroundWork(const std::function<void(const KirvBackgroundJob::Flag &)> &work,
                       const KirvBackgroundJob::Flag &isWanted);

    void run() override;

Q_SIGNALS:
    /// Emitted by the thread.
    void done();

private:
    const std::function<void(const KirvBackgroundJob::Flag &)> work;
    const KirvBackgroundJob::Flag isWanted;
};

#endif
