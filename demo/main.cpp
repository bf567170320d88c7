// Shows the whole job: works the real window on eight sample images, one of each format, with the
// real tools, then reads the PDFs back and says what is in them.
//
//   tessaro-demo SAMPLES FOLDER
//
// FOLDER gets the PDFs and a screenshot of each page. Exit status 1 when anything is not as asked.

#include "pdffacts.h"
#include "startup.h"
#include "windowdriver.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QTest>
#include <QTextStream>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr int runTimeout = 300000; // ms

const QString title = u"M\u00fcller & S\u00f6hne \u2014 Fotos \u20ac"_s;
const QString subject = u"  \u0397\u03bc\u03b5\u03c1\u03bf\u03bb\u03cc\u03b3\u03b9\u03bf  "_s;
const QString keywords = u"scan, &amp;, \u0444\u043e\u0442\u043e"_s;
const QString author = u"Zo\u00eb \U0001F600"_s;
const QByteArray ownerPassword = "0wner";

QTextStream &out()
{
    static QTextStream stream(stdout);
    return stream;
}

/// Says what a step was meant to do when it did not come about, and ends the demo.
void require(bool done, const QString &step)
{
    if (done)
        return;
    out() << "The demo stopped: could not " << step << ".\n" << Qt::flush;
    std::exit(1);
}

QString describe(const PdfFacts &pdf)
{
    if (!pdf.readable)
        return u"not a PDF"_s;
    const QSizeF size = pdf.pageSizes.value(0);
    QString text = u"%1 page(s), %2 x %3 pt"_s.arg(pdf.pages).arg(size.width()).arg(size.height());
    text += u", title \""_s + pdf.title + u"\", subject \""_s + pdf.subject + u"\", keywords \""_s +
            pdf.keywords + u"\", author \""_s + pdf.author + QLatin1Char('"');
    if (!pdf.encrypted)
        return text + u", not encrypted"_s;
    return text + u", encrypted (print %1, modify %2, copy %3, annotate %4)"_s.arg(pdf.mayPrint)
                      .arg(pdf.mayModify)
                      .arg(pdf.mayCopy)
                      .arg(pdf.mayAnnotate);
}

/// Points; the page of an image scaled to fit the A4 box of 595 x 842 pixels at 72 per inch.
QSize pageInA4(const QString &image)
{
    return QImageReader(image).size().scaled(595, 842, Qt::KeepAspectRatio);
}

bool sameSize(QSizeF page, QSize expected)
{
    return std::abs(page.width() - expected.width()) <= 1 &&
           std::abs(page.height() - expected.height()) <= 1;
}

bool isAsAskedOneByOne(const PdfFacts &pdf, const QString &image)
{
    return pdf.pages == 1 && sameSize(pdf.pageSizes.value(0), pageInA4(image)) &&
           pdf.title == title && pdf.subject == subject && pdf.keywords == keywords &&
           pdf.author == author && pdf.encrypted && pdf.mayPrint && !pdf.mayModify &&
           !pdf.mayCopy && !pdf.mayAnnotate;
}

bool isAsAskedMerged(const PdfFacts &pdf, qsizetype images)
{
    return pdf.pages == images && pdf.subject.isEmpty() && pdf.keywords.isEmpty() &&
           pdf.author.isEmpty() && !pdf.encrypted;
}

bool report(const QString &path, const PdfFacts &pdf, bool asAsked)
{
    out() << (asAsked ? "ok     " : "WRONG  ") << path << ": " << describe(pdf) << '\n'
          << Qt::flush;
    return asAsked;
}

