// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_damaged_profile.h"

#include <QDir>
#include <QLocale>

KirvDamagedProfile::KirvDamagedProfile(const QString &folder)
    : rescue(folder)
{
}

QString KirvDamagedProfile::dateText(const KirvProfileCopy &copy)
{
    return QLocale().toString(copy.date.toLocalTime(), QLocale::ShortFormat);
}

bool KirvDamagedProfile::restore(const KirvProfileCopy &copy)
{
    const bool isDone = rescue.restore(copy);
    return finish(isDone,
                  { //: %1 = date and time, %2 = number of accounts
                    tr("The copy of %1 was restored. Accounts: %2.").arg(dateText(copy)).arg(copy.accounts),
                    tr("Passwords and other secret settings are in no copy and have to be entered again.") });
}

bool KirvDamagedProfile::recover()
{
    KirvProfileRescue::Recovered found;
    const bool isDone = rescue.recover(&found);
    return finish(isDone,
                  { found.isComplete ? tr("Everything could be read.")
                                     : tr("Only a part could be read. Accounts or settings are missing."),
                    //: what was found in a damaged database; %1 = a number
                    tr("Accounts: %1").arg(found.accounts),
                    //: what was found in a damaged database; %1 = a number
                    tr("Settings of accounts: %1").arg(found.accountSettings),
                    //: what was found in a damaged database; %1 = a number
                    tr("Passwords and other secret settings: %1").arg(found.secrets),
                    //: what was found in a damaged database; %1 = a number
                    tr("Settings of the program: %1").arg(found.clientSettings) });
}

bool KirvDamagedProfile::startFresh()
{
    const bool isDone = rescue.startFresh();
    return finish(isDone, { tr("The profile has no accounts now.") });
}

bool KirvDamagedProfile::finish(bool isDone, const QStringList &lines)
{
    text = isDone ? lines.join(QLatin1Char('\n')) : rescue.lastError();
    if (isDone && !rescue.keptFile().isEmpty()) {
        //: %1 = path of a file
        text += QLatin1Char('\n')
            + tr("The database that was there is kept in \"%1\", with the passwords in it. Delete it when it is no "
                 "longer needed.")
                  .arg(QDir::toNativeSeparators(rescue.keptFile()));
    }
    return isDone;
}
