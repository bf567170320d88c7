// Which PNG files go into a PDF as they stand, with which bytes, and which are refused.

#include "imagefiles.h"
#include "pagereading.h"

#include <QTest>

#include <algorithm>
#include <array>
#include <cstdlib>

using namespace imagefiles;

class PngPagesTest : public QObject
{
    Q_OBJECT

private slots:
    void imageDataIsCopied();
    void isCopiedOrLeftToImageMagick_data();
    void isCopiedOrLeftToImageMagick();
    void indexBeyondThePaletteIsNotCopied_data();
    void indexBeyondThePaletteIsNotCopied();
    void incompleteFileIsRefused_data();
    void incompleteFileIsRefused();
    void profileTravels();
};

namespace {

QByteArray withChunk(const QByteArray &chunk, int colourType = 2)
{
    PngForm form;
    form.colourType = colourType;
    form.before = {chunk};
    return png(form);
}

QByteArray withLaterChunk(const QByteArray &chunk)
{
    PngForm form;
    form.after = {chunk};
    return png(form);
}

QByteArray withText(const char *type, const char *keyword)
{
    return withChunk(chunk(type, keyword + QByteArray("\0text", 5)));
}

// The image with other rows than its header promises.
QByteArray withRows(const QByteArray &rows)
{
    QByteArray file = png({});
    const QByteArray header = file.left(file.indexOf("IDAT") - 4);
    return header + chunk("IDAT", qCompress(rows).mid(4)) + chunk("IEND", {});
}

// The image with its n-th byte behind `mark` changed, and the sum made right or not.
QByteArray withByte(const char *mark, int place, char value)
{
    QByteArray file = png({});
    file[file.indexOf(mark) + 4 + place] = value;
    return file;
}

QByteArray withHeader(int colourType, int depth, const QByteArray &methods,
                      const QByteArray &size = big32(40) + big32(30))
{
    const QByteArray file = png({});
    return file.left(8) +
           chunk("IHDR",
                 size + static_cast<char>(depth) + static_cast<char>(colourType) + methods) +
           file.mid(8 + 25);
}

// What each of a PNG file's five filters leaves of a byte.
quint8 filtered(int filter, int byte, int left, int above, int corner)
{
    const int toLeft = std::abs(above - corner);
    const int toAbove = std::abs(left - corner);
    const int toCorner = std::abs(left + above - 2 * corner);
    const int paeth = toLeft <= toAbove && toLeft <= toCorner ? left
                      : toAbove <= toCorner                   ? above
                                                              : corner;
    const std::array predictions = {0, left, above, (left + above) / 2, paeth};
    return static_cast<quint8>(byte - predictions.at(static_cast<size_t>(filter)));
}

// An image of 11 x 9 indices, `last` the greatest and in one place only, with a palette of
// `colours`.
QByteArray indexed(int bits, int filter, int colours, int last)
{
    const QSize size(11, 9);
    const int rowBytes = (size.width() * bits + 7) / 8;
    QByteArray rows;
    QByteArray above(rowBytes, '\0');
    for (int y = 0; y < size.height(); ++y) {
        // The bits behind the last index are ones: they are no index.
        QByteArray row(rowBytes, '\0');
        row.back() = static_cast<char>((1 << (8 * rowBytes - size.width() * bits)) - 1);
        for (int x = 0; x < size.width(); ++x) {
            const bool isGreatest = x == size.width() - 1 && y == size.height() - 1;
            const int index = isGreatest ? last : (x * 5 + y * 3) % std::min(last, colours);
            row[x * bits / 8] =
                static_cast<char>(row[x * bits / 8] | index << (8 - bits - x * bits % 8));
        }
        rows += static_cast<char>(filter);
        for (int at = 0; at < rowBytes; ++at)
            rows +=
                static_cast<char>(filtered(filter, quint8(row[at]), at ? quint8(row[at - 1]) : 0,
                                           quint8(above[at]), at ? quint8(above[at - 1]) : 0));
        above = row;
    }
    const QByteArray sides = big32(quint32(size.width())) + big32(quint32(size.height()));
    return png({}).left(8) +
           chunk("IHDR", sides + static_cast<char>(bits) + QByteArray("\3\0\0\0", 4)) +
           chunk("PLTE", QByteArray(qsizetype{3} * colours, '\7')) +
           chunk("IDAT", qCompress(rows).mid(4)) + chunk("IEND", {});
}

QByteArray profileChunk(const QByteArray &profile)
{
    return chunk("iCCP", QByteArray("name\0\0", 6) + qCompress(profile).mid(4));
}

} // namespace

