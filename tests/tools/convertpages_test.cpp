// How the pages of a call are made and joined: by copying, by several runs of the real tool, or by
// both, in the order of the images.

#include "imagefiles.h"
#include "pdffacts.h"
#include "pdfpages.h"
#include "toolbench.h"

#include <QDateTime>
#include <QDir>
#include <QImageReader>
#include <QPainter>
#include <QRegularExpression>
#include <QTest>
#include <QTimeZone>

using namespace Qt::StringLiterals;

class ConvertPagesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void everyFormatMergesInOrder();
    void severalImagesOfAFileStayInPlace_data();
    void severalImagesOfAFileStayInPlace();
    void twoThousandImages();
    void oneDamagedAmongMany_data();
    void oneDamagedAmongMany();
    void jpegWithDamagedTablesIsRefused_data();
    void jpegWithDamagedTablesIsRefused();
    void densityBeyondReasonIsNamed_data();
    void densityBeyondReasonIsNamed();
    void pagesFitReaders_data();
    void pagesFitReaders();
    void warningsOfASuccessAreLogged();
    void informationIsTheSame_data();
    void informationIsTheSame();
    void shrunkJpegHasTheRealSize_data();
    void shrunkJpegHasTheRealSize();

private:
    QString place(const QString &name) const { return m_folder.filePath(name); }
    RunResult makeReal(const QStringList &words) const;
    RunResult convert(const QStringList &words, const Variables &variables = {}) const;

    void addSources(const QString &name);
    void comparePages(const QStringList &names, double turn = 0) const;

    QTemporaryDir m_folder;
    QMap<QString, QImage> m_sources;
};

// The pages show the images with these names in order.
void ConvertPagesTest::comparePages(const QStringList &names, double turn) const
{
    for (int page = 0; page < names.size(); ++page) {
        const QImage expected = m_sources[names[page]].transformed(QTransform().rotate(turn));
        const QImage shown = drawnPage(place(u"o.pdf"_s), page, finelyDrawn);
        const QString difference = visibleDifference(shown, expected);
        QVERIFY2(difference.isEmpty(), qPrintable(names[page] + u": "_s + difference));
    }
}

RunResult ConvertPagesTest::makeReal(const QStringList &words) const
{
    const QString realTool =
        QString::fromUtf8(contentOf(bundleContents() + u"/Resources/convert.tool"_s)).trimmed();
    return runProgram(realTool, words, m_folder.path());
}

RunResult ConvertPagesTest::convert(const QStringList &words, const Variables &variables) const
{
    return runBundled(u"convert"_s, words + QStringList{u"o.pdf"_s}, m_folder.path(), variables);
}

// Each image has a width and a colour of its own, by which its page is known, and a corner by which
// a turn is.
void ConvertPagesTest::initTestCase()
{
    int width = 11;
    for (const QString &name : {u"1.bmp"_s, u"2.gif"_s, u"3.jpg"_s, u"4.pbm"_s, u"5.pcx"_s,
                                u"6.png"_s, u"7.ppm"_s, u"8.tif"_s}) {
        QImage image(width, 10, QImage::Format_RGB32);
        image.fill(QColor::fromHsv(width * 30 % 360, 255, 200));
        QPainter(&image).fillRect(0, 0, 5, 5, Qt::white);
        QVERIFY(image.save(place(u"source.png"_s)));
        m_sources[name] = image;
        ++width;
        QCOMPARE(makeReal({u"source.png"_s, u"-density"_s, u"72"_s, u"-units"_s, u"PixelsPerInch"_s,
                           name})
                     .status,
                 0);
    }
    m_sources[u"4.pbm"_s] = QImage(place(u"4.pbm"_s)); // black and white
    QCOMPARE(makeReal({u"1.bmp"_s, u"2.gif"_s, u"3.jpg"_s, u"-density"_s, u"72"_s, u"-units"_s,
                       u"PixelsPerInch"_s, u"several.tif"_s})
                 .status,
             0);
    QCOMPARE(makeReal({u"1.bmp"_s, u"-monochrome"_s, u"2.gif"_s, u"-compress"_s, u"Group4"_s,
                       u"-density"_s, u"72"_s, u"-units"_s, u"PixelsPerInch"_s, u"faxes.tif"_s})
                 .status,
             0);
    QCOMPARE(
        makeReal({u"2.gif"_s, u"3.jpg"_s, u"-repage"_s, u"0x0+0+0"_s, u"several.gif"_s}).status, 0);
    writeContent(place(u"strips.tif"_s), imagefiles::tiff({.rowsPerStrip = 7, .pages = 3}));
    for (const QString &several : {u"faxes.tif"_s, u"several.gif"_s, u"strips.tif"_s})
        addSources(several);
}

