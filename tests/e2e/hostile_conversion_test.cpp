// The same two hundred files through the window and the real tool, as they are and turned, so that
// none is copied: each is either refused or becomes a PDF that opens, nothing is left behind, and
// no call passes its bounds. A call that would take too long is ended by the tool itself.

#include "hostilefiles.h"
#include "pdffacts.h"
#include "startup.h"
#include "windowdriver.h"

#include <QApplication>
#include <QProgressBar>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int runTimeout = 900000; // ms

struct Call
{
    QString input;
    int status;
    int duration; // ms
};

/// The calls in the tool's log.
QList<Call> readLog(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    // The image is the last argument but one.
    static const QRegularExpression entry(
        u" exit status (\\d+) after (\\d+) ms\\n(?:  argument: .*\\n)*  argument: (.*)\\n  argument: "_s);
    QList<Call> calls;
    auto matches = entry.globalMatch(QString::fromUtf8(file.readAll()));
    while (matches.hasNext()) {
        const auto match = matches.next();
        calls.append({match.captured(3), match.captured(1).toInt(), match.captured(2).toInt()});
    }
    return calls;
}

QStringList everythingIn(const QString &folder)
{
    return QDir(folder).entryList(
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}

} // namespace

class HostileConversionTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyFileIsConvertedOrRefused_data();
    void everyFileIsConvertedOrRefused();
    void mergeWithASpoiltFileMakesNoPdf();

private:
    QString place(const QString &name) const { return folder.filePath(name); }
    void emptyTheFolders() const;
    void addAll(WindowDriver &driver, const QList<QUrl> &images) const;

    HostileFiles files;
    QList<QUrl> urls; // also of the file that vanishes
    QTemporaryDir folder;
};

void HostileConversionTest::initTestCase()
{
    QCOMPARE(files.make(), QString());
    urls = files.urls();
    QVERIFY(QDir(folder.path()).mkdir(u"pixels"_s));
    qputenv("TMPDIR", place(u"pixels"_s).toUtf8());
    qputenv("TESSARO_TOOL_LOG", place(u"log"_s).toUtf8());
}

void HostileConversionTest::emptyTheFolders() const
{
    QVERIFY(QDir(place(u"out"_s)).removeRecursively() && QDir().mkdir(place(u"out"_s)));
    QFile::remove(place(u"log"_s));
}

void HostileConversionTest::addAll(WindowDriver &driver, const QList<QUrl> &images) const
{
    driver.drop(images);
    driver.fill("outputfolderEdit", place(u"out"_s));
}

void HostileConversionTest::everyFileIsConvertedOrRefused_data()
{
    QTest::addColumn<int>("turn");
    QTest::newRow("as they are") << 0;
    QTest::newRow("turned") << 1;
}

void HostileConversionTest::everyFileIsConvertedOrRefused()
{
    QFETCH(int, turn);
    emptyTheFolders();
    WindowDriver driver;
    QVERIFY(driver.show());
    addAll(driver, urls);
    driver.select("comboBox_rotate", turn);
    files.letOneVanish();
    QList<int> progress;
    QList<qint64> peaks; // of all tools that had ended when the bar moved
    auto *bar = driver.find<QProgressBar>("progressBar");
    connect(bar, &QProgressBar::valueChanged, this, [&progress, &peaks](int value) {
        progress << value;
        peaks << peakMemory(RUSAGE_CHILDREN);
    });
    QVERIFY(driver.convert(runTimeout));
    QCOMPARE(progress.size(), 201); // each image, and the end
    QCOMPARE(progress.last(), 0);

    const QList<Call> calls = readLog(place(u"log"_s));
    QCOMPARE(calls.size(), 200);
    QStringList expected;
    for (const Call &call : calls) {
        QVERIFY2(call.status < 128, qPrintable(call.input)); // ended by no signal
        if (call.status == 0)
            expected << QFileInfo(call.input).baseName() + u".pdf"_s;
    }
    QCOMPARE(everythingIn(place(u"out"_s)), expected);
    for (const QString &pdf : std::as_const(expected))
        QVERIFY2(readPdf(place(u"out/"_s) + pdf).pages >= 1, qPrintable(pdf));
    QCOMPARE(everythingIn(place(u"pixels"_s)), QStringList());

    const auto slowest = std::ranges::max(calls, {}, &Call::duration);
    const qsizetype largest = peaks.indexOf(peaks.last()) - 1; // the bar moves at the next start
    qInfo("%lld of 200 converted; slowest: %d ms (%s); largest: %lld MiB (%s)",
          qlonglong(expected.size()), slowest.duration, qPrintable(slowest.input),
          peaks.last() >> 20, qPrintable(calls.at(largest).input));
    QVERIFY(peaks.last() < maxMemory);
}

void HostileConversionTest::mergeWithASpoiltFileMakesNoPdf()
{
    WindowDriver driver;
    QVERIFY(driver.show());
    QVERIFY(driver.tick("checkBox_joinpdf"));
    const QUrl good = QUrl::fromLocalFile(QStringLiteral(SAMPLES "/beach.jpg"));
    emptyTheFolders();
    addAll(driver, QList<QUrl>{good} + urls);
    QVERIFY(driver.convert(runTimeout));
    QCOMPARE(everythingIn(place(u"out"_s)), QStringList());
}

int main(int argc, char *argv[])
{
    qputenv("QTEST_FUNCTION_TIMEOUT", QByteArray::number(2 * runTimeout));
    QApplication application(argc, argv);
    setUpApplication(application);
    HostileConversionTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "hostile_conversion_test.moc"
