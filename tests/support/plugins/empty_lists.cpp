// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/plugins/kirv_fixture_protocol.h"

/// Answers every question with nothing.
class KirvEmptyProtocol : public KirvFixtureProtocol {
public:
    KirvEmptyProtocol()
        : KirvFixtureProtocol(QStringLiteral("Empty"))
    {
    }

    QList<KirvPresence> presences() const override { return {}; }
    QString getLoginPattern() override { return QString(); }
    KirvConnection *createConnection(KirvAccountConnection *) override { return nullptr; }
};

/// The plug-in of the protocol that answers with nothing.
class KirvEmptyListsPlugin : public QObject, public KirvProtocolPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID KIRV_PROTOCOL_PLUGIN_IID FILE "fixture.json")
    Q_INTERFACES(KirvProtocolPlugin)

public:
    KirvProtocolBase *createProtocol(QString *) override { return new KirvEmptyProtocol; }
};

#include "empty_lists.moc"
