// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNT_REGISTRY_P_H
#define KIRV_ACCOUNT_REGISTRY_P_H

#include "core/accounts/kirv_account_p.h"

#include <QHash>

/// The look-ups of the registry and the operations of the contract.
class KirvAccountRegistry::Private {
public:
    /// The accounts of one protocol and their descriptions, both in order.
    struct ProtocolAccounts {
        QList<KirvAccount *> accounts;
        QList<KirvAccountInfo *> infos;
    };

    Private(KirvAccountRegistry *registry, KirvStore &store)
        : registry(registry)
        , store(store)
    {
    }

    KirvAccount *append(const KirvStore::Account &record);
    void takeOut(KirvAccount *account);
    QList<QPointer<KirvAccount>> guardedAccountsOf(const QString &protocol) const;

    KirvAccount *create(const KirvStore::Account &record, KirvProtocol *protocol);
    void setEnabled(KirvAccount *account, bool enabled);
    void remove(KirvAccount *account);
    /// The account when it can be used: its protocol is there and has given it a connection.
    KirvAccount *loaded(KirvAccount *account);

    /// Keeps the store's reason as the error unless it has \a accepted; gives \a accepted.
    bool taken(bool accepted);
    void refuse(const QString &reason);

    KirvAccountRegistry *const registry;
    KirvStore &store;
    QList<KirvAccount *> accounts;
    QHash<KirvAccountKey, KirvAccount *> byKey;
    QHash<QString, ProtocolAccounts> byProtocol;
    QHash<QString, QPointer<KirvProtocolBase>> protocols;
    QList<QPointer<KirvAccount>> leavingAccounts;
    QString error;
};

#endif
