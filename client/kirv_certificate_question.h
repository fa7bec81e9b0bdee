// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_CERTIFICATE_QUESTION_H
#define KIRV_CERTIFICATE_QUESTION_H

#include "core/protocol/kirv_server_certificate.h"
#include "core/values/kirv_account_key.h"

#include <QDialog>

class KirvAccount;
class KirvFormArea;
class QFormLayout;

/// Shows a certificate that a server has shown and that is not trusted by itself, and asks whether it is to be trusted
/// for one account, or not any more. Nothing is changed when the window is closed in any other way than by the button
/// that says so.
class KirvCertificateQuestion : public QDialog {
    Q_OBJECT

public:
    enum Kind {
        ToTrust, ///< the log-in was refused for it; accept() means to trust it
        ToForget ///< it is trusted; accept() means not to trust it any more
    };

    /// Of \a certificate, all but the fingerprint may be missing.
    KirvCertificateQuestion(Kind kind, const KirvAccount &account, const KirvServerCertificate &certificate,
                            QWidget *parent);

    KirvAccountKey key() const { return accountKey; }
    Kind kind() const { return questionKind; }
    const KirvServerCertificate &certificate() const { return shown; }

protected:
    void showEvent(QShowEvent *event) override;

private:
    QWidget *createPage(const KirvAccount &account);
    QString heading(const KirvAccount &account) const;
    QWidget *createDetails(const KirvAccount &account);
    void addDetail(QFormLayout *details, const char *name, const QString &label, const QString &text,
                   bool isFingerprint);
    QWidget *createButtons();
    void grow();

    const KirvAccountKey accountKey;
    const Kind questionKind;
    const KirvServerCertificate shown;
    KirvFormArea *area;
};

#endif
