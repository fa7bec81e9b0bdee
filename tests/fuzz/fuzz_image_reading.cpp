// SPDX-License-Identifier: LGPL-2.1-or-later
// Reads images of any content. Whatever it is, there is a picture within the limits or a reason, never both.
#include "core/values/kirv_bounded_image.h"

#include <QCoreApplication>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

void ignoreMessages(QtMsgType, const QMessageLogContext &, const QString &) { }

/// The image formats are plug-ins, which Qt finds for an application.
void makeApplication()
{
    static int count = 1;
    static char name[] = "fuzz_image_reading";
    static char *arguments[] = { name, nullptr };
    static const auto *application = new QCoreApplication(count, arguments); // never destroyed, as in other fuzzers
    Q_UNUSED(application)
    qInstallMessageHandler(ignoreMessages);
}

void expectPictureOrReason(const KirvBoundedImage &image, int largestSide)
{
    const bool isTooLarge = image.image().width() > largestSide || image.image().height() > largestSide;
    if (isTooLarge || image.isNull() == image.problem().isEmpty())
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    makeApplication();
    const QByteArray input(reinterpret_cast<const char *>(data), int(size));
    const KirvBoundedImage image = KirvBoundedImage::fromData(input, QStringLiteral("input"));
    expectPictureOrReason(image, KirvBoundedImage::largestAvatarSide);
    if (!image.isNull())
        expectPictureOrReason(KirvBoundedImage::fromData(input, QStringLiteral("input"), 16), 16);
    return 0;
}
