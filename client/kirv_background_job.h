// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_BACKGROUND_JOB_H
#define KIRV_BACKGROUND_JOB_H

#include <QObject>

#include <atomic>
#include <functional>
#include <memory>

/// Does something long in a thread while the window goes on, and hands the result over. One thing at a time.
class KirvBackgroundJob : public QObject {
    Q_OBJECT

public:
    /// Shared with the work: false as soon as nobody wants its result.
    using Flag = std::shared_ptr<std::atomic<bool>>;

    using QObject::QObject;
    /// Does not wait for the end of the work, whose result is dropped.
    ~KirvBackgroundJob() override;

    /// Runs \a work in another thread and, later, \a whenDone with its result in this one. \a work uses nothing that
    /// may be destroyed or changed before it ends. What is left of an earlier call is dropped.
    template <typename Result>
    void run(const std::function<Result(const Flag &isWanted)> &work,
             const std::function<void(const Result &)> &whenDone)
    {
        const auto result = std::make_shared<Result>();
        start([work, result](const Flag &isWanted) { *result = work(isWanted); },
              [whenDone, result] { whenDone(*result); });
    }
    /// Whether the end of the work is awaited.
    bool isRunning() const { return bool(isWanted); }
    /// The result is not wanted any more: whenDone is not called.
    void drop();

private:
    void start(const std::function<void(const Flag &)> &work, const std::function<void()> &whenDone);

    Flag isWanted; ///< of the latest call; null while nothing is awaited
};

#endif
