// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/store/kirv_account_table.h"

#include "core/store/kirv_account_columns.h"
#include "core/store/kirv_database.h"

#include <QHash>
#include <algorithm>

namespace {

const QString settingTable = QStringLiteral("account_setting");
const QString secretTable = QStringLiteral("secret");

}

QList<KirvAccountRecord> KirvAccountTable::readAll()
{
    static const QString select =
        QStringLiteral("SELECT number, id, protocol, %1 FROM account ORDER BY position, number")
            .arg(kirvColumnsWithDefaults());
    QSqlQuery *query = database.run(select);
    QList<KirvAccountRecord> accounts;
    QHash<qint64, int> indices;
    while (query && query->next()) {
        indices.insert(query->value(0).toLongLong(), int(accounts.size()));
        KirvAccountRecord account;
        account.key = { query->value(1).toString(), query->value(2).toString() };
        int index = 3;
        for (const KirvAccountColumn &column : kirvAccountColumns()) {
            const QVariant value = query->value(index++);
            if (column.text)
                account.*column.text = value.toString();
            else
                account.*column.flag = value.toBool();
        }
        accounts.append(account);
    }
    const bool good = database.readToEnd(query) && readValues(settingTable, accounts, indices)
        && readValues(secretTable, accounts, indices) && secretItems.readInto(accounts, indices);
    return good ? accounts : QList<KirvAccountRecord>();
}

bool KirvAccountTable::readValues(const QString &table, QList<KirvAccountRecord> &accounts,
                                  const QHash<qint64, int> &indices)
{
    QSqlQuery *query = database.run(QStringLiteral("SELECT account, field, value FROM %1").arg(table));
    while (query && query->next()) {
        const auto index = indices.constFind(query->value(0).toLongLong());
        if (index == indices.constEnd())
            continue;
        KirvAccountRecord &account = accounts[*index];
        const QString field = query->value(1).toString();
        const QString value = query->value(2).toString();
        if (table == secretTable && field.isEmpty()) {
            account.password = value;
            continue;
        }
        account.settings.insert(field, value);
        if (table == secretTable)
            account.secretSettings.insert(field);
    }
    return database.readToEnd(query);
}

bool KirvAccountTable::insert(const KirvAccountRecord &account)
{
    static const QString statement =
        QStringLiteral("INSERT INTO account (id, protocol, position, %1) "
                       "VALUES (?, ?, (SELECT coalesce(max(position), 0) + 1 FROM account), %2)")
            .arg(kirvJoinedColumns(QString()), kirvColumnPlaceHolders());
    const KirvAccountRecord stored = kirvStoredForm(account);
    const QVariantList keyValues { account.key.id, account.key.protocol };
    const QSqlQuery *query = database.run(statement, keyValues + kirvColumnValues(stored));
    return query && writeValues(query->lastInsertId(), stored);
}

bool KirvAccountTable::update(const KirvAccountRecord &account)
{
    Row row;
    const KirvAccountRecord stored = kirvStoredForm(account);
    if (!findRow(account.key, &row) || !writeColumns(row.number, kirvColumnValues(stored)))
        return false;
    if (row.avatar != stored.avatar && !row.avatar.isEmpty())
        pending.obsoleteAvatars << row.avatar;
    return writeValues(row.number, stored);
}

/// Touches only what differs: bytes that are no text are read as other characters and stay as they are.
bool KirvAccountTable::writeColumns(const QVariant &number, const QVariantList &values)
{
    static const QString select =
        QStringLiteral("SELECT %1 FROM account WHERE number = ?").arg(kirvColumnsWithDefaults());
    QStringList changes;
    QVariantList changed;
    QSqlQuery *query = database.run(select, { number });
    while (query && query->next()) {
        for (int index = 0; index < values.size(); ++index) {
            // Numbers are flags; whatever is not 0 is read as set.
            const QVariant &value = values.at(index);
            const QVariant stored = query->value(index);
            if (value.userType() == QMetaType::QString ? stored.toString() == value.toString()
                                                       : stored.toBool() == value.toBool())
                continue;
            changes << QLatin1String(kirvAccountColumns().at(index).name) + QLatin1String(" = ?");
            changed << value;
        }
    }
    if (!database.readToEnd(query))
        return false;
    return changes.isEmpty()
        || database.execute(
            QStringLiteral("UPDATE account SET %1 WHERE number = ?").arg(changes.join(QLatin1String(", "))),
            changed + QVariantList { number });
}

