// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_EDIT_WINDOW_COMPANION_H
#define KIRV_EDIT_WINDOW_COMPANION_H

#include "client/kirv_typed_input.h"
#include "core/ui/kirv_layout_dialog.h"
#include "core/values/kirv_account_key.h"

#include <QHash>
#include <QList>
#include <QPointer>
#include <QSet>

class KirvAccount;
class KirvAccountCollection;
class KirvDirectoryGuard;
class KirvEditAccountDialog;
class KirvFieldForm;
class KirvProtocolBase;
class KirvServerCommands;
class QDialogButtonBox;
class QLabel;
class QLineEdit;
class QPushButton;

/// What the client adds to an edit window: Save is one change, which keeps the window open when it is refused or until
/// its directory entry is published; a picture that is refused is not shown; window and controller end together, and
/// with the account.
///
/// Save's clicked() begins the change, before the slot of the page that fills it; the window's done() commits it.
/// Owned by the window.
class KirvEditWindowCompanion : public KirvWindowCompanion {
    Q_OBJECT

public:
    /// \a window was just built for \a controller. \a accounts and \a serverCommands outlive both.
    KirvEditWindowCompanion(KirvLayoutDialog *window, KirvEditAccountDialog *controller,
                            KirvAccountCollection &accounts, KirvServerCommands &serverCommands);
    ~KirvEditWindowCompanion() override;

    /// The account that the window edits.
    KirvAccountKey key() const { return accountKey; }
    /// Closes the window as Cancel does and ends its controller at once: nothing of it is followed any more.
    void close();
    /// Whether the user has entered anything, or it is being published.
    bool hasInput() const { return input.isIn(window()) || !disabled.isEmpty(); }

    void aboutToShow() override;
    bool mayFinish(int result) override;

private:
    void bindWindow();
    void addServerAccountButton();
    void findSettings(const KirvProtocolBase &protocol);
    void showIdentifierAsPlainText();
    void describeParts();
    void fitToScreen();
    void showDescriptionAsPlainText(const KirvAccount &account);
    void beginSave();
    bool commitSave();
    void endClick();
    void setPublishing(bool isPublishing);
    void onPublicationEnded(bool succeeded);
    void watchRefusals(const KirvAccount &account);
    void showRefusal(const QString &title, const QString &advice);
    void onAccountChanged(KirvAccount *account);
    void addReasons();
    void showSecrets(const KirvAccount &account);
    void showReasons(const KirvAccount &account);

    QPointer<KirvEditAccountDialog> controller;
    KirvAccountCollection &accounts;
    KirvServerCommands &serverCommands;
    const KirvAccountKey accountKey;
    QDialogButtonBox *buttons;
    QPushButton *saveButton;
    QLineEdit *passwordEdit;
    KirvDirectoryGuard *directory = nullptr; ///< from the first showing on
    KirvTypedInput input;
    QPointer<KirvAccount> saving; ///< while the change of a Save is open
    QPointer<KirvFieldForm> settings; ///< null when the protocol has none
    QHash<QString, QPointer<QLabel>> reasons; ///< why secrets are not shown, by field; that of the password is empty
    QSet<QString> unshownSecrets; ///< fields of secret settings that the window shows as empty
    QString knownPassword; ///< of the account, as far as the window shows it
    bool wasRefused = false; ///< a change of the account, by what the event loop is running now
    bool keepsOpen = false; ///< whatever else the click on Save leads to
    bool isBound = false;
    QList<QPointer<QWidget>> disabled; ///< while a publication is awaited
};

#endif
