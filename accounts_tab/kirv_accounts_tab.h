// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNTS_TAB_H
#define KIRV_ACCOUNTS_TAB_H

#include "accounts_tab/kirv_gui_accounts_tab_export.h"

#include <QHash>
#include <QIcon>
#include <QPair>
#include <QString>
#include <QVector>
#include <QWidget>

class KirvAccountConnection;
class KirvEditAccountDialog;
class QAction;
class QComboBox;
class QMenu;
class QShowEvent;
class QToolButton;
class QTreeWidget;
class QTreeWidgetItem;

/// The "Accounts" page of the client's settings window: the list of all accounts, the selector of the main
/// account and the commands on accounts.
///
/// There is one page per process, made by getInstance(); the client embeds it and owns it. It stores nothing:
/// accounts, protocols, settings and layouts are reached through the services in host/, all of which must
/// exist before the page does. GUI thread only.
class KIRV_GUI_ACCOUNTS_TAB_EXPORT KirvAccountsTab : public QWidget {
    Q_OBJECT

public:
    /// The page, created on first use and again after it was destroyed. Null only when memory ran out; the
    /// next call then tries again.
    static KirvAccountsTab *getInstance();

    /// Loads and binds the layout "Accounts". Clients call getInstance() instead.
    explicit KirvAccountsTab(QWidget *parent = nullptr, Qt::WindowFlags f = Qt::WindowFlags());
    /// Makes the next getInstance() create a fresh page. An open edit dialog's controller is not deleted.
    ~KirvAccountsTab() override;

    /// Appends a row for \a account, which was just created: it is listed as enabled. \a account must not be
    /// null and is not kept.
    void addAccountEntry(KirvAccountConnection *account);
    /// Rewrites the alias in the row of \a account; without such a row nothing happens.
    void updateAccount(KirvAccountConnection *account);
    /// The refresh: brings the check boxes up to date with the account manager and refills the selector.
    /// May be entered again from inside itself.
    void updateAccounts();

    /// Opens the edit window of \a account, which must not be null and is not kept.
    void editAccount(KirvAccountConnection *account);
    /// The controller of the edit window opened last, to which directory answers are delivered; null when
    /// there is none any more. Not owned by the caller.
    KirvEditAccountDialog *getAccEdit() const;

Q_SIGNALS:
    /// The user chose another main account; the account manager and the stored setting are up to date already.
    void mainAccountChanged();

public Q_SLOTS:
    /// The client loaded the protocol \a proto: adds its entry to the add menu and a row per account. An
    /// unknown name is ignored; a second call adds everything a second time.
    void readProtocolAccounts(const QString &proto);
    /// The client unloaded the protocol \a proto: removes its entry from the add menu. Its rows stay.
    void removeProtocolAccounts(const QString &proto);

protected Q_SLOTS:
    /// The question whether to disable the account of the row that was changed last was closed with \a result;
    /// QMessageBox::Yes disables it.
    void disableAccountAccepted(int result);
    /// The question whether to remove an account was closed with \a result; QMessageBox::Yes removes the account of the
    /// row that is selected now.
    void removeAccountAccepted(int result);
    /// Opens the window for a new account of the protocol whose entry of the add menu emitted the signal.
    void addAccount();
    /// Opens the edit window of the account that is selected.
    void editAccount();
    /// Enables the buttons Edit and Remove while there is a current row.
    void itemSelectionChanged();
    /// The check box of \a item was changed: enables its account or disables it, with a question when it is logged in.
    /// A change in any \a column counts.
    void setAccountEnabled(QTreeWidgetItem *item, int column);
    /// Opens the question whether to remove the account that is selected.
    void removeAccount();
    /// Emits the core signal "register_account", which the client answers with its window for registrations.
    void registerAccount();
    /// Opens the edit window of the account in the row \a item, whatever the \a column.
    void itemActivated(QTreeWidgetItem *item, int column);
    /// The user chose the entry \a index of the selector: its account becomes the main account.
    void mainAccountChanged(int index);

protected:
    /// Brings the list up to date before the page is shown.
    void showEvent(QShowEvent *event) override;

private:
    Q_DISABLE_COPY(KirvAccountsTab)
    friend class KirvEditAccountDialog;
    /// Account id and protocol name.
    typedef QPair<QString, QString> AccountKey;

    void setupGui();
    void setupList();
    void disableAccount();
    void openEditDialog(const QString &accountId, const QString &protocolName);
    void showDisableQuestion(const QString &accountId, const QString &protocolName);
    void showQuestion(const QString &title, const QString &question, const char *answerSlot);
    void offerAsMainAccount(KirvAccountConnection *account, AccountKey &key, const QString &alias);
    void removeFromSelector(const QString &accountId, const QString &protocolName);
    void connectSelector(bool connected);
    void connectCheckBoxes(bool connected);
    void setCheckStateDisconnected(QTreeWidgetItem *row, Qt::CheckState state);
    bool pendingRowIsListed() const;

    static KirvAccountsTab *instance;

    QComboBox *mainAccountBox;
    QTreeWidget *accountList;
    QMenu *addMenu;
    QToolButton *addButton;
    QToolButton *editButton;
    QToolButton *removeButton;
    QString pendingAccountId;
    QString pendingProtocol;
    QTreeWidgetItem *pendingItem;
    QHash<QAction *, QString> protocolActions;
    KirvEditAccountDialog *accEdit;
    /// How many refreshes have begun: a refresh finds by it that another one ran inside it.
    int refreshCount;
    /// The row whose disable question was opened last, until the refresh that follows is over. Only compared.
    QTreeWidgetItem *rowInQuestion;
    /// The account of each entry of the selector, in its order: finds the entry of an account when the
    /// pointer in it must not be followed any more.
    QVector<AccountKey> offeredAccounts;
    /// The icon of each path, kept until a protocol with that path is read again.
    QHash<QString, QIcon> icons;
    /// The path and the icon that were used last, which spare most look-ups: accounts of one protocol mostly stand
    /// together.
    QString lastIconPath;
    QIcon lastIcon;
};

#endif
