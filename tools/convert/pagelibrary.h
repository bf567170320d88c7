#pragma once

#include "copyablepage.h"
#include "filestamp.h"
#include "jpegscaling.h"

#include <string>
#include <vector>

/// A part of a document: the pages of one file.
struct DocumentPart
{
    /// Of an image whose pages are copied, or of a PDF that ImageMagick has made.
    std::string path;
    /// Empty for a PDF.
    std::vector<CopyablePage> copied = {};
    /// Of that image, when its pages were found.
    FileStamp stamp = {};
    /// Fewer pages than these in a PDF are a failure.
    size_t leastPages = 1;
};

/// What needs the libraries for PDF and image files. They take longer to be loaded than ImageMagick
/// takes for a small image, so they stand in a shared object that is loaded when ImageMagick is at
/// work already, or when there is nothing else to do.
class PageLibrary
{
public:
    virtual ~PageLibrary() = default;

    /// See copyablepage.h.
    virtual std::optional<std::vector<CopyablePage>> copyablePages(int file,
                                                                   Compression asked) const = 0;
    /// The number of images in a TIFF or GIF file, at least 1. Throws ToolError when a TIFF file
    /// breaks off.
    virtual size_t imagesIn(int file) const = 0;
    /// Pixels of a JPEG file; zero when it has no readable header.
    virtual PixelSize jpegSize(int file) const = 0;
    /// Writes the document of `parts` into `file`, an empty file open for writing. Throws
    /// ToolError.
    virtual void writeDocument(int file, const std::vector<DocumentPart> &parts,
                               const std::string &title) const = 0;
};

/// The library of the bundle, loaded at the first call. Throws ToolError when that fails.
const PageLibrary &pageLibrary();

/// What the shared object has to offer, by that name.
extern "C" const PageLibrary *tessaroPageLibrary();
