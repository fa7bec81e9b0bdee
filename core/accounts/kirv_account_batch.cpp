// SPDX-License-Identifier: LGPL-2.1-or-later
// The part of KirvAccountCollection that changes several accounts as one change of the store.
#include "core/accounts/kirv_account_batch.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/accounts/kirv_account_fields.h"
#include "core/accounts/kirv_secret_destination.h"
#include "core/store/kirv_settings_table.h"
#include "core/store/kirv_store.h"

#include <QFile>
#include <QTemporaryFile>
#include <algorithm>

namespace {

/// The secrets before count until the keyring has those that replace them, as the program may end meanwhile. They are
/// for the server before, though, and go to no other.
bool storeReplacement(KirvStore &store, const KirvAccountRecord &record, bool goesElsewhere)
{
    if (!store.updateAccount(record))
        return false;
    if (!goesElsewhere)
        return true;
    QStringList obsolete;
    for (auto item = record.secretItems.constBegin(); item != record.secretItems.constEnd(); ++item) {
        const QString kept = store.secretItem(record.key, item.key(), KirvStoredItem::Kept).key;
        if (!store.lastError().isEmpty())
            return false;
        if (!kept.isEmpty() && kept != item->key)
            obsolete << kept;
    }
    return obsolete.isEmpty() || store.makeItemsObsolete(obsolete);
}

} // namespace

/// A batch with its secrets and pictures in their places.
struct KirvAccountCollection::PlacedBatch {
    QList<KirvAccountRecord> added;
    QList<KirvAccountRecord> replaced;
    QSet<KirvAccountKey> elsewhere; ///< those whose secrets go to another server than before, or in another way
    QStringList importedPictures;
    QList<KirvAccountKey> order; ///< with the removed accounts; empty: the added ones stand at the end
};

bool KirvAccountCollection::apply(const KirvAccountBatch &batch)
{
    error = problemOf(batch);
    if (!error.isEmpty())
        return false;
    if (batch.added.isEmpty() && batch.replaced.isEmpty() && batch.removed.isEmpty())
        return true;
    PlacedBatch placed;
    placed.order = orderWith(batch.added);
    if (!prepare(batch, &placed) || !storeBatch(batch, placed)) {
        error = store.lastError();
        if (error.isEmpty())
            error = tr("The pictures of the accounts could not be written into a temporary file.");
        for (const QString &picture : qAsConst(placed.importedPictures))
            store.discardAvatar(picture);
        return false;
    }
    finishBatch(batch, placed);
    return true;
}

/// Why the batch cannot be made, whatever the store says.
QString KirvAccountCollection::problemOf(const KirvAccountBatch &batch) const
{
    for (const KirvRemovedAccount &added : batch.added) {
        const QString twin = existenceProblem(added.record.key);
        if (!twin.isEmpty())
            return twin;
    }
    for (const KirvRemovedAccount &replaced : batch.replaced) {
        const KirvAccountKey &key = replaced.record.key;
        if (!find(key))
            return tr("There is no account \"%1\" (%2) any more.").arg(key.id, key.protocol);
    }
    return QString();
}

/// Those that come back stand at the places that they left; the others at the end.
QList<KirvAccountKey> KirvAccountCollection::orderWith(const QList<KirvRemovedAccount> &added) const
{
    QHash<int, KirvAccountKey> returning;
    QList<KirvAccountKey> atTheEnd;
    for (const KirvRemovedAccount &account : added) {
        if (account.place > 0 && !places.at(account.place) && !returning.contains(account.place))
            returning.insert(account.place, account.record.key);
        else
            atTheEnd << account.record.key;
    }
    if (returning.isEmpty())
        return {};
    QList<KirvAccountKey> order;
    for (const int place : places.inOrder()) {
        if (const KirvAccount *account = places.at(place))
            order << account->key();
        else if (returning.contains(place))
            order << returning.take(place);
    }
    return order + returning.values() + atTheEnd;
}

