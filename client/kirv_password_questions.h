// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PASSWORD_QUESTIONS_H
#define KIRV_PASSWORD_QUESTIONS_H

#include "core/values/kirv_account_key.h"

#include <QList>
#include <QObject>
#include <QPointer>

class KirvAccount;
class KirvAccountCollection;
class KirvPasswordDialog;
class QWidget;

/// Asks for passwords, one account after the other, without stopping the rest of the program. A question goes
/// when its account does.
class KirvPasswordQuestions : public QObject {
    Q_OBJECT

public:
    /// Asks whenever \a accounts, which outlives the questions, needs a password. \a window is the parent of
    /// the dialogs and owns the questions.
    KirvPasswordQuestions(KirvAccountCollection &accounts, QWidget *window);

    /// Asks for the password of \a account, after the questions asked before; once at a time.
    void ask(const KirvAccount *account);
    /// Takes back the questions about the accounts of \a protocol.
    void closeQuestionsOf(const QString &protocol);

private:
    void withdraw(const KirvAccountKey &key);
    void openNext();
    void answered(int result);

    KirvAccountCollection &accounts;
    QWidget *window;
    QList<KirvAccountKey> waiting;
    QPointer<KirvPasswordDialog> dialog; ///< null while no question is open
};

#endif
