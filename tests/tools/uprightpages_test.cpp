// Pages that show the whole image, upright: orientations, canvases with an offset, typed angles.

#include "imagefiles.h"
#include "pdfpages.h"
#include "toolbench.h"

#include <QImage>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>
#include <QTransform>

using namespace Qt::StringLiterals;
using namespace imagefiles;

class UprightPagesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void orientationIsRespected_data();
    void orientationIsRespected();
    void unknownOrientationIsUpright_data();
    void unknownOrientationIsUpright();
    void offsetsDoNotMoveThePage_data();
    void offsetsDoNotMoveThePage();
    void framesAreWhole();
    void typedAnglesShowTheWholeImage_data();
    void typedAnglesShowTheWholeImage();

private:
    QString place(const QString &name) const { return m_folder.filePath(name); }
    QImage pageOf(const QStringList &words) const;
    void makeByRealTool(const QStringList &words) const;

    QTemporaryDir m_folder;
};

namespace {

constexpr QSize sourceSize(240, 160);

/// Black and white, or in colours; no two corners look alike.
QImage source(bool colours)
{
    QImage image(sourceSize, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.fillRect(0, 0, 105, 70, colours ? Qt::red : Qt::black);
    painter.fillRect(105, 0, 60, 30, colours ? Qt::blue : Qt::black);
    painter.fillRect(0, 70, 45, 50, colours ? Qt::green : Qt::black);
    return image;
}

/// What a viewer shows of `image` that is stored with this orientation.
QImage upright(const QImage &image, int orientation)
{
    const bool isMirrored =
        orientation == 2 || orientation == 4 || orientation == 5 || orientation == 7;
    constexpr int degrees[] = {0, 0, 180, 180, 270, 90, 90, 270};
    const QImage mirrored = isMirrored ? image.mirrored(true, false) : image;
    return mirrored.transformed(QTransform().rotate(degrees[orientation - 1]));
}

/// A chunk of a RIFF file.
QByteArray riffChunk(const QByteArray &type, const QByteArray &content)
{
    const auto size = static_cast<quint32>(content.size());
    QByteArray length;
    for (int byte = 0; byte < 4; ++byte)
        length += static_cast<char>(size >> (8 * byte));
    return type + length + content + QByteArray(content.size() % 2, '\0');
}

} // namespace

void UprightPagesTest::makeByRealTool(const QStringList &words) const
{
    // Without our policy, which writes PDFs only.
    const QStringList tool =
        QString::fromUtf8(contentOf(bundleContents() + u"/Resources/convert.tool"_s))
            .split(u'\n', Qt::SkipEmptyParts);
    const RunResult result = runProgram(tool.first(), tool.mid(1) + words, m_folder.path());
    QVERIFY2(result.status == 0, result.errors.constData());
}

QImage UprightPagesTest::pageOf(const QStringList &words) const
{
    const RunResult result =
        runBundled(u"convert"_s, words + QStringList{u"o.pdf"_s}, m_folder.path());
    if (result.status != 0)
        qWarning("%s", result.errors.constData());
    return result.status == 0 ? drawnPage(place(u"o.pdf"_s)) : QImage();
}

void UprightPagesTest::initTestCase()
{
    QVERIFY(source(true).save(place(u"colours.png"_s)));
    QVERIFY(source(false).save(place(u"letter.png"_s)));
    const QStringList density = {u"-density"_s, u"72"_s, u"-units"_s, u"PixelsPerInch"_s};
    const auto make = [&](const QString &from, const QStringList &options, const QString &name) {
        makeByRealTool(QStringList{from} + density + options + QStringList{name});
    };
    for (const QString &name : {u"x.bmp"_s, u"x.gif"_s, u"x.pcx"_s, u"x.png"_s, u"x.ppm"_s})
        make(u"colours.png"_s, {}, name);
    make(u"colours.png"_s, {u"-quality"_s, u"98"_s}, u"x.jpg"_s);
    make(u"colours.png"_s, {u"-compress"_s, u"LZW"_s}, u"x.tif"_s);
    make(u"letter.png"_s, {}, u"x.pbm"_s);
    make(u"letter.png"_s, {u"-monochrome"_s, u"-compress"_s, u"Group4"_s}, u"fax.tif"_s);
    make(u"colours.png"_s, {u"-define"_s, u"webp:lossless=true"_s}, u"x.webp"_s);
    // With the tag, and so that 1 stands in the file.
    for (int orientation = 1; orientation <= 8; ++orientation) {
        const QString number = QString::number(orientation);
        const QByteArray block = exifBlock({.orientation = orientation});
        const QByteArray jpeg = contentOf(place(u"x.jpg"_s));
        writeContent(place(number + u".jpg"_s),
                     jpeg.left(20) + exif({.orientation = orientation}) + jpeg.mid(20));
        const QByteArray png = contentOf(place(u"x.png"_s));
        writeContent(place(number + u".png"_s), png.left(33) + chunk("eXIf", block) + png.mid(33));
        const QByteArray webp = contentOf(place(u"x.webp"_s));
        const QByteArray size = QByteArray("\x08\0\0\0", 4) + char(sourceSize.width() - 1) +
                                QByteArray(2, '\0') + char(sourceSize.height() - 1) +
                                QByteArray(2, '\0');
        writeContent(place(number + u".webp"_s),
                     riffChunk("RIFF", "WEBP" + riffChunk("VP8X", size) + webp.mid(12) +
                                           riffChunk("EXIF", block)));
        make(u"colours.png"_s, {u"-compress"_s, u"LZW"_s, u"-orient"_s, u"TopLeft"_s},
             number + u".tif"_s);
        make(u"letter.png"_s,
             {u"-monochrome"_s, u"-compress"_s, u"Group4"_s, u"-orient"_s, u"TopLeft"_s},
             number + u"-fax.tif"_s);
        for (const QString &name : {number + u".tif"_s, number + u"-fax.tif"_s}) {
            QByteArray tiff = contentOf(place(name));
            const qsizetype tag = tiff.indexOf(QByteArray("\x12\x01\x03\0\1\0\0\0\1", 9));
            QVERIFY(tag > 0);
            tiff[tag + 8] = static_cast<char>(orientation);
            writeContent(place(name), tiff);
        }
    }
}

void UprightPagesTest::orientationIsRespected_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("orientation");
    QTest::addColumn<QStringList>("options");
    const QList<QStringList> every = {{},
                                      {u"-resize"_s, u"120x900"_s},
                                      {u"-rotate"_s, u"90"_s},
                                      {u"-compress"_s, u"LZW"_s},
                                      {u"-monochrome"_s}};
    for (int orientation = 1; orientation <= 8; ++orientation) {
        const auto row = [orientation](const QString &kind, const QStringList &options) {
            QTest::addRow("%d%s %s", orientation, qPrintable(kind), qPrintable(options.join(u' ')))
                << QString::number(orientation) + kind << orientation << options;
        };
        for (const QStringList &options : every)
            row(u".jpg"_s, options);
        for (const QString &kind : {u".png"_s, u".webp"_s, u".tif"_s, u"-fax.tif"_s})
            for (const QStringList &options : every.mid(0, 2))
                row(kind, options);
    }
}

