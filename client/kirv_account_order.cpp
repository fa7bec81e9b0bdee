// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_account_order.h"

#include "client/kirv_account_rows.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/store/kirv_client_settings.h"

#include <QApplication>
#include <QDragMoveEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <QStyle>
#include <QTreeWidget>

#include <algorithm>
#include <utility>

namespace {

const int numberColumn = 3;
const QLatin1String sortingKey("accounts_page/sorting");
const QLatin1String widthKey("accounts_page/protocol_width");
const int widestColumn = 2000;
const int protocolLetters = 12;
/// Between two numbers: a row does not take one that QVariant holds for the same as that which it has, which is true of
/// numbers of 100,000 rows up to 1e-7.
const double smallestStep = 1e-6;

template <typename Event>
QPoint positionOf(const Event *event)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return event->position().toPoint();
#else
    return event->pos();
#endif
}

double numberOf(const QTreeWidgetItem *row)
{
    return row->data(numberColumn, Qt::DisplayRole).toDouble();
}

/// For the name of a protocol with its icon; the rest is for the alias and the state below it.
int usualWidth(const QTreeWidget *list)
{
    const int icon = list->style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, list);
    const int text = protocolLetters * list->fontMetrics().averageCharWidth();
    return qMax(list->header()->sectionSizeHint(KirvProtocolColumn), icon + text);
}

bool hasNumber(const QTreeWidgetItem *row)
{
    return row && row->data(numberColumn, Qt::DisplayRole).isValid();
}

} // namespace

KirvAccountOrder::KirvAccountOrder(KirvAccountCollection &accounts, const KirvAccountRows &rows,
                                   KirvClientSettings &settings, QTreeWidget *list)
    : QObject(list)
    , accounts(accounts)
    , rows(rows)
    , settings(settings)
    , list(list)
{
    list->installEventFilter(this);
    list->viewport()->installEventFilter(this);
    connect(&rows, &KirvAccountRows::inserted, this, &KirvAccountOrder::numberLater);
    connect(&accounts, &KirvAccountCollection::orderChanged, this, [this](const QList<KirvAccountKey> &moved) {
        for (const KirvAccountKey &key : moved)
            numberLater(key);
    });
    // The page sorts its list after this.
    QMetaObject::invokeMethod(this, &KirvAccountOrder::joinPage, Qt::QueuedConnection);
}

void KirvAccountOrder::joinPage()
{
    restore();
    isJoined = true;
    connect(list->header(), &QHeaderView::sectionClicked, this, &KirvAccountOrder::headerClicked);
    connect(list->header(), &QHeaderView::sortIndicatorChanged, this, &KirvAccountOrder::sortingChanged);
    sortingChanged();
}

bool KirvAccountOrder::isOwn() const
{
    return list->header()->sortIndicatorSection() == numberColumn;
}

void KirvAccountOrder::setOwn(bool isOwn)
{
    numberRows();
    list->sortByColumn(isOwn ? numberColumn : int(KirvAliasColumn), Qt::AscendingOrder);
    lastSection = list->header()->sortIndicatorSection();
    lastOrder = Qt::AscendingOrder;
}

/// The header has sorted already: the third time ascending again.
void KirvAccountOrder::headerClicked()
{
    const int section = list->header()->sortIndicatorSection();
    const bool isThird = section == lastSection && lastOrder == Qt::DescendingOrder;
    lastSection = section;
    lastOrder = list->header()->sortIndicatorOrder();
    if (isThird)
        setOwn(true);
}

void KirvAccountOrder::sortingChanged()
{
    list->setDragDropMode(isOwn() ? QAbstractItemView::InternalMove : QAbstractItemView::NoDragDrop);
    const QString sorting = QStringLiteral("%1,%2")
                                .arg(list->header()->sortIndicatorSection())
                                .arg(int(list->header()->sortIndicatorOrder()));
    if (settings.value(sortingKey) != sorting)
        settings.setValue(sortingKey, sorting);
    Q_EMIT sorted();
}

void KirvAccountOrder::restore()
{
    const QStringList sorting = settings.value(sortingKey).split(QLatin1Char(','));
    bool isSection = false;
    const int section = sorting.first().toInt(&isSection);
    if (isSection && (section == KirvAliasColumn || section == KirvProtocolColumn || section == numberColumn)) {
        numberRows();
        const bool isDescending = sorting.value(1).toInt() == Qt::DescendingOrder && section != numberColumn;
        list->sortByColumn(section, isDescending ? Qt::DescendingOrder : Qt::AscendingOrder);
    }
    lastSection = list->header()->sortIndicatorSection();
    lastOrder = list->header()->sortIndicatorOrder();
    list->header()->setStretchLastSection(false);
    const int width = settings.value(widthKey).toInt();
    list->header()->resizeSection(KirvProtocolColumn,
                                  width > 0 ? qBound(list->header()->minimumSectionSize(), width, widestColumn)
                                            : usualWidth(list));
}

