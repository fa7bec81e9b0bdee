// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNT_ROW_STATES_H
#define KIRV_ACCOUNT_ROW_STATES_H

#include "core/values/kirv_account_key.h"

#include <QObject>
#include <QSet>

class KirvAccount;
class KirvAccountCollection;
class KirvAccountRows;
class QTreeWidget;

/// Keeps what the rows of the page's list say of their accounts up to date: what is drawn, and what assistive
/// technology reads. Nothing of it reaches the page: a row that changes while the list's signals are not blocked would
/// be handled like a change of its check box.
class KirvAccountRowStates : public QObject {
    Q_OBJECT

public:
    /// None is owned; \a accounts and \a rows outlive this, which belongs to \a list.
    KirvAccountRowStates(const KirvAccountCollection &accounts, const KirvAccountRows &rows, QTreeWidget *list);

    /// Another account may have become the main account.
    void mainAccountChanged();

private:
    void touch(const KirvAccountKey &key);
    void flushLater();
    void flush();
    void describe(const KirvAccountKey &key);

    const KirvAccountCollection &accounts;
    const KirvAccountRows &rows;
    QTreeWidget *list;
    QSet<KirvAccountKey> touched;
    KirvAccountKey mainAccount; ///< as the rows say
    bool isFlushDue = false;
};

#endif
