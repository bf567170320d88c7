#include "fileoutput.h"

#include "error.h"

#include <cerrno>
#include <utility>

FileOutput::FileOutput(FileDescriptor file, std::string path)
    : Pipeline("the PDF", nullptr)
    , m_file(std::move(file))
    , m_path(std::move(path))
{
}

void FileOutput::write(const unsigned char *data, size_t size)
{
    constexpr size_t blockSize = size_t(256) * 1024;
    m_waiting.append(reinterpret_cast<const char *>(data), size);
    if (m_waiting.size() >= blockSize)
        pass();
}

void FileOutput::finish()
{
    pass();
}

void FileOutput::requireSuccess()
{
    pass();
    errno = m_error;
    if (m_error != 0)
        throw systemError("cannot write", m_path);
}

void FileOutput::pass()
{
    if (m_error == 0 && !writeAll(m_file.get(), m_waiting))
        m_error = errno;
    m_waiting.clear();
}
