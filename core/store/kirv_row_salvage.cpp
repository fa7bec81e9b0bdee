// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/store/kirv_row_salvage.h"

#include "core/store/kirv_account_columns.h"
#include "core/store/kirv_account_table.h"
#include "core/store/kirv_store_schema.h"

#include <QFileInfo>
#include <QSet>
#include <QSqlRecord>
#include <algorithm>

namespace {

const QString accountTable = QStringLiteral("account");

/// So many numbers are tried one by one between the last row before the damage and the first one behind it.
const qint64 mostProbes = 200000;

}

bool KirvRowSalvage::readFrom(const KirvProfilePaths &paths)
{
    if (!open(paths) || !chooseVersion())
        return false;
    readAccounts();
    readValues(QStringLiteral("account_setting"));
    if (version >= kirvFirstMarkedVersion)
        readValues(QStringLiteral("secret"));
    if (version >= kirvFirstVersionWithItems)
        readItems();
    return write();
}

bool KirvRowSalvage::open(const KirvProfilePaths &paths)
{
    const bool hasJournal = QFileInfo(paths.journal()).size() > 0;
    const bool hasLog = QFileInfo(paths.log()).size() > 0;
    // The mode of the writable schema passes over what SQLite would refuse in a damaged one. Nothing is written.
    return source.open(paths.database(),
                       hasJournal   ? KirvDatabase::Recovering
                           : hasLog ? KirvDatabase::ReadOnly
                                    : KirvDatabase::Immutable)
        && source.execute(QStringLiteral("PRAGMA writable_schema = ON"));
}

bool KirvRowSalvage::hasTable(const char *name)
{
    source.clearError();
    return source.run(QStringLiteral("SELECT * FROM %1 LIMIT 0").arg(QLatin1String(name)));
}

/// The number of its columns tells of which version the table of the accounts is, their names tell versions with the
/// same number apart, also where some are damaged, and another table the versions in which it is the same.
bool KirvRowSalvage::chooseVersion()
{
    const QSqlQuery *query = source.run(QStringLiteral("SELECT * FROM account LIMIT 0"));
    const QSqlRecord record = query ? query->record() : QSqlRecord();
    int best = 0, mostFound = -1;
    for (version = kirvStoreVersion(); version > 0; --version) {
        const QStringList columns = columnsOf(accountTable);
        const int found = int(std::count_if(columns.begin(), columns.end(),
                                            [&record](const QString &column) { return record.contains(column); }));
        if (columns.size() == record.count() && found > mostFound
            && (version != kirvFirstVersionWithItems || hasTable("secret_item"))) {
            best = version;
            mostFound = found;
        }
    }
    version = best;
    return version > 0;
}

QStringList KirvRowSalvage::columnsOf(const QString &table)
{
    return kirvColumnsOfVersion(version, table);
}

/// Adds the rows of a statement, up to the first that cannot be read; false when there is such a one.
bool KirvRowSalvage::collect(const QString &sql, const QVariantList &values, const QStringList &columns, int keySize,
                             Rows *rows)
{
    source.clearError();
    QSqlQuery *query = source.run(sql, values);
    while (query && query->next()) {
        Row row;
        QStringList key;
        for (int index = 0; index < columns.size(); ++index) {
            row.insert(columns.at(index), query->value(index));
            if (index < keySize)
                key << query->value(index).toString().rightJustified(20, QLatin1Char('0'));
        }
        rows->insert(key.join(QLatin1Char('\n')), row);
    }
    return source.readToEnd(query);
}

KirvRowSalvage::Rows KirvRowSalvage::rowsOf(const QString &table, int keySize)
{
    Rows rows;
    const QStringList columns = columnsOf(table);
    const QSqlQuery *query = source.run(QStringLiteral("SELECT * FROM %1 LIMIT 0").arg(table));
    if (!query || query->record().count() != columns.size()) {
        counts.isComplete = false;
        return rows;
    }
    QStringList order;
    for (int index = 1; index <= keySize; ++index)
        order << QString::number(index);
    QString sql = QStringLiteral("SELECT * FROM %1 ORDER BY ").arg(table);
    if (collect(sql + order.join(QLatin1String(", ")), {}, columns, keySize, &rows))
        return rows;
    counts.isComplete = false;
    collect(sql + order.join(QLatin1String(" DESC, ")) + QLatin1String(" DESC"), {}, columns, keySize, &rows);
    if (table == accountTable)
        probeAccounts(columns, &rows);
    for (auto account = accounts.constBegin(); account != accounts.constEnd(); ++account) {
        sql = QStringLiteral("SELECT * FROM %1 WHERE \"%2\" = ?").arg(table, columns.first());
        collect(sql, { account.key() }, columns, keySize, &rows);
    }
    return rows;
}

