// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/support/plugins/kirv_fixture_protocol.h"

namespace {

const int many = 10000;
const QString longText(1 << 20, QLatin1Char('x'));

} // namespace

/// Answers every question with ten thousand things, or a text of one million characters.
class KirvHugeProtocol : public KirvFixtureProtocol {
public:
    KirvHugeProtocol()
        : KirvFixtureProtocol(QStringLiteral("Huge"))
    {
    }

    QString getDescription() override { return longText; }
    QStringList getConfigurations() override
    {
        QStringList names;
        for (int i = 0; i < many; ++i)
            names.append(QString::number(i));
        return names;
    }
    QList<KirvField> getConfigurationFields(const QString &) override { return fields(); }
    QList<KirvPresence> presences() const override
    {
        QList<KirvPresence> presences;
        for (int i = 0; i < many; ++i)
            presences.append({ QString::number(i), longText, QString() });
        return presences;
    }
    QList<KirvField> accountSettings() const override { return fields(); }
    QList<KirvField> directoryFields() const override { return fields(); }

private:
    static QList<KirvField> fields()
    {
        QList<KirvField> fields;
        for (int i = 0; i < many; ++i)
            fields.append(KirvField::textEdit(longText, QString::number(i), longText, longText));
        return fields;
    }
};

/// The plug-in of the protocol that answers with too much.
class KirvHugeListsPlugin : public QObject, public KirvProtocolPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID KIRV_PROTOCOL_PLUGIN_IID FILE "fixture.json")
    Q_INTERFACES(KirvProtocolPlugin)

public:
    KirvProtocolBase *createProtocol(QString *) override { return new KirvHugeProtocol; }
};

#include "huge_lists.moc"
