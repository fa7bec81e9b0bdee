// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PICTURE_READER_H
#define KIRV_PICTURE_READER_H

#include "client/kirv_background_job.h"
#include "core/values/kirv_bounded_image.h"

#include <QList>
#include <QPair>

/// Reads pictures from an untrusted source outside the GUI thread, one after the other: decoding one can take long, and
/// all of them at a time would need the memory of all.
class KirvPictureReader : public QObject {
    Q_OBJECT

public:
    /// The bytes of an image file, and the name that stands for it in texts.
    using Source = QPair<QByteArray, QString>;

    /// Destroying it does not wait for what is being read.
    using QObject::QObject;

    /// Reads \a sources and scales them down to \a largestSide pixels; pictureRead() is emitted for each in its order,
    /// later. What is left of an earlier call is not read any more.
    void read(const QList<Source> &sources, int largestSide);
    /// Nothing is emitted any more.
    void cancel();

Q_SIGNALS:
    /// \a index is the place among the sources.
    void pictureRead(int index, const KirvBoundedImage &picture);

private:
    void readFrom(int index);

    QList<Source> sources;
    int largestSide = 0;
    KirvBackgroundJob reading;
};

#endif
