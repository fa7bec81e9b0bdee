// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/values/kirv_bounded_image.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>

namespace {

// Formats made of pixels only: a drawing can take any time to paint, and other clients would not show it.
const char *const formats[] = { "png", "jpeg", "jpg", "gif", "bmp", "webp" };

bool isAccepted(const QByteArray &format)
{
    for (const char *accepted : formats) {
        if (format == accepted)
            return true;
    }
    return false;
}

bool hasTooManyPixels(const QSize &size)
{
    return qint64(size.width()) * size.height() > KirvBoundedImage::maximumPixels;
}

QSize bounded(const QSize &size, int largestSide)
{
    const QSize largest(largestSide, largestSide);
    return size.boundedTo(largest) == size ? size : size.scaled(largest, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
}

QString tooManyPixels(const QSize &size)
{
    return KirvBoundedImage::tr("The picture is too large: %1 × %2 pixels. Up to %3 million pixels are possible.")
        .arg(size.width())
        .arg(size.height())
        .arg(KirvBoundedImage::maximumPixels / 1000000);
}

QString tooManyBytes(const QString &name)
{
    return KirvBoundedImage::tr("The file \"%1\" is too large. Up to %2 MB are possible.")
        .arg(name)
        .arg(KirvBoundedImage::maximumBytes / (1024 * 1024));
}

/// Qt measures the part of the screen that the pictures of a GIF fill when they are much smaller, and decodes all of
/// it.
QSize withScreenOfGif(const QSize &size, const QByteArray &data)
{
    const auto number = [&data](int place) { return uchar(data.at(place)) + 256 * uchar(data.at(place + 1)); };
    return data.size() < 10 ? size : size.expandedTo(QSize(number(6), number(8)));
}

/// The size of the image in \a data that \a reader is about to decode; empty when there is none.
QSize measure(QImageReader &reader, const QByteArray &data)
{
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    const QSize size = reader.canRead() && isAccepted(reader.format()) ? reader.size() : QSize();
    return !size.isEmpty() && reader.format() == "gif" ? withScreenOfGif(size, data) : size;
}

/// The same; empty with the reason in \a problem when it is refused, too.
QSize measure(QImageReader &reader, const QByteArray &data, const QString &name, QString *problem)
{
    const QSize size = measure(reader, data);
    if (size.isEmpty()) {
        *problem =
            KirvBoundedImage::tr("The file \"%1\" is not a picture that can be used. Pictures in the formats PNG, "
                                 "JPEG, GIF, BMP and WebP are possible.")
                .arg(name);
        return QSize();
    }
    if (hasTooManyPixels(size)) {
        *problem = tooManyPixels(size);
        return QSize();
    }
    return size;
}

/// The bytes of an ordinary file, not more than are allowed; empty with the reason in \a problem otherwise.
QByteArray readFile(const QString &path, QString *problem)
{
    const QString name = QFileInfo(path).fileName();
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        *problem = KirvBoundedImage::tr("The file \"%1\" cannot be read.").arg(name);
        return QByteArray();
    }
    const QByteArray data = file.read(KirvBoundedImage::maximumBytes + 1);
    if (data.size() <= KirvBoundedImage::maximumBytes)
        return data;
    *problem = tooManyBytes(name);
    return QByteArray();
}

} // namespace

KirvBoundedImage KirvBoundedImage::fromFile(const QString &path, int largestSide)
{
    QString problem;
    const QByteArray data = readFile(path, &problem);
    return problem.isEmpty() ? fromData(data, QFileInfo(path).fileName(), largestSide) : failed(problem);
}

KirvBoundedImage KirvBoundedImage::fromData(const QByteArray &data, const QString &name, int largestSide)
{
    if (data.size() > maximumBytes)
        return failed(tooManyBytes(name));
    QBuffer buffer;
    buffer.setData(data);
    QImageReader reader(&buffer);
    QString problem;
    const QSize size = measure(reader, data, name, &problem);
    if (!problem.isEmpty())
        return failed(problem);

    reader.setScaledSize(bounded(size, largestSide));
    KirvBoundedImage result;
    result.picture = reader.read();
    return result.isNull() ? failed(tr("The picture in the file \"%1\" is damaged.").arg(name)) : result;
}

KirvBoundedImage KirvBoundedImage::fromImage(const QImage &image, int largestSide)
{
    if (image.isNull())
        return failed(tr("There is no picture that can be used."));
    if (hasTooManyPixels(image.size()))
        return failed(tooManyPixels(image.size()));
    KirvBoundedImage result;
    result.picture = image.scaled(bounded(image.size(), largestSide), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return result;
}

QByteArray KirvBoundedImage::measuredFile(const QString &path, QByteArray *format, QString *problem)
{
    const QByteArray data = readFile(path, problem);
    if (!problem->isEmpty())
        return QByteArray();
    QBuffer buffer;
    buffer.setData(data);
    QImageReader reader(&buffer);
    const QSize size = measure(reader, data, QFileInfo(path).fileName(), problem);
    *format = reader.format();
    return size.isEmpty() ? QByteArray() : data;
}

QSize KirvBoundedImage::measuredSize(const QByteArray &data)
{
    QBuffer buffer;
    buffer.setData(data);
    QImageReader reader(&buffer);
    return measure(reader, data);
}

QStringList KirvBoundedImage::namePatterns()
{
    QStringList patterns;
    const QList<QByteArray> readable = QImageReader::supportedImageFormats();
    for (const QByteArray &format : readable) {
        if (isAccepted(format))
            patterns += QStringLiteral("*.%1").arg(QLatin1String(format));
    }
    return patterns;
}

KirvBoundedImage KirvBoundedImage::failed(const QString &problem)
{
    KirvBoundedImage result;
    result.failure = problem;
    return result;
}
