// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/plugins/kirv_fake_plugin.h"

#include <QFile>

namespace {

/// Adds a line to the file \a log.
void noteLogin(const QString &log)
{
    QFile file(log);
    if (file.open(QIODevice::Append))
        file.write("log in\n");
}

} // namespace

/// The protocol has the name that stands in the environment variable KIRV_FIXTURE_PROTOCOL when it is loaded. Log-ins
/// are noted in the file that KIRV_FIXTURE_LOGINS names.
class KirvNamedByTestPlugin : public QObject, public KirvProtocolPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID KIRV_PROTOCOL_PLUGIN_IID FILE "fixture.json")
    Q_INTERFACES(KirvProtocolPlugin)

public:
    KirvProtocolBase *createProtocol(QString *) override
    {
        auto *protocol = new KirvFakeProtocol(qEnvironmentVariable("KIRV_FIXTURE_PROTOCOL"));
        const QString log = qEnvironmentVariable("KIRV_FIXTURE_LOGINS");
        if (!log.isEmpty()) {
            protocol->onConnection = [log](KirvFakeConnection *connection) {
                connection->onLogIn = [log, connection] {
                    noteLogin(log);
                    connection->loginSucceeded();
                };
            };
        }
        return protocol;
    }
};

#include "named_by_test.moc"
