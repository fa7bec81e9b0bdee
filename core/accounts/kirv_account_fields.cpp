// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/accounts/kirv_account_fields.h"

namespace {

/// The stored form of the value of \a field.
QString storedValue(const KirvField &field)
{
    if (field.getKind() == KirvField::CheckBox)
        return QLatin1String(field.isChecked() ? "true" : "false");
    return field.getText();
}

/// \a field with the value of that form.
KirvField withStoredValue(KirvField field, const QString &value)
{
    if (field.getKind() == KirvField::CheckBox)
        field.setChecked(value == QLatin1String("true"));
    else if (field.getKind() != KirvField::Label)
        field.setText(value);
    return field;
}

} // namespace

QMap<QString, QString> kirvStoredValues(const QList<KirvField> &fields)
{
    QMap<QString, QString> values;
    for (const KirvField &field : fields) {
        if (field.getKind() != KirvField::Label && !field.getId().isEmpty())
            values.insert(field.getId(), storedValue(field));
    }
    return values;
}

QSet<QString> kirvSecretFields(const QList<KirvField> &fields)
{
    QSet<QString> secrets;
    for (const KirvField &field : fields) {
        if (field.getKind() == KirvField::Password && !field.getId().isEmpty())
            secrets.insert(field.getId());
    }
    return secrets;
}

void kirvClassify(KirvAccountRecord &record, const QList<KirvField> &fields)
{
    const QSet<QString> secrets = kirvSecretFields(fields);
    for (const KirvField &field : fields) {
        if (secrets.contains(field.getId()))
            record.secretSettings.insert(field.getId());
        else
            record.secretSettings.remove(field.getId());
    }
}

QList<KirvField> kirvFieldsWithValues(QList<KirvField> fields, const QMap<QString, QString> &values)
{
    for (KirvField &field : fields) {
        const auto value = values.constFind(field.getId());
        if (value != values.constEnd())
            field = withStoredValue(field, *value);
    }
    return fields;
}

QString kirvSecretOf(const KirvAccountRecord &record, const QString &field)
{
    return field.isEmpty() ? record.password : record.settings.value(field);
}

QSet<QString> kirvSecretFieldsOf(const KirvAccountRecord &record)
{
    QSet<QString> fields = record.secretSettings;
    if (record.rememberPassword)
        fields.insert(QString());
    return fields;
}

void kirvSetValue(KirvAccountRecord &record, const QString &field, const QString &value)
{
    const QString shown = kirvSecretOf(record, field);
    if (record.unreadSecrets.contains(field)) {
        if (value == shown)
            return;
        record.unreadSecrets.remove(field);
    }
    if (field.isEmpty())
        record.password = value;
    else
        record.settings.insert(field, value);
}
