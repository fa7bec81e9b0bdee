// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_AVATAR_PICTURE_H
#define KIRV_AVATAR_PICTURE_H

#include <QCoreApplication>
#include <QImage>
#include <QString>
#include <QStringList>

/// A picture for an avatar, or the reason why there is none.
class KirvAvatarPicture {
    Q_DECLARE_TR_FUNCTIONS(KirvAvatarPicture)

public:
    /// Reads the file with bounded effort: it is measured before it is decoded.
    static KirvAvatarPicture fromFile(const QString &path);
    static KirvAvatarPicture fromImage(const QImage &image);

    /// File name patterns of the formats that are taken, as "*.png".
    static QStringList namePatterns();

    bool isNull() const { return picture.isNull(); }
    /// The picture, scaled down when it is larger than any avatar is shown.
    QImage image() const { return picture; }
    /// A sentence to the user; empty when there is a picture.
    QString problem() const { return failure; }

private:
    static KirvAvatarPicture failed(const QString &problem);

    QImage picture;
    QString failure;
};

#endif
