// The preview and the page of an image that is stored in another orientation show the same picture.

#include "files.h"
#include "imagefiles.h"
#include "orientedfiles.h"
#include "pdfpages.h"
#include "startup.h"
#include "windowdriver.h"

#include <QApplication>
#include <QDir>
#include <QFrame>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace orientedfiles;

constexpr int runTimeout = 120000; // ms

namespace {

QByteArray exifBlock(int orientation)
{
    return imagefiles::exifBlock({.orientation = orientation});
}

/// What the pane shows, null while it shows nothing.
QImage shownPicture(const WindowDriver &driver)
{
    const auto *frame = driver.find<QFrame>("previewframe");
    return frame->palette().brush(frame->backgroundRole()).textureImage();
}

} // namespace

class UprightE2eTest : public QObject
{
    Q_OBJECT

private slots:
    void pageShowsWhatThePreviewShows_data();
    void pageShowsWhatThePreviewShows();
};

void UprightE2eTest::pageShowsWhatThePreviewShows_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<int>("compression");
    constexpr int lzw = 8; // of the box's items; no image is copied with it
    for (int orientation = 1; orientation <= 8; ++orientation) {
        const QByteArray exif = exifBlock(orientation);
        QTest::addRow("JPEG, %d, copied", orientation) << jpegWith(exif) << 0;
        QTest::addRow("JPEG, %d, converted", orientation) << jpegWith(exif) << lzw;
        QTest::addRow("PNG, %d", orientation) << pngWith(exif) << 0;
        QTest::addRow("WEBP, %d", orientation) << webpWith(exif) << 0;
        QTest::addRow("TIFF, %d", orientation) << tiffWith(orientation) << 0;
    }
}

void UprightE2eTest::pageShowsWhatThePreviewShows()
{
    QFETCH(QByteArray, file);
    QFETCH(int, compression);
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkpath(u"out"_s));
    WindowDriver driver;
    QVERIFY(driver.show());
    QVERIFY(driver.type("outputfolderEdit", folder.filePath(u"out"_s)));
    QVERIFY(driver.click("pushButton_ImageSetting"));
    QVERIFY(driver.choose("comboBox_compresstype", compression));
    QVERIFY(driver.click("pushButton_Inout"));
    driver.drop({QUrl::fromLocalFile(writeContent(folder.filePath(u"photo"_s), file))});
    const QImage before = shownPicture(driver);
    QVERIFY(driver.clickRow(0));
    QTRY_VERIFY(shownPicture(driver) != before);
    QVERIFY(driver.convert(runTimeout));
    const QImage page = drawnPage(folder.filePath(u"out/photo.pdf"_s));
    const QImage shown = shownPicture(driver);
    QVERIFY(!page.isNull());
    QCOMPARE(quarterColours(page), quarterColours(shown));
    QCOMPARE(page.width() > page.height(), shown.width() > shown.height());
}

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    setUpApplication(application);
    UprightE2eTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "upright_e2e_test.moc"
