// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNT_ROWS_H
#define KIRV_ACCOUNT_ROWS_H

#include "core/values/kirv_account_key.h"

#include <QHash>
#include <QList>
#include <QModelIndex>
#include <QObject>
#include <QSet>

class QTreeWidget;
class QTreeWidgetItem;

/// The columns of the page's list.
enum KirvAccountColumn { KirvAliasColumn, KirvProtocolColumn, KirvIdColumn };

/// Finds the rows of the page's list by their accounts, in constant time.
class KirvAccountRows : public QObject {
    Q_OBJECT

public:
    /// \a list is not owned and outlives this.
    explicit KirvAccountRows(QTreeWidget *list);

    /// The account that the texts of a row name.
    static KirvAccountKey keyOf(const QTreeWidgetItem *row);
    static KirvAccountKey keyOf(const QModelIndex &index);
    /// Null when the account has no row.
    QTreeWidgetItem *find(const KirvAccountKey &key) const { return byKey.value(key); }
    /// Makes \a row the current one and the only one selected, whatever keys are held down.
    void select(QTreeWidgetItem *row) const;
    /// The same with the first row where none is selected, so that there is something to begin with.
    void selectFirst() const;
    /// The account of the row that is selected, if that is one alone, as Edit and Remove of the page take it; of
    /// several selected rows the current one. The id is empty when none is selected: then there is no current row
    /// either.
    KirvAccountKey chosen() const;
    /// The rows of one protocol, by an exact comparison.
    QList<QTreeWidgetItem *> rowsOf(const QString &protocol) const;
    /// Those that the list shows now.
    QSet<const QTreeWidgetItem *> visible() const;

Q_SIGNALS:
    void inserted(const KirvAccountKey &key);
    /// It is still in the list.
    void aboutToBeRemoved(const KirvAccountKey &key);

private:
    void insert(const QModelIndex &parent, int first, int last);
    void remove(const QModelIndex &parent, int first, int last);

    QTreeWidget *list;
    QMultiHash<KirvAccountKey, QTreeWidgetItem *> byKey; ///< for a moment an account may have two rows
};

#endif
