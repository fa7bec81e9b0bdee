// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/store/kirv_store.h"

#include "core/store/kirv_account_columns.h"
#include "core/store/kirv_avatar_folder.h"
#include "core/store/kirv_database.h"
#include "core/store/kirv_private_file.h"
#include "core/store/kirv_store_schema.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QLockFile>
#include <QSet>

class KirvStore::Private {
    Q_DECLARE_TR_FUNCTIONS(KirvStore)

public:
    /// What stands in the database of an account that is about to change.
    struct Row {
        QVariant number;
        QString password;
        QString avatar;
    };

    bool openLocked();
    bool prepareFolder();
    bool lock();
    bool examine();
    bool upgrade();
    void sweepAvatars();

    template <typename Change>
    bool change(Change makeChange);
    bool findRow(const KirvAccountKey &key, Row *row);
    bool writeSettings(const QVariant &number, const QMap<QString, QString> &settings);
    bool readSettings(const QVariant &number, QMap<QString, QString> *settings);
    void transactionEnded(bool committed);

    QString nativeFolder() const { return QDir::toNativeSeparators(folder); }
    QString databaseFile() const { return QDir(folder).filePath(QStringLiteral("profile.sqlite")); }

    QString folder;
    std::unique_ptr<QLockFile> lockFile;
    bool lockedByAnother = false;
    KirvAvatarFolder avatars;
    KirvDatabase database;
    int commitsOfOpening = 0;

    // What follows the commit of the running transaction.
    QStringList obsoleteAvatars;
    bool hasOverwrittenSecrets = false;
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
    d->folder = QDir(folder).absolutePath();
    d->avatars = KirvAvatarFolder(QDir(d->folder).filePath(QStringLiteral("avatars")));
    if (d->prepareFolder() && d->lock() && d->openLocked())
        return true;
    const QString reason = d->database.errorText();
    const bool lockedByAnother = d->lockedByAnother;
    close();
    d->database.fail(reason);
    d->lockedByAnother = lockedByAnother;
    return false;
}

void KirvStore::close()
{
    d->database.close();
    d->database.clearError();
    d->transactionEnded(false);
    d->lockFile.reset();
    d->lockedByAnother = false;
}

bool KirvStore::isOpen() const
{
    return d->database.isOpen();
}

QString KirvStore::folder() const
{
    return d->folder;
}

QString KirvStore::avatarFolder() const
{
    return d->avatars.path();
}

QString KirvStore::lastError() const
{
    return d->database.errorText();
}

bool KirvStore::isLockedByAnother() const
{
    return d->lockedByAnother;
}

int KirvStore::commitCount() const
{
    return d->database.commitCount() - d->commitsOfOpening;
}

bool KirvStore::Private::prepareFolder()
{
    if (!QDir().mkpath(folder)) {
        database.fail(tr("The profile folder \"%1\" could not be made.").arg(nativeFolder()));
        return false;
    }
    if (!kirvMakePrivate(folder)) {
        database.fail(tr("The profile folder \"%1\" could not be closed to other users.").arg(nativeFolder()));
        return false;
    }
    return true;
}

bool KirvStore::Private::lock()
{
    lockFile = std::make_unique<QLockFile>(QDir(folder).filePath(QStringLiteral("profile.lock")));
    lockFile->setStaleLockTime(0); // only the death of its holder frees it
    bool locked = lockFile->tryLock(0);
    if (!locked && lockFile->error() == QLockFile::LockFailedError) {
        // A dead process may have had the number that is ours now; a living one keeps its file from removal.
        qint64 holder = 0;
        QString host, program;
        if (lockFile->getLockInfo(&holder, &host, &program) && holder == QCoreApplication::applicationPid()
            && lockFile->removeStaleLockFile())
            locked = lockFile->tryLock(0);
    }
    if (locked)
        return kirvMakePrivate(QDir(folder).filePath(QStringLiteral("profile.lock")));

    lockedByAnother = lockFile->error() == QLockFile::LockFailedError;
    if (lockedByAnother)
        database.fail(tr("The profile in \"%1\" is in use by another running instance of the program. Close that one "
                         "first.")
                          .arg(nativeFolder()));
    else
        database.fail(tr("The profile folder \"%1\" cannot be written. Check its owner and permissions, and whether "
                         "the disk is full.")
                          .arg(nativeFolder()));
    return false;
}

bool KirvStore::Private::openLocked()
{
    const QString path = databaseFile();
    if (QFileInfo(path).size() > 0 && !examine())
        return false;
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite) || !kirvMakePrivate(path) || !avatars.create()) {
        database.fail(
            tr("The profile in \"%1\" cannot be written. Check its owner and permissions.").arg(nativeFolder()));
        return false;
    }
    file.close();
    if (!database.open(path, KirvDatabase::ReadWrite) || !upgrade())
        return false;
    sweepAvatars();
    commitsOfOpening = database.commitCount();
    return true;
}

