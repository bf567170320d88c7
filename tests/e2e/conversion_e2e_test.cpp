// Real images through the real window and the real tools; the PDFs are read back.

#include "files.h"
#include "pdffacts.h"
#include "pdfpages.h"
#include "pdfpictures.h"
#include "startup.h"
#include "windowdriver.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QProgressBar>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

constexpr int runTimeout = 120000; // ms

class ConversionE2eTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void everyFormatBecomesAPdf_data();
    void everyFormatBecomesAPdf();
    void mergedPagesStandInRowOrder();
    void everyCompressionMakesAReadablePdf_data();
    void everyCompressionMakesAReadablePdf();
    void pageSizeAndRotationShapeThePage_data();
    void pageSizeAndRotationShapeThePage();
    void securityReachesThePdf_data();
    void securityReachesThePdf();
    void descriptionArrivesAsTyped();
    void oddNamesWork_data();
    void oddNamesWork();
    void unreadableImageIsSkippedOneByOne();
    void mergeWithAnUnreadableImageMakesNoPdf();
    void passwordWithABlankLosesThePdf();
    void passwordWithADoubleQuoteIsAnotherPhrase_data();
    void passwordWithADoubleQuoteIsAnotherPhrase();
    void intermediateFileTakesAnotherImagesName_data();
    void intermediateFileTakesAnotherImagesName();
    void olderPdfSurvivesAFailedConversion();

private:
    QString sample(const QString &name) const { return QStringLiteral(SAMPLES "/") + name; }
    QString output(const QString &name) const { return folder->filePath(u"out/"_s + name); }
    QString makePlainImage(const QString &name) const;
    QStringList outputFiles() const;
    void convert(const QStringList &images);

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<WindowDriver> driver;
};

void ConversionE2eTest::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(folder->path()).mkpath(u"out"_s));
    QVERIFY(QDir(folder->path()).mkpath(u"in"_s));
    driver = std::make_unique<WindowDriver>();
    QVERIFY(driver->show());
    QVERIFY(driver->type("outputfolderEdit", output({})));
}

void ConversionE2eTest::cleanup()
{
    driver.reset();
}

QString ConversionE2eTest::makePlainImage(const QString &name) const
{
    QString path = folder->filePath(u"in/"_s + name);
    if (!plainImage({40, 30}).save(path, "PNG"))
        qFatal("cannot write %s", qPrintable(path));
    return path;
}

QStringList ConversionE2eTest::outputFiles() const
{
    return QDir(output({}))
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
}

void ConversionE2eTest::convert(const QStringList &images)
{
    QVERIFY(driver->openFiles(images));
    QVERIFY(driver->convert(runTimeout));
}

void ConversionE2eTest::everyFormatBecomesAPdf_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"harbour.bmp", "garden.gif", "beach.jpg", "letter.pbm", "market.pcx",
                             "window.png", "meadow.ppm", "receipt.tif"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void ConversionE2eTest::everyFormatBecomesAPdf()
{
    QFETCH(QString, name);
    convert({sample(name)});
    const QString pdf = QFileInfo(name).baseName() + u".pdf"_s;
    QCOMPARE(outputFiles(), QStringList(pdf));
    QCOMPARE(readPdf(output(pdf)).pages, 1);
    QCOMPARE(visibleDifference(drawnPage(output(pdf)), QImage(sample(name))), QString());
}

void ConversionE2eTest::mergedPagesStandInRowOrder()
{
    QVERIFY(driver->tick("checkBox_joinpdf"));
    const QStringList images = {u"letter.pbm"_s, u"harbour.bmp"_s, u"beach.jpg"_s};
    convert({sample(images[0]), sample(images[1]), sample(images[2])});
    QCOMPARE(outputFiles(), QStringList(u"letter.pdf"_s));
    QCOMPARE(readPdf(output(u"letter.pdf"_s)).pages, images.size());
    for (int page = 0; page < images.size(); ++page)
        QCOMPARE(visibleDifference(drawnPage(output(u"letter.pdf"_s), page),
                                   QImage(sample(images[page]))),
                 QString());
}

