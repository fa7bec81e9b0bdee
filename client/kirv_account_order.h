// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNT_ORDER_H
#define KIRV_ACCOUNT_ORDER_H

#include "core/values/kirv_account_key.h"

#include <QModelIndex>
#include <QObject>
#include <QPoint>
#include <QSet>

class KirvAccount;
class KirvAccountCollection;
class KirvAccountRows;
class KirvClientSettings;
class QDragMoveEvent;
class QDropEvent;
class QMouseEvent;
class QTreeWidget;
class QTreeWidgetItem;

/// The order of the rows of the page's list. Sorting by a header is a view of them; the third click on the header
/// returns to the user's own order, in which the selected rows are moved by drag and by Alt+Up and Alt+Down. Sorting
/// and widths are remembered.
///
/// In the own order the list is sorted by its hidden last column, which the page leaves empty: there each row has a
/// number. No protocol is called like one, so the page finds no row by it.
class KirvAccountOrder : public QObject {
    Q_OBJECT

public:
    /// None is owned, and all outlive this, which belongs to \a list.
    KirvAccountOrder(KirvAccountCollection &accounts, const KirvAccountRows &rows, KirvClientSettings &settings,
                     QTreeWidget *list);

    bool isOwn() const;
    /// To the user's own order, or to the order of the aliases.
    void setOwn(bool isOwn);
    /// Whether the account can be moved past the row above it, or below it.
    bool canMove(const KirvAccountKey &key, bool isUp) const;
    void move(const KirvAccountKey &key, bool isUp);
    /// Moves the selected accounts to the edge of a row that is the nearest to \a position in the viewport; below all
    /// rows to the end.
    void moveSelection(const QPoint &position);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// The user wanted to move a row, but the list is sorted by a header.
    void moveRefused();
    /// The list is sorted in another way, or again in the same.
    void sorted();

private:
    void joinPage();
    void headerClicked();
    void sortingChanged();
    void restore();
    void saveWidth();
    bool keyPressed(int key);
    void mousePressed(const QMouseEvent *event);
    void mouseMoved(const QMouseEvent *event);
    bool dragMoved(QDragMoveEvent *event);
    bool dropped(QDropEvent *event);
    int neighbour(int row, bool isUp) const;
    const KirvAccount *accountAt(int row) const;
    void moveSelection(bool isUp);
    QModelIndexList selectedRows() const;
    void placeSelection(const KirvAccount *next);

    void numberLater(const KirvAccountKey &key);
    void numberRows();
    void numberAll();
    bool numberBetween(const QSet<KirvAccountKey> &keys);
    bool numberRun(const QList<QTreeWidgetItem *> &run, const QTreeWidgetItem *before, const QTreeWidgetItem *after);
    void setNumber(QTreeWidgetItem *row, double number) const;

    KirvAccountCollection &accounts;
    const KirvAccountRows &rows;
    KirvClientSettings &settings;
    QTreeWidget *list;
    QSet<KirvAccountKey> unnumbered;
    int lastSection = 0;
    Qt::SortOrder lastOrder = Qt::AscendingOrder;
    bool isJoined = false; ///< a page may be shown and hidden before
    bool isNumberingDue = false;
    bool isSnapping = false; ///< a drag to the edge of a row
    bool isPressed = false; ///< on a row that may be dragged from there
    QPoint pressedAt;
};

#endif
