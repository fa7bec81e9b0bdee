// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_picture_reader.h"

#include <QThreadPool>

KirvPictureReader::~KirvPictureReader()
{
    cancel();
}

void KirvPictureReader::read(const QList<Source> &sources, int largestSide)
{
    cancel();
    if (sources.isEmpty())
        return;
    qRegisterMetaType<KirvBoundedImage>("KirvBoundedImage");
    isWanted = std::make_shared<std::atomic<bool>>(true);
    auto *reading = new KirvPictureReading(sources, largestSide, isWanted);
    const auto forward = [this, wanted = isWanted](int index, const KirvBoundedImage &picture) {
        if (*wanted)
            Q_EMIT pictureRead(index, picture);
    };
    connect(reading, &KirvPictureReading::pictureRead, this, forward, Qt::QueuedConnection);
    QThreadPool::globalInstance()->start(reading);
}

void KirvPictureReader::cancel()
{
    if (isWanted)
        *isWanted = false;
    isWanted.reset();
}
