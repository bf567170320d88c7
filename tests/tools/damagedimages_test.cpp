// Damaged images become no PDF; images that are only unusual do.

#include "imagefiles.h"
#include "pdfpages.h"
#include "tifffields.h"
#include "toolbench.h"

#include <QImage>
#include <QTemporaryFile>
#include <QTest>
#include <QtEndian>

#include <csignal>
#include <cstdio>

#include <jpeglib.h>
#include <tiffio.h>

using namespace Qt::StringLiterals;

class DamagedImagesTest : public QObject
{
    Q_OBJECT

private slots:
    void damageThatImageMagickReportsIsRefused_data();
    void damageThatImageMagickReportsIsRefused();
    void faxWithMissingRowsIsRefused_data();
    void faxWithMissingRowsIsRefused();
    void longFaxStopsOnASignal();
    void oddImageIsConverted_data();
    void oddImageIsConverted();
};

namespace {

const QStringList turned = {u"-rotate"_s, u"90"_s};

struct JpegForm
{
    bool isArithmetic = false;
    unsigned restartRows = 0;
    /// What stands before the first table, besides the start.
    QByteArray segments = {};
};

QByteArray jpegFile(const JpegForm &form = {})
{
    constexpr JDIMENSION side = 128;
    jpeg_error_mgr errors = {};
    jpeg_compress_struct info = {};
    info.err = jpeg_std_error(&errors);
    jpeg_create_compress(&info);
    unsigned char *data = nullptr;
    unsigned long size = 0;
    jpeg_mem_dest(&info, &data, &size);
    info.image_width = info.image_height = side;
    info.input_components = 1;
    info.in_color_space = JCS_GRAYSCALE;
    jpeg_set_defaults(&info);
    info.arith_code = form.isArithmetic ? TRUE : FALSE;
    info.restart_in_rows = static_cast<int>(form.restartRows);
    jpeg_start_compress(&info, TRUE);
    for (JDIMENSION y = 0; y < side; ++y) {
        std::array<unsigned char, side> row{};
        for (JDIMENSION x = 0; x < side; ++x)
            row[x] = static_cast<unsigned char>(x * x * (y + 3) / 7);
        unsigned char *rows = row.data();
        jpeg_write_scanlines(&info, &rows, 1);
    }
    jpeg_finish_compress(&info);
    jpeg_destroy_compress(&info);
    const QByteArray file(reinterpret_cast<const char *>(data), qsizetype(size));
    free(data);
    return file.left(2) + form.segments + file.mid(2);
}

// With other bytes in the scan, but for the last ones.
QByteArray withScan(const QByteArray &jpeg, const QByteArray &bytes)
{
    constexpr qsizetype behind = 100;
    return QByteArray(jpeg).replace(jpeg.size() - behind - bytes.size(), bytes.size(), bytes);
}

QByteArray cutInScan(const QByteArray &jpeg)
{
    const qsizetype scan = jpeg.indexOf("\xFF\xDA");
    return jpeg.left((scan + jpeg.size()) / 2) + "\xFF\xD9";
}

// A comment and stray bytes behind it, again and again, so that no two warnings are alike.
QByteArray strayBytes(int comments)
{
    QByteArray segments;
    for (int i = 1; i <= comments; ++i)
        segments += QByteArray("\xFF\xFE\0\4ab", 6) + QByteArray(i, 'x');
    return segments;
}

struct TiffForm
{
    int compression = COMPRESSION_CCITTFAX3;
    uint32_t options = 0;
    uint32_t rowsPerStrip = 200;
    int pages = 1;
    bool isBilevel = true;
    /// In one tile that is a little larger than the page.
    bool isTiled = false;
};

constexpr uint32_t tiffWidth = 200, tiffHeight = 200, tileSide = 208;

QByteArray tiffFile(const TiffForm &form)
{
    QTemporaryFile file;
    if (!file.open())
        qFatal("no temporary file");
    TIFF *tiff = TIFFOpen(file.fileName().toLocal8Bit().constData(), "wl");
    for (int page = 0; page < form.pages; ++page) {
        TIFFSetField(tiff, TIFFTAG_IMAGEWIDTH, tiffWidth);
        TIFFSetField(tiff, TIFFTAG_IMAGELENGTH, tiffHeight);
        if (form.isTiled) {
            TIFFSetField(tiff, TIFFTAG_TILEWIDTH, tileSide);
            TIFFSetField(tiff, TIFFTAG_TILELENGTH, tileSide);
        } else {
            TIFFSetField(tiff, TIFFTAG_ROWSPERSTRIP, form.rowsPerStrip);
        }
        TIFFSetField(tiff, TIFFTAG_BITSPERSAMPLE, form.isBilevel ? 1 : 8);
        TIFFSetField(tiff, TIFFTAG_SAMPLESPERPIXEL, 1);
        TIFFSetField(tiff, TIFFTAG_COMPRESSION, form.compression);
        TIFFSetField(tiff, TIFFTAG_PHOTOMETRIC,
                     form.isBilevel ? PHOTOMETRIC_MINISWHITE : PHOTOMETRIC_MINISBLACK);
        if (form.compression == COMPRESSION_CCITTFAX3)
            TIFFSetField(tiff, TIFFTAG_GROUP3OPTIONS, form.options);
        std::array<unsigned char, tiffWidth> row{};
        std::vector<unsigned char> tile;
        for (uint32_t y = 0; y < tiffHeight; ++y) {
            for (uint32_t x = 0; x < tiffWidth; ++x)
                row[x] = static_cast<unsigned char>((x * 31 + y * 7 / 3) & 0xFCU);
            if (form.isTiled)
                tile.insert(tile.end(), row.begin(), row.begin() + tileSide / 8);
            else
                TIFFWriteScanline(tiff, row.data(), y, 0);
        }
        if (form.isTiled) {
            tile.resize(tileSide * tileSide / 8);
            TIFFWriteEncodedTile(tiff, 0, tile.data(), tmsize_t(tile.size()));
        }
        TIFFWriteDirectory(tiff);
    }
    TIFFClose(tiff);
    return file.readAll();
}

QByteArray withHalfOfItsData(const QByteArray &tiff, int page = 0)
{
    return withField(tiff, TIFFTAG_STRIPBYTECOUNTS,
                     fieldOf(tiff, TIFFTAG_STRIPBYTECOUNTS, page) / 2, page);
}

// The second half of its only strip, or tile, is overwritten.
QByteArray withHalfOverwritten(const QByteArray &tiff, char byte,
                               quint16 offsets = TIFFTAG_STRIPOFFSETS,
                               quint16 counts = TIFFTAG_STRIPBYTECOUNTS)
{
    const auto size = qsizetype(fieldOf(tiff, counts));
    const auto start = qsizetype(fieldOf(tiff, offsets));
    return QByteArray(tiff).replace(start + size / 2, size - size / 2,
                                    QByteArray(size - size / 2, byte));
}

QByteArray bmp(QImage::Format format = QImage::Format_Indexed8)
{
    QImage image(40, 30, QImage::Format_Indexed8);
    for (int i = 0; i < 256; ++i)
        image.setColor(i, qRgb(i, 255 - i, i / 2));
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, uint(x * 6 + y) % 256);
    }
    QTemporaryFile file;
    if (!file.open() || !image.convertToFormat(format).save(&file, "bmp"))
        qFatal("no temporary file");
    file.seek(0);
    return file.readAll();
}

