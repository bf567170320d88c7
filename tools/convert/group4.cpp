#include "group4.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <memory>
#include <vector>

#include <sys/stat.h>
#include <tiffio.h>
#include <unistd.h>

namespace {

using TiffPointer = std::unique_ptr<TIFF, decltype(&TIFFClose)>;

// The bytes of a TIFF file in memory or behind a descriptor, as libtiff asks for them.
struct Source
{
    int file = -1;
    std::string memory;
    toff_t offset = 0;
};

Source &sourceOf(thandle_t handle)
{
    return *static_cast<Source *>(handle);
}

tmsize_t readFile(thandle_t handle, void *buffer, tmsize_t size)
{
    Source &source = sourceOf(handle);
    const ssize_t count = pread(source.file, buffer, static_cast<std::size_t>(size),
                                static_cast<off_t>(source.offset));
    source.offset += static_cast<toff_t>(std::max<ssize_t>(count, 0));
    return count;
}

tmsize_t readMemory(thandle_t handle, void *buffer, tmsize_t size)
{
    Source &source = sourceOf(handle);
    const std::size_t offset = std::min<std::size_t>(source.offset, source.memory.size());
    const std::size_t count =
        source.memory.copy(static_cast<char *>(buffer), static_cast<std::size_t>(size), offset);
    source.offset += count;
    return static_cast<tmsize_t>(count);
}

tmsize_t writeMemory(thandle_t handle, void *buffer, tmsize_t size)
{
    Source &source = sourceOf(handle);
    const auto count = static_cast<std::size_t>(size);
    source.memory.resize(std::max<std::size_t>(source.memory.size(), source.offset + count));
    memcpy(source.memory.data() + source.offset, buffer, count);
    source.offset += count;
    return size;
}

tmsize_t writeNothing(thandle_t, void *, tmsize_t)
{
    return 0;
}

toff_t sizeOf(thandle_t handle)
{
    const Source &source = sourceOf(handle);
    struct stat status = {};
    if (source.file < 0)
        return source.memory.size();
    return fstat(source.file, &status) == 0 ? static_cast<toff_t>(status.st_size) : 0;
}

toff_t seek(thandle_t handle, toff_t offset, int whence)
{
    Source &source = sourceOf(handle);
    if (whence == SEEK_CUR)
        offset += source.offset;
    if (whence == SEEK_END)
        offset += sizeOf(handle);
    return source.offset = offset;
}

int close(thandle_t)
{
    return 0;
}

// Whether libtiff has reported an error; it has one handler for all.
thread_local bool hasReported = false;

void noteComplaint(const char *, const char *, va_list)
{
    hasReported = true;
}

void listenToLibtiff()
{
    hasReported = false;
    TIFFSetErrorHandler(noteComplaint);
    TIFFSetWarningHandler(noteComplaint);
}

TiffPointer openFile(Source &source)
{
    // m: nothing is mapped, as a file that is cut off meanwhile would end the program.
    return {TIFFClientOpen("", "rm", &source, readFile, writeNothing, seek, close, sizeOf, nullptr,
                           nullptr),
            &TIFFClose};
}

TiffPointer openMemory(Source &source, std::uint32_t width, std::uint32_t height)
{
    TiffPointer tiff(TIFFClientOpen("", "wlm", &source, readMemory, writeMemory, seek, close,
                                    sizeOf, nullptr, nullptr),
                     &TIFFClose);
    if (!tiff)
        return tiff;
    TIFFSetField(tiff.get(), TIFFTAG_IMAGEWIDTH, width);
    TIFFSetField(tiff.get(), TIFFTAG_IMAGELENGTH, height);
    TIFFSetField(tiff.get(), TIFFTAG_ROWSPERSTRIP, height);
    TIFFSetField(tiff.get(), TIFFTAG_BITSPERSAMPLE, 1);
    TIFFSetField(tiff.get(), TIFFTAG_SAMPLESPERPIXEL, 1);
    TIFFSetField(tiff.get(), TIFFTAG_COMPRESSION, COMPRESSION_CCITTFAX4);
    TIFFSetField(tiff.get(), TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_MINISWHITE);
    TIFFSetField(tiff.get(), TIFFTAG_FILLORDER, FILLORDER_MSB2LSB);
    return tiff;
}

bool copyRows(TIFF *from, TIFF *to, std::uint32_t height)
{
    std::vector<unsigned char> row(static_cast<std::size_t>(TIFFScanlineSize(from)));
    for (std::uint32_t y = 0; y < height; ++y)
        if (TIFFReadScanline(from, row.data(), y, 0) != 1 || hasReported ||
            TIFFWriteScanline(to, row.data(), y, 0) != 1)
            return false;
    return TIFFFlushData(to) == 1;
}

bool isBlank(const std::vector<unsigned char> &row)
{
    return std::all_of(row.begin(), row.end(), [](unsigned char byte) { return byte == 0; });
}

// The rows of a strip of a fax, as libtiff reads them.
struct StripRows
{
    std::uint32_t count = 0;
    std::uint32_t faulty = 0;
    // Faulty and blank ones at the end of the strip.
    std::uint32_t missing = 0;

