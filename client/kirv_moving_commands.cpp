// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_moving_commands.h"

#include "client/kirv_account_names.h"
#include "client/kirv_thread_work.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/moving/kirv_account_export.h"
#include "core/moving/kirv_account_import.h"
#include "core/moving/kirv_moving_file.h"

#include <QJsonArray>

#include <memory>
#include <utility>

namespace {

QJsonObject describe(const KirvAccountKey &key)
{
    return { { QStringLiteral("protocol"), key.protocol }, { QStringLiteral("id"), key.id } };
}

/// One of the words of the man page.
QString resultOf(const KirvAccountImport::Row &row)
{
    if (!row.problem.isEmpty())
        return QStringLiteral("refused");
    if (!row.isTaken)
        return QStringLiteral("kept");
    return row.isNew() ? QStringLiteral("new") : QStringLiteral("replaced");
}

QJsonObject describe(const KirvAccountImport::Row &row)
{
    QJsonObject description = describe(row.key);
    description.insert(QStringLiteral("name"), row.name);
    description.insert(QStringLiteral("result"), resultOf(row));
    if (!row.isNew())
        description.insert(QStringLiteral("existing"), describe(row.existing));
    if (!row.problem.isEmpty())
        description.insert(QStringLiteral("problem"), row.problem);
    return description;
}

/// Takes out of \a moved what only the keyring holds for good.
void leaveOutKept(const KirvAccountRecord &stored, KirvMovedAccounts *moved, KirvMovedAccount *account)
{
    bool wasThere = false;
    for (auto item = stored.secretItems.constBegin(); item != stored.secretItems.constEnd(); ++item) {
        KirvAccountRecord &record = account->record;
        wasThere = wasThere || !(item.key().isEmpty() ? record.password : record.settings.value(item.key())).isEmpty();
        if (item.key().isEmpty())
            record.password.clear();
        else
            record.settings.remove(item.key());
    }
    if (wasThere) {
        //: %1 = name of an account, as XMPP:anna@example.org
        moved->leftOut << KirvMovingCommands::tr("Passwords of the account \"%1\" are left out: the keyring is locked.")
                              .arg(KirvAccountNames::of(stored.key));
    }
}

/// While the keyring does not give secrets away, the program has those in its memory that it has read before. Other
/// programs of the user get them from neither.
void leaveOutLocked(const KirvAccountCollection &accounts, KirvMovedAccounts *moved)
{
    if (!accounts.secrets().keyring() || accounts.secrets().obstacle() == KirvSecretKeeper::None)
        return;
    for (KirvMovedAccount &account : moved->accounts) {
        if (const KirvAccount *owner = accounts.find(account.record.key))
            leaveOutKept(owner->record(), moved, &account);
    }
}

} // namespace

KirvMovingCommands::KirvMovingCommands(const KirvAccountsService::Environment &environment, QObject *parent)
    : QObject(parent)
    , environment(environment)
{
    threads.setMaxThreadCount(1); // a pass phrase takes much memory
}

void KirvMovingCommands::exportThem(const QList<KirvAccount *> &chosen, const KirvAccountsRequest &request,
                                    const Callback &callback)
{
    if (request.withPasswords != !request.passPhrase.isEmpty())
        return callback(KirvAccountsReply::refusal(tr("A pass phrase is needed."), KirvAccountsReply::WrongPassPhrase));
    struct Work {
        KirvMovedAccounts moved;
        QString file, problem;
    };
    const auto work = std::make_shared<Work>();
    work->moved =
        KirvAccountExport::collect(environment.accounts, environment.mainAccount, chosen, request.withPasswords);
    if (request.withPasswords)
        leaveOutLocked(environment.accounts, &work->moved);
    const auto write = [work, passPhrase = request.passPhrase] {
        KirvAccountExport::readPictures(&work->moved);
        work->file = QString::fromLatin1(KirvAccountFile::write(work->moved, passPhrase, &work->problem).toBase64());
    };
    KirvThreadWork::start(threads, this, write, [work, callback] {
        if (!work->problem.isEmpty())
            return callback(KirvAccountsReply::refusal(work->problem));
        QJsonArray accounts;
        for (const KirvMovedAccount &account : std::as_const(work->moved.accounts))
            accounts << describe(account.record.key);
        KirvAccountsReply reply;
        reply.file = work->file;
        reply.result = { { QStringLiteral("accounts"), accounts },
                         { QStringLiteral("leftOut"), QJsonArray::fromStringList(work->moved.leftOut) } };
        if (!work->moved.leftOut.isEmpty())
            reply.status = KirvAccountsReply::DoneInPart;
        callback(reply);
    });
}

void KirvMovingCommands::importThem(const KirvAccountsRequest &request, const Callback &callback)
{
    const auto file = std::make_shared<KirvAccountFile::Result>();
    KirvThreadWork::start(
        threads, this,
        [file, request] {
            *file = KirvMovingFile::accounts(QByteArray::fromBase64(request.file.toLatin1()), request.passPhrase);
        },
        [this, file, request, callback] { callback(take(*file, request)); });
}

KirvAccountsReply KirvMovingCommands::take(const KirvAccountFile::Result &file, const KirvAccountsRequest &request)
{
    if (file.wrongPassPhrase)
        return KirvAccountsReply::refusal(file.problem, KirvAccountsReply::WrongPassPhrase);
    if (!file.problem.isEmpty())
        return KirvAccountsReply::refusal(file.problem);
    KirvAccountImport import(environment.accounts, environment.mainAccount, environment.history, file.accounts);
    if (request.replaces) {
        for (int row = 0; row < import.rows().size(); ++row)
            import.setTaken(row, true);
    }
    const int taken = import.takenCount();
    const QList<KirvAccountImport::Row> rows = import.rows();
    QString problem;
    if (!request.isTrial && taken > 0 && !import.apply(&problem))
        return KirvAccountsReply::refusal(problem);

    KirvAccountsReply reply;
    QJsonArray accounts;
    for (const KirvAccountImport::Row &row : rows) {
        accounts << describe(row);
        if (!row.problem.isEmpty())
            reply.status = KirvAccountsReply::DoneInPart;
    }
    const QStringList leftOut = import.leftOut() + import.lostSecrets();
    if (!leftOut.isEmpty())
        reply.status = KirvAccountsReply::DoneInPart;
    reply.result = { { QStringLiteral("accounts"), accounts },
                     { QStringLiteral("imported"), request.isTrial ? 0 : taken },
                     { QStringLiteral("dryRun"), request.isTrial },
                     { QStringLiteral("leftOut"), QJsonArray::fromStringList(leftOut) } };
    return reply;
}