RunResult convert(const QByteArray &image, const QString &name, const QStringList &options,
                  const QTemporaryDir &folder)
{
    writeContent(folder.filePath(name), image);
    return runBundled(u"convert"_s, options + QStringList{name, u"o.pdf"_s}, folder.path());
}

} // namespace

// ImageMagick reports success for each of them.
void DamagedImagesTest::damageThatImageMagickReportsIsRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QByteArray>("warning");
    const QByteArray endOfStrip = tiffFile({.compression = COMPRESSION_CCITTFAX4});
    const quint32 bytes = fieldOf(endOfStrip, TIFFTAG_STRIPBYTECOUNTS);
    const QByteArray strips =
        tiffFile({.compression = COMPRESSION_NONE, .rowsPerStrip = 50, .isBilevel = false});
    const QByteArray runs = tiffFile({.compression = COMPRESSION_PACKBITS, .isBilevel = false});
    const QByteArray inTiff = tiffFile({.compression = COMPRESSION_JPEG, .isBilevel = false});
    const QByteArray restarting = jpegFile({.restartRows = 2});

    QTest::newRow("JPEG data in a TIFF file that ends early")
        << "x.tif" << withHalfOfItsData(inTiff) << QStringList{}
        << QByteArray("Premature end of JPEG file");
    QTest::newRow("JPEG scan that ends early") << "x.jpg" << cutInScan(jpegFile()) << turned
                                               << QByteArray("premature end of data segment");
    QTest::newRow("JPEG scan with no such codes")
        << "x.jpg" << withScan(jpegFile(), QByteArray("\xFF\0", 2).repeated(9)) << turned
        << QByteArray("bad Huffman code");
    QTest::newRow("arithmetic JPEG scan with other data")
        << "x.jpg" << withScan(jpegFile({.isArithmetic = true}), QByteArray(20, '\x11'))
        << QStringList{} << QByteArray("bad arithmetic code");
    QTest::newRow("JPEG scan with another restart marker")
        << "x.jpg" << QByteArray(restarting).replace("\xFF\xD3", "\xFF\xD5") << turned
        << QByteArray("instead of RST");
    QTest::newRow("JPEG scan of which a part is zeros")
        << "x.jpg" << withScan(jpegFile(), QByteArray(1500, '\0')) << turned
        << QByteArray("extraneous bytes before marker");
    QTest::newRow("JPEG file with so many warnings that others are dropped")
        << "x.jpg" << cutInScan(jpegFile({.segments = strayBytes(64)})) << turned
        << QByteArray("exception processing is suspended");
    QTest::newRow("Group 4 without its last row")
        << "x.tif" << withField(endOfStrip, TIFFTAG_STRIPBYTECOUNTS, bytes - 9)
        << QStringList{u"-compress"_s, u"JPEG"_s} << QByteArray("Premature EOF");
    for (const auto &[tiff, tag, table] :
         {std::tuple(strips, quint16(TIFFTAG_STRIPOFFSETS), "Strip"),
          std::tuple(strips, quint16(TIFFTAG_STRIPBYTECOUNTS), "Strip"),
          std::tuple(imagefiles::tiledTiff(), quint16(TIFFTAG_TILEOFFSETS), "Tile")})
        QTest::addRow("TIFF file with half of its field %d", tag)
            << "x.tif" << patched(tiff, placeOf(tiff, tag) + 4, 2) << QStringList{}
            << QByteArray("Incorrect count for \"") + table;
    for (const auto &[tag, name] : {std::pair(quint16(TIFFTAG_XRESOLUTION), "XResolution"),
                                    std::pair(quint16(TIFFTAG_YRESOLUTION), "YResolution")})
        QTest::addRow("TIFF file without its %s", name)
            << "x.tif" << withField(imagefiles::tiff({.x = 300, .y = 300}), tag, 1'000'000)
            << QStringList{} << "IO error during reading of \"" + QByteArray(name);
    QTest::newRow("run of bytes longer than its strip")
        << "x.tif" << withHalfOverwritten(runs, '\x81') << QStringList{}
        << QByteArray("to avoid buffer overrun");
    QTest::newRow("JPEG data in a TIFF file of another width")
        << "x.tif" << withField(inTiff, TIFFTAG_IMAGEWIDTH, 2 * tiffWidth) << QStringList{}
        << QByteArray("Improper JPEG strip/tile size");
    QTest::newRow("BMP with indices beyond its palette")
        << "x.bmp" << patched(bmp(QImage::Format_Mono), 46, 1) << QStringList{}
        << QByteArray("InvalidColormapIndex");
}

