// Pages whose image is copied, beside the pages that the real ImageMagick makes of the same files.

#include "copyablefiles.h"
#include "copyablepage.h"
#include "imagefiles.h"
#include "toolbench.h"

#include <QColorSpace>
#include <QFile>
#include <QImage>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <array>
#include <cmath>
#include <optional>

using namespace Qt::StringLiterals;

class CopiedPagesTest : public QObject
{
    Q_OBJECT

private slots:
    void pageHasTheRealSize_data();
    void pageHasTheRealSize();
    void pictureIsTheRealOne_data();
    void pictureIsTheRealOne();
    void privateDataStaysBehind_data();
    void privateDataStaysBehind();
};

namespace {

using Pages = std::optional<std::vector<CopyablePage>>;

// The real tool under the bundle's policy, as the program convert runs it.
void runRealTool(const QString &folder, const QStringList &arguments)
{
    const QString configuration = bundleContents() + u"/Resources/magick"_s;
    QStringList command =
        QString::fromUtf8(contentOf(bundleContents() + u"/Resources/convert.tool"_s))
            .split(u'\n', Qt::SkipEmptyParts);
    const QString program = command.takeFirst();
    const RunResult result = runProgram(program, command + arguments, folder,
                                        {{u"MAGICK_CONFIGURE_PATH"_s, configuration + u"/limits"_s},
                                         {u"XDG_CONFIG_HOME"_s, configuration + u"/rights"_s},
                                         {u"HOME"_s, configuration},
                                         {u"MAGICK_THREAD_LIMIT"_s, u"1"_s},
                                         {u"LC_ALL"_s, u"C.UTF-8"_s}});
    QVERIFY2(result.status == 0, result.errors.constData());
}

Pages readPages(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s", qPrintable(path));
    return copyablePages(file.handle(), Compression::Unset);
}

QList<QSizeF> mediaBoxes(const QByteArray &pdf)
{
    static const QRegularExpression box(u"/MediaBox \\[0 0 (\\S+) (\\S+)\\]"_s);
    QList<QSizeF> sizes;
    for (const QRegularExpressionMatch &match : box.globalMatch(QString::fromLatin1(pdf)))
        sizes.append({match.captured(1).toDouble(), match.captured(2).toDouble()});
    return sizes;
}

QByteArray streamObject(const QByteArray &dictionary, const QByteArray &data)
{
    return "<< " + dictionary + " /Length " + QByteArray::number(data.size()) + " >>\nstream\n" +
           data + "\nendstream";
}

QByteArray colourSpace(const CopyablePage &page)
{
    if (!page.iccProfile.empty())
        return "[/ICCBased 6 0 R]";
    if (!page.palette.empty())
        return "[/Indexed /DeviceRGB " +
               QByteArray::number(qsizetype(page.palette.size() / 3 - 1)) + " <" +
               QByteArray::fromStdString(page.palette).toHex() + ">]";
    return page.components == 1 ? "/DeviceGray" : "/DeviceRGB";
}

QByteArray streamOf(const CopyablePage &page, const QByteArray &file)
{
    QByteArray stream = QByteArray::fromStdString(page.data);
    if (stream.isEmpty())
        for (const Extent &extent : page.extents)
            stream += file.mid(qsizetype(extent.offset), qsizetype(extent.length));
    return stream;
}

// A PDF of one page that is the picture, less a margin of so many points.
QByteArray pdfWith(const CopyablePage &page, const QByteArray &file, double margin)
{
    const QByteArray width = QByteArray::number(page.pageWidth);
    const QByteArray height = QByteArray::number(page.pageHeight);
    const QByteArray place = QByteArray::number(page.pageWidth - 2 * margin) + " 0 0 " +
                             QByteArray::number(page.pageHeight - 2 * margin) + " " +
                             QByteArray::number(margin) + " " + QByteArray::number(margin);
    QByteArray parms;
    for (const auto &[key, value] : page.decodeParms)
        parms += QByteArray::fromStdString(key) + " " + QByteArray::fromStdString(value) + " ";
    const QByteArray image =
        "/Type /XObject /Subtype /Image /Width " + QByteArray::number(page.width) + " /Height " +
        QByteArray::number(page.height) + " /BitsPerComponent " +
        QByteArray::number(page.bitsPerComponent) + " /ColorSpace " + colourSpace(page) +
        " /Filter /" + QByteArray::fromStdString(page.filter) +
        (page.inverted ? " /Decode [1 0]" : "") + " /DecodeParms << " + parms + ">>";
    const QByteArray objects[] = {
        "<< /Type /Catalog /Pages 2 0 R >>",
        "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
        "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 " + width + " " + height +
            "] /Contents 4 0 R /Resources << /XObject << /I 5 0 R >> >> >>",
        streamObject("", "q " + place + " cm /I Do Q"),
        streamObject(image, streamOf(page, file)),
        streamObject("/N " + QByteArray::number(page.components),
                     QByteArray::fromStdString(page.iccProfile))};
    QByteArray pdf = "%PDF-1.5\n";
    QByteArray table = "xref\n0 7\n0000000000 65535 f \n";
    int number = 0;
    for (const QByteArray &object : objects) {
        table += QByteArray::number(pdf.size()).rightJustified(10, '0') + " 00000 n \n";
        pdf += QByteArray::number(++number) + " 0 obj\n" + object + "\nendobj\n";
    }
    const QByteArray start = QByteArray::number(pdf.size());
    return pdf + table + "trailer\n<< /Size 7 /Root 1 0 R >>\nstartxref\n" + start + "\n%%EOF\n";
}

// The page of NAME.pdf, a pixel for each point.
QImage drawnBy(const QString &reader, const QString &folder, const QString &name)
{
    const QString pdf = name + u".pdf"_s;
    const QString png = name + u"-by-"_s + reader;
    const QStringList arguments =
        reader == u"mutool"_s
            ? QStringList{u"draw"_s, u"-q"_s, u"-r"_s, u"72"_s, u"-o"_s, png + u".png"_s, pdf}
            : QStringList{u"-r"_s, u"72"_s, u"-png"_s, u"-singlefile"_s, pdf, png};
    const RunResult result = runProgram(reader, arguments, folder);
    // Debian's mutool warns that it knows no profiles.
    if (result.status != 0 || (reader == u"pdftoppm"_s && !result.errors.isEmpty()))
        QTest::qFail(result.errors.constData(), __FILE__, __LINE__);
    return QImage(folder + u'/' + png + u".png"_s).convertToFormat(QImage::Format_RGB888);
}

// Peak signal-to-noise ratio in decibels; infinite for equal pictures, 0 for such of unlike size.
double signalToNoise(const QImage &one, const QImage &other)
{
    if (one.size() != other.size())
        return 0;
    double sum = 0;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width() * 3; ++x)
            sum += std::pow(int(one.constScanLine(y)[x]) - int(other.constScanLine(y)[x]), 2);
    return 10 * std::log10(255.0 * 255.0 * one.width() * one.height() * 3 / sum);
}

