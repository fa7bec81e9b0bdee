// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/store/kirv_store.h"

#include "core/store/kirv_account_table.h"
#include "core/store/kirv_avatar_folder.h"
#include "core/store/kirv_database.h"
#include "core/store/kirv_file_identity.h"
#include "core/store/kirv_profile_contents.h"
#include "core/store/kirv_profile_copies.h"
#include "core/store/kirv_profile_lock.h"
#include "core/store/kirv_profile_opening.h"
#include "core/store/kirv_setting_rows.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <algorithm>

class KirvStore::Private {
    Q_DECLARE_TR_FUNCTIONS(KirvStore)

public:
    KirvProfileState open();
    bool begin();
    bool commit();
    void rollBack();
    template <typename Change>
    bool change(Change makeChange);
    bool prepareCommit();
    bool forgetNewSecrets();
    void transactionEnded(bool committed);
    void emptyLog();
    bool forgetTraces();
    bool wipeTraces();
    bool hasCopy();
    void keepCopy();
    bool isInPlace() const { return KirvFileIdentity::of(paths.database()) == openFile; }
    bool failUnlessInPlace();
    bool copyAllTo(KirvStore &other);

    KirvProfilePaths paths;
    KirvProfileLock lock;
    KirvProfileState state;
    KirvDatabase database;
    KirvAvatarFolder avatars { database };
    KirvAccountTable accounts { database };
    KirvFileIdentity openFile;
    int commitsOfOpening = 0;
    bool hasTraces = false; ///< of secrets that were moved
    bool isCopied = false; ///< the newest copy has what is stored
    QString copyError;
};

KirvStore::KirvStore()
    : d(std::make_unique<Private>())
{
}

KirvStore::~KirvStore()
{
    close();
}

bool KirvStore::open(const QString &folder)
{
    close();
    d->paths.folder = QDir(folder).absolutePath();
    d->avatars.setPath(d->paths.avatars());
    const KirvProfileState state = d->open();
    if (!state.canBeOpened()) {
        close();
        d->database.fail(state.text);
    }
    d->state = state;
    return state.canBeOpened();
}

KirvProfileState KirvStore::Private::open()
{
    KirvProfileOpening opening(paths);
    KirvProfileState found = opening.prepare(lock);
    if (found.canBeOpened())
        found = opening.open(database);
    if (!found.canBeOpened())
        return found;
    openFile = KirvFileIdentity::of(paths.database());
    // What a process that was killed has overwritten is still there.
    hasTraces = accounts.items().hasTraces();
    if (!hasTraces || !wipeTraces())
        emptyLog();
    avatars.removeUnused();
    isCopied = hasCopy();
    if (!isCopied)
        keepCopy();
    database.clearError();
    commitsOfOpening = database.commitCount();
    return found;
}

void KirvStore::close()
{
    const bool isInFolder = isInPlace();
    if (isInFolder)
        d->wipeTraces();
    if (isInFolder && !d->isCopied)
        d->keepCopy();
    d->hasTraces = false;
    d->database.close();
    d->database.clearError();
    d->accounts.effects() = {};
    d->lock.release();
    d->state = {};
}

bool KirvStore::isOpen() const
{
    return d->database.isOpen();
}

QString KirvStore::folder() const
{
    return d->paths.folder;
}

QString KirvStore::avatarFolder() const
{
    return d->avatars.path();
}

QString KirvStore::lastError() const
{
    return d->database.errorText();
}

KirvProfileState::Kind KirvStore::state() const
{
    return d->state.kind;
}

bool KirvStore::isLockedByAnother() const
{
    return d->state.kind == KirvProfileState::InUse;
}

QString KirvStore::copyError() const
{
    return d->copyError;
}

int KirvStore::commitCount() const
{
    return d->database.commitCount() - d->commitsOfOpening;
}

/// The database names the copy that has its content; the first change after it takes the name out.
bool KirvStore::Private::hasCopy()
{
    const QString name = database.valueOf(QStringLiteral("SELECT name FROM profile_copy")).toString();
    if (!name.isEmpty())
        return KirvProfileCopies(paths).has(name);
    return !database.valueOf(QStringLiteral("SELECT 1 FROM account UNION ALL SELECT 1 FROM setting LIMIT 1")).isValid();
}

void KirvStore::Private::keepCopy()
{
    KirvProfileCopies copies(paths);
    const QString name = copies.make();
    copyError = copies.lastError();
    if (name.isEmpty() || !database.begin())
        return;
    const bool noted = database.execute(QStringLiteral("DELETE FROM profile_copy"))
        && database.execute(QStringLiteral("INSERT INTO profile_copy (name) VALUES (?)"), { name });
    if (noted)
        isCopied = database.commit();
    else
        database.rollBack();
    database.clearError();
}

