#pragma once

#include "outputfile.h"
#include "workdirectory.h"

#include <string>

/// A PDF in the making: it is written in a work directory beside the output and takes its place
/// when it is whole. Without commit() the output stays as it was.
class OutputTransaction
{
public:
    /// Throws ToolError when nothing can be written beside `output`.
    explicit OutputTransaction(const std::string &output);

    /// The file in folder() that becomes the output.
    static constexpr const char *resultName = "result.pdf";

    const WorkDirectory &folder() const { return m_folder; }

    /// Throws ToolError when the result is not a whole PDF or the output cannot be replaced.
    void commit() const;

private:
    OutputFile m_output;
    WorkDirectory m_folder;
};

/// Throws ToolError unless the file `name` in `folder`, which a tool has left there, begins and
/// ends as a PDF.
void validatePdf(int folder, const std::string &name);
