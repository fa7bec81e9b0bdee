// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNTS_PAGE_COMPANION_H
#define KIRV_ACCOUNTS_PAGE_COMPANION_H

#include "core/values/kirv_account_key.h"

#include <QList>
#include <QObject>
#include <memory>
#include <vector>

class KirvAccount;
class KirvAccountCollection;
class QTreeWidget;
class QTreeWidgetItem;
class QWidget;

/// What the client adds to the page: its list shows every configured account exactly once, whatever comes and goes.
/// Owned by the top widget of the page's layout.
///
/// Changes made here reach none of the page's slots.
class KirvAccountsPageCompanion : public QObject {
    Q_OBJECT

public:
    /// \a top was just built for the page. \a accounts outlives it.
    KirvAccountsPageCompanion(QWidget *top, KirvAccountCollection &accounts);
    ~KirvAccountsPageCompanion() override;

    /// The protocol was loaded, and its accounts with it.
    void protocolLoaded(const QString &protocol);
    /// The protocol was unloaded: its rows stay, greyed, as the accounts can still be disabled and removed.
    void protocolUnloaded(const QString &protocol);
    /// Makes the page show again, from the event loop, what is stored: a change that it shows was refused.
    void refreshLater();

private:
    /// A row that the page takes away too early, and how it stood in the list.
    struct KeptRow {
        std::unique_ptr<QTreeWidgetItem> copy;
        int index;
        int currentColumn; ///< -1: the row is not the current one
        bool isSelected;
        int scrollValue;
    };

    void keepRow(const KirvAccount *account);
    void putBack(KeptRow row);
    void syncRowLater(const KirvAccountKey &key);
    void syncRows();

    void remove(const KirvAccountKey &key);
    void removeAll(const QString &protocol);
    void markUnloaded(const QString &protocol);
    KirvAccountKey current() const;
    void setCurrent(const KirvAccountKey &key);

    static KirvAccountKey keyOf(const QTreeWidgetItem *row);
    QTreeWidgetItem *find(const KirvAccountKey &key) const;
    QList<QTreeWidgetItem *> rowsOf(const QString &protocol) const;
    void takeAway(QTreeWidgetItem *row);

    KirvAccountCollection &accounts;
    QTreeWidget *list;
    std::vector<KeptRow> keptRows;
    QList<KirvAccountKey> unsynced; ///< came or went since the rows were last compared
    bool isSyncDue = false;
};

#endif
