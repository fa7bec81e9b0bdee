// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/store/kirv_database.h"

#include <QDir>
#include <QFileInfo>
#include <QSqlError>
#include <QUrl>
#include <QUuid>
#include <algorithm>

namespace {

/// SQLite's primary result codes that deserve a sentence of their own.
enum ResultCode {
    Permission = 3,
    Busy = 5,
    Locked = 6,
    WriteProtected = 8,
    InputOutput = 10,
    Corrupt = 11,
    Full = 13,
    CannotOpen = 14,
    NotADatabase = 26
};

const QLatin1String driver("QSQLITE");

/// A null string would be stored as NULL, which no column takes.
QVariant bindable(const QVariant &value)
{
    const bool isNullText = value.userType() == QMetaType::QString && value.toString().isNull();
    return isNullText ? QVariant(QString::fromLatin1("")) : value;
}

QString optionsOf(KirvDatabase::Access access)
{
    if (access == KirvDatabase::Immutable)
        return QStringLiteral(";QSQLITE_OPEN_READONLY;QSQLITE_OPEN_URI");
    return access == KirvDatabase::ReadOnly ? QStringLiteral(";QSQLITE_OPEN_READONLY") : QString();
}

/// Temporary tables stay in memory: they hold secrets.
QStringList preparationsFor(KirvDatabase::Access access)
{
    QStringList statements { QStringLiteral("PRAGMA temp_store = MEMORY") };
    if (access == KirvDatabase::Plain)
        statements << QStringLiteral("PRAGMA journal_mode = OFF") << QStringLiteral("PRAGMA synchronous = FULL");
    if (access == KirvDatabase::ReadWrite)
        statements << QStringLiteral("PRAGMA foreign_keys = ON") << QStringLiteral("PRAGMA journal_mode = WAL")
                   << QStringLiteral("PRAGMA synchronous = FULL") << QStringLiteral("PRAGMA secure_delete = ON");
    return statements;
}

}

KirvDatabase::KirvDatabase()
    : name(QLatin1String("kirv-") + QUuid::createUuid().toString(QUuid::WithoutBraces))
{
}

KirvDatabase::~KirvDatabase()
{
    close();
}

bool KirvDatabase::open(const QString &path, Access access)
{
    close();
    file = path;
    if (!QSqlDatabase::isDriverAvailable(driver)) {
        fail(tr("The SQLite driver of Qt, which the profile needs, is not installed."));
        return false;
    }
    connection = QSqlDatabase::addDatabase(driver, name);
    connection.setDatabaseName(file);
    if (access == Immutable) {
        QUrl url = QUrl::fromLocalFile(file);
        url.setQuery(QStringLiteral("mode=ro&immutable=1"));
        connection.setDatabaseName(url.toString(QUrl::FullyEncoded));
    }
    connection.setConnectOptions(QLatin1String("QSQLITE_BUSY_TIMEOUT=1000") + optionsOf(access));
    if (!connection.open())
        return failBy(connection.lastError());
    const QStringList preparations = preparationsFor(access);
    return std::all_of(preparations.begin(), preparations.end(),
                       [this](const QString &statement) { return execute(statement); });
}

void KirvDatabase::close()
{
    statements.clear();
    depth = 0;
    mustRollBack = false;
    commits = 0;
    if (!connection.isValid())
        return;
    connection.close();
    connection = QSqlDatabase();
    QSqlDatabase::removeDatabase(name);
}

bool KirvDatabase::execute(const QString &sql, const QVariantList &values)
{
    if (mustRollBack)
        return false;
    QSqlQuery query(connection);
    bool good = query.prepare(sql);
    for (int index = 0; good && index < values.size(); ++index)
        query.bindValue(index, bindable(values.at(index)));
    return (good && query.exec()) || failBy(query.lastError());
}