void DamagedImagesTest::damageThatImageMagickReportsIsRefused()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, file);
    QFETCH(QStringList, options);
    QFETCH(QByteArray, warning);
    const QTemporaryDir folder;
    const RunResult result = convert(file, name, options, folder);
    QCOMPARE(result.status, 1);
    QVERIFY2(result.errors.contains(warning), result.errors.constData());
    QVERIFY(result.errors.endsWith("the image is damaged or not complete\n"));
    QCOMPARE(namesIn(folder.path()), QStringList{name});
}

void DamagedImagesTest::faxWithMissingRowsIsRefused_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QStringList>("options");
    const QStringList asJpeg = {u"-compress"_s, u"JPEG"_s};
    const auto row = [](const char *name, const QByteArray &file, const QStringList &options) {
        QTest::newRow(name) << file << options;
    };
    const QByteArray group3 = tiffFile({});
    const QByteArray group4 = tiffFile({.compression = COMPRESSION_CCITTFAX4});
    row("half of the bytes", withHalfOfItsData(group3), {});
    row("half of the bytes, turned", withHalfOfItsData(group3), turned);
    row("zeros in the second half", withHalfOverwritten(group3, '\0'), {});
    row("ones in the second half", withHalfOverwritten(group3, '\xFF'), {});
    row("in two dimensions", withHalfOfItsData(tiffFile({.options = GROUP3OPT_2DENCODING})), {});
    row("with fill bits", withHalfOfItsData(tiffFile({.options = GROUP3OPT_FILLBITS})), {});
    row("the second page of three", withHalfOfItsData(tiffFile({.pages = 3}), 1), {});
    row("without marks", withHalfOfItsData(tiffFile({.compression = COMPRESSION_CCITTRLE})), {});
    row("without marks, in words",
        withHalfOverwritten(tiffFile({.compression = COMPRESSION_CCITTRLEW}), '\0'), {});
    for (const int compression : {COMPRESSION_CCITTFAX3, COMPRESSION_CCITTFAX4}) {
        const QByteArray tiled = tiffFile({.compression = compression, .isTiled = true});
        const QByteArray name = "tile of compression " + QByteArray::number(compression);
        row(name.constData(),
            withHalfOverwritten(tiled, '\0', TIFFTAG_TILEOFFSETS, TIFFTAG_TILEBYTECOUNTS), {});
    }
    row("more rows in a strip than there are",
        withField(tiffFile({.rowsPerStrip = 50}), TIFFTAG_ROWSPERSTRIP, 100), {});
    row("another width", withField(group3, TIFFTAG_IMAGEWIDTH, 2 * tiffWidth), {});
    row("Group 4, half of the bytes", withHalfOfItsData(group4), asJpeg);
    row("Group 4, zeros in the second half", withHalfOverwritten(group4, '\0'), asJpeg);
    row("Group 4, ones in the second half", withHalfOverwritten(group4, '\xFF'), asJpeg);
    row("Group 4, half of the bytes, copied", withHalfOfItsData(group4), {});
    row("Group 4, zeros in the second half, copied", withHalfOverwritten(group4, '\0'), {});
    row("Group 4, ones in the second half, copied", withHalfOverwritten(group4, '\xFF'), {});
}

