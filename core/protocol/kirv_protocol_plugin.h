// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PROTOCOL_PLUGIN_H
#define KIRV_PROTOCOL_PLUGIN_H

#include <QtPlugin>

class KirvProtocolBase;

/// The version of what plug-ins and the core know of each other. A plug-in states the one it was built for in
/// its JSON meta data, {"name": "XMPP", "api": 4}, and is not loaded when it is another one.
#define KIRV_PROTOCOL_PLUGIN_API 4
/// The name of the interface, for Q_PLUGIN_METADATA.
#define KIRV_PROTOCOL_PLUGIN_IID "org.kirv.ProtocolPlugin"

/// The root object of a protocol plug-in: makes the protocol.
///
/// A protocol can come and go several times in one run; the library stays in memory from the first time on.
class KirvProtocolPlugin {
public:
    virtual ~KirvProtocolPlugin() = default;
    /// A new protocol, owned by the caller, or null with the reason in \a error.
    virtual KirvProtocolBase *createProtocol(QString *error) = 0;
};

Q_DECLARE_INTERFACE(KirvProtocolPlugin, KIRV_PROTOCOL_PLUGIN_IID)

#endif
