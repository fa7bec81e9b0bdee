// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/moving/kirv_account_import.h"

#include "core/accounts/kirv_account_batch.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/accounts/kirv_account_fields.h"
#include "core/accounts/kirv_account_history.h"
#include "core/accounts/kirv_main_account.h"
#include "core/accounts/kirv_secret_destination.h"
#include "core/values/kirv_bounded_image.h"
#include "core/values/kirv_single_line.h"
#include "core/values/kirv_text_limit.h"
#include "core/values/kirv_visible_text.h"

#include <QHash>
#include <QSet>
#include <algorithm>

namespace {

/// A name out of a file as it stands in a sentence.
QString shownName(const QString &name)
{
    return kirvVisibleText(kirvSingleLine(name, kirvLongestShownName));
}

/// What \a record lacks of the secrets of \a before stays as it is there.
void keepSecrets(KirvAccountRecord *record, const KirvAccountRecord &before)
{
    const auto keepUnread = [&](const QString &field) {
        if (!before.unreadSecrets.contains(field))
            return;
        record->unreadSecrets.insert(field);
        record->secretItems.insert(field, before.secretItems.value(field));
    };
    if (record->password.isEmpty()) {
        record->password = before.password;
        record->rememberPassword = before.rememberPassword;
        keepUnread(QString());
    }
    for (const QString &field : before.secretSettings + before.unreadSecrets) {
        if (field.isEmpty() || !record->settings.value(field).isEmpty())
            continue;
        record->secretSettings.insert(field);
        if (before.settings.contains(field))
            record->settings.insert(field, before.settings.value(field));
        else
            record->settings.remove(field);
        keepUnread(field);
    }
}

/// Whether \a before has a password, or \a field, that \a record lacks.
bool lacksSecret(const KirvAccountRecord &record, const KirvAccountRecord &before, const QString &field)
{
    return kirvSecretOf(record, field).isEmpty()
        && (!kirvSecretOf(before, field).isEmpty() || before.unreadSecrets.contains(field));
}

/// The picture that \a before has, with what is known of it.
void keepPicture(KirvRemovedAccount *account, const KirvRemovedAccount &before)
{
    account->picture = before.picture;
    for (const QLatin1String &setting : { KirvOwnSetting::avatarOnServer, KirvOwnSetting::avatarIsChosen }) {
        if (before.record.settings.contains(setting))
            account->record.settings.insert(setting, before.record.settings.value(setting));
        else
            account->record.settings.remove(setting);
    }
}

} // namespace

/// What apply() does.
struct KirvAccountImport::Plan {
    KirvAccountBatch batch;
    KirvAccountHistory::Imported past;
    QHash<KirvAccountKey, KirvAccountKey> keys; ///< in the profile, by those of the file
};

KirvAccountImport::KirvAccountImport(KirvAccountCollection &accounts, KirvMainAccount &mainAccount,
                                     KirvAccountHistory &history, const KirvMovedAccounts &moved)
    : accounts(accounts)
    , mainAccount(mainAccount)
    , history(history)
    , moved(moved)
{
    for (KirvMovedAccount &account : this->moved.accounts) { // what belongs to the profile that they come from
        account.record.avatar.clear();
        account.record.secretItems.clear();
        account.record.unreadSecrets.clear();
        account.record.trustedCertificate.clear(); // who trusts it is the user, and only after the question
    }
    makeRows();
}

void KirvAccountImport::makeRows()
{
    KirvLoginIndex logins; // of the file
    QSet<KirvAccountKey> keys;
    for (const KirvMovedAccount &account : qAsConst(moved.accounts)) {
        const KirvAccountRecord &record = account.record;
        if (!logins.isLoaded(record.key.protocol) && accounts.protocol(record.key.protocol))
            logins.load(accounts.protocol(record.key.protocol), record.key.protocol, {});
        Row row;
        row.key = record.key;
        row.name = record.alias.isEmpty() ? record.key.id : record.alias;
        const QString existing = accounts.idWithSameLogin(record.key);
        if (!existing.isEmpty())
            row.existing = { existing, record.key.protocol };
        const QString twin = keys.contains(record.key) ? record.key.id : logins.find(record.key);
        row.problem = problemOf(row);
        if (row.problem.isEmpty() && !twin.isEmpty()) {
            //: %1 and %2 are logins, which may be spelt the same
            row.problem = tr("The file contains this login twice: \"%1\" is the same as \"%2\" to the server.")
                              .arg(shownName(record.key.id), shownName(twin));
        }
        row.isTaken = row.problem.isEmpty() && row.isNew();
        const KirvAccount *replaced = row.problem.isEmpty() ? accounts.find(row.existing) : nullptr;
        row.losesSecrets = replaced && losesSecrets(complete(record), replaced->record());
        logins.insert(record.key);
        keys.insert(record.key);
        all << row;
    }
}

QString KirvAccountImport::problemOf(const Row &row) const
{
    if (row.key.id.isEmpty())
        return tr("The account has no login.");
    if (!accounts.protocol(row.key.protocol)) {
        //: %1 = name of a protocol
        return tr("The protocol %1 is not loaded.").arg(shownName(row.key.protocol));
    }
    return row.isNew() ? accounts.problemWithNew(row.key) : QString();
}

