// The preview stands upright, whichever way round its file stores the image.

#include "imagefiles.h"
#include "previewprobe.h"

#include <QBuffer>
#include <QImageWriter>

using namespace Qt::StringLiterals;

namespace {

/// A wide picture with a colour of its own in each quarter: red, green, below blue, yellow.
QImage quarters()
{
    QImage image(80, 40, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const bool right = x >= image.width() / 2;
            image.setPixelColor(x, y,
                                y < image.height() / 2 ? (right ? Qt::green : Qt::red)
                                                       : (right ? Qt::yellow : Qt::blue));
        }
    }
    return image;
}

QByteArray encoded(const char *format)
{
    QBuffer file;
    QImageWriter writer(&file, format);
    writer.setQuality(100); // without loss, for WEBP
    if (QByteArray(format) == "tiff")
        writer.setTransformation(QImageIOHandler::TransformationMirror); // stored as 2
    if (!writer.write(quarters()))
        qFatal("cannot write the picture");
    return file.data();
}

QByteArray exifBlock(int orientation, bool bigEndian)
{
    return imagefiles::exifBlock({.orientation = orientation, .bigEndian = bigEndian});
}

QByteArray little(quint32 number, int bytes)
{
    QByteArray result;
    for (int i = 0; i < bytes; ++i)
        result += static_cast<char>(number >> (8 * i));
    return result;
}

QByteArray jpegWith(const QByteArray &exif)
{
    constexpr int app1 = 0xe1;
    QBuffer file;
    QImageWriter writer(&file, "jpeg");
    writer.setQuality(100);
    writer.write(quarters());
    return file.buffer().insert(2, imagefiles::segment(app1, QByteArray("Exif\0\0", 6) + exif));
}

QByteArray pngWith(const QByteArray &exif)
{
    constexpr qsizetype firstChunkEnd = 33;
    return encoded("png").insert(firstChunkEnd, imagefiles::chunk("eXIf", exif));
}

QByteArray pngWithLast(const QByteArray &exif)
{
    constexpr qsizetype lastChunkSize = 12;
    QByteArray file = encoded("png");
    return file.insert(file.size() - lastChunkSize, imagefiles::chunk("eXIf", exif));
}

QByteArray webpWith(const QByteArray &exif)
{
    const auto chunk = [](const char *type, const QByteArray &content) {
        return type + little(static_cast<quint32>(content.size()), 4) + content +
               QByteArray(content.size() % 2, '\0');
    };
    constexpr quint32 hasExif = 8;
    const QImage image = quarters();
    const QByteArray extended = little(hasExif, 4) +
                                little(static_cast<quint32>(image.width()) - 1, 3) +
                                little(static_cast<quint32>(image.height()) - 1, 3);
    constexpr qsizetype imageStart = 12;
    return chunk("RIFF", "WEBP" + chunk("VP8X", extended) + encoded("webp").mid(imageStart) +
                             chunk("EXIF", exif));
}

QByteArray webpWithPrefix(const QByteArray &exif)
{
    return webpWith(QByteArray("Exif\0\0", 6) + exif);
}

QByteArray tiffWith(int orientation)
{
    const auto entry = [](quint32 value) {
        return little(0x112, 2) + little(3, 2) + little(1, 4) + little(value, 4);
    };
    QByteArray file = encoded("tiff");
    if (file.count(entry(2)) != 1)
        qFatal("the picture states no orientation");
    return file.replace(entry(2), entry(static_cast<quint32>(orientation)));
}

struct Orientation
{
    int number;
    /// Of the upright picture's quarters: upper left and right, lower left and right.
    const char *colours;
};