void KirvAccountOrder::saveWidth()
{
    const QString width = QString::number(list->columnWidth(KirvProtocolColumn));
    const bool isUsual = list->columnWidth(KirvProtocolColumn) == usualWidth(list);
    if (settings.value(widthKey) != width && !(isUsual && settings.value(widthKey).isEmpty()))
        settings.setValue(widthKey, width);
}

bool KirvAccountOrder::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Hide:
        if (watched == list && isJoined && !list->header()->isHidden())
            saveWidth();
        return false;
    case QEvent::KeyPress: {
        const auto *key = static_cast<QKeyEvent *>(event);
        return watched == list && key->modifiers().testFlag(Qt::AltModifier) && keyPressed(key->key());
    }
    case QEvent::MouseButtonPress:
        if (watched == list->viewport())
            mousePressed(static_cast<QMouseEvent *>(event));
        return false;
    case QEvent::MouseMove:
        if (watched == list->viewport())
            mouseMoved(static_cast<QMouseEvent *>(event));
        return false;
    case QEvent::DragMove:
        return watched == list->viewport() && dragMoved(static_cast<QDragMoveEvent *>(event));
    case QEvent::Drop:
        return watched == list->viewport() && dropped(static_cast<QDropEvent *>(event));
    default:
        return false;
    }
}

bool KirvAccountOrder::keyPressed(int key)
{
    if (key != Qt::Key_Up && key != Qt::Key_Down)
        return false;
    const QTreeWidgetItem *row = list->currentItem();
    if (row && !isOwn())
        Q_EMIT moveRefused();
    else if (row && row->isSelected() && list->selectionModel()->selectedRows().size() > 1)
        moveSelection(key == Qt::Key_Up);
    else if (row)
        move(KirvAccountRows::keyOf(row), key == Qt::Key_Up);
    return true;
}

/// With Shift or Ctrl the mouse selects.
void KirvAccountOrder::mousePressed(const QMouseEvent *event)
{
    pressedAt = positionOf(event);
    isPressed = event->button() == Qt::LeftButton && event->modifiers() == Qt::NoModifier && list->itemAt(pressedAt);
}

/// A sorted list does not start a drag itself.
void KirvAccountOrder::mouseMoved(const QMouseEvent *event)
{
    const int distance = (positionOf(event) - pressedAt).manhattanLength();
    if (!isPressed || !event->buttons().testFlag(Qt::LeftButton) || distance < QApplication::startDragDistance())
        return;
    isPressed = false;
    if (!isOwn())
        Q_EMIT moveRefused();
}

/// The next row in that direction that is not hidden; -1 when there is none.
int KirvAccountOrder::neighbour(int row, bool isUp) const
{
    const int step = isUp ? -1 : 1;
    int next = row + step;
    while (next >= 0 && next < list->topLevelItemCount() && list->isRowHidden(next, QModelIndex()))
        next += step;
    return next < list->topLevelItemCount() ? next : -1;
}

const KirvAccount *KirvAccountOrder::accountAt(int row) const
{
    const QTreeWidgetItem *item = list->topLevelItem(row);
    return item ? accounts.find(KirvAccountRows::keyOf(item)) : nullptr;
}

bool KirvAccountOrder::canMove(const KirvAccountKey &key, bool isUp) const
{
    QTreeWidgetItem *row = rows.find(key);
    return row && isOwn() && neighbour(list->indexOfTopLevelItem(row), isUp) >= 0;
}

void KirvAccountOrder::move(const KirvAccountKey &key, bool isUp)
{
    KirvAccount *account = accounts.find(key);
    if (!account || !canMove(key, isUp))
        return;
    numberRows();
    const int past = neighbour(list->indexOfTopLevelItem(rows.find(key)), isUp);
    accounts.place(account, accountAt(isUp ? past : past + 1));
    numberRows();
    list->scrollToItem(rows.find(key));
}

/// The page never looks at children, so nothing is dropped onto a row: the drag is led to its nearer edge.
bool KirvAccountOrder::dragMoved(QDragMoveEvent *event)
{
    const QPoint position = positionOf(event);
    const QTreeWidgetItem *row = list->itemAt(position);
    if (isSnapping || !row)
        return false;
    const QRect place = list->visualItemRect(row);
    const bool isUpper = position.y() < place.center().y();
    QDragMoveEvent atEdge(QPoint(position.x(), isUpper ? place.top() : place.bottom()), event->possibleActions(),
                          event->mimeData(),
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
                          event->buttons(), event->modifiers());
#else
                          event->mouseButtons(), event->keyboardModifiers());
