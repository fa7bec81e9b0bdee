// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_SECRET_ITEM_TABLE_H
#define KIRV_SECRET_ITEM_TABLE_H

#include "core/store/kirv_account_record.h"

#include <QHash>
#include <QLatin1String>
#include <QList>
#include <QStringList>
#include <QVariant>

class KirvDatabase;

/// The client-wide setting with the id that all items of the profile bear.
const QLatin1String kirvProfileIdSetting("profile/id");
/// Client-wide settings of a move that is not complete: how many secrets were moved, and whether their traces are left.
const QLatin1String kirvMovedSetting("secrets/moved");
const QLatin1String kirvTracesSetting("secrets/traces");

/// One secret that stands, or may stand, in a store of secrets. A value type.
struct KirvStoredItem {
    enum Stage {
        New, ///< of a change that is stored: it is to be written, or was written and not read back yet
        Kept, ///< read back
        Obsolete ///< to be removed
    };

    KirvSecretItem item;
    KirvAccountKey account; ///< empty when no account has it any more
    QString field; ///< empty: the password
    Stage stage = New;
};

/// The table of what stands in a store of secrets: every item is in it before it is written there, and until it is
/// known to be removed there. Private to the store.
///
/// Of each secret of an account there is at most one New and one Kept item. The Kept one of a secret that has a New
/// one, too, is the value before, and counts until the New one is read back. A value that the profile holds counts more
/// than both: it is being moved then. Changes are made inside a transaction of the caller's.
class KirvSecretItemTable {
public:
    /// \a database is not owned.
    explicit KirvSecretItemTable(KirvDatabase &database)
        : database(database)
    {
    }

    /// Gives \a accounts, which \a indices find by their numbers, their items.
    bool readInto(QList<KirvAccountRecord> &accounts, const QHash<qint64, int> &indices);
    /// Makes what the table has of account \a number the items of \a account, which is in its stored form. One that is
    /// obsolete is taken back.
    bool write(const QVariant &number, const KirvAccountRecord &account);
    /// The account \a number goes: its items become obsolete.
    bool release(const QVariant &number);

    /// Those that are not Kept.
    QList<KirvStoredItem> unsettled();
    /// The item in \a stage of a secret; its key is empty when there is none.
    KirvSecretItem find(const KirvAccountKey &account, const QString &field, KirvStoredItem::Stage stage);
    /// Adds New items beside values that the profile holds.
    bool add(const QList<KirvStoredItem> &items);
    /// Makes the New items of these keys the Kept ones; what they replace becomes obsolete, and what the profile holds
    /// of them is removed: \a hasRemovedSecrets is set then. \a kept gets the keys of those that were still New.
    bool keep(const QStringList &keys, QStringList *kept, bool *hasRemovedSecrets);
    /// Counts so many that keep() has moved from the profile, and marks that traces of them are left in its files.
    bool noteMoved(int secrets);
    /// The count.
    int movedCount();
    bool forgetMoved();
    /// The mark.
    bool hasTraces();
    bool forgetTraces();
    bool makeObsolete(const QStringList &keys);
    /// Forgets obsolete items, which are removed from their store.
    bool forget(const QStringList &keys);

private:
    KirvDatabase &database;
};

#endif
