// The effect of each option of convert: page, size, colours and pixels, which
// are the same with every ImageMagick.

#include "pdffacts.h"
#include "toolbench.h"

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>
#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

class ConvertOptionsTest : public QObject
{
    Q_OBJECT

private slots:
    void optionShapesThePage_data();
    void optionShapesThePage();
};

namespace {

constexpr QSize sourceSize(64, 32);
constexpr int quarterCount = 4;

QRect quarterOf(QSize size, int number)
{
    const QSize quarter = size / 2;
    return {QPoint(number % 2 * quarter.width(), number / 2 * quarter.height()), quarter};
}

/// A picture whose quarters, row by row, have the colours named in `colours`.
QImage quarters(const QStringList &colours, QSize size)
{
    QImage picture(size, QImage::Format_RGB32);
    QPainter painter(&picture);
    for (int number = 0; number < quarterCount; ++number)
        painter.fillRect(quarterOf(size, number), QColor(colours.at(number)));
    return picture;
}

/// The mean colour of a quarter less its rim, where scaling mixes it with its neighbours.
std::array<double, 3> meanOf(const QImage &picture, int number)
{
    const QRect quarter = quarterOf(picture.size(), number);
    const QSize rim = quarter.size() / 4;
    const QRect place = quarter.adjusted(rim.width(), rim.height(), -rim.width(), -rim.height());
    std::array<double, 3> sum = {};
    for (int y = place.top(); y <= place.bottom(); ++y) {
        for (int x = place.left(); x <= place.right(); ++x) {
            const QColor pixel = picture.pixelColor(x, y);
            sum[0] += pixel.red();
            sum[1] += pixel.green();
            sum[2] += pixel.blue();
        }
    }
    for (double &part : sum)
        part /= place.width() * place.height();
    return sum;
}

/// How far the colours of two pictures' quarters are apart at most, of 255.
double distance(const QImage &one, const QImage &other)
{
    double most = 0;
    for (int number = 0; number < quarterCount; ++number) {
        const auto mean = meanOf(one, number);
        const auto otherMean = meanOf(other, number);
        for (size_t part = 0; part < mean.size(); ++part)
            most = std::max(most, std::abs(mean[part] - otherMean[part]));
    }
    return most;
}

/// Of the images in a PDF: width, height, colours, components, bits and encoding, as poppler's
/// pdfimages names them.
QStringList imagesIn(const QString &folder, const QString &pdf)
{
    const QString list =
        QString::fromUtf8(runProgram(u"pdfimages"_s, {u"-list"_s, pdf}, folder).output);
    QStringList images;
    for (const QString &line : list.split(u'\n', Qt::SkipEmptyParts).mid(2))
        images << line.simplified().section(u' ', 3, 8);
    return images;
}

/// The first image in a PDF.
QImage imageIn(const QString &folder, const QString &pdf)
{
    runProgram(u"pdfimages"_s, {u"-png"_s, pdf, u"image"_s}, folder);
    return QImage(folder + u"/image-000.png"_s).convertToFormat(QImage::Format_RGB32);
}

} // namespace

