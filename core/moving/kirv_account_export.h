// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNT_EXPORT_H
#define KIRV_ACCOUNT_EXPORT_H

#include "core/moving/kirv_moved_accounts.h"

#include <QCoreApplication>

class KirvAccount;
class KirvAccountCollection;
class KirvMainAccount;

/// What of the accounts is put into a file.
class KirvAccountExport {
    Q_DECLARE_TR_FUNCTIONS(KirvAccountExport)

public:
    /// \a chosen in the user's own order, with the main account when it is among them. \a withSecrets takes passwords
    /// and secret settings along, as far as they are stored and known: what a locked keyring holds is named in leftOut,
    /// and so are accounts that no file can hold. Reads no files: the pictures are unread.
    static KirvMovedAccounts collect(const KirvAccountCollection &accounts, const KirvMainAccount &mainAccount,
                                     const QList<KirvAccount *> &chosen, bool withSecrets);
    /// Reads the pictures of \a moved, for which a thread is the place. Those that cannot be exported are named in
    /// leftOut. Ends when there are more than a file can hold; the others are unread then.
    static void readPictures(KirvMovedAccounts *moved);
};

#endif