/// Before the transaction: pictures are files, and the profile has its id before any secret bears it.
bool KirvAccountCollection::prepare(const KirvAccountBatch &batch, PlacedBatch *placed)
{
    for (const KirvRemovedAccount &added : batch.added) {
        KirvAccountRecord record = added.record;
        const QStringList fields = record.secretItems.keys();
        for (const QString &field : fields) {
            if (!record.unreadSecrets.contains(field)) // it was removed with the account
                record.secretItems.remove(field);
        }
        if (!importPicture(added.picture, &record, placed))
            return false;
        keeper.place(record, KirvAccountRecord());
        placed->added << record;
    }
    for (const KirvRemovedAccount &replaced : batch.replaced) {
        KirvAccountRecord record = replaced.record;
        if (!placeReplacement(*find(record.key), replaced.picture, &record, placed))
            return false;
        placed->replaced << record;
    }
    return true;
}

/// What is the same as before keeps its item in the keyring, and its file.
bool KirvAccountCollection::placeReplacement(const KirvAccount &account, const QByteArray &picture,
                                             KirvAccountRecord *record, PlacedBatch *placed)
{
    const KirvAccountRecord &before = account.record();
    if (!kirvHaveSameDestination(*record, before, protocol(record->key.protocol)))
        placed->elsewhere.insert(record->key);
    QMap<QString, KirvSecretItem> items;
    for (auto item = record->secretItems.constBegin(); item != record->secretItems.constEnd(); ++item) {
        if (record->unreadSecrets.contains(item.key()))
            items.insert(item.key(), item.value());
    }
    for (auto item = before.secretItems.constBegin(); item != before.secretItems.constEnd(); ++item) {
        if (!record->unreadSecrets.contains(item.key()) && !before.unreadSecrets.contains(item.key()))
            items.insert(item.key(), item.value());
    }
    record->secretItems = items;
    const QSet<QString> changed = account.hasUnstoredPassword() ? QSet<QString> { QString() } : QSet<QString>();
    keeper.place(*record, before, changed);
    QFile file(account.avatarPath());
    const bool isSamePicture = !picture.isEmpty() && !before.avatar.isEmpty() && file.open(QIODevice::ReadOnly)
        && file.size() == picture.size() && file.readAll() == picture;
    if (!isSamePicture)
        return importPicture(picture, record, placed);
    record->avatar = before.avatar;
    return true;
}

/// Gives \a record its picture, or none.
bool KirvAccountCollection::importPicture(const QByteArray &picture, KirvAccountRecord *record, PlacedBatch *placed)
{
    record->avatar.clear();
    if (picture.isEmpty())
        return true;
    QTemporaryFile file;
    if (file.open() && file.write(picture) == picture.size() && file.flush())
        record->avatar = store.importAvatar(file.fileName());
    if (!record->avatar.isEmpty())
        placed->importedPictures << record->avatar;
    return !record->avatar.isEmpty();
}

bool KirvAccountCollection::storeBatch(const KirvAccountBatch &batch, const PlacedBatch &placed)
{
    if (!store.begin())
        return false;
    const auto insert = [this](const KirvAccountRecord &record) { return store.insertAccount(record); };
    const auto update = [this, &placed](const KirvAccountRecord &record) {
        return storeReplacement(store, record, placed.elsewhere.contains(record.key));
    };
    const auto remove = [this](const KirvAccount *account) { return store.removeAccount(account->key()); };
    if (std::all_of(placed.added.begin(), placed.added.end(), insert) && storeOrder(placed)
        && std::all_of(placed.replaced.begin(), placed.replaced.end(), update)
        && std::all_of(batch.removed.begin(), batch.removed.end(), remove)
        && (batch.mainAccount.id.isEmpty()
            || store.writeSetting(KirvSettingKey::mainAccount, batch.mainAccount.toSetting())))
        return store.commit();
    store.rollBack();
    return false;
}

