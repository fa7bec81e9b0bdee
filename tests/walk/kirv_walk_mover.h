// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_WALK_MOVER_H
#define KIRV_WALK_MOVER_H

#include "tests/walk/kirv_walk.h"

#include <functional>
#include <vector>

class KirvImportWindow;

/// What a user does to move accounts into a file and out of it, and to undo things. The windows work in threads: each
/// step waits for them, so that the way does not depend on how long they take.
class KirvWalkMover {
public:
    explicit KirvWalkMover(KirvWalk &walk);

    std::vector<KirvWalkStep> steps();

private:
    void openExport();
    void useExport();
    void exportAccounts(bool isCancelled);
    void openImport();
    void useImport();
    void enterPassPhrase(KirvImportWindow *window);
    void importAccounts(KirvImportWindow *window);
    void waitForReading(KirvImportWindow *window);
    void undo();

    KirvWalk &walk;
};

#endif
