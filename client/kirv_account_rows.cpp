// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_account_rows.h"

#include <QItemSelectionModel>
#include <QTreeWidget>

KirvAccountRows::KirvAccountRows(QTreeWidget *list)
    : QObject(list)
    , list(list)
{
    // The model's signals come also while those of the list are blocked.
    connect(list->model(), &QAbstractItemModel::rowsInserted, this, &KirvAccountRows::insert);
    connect(list->model(), &QAbstractItemModel::rowsAboutToBeRemoved, this, &KirvAccountRows::remove);
    connect(list->model(), &QAbstractItemModel::modelAboutToBeReset, this, [this] { byKey.clear(); });
    // The buttons of the page follow the current row and work on the selected one.
    connect(list, &QTreeWidget::itemSelectionChanged, this, [list] {
        if (!list->selectionModel()->hasSelection())
            list->selectionModel()->clearCurrentIndex();
    });
    insert(QModelIndex(), 0, list->topLevelItemCount() - 1);
}

KirvAccountKey KirvAccountRows::keyOf(const QTreeWidgetItem *row)
{
    return { row->text(KirvIdColumn), row->text(KirvProtocolColumn) };
}

KirvAccountKey KirvAccountRows::keyOf(const QModelIndex &index)
{
    return { index.sibling(index.row(), KirvIdColumn).data().toString(),
             index.sibling(index.row(), KirvProtocolColumn).data().toString() };
}

void KirvAccountRows::select(QTreeWidgetItem *row) const
{
    list->setCurrentItem(row, KirvAliasColumn, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void KirvAccountRows::selectFirst() const
{
    if (list->selectedItems().isEmpty() && list->topLevelItemCount() > 0)
        select(list->topLevelItem(0));
}

KirvAccountKey KirvAccountRows::chosen() const
{
    const QModelIndexList selected = list->selectionModel()->selectedRows();
    if (selected.isEmpty())
        return {};
    const QModelIndex index = selected.size() == 1 ? selected.first() : list->currentIndex();
    return index.isValid() ? keyOf(index) : KirvAccountKey();
}

QList<QTreeWidgetItem *> KirvAccountRows::rowsOf(const QString &protocol) const
{
    // Qt compares case-insensitively by default; names of protocols may differ in case only.
    return list->findItems(protocol, Qt::MatchExactly | Qt::MatchCaseSensitive, KirvProtocolColumn);
}

QSet<const QTreeWidgetItem *> KirvAccountRows::visible() const
{
    QSet<const QTreeWidgetItem *> visible;
    const QRect viewport = list->viewport()->rect();
    const QTreeWidgetItem *row = list->itemAt(viewport.width() / 2, 0);
    while (row && list->visualItemRect(row).top() <= viewport.bottom()) {
        visible << row;
        row = list->itemBelow(row);
    }
    return visible;
}

void KirvAccountRows::insert(const QModelIndex &parent, int first, int last)
{
    for (int i = first; i <= last && !parent.isValid(); ++i) {
        QTreeWidgetItem *row = list->topLevelItem(i);
        const KirvAccountKey key = keyOf(row);
        byKey.insert(key, row);
        emit inserted(key);
    }
}

void KirvAccountRows::remove(const QModelIndex &parent, int first, int last)
{
    for (int i = first; i <= last && !parent.isValid(); ++i) {
        QTreeWidgetItem *row = list->topLevelItem(i);
        const KirvAccountKey key = keyOf(row);
        emit aboutToBeRemoved(key);
        byKey.remove(key, row);
    }
}