/// One account has its place in one statement.
bool KirvAccountCollection::storeOrder(const PlacedBatch &placed)
{
    if (placed.order.isEmpty())
        return true;
    if (placed.added.size() > 1)
        return store.arrangeAccounts(placed.order);
    const KirvAccountKey key = placed.added.first().key;
    return store.placeAccount(key, placed.order.value(placed.order.indexOf(key) + 1));
}

/// The store has everything.
void KirvAccountCollection::finishBatch(const KirvAccountBatch &batch, const PlacedBatch &placed)
{
    QList<QPointer<KirvAccount>> added, replaced;
    for (int index = 0; index < placed.added.size(); ++index) {
        KirvAccount *account = append(placed.added.at(index));
        places.fill(batch.added.at(index).place, account);
        added << account;
    }
    if (!placed.order.isEmpty())
        arrangeAll(placed.order);
    for (int index = 0; index < placed.replaced.size(); ++index) {
        KirvAccount *account = find(placed.replaced.at(index).key);
        account->adopt(placed.replaced.at(index), batch.replaced.at(index).presence);
        replaced << account;
    }
    const QList<QPointer<KirvAccount>> removed(batch.removed.begin(), batch.removed.end());
    keeper.scheduleLoad();
    if (batch.onStored)
        batch.onStored();

    const QPointer<KirvAccountCollection> alive(this);
    for (const QPointer<KirvAccount> &account : removed) {
        if (alive && account && !account->isRemoved())
            removeStored(account);
    }
    for (const QPointer<KirvAccount> &account : qAsConst(replaced)) {
        if (alive && account && !account->isRemoved())
            Q_EMIT account->changed();
    }
    const QHash<KirvAccountKey, QPointer<KirvAccount>> leaving = alive ? leavingAccounts() : decltype(leaving)();
    for (int index = 0; index < added.size(); ++index) {
        const QPointer<KirvAccount> &account = added.at(index);
        if (alive && account && !account->isRemoved())
            loadRestored(account, batch.added.at(index).presence, leaving.value(account->key()));
        if (alive && account && !account->isRemoved())
            Q_EMIT accountAdded(account);
    }
}

/// In memory only.
void KirvAccountCollection::arrangeAll(const QList<KirvAccountKey> &order)
{
    all.clear();
    byProtocol.clear();
    for (const KirvAccountKey &key : order) {
        KirvAccount *account = find(key);
        ProtocolAccounts &siblings = byProtocol[key.protocol];
        all << account;
        siblings.accounts << account;
        siblings.infos << account->info();
    }
}

/// Those that were removed and still log out.
QHash<KirvAccountKey, QPointer<KirvAccount>> KirvAccountCollection::leavingAccounts() const
{
    QHash<KirvAccountKey, QPointer<KirvAccount>> leaving;
    const auto children = allWithRemoved();
    for (KirvAccount *account : children) {
        if (account->isRemoved())
            leaving.insert(account->key(), account);
    }
    return leaving;
}

/// The connection of the removed account may still log out: its server would refuse a second one, or end the first.
void KirvAccountCollection::loadRestored(KirvAccount *account, const KirvPresence &presence, KirvAccount *twin)
{
    KirvProtocolBase *protocol = protocols.value(account->key().protocol);
    if (!protocol)
        return;
    const QPointer<KirvAccount> alive(account);
    account->load(protocol, !twin);
    if (alive && !presence.getId().isEmpty())
        account->resume(presence);
    if (alive && twin)
        connect(twin, &QObject::destroyed, account, &KirvAccount::tryAgain);
}

KirvAccount *KirvAccountCollection::restore(const KirvRemovedAccount &removed)
{
    KirvAccountBatch batch;
    batch.added << removed;
    const QPointer<KirvAccountCollection> alive(this);
    const bool isDone = apply(batch);
    return alive && isDone ? find(removed.record.key) : nullptr;
}
