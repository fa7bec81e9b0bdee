// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/store/kirv_account_columns.h"

#include <QStringList>

namespace {

QString withDefault(const KirvAccountColumn &column)
{
    const QString fallback = column.text ? QStringLiteral("''") : QString::number(KirvAccountRecord().*column.flag);
    return QStringLiteral("coalesce(%1, %2)").arg(QLatin1String(column.name), fallback);
}

}

const QList<KirvAccountColumn> &kirvAccountColumns()
{
    static const QList<KirvAccountColumn> columns {
        { "alias", &KirvAccountRecord::alias, nullptr },
        { "remember_password", nullptr, &KirvAccountRecord::rememberPassword },
        { "enabled", nullptr, &KirvAccountRecord::enabled },
        { "restore_presence", nullptr, &KirvAccountRecord::restorePresence },
        { "restore_description", nullptr, &KirvAccountRecord::restoreDescription },
        { "default_presence", &KirvAccountRecord::defaultPresence, nullptr },
        { "default_description", &KirvAccountRecord::defaultDescription, nullptr },
        { "last_presence", &KirvAccountRecord::lastPresence, nullptr },
        { "last_description", &KirvAccountRecord::lastDescription, nullptr },
        { "avatar", &KirvAccountRecord::avatar, nullptr },
        { "trusted_certificate", &KirvAccountRecord::trustedCertificate, nullptr },
    };
    return columns;
}

QString kirvJoinedColumns(const QString &suffix)
{
    QStringList names;
    for (const KirvAccountColumn &column : kirvAccountColumns())
        names << QLatin1String(column.name) + suffix;
    return names.join(QLatin1String(", "));
}

QString kirvColumnsWithDefaults()
{
    QStringList expressions;
    for (const KirvAccountColumn &column : kirvAccountColumns())
        expressions << withDefault(column);
    return expressions.join(QLatin1String(", "));
}

QString kirvColumnWithDefault(const QString &name)
{
    for (const KirvAccountColumn &column : kirvAccountColumns()) {
        if (name == QLatin1String(column.name))
            return withDefault(column);
    }
    return QString();
}

QString kirvColumnPlaceHolders()
{
    QStringList marks;
    for (int index = 0; index < kirvAccountColumns().size(); ++index)
        marks << QStringLiteral("?");
    return marks.join(QLatin1String(", "));
}

KirvAccountRecord kirvStoredForm(KirvAccountRecord record)
{
    if (!record.rememberPassword) {
        record.password.clear();
        record.secretItems.remove(QString());
        record.unreadSecrets.remove(QString());
    }
    QSet<QString> secrets;
    for (const QString &field : qAsConst(record.secretSettings)) {
        if (record.settings.contains(field))
            secrets.insert(field);
    }
    record.secretSettings = secrets;
    const QStringList fields = record.secretItems.keys();
    for (const QString &field : fields) {
        const bool isSecret = field.isEmpty() || secrets.contains(field) || record.unreadSecrets.contains(field);
        if (!isSecret) // any more
            record.secretItems.remove(field);
    }
    return record;
}

QVariantList kirvColumnValues(const KirvAccountRecord &record)
{
    QVariantList values;
    for (const KirvAccountColumn &column : kirvAccountColumns())
        values << (column.text ? QVariant(record.*column.text) : QVariant(int(record.*column.flag)));
    return values;
}

bool KirvAccountRecord::isStoredLike(const KirvAccountRecord &other) const
{
    const KirvAccountRecord left = kirvStoredForm(*this), right = kirvStoredForm(other);
    return key == other.key && left.password == right.password && kirvColumnValues(left) == kirvColumnValues(right)
        && settings == other.settings && left.secretSettings == right.secretSettings
        && left.secretItems == right.secretItems;
}
