// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_SAME_VALUE_H
#define KIRV_SAME_VALUE_H

#include "host/kirv_field.h"
#include "host/kirv_presence.h"

/// Whether others would see the same of both: the name and the icon do not count.
inline bool kirvIsSamePresence(const KirvPresence &left, const KirvPresence &right)
{
    return left.getId() == right.getId() && left.getDescription() == right.getDescription();
}

/// Whether both hold the same value, whatever else differs in them: its text, or whether it is checked.
inline bool kirvHasSameValue(const KirvField &left, const KirvField &right)
{
    return left.getText() == right.getText() && left.isChecked() == right.isChecked();
}

#endif
