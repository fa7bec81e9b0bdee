// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_DIRECTORY_GUARD_H
#define KIRV_DIRECTORY_GUARD_H

#include "core/accounts/kirv_account_directory.h"
#include "core/values/kirv_account_key.h"

#include <QObject>
#include <QPointer>

class KirvAccount;
class KirvAccountCollection;
class KirvEditAccountDialog;
class KirvFieldWidget;
class QAbstractButton;
class QDialog;
class QLabel;

/// The directory tab of one edit window: delivers the answers that the window is to show, says why its fields are
/// locked, disables its requests while the account is off line, and brings back what was typed when it could not be
/// published. Owned by the window.
class KirvDirectoryGuard : public QObject {
    Q_OBJECT

public:
    /// \a controller drives \a window, which has everything in place. \a accounts outlives both.
    KirvDirectoryGuard(QDialog *window, KirvEditAccountDialog *controller, KirvAccountCollection &accounts);
    ~KirvDirectoryGuard() override;

    /// A save begins, and ends; what it publishes is only sent when it was \a saved.
    void saveBegins();
    void saveEnded(bool saved);
    /// Whether the last save published something that is without its answer. publicationEnded() follows.
    bool isPublishing() const { return publishing; }
    /// Whether the save that began would publish values that are wrong: it must not be saved.
    bool wouldPublishWrong() const { return !wrong.isEmpty(); }
    /// Whether something was typed that the last save could not publish, as the account was off line. It stays typed.
    bool isLeftUnpublished() const { return leftUnpublished; }
    /// Brings what was left to the front, and says why again to assistive technology.
    void showUnpublished();
    /// Brings the wrong values to the front and says what is wrong with them, after saveEnded().
    void showWrongEntry();
    /// Brings the tab with the fields to the front; what is typed there stays.
    void showFields();

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// The entry is on the server; or it is not, and the fields hold again what was typed.
    void publicationEnded(bool succeeded);

private:
    /// A button that sends a request, with what it says of itself.
    struct Button {
        QPointer<QAbstractButton> button;
        QString toolTip;
        QString description; ///< for assistive technology
    };

    KirvAccount *account() const;
    void findFields();
    void findControls(QWidget *place);
    void findButtons();
    void fetchWhenVisible();
    void deliver(const QList<KirvField> &fields);
    void receive(KirvAccountDirectory::Operation operation, const KirvDirectoryAnswer &answer);
    void restoreTyped();
    QStringList wrongChanges() const;
    bool hasChanges() const;
    void announceStatus();
    void onAccountChanged(KirvAccount *changed);
    void updateStatus();
    void updateButtons();
    QString statusText() const;
    static QString offlineText();
    bool isLocked() const;

    QDialog *window;
    QPointer<KirvEditAccountDialog> controller;
    KirvAccountCollection &accounts;
    const KirvAccountKey key;
    QLabel *status = nullptr;
    QList<Button> buttons;
    QPointer<KirvFieldWidget> fields; ///< null when the protocol has no directory
    KirvFailure failure; ///< of the latest request
    QList<KirvField> typed; ///< when the save began
    QStringList wrong; ///< ids of what the latest save would have published and is wrong
    bool wasLocked = false; ///< when the save began
    bool publishing = false;
    bool leftUnpublished = false; ///< by the latest save
    bool wasOnline = false;
};

#endif
