// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_account_search.h"

#include "client/kirv_account_rows.h"
#include "client/kirv_account_status.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/ui/kirv_length_limit.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>
#include <QTimer>
#include <QTreeWidget>

#include <algorithm>
#include <utility>

namespace {
const int millisecondsOfATurn = 8;
}

KirvAccountSearch::KirvAccountSearch(const KirvAccountCollection &accounts, const KirvAccountRows &rows,
                                     QTreeWidget *list)
    : accounts(accounts)
    , rows(rows)
    , list(list)
    , field(new QLineEdit(this))
    , count(new QLabel(this))
    , turn(new QTimer(this))
{
    setObjectName(QStringLiteral("Accounts_SearchBar"));
    field->setObjectName(QStringLiteral("Accounts_Search"));
    field->setAccessibleName(tr("Search accounts"));
    //: %1 = the word that finds accounts whose state needs attention
    field->setPlaceholderText(tr("Search accounts, or “%1”…").arg(tr("problem")));
    field->setToolTip(tr("Shows the accounts with these words in their alias, login, protocol or state"));
    field->setClearButtonEnabled(true);
    field->installEventFilter(this);
    kirvLimitLength(field);
    count->setObjectName(QStringLiteral("Accounts_SearchCount"));
    count->setTextFormat(Qt::PlainText);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(field, 1);
    layout->addWidget(count);
    count->hide();
    hide();

    turn->setSingleShot(true);
    turn->setInterval(0);
    connect(turn, &QTimer::timeout, this, &KirvAccountSearch::applyToNext);
    connect(list->model(), &QAbstractItemModel::rowsRemoved, this, &KirvAccountSearch::rowsMoved);
    connect(list->model(), &QAbstractItemModel::rowsInserted, this, &KirvAccountSearch::rowsMoved);
    connect(list->model(), &QAbstractItemModel::layoutChanged, this, &KirvAccountSearch::rowsMoved);
    connect(field, &QLineEdit::textChanged, this, &KirvAccountSearch::search);
    connect(&rows, &KirvAccountRows::inserted, this, &KirvAccountSearch::touch);
    connect(list->selectionModel(), &QItemSelectionModel::currentRowChanged, this, &KirvAccountSearch::releaseKept);
    connect(list->selectionModel(), &QItemSelectionModel::selectionChanged, this, &KirvAccountSearch::releaseKept);
    connect(&accounts, &KirvAccountCollection::accountChanged, this,
            [this](const KirvAccount *account) { touch(account->key()); });
    auto *shortcut = new QShortcut(QKeySequence::Find, list->window());
    connect(this, &QObject::destroyed, shortcut, &QObject::deleteLater);
    connect(shortcut, &QShortcut::activated, this, &KirvAccountSearch::open);
}

void KirvAccountSearch::accountsChanged()
{
    updateVisibility();
    showCount();
}

void KirvAccountSearch::updateVisibility()
{
    const int all = int(accounts.accounts().size());
    setVisible(all > 0 && (all >= shownFromCount || isOpened || !words.isEmpty()));
}

void KirvAccountSearch::open()
{
    if (accounts.accounts().isEmpty() || !list->isVisible())
        return;
    isOpened = true;
    updateVisibility();
    field->selectAll();
    field->setFocus(Qt::ShortcutFocusReason);
}

void KirvAccountSearch::close()
{
    isOpened = false;
    field->clear();
    list->setFocus(Qt::OtherFocusReason);
    updateVisibility();
}

void KirvAccountSearch::reveal(const KirvAccountKey &key)
{
    filterTouched();
    QTreeWidgetItem *row = rows.find(key);
    if (row && row->isHidden())
        field->clear();
}

bool KirvAccountSearch::eventFilter(QObject *watched, QEvent *event)
{
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    const int key = isKey ? static_cast<QKeyEvent *>(event)->key() : 0;
    if (key != Qt::Key_Escape && key != Qt::Key_Down && key != Qt::Key_Return && key != Qt::Key_Enter)
        return QWidget::eventFilter(watched, event);
    event->accept();
    if (event->type() == QEvent::ShortcutOverride)
        return true;
    if (key == Qt::Key_Escape)
        close();
    else
        moveToList();
    return true;
}

/// To the first row that is shown.
void KirvAccountSearch::moveToList()
{
    for (int i = 0; i < list->topLevelItemCount(); ++i) {
        if (list->isRowHidden(i, QModelIndex()))
            continue;
        rows.select(list->topLevelItem(i));
        list->setFocus(Qt::OtherFocusReason);
        return;
    }
}

void KirvAccountSearch::search()
{
    const QStringList typed = field->text().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (typed == words)
        return;
    words = typed;
    applyToAll();
    updateVisibility();
}

/// With very many rows this takes several turns of the event loop, so that none takes long.
void KirvAccountSearch::applyToAll()
{
    touched.clear();
    kept.clear();
    nextRow = 0;
    applyToNext();
}

