// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_XMPP_PASSWORD_DIALOG_H
#define KIRV_XMPP_PASSWORD_DIALOG_H

#include <QDialog>
#include <QPointer>

class KirvFailure;
class KirvXmppConnection;
class QDialogButtonBox;
class QLabel;
class QLineEdit;

/// Changes the password of an account on its server, and then that of the account here.
class KirvXmppPasswordDialog : public QDialog {
    Q_OBJECT

public:
    /// Opens the dialog over \a window. It deletes itself when it is closed, and closes when \a connection goes.
    static void open(KirvXmppConnection *connection, QWidget *window);

private:
    KirvXmppPasswordDialog(KirvXmppConnection *connection, QWidget *window);

    void build(const QString &login);
    void updateButtons();
    void changePassword();
    void finish(const KirvFailure &failure);
    void say(const QString &text);

    QPointer<KirvXmppConnection> connection;
    bool isBusy = false;
    QLineEdit *passwordEdit = nullptr;
    QLineEdit *repetitionEdit = nullptr;
    QLabel *message = nullptr;
    QDialogButtonBox *buttons = nullptr;
};

#endif
