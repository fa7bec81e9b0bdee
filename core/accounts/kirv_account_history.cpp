// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_account_history.h"

#include "core/accounts/kirv_account_batch.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/accounts/kirv_main_account.h"

#include <QPointer>
#include <QSet>

#include <algorithm>
#include <utility>

KirvAccountHistory::KirvAccountHistory(KirvAccountCollection &accounts, KirvMainAccount &mainAccount, QObject *parent)
    : QObject(parent)
    , accounts(accounts)
    , mainAccount(mainAccount)
{
    connect(&accounts, &KirvAccountCollection::removalBegins, this,
            [this](const KirvAccount *account) { prepare(Removal, account); });
    connect(&accounts, &KirvAccountCollection::accountRemoved, this,
            [this](const QString &id, const QString &protocol) {
                confirm(Removal, { id, protocol });
            });
    connect(&accounts, &KirvAccountCollection::disablingBegins, this,
            [this](const KirvAccount *account) { prepare(Disabling, account); });
    connect(&accounts, &KirvAccountCollection::removalRefused, this,
            [this](const KirvAccount *account) { prepared.remove(account->key()); });
    connect(&accounts, &KirvAccountCollection::accountChanged, this, &KirvAccountHistory::accountChanged);
    connect(&accounts, &KirvAccountCollection::enabledChanged, this, [this](const QList<KirvAccountKey> &changed) {
        std::for_each(changed.begin(), changed.end(), [this](const auto &key) { confirm(Disabling, key); });
    });
}

void KirvAccountHistory::accountChanged(const KirvAccount *account)
{
    const KirvAccountKey &key = account->key();
    if (!account->record().enabled) {
        confirm(Disabling, key);
        return;
    }
    const int index = disabledBy.isEmpty() ? -1 : indexOf(disabledBy.take(key));
    if (index < 0)
        return;
    QList<Change> &changes = steps[index].changes;
    const auto isOfAccount = [&key](const Change &change) { return change.account.record.key == key; };
    changes.erase(std::remove_if(changes.begin(), changes.end(), isOfAccount), changes.end());
    if (changes.isEmpty())
        forget(index);
}

qint64 KirvAccountHistory::Step::bytes() const
{
    qint64 sum = 0;
    for (const Change &change : changes)
        sum += change.account.picture.size();
    return sum;
}

void KirvAccountHistory::beginStep(Kind kind)
{
    open = { ++lastNumber, kind, {} };
}

void KirvAccountHistory::endStep()
{
    const Step ended = std::exchange(open, Step());
    if (!ended.changes.isEmpty())
        add(ended);
}

void KirvAccountHistory::addImport(const Imported &imported)
{
    Step step { ++lastNumber, Import, {} };
    const auto addChange = [&](const KirvRemovedAccount &before, bool isNew) {
        const KirvAccount *account = accounts.find(before.record.key);
        if (account)
            step.changes << Change { before, account->displayName(), imported.mainAccount == account->key(), isNew };
    };
    for (const KirvRemovedAccount &replaced : imported.replaced)
        addChange(replaced, false);
    for (const KirvAccountKey &key : imported.added) {
        KirvRemovedAccount added;
        added.record.key = key;
        addChange(added, true);
    }
    if (!step.changes.isEmpty())
        add(step);
}

int KirvAccountHistory::latest() const
{
    const auto isDone = [](const Step &step) { return step.kind != UndoneImport; };
    const auto found = std::find_if(steps.crbegin(), steps.crend(), isDone);
    return found == steps.crend() ? 0 : found->number;
}

int KirvAccountHistory::indexOf(int step) const
{
    const auto found =
        std::find_if(steps.begin(), steps.end(), [step](const Step &candidate) { return candidate.number == step; });
    return found == steps.end() ? -1 : int(found - steps.begin());
}

/// Whether \a key was removed and that can be undone.
bool KirvAccountHistory::isRemovalHeld(const KirvAccountKey &key) const
{
    return !accounts.find(key) && has(removedBy.value(key));
}

bool KirvAccountHistory::canUndo(int step) const
{
    const int index = indexOf(step);
    const Kind kind = steps.value(index).kind;
    if (index < 0 || kind == Import)
        return index >= 0;
    const QList<Change> &changes = steps.at(index).changes;
    return std::any_of(changes.begin(), changes.end(), [&](const Change &change) {
        const KirvAccountKey &key = change.account.record.key;
        if (kind == Removal || change.isNew)
            return !accounts.hasLogin(key);
        return kind == UndoneImport ? accounts.find(key) != nullptr : !isRemovalHeld(key);
    });
}

