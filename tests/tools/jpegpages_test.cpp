// Which JPEG files go into a PDF as they stand, with which bytes, and which are refused.

#include "imagefiles.h"
#include "pagereading.h"

#include <QTest>

using namespace imagefiles;

class JpegPagesTest : public QObject
{
    Q_OBJECT

private slots:
    void nothingButTheImageIsCopied();
    void densityStandsBehindBlocksOfAnyLength();
    void isCopiedOrLeftToImageMagick_data();
    void isCopiedOrLeftToImageMagick();
    void incompleteFileIsRefused_data();
    void incompleteFileIsRefused();
    void profileTravels();
    void unusedTablesStayBehind();
};

namespace {

const QByteArray colour = jpegBody(true);

// The body with another marker at its frame.
QByteArray withFrame(char marker)
{
    QByteArray body = colour;
    body[body.indexOf("\xFF\xC0") + 1] = marker;
    return body;
}

// The body with another byte in its frame: precision, height, width, number of components and so
// on.
QByteArray withFrameByte(int place, char value)
{
    QByteArray body = colour;
    body[body.indexOf("\xFF\xC0") + 4 + place] = value;
    return body;
}

QByteArray withComponentNames(const char *names)
{
    QByteArray body = colour;
    for (qsizetype component = 0; component < 3; ++component) {
        body[body.indexOf("\xFF\xC0") + 10 + 3 * component] = names[component];
        body[body.indexOf("\xFF\xDA") + 5 + 2 * component] = names[component];
    }
    return body;
}

QByteArray beforeScan(const QByteArray &segment)
{
    QByteArray body = colour;
    return body.insert(body.indexOf("\xFF\xDA"), segment);
}

// Put before the end marker.
QByteArray afterScan(const QByteArray &segment)
{
    QByteArray body = colour;
    return body.insert(body.size() - 2, segment);
}

// A progressive body with so many scans, the last of them empty.
QByteArray withScans(qsizetype count)
{
    QByteArray body = jpegBody(true, true);
    const QByteArray scan = colour.mid(colour.indexOf("\xFF\xDA"), 14);
    return body.insert(body.size() - 2, scan.repeated(count - body.count("\xFF\xDA")));
}

} // namespace

void JpegPagesTest::nothingButTheImageIsCopied()
{
    const QByteArray secret = "planted words";
    const QByteArray thumbnail = "planted words in three...";
    const QByteArray file =
        jpeg({jfif(1, 300, 300, thumbnail.left(24)), segment(0xE0, "JFXX planted words"),
              exif({300, 300, 2}) + segment(0xE1, "http://ns.adobe.com/xap/1.0/ " + secret),
              segment(0xED, "Photoshop 3.0" + QByteArray(1, '\0') + "8BIM\4\4" + big16(0) +
                                big32(14) + secret + " "),
              segment(0xFE, secret), segment(0xE2, "MPF " + secret), segment(0xEF, secret),
              adobe(1)},
             beforeScan(segment(0xFE, secret))) +
        secret;

    const Reading reading = readImage(file);

    QCOMPARE(reading.streams, QByteArrayList{QByteArray("\xFF\xD8") + adobe(1) + colour});
    QCOMPARE(reading.pages.front().pageWidth, 40 * 72.0 / 300);
}

void JpegPagesTest::densityStandsBehindBlocksOfAnyLength()
{
    for (const char *iptc : {"", "x", "xy", "xyz"}) {
        const Reading reading = readImage(jpeg({photoshop(300, 300, 1, iptc)}, colour));
        QCOMPARE(reading.pages.size(), size_t(1));
        QCOMPARE(reading.pages.front().pageWidth, 40 * 72.0 / 300);
    }
}

