// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_REMOVED_ACCOUNT_H
#define KIRV_REMOVED_ACCOUNT_H

#include "core/store/kirv_account_record.h"
#include "host/kirv_presence.h"

#include <QByteArray>
#include <QStringList>
#include <memory>

/// All that an account is restored from when it was removed, its secrets included. Held in memory only. A value type.
struct KirvRemovedAccount {
    KirvAccountRecord record; ///< as KirvAccount::record(); the name of the picture's file means nothing any more
    QByteArray picture; ///< the bytes of the picture's file; empty: none
    KirvPresence presence; ///< the one that was wanted
    std::shared_ptr<const QStringList> heldItems; ///< secrets that were not read, see KirvSecretKeeper::hold()
    int place = 0; ///< in the order, see KirvAccountPlaces; 0: behind all others
};

#endif
