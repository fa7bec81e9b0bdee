// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_secret_keeper.h"

#include "core/accounts/kirv_account.h"
#include "core/accounts/kirv_account_fields.h"
#include "core/store/kirv_account_columns.h"
#include "core/store/kirv_store.h"

#include <QPair>
#include <QSet>
#include <QTimer>
#include <QUuid>
#include <algorithm>
#include <utility>

namespace {

const int notifySize = 10; ///< accounts in one turn of the event loop
const int keepSize = 5; ///< secrets that are stored in the profile in one

QString randomId()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces);
}

} // namespace

KirvSecretKeeper::KirvSecretKeeper(KirvStore &store, QObject *parent)
    : QObject(parent)
    , store(store)
{
}

void KirvSecretKeeper::setKeyring(KirvSecretStore *keyring)
{
    if (secretStore)
        secretStore->disconnect(this);
    secretStore = keyring;
    wasPresent = isPaused = isBusy = false;
    if (!secretStore)
        return;
    connect(secretStore, &KirvSecretStore::stateChanged, this, &KirvSecretKeeper::onStateChanged);
    notifiedObstacle = Unavailable;
    profileId();
    load();
    onStateChanged();
}

bool KirvSecretKeeper::usesKeyring() const
{
    return secretStore && secretStore->state() != KirvSecretStore::Unavailable;
}

KirvSecretKeeper::Obstacle KirvSecretKeeper::obstacle() const
{
    if (!usesKeyring())
        return Unavailable;
    if (secretStore->state() == KirvSecretStore::Silent || (isPaused && lastOutcome == KirvSecretStore::TimedOut))
        return Silent;
    if (isPaused)
        return lastOutcome == KirvSecretStore::Refused ? Refused : Failed;
    return secretStore->state() == KirvSecretStore::Locked ? Locked : None;
}

/// Whether one would not be refused at once, or without an answer.
bool KirvSecretKeeper::canBeginOperation() const
{
    if (!secretStore || isPaused)
        return false;
    return secretStore->state() == KirvSecretStore::Ready || secretStore->state() == KirvSecretStore::Locked;
}

QString KirvSecretKeeper::profileId()
{
    if (id.isEmpty())
        id = store.readSetting(kirvProfileIdSetting);
    return id;
}

/// The profile has its id before any secret bears it.
KirvSecretItem KirvSecretKeeper::newItem(const KirvAccountKey &account)
{
    if (profileId().isEmpty()) {
        const QString created = randomId();
        if (store.writeSetting(kirvProfileIdSetting, created))
            id = created;
    }
    if (id.isEmpty())
        return {};
    return { id + QLatin1Char('/') + randomId(), QStringLiteral("Kirv: %1 (%2)").arg(account.id, account.protocol) };
}

void KirvSecretKeeper::add(KirvAccount *account)
{
    accounts.insert(account->key(), account);
    for (const QString &field : account->record().unreadSecrets)
        reads << Secret { account->key(), field };
    scheduleNext();
}

void KirvSecretKeeper::remove(KirvAccount *account)
{
    if (accounts.value(account->key()) == account)
        accounts.remove(account->key());
}

void KirvSecretKeeper::place(KirvAccountRecord &record, const KirvAccountRecord &before, const QSet<QString> &changed)
{
    const KirvAccountRecord now = kirvStoredForm(record), old = kirvStoredForm(before);
    for (const QString &field : kirvSecretFieldsOf(now)) {
        const bool isUnchanged = kirvSecretOf(now, field) == kirvSecretOf(old, field) && !changed.contains(field)
            && kirvSecretFieldsOf(old).contains(field);
        if (isUnchanged || now.unreadSecrets.contains(field))
            continue;
        record.secretItems.remove(field);
        if (kirvSecretOf(now, field).isEmpty() || !usesKeyring())
            continue;
        const KirvSecretItem item = newItem(record.key);
        if (!item.key.isEmpty())
            record.secretItems.insert(field, item);
    }
    const KirvAccountRecord stored = kirvStoredForm(record);
    record.secretItems = stored.secretItems;
    record.unreadSecrets = stored.unreadSecrets; // what is not remembered any more is not read
}

