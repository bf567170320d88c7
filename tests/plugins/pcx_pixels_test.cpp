// The plug-in through Qt's image reader, against ImageMagick's reading of the same file.

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QImageReader>
#include <QProcess>
#include <QStandardPaths>
#include <QTest>
#include <QtPlugin>

Q_IMPORT_PLUGIN(PcxPlugin)

namespace {

struct Output
{
    bool succeeded = false;
    QByteArray bytes;
};

Output run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    const bool finished = process.waitForFinished();
    return {finished && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0,
            process.readAllStandardOutput()};
}

/// The first `convert` that is ImageMagick; other programs have that name.
QString imageMagick()
{
    const QString name = QStringLiteral("convert");
    const QStringList candidates{QStringLiteral("/usr/bin/convert"),
                                 QStandardPaths::findExecutable(name)};
    for (const QString &candidate : candidates)
        if (run(candidate, {QStringLiteral("-version")}).bytes.contains("ImageMagick"))
            return candidate;
    return {};
}

} // namespace

class TestPcxPixelsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void equalImageMagicksReading_data();
    void equalImageMagicksReading();

private:
    QString convert;
};

void TestPcxPixelsTest::initTestCase()
{
    QCoreApplication::setLibraryPaths({}); // no other plug-in can read for ours
    QVERIFY(QImageReader::supportedImageFormats().contains("pcx"));
    convert = imageMagick();
    QVERIFY2(!convert.isEmpty(), "ImageMagick is not installed (package imagemagick)");
    qInfo("%s", run(convert, {QStringLiteral("-version")}).bytes.split('\n').first().constData());
}

void TestPcxPixelsTest::equalImageMagicksReading_data()
{
    QTest::addColumn<QString>("path");
    const QDir samples(QStringLiteral(PCX_SAMPLES));
    const QFileInfoList files = samples.entryInfoList({QStringLiteral("*.pcx")});
    QVERIFY(!files.isEmpty());
    for (const QFileInfo &file : files)
        QTest::newRow(qPrintable(file.completeBaseName())) << file.filePath();
}

void TestPcxPixelsTest::equalImageMagicksReading()
{
    QFETCH(const QString, path);
    const Output expected = run(
        convert, {path, QStringLiteral("-depth"), QStringLiteral("8"), QStringLiteral("rgba:-")});
    QVERIFY(expected.succeeded);
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    QCOMPARE(reader.format(), QByteArray("pcx"));
    QCOMPARE(reader.size(), QSize(21, 6));

    const QImage image = reader.read().convertToFormat(QImage::Format_RGBA8888);
    const QByteArray pixels(reinterpret_cast<const char *>(image.constBits()), image.sizeInBytes());
    QCOMPARE(pixels, expected.bytes);
}

QTEST_GUILESS_MAIN(TestPcxPixelsTest)
#include "pcx_pixels_test.moc"