    // A bad row may swallow the next one; neither can be told from damage of that size.
    bool isWhole() const
    {
        const std::uint32_t bad = faulty - missing;
        return missing <= 1 + bad + count / 100 && bad <= count / 4;
    }
};

void readRow(TIFF *tiff, std::uint32_t y, std::vector<unsigned char> &row, StripRows &strip)
{
    hasReported = false;
    const bool isRead = TIFFReadScanline(tiff, row.data(), y, 0) == 1;
    const bool isFaulty = !isRead || hasReported;
    strip.count += 1;
    strip.faulty += isFaulty ? 1 : 0;
    strip.missing = isFaulty && (!isRead || isBlank(row)) ? strip.missing + 1 : 0;
}

// Whether libtiff finds nothing wrong with one row more than the image has. Nothing in Group 4
// leads back from damaged data to the rows.
bool isRowLeft(TIFF *tiff, std::uint32_t height, std::vector<unsigned char> &row)
{
    std::uint16_t compression = 0;
    TIFFGetField(tiff, TIFFTAG_COMPRESSION, &compression);
    if (compression != COMPRESSION_CCITTFAX4)
        return false;
    TIFFSetField(tiff, TIFFTAG_IMAGELENGTH, height + 1);
    TIFFSetField(tiff, TIFFTAG_ROWSPERSTRIP, height + 1);
    StripRows beyond;
    readRow(tiff, height, row, beyond);
    return beyond.faulty == 0;
}

std::optional<std::string> onlyStrip(TIFF *tiff, const Source &source)
{
    const uint64_t *offsets = nullptr;
    const uint64_t *counts = nullptr;
    if (TIFFGetField(tiff, TIFFTAG_STRIPOFFSETS, &offsets) != 1 ||
        TIFFGetField(tiff, TIFFTAG_STRIPBYTECOUNTS, &counts) != 1)
        return std::nullopt;
    return source.memory.substr(offsets[0], counts[0]);
}

} // namespace

std::optional<std::string> asOneStrip(int file, std::uint64_t directory)
{
    listenToLibtiff();
    Source source;
    source.file = file;
    const TiffPointer from = openFile(source);
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    if (!from || TIFFSetSubDirectory(from.get(), directory) != 1 ||
        TIFFGetField(from.get(), TIFFTAG_IMAGEWIDTH, &width) != 1 ||
        TIFFGetField(from.get(), TIFFTAG_IMAGELENGTH, &height) != 1)
        return std::nullopt;
    Source result;
    const TiffPointer to = openMemory(result, width, height);
    hasReported = false;
    if (!to || !copyRows(from.get(), to.get(), height) || hasReported)
        return std::nullopt;
    return onlyStrip(to.get(), result);
}

bool isWholeFax(int file, std::uint64_t directory)
{
    listenToLibtiff();
    Source source;
    source.file = file;
    const TiffPointer tiff = openFile(source);
    std::uint32_t height = 0;
    std::uint32_t rowsPerStrip = 0;
    if (!tiff || TIFFSetSubDirectory(tiff.get(), directory) != 1 ||
        TIFFGetField(tiff.get(), TIFFTAG_IMAGELENGTH, &height) != 1 ||
        TIFFGetFieldDefaulted(tiff.get(), TIFFTAG_ROWSPERSTRIP, &rowsPerStrip) != 1 ||
        rowsPerStrip == 0)
        return true;
    std::vector<unsigned char> row(static_cast<std::size_t>(TIFFScanlineSize(tiff.get())));
    StripRows strip;
    for (std::uint32_t y = 0; y < height; ++y) {
        if (y % rowsPerStrip == 0) {
            if (!strip.isWhole())
                return false;
            strip = {};
        }
        readRow(tiff.get(), y, row, strip);
    }
    return strip.isWhole() && (strip.count < height || !isRowLeft(tiff.get(), height, row));
}
