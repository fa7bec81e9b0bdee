// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_XMPP_LOGIN_H
#define KIRV_XMPP_LOGIN_H

#include "core/protocol/kirv_login.h"
#include "protocols/xmpp/kirv_xmpp_settings.h"

/// A log-in with the password "secret" to a server on this computer, whose \a certificate is trusted.
inline KirvLogin kirvXmppLogin(const QString &id, quint16 port, KirvXmppSettings::Encryption encryption,
                               const QString &certificate = QString())
{
    KirvXmppSettings settings;
    settings.server = QStringLiteral("127.0.0.1");
    settings.port = port;
    settings.resource = QStringLiteral("Kirv");
    settings.encryption = encryption;
    settings.certificatePath = certificate;
    return { id, QStringLiteral("secret"), settings.toFields() };
}

#endif
