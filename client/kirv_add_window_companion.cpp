// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_add_window_companion.h"

#include "add_account/kirv_add_account_dialog.h"
#include "host/kirv_protocol.h"

KirvAddWindowCompanion::KirvAddWindowCompanion(KirvLayoutDialog *window, const KirvAddAccountDialog *controller)
    : KirvWindowCompanion(window)
    , protocolName(controller->getProtocol()->getName())
{
}

void KirvAddWindowCompanion::close()
{
    const auto boxes = window()->findChildren<QDialog *>();
    for (QDialog *box : boxes)
        box->close();
    window()->close();
}
