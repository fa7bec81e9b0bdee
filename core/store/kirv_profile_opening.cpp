// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/store/kirv_profile_opening.h"

#include "core/store/kirv_database.h"
#include "core/store/kirv_private_file.h"
#include "core/store/kirv_profile_check.h"
#include "core/store/kirv_profile_copies.h"
#include "core/store/kirv_profile_lock.h"
#include "core/store/kirv_store_schema.h"

#include <QFile>
#include <QFileInfo>

KirvProfileState KirvProfileOpening::inspect(KirvProfileLock &lock) const
{
    const KirvProfileCheck check(paths);
    const KirvProfileState state = check.inspect();
    if (state.kind != KirvProfileState::Damaged)
        return state;
    const KirvProfileState locked = lockOnly(lock, false);
    return locked.canBeOpened() && lock.isHeld() ? check.inspect()
        : locked.kind == KirvProfileState::InUse ? locked
                                                 : state;
}

KirvProfileState KirvProfileOpening::prepare(KirvProfileLock &lock)
{
    const KirvProfileCheck check(paths);
    KirvProfileState state = inspect(lock);
    if (!state.canBeOpened())
        return state;
    if (state.kind == KirvProfileState::New && !makeFolder())
        return { KirvProfileState::Unusable,
                 tr("The profile folder \"%1\" could not be made.").arg(paths.nativeFolder()) };

    KirvProfileState locked = lockOnly(lock, false);
    if (locked.canBeOpened() && !lock.isHeld()) {
        // Whose a database without a mark is, only its tables say: nothing is made beside it before.
        if (state.kind == KirvProfileState::Good && !check.isMarked()) {
            state = check.examine(false);
            if (!state.canBeOpened())
                return state;
        }
        locked = lockOnly(lock, true);
    }
    if (!locked.canBeOpened())
        return locked;

    state = check.inspect(); // another instance may have been at it before the lock was ours
    if (!state.canBeOpened())
        return state;
    return state.kind == KirvProfileState::New ? makeNew() : check.examine(true);
}

KirvProfileState KirvProfileOpening::lockOnly(KirvProfileLock &lock, bool create) const
{
    const KirvProfileCheck check(paths);
    switch (lock.acquire(paths.lock(), create ? KirvProfileLock::Create : KirvProfileLock::Existing)) {
    case KirvProfileLock::Locked:
        kirvMakePrivate(paths.lock());
        return {};
    case KirvProfileLock::Missing:
        return {};
    case KirvProfileLock::HeldByAnother:
        return check.inUse();
    case KirvProfileLock::Failed:
        break;
    }
    return check.notWritable();
}

/// A folder that is there already keeps its permissions.
bool KirvProfileOpening::makeFolder() const
{
    const auto isThere = [this] { return QFileInfo(paths.folder).isDir(); };
    return isThere() || (QDir().mkpath(QFileInfo(paths.folder).path()) && kirvMakePrivateFolder(paths.folder))
        || isThere(); // made by another start meanwhile
}

bool KirvProfileOpening::makeDatabase(const QString &file, quint32 applicationId, KirvDatabase &database)
{
    if (!kirvMakePrivateFile(file)) {
        database.fail(
            tr("\"%1\" could not be made. Check whether the disk is full.").arg(QDir::toNativeSeparators(file)));
        return false;
    }
    return database.open(file, KirvDatabase::Plain) && database.begin() && kirvUpgradeSchema(database, 0, applicationId)
        && database.commit();
}

/// The database gets its name when it is complete: an empty or partial one never stands there.
KirvProfileState KirvProfileOpening::makeNew() const
{
    const QString unfinished = paths.unfinished();
    KirvDatabase database;
    if (QFile::exists(unfinished) && !QFile::remove(unfinished))
        return KirvProfileCheck(paths).notWritable();
    const bool made = makeDatabase(unfinished, kirvProfileId, database);
    const QString reason = database.errorText();
    database.close();
    if (made && kirvReplaceFile(unfinished, paths.database()) && kirvSyncFolder(paths.folder))
        return {};
    QFile::remove(unfinished);
    return made ? KirvProfileCheck(paths).notWritable() : KirvProfileState { KirvProfileState::Unusable, reason };
}

KirvProfileState KirvProfileOpening::open(KirvDatabase &database)
{
    const KirvProfileCheck check(paths);
    QFile file(paths.database());
    const bool isWritable = file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly);
    file.close();
    if (!isWritable || !kirvMakePrivate(paths.database()))
        return check.notWritable();
    // What was being made when a process ended. It may hold secrets.
    if (QFile::exists(paths.unfinished()) && !QFile::remove(paths.unfinished()))
        return check.notWritable();
    const bool hasAvatars = QFileInfo(paths.avatars()).isDir() || kirvMakePrivateFolder(paths.avatars());
    if (!hasAvatars || !QFileInfo(paths.avatars()).isWritable())
        return check.notWritable();
    if (database.open(paths.database(), KirvDatabase::ReadWrite) && upgrade(database))
        return {};
    return database.isDamaged() ? check.unreadable()
                                : KirvProfileState { KirvProfileState::Unusable, database.errorText() };
}

bool KirvProfileOpening::upgrade(KirvDatabase &database) const
{
    const int version = database.valueOf(QStringLiteral("PRAGMA user_version")).toInt();
    if (!database.errorText().isEmpty())
        return false;
    if (version == kirvStoreVersion())
        return true;
    KirvProfileCopies copies(paths);
    if (copies.make().isEmpty()) {
        database.fail(copies.lastError());
        return false;
    }
    if (!database.begin())
        return false;
    if (kirvUpgradeSchema(database, version, kirvProfileId))
        return database.commit();
    database.rollBack();
    return false;
}