/// Rows between two that were read from both ends may stand in pages that are whole.
void KirvRowSalvage::probeAccounts(const QStringList &columns, Rows *rows)
{
    const QList<QString> keys = rows->keys();
    qint64 largestGap = 0, after = 0;
    qint64 before = keys.isEmpty() ? 0 : keys.first().toLongLong();
    for (const QString &key : keys) {
        const qint64 number = key.toLongLong();
        if (number - before > largestGap) {
            largestGap = number - before;
            after = before;
        }
        before = number;
    }
    const qint64 first = largestGap > 1 ? after : before;
    const qint64 last = first + qMin(largestGap > 1 ? largestGap : mostProbes, mostProbes);
    int misses = 0;
    for (qint64 number = first + 1; number < last && misses < 10000; ++number) {
        const int found = int(rows->size());
        collect(QStringLiteral("SELECT * FROM account WHERE rowid = ?"), { number }, columns, 1, rows);
        misses = rows->size() == found ? misses + 1 : 0;
    }
}

void KirvRowSalvage::readAccounts()
{
    const Rows rows = rowsOf(accountTable, 1);
    QSet<KirvAccountKey> keys;
    for (const Row &row : rows) {
        KirvAccountRecord account;
        account.key = { row.value(QStringLiteral("id")).toString(), row.value(QStringLiteral("protocol")).toString() };
        if (account.key.id.isEmpty() || account.key.protocol.isEmpty() || keys.contains(account.key)) {
            counts.isComplete = false;
            continue;
        }
        keys.insert(account.key);
        for (const KirvAccountColumn &column : kirvAccountColumns()) {
            const QVariant value = row.value(QLatin1String(column.name));
            if (column.text)
                account.*column.text = value.toString();
            else if (!value.isNull())
                account.*column.flag = value.toBool();
        }
        if (version == 1)
            account.defaultPresence = row.value(QStringLiteral("presence")).toString();
        account.password = row.value(QStringLiteral("password")).toString();
        counts.secrets += !account.password.isEmpty();
        const qint64 number = row.value(QStringLiteral("number")).toLongLong();
        positions.insert(number, row.value(QStringLiteral("position"), number).toLongLong());
        accounts.insert(number, account);
    }
    counts.accounts = int(accounts.size());
}

void KirvRowSalvage::readValues(const QString &table)
{
    const bool areSecret = table == QLatin1String("secret") || version < kirvFirstMarkedVersion;
    const Rows rows = rowsOf(table, 2);
    for (const Row &row : rows) {
        const auto account = accounts.find(row.value(QStringLiteral("account")).toLongLong());
        const QString field = row.value(QStringLiteral("field")).toString();
        const QString value = row.value(QStringLiteral("value")).toString();
        // Where a file ends within a page, the rest of the page is read as zeros.
        const bool isCutOff = field.contains(QChar::Null) || value.contains(QChar::Null);
        if (account == accounts.end() || isCutOff) {
            counts.isComplete = false;
        } else if (field.isEmpty()) {
            account->password = value;
            ++counts.secrets;
        } else {
            account->settings.insert(field, value);
            if (areSecret)
                account->secretSettings.insert(field);
            ++(areSecret ? counts.secrets : counts.accountSettings);
        }
    }
}

void KirvRowSalvage::readItems()
{
    const Rows rows = rowsOf(QStringLiteral("secret_item"), 1);
    for (const int wanted : { int(KirvStoredItem::New), int(KirvStoredItem::Kept), int(KirvStoredItem::Obsolete) }) {
        for (const Row &row : rows) {
            if (row.value(QStringLiteral("stage")).toInt() == wanted)
                readItem(row, wanted == KirvStoredItem::Obsolete);
        }
    }
}