// The images of a file, by the file's name and their numbers.
void ConvertPagesTest::addSources(const QString &name)
{
    QImageReader reader(place(name));
    for (int number = 0; number < reader.imageCount(); ++number) {
        m_sources[name + u' ' + QString::number(number)] = reader.read();
        reader.jumpToNextImage(); // a GIF file's are read one after the other
    }
}

// qpdf finds no fault in any PDF that was made here.
void ConvertPagesTest::cleanup()
{
    if (!QFile::exists(place(u"o.pdf"_s)))
        return;
    const RunResult check =
        runProgram(u"/usr/bin/qpdf"_s, {u"--check"_s, u"o.pdf"_s}, m_folder.path());
    QVERIFY2(check.status == 0, (check.output + check.errors).constData());
    QFile::remove(place(u"o.pdf"_s));
}

void ConvertPagesTest::everyFormatMergesInOrder()
{
    const QStringList names = {u"8.tif"_s, u"3.jpg"_s, u"1.bmp"_s, u"6.png"_s, u"2.gif"_s,
                               u"5.pcx"_s, u"4.pbm"_s, u"7.ppm"_s, u"3.jpg"_s};
    QCOMPARE(convert(names).errors, QByteArray());
    comparePages(names);
    const PdfFacts facts = readPdf(place(u"o.pdf"_s));
    QCOMPARE(facts.pages, names.size());
    for (qsizetype page = 0; page < names.size(); ++page) {
        QCOMPARE(convert({names.at(page)}).errors, QByteArray());
        QCOMPARE(facts.pageSizes.at(page), readPdf(place(u"o.pdf"_s)).pageSizes.at(0));
    }
}

void ConvertPagesTest::severalImagesOfAFileStayInPlace_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QStringList>("shown");
    const QStringList turned = {u"-rotate"_s, u"180"_s};
    QTest::newRow("a TIFF file among others")
        << QStringList{} << QStringList{u"several.tif"_s, u"3.jpg"_s, u"several.tif"_s}
        << QStringList{u"1.bmp"_s, u"2.gif"_s, u"3.jpg"_s, u"3.jpg"_s,
                       u"1.bmp"_s, u"2.gif"_s, u"3.jpg"_s};
    QTest::newRow("a turned TIFF file")
        << turned << QStringList{u"3.jpg"_s, u"several.tif"_s}
        << QStringList{u"3.jpg"_s, u"1.bmp"_s, u"2.gif"_s, u"3.jpg"_s};
    QTest::newRow("a copied TIFF file")
        << QStringList{} << QStringList{u"faxes.tif"_s, u"3.jpg"_s}
        << QStringList{u"faxes.tif 0"_s, u"faxes.tif 1"_s, u"3.jpg"_s};
    QTest::newRow("a copied TIFF file of several strips")
        << QStringList{} << QStringList{u"strips.tif"_s}
        << QStringList{u"strips.tif 0"_s, u"strips.tif 1"_s, u"strips.tif 2"_s};
    // The real tool gives each image of an animation the size of the whole.
    QTest::newRow("an animation") << QStringList{}
                                  << QStringList{u"3.jpg"_s, u"several.gif"_s, u"3.jpg"_s}
                                  << QStringList{u"3.jpg"_s, u"several.gif 0"_s, u"several.gif 1"_s,
                                                 u"3.jpg"_s};
    QTest::newRow("a turned animation")
        << turned << QStringList{u"several.gif"_s, u"3.jpg"_s}
        << QStringList{u"several.gif 0"_s, u"several.gif 1"_s, u"3.jpg"_s};
}

void ConvertPagesTest::severalImagesOfAFileStayInPlace()
{
    QFETCH(QStringList, options);
    QFETCH(QStringList, names);
    QFETCH(QStringList, shown);
    QCOMPARE(convert(options + names).errors, QByteArray());
    QList<QSizeF> sizes;
    for (const QString &name : shown)
        sizes.append(QSizeF(m_sources[name].size()));
    QCOMPARE(readPdf(place(u"o.pdf"_s)).pageSizes, sizes);
    comparePages(shown, options.isEmpty() ? 0 : 180);
}

void ConvertPagesTest::twoThousandImages()
{
    QStringList names;
    for (int i = 0; i < 1000; ++i)
        names << u"3.jpg"_s << u"6.png"_s;
    QCOMPARE(convert(names << u"1.bmp"_s).errors, QByteArray());
    QCOMPARE(readPdf(place(u"o.pdf"_s)).pages, 2001);
    for (const auto &[page, name] :
         {std::pair(0, u"3.jpg"_s), std::pair(1999, u"6.png"_s), std::pair(2000, u"1.bmp"_s)})
        QCOMPARE(
            visibleDifference(drawnPage(place(u"o.pdf"_s), page, finelyDrawn), m_sources[name]),
            QString());
}

