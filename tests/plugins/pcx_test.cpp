// The PCX reader alone: every header field at its bounds, damaged and cut files, streams.

#include "pcxfile.h"
#include "pcxhandler.h"
#include "pipe.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <QTest>

namespace {

using Pixels = QList<quint32>; // 0xAARRGGBB, line after line

QByteArray hex(const char *digits)
{
    return QByteArray::fromHex(digits);
}

QImage readFrom(QIODevice &device)
{
    QImage image;
    if (!device.open(QIODevice::ReadOnly))
        return image;
    PcxHandler handler;
    handler.setDevice(&device);
    return handler.read(&image) ? image : QImage();
}

QImage readBytes(QByteArray bytes)
{
    QBuffer buffer(&bytes);
    return readFrom(buffer);
}

Pixels pixelsOf(const QImage &image)
{
    Pixels pixels;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            pixels.append(image.pixel(x, y));
    return pixels;
}

/// Colour n is 0xnnFFnn, n from 0 to 255.
QByteArray endPalette(char mark = '\x0C')
{
    QByteArray palette(1, mark);
    for (int colour = 0; colour < 256; ++colour)
        palette.append(static_cast<char>(colour)).append('\xFF').append(static_cast<char>(colour));
    return palette;
}

PcxFile twoByTwo(QByteArray data)
{
    PcxFile file{.planes = 1, .right = 1, .bottom = 1};
    file.data = std::move(data);
    return file;
}

} // namespace

class TestPcxTest : public QObject
{
    Q_OBJECT

private slots:
    void givesThePixelsOfTheFile_data();
    void givesThePixelsOfTheFile();
    void readsFromADeviceThatCannotSeek();
    void refusesWhatIsNoPictureOfThisFormat_data();
    void refusesWhatIsNoPictureOfThisFormat();
    void readsNothingFromADamagedFile_data();
    void readsNothingFromADamagedFile();
    void readsNothingFromAFileThatEndsAnywhereInside();
    void looksNoFurtherIntoAFileTooShortForItsSize();
    void obeysTheReadersLimitOfMemory();
    void reportsTheSizeWithoutMovingTheDevice();
};

