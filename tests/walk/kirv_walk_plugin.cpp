// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/protocol/kirv_protocol_plugin.h"
#include "tests/support/fakes/kirv_fake_clock.h"
#include "tests/support/fakes/kirv_fake_protocol.h"
#include "tests/support/fakes/kirv_fake_server_request.h"

namespace {

/// The clock of all connections of this library. It lives as long as the library, which is never unloaded.
KirvFakeClock &walkClock()
{
    static KirvFakeClock clock;
    return clock;
}

QList<KirvField> fieldsWithServer(const QString &server)
{
    return { KirvField::textEdit(QStringLiteral("Server"), QStringLiteral("server"), server, QString()),
             KirvField::number(QStringLiteral("Port"), QStringLiteral("port"), 5222, 1, 65535, QString()),
             KirvField::checkBox(QStringLiteral("Encrypted"), QStringLiteral("encrypted"), true, QString()) };
}

KirvServerRequest *createRegistration()
{
    KirvServerRequest::Step step;
    step.text = QStringLiteral("Choose a name.");
    step.fields = { KirvField::textEdit(QStringLiteral("Name"), QStringLiteral("name"), QString(), QString()) };
    step.command = QStringLiteral("Register");
    return new KirvFakeServerRequest({ step }, KirvServerRequest::Result());
}

} // namespace

/// A fake protocol whose server does nothing by itself: the walk says when it replies, and how, by the names of the
/// connection's invokable operations. Time stands still until the walk moves it.
class KirvWalkPlugin : public QObject, public KirvProtocolPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID KIRV_PROTOCOL_PLUGIN_IID FILE "kirv_walk_plugin.json")
    Q_INTERFACES(KirvProtocolPlugin)

public:
    KirvProtocolBase *createProtocol(QString *) override
    {
        auto *protocol = new KirvFakeProtocol(QStringLiteral(KIRV_WALK_NAME), walkClock());
        protocol->server->logIn = protocol->server->logOut = protocol->server->directory = KirvFakeServer::Holds;
        protocol->server->needsPassword = true;
        protocol->loginPattern = QStringLiteral("[a-z0-9<>%]+");
        protocol->configurations = QStringList { QStringLiteral("Here"), QStringLiteral("There") };
        protocol->configurationFields = fieldsWithServer(QStringLiteral("here"));
        protocol->settings = fieldsWithServer(QString());
        protocol->directory << KirvField::multiLine(QStringLiteral("About"), QStringLiteral("about"), QString(),
                                                    QString());
        protocol->makeRegistration = &createRegistration;
        return protocol;
    }
};

#include "kirv_walk_plugin.moc"
