// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/plugins/kirv_fake_plugin.h"

/// Built twice: two files with the same protocol.
class KirvTwinPlugin : public QObject, public KirvProtocolPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID KIRV_PROTOCOL_PLUGIN_IID FILE "fixture.json")
    Q_INTERFACES(KirvProtocolPlugin)

public:
    KirvProtocolBase *createProtocol(QString *) override { return new KirvFakeProtocol(QStringLiteral("Twin")); }
};

#include "twin.moc"
