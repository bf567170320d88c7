#include "process.h"
#include "startup.h"

#include <QApplication>

int main(int argc, char *argv[])
{
    raiseArgumentLimit();
    QApplication application(argc, argv);
    prepare(application);
    Process window(nullptr);
    window.show();
    return QApplication::exec();
}