void KirvSecretKeeper::read(KirvAccount *account)
{
    const KirvAccountRecord &record = account->record();
    if (record.secretItems.isEmpty())
        return;
    const auto isOfAccount = [&record](const Secret &queued) { return queued.account == record.key; };
    reads.erase(std::remove_if(reads.begin(), reads.end(), isOfAccount), reads.end());
    for (auto item = record.secretItems.constBegin(); item != record.secretItems.constEnd(); ++item)
        reads.prepend({ record.key, item.key() });
    isPaused = false;
    next();
}

void KirvSecretKeeper::readUnlocked(KirvAccount *account)
{
    if (canBeginOperation() && secretStore->state() == KirvSecretStore::Ready)
        read(account);
}

void KirvSecretKeeper::unlock()
{
    QSet<QPair<KirvAccountKey, QString>> queued;
    for (const Secret &secret : qAsConst(reads))
        queued.insert({ secret.account, secret.field });
    for (const KirvAccount *account : qAsConst(accounts)) {
        if (!account->awaitsSecrets())
            continue;
        for (const QString &field : account->record().unreadSecrets) {
            if (!queued.contains({ account->key(), field }))
                reads.prepend({ account->key(), field });
        }
    }
    isUnlocking = true;
    isMoveRequested = hasMovableSecrets();
    if (isMoveRequested)
        collectMovable();
    isPaused = false;
    next();
}

/// What is to be done is read from the event loop, once for all that has changed until then.
void KirvSecretKeeper::scheduleLoad()
{
    if (!secretStore)
        return;
    hasChanged = true;
    scheduleNext();
}

void KirvSecretKeeper::loadChanges()
{
    if (!std::exchange(hasChanged, false))
        return;
    load();
    // What the user has just stored is tried also after a refusal.
    isPaused = isPaused && std::all_of(writes.cbegin(), writes.cend(), [this](const KirvStoredItem &row) {
                   return reported.contains(row.item.key);
               });
}

void KirvSecretKeeper::load()
{
    hasChanged = hasReplaced = isUnstored = false;
    writes.clear();
    removals.clear();
    newKeys.clear();
    const QSet<QString> used = keysInUse();
    const QList<KirvStoredItem> rows = store.unsettledItems();
    for (const KirvStoredItem &row : rows) {
        if (row.stage == KirvStoredItem::New) {
            newKeys.insert(row.item.key);
            if (!batchValues.contains(row.item.key))
                writes << row;
        } else if (!id.isEmpty() && row.item.key.startsWith(id + QLatin1Char('/'))) { // not of another profile
            if (!used.contains(row.item.key))
                removals << row;
        }
    }
}

/// Those of a batch that is still to be written, and those that are held.
QSet<QString> KirvSecretKeeper::keysInUse()
{
    const QStringList moving = batchValues.keys();
    QSet<QString> keys(moving.begin(), moving.end());
    held.erase(std::remove_if(held.begin(), held.end(), [](const auto &gone) { return gone.expired(); }), held.end());
    for (const auto &holder : held) {
        const std::shared_ptr<const QStringList> owned = holder.lock();
        keys += QSet<QString>(owned->begin(), owned->end());
    }
    return keys;
}

std::shared_ptr<const QStringList> KirvSecretKeeper::hold(const QStringList &keys)
{
    if (keys.isEmpty())
        return nullptr;
    const auto release = [alive = QPointer<KirvSecretKeeper>(this)](const QStringList *released) {
        delete released;
        if (alive)
            alive->scheduleLoad();
    };
    const std::shared_ptr<const QStringList> holder(new QStringList(keys), release);
    held.push_back(holder);
    return holder;
}

void KirvSecretKeeper::onStateChanged()
{
    const KirvSecretStore::State state = secretStore->state();
    isPaused = isUnlocking = isMoveRequested = false;
    wasPresent = wasPresent || state == KirvSecretStore::Ready || state == KirvSecretStore::Locked
        || state == KirvSecretStore::Silent;
    loadChanges();
    if (state != KirvSecretStore::Ready)
        store.wipeTraces(); // of a move that may not go on for long
    const QPointer<KirvSecretKeeper> alive(this);
    keepInProfile();
    if (!alive)
        return;
    if (state == KirvSecretStore::Ready) {
        load();
        if (movable.isEmpty() && toExamine.isEmpty())
            collectMovable();
    }
    notifyAccounts();
    next();
}

