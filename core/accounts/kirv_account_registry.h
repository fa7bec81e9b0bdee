// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNT_REGISTRY_H
#define KIRV_ACCOUNT_REGISTRY_H

#include "core/accounts/kirv_account_key.h"
#include "host/kirv_account_manager.h"

#include <QList>
#include <QObject>
#include <memory>

class KirvAccount;
class KirvProtocolBase;
class KirvStore;

/// The accounts of the person, over a store: what stands behind KirvAccountManager.
///
/// The store is written before an operation that changes something returns. One registry per process; it is
/// KirvAccountManagerPrivate::ampInstance while it lives.
class KirvAccountRegistry : public QObject, public KirvAccountManagerPrivate {
    Q_OBJECT

public:
    /// Reads all accounts of \a store, which is not owned and outlives the registry.
    explicit KirvAccountRegistry(KirvStore &store, QObject *parent = nullptr);
    ~KirvAccountRegistry() override;

    /// Every configured account in order, loaded or not. The registry owns them.
    QList<KirvAccount *> accounts() const;
    QList<KirvAccount *> accountsOf(const QString &protocol) const;
    /// The configured account, loaded or not; null when there is none. Constant time.
    KirvAccount *find(const KirvAccountKey &key) const;

    /// The protocol came: its accounts become loaded, and the enabled ones log in when \a logIn.
    void protocolLoaded(KirvProtocolBase *protocol, bool logIn = true);
    /// The protocol is about to go: its connections are closed and destroyed. The account objects stay.
    void protocolAboutToBeUnloaded(const QString &protocol);

    /// Makes the stored "main_account" the main account again, when it is still configured.
    void restoreMainAccount();

    /// Logs every account out in an orderly way; returns when all are off line or after \a milliseconds.
    void logOutAll(int milliseconds);

    /// Why the last createAccount() gave null or the last write failed, for the user; empty when all is well.
    QString lastError() const;
    /// Tells the user why the store refused what it was asked last.
    void reportStoreProblem();

Q_SIGNALS:
    void accountAdded(KirvAccount *account);
    /// The account is still complete, and disconnected from its server already.
    void accountAboutToBeRemoved(KirvAccount *account);
    void accountRemoved(const QString &id, const QString &protocol);
    /// Anything about it changed: alias, enabled, state of its connection, failure.
    void accountChanged(KirvAccount *account);
    /// An account wants to log in and has no password. Answer with KirvAccount::providePassword().
    void passwordNeeded(KirvAccount *account);
    /// The directory answered for the account; without fields when there is no data.
    void directoryAnswered(KirvAccount *account, const QList<KirvField> &fields);
    /// The server tells something that the user should read although nothing failed.
    void noticeReceived(KirvAccount *account, const QString &text);
    /// The store did not take a change, or an account could not be created: \a text says it to the user.
    void problemOccurred(const QString &text);

private:
    friend class KirvAccountManager;
    friend class KirvAccountConnection;
    friend class KirvAccount;
    void reportProblem();

    class Private;
    const std::unique_ptr<Private> d;
};

#endif
