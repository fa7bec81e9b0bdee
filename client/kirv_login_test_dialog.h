// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_LOGIN_TEST_DIALOG_H
#define KIRV_LOGIN_TEST_DIALOG_H

#include "core/values/kirv_account_key.h"

#include <QDialog>
#include <QPointer>

class KirvAccount;
class KirvLoginTestView;
struct KirvLogin;

/// Tests the log-in of an account with what is stored of it when the test begins, and shows what is wrong. The
/// account's own connection is left as it is.
class KirvLoginTestDialog : public QDialog {
    Q_OBJECT

public:
    /// \a account, whose protocol is loaded, is read at the begin of each test. The dialog is closed before it or the
    /// protocol goes.
    KirvLoginTestDialog(const KirvAccount &account, QWidget *parent);

    KirvAccountKey key() const { return accountKey; }

    /// Ends the test, too.
    void done(int result) override;

private:
    KirvLogin storedLogin() const;
    void growToFit();

    const KirvAccountKey accountKey;
    const QPointer<const KirvAccount> tested;
    KirvLoginTestView *view;
};

#endif
