// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_password_dialog.h"

#include "client/kirv_plain_text.h"
#include "client/kirv_remember_box.h"
#include "core/accounts/kirv_account.h"
#include "core/ui/kirv_length_limit.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

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

    auto *question = new QLabel(this);
    question->setObjectName(QStringLiteral("PasswordQuestion_Text"));
    question->setTextFormat(Qt::PlainText);
    question->setWordWrap(true);
    //: %1 = name of an account, %2 = its protocol
    question->setText(kirvPlainName(
        tr("Enter the password of the account %1 (%2).").arg(account.displayName(), account.key().protocol)));

    passwordEdit->setObjectName(QStringLiteral("PasswordQuestion_Password"));
    passwordEdit->setAccessibleName(tr("Password"));
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
    layout->addWidget(question);
    layout->addWidget(passwordEdit);
    layout->addWidget(rememberBox);
    if (forNow) {
        rememberBox->hide();
        auto *reason = new QLabel(kirvPlainName(KirvSecretTexts(account.secrets()).obstacle()), this);
        reason->setObjectName(QStringLiteral("PasswordQuestion_Reason"));
        reason->setTextFormat(Qt::PlainText);
        reason->setWordWrap(true);
        layout->addWidget(reason);
    } else {
        new KirvRememberBox(rememberBox, account.secrets(), KirvRememberBox::AsItIs);
    }
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
