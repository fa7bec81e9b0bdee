// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_accounts_request.h"

#include <QJsonArray>

#include <iterator>

namespace {

const char *const commandNames[] = { "list", "enable", "disable", "export", "import" };

const QLatin1String requestTopic("accounts");
const QLatin1String commandKey("command"), doKey("do"), namesKey("names"), withPasswordsKey("withPasswords"),
    passPhraseKey("passPhrase"), fileKey("file"), replacesKey("replaces"), isTrialKey("isTrial"), statusKey("status"),
    problemKey("problem"), resultKey("result");

} // namespace

QString KirvAccountsRequest::nameOf(Command command)
{
    return QLatin1String(commandNames[command]);
}

bool KirvAccountsRequest::commandOf(const QString &name, Command *command)
{
    for (int index = 0; index < int(std::size(commandNames)); ++index) {
        if (name == QLatin1String(commandNames[index])) {
            *command = Command(index);
            return true;
        }
    }
    return false;
}

QJsonObject KirvAccountsRequest::toJson() const
{
    return { { commandKey, requestTopic },
             { doKey, nameOf(command) },
             { namesKey, QJsonArray::fromStringList(names) },
             { withPasswordsKey, withPasswords },
             { passPhraseKey, passPhrase },
             { fileKey, file },
             { replacesKey, replaces },
             { isTrialKey, isTrial } };
}

bool KirvAccountsRequest::fromJson(const QJsonObject &json, KirvAccountsRequest *request)
{
    const auto isText = [&json](QLatin1String key) { return json.value(key).isString(); };
    const auto isFlag = [&json](QLatin1String key) { return json.value(key).isBool(); };
    if (json.value(commandKey).toString() != requestTopic || !commandOf(json.value(doKey).toString(), &request->command)
        || !json.value(namesKey).isArray() || !isText(passPhraseKey) || !isText(fileKey) || !isFlag(withPasswordsKey)
        || !isFlag(replacesKey) || !isFlag(isTrialKey))
        return false;
    const QJsonArray names = json.value(namesKey).toArray();
    for (const QJsonValue &name : names) {
        if (!name.isString())
            return false;
        request->names << name.toString();
    }
    request->withPasswords = json.value(withPasswordsKey).toBool();
    request->passPhrase = json.value(passPhraseKey).toString();
    request->file = json.value(fileKey).toString();
    request->replaces = json.value(replacesKey).toBool();
    request->isTrial = json.value(isTrialKey).toBool();
    return true;
}

KirvAccountsReply KirvAccountsReply::refusal(const QString &problem, Status status)
{
    KirvAccountsReply reply;
    reply.status = status;
    reply.problem = problem;
    return reply;
}

QJsonObject KirvAccountsReply::toJson() const
{
    return { { statusKey, status }, { problemKey, problem }, { resultKey, result }, { fileKey, file } };
}

KirvAccountsReply KirvAccountsReply::fromJson(const QJsonObject &json)
{
    KirvAccountsReply reply;
    reply.status = json.value(statusKey).toInt(Refused);
    reply.problem = json.value(problemKey).toString();
    reply.result = json.value(resultKey).toObject();
    reply.file = json.value(fileKey).toString();
    return reply;
}
