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

class CopiedPages : public QObject
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
    const QString configuration = bundleContents() + "/Resources/magick";
    QStringList command = QString::fromUtf8(contentOf(bundleContents() + "/Resources/convert.tool"))
                              .split('\n', Qt::SkipEmptyParts);
    const QString program = command.takeFirst();
    const RunResult result = runProgram(program, command + arguments, folder,
                                        {{"MAGICK_CONFIGURE_PATH", configuration + "/limits"},
                                         {"XDG_CONFIG_HOME", configuration + "/rights"},
                                         {"HOME", configuration},
                                         {"MAGICK_THREAD_LIMIT", "1"},
                                         {"LC_ALL", "C.UTF-8"}});
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
    static const QRegularExpression box("/MediaBox \\[0 0 (\\S+) (\\S+)\\]");
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
    const QString pdf = name + ".pdf";
    const QString png = name + "-by-" + reader;
    const QStringList arguments =
        reader == "mutool" ? QStringList{"draw", "-q", "-r", "72", "-o", png + ".png", pdf}
                           : QStringList{"-r", "72", "-png", "-singlefile", pdf, png};
    const RunResult result = runProgram(reader, arguments, folder);
    // Debian's mutool warns that it knows no profiles.
    if (result.status != 0 || (reader == "pdftoppm" && !result.errors.isEmpty()))
        QTest::qFail(result.errors.constData(), __FILE__, __LINE__);
    return QImage(folder + "/" + png + ".png").convertToFormat(QImage::Format_RGB888);
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

void CopiedPages::pageHasTheRealSize_data()
{
    addRows(densityFiles());
}

void CopiedPages::pageHasTheRealSize()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const bool, isCopied);
    const QTemporaryDir folder;
    writeContent(folder.filePath("picture"), bytes);

    const Pages pages = readPages(folder.filePath("picture"));

    QCOMPARE(pages.has_value(), isCopied);
    if (!isCopied)
        return;
    runRealTool(folder.path(), {"picture", "real.pdf"});
    const QList<QSizeF> sizes = mediaBoxes(contentOf(folder.filePath("real.pdf")));
    QCOMPARE(qsizetype(pages->size()), sizes.size());
    for (size_t number = 0; number < pages->size(); ++number) {
        const CopyablePage &page = pages->at(number);
        const QSizeF real = sizes.at(qsizetype(number));
        const QString sight = QStringLiteral("%1 x %2, not %3 x %4")
                                  .arg(page.pageWidth)
                                  .arg(page.pageHeight)
                                  .arg(real.width())
                                  .arg(real.height());
        QVERIFY2(std::abs(page.pageWidth - real.width()) <= 0.01, qPrintable(sight));
        QVERIFY2(std::abs(page.pageHeight - real.height()) <= 0.01, qPrintable(sight));
    }
}

void CopiedPages::pictureIsTheRealOne_data()
{
    addRows(pictureFiles());
}

void CopiedPages::pictureIsTheRealOne()
{
    QFETCH(const QByteArray, bytes);
    const QTemporaryDir folder;
    writeContent(folder.filePath("picture"), bytes);
    const Pages pages = readPages(folder.filePath("picture"));
    QVERIFY(pages && pages->size() == 1);
    writeContent(folder.filePath("copied.pdf"), pdfWith(pages->front(), bytes, 0));
    // Poppler 22.12 draws a picture that ends on a pixel's edge one pixel larger.
    writeContent(folder.filePath("inside.pdf"), pdfWith(pages->front(), bytes, 0.001));
    runRealTool(folder.path(), {"picture", "real.pdf"});

    const QImage byPoppler = drawnBy("pdftoppm", folder.path(), "copied");
    const QImage byMutool = drawnBy("mutool", folder.path(), "inside");
    const QImage real = drawnBy("pdftoppm", folder.path(), "real");
    const RunResult ours = runBundled("convert", {"picture", "ours.pdf"}, folder.path());
    QVERIFY2(ours.status == 0, ours.errors.constData());
    const RunResult check = runProgram("qpdf", {"--check", "ours.pdf"}, folder.path());
    QVERIFY2(check.status == 0, check.errors.constData());

    QCOMPARE(byPoppler.size(), QSize(40, 30));
    QCOMPARE(drawnBy("pdftoppm", folder.path(), "ours"), byPoppler);
    QCOMPARE(byMutool.size(), byPoppler.size());
    // Readers differ in what they make of a profile.
    if (pages->front().iccProfile.empty()) {
        QImage source = QImage::fromData(bytes).convertToFormat(QImage::Format_RGB888);
        source.setColorSpace({});
        QCOMPARE(drawnBy("pdftoppm", folder.path(), "inside"), source);
        QCOMPARE(byMutool, source);
    }
    const bool isExact = pages->front().filter != "DCTDecode";
    const double ratio = signalToNoise(byPoppler, real);
    QVERIFY2(isExact ? byPoppler == real : ratio >= 40, qPrintable(QString::number(ratio)));
}

void CopiedPages::privateDataStaysBehind_data()
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
        const QStringList options = isCopied ? QStringList() : QStringList{"-resize", "595x842"};
        const QByteArray way = isCopied ? ", copied" : ", converted";
        QTest::newRow("JPEG" + way) << fullJpeg << options;
        QTest::newRow("PNG" + way) << png(pngForm) << options;
        QTest::newRow("TIFF" + way) << tiff(tiffForm) << options;
    }
}

void CopiedPages::privateDataStaysBehind()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const QStringList, options);
    QVERIFY(bytes.contains("planted words"));
    const QTemporaryDir folder;
    writeContent(folder.filePath("picture"), bytes);

    const RunResult result =
        runBundled("convert", options + QStringList{"picture", "ours.pdf"}, folder.path());

    QVERIFY2(result.status == 0, result.errors.constData());
    const RunResult open = runProgram(
        "qpdf", {"--qdf", "--object-streams=disable", "ours.pdf", "open.pdf"}, folder.path());
    QVERIFY2(open.status == 0, open.errors.constData());
    QVERIFY(!contentOf(folder.filePath("open.pdf")).contains("planted"));
}

QTEST_GUILESS_MAIN(CopiedPages)
#include "copiedpages_test.moc"
