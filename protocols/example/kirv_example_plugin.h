// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_EXAMPLE_PLUGIN_H
#define KIRV_EXAMPLE_PLUGIN_H

#include "core/protocol/kirv_protocol_plugin.h"

#include <QObject>

/// The root of the plug-in.
class KirvExamplePlugin : public QObject, public KirvProtocolPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID KIRV_PROTOCOL_PLUGIN_IID FILE "kirv_example_plugin.json")
    Q_INTERFACES(KirvProtocolPlugin)

public:
    KirvProtocolBase *createProtocol(QString *error) override;
};

#endif
