// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/store/kirv_profile_copies.h"

#include "core/store/kirv_account_columns.h"
#include "core/store/kirv_database.h"
#include "core/store/kirv_database_header.h"
#include "core/store/kirv_private_file.h"
#include "core/store/kirv_profile_check.h"
#include "core/store/kirv_profile_opening.h"
#include "core/store/kirv_store_schema.h"

#include <QFile>
#include <QFileInfo>
#include <sys/stat.h>

namespace {

const QLatin1String nameBegin("copy-");
const QLatin1String nameEnd(".sqlite");
const QLatin1String dateFormat("yyyyMMdd-HHmmss-zzz");

QString nameOf(const QDateTime &date)
{
    return nameBegin + date.toString(dateFormat) + nameEnd;
}

/// Invalid when no copy is called so.
QDateTime dateOf(const QString &name)
{
    if (!name.startsWith(nameBegin) || !name.endsWith(nameEnd))
        return QDateTime();
    QDateTime date =
        QDateTime::fromString(name.mid(nameBegin.size(), name.size() - nameBegin.size() - nameEnd.size()), dateFormat);
    date.setTimeSpec(Qt::UTC);
    return date;
}

/// Whether this program has made the file: it says so in its first bytes.
bool isCopy(const QString &path)
{
    struct stat status { };
    return ::lstat(QFile::encodeName(path).constData(), &status) == 0 && S_ISREG(status.st_mode)
        && KirvDatabaseHeader::ofFile(path).applicationId == kirvCopyId;
}

/// The copies of a folder by their names, the newest first.
QStringList copyNamesIn(const QString &folder)
{
    QStringList names;
    const QStringList files = QDir(folder).entryList(QDir::Files | QDir::Hidden, QDir::Name | QDir::Reversed);
    for (const QString &name : files) {
        if (dateOf(name).isValid() && isCopy(QDir(folder).filePath(name)))
            names << name;
    }
    return names;
}

/// Removes the copies of a folder but for the newest \a count. False when one stays.
bool removeAllBut(const QString &folder, int count)
{
    bool areRemoved = true;
    const QStringList names = copyNamesIn(folder);
    for (const QString &name : names.mid(count))
        areRemoved = QFile::remove(QDir(folder).filePath(name)) && areRemoved;
    return areRemoved;
}

/// The columns of \a table in the database that is attached as \a schema.
QStringList columnsOf(KirvDatabase &database, const QString &schema, const QString &table)
{
    QStringList columns;
    QSqlQuery *query =
        database.run(QStringLiteral("SELECT name FROM pragma_table_info(?, ?) ORDER BY cid"), { table, schema });
    while (query && query->next())
        columns << query->value(0).toString();
    database.readToEnd(query);
    return columns;
}

/// What a column of the present schema is taken from in a table that has \a columns; empty when its table had no such
/// value yet.
QString sourceOf(const QString &table, const QString &column, const QStringList &columns)
{
    if (columns.contains(column)) {
        const QString value = kirvColumnWithDefault(column);
        return table == QLatin1String("account") && !value.isEmpty() ? value : column;
    }
    if (column == QLatin1String("default_presence"))
        return QStringLiteral("presence");
    if (column == QLatin1String("position"))
        return QStringLiteral("number");
    return column.startsWith(QLatin1String("restore_")) ? QStringLiteral("0") : QStringLiteral("''");
}

}

QString KirvProfileCopies::unfinished() const
{
    return QDir(paths.copies()).filePath(QStringLiteral("unfinished.sqlite"));
}

bool KirvProfileCopies::isName(const QString &name)
{
    return dateOf(name).isValid();
}

bool KirvProfileCopies::has(const QString &name) const
{
    return isName(name) && isCopy(QDir(paths.copies()).filePath(name));
}

bool KirvProfileCopies::prepareFolder() const
{
    struct stat status { };
    const QByteArray folder = QFile::encodeName(paths.copies());
    if (::lstat(folder.constData(), &status) != 0)
        return kirvMakePrivateFolder(paths.copies());
    return S_ISDIR(status.st_mode) && (!QFile::exists(unfinished()) || QFile::remove(unfinished()));
}

