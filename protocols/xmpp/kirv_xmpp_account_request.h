// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_XMPP_ACCOUNT_REQUEST_H
#define KIRV_XMPP_ACCOUNT_REQUEST_H

#include "core/protocol/kirv_server_request.h"

#include <QPointer>
#include <functional>

class KirvXmppConnection;

/// What the requests for an existing account share: they work over its connection and end with it.
class KirvXmppAccountRequest : public KirvServerRequest {
    Q_OBJECT

public:
    /// \a connection is not owned; the request survives it.
    KirvXmppAccountRequest(KirvXmppConnection *connection, QObject *parent);

    /// What was sent cannot be taken back.
    bool cancel() override { return !isUnderWay; }

protected:
    /// The address of the account.
    QString address() const { return accountAddress; }
    using Operation = std::function<void(KirvXmppConnection &, const std::function<void(const KirvFailure &)> &)>;
    /// Emits waiting() with \a text and carries \a operation out; emits failed() when it failed, or \a result.
    void carryOut(const QString &text, const Operation &operation, const Result &result);

private:
    void finish(const KirvFailure &failure, const Result &result);
    void failWithConnection();

    const QPointer<KirvXmppConnection> connection;
    const QString accountAddress;
    bool isUnderWay = false;
};

#endif