void TestPcxTest::givesThePixelsOfTheFile_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<Pixels>("pixels");
    const auto row = [](const char *name, const PcxFile &file, const Pixels &pixels) {
        QTest::newRow(name) << file.bytes() << pixels;
    };

    row("a set bit of a single plane is black, a clear one white",
        {.bits = 1, .planes = 1, .right = 3, .data = hex("5000")},
        {0xFFFFFFFF, 0xFF000000, 0xFFFFFFFF, 0xFF000000});
    row("the first plane is the lowest bit of the index",
        {.bits = 1, .planes = 4, .right = 3, .data = hex("8000 4000 2000 1000")},
        {0xFF011010, 0xFF012020, 0xFF014040, 0xFF018080});
    row("two planes choose among four colours",
        {.bits = 1, .planes = 2, .right = 3, .data = hex("5000 3000")},
        {0xFF010000, 0xFF011010, 0xFF012020, 0xFF013030});
    row("three planes choose among eight colours",
        {.bits = 1, .planes = 3, .right = 1, .data = hex("8000 8000 8000")},
        {0xFF017070, 0xFF010000});
    row("two bits are packed from the top",
        {.bits = 2, .planes = 1, .right = 3, .data = hex("1B00")},
        {0xFF010000, 0xFF011010, 0xFF012020, 0xFF013030});
    row("four bits are packed from the top",
        {.bits = 4, .planes = 1, .right = 2, .data = hex("1F80")},
        {0xFF011010, 0xFF01F0F0, 0xFF018080});
    row("planes of more bits are read as single bits",
        {.version = 3, .bits = 4, .planes = 3, .right = 1, .data = hex("4000 8000 4000")},
        {0xFF012020, 0xFF015050});
    row("eight bits take the colours behind the lines", twoByTwo(hex("0102 0304") + endPalette()),
        {0xFF01FF01, 0xFF02FF02, 0xFF03FF03, 0xFF04FF04});
    row("the colours follow the lines at once, and other data follows them",
        twoByTwo(hex("0102 0304") + endPalette() + "something"),
        {0xFF01FF01, 0xFF02FF02, 0xFF03FF03, 0xFF04FF04});
    row("the mark before the colours is not checked", twoByTwo(hex("0102 0304") + endPalette('x')),
        {0xFF01FF01, 0xFF02FF02, 0xFF03FF03, 0xFF04FF04});
    row("in version 3 the header's colours are followed by black",
        {.version = 3,
         .planes = 1,
         .right = 2,
         .bytesPerLine = 4,
         .data = hex("0710 C1FF 00") + endPalette()},
        {0xFF017070, 0xFF000000, 0xFF000000});
    for (const int version : {0, 2, 4}) {
        const QByteArray name = "in version " + QByteArray::number(version) +
                                " the first colour stands for those that the header lacks";
        row(name.constData(),
            {.version = version,
             .planes = 1,
             .right = 2,
             .bytesPerLine = 4,
             .data = hex("0710 C1FF 00") + endPalette()},
            {0xFF017070, 0xFF010000, 0xFF010000});
    }
    row("three planes of eight bits are red, green and blue",
        {.right = 1, .data = hex("0102 0304 0506")}, {0xFF010305, 0xFF020406});
    row("a fourth plane of eight bits is opacity",
        {.planes = 4, .right = 1, .data = hex("0102 0304 0506 007F")}, {0x00010305, 0x7F020406});
    row("a byte with two set bits at the top stands behind a count of one",
        {.data = hex("C1FF 00 C1C0 00 C1FE 00")}, {0xFFFFC0FE});
    row("a run may cover several planes and lines", {.right = 1, .bottom = 1, .data = hex("CC09")},
        {0xFF090909, 0xFF090909, 0xFF090909, 0xFF090909});
    row("the longest runs and nothing else",
        {.version = 3, .planes = 1, .right = 125, .bytesPerLine = 126, .data = hex("FF07 FF07")},
        Pixels(126, 0xFF017070));
    row("a count of zero is a run of nothing", {.data = hex("C0FF 0100 C0FF 0200 0300")},
        {0xFF010203});
    row("without run lengths a high byte is itself", {.encoding = 0, .data = hex("FF00 C100 C500")},
        {0xFFFFC1C5});
    row("the picture begins at the window's corner, not at zero",
        {.left = 500, .top = 65535, .right = 500, .bottom = 65535}, {0xFF010203});
    row("bytes that fill up a line are no pixels",
        {.bottom = 1, .bytesPerLine = 3, .data = hex("010000 020000 030000 040000 050000 060000")},
        {0xFF010203, 0xFF040506});
}

void TestPcxTest::givesThePixelsOfTheFile()
{
    QFETCH(const QByteArray, file);
    QFETCH(const Pixels, pixels);

    QCOMPARE(pixelsOf(readBytes(file)), pixels);
}

void TestPcxTest::readsFromADeviceThatCannotSeek()
{
    Pipe pipe(twoByTwo(hex("0102 0304") + endPalette()).bytes());

    QCOMPARE(pixelsOf(readFrom(pipe)), Pixels({0xFF01FF01, 0xFF02FF02, 0xFF03FF03, 0xFF04FF04}));
}

void TestPcxTest::refusesWhatIsNoPictureOfThisFormat_data()
{
    QTest::addColumn<QByteArray>("file");
    const auto row = [](const char *name, const PcxFile &file) {
        QTest::newRow(name) << file.bytes();
    };

    QTest::newRow("an empty file") << QByteArray();
    QTest::newRow("a header cut off") << PcxFile().bytes().first(127);
    QTest::newRow("a text that begins with an empty line") << QByteArray(200, '\n');
    QTest::newRow("another first byte") << PcxFile().bytes().replace(0, 1, "\x0B");
    row("a version that never was", {.version = 1});
    row("a version still to come", {.version = 6});
    row("an unknown encoding", {.encoding = 2});
    row("no bits", {.bits = 0});
    row("three bits", {.bits = 3});
    row("sixteen bits", {.bits = 16});
    row("no planes", {.planes = 0});
    row("five planes", {.planes = 5});
    row("two planes of eight bits", {.planes = 2});
    row("a width of zero", {.left = 1, .right = 0});
    row("a height below zero", {.top = 500, .bottom = 0});
    row("no bytes in a line", {.bytesPerLine = 0});
    row("lines shorter than the width", {.right = 2, .bytesPerLine = 2});
    row("lines shorter than the width in bits", {.bits = 1, .right = 16, .bytesPerLine = 2});
}

