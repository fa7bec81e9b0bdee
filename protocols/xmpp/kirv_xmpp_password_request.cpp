// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_password_request.h"

#include "protocols/xmpp/kirv_xmpp_connection.h"
#include "protocols/xmpp/kirv_xmpp_fields.h"
#include "protocols/xmpp/kirv_xmpp_xml.h"

namespace {

const auto passwordId = QStringLiteral("new_password");
const auto repetitionId = QStringLiteral("repetition");

} // namespace

KirvXmppPasswordRequest::KirvXmppPasswordRequest(KirvXmppConnection *connection, QObject *parent)
    : KirvXmppAccountRequest(connection, parent)
{
}

QString KirvXmppPasswordRequest::title() const
{
    return tr("Change Password on Server");
}

void KirvXmppPasswordRequest::start()
{
    Step step;
    //: %1 = the address of an account
    step.text = tr("The account %1 gets a new password on its server. All clients need it then.").arg(address());
    step.fields = { KirvField::password(tr("New password"), passwordId, QString(), QString()),
                    KirvField::password(tr("The same again"), repetitionId, QString(), QString()) };
    for (KirvField &field : step.fields)
        field.setRequired(true);
    step.command = tr("Change Password");
    Q_EMIT stepReady(step);
}

void KirvXmppPasswordRequest::submit(const QList<KirvField> &filled)
{
    const QString password = kirvXmppTextOf(filled, passwordId);
    if (password.isEmpty()) {
        Q_EMIT inputRejected(tr("Enter the new password."));
        return;
    }
    if (password != kirvXmppTextOf(filled, repetitionId)) {
        Q_EMIT inputRejected(tr("The two passwords are different. Enter the same password twice."));
        return;
    }
    if (!kirvXmppIsSendable(password)) {
        Q_EMIT inputRejected(tr("The password holds characters that cannot be sent."));
        return;
    }
    Result result;
    result.kind = Result::PasswordChanged;
    result.password = password;
    carryOut(
        tr("Changing the password…"),
        [password](KirvXmppConnection &connection, const KirvXmppConnection::Receiver &receiver) {
            connection.changePassword(password, receiver);
        },
        result);
}
