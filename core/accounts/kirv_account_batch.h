// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNT_BATCH_H
#define KIRV_ACCOUNT_BATCH_H

#include "core/accounts/kirv_removed_account.h"

#include <QList>
#include <functional>

class KirvAccount;

/// Changes of several accounts that are made together: all of them, or none. A value type.
struct KirvAccountBatch {
    /// New accounts, and removed ones that come back, each in its turn at its place in the order. Their protocols need
    /// not be loaded.
    QList<KirvRemovedAccount> added;
    /// What accounts that exist become: the key of the record names the account, which keeps its place in the order.
    /// Without a presence the one that is wanted stays.
    QList<KirvRemovedAccount> replaced;
    QList<KirvAccount *> removed;
    /// Is stored as the main account with the changes; the id is empty: the stored one stays.
    KirvAccountKey mainAccount;
    /// Called when everything is stored and the added accounts are there, before the first signal. May be null.
    std::function<void()> onStored;
};

#endif