void ConversionE2eTest::everyCompressionMakesAReadablePdf_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("image");
    QTest::addColumn<QString>("filter");
    // ImageMagick 6.9.11 and 7.1 pack by run lengths where a PDF or the image allows no other way.
    const QStringList filters{u"/DCTDecode"_s,       u"/ASCII85Decode"_s,   u"/RunLengthDecode"_s,
                              u"/RunLengthDecode"_s, u"/RunLengthDecode"_s, u"/DCTDecode"_s,
                              u"/JPXDecode"_s,       u"/RunLengthDecode"_s, u"/LZWDecode"_s,
                              u"/RunLengthDecode"_s, u"/FlateDecode"_s};
    for (int index = 0; index < filters.size(); ++index)
        QTest::addRow("compression %d", index) << index << u"beach.jpg"_s << filters[index];
    for (const int index : {3, 4}) {
        QTest::addRow("compression %d in black and white", index)
            << index << u"letter.pbm"_s << u"/CCITTFaxDecode"_s;
    }
}

void ConversionE2eTest::everyCompressionMakesAReadablePdf()
{
    QFETCH(int, index);
    QFETCH(QString, image);
    QFETCH(QString, filter);
    QVERIFY(driver->click("pushButton_ImageSetting"));
    QVERIFY(driver->choose("comboBox_compresstype", index));
    QVERIFY(driver->click("pushButton_Inout"));
    convert({sample(image)});
    const QString pdf = output(QFileInfo(image).baseName() + u".pdf"_s);
    const QSizeF size = QImage(sample(image)).size();
    QCOMPARE(readPdf(pdf).pageSizes, QList<QSizeF>{size});
    QCOMPARE(imageFilters(pdf), QStringList{filter});
    QCOMPARE(visibleDifference(drawnPage(pdf), QImage(sample(image))), QString());
}

void ConversionE2eTest::pageSizeAndRotationShapeThePage_data()
{
    QTest::addColumn<int>("pageSize");
    QTest::addColumn<int>("rotation");
    QTest::addColumn<bool>("monochrome");
    QTest::addColumn<QSizeF>("page");
    QTest::addColumn<QString>("mark");
    QTest::newRow("A4 scales the image up to its box")
        << 5 << 0 << false << QSizeF(595, 446) << u"upper left"_s;
    QTest::newRow("A9 is smaller, and black and white")
        << 10 << 0 << true << QSizeF(105, 79) << u"upper left"_s;
    QTest::newRow("Ledger is the landscape box")
        << 16 << 0 << false << QSizeF(1056, 792) << u"upper left"_s;
    QTest::newRow("a quarter turn swaps the sides")
        << 0 << 1 << false << QSizeF(30, 40) << u"upper right"_s;
    QTest::newRow("half a turn keeps them")
        << 0 << 2 << false << QSizeF(40, 30) << u"lower right"_s;
    QTest::newRow("the page size counts before the turn")
        << 5 << 3 << false << QSizeF(446, 595) << u"lower left"_s;
}

void ConversionE2eTest::pageSizeAndRotationShapeThePage()
{
    QFETCH(int, pageSize);
    QFETCH(int, rotation);
    QFETCH(bool, monochrome);
    QFETCH(QSizeF, page);
    QFETCH(QString, mark);
    QVERIFY(driver->click("pushButton_ImageSetting"));
    QVERIFY(driver->choose("comboBox_pagesize", pageSize));
    QVERIFY(driver->choose("comboBox_rotate", rotation));
    QVERIFY(driver->tick("checkBox_monochrome", monochrome));
    QVERIFY(driver->click("pushButton_Inout"));
    const QString image = makePlainImage(u"a.png"_s);
    QVERIFY(markedImage().save(image));
    convert({image});
    const QSizeF result = readPdf(output(u"a.pdf"_s)).pageSizes.value(0);
    QVERIFY2(qAbs(result.width() - page.width()) <= 1.0 &&
                 qAbs(result.height() - page.height()) <= 1.0,
             qPrintable(u"%1 x %2"_s.arg(result.width()).arg(result.height())));
    const QImage shown = drawnPage(output(u"a.pdf"_s));
    QCOMPARE(lightestQuarter(shown), mark);
    const int coloured = colouredPixels(shown);
    QVERIFY2(monochrome ? coloured < 5 : coloured > 60, qPrintable(QString::number(coloured)));
}