void addRows(const QList<CopyableFile> &files)
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("isCopied");
    for (const CopyableFile &file : files)
        QTest::newRow(file.name.constData()) << file.bytes << file.isCopied;
}

} // namespace

void CopiedPagesTest::pageHasTheRealSize_data()
{
    addRows(densityFiles());
}

void CopiedPagesTest::pageHasTheRealSize()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const bool, isCopied);
    const QTemporaryDir folder;
    writeContent(folder.filePath(u"picture"_s), bytes);

    const Pages pages = readPages(folder.filePath(u"picture"_s));

    QCOMPARE(pages.has_value(), isCopied);
    if (!isCopied)
        return;
    runRealTool(folder.path(), {u"picture"_s, u"real.pdf"_s});
    const QList<QSizeF> sizes = mediaBoxes(contentOf(folder.filePath(u"real.pdf"_s)));
    QCOMPARE(qsizetype(pages->size()), sizes.size());
    for (size_t number = 0; number < pages->size(); ++number) {
        const CopyablePage &page = pages->at(number);
        const QSizeF real = sizes.at(qsizetype(number));
        const QString sight = u"%1 x %2, not %3 x %4"_s.arg(page.pageWidth)
                                  .arg(page.pageHeight)
                                  .arg(real.width())
                                  .arg(real.height());
        QVERIFY2(std::abs(page.pageWidth - real.width()) <= 0.01, qPrintable(sight));
        QVERIFY2(std::abs(page.pageHeight - real.height()) <= 0.01, qPrintable(sight));
    }
}

void CopiedPagesTest::pictureIsTheRealOne_data()
{
    addRows(pictureFiles());
}