int KirvAccountHistory::latestUndoable() const
{
    QSet<KirvAccountKey> passed;
    for (auto step = steps.crbegin(); step != steps.crend(); ++step) {
        if (step->kind == UndoneImport)
            continue;
        const QList<Change> &changes = step->changes;
        const bool isApart = std::none_of(changes.begin(), changes.end(), [&passed](const Change &change) {
            return passed.contains(change.account.record.key);
        });
        if (isApart && canUndo(step->number))
            return step->number;
        for (const Change &change : changes)
            passed << change.account.record.key;
    }
    return 0;
}

KirvAccountHistory::Kind KirvAccountHistory::kindOf(int step) const
{
    return steps.value(indexOf(step)).kind;
}

QList<KirvAccountKey> KirvAccountHistory::accountsOf(int step) const
{
    QList<KirvAccountKey> keys;
    const Step found = steps.value(indexOf(step));
    for (const Change &change : found.changes)
        keys << change.account.record.key;
    return keys;
}

QStringList KirvAccountHistory::namesOf(int step) const
{
    QStringList names;
    const Step found = steps.value(indexOf(step));
    for (const Change &change : found.changes)
        names << change.name;
    return names;
}

/// Takes down how it is before the change, which the store may still refuse.
void KirvAccountHistory::prepare(Kind kind, const KirvAccount *account)
{
    Change change;
    if (kind == Removal) {
        change.account = accounts.copyOf(account);
    } else {
        change.account.record.key = account->key();
        change.account.presence = account->presence();
    }
    change.name = account->displayName();
    change.wasMain = mainAccount.account() == account;
    prepared.insert(account->key(), change); // in place of one that was refused
}

void KirvAccountHistory::confirm(Kind kind, const KirvAccountKey &key)
{
    if (!prepared.contains(key))
        return;
    const Change change = prepared.take(key);
    if (open.number && open.kind == kind)
        open.changes << change;
    else
        add({ ++lastNumber, kind, { change } });
}

void KirvAccountHistory::add(const Step &step)
{
    steps << step;
    for (const Change &change : step.changes) {
        if (step.kind == Disabling)
            disabledBy.insert(change.account.record.key, step.number);
        else if (step.kind == Removal)
            removedBy.insert(change.account.record.key, step.number);
    }
    dropOldest();
    Q_EMIT stepAdded(step.number);
}

void KirvAccountHistory::dropOldest()
{
    qint64 bytes = 0;
    for (const Step &step : qAsConst(steps))
        bytes += step.bytes();
    while (steps.size() > 1 && (steps.size() > mostSteps || bytes > mostBytes)) {
        bytes -= steps.first().bytes();
        forget(0);
    }
}

void KirvAccountHistory::forget(int index)
{
    Q_EMIT stepGone(steps.takeAt(index).number);
}

void KirvAccountHistory::Rest::add(const QString &reason)
{
    if (!reasons.contains(reason))
        reasons << reason;
}

QStringList KirvAccountHistory::undo(int step)
{
    const int index = indexOf(step);
    if (index < 0)
        return {};
    Step undone = steps.takeAt(index);
    Step opposite = oppositeOf(undone);
    const QPointer<KirvAccountHistory> alive(this);
    const Rest rest = undone.kind == Disabling ? enableAll(undone) : bringBack(undone);
    if (!alive)
        return rest.reasons;
    for (const Change &change : qAsConst(undone.changes)) {
        if (undone.kind == Removal && accounts.find(change.account.record.key))
            removedBy.remove(change.account.record.key);
    }
    if (rest.changes.isEmpty()) {
        Q_EMIT stepGone(step);
        if (!alive || opposite.changes.isEmpty())
            return rest.reasons;
        opposite.number = ++lastNumber;
        add(opposite);
        return rest.reasons;
    }
    undone.changes = rest.changes;
    for (const Change &change : qAsConst(undone.changes)) {
        if (undone.kind != Removal)
            continue;
        int &latest = removedBy[change.account.record.key];
        latest = qMax(latest, step); // a later removal of the same login may be there
    }
    const auto isLater = [step](const Step &other) { return other.number > step; };
    steps.insert(std::find_if(steps.begin(), steps.end(), isLater), undone);
    return rest.reasons;
}