void PngPagesTest::imageDataIsCopied()
{
    PngForm form;
    form.colourType = 3;
    form.depth = 4;
    form.piece = 50;
    form.before = {chunk("tEXt", QByteArray("Author\0planted words", 20)),
                   physical(11811, 11811, 1)};
    form.after = {chunk("tIME", QByteArray(7, '\1'))};

    const Reading reading = readImage(png(form));

    QCOMPARE(reading.streams, QByteArrayList{qCompress(pngRows(form)).mid(4)});
    const CopyablePage &page = reading.pages.front();
    QCOMPARE(page.palette.size(), size_t(3 * 16));
    const decltype(page.decodeParms) parms = {
        {"/Predictor", "15"}, {"/Colors", "1"}, {"/BitsPerComponent", "4"}, {"/Columns", "40"}};
    QVERIFY(page.decodeParms == parms);
}

void PngPagesTest::isCopiedOrLeftToImageMagick_data()
{
    addReadingRows();
    const auto row = [](const char *name, const QByteArray &file, bool isCopied) {
        QTest::newRow(name) << file << isCopied;
    };
    const QByteArray plain(3, '\0');
    row("plain", png({}), true);
    row("a piece of no bytes", withChunk(chunk("IDAT", {})), true);
    row("bytes behind the last chunk", png({}) + "more", true);
    row("transparent colour", withChunk(chunk("tRNS", QByteArray(6, '\0'))), false);
    row("alpha", png({6}), false);
    row("grey and alpha", png({4}), false);
    row("16 bits", png({2, 16}), false);
    row("interlaced", withHeader(2, 8, QByteArray("\0\0\1", 3)), false);
    row("an unknown filter method", withHeader(2, 8, QByteArray("\0\1\0", 3)), false);
    row("an unknown compression", withHeader(2, 8, QByteArray("\1\0\0", 3)), false);
    row("colour of 4 bits", withHeader(2, 4, plain), false);
    row("an unknown colour type", withHeader(1, 8, plain), false);
    row("no pixels", withHeader(2, 8, plain, big32(0) + big32(30)), false);
    row("32,001 pixels wide", withHeader(2, 8, plain, big32(32001) + big32(30)), false);
    row("an animation", withChunk(chunk("acTL", QByteArray(8, '\1'))), false);
    row("significant bits", withChunk(chunk("sBIT", QByteArray(3, '\5'))), false);
    row("an offset", withChunk(chunk("oFFs", QByteArray(9, '\0'))), false);
    row("a canvas", withChunk(chunk("caNv", QByteArray(16, '\0'))), false);
    row("an older canvas", withChunk(chunk("vpAg", QByteArray(9, '\0'))), false);
    row("an unknown chunk", withChunk(chunk("prVt", "x")), true);
    row("an unknown critical chunk", withChunk(chunk("CRIT", "x")), false);
    row("background, chromaticities and rendering intent",
        withChunk(chunk("bKGD", QByteArray(6, '\0')) + chunk("cHRM", QByteArray(32, '\1')) +
                  chunk("sRGB", QByteArray(1, '\0'))),
        true);
    row("gamma of 1/2.2", withChunk(chunk("gAMA", big32(45455))), true);
    row("gamma of 0.44999", withChunk(chunk("gAMA", big32(44999))), false);
    row("gamma of 0.46001", withChunk(chunk("gAMA", big32(46001))), false);
    row("gamma of 1", withChunk(chunk("gAMA", big32(100000))), false);
    row("gamma of 1, grey", withChunk(chunk("gAMA", big32(100000)), 0), false);
    row("gamma of two bytes", withChunk(chunk("gAMA", big16(45455))), false);
    row("gamma behind the image data", withLaterChunk(chunk("gAMA", big32(45455))), false);
    row("density behind the image data", withLaterChunk(physical(2835, 2835, 1)), false);
    row("two densities", withChunk(physical(2835, 2835, 1) + physical(1, 1, 1)), false);
    row("density of eight bytes", withChunk(chunk("pHYs", QByteArray(8, '\1'))), false);
    row("density beyond 31 bits", withChunk(physical(0x80000000, 1, 1)), false);
    row("a text", withText("tEXt", "Title"), true);
    row("a compressed text", withText("zTXt", "Comment"), true);
    row("an international text", withText("iTXt", "Description"), true);
    row("a date of ImageMagick's", withText("tEXt", "date:create"), true);
    row("a label, which ImageMagick prints", withText("tEXt", "Label"), false);
    row("a page, which ImageMagick takes for a canvas", withText("tEXt", "page"), false);
    row("a page in capitals, compressed", withText("zTXt", "Page"), false);
    row("a colour space as text", withText("tEXt", "colorspace"), false);
    row("a colour space in capitals, behind the image data",
        withLaterChunk(chunk("tEXt", QByteArray("Colorspace\0Gray", 15))), false);
    row("a density as text", withText("tEXt", "exif:XResolution"), false);
    row("a whole profile as text", withText("zTXt", "Raw profile type exif"), false);
    row("XMP", withText("iTXt", "XML:com.adobe.xmp"), false);
    row("a label behind the image data", withLaterChunk(chunk("tEXt", QByteArray("label\0x", 7))),
        false);
    row("image data in two places", withLaterChunk(chunk("prVt", "x") + chunk("IDAT", "x")), false);
    row("a row too many", withRows(pngRows({}) + QByteArray(121, '\0')), false);
    row("bytes behind the compressed rows", withLaterChunk(chunk("IDAT", "more")), false);
    row("palette that is too long",
        png({3, 1, {40, 30}})
            .replace(chunk("PLTE", QByteArray::fromHex("00ff00") + QByteArray::fromHex("25f405")),
                     chunk("PLTE", QByteArray(9, '\1'))),
        false);
    row("no palette",
        png({3, 1, {40, 30}})
            .replace(chunk("PLTE", QByteArray::fromHex("00ff00") + QByteArray::fromHex("25f405")),
                     {}),
        false);
    row("a suggested palette", withChunk(chunk("PLTE", QByteArray(9, '\1'))), true);
    row("profile of another colour space", withChunk(profileChunk(profile(false))), false);
    row("profile and standard colours",
        withChunk(profileChunk(profile(true)) + chunk("sRGB", QByteArray(1, '\0'))), false);
    row("profile of indexed colours", withChunk(profileChunk(profile(true)), 3), false);
    row("grey profile of indexed colours", withChunk(profileChunk(profile(false)), 3), false);
    row("profile behind the image data", withLaterChunk(profileChunk(profile(true))), false);
    row("profile before it", withChunk(profileChunk(profile(true))), true);
    const QByteArray palette =
        chunk("PLTE", QByteArray::fromHex("00ff00") + QByteArray::fromHex("25f405"));
    QByteArray late = png({3, 1, {40, 30}});
    QVERIFY(late.contains(palette));
    late.replace(palette, {});
    row("palette behind the image data", late.insert(late.size() - 12, palette), false);
    row("profile that cannot be read", withChunk(chunk("iCCP", QByteArray("name\0\0no", 8))),
        false);
    row("profile without a name's end", withChunk(chunk("iCCP", "name")), false);
}