void DamagedImagesTest::faxWithMissingRowsIsRefused()
{
    QFETCH(QByteArray, file);
    QFETCH(QStringList, options);
    const QTemporaryDir folder;
    const RunResult result = convert(file, u"x.tif"_s, options, folder);
    QCOMPARE(result.status, 1);
    QVERIFY2(result.errors.contains("rows of a fax are missing"), result.errors.constData());
    QCOMPARE(namesIn(folder.path()), QStringList{u"x.tif"_s});
}

// Its last page is damaged, which is found when all others have been decoded.
void DamagedImagesTest::longFaxStopsOnASignal()
{
    constexpr int pages = 40'000;
    QByteArray file = tiffFile({});
    const auto first = qFromLittleEndian<quint32>(file.constData() + 4);
    const qsizetype size = 2 + 12 * qFromLittleEndian<quint16>(file.constData() + first) + 4;
    const QByteArray directory = file.mid(first, size);
    const QByteArray damaged = withHalfOfItsData(file).mid(first, size);
    qsizetype last = first;
    for (int page = 1; page < pages; ++page) {
        qToLittleEndian(quint32(file.size()), file.data() + last + size - 4);
        last = file.size();
        file += page == pages - 1 ? damaged : directory;
    }
    const QTemporaryDir folder;
    writeContent(folder.filePath(u"x.tif"_s), file);
    const auto call = startProgram(bundledTool(u"convert"_s),
                                   turned + QStringList{u"x.tif"_s, u"o.pdf"_s}, folder.path());
    QTRY_COMPARE(namesIn(folder.path()).size(), 2);
    kill(static_cast<pid_t>(call->processId()), SIGTERM);
    QVERIFY(call->waitForFinished(60000));
    QVERIFY(call->readAllStandardError().contains("ended by signal 15"));
    QCOMPARE(namesIn(folder.path()), QStringList{u"x.tif"_s});
}

