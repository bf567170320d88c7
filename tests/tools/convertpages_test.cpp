// How the pages of a call are made and joined: by copying, by several runs of the real tool, or by
// both, in the order of the images.

#include "pdffacts.h"
#include "toolbench.h"

#include <QDir>
#include <QTest>

class ConvertPages : public QObject
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
    void warningsOfASuccessAreLogged();
    void informationIsTheSame_data();
    void informationIsTheSame();
    void shrunkJpegHasTheRealSize_data();
    void shrunkJpegHasTheRealSize();

private:
    QString place(const QString &name) const { return m_folder.filePath(name); }
    RunResult makeReal(const QStringList &words) const;
    RunResult convert(const QStringList &words, const Variables &variables = {}) const;

    QTemporaryDir m_folder;
};

RunResult ConvertPages::makeReal(const QStringList &words) const
{
    const QString realTool = contentOf(bundleContents() + "/Resources/convert.tool").trimmed();
    return runProgram(realTool, words, m_folder.path());
}

RunResult ConvertPages::convert(const QStringList &words, const Variables &variables) const
{
    return runBundled("convert", words + QStringList{"o.pdf"}, m_folder.path(), variables);
}

// Each image has a width of its own, by which its page is known.
void ConvertPages::initTestCase()
{
    int width = 11;
    for (const char *name :
         {"1.bmp", "2.gif", "3.jpg", "4.pbm", "5.pcx", "6.png", "7.ppm", "8.tif"}) {
        makeImage(place("source.png"), {width++, 10});
        QCOMPARE(makeReal({"source.png", "-density", "72", "-units", "PixelsPerInch", name}).status,
                 0);
    }
    QCOMPARE(makeReal({"1.bmp", "2.gif", "3.jpg", "-density", "72", "-units", "PixelsPerInch",
                       "several.tif"})
                 .status,
             0);
    QCOMPARE(makeReal({"1.bmp", "-monochrome", "2.gif", "-compress", "Group4", "-density", "72",
                       "-units", "PixelsPerInch", "faxes.tif"})
                 .status,
             0);
    QCOMPARE(makeReal({"2.gif", "3.jpg", "-repage", "0x0+0+0", "several.gif"}).status, 0);
}

// qpdf finds no fault in any PDF that was made here.
void ConvertPages::cleanup()
{
    if (!QFile::exists(place("o.pdf")))
        return;
    const RunResult check = runProgram("/usr/bin/qpdf", {"--check", "o.pdf"}, m_folder.path());
    QVERIFY2(check.status == 0, (check.output + check.errors).constData());
    QFile::remove(place("o.pdf"));
}

void ConvertPages::everyFormatMergesInOrder()
{
    const QStringList names = {"8.tif", "3.jpg", "1.bmp", "6.png", "2.gif",
                               "5.pcx", "4.pbm", "7.ppm", "3.jpg"};
    QCOMPARE(convert(names).errors, QByteArray());
    const PdfFacts facts = readPdf(place("o.pdf"));
    QCOMPARE(facts.pages, names.size());
    for (qsizetype page = 0; page < names.size(); ++page) {
        QCOMPARE(convert({names.at(page)}).errors, QByteArray());
        QCOMPARE(facts.pageSizes.at(page), readPdf(place("o.pdf")).pageSizes.at(0));
    }
}

void ConvertPages::severalImagesOfAFileStayInPlace_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QList<int>>("widths");
    const QStringList turned = {"-rotate", "180"};
    QTest::newRow("a TIFF file among others")
        << QStringList{} << QStringList{"several.tif", "3.jpg", "several.tif"}
        << QList<int>{11, 12, 13, 13, 11, 12, 13};
    QTest::newRow("a turned TIFF file")
        << turned << QStringList{"3.jpg", "several.tif"} << QList<int>{13, 11, 12, 13};
    QTest::newRow("a copied TIFF file")
        << QStringList{} << QStringList{"faxes.tif", "3.jpg"} << QList<int>{11, 12, 13};
    // The real tool gives each image of an animation the size of the whole.
    QTest::newRow("an animation") << QStringList{} << QStringList{"3.jpg", "several.gif", "3.jpg"}
                                  << QList<int>{13, 12, 12, 13};
    QTest::newRow("a turned animation")
        << turned << QStringList{"several.gif", "3.jpg"} << QList<int>{12, 12, 13};
}

void ConvertPages::severalImagesOfAFileStayInPlace()
{
    QFETCH(QStringList, options);
    QFETCH(QStringList, names);
    QFETCH(QList<int>, widths);
    QCOMPARE(convert(options + names).errors, QByteArray());
    QList<int> found;
    for (const QSizeF &size : readPdf(place("o.pdf")).pageSizes)
        found.append(qRound(size.width()));
    QCOMPARE(found, widths);
}

