// SPDX-License-Identifier: LGPL-2.1-or-later
#include "core/values/kirv_bounded_image.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QImageReader>
#include <QTemporaryDir>
#include <QtEndian>
#include <QtTest>

#include <sys/stat.h>

namespace {

QByteArray encoded(const QImage &image, const char *format)
{
    QByteArray data;
    QBuffer buffer(&data);
    return buffer.open(QIODevice::WriteOnly) && image.save(&buffer, format) ? data : QByteArray();
}

QImage picture(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(QColor(200, 100, 50));
    return image;
}

/// A PNG file that states another size than it has, with the check sum of that header.
QByteArray pngStating(const QSize &size)
{
    const auto crcOf = [](const QByteArray &data) {
        quint32 crc = 0xffffffff;
        for (const char byte : data) {
            crc ^= quint8(byte);
            for (int bit = 0; bit < 8; ++bit)
                crc = (crc >> 1) ^ (crc & 1 ? 0xedb88320 : 0);
        }
        return ~crc;
    };
    const auto bigEndian = [](quint32 number) {
        const quint32 swapped = qToBigEndian(number);
        return QByteArray(reinterpret_cast<const char *>(&swapped), 4);
    };
    QByteArray data = encoded(picture(QSize(4, 4)), "png");
    // 8 bytes of signature, length and name of the chunk, then width and height.
    data.replace(16, 8, bigEndian(quint32(size.width())) + bigEndian(quint32(size.height())));
    data.replace(29, 4, bigEndian(crcOf(data.mid(12, 17))));
    return data;
}

/// A GIF file with a screen of that size, of which its one picture fills the corner only.
QByteArray gifWithScreen(const QSize &size)
{
    QByteArray data = QByteArray::fromBase64("R0lGODdhAQABAIAAAICAgAAAACwAAAAAAQABAAACAkQBADs=");
    data[6] = char(size.width() % 256);
    data[7] = char(size.width() / 256);
    data[8] = char(size.height() % 256);
    data[9] = char(size.height() / 256);
    return data;
}

const QString name = QStringLiteral("face");

} // namespace

class tst_BoundedImage : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void acceptedFormatIsRead_data();
    void acceptedFormatIsRead();
    void drawingIsRefused();
    void smallImageKeepsItsSize_data();
    void smallImageKeepsItsSize();
    void largeImageIsScaledDown_data();
    void largeImageIsScaledDown();
    void tooManyPixelsAreRefusedUndecoded();
    void asManyPixelsAsAllowedAreAccepted();
    void screenOfAGifCountsWithItsPixels();
    void screenOfAGifKeepsItsShape();
    void tooManyBytesAreRefused();
    void asManyBytesAsAllowedAreAccepted();
    void whatIsNoImageIsRefused_data();
    void whatIsNoImageIsRefused();
    void damagedImageIsRefused();
    void onlyOrdinaryFilesAreRead_data();
    void onlyOrdinaryFilesAreRead();
    void measuredFileIsHandedOutAsItIs();
    void sizeIsMeasuredWithoutALimit();
    void imageInMemoryIsBoundedToo();
    void namePatternsAreThoseOfTheAcceptedFormats();
    void nothingIsNullWithoutAReason();

private:
    QString write(const QString &fileName, const QByteArray &data) const;

    QTemporaryDir folder;
};

void tst_BoundedImage::initTestCase()
{
    QVERIFY(folder.isValid());
    QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("folder")));
}

QString tst_BoundedImage::write(const QString &fileName, const QByteArray &data) const
{
    QFile file(folder.filePath(fileName));
    return file.open(QIODevice::WriteOnly) && file.write(data) == data.size() ? file.fileName() : QString();
}

void tst_BoundedImage::acceptedFormatIsRead_data()
{
    QTest::addColumn<QByteArray>("data");
    for (const char *format : { "png", "jpeg", "bmp" })
        QTest::newRow(format) << encoded(picture(QSize(30, 20)), format);
    // One grey pixel; Qt writes no GIF.
    QTest::newRow("gif") << QByteArray::fromBase64("R0lGODdhAQABAIAAAICAgAAAACwAAAAAAQABAAACAkQBADs=");
}

void tst_BoundedImage::acceptedFormatIsRead()
{
    QFETCH(QByteArray, data);
    QVERIFY(!data.isEmpty());
    const KirvBoundedImage fromData = KirvBoundedImage::fromData(data, name);
    QCOMPARE(fromData.problem(), QString());
    QVERIFY(!fromData.image().isNull());
    // The name does not say what is in it.
    const KirvBoundedImage fromFile = KirvBoundedImage::fromFile(write(QStringLiteral("picture.txt"), data));
    QCOMPARE(fromFile.problem(), QString());
    QCOMPARE(fromFile.image(), fromData.image());
}

