#include "regularfile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

std::int64_t nanoseconds(const timespec &time)
{
    constexpr std::int64_t perSecond = 1'000'000'000;
    return time.tv_sec * perSecond + time.tv_nsec;
}

} // namespace

std::optional<FileState> regularFileState(const QString &path)
{
    struct stat status = {};
    if (stat(QFile::encodeName(path).constData(), &status) != 0 || !S_ISREG(status.st_mode))
        return {};
    return FileState{status.st_dev, status.st_ino, status.st_size, nanoseconds(status.st_mtim),
                     nanoseconds(status.st_ctim)};
}

RegularFile::RegularFile(const QString &path)
{
    // Opening a device can have effects, so the kind is checked before, and once more after
    // opening.
    if (!regularFileState(path))
        return;
    const int descriptor =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    struct stat status = {};
    if (fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) &&
        m_file.open(descriptor, ReadOnly | Unbuffered, QFileDevice::AutoCloseHandle))
        QIODevice::open(ReadOnly);
    else
        ::close(descriptor);
}

qint64 RegularFile::size() const
{
    return m_file.size();
}

bool RegularFile::seek(qint64 position)
{
    return QIODevice::seek(position) && m_file.seek(position);
}

qint64 RegularFile::readData(char *data, qint64 maxSize)
{
    return m_file.read(data, maxSize);
}

qint64 RegularFile::writeData(const char * /*data*/, qint64 /*size*/)
{
    return -1;
}