void ConvertPages::twoThousandImages()
{
    QStringList names;
    for (int i = 0; i < 1000; ++i)
        names << "3.jpg"
              << "6.png";
    QCOMPARE(convert(names << "1.bmp").errors, QByteArray());
    QCOMPARE(readPdf(place("o.pdf")).pages, 2001);
}

void ConvertPages::oneDamagedAmongMany_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("kept");
    for (const char *name : {"3.jpg", "6.png", "several.tif", "7.ppm", "2.gif"}) {
        for (const QStringList &options : {QStringList{}, QStringList{"-rotate", "90"}})
            QTest::addRow("%s%s", name, options.isEmpty() ? "" : ", turned")
                << options << QString(name) << 60;
    }
}

void ConvertPages::oneDamagedAmongMany()
{
    QFETCH(QStringList, options);
    QFETCH(QString, name);
    QFETCH(int, kept);
    const QByteArray whole = contentOf(place(name));
    const QString damaged = "damaged." + name.section('.', 1);
    writeContent(place(damaged), whole.left(whole.size() * kept / 100));
    const QStringList names = {"1.bmp", "3.jpg", damaged, "6.png", "7.ppm", "8.tif"};
    const RunResult result = convert(options + names);
    QCOMPARE(result.status, 1);
    QVERIFY2(result.errors.contains(damaged.toUtf8()), result.errors.constData());
    QVERIFY(!QFile::exists(place("o.pdf")));
    QVERIFY(
        QDir(m_folder.path()).entryList({".tessaro*"}, QDir::AllEntries | QDir::Hidden).isEmpty());
}

// A tag that nobody knows is no reason to refuse an image.
void ConvertPages::warningsOfASuccessAreLogged()
{
    QByteArray tiff = contentOf(place("8.tif"));
    const qsizetype software = tiff.indexOf(QByteArray("\x12\x01\x03\0", 4));
    QVERIFY(software > 0);
    tiff.replace(software, 2, QByteArray("\x0F\xFD", 2));
    writeContent(place("strange.tif"), tiff);
    const RunResult result = convert({"strange.tif"}, {{"TESSARO_TOOL_LOG", place("log")}});
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(readPdf(place("o.pdf")).pages, 1);
    const QByteArray log = contentOf(place("log"));
    QVERIFY2(log.contains("exit status 0") && log.contains("strange.tif"), log.constData());
    QVERIFY2(log.contains("Unknown field"), log.constData());
}

void ConvertPages::informationIsTheSame_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"3.jpg", "6.png", "faxes.tif", "1.bmp"})
        QTest::newRow(name) << QString(name);
}

void ConvertPages::informationIsTheSame()
{
    QFETCH(QString, name);
    QCOMPARE(convert({name}).errors, QByteArray());
    const QByteArray text = contentOf(place("o.pdf"));
    QVERIFY(text.contains("/Producer (Tessaro Image to PDF Converter "));
    QVERIFY(text.contains("/Title (o)"));
    QVERIFY(text.contains("/CreationDate (D:") && text.contains("/ModDate (D:"));
    QVERIFY(!text.contains("/Author") && !text.toLower().contains("magick"));
}

void ConvertPages::shrunkJpegHasTheRealSize_data()
{
    QTest::addColumn<QSize>("size");
    for (const QSize size : {QSize(2480, 3508), QSize(3508, 2480), QSize(1999, 1501),
                             QSize(2381, 811), QSize(4001, 17), QSize(333, 2222)})
        QTest::addRow("%dx%d", size.width(), size.height()) << size;
}

// The page of a JPEG image is as large as that of the same pixels in another format.
void ConvertPages::shrunkJpegHasTheRealSize()
{
    QFETCH(QSize, size);
    makeImage(place("large.jpg"), size);
    QCOMPARE(makeReal({"large.jpg", "+set", "density", "large.ppm"}).status, 0);
    const QStringList options = {"-resize", "297x421"};
    QList<QSizeF> sizes;
    for (const char *name : {"large.jpg", "large.ppm"}) {
        QCOMPARE(convert(options + QStringList{name}).errors, QByteArray());
        sizes += readPdf(place("o.pdf")).pageSizes;
    }
    const double density = makeReal({"large.jpg", "-format", "%x", "info:"}).output.toDouble();
    QCOMPARE(sizes.at(0).width() * std::max(density, 72.0) / 72, sizes.at(1).width());
}

QTEST_GUILESS_MAIN(ConvertPages)
#include "convertpages_test.moc"
