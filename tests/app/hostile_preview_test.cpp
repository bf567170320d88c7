// Two hundred damaged and hostile files are listed and previewed: no crash, no hang, and memory
// within its limit.

#include "hostilefiles.h"
#include "startup.h"
#include "windowfixture.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFrame>
#include <QImageReader>
#include <QTableWidget>

class HostilePreviewTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyFileIsListedAndPreviewed();
    void pictureAboveTwoGibibytesIsUnreadable_data();
    void pictureAboveTwoGibibytesIsUnreadable();

private:
    HostileFiles files;
};

void HostilePreviewTest::initTestCase()
{
    const QStringList systemPlugins = QCoreApplication::libraryPaths();
    setUpApplication(*qApp);
    // This program's own bundle has no plug-ins.
    QCoreApplication::setLibraryPaths(systemPlugins);
    for (const char *format : {"gif", "jpeg", "pcx", "tiff"})
        QVERIFY2(QImageReader::supportedImageFormats().contains(format), format);
    QCOMPARE(files.make(), QString());
}

void HostilePreviewTest::everyFileIsListedAndPreviewed()
{
    WindowFixture fixture;
    const QList<QUrl> urls = files.urls();
    QCOMPARE(urls.size(), 200);
    fixture.drop(urls);
    files.letOneVanish();

    auto *table = fixture.find<QTableWidget>("inputfiletableWidget");
    QCOMPARE(table->rowCount(), 200);
    qint64 slowest = 0;
    QString slowestFile;
    for (int row = 0; row < table->rowCount(); ++row) {
        QCOMPARE(table->item(row, 0)->text(), urls.at(row).toLocalFile());
        table->setCurrentCell(row, 0);
        QElapsedTimer timer;
        timer.start();
        fixture.window.dopreview();
        QVERIFY(!fixture.window.grab().isNull());
        if (timer.elapsed() > slowest) {
            slowest = timer.elapsed();
            slowestFile = urls.at(row).fileName();
        }
    }
    qInfo("slowest preview: %lld ms (%s); peak memory of the window: %lld MiB", slowest,
          qPrintable(slowestFile), peakMemory(RUSAGE_SELF) >> 20);
    QVERIFY(peakMemory(RUSAGE_SELF) < maxMemory);
}

void HostilePreviewTest::pictureAboveTwoGibibytesIsUnreadable_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("shown");
    QTest::newRow("8,000 by 8,000 pixels") << "*small-bomb.png" << true;
    QTest::newRow("30,000 by 30,000 pixels") << "*huge.png" << false;
    QTest::newRow("60,000 by 60,000 pixels") << "*proper-bomb.png" << false;
}

void HostilePreviewTest::pictureAboveTwoGibibytesIsUnreadable()
{
    QFETCH(QString, name);
    const QFileInfoList found = QDir(files.path()).entryInfoList({name});
    QCOMPARE(found.size(), 1);
    const int usualLimit = QImageReader::allocationLimit();
    WindowFixture fixture;
    fixture.drop({QUrl::fromLocalFile(found.first().filePath())});
    fixture.find<QTableWidget>("inputfiletableWidget")->setCurrentCell(0, 0);

    QImageReader::setAllocationLimit(6000); // as on a machine with much memory
    fixture.window.dopreview();
    QImageReader::setAllocationLimit(usualLimit);
    const auto *frame = fixture.find<QFrame>("previewframe");
    QTEST(!frame->palette().brush(frame->backgroundRole()).textureImage().isNull(), "shown");
}

QTEST_MAIN(HostilePreviewTest)
#include "hostile_preview_test.moc"
