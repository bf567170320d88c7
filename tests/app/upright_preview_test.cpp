// The preview is upright for every orientation of the stored image.

#include "imagefiles.h"
#include "orientedfiles.h"
#include "previewprobe.h"

using namespace Qt::StringLiterals;
using namespace orientedfiles;

namespace {

QByteArray exifBlock(int orientation, bool bigEndian)
{
    return imagefiles::exifBlock({.orientation = orientation, .bigEndian = bigEndian});
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
    const QByteArray colours = quarterColours(picture);
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
        QCOMPARE(quarterColours(pictureOf(fixture)), QByteArray("RGBY"));
    }
}

QTEST_MAIN(UprightPreviewTest)
#include "upright_preview_test.moc"
