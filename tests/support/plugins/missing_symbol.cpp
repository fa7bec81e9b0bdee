// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/plugins/kirv_fake_plugin.h"

KirvProtocolBase *kirvDefinedNowhere();

/// Needs a function that no library has.
class KirvMissingSymbolPlugin : public QObject, public KirvProtocolPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID KIRV_PROTOCOL_PLUGIN_IID FILE "fixture.json")
    Q_INTERFACES(KirvProtocolPlugin)

public:
    KirvProtocolBase *createProtocol(QString *) override { return kirvDefinedNowhere(); }
};

#include "missing_symbol.moc"
