#include "filedescriptor.h"

#include <cerrno>
#include <utility>

#include <unistd.h>

FileDescriptor::FileDescriptor(FileDescriptor &&other) noexcept
    : m_descriptor(std::exchange(other.m_descriptor, -1))
{
}

FileDescriptor &FileDescriptor::operator=(FileDescriptor &&other) noexcept
{
    std::swap(m_descriptor, other.m_descriptor);
    return *this;
}

FileDescriptor::~FileDescriptor()
{
    close();
}

void FileDescriptor::close()
{
    if (valid())
        ::close(release());
}

int FileDescriptor::release()
{
    return std::exchange(m_descriptor, -1);
}

bool writeAll(int file, std::string_view data)
{
    while (!data.empty()) {
        const ssize_t count = write(file, data.data(), data.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0) {
            errno = count == 0 ? ENOSPC : errno;
            return false;
        }
        data.remove_prefix(static_cast<size_t>(count));
    }
    return true;
}