void tst_BoundedImage::drawingIsRefused()
{
    const QByteArray drawing = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"8\" height=\"8\"/>";
    for (const QString &fileName : { QStringLiteral("drawing.svg"), QStringLiteral("drawing.png") }) {
        const KirvBoundedImage image = KirvBoundedImage::fromFile(write(fileName, drawing));
        QVERIFY(image.isNull());
        QVERIFY2(image.problem().contains(fileName), qPrintable(image.problem()));
    }
}

void tst_BoundedImage::smallImageKeepsItsSize_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("pixel") << QSize(1, 1);
    QTest::newRow("small") << QSize(30, 20);
    QTest::newRow("as large as allowed") << QSize(100, 100);
}

void tst_BoundedImage::smallImageKeepsItsSize()
{
    QFETCH(QSize, size);
    QCOMPARE(KirvBoundedImage::fromData(encoded(picture(size), "png"), name, 100).image(),
             picture(size).convertToFormat(QImage::Format_RGB32));
}

void tst_BoundedImage::largeImageIsScaledDown_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QSize>("scaled");
    QTest::newRow("wide") << QSize(400, 200) << QSize(100, 50);
    QTest::newRow("high") << QSize(200, 400) << QSize(50, 100);
    QTest::newRow("one side") << QSize(110, 22) << QSize(100, 20);
    QTest::newRow("a line") << QSize(5000, 1) << QSize(100, 1);
}

void tst_BoundedImage::largeImageIsScaledDown()
{
    QFETCH(QSize, size);
    QFETCH(QSize, scaled);
    for (const char *format : { "png", "jpeg" }) {
        const KirvBoundedImage image = KirvBoundedImage::fromData(encoded(picture(size), format), name, 100);
        QCOMPARE(image.problem(), QString());
        QCOMPARE(image.image().size(), scaled);
    }
}

void tst_BoundedImage::tooManyPixelsAreRefusedUndecoded()
{
    for (const QSize &size : { QSize(5001, 5000), QSize(0x7fffffff, 1), QSize(100000, 100000) }) {
        const KirvBoundedImage image = KirvBoundedImage::fromData(pngStating(size), name);
        QVERIFY(image.isNull());
        QVERIFY2(!image.problem().contains(QStringLiteral("damaged")), qPrintable(image.problem()));
        QVERIFY(!image.problem().isEmpty());
    }
    const QString problem = KirvBoundedImage::fromData(pngStating(QSize(5001, 5000)), name).problem();
    QVERIFY2(problem.contains(QStringLiteral("5001 × 5000")), qPrintable(problem));
}

void tst_BoundedImage::asManyPixelsAsAllowedAreAccepted()
{
    const KirvBoundedImage image = KirvBoundedImage::fromData(encoded(picture(QSize(5000, 5000)), "png"), name);
    QCOMPARE(image.problem(), QString());
    QCOMPARE(image.image().size(), QSize(512, 512));
}

/// Qt measures the part that the picture fills, and decodes the whole screen.
void tst_BoundedImage::screenOfAGifCountsWithItsPixels()
{
    const KirvBoundedImage image = KirvBoundedImage::fromData(gifWithScreen(QSize(1539, 65280)), name);
    QVERIFY(image.isNull());
    QCOMPARE(image.problem(),
             QStringLiteral("The picture is too large: 1539 × 65280 pixels. Up to 25 million pixels are possible."));
}

void tst_BoundedImage::screenOfAGifKeepsItsShape()
{
    const KirvBoundedImage image = KirvBoundedImage::fromData(gifWithScreen(QSize(3000, 1500)), name, 100);
    QCOMPARE(image.image().size(), QSize(100, 50));
}

void tst_BoundedImage::tooManyBytesAreRefused()
{
    const QByteArray data =
        encoded(picture(QSize(4, 4)), "png").leftJustified(int(KirvBoundedImage::maximumBytes) + 1, 'x');
    for (const KirvBoundedImage &image :
         { KirvBoundedImage::fromData(data, name), KirvBoundedImage::fromFile(write(name, data)) }) {
        QVERIFY(image.isNull());
        QCOMPARE(image.problem(), QStringLiteral("The file \"face\" is too large. Up to 10 MB are possible."));
    }
}

void tst_BoundedImage::asManyBytesAsAllowedAreAccepted()
{
    const QByteArray data =
        encoded(picture(QSize(4, 4)), "png").leftJustified(int(KirvBoundedImage::maximumBytes), 'x');
    QVERIFY(!KirvBoundedImage::fromData(data, name).isNull());
    QVERIFY(!KirvBoundedImage::fromFile(write(name, data)).isNull());
}

void tst_BoundedImage::whatIsNoImageIsRefused_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("text") << QByteArray("This is no picture.");
    QTest::newRow("signature only") << QByteArray("\x89PNG\r\n\x1a\n", 8);
    QTest::newRow("without size") << pngStating(QSize(0, 4));
}

void tst_BoundedImage::whatIsNoImageIsRefused()
{
    QFETCH(QByteArray, data);
    const KirvBoundedImage image = KirvBoundedImage::fromData(data, QStringLiteral("<b>face</b>"));
    QVERIFY(image.isNull());
    QVERIFY2(image.problem().contains(QStringLiteral("\"<b>face</b>\"")), qPrintable(image.problem()));
}

