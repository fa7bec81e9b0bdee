// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_password_dialog.h"

#include "host/kirv_account_connection.h"
#include "protocols/xmpp/kirv_xmpp_connection.h"
#include "protocols/xmpp/kirv_xmpp_xml.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

QLineEdit *createPasswordEdit(const QString &objectName, const QString &name, QWidget *parent)
{
    auto *edit = new QLineEdit(parent);
    edit->setObjectName(objectName);
    edit->setAccessibleName(name);
    edit->setEchoMode(QLineEdit::Password);
    return edit;
}

} // namespace

void KirvXmppPasswordDialog::open(KirvXmppConnection *connection, QWidget *window)
{
    auto *dialog = new KirvXmppPasswordDialog(connection, window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->show();
}

KirvXmppPasswordDialog::KirvXmppPasswordDialog(KirvXmppConnection *connection, QWidget *window)
    : QDialog(window)
    , connection(connection)
{
    setObjectName(QStringLiteral("XmppPassword"));
    setWindowTitle(tr("Change Password on Server"));
    setWindowModality(Qt::WindowModal);
    build(connection->account()->getUid());
    updateButtons();
    connect(connection, &QObject::destroyed, this, &QDialog::reject);
    connect(connection, &KirvConnection::stateChanged, this, [this] {
        if (isBusy && !this->connection->isLoggedIn())
            finish(KirvFailure::ConnectionLost);
    });
}

void KirvXmppPasswordDialog::build(const QString &login)
{
    auto *introduction = new QLabel(this);
    introduction->setObjectName(QStringLiteral("XmppPassword_Introduction"));
    introduction->setTextFormat(Qt::PlainText);
    introduction->setWordWrap(true);
    //: %1 = the address of an account
    introduction->setText(tr("The server gives the account %1 the new password; all clients need it then.").arg(login));

    passwordEdit = createPasswordEdit(QStringLiteral("XmppPassword_Password"), tr("New password"), this);
    repetitionEdit = createPasswordEdit(QStringLiteral("XmppPassword_Repetition"), tr("The same again"), this);
    connect(passwordEdit, &QLineEdit::textChanged, this, &KirvXmppPasswordDialog::updateButtons);
    connect(repetitionEdit, &QLineEdit::textChanged, this, &KirvXmppPasswordDialog::updateButtons);

    message = new QLabel(this);
    message->setObjectName(QStringLiteral("XmppPassword_Message"));
    message->setTextFormat(Qt::PlainText);
    message->setWordWrap(true);
    message->hide();

    buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->setObjectName(QStringLiteral("XmppPassword_Buttons"));
    buttons->button(QDialogButtonBox::Ok)->setText(tr("C&hange Password"));
    connect(buttons, &QDialogButtonBox::accepted, this, &KirvXmppPasswordDialog::changePassword);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *form = new QFormLayout;
    form->addRow(tr("&New password:"), passwordEdit);
    form->addRow(tr("The same &again:"), repetitionEdit);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(introduction);
    layout->addLayout(form);
    layout->addWidget(message);
    layout->addStretch();
    layout->addWidget(buttons);
}

void KirvXmppPasswordDialog::updateButtons()
{
    const bool isTwice = !passwordEdit->text().isEmpty() && passwordEdit->text() == repetitionEdit->text();
    passwordEdit->setEnabled(!isBusy);
    repetitionEdit->setEnabled(!isBusy);
    buttons->button(QDialogButtonBox::Ok)->setEnabled(isTwice && !isBusy);
}

void KirvXmppPasswordDialog::changePassword()
{
    const QString password = passwordEdit->text();
    if (!kirvXmppIsSendable(password)) {
        say(tr("The password holds characters that cannot be sent."));
        return;
    }
    isBusy = true;
    updateButtons();
    say(tr("The server is asked…"));
    const QPointer<KirvXmppPasswordDialog> alive(this);
    const QPointer<KirvXmppConnection> asked(connection);
    connection->changePassword(password, [alive, asked, password](const KirvFailure &failure) {
        // Also when the dialog was closed meanwhile: the server has the new password now.
        if (!failure.isFailure() && asked)
            asked->account()->setPassword(password);
        if (alive)
            alive->finish(failure);
    });
}

void KirvXmppPasswordDialog::finish(const KirvFailure &failure)
{
    isBusy = false;
    if (!failure.isFailure()) {
        accept();
        return;
    }
    say(failure.text());
    updateButtons();
}

void KirvXmppPasswordDialog::say(const QString &text)
{
    message->setText(text);
    message->show();
}
