// A one-by-one run through the window, with the real tools.
//
//   bench_chain IMAGES OUTPUT [TITLE OWNER-PASSWORD]
//
// IMAGES and OUTPUT are folders. Prints the milliseconds from the click on the convert button to
// the end of the run.

#include "dropfiles.h"
#include "process.h"
#include "startup.h"
#include "windowsteps.h"

#include <QApplication>

#include <cstdio>

int main(int argc, char *argv[])
{
    raiseArgumentLimit();
    QApplication application(argc, argv);
    prepare(application);
    if (argc != 3 && argc != 5)
        return 2;
    Process window;
    window.show();
    dropFiles(window, filesIn(QString::fromLocal8Bit(argv[1])));
    setField(window, "outputfolderEdit", QString::fromLocal8Bit(argv[2]));
    if (argc == 5) {
        setField(window, "lineEdit_title", QString::fromLocal8Bit(argv[3]));
        setField(window, "lineEdit_ownerpwd", QString::fromLocal8Bit(argv[4]));
    }
    QApplication::processEvents();
    std::printf("%.3f\n", convertAll(window));
    return 0;
}