void ConversionE2eTest::securityReachesThePdf_data()
{
    QTest::addColumn<QString>("owner");
    QTest::addColumn<QString>("user");
    QTest::addColumn<QString>("box");
    QTest::addColumn<QString>("granted");
    QTest::newRow("printing") << u"o"_s << u"u"_s << u"checkBox_allowprint"_s << u"print"_s;
    QTest::newRow("document assembly grants modifying")
        << u"o"_s << u"u"_s << u"checkBox_allowmodify"_s << u"modify"_s;
    QTest::newRow("content copying") << u"o"_s << u"u"_s << u"checkBox_allowcopy"_s << u"copy"_s;
    QTest::newRow("commenting grants annotations")
        << u"o"_s << u"u"_s << u"checkBox_allowannotation"_s << u"annotate"_s;
    QTest::newRow("a user password alone")
        << u""_s << u"u"_s << u"checkBox_allowprint"_s << u"print"_s;
}

void ConversionE2eTest::securityReachesThePdf()
{
    QFETCH(QString, owner);
    QFETCH(QString, user);
    QFETCH(QString, box);
    QFETCH(QString, granted);
    QVERIFY(driver->click("pushButton_Security"));
    QVERIFY(driver->type("lineEdit_ownerpwd", owner));
    QVERIFY(driver->type("lineEdit_userpwd", user));
    QVERIFY(driver->tick(qPrintable(box)));
    QVERIFY(driver->click("pushButton_Inout"));
    convert({makePlainImage(u"a.png"_s)});
    QVERIFY(readPdf(output(u"a.pdf"_s)).needsPassword);
    const PdfFacts facts = readPdf(output(u"a.pdf"_s), user.toUtf8());
    QVERIFY(facts.encrypted);
    QCOMPARE(facts.pages, 1);
    QCOMPARE(facts.mayPrint, granted == QLatin1String("print"));
    QCOMPARE(facts.mayModify, granted == QLatin1String("modify"));
    QCOMPARE(facts.mayCopy, granted == QLatin1String("copy"));
    QCOMPARE(facts.mayAnnotate, granted == QLatin1String("annotate"));
}

void ConversionE2eTest::descriptionArrivesAsTyped()
{
    QVERIFY(driver->click("pushButton_PDFSetting"));
    const QString title = u"  M\u00fcller & S\u00f6hne \u20ac \U0001F600  "_s;
    QVERIFY(driver->type("lineEdit_title", title));
    QVERIFY(driver->type("lineEdit_keywords", u"&amp; <b>"_s));
    QVERIFY(driver->click("pushButton_Inout"));
    convert({makePlainImage(u"a.png"_s)});
    const PdfFacts facts = readPdf(output(u"a.pdf"_s));
    QCOMPARE(facts.title, title);
    QCOMPARE(facts.subject, QString());
    QCOMPARE(facts.keywords, u"&amp; <b>"_s);
    QCOMPARE(facts.author, QString());
    QCOMPARE(outputFiles(), QStringList(u"a.pdf"_s));
}

void ConversionE2eTest::oddNamesWork_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("blanks") << "my holiday  photo.png";
    QTest::newRow("letters beyond ASCII") << u"\u00dcbersicht \u65e5\u672c.png"_s;
    QTest::newRow("leading dash") << "-resize.png";
    QTest::newRow("percent") << "100%d %s.png";
    QTest::newRow("brackets") << "scan[0].png";
    QTest::newRow("colon") << "png:a.png";
    QTest::newRow("at sign") << "@list.png";
    QTest::newRow("200 characters") << QString(196, QLatin1Char('x')) + u".png"_s;
    QTest::newRow("no extension") << "scan";
}

void ConversionE2eTest::oddNamesWork()
{
    QFETCH(QString, name);
    QVERIFY(driver->click("pushButton_PDFSetting"));
    QVERIFY(driver->type("lineEdit_title", u"T"_s));
    QVERIFY(driver->click("pushButton_Inout"));
    convert({makePlainImage(name)});
    const QString pdf = QFileInfo(name).baseName() + u".pdf"_s;
    QCOMPARE(outputFiles(), QStringList(pdf));
    QCOMPARE(readPdf(output(pdf)).title, u"T"_s);
}

void ConversionE2eTest::unreadableImageIsSkippedOneByOne()
{
    convert({makePlainImage(u"a.png"_s), writeContent(folder->filePath(u"in/b.png"_s), "no image"),
             makePlainImage(u"c.png"_s)});
    QCOMPARE(outputFiles(), QStringList({u"a.pdf"_s, u"c.pdf"_s}));
    QCOMPARE(driver->find<QProgressBar>("progressBar")->value(), 0);
}

