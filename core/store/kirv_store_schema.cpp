// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/store/kirv_store_schema.h"

#include "core/store/kirv_database.h"

#include <QSqlRecord>

namespace {

/// Tables are made anew rather than changed: SQLite clears every page of a table that is dropped, and with it what
/// earlier versions left between the rows.
QStringList versionWithSecretsApart()
{
    return {
        QStringLiteral("CREATE TABLE new_account ("
                       " number INTEGER PRIMARY KEY,"
                       " id TEXT NOT NULL,"
                       " protocol TEXT NOT NULL,"
                       " position INTEGER NOT NULL,"
                       " alias TEXT NOT NULL,"
                       " remember_password INTEGER NOT NULL,"
                       " enabled INTEGER NOT NULL,"
                       " restore_presence INTEGER NOT NULL,"
                       " restore_description INTEGER NOT NULL,"
                       " default_presence TEXT NOT NULL,"
                       " default_description TEXT NOT NULL,"
                       " last_presence TEXT NOT NULL,"
                       " last_description TEXT NOT NULL,"
                       " avatar TEXT NOT NULL,"
                       " UNIQUE (id, protocol))"),
        QStringLiteral("CREATE TABLE secret ("
                       " account INTEGER NOT NULL,"
                       " field TEXT NOT NULL,"
                       " value TEXT NOT NULL,"
                       " PRIMARY KEY (account, field)) WITHOUT ROWID"),
        QStringLiteral("CREATE TABLE avatar_file (name TEXT NOT NULL PRIMARY KEY) WITHOUT ROWID"),
        QStringLiteral("CREATE TABLE profile_copy (name TEXT NOT NULL PRIMARY KEY) WITHOUT ROWID"),
        QStringLiteral("INSERT INTO new_account "
                       "SELECT number, id, protocol, position, alias, remember_password, enabled, restore_presence,"
                       " restore_description, default_presence, default_description, last_presence, last_description,"
                       " avatar FROM account"),
        // Which settings are secret is not known yet: all of them are, until their protocol says otherwise.
        QStringLiteral("INSERT INTO secret SELECT account, field, value FROM account_setting WHERE field <> ''"),
        QStringLiteral("INSERT OR REPLACE INTO secret SELECT number, '', password FROM account WHERE password <> ''"),
        QStringLiteral("INSERT OR IGNORE INTO avatar_file SELECT avatar FROM account WHERE avatar <> ''"),
        QStringLiteral("DROP TABLE account_setting"),
        QStringLiteral("DROP TABLE account"),
        QStringLiteral("ALTER TABLE new_account RENAME TO account"),
        QStringLiteral("CREATE INDEX account_position ON account (position)"),
        QStringLiteral("CREATE TABLE account_setting ("
                       " account INTEGER NOT NULL REFERENCES account (number) ON DELETE CASCADE,"
                       " field TEXT NOT NULL,"
                       " value TEXT NOT NULL,"
                       " PRIMARY KEY (account, field)) WITHOUT ROWID"),
    };
}

/// Makes a database of that version in memory.
bool makeVersion(KirvDatabase &database, int version)
{
    if (version < 1 || version > kirvStoreVersion() || !database.open(QStringLiteral(":memory:"), KirvDatabase::Plain))
        return false;
    for (const QStringList &step : kirvStoreSchemaSteps().mid(0, version)) {
        for (const QString &statement : step) {
            if (!database.execute(statement))
                return false;
        }
    }
    return true;
}

}

