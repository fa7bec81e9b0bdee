// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_account_rows.h"

#include "client/kirv_plain_text.h"

#include <QCoreApplication>
#include <QItemSelectionModel>
#include <QPalette>
#include <QSignalBlocker>
#include <QTreeWidget>

namespace {
enum Column { AliasColumn, ProtocolColumn, IdColumn };
}

KirvAccountRows::KirvAccountRows(QWidget *page)
    : list(page->findChild<QTreeWidget *>(QStringLiteral("Accounts_List")))
{
}

bool KirvAccountRows::contains(const KirvAccountKey &key) const
{
    return find(key);
}

void KirvAccountRows::remove(const KirvAccountKey &key)
{
    if (QTreeWidgetItem *row = find(key))
        takeAway(row);
}

void KirvAccountRows::removeAll(const QString &protocol)
{
    const QList<QTreeWidgetItem *> rows = rowsOf(protocol);
    for (QTreeWidgetItem *row : rows)
        takeAway(row);
}

void KirvAccountRows::markUnloaded(const QString &protocol)
{
    if (!list)
        return;
    const QSignalBlocker noItemChanged(list);
    const QBrush grey = list->palette().brush(QPalette::Disabled, QPalette::Text);
    const QString reason = QCoreApplication::translate(
        "KirvAccountRows", "The plug-in of the protocol %1 is not loaded. Load it on the Plug-ins page.");
    const QList<QTreeWidgetItem *> rows = rowsOf(protocol);
    for (QTreeWidgetItem *row : rows) {
        for (int column : { AliasColumn, ProtocolColumn }) {
            row->setForeground(column, grey);
            row->setToolTip(column, kirvPlainToolTip(reason.arg(protocol)));
        }
    }
}

KirvAccountKey KirvAccountRows::current() const
{
    const QTreeWidgetItem *row = list ? list->currentItem() : nullptr;
    return row ? keyOf(row) : KirvAccountKey();
}

void KirvAccountRows::setCurrent(const KirvAccountKey &key)
{
    if (QTreeWidgetItem *row = find(key))
        list->setCurrentItem(row);
}

KirvAccountKey KirvAccountRows::keyOf(const QTreeWidgetItem *row)
{
    return { row->text(IdColumn), row->text(ProtocolColumn) };
}

QTreeWidgetItem *KirvAccountRows::find(const KirvAccountKey &key) const
{
    for (int i = 0; list && i < list->topLevelItemCount(); ++i) {
        QTreeWidgetItem *row = list->topLevelItem(i);
        if (keyOf(row) == key)
            return row;
    }
    return nullptr;
}

QList<QTreeWidgetItem *> KirvAccountRows::rowsOf(const QString &protocol) const
{
    // Qt compares case-insensitively unless told otherwise; names of protocols may differ in case only.
    return list ? list->findItems(protocol, Qt::MatchExactly | Qt::MatchCaseSensitive, ProtocolColumn)
                : QList<QTreeWidgetItem *>();
}

void KirvAccountRows::takeAway(QTreeWidgetItem *row)
{
    // Left alone, the view would make and select a neighbour as the current row.
    const bool wasChosen = row->isSelected() || row == list->currentItem();
    if (wasChosen) {
        list->setCurrentItem(nullptr, AliasColumn, QItemSelectionModel::NoUpdate);
        list->clearSelection();
    }
    delete row;
    // A current row need not have been selected: the page is told in any case that there is none now.
    if (wasChosen)
        Q_EMIT list->itemSelectionChanged();
}