void KirvAccountSearch::applyToNext()
{
    QElapsedTimer time;
    time.start();
    const QDateTime now = QDateTime::currentDateTime();
    const int all = list->topLevelItemCount();
    for (; nextRow < all && !time.hasExpired(millisecondsOfATurn); ++nextRow)
        apply(nextRow, words.isEmpty() || isMatch(KirvAccountRows::keyOf(list->topLevelItem(nextRow)), now));
    if (nextRow < all)
        turn->start();
    else
        showCount();
}

/// The rows that are still to be looked at have other numbers.
void KirvAccountSearch::rowsMoved()
{
    if (turn->isActive())
        nextRow = 0;
}

void KirvAccountSearch::touch(const KirvAccountKey &key)
{
    if (words.isEmpty())
        return;
    touched.insert(key);
    filterLater();
}

/// Rows that the user may have finished with.
void KirvAccountSearch::releaseKept()
{
    if (kept.isEmpty())
        return;
    touched += std::exchange(kept, {});
    filterLater();
}

void KirvAccountSearch::filterLater()
{
    if (!std::exchange(isFilterDue, true))
        QMetaObject::invokeMethod(this, &KirvAccountSearch::filterTouched, Qt::QueuedConnection);
}

void KirvAccountSearch::filterTouched()
{
    isFilterDue = false;
    const QSet<KirvAccountKey> keys = std::exchange(touched, {});
    const QDateTime now = QDateTime::currentDateTime();
    for (const KirvAccountKey &key : keys) {
        QTreeWidgetItem *row = rows.find(key);
        if (!row)
            continue;
        const bool matches = isMatch(key, now);
        if (!matches && !row->isHidden() && isInUse(row))
            kept.insert(key);
        else
            apply(list->indexOfTopLevelItem(row), matches);
    }
    if (!keys.isEmpty())
        showCount();
}

/// A question may be open about it, or an editor in it.
bool KirvAccountSearch::isInUse(const QTreeWidgetItem *row) const
{
    return row == list->currentItem() || row->isSelected();
}

void KirvAccountSearch::apply(int row, bool isMatch)
{
    if (list->isRowHidden(row, QModelIndex()) == !isMatch)
        return;
    QTreeWidgetItem *item = list->topLevelItem(row);
    if (!isMatch && item == list->currentItem())
        list->setCurrentItem(nullptr, KirvAliasColumn, QItemSelectionModel::NoUpdate);
    if (!isMatch && list->selectionModel()->isRowSelected(row, QModelIndex())) {
        deselected = KirvAccountRows::keyOf(item);
        item->setSelected(false);
    }
    list->setRowHidden(row, QModelIndex(), !isMatch);
    if (isMatch && !deselected.id.isEmpty() && KirvAccountRows::keyOf(item) == deselected) {
        deselected = {};
        if (!list->selectionModel()->hasSelection())
            rows.select(item);
    }
}

bool KirvAccountSearch::isMatch(const KirvAccountKey &key, const QDateTime &now) const
{
    const KirvAccount *account = accounts.find(key);
    return account
        && std::all_of(words.begin(), words.end(), [&](const QString &word) { return hasWord(*account, word, now); });
}

bool KirvAccountSearch::hasWord(const KirvAccount &account, const QString &word, const QDateTime &now) const
{
    const KirvAccountRecord &record = account.record();
    for (const QString *text : { &record.alias, &record.key.id, &record.key.protocol }) {
        if (text->contains(word, Qt::CaseInsensitive))
            return true;
    }
    return stateWords(account, now).contains(word, Qt::CaseInsensitive);
}

QString KirvAccountSearch::stateWords(const KirvAccount &account, const QDateTime &now)
{
    const KirvAccountStatus status(account, false);
    switch (status.kind()) {
    case KirvAccountStatus::Failed:
    case KirvAccountStatus::NotLoaded:
        return status.text(now) + QLatin1Char(' ') + tr("problem");
    case KirvAccountStatus::Waiting:
    case KirvAccountStatus::Connecting:
        return account.lastFailure().isFailure() ? status.text(now) + QLatin1Char(' ') + tr("problem")
                                                 : status.text(now);
    default:
        return status.text(now);
    }
}

void KirvAccountSearch::showCount()
{
    int shown = 0;
    const int all = list->topLevelItemCount();
    for (int i = 0; i < all && !words.isEmpty(); ++i)
        shown += list->isRowHidden(i, QModelIndex()) ? 0 : 1;
    //: how many accounts a search shows, as "3 of 120"
    const QString text = words.isEmpty() ? QString() : tr("%1 of %2").arg(shown).arg(all);
    count->setText(text);
    count->setVisible(!text.isEmpty());
    field->setAccessibleDescription(text);
}
