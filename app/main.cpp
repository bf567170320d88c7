#include "process.h"
#include "startcommand.h"
#include "startup.h"

#include <QApplication>
#include <QDir>

int main(int argc, char *argv[])
{
    raiseArgumentLimit();
    if (answerQuestion(argc, argv))
        return 0;
    QApplication application(argc, argv);
    const QString startFolder = QDir::currentPath(); // preparing changes it
    prepare(application);
    const std::optional<QStringList> files = startFiles(QCoreApplication::arguments(), startFolder);
    if (!files)
        return wrongUsage;
    Process window(nullptr);
    window.addFiles(*files);
    window.show();
    return QApplication::exec();
}