bool KirvStore::Private::failUnlessInPlace()
{
    if (!database.isOpen() || isInPlace())
        return true;
    database.fail(tr("The profile in \"%1\" was deleted, moved or replaced while the program was running, so nothing "
                     "was stored. Save the accounts to another folder.")
                      .arg(paths.nativeFolder()));
    return false;
}

bool KirvStore::Private::begin()
{
    return (database.isInTransaction() || failUnlessInPlace()) && database.begin();
}

bool KirvStore::Private::commit()
{
    const bool committed = (!database.isOutermost() || prepareCommit()) && database.commit();
    if (!committed && database.isInTransaction() && database.isOutermost())
        database.rollBack();
    transactionEnded(committed);
    return committed;
}

void KirvStore::Private::rollBack()
{
    database.rollBack();
    transactionEnded(false);
}

bool KirvStore::Private::prepareCommit()
{
    return failUnlessInPlace() && (!accounts.effects().hasOverwrittenSecrets || accounts.rewriteSecrets())
        && (!accounts.effects().hasNewSecrets || forgetNewSecrets())
        && (!isCopied || database.execute(QStringLiteral("DELETE FROM profile_copy")));
}

/// Copies have what was no secret when they were made. They go before the commit, so that none is left with a secret in
/// it; one is made after it. Where the commit fails, there is none until the store is closed or opened again.
bool KirvStore::Private::forgetNewSecrets()
{
    isCopied = false;
    if (accounts.rewriteSettings() && database.execute(QStringLiteral("DELETE FROM profile_copy"))
        && KirvProfileCopies(paths).removeAll())
        return true;
    if (database.errorText().isEmpty())
        database.fail(
            tr("The copies of the profile in \"%1\" could not be removed. Check the permissions of the folder "
               "\"copies\" in it.")
                .arg(paths.nativeFolder()));
    return false;
}

/// Runs \a makeChange in a transaction, or as a part of the one that is open.
template <typename Change>
bool KirvStore::Private::change(Change makeChange)
{
    database.clearError();
    if (!begin())
        return false;
    if (makeChange())
        return commit();
    rollBack();
    return false;
}

void KirvStore::Private::transactionEnded(bool committed)
{
    if (database.isInTransaction())
        return;
    const KirvAccountTable::Effects effects = accounts.effects();
    accounts.effects() = {};
    isCopied = isCopied && !committed;
    if (effects.hasOverwritten || effects.hasOverwrittenSecrets || effects.hasNewSecrets) {
        const QString error = database.errorText();
        emptyLog();
        database.clearError();
        if (!error.isEmpty())
            database.fail(error);
    }
    if (!committed)
        return;
    for (const QString &avatar : effects.obsoleteAvatars)
        avatars.remove(avatar);
    if (effects.hasNewSecrets)
        keepCopy();
}

/// The log holds what was overwritten, also by a transaction that was undone. Where this fails, the next opening does
/// it.
void KirvStore::Private::emptyLog()
{
    if (QSqlQuery *query = database.run(QStringLiteral("PRAGMA wal_checkpoint(TRUNCATE)")))
        query->finish();
}

/// As a part of a change: its commit writes the table of the secrets anew and empties the log.
bool KirvStore::Private::forgetTraces()
{
    accounts.effects().hasOverwrittenSecrets = true;
    return accounts.items().forgetTraces();
}

bool KirvStore::Private::wipeTraces()
{
    hasTraces = hasTraces && !change([this] { return forgetTraces(); });
    return !hasTraces;
}

QString KirvStore::importAvatar(const QString &path)
{
    d->database.clearError();
    if (!d->failUnlessInPlace())
        return QString();
    QString error;
    const QString name = d->avatars.import(path, &error);
    if (name.isEmpty())
        d->database.fail(error);
    return name;
}

void KirvStore::discardAvatar(const QString &name)
{
    if (isOpen() && d->isInPlace())
        d->avatars.remove(name);
}

QList<KirvAccountRecord> KirvStore::readAccounts()
{
    d->database.clearError();
    QList<KirvAccountRecord> records = d->accounts.readAll();
    for (KirvAccountRecord &record : records)
        record.avatar = d->avatars.usableName(record.avatar);
    return records;
}

bool KirvStore::insertAccount(const KirvAccountRecord &account)
{
    return d->change([&] { return d->accounts.insert(account); });
}

bool KirvStore::updateAccount(const KirvAccountRecord &account)
{
    return d->change([&] { return d->accounts.update(account); });
}

bool KirvStore::removeAccount(const KirvAccountKey &key)
{
    return d->change([&] { return d->accounts.remove(key); });
}

bool KirvStore::enableAccounts(const QList<KirvAccountKey> &keys, bool enabled)
{
    return d->change([&] { return d->accounts.setEnabled(keys, enabled); });
}

bool KirvStore::placeAccounts(const QList<KirvAccountKey> &keys, const KirvAccountKey &next)
{
    return d->change([&] { return d->accounts.place(keys, next); });
}

