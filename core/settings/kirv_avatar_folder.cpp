// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/settings/kirv_avatar_folder.h"

#include "core/settings/kirv_private_file.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QSaveFile>
#include <QUuid>

namespace {

/// The format of the image in \a data, told from its header alone; empty when it is none.
QByteArray imageFormat(QByteArray data, QSize *size)
{
    QBuffer buffer(&data);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    if (!reader.canRead())
        return QByteArray();
    *size = reader.size();
    return size->isEmpty() ? QByteArray() : reader.format();
}

}

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
    // Pipes and devices would never end.
    QFile picked(source);
    if (!QFileInfo(source).isFile() || !picked.open(QIODevice::ReadOnly)) {
        *error = tr("The picture \"%1\" cannot be read.").arg(source);
        return QString();
    }
    const QByteArray data = picked.read(maximumBytes + 1);
    if (data.size() > maximumBytes) {
        *error = tr("The picture \"%1\" is too large: at most %2 MB can be used.")
                     .arg(source)
                     .arg(maximumBytes / (1024 * 1024));
        return QString();
    }
    QSize size;
    const QByteArray format = imageFormat(data, &size);
    if (format.isEmpty()) {
        *error = tr("The file \"%1\" is not a picture that can be used.").arg(source);
        return QString();
    }
    if (qint64(size.width()) * size.height() > maximumPixels) {
        *error = tr("The picture \"%1\" has too many pixels: at most %2 million can be used.")
                     .arg(source)
                     .arg(maximumPixels / (1000 * 1000));
        return QString();
    }

    const QString name =
        QUuid::createUuid().toString(QUuid::WithoutBraces) + QLatin1Char('.') + QString::fromLatin1(format);
    QSaveFile copy(QDir(folder).filePath(name));
    const bool written = copy.open(QIODevice::WriteOnly)
        && copy.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner) && copy.write(data) == data.size()
        && copy.commit() && kirvSyncFolder(folder);
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
