// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_EDIT_ACCOUNT_DIALOG_H
#define KIRV_EDIT_ACCOUNT_DIALOG_H

#include "accounts_tab/kirv_gui_accounts_tab_export.h"
#include "host/kirv_field.h"

#include <QList>
#include <QObject>
#include <QScopedPointer>
#include <QString>

class KirvAccountConnection;
class KirvAccountWindow;
class KirvAvatarQuickSetWidget;
class KirvFieldWidget;
class KirvProtocol;
class QCheckBox;
class QComboBox;
class QDialog;
class QLineEdit;
class QPushButton;
class QTabWidget;
class QTextEdit;
class QWidget;

/// The controller of the window in which the user changes one account and its directory entry.
///
/// It drives a window built from the layout "EditAccount" and shows it, modal to its parent, before the
/// constructor returns. The page records the controller made last (KirvAccountsTab::getAccEdit()) and deletes
/// the one before. It may be deleted at any time; its window is not deleted with it.
class KIRV_GUI_ACCOUNTS_TAB_EXPORT KirvEditAccountDialog : public QObject {
    Q_OBJECT

public:
    /// Opens the window for the account \a accountId of the protocol \a protocolName, as a child of \a parent.
    /// When no protocol of that name is loaded there is no window and the page does not record the controller:
    /// the caller owns it. \a flags are replaced by Qt::Dialog.
    KirvEditAccountDialog(const QString &accountId, const QString &protocolName, QWidget *parent,
                          Qt::WindowFlags flags);
    ~KirvEditAccountDialog() override;

    /// Blocks until the window is closed and returns its result; QDialog::Rejected when there is no window.
    int exec();

    /// The id of the account that is edited.
    QString getAccountId() const;
    /// The name of its protocol, as it was given to the constructor. Valid also when the protocol has been unloaded.
    QString getProtocolName() const;
    /// The window that this controller drives. Null while it is being loaded, when there is none and after the window
    /// was destroyed. Not owned by the caller.
    QDialog *getWindow() const;

    /// The controller that drives \a window. Null for a null pointer, for every other widget (also for those inside
    /// the window), and as soon as the window or its controller is destroyed.
    ///
    /// It is found from inside KirvUILoader::loadUI() already, so that a client can announce the window as soon as it
    /// is built: while a controller loads its window, each dialog without a parent widget that no controller drives is
    /// taken for that window. When windows are loaded inside each other, this holds for the innermost loading.
    static KirvEditAccountDialog *of(const QWidget *window);

protected Q_SLOTS:
    /// Writes to the account what the window shows, and publishes the directory entry when it was changed.
    void saveSettings();
    /// Saves and closes the window with QDialog::Accepted.
    void saveAndClose();
    /// Requests the directory entry; its fields are disabled until the answer arrives.
    void requestPubdirInfo();
    /// Requests that the directory entry is removed; its fields are disabled until the answer arrives.
    void removePubdirInfo();
    /// The tab \a index became the current one: every other than the first requests the directory entry.
    void togglePubdirControl(int index);
    /// Takes the image at \a path as the account's avatar, at once; an empty path takes the avatar away.
    void changeAvatar(const QString &path);
    /// The window has finished; the controller deletes itself. The client connects this slot.
    void finished(int result);
    /// Closes the window with QDialog::Rejected; nothing is saved.
    void reject();

protected:
    /// Handles KirvPubdirAccountReceivedEvent; other events are ignored.
    void customEvent(QEvent *event) override;

private:
    Q_DISABLE_COPY(KirvEditAccountDialog)

    void setupGui();
    void setupData();
    void setupAvatar(KirvAccountConnection *account, QWidget *placeholder);
    void setupPresences(KirvAccountConnection *account);
    void setupAccountSettings(KirvAccountConnection *account, QWidget *placeholder);
    void setupPubdir(QTabWidget *tabs, QWidget *placeholder);
    void setupPubdirControls();
    void savePubdirInfo(KirvAccountConnection *account);
    void savePassword(KirvAccountConnection *account);
    KirvAccountConnection *lockPubdirFields();

    QString accountId;
    KirvProtocol *protocol;
    KirvFieldWidget *accountSettingsWidget;
    QLineEdit *aliasEdit;
    QLineEdit *passwordEdit;
    QCheckBox *rememberPasswordCheck;
    QCheckBox *rememberPresenceCheck;
    QCheckBox *rememberDescriptionCheck;
    QTextEdit *descriptionEdit;
    QComboBox *presenceCombo;
    QPushButton *saveButton;
    QPushButton *cancelButton;
    KirvFieldWidget *pubdirWidget;
    QList<KirvField> pubdirData;
    QDialog *dialog;
    QWidget *pubdirControls;
    KirvAvatarQuickSetWidget *avatarWidget;
    QString protocolName;
    /// Never null. Guards the pointer to the window and makes of() find this controller.
    QScopedPointer<KirvAccountWindow> accountWindow;
};

#endif
