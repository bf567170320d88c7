// The format of an image by its first bytes, and that of nothing else.

#include "imageformat.h"

#include <QBuffer>
#include <QTest>

class ImageFormatTest : public QObject
{
    Q_OBJECT

private slots:
    void formatIsToldByTheFirstBytes_data();
    void formatIsToldByTheFirstBytes();
};

void ImageFormatTest::formatIsToldByTheFirstBytes_data()
{
    QTest::addColumn<QByteArray>("head");
    QTest::addColumn<QByteArray>("format");
    const auto row = [](const char *name, const QByteArray &head, const char *format) {
        QTest::newRow(name) << head << QByteArray(format);
    };
    row("BMP", "BM", "bmp");
    row("GIF of 1987", "GIF87a", "gif");
    row("GIF of 1989", "GIF89a", "gif");
    row("JPEG", "\xff\xd8\xff\xe0", "jpeg");
    row("PCX", "\x0a\x05\x01", "pcx");
    row("PNG", "\x89PNG\r\n\x1a\n", "png");
    row("PBM, text", "P1\n", "pbm");
    row("PGM, text", "P2\n", "pgm");
    row("PPM, text", "P3\n", "ppm");
    row("PBM", "P4\n", "pbm");
    row("PGM", "P5\n", "pgm");
    row("PPM", "P6\n", "ppm");
    row("TIFF, little endian", QByteArray("II*\0", 4), "tiff");
    row("TIFF, big endian", QByteArray("MM\0*", 4), "tiff");
    row("BigTIFF, little endian", QByteArray("II+\0", 4), "tiff");
    row("BigTIFF, big endian", QByteArray("MM\0+", 4), "tiff");
    row("WEBP", "RIFF1234WEBPVP8 ", "webp");
    row("AVIF", "1234ftypavif", "avif");
    row("HEIC", "1234ftypheic", "heic");
    row("HEIC of ten bits", "1234ftypheix", "heic");
    row("HEIF", "1234ftypmif1", "heic");
    row("JPEG 2000", QByteArray("\0\0\0\x0cjP  \r\n\x87\n", 12), "jp2");
    row("JPEG XL", "\xff\x0a", "jxl");
    row("JPEG XL in a container", QByteArray("\0\0\0\x0cJXL \r\n\x87\n", 12), "jxl");

    row("nothing", "", "");
    row("half a PNG", "\x89PNG", "");
    row("SVG", "<svg xmlns=", "");
    row("XML", "<?xml vers", "");
    row("gzip", "\x1f\x8b\x08", "");
    row("PDF", "%PDF-1.7", "");
    row("PostScript", "%!PS", "");
    row("XPM", "/* XPM */", "");
    row("XBM", "#define a_width 9", "");
    row("PSD", "8BPS", "");
    row("icon", QByteArray("\0\0\1\0", 4), "");
    row("Sun raster", "\x59\xa6\x6a\x95", "");
    row("MNG", "\x8aMNG\r\n\x1a\n", "");
    row("AVI", "RIFF1234AVI LIST", "");
    row("film", "1234ftypisom", "");
    row("PAM", "P7\n", "");
}

void ImageFormatTest::formatIsToldByTheFirstBytes()
{
    QFETCH(QByteArray, head);
    QBuffer file(&head);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QTEST(imageFormat(file), "format");
    QCOMPARE(file.pos(), 0);
}

QTEST_GUILESS_MAIN(ImageFormatTest)
#include "imageformat_test.moc"
