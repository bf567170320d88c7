// The preview's firings on one image.
//
//   bench_preview time IMAGE TURNS    one that decodes, beside decoding whole and scaling,
//   milliseconds bench_preview memory IMAGE        resident MiB after the 20th and after the 500th
//   that decodes bench_preview idle IMAGE          processor time of the idle window, percent of
//   one processor bench_preview wait IMAGE TURNS    longest time without an answer when it is
//   selected, milliseconds

#include "previewbox.h"
#include "residentmemory.h"
#include "samples.h"
#include "startup.h"
#include "windowcontrols.h"

#include <QApplication>
#include <QDateTime>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QImageReader>
#include <QTableWidget>
#include <QTimer>
#include <QUrl>

#include <algorithm>
#include <map>

#include <sys/resource.h>

namespace {

/// Qt's fastest way from a JPEG file to the picture in the pane that still decodes all of
/// its pixels: the quality below 50 chooses the faster of the decoder's transforms and no smoothed
/// colours.
double decodeAndScale(const QString &path)
{
    return millisecondsOf([&path] {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            return;
        QImageReader reader(&file, "jpeg");
        reader.setQuality(0);
        const QImage image = reader.read();
        const QImage scaled = image.scaled(previewSize(image.size()), Qt::IgnoreAspectRatio,
                                           Qt::SmoothTransformation);
        if (scaled.isNull())
            std::abort();
    });
}

void waitFor(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

/// One firing after a change of the file's state, which makes it decode the file.
double fireOnChange(Process &window, const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite) ||
        !file.setFileTime(QDateTime::currentDateTime(), QFileDevice::FileModificationTime))
        std::abort();
    return millisecondsOf([&window] { window.dopreview(); });
}

void measureTime(Process &window, const QString &path, int turns)
{
    fireOnChange(window, path); // loads the image plug-ins
    Samples samples;
    samples.takeInTurn(
        turns, [&window, &path] { return fireOnChange(window, path); },
        [&path] { return decodeAndScale(path); });
    samples.print();
}

void measureMemory(Process &window, const QString &path, int /*turns*/)
{
    Samples samples;
    for (int firing = 1; firing <= 500; ++firing) {
        fireOnChange(window, path);
        QApplication::processEvents();
        if (firing == 20)
            samples.against.push_back(residentMemory());
    }
    samples.ours.push_back(residentMemory());
    samples.print();
}

double processorSeconds()
{
    rusage usage = {};
    getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval &time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

void measureIdle(Process &window, const QString & /*path*/, int /*turns*/)
{
    constexpr int measuredSeconds = 10;
    window.setpreview();
    waitFor(3000); // a file is decoded at each firing until it has been left alone for two seconds
    const double before = processorSeconds();
    waitFor(measuredSeconds * 1000);
    Samples samples;
    samples.ours.push_back((processorSeconds() - before) / measuredSeconds * 100);
    samples.against.push_back(0);
    samples.print();
}

/// The longest time between two events of a timer from a selection on.
double longestWait(Process &window, const QString &path)
{
    fireOnChange(window, path); // the next firing decodes too
    QElapsedTimer sinceAnswer;
    sinceAnswer.start();
    qint64 longest = 0;
    QTimer answers;
    QObject::connect(&answers, &QTimer::timeout,
                     [&] { longest = std::max(longest, sinceAnswer.restart()); });
    answers.start(1);
    window.setpreview();
    waitFor(1500);
    return static_cast<double>(longest);
}

void measureWait(Process &window, const QString &path, int turns)
{
    Samples samples;
    for (int turn = 0; turn < turns; ++turn)
        samples.ours.push_back(longestWait(window, path));
    samples.against.push_back(0);
    samples.print();
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    setUpApplication(application);
    if (argc < 3)
        return 2;
    const QString path = QString::fromLocal8Bit(argv[2]);
    WindowControls controls;
    controls.window.show();
    controls.drop({QUrl::fromLocalFile(path)});
    controls.find<QTableWidget>("inputfiletableWidget")->setCurrentCell(0, 0);
    QApplication::processEvents();
    const std::map<QByteArray, void (*)(Process &, const QString &, int)> modes{
        {"time", measureTime},
        {"memory", measureMemory},
        {"idle", measureIdle},
        {"wait", measureWait}};
    modes.at(argv[1])(controls.window, path, argc > 3 ? std::atoi(argv[3]) : 5);
    return 0;
}
