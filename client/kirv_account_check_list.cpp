// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_account_check_list.h"

#include "client/kirv_name_delegate.h"
#include "client/kirv_plain_text.h"
#include "core/values/kirv_text_limit.h"

#include <QCheckBox>
#include <QEvent>
#include <QHeaderView>
#include <QScrollBar>
#include <QSet>
#include <QSignalBlocker>
#include <QTextLayout>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace {

const int nameColumn = 0;
const int protocolColumn = 1;
const int firstFurtherColumn = 2;
const int idRole = Qt::UserRole;
const int fewestLines = 4;
const int laterRole = Qt::UserRole + 1; // of the last column
// In average characters.
const int narrowColumn = 26; // when the window is small
const int narrowName = 12; // which gives way to the further columns
const int longestChoice = 100;
const int measuredTexts = 20; // of a column

/// A few of \a texts, of which there may be one for each row: measuring them all would take long.
QStringList longestOf(const QSet<QString> &texts)
{
    QStringList longest(texts.begin(), texts.end());
    const auto end = longest.begin() + std::min(int(longest.size()), measuredTexts);
    std::partial_sort(longest.begin(), end, longest.end(),
                      [](const QString &left, const QString &right) { return left.size() > right.size(); });
    longest.erase(end, longest.end());
    return longest;
}

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
    list->viewport()->installEventFilter(this);
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
    wantedWidths.clear();
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
    item->setData(item->columnCount() - 1, laterRole, row.later);
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

int KirvAccountCheckList::inCharacters(int count) const
{
    return count * list->fontMetrics().averageCharWidth();
}

/// As the list measures what it shows; the metrics of the font differ from that in some scripts.
int KirvAccountCheckList::textWidth(const QString &text) const
{
    QTextLayout layout(text.left(longestChoice), list->font());
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    const int margin = style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, list) + 1;
    return (line.isValid() ? int(std::ceil(line.naturalTextWidth())) : 0) + 2 * margin;
}

/// Of what the column shows or may show. The sentences about rows that cannot be chosen may be long.
int KirvAccountCheckList::contentsWidth(int column) const
{
    QSet<QString> choices, sentences;
    for (int row = 0; row < count(); ++row) {
        const QTreeWidgetItem *item = list->topLevelItem(row);
        (item->isDisabled() ? sentences : choices) << item->text(column);
        choices << item->data(column, laterRole).toString();
    }
    int width = list->header()->sectionSizeHint(column);
    for (const QString &text : longestOf(choices))
        width = std::max(width, textWidth(text));
    for (const QString &text : longestOf(sentences))
        width = std::max(width, std::min(textWidth(text), inCharacters(narrowColumn)));
    return width;
}

int KirvAccountCheckList::narrowest(int column) const
{
    const int header = list->header()->sectionSizeHint(column);
    return std::max(header, std::min(wantedWidths.value(column), inCharacters(narrowColumn)));
}

int KirvAccountCheckList::narrowestName() const
{
    return std::max(list->header()->sectionSizeHint(nameColumn), inCharacters(narrowName));
}

void KirvAccountCheckList::fitColumns()
{
    int needed = list->header()->sectionSizeHint(nameColumn) + 2 * list->frameWidth()
        + list->verticalScrollBar()->sizeHint().width();
    for (int column = protocolColumn; column < list->columnCount(); ++column) {
        wantedWidths.insert(column, std::max(wantedWidths.value(column), contentsWidth(column)));
        needed += narrowest(column);
    }
    list->setMinimumWidth(needed);
    shareRoom();
}

/// The name, which is stretched, has what is left.
void KirvAccountCheckList::shareRoom()
{
    int room = list->viewport()->width() - narrowestName();
    for (int column = protocolColumn; column < list->columnCount(); ++column)
        room -= narrowest(column);
    for (int column = list->columnCount() - 1; column >= protocolColumn; --column) {
        const int more = std::max(0, std::min(room, wantedWidths.value(column) - narrowest(column)));
        list->setColumnWidth(column, narrowest(column) + more);
        room -= more;
    }
}

int KirvAccountCheckList::comfortableWidth() const
{
    int width = std::max(narrowestName(), inCharacters(narrowColumn)) + 2 * list->frameWidth()
        + list->verticalScrollBar()->sizeHint().width();
    for (int column = protocolColumn; column < list->columnCount(); ++column)
        width += std::max(wantedWidths.value(column), narrowest(column));
    return width;
}

bool KirvAccountCheckList::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == list->viewport() && event->type() == QEvent::Resize)
        shareRoom();
    return QWidget::eventFilter(watched, event);
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
