// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_XMPP_PORT_PROBE_H
#define KIRV_XMPP_PORT_PROBE_H

#include "protocols/xmpp/kirv_xmpp_server_finder.h"

#include <QNetworkProxy>

class KirvClock;

/// What finds out whether a port expects the other kind of start than the one that \a target stands for: TLS from the
/// first byte where a stream in clear was begun, or the other way round. The receiver is called once, later, unless
/// \a context is destroyed before; with false when it is not known.
using KirvXmppPortProbe = std::function<void(const KirvXmppTarget &target, const QNetworkProxy &proxy, KirvClock &clock,
                                             QObject *context, const std::function<void(bool isOther)> &receiver)>;

/// Connects to the port and sends nothing but the start of a handshake, or of a stream without a name. Takes up to
/// four seconds. A KirvXmppPortProbe.
void kirvXmppProbePort(const KirvXmppTarget &target, const QNetworkProxy &proxy, KirvClock &clock, QObject *context,
                       const std::function<void(bool isOther)> &receiver);

#endif
