// SPDX-License-Identifier: LGPL-2.1-or-later
// The part of KirvAccount that deals with passwords, and with secrets in the keyring.
#include "core/accounts/kirv_account.h"
#include "core/accounts/kirv_secret_keeper.h"
#include "core/store/kirv_store.h"
#include "core/store/kirv_wiped_text.h"

namespace {

void setValue(KirvAccountRecord &record, const QString &field, const QString &value)
{
    record.unreadSecrets.remove(field);
    QString &known = field.isEmpty() ? record.password : record.settings[field];
    if (known != value)
        kirvWipe(known);
    known = value;
}

void forgetValue(KirvAccountRecord &record, const QString &field)
{
    record.unreadSecrets.insert(field);
    if (field.isEmpty()) {
        kirvWipe(record.password);
        return;
    }
    QString known = record.settings.take(field);
    kirvWipe(known);
}

} // namespace

/// What the account knows may not be true any more: the log-in waits until it was read.
void KirvAccount::readSecretsAgain()
{
    const QList<QString> fields = current.secretItems.keys();
    awaited = QSet<QString>(fields.begin(), fields.end());
    if (unstoredPassword || (usesPasswordForNow() && keeper.obstacle() != KirvSecretKeeper::None))
        awaited.remove(QString());
    if (awaited.isEmpty())
        return;
    if (!keeper.usesKeyring())
        awaited.intersect(current.unreadSecrets);
    keeper.read(this);
}

void KirvAccount::providePassword(const QString &password, bool remember)
{
    const QPointer<KirvAccount> alive(this);
    const bool isStored = change([&](KirvAccountRecord &record) {
        record.password = password;
        record.rememberPassword = remember;
        record.unreadSecrets.remove(QString());
    });
    if (!alive || removed)
        return;
    if (!isStored) { // it still serves this run, and is stored with the next save
        const KirvAccountRecord stored = current;
        current.password = password;
        current.unreadSecrets.remove(QString());
        current.rememberPassword = current.rememberPassword && remember;
        unstoredPassword = unstoredPassword || !current.isStoredLike(stored);
    }
    requestedPresence = onlinePresence();
    awaited.remove(QString());
    tryAgain();
}

void KirvAccount::providePasswordForNow(const QString &password)
{
    current.password = password;
    if (isSaving())
        recordBefore.password = password;
    hasPasswordForNow = true;
    awaited.remove(QString());
    requestedPresence = onlinePresence();
    tryAgain();
    Q_EMIT changed();
}

/// As long as none is stored over the one that could not be read.
bool KirvAccount::usesPasswordForNow() const
{
    return hasPasswordForNow && current.unreadSecrets.contains(QString());
}

void KirvAccount::noLongerAwait(const QString &field)
{
    awaited.remove(field);
    reconciler.schedule();
    if (!removed)
        Q_EMIT changed();
}

/// A password that the profile did not take is newer than the one in the keyring.
void KirvAccount::secretRead(const QString &field, const QString &value)
{
    const bool isForNow = field.isEmpty() && usesPasswordForNow() && !awaited.contains(field);
    const bool isNewer = field.isEmpty() && unstoredPassword;
    if (!isForNow && !isNewer) {
        setValue(current, field, value);
        if (isSaving())
            setValue(recordBefore, field, value);
    }
    noLongerAwait(field);
}

void KirvAccount::secretMissing(const QString &field)
{
    if (!(field.isEmpty() && (usesPasswordForNow() || unstoredPassword))) {
        forgetValue(current, field);
        if (isSaving())
            forgetValue(recordBefore, field);
    }
    noLongerAwait(field);
}

bool KirvAccount::canDoWithout(const QString &field) const
{
    return !current.unreadSecrets.contains(field) || (field.isEmpty() && usesPasswordForNow());
}

void KirvAccount::secretFailed(const QString &field)
{
    if (canDoWithout(field))
        noLongerAwait(field); // with what was known before
}

void KirvAccount::secretPlaced(const QString &field, const KirvSecretItem &item)
{
    current.secretItems.insert(field, item);
    if (isSaving())
        recordBefore.secretItems.insert(field, item);
}

bool KirvAccount::keepSecretInProfile(const QString &field)
{
    KirvAccountRecord here = current;
    here.secretItems.remove(field);
    if (isSaving() || !profile.updateAccount(here))
        return false;
    current = here;
    return true;
}

void KirvAccount::secretStateChanged()
{
    if (awaitsSecrets() && !removed)
        Q_EMIT changed();
}

void KirvAccount::reportUnstoredSecret(const QString &reason)
{
    if (!removed)
        Q_EMIT noticeReceived(
            //: %1 = the reason, a sentence
            tr("A password could not be stored. It is used until the program ends. %1").arg(reason));
}

void KirvAccount::reportUnkeptSecret(const QString &reason)
{
    if (removed)
        return;
    const QString text =
        tr("A password could not be kept in the keyring. It is used until the program ends, and is kept "
           "when the keyring can be used.");
    //: %1 = a sentence, %2 = what the keyring says
    Q_EMIT noticeReceived(reason.isEmpty() ? text : tr("%1 (%2)").arg(text, reason));
}
