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
class KirvAccountHelp;
class KirvAccountInvitation;
class KirvMessageBar;
class KirvMovingWindows;
class KirvAccountRows;
class KirvAccountRowStates;
class KirvAccountSearch;
class KirvAccountStrip;
class KirvAccountUndo;
class KirvAliasEditor;
class KirvClientSettings;
class KirvMainAccount;
class KirvMainAccountSelector;
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
    /// What the page works on. Nothing is owned, and all of it outlives the page.
    struct Environment {
        KirvAccountCollection &accounts;
        KirvServerCommands &serverCommands;
        KirvMainAccount &mainAccount;
        KirvAccountUndo &undo;
        KirvClientSettings &settings;
        KirvAccountHelp &help;
        KirvMovingWindows &moving;
        KirvMessageBar &messages;
    };

    /// \a top was just built for the page.
    KirvAccountsPageCompanion(QWidget *top, const Environment &environment);
    ~KirvAccountsPageCompanion() override;

    /// The protocol was loaded, and its accounts with it.
    void protocolLoaded(const QString &protocol);
    /// The protocol was unloaded: its rows stay, greyed, as the accounts can still be disabled and removed.
    void protocolUnloaded(const QString &protocol);
    /// Every plug-in that there is was loaded: accounts of protocols that are not there get rows, too, greyed as those
    /// of protocolUnloaded().
    void pluginsLoaded();
    /// Gives the keyboard to the list, or to what invites to the first account.
    void takeFocus();
    /// Makes the page show again, from the event loop, what is stored: a change that it shows was refused.
    void refreshLater();
    /// Another account may have become the main account: the rows say so, and the page is refreshed.
    void mainAccountChanged();
    /// The account of the current row; null when there is none.
    KirvAccount *currentAccount() const;

Q_SIGNALS:
    /// The user wants to type the password of \a account.
    void passwordRequested(KirvAccount *account);
    /// The user wants to see the certificate of the server of \a account.
    void certificateRequested(KirvAccount *account);

private:
    /// A row that the page takes away too early, and how it stood in the list.
    struct KeptRow {
        std::unique_ptr<QTreeWidgetItem> copy;
        int index;
        int currentColumn; ///< -1: the row is not the current one
        bool isSelected;
        int scrollValue;
    };

    void addWidgets(QWidget *top, KirvAccountHelp &help);
    void connectMoving();
    void addCommands(QWidget *top, const Environment &environment);
    void connectStrip(KirvAccountHelp &help);
    void updateInvitation();
    bool maySelect() const;
    void selectNewRow(const KirvAccountKey &key);
    void selectImported(const QList<KirvAccountKey> &keys);
    void refreshStripLater();
    void refreshStrip();

    void keepRow(const KirvAccount *account);
    void restoreRow(KeptRow row);
    void syncRowLater(const KirvAccountKey &key);
    void syncRows();

    static bool isUpToDate(const QTreeWidgetItem *row, const KirvAccount &account);
    void updateRow(const KirvAccount *account);
    void updateCheckBoxes(const QList<KirvAccountKey> &keys);
    void listUnloaded();
    void remove(const KirvAccountKey &key);
    void removeAll(const QString &protocol);
    void markUnloaded(QTreeWidgetItem *row) const;
    KirvAccountKey current() const;
    void setCurrent(const KirvAccountKey &key);

    void deleteRow(QTreeWidgetItem *row);

    KirvAccountCollection &accounts;
    QTreeWidget *list;
    KirvAccountRows *rows;
    KirvAccountRowStates *states;
    KirvAccountStrip *strip;
    KirvAccountSearch *searchBar;
    KirvAccountInvitation *invitation;
    KirvMovingWindows &moving;
    QToolButton *addButton;
    KirvMainAccountSelector *selector = nullptr; ///< null when the layout has none
    KirvAliasEditor *aliasEditor = nullptr;
    std::vector<KeptRow> keptRows;
    KirvAccountKey added; ///< the latest account, until its row is selected
    QList<KirvAccountKey> imported; ///< the latest import, until its rows are selected
    QList<KirvAccountKey> unsynced; ///< came or went since the rows were last compared
    bool hasStarted = false; ///< the accounts that there were at the start are listed
    bool mayListUnloaded = false;
    bool isSyncDue = false;
    bool isStripDue = false;
};

#endif
