// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_deletion_request.h"

#include "protocols/xmpp/kirv_xmpp_connection.h"

KirvXmppDeletionRequest::KirvXmppDeletionRequest(KirvXmppConnection *connection, QObject *parent)
    : KirvXmppAccountRequest(connection, parent)
{
}

QString KirvXmppDeletionRequest::title() const
{
    return tr("Delete Account on Server");
}

void KirvXmppDeletionRequest::start()
{
    isConfirmed = false;
    //: %1 = the address of an account
    showStep(tr("Do you want to delete the account %1 on its server? Its contacts and everything the server keeps for "
                "it are lost.")
                 .arg(address()),
             tr("Delete on Server"));
}

void KirvXmppDeletionRequest::showStep(const QString &text, const QString &command)
{
    Step step;
    step.text = text;
    step.command = command;
    step.isDangerous = true;
    Q_EMIT stepReady(step);
}

void KirvXmppDeletionRequest::submit(const QList<KirvField> &)
{
    if (!isConfirmed) {
        isConfirmed = true;
        //: %1 = the address of an account
        showStep(tr("This cannot be undone, and somebody else can take the address %1 afterwards. Is %1 really to be "
                    "deleted?")
                     .arg(address()),
                 tr("Delete for Good"));
        return;
    }
    Result result;
    result.kind = Result::AccountDeleted;
    carryOut(
        tr("Deleting the account…"),
        [](KirvXmppConnection &connection, const KirvXmppConnection::Receiver &receiver) {
            connection.deleteOnServer(receiver);
        },
        result);
}