/// Whether the file that is there can be used; nothing is written.
bool KirvStore::Private::examine()
{
    if (!database.open(databaseFile(), KirvDatabase::ReadOnly))
        return false;
    const int version = database.valueOf(QStringLiteral("PRAGMA user_version")).toInt();
    if (!database.errorText().isEmpty())
        return false;
    if (version > kirvStoreSchemaSteps().size()) {
        database.fail(tr("The profile in \"%1\" was written by a newer version of the program. Use that version to "
                         "open it; nothing in it was changed.")
                          .arg(nativeFolder()));
        return false;
    }
    const int tables = database.valueOf(QStringLiteral("SELECT count(*) FROM sqlite_master")).toInt();
    if (version < 0 || (version == 0 && tables > 0)) {
        database.fail(tr("The file \"%1\" belongs to another program; nothing in it was changed.")
                          .arg(QDir::toNativeSeparators(databaseFile())));
        return false;
    }
    const QString check = database.valueOf(QStringLiteral("PRAGMA quick_check(1)")).toString();
    if (check != QLatin1String("ok")) {
        database.fail(tr("The profile in \"%1\" is damaged. Nothing in it was changed: restore it from a backup, or "
                         "move it away to start with an empty one.")
                          .arg(nativeFolder()));
        return false;
    }
    return true;
}

bool KirvStore::Private::upgrade()
{
    const QList<QStringList> &steps = kirvStoreSchemaSteps();
    const int version = database.valueOf(QStringLiteral("PRAGMA user_version")).toInt();
    if (!database.errorText().isEmpty())
        return false;
    if (version == steps.size())
        return true;
    return change([&] {
        for (int step = version; step < steps.size(); ++step) {
            for (const QString &statement : steps.at(step)) {
                if (!database.run(statement))
                    return false;
            }
        }
        return database.run(QStringLiteral("PRAGMA user_version = %1").arg(steps.size())) != nullptr;
    });
}

/// Removes what was copied for a change that never came to be.
void KirvStore::Private::sweepAvatars()
{
    QSqlQuery *query = database.run(QStringLiteral("SELECT avatar FROM account WHERE avatar <> ''"));
    if (!query)
        return;
    QSet<QString> used;
    while (query->next())
        used.insert(query->value(0).toString());
    avatars.removeAllBut(used);
}

/// Runs \a makeChange in a transaction, or as a part of the one that is open.
template <typename Change>
bool KirvStore::Private::change(Change makeChange)
{
    database.clearError();
    if (!database.begin())
        return false;
    if (makeChange()) {
        const bool committed = database.commit();
        transactionEnded(committed);
        return committed;
    }
    database.rollBack();
    transactionEnded(false);
    return false;
}

void KirvStore::Private::transactionEnded(bool committed)
{
    if (database.isInTransaction())
        return;
    if (committed && hasOverwrittenSecrets) {
        // The log still holds the old pages. Where this fails, closing the profile does it.
        if (QSqlQuery *query = database.run(QStringLiteral("PRAGMA wal_checkpoint(TRUNCATE)")))
            query->finish();
        database.clearError();
    }
    if (committed) {
        for (const QString &avatar : qAsConst(obsoleteAvatars))
            avatars.remove(avatar);
    }
    hasOverwrittenSecrets = false;
    obsoleteAvatars.clear();
}

QString KirvStore::importAvatar(const QString &path)
{
    d->database.clearError();
    QString error;
    const QString name = d->avatars.import(path, &error);
    if (name.isEmpty())
        d->database.fail(error);
    return name;
}

void KirvStore::discardAvatar(const QString &name)
{
    d->avatars.remove(name);
}

QList<KirvAccountRecord> KirvStore::readAccounts()
{
    d->database.clearError();
    static const QString select =
        QStringLiteral("SELECT number, id, protocol, %1 FROM account ORDER BY position, number")
            .arg(kirvJoinedColumns(QString()));
    QSqlQuery *query = d->database.run(select);
    if (!query)
        return {};
    QList<KirvAccountRecord> accounts;
    QHash<qint64, int> indices;
    while (query->next()) {
        indices.insert(query->value(0).toLongLong(), int(accounts.size()));
        KirvAccountRecord account;
        account.key = { query->value(1).toString(), query->value(2).toString() };
        int index = 3;
        for (const KirvAccountColumn &column : kirvAccountColumns()) {
            const QVariant value = query->value(index++);
            if (column.text)
                account.*column.text = value.toString();
            else
                account.*column.flag = value.toBool();
        }
        accounts.append(account);
    }
    query = d->database.run(QStringLiteral("SELECT account, field, value FROM account_setting"));
    if (!query)
        return {};
    while (query->next()) {
        const auto index = indices.constFind(query->value(0).toLongLong());
        if (index != indices.constEnd())
            accounts[*index].settings.insert(query->value(1).toString(), query->value(2).toString());
    }
    return accounts;
}

