// The files that convert leaves, on success and on failure.

#include "imagefiles.h"
#include "pdffacts.h"
#include "pdfpages.h"
#include "privatelocales.h"
#include "toolbench.h"

#include <QDir>
#include <QFile>
#include <QPainter>
#include <QRegularExpression>
#include <QTest>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

class ConvertResultsTest : public QObject
{
    Q_OBJECT

private slots:
    void optionsReachTheTool_data();
    void optionsReachTheTool();
    void sixtyScannedPagesGiveSixty();
    void failureLeavesTheOlderPdf_data();
    void failureLeavesTheOlderPdf();
    void whatIsNoRegularFileFailsAtOnce_data();
    void whatIsNoRegularFileFailsAtOnce();
    void outputFolderMayBeRelativeOrOdd_data();
    void outputFolderMayBeRelativeOrOdd();
    void missingOutputFolderIsNamed();
    void decompressionBombIsRefused_data();
    void decompressionBombIsRefused();
    void tenCallsAtOnceInOneFolder();
    void messagesNameTheUsersFiles();
    void callIsLoggedOnRequest();
};

namespace {

RunResult convertIn(const QTemporaryDir &folder, const QStringList &words)
{
    return runBundled(u"convert"_s, words, folder.path());
}

} // namespace

void ConvertResultsTest::optionsReachTheTool_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<int>("turn");
    QTest::newRow("none") << QStringList{} << QSizeF(40, 20) << 0;
    QTest::newRow("a page size") << QStringList{u"-resize"_s, u"80x80"_s} << QSizeF(80, 40) << 0;
    QTest::newRow("a turn") << QStringList{u"-rotate"_s, u"90"_s} << QSizeF(20, 40) << 90;
    QTest::newRow("all of them") << QStringList{u"-resize"_s,    u"80x80"_s,     u"-rotate"_s,
                                                u"270"_s,        u"-compress"_s, u"zip"_s,
                                                u"-monochrome"_s}
                                 << QSizeF(40, 80) << 270;
}

