// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/plugins/kirv_fake_plugin.h"

/// Its protocol replies to every question with ten thousand things, or a text of one million characters.
class KirvHugeListsPlugin : public QObject, public KirvProtocolPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID KIRV_PROTOCOL_PLUGIN_IID FILE "fixture.json")
    Q_INTERFACES(KirvProtocolPlugin)

public:
    KirvProtocolBase *createProtocol(QString *) override
    {
        const QString longText(1 << 20, QLatin1Char('x'));
        auto *protocol = new KirvFakeProtocol(QStringLiteral("Huge"));
        protocol->description = longText;
        protocol->offeredPresences.clear();
        protocol->settings.clear();
        for (int number = 0; number < 10000; ++number) {
            const QString id = QString::number(number);
            protocol->configurations << id;
            protocol->offeredPresences << KirvPresence(id, longText, QString());
            protocol->settings << KirvField::textEdit(longText, id, longText, longText);
        }
        protocol->configurationFields = protocol->directory = protocol->settings;
        return protocol;
    }
};

#include "huge_lists.moc"
