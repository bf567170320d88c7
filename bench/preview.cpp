// The preview's firings on one image.
//
//   bench_preview time IMAGE TURNS    one firing beside decoding and scaling alone, milliseconds
//   bench_preview memory IMAGE        resident MiB after the 20th and after the 500th firing

#include "previewbox.h"
#include "residentmemory.h"
#include "samples.h"
#include "startup.h"
#include "windowcontrols.h"

#include <QApplication>
#include <QFile>
#include <QImageReader>
#include <QTableWidget>
#include <QUrl>

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

double fire(Process &window)
{
    return millisecondsOf([&window] { window.dopreview(); });
}

void measureTime(Process &window, const QString &path, int turns)
{
    fire(window); // loads the image plug-ins
    Samples samples;
    samples.takeInTurn(
        turns, [&window] { return fire(window); }, [&path] { return decodeAndScale(path); });
    samples.print();
}

void measureMemory(Process &window)
{
    Samples samples;
    for (int firing = 1; firing <= 500; ++firing) {
        fire(window);
        QApplication::processEvents();
        if (firing == 20)
            samples.against.push_back(residentMemory());
    }
    samples.ours.push_back(residentMemory());
    samples.print();
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    prepare(application);
    if (argc < 3)
        return 2;
    const QString path = QString::fromLocal8Bit(argv[2]);
    WindowControls controls;
    controls.window.show();
    controls.drop({QUrl::fromLocalFile(path)});
    controls.find<QTableWidget>("inputfiletableWidget")->setCurrentCell(0, 0);
    QApplication::processEvents();
    if (QByteArray(argv[1]) == "memory")
        measureMemory(controls.window);
    else
        measureTime(controls.window, path, argc > 3 ? std::atoi(argv[3]) : 5);
    return 0;
}
