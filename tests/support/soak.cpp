// Converts many small images one by one, with description and security, through the real window
// and the tools beside this program, and prints what that cost. Ends with status 1 when a file is
// lost or a descriptor is kept.
//
//   soak fake|real COUNT    what the tools beside this program are

#include "opendescriptors.h"
#include "pdffacts.h"
#include "residentmemory.h"
#include "startup.h"
#include "windowcontrols.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <QUrl>

#include <algorithm>
#include <cstdio>
#include <ctime>

using namespace Qt::StringLiterals;

namespace {

constexpr int runTimeout = 24 * 60 * 60 * 1000; // ms
const QString title = u"Soak"_s;
const QString password = u"secret"_s;

/// The longest of the times between two turns of a 10 ms timer, in ms. Of a long gap on a busy
/// machine only the part that was this program's own work is the window's.
struct Gaps
{
    qint64 longest = 0;
    qint64 maxWork = 0;
};

struct Measures
{
    qsizetype lost = 0;
    Gaps gaps;
    qsizetype descriptorsBefore = 0;
    qsizetype descriptorsAfter = 0;
    double growth = 0;   // of the resident memory, MiB
    qint64 duration = 0; // ms
};

QString baseName(int number)
{
    return u"image-%1"_s.arg(number, 5, 10, QLatin1Char('0'));
}

QList<QUrl> makeImages(const QDir &folder, int count)
{
    QList<QUrl> urls;
    for (int i = 0; i < count; ++i) {
        QFile file(folder.filePath(baseName(i) + u".ppm"_s));
        const QByteArray pixels(qsizetype(16) * 12 * 3, static_cast<char>(i));
        if (!file.open(QIODevice::WriteOnly) || file.write("P6 16 12 255\n" + pixels) < 0)
            qFatal("cannot write %s", qPrintable(file.fileName()));
        urls << QUrl::fromLocalFile(file.fileName());
    }
    return urls;
}

/// The PDF of an image is there, and both tools have had it.
bool isConverted(const QString &pdf, bool realTools)
{
    if (realTools) {
        const PdfFacts facts = readPdf(pdf, password.toUtf8());
        return facts.pages == 1 && facts.title == title && facts.encrypted;
    }
    QFile file(pdf);
    return file.open(QIODevice::ReadOnly) && file.readAll().startsWith("pdftk(convert(");
}

void fillIn(WindowControls &controls, const QString &output, const QList<QUrl> &images)
{
    controls.fill("outputfolderEdit", output);
    controls.fill("lineEdit_title", title);
    controls.fill("lineEdit_ownerpwd", password);
    controls.check("checkBox_allowprint");
    controls.drop(images);
    // The preview works all along.
    controls.find<QTableWidget>("inputfiletableWidget")->setCurrentCell(0, 0);
}

/// Processor time that this program has used so far, in ms.
qint64 ownWork()
{
    timespec time = {};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return qint64(time.tv_sec) * 1000 + time.tv_nsec / 1000000;
}

/// Runs the event loop until no tool runs.
Gaps runUntilQuiet()
{
    Gaps gaps;
    QElapsedTimer sinceLast;
    qint64 workAtLast = ownWork();
    QTimer probe;
    probe.setTimerType(Qt::PreciseTimer);
    QObject::connect(&probe, &QTimer::timeout, [&] {
        const qint64 work = ownWork();
        gaps.longest = std::max(gaps.longest, sinceLast.restart());
        gaps.maxWork = std::max(gaps.maxWork, work - workAtLast);
        workAtLast = work;
    });
    sinceLast.start();
    probe.start(10);
    WindowControls::waitUntilQuiet(runTimeout);
    return gaps;
}

Measures soak(int count, bool realTools)
{
    const QTemporaryDir folder;
    const QDir place(folder.path());
    place.mkdir(u"in"_s);
    place.mkdir(u"out"_s);
    WindowControls controls;
    controls.window.show();
    fillIn(controls, place.filePath(u"out"_s), makeImages(QDir(place.filePath(u"in"_s)), count));

    Measures measures;
    QApplication::processEvents();
    measures.descriptorsBefore = openDescriptors().size();
    const double memory = residentMemory();
    QElapsedTimer duration;
    duration.start();
    controls.press("runButton");
    measures.gaps = runUntilQuiet();
    measures.duration = duration.elapsed();
    measures.growth = residentMemory() - memory;
    measures.descriptorsAfter = openDescriptors().size();
    for (int i = 0; i < count; ++i) {
        const QString pdf = place.filePath(u"out/%1.pdf"_s.arg(baseName(i)));
        measures.lost += isConverted(pdf, realTools) ? 0 : 1;
    }
    return measures;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    const int count = arguments.value(2).toInt();
    if (arguments.size() != 3 || count <= 0) {
        std::fputs("Usage: soak fake|real COUNT\n", stderr);
        return 2;
    }
    setUpApplication(application);
    const Measures result = soak(count, arguments.at(1) == QLatin1String("real"));
    std::printf("%d images with the %s tools in %.1f s\n"
                "  lost files                    %lld\n"
                "  descriptors before and after  %lld, %lld\n"
                "  memory per converted image    %.1f KiB\n"
                "  longest gap of a 10 ms timer  %lld ms\n"
                "  longest own work in a gap     %lld ms\n",
                count, qPrintable(arguments.at(1)), double(result.duration) / 1000.0,
                qlonglong(result.lost), qlonglong(result.descriptorsBefore),
                qlonglong(result.descriptorsAfter), result.growth * 1024 / count,
                result.gaps.longest, result.gaps.maxWork);
    return result.lost == 0 && result.descriptorsAfter <= result.descriptorsBefore ? 0 : 1;
}