const QList<QStringList> &kirvStoreSchemaSteps()
{
    static const QList<QStringList> steps {
        {
            QStringLiteral("CREATE TABLE account ("
                           " number INTEGER PRIMARY KEY,"
                           " id TEXT NOT NULL,"
                           " protocol TEXT NOT NULL,"
                           " alias TEXT NOT NULL DEFAULT '',"
                           " password TEXT NOT NULL DEFAULT '',"
                           " remember_password INTEGER NOT NULL DEFAULT 0,"
                           " enabled INTEGER NOT NULL DEFAULT 1,"
                           " presence TEXT NOT NULL DEFAULT '',"
                           " UNIQUE (id, protocol))"),
            QStringLiteral("CREATE TABLE account_setting ("
                           " account INTEGER NOT NULL REFERENCES account (number) ON DELETE CASCADE,"
                           " field TEXT NOT NULL,"
                           " value TEXT NOT NULL,"
                           " PRIMARY KEY (account, field)) WITHOUT ROWID"),
            QStringLiteral("CREATE TABLE setting ("
                           " key TEXT NOT NULL PRIMARY KEY,"
                           " value TEXT NOT NULL) WITHOUT ROWID"),
        },
        {
            QStringLiteral("ALTER TABLE account RENAME COLUMN presence TO default_presence"),
            QStringLiteral("ALTER TABLE account ADD COLUMN default_description TEXT NOT NULL DEFAULT ''"),
            QStringLiteral("ALTER TABLE account ADD COLUMN restore_presence INTEGER NOT NULL DEFAULT 0"),
            QStringLiteral("ALTER TABLE account ADD COLUMN restore_description INTEGER NOT NULL DEFAULT 0"),
            QStringLiteral("ALTER TABLE account ADD COLUMN last_presence TEXT NOT NULL DEFAULT ''"),
            QStringLiteral("ALTER TABLE account ADD COLUMN last_description TEXT NOT NULL DEFAULT ''"),
            QStringLiteral("ALTER TABLE account ADD COLUMN avatar TEXT NOT NULL DEFAULT ''"),
            QStringLiteral("ALTER TABLE account ADD COLUMN position INTEGER NOT NULL DEFAULT 0"),
            QStringLiteral("UPDATE account SET position = number"),
            QStringLiteral("CREATE INDEX account_position ON account (position)"),
        },
        versionWithSecretsApart(),
        {
            QStringLiteral("CREATE TABLE secret_item ("
                           " key TEXT NOT NULL PRIMARY KEY,"
                           " label TEXT NOT NULL,"
                           " account INTEGER NOT NULL,"
                           " field TEXT NOT NULL,"
                           " stage INTEGER NOT NULL) WITHOUT ROWID"),
            QStringLiteral("CREATE INDEX secret_item_stage ON secret_item (stage)"),
        },
        {
            QStringLiteral("ALTER TABLE account ADD COLUMN trusted_certificate TEXT NOT NULL DEFAULT ''"),
            QStringLiteral("CREATE INDEX secret_item_account ON secret_item (account, field)"),
        },
    };
    return steps;
}

int kirvStoreVersion()
{
    return int(kirvStoreSchemaSteps().size());
}

bool kirvUpgradeSchema(KirvDatabase &database, int version, quint32 applicationId)
{
    const QList<QStringList> &steps = kirvStoreSchemaSteps();
    for (int step = version; step < steps.size(); ++step) {
        for (const QString &statement : steps.at(step)) {
            if (!database.execute(statement))
                return false;
        }
    }
    return database.execute(QStringLiteral("PRAGMA user_version = %1").arg(steps.size()))
        && database.execute(QStringLiteral("PRAGMA application_id = %1").arg(applicationId));
}

QStringList kirvSchemaOf(KirvDatabase &database)
{
    const QStringList questions {
        QStringLiteral("SELECT type, name, tbl_name FROM sqlite_master WHERE name NOT GLOB 'sqlite_*'"),
        QStringLiteral("SELECT m.name, c.name, c.type, c.\"notnull\", c.dflt_value, c.pk, c.hidden "
                       "FROM sqlite_master AS m, pragma_table_xinfo(m.name) AS c "
                       "WHERE m.type = 'table' AND m.name NOT GLOB 'sqlite_*'"),
        QStringLiteral("SELECT m.name, k.\"table\", k.\"from\", k.\"to\", k.on_update, k.on_delete "
                       "FROM sqlite_master AS m, pragma_foreign_key_list(m.name) AS k WHERE m.type = 'table'"),
        QStringLiteral("SELECT m.name, i.\"unique\", i.origin, i.partial, x.seqno, x.name "
                       "FROM sqlite_master AS m, pragma_index_list(m.name) AS i, pragma_index_info(i.name) AS x "
                       "WHERE m.type = 'table' AND m.name NOT GLOB 'sqlite_*'"),
    };
    QStringList schema;
    for (const QString &question : questions) {
        QSqlQuery *query = database.run(question);
        while (query && query->next()) {
            QStringList values;
            for (int column = 0; column < query->record().count(); ++column)
                values << query->value(column).toString();
            schema << values.join(QLatin1Char('|'));
        }
    }
    schema.sort();
    return database.errorText().isEmpty() ? schema : QStringList();
}

QStringList kirvSchemaOfVersion(int version)
{
    KirvDatabase database;
    return makeVersion(database, version) ? kirvSchemaOf(database) : QStringList();
}

QStringList kirvColumnsOfVersion(int version, const QString &table)
{
    KirvDatabase database;
    QStringList columns;
    if (!makeVersion(database, version))
        return columns;
    QSqlQuery *query = database.run(QStringLiteral("SELECT name FROM pragma_table_info(?) ORDER BY cid"), { table });
    while (query && query->next())
        columns << query->value(0).toString();
    return columns;
}
