#include "process.h"
#include "startcommand.h"

#include <QApplication>
#include <QDir>

#include <memory>

int main(int argc, char *argv[])
{
    if (printHelpOrVersion(argc, argv))
        return 0;
    if (reportStartFailure(argc, argv))
        return notStarted;
    const QString startFolder = QDir::currentPath(); // start-up changes it
    const std::unique_ptr<QApplication> application = makeApplication(argc, argv);
    const std::optional<QStringList> files = startFiles(QCoreApplication::arguments(), startFolder);
    if (!files)
        return wrongUsage;
    Process window(nullptr);
    window.addFiles(*files);
    window.show();
    return QApplication::exec();
}
