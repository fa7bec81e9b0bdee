// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/xmpp/kirv_xmpp_plugin.h"

#include "protocols/xmpp/kirv_xmpp_protocol.h"

KirvProtocolBase *KirvXmppPlugin::createProtocol(QString *)
{
    return new KirvXmppProtocol;
}
