// The current row's preview: its size and shape, when it is drawn, and files that are no images.

#include "previewbox.h"
#include "previewprobe.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFrame>
#include <QImage>
#include <QImageReader>
#include <QTableWidget>
#include <QtMath>

#include <functional>
#include <new>
#include <stdexcept>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

/// The device pixels that cover `size`.
QSize onScreen(QSize size, qreal ratio)
{
    return {qCeil(size.width() * ratio), qCeil(size.height() * ratio)};
}

using Thrower = std::function<void()>;

/// A path that cannot be asked for, once armed.
class ThrowingItem : public QTableWidgetItem
{
public:
    explicit ThrowingItem(Thrower throwerFunction)
        : QTableWidgetItem(u"picture.png"_s)
        , m_thrower(std::move(throwerFunction))
    {
    }

    QVariant data(int role) const override
    {
        if (armed)
            m_thrower();
        return QTableWidgetItem::data(role);
    }

    bool armed = false;

private:
    Thrower m_thrower;
};

} // namespace

class PreviewTest : public QObject
{
    Q_OBJECT

private slots:
    void emptyListShowsTheDefaultPicture();
    void frameTakesThePicturesShape_data();
    void frameTakesThePicturesShape();
    void pictureFillsTheFrame();
    void formatIsToldByContent_data();
    void formatIsToldByContent();
    void transparentPlacesAreCutOutOfTheFrame();
    void unreadableFileBlanksThePictureAndKeepsTheSize_data();
    void unreadableFileBlanksThePictureAndKeepsTheSize();
    void pictureAboveTheAllocationLimitIsUnreadable();
    void nothingToPreviewLeavesTheFrameAlone_data();
    void nothingToPreviewLeavesTheFrameAlone();
    void nothingIsThrownOutOfThePreview_data();
    void nothingIsThrownOutOfThePreview();
    void emptiedListKeepsTheDefaultPictureAtLaterFirings();
    void timerStartsAtTheFirstClickAndRepeats();
    void selectionShowsItsPictureWhenTheTimerFires();
    void rewrittenFileShowsItsNewContent();
};

void PreviewTest::emptyListShowsTheDefaultPicture()
{
    WindowFixture fixture;
    QCOMPARE(frameOf(fixture)->geometry(), QRect(400, 42, 151, 151));
    QVERIFY(frameOf(fixture)->autoFillBackground());
    const qreal ratio = fixture.window.devicePixelRatioF();
    QCOMPARE(pictureOf(fixture).size(), onScreen({151, 151}, ratio));
    QCOMPARE(pictureOf(fixture).devicePixelRatio(), ratio);
    if (ratio > 1)
        return; // drawn from a larger picture
    const QImage expected = QImage(u":/iconoption/icons/whle.png"_s)
                                .scaled(151, 151, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const auto format = QImage::Format_ARGB32_Premultiplied;
    QCOMPARE(pictureOf(fixture).convertToFormat(format), expected.convertToFormat(format));
}

void PreviewTest::frameTakesThePicturesShape_data()
{
    QTest::addColumn<QSize>("picture");
    QTest::addColumn<QSize>("frame");
    QTest::newRow("the box's shape doubled") << QSize(302, 374) << QSize(151, 187);
    QTest::newRow("flat") << QSize(1000, 100) << QSize(151, 15);
    QTest::newRow("tall") << QSize(100, 1000) << QSize(18, 187);
    QTest::newRow("a single pixel") << QSize(1, 1) << QSize(151, 151);
}

void PreviewTest::frameTakesThePicturesShape()
{
    QFETCH(QSize, picture);
    QFETCH(QSize, frame);
    WindowFixture fixture;
    preview(fixture, savePicture(fixture, u"p.png"_s, picture, Qt::red));
    QCOMPARE(frameOf(fixture)->geometry(), QRect(QPoint(400, 42), frame));
    // A picture that is smaller than the frame would begin once more at the opposite edge.
    const qreal ratio = fixture.window.devicePixelRatioF();
    QCOMPARE(pictureOf(fixture).size(), onScreen(frame, ratio));
    QCOMPARE(pictureOf(fixture).devicePixelRatio(), ratio);
    QCOMPARE(colourOf(fixture), QColor(Qt::red));
}

void PreviewTest::pictureFillsTheFrame()
{
    WindowFixture fixture;
    preview(fixture, savePicture(fixture, u"p.png"_s, {302, 374}, Qt::blue));
    const QFrame *frame = frameOf(fixture);
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        QCOMPARE(frame->palette().brush(group, frame->backgroundRole()).style(),
                 Qt::TexturePattern);
    const QPoint middle = frame->mapTo(&fixture.window, frame->rect().center());
    const QImage shown = fixture.window.grab().toImage();
    QCOMPARE(shown.pixelColor(middle * shown.devicePixelRatio()), QColor(Qt::blue));
}

void PreviewTest::formatIsToldByContent_data()
{
    QTest::addColumn<QString>("sample");
    QTest::newRow("BMP") << "harbour.bmp";
    QTest::newRow("GIF") << "garden.gif";
    QTest::newRow("JPEG") << "beach.jpg";
    QTest::newRow("PBM") << "letter.pbm";
    QTest::newRow("PCX") << "market.pcx";
    QTest::newRow("PNG") << "window.png";
    QTest::newRow("PPM") << "meadow.ppm";
    QTest::newRow("TIFF") << "receipt.tif";
}

void PreviewTest::formatIsToldByContent()
{
    QFETCH(QString, sample);
    const QSize frame = previewSize(QImage(QStringLiteral(SAMPLE_FOLDER "/") + sample).size());
    WindowFixture fixture;
    for (const char *name : {"picture", "picture.txt", "picture.png", "picture.tif"}) {
        const QString path = fixture.inputPath(QLatin1String(name));
        QVERIFY(QFile::copy(QStringLiteral(SAMPLE_FOLDER "/") + sample, path));
        frameOf(fixture)->resize(1, 1);
        preview(fixture, path);
        QCOMPARE(frameOf(fixture)->size(), frame);
        QVERIFY(colourOf(fixture).isValid());
    }
}

void PreviewTest::transparentPlacesAreCutOutOfTheFrame()
{
    WindowFixture fixture;
    QImage image(302, 374, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < 100; ++x)
            image.setPixelColor(x, y, Qt::green);
    }
    QVERIFY(image.save(fixture.inputPath(u"t.png"_s)));
    preview(fixture, fixture.inputPath(u"t.png"_s));
    QFrame *frame = frameOf(fixture);
    // A third of the frame's width, whatever a device pixel is.
    for (const auto &[x, isOpaque] : {std::pair(47, true), std::pair(53, false)}) {
        QCOMPARE(frame->mask().contains(QPoint(x, 90)), isOpaque);
        QCOMPARE(fixture.window.childAt(frame->mapTo(&fixture.window, QPoint(x, 90))) == frame,
                 isOpaque);
    }

    preview(fixture, savePicture(fixture, u"o.png"_s, {302, 374}, Qt::red));
    QVERIFY(frame->mask().isEmpty()); // an opaque picture takes the mask away
}

