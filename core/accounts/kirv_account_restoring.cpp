// SPDX-License-Identifier: LGPL-2.1-or-later
// What a collection of accounts copies of one that may come back.
#include "core/accounts/kirv_account_collection.h"

#include "core/store/kirv_store.h"
#include "core/values/kirv_bounded_image.h"

#include <QFile>

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
