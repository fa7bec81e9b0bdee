// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/plugins/kirv_fake_plugin.h"

/// States the interface but does not have it.
class KirvFalseInterfacePlugin : public QObject {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID KIRV_PROTOCOL_PLUGIN_IID FILE "fixture.json")
};

#include "false_interface.moc"
