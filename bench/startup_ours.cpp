// The application from its start to its first painted window.

#include "startup.h"

#include "firstpaint.h"
#include "process.h"

#include <QApplication>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    setUpApplication(application);
    Process window(nullptr);
    const EndAtFirstPaint end(window);
    window.show();
    return QApplication::exec();
}
