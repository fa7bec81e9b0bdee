// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_secret_destination.h"

#include "core/accounts/kirv_account_fields.h"
#include "core/accounts/kirv_open_settings.h"
#include "core/protocol/kirv_plugin_call.h"
#include "core/protocol/kirv_protocol_base.h"

namespace {

/// Of a new account; empty where the plug-in fails.
QList<KirvField> settingsOf(KirvProtocolBase &protocol)
{
    QList<KirvField> fields;
    kirvCallPlugin([&] { fields = protocol.accountSettings(); });
    return fields;
}

void addMissing(KirvAccountRecord &record, const QList<KirvField> &fields)
{
    const QMap<QString, QString> defaults = kirvStoredValues(fields);
    for (auto value = defaults.constBegin(); value != defaults.constEnd(); ++value) {
        if (!record.settings.contains(value.key()))
            record.settings.insert(value.key(), value.value());
    }
    kirvClassify(record, fields);
}

/// The settings of \a record that decide where its secrets go and how they are protected. Those that are replaced for a
/// log-in that is only a test do not: a test is one of the same server, in the same way.
QMap<QString, QString> destinationOf(KirvAccountRecord record, KirvProtocolBase &protocol,
                                     const QList<KirvField> &fields)
{
    addMissing(record, fields);
    QList<KirvField> replaced; // none where the plug-in fails: every setting counts
    kirvCallPlugin([&] { replaced = protocol.settingsForTest(kirvFieldsWithValues(fields, record.settings)); });
    const QMap<QString, QString> values = kirvStoredValues(replaced);
    for (auto value = values.constBegin(); value != values.constEnd(); ++value)
        record.settings.insert(value.key(), value.value());
    return kirvOpenSettings(record);
}

} // namespace

KirvAccountRecord kirvCompleteRecord(KirvAccountRecord record, KirvProtocolBase &protocol)
{
    addMissing(record, settingsOf(protocol));
    if (record.defaultPresence.isEmpty()) {
        kirvCallPlugin([&] { record.defaultPresence = protocol.presences().value(0).getId(); });
    }
    return record;
}

bool kirvHaveSameDestination(const KirvAccountRecord &left, const KirvAccountRecord &right, KirvProtocolBase *protocol)
{
    if (left.settings == right.settings) // quick, as there may be thousands
        return true;
    if (!protocol)
        return kirvOpenSettings(left) == kirvOpenSettings(right);
    const QList<KirvField> fields = settingsOf(*protocol);
    return destinationOf(left, *protocol, fields) == destinationOf(right, *protocol, fields);
}
