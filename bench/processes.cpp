// What a converted image leaves in memory, beside two bare finished processes. The tools of this
// program's bundle do nothing, so that the window alone is measured.
//
//   bench_processes ours|bare FOLDER COUNT
//
// Prints the KiB of resident memory for each of COUNT images.

#include "residentmemory.h"
#include "startup.h"
#include "windowcontrols.h"

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QProcess>
#include <QUrl>

#include <cstdio>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

QString imagePath(const QString &folder, int number)
{
    return folder + u"/image-%1.png"_s.arg(number, 5, 10, QLatin1Char('0'));
}

QList<QUrl> images(const QString &folder, int count)
{
    QList<QUrl> urls;
    for (int number = 0; number < count; ++number)
        urls << QUrl::fromLocalFile(imagePath(folder, number));
    return urls;
}

/// What the second run of `work` leaves; the first run brings what is there once, such as what has
/// been painted.
void printGrowth(int count, const std::function<void()> &work)
{
    work();
    QApplication::processEvents();
    const double before = residentMemory();
    work();
    QApplication::processEvents();
    std::printf("%.4f\n", (residentMemory() - before) * 1024 / count);
}

void runInWindow(const QString &folder, int count)
{
    WindowControls controls;
    controls.window.show();
    controls.fill("outputfolderEdit", folder);
    controls.fill("lineEdit_title", u"A"_s);
    controls.fill("lineEdit_ownerpwd", u"b"_s);
    controls.drop(images(folder, count));
    printGrowth(count, [&controls] { controls.convertOneByOne(); });
}

void finish(const QString &command)
{
    auto *process = new QProcess;
    QEventLoop loop;
    QObject::connect(process, &QProcess::finished, &loop, &QEventLoop::quit);
    process->startCommand(command);
    loop.exec();
}

/// The same two command lines for each image, started by nobody but a loop.
void runBare(const QString &folder, int count)
{
    const QString tool = u"\""_s + QCoreApplication::applicationDirPath();
    const QString info = QDir::currentPath() + u"/pdfa.txt"_s;
    printGrowth(count, [&] {
        for (int number = 0; number < count; ++number) {
            const QString image = imagePath(folder, number);
            const QString base = image.left(image.lastIndexOf(QLatin1Char('.')));
            finish(u"%1/convert\" \"%2\" \"%3.pdf\""_s.arg(tool, image, base));
            finish(QStringLiteral("%1/pdftk\" \"%2.pdf\" update_info \"%3\" output \"%2-1.pdf\" "
                                  "owner_pw b")
                       .arg(tool, base, info));
        }
    });
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    setUpApplication(application);
    if (argc != 4)
        return 2;
    const auto run = QByteArray(argv[1]) == "bare" ? runBare : runInWindow;
    run(QString::fromLocal8Bit(argv[2]), std::atoi(argv[3]));
    return 0;
}
