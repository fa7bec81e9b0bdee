// SPDX-License-Identifier: LGPL-2.1-or-later
// The part of KirvSecretKeeper that writes to the keyring what accounts have stored, and removes what it replaces.
#include "core/accounts/kirv_account.h"
#include "core/accounts/kirv_secret_keeper.h"
#include "core/store/kirv_account_columns.h"
#include "core/store/kirv_store.h"

#include <QTimer>
#include <utility>

namespace {

const int reportSize = 10; ///< secrets in one turn of the event loop

} // namespace

/// \a callback is called when the secret is known to stand in the store, or not to.
void KirvSecretKeeper::writeAndReadBack(const KirvSecretItem &item, const QString &secret,
                                        const KirvSecretStore::Callback &callback)
{
    secretStore->write(item, secret, this, [this, item, secret, callback](const KirvSecretStore::Reply &written) {
        if (written.outcome != KirvSecretStore::Done || !secretStore) {
            callback(written);
            return;
        }
        secretStore->read(item, this, [secret, callback](const KirvSecretStore::Reply &read) {
            KirvSecretStore::Reply reply = read;
            if (read.outcome == KirvSecretStore::Missing
                || (read.outcome == KirvSecretStore::Done && read.secret != secret))
                reply.outcome = KirvSecretStore::Failed;
            reply.secret.clear();
            callback(reply);
        });
    });
}

/// Items of a move that was interrupted, which nothing uses. All in one commit: there may be many.
void KirvSecretKeeper::giveUpInterrupted()
{
    QStringList unused;
    QList<KirvStoredItem> given, kept;
    for (const KirvStoredItem &row : qAsConst(writes)) {
        const KirvAccount *account = accounts.value(row.account);
        const bool isUnused = account && account->record().secretItems.value(row.field) != row.item;
        if (!isUnused) {
            kept << row;
        } else if (!account->isSaving()) {
            given << row;
            unused << row.item.key;
        }
    }
    writes = kept;
    if (!unused.isEmpty() && store.makeItemsObsolete(unused))
        removals << given;
}

bool KirvSecretKeeper::writeNext()
{
    while (!writes.isEmpty()) {
        const KirvStoredItem row = writes.takeFirst();
        const KirvAccount *account = accounts.value(row.account);
        if (!account)
            continue;
        const KirvAccountRecord &record = account->record();
        if (record.secretItems.value(row.field) != row.item) {
            writes.prepend(row);
            giveUpInterrupted();
            continue;
        }
        if (record.unreadSecrets.contains(row.field))
            continue;
        isBusy = true;
        writeAndReadBack(row.item, kirvSecretOf(record, row.field), [this, row](const KirvSecretStore::Reply &reply) {
            isBusy = false;
            const QPointer<KirvSecretKeeper> alive(this);
            onWritten(row, reply);
            if (alive)
                next();
        });
        return true;
    }
    return false;
}

void KirvSecretKeeper::onWritten(const KirvStoredItem &row, const KirvSecretStore::Reply &reply)
{
    if (reply.outcome == KirvSecretStore::Done) {
        const bool isRefused = store.keepSecretItems({ row.item.key }).isEmpty() && !store.lastError().isEmpty();
        if (isRefused) { // by the profile: not before something has changed
            load();
            pause({});
        } else {
            noLongerNew(row.item.key);
        }
        return;
    }
    const QPointer<KirvSecretKeeper> alive(this);
    pause(reply);
    if (alive)
        report(row, reply.text);
    if (!alive)
        return;
    load(); // it is tried again when the state changes
    reportWrites();
}

/// What is not written now. Nobody knows for how long, and the program may end meanwhile. A few at a time.
void KirvSecretKeeper::reportWrites()
{
    const KirvSecretStore::State state = secretStore ? secretStore->state() : KirvSecretStore::Unknown;
    const bool isFindingOut = state == KirvSecretStore::Unknown;
    const bool goesIntoProfile = state == KirvSecretStore::Unavailable && !wasPresent;
    if (isFindingOut || goesIntoProfile || canBeginOperation())
        return;
    const QPointer<KirvSecretKeeper> alive(this);
    const QList<KirvStoredItem> rows = writes;
    int count = 0;
    for (const KirvStoredItem &row : rows) {
        count += report(row, QString()) ? 1 : 0;
        if (!alive)
            return;
        if (count == reportSize) {
            QTimer::singleShot(0, this, &KirvSecretKeeper::reportWrites);
            return;
        }
    }
}

/// Once, and what was stored in this run only; whether it was.
bool KirvSecretKeeper::report(const KirvStoredItem &row, const QString &reason)
{
    KirvAccount *account = accounts.value(row.account);
    if (!account || reported.contains(row.item.key) || account->record().unreadSecrets.contains(row.field)
        || account->record().secretItems.value(row.field) != row.item)
        return false;
    reported.insert(row.item.key);
    account->reportUnkeptSecret(reason);
    return true;
}

bool KirvSecretKeeper::removeNext()
{
    if (removals.isEmpty())
        return false;
    const KirvStoredItem row = removals.takeFirst();
    isBusy = true;
    secretStore->remove(row.item, this, [this, row](const KirvSecretStore::Reply &reply) {
        isBusy = false;
        const QPointer<KirvSecretKeeper> alive(this);
        if (reply.outcome == KirvSecretStore::Done || reply.outcome == KirvSecretStore::Missing)
            store.forgetSecretItems({ row.item.key });
        else if (reply.outcome != KirvSecretStore::Refused) // one that is locked elsewhere is tried again later
            pause(reply);
        if (alive)
            next();
    });
    return true;
}
