// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_STORE_H
#define KIRV_STORE_H

#include "core/store/kirv_account_record.h"

#include <QList>
#include <QString>
#include <memory>

/// The profile on disk: accounts and settings in one SQLite database, avatars in a folder beside it.
///
/// The folder is readable by its owner only (0700, the files 0600). Every write is committed, in WAL mode with
/// full synchronisation, before the operation returns; between begin() and commit() the outermost commit does.
/// A password that is overwritten or removed leaves no trace in the files.
/// No operation throws; false or an empty result with lastError() says that something failed.
class KirvStore {
public:
    KirvStore();
    ~KirvStore();

    /// Opens, creates or upgrades the profile in \a folder and locks it against other instances. False with
    /// lastError() when that is not possible; what is stored stays untouched then.
    bool open(const QString &folder);
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
    /// Whether another running instance holds the profile (after open() gave false).
    bool isLockedByAnother() const;

    QList<KirvAccountRecord> readAccounts();
    bool insertAccount(const KirvAccountRecord &account); ///< appended to the order
    bool updateAccount(const KirvAccountRecord &account);
    bool removeAccount(const KirvAccountKey &key); ///< with its settings; the avatar file goes too

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

private:
    Q_DISABLE_COPY(KirvStore)
    class Private;
    const std::unique_ptr<Private> d;
};

#endif
