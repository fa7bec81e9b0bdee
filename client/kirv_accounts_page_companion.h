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
class KirvAccountInvitation;
class KirvAccountRows;
class KirvAccountRowStates;
class KirvAccountStrip;
class KirvAliasEditor;
class KirvMainAccount;
class KirvServerCommands;
class QToolButton;
class QTreeWidget;
class QTreeWidgetItem;
class QWidget;

/// What the client adds to the page: its list shows every configured account exactly once, whatever comes and goes,
/// each row tells the state of its account, and a strip below the list says more about the current one. Owned by the
/// top widget of the page's layout.
///
/// Changes made here reach none of the page's slots.
class KirvAccountsPageCompanion : public QObject {
    Q_OBJECT

public:
    /// \a top was just built for the page. The others are not owned and outlive it.
    KirvAccountsPageCompanion(QWidget *top, KirvAccountCollection &accounts, KirvServerCommands &serverCommands,
                              KirvMainAccount &mainAccount);
    ~KirvAccountsPageCompanion() override;

    /// The protocol was loaded, and its accounts with it.
    void protocolLoaded(const QString &protocol);
    /// The protocol was unloaded: its rows stay, greyed, as the accounts can still be disabled and removed.
    void protocolUnloaded(const QString &protocol);
    /// Makes the page show again, from the event loop, what is stored: a change that it shows was refused.
    void refreshLater();
    /// Another account may have become the main account: the rows say so, and the page is refreshed.
    void mainAccountChanged();
    /// The account of the current row; null when there is none.
    KirvAccount *currentAccount() const;

Q_SIGNALS:
    /// The user wants to type the password of \a account.
    void passwordRequested(KirvAccount *account);

private:
    /// A row that the page takes away too early, and how it stood in the list.
    struct KeptRow {
        std::unique_ptr<QTreeWidgetItem> copy;
        int index;
        int currentColumn; ///< -1: the row is not the current one
        bool isSelected;
        int scrollValue;
    };

    void addWidgets(QWidget *top);
    void addCommands(QWidget *top, KirvServerCommands &serverCommands, KirvMainAccount &mainAccount);
    void connectStrip();
    void invite();
    void selectNewRow(const KirvAccountKey &key);
    void refreshStripLater();
    void refreshStrip();

    void keepRow(const KirvAccount *account);
    void putBack(KeptRow row);
    void syncRowLater(const KirvAccountKey &key);
    void syncRows();

    void updateAlias(const KirvAccount *account);
    void remove(const KirvAccountKey &key);
    void removeAll(const QString &protocol);
    void markUnloaded(const QString &protocol);
    KirvAccountKey current() const;
    void setCurrent(const KirvAccountKey &key);

    void takeAway(QTreeWidgetItem *row);

    KirvAccountCollection &accounts;
    QTreeWidget *list;
    KirvAccountRows *rows;
    KirvAccountRowStates *states;
    KirvAccountStrip *strip;
    KirvAccountInvitation *invitation;
    QToolButton *addButton;
    KirvAliasEditor *aliasEditor = nullptr;
    std::vector<KeptRow> keptRows;
    KirvAccountKey added; ///< the latest account, until its row is selected
    QList<KirvAccountKey> unsynced; ///< came or went since the rows were last compared
    bool isSyncDue = false;
    bool isStripDue = false;
};

#endif
