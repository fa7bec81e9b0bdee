// SPDX-License-Identifier: LGPL-2.1-or-later
#include "protocols/example/kirv_example_protocol.h"

#include "protocols/example/kirv_example_connection.h"

namespace {

KirvField latencyField(int milliseconds)
{
    return KirvField::number(KirvExampleProtocol::tr("Replies after"), KirvExampleConnection::latencySetting(),
                             milliseconds, 0, 60000,
                             KirvExampleProtocol::tr("How long the server takes to reply, in milliseconds."));
}

} // namespace

QString KirvExampleProtocol::getName()
{
    return QStringLiteral("Example");
}

QString KirvExampleProtocol::getDescription()
{
    return tr("A protocol to learn from: its server lives inside the program.");
}

QString KirvExampleProtocol::getIconPath(int)
{
    return QStringLiteral(":/kirv/protocols/example.svg");
}

QStringList KirvExampleProtocol::getConfigurations()
{
    return { tr("Fast Server"), tr("Slow Server") };
}

QList<KirvField> KirvExampleProtocol::getConfigurationFields(const QString &name)
{
    if (name == tr("Fast Server"))
        return { latencyField(20) };
    if (name == tr("Slow Server"))
        return { latencyField(3000) };
    return {};
}

QString KirvExampleProtocol::getLoginPattern()
{
    return QStringLiteral("[a-z][a-z0-9]*");
}

QList<KirvPresence> KirvExampleProtocol::presences() const
{
    return {
        { QStringLiteral("available"), tr("Available"), QStringLiteral("available.svg") },
        { QStringLiteral("away"), tr("Away"), QStringLiteral("away.svg") },
        { QStringLiteral("offline"), tr("Offline"), QStringLiteral("offline.svg") },
    };
}

QList<KirvField> KirvExampleProtocol::accountSettings() const
{
    return { latencyField(20) };
}

QList<KirvField> KirvExampleProtocol::directoryFields() const
{
    return {
        KirvField::textEdit(tr("Name"), QStringLiteral("name"), QString(), QString()),
        KirvField::textEdit(tr("Town"), QStringLiteral("town"), QString(), QString()),
    };
}

KirvConnection *KirvExampleProtocol::createConnection()
{
    return new KirvExampleConnection;
}
