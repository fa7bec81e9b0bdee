// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/example/kirv_example_plugin.h"

#include "protocols/example/kirv_example_protocol.h"

KirvProtocolBase *KirvExamplePlugin::createProtocol(QString *)
{
    return new KirvExampleProtocol;
}
