// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_ACCOUNT_FIELDS_H
#define KIRV_ACCOUNT_FIELDS_H

#include "core/store/kirv_account_record.h"
#include "host/kirv_field.h"

#include <QList>

// Between the fields that windows show and the settings that are stored.

/// \a fields by id in the form in which they are stored, without those that are only there to be read.
QMap<QString, QString> kirvStoredValues(const QList<KirvField> &fields);
/// The ids of those of \a fields whose values are secret.
QSet<QString> kirvSecretFields(const QList<KirvField> &fields);
/// Notes in \a record which of the settings that \a fields describe are secret.
void kirvClassify(KirvAccountRecord &record, const QList<KirvField> &fields);
/// The value of the secret \a field, the password's being empty.
QString kirvSecretOf(const KirvAccountRecord &record, const QString &field);
/// The fields of what is secret in \a record.
QSet<QString> kirvSecretFieldsOf(const KirvAccountRecord &record);
/// Sets \a field, the password's being empty, to what a window holds. One that is secret and not known is shown as
/// empty: it stays what it is unless something was typed.
void kirvSetValue(KirvAccountRecord &record, const QString &field, const QString &value);
/// \a fields with those \a values, in the stored form, that there are.
QList<KirvField> kirvFieldsWithValues(QList<KirvField> fields, const QMap<QString, QString> &values);

#endif