void PngPagesTest::isCopiedOrLeftToImageMagick()
{
    compareReading();
}

void PngPagesTest::indexBeyondThePaletteIsNotCopied_data()
{
    addReadingRows();
    for (int filter = 0; filter < 5; ++filter) {
        for (const int bits : {2, 4, 8}) {
            const int colours = (1 << bits) - 1;
            QTest::addRow("filter %d, %d bits", filter, bits)
                << indexed(bits, filter, colours, colours) << false;
            QTest::addRow("filter %d, %d bits, the last colour", filter, bits)
                << indexed(bits, filter, colours, colours - 1) << true;
        }
    }
    QTest::newRow("one bit, one colour") << indexed(1, 0, 1, 1) << false;
}

void PngPagesTest::indexBeyondThePaletteIsNotCopied()
{
    compareReading();
}

void PngPagesTest::incompleteFileIsRefused_data()
{
    QTest::addColumn<QByteArray>("file");
    const QByteArray whole = png({});
    QTest::newRow("last chunk") << whole.chopped(12);
    QTest::newRow("last byte") << whole.chopped(1);
    QTest::newRow("half of the file") << whole.left(whole.size() / 2);
    QTest::newRow("everything but the signature") << whole.left(8);
    QTest::newRow("image data") << whole.left(whole.indexOf("IDAT") - 4) + chunk("IEND", {});
    QTest::newRow("a header of 13 bytes") << whole.left(8) + chunk("IHDR", "x") + whole.mid(33);
    QTest::newRow("the header") << whole.left(8) + whole.mid(33);
    QTest::newRow("right image data") << withByte("IDAT", 20, '\x55');
    QTest::newRow("right sum of a text")
        << withChunk(chunk("tEXt", "x").chopped(1) + QByteArray(1, '\1'));
    QTest::newRow("last row") << withRows(pngRows({}).chopped(121));
    QTest::newRow("last pixel") << withRows(pngRows({}).chopped(1));
    QTest::newRow("known filter") << withRows("\5" + pngRows({}).mid(1));
    QTest::newRow("known filter in the second row")
        << withRows(pngRows({}).left(121) + "\5" + pngRows({}).mid(122));
    QTest::newRow("last byte of one that is not copied") << png({6}).chopped(1);
}

void PngPagesTest::incompleteFileIsRefused()
{
    compareRefusal();
}

void PngPagesTest::profileTravels()
{
    for (const bool inColour : {false, true}) {
        const QByteArray whole = profile(inColour);
        const Reading reading = readImage(withChunk(profileChunk(whole), inColour ? 2 : 0));
        QCOMPARE(reading.pages.size(), size_t(1));
        QCOMPARE(reading.profiles.front(), whole);
    }
}

QTEST_GUILESS_MAIN(PngPagesTest)
#include "pngpages_test.moc"
