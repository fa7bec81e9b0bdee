// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_MOVED_ACCOUNTS_H
#define KIRV_MOVED_ACCOUNTS_H

#include "core/store/kirv_account_record.h"

#include <QByteArray>
#include <QList>
#include <QStringList>

/// One account on its way into a file or out of one. A value type.
struct KirvMovedAccount {
    /// Without what belongs to one profile only: the name of the picture's file, the items in a keyring and what was
    /// not read of them. The password and secret settings that did not come along are empty or missing.
    KirvAccountRecord record;
    QByteArray picture; ///< the bytes of the picture's file; empty: none
    QString unreadPicture; ///< the path of the picture's file that is still to be read for an export; empty: none
};

/// The accounts of one file. A value type.
struct KirvMovedAccounts {
    QList<KirvMovedAccount> accounts; ///< in the user's own order
    KirvAccountKey mainAccount; ///< the id is empty: none
    QStringList leftOut; ///< what did not come along, a sentence for the user each
};

#endif
