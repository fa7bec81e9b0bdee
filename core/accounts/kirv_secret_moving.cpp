// SPDX-License-Identifier: LGPL-2.1-or-later
// The part of KirvSecretKeeper that moves what the profile holds to the keyring.
#include "core/accounts/kirv_account.h"
#include "core/accounts/kirv_account_fields.h"
#include "core/accounts/kirv_secret_keeper.h"
#include "core/store/kirv_account_columns.h"
#include "core/store/kirv_store.h"
#include "core/store/kirv_wiped_text.h"

#include <QPointer>
#include <algorithm>
#include <utility>

namespace {

const int batchSize = 100; ///< secrets whose items one commit notes
const int commitSize = 20; ///< secrets that one commit takes out of the profile
const int examineSize = 50; ///< accounts in one turn of the event loop

/// The fields of those secrets that the profile holds. Which settings are secret is known when the protocol is loaded.
QStringList movableFieldsOf(const KirvAccount &account)
{
    const KirvAccountRecord &record = account.record();
    QStringList fields;
    for (const QString &field : kirvSecretFieldsOf(record)) {
        const bool isHere = !record.secretItems.contains(field) && !kirvSecretOf(record, field).isEmpty();
        if (isHere && (field.isEmpty() || account.protocol()))
            fields << field;
    }
    return fields;
}

} // namespace

void KirvSecretKeeper::startMoving()
{
    mayMove = true;
    movedCount = store.movedCount();
    collectMovable();
    const QPointer<KirvSecretKeeper> alive(this);
    Q_EMIT changed(); // there may be something that waits for the keyring to be unlocked
    if (alive)
        next();
}

bool KirvSecretKeeper::hasMovableSecrets() const
{
    return mayMove && usesKeyring() && std::any_of(accounts.begin(), accounts.end(), [](const KirvAccount *account) {
               return !movableFieldsOf(*account).isEmpty();
           });
}

/// All accounts are looked at anew.
void KirvSecretKeeper::collectMovable()
{
    movable.clear();
    toExamine.clear();
    if (mayMove && usesKeyring())
        toExamine = accounts.keys();
}

/// A few at a time: thousands may be there.
void KirvSecretKeeper::examineNext()
{
    for (int count = 0; count < examineSize && !toExamine.isEmpty(); ++count) {
        const KirvAccount *account = accounts.value(toExamine.takeLast());
        const QStringList fields = account ? movableFieldsOf(*account) : QStringList();
        for (const QString &field : fields)
            movable << Secret { account->key(), field };
    }
}

/// Notes the items of the next secrets to move; nothing is changed when the profile cannot be written.
void KirvSecretKeeper::beginBatch()
{
    while (!movable.isEmpty() && batch.size() < batchSize) {
        const Secret secret = movable.takeFirst();
        const KirvAccount *account = accounts.value(secret.account);
        const KirvAccountRecord record = account ? kirvStoredForm(account->record()) : KirvAccountRecord();
        const QString value = kirvSecretOf(record, secret.field);
        const KirvSecretItem item = newItem(secret.account);
        if (value.isEmpty() || item.key.isEmpty() || record.secretItems.contains(secret.field))
            continue;
        batch << KirvStoredItem { item, secret.account, secret.field, KirvStoredItem::New };
        batchValues.insert(item.key, value);
    }
    if (!batch.isEmpty() && !store.addSecretItems(batch)) {
        batch.clear();
        batchValues.clear();
        movable.clear();
        toExamine.clear();
    }
}

bool KirvSecretKeeper::moveNext()
{
    if (batch.isEmpty() && movable.size() < batchSize)
        examineNext();
    if (batch.isEmpty() && (movable.size() >= batchSize || toExamine.isEmpty()))
        beginBatch();
    if (batch.isEmpty() && !toExamine.isEmpty()) {
        scheduleNext();
        return false;
    }
    if (batch.isEmpty()) {
        isMoveRequested = false;
        endMove();
        return false;
    }
    const KirvSecretItem item = batch.at(verified.size()).item;
    isBusy = true;
    writeAndReadBack(item, batchValues.value(item.key), [this, item](const KirvSecretStore::Reply &reply) {
        isBusy = false;
        const QPointer<KirvSecretKeeper> alive(this);
        const bool isDone = reply.outcome == KirvSecretStore::Done;
        if (isDone)
            verified << item.key;
        if (!isDone || verified.size() == qMin(int(batch.size()), commitSize))
            keepVerified(!isDone);
        if (alive && !isDone)
            pause(reply);
        if (alive)
            next();
    });
    return true;
}

/// What was read back leaves the profile. With \a isOver the rest of the batch stays there, and its items are removed.
void KirvSecretKeeper::keepVerified(bool isOver)
{
    const QStringList kept = verified.isEmpty() ? QStringList() : store.keepMovedItems(verified);
    const bool isRefused = !verified.isEmpty() && kept.isEmpty() && !store.lastError().isEmpty();
    const int count = int(isOver || isRefused ? batch.size() : verified.size());
    verified.clear();
    movedCount += int(kept.size());
    QStringList unused;
    for (int ended = 0; ended < count; ++ended) {
        const KirvStoredItem row = batch.takeFirst();
        QString value = batchValues.take(row.item.key);
        kirvWipe(value);
        KirvAccount *account = accounts.value(row.account);
        if (!kept.contains(row.item.key))
            unused << row.item.key;
        else if (account)
            account->secretPlaced(row.field, row.item);
    }
    if (!unused.isEmpty())
        store.makeItemsObsolete(unused);
    load();
    if (isRefused) { // the profile cannot be written: at the next start
        mayMove = false;
        movable.clear();
        toExamine.clear();
    } else if (!unused.isEmpty()) {
        collectMovable();
    }
}

/// The profile's files are wiped once for all, and the count starts again. Where that is refused, the next start does
/// it.
void KirvSecretKeeper::endMove()
{
    const int count = std::exchange(movedCount, 0);
    if (count > 0 && store.endMove())
        Q_EMIT moved(count);
}