void UprightPagesTest::orientationIsRespected()
{
    QFETCH(QString, name);
    QFETCH(int, orientation);
    QFETCH(QStringList, options);
    QImage expected = upright(source(!name.contains(u"fax"_s)), orientation);
    if (options.contains(u"-rotate"_s))
        expected = expected.transformed(QTransform().rotate(90));
    if (options.contains(u"-monochrome"_s) && !name.contains(u"fax"_s)) {
        QVERIFY(expected.save(place(u"upright.png"_s)));
        makeByRealTool({u"upright.png"_s, u"-monochrome"_s, u"upright.png"_s});
        expected = QImage(place(u"upright.png"_s));
    }
    const QImage page = pageOf(options + QStringList{name});
    if (options.contains(u"-resize"_s))
        QCOMPARE(page.width(), 120);
    else
        QCOMPARE(page.size(), expected.size());
    QCOMPARE(visibleDifference(page, expected), QString());
}

void UprightPagesTest::unknownOrientationIsUpright_data()
{
    QTest::addColumn<QByteArray>("exif");
    for (const int orientation : {0, 9, 255, 65535})
        QTest::addRow("%d", orientation) << exif({.orientation = orientation});
    QByteArray broken = exif({.orientation = 6});
    QTest::newRow("a directory beyond the end") << broken.replace(14, 4, big32(999));
}

