// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_accounts_command.h"

#include "client/kirv_accounts_text.h"
#include "client/kirv_command_file.h"
#include "client/kirv_damaged_profile.h"
#include "client/kirv_pass_phrase_input.h"
#include "client/kirv_profile_accounts.h"
#include "client/kirv_profile_command.h"
#include "client/kirv_running_instance.h"
#include "client/kirv_terminal_text.h"
#include "core/moving/kirv_account_file.h"
#include "core/moving/kirv_moving_file.h"
#include "core/store/kirv_wiped_text.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QJsonArray>
#include <QTemporaryDir>
#include <QThread>

#include <cstdio>

namespace {

/// Of what is printed as JSON, see the man page.
const int formatVersion = 1;

const int millisecondsForTheProfile = 10000;
const int millisecondsUntilItListens = 500;
const int millisecondsBetweenAttempts = 50;
/// Long, as a pass phrase takes its time, and the plug-ins may still be loaded.
const int millisecondsForTheReply = 120000;
const int longestSentence = 1000;

void printLine(FILE *stream, const QString &line)
{
    std::fprintf(stream, "%s\n", qPrintable(line));
}

} // namespace

KirvAccountsCommand::KirvAccountsCommand(const KirvAccountsOptions &options)
    : options(options)
{
    request.command = options.command;
    request.names = options.names;
    request.withPasswords = options.withPasswords;
    request.replaces = options.replaces;
    request.isTrial = options.isTrial;
}

int KirvAccountsCommand::run()
{
    if (options.client.profileFolder.isEmpty())
        refuse(options.client.profileProblem);
    else if (prepare())
        perform();
    kirvWipe(request.passPhrase);
    if (reply.problem.isEmpty() && options.command == KirvAccountsRequest::Export)
        writeFile();
    return print();
}

bool KirvAccountsCommand::refuse(const QString &problem, KirvAccountsReply::Status status)
{
    reply = KirvAccountsReply::refusal(problem, status);
    return false;
}

bool KirvAccountsCommand::prepare()
{
    switch (options.command) {
    case KirvAccountsRequest::Export:
        return prepareExport();
    case KirvAccountsRequest::Import:
        return prepareImport();
    default:
        return true;
    }
}

bool KirvAccountsCommand::prepareExport()
{
    KirvCommandFile file(options.file);
    if (!file.mayWrite(options.overwrites))
        return refuse(file.problem());
    return !options.withPasswords || readPassPhrase(true);
}

bool KirvAccountsCommand::prepareImport()
{
    KirvCommandFile file(options.file);
    QByteArray bytes;
    if (!file.read(KirvAccountFile::largestFile, &bytes))
        return refuse(file.problem());
    request.file = QString::fromLatin1(bytes.toBase64());
    const bool needsPassPhrase =
        !options.withoutPasswords && (KirvAccountFile::hasSecrets(bytes) || KirvPassPhraseInput::isNamed(options));
    return !needsPassPhrase || readPassPhrase(false);
}

bool KirvAccountsCommand::readPassPhrase(bool isNew)
{
    KirvPassPhraseInput input(options);
    request.passPhrase = input.read(isNew);
    return !request.passPhrase.isEmpty() || refuse(input.problem(), KirvAccountsReply::WrongPassPhrase);
}

/// Another command may have the profile open for some moments, and a program that starts listens somewhat later.
void KirvAccountsCommand::perform()
{
    const QString folder = options.client.profileFolder;
    const QDeadlineTimer patience(millisecondsForTheProfile);
    while (!performHere() && !performThere()) {
        if (!KirvRunningInstance::canMeet(folder) || patience.hasExpired()) {
            refuse(tr("The profile in \"%1\" is open in another program, which does not take commands.")
                       .arg(QDir::toNativeSeparators(folder)));
            return;
        }
        QThread::msleep(millisecondsBetweenAttempts);
    }
}