void DamagedImagesTest::oddImageIsConverted_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QStringList>("options");
    // Pages in Group 3 take ImageMagick a second each to write.
    const QStringList turnedAsZip = turned + QStringList{u"-compress"_s, u"zip"_s};
    const auto row = [&](const char *name, const char *file, const QByteArray &content,
                         bool onlyTurned = false) {
        if (!onlyTurned)
            QTest::newRow(name) << file << content << QStringList{};
        QTest::addRow("%s, turned", name) << file << content << turnedAsZip;
    };
    const QByteArray picture = bmp();
    const auto size = quint32(picture.size());
    row("BMP of size 0", "x.bmp", patched(picture, 2, 0));
    row("BMP of the size of its pixels", "x.bmp",
        patched(picture, 2, size - numberAt(picture, 10)));
    row("BMP of a size too small", "x.bmp", patched(picture, 2, size - 2));
    row("BMP with bytes behind it", "x.bmp", picture + QByteArray(37, '\0'));
    row("JPEG with bytes behind its scan", "x.jpg", jpegFile().replace("\xFF\xD9", "xyz\xFF\xD9"));
    row("JPEG with bytes behind comments", "x.jpg", jpegFile({.segments = strayBytes(9)}));
    for (const int options : {0, GROUP3OPT_2DENCODING, GROUP3OPT_FILLBITS}) {
        const QByteArray fax = tiffFile({.options = uint32_t(options)});
        const qsizetype middle = fieldOf(fax, TIFFTAG_STRIPBYTECOUNTS) / 2;
        const QByteArray title = "fax with options " + QByteArray::number(options);
        row(title.constData(), "x.tif", fax, true);
        row((title + " and a bad row").constData(), "x.tif",
            QByteArray(fax).replace(middle, 2, "\x5A\x5A"), true);
    }
    row("fax in tiles", "x.tif", tiffFile({.compression = COMPRESSION_CCITTFAX4, .isTiled = true}),
        true);
    const QByteArray group4 = tiffFile({.compression = COMPRESSION_CCITTFAX4});
    const quint32 bytes = fieldOf(group4, TIFFTAG_STRIPBYTECOUNTS);
    row("Group 4 without an end mark", "x.tif",
        withField(group4, TIFFTAG_STRIPBYTECOUNTS, bytes - 3));
}

void DamagedImagesTest::oddImageIsConverted()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, file);
    QFETCH(QStringList, options);
    const QTemporaryDir folder;
    QCOMPARE(convert(file, name, options, folder).errors, QByteArray());
    const QImage page = drawnPage(folder.filePath(u"o.pdf"_s), 0, finelyDrawn);
    const QTransform turn = QTransform().rotate(options.isEmpty() ? 0 : 90);
    QCOMPARE(visibleDifference(page, QImage::fromData(file).transformed(turn)), QString());
}

QTEST_GUILESS_MAIN(DamagedImagesTest)
#include "damagedimages_test.moc"
