// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/plugins/kirv_fake_plugin.h"

/// Creates no protocol and says why.
class KirvNoProtocolPlugin : public QObject, public KirvProtocolPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID KIRV_PROTOCOL_PLUGIN_IID FILE "fixture.json")
    Q_INTERFACES(KirvProtocolPlugin)

public:
    KirvProtocolBase *createProtocol(QString *error) override
    {
        *error = QStringLiteral("The moon is not full.");
        return nullptr;
    }
};

#include "no_protocol.moc"
