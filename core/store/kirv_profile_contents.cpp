// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/store/kirv_profile_contents.h"

#include "core/store/kirv_database.h"

namespace {

bool copySettings(KirvDatabase &source, KirvDatabase &target)
{
    bool good = true;
    QSqlQuery *query = source.run(QStringLiteral("SELECT key, value FROM setting"));
    while (good && query && query->next())
        good = target.run(QStringLiteral("INSERT OR REPLACE INTO setting (key, value) VALUES (?, ?)"),
                          { query->value(0), query->value(1) });
    if (!good)
        query->finish();
    return good && source.readToEnd(query);
}

/// Accounts have other numbers in the target. Those items that a record names are there already, as New ones; values
/// before them, those that are to be removed and those of a move are not.
bool copyItems(KirvDatabase &source, KirvDatabase &target)
{
    bool good = true;
    QSqlQuery *query =
        source.run(QStringLiteral("SELECT i.key, i.label, a.id, a.protocol, i.field, i.stage "
                                  "FROM secret_item AS i LEFT JOIN account AS a ON a.number = i.account"));
    while (good && query && query->next())
        good = target.run(
            QStringLiteral("INSERT OR REPLACE INTO secret_item (key, label, account, field, stage) "
                           "VALUES (?, ?, COALESCE((SELECT number FROM account WHERE id = ? "
                           "AND protocol = ?), 0), ?, ?)"),
            { query->value(0), query->value(1), query->value(2), query->value(3), query->value(4), query->value(5) });
    if (!good)
        query->finish();
    return good && source.readToEnd(query);
}

} // namespace

bool kirvCopySettingsAndItems(KirvDatabase &source, KirvDatabase &target)
{
    return copySettings(source, target) && copyItems(source, target);
}
