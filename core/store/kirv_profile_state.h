// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PROFILE_STATE_H
#define KIRV_PROFILE_STATE_H

#include <QString>

/// What a folder is to the store. A value type.
struct KirvProfileState {
    enum Kind {
        Good, ///< a profile that can be opened
        New, ///< missing or empty: opening makes a profile of it
        InUse, ///< another running instance holds it
        NotAProfile, ///< belongs to something else
        Newer, ///< written by a newer version of the program
        Damaged, ///< a profile that cannot be read as it is; see KirvProfileRescue
        Unusable ///< the system refuses: permissions, a full disk, a link where none is followed
    };

    Kind kind = Good;
    QString text; ///< a sentence for the user; empty when Good or New

    bool canBeOpened() const { return kind == Good || kind == New; }
};

#endif
