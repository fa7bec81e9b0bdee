// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/plugins/kirv_fake_plugin.h"

/// Its protocol replies to every question with nothing.
class KirvEmptyListsPlugin : public QObject, public KirvProtocolPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID KIRV_PROTOCOL_PLUGIN_IID FILE "fixture.json")
    Q_INTERFACES(KirvProtocolPlugin)

public:
    KirvProtocolBase *createProtocol(QString *) override
    {
        auto *protocol = new KirvFakeProtocol(QStringLiteral("Empty"));
        protocol->offeredPresences.clear();
        protocol->settings.clear();
        protocol->directory.clear();
        protocol->loginPattern.clear();
        protocol->givesConnections = false;
        return protocol;
    }
};

#include "empty_lists.moc"