void KirvAccountImport::setTaken(int row, bool isTaken)
{
    if (row >= 0 && row < all.size() && all.at(row).problem.isEmpty())
        all[row].isTaken = isTaken;
}

int KirvAccountImport::takenCount() const
{
    return int(std::count_if(all.begin(), all.end(), [](const Row &row) { return row.isTaken; }));
}

bool KirvAccountImport::apply(QString *problem)
{
    Plan plan;
    if (!makePlan(&plan, problem))
        return false;
    if (accounts.apply(plan.batch)) {
        history.addImport(plan.past);
        return true;
    }
    *problem = accounts.lastError();
    // The store says the same of a picture that it cannot write and of one that is none.
    return leaveOutBadPictures() && apply(problem);
}

bool KirvAccountImport::makePlan(Plan *plan, QString *problem)
{
    for (int index = 0; index < all.size(); ++index) {
        Row &row = all[index];
        if (!row.isTaken)
            continue;
        const KirvMovedAccount &source = moved.accounts.at(index);
        const bool isSame = accounts.idWithSameLogin(row.key) == row.existing.id;
        *problem =
            isSame ? problemOf(row) : tr("Another account with this login was added or removed in the meantime.");
        if (!problem->isEmpty()) {
            //: %1 = login, %2 = a sentence
            *problem = tr("The account \"%1\" cannot be imported. %2").arg(shownName(row.key.id), *problem);
            return false;
        }
        KirvRemovedAccount account;
        account.record = complete(source.record);
        account.picture = source.picture;
        plan->keys.insert(row.key, row.isNew() ? row.key : row.existing);
        if (row.isNew()) {
            plan->batch.added << account;
            plan->past.added << row.key;
            continue;
        }
        const KirvRemovedAccount before = accounts.copyOf(accounts.find(row.existing));
        account.record.key = row.existing;
        if (before.record.enabled) // otherwise it logs in with what the file says
            account.presence = before.presence;
        row.losesSecrets = losesSecrets(account.record, before.record);
        if (kirvHaveSameDestination(account.record, before.record, accounts.protocol(row.key.protocol))) {
            keepSecrets(&account.record, before.record);
            account.record.trustedCertificate = before.record.trustedCertificate;
        }
        if (account.picture.isEmpty())
            keepPicture(&account, before);
        plan->batch.replaced << account;
        plan->past.replaced << before;
    }
    if (const KirvAccount *main = mainAccount.account())
        plan->past.mainAccount = main->key();
    plan->batch.mainAccount = newMainAccount(*plan);
    if (!plan->batch.mainAccount.id.isEmpty())
        plan->batch.onStored = [this] { mainAccount.restore(); };
    return true;
}

KirvAccountRecord KirvAccountImport::complete(const KirvAccountRecord &record) const
{
    return kirvCompleteRecord(record, *accounts.protocol(record.key.protocol));
}

/// A file, which anybody may have written, sends no password of this profile to another server.
bool KirvAccountImport::losesSecrets(const KirvAccountRecord &record, const KirvAccountRecord &before) const
{
    const QSet<QString> fields = before.secretSettings + before.unreadSecrets + QSet<QString> { QString() };
    const auto isLacking = [&](const QString &field) { return lacksSecret(record, before, field); };
    return std::any_of(fields.begin(), fields.end(), isLacking)
        && !kirvHaveSameDestination(record, before, accounts.protocol(record.key.protocol));
}

QStringList KirvAccountImport::lostSecrets() const
{
    QStringList sentences;
    for (const Row &row : all) {
        if (row.isTaken && row.losesSecrets) {
            //: %1 = name of an account
            sentences
                << tr("Stored passwords of the account \"%1\" are not kept, because its settings in the file differ. "
                      "They must be entered again.")
                       .arg(shownName(row.name));
        }
    }
    return sentences;
}

/// The one of the file, where there is none; empty: the rule decides.
KirvAccountKey KirvAccountImport::newMainAccount(const Plan &plan) const
{
    const KirvAccountKey key = plan.keys.value(moved.mainAccount);
    if (mainAccount.account() || key.id.isEmpty())
        return {};
    const auto canBeMain = [&key](const KirvRemovedAccount &account) {
        return account.record.key == key && account.record.enabled;
    };
    const auto isAmong = [&](const QList<KirvRemovedAccount> &list) {
        return std::any_of(list.begin(), list.end(), canBeMain);
    };
    return isAmong(plan.batch.added) || isAmong(plan.batch.replaced) ? key : KirvAccountKey();
}

/// Whether there were any among those to be taken over.
bool KirvAccountImport::leaveOutBadPictures()
{
    bool wereBad = false;
    for (int index = 0; index < all.size(); ++index) {
        KirvMovedAccount &account = moved.accounts[index];
        if (!all.at(index).isTaken || account.picture.isEmpty())
            continue;
        const QString name = shownName(all.at(index).name);
        const QString problem = KirvBoundedImage::fromData(account.picture, name).problem();
        if (problem.isEmpty())
            continue;
        wereBad = true;
        account.picture.clear();
        account.record.settings.remove(KirvOwnSetting::avatarOnServer);
        account.record.settings.remove(KirvOwnSetting::avatarIsChosen);
        //: %1 = name of an account, %2 = a sentence
        moved.leftOut << tr("The picture of the account \"%1\" was left out. %2").arg(name, problem);
    }
    return wereBad;
}
