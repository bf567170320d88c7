// The program's pictures as compiled in: formats, sizes, sharpness, transparency, alt texts of
// sources.

#include <QBitmap>
#include <QDir>
#include <QFile>
#include <QIcon>
#include <QImageReader>
#include <QPixmap>
#include <QTest>
#include <QXmlStreamReader>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

using Sizes = QList<QSize>;

namespace {

const QString icons = u":/iconoption/icons/"_s;

Sizes squares(const QList<int> &sides)
{
    Sizes sizes;
    for (const int side : sides)
        sizes << QSize(side, side);
    return sizes;
}

/// The sizes of all images in a file, in its order; as a side effect verifies that each decodes.
Sizes imageSizes(const QString &file)
{
    Sizes sizes;
    QImageReader reader(file);
    do {
        sizes << reader.read().size();
    } while (reader.jumpToNextImage());
    return sizes;
}

/// Relative luminance of an sRGB colour, 0 to 1, as WCAG 2.1 defines it.
double luminance(QRgb colour)
{
    const auto linear = [](int channel) {
        const double value = channel / 255.0;
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) +
           0.0722 * linear(qBlue(colour));
}

double darkest(const QImage &image)
{
    double result = 1;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            result = std::min(result, luminance(image.pixel(x, y)));
    return result;
}

/// What an SVG source holds that would make its rendering depend on the machine, or "".
QString foreignPart(QXmlStreamReader &svg)
{
    static const QStringList refused{u"text"_s, u"image"_s, u"foreignObject"_s, u"script"_s,
                                     u"style"_s};
    while (!svg.atEnd()) {
        if (svg.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (refused.contains(svg.name()))
            return svg.name().toString();
        for (const QXmlStreamAttribute &attribute : svg.attributes())
            if (attribute.name() == QLatin1String("href"))
                return u"href "_s + attribute.value().toString();
    }
    return svg.errorString();
}

} // namespace

class TestArtworkTest : public QObject
{
    Q_OBJECT

private slots:
    void holdsItsSizes_data();
    void holdsItsSizes();
    void holdsNothingElse();
    void pixmapFitsItsLabel_data();
    void pixmapFitsItsLabel();
    void iconIsSharpAtTheSizeShown_data();
    void iconIsSharpAtTheSizeShown();
    void currentPageHasAPictureOfItsOwn_data();
    void currentPageHasAPictureOfItsOwn();
    void coversItsWholeArea_data();
    void coversItsWholeArea();
    void blackTextIsReadOnTheBackground();
    void sourceDependsOnNothing_data();
    void sourceDependsOnNothing();
};

void TestArtworkTest::holdsItsSizes_data()
{
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<Sizes>("sizes");

    const auto picture = [](const char *name, const QByteArray &format, const Sizes &sizes) {
        QTest::newRow(name) << format << sizes;
    };
    const auto png = [&](const QByteArray &name, QSize size) {
        picture((name + ".png").constData(), "png", {size});
        picture((name + "@2x.png").constData(), "png", {size * 2});
    };
    for (const char *name : {"inout3", "appearance1", "description1", "security1"}) {
        png(name, {70, 75});
        png(QByteArray(name) + "-current", {70, 75});
    }
    png("about4", {70, 75});
    png("convert3", {60, 64});
    png("whle", {151, 151});
    picture("stock-ved.jpg", "jpeg", {{1104, 968}});

    picture("picturelog.ico", "ico", squares({256, 128, 64, 48, 32, 24, 16}));
    for (const char *name : {"document_add.ico", "document_delete.ico", "trashcan_empty(1).ico"})
        picture(name, "ico", squares({24, 16, 32, 48, 64, 128, 256}));
    picture("folder.ico", "ico", squares({28, 16, 24, 32, 48, 56, 64, 128, 256}));
    for (const char *name :
         {"photos.ico", "configuration_settings.ico", "shield.ico", "optionpic(4).ico"})
        picture(name, "ico", squares({32, 16, 24, 48, 64, 128, 256}));
}

void TestArtworkTest::holdsItsSizes()
{
    QFETCH(const QByteArray, format);
    QFETCH(const Sizes, sizes);
    const QString file = icons + QString::fromUtf8(QTest::currentDataTag());

    QImageReader reader(file);
    reader.setAutoDetectImageFormat(true);
    reader.setDecideFormatFromContent(true);
    QCOMPARE(reader.format(), format);
    QCOMPARE(imageSizes(file), sizes);
}

void TestArtworkTest::holdsNothingElse()
{
    // 11 PNG pictures with their twins, the background and nine icon files.
    QCOMPARE(QDir(icons).entryList().size(), 11 * 2 + 1 + 9);
}

void TestArtworkTest::pixmapFitsItsLabel_data()
{
    QTest::addColumn<QSize>("label");

    QTest::newRow("photos.ico") << QSize(41, 51);
    QTest::newRow("configuration_settings.ico") << QSize(41, 51);
    QTest::newRow("shield.ico") << QSize(41, 41);
}

void TestArtworkTest::pixmapFitsItsLabel()
{
    QFETCH(const QSize, label);
    const QPixmap pixmap(icons + QString::fromUtf8(QTest::currentDataTag()));

    QCOMPARE(pixmap.size(), QSize(32, 32));
    QCOMPARE(pixmap.size().boundedTo(label), pixmap.size());
}

void TestArtworkTest::iconIsSharpAtTheSizeShown_data()
{
    QTest::addColumn<QSize>("shown");

    for (const char *name : {"document_add.ico", "document_delete.ico", "trashcan_empty(1).ico"})
        QTest::newRow(name) << QSize(24, 24);
    QTest::newRow("folder.ico") << QSize(28, 28);
    for (const char *name : {"photos.ico", "configuration_settings.ico", "shield.ico"})
        QTest::newRow(name) << QSize(32, 32);
}

void TestArtworkTest::iconIsSharpAtTheSizeShown()
{
    QFETCH(const QSize, shown);
    const QString file = icons + QString::fromUtf8(QTest::currentDataTag());

    const Sizes available = QIcon(file).availableSizes();
    QVERIFY(available.contains(shown));
    QVERIFY(available.contains(shown * 2));
}

void TestArtworkTest::currentPageHasAPictureOfItsOwn_data()
{
    QTest::addColumn<QString>("name");

    for (const char *name : {"inout3", "appearance1", "description1", "security1"})
        QTest::newRow(name) << QString::fromUtf8(name);
}

void TestArtworkTest::currentPageHasAPictureOfItsOwn()
{
    QFETCH(const QString, name);
    QIcon icon(icons + name + u".png"_s);
    icon.addFile(icons + name + u"-current.png"_s, QSize(), QIcon::Disabled);

    const QSize shown(70, 75);
    const QImage current = QPixmap(icons + name + u"-current.png"_s).toImage();
    QCOMPARE(icon.pixmap(shown, 1, QIcon::Disabled).toImage(), current);
    QVERIFY(icon.pixmap(shown, 1, QIcon::Normal).toImage() != current);
}

void TestArtworkTest::coversItsWholeArea_data()
{
    QTest::addColumn<QString>("file");

    for (const char *name : {"whle.png", "whle@2x.png", "stock-ved.jpg"})
        QTest::newRow(name) << icons + QString::fromUtf8(name);
}

/// Painted as a background, a see-through pixel would cut a hole: the preview's frame is shaped by
/// its picture's mask.
void TestArtworkTest::coversItsWholeArea()
{
    QFETCH(const QString, file);
    const QPixmap pixmap(file);

    QVERIFY(!pixmap.isNull());
    QVERIFY(!pixmap.hasAlpha());
    QVERIFY(pixmap.mask().isNull());
}

void TestArtworkTest::blackTextIsReadOnTheBackground()
{
    const QImage background(icons + u"stock-ved.jpg"_s);
    QVERIFY(!background.isNull());
    // WCAG 2.1 asks 7:1 for its highest level; black on white has 21:1.
    QVERIFY((darkest(background) + 0.05) / 0.05 > 16);
}

void TestArtworkTest::sourceDependsOnNothing_data()
{
    QTest::addColumn<QString>("file");

    const QDir sources(QStringLiteral(ARTWORK_SOURCES));
    for (const QString &name : sources.entryList({u"*.svg"_s}))
        QTest::newRow(qPrintable(name)) << sources.filePath(name);
}

void TestArtworkTest::sourceDependsOnNothing()
{
    QFETCH(const QString, file);
    QFile source(file);
    QVERIFY(source.open(QIODevice::ReadOnly));
    QXmlStreamReader svg(&source);

    QCOMPARE(foreignPart(svg), QString());
}

QTEST_MAIN(TestArtworkTest)
#include "artwork_test.moc"
