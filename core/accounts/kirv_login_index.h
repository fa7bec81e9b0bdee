// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_LOGIN_INDEX_H
#define KIRV_LOGIN_INDEX_H

#include "core/values/kirv_account_key.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

class KirvProtocolBase;

/// Finds accounts by what their protocols make of their logins: several spellings can be one login.
///
/// It is made in memory when a protocol is loaded and stores nothing. A look-up takes constant time, whatever the
/// number of accounts; each login is normalised once.
class KirvLoginIndex {
public:
    /// \a protocol is not owned; unload() it before it is destroyed. \a ids are those of its accounts, in their order.
    void load(const KirvProtocolBase *protocol, const QString &name, const QStringList &ids);
    void unload(const QString &name);
    bool isLoaded(const QString &name) const { return loaded.contains(name); }

    /// An account was added or removed. Nothing happens while its protocol is not loaded.
    void insert(const KirvAccountKey &key);
    void remove(const KirvAccountKey &key);

    /// The id of the first account with the same login as \a key, also in another spelling. Null when there is none,
    /// and while the protocol is not loaded.
    QString find(const KirvAccountKey &key) const;
    /// The accounts of the protocol \a name that have the same login as another one, each group in the accounts' order.
    QList<QStringList> duplicateLogins(const QString &name) const;

private:
    struct Logins {
        const KirvProtocolBase *protocol = nullptr;
        QHash<QString, QStringList> ids; ///< by the normalised login
        QStringList repeated; ///< the normalised logins that had several ids when the protocol was loaded, in order
    };

    QHash<QString, Logins> loaded;
};

#endif
