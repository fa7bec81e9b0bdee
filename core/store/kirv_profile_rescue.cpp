// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/store/kirv_profile_rescue.h"

#include "core/store/kirv_database.h"
#include "core/store/kirv_private_file.h"
#include "core/store/kirv_profile_check.h"
#include "core/store/kirv_profile_lock.h"
#include "core/store/kirv_profile_opening.h"
#include "core/store/kirv_row_salvage.h"
#include "core/store/kirv_store_schema.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

KirvProfileRescue::KirvProfileRescue(const QString &folder)
    : paths { QDir(folder).absolutePath() }
{
}

KirvProfileState KirvProfileRescue::check()
{
    const KirvProfileOpening opening(paths);
    KirvProfileLock lock;
    KirvProfileState state = opening.inspect(lock);
    if (state.kind != KirvProfileState::Good)
        return state;
    state = opening.lockOnly(lock, false);
    return state.canBeOpened() ? KirvProfileCheck(paths).examine(false) : state;
}

QList<KirvProfileCopy> KirvProfileRescue::copies() const
{
    return KirvProfileCopies(paths).list();
}

/// Locks a profile that can be repaired: one that is damaged, or whole.
bool KirvProfileRescue::begin(KirvProfileLock &lock)
{
    error.clear();
    kept.clear();
    const KirvProfileCheck inspection(paths);
    KirvProfileState state = inspection.inspect();
    if (state.kind == KirvProfileState::New)
        return fail(tr("There is no profile in \"%1\".").arg(paths.nativeFolder()));
    if (state.kind != KirvProfileState::Good && state.kind != KirvProfileState::Damaged)
        return fail(state.text);
    state = KirvProfileOpening(paths).lockOnly(lock, true);
    return state.canBeOpened() || fail(state.text);
}

bool KirvProfileRescue::restore(const KirvProfileCopy &copy)
{
    KirvProfileLock lock;
    if (!begin(lock))
        return false;
    if (!KirvProfileCheck(paths).examineFile(copy.path, kirvCopyId).canBeOpened())
        return fail(tr("The copy \"%1\" is damaged, too.").arg(QDir::toNativeSeparators(copy.path)));
    KirvDatabase database;
    const bool made = prepareUnfinished() && QFile::copy(copy.path, paths.unfinished())
        && kirvMakePrivate(paths.unfinished()) && database.open(paths.unfinished(), KirvDatabase::Plain)
        && upgrade(database) && database.execute(QStringLiteral("DELETE FROM profile_copy"));
    if (made)
        KirvRowSalvage(database).takeItemsOf(paths, KirvStoredItem::Obsolete);
    database.close();
    return made ? replaceDatabase() : fail(KirvProfileCheck(paths).notWritable().text);
}

bool KirvProfileRescue::recover(Recovered *found)
{
    KirvProfileLock lock;
    if (!begin(lock))
        return false;
    KirvDatabase target;
    if (!prepareUnfinished() || !KirvProfileOpening::makeDatabase(paths.unfinished(), kirvProfileId, target))
        return fail(KirvProfileCheck(paths).notWritable().text);
    KirvRowSalvage salvage(target);
    const bool readable = salvage.readFrom(paths);
    const QString reason = target.errorText();
    target.close();
    *found = salvage.found();
    if (readable)
        return replaceDatabase();
    QFile::remove(paths.unfinished());
    return fail(reason.isEmpty()
                    ? tr("Nothing in the damaged profile in \"%1\" can be read any more.").arg(paths.nativeFolder())
                    : reason);
}

bool KirvProfileRescue::startFresh()
{
    KirvProfileLock lock;
    if (!begin(lock))
        return false;
    KirvDatabase database;
    const bool made =
        prepareUnfinished() && KirvProfileOpening::makeDatabase(paths.unfinished(), kirvProfileId, database);
    if (made) // they stay where they are, as what is kept aside may still be restored
        KirvRowSalvage(database).takeItemsOf(paths, KirvStoredItem::Kept);
    database.close();
    return made ? replaceDatabase() : fail(KirvProfileCheck(paths).notWritable().text);
}

/// A copy of an earlier version has no place for what must be added to it.
bool KirvProfileRescue::upgrade(KirvDatabase &database)
{
    const int version = database.valueOf(QStringLiteral("PRAGMA user_version")).toInt();
    return version > 0 && database.begin() && kirvUpgradeSchema(database, version, kirvProfileId) && database.commit();
}

bool KirvProfileRescue::prepareUnfinished()
{
    return !QFile::exists(paths.unfinished()) || QFile::remove(paths.unfinished());
}

/// Puts the finished database in the place of the one that is there, when it is one that can be opened.
bool KirvProfileRescue::replaceDatabase()
{
    const bool isWhole = KirvProfileCheck(paths).examineFile(paths.unfinished(), kirvProfileId).canBeOpened()
        && kirvSyncFile(paths.unfinished());
    if (isWhole && keepAside() && kirvReplaceFile(paths.unfinished(), paths.database()) && kirvSyncFolder(paths.folder))
        return true;
    QFile::remove(paths.unfinished());
    return fail(KirvProfileCheck(paths).notWritable().text);
}

/// Gives the database a second name before it loses the first, and takes its log and journal away from the first: they
/// would be applied to the new one.
bool KirvProfileRescue::keepAside()
{
    const QString date = QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMdd-HHmmss-zzz"));
    const QString aside = paths.database() + QLatin1String(".damaged-") + date;
    for (const QString &suffix : { QString(), QStringLiteral("-wal"), QStringLiteral("-journal") }) {
        const QString from = paths.database() + suffix;
        if (!QFileInfo::exists(from))
            continue;
        if (!kirvLinkFile(from, aside + suffix))
            return false;
        if (suffix.isEmpty())
            kept = aside;
    }
    if (!kirvSyncFolder(paths.folder))
        return false;
    for (const QString &beside : { paths.log(), paths.journal(), paths.logIndex() }) {
        if (QFileInfo::exists(beside) && !QFile::remove(beside))
            return false;
    }
    return true;
}

bool KirvProfileRescue::fail(const QString &reason)
{
    error = reason;
    return false;
}
