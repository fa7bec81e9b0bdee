// SPDX-License-Identifier: LGPL-2.1-or-later
#include "client/kirv_picture_reader.h"

void KirvPictureReader::read(const QList<Source> &newSources, int newLargestSide)
{
    sources = newSources;
    largestSide = newLargestSide;
    reading.drop();
    readFrom(0);
}

void KirvPictureReader::readFrom(int index)
{
    if (index >= sources.size())
        return;
    const auto work = [source = sources.at(index), side = largestSide](const KirvBackgroundJob::Flag &) {
        return KirvBoundedImage::fromData(source.first, source.second, side);
    };
    reading.run<KirvBoundedImage>(work, [this, index](const KirvBoundedImage &picture) {
        readFrom(index + 1);
        Q_EMIT pictureRead(index, picture); // a slot may cancel, read others, or destroy this
    });
}

void KirvPictureReader::cancel()
{
    reading.drop();
    sources.clear();
}