bool KirvStore::insertAccount(const KirvAccountRecord &account)
{
    static const QString insert =
        QStringLiteral("INSERT INTO account (id, protocol, position, %1) "
                       "VALUES (?, ?, (SELECT coalesce(max(position), 0) + 1 FROM account), %2)")
            .arg(kirvJoinedColumns(QString()), kirvColumnPlaceHolders());
    return d->change([&] {
        const QVariantList keyValues { account.key.id, account.key.protocol };
        const QSqlQuery *query = d->database.run(insert, keyValues + kirvColumnValues(kirvStoredForm(account)));
        return query && d->writeSettings(query->lastInsertId(), account.settings);
    });
}

bool KirvStore::updateAccount(const KirvAccountRecord &account)
{
    static const QString update =
        QStringLiteral("UPDATE account SET %1 WHERE number = ?").arg(kirvJoinedColumns(QStringLiteral(" = ?")));
    return d->change([&] {
        Private::Row row;
        const KirvAccountRecord stored = kirvStoredForm(account);
        if (!d->findRow(account.key, &row)
            || !d->database.run(update, kirvColumnValues(stored) + QVariantList { row.number }))
            return false;
        if (row.password != stored.password && !row.password.isEmpty())
            d->hasOverwrittenSecrets = true;
        if (row.avatar != stored.avatar && !row.avatar.isEmpty())
            d->obsoleteAvatars << row.avatar;
        return d->writeSettings(row.number, account.settings);
    });
}

bool KirvStore::removeAccount(const KirvAccountKey &key)
{
    return d->change([&] {
        Private::Row row;
        if (!d->findRow(key, &row)
            || !d->database.run(QStringLiteral("DELETE FROM account WHERE number = ?"), { row.number }))
            return false;
        d->hasOverwrittenSecrets = true;
        if (!row.avatar.isEmpty())
            d->obsoleteAvatars << row.avatar;
        return true;
    });
}

bool KirvStore::Private::findRow(const KirvAccountKey &key, Row *row)
{
    QSqlQuery *query =
        database.run(QStringLiteral("SELECT number, password, avatar FROM account WHERE id = ? AND protocol = ?"),
                     { key.id, key.protocol });
    if (!query)
        return false;
    const bool found = query->next();
    if (found)
        *row = { query->value(0), query->value(1).toString(), query->value(2).toString() };
    else
        database.fail(tr("The account \"%1\" (%2) is not in the profile.").arg(key.id, key.protocol));
    query->finish();
    return found;
}

bool KirvStore::Private::readSettings(const QVariant &number, QMap<QString, QString> *settings)
{
    QSqlQuery *query =
        database.run(QStringLiteral("SELECT field, value FROM account_setting WHERE account = ?"), { number });
    while (query && query->next())
        settings->insert(query->value(0).toString(), query->value(1).toString());
    return query;
}

/// Makes the stored settings of account \a number those of \a settings, touching only what differs.
bool KirvStore::Private::writeSettings(const QVariant &number, const QMap<QString, QString> &settings)
{
    QMap<QString, QString> stored;
    if (!readSettings(number, &stored))
        return false;
    for (auto setting = stored.constBegin(); setting != stored.constEnd(); ++setting) {
        if (settings.contains(setting.key()) && settings.value(setting.key()) == setting.value())
            continue;
        hasOverwrittenSecrets = true; // settings can be passwords, too
        if (!database.run(QStringLiteral("DELETE FROM account_setting WHERE account = ? AND field = ?"),
                          { number, setting.key() }))
            return false;
    }
    for (auto setting = settings.constBegin(); setting != settings.constEnd(); ++setting) {
        if (stored.contains(setting.key()) && stored.value(setting.key()) == setting.value())
            continue;
        if (!database.run(QStringLiteral("INSERT INTO account_setting (account, field, value) VALUES (?, ?, ?)"),
                          { number, setting.key(), setting.value() }))
            return false;
    }
    return true;
}

QString KirvStore::readSetting(const QString &key, const QString &fallback)
{
    d->database.clearError();
    const QVariant value = d->database.valueOf(QStringLiteral("SELECT value FROM setting WHERE key = ?"), { key });
    return value.isValid() ? value.toString() : fallback;
}

bool KirvStore::writeSetting(const QString &key, const QString &value)
{
    return d->change([&] {
        return d->database.run(QStringLiteral("INSERT INTO setting (key, value) VALUES (?, ?) "
                                              "ON CONFLICT (key) DO UPDATE SET value = excluded.value"),
                               { key, value })
            != nullptr;
    });
}

bool KirvStore::begin()
{
    d->database.clearError();
    return d->database.begin();
}

bool KirvStore::commit()
{
    const bool committed = d->database.commit();
    d->transactionEnded(committed);
    return committed;
}

void KirvStore::rollBack()
{
    d->database.rollBack();
    d->transactionEnded(false);
}
