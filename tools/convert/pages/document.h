#pragma once

#include "pagelibrary.h"

/// Writes the document of `parts` into `file`, an empty file open for writing: their pages in
/// order, and the same information whatever made them. The data of one image at a time is in
/// memory. Throws ToolError.
void writeDocument(int file, const std::vector<DocumentPart> &parts, const std::string &title);
