#include "filedescriptor.h"

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
        ::close(std::exchange(m_descriptor, -1));
}
