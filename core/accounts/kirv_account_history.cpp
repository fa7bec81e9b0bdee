// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_account_history.h"

#include "core/accounts/kirv_account_collection.h"
#include "core/accounts/kirv_main_account.h"

#include <QPointer>

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

int KirvAccountHistory::latest() const
{
    return steps.isEmpty() ? 0 : steps.last().number;
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
    if (index < 0 || steps.at(index).kind != Disabling)
        return index >= 0;
    const QList<Change> &changes = steps.at(index).changes;
    return !std::all_of(changes.begin(), changes.end(),
                        [this](const Change &change) { return isRemovalHeld(change.account.record.key); });
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

QStringList KirvAccountHistory::undo(int step)
{
    const int index = indexOf(step);
    if (index < 0)
        return {};
    Step undone = steps.takeAt(index);
    QList<Change> left;
    QStringList reasons;
    const QPointer<KirvAccountHistory> alive(this);
    // The latest first.
    for (auto change = undone.changes.crbegin(); change != undone.changes.crend(); ++change) {
        QString reason;
        const Result result = undoChange(undone.kind, *change, &reason);
        if (!alive)
            return reasons;
        if (result == Refused)
            left.prepend(*change);
        else if (undone.kind == Removal)
            removedBy.remove(change->account.record.key);
        if (result != Undone && !reasons.contains(reason))
            reasons << reason;
    }
    if (left.isEmpty()) {
        Q_EMIT stepGone(step);
        return reasons;
    }
    undone.changes = left;
    const auto isLater = [step](const Step &other) { return other.number > step; };
    steps.insert(std::find_if(steps.begin(), steps.end(), isLater), undone);
    return reasons;
}

KirvAccountHistory::Result KirvAccountHistory::undoChange(Kind kind, const Change &change, QString *reason)
{
    const QPointer<KirvAccountHistory> alive(this);
    const Result result = kind == Removal ? restore(change, reason) : enable(change, reason);
    KirvAccount *account = alive && result == Undone ? accounts.find(change.account.record.key) : nullptr;
    if (account && change.wasMain && account->record().enabled)
        mainAccount.choose(account);
    return result;
}

KirvAccountHistory::Result KirvAccountHistory::restore(const Change &change, QString *reason)
{
    if (accounts.restore(change.account))
        return Undone;
    *reason = accounts.lastError();
    return accounts.hasLogin(change.account.record.key) ? Impossible : Refused;
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
