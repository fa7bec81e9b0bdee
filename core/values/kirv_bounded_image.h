// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_BOUNDED_IMAGE_H
#define KIRV_BOUNDED_IMAGE_H

#include "core/values/kirv_values_export.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QImage>
#include <QSize>
#include <QString>
#include <QStringList>

/// An image from an untrusted source, or the reason why there is none. A value type.
///
/// Only formats that consist of pixels are accepted. An image is measured before it is decoded: neither its bytes nor
/// its pixels can exceed the limits below, and it is decoded no larger than it will be shown, where the format allows.
class KIRV_VALUES_EXPORT KirvBoundedImage {
    Q_DECLARE_TR_FUNCTIONS(KirvBoundedImage)

public:
    static constexpr qint64 maximumBytes = 10 * 1024 * 1024; ///< of the image file
    static constexpr qint64 maximumPixels = 25 * 1000 * 1000; ///< width times height
    /// In pixels; no avatar is shown larger.
    static constexpr int largestAvatarSide = 512;

    /// A null image without a reason.
    KirvBoundedImage() = default;

    /// Reads the image and scales it down when one of its sides exceeds \a largestSide pixels. Pipes and devices are
    /// not read.
    static KirvBoundedImage fromFile(const QString &path, int largestSide = largestAvatarSide);
    /// The same for the bytes of an image file; \a name stands for it in texts.
    static KirvBoundedImage fromData(const QByteArray &data, const QString &name, int largestSide = largestAvatarSide);
    /// The same for an image that is decoded already: it is scaled down only.
    static KirvBoundedImage fromImage(const QImage &image, int largestSide = largestAvatarSide);

    /// The bytes of the image file at \a path, measured but not decoded, and its format as Qt names it. Empty with the
    /// reason in \a problem when fromFile() would refuse it, too, unless it is damaged.
    static QByteArray measuredFile(const QString &path, QByteArray *format, QString *problem);

    /// The size in pixels of the image that \a data, the bytes of a file, are, measured but not decoded; empty when
    /// fromData() would refuse them for anything but their number or that of the pixels.
    static QSize measuredSize(const QByteArray &data);

    /// File name patterns of the accepted formats, as "*.png".
    static QStringList namePatterns();

    /// Whether there is no image.
    bool isNull() const { return picture.isNull(); }
    /// The image; null when there is none.
    QImage image() const { return picture; }
    /// Why there is no image: a sentence for the user; empty when there is one.
    QString problem() const { return failure; }

private:
    static KirvBoundedImage failed(const QString &problem);

    QImage picture;
    QString failure;
};

#endif