void PreviewTest::unreadableFileBlanksThePictureAndKeepsTheSize_data()
{
    QTest::addColumn<QString>("kind");
    for (const char *kind : {"text", "empty file", "truncated picture", "FIFO", "endless device",
                             "folder", "missing file"})
        QTest::newRow(kind) << QString::fromLatin1(kind);
}

void PreviewTest::unreadableFileBlanksThePictureAndKeepsTheSize()
{
    QFETCH(QString, kind);
    WindowFixture fixture;
    const QString picture = savePicture(fixture, u"p.png"_s, {1000, 100}, Qt::red);
    preview(fixture, picture);
    QString path = fixture.inputPath(u"unreadable.png"_s);
    if (kind == QLatin1String("text"))
        fixture.makeFile(u"unreadable.png"_s, "no picture");
    else if (kind == QLatin1String("empty file"))
        fixture.makeFile(u"unreadable.png"_s, "");
    else if (kind == QLatin1String("truncated picture"))
        QVERIFY(QFile::copy(picture, path) && QFile::resize(path, 30));
    else if (kind == QLatin1String("FIFO"))
        QCOMPARE(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    else if (kind == QLatin1String("endless device"))
        path = u"/dev/zero"_s;
    else if (kind == QLatin1String("folder"))
        QVERIFY(QDir().mkdir(path));
    preview(fixture, path);
    QCOMPARE(frameOf(fixture)->geometry(), QRect(400, 42, 151, 15));
    QVERIFY(pictureOf(fixture).isNull());
}

void PreviewTest::pictureAboveTheAllocationLimitIsUnreadable()
{
    WindowFixture fixture;
    const QString path = savePicture(fixture, u"bomb.bmp"_s, {1000, 1000}, Qt::red);
    const int limit = QImageReader::allocationLimit();
    QImageReader::setAllocationLimit(2); // megabytes; the picture takes four
    preview(fixture, path);
    QImageReader::setAllocationLimit(limit);
    QVERIFY(pictureOf(fixture).isNull());
    QCOMPARE(frameOf(fixture)->size(), QSize(151, 151));
    fixture.window.dopreview();
    QCOMPARE(colourOf(fixture), QColor(Qt::red));
}

void PreviewTest::nothingToPreviewLeavesTheFrameAlone_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("current");
    QTest::newRow("no row") << 0 << -1;
    QTest::newRow("rows but no current one") << 2 << -1;
    QTest::newRow("a current row without an item") << 2 << 1;
}