void ConvertResultsTest::optionsReachTheTool()
{
    QFETCH(QStringList, options);
    QFETCH(QSizeF, size);
    QFETCH(int, turn);
    const QTemporaryDir folder;
    QImage image(40, 20, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter(&image).fillRect(0, 0, 20, 10, Qt::white);
    QVERIFY(image.save(folder.filePath(u"x.ppm"_s)));
    const RunResult result = convertIn(folder, options + QStringList{u"x.ppm"_s, u"o.pdf"_s});
    QCOMPARE(result.errors + result.output, QByteArray());
    QCOMPARE(readPdf(folder.filePath(u"o.pdf"_s)).pageSizes, QList<QSizeF>{size});
    QCOMPARE(visibleDifference(drawnPage(folder.filePath(u"o.pdf"_s), 0, finelyDrawn),
                               image.transformed(QTransform().rotate(turn))),
             QString());
}

// Only the content decides the format.
void ConvertResultsTest::sixtyScannedPagesGiveSixty()
{
    const QTemporaryDir folder;
    makeImage(folder.filePath(u"0.jpg"_s), {2480, 3508});
    QStringList arguments;
    for (int page = 0; page < 60; ++page) {
        arguments << QString::number(page) + u".jpg"_s;
        QFile::link(u"0.jpg"_s, folder.filePath(arguments.last()));
    }
    const RunResult result = convertIn(folder, arguments << u"o.pdf"_s);
    QCOMPARE(result.errors, QByteArray());
    const PdfFacts facts = readPdf(folder.filePath(u"o.pdf"_s));
    QCOMPARE(facts.pageSizes, QList<QSizeF>(60, facts.pageSizes.value(0)));
    for (const int page : {0, 59})
        QCOMPARE(visibleDifference(drawnPage(folder.filePath(u"o.pdf"_s), page, 20),
                                   QImage(folder.filePath(u"0.jpg"_s))),
                 QString());
}

void ConvertResultsTest::failureLeavesTheOlderPdf_data()
{
    QTest::addColumn<QStringList>("inputs");
    QTest::newRow("the only image is missing") << QStringList{u"missing.png"_s};
    QTest::newRow("one of three is missing")
        << QStringList{u"x.png"_s, u"missing.png"_s, u"x.png"_s};
    QTest::newRow("the last is no image") << QStringList{u"x.png"_s, u"text.png"_s};
    QTest::newRow("the first is empty") << QStringList{u"empty.png"_s, u"x.png"_s};
    QTest::newRow("one is a PostScript file") << QStringList{u"x.png"_s, u"ps.png"_s};
    QTest::newRow("one is cut off within its header") << QStringList{u"x.png"_s, u"short.png"_s};
    QTest::newRow("one is a folder") << QStringList{u"x.png"_s, u"folder"_s};
}

void ConvertResultsTest::failureLeavesTheOlderPdf()
{
    QFETCH(QStringList, inputs);
    const QTemporaryDir folder;
    makeImage(folder.filePath(u"x.png"_s));
    writeContent(folder.filePath(u"text.png"_s), "no image\n");
    writeContent(folder.filePath(u"empty.png"_s), "");
    writeContent(folder.filePath(u"ps.png"_s), "%!PS\nshowpage\n");
    writeContent(folder.filePath(u"short.png"_s), contentOf(folder.filePath(u"x.png"_s)).left(20));
    QDir(folder.path()).mkdir(u"folder"_s);
    writeContent(folder.filePath(u"o.pdf"_s), "older");
    const QStringList names = namesIn(folder.path());
    const RunResult result = convertIn(folder, inputs + QStringList{u"o.pdf"_s});
    QCOMPARE(result.status, 1);
    QVERIFY(!result.errors.isEmpty());
    QCOMPARE(contentOf(folder.filePath(u"o.pdf"_s)), QByteArray("older"));
    QCOMPARE(namesIn(folder.path()), names);
}

void ConvertResultsTest::whatIsNoRegularFileFailsAtOnce_data()
{
    QTest::addColumn<QString>("input");
    QTest::newRow("a FIFO") << "fifo";
    QTest::newRow("a device") << "/dev/zero";
    QTest::newRow("a folder") << ".";
    QTest::newRow("a symbolic link to a FIFO") << "link";
    QTest::newRow("a loop of symbolic links") << "loop";
}

void ConvertResultsTest::whatIsNoRegularFileFailsAtOnce()
{
    QFETCH(QString, input);
    const QTemporaryDir folder;
    QCOMPARE(mkfifo(QFile::encodeName(folder.filePath(u"fifo"_s)).constData(), 0600), 0);
    QFile::link(u"fifo"_s, folder.filePath(u"link"_s));
    QFile::link(u"loop"_s, folder.filePath(u"loop"_s));
    makeImage(folder.filePath(u"x.png"_s));
    const RunResult result = convertIn(folder, {u"x.png"_s, input, u"o.pdf"_s});
    QCOMPARE(result.status, 1);
    QVERIFY(result.errors.startsWith("convert: cannot read '" + input.toUtf8() + "'"));
    QVERIFY(!QFile::exists(folder.filePath(u"o.pdf"_s)));
}

void ConvertResultsTest::outputFolderMayBeRelativeOrOdd_data()
{
    QTest::addColumn<QString>("output");
    QTest::newRow("below the current folder") << "out";
    QTest::newRow("beginning with a dash") << "-out";
    QTest::newRow("with blanks and dots") << "./my out. put/../my out. put";
    QTest::newRow("with percent signs and brackets") << "50%d [x]";
    QTest::newRow("with a colon") << "png:";
}

void ConvertResultsTest::outputFolderMayBeRelativeOrOdd()
{
    QFETCH(QString, output);
    const QTemporaryDir folder;
    QDir(folder.path()).mkpath(QDir::cleanPath(output));
    makeImage(folder.filePath(u"x.png"_s));
    const RunResult result = convertIn(folder, {u"x.png"_s, output + u"/o.pdf"_s});
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(namesIn(folder.filePath(output)), QStringList{u"o.pdf"_s});
}

void ConvertResultsTest::missingOutputFolderIsNamed()
{
    const QTemporaryDir folder;
    makeImage(folder.filePath(u"x.png"_s));
    const RunResult result = convertIn(folder, {u"x.png"_s, u"no/o.pdf"_s});
    QCOMPARE(result.status, 1);
    QCOMPARE(result.errors,
             QByteArray("convert: cannot use the folder 'no': No such file or directory\n"));
}

void ConvertResultsTest::decompressionBombIsRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    const QByteArray size = QByteArray::fromHex("60ea");
    QTest::newRow("a PNG") << "x.png"
                           << "\x89PNG\r\n\x1a\n" +
                                  imagefiles::chunk(
                                      "IHDR", QByteArray::fromHex("0000ea600000ea600100000000")) +
                                  imagefiles::chunk("IDAT", qCompress(QByteArray(7501, 0)).mid(4)) +
                                  imagefiles::chunk("IEND", {});
    QTest::newRow("a GIF") << "x.gif"
                           << "GIF89a" + size + size +
                                  QByteArray::fromHex("800000000000ffffff2c00000000") + size +
                                  size + QByteArray::fromHex("000202440100") + ";";
    QTest::newRow("a PBM") << "x.pbm"
                           << "P4\n60000 60000\n" + QByteArray(4096, 0);
    QTest::newRow("a PCX") << "x.pcx"
                           << QByteArray::fromHex("0a05010100000000 5fea5fea 48004800") +
                                  QByteArray(48, 0) + QByteArray::fromHex("0001 4c1d 0100") +
                                  QByteArray(58 + 4096, 0);
}

