// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ROW_SALVAGE_H
#define KIRV_ROW_SALVAGE_H

#include "core/store/kirv_account_record.h"
#include "core/store/kirv_database.h"
#include "core/store/kirv_profile_rescue.h"
#include "core/store/kirv_secret_item_table.h"

#include <QMap>
#include <QPair>
#include <QSet>
#include <QStringList>
#include <QVariant>

/// Reads what is still readable of a damaged database of any version, row by row, into a new one. Private to the store.
///
/// Columns are known by their places: a damaged schema may have them under other names.
class KirvRowSalvage {
public:
    /// \a target is open, has no rows, and is not owned.
    explicit KirvRowSalvage(KirvDatabase &target)
        : target(target)
    {
    }

    /// False when the table of the accounts cannot be read at all, or the target cannot be written; its error says
    /// which.
    bool readFrom(const KirvProfilePaths &paths);
    /// Adds the items of the table "secret_item" that the target lacks, as far as they are readable, in \a stage and of
    /// no account: the database that names them is about to be replaced.
    void takeItemsOf(const KirvProfilePaths &paths, KirvStoredItem::Stage stage);
    KirvProfileRescue::Recovered found() const { return counts; }

private:
    /// The values of a row by the names that its columns should have.
    using Row = QMap<QString, QVariant>;
    using Rows = QMap<QString, Row>;

    bool open(const KirvProfilePaths &paths);
    bool chooseVersion();
    void readAccounts();
    void readValues(const QString &table);
    void readItems();
    void readItem(const Row &row, bool isObsolete);
    bool isValueBefore(const Row &row) const;
    bool writeValuesBefore();
    bool writeUnusedItems(KirvStoredItem::Stage stage);
    bool writeProfileId();
    bool hasTable(const char *name);
    bool write();

    QStringList columnsOf(const QString &table);
    Rows rowsOf(const QString &table, int keySize);
    bool collect(const QString &sql, const QVariantList &values, const QStringList &columns, int keySize, Rows *rows);
    void probeAccounts(const QStringList &columns, Rows *rows);

    KirvDatabase &target;
    KirvDatabase source;
    int version = 0;
    QMap<qint64, KirvAccountRecord> accounts; ///< by their numbers
    QMap<qint64, qint64> positions;
    QList<Row> unusedItems; ///< of no account
    QMap<QPair<qint64, QString>, Row> valuesBefore; ///< by account and field: Kept items of secrets with a New one
    QSet<QString> newItems; ///< their keys
    QString itemKey; ///< of any item
    KirvProfileRescue::Recovered counts;
};

#endif
