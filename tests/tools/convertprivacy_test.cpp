// Private data of an image stays out of the PDF, whether its pages are copied or converted.

#include "toolbench.h"

#include <QColorSpace>
#include <QImage>
#include <QTest>

using namespace Qt::StringLiterals;

class ConvertPrivacyTest : public QObject
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
void ConvertPrivacyTest::initTestCase()
{
    makeImage(m_folder.filePath(u"source.png"_s), {60, 40});
    const QString realTool =
        QString::fromUtf8(contentOf(bundleContents() + u"/Resources/convert.tool"_s)).trimmed();
    const QString text = QString::fromUtf8(planted);
    const QStringList words = {u"-set"_s, u"comment"_s, text, u"-set"_s, u"label"_s,     text,
                               u"-set"_s, u"Author"_s,  text, u"-set"_s, u"exif:Make"_s, text};
    for (const QString &name :
         {u"source.jpg"_s, u"x.tif"_s, u"x.png"_s, u"x.gif"_s, u"x.ppm"_s, u"x.jp2"_s, u"x.webp"_s})
        QCOMPARE(runProgram(realTool, QStringList{u"source.png"_s} + words + QStringList{name},
                            m_folder.path())
                     .status,
                 0);
    const QByteArray jpeg = withSegments(contentOf(m_folder.filePath(u"source.jpg"_s)));
    writeContent(m_folder.filePath(u"x.jpg"_s), jpeg);
    for (const QString &name : {u"from-jpeg.tif"_s, u"from-jpeg.png"_s, u"from-jpeg.webp"_s})
        QCOMPARE(runProgram(realTool, {u"x.jpg"_s, name}, m_folder.path()).status, 0);
    for (const QString &name : {u"x.jpg"_s, u"x.tif"_s, u"x.png"_s, u"x.gif"_s, u"from-jpeg.tif"_s})
        QVERIFY2(contentOf(m_folder.filePath(name)).contains(planted), qPrintable(name));
}

void ConvertPrivacyTest::nothingButThePictureTravels_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("options");
    const QList<std::pair<const char *, QStringList>> ways = {
        {"as it is", {}},
        {"turned", {u"-rotate"_s, u"90"_s}},
        {"fitted", {u"-resize"_s, u"20x20"_s}},
        {"as JPEG", {u"-compress"_s, u"JPEG"_s}},
        {"as JPEG 2000, turned", {u"-rotate"_s, u"90"_s, u"-compress"_s, u"JPEG2000"_s}},
        {"as Zip", {u"-compress"_s, u"zip"_s}},
        {"in Group 4, black and white", {u"-compress"_s, u"Group4"_s, u"-monochrome"_s}},
    };
    for (const char *name : {"x.jpg", "x.tif", "x.png", "x.gif", "x.ppm", "x.jp2", "x.webp",
                             "from-jpeg.tif", "from-jpeg.png", "from-jpeg.webp"}) {
        for (const auto &[way, options] : ways)
            QTest::addRow("%s, %s", name, way) << name << options;
    }
}

void ConvertPrivacyTest::nothingButThePictureTravels()
{
    QFETCH(QString, name);
    QFETCH(QStringList, options);
    const RunResult result =
        runBundled(u"convert"_s, options + QStringList{name, u"o.pdf"_s}, m_folder.path());
    QCOMPARE(result.errors, QByteArray());
    QVERIFY(!contentOf(m_folder.filePath(u"o.pdf"_s)).contains(planted));
    QCOMPARE(runProgram(u"/usr/bin/qpdf"_s,
                        {u"--qdf"_s, u"--stream-data=uncompress"_s, u"o.pdf"_s, u"text.pdf"_s},
                        m_folder.path())
                 .status,
             0);
    const QByteArray text = contentOf(m_folder.filePath(u"text.pdf"_s));
    for (const QByteArray &word :
         {planted, QByteArray("Exif"), QByteArray("8BIM"), QByteArray("xmpmeta"),
          QByteArray("/Metadata"), QByteArray("/Thumb"), QByteArray("/Author")})
        QVERIFY2(!text.contains(word), word.constData());
}

void ConvertPrivacyTest::colourProfileTravels_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::newRow("copied") << QStringList{};
    QTest::newRow("converted") << QStringList{u"-rotate"_s, u"90"_s};
}

void ConvertPrivacyTest::colourProfileTravels()
{
    QFETCH(QStringList, options);
    QImage image(40, 30, QImage::Format_RGB32);
    image.fill(Qt::red);
    image.setColorSpace(QColorSpace(QColorSpace::AdobeRgb));
    QVERIFY(image.save(m_folder.filePath(u"profile.jpg"_s)));
    QCOMPARE(runBundled(u"convert"_s, options + QStringList{u"profile.jpg"_s, u"o.pdf"_s},
                        m_folder.path())
                 .errors,
             QByteArray());
    QVERIFY(contentOf(m_folder.filePath(u"o.pdf"_s)).contains("/ICCBased"));
}

QTEST_GUILESS_MAIN(ConvertPrivacyTest)
#include "convertprivacy_test.moc"
