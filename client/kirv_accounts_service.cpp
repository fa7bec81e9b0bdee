// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_accounts_service.h"

#include "client/kirv_account_names.h"
#include "client/kirv_account_status.h"
#include "client/kirv_moving_commands.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/accounts/kirv_account_history.h"
#include "core/accounts/kirv_main_account.h"

#include <QJsonArray>
#include <QPointer>

#include <iterator>

namespace {

/// The words of the man page; they are in the order of KirvAccountStatus::Kind.
const char *const stateNames[] = { "connected", "connecting", "waiting", "failed", "offline", "disabled", "notLoaded" };

QJsonObject keyOf(const KirvAccount &account)
{
    return { { QStringLiteral("protocol"), account.key().protocol }, { QStringLiteral("id"), account.key().id } };
}

KirvAccountsReply withAccounts(const QJsonArray &accounts)
{
    KirvAccountsReply reply;
    reply.result.insert(QStringLiteral("accounts"), accounts);
    return reply;
}

} // namespace

KirvAccountsService::KirvAccountsService(const Environment &environment, QObject *parent)
    : QObject(parent)
    , environment(environment)
    , moving(new KirvMovingCommands(environment, this))
{
}

void KirvAccountsService::run(const KirvAccountsRequest &request, const Callback &callback)
{
    const QPointer<KirvAccountsService> alive(this);
    environment.prepare(request, [alive, request, callback] {
        if (alive)
            alive->runPrepared(request, callback);
    });
}

void KirvAccountsService::runPrepared(const KirvAccountsRequest &request, const Callback &callback)
{
    if (request.command == KirvAccountsRequest::Import)
        return moving->importThem(request, callback);
    const QList<KirvAccount *> all = environment.accounts.accounts();
    QString problem;
    const QList<KirvAccount *> chosen =
        request.names.isEmpty() ? all : KirvAccountNames(all).find(request.names, &problem);
    if (!problem.isEmpty())
        return callback(KirvAccountsReply::refusal(problem, KirvAccountsReply::UnknownAccount));
    switch (request.command) {
    case KirvAccountsRequest::Enable:
    case KirvAccountsRequest::Disable:
        return callback(request.names.isEmpty() ? KirvAccountsReply::refusal(tr("The account is missing."))
                                                : setEnabled(chosen, request.command == KirvAccountsRequest::Enable));
    case KirvAccountsRequest::Export:
        return moving->exportThem(chosen, request, callback);
    default:
        return callback(list(chosen));
    }
}

KirvAccountsReply KirvAccountsService::list(const QList<KirvAccount *> &chosen) const
{
    QJsonArray rows;
    for (const KirvAccount *account : chosen)
        rows << describe(*account);
    return withAccounts(rows);
}

QJsonObject KirvAccountsService::describe(const KirvAccount &account) const
{
    const bool isMain = environment.mainAccount.account() == &account;
    QJsonObject row = keyOf(account);
    row.insert(QStringLiteral("alias"), account.record().alias);
    row.insert(QStringLiteral("enabled"), account.record().enabled);
    row.insert(QStringLiteral("main"), isMain);
    row.insert(QStringLiteral("state"), QJsonValue());
    if (environment.logsIn) {
        const KirvAccountStatus status(account, isMain);
        static_assert(std::size(stateNames) == KirvAccountStatus::NotLoaded + 1, "each state has a name");
        row.insert(QStringLiteral("state"), QLatin1String(stateNames[status.kind()]));
        row.insert(QStringLiteral("stateText"), status.text());
    }
    return row;
}

/// As the commands of the page do it: one change of the profile, and what is disabled is one step to undo.
KirvAccountsReply KirvAccountsService::setEnabled(const QList<KirvAccount *> &chosen, bool isEnabled)
{
    QJsonArray rows;
    for (const KirvAccount *account : chosen) {
        QJsonObject row = keyOf(*account);
        row.insert(QStringLiteral("enabled"), isEnabled);
        row.insert(QStringLiteral("changed"), account->record().enabled != isEnabled);
        rows << row;
    }
    if (!isEnabled)
        environment.history.beginStep(KirvAccountHistory::Disabling);
    const bool isDone = environment.accounts.setEnabled(chosen, isEnabled);
    if (!isEnabled)
        environment.history.endStep();
    return isDone ? withAccounts(rows) : KirvAccountsReply::refusal(environment.accounts.lastError());
}
