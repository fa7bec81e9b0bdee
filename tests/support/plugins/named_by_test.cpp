// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/plugins/kirv_fake_plugin.h"

/// The protocol has the name that stands in the environment variable KIRV_FIXTURE_PROTOCOL when it is loaded.
class KirvNamedByTestPlugin : public QObject, public KirvProtocolPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID KIRV_PROTOCOL_PLUGIN_IID FILE "fixture.json")
    Q_INTERFACES(KirvProtocolPlugin)

public:
    KirvProtocolBase *createProtocol(QString *) override
    {
        return new KirvFakeProtocol(qEnvironmentVariable("KIRV_FIXTURE_PROTOCOL"));
    }
};

#include "named_by_test.moc"
