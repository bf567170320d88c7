#pragma once

#include <string_view>

/// Owns a file descriptor; -1 is none.
class FileDescriptor
{
public:
    explicit FileDescriptor(int descriptor = -1)
        : m_descriptor(descriptor)
    {
    }
    FileDescriptor(FileDescriptor &&other) noexcept;
    FileDescriptor &operator=(FileDescriptor &&other) noexcept;
    FileDescriptor(const FileDescriptor &) = delete;
    FileDescriptor &operator=(const FileDescriptor &) = delete;
    ~FileDescriptor();

    int get() const { return m_descriptor; }
    bool valid() const { return m_descriptor >= 0; }
    void close();
    /// Leaves the descriptor to the caller.
    int release();

private:
    int m_descriptor;
};

/// Writes all of `data` to `file`; false, with errno set, when not all of it could be written.
bool writeAll(int file, std::string_view data);