QString KirvProfileCopies::make()
{
    error.clear();
    KirvDatabase copy;
    bool made = prepareFolder() && KirvProfileOpening::makeDatabase(unfinished(), kirvCopyId, copy);
    made = made && copy.execute(QStringLiteral("ATTACH DATABASE ? AS source"), { paths.database() });
    if (made) {
        made = copy.begin() && fill(copy);
        if (made)
            made = copy.commit();
        else
            copy.rollBack();
    }
    copy.close();
    const QString name = made && isWhole(unfinished()) ? finish() : QString();
    if (name.isEmpty()) {
        QFile::remove(unfinished());
        error = tr("No copy of the profile in \"%1\" could be kept. Check the permissions of the folder \"copies\" in "
                   "it, and whether the disk is full.")
                    .arg(paths.nativeFolder());
    }
    return name;
}

/// The settings of versions that did not know which of them are secret are left out.
bool KirvProfileCopies::fill(KirvDatabase &copy) const
{
    const int version = copy.valueOf(QStringLiteral("PRAGMA source.user_version")).toInt();
    QStringList tables { QStringLiteral("account"), QStringLiteral("setting") };
    if (version >= kirvFirstMarkedVersion)
        tables << QStringLiteral("account_setting") << QStringLiteral("avatar_file");
    if (version >= kirvFirstVersionWithItems)
        tables << QStringLiteral("secret_item"); // names of secrets, which are elsewhere
    for (const QString &table : tables) {
        const QStringList columns = columnsOf(copy, QStringLiteral("main"), table);
        const QStringList known = columnsOf(copy, QStringLiteral("source"), table);
        QStringList sources;
        for (const QString &column : columns)
            sources << sourceOf(table, column, known);
        if (!copy.errorText().isEmpty()
            || !copy.execute(QStringLiteral("INSERT INTO main.%1 (%2) SELECT %3 FROM source.%1")
                                 .arg(table, columns.join(QLatin1String(", ")), sources.join(QLatin1String(", ")))))
            return false;
    }
    return version >= kirvFirstMarkedVersion
        || copy.execute(QStringLiteral("INSERT OR IGNORE INTO main.avatar_file "
                                       "SELECT avatar FROM main.account WHERE avatar <> ''"));
}

bool KirvProfileCopies::isWhole(const QString &file) const
{
    return KirvProfileCheck(paths).examineFile(file, kirvCopyId).canBeOpened();
}

/// Gives the complete copy its name; the date never goes back.
QString KirvProfileCopies::finish()
{
    const QString newest = copyNamesIn(paths.copies()).value(0);
    QDateTime date = QDateTime::currentDateTimeUtc();
    if (!newest.isEmpty())
        date = qMax(date, dateOf(newest).addMSecs(1));
    const QString name = nameOf(date);
    if (!kirvSyncFile(unfinished()) || !kirvReplaceFile(unfinished(), QDir(paths.copies()).filePath(name))
        || !kirvSyncFolder(paths.copies()))
        return QString();
    removeAllBut(paths.copies(), most);
    return name;
}

bool KirvProfileCopies::removeAll() const
{
    return QFileInfo(paths.copies()).isSymLink() || removeAllBut(paths.copies(), 0);
}

QList<KirvProfileCopy> KirvProfileCopies::list() const
{
    QList<KirvProfileCopy> copies;
    if (QFileInfo(paths.copies()).isSymLink())
        return copies;
    const QStringList names = copyNamesIn(paths.copies());
    for (const QString &name : names) {
        KirvProfileCopy copy { QDir(paths.copies()).filePath(name), dateOf(name), 0 };
        KirvDatabase database;
        if (!isWhole(copy.path) || !database.open(copy.path, KirvDatabase::Immutable))
            continue;
        copy.accounts = database.valueOf(QStringLiteral("SELECT count(*) FROM account")).toInt();
        if (database.errorText().isEmpty())
            copies << copy;
    }
    return copies;
}