/// False when another program has the profile open.
bool KirvAccountsCommand::performHere()
{
    QString folder = options.client.profileFolder;
    const bool isNew = KirvDamagedProfile(folder).check().kind == KirvProfileState::New;
    if (isNew && options.command != KirvAccountsRequest::Import) {
        performOnNothing();
        return true;
    }
    if (isNew && !canBeRead())
        return true;
    QTemporaryDir elsewhere;
    if (isNew && options.isTrial)
        folder = elsewhere.filePath(QStringLiteral("profile"));
    KirvProfileAccounts accounts(options.client);
    switch (accounts.open(folder)) {
    case KirvProfileAccounts::Opened:
        reply = accounts.run(request);
        break;
    case KirvProfileAccounts::InUse:
        return false;
    case KirvProfileAccounts::Damaged:
        refuse(accounts.problem(), KirvAccountsReply::Damaged);
        break;
    case KirvProfileAccounts::Unusable:
        refuse(accounts.problem());
        break;
    }
    return true;
}

/// Whether the file to import can be read and decrypted: no profile is made for one that cannot.
bool KirvAccountsCommand::canBeRead()
{
    const QByteArray bytes = QByteArray::fromBase64(request.file.toLatin1());
    const KirvAccountFile::Result file = KirvMovingFile::accounts(bytes, request.passPhrase);
    if (file.problem.isEmpty())
        return true;
    return refuse(file.problem, file.wrongPassPhrase ? KirvAccountsReply::WrongPassPhrase : KirvAccountsReply::Refused);
}

/// There is no profile yet, and none is made by a question about it.
void KirvAccountsCommand::performOnNothing()
{
    if (options.command == KirvAccountsRequest::List && options.names.isEmpty())
        reply.result.insert(QStringLiteral("accounts"), QJsonArray());
    else
        refuse(tr("There is no profile in \"%1\" yet.").arg(QDir::toNativeSeparators(options.client.profileFolder)),
               options.names.isEmpty() ? KirvAccountsReply::Refused : KirvAccountsReply::UnknownAccount);
}

/// False when none listens.
bool KirvAccountsCommand::performThere()
{
    const KirvRunningInstance::Answer answer = KirvRunningInstance::request(
        options.client.profileFolder, request.toJson(), millisecondsUntilItListens, millisecondsForTheReply);
    if (!answer.isThere)
        return false;
    isRunning = true;
    reply = KirvAccountsReply::fromJson(answer.message);
    if (answer.message.isEmpty())
        refuse(answer.problem.isEmpty() ? tr("The program that runs with this profile does not respond.")
                                        : answer.problem);
    return true;
}

void KirvAccountsCommand::writeFile()
{
    KirvCommandFile file(options.file);
    if (!file.write(QByteArray::fromBase64(reply.file.toLatin1()), options.overwrites))
        refuse(file.problem());
    reply.result.insert(QStringLiteral("withPasswords"), options.withPasswords);
}

int KirvAccountsCommand::print()
{
    QJsonObject &result = reply.result;
    result.insert(QStringLiteral("running"), isRunning);
    if (options.isJson) {
        result.insert(QStringLiteral("version"), formatVersion);
        result.insert(QStringLiteral("command"), KirvAccountsRequest::nameOf(options.command));
        result.insert(QStringLiteral("status"), reply.status);
        if (!reply.problem.isEmpty())
            result.insert(QStringLiteral("problem"), reply.problem);
        const QByteArray line = kirvTerminalJson(result);
        std::fwrite(line.constData(), 1, size_t(line.size()), stdout);
    } else if (result.contains(QStringLiteral("accounts"))) {
        printText();
    }
    if (!reply.problem.isEmpty() && reply.status == KirvAccountsReply::Damaged)
        KirvProfileCommand(options.client).reportDamage(reply.problem);
    else if (!reply.problem.isEmpty())
        printLine(stderr, QLatin1String("kirv: ") + kirvTerminalText(reply.problem, longestSentence));
    return reply.status;
}

/// What was exported to the standard output has that for itself.
void KirvAccountsCommand::printText() const
{
    const bool isOutputTaken = options.command == KirvAccountsRequest::Export && options.file == QLatin1String("-");
    const QStringList lines = KirvAccountsText::lines(options.command, reply.result);
    for (const QString &line : lines)
        printLine(isOutputTaken ? stderr : stdout, line);
    const QStringList leftOut = KirvAccountsText::leftOut(reply.result);
    for (const QString &line : leftOut)
        printLine(stderr, line);
}
