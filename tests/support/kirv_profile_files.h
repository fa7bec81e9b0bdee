// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PROFILE_FILES_H
#define KIRV_PROFILE_FILES_H

#include <QByteArray>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QMap>
#include <QString>

// What tests look for and put into the files of a profile.

inline QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Every file below \a folder with its content.
inline QMap<QString, QByteArray> filesIn(const QString &folder)
{
    QMap<QString, QByteArray> files;
    QDirIterator iterator(folder, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
    while (iterator.hasNext()) {
        const QString path = iterator.next();
        files.insert(path, contentOf(path));
    }
    return files;
}

/// Whether \a text stands in any file below \a folder, in one of the encodings of a database.
inline bool isTextInFiles(const QString &text, const QString &folder)
{
    const QByteArray wide(reinterpret_cast<const char *>(text.utf16()), int(text.size() * 2));
    const auto files = filesIn(folder);
    for (const QByteArray &content : files) {
        if (content.contains(text.toUtf8()) || content.contains(wide))
            return true;
    }
    return false;
}

/// Writes a picture and gives its path.
inline QString makePicture(const QString &path, const QSize &size = QSize(32, 32), int colour = 0)
{
    QImage image(size, QImage::Format_Mono);
    image.fill(colour);
    return image.save(path) ? path : QString();
}

#endif
