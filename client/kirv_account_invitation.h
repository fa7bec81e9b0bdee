// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNT_INVITATION_H
#define KIRV_ACCOUNT_INVITATION_H

#include <QPointer>
#include <QWidget>

class QMenu;
class QPushButton;

/// What stands in place of the list while there is no account: a sentence, and the two ways to get one.
class KirvAccountInvitation : public QWidget {
    Q_OBJECT

public:
    explicit KirvAccountInvitation(QWidget *parent = nullptr);

    /// The menu of the protocols, which the button opens; not owned. While it is empty the button is disabled.
    void setAddMenu(QMenu *menu);
    /// To be called when the invitation is in its window: gives the buttons mnemonics that the window has not.
    void chooseMnemonics();
    /// Gives the keyboard focus to the first button that can be used.
    void takeFocus();

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void registrationRequested();

private:
    void updateAddButton();

    QPushButton *addButton;
    QPushButton *registerButton;
    QPointer<QMenu> addMenu;
};

#endif
