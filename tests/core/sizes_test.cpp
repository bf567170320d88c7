// The size column's text and the size of the preview.

#include "previewbox.h"
#include "sizetext.h"

#include <QTest>

#include <limits>

class SizesTest : public QObject
{
    Q_OBJECT

private slots:
    void sizeTextHasSixteenCharactersOrNone_data();
    void sizeTextHasSixteenCharactersOrNone();
    void previewFillsTheBoxInOneDirection_data();
    void previewFillsTheBoxInOneDirection();
};

void SizesTest::sizeTextHasSixteenCharactersOrNone_data()
{
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<QString>("text");

    constexpr qint64 gibibyte = qint64(1024) * 1024 * 1024;
    QTest::newRow("an empty file has none") << qint64(0) << "";
    QTest::newRow("a size below zero has none") << qint64(-1) << "";
    QTest::newRow("one byte") << qint64(1) << "         0.001KB";
    QTest::newRow("a kilobyte is a thousand bytes") << qint64(1000) << "         1.000KB";
    QTest::newRow("the last size in KB") << qint64(1048576) << "      1048.576KB";
    QTest::newRow("the first size in MB") << qint64(1048577) << "         1.049MB";
    QTest::newRow("a megabyte is a million bytes") << qint64(5000000) << "         5.000MB";
    QTest::newRow("half a kilobyte rounds to the even digit")
        << qint64(1062500) << "         1.062MB";
    QTest::newRow("the largest 32-bit number")
        << qint64(std::numeric_limits<qint32>::max()) << "      2147.484MB";
    QTest::newRow("2 GiB read as negative") << 2 * gibibyte << "";
    QTest::newRow("3 GiB read as negative") << 3 * gibibyte << "";
    QTest::newRow("4 GiB read as zero") << 4 * gibibyte << "";
    QTest::newRow("4 GiB and a byte read as one byte") << 4 * gibibyte + 1 << "         0.001KB";
    QTest::newRow("5 GiB read as one") << 5 * gibibyte << "      1073.742MB";
}

void SizesTest::sizeTextHasSixteenCharactersOrNone()
{
    QFETCH(qint64, bytes);
    QTEST(sizeText(bytes), "text");
}

void SizesTest::previewFillsTheBoxInOneDirection_data()
{
    QTest::addColumn<QSize>("image");
    QTest::addColumn<QSize>("preview");

    QTest::newRow("the box itself") << QSize(151, 187) << QSize(151, 187);
    QTest::newRow("the box's shape doubled") << QSize(302, 374) << QSize(151, 187);
    QTest::newRow("a pixel wider than the box's shape") << QSize(303, 374) << QSize(151, 186);
    QTest::newRow("a pixel narrower than the box's shape") << QSize(301, 374) << QSize(150, 187);
    QTest::newRow("small and nearly the box's shape") << QSize(3, 4) << QSize(140, 187);
    QTest::newRow("a flat image") << QSize(1000, 100) << QSize(151, 15);
    QTest::newRow("a tall image") << QSize(100, 1000) << QSize(18, 187);
    QTest::newRow("a single pixel grows") << QSize(1, 1) << QSize(151, 151);
    QTest::newRow("a line has no height left") << QSize(1000, 1) << QSize(151, 0);
    QTest::newRow("a column has no width left") << QSize(1, 1000) << QSize(0, 187);
    QTest::newRow("sides whose product passes 32 bits")
        << QSize(100000000, 50000000) << QSize(151, 75);
}

void SizesTest::previewFillsTheBoxInOneDirection()
{
    QFETCH(QSize, image);
    QTEST(previewSize(image), "preview");
}

QTEST_GUILESS_MAIN(SizesTest)
#include "sizes_test.moc"
