// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_WALK_CHECKS_H
#define KIRV_WALK_CHECKS_H

#include <QString>

class KirvWalk;

/// Compares what the windows show with what the core holds, and that with what a second connection to the database
/// reads.
class KirvWalkChecks {
public:
    /// The client of \a walk is started.
    explicit KirvWalkChecks(const KirvWalk &walk);
    ~KirvWalkChecks();

    /// What does not fit together; empty: everything does.
    QString disagreement() const;

private:
    QString rowDisagreement() const;
    QString selectorDisagreement() const;
    QString storeDisagreement() const;
    QString editDisagreement() const;

    const KirvWalk &walk;
};

#endif
