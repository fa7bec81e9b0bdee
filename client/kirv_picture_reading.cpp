// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_picture_reading.h"

KirvPictureReading::KirvPictureReading(const QList<Source> &sources, int largestSide, const Flag &isWanted)
    : sources(sources)
    , largestSide(largestSide)
    , isWanted(isWanted)
{
}

void KirvPictureReading::run()
{
    for (int i = 0; i < sources.size() && *isWanted; ++i) {
        const Source &source = sources.at(i);
        Q_EMIT pictureRead(i, KirvBoundedImage::fromData(source.first, source.second, largestSide));
    }
}
