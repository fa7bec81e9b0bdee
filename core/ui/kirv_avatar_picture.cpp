// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/ui/kirv_avatar_picture.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>

namespace {

const qint64 MaximumFileSize = 10 * 1024 * 1024;
const qint64 MaximumPixels = 25 * 1000 * 1000;
const int LargestSide = 512;

// Formats made of pixels only: a drawing can take any time to paint, and other clients would not show it.
const char *const Formats[] = { "png", "jpeg", "jpg", "gif", "bmp", "webp" };

bool isTaken(const QByteArray &format)
{
    for (const char *taken : Formats) {
        if (format == taken)
            return true;
    }
    return false;
}

bool hasTooManyPixels(const QSize &size)
{
    return qint64(size.width()) * size.height() > MaximumPixels;
}

QSize bounded(const QSize &size)
{
    const QSize largest(LargestSide, LargestSide);
    return size.boundedTo(largest) == size ? size : size.scaled(largest, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
}

QString tooManyPixels(const QSize &size)
{
    return KirvAvatarPicture::tr("The picture is too large: %1 × %2 pixels. Up to %3 million pixels are possible.")
        .arg(size.width())
        .arg(size.height())
        .arg(MaximumPixels / 1000000);
}

} // namespace

KirvAvatarPicture KirvAvatarPicture::fromFile(const QString &path)
{
    const QString name = QFileInfo(path).fileName();
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return failed(tr("The file “%1” cannot be read.").arg(name));
    if (file.size() > MaximumFileSize)
        return failed(
            tr("The file “%1” is too large. Up to %2 MB are possible.").arg(name).arg(MaximumFileSize / (1024 * 1024)));

    QImageReader reader(&file);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    const QSize size = reader.canRead() && isTaken(reader.format()) ? reader.size() : QSize();
    if (size.isEmpty())
        return failed(tr("The file “%1” is not a picture that can be used. Pictures in the formats PNG, JPEG, GIF, "
                         "BMP and WebP are possible.")
                          .arg(name));
    if (hasTooManyPixels(size))
        return failed(tooManyPixels(size));

    reader.setScaledSize(bounded(size));
    KirvAvatarPicture result;
    result.picture = reader.read();
    return result.isNull() ? failed(tr("The picture in the file “%1” is damaged.").arg(name)) : result;
}

KirvAvatarPicture KirvAvatarPicture::fromImage(const QImage &image)
{
    if (image.isNull())
        return failed(tr("There is no picture that can be used."));
    if (hasTooManyPixels(image.size()))
        return failed(tooManyPixels(image.size()));
    KirvAvatarPicture result;
    result.picture = image.scaled(bounded(image.size()), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return result;
}

QStringList KirvAvatarPicture::namePatterns()
{
    QStringList patterns;
    const QList<QByteArray> readable = QImageReader::supportedImageFormats();
    for (const QByteArray &format : readable) {
        if (isTaken(format))
            patterns += QStringLiteral("*.%1").arg(QLatin1String(format));
    }
    return patterns;
}

KirvAvatarPicture KirvAvatarPicture::failed(const QString &problem)
{
    KirvAvatarPicture result;
    result.failure = problem;
    return result;
}
