// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/plugins/kirv_fake_plugin.h"

/// The server of its protocol leaves half of the requests without a reply: log-ins with the presence "silent",
/// log-outs and directory requests.
class KirvHalfAnswersPlugin : public QObject, public KirvProtocolPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID KIRV_PROTOCOL_PLUGIN_IID FILE "fixture.json")
    Q_INTERFACES(KirvProtocolPlugin)

public:
    KirvProtocolBase *createProtocol(QString *) override
    {
        auto *protocol = new KirvFakeProtocol(QStringLiteral("Half Answers"));
        protocol->server->silentPresences << QStringLiteral("silent");
        protocol->server->logOut = KirvFakeServer::Holds;
        protocol->server->directory = KirvFakeServer::Holds;
        return protocol;
    }
};

#include "half_answers.moc"
