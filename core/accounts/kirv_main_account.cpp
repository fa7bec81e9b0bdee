// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_main_account.h"

#include "core/accounts/kirv_account_collection.h"
#include "core/store/kirv_client_settings.h"
#include "core/store/kirv_settings_table.h"
#include "host/kirv_account_manager.h"

#include <QPointer>

namespace {

bool canBeMain(const KirvAccount *account)
{
    return account && account->record().enabled && !account->isRemoved();
}

} // namespace

KirvMainAccount::KirvMainAccount(const KirvAccountCollection &accounts, KirvClientSettings &settings,
                                 KirvAccountManagerPrivate &state, QObject *parent)
    : QObject(parent)
    , accounts(accounts)
    , settings(settings)
    , state(state)
{
    connect(&accounts, &KirvAccountCollection::accountAdded, this, [this] {
        if (isRestored && !account())
            assign(firstEnabled());
    });
    connect(&accounts, &KirvAccountCollection::accountChanged, this, [this](const KirvAccount *changed) {
        if (!isRestored)
            return;
        if (changed == account() && !canBeMain(changed))
            chooseSuccessor(changed, Disabled);
        else if (!account() && canBeMain(changed))
            assign(firstEnabled());
    });
    // Once for several, when each of them is already what it becomes.
    connect(&accounts, &KirvAccountCollection::enabledChanged, this, [this] {
        const KirvAccount *present = account();
        if (isRestored && present && !canBeMain(present))
            chooseSuccessor(present, Disabled);
        else if (isRestored && !present)
            assign(firstEnabled());
    });
    connect(&accounts, &KirvAccountCollection::accountAboutToBeRemoved, this, [this](const KirvAccount *removed) {
        if (removed == account())
            chooseSuccessor(removed, Removed);
    });
}

KirvAccount *KirvMainAccount::account() const
{
    return static_cast<KirvAccount *>(state.mainAccount);
}

void KirvMainAccount::restore()
{
    isRestored = true;
    KirvAccount *stored = accounts.find(KirvAccountKey::fromSetting(settings.value(KirvSettingKey::mainAccount)));
    assign(canBeMain(stored) ? stored : firstEnabled());
}

bool KirvMainAccount::choose(KirvAccount *account)
{
    if (!settings.setValue(KirvSettingKey::mainAccount, account->key().toSetting()))
        return false;
    assign(account);
    return true;
}

KirvAccount *KirvMainAccount::firstEnabled() const
{
    for (KirvAccount *account : accounts.accounts()) {
        if (canBeMain(account))
            return account;
    }
    return nullptr;
}

void KirvMainAccount::chooseSuccessor(const KirvAccount *previous, Reason reason)
{
    const QString name = previous->displayName();
    const QPointer<KirvMainAccount> alive(this);
    assign(isRestored ? firstEnabled() : nullptr);
    if (alive && account())
        emit successorChosen(name, reason, account());
}

/// What the store refuses is chosen all the same: the next start comes to the same by the rule.
void KirvMainAccount::assign(KirvAccount *account)
{
    const bool isOther = state.mainAccount != account;
    state.mainAccount = account;
    const QPointer<KirvMainAccount> alive(this);
    const QString setting = account ? account->key().toSetting() : QString();
    if (isRestored && settings.value(KirvSettingKey::mainAccount) != setting)
        settings.setValue(KirvSettingKey::mainAccount, setting);
    if (alive && isOther)
        emit changed();
}
