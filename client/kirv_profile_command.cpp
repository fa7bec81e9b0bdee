// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_profile_command.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <cstdio>

namespace {

void print(FILE *stream, const QString &text)
{
    std::fprintf(stream, "%s\n", qPrintable(text));
}

QString nameOf(const KirvProfileCopy &copy)
{
    return QFileInfo(copy.path).fileName();
}

} // namespace

KirvProfileCommand::KirvProfileCommand(const KirvClientOptions &options)
    : options(options)
    , profile(options.profileFolder)
{
}

int KirvProfileCommand::run()
{
    if (options.profileFolder.isEmpty())
        return refuse(options.profileProblem);
    switch (options.command) {
    case KirvClientOptions::Check:
        return check();
    case KirvClientOptions::Restore:
        return restore();
    case KirvClientOptions::Recover:
        return recover();
    case KirvClientOptions::Start:
        break;
    }
    return Success;
}

int KirvProfileCommand::checkBeforeStart()
{
    if (options.profileFolder.isEmpty())
        return refuse(options.profileProblem);
    const KirvProfileState state = profile.check();
    if (state.canBeOpened())
        return Success;
    return state.kind == KirvProfileState::Damaged ? reportDamage(state.text) : refuse(state.text);
}

int KirvProfileCommand::check()
{
    const int status = checkBeforeStart();
    if (status != Success)
        return status;
    const QString folder = QDir::toNativeSeparators(options.profileFolder);
    if (profile.check().kind == KirvProfileState::New) {
        print(stdout, tr("There is no profile in \"%1\" yet.").arg(folder));
        return Success;
    }
    print(stdout, tr("The profile in \"%1\" is not damaged.").arg(folder));
    printCopies(stdout);
    return Success;
}

int KirvProfileCommand::restore()
{
    const QList<KirvProfileCopy> copies = profile.copies();
    const KirvProfileState state = profile.check();
    if (state.kind != KirvProfileState::Damaged && state.kind != KirvProfileState::Good)
        return refuse(
            state.kind == KirvProfileState::New
                ? tr("There is no profile in \"%1\" yet.").arg(QDir::toNativeSeparators(options.profileFolder))
                : state.text);
    if (options.copy.isEmpty() && state.kind == KirvProfileState::Good)
        return refuse(tr("The profile is not damaged, so nothing was restored. Name a copy to go back to it."));
    if (copies.isEmpty())
        return refuse(tr("There is no copy of the profile that could be restored."));
    const auto named = std::find_if(copies.begin(), copies.end(), [this](const KirvProfileCopy &copy) {
        return options.copy == nameOf(copy) || QDir::current().absoluteFilePath(options.copy) == copy.path;
    });
    if (!options.copy.isEmpty() && named == copies.end()) {
        refuse(tr("There is no copy \"%1\" that could be restored.").arg(options.copy));
        printCopies(stderr);
        return Refused;
    }
    return finish(profile.restore(options.copy.isEmpty() ? copies.first() : *named));
}

int KirvProfileCommand::recover()
{
    if (profile.check().kind == KirvProfileState::Good)
        return refuse(tr("The profile is not damaged, so there is nothing to recover."));
    return finish(profile.recover());
}

int KirvProfileCommand::finish(bool isDone)
{
    if (!isDone)
        return refuse(profile.outcome());
    print(stdout, profile.outcome());
    return Success;
}

int KirvProfileCommand::refuse(const QString &text)
{
    print(stderr, QLatin1String("kirv: ") + text);
    return Refused;
}

int KirvProfileCommand::reportDamage(const QString &problem)
{
    refuse(problem);
    printCopies(stderr);
    print(
        stderr,
        tr("The option --restore restores the newest copy or the one that is named, and --recover reads what is still "
           "readable of the damaged database. To start fresh, move the folder away."));
    return Damaged;
}

void KirvProfileCommand::printCopies(FILE *stream) const
{
    const QList<KirvProfileCopy> copies = profile.copies();
    print(stream,
          copies.isEmpty() ? tr("There is no copy of the profile that could be restored.")
                           : tr("Copies of the profile, without passwords:"));
    for (const KirvProfileCopy &copy : copies) {
        //: %1 = name of a file, %2 = date and time, %3 = number of accounts
        print(stream,
              tr("  %1  %2  Accounts: %3").arg(nameOf(copy), KirvDamagedProfile::dateText(copy)).arg(copy.accounts));
    }
}
