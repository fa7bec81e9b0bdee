// SPDX-License-Identifier: LGPL-2.1-or-later
// What a collection of accounts does to their order, and what it copies of one that may come back.
#include "core/accounts/kirv_account_collection.h"

#include "core/store/kirv_store.h"
#include "core/values/kirv_bounded_image.h"

#include <QFile>
#include <algorithm>

KirvRemovedAccount KirvAccountCollection::copyOf(const KirvAccount *account)
{
    KirvRemovedAccount copy;
    copy.record = account->record();
    copy.presence = account->presence();
    QStringList unread;
    for (const QString &field : qAsConst(copy.record.unreadSecrets)) {
        if (copy.record.secretItems.contains(field))
            unread << copy.record.secretItems.value(field).key;
    }
    copy.heldItems = keeper.hold(unread);
    QFile picture(account->avatarPath());
    if (!copy.record.avatar.isEmpty() && picture.open(QIODevice::ReadOnly))
        copy.picture = picture.read(KirvBoundedImage::maximumBytes);
    const int index = int(all.indexOf(const_cast<KirvAccount *>(account)));
    if (index > 0)
        copy.previous = all.at(index - 1)->key();
    if (index + 1 < all.size())
        copy.next = all.at(index + 1)->key();
    return copy;
}

bool KirvAccountCollection::place(KirvAccount *account, const KirvAccount *next)
{
    const int index = int(all.indexOf(account));
    if (account == next || all.value(index + 1) == next)
        return true;
    if (!store.placeAccount(account->key(), next ? next->key() : KirvAccountKey())) {
        refuse(store.lastError());
        return false;
    }
    error.clear();
    arrange(account, next);
    Q_EMIT orderChanged(account);
    return true;
}

/// In memory only.
void KirvAccountCollection::arrange(KirvAccount *account, const KirvAccount *next)
{
    all.removeOne(account);
    const int place = next ? int(all.indexOf(const_cast<KirvAccount *>(next))) : int(all.size());
    all.insert(place, account);
    ProtocolAccounts &siblings = byProtocol[account->key().protocol];
    siblings.accounts.removeOne(account);
    siblings.infos.removeOne(account->info());
    const auto isSibling = [account](const KirvAccount *candidate) {
        return candidate->key().protocol == account->key().protocol;
    };
    const auto following = std::find_if(all.begin() + place + 1, all.end(), isSibling);
    const int among =
        following == all.end() ? int(siblings.accounts.size()) : int(siblings.accounts.indexOf(*following));
    siblings.accounts.insert(among, account);
    siblings.infos.insert(among, account->info());
}
