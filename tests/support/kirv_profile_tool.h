// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PROFILE_TOOL_H
#define KIRV_PROFILE_TOOL_H

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QStringList>
#include <QVariant>
#include <sys/stat.h>

// What other programs may do to a profile, and what tests see of its folder.

inline QString databaseIn(const QString &folder)
{
    return QDir(folder).filePath(QStringLiteral("profile.sqlite"));
}

/// Runs \a statements in the database \a file over a connection of their own; gives the first value of the last one,
/// or what failed after "error: ".
inline QVariant runInDatabase(const QString &file, const QStringList &statements)
{
    const QString name = QStringLiteral("profile_tool");
    QVariant result;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
        database.setDatabaseName(file);
        bool good = database.open();
        QString problem = database.lastError().text();
        for (const QString &statement : statements) {
            QSqlQuery query(database);
            good = good && query.exec(statement);
            if (!good) {
                problem += statement + QLatin1String(": ") + query.lastError().text();
                break;
            }
            result = query.next() ? query.value(0) : QVariant();
        }
        if (!good)
            result = QLatin1String("error: ") + problem;
    }
    QSqlDatabase::removeDatabase(name);
    return result;
}

inline bool writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

inline int permissionsOf(const QString &path)
{
    struct stat status { };
    return ::stat(QFile::encodeName(path).constData(), &status) == 0 ? int(status.st_mode & 07777) : -1;
}

/// Everything in \a folder and the folder itself: kind, mode and content of each, by path. Links are not followed.
inline QMap<QString, QByteArray> treeOf(const QString &folder)
{
    QMap<QString, QByteArray> tree;
    QStringList paths { folder };
    QDirIterator iterator(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                          QDirIterator::Subdirectories);
    while (iterator.hasNext())
        paths << iterator.next();
    for (const QString &path : qAsConst(paths)) {
        struct stat status { };
        if (::lstat(QFile::encodeName(path).constData(), &status) != 0)
            continue;
        QByteArray content = QByteArray::number(status.st_mode, 8) + ' ';
        if (S_ISREG(status.st_mode)) {
            QFile file(path);
            content += file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
        } else if (S_ISLNK(status.st_mode)) {
            content += QFile::encodeName(QFile::symLinkTarget(path));
        }
        tree.insert(path, content);
    }
    return tree;
}

#endif
