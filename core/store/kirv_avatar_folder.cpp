// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/store/kirv_avatar_folder.h"

#include "core/store/kirv_database.h"
#include "core/store/kirv_private_file.h"
#include "core/values/kirv_bounded_image.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QUuid>
#include <sys/stat.h>

namespace {

bool isLink(const QString &path)
{
    struct stat status { };
    return ::lstat(QFile::encodeName(path).constData(), &status) == 0 && S_ISLNK(status.st_mode);
}

}

bool KirvAvatarFolder::isName(const QString &name)
{
    static const QRegularExpression form(
        QRegularExpression::anchoredPattern(QStringLiteral("[0-9a-f]{8}(-[0-9a-f]{4}){3}-[0-9a-f]{12}\\.[a-z0-9+-]+")));
    return form.match(name).hasMatch();
}

QString KirvAvatarFolder::import(const QString &source, QString *error)
{
    QByteArray format;
    const QByteArray data = KirvBoundedImage::measuredFile(source, &format, error);
    if (!error->isEmpty())
        return QString();

    const QString name =
        QUuid::createUuid().toString(QUuid::WithoutBraces) + QLatin1Char('.') + QString::fromLatin1(format);
    QString reason;
    if (!database.execute(QStringLiteral("INSERT INTO avatar_file (name) VALUES (?)"), { name }))
        reason = database.errorText();
    else if (write(name, data, &reason))
        return name;
    remove(name);
    *error = tr("The picture \"%1\" could not be copied into the profile: %2").arg(source, reason);
    return QString();
}

bool KirvAvatarFolder::write(const QString &name, const QByteArray &data, QString *reason) const
{
    const QString path = QDir(folder).filePath(name);
    if (!kirvMakePrivateFile(path)) {
        *reason = tr("The folder \"%1\" cannot be written.").arg(QDir::toNativeSeparators(folder));
        return false;
    }
    QFile file(path);
    const bool written =
        file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && file.write(data) == data.size() && file.flush();
    *reason = file.errorString();
    file.close();
    return written && kirvSyncFile(path) && kirvSyncFolder(folder);
}

bool KirvAvatarFolder::isRecorded(const QString &name)
{
    return isName(name)
        && database.valueOf(QStringLiteral("SELECT 1 FROM avatar_file WHERE name = ?"), { name }).isValid();
}

/// The record goes at the next start, so that removing an account stays one transaction.
void KirvAvatarFolder::remove(const QString &name)
{
    const QString path = QDir(folder).filePath(name);
    if (isRecorded(name) && !isLink(path))
        QFile::remove(path);
}

void KirvAvatarFolder::removeUnused()
{
    QStringList names;
    QSqlQuery *query =
        database.run(QStringLiteral("SELECT name FROM avatar_file WHERE name NOT IN (SELECT avatar FROM account)"));
    while (query && query->next())
        names << query->value(0).toString();
    if (!database.readToEnd(query))
        return;
    for (const QString &name : qAsConst(names)) {
        remove(name);
        if (!QFile::exists(QDir(folder).filePath(name)) || !isName(name))
            database.execute(QStringLiteral("DELETE FROM avatar_file WHERE name = ?"), { name });
    }
}

QString KirvAvatarFolder::usableName(const QString &name) const
{
    return !name.isEmpty() && isName(name) && !isLink(QDir(folder).filePath(name)) ? name : QString();
}
