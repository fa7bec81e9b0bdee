// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNT_MANAGER_H
#define KIRV_ACCOUNT_MANAGER_H

#include "host/kirv_field.h"

#include <QList>
#include <QString>

class KirvAccountConnection;
class KirvAccountInfo;
class KirvPresence;
class KirvProtocol;

/// The process-wide account manager. Call it from the GUI thread only.
///
/// An account is named by its account id first and the name of its protocol second, everywhere.
class KirvAccountManager {
public:
    /// The account manager of this process; not owned by the caller.
    static KirvAccountManager *getInstance();

    /// All configured accounts of \a protocol, in the manager's order. The manager owns them; they
    /// stay valid until accounts are next created, changed or removed.
    QList<KirvAccountInfo *> getAccountsInfo(const QString &protocol) const;
    /// False for an account that is not configured.
    bool accountEnabled(const QString &id, const QString &protocol) const;
    /// The loaded account, null when it is not loaded.
    KirvAccountConnection *getAccount(const QString &id, const QString &protocol);
    /// The account, loaded when needed; null when no account has that key.
    KirvAccountConnection *loadAccount(const QString &id, const QString &protocol);
    /// The current main account, null when there is none.
    KirvAccountConnection *getMainAccount() const;
    /// Creates, stores and loads an account of \a protocol; null when the protocol already has an
    /// account with that login or the store refuses. \a id is the login, \a alias the name shown.
    KirvAccountConnection *createAccount(const QString &id, const QString &alias, const QString &password,
                                         bool rememberPassword, KirvProtocol *protocol, const KirvPresence &presence,
                                         const QList<KirvField> &settings);
    /// Enables the account: it can log in from now on. Also called for one that is enabled already.
    void enableAccount(const QString &id, const QString &protocol);
    /// Disables the account, which stays configured, and logs it out: from here on it counts as not logged in.
    void disableAccount(const QString &id, const QString &protocol);
    /// Deletes the account, its connection object and all data that belongs to it.
    void removeAccount(const QString &id, const QString &protocol);

    /// Assigns the main account and nothing else: nothing is stored or emitted. Null is no
    /// main account.
    void setMainAccount(KirvAccountConnection *account);
};

/// The part of the account manager's private state that others rely on.
class KirvAccountManagerPrivate {
public:
    KirvAccountManagerPrivate()
        : mainAccount(nullptr)
    {
    }

    /// Not owned by this pointer; null before the client core is up and after it has gone.
    static KirvAccountManagerPrivate *ampInstance;

    /// What KirvAccountManager::getMainAccount() returns. Not owned; null when there is none.
    KirvAccountConnection *mainAccount;
};

#endif
