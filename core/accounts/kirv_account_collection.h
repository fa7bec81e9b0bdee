// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNT_COLLECTION_H
#define KIRV_ACCOUNT_COLLECTION_H

#include "core/accounts/kirv_account.h"
#include "core/accounts/kirv_account_places.h"
#include "core/accounts/kirv_login_index.h"
#include "core/accounts/kirv_removed_account.h"
#include "core/accounts/kirv_secret_keeper.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <functional>

struct KirvAccountBatch;

/// Every configured account, over a store.
///
/// The store is written before an operation that changes something returns.
class KirvAccountCollection : public QObject {
    Q_OBJECT

public:
    /// Reads all accounts of \a store, which is not owned and outlives the collection.
    explicit KirvAccountCollection(KirvStore &store, QObject *parent = nullptr);
    ~KirvAccountCollection() override;

    /// Every configured account in order, loaded or not. The collection owns them.
    QList<KirvAccount *> accounts() const { return all; }
    QList<KirvAccount *> accountsOf(const QString &protocol) const;
    /// Their descriptions, in the same order; owned by the accounts.
    QList<KirvAccountInfo *> descriptionsOf(const QString &protocol) const;
    /// The configured account, loaded or not; null when there is none. Constant time.
    KirvAccount *find(const KirvAccountKey &key) const { return byKey.value(key); }

    /// Whether there is an account with the login of \a key, also with another spelling of it.
    bool hasLogin(const KirvAccountKey &key) const { return !idWithSameLogin(key).isEmpty(); }
    /// The id of that account; empty: there is none. Of an account whose protocol is not loaded only the same spelling
    /// is found.
    QString idWithSameLogin(const KirvAccountKey &key) const;
    /// The loaded protocol of that name; null while it is not loaded.
    KirvProtocolBase *protocol(const QString &name) const { return protocols.value(name); }

    /// Stores \a record as a new account of \a protocol, which must be loaded; settings that it lacks have their
    /// defaults. Null when the account exists, also with another spelling of the login, the protocol is not the loaded
    /// one, finds something wrong with the login, or the store refuses; then creationRefused() is emitted, and
    /// lastError() says why.
    KirvAccount *create(const KirvAccountRecord &record, KirvProtocol *protocol);
    /// Why no account \a key can be created, a sentence for the user: it exists, the protocol is not loaded or finds
    /// something wrong with the login. Empty when nothing but the store could refuse it.
    QString problemWithNew(const KirvAccountKey &key) const;
    /// Deletes the account and all its data. False when the store refuses; nothing has changed then.
    bool remove(KirvAccount *account);
    /// The same for several: all of them, or none when the store refuses.
    bool remove(const QList<KirvAccount *> &accounts);
    /// What restore() needs of \a account, which is not removed yet.
    KirvRemovedAccount copyOf(const KirvAccount *account);
    /// Makes a removed account again as it was, at its place in the order: between the accounts between which it stood,
    /// also when these were removed and restored meanwhile. Its protocol need not be loaded. Null when
    /// there is such an account, also with another spelling of the login, or the store refuses; nothing has changed
    /// then, and lastError() says why.
    KirvAccount *restore(const KirvRemovedAccount &removed);
    /// Makes all changes of \a batch as one change of the store. False when an account to be added exists, also with
    /// another spelling of the login, one to be replaced does not, or the store refuses; nothing has changed then, and
    /// lastError() says why. removalBegins() and removalRefused() are not emitted.
    bool apply(const KirvAccountBatch &batch);
    /// Puts \a account before \a next in the order, or at its end when \a next is null. False when the store refuses.
    bool place(KirvAccount *account, const KirvAccount *next);
    /// The same for several, which then follow each other as in \a accounts: all of them, or none when the store
    /// refuses. Nothing changes when \a next is among them.
    bool place(const QList<KirvAccount *> &accounts, const KirvAccount *next);
    /// Enables or disables several accounts: all of them, or none when the store refuses. enabledChanged() is emitted
    /// before this returns; what follows for each account, accountChanged() and the step of its connection, comes from
    /// the event loop, for a few accounts in each turn.
    bool setEnabled(const QList<KirvAccount *> &accounts, bool enabled);
    /// The same to enable accounts that were disabled in this run, with the presences that they had.
    bool enableAgain(const QList<KirvAccount *> &accounts);
    /// The account when it can be used: its protocol is loaded and has given it a connection. Null otherwise.
    KirvAccount *load(KirvAccount *account);

    /// \a mainAccount is called for the account that logs in before the others; its result may be null.
    void setMainAccount(std::function<KirvAccount *()> mainAccount);
    /// Where the accounts have their turns to log in.
    KirvLoginQueue &loginQueue() { return queue; }
    /// Who looks after their passwords and other secrets.
    KirvSecretKeeper &secrets() { return keeper; }
    const KirvSecretKeeper &secrets() const { return keeper; }

    /// The protocol was loaded: its accounts get connections, and the enabled ones log in when \a logIn. Accounts that
    /// turn out to have the same login stay; problemOccurred() names them.
    void protocolLoaded(KirvProtocolBase *protocol, bool logIn = true);
    /// The protocol is about to be unloaded: its connections are closed and destroyed. The accounts stay.
    void protocolAboutToBeUnloaded(const QString &protocol);