bool KirvStore::arrangeAccounts(const QList<KirvAccountKey> &keys)
{
    return d->change([&] { return d->accounts.arrange(keys); });
}

bool KirvStore::classifySettings(const QString &protocol, const QSet<QString> &fields,
                                 const QSet<QString> &secretFields)
{
    d->database.clearError();
    const QStringList misplaced = d->accounts.misplaced(protocol, fields, secretFields);
    if (misplaced.isEmpty())
        return lastError().isEmpty();
    return d->change([&] {
        return std::all_of(misplaced.begin(), misplaced.end(), [&](const QString &field) {
            return d->accounts.move(protocol, field, secretFields.contains(field));
        });
    });
}

QList<KirvStoredItem> KirvStore::unsettledItems()
{
    d->database.clearError();
    return d->accounts.items().unsettled();
}

KirvSecretItem KirvStore::secretItem(const KirvAccountKey &account, const QString &field, KirvStoredItem::Stage stage)
{
    d->database.clearError();
    return d->accounts.items().find(account, field, stage);
}

bool KirvStore::addSecretItems(const QList<KirvStoredItem> &items)
{
    return d->change([&] { return d->accounts.items().add(items); });
}

QStringList KirvStore::keepSecretItems(const QStringList &keys)
{
    QStringList kept;
    const bool isStored =
        d->change([&] { return d->accounts.items().keep(keys, &kept, &d->accounts.effects().hasOverwrittenSecrets); });
    return isStored ? kept : QStringList();
}

QStringList KirvStore::keepMovedItems(const QStringList &keys)
{
    QStringList kept;
    bool hasRemovedSecrets = false;
    d->database.setDurable(false);
    const bool isStored = d->change([&] {
        return d->accounts.items().keep(keys, &kept, &hasRemovedSecrets)
            && d->accounts.items().noteMoved(int(kept.size()));
    });
    d->database.setDurable(true);
    d->hasTraces = d->hasTraces || (isStored && hasRemovedSecrets);
    return isStored ? kept : QStringList();
}

int KirvStore::movedCount()
{
    d->database.clearError();
    return d->accounts.items().movedCount();
}

bool KirvStore::wipeTraces()
{
    return d->wipeTraces();
}

bool KirvStore::endMove()
{
    const bool isEnded = d->change([this] { return d->forgetTraces() && d->accounts.items().forgetMoved(); });
    d->hasTraces = d->hasTraces && !isEnded;
    return isEnded;
}

bool KirvStore::makeItemsObsolete(const QStringList &keys)
{
    return d->change([&] { return d->accounts.items().makeObsolete(keys); });
}

bool KirvStore::forgetSecretItems(const QStringList &keys)
{
    return d->change([&] { return d->accounts.items().forget(keys); });
}

QString KirvStore::readSetting(const QString &key, const QString &fallback)
{
    d->database.clearError();
    const QVariant value = kirvReadSettingRow(d->database, key);
    return value.isValid() ? value.toString() : fallback;
}

bool KirvStore::writeSetting(const QString &key, const QString &value)
{
    return d->change([&] { return kirvWriteSettingRow(d->database, key, value); });
}

bool KirvStore::begin()
{
    d->database.clearError();
    return d->begin();
}

bool KirvStore::commit()
{
    return d->commit();
}

void KirvStore::rollBack()
{
    d->rollBack();
}

bool KirvStore::isInPlace() const
{
    return isOpen() && d->isInPlace();
}

bool KirvStore::saveTo(const QString &folder)
{
    d->database.clearError();
    KirvStore other;
    const KirvProfilePaths target { QDir(folder).absolutePath() };
    if (QFile::exists(target.database())) {
        d->database.fail(
            Private::tr("There is a profile in \"%1\" already. Choose an empty folder.").arg(target.nativeFolder()));
        return false;
    }
    if (other.open(folder) && d->copyAllTo(other))
        return true;
    if (d->database.errorText().isEmpty())
        d->database.fail(other.lastError());
    return false;
}

bool KirvStore::Private::copyAllTo(KirvStore &other)
{
    QList<KirvAccountRecord> records = accounts.readAll();
    if (!database.errorText().isEmpty())
        return false;
    for (KirvAccountRecord &record : records) {
        const QString avatar = avatars.usableName(record.avatar);
        // The picture is gone when its folder is; the account is not.
        record.avatar = avatar.isEmpty() ? QString() : other.importAvatar(QDir(avatars.path()).filePath(avatar));
    }
    if (!other.begin())
        return false;
    for (const KirvAccountRecord &record : qAsConst(records))
        other.insertAccount(record);
    const bool isComplete = kirvCopySettingsAndItems(database, other.d->database);
    if (!isComplete)
        other.rollBack();
    return isComplete && other.commit();
}
