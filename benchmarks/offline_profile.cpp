// SPDX-License-Identifier: LGPL-2.1-or-later
#include "benchmarks/offline_profile.h"

#include "core/store/kirv_store.h"

void makeOfflineProfile(const QString &folder, int count)
{
    KirvStore store;
    bool good = store.open(folder) && store.begin();
    for (int i = 0; good && i < count; ++i) {
        KirvAccountRecord account;
        account.key = { QStringLiteral("user%1@example.org").arg(i), QStringLiteral("XMPP") };
        account.alias = QStringLiteral("Account %1").arg(i);
        account.enabled = false;
        good = store.insertAccount(account);
    }
    if (!good || !store.commit())
        qFatal("The profile cannot be made: %s", qPrintable(store.lastError()));
}
