#include "regularfile.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

bool openRegularFile(QFile &file, const QString &path)
{
    // A device can act on being opened, so the kind is asked first, and again of what was opened.
    const QByteArray name = QFile::encodeName(path);
    struct stat status = {};
    if (stat(name.constData(), &status) != 0 || !S_ISREG(status.st_mode))
        return false;
    const int descriptor = open(name.constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (descriptor < 0)
        return false;
    if (fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) &&
        file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        return true;
    close(descriptor);
    return false;
}
