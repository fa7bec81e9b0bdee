// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tools/demo/kirv_demo.h"

namespace {
const QLatin1String userName("anna");
const QLatin1String userPassword("secret");
} // namespace

bool KirvDemo::start()
{
    if (!profile.isValid()) {
        error = tr("No temporary folder for the profile can be made: %1").arg(profile.errorString());
        return false;
    }
    if (!startXmpp())
        return false;
    startIrc();
    return true;
}

bool KirvDemo::startXmpp()
{
    if (!xmpp.start() || !xmpp.addUser(userName, userPassword)) {
        error = tr("The demo needs the XMPP server Prosody (the package prosody), which did not start: %1")
                    .arg(xmpp.errorString());
        return false;
    }
    qputenv("KIRV_XMPP_LOCAL_PORT", QByteArray::number(xmpp.port()));
    qputenv("KIRV_XMPP_LOCAL_CERTIFICATE", xmpp.certificatePath().toLocal8Bit());
    return true;
}

void KirvDemo::startIrc()
{
    if (irc.start())
        qputenv("KIRV_IRC_LOCAL_PORT", QByteArray::number(irc.port()));
}

QString KirvDemo::instructions() const
{
    QString text = tr("This is a try-out with a profile of its own; nothing is kept. A private XMPP server runs on "
                      "this computer. Add an XMPP account, choose the configuration \"Server on this computer\" and "
                      "type the login %1 and the password %2.")
                       .arg(address(), password());
    if (hasIrc()) {
        text += QLatin1Char('\n')
            + tr("A private IRC server runs too: add an IRC account with the same configuration, with any "
                 "nickname and any password.");
    }
    return text;
}

QString KirvDemo::address() const
{
    return QStringLiteral("%1@%2").arg(userName, xmpp.domain());
}

QString KirvDemo::password() const
{
    return userPassword;
}

bool KirvDemo::isOnline()
{
    return xmpp.isOnline(userName);
}