QSqlQuery *KirvDatabase::run(const QString &sql, const QVariantList &values)
{
    if (mustRollBack)
        return nullptr;
    if (!isOpen()) {
        fail(tr("The profile is not open."));
        return nullptr;
    }
    const auto [statement, isNew] = statements.try_emplace(sql, connection);
    QSqlQuery &query = statement->second;
    if (isNew) {
        query.setForwardOnly(true);
        if (!query.prepare(sql)) {
            failBy(query.lastError());
            statements.erase(statement);
            return nullptr;
        }
    }
    for (int index = 0; index < values.size(); ++index)
        query.bindValue(index, bindable(values.at(index)));
    if (!query.exec()) {
        failBy(query.lastError());
        query.finish();
        return nullptr;
    }
    return &query;
}

bool KirvDatabase::readToEnd(QSqlQuery *query)
{
    if (!query)
        return false;
    const bool hasFailed = query->lastError().isValid();
    if (hasFailed)
        failBy(query->lastError());
    query->finish();
    return !hasFailed;
}

QVariant KirvDatabase::valueOf(const QString &sql, const QVariantList &values)
{
    QSqlQuery *query = run(sql, values);
    const QVariant value = query && query->next() ? query->value(0) : QVariant();
    readToEnd(query);
    return value;
}

bool KirvDatabase::begin()
{
    if (depth == 0 && !run(QStringLiteral("BEGIN IMMEDIATE")))
        return false;
    ++depth;
    return true;
}

bool KirvDatabase::commit()
{
    if (depth == 0)
        return false;
    if (depth > 1) {
        --depth;
        return !mustRollBack;
    }
    if (mustRollBack || !run(QStringLiteral("COMMIT"))) {
        rollBack();
        return false;
    }
    depth = 0;
    ++commits;
    return true;
}

void KirvDatabase::setDurable(bool isDurable)
{
    if (depth == 0)
        execute(isDurable ? QStringLiteral("PRAGMA synchronous = FULL")
                          : QStringLiteral("PRAGMA synchronous = NORMAL"));
}

void KirvDatabase::rollBack()
{
    if (depth == 0)
        return;
    mustRollBack = --depth > 0;
    if (mustRollBack)
        return;
    // After some failures SQLite has undone the transaction itself, and refuses this statement.
    QSqlQuery query(connection);
    query.exec(QStringLiteral("ROLLBACK"));
}

/// Always false.
bool KirvDatabase::failBy(const QSqlError &failure)
{
    const int code = failure.nativeErrorCode().toInt() & 0xff;
    damaged = damaged || code == Corrupt || code == NotADatabase;
    fail(sentence(failure));
    return false;
}

void KirvDatabase::fail(const QString &text)
{
    if (!mustRollBack)
        error = text;
    mustRollBack = depth > 0;
}

void KirvDatabase::clearError()
{
    if (mustRollBack)
        return;
    error.clear();
    damaged = false;
}

QString KirvDatabase::sentence(const QSqlError &failure) const
{
    const QString folder = QDir::toNativeSeparators(QFileInfo(file).path());
    switch (failure.nativeErrorCode().toInt() & 0xff) {
    case Full:
        return tr("There is no space left on the disk, so nothing was stored. Free some space and try again.");
    case InputOutput:
        return tr("The profile in \"%1\" could not be read or written (%2). The disk may be full or faulty.")
            .arg(folder, failure.databaseText());
    case Corrupt:
    case NotADatabase:
        return tr("The profile in \"%1\" is damaged, so nothing was stored. Start the program again to see what can "
                  "be done.")
            .arg(folder);
    case Permission:
    case WriteProtected:
    case CannotOpen:
        return tr("The profile in \"%1\" cannot be written. Check its owner and permissions.").arg(folder);
    case Busy:
    case Locked:
        return tr("Another program is using the profile in \"%1\".").arg(folder);
    default:
        return tr("The profile in \"%1\" could not be used: %2").arg(folder, failure.text());
    }
}
