// SPDX-License-Identifier: LGPL-2.1-or-later
// What a collection of accounts does to bring a removed one back to its place.
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
    const int index = int(all.indexOf(const_cast<KirvAccount *>(account)));
    if (index > 0)
        copy.previous = all.at(index - 1)->key();
    if (index + 1 < all.size())
        copy.next = all.at(index + 1)->key();
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
    const KirvAccount *next = accountAfter(removed);
    if ((record.avatar.isEmpty() && !removed.picture.isEmpty()) || !insertBefore(record, next)) {
        error = store.lastError();
        store.discardAvatar(record.avatar);
        return nullptr;
    }
    const QPointer<KirvAccountCollection> alive(this);
    const QPointer<KirvAccount> account = append(record);
    keeper.settle();
    arrange({ account }, next);
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

/// The account that a removed one comes before: the neighbours tell it, as far as they are there. Null: the end.
const KirvAccount *KirvAccountCollection::accountAfter(const KirvRemovedAccount &removed) const
{
    if (const KirvAccount *next = find(removed.next))
        return next;
    const int previous = int(all.indexOf(find(removed.previous)));
    return previous >= 0 ? all.value(previous + 1) : nullptr;
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
