// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_WALK_WORLD_H
#define KIRV_WALK_WORLD_H

#include "tests/walk/kirv_walk.h"

#include <vector>

/// What happens around the windows: servers, the disk, plug-ins, time and other parts of a program.
class KirvWalkWorld {
public:
    explicit KirvWalkWorld(KirvWalk &walk);

    std::vector<KirvWalkStep> steps();

private:
    void serverDoes(const char *what);
    void timePasses();
    void refuse();
    void remove(const KirvAccount *account);
    void removeBehindTheBack();
    void removeWhileLoggingOut();
    void enableOrDisableBehindTheBack();

    KirvWalk &walk;
};

#endif