bool KirvAccountTable::setEnabled(const QList<KirvAccountKey> &keys, bool enabled)
{
    const QString update = QStringLiteral("UPDATE account SET enabled = ? WHERE number = ?");
    return std::all_of(keys.begin(), keys.end(), [&](const KirvAccountKey &key) {
        Row row;
        return findRow(key, &row) && database.run(update, { int(enabled), row.number });
    });
}

bool KirvAccountTable::remove(const KirvAccountKey &key)
{
    Row row;
    if (!findRow(key, &row) || !writeValues(secretTable, row.number, Values(), &pending.hasOverwrittenSecrets)
        || !secretItems.release(row.number)
        || !database.run(QStringLiteral("DELETE FROM account WHERE number = ?"), { row.number }))
        return false;
    pending.hasOverwritten = true;
    if (!row.avatar.isEmpty())
        pending.obsoleteAvatars << row.avatar;
    return true;
}

bool KirvAccountTable::place(const QList<KirvAccountKey> &keys, const KirvAccountKey &next)
{
    qint64 position = 0;
    if (!makeRoom(int(keys.size()), next, &position))
        return false;
    return std::all_of(keys.begin(), keys.end(), [&](const KirvAccountKey &key) {
        Row row;
        return findRow(key, &row)
            && database.run(QStringLiteral("UPDATE account SET position = ? WHERE number = ?"),
                            { ++position, row.number });
    });
}

/// Makes the \a count positions after \a position free, which are before \a next or at the end. However many accounts
/// there are, those that follow are touched once.
bool KirvAccountTable::makeRoom(int count, const KirvAccountKey &next, qint64 *position)
{
    if (next.id.isEmpty()) {
        const QVariant last = database.valueOf(QStringLiteral("SELECT coalesce(max(position), 0) FROM account"));
        *position = last.toLongLong();
        return last.isValid();
    }
    Row following;
    if (!findRow(next, &following))
        return false;
    // Of equal positions, which profiles that were repaired may have, the number decides.
    const QVariant found =
        database.valueOf(QStringLiteral("SELECT position FROM account WHERE number = ?"), { following.number });
    *position = found.toLongLong();
    return found.isValid()
        && database.execute(QStringLiteral("UPDATE account SET position = position + ? "
                                           "WHERE (position, number) >= (?, ?)"),
                            { count + 1, found, following.number });
}

bool KirvAccountTable::arrange(const QList<KirvAccountKey> &keys)
{
    const QString update = QStringLiteral("UPDATE account SET position = ? WHERE number = ? AND position <> ?");
    int position = 0;
    for (const KirvAccountKey &key : keys) {
        Row row;
        ++position;
        if (!findRow(key, &row) || !database.run(update, { position, row.number, position }))
            return false;
    }
    return true;
}

bool KirvAccountTable::findRow(const KirvAccountKey &key, Row *row)
{
    QSqlQuery *query = database.run(QStringLiteral("SELECT number, avatar FROM account WHERE id = ? AND protocol = ?"),
                                    { key.id, key.protocol });
    if (!query)
        return false;
    const bool found = query->next();
    if (found)
        *row = { query->value(0), query->value(1).toString() };
    if (!database.readToEnd(query))
        return false;
    if (found || findRowAsRead(key, row))
        return true;
    database.fail(tr("The account \"%1\" (%2) is not in the profile.").arg(key.id, key.protocol));
    return false;
}

/// Finds an account whose id is not stored as it is read: bytes that are no text were replaced.
bool KirvAccountTable::findRowAsRead(const KirvAccountKey &key, Row *row)
{
    bool found = false;
    QSqlQuery *query = database.run(QStringLiteral("SELECT id, protocol, number, avatar FROM account"));
    while (query && !found && query->next()) {
        found = query->value(0).toString() == key.id && query->value(1).toString() == key.protocol;
        if (found)
            *row = { query->value(2), query->value(3).toString() };
    }
    return database.readToEnd(query) && found;
}

/// The secret settings of \a account, and its password under the empty field, go into one table, the others into
/// another; those that have an item stand in neither.
bool KirvAccountTable::writeValues(const QVariant &number, const KirvAccountRecord &account)
{
    Values settings, secrets;
    for (auto setting = account.settings.constBegin(); setting != account.settings.constEnd(); ++setting) {
        if (!account.secretItems.contains(setting.key()))
            (account.secretSettings.contains(setting.key()) ? secrets : settings)
                .insert(setting.key(), setting.value());
    }
    if (!noteNewSecrets(number, secrets))
        return false;
    if (!account.password.isEmpty() && !account.secretItems.contains(QString()))
        secrets.insert(QString(), account.password);
    return secretItems.write(number, account) && writeValues(settingTable, number, settings, &pending.hasOverwritten)
        && writeValues(secretTable, number, secrets, &pending.hasOverwrittenSecrets);
}

