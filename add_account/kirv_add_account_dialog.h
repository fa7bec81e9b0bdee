// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ADD_ACCOUNT_DIALOG_H
#define KIRV_ADD_ACCOUNT_DIALOG_H

#include "accounts_tab/kirv_gui_accounts_tab_export.h"

#include <QObject>
#include <QString>

class KirvFieldWidget;
class KirvProtocol;
class QCheckBox;
class QComboBox;
class QDialog;
class QDialogButtonBox;
class QFormLayout;
class QLineEdit;
class QPushButton;
class QWidget;

/// The controller of the window in which the user adds one account of one protocol.
///
/// It drives a window built from the layout "AddAccount" and deletes itself when that window has finished, so
/// create it on the heap, call exec() and do not touch it afterwards.
class KIRV_GUI_ACCOUNTS_TAB_EXPORT KirvAddAccountDialog : public QObject {
    Q_OBJECT

public:
    /// Builds the window without showing it, as a child of \a parent. \a protocol must not be null, is not
    /// owned and must live as long as the window. \a configuration names the ready-made configuration to start
    /// with; an empty string starts with none.
    KirvAddAccountDialog(KirvProtocol *protocol, const QString &configuration, QWidget *parent, Qt::WindowFlags flags);
    ~KirvAddAccountDialog() override;

    /// Runs the window: QDialog::Accepted after an account was created, QDialog::Rejected otherwise.
    int exec();

protected Q_SLOTS:
    void textChanged(const QString &text);
    void addAccount();
    void finished(int result);
    void configurationChanged(const QString &name);
    void reject();

private:
    Q_DISABLE_COPY(KirvAddAccountDialog)

    void setupGui();
    void setupConfigurations(QComboBox *configurations, QWidget *label);
    void setupFieldWidget(QFormLayout *loginForm);
    void setupPresences();
    void setupLoginValidation();
    void selectInitialConfiguration(QComboBox *configurations);

    KirvProtocol *protocol;
    KirvFieldWidget *fieldWidget;
    QLineEdit *passwordEdit;
    QLineEdit *usernameEdit;
    QComboBox *presenceCombo;
    QCheckBox *rememberPasswordCheckbox;
    QPushButton *saveButton;
    QDialog *dialog;
    QString initialConfiguration;
};

#endif
