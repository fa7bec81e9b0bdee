// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_FAKE_PROTOCOL_H
#define KIRV_FAKE_PROTOCOL_H

#include "core/protocol/kirv_connection.h"
#include "core/protocol/kirv_protocol_base.h"
#include "host/kirv_account_connection.h"

#include <QPointer>

class FakeConnection;

/// A protocol without a server: its connections do what the test tells them, and write down what they are told.
class FakeProtocol : public KirvProtocolBase {
public:
    enum Server { LetsIn, Hangs, RefusesPassword };

    explicit FakeProtocol(const QString &name = QStringLiteral("Fake"))
        : name(name)
    {
    }

    QString getName() override { return name; }
    QString getIconPath(int) override { return QString(); }
    QStringList getConfigurations() override { return {}; }
    QList<KirvField> getConfigurationFields(const QString &) override { return {}; }
    QString getLoginPattern() override { return QString(); }
    QList<KirvPresence> presences() const override
    {
        return { { "available", "Available", "available.svg" },
                 { "away", "Away", "away.svg" },
                 { "offline", "Offline", "offline.svg" } };
    }
    QList<KirvField> accountSettings() const override
    {
        return { KirvField::note("Note", "note", "Read me", QString()),
                 KirvField::textEdit("Server", "server", "localhost", QString()),
                 KirvField::number("Port", "port", 5222, 1, 65535, QString()),
                 KirvField::checkBox("Encrypted", "encrypted", true, QString()),
                 KirvField::password("Server password", "server-password", QString(), QString()) };
    }
    KirvConnection *createConnection(KirvAccountConnection *account) override;

    const QString name;
    Server server = LetsIn;
    bool answersLogOut = true;
    bool needsPassword = false;
    bool givesConnections = true;
    QStringList calls; ///< what the connections were told, with the account id
    int connections = 0; ///< alive
};

class FakeConnection : public KirvConnection {
public:
    FakeConnection(KirvAccountConnection *account, FakeProtocol *protocol)
        : KirvConnection(account)
        , protocol(protocol)
        , id(account->getUid())
    {
        ++protocol->connections;
    }
    ~FakeConnection() override
    {
        if (protocol)
            --protocol->connections;
    }

    void note(const QString &call)
    {
        if (protocol)
            protocol->calls << id + QLatin1Char(' ') + call;
    }
    void publishAvatar() override { note(QStringLiteral("avatar")); }
    void fetchDirectory() override { beginDirectoryRequest(); }

    using KirvConnection::connectionLost;
    using KirvConnection::finishDirectoryRequest;
    using KirvConnection::loginSucceeded;
    using KirvConnection::logoutFinished;

    const QPointer<FakeProtocol> protocol;

protected:
    void startLogin(const KirvPresence &presence) override
    {
        note(QStringLiteral("log in ") + presence.getId() + QLatin1Char(' ') + account()->getPassword());
        if (protocol->needsPassword && account()->getPassword().isEmpty())
            loginFailed(KirvFailure::PasswordMissing);
        else if (protocol->server == FakeProtocol::RefusesPassword)
            loginFailed(KirvFailure::WrongPassword);
        else if (protocol->server == FakeProtocol::LetsIn)
            loginSucceeded();
    }
    void startLogout() override
    {
        note(QStringLiteral("log out"));
        if (protocol->answersLogOut)
            logoutFinished();
    }
    void abortConnection() override { note(QStringLiteral("abort")); }
    void applyPresence(const KirvPresence &presence) override { note(QStringLiteral("presence ") + presence.getId()); }

private:
    const QString id;
};

inline KirvConnection *FakeProtocol::createConnection(KirvAccountConnection *account)
{
    return givesConnections ? new FakeConnection(account, this) : nullptr;
}

#endif
