// When the preview reads the current row's file: only changed files, only formats that the image
// tool reads, nothing that blocks, and without a message on standard error.

#include "openwatch.h"
#include "previewprobe.h"
#include "quietdecoders.h"

#include <QBuffer>
#include <QDateTime>
#include <QDir>
#include <QImageWriter>
#include <QLoggingCategory>
#include <QRandomGenerator>
#include <QTemporaryFile>

#include <atomic>
#include <thread>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

void print(QtMsgType, const QMessageLogContext &, const QString &text)
{
    std::fprintf(stderr, "%s\n", qPrintable(text));
}

/// Standard error as a file while it lives. Qt's messages go there too, instead of into the log of
/// the test.
class CapturedErrors
{
public:
    CapturedErrors()
        : m_usual(dup(STDERR_FILENO))
        , m_usualHandler(qInstallMessageHandler(print))
    {
        if (!m_file.open() || dup2(m_file.handle(), STDERR_FILENO) < 0)
            qFatal("cannot redirect standard error");
    }
    ~CapturedErrors()
    {
        qInstallMessageHandler(m_usualHandler);
        dup2(m_usual, STDERR_FILENO);
        close(m_usual);
    }
    Q_DISABLE_COPY_MOVE(CapturedErrors)

    QByteArray text()
    {
        m_file.seek(0);
        return m_file.readAll();
    }

private:
    int m_usual;
    QtMessageHandler m_usualHandler;
    QTemporaryFile m_file;
};

QByteArray encoded(const char *format, QSize size, QColor colour)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour);
    QBuffer file;
    if (!QImageWriter(&file, format).write(image))
        qFatal("cannot write the picture");
    return file.data();
}

void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write the file");
}

using Change = std::function<void(const QString &path)>;

} // namespace

class PreviewFilesTest : public QObject
{
    Q_OBJECT

private slots:
    void unchangedFileIsReadOnce();
    void changedFileShowsAtTheNextFiring_data();
    void changedFileShowsAtTheNextFiring();
    void unreadableFileIsReadOnce();
    void largePictureLooksAsOneDecodedWhole_data();
    void largePictureLooksAsOneDecodedWhole();
    void fifoIsNeverOpened();
    void formatsThatTheImageToolRefusesShowNothing_data();
    void formatsThatTheImageToolRefusesShowNothing();
    void tiffRewrittenMeanwhileEndsNothing();
    void decodersPrintNothing_data();
    void decodersPrintNothing();
    void everythingElseIsPrinted();
};

void PreviewFilesTest::unchangedFileIsReadOnce()
{
    WindowFixture fixture;
    const QString path = savePicture(fixture, u"p.bmp"_s, {20, 20}, Qt::red);
    preview(fixture, path);
    const OpenWatch opens(path);
    fixture.window.dopreview();
    QVERIFY(opens.wasOpened()); // touched a moment ago, and maybe once more within this moment
    QTRY_VERIFY((fixture.window.dopreview(), !opens.wasOpened()));

    frameOf(fixture)->resize(1, 1);
    frameOf(fixture)->setPalette({});
    fixture.window.dopreview();
    QVERIFY(!opens.wasOpened());
    QCOMPARE(frameOf(fixture)->size(), QSize(151, 151));
    QCOMPARE(colourOf(fixture), QColor(Qt::red));

    const QString other = savePicture(fixture, u"q.bmp"_s, {20, 20}, Qt::blue);
    preview(fixture, other);
    QCOMPARE(colourOf(fixture), QColor(Qt::blue));
    fixture.find<QTableWidget>("inputfiletableWidget")->setCurrentCell(0, 0);
    fixture.window.dopreview();
    QCOMPARE(colourOf(fixture), QColor(Qt::red));
}