void tst_BoundedImage::damagedImageIsRefused()
{
    QImage noise(64, 64, QImage::Format_RGB32);
    for (int y = 0; y < 64; ++y) {
        for (int x = 0; x < 64; ++x)
            noise.setPixelColor(x, y, QColor((x * 37) % 256, (y * 91) % 256, (x * y) % 256));
    }
    QByteArray data = encoded(noise, "png");
    data.truncate(data.size() / 2);
    const KirvBoundedImage image = KirvBoundedImage::fromData(data, name);
    QVERIFY(image.isNull());
    QCOMPARE(image.problem(), QStringLiteral("The picture in the file \"face\" is damaged."));
}

void tst_BoundedImage::onlyOrdinaryFilesAreRead_data()
{
    QTest::addColumn<QString>("path");
    const QString pipe = folder.filePath(QStringLiteral("pipe"));
    QVERIFY(mkfifo(QFile::encodeName(pipe), 0600) == 0);
    QTest::newRow("pipe without a writer") << pipe;
    QTest::newRow("endless device") << QStringLiteral("/dev/zero");
    QTest::newRow("folder") << folder.filePath(QStringLiteral("folder"));
    QTest::newRow("missing") << folder.filePath(QStringLiteral("nothing"));
    QTest::newRow("empty path") << QString();
}

/// Reading the first two would never end, and the test with it.
void tst_BoundedImage::onlyOrdinaryFilesAreRead()
{
    QFETCH(QString, path);
    const KirvBoundedImage image = KirvBoundedImage::fromFile(path);
    QVERIFY(image.isNull());
    QVERIFY2(image.problem().contains(QStringLiteral("cannot be read")), qPrintable(image.problem()));
    QByteArray format;
    QString problem;
    QCOMPARE(KirvBoundedImage::measuredFile(path, &format, &problem), QByteArray());
    QCOMPARE(problem, image.problem());
}

void tst_BoundedImage::measuredFileIsHandedOutAsItIs()
{
    const QByteArray data = encoded(picture(QSize(600, 600)), "jpeg");
    QByteArray format;
    QString problem;
    QCOMPARE(KirvBoundedImage::measuredFile(write(QStringLiteral("face.png"), data), &format, &problem), data);
    QCOMPARE(format, QByteArray("jpeg"));
    QCOMPARE(problem, QString());

    const QString huge = write(QStringLiteral("huge.png"), pngStating(QSize(100000, 1000)));
    QCOMPARE(KirvBoundedImage::measuredFile(huge, &format, &problem), QByteArray());
    QVERIFY(problem.contains(QStringLiteral("100000 × 1000")));
}

/// So that somebody else can say what is too large.
void tst_BoundedImage::sizeIsMeasuredWithoutALimit()
{
    QCOMPARE(KirvBoundedImage::measuredSize(encoded(picture(QSize(600, 500)), "jpeg")), QSize(600, 500));
    QCOMPARE(KirvBoundedImage::measuredSize(pngStating(QSize(100000, 1000))), QSize(100000, 1000));
    QCOMPARE(KirvBoundedImage::measuredSize(gifWithScreen(QSize(6000, 5000))), QSize(6000, 5000));
    QVERIFY(KirvBoundedImage::measuredSize("<svg width='10' height='10'/>").isEmpty());
    QVERIFY(KirvBoundedImage::measuredSize(QByteArray()).isEmpty());
}

void tst_BoundedImage::imageInMemoryIsBoundedToo()
{
    QCOMPARE(KirvBoundedImage::fromImage(picture(QSize(400, 200)), 100).image().size(), QSize(100, 50));
    QCOMPARE(KirvBoundedImage::fromImage(picture(QSize(40, 20)), 100).image(), picture(QSize(40, 20)));
    QVERIFY(!KirvBoundedImage::fromImage(QImage()).problem().isEmpty());
    const KirvBoundedImage huge = KirvBoundedImage::fromImage(QImage(5001, 5000, QImage::Format_Mono));
    QVERIFY(huge.isNull());
    QVERIFY(huge.problem().contains(QStringLiteral("5001 × 5000")));
}

void tst_BoundedImage::namePatternsAreThoseOfTheAcceptedFormats()
{
    const QStringList patterns = KirvBoundedImage::namePatterns();
    for (const char *pattern : { "*.png", "*.jpg", "*.jpeg", "*.gif", "*.bmp" })
        QVERIFY2(patterns.contains(QLatin1String(pattern)), pattern);
    QVERIFY(QImageReader::supportedImageFormats().contains("svg"));
    QVERIFY(!patterns.contains(QStringLiteral("*.svg")));
}

void tst_BoundedImage::nothingIsNullWithoutAReason()
{
    const KirvBoundedImage nothing;
    QVERIFY(nothing.isNull());
    QCOMPARE(nothing.problem(), QString());
}

QTEST_GUILESS_MAIN(tst_BoundedImage)
#include "tst_bounded_image.moc"