/// What undoes the undoing of \a step, which is about to be undone. Without changes where that is not needed.
KirvAccountHistory::Step KirvAccountHistory::oppositeOf(const Step &step) const
{
    Step opposite { 0, step.kind == Import ? UndoneImport : Import, {} };
    if (step.kind != Import && step.kind != UndoneImport)
        return opposite;
    for (const Change &change : step.changes) {
        const KirvAccount *account = accounts.find(change.account.record.key);
        Change now;
        now.account.record.key = change.account.record.key; // is all that removing it again needs
        now.name = change.name;
        now.isNew = change.isNew;
        if (account)
            now = { accounts.copyOf(account), account->displayName(), mainAccount.account() == account, change.isNew };
        if (account || (step.kind == UndoneImport && change.isNew))
            opposite.changes << now;
    }
    return opposite;
}

/// As one change of the store.
KirvAccountHistory::Rest KirvAccountHistory::bringBack(const Step &step)
{
    KirvAccountBatch batch;
    Rest rest;
    QList<Change> blocked; // by an account that was added since
    // The latest first, so that each finds the neighbours that it had.
    for (auto change = step.changes.crbegin(); change != step.changes.crend(); ++change) {
        const QString reason = addTo(&batch, step.kind, *change);
        const bool isBlocked = !reason.isEmpty() && (step.kind == Removal || change->isNew);
        if (reason.isEmpty() || isBlocked)
            rest.changes.prepend(*change);
        if (isBlocked)
            blocked.prepend(*change);
        if (!reason.isEmpty())
            rest.add(reason);
    }
    if (!batch.mainAccount.id.isEmpty())
        batch.onStored = [this] { mainAccount.restore(); };
    if (accounts.apply(batch))
        rest.changes = blocked;
    else
        rest.add(accounts.lastError());
    return rest;
}

/// Adds to \a batch what undoes \a change. Gives the reason why that is impossible.
QString KirvAccountHistory::addTo(KirvAccountBatch *batch, Kind kind, const Change &change) const
{
    const KirvAccountKey &key = change.account.record.key;
    KirvAccount *account = accounts.find(key);
    if (kind == Import && change.isNew) {
        if (account)
            batch->removed << account;
        return QString();
    }
    const bool isAdded = kind == Removal || change.isNew;
    if (isAdded && accounts.hasLogin(key))
        return accounts.problemWithNew(key);
    if (!isAdded && !account) {
        return kind == Import
            //: %1 = name of an account
            ? tr("The account \"%1\" cannot be restored to what it was before the import: it was removed.")
                  .arg(change.name)
            //: %1 = name of an account
            : tr("The account \"%1\" cannot be imported again: it was removed.").arg(change.name);
    }
    (isAdded ? batch->added : batch->replaced) << change.account;
    if (change.wasMain && change.account.record.enabled)
        batch->mainAccount = key;
    return QString();
}

KirvAccountHistory::Rest KirvAccountHistory::enableAll(const Step &step)
{
    Rest rest;
    const QPointer<KirvAccountHistory> alive(this);
    for (auto change = step.changes.crbegin(); alive && change != step.changes.crend(); ++change) {
        QString reason;
        const Result result = enable(*change, &reason);
        if (result == Refused)
            rest.changes.prepend(*change);
        if (result != Undone)
            rest.add(reason);
        KirvAccount *account = alive && result == Undone ? accounts.find(change->account.record.key) : nullptr;
        if (account && change->wasMain && account->record().enabled)
            mainAccount.choose(account);
    }
    return rest;
}

KirvAccountHistory::Result KirvAccountHistory::enable(const Change &change, QString *reason)
{
    const QPointer<KirvAccount> account = accounts.find(change.account.record.key);
    if (!account) {
        //: %1 = name of an account
        *reason = tr("The account \"%1\" cannot be enabled again: it was removed.").arg(change.name);
        return isRemovalHeld(change.account.record.key) ? Refused : Impossible;
    }
    const KirvPresence wanted = change.account.presence;
    if (account->record().enabled)
        return Undone;
    if (!account->setEnabled(true)) {
        *reason = accounts.lastError();
        return Refused;
    }
    if (account && account->presence().getId() != wanted.getId())
        account->setPresence(wanted);
    return Undone;
}