/// Finds out whether one of the \a secrets of account \a number has not been secret so far.
bool KirvAccountTable::noteNewSecrets(const QVariant &number, const Values &secrets)
{
    const QString select = QStringLiteral("SELECT 1 FROM %1 WHERE account = ? AND field = ?").arg(settingTable);
    for (auto secret = secrets.constBegin(); secret != secrets.constEnd(); ++secret)
        pending.hasNewSecrets = pending.hasNewSecrets || database.valueOf(select, { number, secret.key() }).isValid();
    return database.errorText().isEmpty();
}

/// Makes what \a table has of account \a number the \a values, touching only what differs.
bool KirvAccountTable::writeValues(const QString &table, const QVariant &number, const Values &values,
                                   bool *hasOverwritten)
{
    Values stored;
    QSqlQuery *query =
        database.run(QStringLiteral("SELECT field, value FROM %1 WHERE account = ?").arg(table), { number });
    while (query && query->next())
        stored.insert(query->value(0).toString(), query->value(1).toString());
    if (!database.readToEnd(query))
        return false;
    for (auto value = stored.constBegin(); value != stored.constEnd(); ++value) {
        if (values.contains(value.key()) && values.value(value.key()) == value.value())
            continue;
        *hasOverwritten = true;
        if (!database.run(QStringLiteral("DELETE FROM %1 WHERE account = ? AND field = ?").arg(table),
                          { number, value.key() }))
            return false;
    }
    for (auto value = values.constBegin(); value != values.constEnd(); ++value) {
        if (stored.contains(value.key()) && stored.value(value.key()) == value.value())
            continue;
        if (!database.run(QStringLiteral("INSERT INTO %1 (account, field, value) VALUES (?, ?, ?)").arg(table),
                          { number, value.key(), value.value() }))
            return false;
    }
    return true;
}

namespace {

const QString ofProtocol = QStringLiteral("field = ? AND account IN (SELECT number FROM account WHERE protocol = ?)");

const QString &tableFor(bool isSecret)
{
    return isSecret ? secretTable : settingTable;
}

}

QStringList KirvAccountTable::misplaced(const QString &protocol, const QSet<QString> &fields,
                                        const QSet<QString> &secretFields)
{
    QStringList found;
    for (const QString &field : fields) {
        const QString exists = QStringLiteral("SELECT 1 FROM %1 WHERE %2 LIMIT 1")
                                   .arg(tableFor(!secretFields.contains(field)), ofProtocol);
        if (!field.isEmpty() && database.valueOf(exists, { field, protocol }).isValid())
            found << field;
    }
    return found;
}

bool KirvAccountTable::move(const QString &protocol, const QString &field, bool toSecrets)
{
    const QVariantList values { field, protocol };
    pending.hasOverwritten = true;
    pending.hasOverwrittenSecrets = pending.hasOverwrittenSecrets || !toSecrets;
    pending.hasNewSecrets = pending.hasNewSecrets || toSecrets;
    return database.execute(QStringLiteral("INSERT OR REPLACE INTO %1 SELECT account, field, value FROM %2 WHERE %3")
                                .arg(tableFor(toSecrets), tableFor(!toSecrets), ofProtocol),
                            values)
        && database.execute(QStringLiteral("DELETE FROM %1 WHERE %2").arg(tableFor(!toSecrets), ofProtocol), values);
}

/// Deleting single rows leaves traces: what moved when pages were balanced stays in their gaps. Deleting all rows of
/// a table clears its pages as a whole.
bool KirvAccountTable::rewrite(const QString &table)
{
    const QString columns = QStringLiteral("account, field, value");
    return database.execute(QStringLiteral("CREATE TEMP TABLE IF NOT EXISTS kept_value (%1)").arg(columns))
        && database.execute(QStringLiteral("INSERT INTO kept_value SELECT %1 FROM %2").arg(columns, table))
        && database.execute(QStringLiteral("DELETE FROM %1").arg(table))
        && database.execute(
            QStringLiteral("INSERT INTO %2 (%1) SELECT %1 FROM kept_value ORDER BY account, field").arg(columns, table))
        && database.execute(QStringLiteral("DELETE FROM kept_value"));
}

bool KirvAccountTable::rewriteSecrets()
{
    return rewrite(secretTable);
}

bool KirvAccountTable::rewriteSettings()
{
    return rewrite(settingTable);
}
