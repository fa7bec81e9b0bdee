// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PROFILE_LOCK_H
#define KIRV_PROFILE_LOCK_H

#include <QString>

/// Keeps other running instances out of a profile. The system holds the lock and gives it back when the process ends,
/// however that happens; what stands in the file means nothing. Private to the store.
class KirvProfileLock {
public:
    enum Mode { Existing, Create };
    enum Result {
        Locked,
        HeldByAnother,
        Missing, ///< there is no such file, and it was not to be made
        Failed
    };

    KirvProfileLock() = default;
    ~KirvProfileLock() { release(); }

    /// Locks the file \a path, which is never removed. Links are not followed.
    Result acquire(const QString &path, Mode mode);
    void release();
    bool isHeld() const { return descriptor >= 0; }

private:
    Q_DISABLE_COPY(KirvProfileLock)
    int descriptor = -1;
};

#endif