void UprightPagesTest::unknownOrientationIsUpright()
{
    QFETCH(QByteArray, exif);
    const QByteArray jpeg = contentOf(place(u"x.jpg"_s));
    writeContent(place(u"odd.jpg"_s), jpeg.left(20) + exif + jpeg.mid(20));
    for (const QStringList &options : {QStringList{}, QStringList{u"-compress"_s, u"LZW"_s}})
        QCOMPARE(visibleDifference(pageOf(options + QStringList{u"odd.jpg"_s}), source(true)),
                 QString());
}

void UprightPagesTest::offsetsDoNotMoveThePage_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("options");
    for (const char *name : {"offset.tif", "offset.png"})
        for (const QStringList &options : {QStringList{}, QStringList{u"-compress"_s, u"LZW"_s},
                                           QStringList{u"-resize"_s, u"120x120"_s}})
            QTest::addRow("%s %s", name, qPrintable(options.join(u' '))) << name << options;
}

void UprightPagesTest::offsetsDoNotMoveThePage()
{
    QFETCH(QString, name);
    QFETCH(QStringList, options);
    makeByRealTool({u"colours.png"_s, u"-density"_s, u"72"_s, u"-units"_s, u"PixelsPerInch"_s,
                    u"-repage"_s, u"900x900+350+400"_s, name});
    const QImage page = pageOf(options + QStringList{name});
    QCOMPARE(page.size(), options.contains(u"120x120"_s) ? QSize(120, 80) : sourceSize);
    QCOMPARE(visibleDifference(page, source(true)), QString());
}

// A frame of an animation may hold only what changes.
void UprightPagesTest::framesAreWhole()
{
    makeByRealTool({u"colours.png"_s, u"("_s, u"-size"_s, u"100x60"_s, u"xc:black"_s, u"-repage"_s,
                    u"240x160+140+100"_s, u")"_s, u"part.gif"_s});
    QCOMPARE(runBundled(u"convert"_s, {u"part.gif"_s, u"o.pdf"_s}, m_folder.path()).errors,
             QByteArray());
    QImage second = source(true);
    QPainter(&second).fillRect(140, 100, 100, 60, Qt::black);
    QCOMPARE(visibleDifference(drawnPage(place(u"o.pdf"_s), 0), source(true)), QString());
    QCOMPARE(visibleDifference(drawnPage(place(u"o.pdf"_s), 1), second), QString());
}

void UprightPagesTest::typedAnglesShowTheWholeImage_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("options");
    for (const char *name : {"x.bmp", "x.gif", "x.jpg", "x.pbm", "x.pcx", "x.png", "x.ppm", "x.tif",
                             "fax.tif", "x.webp"}) {
        for (const char *angle : {"1", "3", "30", "45", "89.5", "-7", "359"})
            QTest::addRow("%s by %s", name, angle)
                << name << QStringList{u"-rotate"_s, QString::fromLatin1(angle)};
        for (const QStringList &options :
             {QStringList{u"-monochrome"_s}, QStringList{u"-compress"_s, u"Group4"_s},
              QStringList{u"-compress"_s, u"JPEG"_s}})
            QTest::addRow("%s by 30 %s", name, qPrintable(options.join(u' ')))
                << name << QStringList{u"-rotate"_s, u"30"_s} + options;
    }
}

void UprightPagesTest::typedAnglesShowTheWholeImage()
{
    QFETCH(QString, name);
    QFETCH(QStringList, options);
    const QImage page = pageOf(options + QStringList{name});
    // The real tool's picture of it, on white.
    makeByRealTool(
        QStringList{name, u"-background"_s, u"white"_s, u"-rotate"_s, options.at(1)} +
        (options.contains(u"-monochrome"_s) ? QStringList{u"-monochrome"_s} : QStringList{}) +
        QStringList{u"+repage"_s, u"-alpha"_s, u"off"_s, u"turned.png"_s});
    const QImage expected(place(u"turned.png"_s));
    QCOMPARE(page.size(), expected.size());
    QCOMPARE(visibleDifference(page, expected), QString());
    for (const QPoint corner :
         {QPoint(0, 0), QPoint(page.width() - 1, 0), QPoint(0, page.height() - 1),
          QPoint(page.width() - 1, page.height() - 1)}) {
        if (options.at(1) == u"30"_s || options.at(1) == u"45"_s)
            QVERIFY(page.pixelColor(corner).value() > 240);
    }
}

QTEST_GUILESS_MAIN(UprightPagesTest)
#include "uprightpages_test.moc"
