// What a file tells beside its pixels stays behind, whichever way its pages go into the PDF.

#include "toolbench.h"

#include <QColorSpace>
#include <QImage>
#include <QTest>

class ConvertPrivacy : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void nothingButThePictureTravels_data();
    void nothingButThePictureTravels();
    void colourProfileTravels_data();
    void colourProfileTravels();

private:
    QTemporaryDir m_folder;
};

namespace {

const QByteArray planted = "PLANTED";

QByteArray segment(char marker, const QByteArray &content)
{
    const auto size = static_cast<quint16>(content.size() + 2);
    return QByteArray("\xFF", 1) + marker + static_cast<char>(size >> 8) +
           static_cast<char>(size & 0xFF) + content;
}

// A little-endian EXIF block with one field, the maker's name.
QByteArray exif()
{
    return QByteArray("Exif\0\0II*\0\x08\0\0\0\x01\0\x0F\x01\x02\0\x0D\0\0\0\x1A\0\0\0\0\0\0\0",
                      32) +
           planted + QByteArray("-EXIF\0", 6);
}

QByteArray photoshop()
{
    const QByteArray iptc = QByteArray("\x1C\x02\x78\0\x0C", 5) + planted + "-IPTC";
    return QByteArray("Photoshop 3.0\0"
                      "8BIM\x04\x04\0\0\0\0\0",
                      25) +
           static_cast<char>(iptc.size()) + iptc + QByteArray(iptc.size() % 2, '\0');
}

QByteArray withSegments(const QByteArray &jpeg)
{
    const QByteArray xmp = QByteArray("http://ns.adobe.com/xap/1.0/\0", 29) + "<x:xmpmeta>" +
                           planted + "-XMP</x:xmpmeta>";
    return jpeg.left(2) + segment('\xE1', exif()) + segment('\xE1', xmp) +
           segment('\xED', photoshop()) + segment('\xFE', planted + "-COMMENT") +
           segment('\xE5', planted + "-OTHER") + jpeg.mid(2);
}

} // namespace

// The samples are the real tool's own, with everything that it writes into these formats.
void ConvertPrivacy::initTestCase()
{
    makeImage(m_folder.filePath("source.png"), {60, 40});
    const QString realTool = contentOf(bundleContents() + "/Resources/convert.tool").trimmed();
    const QStringList words = {"-set", "comment", planted, "-set", "label",     planted,
                               "-set", "Author",  planted, "-set", "exif:Make", planted};
    for (const char *name : {"source.jpg", "x.tif", "x.png", "x.gif", "x.ppm", "x.jp2", "x.webp"})
        QCOMPARE(runProgram(realTool, QStringList{"source.png"} + words + QStringList{name},
                            m_folder.path())
                     .status,
                 0);
    const QByteArray jpeg = withSegments(contentOf(m_folder.filePath("source.jpg")));
    writeContent(m_folder.filePath("x.jpg"), jpeg);
    for (const char *name : {"from-jpeg.tif", "from-jpeg.png", "from-jpeg.webp"})
        QCOMPARE(runProgram(realTool, {"x.jpg", name}, m_folder.path()).status, 0);
    for (const char *name : {"x.jpg", "x.tif", "x.png", "x.gif", "from-jpeg.tif"})
        QVERIFY2(contentOf(m_folder.filePath(name)).contains(planted), name);
}

void ConvertPrivacy::nothingButThePictureTravels_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("options");
    const QList<std::pair<const char *, QStringList>> ways = {
        {"as it is", {}},
        {"turned", {"-rotate", "90"}},
        {"fitted", {"-resize", "20x20"}},
        {"as JPEG", {"-compress", "JPEG"}},
        {"as JPEG 2000, turned", {"-rotate", "90", "-compress", "JPEG2000"}},
        {"as Zip", {"-compress", "zip"}},
        {"in Group 4, black and white", {"-compress", "Group4", "-monochrome"}},
    };
    for (const char *name : {"x.jpg", "x.tif", "x.png", "x.gif", "x.ppm", "x.jp2", "x.webp",
                             "from-jpeg.tif", "from-jpeg.png", "from-jpeg.webp"}) {
        for (const auto &[way, options] : ways)
            QTest::addRow("%s, %s", name, way) << QString(name) << options;
    }
}

void ConvertPrivacy::nothingButThePictureTravels()
{
    QFETCH(QString, name);
    QFETCH(QStringList, options);
    const RunResult result =
        runBundled("convert", options + QStringList{name, "o.pdf"}, m_folder.path());
    QCOMPARE(result.errors, QByteArray());
    QVERIFY(!contentOf(m_folder.filePath("o.pdf")).contains(planted));
    QCOMPARE(runProgram("/usr/bin/qpdf", {"--qdf", "--stream-data=uncompress", "o.pdf", "text.pdf"},
                        m_folder.path())
                 .status,
             0);
    const QByteArray text = contentOf(m_folder.filePath("text.pdf"));
    for (const QByteArray &word :
         {planted, QByteArray("Exif"), QByteArray("8BIM"), QByteArray("xmpmeta"),
          QByteArray("/Metadata"), QByteArray("/Thumb"), QByteArray("/Author")})
        QVERIFY2(!text.contains(word), word.constData());
}

void ConvertPrivacy::colourProfileTravels_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::newRow("copied") << QStringList{};
    QTest::newRow("converted") << QStringList{"-rotate", "90"};
}

void ConvertPrivacy::colourProfileTravels()
{
    QFETCH(QStringList, options);
    QImage image(40, 30, QImage::Format_RGB32);
    image.fill(Qt::red);
    image.setColorSpace(QColorSpace(QColorSpace::AdobeRgb));
    QVERIFY(image.save(m_folder.filePath("profile.jpg")));
    QCOMPARE(runBundled("convert", options + QStringList{"profile.jpg", "o.pdf"}, m_folder.path())
                 .errors,
             QByteArray());
    QVERIFY(contentOf(m_folder.filePath("o.pdf")).contains("/ICCBased"));
}

QTEST_GUILESS_MAIN(ConvertPrivacy)
#include "convertprivacy_test.moc"
