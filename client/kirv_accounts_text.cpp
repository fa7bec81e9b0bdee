// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_accounts_text.h"

#include "client/kirv_account_names.h"
#include "client/kirv_terminal_text.h"
#include "core/values/kirv_account_key.h"

#include <QJsonArray>

namespace {

const int longestSentence = 1000;

QString text(const QJsonObject &object, const char *key)
{
    return kirvTerminalText(object.value(QLatin1String(key)).toString());
}

QString nameOf(const QJsonObject &account)
{
    const KirvAccountKey key { account.value(QLatin1String("id")).toString(),
                               account.value(QLatin1String("protocol")).toString() };
    return kirvTerminalText(KirvAccountNames::of(key));
}

QJsonArray accountsOf(const QJsonObject &result)
{
    return result.value(QLatin1String("accounts")).toArray();
}

} // namespace

QStringList KirvAccountsText::lines(KirvAccountsRequest::Command command, const QJsonObject &result)
{
    switch (command) {
    case KirvAccountsRequest::List:
        return listLines(result);
    case KirvAccountsRequest::Enable:
    case KirvAccountsRequest::Disable:
        return enablingLines(result);
    case KirvAccountsRequest::Export:
        return exportLines(result);
    case KirvAccountsRequest::Import:
        break;
    }
    return importLines(result);
}

QStringList KirvAccountsText::listLines(const QJsonObject &result)
{
    const QJsonArray accounts = accountsOf(result);
    if (accounts.isEmpty())
        return { tr("There are no accounts.") };
    const bool hasStates = result.value(QLatin1String("running")).toBool();
    QStringList header { tr("Protocol"), tr("Id"), tr("Alias"), tr("Enabled"), tr("Main") };
    if (hasStates)
        header << tr("State");
    QList<QStringList> rows { header };
    for (const QJsonValue &value : accounts) {
        const QJsonObject account = value.toObject();
        const auto yesOrNo = [&account](const char *key) {
            return account.value(QLatin1String(key)).toBool() ? tr("yes") : tr("no");
        };
        QStringList row { text(account, "protocol"), text(account, "id"), text(account, "alias"), yesOrNo("enabled"),
                          yesOrNo("main") };
        if (hasStates)
            row << text(account, "stateText");
        rows << row;
    }
    return kirvTerminalTable(rows);
}

QStringList KirvAccountsText::enablingLines(const QJsonObject &result)
{
    QStringList lines;
    const QJsonArray accounts = accountsOf(result);
    for (const QJsonValue &value : accounts) {
        const QJsonObject account = value.toObject();
        const bool isEnabled = account.value(QLatin1String("enabled")).toBool();
        QString line;
        if (account.value(QLatin1String("changed")).toBool())
            //: %1 = name of an account
            line = isEnabled ? tr("%1 is enabled now.") : tr("%1 is disabled now.");
        else
            //: %1 = name of an account
            line = isEnabled ? tr("%1 was enabled already.") : tr("%1 was disabled already.");
        lines << line.arg(nameOf(account));
    }
    return lines;
}

QStringList KirvAccountsText::exportLines(const QJsonObject &result)
{
    const int count = int(accountsOf(result).size());
    //: %1 = number
    const QString text = result.value(QLatin1String("withPasswords")).toBool()
        ? tr("Accounts exported: %1, with the passwords that are stored.")
        //: %1 = number
        : tr("Accounts exported: %1, without passwords.");
    return { text.arg(count) };
}

QString KirvAccountsText::importText(const QJsonObject &row)
{
    const QString result = row.value(QLatin1String("result")).toString();
    if (result == QLatin1String("new"))
        return tr("new");
    if (result == QLatin1String("refused"))
        return kirvTerminalText(row.value(QLatin1String("problem")).toString(), longestSentence);
    const QString existing = nameOf(row.value(QLatin1String("existing")).toObject());
    //: %1 = name of an account
    return result == QLatin1String("replaced") ? tr("replaces %1").arg(existing) : tr("%1 is kept").arg(existing);
}

QStringList KirvAccountsText::importLines(const QJsonObject &result)
{
    QList<QStringList> rows;
    int taken = 0;
    const QJsonArray accounts = accountsOf(result);
    for (const QJsonValue &value : accounts) {
        const QJsonObject row = value.toObject();
        const QString outcome = row.value(QLatin1String("result")).toString();
        if (outcome == QLatin1String("new") || outcome == QLatin1String("replaced"))
            ++taken;
        rows << QStringList { nameOf(row), importText(row) };
    }
    QStringList lines = kirvTerminalTable(rows);
    //: %1 = number
    const QString text = result.value(QLatin1String("dryRun")).toBool()
        ? tr("Accounts that would be imported: %1. Nothing was changed.")
        //: %1 = number
        : tr("Accounts imported: %1.");
    lines << text.arg(taken);
    return lines;
}

QStringList KirvAccountsText::leftOut(const QJsonObject &result)
{
    QStringList lines;
    const QJsonArray sentences = result.value(QLatin1String("leftOut")).toArray();
    for (const QJsonValue &sentence : sentences)
        lines << kirvTerminalText(sentence.toString(), longestSentence);
    return lines;
}
