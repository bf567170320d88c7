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

namespace {

constexpr int runTimeout = 300000; // ms

const QString title = QStringLiteral("M\u00fcller & S\u00f6hne \u2014 Fotos \u20ac");
const QString subject =
    QStringLiteral("  \u0397\u03bc\u03b5\u03c1\u03bf\u03bb\u03cc\u03b3\u03b9\u03bf  ");
const QString keywords = QStringLiteral("scan, &amp;, \u0444\u043e\u0442\u043e");
const QString author = QStringLiteral("Zo\u00eb \U0001F600");
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
        return QStringLiteral("not a PDF");
    const QSizeF size = pdf.pageSizes.value(0);
    QString text = QStringLiteral("%1 page(s), %2 x %3 pt")
                       .arg(pdf.pages)
                       .arg(size.width())
                       .arg(size.height());
    text += QStringLiteral(", title \"") + pdf.title + QStringLiteral("\", subject \"") +
            pdf.subject + QStringLiteral("\", keywords \"") + pdf.keywords +
            QStringLiteral("\", author \"") + pdf.author + QLatin1Char('"');
    if (!pdf.encrypted)
        return text + QStringLiteral(", not encrypted");
    return text + QStringLiteral(", encrypted (print %1, modify %2, copy %3, annotate %4)")
                      .arg(pdf.mayPrint)
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
        require(driver.saveScreenshot(folder.filePath(page)), QStringLiteral("save ") + page);
    };
    screenshot(QStringLiteral("page-1-files.png"));
    require(driver.click("pushButton_ImageSetting"), QStringLiteral("open the appearance page"));
    require(driver.choose("comboBox_pagesize", 5), QStringLiteral("choose A4"));
    require(driver.choose("comboBox_compresstype", 5), QStringLiteral("choose JPEG"));
    screenshot(QStringLiteral("page-2-appearance.png"));
    require(driver.click("pushButton_PDFSetting"), QStringLiteral("open the description page"));
    require(driver.type("lineEdit_title", title) && driver.type("lineEdit_subject", subject) &&
                driver.type("lineEdit_keywords", keywords) &&
                driver.type("lineEdit_author", author),
            QStringLiteral("type the description"));
    screenshot(QStringLiteral("page-3-description.png"));
    require(driver.click("pushButton_Security"), QStringLiteral("open the security page"));
    require(driver.type("lineEdit_ownerpwd", QString::fromLatin1(ownerPassword)) &&
                driver.tick("checkBox_allowprint"),
            QStringLiteral("set the owner password"));
    screenshot(QStringLiteral("page-4-security.png"));
}

void clearPages(WindowDriver &driver)
{
    require(driver.type("lineEdit_ownerpwd", {}) && driver.tick("checkBox_allowprint", false),
            QStringLiteral("clear the security page"));
    require(driver.click("pushButton_PDFSetting"), QStringLiteral("open the description page"));
    for (const char *field :
         {"lineEdit_title", "lineEdit_subject", "lineEdit_keywords", "lineEdit_author"})
        require(driver.type(field, {}), QStringLiteral("clear the description"));
}

bool oneByOne(WindowDriver &driver, const QStringList &images, const QDir &folder)
{
    const QDir output(folder.filePath(QStringLiteral("one-by-one")));
    require(driver.openFiles(images), QStringLiteral("open the sample images"));
    require(driver.clickRow(0), QStringLiteral("click on a row"));
    QTest::qWait(700); // the preview comes 300 ms after the click
    fillPages(driver, folder);
    require(driver.click("pushButton_Inout"), QStringLiteral("go back to the files"));
    require(driver.chooseFolder(output.path()), QStringLiteral("choose the output folder"));
    require(driver.convert(runTimeout), QStringLiteral("convert one by one in time"));

    bool asAsked = true;
    for (const QString &image : images) {
        const QString path = output.filePath(QFileInfo(image).baseName() + QStringLiteral(".pdf"));
        const PdfFacts pdf = readPdf(path);
        asAsked &= report(path, pdf, isAsAskedOneByOne(pdf, image));
    }
    return asAsked;
}

bool merged(WindowDriver &driver, const QStringList &images, const QDir &folder)
{
    const QDir output(folder.filePath(QStringLiteral("merged")));
    require(driver.click("pushButton_Security"), QStringLiteral("open the security page"));
    clearPages(driver);
    require(driver.click("pushButton_Inout"), QStringLiteral("go back to the files"));
    require(driver.chooseFolder(output.path()), QStringLiteral("choose the output folder"));
    require(driver.tick("checkBox_joinpdf"), QStringLiteral("tick the merge box"));
    require(driver.convert(runTimeout), QStringLiteral("merge in time"));

    const QString path =
        output.filePath(QFileInfo(images.first()).baseName() + QStringLiteral(".pdf"));
    const PdfFacts pdf = readPdf(path);
    return report(path, pdf, isAsAskedMerged(pdf, images.size()));
}

QStringList sampleImages(const QDir &samples)
{
    QStringList images;
    const auto files = samples.entryInfoList(
        {"*.bmp", "*.gif", "*.jpg", "*.pbm", "*.pcx", "*.png", "*.ppm", "*.tif"}, QDir::Files,
        QDir::Name);
    for (const QFileInfo &file : files)
        images << file.absoluteFilePath();
    return images;
}

} // namespace

int main(int argc, char *argv[])
{
    raiseArgumentLimit();
    QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    require(arguments.size() == 3, QStringLiteral("start: usage is tessaro-demo SAMPLES FOLDER"));
    const QStringList images = sampleImages(QDir(QDir(arguments[1]).absolutePath()));
    const QDir folder(QDir(arguments[2]).absolutePath());
    require(images.size() == 8, QStringLiteral("find eight sample images"));
    for (const char *name : {"one-by-one", "merged"}) {
        QDir(folder.filePath(QLatin1String(name))).removeRecursively();
        require(folder.mkpath(QLatin1String(name)), QStringLiteral("write to ") + folder.path());
    }

    prepare(application);
    WindowDriver driver;
    require(driver.show(), QStringLiteral("show the window"));
    const bool first = oneByOne(driver, images, folder);
    const bool second = merged(driver, images, folder);
    out() << "Screenshots and PDFs are in " << folder.path() << '\n';
    return first && second ? 0 : 1;
}
