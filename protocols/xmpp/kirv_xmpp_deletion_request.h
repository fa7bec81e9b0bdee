// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_XMPP_DELETION_REQUEST_H
#define KIRV_XMPP_DELETION_REQUEST_H

#include "protocols/xmpp/kirv_xmpp_account_request.h"

/// Deletes an account on its server, after two confirmations.
class KirvXmppDeletionRequest : public KirvXmppAccountRequest {
    Q_OBJECT

public:
    explicit KirvXmppDeletionRequest(KirvXmppConnection *connection, QObject *parent = nullptr);

    QString title() const override;
    void start() override;
    void submit(const QList<KirvField> &filled) override;

private:
    void showStep(const QString &text, const QString &command);

    bool isConfirmed = false; ///< for the first time
};

#endif
