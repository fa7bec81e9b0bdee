// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/servers/kirv_xmpp_profile.h"

#include "tools/servers/kirv_prosody_server.h"

#include <algorithm>

KirvXmppProfile::KirvXmppProfile()
    : KirvPluginProfile(KIRV_XMPP_PLUGIN, "XMPP")
{
}

bool KirvXmppProfile::start(KirvProsodyServer &server, const QStringList &users)
{
    const bool isReady = server.start() && std::all_of(users.begin(), users.end(), [&server](const QString &user) {
                             return server.addUser(user, "secret");
                         });
    if (!isReady)
        qWarning("%s", qPrintable(server.errorString()));
    return isReady;
}

KirvXmppProfile::Values KirvXmppProfile::valuesFor(const KirvProsodyServer &server, Values values)
{
    const Values defaults { { "server", server.host() },
                            { "port", QString::number(server.port()) },
                            { "encryption", server.certificatePath().isEmpty() ? "none" : "required" },
                            { "certificate", server.certificatePath() } };
    for (auto value = defaults.begin(); value != defaults.end(); ++value) {
        if (!values.contains(value.key()))
            values.insert(value.key(), value.value());
    }
    return values;
}

KirvAccount *KirvXmppProfile::createAccount(const KirvProsodyServer &server, const QString &user, const Values &values,
                                            const QString &password)
{
    return createAccount(user + '@' + server.domain(), valuesFor(server, values), password);
}

KirvAccount *KirvXmppProfile::logIn(const KirvProsodyServer &server, const QString &user)
{
    KirvAccount *account = createAccount(server, user);
    goTo(account, "available");
    return QTest::qWaitFor([account] { return account->isOnline(); }, kirvPatience) ? account : nullptr;
}
