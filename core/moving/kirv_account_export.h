// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNT_EXPORT_H
#define KIRV_ACCOUNT_EXPORT_H

#include "core/moving/kirv_moved_accounts.h"

class KirvAccount;
class KirvAccountCollection;
class KirvMainAccount;

/// What of the accounts is put into a file.
namespace KirvAccountExport {
/// \a chosen in their order, with the main account when it is among them. \a withSecrets takes passwords and secret
/// settings along, as far as they are stored and known: what a locked keyring holds is named in leftOut.
KirvMovedAccounts collect(const KirvAccountCollection &accounts, const KirvMainAccount &mainAccount,
                          const QList<KirvAccount *> &chosen, bool withSecrets);
}

#endif