/// Sets the description and the security on their pages; saves a screenshot of each page.
void fillPages(WindowDriver &driver, const QDir &folder)
{
    const auto screenshot = [&](const QString &page) {
        require(driver.saveScreenshot(folder.filePath(page)), u"save "_s + page);
    };
    screenshot(u"page-1-files.png"_s);
    require(driver.click("pushButton_ImageSetting"), u"open the appearance page"_s);
    require(driver.choose("comboBox_pagesize", 5), u"choose A4"_s);
    require(driver.choose("comboBox_compresstype", 5), u"choose JPEG"_s);
    screenshot(u"page-2-appearance.png"_s);
    require(driver.click("pushButton_PDFSetting"), u"open the description page"_s);
    require(driver.type("lineEdit_title", title) && driver.type("lineEdit_subject", subject) &&
                driver.type("lineEdit_keywords", keywords) &&
                driver.type("lineEdit_author", author),
            u"type the description"_s);
    screenshot(u"page-3-description.png"_s);
    require(driver.click("pushButton_Security"), u"open the security page"_s);
    require(driver.type("lineEdit_ownerpwd", QString::fromLatin1(ownerPassword)) &&
                driver.tick("checkBox_allowprint"),
            u"set the owner password"_s);
    screenshot(u"page-4-security.png"_s);
}

void clearPages(WindowDriver &driver)
{
    require(driver.type("lineEdit_ownerpwd", {}) && driver.tick("checkBox_allowprint", false),
            u"clear the security page"_s);
    require(driver.click("pushButton_PDFSetting"), u"open the description page"_s);
    for (const char *field :
         {"lineEdit_title", "lineEdit_subject", "lineEdit_keywords", "lineEdit_author"})
        require(driver.type(field, {}), u"clear the description"_s);
}

bool oneByOne(WindowDriver &driver, const QStringList &images, const QDir &folder)
{
    const QDir output(folder.filePath(u"one-by-one"_s));
    require(driver.openFiles(images), u"open the sample images"_s);
    require(driver.clickRow(0), u"click on a row"_s);
    QTest::qWait(700); // the preview comes 300 ms after the click
    fillPages(driver, folder);
    require(driver.click("pushButton_Inout"), u"go back to the files"_s);
    require(driver.chooseFolder(output.path()), u"choose the output folder"_s);
    require(driver.convert(runTimeout), u"convert one by one in time"_s);

    bool asAsked = true;
    for (const QString &image : images) {
        const QString path = output.filePath(QFileInfo(image).baseName() + u".pdf"_s);
        const PdfFacts pdf = readPdf(path);
        asAsked &= report(path, pdf, isAsAskedOneByOne(pdf, image));
    }
    return asAsked;
}

bool merged(WindowDriver &driver, const QStringList &images, const QDir &folder)
{
    const QDir output(folder.filePath(u"merged"_s));
    require(driver.click("pushButton_Security"), u"open the security page"_s);
    clearPages(driver);
    require(driver.click("pushButton_Inout"), u"go back to the files"_s);
    require(driver.chooseFolder(output.path()), u"choose the output folder"_s);
    require(driver.tick("checkBox_joinpdf"), u"tick the merge box"_s);
    require(driver.convert(runTimeout), u"merge in time"_s);

    const QString path = output.filePath(QFileInfo(images.first()).baseName() + u".pdf"_s);
    const PdfFacts pdf = readPdf(path);
    return report(path, pdf, isAsAskedMerged(pdf, images.size()));
}

QStringList sampleImages(const QDir &samples)
{
    QStringList images;
    const auto files = samples.entryInfoList({u"*.bmp"_s, u"*.gif"_s, u"*.jpg"_s, u"*.pbm"_s,
                                              u"*.pcx"_s, u"*.png"_s, u"*.ppm"_s, u"*.tif"_s},
                                             QDir::Files, QDir::Name);
    for (const QFileInfo &file : files)
        images << file.absoluteFilePath();
    return images;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    require(arguments.size() == 3, u"start: usage is tessaro-demo SAMPLES FOLDER"_s);
    const QStringList images = sampleImages(QDir(QDir(arguments[1]).absolutePath()));
    const QDir folder(QDir(arguments[2]).absolutePath());
    require(images.size() == 8, u"find eight sample images"_s);
    for (const char *name : {"one-by-one", "merged"}) {
        QDir(folder.filePath(QLatin1String(name))).removeRecursively();
        require(folder.mkpath(QLatin1String(name)), u"write to "_s + folder.path());
    }

    setUpApplication(application);
    WindowDriver driver;
    require(driver.show(), u"show the window"_s);
    const bool first = oneByOne(driver, images, folder);
    const bool second = merged(driver, images, folder);
    out() << "Screenshots and PDFs are in " << folder.path() << '\n';
    return first && second ? 0 : 1;
}
