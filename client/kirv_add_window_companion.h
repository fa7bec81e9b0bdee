// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ADD_WINDOW_COMPANION_H
#define KIRV_ADD_WINDOW_COMPANION_H

#include "client/kirv_typed_input.h"
#include "core/ui/kirv_layout_dialog.h"
#include "core/values/kirv_account_key.h"

#include <QPointer>
#include <QString>

class KirvAccountCollection;
class KirvAddAccountDialog;
class KirvAdvancedSection;
class KirvField;
class KirvFieldWidget;
struct KirvLogin;
class KirvLoginLine;
class KirvLoginTestView;
class KirvProtocolBase;
class QLabel;
class QLineEdit;
class QPushButton;

/// What the client adds to an add window: its settings are below "Advanced", it tests the log-in, it says what is wrong
/// with the login and why it cannot be saved yet, it ends with its protocol, and its message about a refused account
/// says the true reason. Owned by the window.
class KirvAddWindowCompanion : public KirvWindowCompanion {
    Q_OBJECT

public:
    /// \a window was just built for \a controller. \a accounts outlives it.
    KirvAddWindowCompanion(KirvLayoutDialog *window, const KirvAddAccountDialog *controller,
                           const KirvAccountCollection &accounts);

    /// The name of the protocol that the window adds an account of.
    QString protocol() const { return protocolName; }
    /// Closes the window, and the boxes over it, as Cancel does.
    void close();
    /// Whether the user has entered anything.
    bool hasInput() const { return input.isIn(window()); }
    /// The account \a key could not be created. Whether the window was just adding it: its message says why then.
    bool takeRefusal(const KirvAccountKey &key, const QString &reason);

    void aboutToShow() override;

private:
    void setUpLogin();
    void setUpSettings();
    void setUpSaving();
    void setUpTest();
    void takeNewSettings();
    void fitHeight();
    int wantedHeight(int width) const;
    void growToFit();
    void updateSaving();
    void updateTest();
    KirvLogin typedLogin() const;
    QList<KirvField> settingsFields() const;
    QString settingsProblem() const;
    void openAdvancedForProblem();
    void correctMessage(const KirvAccountKey &key, const QString &reason);

    const KirvAccountCollection &accounts;
    const QPointer<KirvProtocolBase> base; ///< null: the protocol has gone, and the window is about to
    const QString protocolName;
    QLineEdit *loginEdit = nullptr;
    QLineEdit *passwordEdit = nullptr;
    KirvLoginLine *loginLine = nullptr;
    KirvFieldWidget *settings = nullptr; ///< null when the protocol has none
    KirvAdvancedSection *advanced = nullptr; ///< null where the layout has no place for it
    QLabel *saveHint = nullptr; ///< null where the layout has no place for it
    KirvLoginTestView *test = nullptr; ///< null where the layout has no place for it
    KirvTypedInput input;
    QPushButton *saveWithoutPassword = nullptr;
    bool isAdding = false; ///< while the click on Save leads to what it leads to
};

#endif
