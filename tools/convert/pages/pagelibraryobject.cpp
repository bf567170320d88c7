#include "document.h"
#include "imageheaders.h"
#include "imagekind.h"
#include "pagelibrary.h"

namespace {

class ThisPageLibrary : public PageLibrary
{
public:
    std::optional<std::vector<CopyablePage>> copyablePages(int file,
                                                           Compression asked) const override
    {
        auto pages = ::copyablePages(file, asked);
        if (pages && imageKind(file) == ImageKind::Jpeg && !isJpegSound(file))
            return std::nullopt;
        return pages;
    }

    size_t imagesIn(int file) const override { return ::imagesIn(file); }
    PixelSize jpegSize(int file) const override { return ::jpegSize(file); }

    void writeDocument(int file, const std::vector<DocumentPart> &parts,
                       const std::string &title) const override
    {
        ::writeDocument(file, parts, title);
    }
};

} // namespace

extern "C" const PageLibrary *tessaroPageLibrary()
{
    static const ThisPageLibrary library;
    return &library;
}
