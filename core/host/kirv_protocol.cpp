// SPDX-License-Identifier: LGPL-2.1-or-later
#include "host/kirv_protocol.h"

#include "core/accounts/kirv_account.h"
#include "core/protocol/kirv_protocol_base.h"

namespace {

/// The core accepts only protocols that derive from KirvProtocolBase.
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
    return base(this)->presenceWithId(id, description);
}

void KirvProtocol::accountPresenceChanged(KirvAccountConnection *account)
{
    if (account)
        static_cast<KirvAccount *>(account)->tryAgain();
}
