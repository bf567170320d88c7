#pragma once

#include <qpdf/Pipeline.hh>

#include <string>

/// Writes what libqpdf makes to an open file. libqpdf's own way to a file takes no notice of a
/// write that fails when a later one succeeds. It also writes in destructors, which must not throw:
/// so a failure is reported by requireSuccess() alone.
class FileOutput : public Pipeline
{
public:
    explicit FileOutput(int file);

    void write(const unsigned char *data, size_t size) override;
    void finish() override;

    /// To be called last. Throws ToolError when not everything could be written.
    void requireSuccess();

private:
    void pass();

    int m_file;
    int m_error = 0;
    std::string m_waiting;
};
