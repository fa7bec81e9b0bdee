// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_DISABLED_ACCOUNTS_H
#define KIRV_DISABLED_ACCOUNTS_H

#include <QString>

/// Makes a profile in \a folder with \a count XMPP accounts that do not log in; ends the program when that fails.
void makeProfileOfDisabledAccounts(const QString &folder, int count);

#endif
