// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/store/kirv_store_schema.h"

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
    };
    return steps;
}
