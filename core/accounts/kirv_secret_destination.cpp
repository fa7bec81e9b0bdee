// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_secret_destination.h"

#include "core/accounts/kirv_account_fields.h"
#include "core/accounts/kirv_open_settings.h"
#include "core/protocol/kirv_plugin_call.h"
#include "core/protocol/kirv_protocol_base.h"

KirvAccountRecord kirvCompleteRecord(KirvAccountRecord record, KirvProtocolBase &protocol)
{
    QList<KirvField> fields;
    QList<KirvPresence> presences;
    kirvCallPlugin([&] { fields = protocol.accountSettings(); });
    kirvCallPlugin([&] { presences = protocol.presences(); });
    QMap<QString, QString> settings = kirvStoredValues(fields);
    for (auto setting = record.settings.constBegin(); setting != record.settings.constEnd(); ++setting)
        settings.insert(setting.key(), setting.value());
    record.settings = settings;
    kirvClassify(record, fields);
    if (record.defaultPresence.isEmpty())
        record.defaultPresence = presences.value(0).getId();
    return record;
}

/// Settings that are replaced for a log-in that is only a test do not count: a test is one of the same server, in the
/// same way.
QMap<QString, QString> kirvSecretDestination(const KirvAccountRecord &record, KirvProtocolBase *protocol)
{
    if (!protocol)
        return kirvOpenSettings(record);
    KirvAccountRecord tested = kirvCompleteRecord(record, *protocol);
    // Where the plug-in fails, every setting counts.
    kirvCallPlugin([&] {
        const QList<KirvField> fields = kirvFieldsWithValues(protocol->accountSettings(), tested.settings);
        const QMap<QString, QString> values = kirvStoredValues(protocol->settingsForTest(fields));
        for (auto value = values.constBegin(); value != values.constEnd(); ++value)
            tested.settings.insert(value.key(), value.value());
    });
    return kirvOpenSettings(tested);
}
