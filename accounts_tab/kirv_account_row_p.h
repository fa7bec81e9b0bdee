// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNT_ROW_P_H
#define KIRV_ACCOUNT_ROW_P_H

#include <QIcon>
#include <QString>
#include <QStringList>
#include <QTreeWidgetItem>
#include <QVariant>

/// The rows of the account list: what stands in which column. An account is read back from the texts of its row.
namespace KirvAccountRow {

enum Column {
    AliasColumn, // with the check box that enables the account
    ProtocolColumn, // with the protocol's icon
    IdColumn, // hidden
    UnusedColumn, // hidden and never filled
    ColumnCount
};

/// The row at \a index among the children of \a root, for a loop over all of them. Sorted rows lie anywhere in memory,
/// so the processor begins to fetch one that the loop comes to soon.
inline QTreeWidgetItem *rowInLoop(const QTreeWidgetItem *root, int index)
{
#ifdef __GNUC__
    const int ahead = 8; // as measured
    __builtin_prefetch(root->child(index + ahead)); // null behind the last row, which has no effect
#endif
    return root->child(index);
}

inline QString aliasOf(const QTreeWidgetItem *row)
{
    return row->data(AliasColumn, Qt::DisplayRole).toString();
}

inline QString protocolNameOf(const QTreeWidgetItem *row)
{
    return row->data(ProtocolColumn, Qt::DisplayRole).toString();
}

inline QString accountIdOf(const QTreeWidgetItem *row)
{
    return row->data(IdColumn, Qt::DisplayRole).toString();
}

/// A row that belongs to no list yet; the caller owns it.
inline QTreeWidgetItem *createRow(const QString &alias, const QString &protocolName, const QString &accountId,
                                  const QIcon &icon, bool enabled)
{
    QTreeWidgetItem *row = new QTreeWidgetItem(QStringList() << alias << protocolName << accountId);
    row->setIcon(ProtocolColumn, icon);
    row->setCheckState(AliasColumn, enabled ? Qt::Checked : Qt::Unchecked);
    return row;
}

}

#endif
