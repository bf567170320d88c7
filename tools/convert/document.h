#pragma once

#include "copyablepage.h"
#include "fileidentity.h"
#include "fileoutput.h"

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

/// A part of a document: the pages of one file.
struct DocumentPart
{
    /// Of an image whose pages are copied, or of a PDF that ImageMagick has made.
    std::string path;
    /// Empty for a PDF.
    std::vector<CopyablePage> copied = {};
    /// Of that image, before it was read.
    FileIdentity identity = {};
    /// Fewer pages than these in a PDF are a failure.
    std::size_t minPages = 1;
};

/// Writes the document of `parts` into `output`, an empty file: their pages in order, with the same
/// information for copied and converted ones. `spool` is the spool's file. The data of one image at
/// a time is in memory. `check` is called repeatedly and may throw to end the work. Throws
/// ToolError.
void writeDocument(FileOutput &output, const std::vector<DocumentPart> &parts, int spool,
                   const std::string &title, const std::function<void()> &check);