void ConvertOptionsTest::optionShapesThePage_data()
{
    QTest::addColumn<QString>("options");
    QTest::addColumn<QStringList>("source");
    QTest::addColumn<QString>("image"); // a pattern
    QTest::addColumn<QStringList>("picture");
    QTest::addColumn<int>("tolerance"); // 0: every pixel is the same

    const QStringList colours = {u"red"_s, u"lime"_s, u"blue"_s, u"white"_s};
    const QStringList letter = {u"black"_s, u"white"_s, u"white"_s, u"white"_s};
    const struct
    {
        const char *word;
        const char *ofColours;
        const char *ofLetter;
        int tolerance = 0;
    } compressions[] = {
        {"", "rgb 3 8 image", "gray 1 8 image"},
        {"None", "rgb 3 8 image", "gray 1 8 image"},
        {"Bzip", "rgb 3 8 image", "gray 1 8 image"},
        {"Fax", "rgb 3 8 image", "gray 1 1 ccitt"},
        {"Group4", "rgb 3 8 image", "gray 1 1 ccitt"},
        {"JPEG", "rgb 3 8 jpeg", "gray 1 8 jpeg", 2},
        // Version 7 writes grey as three equal colours.
        {"JPEG2000", "rgb 3 8 jpx", "(gray 1|rgb 3) 8 jpx"},
        {"Lossless", "rgb 3 8 image", "gray 1 8 image"},
        {"LZW", "rgb 3 8 image", "gray 1 8 image"},
        {"RLE", "rgb 3 8 image", "gray 1 8 image"},
        {"zip", "rgb 3 8 image", "gray 1 8 image"},
    };
    for (const auto &row : compressions) {
        const QString option = *row.word ? u"-compress "_s + QLatin1String(row.word) : QString();
        QTest::addRow("colours, compression \"%s\"", row.word)
            << option << colours << u"64 32 "_s + QLatin1String(row.ofColours) << colours
            << row.tolerance;
        QTest::addRow("black and white, compression \"%s\"", row.word)
            << option << letter << u"64 32 "_s + QLatin1String(row.ofLetter) << letter << 0;
    }
    QTest::newRow("a quarter turn") << u"-rotate 90"_s << colours << u"32 64 rgb 3 8 image"_s
                                    << QStringList{u"blue"_s, u"red"_s, u"white"_s, u"lime"_s} << 0;
    QTest::newRow("half a turn") << u"-rotate 180"_s << colours << u"64 32 rgb 3 8 image"_s
                                 << QStringList{u"white"_s, u"blue"_s, u"lime"_s, u"red"_s} << 0;
    QTest::newRow("three quarters of a turn")
        << u"-rotate 270"_s << colours << u"32 64 rgb 3 8 image"_s
        << QStringList{u"lime"_s, u"white"_s, u"red"_s, u"blue"_s} << 0;
    QTest::newRow("larger") << u"-resize 595x842"_s << colours << u"595 298 rgb 3 8 image"_s
                            << colours << 2;
    QTest::newRow("smaller") << u"-resize 32x32"_s << colours << u"32 16 rgb 3 8 image"_s << colours
                             << 8;
    QTest::newRow("black and white stays")
        << u"-monochrome"_s << letter << u"64 32 gray 1 8 image"_s << letter << 0;
    // The versions scatter other dots.
    const QStringList dots = {u"black"_s, u"white"_s, u"black"_s, u"white"_s};
    QTest::newRow("colours become dots")
        << u"-monochrome"_s << colours << u"64 32 gray 1 8 image"_s << dots << 64;
    QTest::newRow("colours become dots of one bit")
        << u"-compress Group4 -monochrome"_s << colours << u"64 32 gray 1 1 ccitt"_s << dots << 64;
}

void ConvertOptionsTest::optionShapesThePage()
{
    QFETCH(QString, options);
    QFETCH(QStringList, source);
    QFETCH(QString, image);
    QFETCH(QStringList, picture);
    QFETCH(int, tolerance);
    const QTemporaryDir folder;
    QVERIFY(quarters(source, sourceSize).save(folder.filePath(u"x.ppm"_s)));

    const RunResult result = runBundled(
        u"convert"_s, options.split(u' ', Qt::SkipEmptyParts) + QStringList{u"x.ppm"_s, u"o.pdf"_s},
        folder.path());

    QCOMPARE(result.errors, QByteArray());
    const QString images = imagesIn(folder.path(), u"o.pdf"_s).join(u'\n');
    const QRegularExpression pattern(QRegularExpression::anchoredPattern(image));
    QVERIFY2(pattern.match(images).hasMatch(), qPrintable(images));
    const QImage shown = imageIn(folder.path(), u"o.pdf"_s);
    QCOMPARE(readPdf(folder.filePath(u"o.pdf"_s)).pageSizes, QList<QSizeF>{QSizeF(shown.size())});
    const QImage expected = quarters(picture, shown.size());
    const double apart = distance(shown, expected);
    QVERIFY2(tolerance == 0 ? shown == expected : apart <= tolerance,
             qPrintable(QString::number(apart)));
}

QTEST_GUILESS_MAIN(ConvertOptionsTest)
#include "convertoptions_test.moc"