void KirvRowSalvage::readItem(const Row &row, bool isObsolete)
{
    const auto account = accounts.find(row.value(QStringLiteral("account")).toLongLong());
    const QString field = row.value(QStringLiteral("field")).toString();
    itemKey = row.value(QStringLiteral("key")).toString();
    const bool isUsed = !isObsolete && account != accounts.end() && !account->secretItems.contains(field)
        && (field.isEmpty() ? account->password.isEmpty() : !account->secretSettings.contains(field));
    if (!isUsed) {
        if (isValueBefore(row))
            valuesBefore.insert({ account.key(), field }, row);
        else
            unusedItems << row;
        return;
    }
    account->secretItems.insert(
        field, { row.value(QStringLiteral("key")).toString(), row.value(QStringLiteral("label")).toString() });
    account->unreadSecrets.insert(field);
    if (row.value(QStringLiteral("stage")).toInt() == KirvStoredItem::New)
        newItems.insert(itemKey);
    ++counts.secrets;
}

/// Of a secret that has a New item: it counts until that one is read back.
bool KirvRowSalvage::isValueBefore(const Row &row) const
{
    const qint64 number = row.value(QStringLiteral("account")).toLongLong();
    const QString field = row.value(QStringLiteral("field")).toString();
    return row.value(QStringLiteral("stage")).toInt() == KirvStoredItem::Kept
        && newItems.contains(accounts.value(number).secretItems.value(field).key)
        && !valuesBefore.contains({ number, field });
}

void KirvRowSalvage::takeItemsOf(const KirvProfilePaths &paths, KirvStoredItem::Stage stage)
{
    if (!open(paths) || !hasTable("secret_item"))
        return;
    version = kirvStoreVersion();
    unusedItems = rowsOf(QStringLiteral("secret_item"), 1).values();
    if (!unusedItems.isEmpty())
        itemKey = unusedItems.first().value(QStringLiteral("key")).toString();
    if (writeUnusedItems(stage))
        writeProfileId();
}

/// Only items that bear the id of the profile are ever removed. Whatever has become of the row with the id, items have
/// it too.
bool KirvRowSalvage::writeProfileId()
{
    const QString id = itemKey.section(QLatin1Char('/'), 0, 0);
    return id.isEmpty()
        || target.execute(QStringLiteral("INSERT OR IGNORE INTO setting (key, value) VALUES (?, ?)"),
                          { kirvProfileIdSetting, id });
}

bool KirvRowSalvage::writeUnusedItems(KirvStoredItem::Stage stage)
{
    return std::all_of(unusedItems.constBegin(), unusedItems.constEnd(), [this, stage](const Row &row) {
        return target.execute(
            QStringLiteral("INSERT OR IGNORE INTO secret_item (key, label, account, field, stage) "
                           "VALUES (?, ?, 0, '', %1)")
                .arg(int(stage)),
            { row.value(QStringLiteral("key")).toString(), row.value(QStringLiteral("label")).toString() });
    });
}

bool KirvRowSalvage::writeValuesBefore()
{
    for (auto row = valuesBefore.constBegin(); row != valuesBefore.constEnd(); ++row) {
        const KirvAccountKey key = accounts.value(row.key().first).key;
        if (!target.execute(QStringLiteral("INSERT OR IGNORE INTO secret_item (key, label, account, field, stage) "
                                           "SELECT ?, ?, number, ?, %1 FROM account WHERE id = ? AND protocol = ?")
                                .arg(int(KirvStoredItem::Kept)),
                            { row->value(QStringLiteral("key")).toString(),
                              row->value(QStringLiteral("label")).toString(), row.key().second, key.id, key.protocol }))
            return false;
    }
    return true;
}

bool KirvRowSalvage::write()
{
    QList<qint64> numbers = accounts.keys();
    std::stable_sort(numbers.begin(), numbers.end(),
                     [this](qint64 left, qint64 right) { return positions.value(left) < positions.value(right); });
    const Rows settings = rowsOf(QStringLiteral("setting"), 1);
    KirvAccountTable table(target);
    bool good = target.begin();
    for (const qint64 number : qAsConst(numbers)) {
        const KirvAccountRecord &account = accounts[number];
        good = good && table.insert(account)
            && (account.avatar.isEmpty()
                || target.execute(QStringLiteral("INSERT OR IGNORE INTO avatar_file (name) VALUES (?)"),
                                  { account.avatar }));
    }
    good = good && writeValuesBefore() && writeUnusedItems(KirvStoredItem::Obsolete);
    for (const Row &row : settings) {
        good = good
            && target.execute(QStringLiteral("INSERT OR IGNORE INTO setting (key, value) VALUES (?, ?)"),
                              { row.value(QStringLiteral("key")), row.value(QStringLiteral("value")).toString() });
        ++counts.clientSettings;
    }
    good = good && writeProfileId();
    if (good)
        return target.commit();
    target.rollBack();
    return false;
}
