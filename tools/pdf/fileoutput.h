#pragma once

#include "filedescriptor.h"

#include <qpdf/Pipeline.hh>

#include <string>

/// Writes what libqpdf makes to a file. libqpdf's own class for that ignores a write that fails
/// when a later one succeeds. libqpdf also writes in destructors, which must not throw, so only
/// requireSuccess() reports a failure.
class FileOutput : public Pipeline
{
public:
    /// `file` is open for writing; messages call it `path`.
    FileOutput(FileDescriptor file, std::string path);

    void write(const unsigned char *data, size_t size) override;
    void finish() override;

    /// To be called last. Throws ToolError when not everything could be written.
    void requireSuccess();

private:
    void pass();

    FileDescriptor m_file;
    std::string m_path;
    int m_error = 0;
    std::string m_waiting;
};
