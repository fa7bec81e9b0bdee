// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/plugins/kirv_fake_plugin.h"

/// A plug-in of quite another program.
class KirvWrongInterfacePlugin : public QObject {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.example.Calculator" FILE "fixture.json")
};

#include "wrong_interface.moc"