#endif
    atEdge.setDropAction(event->dropAction());
    isSnapping = true;
    QApplication::sendEvent(list->viewport(), &atEdge);
    isSnapping = false;
    event->setAccepted(atEdge.isAccepted());
    return true;
}

/// The view only learns that it is over: it would move the rows, and take those away that were moved.
bool KirvAccountOrder::dropped(QDropEvent *event)
{
    if (!isOwn() || event->source() != list) {
        event->ignore();
        return true;
    }
    moveSelection(positionOf(event));
    // Only a move is possible here: another action would become one, after which the view removes what was dragged.
    event->setDropAction(Qt::IgnoreAction);
    event->accept();
    return true;
}

void KirvAccountOrder::moveSelection(const QPoint &position)
{
    numberRows();
    QTreeWidgetItem *row = list->itemAt(position);
    int before = list->topLevelItemCount();
    if (row)
        before = list->indexOfTopLevelItem(row) + (position.y() < list->visualItemRect(row).center().y() ? 0 : 1);
    // The first row behind that place that stays where it is.
    while (before < list->topLevelItemCount() && list->topLevelItem(before)->isSelected())
        ++before;
    placeSelection(accountAt(before));
}

void KirvAccountOrder::moveSelection(bool isUp)
{
    numberRows();
    const QModelIndexList selected = selectedRows();
    const int past = neighbour(isUp ? selected.first().row() : selected.last().row(), isUp);
    if (past < 0)
        return;
    placeSelection(accountAt(isUp ? past : past + 1));
    list->scrollToItem(list->currentItem());
}

QModelIndexList KirvAccountOrder::selectedRows() const
{
    QModelIndexList selected = list->selectionModel()->selectedRows();
    std::sort(selected.begin(), selected.end());
    return selected;
}

/// Side by side before \a next, or at the end when it is null.
void KirvAccountOrder::placeSelection(const KirvAccount *next)
{
    QList<KirvAccount *> moved;
    const QModelIndexList selected = selectedRows();
    for (const QModelIndex &index : selected) {
        if (KirvAccount *account = accounts.find(KirvAccountRows::keyOf(index)))
            moved << account;
    }
    if (isOwn())
        accounts.place(moved, next);
    numberRows();
}

void KirvAccountOrder::numberLater(const KirvAccountKey &key)
{
    unnumbered.insert(key);
    if (!std::exchange(isNumberingDue, true))
        QMetaObject::invokeMethod(this, &KirvAccountOrder::numberRows, Qt::QueuedConnection);
}

void KirvAccountOrder::numberRows()
{
    isNumberingDue = false;
    const QSet<KirvAccountKey> keys = std::exchange(unnumbered, {});
    if (keys.isEmpty())
        return;
    // Each number sorts the list; several do it once.
    const bool isSortedAfter = keys.size() > 1 && isOwn() && list->isSortingEnabled();
    if (isSortedAfter)
        list->setSortingEnabled(false);
    if (!numberBetween(keys))
        numberAll();
    if (isSortedAfter)
        list->setSortingEnabled(true);
}

void KirvAccountOrder::numberAll()
{
    double number = 0;
    const QList<KirvAccount *> all = accounts.accounts();
    for (const KirvAccount *account : all) {
        ++number;
        if (QTreeWidgetItem *row = rows.find(account->key()))
            setNumber(row, number);
    }
}

/// Numbers only the rows of \a keys, between those of their neighbours. False when there are no such numbers.
bool KirvAccountOrder::numberBetween(const QSet<KirvAccountKey> &keys)
{
    QList<QTreeWidgetItem *> run;
    const QTreeWidgetItem *before = nullptr;
    const QList<KirvAccount *> all = accounts.accounts();
    for (const KirvAccount *account : all) {
        QTreeWidgetItem *row = rows.find(account->key());
        if (!row)
            continue;
        if (keys.contains(account->key())) {
            run << row;
            continue;
        }
        if (!hasNumber(row) || !numberRun(run, before, row))
            return false;
        run.clear();
        before = row;
    }
    return numberRun(run, before, nullptr);
}

bool KirvAccountOrder::numberRun(const QList<QTreeWidgetItem *> &run, const QTreeWidgetItem *before,
                                 const QTreeWidgetItem *after)
{
    const int count = int(run.size());
    const double low = before ? numberOf(before) : (after ? numberOf(after) - count - 1 : 0);
    const double high = after ? numberOf(after) : low + count + 1;
    const double step = (high - low) / (count + 1);
    if (count > 0 && step < smallestStep)
        return false;
    for (int i = 0; i < count; ++i)
        setNumber(run.at(i), low + step * (i + 1));
    return true;
}

void KirvAccountOrder::setNumber(QTreeWidgetItem *row, double number) const
{
    const QSignalBlocker noItemChanged(list);
    if (!hasNumber(row) || numberOf(row) != number)
        row->setData(numberColumn, Qt::DisplayRole, number);
}