bool KirvSecretKeeper::belongsInProfile() const
{
    return secretStore && secretStore->state() == KirvSecretStore::Unavailable && !wasPresent;
}

/// What was stored before it was known that there is no keyring. A few at a time: each is a commit.
void KirvSecretKeeper::keepInProfile()
{
    const QPointer<KirvSecretKeeper> alive(this);
    for (int count = 0; alive && belongsInProfile() && count < keepSize && !writes.isEmpty(); ++count)
        keepOneInProfile(writes.takeFirst());
    if (alive && belongsInProfile() && !writes.isEmpty())
        QTimer::singleShot(0, this, &KirvSecretKeeper::keepInProfile);
}

/// What the profile refuses is tried again when it has stored a change of an account.
void KirvSecretKeeper::keepOneInProfile(const KirvStoredItem &row)
{
    KirvAccount *account = accounts.value(row.account);
    if (!account || account->record().secretItems.value(row.field) != row.item
        || account->record().unreadSecrets.contains(row.field) || account->keepSecretInProfile(row.field))
        return;
    isUnstored = true;
    if (account->isSaving() || reported.contains(row.item.key)) // it is tried again at the end of the save
        return;
    reported.insert(row.item.key);
    account->reportUnstoredSecret(store.lastError());
}

void KirvSecretKeeper::notifyAccounts()
{
    if (obstacle() != notifiedObstacle) {
        notifiedObstacle = obstacle();
        toNotify = accounts.keys();
        QMetaObject::invokeMethod(this, &KirvSecretKeeper::notifyNext, Qt::QueuedConnection);
    }
    Q_EMIT changed();
}

/// A few at a time: thousands may wait, and each changes a row of a list.
void KirvSecretKeeper::notifyNext()
{
    const QPointer<KirvSecretKeeper> alive(this);
    for (int count = 0; alive && count < notifySize && !toNotify.isEmpty(); ++count) {
        KirvAccount *account = accounts.value(toNotify.takeLast());
        if (account)
            account->secretStateChanged();
    }
    if (alive && !toNotify.isEmpty())
        QTimer::singleShot(0, this, &KirvSecretKeeper::notifyNext);
}

void KirvSecretKeeper::pause(const KirvSecretStore::Reply &reply)
{
    isPaused = true;
    isUnlocking = isMoveRequested = false;
    lastOutcome = reply.outcome;
    store.wipeTraces();
    notifyAccounts();
}

/// From the event loop, and once however many accounts there are.
void KirvSecretKeeper::scheduleNext()
{
    if (std::exchange(isScheduled, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            isScheduled = false;
            next();
        },
        Qt::QueuedConnection);
}

/// Starts the next operation; each goes on here when it has ended.
void KirvSecretKeeper::next()
{
    if (isBusy || !secretStore)
        return;
    loadChanges();
    const KirvSecretStore::State state = secretStore->state();
    if (belongsInProfile() && !writes.isEmpty())
        QTimer::singleShot(0, this, &KirvSecretKeeper::keepInProfile);
    if (!isPaused && state != KirvSecretStore::Ready)
        store.wipeTraces();
    if (!canBeginOperation()) {
        scheduleGivingUp();
        QTimer::singleShot(0, this, &KirvSecretKeeper::reportWrites); // the caller may be in the middle of a change
        return;
    }
    if (readNext() || writeNext() || (state == KirvSecretStore::Locked && !isMoveRequested))
        return;
    if (std::exchange(hasReplaced, false)) {
        load();
        if (writeNext())
            return;
    }
    if (state == KirvSecretStore::Locked || !removeNext())
        moveNext();
}

/// While the keyring is locked, only what is needed to log in is worth a question, or what the user requests.
bool KirvSecretKeeper::readNext()
{
    const bool isLocked = secretStore->state() == KirvSecretStore::Locked;
    int index = 0;
    while (index < reads.size()) {
        const KirvAccount *owner = accounts.value(reads.at(index).account);
        if (isLocked && !isUnlocking && owner && !owner->record().enabled) {
            ++index;
            continue;
        }
        const Secret secret = reads.takeAt(index);
        const KirvAccount *account = accounts.value(secret.account);
        const KirvSecretItem item = account ? account->record().secretItems.value(secret.field) : KirvSecretItem();
        const bool isBeingWritten =
            account && newKeys.contains(item.key) && !account->record().unreadSecrets.contains(secret.field);
        if (isBeingWritten) {
            givenUp << secret;
            scheduleGivingUp();
        }
        if (item.key.isEmpty() || isBeingWritten)
            continue;
        isBusy = true;
        secretStore->read(item, this, [this, secret, item](const KirvSecretStore::Reply &reply) {
            isBusy = false;
            const QPointer<KirvSecretKeeper> alive(this);
            onRead(secret, item, reply);
            if (alive)
                next();
        });
        return true;
    }
    isUnlocking = false;
    return false;
}

