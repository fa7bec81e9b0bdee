// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/store/kirv_secret_item_table.h"

#include "core/store/kirv_database.h"
#include "core/store/kirv_setting_rows.h"

#include <algorithm>

bool KirvSecretItemTable::readInto(QList<KirvAccountRecord> &accounts, const QHash<qint64, int> &indices)
{
    // Of two items of a secret the New one comes last.
    QSqlQuery *query = database.run(QStringLiteral("SELECT i.account, i.field, i.key, i.label FROM secret_item AS i "
                                                   "WHERE i.stage <> ? AND NOT EXISTS (SELECT 1 FROM secret AS s "
                                                   "WHERE s.account = i.account AND s.field = i.field) "
                                                   "ORDER BY i.stage DESC"),
                                    { int(KirvStoredItem::Obsolete) });
    while (query && query->next()) {
        const auto index = indices.constFind(query->value(0).toLongLong());
        if (index == indices.constEnd())
            continue;
        KirvAccountRecord &account = accounts[*index];
        const QString field = query->value(1).toString();
        account.secretItems.insert(field, { query->value(2).toString(), query->value(3).toString() });
        account.unreadSecrets.insert(field);
        if (!field.isEmpty())
            account.secretSettings.insert(field);
    }
    return database.readToEnd(query);
}

bool KirvSecretItemTable::write(const QVariant &number, const KirvAccountRecord &account)
{
    QStringList present, replaced;
    QSqlQuery *query =
        database.run(QStringLiteral("SELECT key, field, stage FROM secret_item WHERE account = ? AND stage <> ?"),
                     { number, int(KirvStoredItem::Obsolete) });
    while (query && query->next()) {
        const QString key = query->value(0).toString();
        const QString wanted = account.secretItems.value(query->value(1).toString()).key;
        const bool isKept = query->value(2).toInt() == KirvStoredItem::Kept;
        if (key == wanted)
            present << key;
        else if (wanted.isEmpty() || !isKept)
            replaced << key;
    }
    if (!database.readToEnd(query) || !makeObsolete(replaced))
        return false;
    for (auto item = account.secretItems.constBegin(); item != account.secretItems.constEnd(); ++item) {
        if (!present.contains(item->key)
            && !database.run(QStringLiteral("INSERT INTO secret_item (key, label, account, field, stage) "
                                            "VALUES (?, ?, ?, ?, ?) ON CONFLICT (key) DO UPDATE SET account = "
                                            "excluded.account, field = excluded.field, stage = ? WHERE stage = ?"),
                             { item->key, item->label, number, item.key(), int(KirvStoredItem::New),
                               int(KirvStoredItem::Kept), int(KirvStoredItem::Obsolete) }))
            return false;
    }
    return true;
}

bool KirvSecretItemTable::release(const QVariant &number)
{
    return database.run(QStringLiteral("UPDATE secret_item SET account = 0, stage = ? WHERE account = ?"),
                        { int(KirvStoredItem::Obsolete), number })
        != nullptr;
}

QList<KirvStoredItem> KirvSecretItemTable::unsettled()
{
    QList<KirvStoredItem> items;
    QSqlQuery *query =
        database.run(QStringLiteral("SELECT i.key, i.label, a.id, a.protocol, i.field, i.stage "
                                    "FROM secret_item AS i LEFT JOIN account AS a ON a.number = i.account "
                                    "WHERE i.stage IN (?, ?)"),
                     { int(KirvStoredItem::New), int(KirvStoredItem::Obsolete) });
    while (query && query->next()) {
        items << KirvStoredItem { { query->value(0).toString(), query->value(1).toString() },
                                  { query->value(2).toString(), query->value(3).toString() },
                                  query->value(4).toString(),
                                  KirvStoredItem::Stage(query->value(5).toInt()) };
    }
    return database.readToEnd(query) ? items : QList<KirvStoredItem>();
}