void PreviewFilesTest::changedFileShowsAtTheNextFiring_data()
{
    QTest::addColumn<Change>("change");
    const QByteArray blue = encoded("bmp", {20, 20}, Qt::blue);
    const auto rewrite = [blue](const QString &path) { write(path, blue); };
    QTest::newRow("rewritten at the same size") << Change(rewrite);
    QTest::newRow("rewritten at another size") << Change([](const QString &path) {
        write(path, encoded("bmp", {30, 30}, Qt::blue));
    });
    QTest::newRow("replaced by another file") << Change([blue](const QString &path) {
        write(path + u".new"_s, blue);
        if (rename(QFile::encodeName(path + u".new"_s).constData(),
                   QFile::encodeName(path).constData()) != 0)
            qFatal("cannot rename the file");
    });
    QTest::newRow("rewritten and touched back") << Change([rewrite](const QString &path) {
        const QDateTime before = QFileInfo(path).lastModified();
        rewrite(path);
        QFile file(path);
        if (!file.open(QIODevice::ReadWrite) ||
            !file.setFileTime(before, QFileDevice::FileModificationTime))
            qFatal("cannot touch the file");
    });
}

void PreviewFilesTest::changedFileShowsAtTheNextFiring()
{
    QFETCH(Change, change);
    WindowFixture fixture;
    const QString path = savePicture(fixture, u"p.bmp"_s, {20, 20}, Qt::red);
    preview(fixture, path);
    const OpenWatch opens(path);
    QTRY_VERIFY((fixture.window.dopreview(), !opens.wasOpened()));
    change(path);
    fixture.window.dopreview();
    QCOMPARE(colourOf(fixture), QColor(Qt::blue));
}

void PreviewFilesTest::unreadableFileIsReadOnce()
{
    WindowFixture fixture;
    const QString path = fixture.makeFile(u"p.png"_s, "\x89PNG\r\n\x1a\n, and no more");
    preview(fixture, path);
    const OpenWatch opens(path);
    QTRY_VERIFY((fixture.window.dopreview(), !opens.wasOpened()));
    QVERIFY(pictureOf(fixture).isNull());
}

void PreviewFilesTest::largePictureLooksAsOneDecodedWhole_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QSize>("size");
    QTest::newRow("JPEG, wide") << "p.jpg" << QSize(3000, 2000);
    QTest::newRow("JPEG, high") << "p.jpg" << QSize(1000, 3000);
    QTest::newRow("JPEG, of odd size") << "p.jpg" << QSize(2999, 2001);
    QTest::newRow("JPEG, a little larger than needed") << "p.jpg" << QSize(610, 800);
    QTest::newRow("PNG") << "p.png" << QSize(1501, 1003);
    QTest::newRow("WEBP") << "p.webp" << QSize(1501, 1003);
}

void PreviewFilesTest::largePictureLooksAsOneDecodedWhole()
{
    QFETCH(QString, name);
    QFETCH(QSize, size);
    QRandomGenerator random(7);
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) { // areas with edges, and noise
            const bool even = (x / 90 + y / 70) % 2 == 0;
            const int noise = random.bounded(40);
            image.setPixel(x, y,
                           qRgb(x * 200 / image.width() + noise, (even ? 200 : 30) + noise,
                                y * 200 / image.height() + noise));
        }
    }
    WindowFixture fixture;
    const QString path = fixture.inputPath(name);
    QVERIFY(image.save(path, nullptr, 90));
    preview(fixture, path);

    const QImage shown = pictureOf(fixture);
    const QImage whole =
        QImage(path).scaled(shown.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    int worst = 0;
    for (int y = 0; y < shown.height(); ++y) {
        for (int x = 0; x < shown.width(); ++x) {
            const QColor ours = shown.pixelColor(x, y);
            const QColor expected = whole.pixelColor(x, y);
            worst = std::max({worst, std::abs(ours.red() - expected.red()),
                              std::abs(ours.green() - expected.green()),
                              std::abs(ours.blue() - expected.blue())});
        }
    }
    constexpr int unseen = 32; // of 255: an edge a quarter of a pixel aside
    QVERIFY2(worst <= unseen, qPrintable(QString::number(worst)));
}