void ConvertPagesTest::oneDamagedAmongMany_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("kept");
    for (const char *name : {"3.jpg", "6.png", "several.tif", "7.ppm", "2.gif"}) {
        for (const QStringList &options : {QStringList{}, QStringList{u"-rotate"_s, u"90"_s}})
            QTest::addRow("%s%s", name, options.isEmpty() ? "" : ", turned")
                << options << name << 60;
    }
}

void ConvertPagesTest::oneDamagedAmongMany()
{
    QFETCH(QStringList, options);
    QFETCH(QString, name);
    QFETCH(int, kept);
    const QByteArray whole = contentOf(place(name));
    const QString damaged = u"damaged."_s + name.section(u'.', 1);
    writeContent(place(damaged), whole.left(whole.size() * kept / 100));
    const QStringList names = {u"1.bmp"_s, u"3.jpg"_s, damaged, u"6.png"_s, u"7.ppm"_s, u"8.tif"_s};
    const RunResult result = convert(options + names);
    QCOMPARE(result.status, 1);
    QVERIFY2(result.errors.contains(damaged.toUtf8()), result.errors.constData());
    QVERIFY(!QFile::exists(place(u"o.pdf"_s)));
    QVERIFY(QDir(m_folder.path())
                .entryList({u".tessaro*"_s}, QDir::AllEntries | QDir::Hidden)
                .isEmpty());
}

void ConvertPagesTest::jpegWithDamagedTablesIsRefused_data()
{
    using namespace imagefiles;
    QTest::addColumn<QByteArray>("file");
    for (const bool isProgressive : {false, true}) {
        const QByteArray body = jpegBody(true, isProgressive);
        const char *kind = isProgressive ? "progressive" : "baseline";
        const auto row = [kind](const char *name, const QByteArray &file) {
            QTest::addRow("%s, %s", name, kind) << file;
        };
        row("no quantization tables", jpeg({}, QByteArray(body).replace("\xFF\xDB", "\xFF\xFE")));
        row("restart interval with more in it", jpeg({segment(0xDD, big16(0) + "x")}, body));
        row("a Huffman table too many", jpeg({segment(0xC4, '\7' + QByteArray(16, '\0'))}, body));
    }
}

// Readers of PDFs would show what they like, or nothing.
void ConvertPagesTest::jpegWithDamagedTablesIsRefused()
{
    QFETCH(QByteArray, file);
    writeContent(place(u"damaged.jpg"_s), file);
    QCOMPARE(convert({u"damaged.jpg"_s}).status, 1);
    QVERIFY(!QFileInfo::exists(place(u"o.pdf"_s)));
}

void ConvertPagesTest::densityBeyondReasonIsNamed_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::newRow("copied") << QStringList{};
    QTest::newRow("converted") << QStringList{u"-rotate"_s, u"90"_s};
}

// A page of a kilometre, which ImageMagick writes as 2.88e+06 points.
void ConvertPagesTest::densityBeyondReasonIsNamed()
{
    QFETCH(QStringList, options);
    writeContent(place(u"vast.tif"_s),
                 imagefiles::tiff({.size = {400, 400}, .x = 0.01, .y = 0.01, .unit = 2}));
    const RunResult result = convert(options + QStringList{u"vast.tif"_s});
    QCOMPARE(result.status, 1);
    QCOMPARE(result.errors, QByteArray("convert: a page is not sound; the image may have a "
                                       "density beyond reason\n"));
    QVERIFY(!QFileInfo::exists(place(u"o.pdf"_s)));
}

void ConvertPagesTest::pagesFitReaders_data()
{
    QTest::addColumn<double>("density");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QSizeF>("page");
    QTest::addColumn<QByteArray>("unit");
    QTest::newRow("as it is") << 72.0 << QSize(400, 300) << QSizeF(400, 300) << QByteArray();
    QTest::newRow("too large") << 1.0 << QSize(400, 300) << QSizeF(14400, 10800)
                               << QByteArray("/UserUnit 2\n");
    QTest::newRow("too small") << 7200.0 << QSize(400, 150) << QSizeF(8, 3)
                               << QByteArray("/UserUnit 0.5\n");
}