void TestPcxTest::refusesWhatIsNoPictureOfThisFormat()
{
    QFETCH(QByteArray, file);
    QBuffer buffer(&file);
    QVERIFY(buffer.open(QIODevice::ReadOnly));

    QVERIFY(!PcxHandler::canRead(&buffer));
    QVERIFY(readBytes(file).isNull());
}

void TestPcxTest::readsNothingFromADamagedFile_data()
{
    QTest::addColumn<QByteArray>("file");
    const auto row = [](const char *name, const PcxFile &file) {
        QTest::newRow(name) << file.bytes();
    };

    row("no data", {.data = ""});
    row("a count without its value", {.data = hex("01000200C2")});
    row("a run past the end", {.data = hex("010002000300").first(4) + hex("C303")});
    row("a picture that ends before its colours",
        twoByTwo(hex("0102 0304") + endPalette().chopped(1)));
    row("a picture without its colours", twoByTwo(hex("0102 0304")));
    row("a palette whose bytes were used up by the lines",
        {.encoding = 0, .planes = 1, .bottom = 0, .bytesPerLine = 769, .data = endPalette()});
    row("less data than without run lengths", {.encoding = 0, .data = hex("0100020003")});
    row("the largest size and hardly any data",
        {.right = 65534, .bottom = 65535, .bytesPerLine = 65535, .data = QByteArray(5000, '\xFF')});
    row("the longest lines for a single column",
        {.bottom = 65535, .bytesPerLine = 65535, .data = QByteArray(5000, '\xFF')});
}

void TestPcxTest::readsNothingFromADamagedFile()
{
    QFETCH(const QByteArray, file);
    Pipe pipe(file);

    QVERIFY(readBytes(file).isNull());
    QVERIFY(readFrom(pipe).isNull());
}

void TestPcxTest::readsNothingFromAFileThatEndsAnywhereInside()
{
    const QByteArray file =
        PcxFile{.right = 1, .bottom = 1, .data = hex("C204 C1FF 06 0708 C206 09 0A 0B0C")}.bytes();
    QVERIFY(!readBytes(file).isNull());

    for (qsizetype size = 0; size < file.size(); ++size)
        QVERIFY2(readBytes(file.first(size)).isNull(), qPrintable(QString::number(size)));
}

void TestPcxTest::looksNoFurtherIntoAFileTooShortForItsSize()
{
    QByteArray file = PcxFile{.right = 2047, .bottom = 2047, .bytesPerLine = 2048}.bytes();
    QBuffer buffer(&file);

    QVERIFY(readFrom(buffer).isNull());

    QCOMPARE(buffer.pos(), 128);
}

void TestPcxTest::obeysTheReadersLimitOfMemory()
{
    const int previous = QImageReader::allocationLimit();
    const QByteArray lines = QByteArray(qsizetype{2048} * 2048 * 3 / 16, '\xE0');
    const QByteArray file =
        PcxFile{.right = 2047, .bottom = 2047, .bytesPerLine = 2048, .data = lines}.bytes();

    QImageReader::setAllocationLimit(15);
    QVERIFY(readBytes(file).isNull());
    QImageReader::setAllocationLimit(17);
    QCOMPARE(readBytes(file).size(), QSize(2048, 2048));
    QImageReader::setAllocationLimit(previous);
}

void TestPcxTest::reportsTheSizeWithoutMovingTheDevice()
{
    QByteArray file = PcxFile{.left = 3, .top = 2, .right = 4, .bottom = 6}.bytes();
    QBuffer buffer(&file);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    PcxHandler handler;
    handler.setDevice(&buffer);

    QVERIFY(handler.supportsOption(QImageIOHandler::Size));
    QCOMPARE(handler.option(QImageIOHandler::Size).toSize(), QSize(2, 5));
    QVERIFY(!handler.supportsOption(QImageIOHandler::Gamma));
    QCOMPARE(handler.option(QImageIOHandler::Gamma), QVariant());
    QVERIFY(handler.canRead());
    QCOMPARE(handler.format(), QByteArray("pcx"));
    QCOMPARE(buffer.pos(), 0);
}

QTEST_APPLESS_MAIN(TestPcxTest)
#include "pcx_test.moc"
