// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_XMPP_PROFILE_H
#define KIRV_XMPP_PROFILE_H

#include "tests/support/servers/kirv_plugin_profile.h"

class KirvProsodyServer;

/// The core on a profile of its own, with the XMPP plug-in.
class KirvXmppProfile : public KirvPluginProfile {
public:
    KirvXmppProfile();

    /// Starts \a server with \a users, whose password is "secret"; false, with a warning, when that fails.
    static bool start(KirvProsodyServer &server, const QStringList &users = { "romeo" });

    /// The settings of an account on \a server, whose certificate it trusts, unless \a values says otherwise.
    static Values valuesFor(const KirvProsodyServer &server, Values values = {});

    using KirvPluginProfile::createAccount;
    /// An account on \a server with valuesFor() it.
    KirvAccount *createAccount(const KirvProsodyServer &server, const QString &user, const Values &values = {},
                               const QString &password = "secret");
    /// Such an account that is available; null when it does not get on line.
    KirvAccount *logIn(const KirvProsodyServer &server, const QString &user = "romeo");
};

#endif