KirvSecretItem KirvSecretItemTable::find(const KirvAccountKey &account, const QString &field,
                                         KirvStoredItem::Stage stage)
{
    KirvSecretItem found;
    QSqlQuery *query = database.run(
        QStringLiteral("SELECT i.key, i.label FROM secret_item AS i JOIN account AS a ON a.number = i.account "
                       "WHERE a.id = ? AND a.protocol = ? AND i.field = ? AND i.stage = ?"),
        { account.id, account.protocol, field, int(stage) });
    while (query && query->next())
        found = { query->value(0).toString(), query->value(1).toString() };
    return database.readToEnd(query) ? found : KirvSecretItem();
}

bool KirvSecretItemTable::add(const QList<KirvStoredItem> &items)
{
    return std::all_of(items.begin(), items.end(), [this](const KirvStoredItem &item) {
        return database.run(QStringLiteral("INSERT INTO secret_item (key, label, account, field, stage) "
                                           "SELECT ?, ?, number, ?, ? FROM account WHERE id = ? AND protocol = ?"),
                            { item.item.key, item.item.label, item.field, int(KirvStoredItem::New), item.account.id,
                              item.account.protocol })
            != nullptr;
    });
}

bool KirvSecretItemTable::keep(const QStringList &keys, QStringList *kept, bool *hasRemovedSecrets)
{
    for (const QString &key : keys) {
        QVariant account, field;
        QSqlQuery *query = database.run(QStringLiteral("SELECT account, field FROM secret_item WHERE key = ? "
                                                       "AND stage = ?"),
                                        { key, int(KirvStoredItem::New) });
        while (query && query->next()) {
            account = query->value(0);
            field = query->value(1);
        }
        if (!database.readToEnd(query))
            return false;
        if (!account.isValid())
            continue;
        if (!database.run(QStringLiteral("UPDATE secret_item SET stage = CASE key WHEN ? THEN ? ELSE ? END "
                                         "WHERE account = ? AND field = ?"),
                          { key, int(KirvStoredItem::Kept), int(KirvStoredItem::Obsolete), account, field }))
            return false;
        query = database.run(QStringLiteral("DELETE FROM secret WHERE account = ? AND field = ?"), { account, field });
        if (!query)
            return false;
        *hasRemovedSecrets = *hasRemovedSecrets || query->numRowsAffected() != 0;
        *kept << key;
    }
    return true;
}

bool KirvSecretItemTable::noteMoved(int secrets)
{
    return secrets == 0
        || (kirvWriteSettingRow(database, kirvMovedSetting, QString::number(movedCount() + secrets))
            && kirvWriteSettingRow(database, kirvTracesSetting, QStringLiteral("1")));
}

int KirvSecretItemTable::movedCount()
{
    return kirvReadSettingRow(database, kirvMovedSetting).toInt();
}

bool KirvSecretItemTable::forgetMoved()
{
    return kirvRemoveSettingRow(database, kirvMovedSetting);
}

bool KirvSecretItemTable::hasTraces()
{
    return kirvReadSettingRow(database, kirvTracesSetting).isValid();
}

bool KirvSecretItemTable::forgetTraces()
{
    return kirvRemoveSettingRow(database, kirvTracesSetting);
}

bool KirvSecretItemTable::makeObsolete(const QStringList &keys)
{
    return std::all_of(keys.begin(), keys.end(), [this](const QString &key) {
        return database.run(QStringLiteral("UPDATE secret_item SET stage = ? WHERE key = ?"),
                            { int(KirvStoredItem::Obsolete), key })
            != nullptr;
    });
}

bool KirvSecretItemTable::forget(const QStringList &keys)
{
    return std::all_of(keys.begin(), keys.end(), [this](const QString &key) {
        return database.run(QStringLiteral("DELETE FROM secret_item WHERE key = ? AND stage = ?"),
                            { key, int(KirvStoredItem::Obsolete) })
            != nullptr;
    });
}