    /// The computer has another network than before, or was suspended: every account reacts to it, a few in each turn
    /// of the event loop and the main account first. Log-ins have their turns as always.
    void networkChanged();
    /// How many accounts react in one turn, to this and to setEnabled() of several.
    static const int accountsPerTurn = 20;

    /// Logs every account out in an orderly way; returns when all are off line or after \a milliseconds.
    void logOutAll(int milliseconds);

    /// Why the last create(), remove(), restore(), place() or setEnabled() failed or the last change of an account was
    /// refused, for the user; empty otherwise.
    QString lastError() const { return error; }

Q_SIGNALS:
    void accountAdded(KirvAccount *account);
    /// \a account is going to be removed, or the store refuses that: nothing has happened yet, and a slot changes
    /// nothing.
    void removalBegins(KirvAccount *account);
    /// The account is still complete, but not logged in any more as far as it is concerned.
    void accountAboutToBeRemoved(KirvAccount *account);
    void accountRemoved(const QString &id, const QString &protocol);
    /// The store did not remove \a account, which stays as it is; problemOccurred() says why.
    void removalRefused(KirvAccount *account);
    /// These accounts have other places in the order.
    void orderChanged(const QList<KirvAccountKey> &moved);
    /// These accounts were enabled, or disabled, in one change of the store; accountChanged() follows for each of them.
    /// A slot changes none of them.
    void enabledChanged(const QList<KirvAccountKey> &changed);
    /// \a account is going to be disabled, or the store refuses that: nothing has happened yet, and a slot changes
    /// nothing.
    void disablingBegins(KirvAccount *account);
    /// Anything about it changed, see KirvAccount::changed().
    void accountChanged(KirvAccount *account);
    void passwordNeeded(KirvAccount *account);
    void noticeReceived(KirvAccount *account, const QString &text);
    /// An account could not be created: \a reason is a sentence for the user, and nothing else says it.
    void creationRefused(const KirvAccountKey &key, const QString &reason);
    /// The store did not take a change: \a text is for the user.
    void problemOccurred(const QString &text);

private:
    /// The accounts of one protocol and their descriptions, both in order.
    struct ProtocolAccounts {
        QList<KirvAccount *> accounts;
        QList<KirvAccountInfo *> infos;
    };
    struct PlacedBatch;

    KirvAccount *append(const KirvAccountRecord &record);
    void removeStored(KirvAccount *account);
    void refuseRemoval(const QList<QPointer<KirvAccount>> &accounts);
    QString problemOf(const KirvAccountBatch &batch) const;
    QList<KirvAccountKey> orderWith(const QList<KirvRemovedAccount> &added) const;
    bool prepare(const KirvAccountBatch &batch, PlacedBatch *placed);
    bool placeReplacement(const KirvAccount &account, const QByteArray &picture, KirvAccountRecord *record,
                          PlacedBatch *placed);
    bool importPicture(const QByteArray &picture, KirvAccountRecord *record, PlacedBatch *placed);
    bool storeBatch(const KirvAccountBatch &batch, const PlacedBatch &placed);
    bool storeOrder(const PlacedBatch &placed);
    void finishBatch(const KirvAccountBatch &batch, const PlacedBatch &placed);
    void arrangeAll(const QList<KirvAccountKey> &order);
    QHash<KirvAccountKey, QPointer<KirvAccount>> leavingAccounts() const;
    void loadRestored(KirvAccount *account, const KirvPresence &presence, KirvAccount *twin);
    void arrange(const QList<KirvAccount *> &accounts, const KirvAccount *next);
    bool isArranged(const QList<KirvAccount *> &accounts, const KirvAccount *next) const;
    bool changeEnabled(const QList<KirvAccount *> &accounts, bool enabled, bool isAgain);
    void followNext();
    QList<KirvAccount *> mainFirst(QList<KirvAccount *> accounts) const;
    void takeOut(KirvAccount *account, const KirvAccountKey &key);
    QList<KirvAccount *> allWithRemoved() const;
    QString existenceProblem(const KirvAccountKey &key) const;
    KirvAccount *refuseCreation(const KirvAccountKey &key, const QString &reason);
    void requestDirectory(KirvAccountConnection *account, KirvProtocolBase::DirectoryOperation operation,
                          const QList<KirvField> &fields);
    static QString protocolIsNotLoaded(const KirvAccountKey &key);
    void reportDuplicateLogins(const QString &protocol);
    void refuse(const QString &reason);
    void notifyOfNetwork();

    KirvStore &store;
    KirvLoginQueue queue;
    KirvReconcilerQueue reconcilers;
    KirvSecretKeeper keeper;
    std::function<KirvAccount *()> mainAccount;
    QList<KirvAccount *> all;
    KirvAccountPlaces places; ///< in the order of all
    QHash<KirvAccountKey, KirvAccount *> byKey;
    QHash<QString, ProtocolAccounts> byProtocol;
    KirvLoginIndex logins;
    QHash<QString, QPointer<KirvProtocolBase>> protocols;
    QString error;
    QList<QPointer<KirvAccount>> networkChangePending; ///< of the change of the network
    QTimer nextTurn; ///< for them
    QList<QPointer<KirvAccount>> following; ///< a change of several of them
    QTimer nextFollowing;
};

#endif