void JpegPagesTest::isCopiedOrLeftToImageMagick_data()
{
    addReadingRows();
    const auto row = [](const char *name, const QByteArray &file, bool isCopied) {
        QTest::newRow(name) << file << isCopied;
    };
    row("plain", jpeg({}, colour), true);
    row("progressive", jpeg({}, jpegBody(true, true)), true);
    row("fill bytes before a marker", jpeg({"\xFF\xFF\xFF"}, colour), true);
    row("restart interval", jpeg({segment(0xDD, big16(0))}, colour), true);
    // What a comment parts is a piece of its own.
    const QByteArray part = segment(0xFE, "x") + segment(0xDD, big16(0));
    row("65,000 pieces", jpeg({part.repeated(65'000)}, colour), true);
    row("65,600 pieces", jpeg({part.repeated(65'600)}, colour), false);
    row("comment between the scans' end and the image's", jpeg({}, afterScan(segment(0xFE, "x"))),
        true);
    row("another image behind the first", jpeg({}, colour) + jpeg({}, colour), true);
    row("stray bytes before a marker", jpeg({"stray"}, colour), false);
    row("a stray restart marker", jpeg({"\xFF\xD0"}, colour), false);
    row("application data behind a scan", jpeg({}, afterScan(segment(0xE1, "x"))), false);
    row("two JFIF segments", jpeg({jfif(1, 72, 72), jfif(1, 96, 96)}, colour), false);
    row("two EXIF segments", jpeg({exif({72, 72, 2}), exif({96, 96, 2})}, colour), false);
    row("EXIF in small letters", jpeg({segment(0xE1, QByteArray("exif\0\0MM\0*", 10))}, colour),
        false);
    row("EXIF by a longer name", jpeg({segment(0xE1, QByteArray("Exifs\0MM\0*", 10))}, colour),
        false);
    row("EXIF of no known byte order",
        jpeg({segment(0xE1, QByteArray("Exif\0\0XX\0*", 10))}, colour), false);
    row("EXIF that is cut off", jpeg({segment(0xE1, exif({72, 72, 2}).mid(4).chopped(20))}, colour),
        false);
    row("XMP that states a density",
        jpeg({segment(0xE1, "http://ns.adobe.com/xap/1.0/ <tiff:XResolution>300/1")}, colour),
        false);
    row("Photoshop data of another form", jpeg({segment(0xED, "Photoshop 2.5 8BIM")}, colour),
        false);
    row("two Photoshop segments", jpeg({photoshop(72, 72, 1), photoshop(72, 72, 1)}, colour),
        false);
    row("Photoshop data in capitals",
        jpeg({segment(0xED, "PHOTOSHOP 3.0" + QByteArray(1, '\0') + "8BIM")}, colour), false);
    row("application data 13 of somebody else", jpeg({segment(0xED, "somebody")}, colour), true);
    row("Adobe segment with more in it", jpeg({segment(0xEE, adobe(1).mid(4) + "more")}, colour),
        false);
    row("Adobe segment with more in it, grey",
        jpeg({segment(0xEE, adobe(1).mid(4) + "more")}, jpegBody(false)), false);
    row("two Adobe segments", jpeg({adobe(1), adobe(1)}, colour), false);
    row("Adobe segment with an unknown transform", jpeg({adobe(2)}, colour), false);
    row("RGB by Adobe, YCbCr by JFIF", jpeg({jfif(0, 1, 1), adobe(0)}, colour), false);
    row("components named R, G and B", jpeg({}, withComponentNames("RGB")), false);
    row("components named 0, 1 and 2", jpeg({}, withComponentNames("\0\1\2")), true);
    row("extended sequential", jpeg({}, withFrame('\xC1')), false);
    row("lossless", jpeg({}, withFrame('\xC3')), false);
    row("arithmetic coding", jpeg({}, withFrame('\xC9')), false);
    row("JPEG-LS", jpeg({segment(0xF7, "x")}, colour), false);
    row("an unknown segment", jpeg({segment(0xF0, "x")}, colour), false);
    row("height to be told later", jpeg({}, beforeScan(segment(0xDC, big16(30)))), false);
    row("12 bits", jpeg({}, withFrameByte(0, 12)), false);
    row("four components", jpeg({}, withFrameByte(5, 4)), false);
    row("no height", jpeg({}, withFrameByte(2, 0)), false);
    row("32,000 pixels high",
        jpeg({}, withFrameByte(1, 0x7D).replace(QByteArray("\x7D\x1E"), QByteArray("\x7D\0", 2))),
        true);
    row("32,001 pixels high",
        jpeg({}, withFrameByte(1, 0x7D).replace(QByteArray("\x7D\x1E"), QByteArray("\x7D\1", 2))),
        false);
    row("three times the samples", jpeg({}, withFrameByte(7, 0x31)), false);
    row("a second frame", jpeg({}, beforeScan(colour.mid(colour.indexOf("\xFF\xC0"), 19))), false);
    row("a hundred scans", jpeg({}, withScans(100)), true);
    row("a hundred and one scans", jpeg({}, withScans(101)), false);
    row("two scans of all components, not progressive",
        jpeg({}, afterScan(colour.mid(colour.indexOf("\xFF\xDA"), 14))), false);
    row("no Huffman table", jpeg({}, QByteArray(colour).replace("\xFF\xC4", "\xFF\xFE")), false);
    row("profile of another colour space", jpeg(profileSegments(profile(false), 1), colour), false);
    row("profile without its last part", jpeg(profileSegments(profile(true), 3).mid(0, 2), colour),
        false);
    row("profile whose parts are not in order",
        jpeg({profileSegments(profile(true), 2)[1], profileSegments(profile(true), 2)[0]}, colour),
        false);
    row("profile that is cut off", jpeg(profileSegments(profile(true).chopped(1), 1), colour),
        false);
}

void JpegPagesTest::isCopiedOrLeftToImageMagick()
{
    compareReading();
}

void JpegPagesTest::incompleteFileIsRefused_data()
{
    QTest::addColumn<QByteArray>("file");
    const QByteArray whole = jpeg({jfif(1, 300, 300)}, colour);
    QTest::newRow("end marker") << whole.chopped(2);
    QTest::newRow("half an end marker") << whole.chopped(1);
    QTest::newRow("half of the image data") << whole.left(whole.size() / 2);
    QTest::newRow("half of a segment") << whole.left(10);
    QTest::newRow("everything but the start") << whole.left(3);
    QTest::newRow("length of a segment") << jpeg({"\xFF\xE0"}, {});
    QTest::newRow("image data") << jpeg({jfif(1, 300, 300)}, "\xFF\xD9");
    QTest::newRow("a length of a segment that is one")
        << jpeg({QByteArray("\xFF\xE0\0\1", 4)}, colour);
    QTest::newRow("end marker of a progressive one") << jpeg({}, jpegBody(true, true)).chopped(2);
    QTest::newRow("end marker of one that is not copied") << jpeg({}, withFrame('\xC9')).chopped(2);
}

void JpegPagesTest::incompleteFileIsRefused()
{
    compareRefusal();
}

void JpegPagesTest::profileTravels()
{
    for (const bool inColour : {false, true}) {
        const QByteArray whole = profile(inColour);
        const Reading reading = readImage(jpeg(profileSegments(whole, 4), jpegBody(inColour)));
        QCOMPARE(reading.pages.size(), size_t(1));
        QCOMPARE(reading.profiles.front(), whole);
    }
}

void JpegPagesTest::unusedTablesStayBehind()
{
    const QByteArray table = '\3' + QByteArray(64, 'x');
    const QByteArray alone = segment(0xDB, table);
    QCOMPARE(readImage(jpeg({alone}, colour)).streams,
             QByteArrayList{QByteArray("\xFF\xD8") + colour});
    // Beside one that is used, in one segment.
    const qsizetype place = colour.indexOf("\xFF\xDB");
    const QByteArray first = colour.mid(place + 4, 65);
    QByteArray body = colour;
    body.replace(place, 69, segment(0xDB, table + first + table));
    QCOMPARE(readImage(jpeg({}, body)).streams, QByteArrayList{QByteArray("\xFF\xD8") + colour});
    QVERIFY(readImage(jpeg({segment(0xDB, table.chopped(1))}, colour)).pages.empty());
}

QTEST_GUILESS_MAIN(JpegPagesTest)
#include "jpegpages_test.moc"