// The first row of the stored image is the visual top (1, 2), bottom (3, 4), left (5, 8) or
// right (6, 7) side, its first column the left (1, 4), right (2, 3), top (5, 6) or bottom (7, 8).
constexpr Orientation orientations[] = {
    {0, "RGBY"}, {1, "RGBY"}, {2, "GRYB"}, {3, "YBGR"}, {4, "BYRG"},
    {5, "RBGY"}, {6, "BRYG"}, {7, "YGBR"}, {8, "GYRB"}, {9, "RGBY"},
};

char letterOf(QColor colour)
{
    return colour.red() > 128 ? (colour.green() > 128 ? 'Y' : 'R')
                              : (colour.green() > 128 ? 'G' : 'B');
}

} // namespace

class UprightPreviewTest : public QObject
{
    Q_OBJECT

private slots:
    void everyOrientationStandsUpright_data();
    void everyOrientationStandsUpright();
    void brokenExifTurnsNothing_data();
    void brokenExifTurnsNothing();
};

void UprightPreviewTest::everyOrientationStandsUpright_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QByteArray>("colours");

    using WithExif = QByteArray (*)(const QByteArray &);
    const QList<std::pair<const char *, WithExif>> carriers{
        {"JPEG", jpegWith},
        {"PNG", pngWith},
        {"PNG, behind the image", pngWithLast},
        {"WEBP", webpWith},
        {"WEBP, with a prefix", webpWithPrefix},
    };
    for (const auto &[number, colours] : orientations) {
        for (const auto &[name, withExif] : carriers) {
            for (const bool bigEndian : {false, true})
                QTest::addRow("%s, %d, %s", name, number,
                              bigEndian ? "big endian" : "little endian")
                    << withExif(exifBlock(number, bigEndian)) << QByteArray(colours);
        }
        QTest::addRow("TIFF, %d", number) << tiffWith(number) << QByteArray(colours);
    }
}

void UprightPreviewTest::everyOrientationStandsUpright()
{
    QFETCH(QByteArray, file);
    WindowFixture fixture;
    preview(fixture, fixture.makeFile(u"photo"_s, file));

    const QImage picture = pictureOf(fixture);
    QVERIFY(!picture.isNull());
    QByteArray colours;
    for (const double y : {0.25, 0.75}) {
        for (const double x : {0.25, 0.75})
            colours += letterOf(picture.pixelColor(static_cast<int>(x * picture.width()),
                                                   static_cast<int>(y * picture.height())));
    }
    QTEST(colours, "colours");
    const bool isStoredWide =
        colours == "RGBY" || colours == "GRYB" || colours == "YBGR" || colours == "BYRG";
    QCOMPARE(frameOf(fixture)->size(), isStoredWide ? QSize(151, 75) : QSize(93, 187));
}

void UprightPreviewTest::brokenExifTurnsNothing_data()
{
    QTest::addColumn<QByteArray>("exif");
    const QByteArray exif = exifBlock(6, true);
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("half an order mark") << QByteArray("M");
    QTest::newRow("no order mark") << "XX" + exif.mid(2);
    for (qsizetype size = 2; size < 20; size += 3)
        QTest::addRow("cut after %lld bytes", qlonglong(size)) << exif.left(size);
    QTest::newRow("directory outside") << exif.left(4) + imagefiles::big32(1000) + exif.mid(8);
    QTest::newRow("a number of another type")
        << QByteArray(exif).replace(imagefiles::big16(0x112) + imagefiles::big16(3),
                                    imagefiles::big16(0x112) + imagefiles::big16(2));
}

void UprightPreviewTest::brokenExifTurnsNothing()
{
    QFETCH(QByteArray, exif);
    WindowFixture fixture;
    for (const QByteArray &file : {pngWith(exif), webpWith(exif)}) {
        preview(fixture, fixture.makeFile(u"photo"_s, file));
        QCOMPARE(frameOf(fixture)->size(), QSize(151, 75));
        QCOMPARE(letterOf(pictureOf(fixture).pixelColor(5, 5)), 'R');
    }
}

QTEST_MAIN(UprightPreviewTest)
#include "upright_preview_test.moc"
