// SPDX-License-Identifier: LGPL-2.1-or-later
#include "edit_account/kirv_pubdir_account_received_event.h"

KirvPubdirAccountReceivedEvent::KirvPubdirAccountReceivedEvent(KirvAccountConnection *account,
                                                               const QList<KirvField> &data)
    : QEvent(static_cast<QEvent::Type>(EventType))
    , account(account)
    , data(data)
{
}

KirvPubdirAccountReceivedEvent::~KirvPubdirAccountReceivedEvent() { }

KirvAccountConnection *KirvPubdirAccountReceivedEvent::getAccount() const
{
    return account;
}

QList<KirvField> KirvPubdirAccountReceivedEvent::getData() const
{
    return data;
}
