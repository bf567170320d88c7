// The window with the real ImageMagick and the real pdftk directly beside the executable, in place
// of our programs.

#include "pdffacts.h"
#include "pdfpages.h"
#include "pdfpictures.h"
#include "startup.h"
#include "windowdriver.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class RealToolsE2eTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void imagesBecomeFinishedPdfs_data();
    void imagesBecomeFinishedPdfs();

private:
    QTemporaryDir m_home;
};

// Debian's policy lets ImageMagick write no PDF.
void RealToolsE2eTest::initTestCase()
{
    QVERIFY(QDir(m_home.path()).mkpath(u"ImageMagick"_s));
    QFile policy(m_home.filePath(u"ImageMagick/policy.xml"_s));
    QVERIFY(policy.open(QIODevice::WriteOnly));
    policy.write("<policymap><policy domain=\"coder\" rights=\"read|write\" pattern=\"PDF\"/>"
                 "</policymap>");
    policy.close();
    qputenv("HOME", m_home.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", m_home.path().toUtf8());
    for (const QString &tool : {u"convert"_s, u"pdftk"_s}) {
        const QString place = QCoreApplication::applicationDirPath() + u'/' + tool;
        QFile::remove(place);
        QVERIFY(QFile::link(u"/usr/bin/"_s + tool, place));
    }
}

void RealToolsE2eTest::imagesBecomeFinishedPdfs_data()
{
    QTest::addColumn<bool>("merged");
    QTest::addColumn<QStringList>("pdfs");
    QTest::newRow("one by one") << false << QStringList{u"first.pdf"_s, u"second.pdf"_s};
    QTest::newRow("merged") << true << QStringList{u"first.pdf"_s};
}

void RealToolsE2eTest::imagesBecomeFinishedPdfs()
{
    QFETCH(bool, merged);
    QFETCH(QStringList, pdfs);
    const QTemporaryDir images, output;
    QVERIFY(markedImage().save(images.filePath(u"first.png"_s)));
    QVERIFY(markedImage().save(images.filePath(u"second.bmp"_s)));

    WindowDriver driver;
    QVERIFY(driver.show());
    QVERIFY(driver.type("outputfolderEdit", output.path()));
    QVERIFY(driver.tick("checkBox_joinpdf", merged));
    QVERIFY(driver.click("pushButton_PDFSetting"));
    QVERIFY(driver.type("lineEdit_title", u"Holiday"_s));
    QVERIFY(driver.click("pushButton_Security"));
    QVERIFY(driver.type("lineEdit_ownerpwd", u"secret"_s));
    QVERIFY(driver.tick("checkBox_allowprint"));
    QVERIFY(driver.click("pushButton_Inout"));
    QVERIFY(driver.openFiles({images.filePath(u"first.png"_s), images.filePath(u"second.bmp"_s)}));
    QVERIFY(driver.convert(300'000));

    QCOMPARE(QDir(output.path()).entryList(QDir::Files, QDir::Name), pdfs);
    for (const QString &pdf : pdfs) {
        const PdfFacts facts = readPdf(output.filePath(pdf));
        QCOMPARE(facts.pages, merged ? 2 : 1);
        QCOMPARE(facts.title, u"Holiday"_s);
        QVERIFY(facts.encrypted && facts.mayPrint && !facts.mayCopy);
        for (int page = 0; page < facts.pages; ++page)
            QCOMPARE(lightestQuarter(drawnPage(output.filePath(pdf), page)), u"upper left"_s);
    }
}

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    setUpApplication(application);
    RealToolsE2eTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "realtools_e2e_test.moc"
