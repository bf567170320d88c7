// A one-by-one run through the window, with the real tools.
//
//   bench_chain IMAGES OUTPUT [TITLE OWNER-PASSWORD]
//
// IMAGES and OUTPUT are folders. Prints the milliseconds from the click on the convert button to
// the end of the run.

#include "filesin.h"
#include "samples.h"
#include "startup.h"
#include "windowcontrols.h"

#include <QApplication>

#include <cstdio>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    setUpApplication(application);
    if (argc != 3 && argc != 5)
        return 2;
    WindowControls controls;
    controls.window.show();
    controls.drop(filesIn(QString::fromLocal8Bit(argv[1])));
    controls.fill("outputfolderEdit", QString::fromLocal8Bit(argv[2]));
    if (argc == 5) {
        controls.fill("lineEdit_title", QString::fromLocal8Bit(argv[3]));
        controls.fill("lineEdit_ownerpwd", QString::fromLocal8Bit(argv[4]));
    }
    QApplication::processEvents();
    std::printf("%.3f\n", millisecondsOf([&controls] { controls.convertOneByOne(); }));
    return 0;
}
