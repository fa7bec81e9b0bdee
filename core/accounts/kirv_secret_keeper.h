// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_SECRET_KEEPER_H
#define KIRV_SECRET_KEEPER_H

#include "core/store/kirv_secret_item_table.h"
#include "core/store/kirv_secret_store.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QStringList>
#include <memory>
#include <vector>

class KirvAccount;
class KirvStore;

/// Brings the secrets of all accounts to where they belong and from there: the one place that knows whether that is the
/// keyring or the profile.
///
/// A change commits the item of a secret first, under a key that was never used; then the secret is written to the
/// keyring and read back, and what it replaces is removed. What was interrupted goes on at the next start. Secrets are
/// read from the event loop, one at a time; when the user refuses, or the keyring does not respond, nothing more is
/// requested of it until its state changes, the user requests it or stores another secret.
class KirvSecretKeeper : public QObject {
    Q_OBJECT

public:
    /// Why secrets that are awaited are not there.
    enum Obstacle {
        None, ///< they are being read
        Locked, ///< the keyring asks the user to unlock it
        Refused,
        Silent,
        Unavailable,
        Failed
    };
    Q_ENUM(Obstacle)

    /// \a store is not owned and outlives this. Without a keyring secrets are kept in the profile.
    explicit KirvSecretKeeper(KirvStore &store, QObject *parent = nullptr);

    /// Secrets go to \a keyring while it is there. Not owned; null: there is none.
    void setKeyring(KirvSecretStore *keyring);
    KirvSecretStore *keyring() const { return secretStore; }
    /// Whether a secret that is stored now goes to the keyring.
    bool usesKeyring() const;
    Obstacle obstacle() const;
    /// Moves what the profile holds to the keyring, when it is unlocked; also later, when that was not possible.
    void startMoving();
    /// Whether secrets are in the profile that belong to the keyring and will be moved there.
    bool hasMovableSecrets() const;
    /// Reads the secrets that accounts await, also those of disabled accounts, and moves what is movable: the user
    /// requests it. A keyring that is locked asks the user to unlock it.
    void unlock();

    // For the accounts.

    void add(KirvAccount *account);
    void remove(KirvAccount *account);
    /// Gives each secret of \a record that differs from \a before, or whose field is among \a changed, its place.
    void place(KirvAccountRecord &record, const KirvAccountRecord &before, const QSet<QString> &changed = {});
    /// Reads the secrets of \a account once more.
    void read(KirvAccount *account);
    /// The same when it needs no question to the user, as before a log-in that nobody has requested.
    void readUnlocked(KirvAccount *account);
    /// What is stored has changed.
    void scheduleLoad();
    /// Whether the profile has refused a secret for which there is no keyring; it is tried again by scheduleLoad().
    bool hasUnstoredSecret() const { return isUnstored; }
    /// Leaves what stands under \a keys in the keyring as long as the result, or a copy of it, exists: an account that
    /// was removed may come back. Null when there are none.
    std::shared_ptr<const QStringList> hold(const QStringList &keys);

Q_SIGNALS:
    /// The state of the keyring, the obstacle, or what waits for the keyring to be unlocked may have changed.
    void changed();
    /// So many secrets were moved from the profile to the keyring, with those of earlier runs when it was interrupted.
    void moved(int secrets);

private:
    struct Secret {
        KirvAccountKey account;
        QString field;
    };

    bool canBeginOperation() const;
    QString profileId();
    KirvSecretItem newItem(const KirvAccountKey &account);
    void onStateChanged();
    bool belongsInProfile() const;
    void keepInProfile();
    void keepOneInProfile(const KirvStoredItem &row);
    void scheduleNext();
    void next();
    void pause(const KirvSecretStore::Reply &reply);
    void notifyAccounts();
    void notifyNext();

    bool readNext();
    void scheduleGivingUp();
    void giveUpNext();
    void onRead(const Secret &secret, const KirvSecretItem &item, const KirvSecretStore::Reply &reply);
    void readLater(const Secret &secret, KirvAccount *account, const KirvSecretStore::Reply &reply);
    void onMissing(const Secret &secret, const KirvSecretItem &item, KirvAccount *account);
    void noLongerNew(const QString &key);
    void giveUpInterrupted();
    bool writeNext();
    void onWritten(const KirvStoredItem &row, const KirvSecretStore::Reply &reply);
    void reportWrites();
    bool report(const KirvStoredItem &row, const QString &reason);
    void writeAndReadBack(const KirvSecretItem &item, const QString &secret, const KirvSecretStore::Callback &callback);
    bool removeNext();
    void collectMovable();
    void examineNext();
    void beginBatch();
    bool moveNext();
    void keepVerified(bool isOver);
    void endMove();
    void load();
    void loadChanges();
    QSet<QString> keysInUse();

    KirvStore &store;
    QPointer<KirvSecretStore> secretStore;
    QHash<KirvAccountKey, KirvAccount *> accounts;
    QString id; ///< of the profile

    QList<Secret> reads;
    QList<Secret> givenUp; ///< reads that end with what the accounts know
    QList<KirvStoredItem> writes, removals;
    QSet<QString> newKeys; ///< of items that are not read back yet
    std::vector<std::weak_ptr<const QStringList>> held;
    QSet<QString> reported; ///< keys of those of which the user knows that they could not be written
    QList<KirvAccountKey> toExamine; ///< whether the profile holds secrets of them
    QList<Secret> movable; ///< what it holds
    QList<KirvStoredItem> batch; ///< of the move: what is still in the profile
    QHash<QString, QString> batchValues; ///< by key
    QStringList verified; ///< keys of the first ones of the batch, which are read back
    int movedCount = 0; ///< in all runs of the move that is not complete
    bool mayMove = false;
    bool isBusy = false;
    bool isScheduled = false;
    bool isGivingUpScheduled = false;
    bool isUnlocking = false; ///< what disabled accounts await is read, too
    bool isMoveRequested = false; ///< also while the keyring is locked
    bool hasChanged = false; ///< what is stored, since load()
    bool hasReplaced = false; ///< items of the store, since load(): they are not among the removals yet
    bool isPaused = false;
    bool isUnstored = false;
    bool wasPresent = false; ///< there was a keyring in this run
    Obstacle notifiedObstacle = None; ///< that the accounts know of
    QList<KirvAccountKey> toNotify;
    KirvSecretStore::Outcome lastOutcome = KirvSecretStore::Done;
};

#endif
