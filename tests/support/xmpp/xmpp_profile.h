// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_TEST_XMPP_PROFILE_H
#define KIRV_TEST_XMPP_PROFILE_H

#include "core/accounts/kirv_account.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/host/kirv_host_services.h"
#include "core/plugins/kirv_plugin_loader.h"
#include "core/protocol/kirv_connection.h"
#include "core/protocol/kirv_protocol_base.h"
#include "core/store/kirv_client_settings.h"
#include "core/store/kirv_store.h"

#include <QMap>
#include <QTemporaryDir>
#include <memory>

class KirvProsodyServer;

/// Generous, for a busy machine; a test that works needs a fraction of it.
const int patience = 15000;

using Values = QMap<QString, QString>;

/// Our core on a profile of its own, with the XMPP plug-in alone.
class XmppProfile {
public:
    XmppProfile();
    ~XmppProfile();

    /// Why it cannot be used; empty when all is well.
    QString problem() const { return error; }
    KirvProtocolBase *protocol() const { return xmpp; }
    KirvAccountCollection &accounts() const { return *registry; }
    KirvPluginLoader &plugins() const { return *pluginRegistry; }
    QString folder() const { return files.path(); }

    /// An account that is off line yet, and does not keep a test waiting. \a values are its settings.
    KirvAccount *createAccount(const QString &login, const Values &values, const QString &password = "secret");
    /// One on \a server, whose certificate it trusts.
    KirvAccount *createAccount(const KirvProsodyServer &server, const QString &user, Values values = {},
                               const QString &password = "secret");
    static void setValue(KirvAccount *account, const QString &id, const QString &value);
    void goTo(KirvAccount *account, const QString &presence, const QString &description = QString());

private:
    QTemporaryDir files;
    KirvStore store;
    std::unique_ptr<KirvAccountCollection> registry;
    std::unique_ptr<KirvPluginLoader> pluginRegistry;
    std::unique_ptr<KirvClientSettings> settings;
    std::unique_ptr<KirvHostServices> services;
    KirvProtocolBase *xmpp = nullptr;
    QString error;
};

inline KirvConnection::State state(KirvAccount *account)
{
    return account->connection()->state();
}

inline KirvFailure::Kind failure(KirvAccount *account)
{
    return account->connection()->lastFailure().kind();
}

#define TRY_STATE(account, expected) QTRY_COMPARE_WITH_TIMEOUT(state(account), KirvConnection::expected, patience)
#define TRY_FAILURE(account, expected) QTRY_COMPARE_WITH_TIMEOUT(failure(account), KirvFailure::expected, patience)
#define TRY(condition) QTRY_VERIFY_WITH_TIMEOUT(condition, patience)

#endif
