// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_account_request.h"

#include "protocols/xmpp/kirv_xmpp_connection.h"

KirvXmppAccountRequest::KirvXmppAccountRequest(KirvXmppConnection *connection, QObject *parent)
    : KirvServerRequest(parent)
    , connection(connection)
    , accountAddress(connection->login().id)
{
    // Later: a connection that the reply itself has ended is still to deliver it.
    connect(connection, &KirvConnection::stateChanged, this, [this](KirvConnection::State state) {
        if (state != KirvConnection::Online)
            QMetaObject::invokeMethod(this, &KirvXmppAccountRequest::failWithConnection, Qt::QueuedConnection);
    });
    connect(connection, &QObject::destroyed, this, &KirvXmppAccountRequest::failWithConnection, Qt::QueuedConnection);
}

void KirvXmppAccountRequest::carryOut(const QString &text, const Operation &operation, const Result &result)
{
    isUnderWay = true;
    const QPointer<KirvXmppAccountRequest> alive(this);
    Q_EMIT waiting(text);
    if (!alive)
        return;
    if (!connection) {
        failWithConnection();
        return;
    }
    operation(*connection, [alive, result](const KirvFailure &failure) {
        if (alive)
            alive->finish(failure, result);
    });
}

void KirvXmppAccountRequest::finish(const KirvFailure &failure, const Result &result)
{
    if (!isUnderWay)
        return;
    isUnderWay = false;
    if (failure.isFailure())
        Q_EMIT failed(failure);
    else
        Q_EMIT succeeded(result);
}

void KirvXmppAccountRequest::failWithConnection()
{
    finish(KirvFailure::ConnectionLost, Result());
}