void ConversionE2eTest::mergeWithAnUnreadableImageMakesNoPdf()
{
    QVERIFY(driver->tick("checkBox_joinpdf"));
    convert(
        {makePlainImage(u"a.png"_s), writeContent(folder->filePath(u"in/b.png"_s), "no image")});
    QCOMPARE(outputFiles(), QStringList());
}

void ConversionE2eTest::passwordWithABlankLosesThePdf()
{
    QVERIFY(driver->click("pushButton_Security"));
    QVERIFY(driver->type("lineEdit_ownerpwd", u"two words"_s));
    QVERIFY(driver->click("pushButton_Inout"));
    convert({makePlainImage(u"a.png"_s)});
    QCOMPARE(outputFiles(), QStringList());
}

void ConversionE2eTest::passwordWithADoubleQuoteIsAnotherPhrase_data()
{
    QTest::addColumn<QString>("owner");
    QTest::addColumn<QString>("user");
    QTest::addColumn<QByteArray>("phrase"); // what opens the PDF, as its owner if there is one
    QTest::addColumn<bool>("needed");       // to open it at all
    const QString quote = u"ab\"c"_s;
    QTest::newRow("the owner's alone loses the quote")
        << quote << u""_s << QByteArray("abc") << false;
    QTest::newRow("the user's alone loses the quote")
        << u""_s << quote << QByteArray("abc") << true;
    QTest::newRow("the owner's swallows what comes behind it")
        << quote << u"xyz"_s << QByteArray("abc user_pw xyz") << false;
    QTest::newRow("two quotes, and only they are lost")
        << u"a\"b\"c"_s << u"xyz"_s << QByteArray("abc") << true;
}

void ConversionE2eTest::passwordWithADoubleQuoteIsAnotherPhrase()
{
    QFETCH(QString, owner);
    QFETCH(QString, user);
    QFETCH(QByteArray, phrase);
    QFETCH(bool, needed);
    QVERIFY(driver->click("pushButton_Security"));
    QVERIFY(driver->type("lineEdit_ownerpwd", owner));
    QVERIFY(driver->type("lineEdit_userpwd", user));
    QVERIFY(driver->click("pushButton_Inout"));
    convert({makePlainImage(u"a.png"_s)});
    const PdfFacts unasked = readPdf(output(u"a.pdf"_s));
    QVERIFY(unasked.readable && unasked.encrypted);
    QCOMPARE(unasked.needsPassword, needed);
    const QByteArray typed = (owner.isEmpty() ? user : owner).toUtf8();
    QVERIFY(!readPdf(output(u"a.pdf"_s), typed).mayPrint);
    const PdfFacts opened = readPdf(output(u"a.pdf"_s), phrase);
    QCOMPARE(opened.pages, 1);
    QCOMPARE(opened.mayPrint, !owner.isEmpty());
}

void ConversionE2eTest::intermediateFileTakesAnotherImagesName_data()
{
    QTest::addColumn<QStringList>("images");
    QTest::addColumn<QStringList>("pdfs");
    QTest::newRow("listed first, it is lost")
        << QStringList{u"a-1.png"_s, u"a.png"_s} << QStringList{u"a.pdf"_s};
    QTest::newRow("listed second, it stays")
        << QStringList{u"a.png"_s, u"a-1.png"_s} << QStringList{u"a-1.pdf"_s, u"a.pdf"_s};
}

void ConversionE2eTest::intermediateFileTakesAnotherImagesName()
{
    QFETCH(QStringList, images);
    QVERIFY(driver->click("pushButton_PDFSetting"));
    QVERIFY(driver->type("lineEdit_title", u"T"_s));
    QVERIFY(driver->click("pushButton_Inout"));
    for (QString &image : images)
        image = makePlainImage(image);
    convert(images);
    QTEST(outputFiles(), "pdfs");
}

void ConversionE2eTest::olderPdfSurvivesAFailedConversion()
{
    const QString older = writeContent(output(u"b.pdf"_s), "an older result");
    convert({writeContent(folder->filePath(u"in/b.png"_s), "no image")});
    QCOMPARE(contentOf(older), QByteArray("an older result"));
}

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    setUpApplication(application);
    ConversionE2eTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "conversion_e2e_test.moc"
