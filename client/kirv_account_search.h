// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNT_SEARCH_H
#define KIRV_ACCOUNT_SEARCH_H

#include "core/values/kirv_account_key.h"

#include <QHash>
#include <QSet>
#include <QStringList>
#include <QWidget>

class KirvAccount;
class KirvAccountCollection;
class KirvAccountRows;
class QDateTime;
class QLabel;
class QLineEdit;
class QTimer;
class QTreeWidget;
class QTreeWidgetItem;

/// Hides the rows of the page's list that do not have every typed word in their alias, id, protocol or state;
/// "problem" stands for every state that needs attention. Shown from shownFromCount on, and by Ctrl+F.
///
/// A row is deselected before it is hidden: the page's commands work on what is selected, seen or not. A row that is
/// current or selected when its account changes stays as long as that lasts, as the user may be working on it.
class KirvAccountSearch : public QWidget {
    Q_OBJECT

public:
    static constexpr int shownFromCount = 10;

    /// None is owned, and all outlive this. \a list stands in the window of the page.
    KirvAccountSearch(const KirvAccountCollection &accounts, const KirvAccountRows &rows, QTreeWidget *list);

    /// To be called when accounts came or went.
    void accountsChanged();
    /// Shows the row of the account, with an empty search when need be.
    void reveal(const KirvAccountKey &key);
    void open();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void close();
    void moveToList();
    void search();
    void touch(const KirvAccountKey &key);
    void releaseKept();
    void filterLater();
    void filterTouched();
    bool isInUse(const QTreeWidgetItem *row) const;
    void apply(int row, bool isMatch);
    void applyToAll();
    void applyToNext();
    void rowsMoved();
    bool isMatch(const KirvAccountKey &key, const QDateTime &now) const;
    bool hasWord(const KirvAccount &account, const QString &word, const QDateTime &now) const;
    static QString stateWords(const KirvAccount &account, const QDateTime &now);
    void showCount();
    void updateVisibility();

    const KirvAccountCollection &accounts;
    const KirvAccountRows &rows;
    QTreeWidget *list;
    QLineEdit *field;
    QLabel *count;
    QTimer *turn; ///< of the event loop, while the search goes on
    int nextRow = 0; ///< from which it goes on
    QStringList words;
    QSet<KirvAccountKey> touched;
    QSet<KirvAccountKey> kept; ///< shown although they do not match, as they are current or selected
    KirvAccountKey deselected; ///< as its row was hidden; it is selected again when that is shown and no other is
    bool isOpened = false; ///< by Ctrl+F
    bool isFilterDue = false;
};

#endif
