// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_XMPP_PASSWORD_REQUEST_H
#define KIRV_XMPP_PASSWORD_REQUEST_H

#include "protocols/xmpp/kirv_xmpp_account_request.h"

/// Changes the password of an account on its server. The session of the connection goes on.
class KirvXmppPasswordRequest : public KirvXmppAccountRequest {
    Q_OBJECT

public:
    explicit KirvXmppPasswordRequest(KirvXmppConnection *connection, QObject *parent = nullptr);

    QString title() const override;
    void start() override;
    void submit(const QList<KirvField> &filled) override;
};

#endif
