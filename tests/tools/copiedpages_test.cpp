// Copied pages compared with those that the real ImageMagick makes of the same files.

#include "copyablefiles.h"
#include "imagefiles.h"
#include "pagereading.h"
#include "toolbench.h"

#include <QColorSpace>
#include <QImage>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>

using namespace Qt::StringLiterals;

class CopiedPagesTest : public QObject
{
    Q_OBJECT

private slots:
    void pageHasTheRealSize_data();
    void pageHasTheRealSize();
    void pictureIsTheRealOne_data();
    void pictureIsTheRealOne();
    void indexBeyondThePaletteIsDamage_data();
    void indexBeyondThePaletteIsDamage();
    void privateDataStaysBehind_data();
    void privateDataStaysBehind();
};

namespace {

void convertByRealTool(const QTemporaryDir &folder)
{
    const RunResult result = runRealConvert(
        {u"picture"_s, u"-auto-orient"_s, u"+repage"_s, u"real.pdf"_s}, folder.path());
    QVERIFY2(result.status == 0, result.errors.constData());
}

QList<QSizeF> mediaBoxes(const QByteArray &pdf)
{
    static const QRegularExpression box(u"/MediaBox \\[0 0 (\\S+) (\\S+)\\]"_s);
    QList<QSizeF> sizes;
    for (const QRegularExpressionMatch &match : box.globalMatch(QString::fromLatin1(pdf)))
        sizes.append({match.captured(1).toDouble(), match.captured(2).toDouble()});
    return sizes;
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

// 40 x 30 indices up to 254, and a palette of 200 colours.
QByteArray pngWithFewColours()
{
    imagefiles::PngForm form;
    form.colourType = 3;
    const QByteArray whole = imagefiles::png(form);
    const qsizetype palette = whole.indexOf("PLTE") - 4;
    return whole.left(palette) + imagefiles::chunk("PLTE", whole.mid(palette + 8, 600)) +
           whole.mid(palette + 12 + 768);
}

// One pixel of colour 3, and a palette of two.
QByteArray gifWithFewColours()
{
    return "GIF89a" +
           QByteArray::fromHex("01000100800000ffffff0000002c00000000010001000002025c01003b");
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

    const std::vector<CopyablePage> pages = readImage(bytes).pages;

    QCOMPARE(!pages.empty(), isCopied);
    if (!isCopied)
        return;
    convertByRealTool(folder);
    const QList<QSizeF> sizes = mediaBoxes(contentOf(folder.filePath(u"real.pdf"_s)));
    QCOMPARE(qsizetype(pages.size()), sizes.size());
    for (size_t number = 0; number < pages.size(); ++number) {
        const CopyablePage &page = pages.at(number);
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
    const std::vector<CopyablePage> pages = readImage(bytes).pages;
    QCOMPARE(pages.size(), size_t(1));
    convertByRealTool(folder);

    const RunResult ours = runBundled(u"convert"_s, {u"picture"_s, u"ours.pdf"_s}, folder.path());
    QVERIFY2(ours.status == 0, ours.errors.constData());
    const RunResult check = runProgram(u"qpdf"_s, {u"--check"_s, u"ours.pdf"_s}, folder.path());
    QVERIFY2(check.status == 0, check.errors.constData());

    const QImage byPoppler = drawnBy(u"pdftoppm"_s, folder.path(), u"ours"_s);
    const QImage real = drawnBy(u"pdftoppm"_s, folder.path(), u"real"_s);
    QCOMPARE(byPoppler.size(), QSize(40, 30));
    const bool isExact = pages.front().filter != "DCTDecode";
    const double ratio = signalToNoise(byPoppler, real);
    QVERIFY2(isExact ? byPoppler == real : ratio >= 40, qPrintable(QString::number(ratio)));
    // Readers differ in what they make of a profile.
    if (!pages.front().iccProfile) {
        QImage source = QImage::fromData(bytes).convertToFormat(QImage::Format_RGB888);
        source.setColorSpace({});
        QCOMPARE(drawnBy(u"mutool"_s, folder.path(), u"ours"_s), source);
    }
}

void CopiedPagesTest::indexBeyondThePaletteIsDamage_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("PNG") << pngWithFewColours();
    QTest::newRow("GIF") << gifWithFewColours();
}

// With any options.
void CopiedPagesTest::indexBeyondThePaletteIsDamage()
{
    QFETCH(const QByteArray, bytes);
    const QTemporaryDir folder;
    writeContent(folder.filePath(u"picture"_s), bytes);
    for (const QStringList &options : {QStringList{}, {u"-rotate"_s, u"90"_s}}) {
        const RunResult result = runBundled(
            u"convert"_s, options + QStringList{u"picture"_s, u"ours.pdf"_s}, folder.path());
        QCOMPARE(result.status, 1);
        const QByteArray words = result.errors.toLower().replace(" ", "");
        QVERIFY2(words.contains("invalidcolormapindex"), result.errors.constData());
        QCOMPARE(namesIn(folder.path()), QStringList{u"picture"_s});
    }
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
