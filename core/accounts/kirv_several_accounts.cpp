// SPDX-License-Identifier: LGPL-2.1-or-later
// What a collection of accounts changes of several at once: whether they are enabled, and their order.
#include "core/accounts/kirv_account_collection.h"

#include "core/store/kirv_store.h"

#include <QSet>
#include <algorithm>

bool KirvAccountCollection::setEnabled(const QList<KirvAccount *> &accounts, bool enabled)
{
    return changeEnabled(accounts, enabled, false);
}

bool KirvAccountCollection::enableAgain(const QList<KirvAccount *> &accounts)
{
    return changeEnabled(accounts, true, true);
}

bool KirvAccountCollection::changeEnabled(const QList<KirvAccount *> &accounts, bool enabled, bool isAgain)
{
    QList<KirvAccount *> changed;
    QList<KirvAccountKey> keys;
    for (KirvAccount *account : accounts) {
        if (account->isRemoved() || account->record().enabled == enabled)
            continue;
        changed << account;
        keys << account->key();
        if (!enabled)
            Q_EMIT disablingBegins(account);
    }
    if (keys.isEmpty())
        return true;
    if (!store.enableAccounts(keys, enabled)) {
        refuse(store.lastError());
        return false;
    }
    error.clear();
    // Without a signal, so that no slot finds a part of them changed.
    for (KirvAccount *account : qAsConst(changed)) {
        account->setStoredEnabled(enabled, isAgain);
        following << account;
    }
    nextFollowing.start(0);
    Q_EMIT enabledChanged(keys);
    return true;
}

/// An account may have been changed again since: what holds now counts.
void KirvAccountCollection::followNext()
{
    const QPointer<KirvAccountCollection> alive(this);
    for (int count = 0; alive && count < accountsPerTurn && !following.isEmpty(); ++count) {
        const QPointer<KirvAccount> account = following.takeFirst();
        if (account && !account->isRemoved())
            account->followEnabled();
    }
    if (alive && !following.isEmpty())
        nextFollowing.start(0);
}

bool KirvAccountCollection::place(KirvAccount *account, const KirvAccount *next)
{
    return place(QList<KirvAccount *> { account }, next);
}

bool KirvAccountCollection::place(const QList<KirvAccount *> &accounts, const KirvAccount *next)
{
    if (accounts.contains(const_cast<KirvAccount *>(next)) || isArranged(accounts, next))
        return true;
    QList<KirvAccountKey> keys;
    for (const KirvAccount *account : accounts)
        keys << account->key();
    if (!store.placeAccounts(keys, next ? next->key() : KirvAccountKey())) {
        refuse(store.lastError());
        return false;
    }
    error.clear();
    for (const KirvAccount *account : accounts)
        places.move(account, next);
    arrange(accounts, next);
    Q_EMIT orderChanged(keys);
    return true;
}

/// Whether they stand there already.
bool KirvAccountCollection::isArranged(const QList<KirvAccount *> &accounts, const KirvAccount *next) const
{
    const int end = next ? int(all.indexOf(const_cast<KirvAccount *>(next))) : int(all.size());
    const int first = end - int(accounts.size());
    return first >= 0 && std::equal(accounts.begin(), accounts.end(), all.begin() + first);
}

/// In memory only, and in one pass however many they are.
void KirvAccountCollection::arrange(const QList<KirvAccount *> &accounts, const KirvAccount *next)
{
    const QSet<KirvAccount *> moved(accounts.begin(), accounts.end());
    QList<KirvAccount *> arranged;
    arranged.reserve(all.size());
    for (KirvAccount *account : qAsConst(all)) {
        if (account == next)
            arranged += accounts;
        if (!moved.contains(account))
            arranged << account;
    }
    if (!next)
        arranged += accounts;
    all = arranged;
    QSet<QString> names;
    for (const KirvAccount *account : accounts)
        names << account->key().protocol;
    for (const QString &name : qAsConst(names))
        byProtocol[name] = {};
    for (KirvAccount *account : qAsConst(all)) {
        if (!names.contains(account->key().protocol))
            continue;
        ProtocolAccounts &siblings = byProtocol[account->key().protocol];
        siblings.accounts << account;
        siblings.infos << account->info();
    }
}
