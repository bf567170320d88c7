#pragma once

#include "copyablepage.h"
#include "filedescriptor.h"

#include <cstddef>
#include <map>
#include <string>

/// Data of pages that no image file has as the PDF needs it, kept in a file, equal data once.
class Spool
{
public:
    /// `file` is empty and open for reading and writing.
    explicit Spool(FileDescriptor file)
        : m_file(std::move(file))
    {
    }

    /// Throws ToolError when the data cannot be written.
    Extent add(const std::string &data);
    int file() const { return m_file.get(); }

private:
    FileDescriptor m_file;
    std::uint64_t m_size = 0;
    /// By the hash of the data.
    std::multimap<std::size_t, Extent> m_known;
};
