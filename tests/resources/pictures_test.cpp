// The product's pictures as the window reads them: scaled smoothly, crisp at two device pixels.

#include "pictures.h"

#include "files.h"

#include <QDir>
#include <QFile>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>

namespace {

const QString icons = QStringLiteral(":/iconoption/icons/");

QImage painted(const QIcon &icon, const QRect &place, QIcon::Mode mode)
{
    QImage canvas(80, 80, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::white);
    QPainter painter(&canvas);
    icon.paint(&painter, place, Qt::AlignCenter, mode);
    return canvas;
}

} // namespace

class TestPicturesTest : public QObject
{
    Q_OBJECT

private slots:
    void showsWhatQtsIconShows_data();
    void showsWhatQtsIconShows();
    void brokenFileShowsNothing_data();
    void brokenFileShowsNothing();
    void pngShowsWhatQtsIconShows();
};

void TestPicturesTest::showsWhatQtsIconShows_data()
{
    QTest::addColumn<QString>("path");
    const QStringList names = QDir(icons).entryList({QStringLiteral("*.ico")});
    QVERIFY(!names.isEmpty());
    for (const QString &name : names)
        QTest::newRow(qPrintable(name)) << icons + name;
}

void TestPicturesTest::showsWhatQtsIconShows()
{
    QFETCH(const QString, path);
    const QIcon lazy = iconFromFile(path);
    const QIcon eager(path);

    QList<QSize> sizes = eager.availableSizes();
    QCOMPARE(sizes.removeAll(QSize(256, 256)), 1);
    QCOMPARE(lazy.availableSizes(), sizes);
    for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Disabled, QIcon::Selected}) {
        for (const int side : {8, 16, 24, 28, 30, 32, 56, 100, 256, 300}) {
            for (const qreal ratio : {1.0, 1.5, 2.0}) {
                const QPixmap shown = lazy.pixmap(QSize(side, side), ratio, mode);
                const QPixmap wanted = eager.pixmap(QSize(side, side), ratio, mode);
                QCOMPARE(shown.toImage(), wanted.toImage());
                QCOMPARE(shown.devicePixelRatio(), wanted.devicePixelRatio());
            }
            QCOMPARE(lazy.actualSize({side, side}, mode), eager.actualSize({side, side}, mode));
        }
        const QRect place(10, 5, 28, 28);
        QCOMPARE(painted(lazy, place, mode), painted(eager, place, mode));
    }
    QIcon copy = lazy;
    copy.detach(); // to an engine of its own
    QCOMPARE(copy.pixmap(24).toImage(), eager.pixmap(24).toImage());
}

void TestPicturesTest::brokenFileShowsNothing_data()
{
    QTest::addColumn<QByteArray>("content");

    const QByteArray whole = contentOf(icons + QStringLiteral("shield.ico"));
    QTest::newRow("no bytes") << QByteArray();
    QTest::newRow("a header that is cut off") << whole.left(5);
    QTest::newRow("a directory that is cut off") << whole.left(10);
    QTest::newRow("images that are cut off") << whole.left(6 + 7 * 16);
}

void TestPicturesTest::brokenFileShowsNothing()
{
    QFETCH(const QByteArray, content);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("broken.ico"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    file.close();

    const QIcon icon = iconFromFile(path);
    QVERIFY(icon.pixmap(24).isNull());
    QVERIFY(!icon.isNull());
}

void TestPicturesTest::pngShowsWhatQtsIconShows()
{
    const QString path = icons + QStringLiteral("inout3.png");
    const QString disabledPath = icons + QStringLiteral("inout3-current.png");
    QIcon icon;
    addPng(icon, path);
    addPng(icon, disabledPath, QIcon::Disabled);
    QIcon wanted(path);
    wanted.addFile(disabledPath, {}, QIcon::Disabled);

    for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Disabled}) {
        for (const qreal ratio : {1.0, 2.0}) {
            const QImage shown = icon.pixmap(QSize(70, 75), ratio, mode).toImage();
            QVERIFY(!shown.isNull());
            QCOMPARE(shown, wanted.pixmap(QSize(70, 75), ratio, mode).toImage());
        }
    }
}

QTEST_MAIN(TestPicturesTest)
#include "pictures_test.moc"
