// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PLUGIN_PROFILE_H
#define KIRV_PLUGIN_PROFILE_H

#include "core/accounts/kirv_account.h"
#include "core/accounts/kirv_account_collection.h"
#include "core/host/kirv_host_services.h"
#include "core/plugins/kirv_plugin_loader.h"
#include "core/protocol/kirv_connection.h"
#include "core/protocol/kirv_protocol_base.h"
#include "core/store/kirv_client_settings.h"
#include "core/store/kirv_store.h"
#include "tests/support/kirv_patience.h"

#include <QMap>
#include <QTemporaryDir>
#include <memory>

/// The core on a profile of its own, with one protocol plug-in, behind the contract.
class KirvPluginProfile {
public:
    /// Texts of fields by their id.
    using Values = QMap<QString, QString>;

    /// Loads the plug-in \a pluginFile, which brings the protocol \a name.
    KirvPluginProfile(const QString &pluginFile, const QString &name);

    /// Why it cannot be used; empty when all is well.
    QString problem() const { return error; }
    KirvProtocolBase *protocol() const { return loaded; }
    KirvAccountCollection &accounts() const { return *collection; }
    KirvPluginLoader &plugins() const { return *loader; }
    QString folder() const { return files.path(); }

    /// An account that is off line yet, and waits only shortly between attempts. \a values are its settings. Null when
    /// it is refused.
    KirvAccount *createAccount(const QString &login, const Values &values, const QString &password = "secret");
    void setValue(KirvAccount *account, const QString &id, const QString &value);
    /// What the presence menu does: wants \a presence, and tries again when the connection gave up.
    void goTo(KirvAccount *account, const QString &presence, const QString &description = QString());

    /// The fields \a fields with \a values.
    static QList<KirvField> withValues(QList<KirvField> fields, const Values &values);

private:
    QTemporaryDir files;
    KirvStore store;
    std::unique_ptr<KirvAccountCollection> collection;
    std::unique_ptr<KirvPluginLoader> loader;
    std::unique_ptr<KirvClientSettings> settings;
    std::unique_ptr<KirvHostServices> services;
    KirvProtocolBase *loaded = nullptr;
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

#define KIRV_TRY_STATE(account, expected) KIRV_TRY_COMPARE(state(account), KirvConnection::expected)
#define KIRV_TRY_FAILURE(account, expected) KIRV_TRY_COMPARE(failure(account), KirvFailure::expected)

#endif
