// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_STORE_SCHEMA_H
#define KIRV_STORE_SCHEMA_H

#include <QList>
#include <QStringList>

class KirvDatabase;

/// The steps from an empty database to the present schema: the statements at index N lead from version N to
/// version N + 1. A step that was released is never changed; a new schema is a new step at the end.
///
/// Since version 3 every secret that the profile holds stands in the table "secret" and nowhere else: the password of
/// an account under the empty field, secret settings under theirs. It has no foreign key, so that SQLite clears its
/// pages as a whole when all rows are deleted. "avatar_file" records the avatars that the program has written,
/// "profile_copy" the copy that has the present content.
///
/// Since version 4 "secret_item" names the secrets that stand in a store of secrets instead, see KirvSecretItemTable.
///
/// Since version 5 an account has the certificate of a server that it trusts.
const QList<QStringList> &kirvStoreSchemaSteps();

/// The version of the present schema.
int kirvStoreVersion();
/// The first version that carries an application id; those before have 0.
const int kirvFirstMarkedVersion = 3;
/// The first version that has the table "secret_item".
const int kirvFirstVersionWithItems = 4;

/// The application ids, "Kirv" and "KirC" in the file: of a profile's database and of a copy of one.
const quint32 kirvProfileId = 0x4b697276;
const quint32 kirvCopyId = 0x4b697243;

/// Takes the schema of \a database from \a version to the present one and marks it with \a applicationId, inside the
/// transaction that is open.
bool kirvUpgradeSchema(KirvDatabase &database, int version, quint32 applicationId);

/// Tables, columns, indexes and whatever else is in the schema of \a database, in a form to compare.
QStringList kirvSchemaOf(KirvDatabase &database);
/// The same of a database of that version. Empty when there is no such version.
QStringList kirvSchemaOfVersion(int version);
/// The columns that \a table has in that version, in their order.
QStringList kirvColumnsOfVersion(int version, const QString &table);

#endif
