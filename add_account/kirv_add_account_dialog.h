// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ADD_ACCOUNT_DIALOG_H
#define KIRV_ADD_ACCOUNT_DIALOG_H

#include "accounts_tab/kirv_gui_accounts_tab_export.h"

#include <QObject>
#include <QScopedPointer>
#include <QString>

class KirvAccountWindow;
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

    /// The protocol to which the account will belong; not owned.
    KirvProtocol *getProtocol() const;
    /// The window that this controller drives. Null while it is being loaded, when the layout has no dialog and after
    /// the window was destroyed. Not owned by the caller.
    QDialog *getWindow() const;

    /// The controller that drives \a window. Null for a null pointer, for every other widget (also for those inside
    /// the window), and as soon as the window or its controller is destroyed.
    ///
    /// It is found from inside KirvUILoader::loadUI() already, so that a client can announce the window as soon as it
    /// is built: while a controller loads its window, each dialog without a parent widget that no controller drives is
    /// taken for that window. When windows are loaded inside each other, this holds for the innermost loading.
    static KirvAddAccountDialog *of(const QWidget *window);

protected Q_SLOTS:
    /// The login or the password was edited: Save is enabled while neither is empty.
    void textChanged(const QString &text);
    /// Creates the account and closes the window, or says that there is one with that login already.
    void addAccount();
    /// The window has finished; the controller deletes itself.
    void finished(int result);
    /// The user chose the ready-made configuration \a name: the form gets its settings and its login.
    void configurationChanged(const QString &name);
    /// Closes the window without creating an account.
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
    /// Never null. Guards the pointer to the window and makes of() find this controller.
    QScopedPointer<KirvAccountWindow> accountWindow;
};

#endif
