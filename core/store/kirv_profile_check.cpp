// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/store/kirv_profile_check.h"

#include "core/store/kirv_account_columns.h"
#include "core/store/kirv_avatar_folder.h"
#include "core/store/kirv_database.h"
#include "core/store/kirv_database_header.h"
#include "core/store/kirv_profile_copies.h"
#include "core/store/kirv_store_schema.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <sys/stat.h>

namespace {

/// The kind of the file \a path itself, also when it is a link; 0 when there is none.
mode_t kindOf(const QString &path)
{
    struct stat status { };
    return ::lstat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & S_IFMT : 0;
}

const QLatin1String accountTable("account");
const QDir::Filters allEntries = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;

/// Whether a row without a value in that column is readable: it has the default then.
bool hasDefault(const QString &table, const QString &column)
{
    return table == accountTable && !kirvColumnWithDefault(column).isEmpty();
}

/// Whether the structure is whole, and values are missing only where there is a default.
bool isSound(KirvDatabase &database)
{
    const QLatin1String ok("ok");
    if (database.valueOf(QStringLiteral("PRAGMA integrity_check(1)")).toString() == ok)
        return true;
    const QString missing = QStringLiteral("NULL value in %1.").arg(accountTable);
    bool isSound = true;
    QSqlQuery *query = database.run(QStringLiteral("PRAGMA integrity_check(1000000)"));
    while (isSound && query && query->next()) {
        const QString fault = query->value(0).toString();
        isSound = fault == ok || (fault.startsWith(missing) && hasDefault(accountTable, fault.mid(missing.size())));
    }
    return database.readToEnd(query) && isSound;
}

/// Finds rows that this program cannot have written: a value that is missing or of another kind than its column.
QString wrongRowsIn(const QString &table, const QStringList &texts, const QStringList &numbers)
{
    QStringList conditions;
    const auto exclude = [&](const QStringList &columns, const char *kinds) {
        for (const QString &column : columns)
            conditions << QStringLiteral("typeof(\"%1\") NOT IN (%2%3)")
                              .arg(column, QLatin1String(kinds),
                                   hasDefault(table, column) ? QStringLiteral(", 'null'") : QString());
    };
    exclude(texts, "'text', 'blob'");
    exclude(numbers, "'integer'");
    return QStringLiteral("SELECT 1 FROM \"%1\" WHERE %2 LIMIT 1").arg(table, conditions.join(QLatin1String(" OR ")));
}

bool hasWrongRows(KirvDatabase &database)
{
    QMap<QString, QStringList> texts, numbers;
    QSqlQuery *columns = database.run(QStringLiteral("SELECT m.name, c.name, c.type FROM sqlite_master AS m, "
                                                     "pragma_table_info(m.name) AS c WHERE m.type = 'table' "
                                                     "AND m.name NOT GLOB 'sqlite_*'"));
    while (columns && columns->next()) {
        const bool isText = columns->value(2).toString() == QLatin1String("TEXT");
        (isText ? texts : numbers)[columns->value(0).toString()] << columns->value(1).toString();
    }
    if (!database.readToEnd(columns))
        return true;
    for (auto table = texts.constBegin(); table != texts.constEnd(); ++table) {
        if (database.valueOf(wrongRowsIn(table.key(), table.value(), numbers.value(table.key()))).isValid())
            return true;
    }
    const bool hasSecrets = texts.contains(QStringLiteral("secret"));
    return database.valueOf(QStringLiteral("PRAGMA foreign_key_check")).isValid()
        || (hasSecrets
            && database
                   .valueOf(QStringLiteral("SELECT 1 FROM secret WHERE account NOT IN (SELECT number FROM account) "
                                           "LIMIT 1"))
                   .isValid())
        || !database.errorText().isEmpty();
}

}

