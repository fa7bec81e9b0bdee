// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_EDIT_WINDOW_BINDING_H
#define KIRV_EDIT_WINDOW_BINDING_H

#include "core/values/kirv_account_key.h"

#include <QDateTime>
#include <QObject>
#include <QPointer>

class KirvAccount;
class KirvAccountCollection;
class QDialog;
class QLabel;
class QLineEdit;
class QTabWidget;
class QWidget;

/// What the client adds to one open edit window: window and controller go together when either is done, Save is
/// one transaction, and the directory tab says why its fields are locked. Owned by the window.
class KirvEditWindowBinding : public QObject {
    Q_OBJECT

public:
    /// \a window is the edit window, fully built, \a controller its edit dialog. \a accounts outlives both.
    KirvEditWindowBinding(QDialog *window, QObject *controller, KirvAccountCollection &accounts);
    ~KirvEditWindowBinding() override;

    /// The account that the window edits.
    KirvAccountKey key() const { return accountKey; }
    /// Closes the window as Cancel does; the window and the controller are deleted when control returns to the
    /// event loop.
    void close();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void bindButtons();
    void bindDirectory();
    void startWithBlankEntry();
    void save();
    void tellSaveFailed();
    void accountChanged(KirvAccount *account);
    void updatePassword(const KirvAccount &account);
    void updateDirectory(const KirvAccount &account);
    void updateDirectoryStatus();
    QString directoryStatus(const KirvAccount *account) const;
    bool isDirectoryLocked() const;

    QDialog *window;
    QPointer<QObject> controller;
    KirvAccountCollection &accounts;
    KirvAccountKey accountKey;
    QTabWidget *tabs;
    QLineEdit *passwordEdit;
    QString knownPassword; ///< of the account, as far as the window has learnt of it
    QLabel *directoryLabel;
    QPointer<QWidget> directoryFields; ///< null when the protocol has no directory
    QDateTime directoryLocked; ///< when the fields were locked last
    bool wasLoggedIn = false;
};

#endif
