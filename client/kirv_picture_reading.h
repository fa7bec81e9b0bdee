// SPDX-License-Identifier: LGPL-2.1-or-later
#ifndef KIRV_PICTURE_READING_H
#define KIRV_PICTURE_READING_H

#include "core/values/kirv_bounded_image.h"

#include <QList>
#include <QObject>
#include <QPair>
#include <QRunnable>
#include <atomic>
#include <memory>

/// The job of a KirvPictureReader for a thread pool, which deletes it.
class KirvPictureReading : public QObject, public QRunnable {
    Q_OBJECT

public:
    /// The bytes of an image file, and the name that stands for it in texts.
    using Source = QPair<QByteArray, QString>;
    /// Shared with whoever may give the job up before its end.
    using Flag = std::shared_ptr<std::atomic<bool>>;

    KirvPictureReading(const QList<Source> &sources, int largestSide, const Flag &isWanted);

    void run() override;

Q_SIGNALS:
    /// Emitted by the thread that reads.
    void pictureRead(int index, const KirvBoundedImage &picture);

private:
    const QList<Source> sources;
    const int largestSide;
    const Flag isWanted;
};

#endif
