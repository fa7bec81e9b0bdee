// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/fakes/kirv_fake_protocol.h"

#include "core/protocol/kirv_server_request.h"

KirvFakeProtocol::KirvFakeProtocol(const QString &name, KirvClock &clock)
    : name(name)
    , loginPattern(QStringLiteral(".*"))
    , offeredPresences { { QStringLiteral("available"), QStringLiteral("Available"), QStringLiteral("available.svg") },
                         { QStringLiteral("away"), QStringLiteral("Away"), QStringLiteral("away.svg") },
                         { QStringLiteral("offline"), QStringLiteral("Offline"), QStringLiteral("offline.svg") } }
    , settings { KirvField::note(QStringLiteral("Note"), QStringLiteral("note"), QStringLiteral("Read me"), QString()),
                 KirvField::textEdit(QStringLiteral("Server"), QStringLiteral("server"), QStringLiteral("localhost"),
                                     QString()),
                 KirvField::number(QStringLiteral("Port"), QStringLiteral("port"), 5222, 1, 65535, QString()),
                 KirvField::checkBox(QStringLiteral("Encrypted"), QStringLiteral("encrypted"), true, QString()),
                 KirvField::password(QStringLiteral("Server password"), QStringLiteral("server-password"), QString(),
                                     QString()) }
    , directory { KirvField::textEdit(QStringLiteral("Name"), QStringLiteral("name"), QString(), QString()),
                  KirvField::textEdit(QStringLiteral("Town"), QStringLiteral("town"), QString(), QString()) }
    , clock(clock)
    , server(std::make_shared<KirvFakeServer>())
{
}

QStringList KirvFakeProtocol::getConfigurations()
{
    return configurations;
}

QList<KirvField> KirvFakeProtocol::getConfigurationFields(const QString &configuration)
{
    return configurations.contains(configuration) ? configurationFields : QList<KirvField>();
}

KirvConnection *KirvFakeProtocol::createConnection()
{
    if (!givesConnections)
        return nullptr;
    auto connection = std::make_unique<KirvFakeConnection>(server, clock);
    if (onConnection)
        onConnection(connection.get());
    return connection.release();
}

void KirvFakeProtocol::handleCoreSignal(const QString &signal, const QList<KirvArg> &args)
{
    coreSignals << signal + QLatin1Char(' ') + QString::number(args.size());
    if (onCoreSignal)
        onCoreSignal();
}

KirvServerRequest *KirvFakeProtocol::createRegistration()
{
    return makeRegistration ? makeRegistration() : nullptr;
}

KirvServerRequest *KirvFakeProtocol::createAccountRequest(const QString &actionId, KirvConnection *connection)
{
    return makeRequest ? makeRequest(actionId, connection) : nullptr;
}
