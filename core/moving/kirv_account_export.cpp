// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/moving/kirv_account_export.h"

#include "core/accounts/kirv_account.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/accounts/kirv_main_account.h"
#include "core/moving/kirv_account_file.h"
#include "core/moving/kirv_account_json.h"
#include "core/values/kirv_bounded_image.h"
#include "core/values/kirv_single_line.h"
#include "core/values/kirv_text_limit.h"

#include <QFile>
#include <QSet>
#include <algorithm>

namespace {

/// A sentence with the name and the protocol of an account.
QString about(const KirvAccountRecord &account, const QString &text)
{
    return text.arg(
        kirvSingleLine(account.alias.trimmed().isEmpty() ? account.key.id : account.alias, kirvLongestShownName),
        kirvSingleLine(account.key.protocol, kirvLongestShownName));
}

void clearSecrets(KirvAccountRecord &record)
{
    record.password.clear();
    for (const QString &field : qAsConst(record.secretSettings))
        record.settings.remove(field);
}

/// A password for this run only is in the record beside one that is stored and was not read.
bool isPasswordStored(const KirvAccountRecord &record)
{
    return record.rememberPassword && !record.unreadSecrets.contains(QString());
}

void reportUnread(const KirvAccount *account, QStringList *leftOut)
{
    QSet<QString> unread = account->record().unreadSecrets;
    if (unread.remove(QString())) {
        //: %1 = name of an account, %2 = name of a protocol
        *leftOut << about(account->record(),
                          KirvAccountExport::tr("The password of the account \"%1\" (%2) is left out: it is "
                                                "in the keyring and could not be read."));
    }
    if (!unread.isEmpty()) {
        //: %1 = name of an account, %2 = name of a protocol
        *leftOut << about(account->record(),
                          KirvAccountExport::tr("Secret settings of the account \"%1\" (%2) are left out: "
                                                "they are in the keyring and could not be read."));
    }
}

/// Only what belongs to the account wherever it is.
KirvAccountRecord movedRecord(const KirvAccount *account, bool withSecrets)
{
    KirvAccountRecord record = account->record();
    const QStringList ids = record.settings.keys();
    for (const QString &id : ids) {
        if (KirvAccountJson::isOwnSetting(id))
            record.settings.remove(id);
    }
    if (!withSecrets)
        clearSecrets(record);
    else if (!isPasswordStored(record))
        record.password.clear();
    record.avatar.clear();
    record.secretItems.clear();
    record.unreadSecrets.clear();
    return record;
}

/// Empty when \a account has none or it cannot be exported.
QByteArray pictureOf(const KirvMovedAccount &account)
{
    QFile file(account.unreadPicture);
    KirvMovedAccount complete { account.record, QByteArray(), QString() };
    if (!account.unreadPicture.isEmpty() && file.open(QIODevice::ReadOnly))
        complete.picture = file.read(KirvBoundedImage::maximumBytes + 1);
    const bool isUsable =
        !KirvBoundedImage::measuredSize(complete.picture).isEmpty() && KirvAccountFile::canHold(complete);
    return isUsable ? complete.picture : QByteArray();
}

void add(const KirvAccount *account, bool withSecrets, KirvMovedAccounts *moved)
{
    const KirvMovedAccount copy = { movedRecord(account, withSecrets), QByteArray(), account->avatarPath() };
    if (!KirvAccountFile::canHold(copy)) {
        //: %1 = name of an account, %2 = name of a protocol
        moved->leftOut << about(account->record(),
                                KirvAccountExport::tr("The account \"%1\" (%2) is left out: it has texts "
                                                      "that cannot be exported."));
        return;
    }
    if (withSecrets)
        reportUnread(account, &moved->leftOut);
    moved->accounts << copy;
}

} // namespace

KirvMovedAccounts KirvAccountExport::collect(const KirvAccountCollection &accounts, const KirvMainAccount &mainAccount,
                                             const QList<KirvAccount *> &chosen, bool withSecrets)
{
    const QSet<KirvAccount *> wanted(chosen.begin(), chosen.end());
    KirvMovedAccounts moved;
    for (KirvAccount *account : accounts.accounts()) {
        if (wanted.contains(account))
            add(account, withSecrets, &moved);
    }
    const auto isMain = [&mainAccount](const KirvMovedAccount &account) {
        return mainAccount.account() && mainAccount.account()->key() == account.record.key;
    };
    if (std::any_of(moved.accounts.cbegin(), moved.accounts.cend(), isMain))
        moved.mainAccount = mainAccount.account()->key();
    return moved;
}

void KirvAccountExport::readPictures(KirvMovedAccounts *moved)
{
    qint64 size = 0;
    for (KirvMovedAccount &account : moved->accounts) {
        if (account.unreadPicture.isEmpty())
            continue;
        if (size > KirvAccountFile::largestFile)
            return;
        account.picture = pictureOf(account);
        account.unreadPicture.clear();
        size += account.picture.size();
        if (account.picture.isEmpty()) {
            //: %1 = name of an account, %2 = name of a protocol
            moved->leftOut << about(
                account.record,
                tr("The picture of the account \"%1\" (%2) is left out: it could not be read, or is too large."));
        }
    }
}