/// From the event loop: the accounts emit signals.
void KirvSecretKeeper::scheduleGivingUp()
{
    if (!std::exchange(isGivingUpScheduled, true))
        QTimer::singleShot(0, this, &KirvSecretKeeper::giveUpNext);
}

/// What the accounts know serves them while it cannot be read again. A few at a time: thousands may wait, and each
/// changes a row of a list.
void KirvSecretKeeper::giveUpNext()
{
    isGivingUpScheduled = false;
    const auto isKnown = [this](const Secret &secret) {
        const KirvAccount *account = accounts.value(secret.account);
        return !account || account->canDoWithout(secret.field);
    };
    if (!canBeginOperation()) {
        QList<Secret> unknown;
        for (const Secret &secret : qAsConst(reads))
            (isKnown(secret) ? givenUp : unknown) << secret;
        reads = unknown;
    }
    const QPointer<KirvSecretKeeper> alive(this);
    for (int count = 0; count < notifySize && !givenUp.isEmpty(); ++count) {
        const Secret secret = givenUp.takeFirst();
        if (KirvAccount *account = accounts.value(secret.account))
            account->secretFailed(secret.field);
        if (!alive)
            return;
    }
    if (!givenUp.isEmpty())
        scheduleGivingUp();
}

void KirvSecretKeeper::onRead(const Secret &secret, const KirvSecretItem &item, const KirvSecretStore::Reply &reply)
{
    KirvAccount *account = accounts.value(secret.account);
    if (!account || account->record().secretItems.value(secret.field) != item)
        return;
    loadChanges();
    switch (reply.outcome) {
    case KirvSecretStore::Done:
        if (newKeys.contains(item.key)) { // written before the program ended
            store.keepSecretItems({ item.key });
            noLongerNew(item.key);
        }
        account->secretRead(secret.field, reply.secret);
        break;
    case KirvSecretStore::Missing:
        onMissing(secret, item, account);
        break;
    case KirvSecretStore::Refused:
    case KirvSecretStore::TimedOut:
    case KirvSecretStore::Failed:
        readLater(secret, account, reply);
        break;
    }
}

/// Not before something has changed.
void KirvSecretKeeper::readLater(const Secret &secret, KirvAccount *account, const KirvSecretStore::Reply &reply)
{
    if (account->record().unreadSecrets.contains(secret.field))
        reads.prepend(secret);
    const QPointer<KirvSecretKeeper> alive(this);
    account->secretFailed(secret.field);
    if (alive)
        pause(reply);
    if (alive)
        reportWrites();
}

/// One that was never written is the value before, where there was one; otherwise nothing is left to be written.
void KirvSecretKeeper::onMissing(const Secret &secret, const KirvSecretItem &item, KirvAccount *account)
{
    if (newKeys.contains(item.key)) {
        const KirvSecretItem before = store.secretItem(secret.account, secret.field, KirvStoredItem::Kept);
        const bool isKnown = store.lastError().isEmpty();
        if (!isKnown || (!before.key.isEmpty() && !store.makeItemsObsolete({ item.key }))) {
            readLater(secret, account, {}); // the value before would be lost
            return;
        }
        if (!before.key.isEmpty()) {
            load();
            account->secretPlaced(secret.field, before);
            reads.prepend(secret);
            return;
        }
        store.keepSecretItems({ item.key });
        noLongerNew(item.key);
    }
    account->secretMissing(secret.field);
}

/// What it replaces is to be removed. That is loaded when nothing is left to be written: there may be many.
void KirvSecretKeeper::noLongerNew(const QString &key)
{
    newKeys.remove(key);
    writes.erase(
        std::remove_if(writes.begin(), writes.end(), [&key](const KirvStoredItem &row) { return row.item.key == key; }),
        writes.end());
    hasReplaced = true;
}
