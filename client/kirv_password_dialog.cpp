// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_password_dialog.h"

#include "client/kirv_plain_text.h"
#include "client/kirv_remember_box.h"
#include "client/kirv_text_label.h"
#include "core/accounts/kirv_account.h"
#include "core/ui/kirv_length_limit.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

/// Why the password is needed, a sentence or two.
QString reasonOf(const KirvAccount &account)
{
    const KirvAccountRecord &record = account.record();
    if (account.awaitsPassword())
        return kirvPlainSentence(KirvSecretTexts(account.secrets()).obstacleOf(account));
    if (record.password.isEmpty() && record.unreadSecrets.contains(QString()))
        return KirvSecretTexts::passwordIsGone();
    if (account.lastFailure().kind() == KirvFailure::WrongPassword)
        return KirvPasswordDialog::tr("The server did not accept the password that was used last.");
    if (!record.password.isEmpty())
        return KirvPasswordDialog::tr("The account has a password; the one that you enter takes its place.");
    return record.rememberPassword
        ? KirvPasswordDialog::tr("No password was entered for this account yet.")
        : KirvPasswordDialog::tr("The password is not remembered, so it is needed when the account logs in.");
}

} // namespace

KirvPasswordDialog::KirvPasswordDialog(const KirvAccount &account, QWidget *parent)
    : QDialog(parent)
    , accountKey(account.key())
    , passwordEdit(new QLineEdit(this))
    , rememberBox(new QCheckBox(tr("&Remember the password"), this))
    , forNow(account.awaitsPassword())
{
    setObjectName(QStringLiteral("PasswordQuestion"));
    setWindowTitle(tr("Password Needed"));
    setWindowModality(Qt::WindowModal);

    //: %1 = name of an account, %2 = its protocol
    const QString request = tr("Enter the password of the account %1 (%2).");
    auto *question = kirvCreateText(
        "PasswordQuestion_Text",
        kirvPlainSentence(request.arg(kirvPlainName(account.displayName()), kirvPlainName(account.key().protocol))),
        this);
    auto *reason = kirvCreateText("PasswordQuestion_Reason", reasonOf(account), this);

    passwordEdit->setObjectName(QStringLiteral("PasswordQuestion_Password"));
    passwordEdit->setAccessibleName(tr("Password"));
    passwordEdit->setAccessibleDescription(reason->text());
    passwordEdit->setEchoMode(QLineEdit::Password);
    kirvLimitLength(passwordEdit);

    rememberBox->setObjectName(QStringLiteral("PasswordQuestion_Remember"));
    rememberBox->setChecked(account.record().rememberPassword);
    rememberBox->setToolTip(tr("Keeps the password, so that it is not asked for again."));

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->setObjectName(QStringLiteral("PasswordQuestion_Buttons"));
    QPushButton *okButton = buttons->button(QDialogButtonBox::Ok);
    okButton->setText(tr("&Log In"));
    okButton->setEnabled(false);
    connect(passwordEdit, &QLineEdit::textChanged, okButton,
            [okButton](const QString &text) { okButton->setEnabled(!text.isEmpty()); });
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *layout = new QVBoxLayout(this);
    for (QWidget *part : { static_cast<QWidget *>(question), static_cast<QWidget *>(reason),
                           static_cast<QWidget *>(passwordEdit), static_cast<QWidget *>(rememberBox) })
        layout->addWidget(part);
    if (forNow)
        rememberBox->hide();
    else
        new KirvRememberBox(rememberBox, account.secrets(), KirvRememberBox::AsItIs);
    layout->addStretch();
    layout->addWidget(buttons);
    passwordEdit->setFocus();
}

QString KirvPasswordDialog::password() const
{
    return passwordEdit->text();
}

bool KirvPasswordDialog::isToBeRemembered() const
{
    return rememberBox->isChecked();
}
