// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/store/kirv_avatar_folder.h"

#include "core/store/kirv_private_file.h"
#include "core/values/kirv_bounded_image.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QUuid>

KirvAvatarFolder::KirvAvatarFolder(const QString &path)
    : folder(path)
{
}

bool KirvAvatarFolder::create()
{
    return QDir().mkpath(folder) && kirvMakePrivate(folder);
}

QString KirvAvatarFolder::import(const QString &source, QString *error) const
{
    QByteArray format;
    const QByteArray data = KirvBoundedImage::measuredFile(source, &format, error);
    if (!error->isEmpty())
        return QString();

    const QString name =
        QUuid::createUuid().toString(QUuid::WithoutBraces) + QLatin1Char('.') + QString::fromLatin1(format);
    // Flushed by ourselves: commit() does not report that what was buffered could not be written.
    QSaveFile copy(QDir(folder).filePath(name));
    const bool written = copy.open(QIODevice::WriteOnly)
        && copy.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner) && copy.write(data) == data.size()
        && copy.flush() && copy.commit() && kirvSyncFolder(folder);
    if (!written) {
        QFile::remove(copy.fileName());
        *error = tr("The picture \"%1\" could not be copied into the profile: %2").arg(source, copy.errorString());
        return QString();
    }
    return name;
}

void KirvAvatarFolder::remove(const QString &name) const
{
    if (!name.isEmpty())
        QFile::remove(QDir(folder).filePath(name));
}

void KirvAvatarFolder::removeAllBut(const QSet<QString> &names) const
{
    const QStringList files = QDir(folder).entryList(QDir::Files | QDir::Hidden | QDir::System);
    for (const QString &file : files) {
        if (!names.contains(file))
            remove(file);
    }
}
