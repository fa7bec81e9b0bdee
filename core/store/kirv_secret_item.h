// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_SECRET_ITEM_H
#define KIRV_SECRET_ITEM_H

#include <QString>

/// Names one secret in a store of secrets. A value type.
struct KirvSecretItem {
    QString key; ///< never used for another secret
    QString label; ///< what the user sees of it in the store's own program; part of the name

    bool operator==(const KirvSecretItem &other) const { return key == other.key && label == other.label; }
    bool operator!=(const KirvSecretItem &other) const { return !(*this == other); }
};

#endif
