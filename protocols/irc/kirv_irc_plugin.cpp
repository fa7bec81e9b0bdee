// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/irc/kirv_irc_plugin.h"

#include "protocols/irc/kirv_irc_protocol.h"

KirvProtocolBase *KirvIrcPlugin::createProtocol(QString *)
{
    return new KirvIrcProtocol;
}
