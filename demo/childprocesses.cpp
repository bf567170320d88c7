#include "childprocesses.h"

#include <QDir>
#include <QFile>

#include <algorithm>

bool hasChildProcesses()
{
    const QDir threads(QStringLiteral("/proc/self/task"));
    const QStringList ids = threads.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    return std::ranges::any_of(ids, [&threads](const QString &id) {
        QFile children(threads.filePath(id + QStringLiteral("/children")));
        return children.open(QIODevice::ReadOnly) && !children.readAll().isEmpty();
    });
}
