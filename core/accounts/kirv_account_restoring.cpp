// SPDX-License-Identifier: LGPL-2.1-or-later
// What a collection of accounts does to their order, and to bring a removed one back to its place.
#include "core/accounts/kirv_account_collection.h"

#include "core/store/kirv_store.h"
#include "core/values/kirv_bounded_image.h"

#include <QFile>
#include <QTemporaryFile>
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
    copy.place = places.placeOf(account);
    return copy;
}

KirvAccount *KirvAccountCollection::restore(const KirvRemovedAccount &removed)
{
    error = whyExists(removed.record.key);
    if (!error.isEmpty())
        return nullptr;
    KirvAccountRecord record = removed.record;
    record.avatar = importPicture(removed.picture);
    const QStringList fields = record.secretItems.keys();
    for (const QString &field : fields) {
        if (!record.unreadSecrets.contains(field)) // it was removed with the account
            record.secretItems.remove(field);
    }
    keeper.place(record, KirvAccountRecord());
    const KirvAccount *next = places.following(removed.place);
    if ((record.avatar.isEmpty() && !removed.picture.isEmpty()) || !insertBefore(record, next)) {
        error = store.lastError();
        store.discardAvatar(record.avatar);
        return nullptr;
    }
    const QPointer<KirvAccountCollection> alive(this);
    const QPointer<KirvAccount> account = append(record);
    keeper.settle();
    places.fill(removed.place, account);
    arrange(account, next);
    loadRestored(account, removed.presence);
    if (alive && account)
        Q_EMIT accountAdded(account);
    return alive && account && byKey.value(record.key) == account ? account.data() : nullptr;
}

/// The name under which the picture is in the profile; empty when there is none, or the store refuses.
QString KirvAccountCollection::importPicture(const QByteArray &picture)
{
    QTemporaryFile file;
    if (!picture.isEmpty() && file.open() && file.write(picture) == picture.size() && file.flush())
        return store.importAvatar(file.fileName());
    return QString();
}

bool KirvAccountCollection::insertBefore(const KirvAccountRecord &record, const KirvAccount *next)
{
    if (!store.begin())
        return false;
    if (store.insertAccount(record) && (!next || store.placeAccount(record.key, next->key())))
        return store.commit();
    store.rollBack();
    return false;
}

/// The connection of the removed account may still log out: its server would refuse a second one, or end the first.
void KirvAccountCollection::loadRestored(KirvAccount *account, const KirvPresence &presence)
{
    KirvProtocolBase *protocol = protocols.value(account->key().protocol);
    if (!protocol)
        return;
    const auto children = withLeaving();
    const auto twin = std::find_if(children.begin(), children.end(), [account](const KirvAccount *candidate) {
        return candidate->isRemoved() && candidate->key() == account->key();
    });
    account->load(protocol, twin == children.end());
    account->setPresence(presence);
    if (twin != children.end())
        connect(*twin, &QObject::destroyed, account, &KirvAccount::tryAgain);
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
    places.move(account, next);
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