// Only the header claims 60,000 by 60,000 pixels.
void ConvertResultsTest::decompressionBombIsRefused()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    const QTemporaryDir folder;
    writeContent(folder.filePath(name), content);
    const RunResult result = convertIn(folder, {name, u"o.pdf"_s});
    QCOMPARE(result.status, 1);
    QVERIFY(!result.errors.isEmpty());
    QCOMPARE(namesIn(folder.path()), QStringList{name});
}

void ConvertResultsTest::tenCallsAtOnceInOneFolder()
{
    const QTemporaryDir folder;
    makeImage(folder.filePath(u"x.jpg"_s), {900, 700});
    std::vector<std::unique_ptr<QProcess>> calls;
    calls.reserve(10);
    for (int i = 0; i < 10; ++i)
        calls.push_back(startProgram(bundledTool(u"convert"_s),
                                     {u"x.jpg"_s, u"o"_s + QString::number(i % 5) + u".pdf"_s},
                                     folder.path()));
    for (const auto &call : calls) {
        QVERIFY(call->waitForFinished(120'000));
        QCOMPARE(call->readAllStandardError(), QByteArray());
        QCOMPARE(call->exitCode(), 0);
    }
    QCOMPARE(namesIn(folder.path()), QStringList({u"o0.pdf"_s, u"o1.pdf"_s, u"o2.pdf"_s,
                                                  u"o3.pdf"_s, u"o4.pdf"_s, u"x.jpg"_s}));
    for (int i = 0; i < 5; ++i)
        QCOMPARE(readPdf(folder.filePath(u"o"_s + QString::number(i) + u".pdf"_s)).pages, 1);
}

void ConvertResultsTest::messagesNameTheUsersFiles()
{
    const QTemporaryDir folder;
    writeContent(folder.filePath(u"my bad%d.png"_s), "no image\n");
    const RunResult result = convertIn(folder, {u"my bad%d.png"_s, u"o.pdf"_s});
    QVERIFY2(result.errors.contains("`my bad%d.png'"), result.errors.constData());
}

void ConvertResultsTest::callIsLoggedOnRequest()
{
    const QTemporaryDir folder, logs;
    makeImage(folder.filePath(u"x.png"_s));
    writeContent(folder.filePath(u"bad.png"_s), "no image\n");
    const QString log = logs.filePath(u"log"_s);
    const Variables variables = {{u"TESSARO_TOOL_LOG"_s, log}};
    for (const QStringList &words :
         {QStringList{u"-rotate"_s, u"90"_s, u"x.png"_s}, QStringList{u"bad.png"_s},
          QStringList{u"-size"_s, u"1x1"_s, u"xc:red"_s}})
        runBundled(u"convert"_s, words + QStringList{u"o.pdf"_s}, folder.path(), variables);
    const QString text = QString::fromUtf8(contentOf(log));
    QVERIFY2(
        text.contains(QRegularExpression(
            u"^\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\dZ convert exit status 0 after \\d+ ms\n"
            "  argument: -rotate\n  argument: 90\n  argument: x.png\n  argument: o.pdf\n"
            "\\S+ convert exit status 1 after \\d+ ms\n"
            "  argument: bad.png\n  argument: o.pdf\n  message: .*bad.png.*\n"_s)),
        qPrintable(text));
    QVERIFY2(text.contains(u"  argument: xc:red\n  argument: o.pdf\n  message: "_s),
             qPrintable(text));
    QCOMPARE(QFile::permissions(log) & (QFile::ReadOther | QFile::ReadGroup), QFile::Permissions());
    QCOMPARE(namesIn(logs.path()), QStringList{u"log"_s});
}

QTEST_GUILESS_MAIN(ConvertResultsTest)
#include "convertresults_test.moc"
