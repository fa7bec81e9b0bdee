// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_CERTIFICATE_QUESTIONS_H
#define KIRV_CERTIFICATE_QUESTIONS_H

#include "core/values/kirv_account_key.h"

#include <QObject>
#include <QPointer>
#include <QSet>

class KirvAccount;
class KirvAccountCollection;
class KirvCertificateQuestion;
class QWidget;

/// Asks about certificates of servers that are not trusted, one at a time, without stopping the rest of the program.
///
/// A question opens when the user requests it, and by itself when the first log-in of an account that was just added is
/// refused for the certificate and no other question is open. It is closed when the account goes, is disabled or logs
/// in, and when the server shows another certificate by now.
class KirvCertificateQuestions : public QObject {
    Q_OBJECT

public:
    /// \a accounts outlives the questions. \a window is the parent of the windows and owns the questions.
    KirvCertificateQuestions(KirvAccountCollection &accounts, QWidget *window);

    /// Shows the certificate of the server of \a account: the one that was refused, or the one that is trusted. Does
    /// nothing when there is none.
    void show(const KirvAccount *account);
    /// Closes the question about an account of \a protocol.
    void closeQuestionsOf(const QString &protocol);

private:
    void accountChanged(const KirvAccount *account);
    void withdraw(const KirvAccountKey &key);
    bool isOutdated(const KirvAccount &account) const;
    void finish(int result);

    KirvAccountCollection &accounts;
    QWidget *const window;
    QSet<KirvAccountKey> added; ///< accounts whose first log-in has not ended
    QPointer<KirvCertificateQuestion> question; ///< null while none is open
};

#endif