// Poppler does not know the unit, and shows the whole page all the same.
void ConvertPagesTest::pagesFitReaders()
{
    QFETCH(double, density);
    QFETCH(QSize, size);
    QFETCH(QSizeF, page);
    QFETCH(QByteArray, unit);
    writeContent(
        place(u"page.tif"_s),
        imagefiles::tiff(
            {.size = size, .rowsPerStrip = size.height(), .x = density, .y = density, .unit = 2}));
    for (const QStringList &options : {QStringList{}, QStringList{u"-compress"_s, u"LZW"_s}}) {
        QCOMPARE(convert(options + QStringList{u"page.tif"_s}).errors, QByteArray());
        QCOMPARE(readPdf(place(u"o.pdf"_s)).pageSizes, QList<QSizeF>{page});
        const int dotsPerInch = qRound(72 * size.width() / page.width());
        QCOMPARE(visibleDifference(drawnPage(place(u"o.pdf"_s), 0, dotsPerInch),
                                   QImage(place(u"page.tif"_s))),
                 QString());
        const RunResult open =
            runProgram(u"qpdf"_s, {u"--qdf"_s, u"o.pdf"_s, u"-"_s}, m_folder.path());
        QCOMPARE(open.output.contains("/UserUnit"), !unit.isEmpty());
        QVERIFY(open.output.contains(unit));
    }
}

// An unknown tag is no reason to refuse an image.
void ConvertPagesTest::warningsOfASuccessAreLogged()
{
    QByteArray tiff = contentOf(place(u"8.tif"_s));
    const qsizetype software = tiff.indexOf(QByteArray("\x12\x01\x03\0", 4));
    QVERIFY(software > 0);
    tiff.replace(software, 2, QByteArray("\x0F\xFD", 2));
    writeContent(place(u"strange.tif"_s), tiff);
    const RunResult result =
        convert({u"strange.tif"_s}, {{u"TESSARO_TOOL_LOG"_s, place(u"log"_s)}});
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(readPdf(place(u"o.pdf"_s)).pages, 1);
    comparePages({u"8.tif"_s});
    const QByteArray log = contentOf(place(u"log"_s));
    QVERIFY2(log.contains("exit status 0") && log.contains("strange.tif"), log.constData());
    QVERIFY2(log.contains("Unknown field"), log.constData());
}

void ConvertPagesTest::informationIsTheSame_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"3.jpg", "6.png", "faxes.tif", "1.bmp"})
        QTest::newRow(name) << name;
}

void ConvertPagesTest::informationIsTheSame()
{
    QFETCH(QString, name);
    // Nine hours away from UTC.
    QCOMPARE(convert({name}, {{u"TZ"_s, u"XYZ-9"_s}}).errors, QByteArray());
    const QByteArray text = contentOf(place(u"o.pdf"_s));
    QVERIFY(text.contains("/Producer (Tessaro Image to PDF Converter "));
    QVERIFY(text.contains("/Title (o)"));
    for (const char *key : {"CreationDate", "ModDate"}) {
        const QRegularExpression date(u"/%1 \\(D:(\\d{14})Z\\)"_s.arg(QLatin1String(key)));
        const QString digits = date.match(QString::fromLatin1(text)).captured(1);
        QDateTime time = QDateTime::fromString(digits, u"yyyyMMddHHmmss"_s);
        time.setTimeZone(QTimeZone::utc());
        QVERIFY2(qAbs(time.secsTo(QDateTime::currentDateTimeUtc())) < 3600, qPrintable(digits));
    }
    QVERIFY(!text.contains("/Author") && !text.toLower().contains("magick"));
}

void ConvertPagesTest::shrunkJpegHasTheRealSize_data()
{
    QTest::addColumn<QSize>("size");
    for (const QSize size : {QSize(2480, 3508), QSize(3508, 2480), QSize(1999, 1501),
                             QSize(2381, 811), QSize(4001, 171), QSize(333, 2222)})
        QTest::addRow("%dx%d", size.width(), size.height()) << size;
}

// The page of a JPEG image is as large as that of the same pixels in another format.
void ConvertPagesTest::shrunkJpegHasTheRealSize()
{
    QFETCH(QSize, size);
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    QPainter(&image).fillRect(0, 0, size.width() / 3, size.height(), Qt::white);
    QVERIFY(image.save(place(u"large.jpg"_s)));
    QCOMPARE(makeReal({u"large.jpg"_s, u"+set"_s, u"density"_s, u"large.ppm"_s}).status, 0);
    const QStringList options = {u"-resize"_s, u"297x421"_s};
    QList<QSizeF> sizes;
    for (const QString &name : {u"large.jpg"_s, u"large.ppm"_s}) {
        QCOMPARE(convert(options + QStringList{name}).errors, QByteArray());
        sizes += readPdf(place(u"o.pdf"_s)).pageSizes;
        QCOMPARE(visibleDifference(drawnPage(place(u"o.pdf"_s), 0, finelyDrawn), image), QString());
    }
    const double density =
        makeReal({u"large.jpg"_s, u"-format"_s, u"%x"_s, u"info:"_s}).output.toDouble();
    QCOMPARE(sizes.at(0).width() * std::max(density, 72.0) / 72, sizes.at(1).width());
}

QTEST_GUILESS_MAIN(ConvertPagesTest)
#include "convertpages_test.moc"
