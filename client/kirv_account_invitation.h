// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNT_INVITATION_H
#define KIRV_ACCOUNT_INVITATION_H

#include <QPointer>
#include <QWidget>

class QLabel;
class QMenu;
class QPushButton;

/// What stands in place of the list while there is no account: a sentence, and the ways to get one.
class KirvAccountInvitation : public QWidget {
    Q_OBJECT

public:
    explicit KirvAccountInvitation(QWidget *parent = nullptr);

    /// The menu of the protocols, which the button opens; not owned. While it is empty the button is disabled.
    void setAddMenu(QMenu *menu);
    /// Offers to import the accounts of Pidgin; with an empty \a path not any more. It is the path of its file.
    void offerPidgin(const QString &path);
    /// To be called when the invitation is in its window: gives the buttons mnemonics that the window has not.
    void chooseMnemonics();
    /// Why no account can be added while no protocol is loaded.
    static QString noProtocolText();
    /// Gives the keyboard focus to the first button that can be used.
    void takeFocus();

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void registrationRequested();
    /// The user wants to choose a file with accounts.
    void importRequested();
    /// The user wants to import the file \a path.
    void pidginRequested(const QString &path);

private:
    QPushButton *createButton(const char *name, const QString &toolTip);
    void updateAddButton();
    void updateText();

    QLabel *text;
    QPushButton *addButton;
    QPushButton *registerButton;
    QPushButton *importButton;
    QPushButton *pidginButton;
    QString pidginFile;
    QPointer<QMenu> addMenu;
};

#endif