void PreviewFilesTest::fifoIsNeverOpened()
{
    WindowFixture fixture;
    const QString path = fixture.inputPath(u"fifo"_s);
    QCOMPARE(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    const OpenWatch opens(path);
    preview(fixture, path);
    QVERIFY(!opens.wasOpened());
    const int reader = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK);
    QVERIFY(opens.wasOpened()); // the counter counts
    close(reader);
}

void PreviewFilesTest::formatsThatTheImageToolRefusesShowNothing_data()
{
    QTest::addColumn<QByteArray>("content");
    for (const char *format : {"xbm", "xpm", "ico"})
        QTest::newRow(format) << encoded(format, {16, 16}, Qt::red);
    QTest::newRow("svg") << QByteArray("<svg xmlns='http://www.w3.org/2000/svg' width='9' "
                                       "height='9'><rect width='9' height='9'/></svg>");
    QTest::newRow("pdf") << QByteArray("%PDF-1.4\n");
    QTest::newRow("tga") << QByteArray::fromHex("000002000000000000000000010001001800ffffff");
}

void PreviewFilesTest::formatsThatTheImageToolRefusesShowNothing()
{
    QFETCH(QByteArray, content);
    WindowFixture fixture;
    for (const QString &name :
         {u"p.png"_s, u"p.svg"_s, u"p."_s + QLatin1String(QTest::currentDataTag())}) {
        const QString path = fixture.makeFile(name, content);
        preview(fixture, path);
        QVERIFY(pictureOf(fixture).isNull());
    }
}

void PreviewFilesTest::tiffRewrittenMeanwhileEndsNothing()
{
    WindowFixture fixture;
    const QByteArray content = encoded("tiff", {600, 400}, Qt::red);
    const QString path = fixture.makeFile(u"p.tif"_s, content);
    std::atomic<bool> done = false;
    std::thread scanner([&] {
        while (!done) {
            if (truncate(QFile::encodeName(path).constData(), 100) != 0)
                qFatal("cannot truncate the file");
            std::this_thread::yield();
            write(path, content);
            std::this_thread::yield();
        }
    });
    makeCurrent(fixture, path);
    for (int firing = 0; firing < 300; ++firing)
        fixture.window.dopreview();
    done = true;
    scanner.join();
    fixture.window.dopreview();
    QCOMPARE(colourOf(fixture), QColor(Qt::red));
}

void PreviewFilesTest::decodersPrintNothing_data()
{
    QTest::addColumn<QByteArray>("content");
    QByteArray png = encoded("png", {50, 50}, Qt::red);
    QTest::newRow("PNG cut short") << png.left(png.size() - 20);
    png[png.indexOf("IDAT") + 6] = 'x';
    QTest::newRow("PNG with a wrong checksum") << png;
    const QByteArray tiff = encoded("tiff", {50, 50}, Qt::red);
    QTest::newRow("TIFF cut short") << tiff.left(tiff.size() / 2);
    QTest::newRow("TIFF without its directory") << tiff.left(8);
}

void PreviewFilesTest::decodersPrintNothing()
{
    QFETCH(QByteArray, content);
    WindowFixture fixture;
    const QString path = fixture.makeFile(u"p"_s, content);
    CapturedErrors errors;
    QImage(path).isNull(); // Qt by itself, so that there is something to hear
    QVERIFY(!errors.text().isEmpty());
    const QByteArray before = errors.text();
    preview(fixture, path);
    QCOMPARE(errors.text(), before);
}

void PreviewFilesTest::everythingElseIsPrinted()
{
    CapturedErrors errors;
    std::fputs("before\n", stderr);
    {
        const QuietDecoders quiet;
        std::fputs("decoder\n", stderr);
        qWarning("of Qt");
        const QLoggingCategory reader("qt.imageformats.tiff");
        qCCritical(reader, "of a reader");
        std::fputs("decoder\n", stderr);
        std::thread([] { std::fputs("another thread\n", stderr); }).join();
    }
    std::fputs("after\n", stderr);
    QCOMPARE(errors.text(), QByteArray("before\nof Qt\nanother thread\nafter\n"));
}

QTEST_MAIN(PreviewFilesTest)
#include "preview_files_test.moc"