KirvProfileState KirvProfileCheck::inspect() const
{
    const QFileInfo folder(paths.folder);
    if (!folder.exists() && !folder.isSymLink())
        return { KirvProfileState::New, QString() };
    if (!folder.isDir())
        return { KirvProfileState::Unusable,
                 tr("The profile folder \"%1\" could not be made.").arg(paths.nativeFolder()) };
    if (!folder.isReadable() || !folder.isExecutable())
        return notWritable();
    const QString link = linkInside();
    if (!link.isEmpty())
        return { KirvProfileState::Unusable,
                 tr("\"%1\" is a link. The program follows no link inside a profile: replace it by what it leads to.")
                     .arg(QDir::toNativeSeparators(link)) };
    const QString special = specialFileInside();
    if (!special.isEmpty())
        return { KirvProfileState::Unusable,
                 tr("\"%1\" is not an ordinary file. Move it away to use the profile.")
                     .arg(QDir::toNativeSeparators(special)) };
    const mode_t avatars = kindOf(paths.avatars());
    if (kindOf(paths.database()) == 0)
        return checkFolderWithoutDatabase();
    return avatars == 0 || avatars == S_IFDIR ? checkDatabaseFile() : notWritable();
}

QString KirvProfileCheck::linkInside() const
{
    const QStringList names { paths.database(),   paths.log(),  paths.logIndex(), paths.journal(),
                              paths.unfinished(), paths.lock(), paths.avatars(),  paths.copies() };
    const auto link =
        std::find_if(names.begin(), names.end(), [](const QString &name) { return kindOf(name) == S_IFLNK; });
    return link == names.end() ? QString() : *link;
}

/// Reading a pipe or a device would wait for ever.
QString KirvProfileCheck::specialFileInside() const
{
    const QStringList names { paths.database(), paths.log(),        paths.logIndex(),
                              paths.journal(),  paths.unfinished(), paths.lock() };
    const auto special = std::find_if(names.begin(), names.end(), [](const QString &name) {
        const mode_t kind = kindOf(name);
        return kind != 0 && kind != S_IFREG;
    });
    return special == names.end() ? QString() : *special;
}

KirvProfileState KirvProfileCheck::checkFolderWithoutDatabase() const
{
    QStringList content = QDir(paths.folder).entryList(allEntries);
    for (const QString &own : { paths.lock(), paths.unfinished() })
        content.removeAll(QFileInfo(own).fileName());
    if (content.isEmpty())
        return { KirvProfileState::New, QString() };
    if (hasTracesOfDatabase(content) || isFolderOfOurs(paths.avatars(), KirvAvatarFolder::isName)
        || isFolderOfOurs(paths.copies(), KirvProfileCopies::isName))
        return damaged(tr("Its database is missing."));
    return { KirvProfileState::NotAProfile,
             tr("The folder \"%1\" is not a profile: it holds other files. Nothing in it was changed: choose an empty "
                "folder.")
                 .arg(paths.nativeFolder()) };
}

/// Whether \a content has what stands beside a database of ours, or took its place.
bool KirvProfileCheck::hasTracesOfDatabase(const QStringList &content) const
{
    const QString database = QFileInfo(paths.database()).fileName();
    const QString kept = database + QLatin1String(".damaged-");
    const QStringList beside { QFileInfo(paths.log()).fileName(), QFileInfo(paths.logIndex()).fileName(),
                               QFileInfo(paths.journal()).fileName() };
    return std::any_of(content.begin(), content.end(),
                       [&](const QString &name) { return beside.contains(name) || name.startsWith(kept); });
}

/// Whether \a folder is one that this program makes. Others may have one of the same name: it is empty, or something in
/// it is called as this program does; beside a lock of ours its name is enough.
bool KirvProfileCheck::isFolderOfOurs(const QString &folder, bool (*isOurs)(const QString &)) const
{
    if (kindOf(folder) != S_IFDIR)
        return false;
    const QStringList names = QDir(folder).entryList(allEntries);
    return names.isEmpty() || kindOf(paths.lock()) != 0 || std::any_of(names.begin(), names.end(), isOurs);
}

KirvProfileState KirvProfileCheck::checkDatabaseFile() const
{
    if (kindOf(paths.database()) != S_IFREG)
        return noDatabase();
    if (!QFileInfo(paths.database()).isReadable())
        return notWritable();
    const KirvDatabaseHeader header = KirvDatabaseHeader::ofFile(paths.database());
    if (!header.isDatabase)
        return noDatabase();
    const bool isMarkedAsOurs = header.applicationId == kirvProfileId;
    const bool isEarly = header.applicationId == 0 && header.version < kirvFirstMarkedVersion;
    if (header.version > kirvStoreVersion() && (isMarkedAsOurs || header.applicationId == 0))
        return { KirvProfileState::Newer,
                 tr("The profile in \"%1\" was written by a newer version of the program. Use that version to "
                    "open it; nothing in it was changed.")
                     .arg(paths.nativeFolder()) };
    if ((!isMarkedAsOurs && !isEarly) || header.version < 1)
        return anotherProgram();
    return { KirvProfileState::Good, QString() };
}

