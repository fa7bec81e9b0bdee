// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNT_ROWS_H
#define KIRV_ACCOUNT_ROWS_H

#include "core/values/kirv_account_key.h"

#include <QPointer>

class QTreeWidget;
class QTreeWidgetItem;
class QWidget;

/// The rows of the account page, seen from outside: where the page leaves it to the client which rows stand in
/// its list. The page itself is told nothing: changes made here reach none of its slots.
class KirvAccountRows {
public:
    /// \a page holds the list, which may go away with it.
    explicit KirvAccountRows(QWidget *page);

    bool contains(const KirvAccountKey &key) const;
    /// Takes the row away. A row that was current leaves no current row behind: an open question about it must
    /// not become one about its neighbour.
    void remove(const KirvAccountKey &key);
    /// Takes all rows of \a protocol away.
    void removeAll(const QString &protocol);
    /// Shows the rows of \a protocol as those of a plug-in that is not loaded.
    void markUnloaded(const QString &protocol);

    /// The current row, to be made current again after its row was replaced.
    KirvAccountKey current() const;
    void setCurrent(const KirvAccountKey &key);

private:
    static KirvAccountKey keyOf(const QTreeWidgetItem *row);
    QTreeWidgetItem *find(const KirvAccountKey &key) const;
    QList<QTreeWidgetItem *> rowsOf(const QString &protocol) const;
    void takeAway(QTreeWidgetItem *row);

    QPointer<QTreeWidget> list;
};

#endif
