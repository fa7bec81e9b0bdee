// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_account_check_list.h"

#include "client/kirv_name_delegate.h"
#include "client/kirv_plain_text.h"
#include "core/values/kirv_text_limit.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace {

const int nameColumn = 0;
const int protocolColumn = 1;
const int firstFurtherColumn = 2;
const int idRole = Qt::UserRole;
const int fewestLines = 4;
const int widestColumn = 26; // in average characters; the name has what is left

/// Where the column is too narrow.
void setToolTipOf(QTreeWidgetItem *item, int column)
{
    item->setToolTip(column, kirvPlainToolTip(kirvPlainName(kirvShortName(item->text(column)))));
}

} // namespace

KirvAccountCheckList::KirvAccountCheckList(const QString &name, const QStringList &furtherColumns, QWidget *parent)
    : QWidget(parent)
    , allBox(new QCheckBox(tr("&All accounts"), this))
    , list(new QTreeWidget(this))
{
    setObjectName(name + QStringLiteral("_Accounts"));
    allBox->setObjectName(name + QStringLiteral("_All"));
    allBox->setTristate(true);
    connect(allBox, &QCheckBox::clicked, this, &KirvAccountCheckList::toggleAll);

    list->setObjectName(name + QStringLiteral("_List"));
    list->setAccessibleName(tr("Accounts"));
    list->setHeaderLabels(QStringList { tr("Account"), tr("Protocol") } + furtherColumns);
    list->setRootIsDecorated(false);
    list->setUniformRowHeights(true);
    list->header()->setStretchLastSection(false);
    list->header()->setSectionResizeMode(nameColumn, QHeaderView::Stretch);
    list->setAllColumnsShowFocus(true);
    list->setTabKeyNavigation(false);
    auto *delegate = new KirvNameDelegate(list);
    list->setItemDelegateForColumn(nameColumn, delegate);
    list->setItemDelegateForColumn(protocolColumn, delegate);
    list->setMinimumHeight(list->header()->sizeHint().height() + fewestLines * list->fontMetrics().lineSpacing());
    connect(list, &QTreeWidget::itemChanged, this, [this] {
        refreshAllBox();
        Q_EMIT changed();
    });

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(allBox);
    column->addWidget(list, 1);
}

/// A focus proxy would take the place of both for the Tab key.
void KirvAccountCheckList::focusList()
{
    list->setFocus();
}

void KirvAccountCheckList::setRows(const QList<Row> &rows)
{
    const QSignalBlocker noItemChanged(list);
    const int current = list->indexOfTopLevelItem(list->currentItem());
    const KirvAccountKey before = current < 0 ? KirvAccountKey() : accountAt(current);
    list->clear();
    QList<QTreeWidgetItem *> items;
    std::transform(rows.begin(), rows.end(), std::back_inserter(items), &createItem);
    list->addTopLevelItems(items);
    makeCurrent(before);
    narrowestColumns.clear();
    fitColumns();
    refreshAllBox();
}

QTreeWidgetItem *KirvAccountCheckList::createItem(const Row &row)
{
    auto *item =
        new QTreeWidgetItem(QStringList { nameOf(row.account, row.alias), row.account.protocol } + row.further);
    item->setData(nameColumn, idRole, row.account.id);
    for (int column = 0; column < item->columnCount(); ++column)
        setToolTipOf(item, column);
    if (row.isDisabled)
        item->setDisabled(true);
    else
        item->setCheckState(nameColumn, row.isChecked ? Qt::Checked : Qt::Unchecked);
    return item;
}

void KirvAccountCheckList::makeCurrent(const KirvAccountKey &account)
{
    int current = 0;
    for (int row = 0; row < count(); ++row) {
        if (accountAt(row) == account)
            current = row;
    }
    list->setCurrentItem(list->topLevelItem(current));
}

void KirvAccountCheckList::fitColumns()
{
    const int widest = widestColumn * list->fontMetrics().averageCharWidth();
    int needed = list->header()->sectionSizeHint(nameColumn) + 2 * list->frameWidth()
        + list->verticalScrollBar()->sizeHint().width();
    for (int column = protocolColumn; column < list->columnCount(); ++column) {
        const int narrowest = std::max(list->header()->sectionSizeHint(column), narrowestColumns.value(column));
        list->resizeColumnToContents(column);
        list->setColumnWidth(column, std::max(std::min(list->columnWidth(column), widest), narrowest));
        narrowestColumns.insert(column, list->columnWidth(column));
        needed += list->columnWidth(column);
    }
    list->setMinimumWidth(needed);
}

void KirvAccountCheckList::setText(int row, int column, const QString &text)
{
    const QSignalBlocker noItemChanged(list);
    QTreeWidgetItem *item = list->topLevelItem(row);
    item->setText(firstFurtherColumn + column, text);
    setToolTipOf(item, firstFurtherColumn + column);
}

QString KirvAccountCheckList::nameOf(const KirvAccountKey &account, const QString &alias)
{
    if (alias.isEmpty() || alias == account.id)
        return account.id;
    //: an account; %1 = its alias, %2 = its login
    return tr("%1 (%2)").arg(alias, account.id);
}

int KirvAccountCheckList::count() const
{
    return list->topLevelItemCount();
}

KirvAccountKey KirvAccountCheckList::accountAt(int row) const
{
    const QTreeWidgetItem *item = list->topLevelItem(row);
    return { item->data(nameColumn, idRole).toString(), item->text(protocolColumn) };
}

bool KirvAccountCheckList::isChecked(int row) const
{
    return list->topLevelItem(row)->checkState(nameColumn) == Qt::Checked;
}

QList<KirvAccountKey> KirvAccountCheckList::checkedAccounts() const
{
    QList<KirvAccountKey> accounts;
    for (int row = 0; row < count(); ++row) {
        if (isChecked(row))
            accounts << accountAt(row);
    }
    return accounts;
}

/// A click always leads to all or none.
void KirvAccountCheckList::toggleAll()
{
    const Qt::CheckState wanted = checked < checkable ? Qt::Checked : Qt::Unchecked;
    {
        const QSignalBlocker noItemChanged(list);
        for (int row = 0; row < count(); ++row) {
            QTreeWidgetItem *item = list->topLevelItem(row);
            if (!item->isDisabled())
                item->setCheckState(nameColumn, wanted);
        }
    }
    refreshAllBox();
    Q_EMIT changed();
}

void KirvAccountCheckList::refreshAllBox()
{
    checked = checkable = 0;
    for (int row = 0; row < count(); ++row) {
        checkable += list->topLevelItem(row)->isDisabled() ? 0 : 1;
        checked += isChecked(row) ? 1 : 0;
    }
    allBox->setEnabled(checkable > 0);
    allBox->setCheckState(checked == 0 ? Qt::Unchecked : checked < checkable ? Qt::PartiallyChecked : Qt::Checked);
}