bool KirvProfileCheck::isMarked() const
{
    return KirvDatabaseHeader::ofFile(paths.database()).applicationId == kirvProfileId;
}

KirvProfileState KirvProfileCheck::examine(bool mayRecover) const
{
    const bool hasJournal = QFileInfo(paths.journal()).size() > 0;
    const bool hasLog = QFileInfo(paths.log()).size() > 0;
    if (hasJournal && !mayRecover)
        return { KirvProfileState::Good, QString() };
    // SQLite takes what is missing of the last page for zeros.
    const int pageSize = KirvDatabaseHeader::ofFile(paths.database()).pageSize;
    if (!hasJournal && !hasLog && (pageSize < 512 || QFileInfo(paths.database()).size() % pageSize != 0))
        return damaged(tr("The end of its database is missing."));
    KirvDatabase database;
    // A file that nothing has to be recovered in is read as it is, without making anything beside it.
    const KirvDatabase::Access access =
        hasJournal ? KirvDatabase::Recovering : (hasLog ? KirvDatabase::ReadOnly : KirvDatabase::Immutable);
    if (!database.open(paths.database(), access)) {
        return database.isDamaged() ? noDatabase()
                                    : KirvProfileState { KirvProfileState::Unusable, database.errorText() };
    }
    return examineOpen(database);
}

KirvProfileState KirvProfileCheck::examineFile(const QString &file, quint32 applicationId) const
{
    const KirvDatabaseHeader header = KirvDatabaseHeader::ofFile(file);
    KirvDatabase database;
    if (!header.isDatabase || header.applicationId != applicationId || !database.open(file, KirvDatabase::Immutable))
        return noDatabase();
    return examineOpen(database);
}

KirvProfileState KirvProfileCheck::examineOpen(KirvDatabase &database) const
{
    const int version = database.valueOf(QStringLiteral("PRAGMA user_version")).toInt();
    const int id = database.valueOf(QStringLiteral("PRAGMA application_id")).toInt();
    if (database.errorText().isEmpty()) {
        const QStringList expected = kirvSchemaOfVersion(version);
        if (expected.isEmpty() || kirvSchemaOf(database) != expected) {
            if (database.errorText().isEmpty())
                return id == 0 ? anotherProgram() : damaged(tr("Tables or columns of its database are missing."));
        } else if (isSound(database) && !hasWrongRows(database)) {
            return { KirvProfileState::Good, QString() };
        }
    }
    if (database.errorText().isEmpty() || database.isDamaged())
        return unreadable();
    return { KirvProfileState::Unusable, database.errorText() };
}

KirvProfileState KirvProfileCheck::inUse() const
{
    return { KirvProfileState::InUse,
             tr("The profile in \"%1\" is in use by another running instance of the program. Close that one first.")
                 .arg(paths.nativeFolder()) };
}

KirvProfileState KirvProfileCheck::notWritable() const
{
    return { KirvProfileState::Unusable,
             tr("The profile folder \"%1\" cannot be written. Check its owner and permissions, and whether the disk is "
                "full.")
                 .arg(paths.nativeFolder()) };
}

KirvProfileState KirvProfileCheck::damaged(const QString &fault) const
{
    //: %1 = path of a folder, %2 = a sentence about what is wrong with it
    return { KirvProfileState::Damaged,
             tr("The profile in \"%1\" is damaged. %2 Nothing in it was changed.").arg(paths.nativeFolder(), fault) };
}

KirvProfileState KirvProfileCheck::noDatabase() const
{
    return damaged(tr("The file of its database does not hold one any more."));
}

KirvProfileState KirvProfileCheck::unreadable() const
{
    return damaged(tr("Parts of its database cannot be read, or contradict each other."));
}

KirvProfileState KirvProfileCheck::anotherProgram() const
{
    return { KirvProfileState::NotAProfile,
             tr("The file \"%1\" belongs to another program. Nothing in it was changed.")
                 .arg(QDir::toNativeSeparators(paths.database())) };
}
