// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_CONNECTION_VIEW_H
#define KIRV_CONNECTION_VIEW_H

#include <QWidget>

class KirvAccount;
class KirvAccountCollection;
class KirvConnectionModel;
class KirvServerCommands;
class QLabel;
class QPushButton;
class QSortFilterProxyModel;
class QTreeView;

/// The page of the connections: what each account is doing, since when, and what went wrong last.
class KirvConnectionView : public QWidget {
    Q_OBJECT

public:
    /// Neither is owned, and both outlive the view.
    KirvConnectionView(KirvAccountCollection &accounts, KirvServerCommands &serverCommands, QWidget *parent = nullptr);

    /// Another account became the main account.
    void refreshMainAccount();
    /// The account of the current row; null when there is none.
    KirvAccount *currentAccount() const;
    void setCurrentAccount(const KirvAccount *account);

Q_SIGNALS:
    /// The user wants to change \a account.
    void editRequested(KirvAccount *account);
    /// The user wants to type the password of \a account.
    void passwordRequested(KirvAccount *account);

private:
    void setupList();
    void setupButtons();
    void updateDetails();
    void edit();
    void reconnect();
    void enterPassword();
    void showMenu(const QPoint &position);

    KirvServerCommands &serverCommands;
    KirvConnectionModel *model;
    QSortFilterProxyModel *sorted;
    QTreeView *list;
    QLabel *details;
    QPushButton *editButton;
    QPushButton *reconnectButton;
    QPushButton *passwordButton;
};

#endif
