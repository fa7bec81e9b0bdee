// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PASSWORD_DIALOG_H
#define KIRV_PASSWORD_DIALOG_H

#include "core/values/kirv_account_key.h"

#include <QDialog>

class KirvAccount;
class QCheckBox;
class QLineEdit;

/// Asks for the password of one account, and says why.
class KirvPasswordDialog : public QDialog {
    Q_OBJECT

public:
    KirvPasswordDialog(const KirvAccount &account, QWidget *parent);

    KirvAccountKey key() const { return accountKey; }
    QString password() const;
    bool isToBeRemembered() const;
    /// Whether the password is for this run only: the stored one is in a keyring that cannot be read.
    bool isForNow() const { return forNow; }

private:
    const KirvAccountKey accountKey;
    QLineEdit *passwordEdit;
    QCheckBox *rememberBox;
    const bool forNow;
};

#endif
