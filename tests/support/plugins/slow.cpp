// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/plugins/kirv_fake_plugin.h"

#include <QThread>

/// Takes its time to create the protocol.
class KirvSlowPlugin : public QObject, public KirvProtocolPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID KIRV_PROTOCOL_PLUGIN_IID FILE "fixture.json")
    Q_INTERFACES(KirvProtocolPlugin)

public:
    KirvProtocolBase *createProtocol(QString *) override
    {
        QThread::msleep(300);
        return new KirvFakeProtocol(QStringLiteral("Slow"));
    }
};

#include "slow.moc"
