// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_STORE_H
#define KIRV_STORE_H

#include "core/store/kirv_account_record.h"
#include "core/store/kirv_profile_state.h"
#include "core/store/kirv_secret_item_table.h"

#include <QList>
#include <QString>
#include <memory>

/// The profile on disk: accounts and settings in one SQLite database, avatars in a folder beside it, copies of the
/// database without secrets in another.
///
/// What the store makes is readable by its owner only: the folder 0700, the files 0600. A folder that was there
/// keeps its permissions. Nothing is written before the profile is known to be ours and whole, nothing is removed that
/// the store has not written, and no link is followed inside the folder. Every write is committed, in WAL mode with
/// full synchronisation, before the operation returns; between begin() and commit() the outermost commit does.
///
/// A secret, which is a password or a secret setting, stands in the database and its log only, or not in the profile at
/// all but in a store of secrets, and the database names it only. After the change that overwrites or removes it, and
/// after every open(), no byte of it is in the files; a move of many, see keepMovedItems(), wipes once. (A database
/// that was damaged is kept aside as it was, see KirvProfileRescue.) Where a setting becomes secret the same holds for
/// its former values, and the copies, which have it, are replaced by a new one. No operation throws; false or an empty
/// result with lastError() says that something failed.
class KirvStore {
public:
    KirvStore();
    ~KirvStore();

    /// Opens, creates or upgrades the profile in \a folder and locks it against other instances. False with
    /// lastError() when that is not possible; what is stored stays untouched then.
    bool open(const QString &folder);
    /// Keeps a copy of the database when it has changed since the last one.
    void close();
    bool isOpen() const;
    QString folder() const;
    QString avatarFolder() const;
    /// Copies the image at \a path into the avatar folder and gives the name of the copy, for
    /// KirvAccountRecord::avatar. Empty when it is no image, is too large or cannot be read.
    QString importAvatar(const QString &path);
    /// Takes back an imported avatar that no account has got.
    void discardAvatar(const QString &name);
    /// A sentence for the user; empty when the last operation worked.
    QString lastError() const;
    /// What the last open() has found the folder to be; Damaged: see KirvProfileRescue.
    KirvProfileState::Kind state() const;
    /// Whether another running instance holds the profile (after open() gave false).
    bool isLockedByAnother() const;
    /// Why the last copy could not be kept, a sentence for the user; empty otherwise. Nothing else depends on copies.
    QString copyError() const;

    QList<KirvAccountRecord> readAccounts();
    bool insertAccount(const KirvAccountRecord &account); ///< appended to the order
    bool updateAccount(const KirvAccountRecord &account);
    bool removeAccount(const KirvAccountKey &key); ///< with its settings; the avatar file goes too
    /// Enables or disables all of them, or none when one is refused.
    bool enableAccounts(const QList<KirvAccountKey> &keys, bool enabled);
    /// Puts the account before \a next in the order, or at the end when \a next is empty.
    bool placeAccount(const KirvAccountKey &key, const KirvAccountKey &next) { return placeAccounts({ key }, next); }
    /// The same for several, which then follow each other in the order of \a keys; \a next is none of them. All of them
    /// are placed, or none when one is refused.
    bool placeAccounts(const QList<KirvAccountKey> &keys, const KirvAccountKey &next);
    /// Puts all accounts into the order of \a keys, which name each of them.
    bool arrangeAccounts(const QList<KirvAccountKey> &keys);
    /// Which of the settings \a fields of \a protocol are secret, for the accounts that are stored: profiles of early
    /// versions do not say so, and all their settings count as secret. Writes nothing when that is known.
    bool classifySettings(const QString &protocol, const QSet<QString> &fields, const QSet<QString> &secretFields);

    // What stands in a store of secrets, see KirvSecretItemTable.

    QList<KirvStoredItem> unsettledItems();
    KirvSecretItem secretItem(const KirvAccountKey &account, const QString &field, KirvStoredItem::Stage stage);
    bool addSecretItems(const QList<KirvStoredItem> &items);
    /// Gives the keys of those that were still New; what the profile held of them is gone from its files then. Empty
    /// with lastError() when the change was refused.
    QStringList keepSecretItems(const QStringList &keys);
    /// The same for a part of a move of many, in one cheap commit. What the profile held is out of its tables then, and
    /// out of its files after wipeTraces(), endMove(), close() or the next open(). A power failure may undo it: the
    /// items are New again then, and what the profile holds counts.
    QStringList keepMovedItems(const QStringList &keys);
    /// How many secrets keepMovedItems() has moved since the last endMove(), in whatever run.
    int movedCount();
    /// Wipes what keepMovedItems() has left in the files. Does nothing when that was done.
    bool wipeTraces();
    /// The move is complete: wipes what it has left, and movedCount() begins anew.
    bool endMove();
    bool makeItemsObsolete(const QStringList &keys);
    bool forgetSecretItems(const QStringList &keys);

    /// Client-wide settings; \a fallback when the key is not set.
    QString readSetting(const QString &key, const QString &fallback = QString());
    bool writeSetting(const QString &key, const QString &value);

    /// A change that fails between begin() and commit() undoes all of them: the outermost commit() then gives
    /// false. rollBack() ends one level like commit() does, and makes the outermost one undo everything.
    bool begin();
    bool commit();
    void rollBack();
    /// How many transactions were committed since open(); for tests and measurements.
    int commitCount() const;

    /// Whether the open profile is still in its folder. When it was deleted, moved or replaced, every change fails.
    bool isInPlace() const;
    /// Writes everything that is stored, with secrets and avatars, into a new profile in \a folder, which must be
    /// missing or empty. Works also when the profile's own folder is gone; this store stays as it is.
    bool saveTo(const QString &folder);

private:
    Q_DISABLE_COPY(KirvStore)
    class Private;
    const std::unique_ptr<Private> d;
};

#endif
