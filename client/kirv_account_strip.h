// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNT_STRIP_H
#define KIRV_ACCOUNT_STRIP_H

#include "core/values/kirv_account_key.h"

#include <QFrame>

class KirvAccount;
class KirvAccountStatus;
class QLabel;
class QPushButton;
class QStackedLayout;
class QTextEdit;

/// Says of one account why it is in its state and what can be done. Its height depends on the window only, and its
/// buttons stay where they are, in one row or, where that is too narrow, in several or without those that the
/// context menu has, too: what cannot be done is disabled. Where the account's state is about the certificate of its
/// server, the button that shows it takes the place of the one for the password.
class KirvAccountStrip : public QFrame {
    Q_OBJECT

public:
    explicit KirvAccountStrip(QWidget *parent = nullptr);

    /// Shows \a account as it is now; null: none. The account is not kept. \a isMain: it is the main account.
    void show(const KirvAccount *account, bool isMain);
    bool isAbout(const KirvAccountKey &account) const { return account == shown; }
    /// Says that \a count accounts are selected.
    void showSeveral(int count);
    /// To be called when the strip is in its window: gives the buttons mnemonics that the window has not.
    void chooseMnemonics();

Q_SIGNALS:
    void logRequested();
    void testRequested();
    void passwordRequested();
    void certificateRequested();
    void reconnectionRequested();
    void editRequested();

protected:
    void changeEvent(QEvent *event) override;

private:
    using QFrame::show;
    void offer(const KirvAccountStatus *status);
    QPushButton *createButton(const char *name, const QString &text, const QString &toolTip);
    void arrange();
    void fixHeight();
    void showNone(const QString &text, const QString &details);

    KirvAccountKey shown; ///< the id is empty: none
    QLabel *icon;
    QLabel *title;
    QTextEdit *reason;
    QPushButton *logButton;
    QPushButton *testButton;
    QPushButton *passwordButton;
    QPushButton *certificateButton;
    QStackedLayout *firstPlace; ///< of one of these two
    QPushButton *reconnectButton;
    QPushButton *editButton;
};

#endif