void PreviewTest::nothingToPreviewLeavesTheFrameAlone()
{
    QFETCH(int, rows);
    QFETCH(int, current);
    WindowFixture fixture;
    auto *table = fixture.find<QTableWidget>("inputfiletableWidget");
    table->setRowCount(rows);
    table->setCurrentCell(current, 0);
    const QImage before = pictureOf(fixture);
    frameOf(fixture)->resize(33, 44);
    fixture.window.dopreview();
    QCOMPARE(frameOf(fixture)->size(), QSize(33, 44));
    QCOMPARE(pictureOf(fixture), before);
}

void PreviewTest::nothingIsThrownOutOfThePreview_data()
{
    QTest::addColumn<Thrower>("thrower");
    QTest::newRow("a number") << Thrower([] { throw 1; });
    QTest::newRow("no memory") << Thrower([] { throw std::bad_alloc(); });
    QTest::newRow("an error") << Thrower([] { throw std::runtime_error("broken"); });
    QTest::newRow("an object of no known kind") << Thrower([] { throw QSize(); });
}

void PreviewTest::nothingIsThrownOutOfThePreview()
{
    QFETCH(Thrower, thrower);
    WindowFixture fixture;
    auto *table = fixture.find<QTableWidget>("inputfiletableWidget");
    auto *item = new ThrowingItem(thrower);
    table->setRowCount(1);
    table->setItem(0, 0, item);
    table->setCurrentCell(0, 0);
    item->armed = true; // for as long as no code of Qt's stands between
    bool thrown = false;
    try {
        fixture.window.dopreview();
    } catch (...) {
        thrown = true;
    }
    item->armed = false;
    QVERIFY(!thrown);
}

void PreviewTest::emptiedListKeepsTheDefaultPictureAtLaterFirings()
{
    WindowFixture fixture;
    const QImage before = pictureOf(fixture);
    preview(fixture, savePicture(fixture, u"p.png"_s, {1000, 100}, Qt::red));
    fixture.press("removeallButton");
    fixture.window.dopreview();
    QCOMPARE(frameOf(fixture)->size(), QSize(151, 151));
    QCOMPARE(pictureOf(fixture), before);
}

void PreviewTest::timerStartsAtTheFirstClickAndRepeats()
{
    WindowFixture fixture;
    QTimer *timer = ProcessProbe::previewTimer(fixture.window);
    makeCurrent(fixture, fixture.makeFile(u"a.jpg"_s));
    QVERIFY(!timer->isActive());
    auto *table = fixture.find<QTableWidget>("inputfiletableWidget");
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier,
                      table->visualItemRect(table->item(0, 0)).center());
    QVERIFY(timer->isActive());
    QCOMPARE(timer->interval(), 300);
    QVERIFY(!timer->isSingleShot());
    int firings = 0;
    connect(timer, &QTimer::timeout, this, [&firings] { ++firings; });
    QTRY_VERIFY(firings >= 2);
    fixture.press("removeallButton");
    QVERIFY(timer->isActive()); // it goes on, with nothing to show
}

void PreviewTest::selectionShowsItsPictureWhenTheTimerFires()
{
    WindowFixture fixture;
    const QString red = savePicture(fixture, u"red.png"_s, {10, 10}, Qt::red);
    const QString blue = savePicture(fixture, u"blue.png"_s, {10, 10}, Qt::blue);
    fixture.drop({QUrl::fromLocalFile(red), QUrl::fromLocalFile(blue)});
    auto *table = fixture.find<QTableWidget>("inputfiletableWidget");
    table->selectRow(1);
    QVERIFY(colourOf(fixture) != QColor(Qt::blue)); // not before the delay
    QTRY_COMPARE(colourOf(fixture), QColor(Qt::blue));
    table->selectRow(0);
    QTRY_COMPARE(colourOf(fixture), QColor(Qt::red));
}

void PreviewTest::rewrittenFileShowsItsNewContent()
{
    WindowFixture fixture;
    const QString path = savePicture(fixture, u"p.bmp"_s, {20, 20}, Qt::red);
    const auto rewind = [&path] {
        QFile file(path);
        return file.open(QIODevice::ReadWrite) &&
               file.setFileTime(QDateTime::fromSecsSinceEpoch(1000000000),
                                QFileDevice::FileModificationTime);
    };
    QVERIFY(rewind());
    makeCurrent(fixture, path);
    fixture.window.setpreview();
    QTRY_COMPARE(colourOf(fixture), QColor(Qt::red));

    // Same name, size and time of change: only the content differs.
    const qint64 size = QFileInfo(path).size();
    savePicture(fixture, u"p.bmp"_s, {20, 20}, Qt::blue);
    QVERIFY(rewind());
    QCOMPARE(QFileInfo(path).size(), size);
    QTRY_COMPARE(colourOf(fixture), QColor(Qt::blue));
}

QTEST_MAIN(PreviewTest)
#include "preview_test.moc"