void CopiedPagesTest::pictureIsTheRealOne()
{
    QFETCH(const QByteArray, bytes);
    const QTemporaryDir folder;
    writeContent(folder.filePath(u"picture"_s), bytes);
    const Pages pages = readPages(folder.filePath(u"picture"_s));
    QVERIFY(pages && pages->size() == 1);
    writeContent(folder.filePath(u"copied.pdf"_s), pdfWith(pages->front(), bytes, 0));
    // Poppler 22.12 draws a picture that ends on a pixel's edge one pixel larger.
    writeContent(folder.filePath(u"inside.pdf"_s), pdfWith(pages->front(), bytes, 0.001));
    runRealTool(folder.path(), {u"picture"_s, u"real.pdf"_s});

    const QImage byPoppler = drawnBy(u"pdftoppm"_s, folder.path(), u"copied"_s);
    const QImage byMutool = drawnBy(u"mutool"_s, folder.path(), u"inside"_s);
    const QImage real = drawnBy(u"pdftoppm"_s, folder.path(), u"real"_s);
    const RunResult ours = runBundled(u"convert"_s, {u"picture"_s, u"ours.pdf"_s}, folder.path());
    QVERIFY2(ours.status == 0, ours.errors.constData());
    const RunResult check = runProgram(u"qpdf"_s, {u"--check"_s, u"ours.pdf"_s}, folder.path());
    QVERIFY2(check.status == 0, check.errors.constData());

    QCOMPARE(byPoppler.size(), QSize(40, 30));
    QCOMPARE(drawnBy(u"pdftoppm"_s, folder.path(), u"ours"_s), byPoppler);
    QCOMPARE(byMutool.size(), byPoppler.size());
    // Readers differ in what they make of a profile.
    if (pages->front().iccProfile.empty()) {
        QImage source = QImage::fromData(bytes).convertToFormat(QImage::Format_RGB888);
        source.setColorSpace({});
        QCOMPARE(drawnBy(u"pdftoppm"_s, folder.path(), u"inside"_s), source);
        QCOMPARE(byMutool, source);
    }
    const bool isExact = pages->front().filter != "DCTDecode";
    const double ratio = signalToNoise(byPoppler, real);
    QVERIFY2(isExact ? byPoppler == real : ratio >= 40, qPrintable(QString::number(ratio)));
}

void CopiedPagesTest::privateDataStaysBehind_data()
{
    using namespace imagefiles;
    const QByteArray words = "planted words";
    const QByteArray fullJpeg = jpeg(
        {jfif(0, 1, 1, words.leftJustified(15)), segment(0xE0, QByteArray("JFXX\0", 5) + words),
         segment(0xE1, QByteArray("Exif\0\0", 6) + exifBlock({300, 300, 2}) + words),
         segment(0xE1, "http://ns.adobe.com/xap/1.0/" + words), segment(0xED, words),
         segment(0xFE, words)},
        jpegBody(true));
    PngForm pngForm;
    pngForm.before = {chunk("tEXt", QByteArray("Comment\0", 8) + words), chunk("prVt", words)};
    TiffForm tiffForm;
    tiffForm.description = words.constData();
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("options");
    for (const bool isCopied : {true, false}) {
        const QStringList options =
            isCopied ? QStringList() : QStringList{u"-resize"_s, u"595x842"_s};
        const QByteArray way = isCopied ? ", copied" : ", converted";
        QTest::newRow("JPEG" + way) << fullJpeg << options;
        QTest::newRow("PNG" + way) << png(pngForm) << options;
        QTest::newRow("TIFF" + way) << tiff(tiffForm) << options;
    }
}

void CopiedPagesTest::privateDataStaysBehind()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const QStringList, options);
    QVERIFY(bytes.contains("planted words"));
    const QTemporaryDir folder;
    writeContent(folder.filePath(u"picture"_s), bytes);

    const RunResult result =
        runBundled(u"convert"_s, options + QStringList{u"picture"_s, u"ours.pdf"_s}, folder.path());

    QVERIFY2(result.status == 0, result.errors.constData());
    const RunResult open = runProgram(
        u"qpdf"_s, {u"--qdf"_s, u"--object-streams=disable"_s, u"ours.pdf"_s, u"open.pdf"_s},
        folder.path());
    QVERIFY2(open.status == 0, open.errors.constData());
    QVERIFY(!contentOf(folder.filePath(u"open.pdf"_s)).contains("planted"));
}

QTEST_GUILESS_MAIN(CopiedPagesTest)
#include "copiedpages_test.moc"
