// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_FIXTURE_PROTOCOL_H
#define KIRV_FIXTURE_PROTOCOL_H

#include "core/protocol/kirv_connection.h"
#include "core/protocol/kirv_protocol_base.h"
#include "core/protocol/kirv_protocol_plugin.h"

/// A connection that logs in and out at once.
class KirvFixtureConnection : public KirvConnection {
public:
    using KirvConnection::KirvConnection;

protected:
    void startLogin(const KirvPresence &) override { loginSucceeded(); }
    void startLogout() override { logoutFinished(); }
    void abortConnection() override { }
    void applyPresence(const KirvPresence &) override { }
};

/// The least that a protocol can be. The fixtures change what they are about.
class KirvFixtureProtocol : public KirvProtocolBase {
public:
    explicit KirvFixtureProtocol(const QString &name)
        : name(name)
    {
    }

    QString getName() override { return name; }
    QString getIconPath(int) override { return QString(); }
    QStringList getConfigurations() override { return {}; }
    QList<KirvField> getConfigurationFields(const QString &) override { return {}; }
    QString getLoginPattern() override { return QStringLiteral(".*"); }

    QList<KirvPresence> presences() const override
    {
        return { { QStringLiteral("available"), QStringLiteral("Available"), QString() } };
    }
    QList<KirvField> accountSettings() const override { return {}; }
    KirvConnection *createConnection(KirvAccountConnection *account) override
    {
        return new KirvFixtureConnection(account);
    }

private:
    const QString name;
};

#endif
