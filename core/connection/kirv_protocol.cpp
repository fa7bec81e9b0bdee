// SPDX-License-Identifier: LGPL-2.1-or-later
#include "host/kirv_protocol.h"

#include "core/connection/kirv_connection.h"
#include "core/connection/kirv_protocol_base.h"
#include "host/kirv_account_connection.h"

namespace {

/// The core takes only protocols that derive from KirvProtocolBase.
const KirvProtocolBase *base(const KirvProtocol *protocol)
{
    return static_cast<const KirvProtocolBase *>(protocol);
}

} // namespace

QList<KirvPresence> KirvProtocol::getAllPresences() const
{
    return base(this)->presences();
}

QList<KirvField> KirvProtocol::getAccountSettings() const
{
    return base(this)->accountSettings();
}

QList<KirvField> KirvProtocol::getPubdirAccountFields() const
{
    return base(this)->directoryFields();
}

KirvPresence KirvProtocol::createPresenceWithId(const QString &id, const QString &description) const
{
    const QList<KirvPresence> presences = getAllPresences();
    if (presences.isEmpty())
        return KirvPresence();
    KirvPresence found = presences.first();
    for (const KirvPresence &presence : presences) {
        if (presence.getId() == id) {
            found = presence;
            break;
        }
    }
    return KirvPresence(found.getId(), found.getDisplay(), found.getIcon(), description);
}

void KirvProtocol::accountPresenceChanged(KirvAccountConnection *account)
{
    KirvConnection *connection = base(this)->connectionOf(account);
    if (!connection || !account->isEnabled())
        return;
    if (connection->isPasswordOutdated())
        connection->reconnect(connection->wantedPresence());
    else
        connection->goTo(connection->wantedPresence());
}
