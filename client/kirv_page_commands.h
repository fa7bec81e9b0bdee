// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PAGE_COMMANDS_H
#define KIRV_PAGE_COMMANDS_H

#include "core/values/kirv_account_key.h"

#include <QObject>

class KirvAccount;
class KirvAccountCollection;
class KirvAccountGroup;
class KirvAccountHelp;
class KirvMessageBar;
class KirvMovingWindows;
class KirvAccountOrder;
class KirvAccountRows;
class KirvAccountUndo;
class KirvAliasEditor;
class KirvMainAccount;
class KirvServerCommands;
class QAbstractButton;
class QMenu;
class QPoint;
class QToolButton;
class QTreeWidget;

/// The commands on the accounts of the page's list, in its context menu and by keys: F2 renames, Ctrl+N adds, the Menu
/// key and Shift+F10 open the menu. Several selected accounts have a menu of their own, and are removed by the button
/// and the key of the page, which itself removes one only.
class KirvPageCommands : public QObject {
    Q_OBJECT

public:
    /// What the commands work on. Nothing is owned, and all of it outlives them.
    struct Environment {
        const KirvAccountCollection &accounts;
        const KirvAccountRows &rows;
        KirvServerCommands &serverCommands;
        KirvMainAccount &mainAccount;
        KirvAccountUndo &undo;
        KirvAccountGroup &group;
        KirvAccountOrder &order;
        KirvAccountHelp &help;
        KirvMovingWindows &moving;
        KirvMessageBar &messages;
    };

    /// \a top is that of the page's layout and owns this. \a editor renames.
    KirvPageCommands(const Environment &environment, KirvAliasEditor *editor, QWidget *top, QTreeWidget *list);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// The user wants to type the password of \a account.
    void passwordRequested(KirvAccount *account);
    /// The user wants to see the certificate of the server of \a account.
    void certificateRequested(KirvAccount *account);

private:
    void rename();
    void openAddMenu();
    void openMenuOfCurrentRow();
    void openMenu(const KirvAccountKey &key, const QPoint &position);
    void addEditing(QMenu *menu, KirvAccount *account);
    void addHelp(QMenu *menu, KirvAccount *account);
    void addConnecting(QMenu *menu, KirvAccount *account);
    void addPresences(QMenu *menu, KirvAccount *account);
    void openGeneralMenu(const QPoint &position);
    QMenu *createMenu();
    void addMoving(QMenu *menu, KirvAccount *account);
    void addGeneral(QMenu *menu);
    void joinPage();
    void updateButtons();
    void removeSeveral();
    QList<KirvAccountKey> selectedKeys() const;
    void openGroupMenu(const QPoint &position);
    void toggle(const KirvAccountKey &key);
    void remove(const KirvAccountKey &key);
    KirvAccountKey currentKey() const;

    const Environment environment;
    KirvAliasEditor *editor;
    QWidget *top;
    QTreeWidget *list;
    QToolButton *addButton;
    QAbstractButton *removeButton;
    QAbstractButton *editButton;
};

#endif
