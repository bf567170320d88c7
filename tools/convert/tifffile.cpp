#include "tifffile.h"

#include "error.h"

#include <algorithm>
#include <new>
#include <string_view>
#include <utility>

#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr tmsize_t mebibyte = tmsize_t{1024} * 1024;
// Tables of a million strips or tiles.
constexpr tmsize_t maxTable = 8 * mebibyte;
constexpr std::uint64_t maxDirectory = 2 * maxTable;
// An image that the policy allows has half as many bytes in one bit.
constexpr tmsize_t maxStrip = 256 * mebibyte;

} // namespace

TiffFile::TiffFile(int file)
{
    openFile(file, maxTable);
}

TiffFile::TiffFile(int file, std::uint64_t directory)
{
    openFile(file, maxStrip);
    require(TIFFSetSubDirectory(get(), directory) == 1);
    m_report = Report::None;
}

TiffFile::TiffFile()
{
    open("wlm", maxStrip);
}

std::string TiffFile::read(std::uint64_t offset, std::size_t count) const
{
    std::string bytes(count, '\0');
    const ssize_t got = pread(m_file, bytes.data(), count, static_cast<off_t>(offset));
    bytes.resize(static_cast<std::size_t>(std::max<ssize_t>(got, 0)));
    return bytes;
}

bool TiffFile::readNext()
{
    m_report = Report::None;
    m_stop = std::min(m_hasRead + maxDirectory, m_maxRead);
    const bool isRead = TIFFReadDirectory(get()) == 1;
    require(isRead || m_report != Report::Error);
    return isRead;
}

bool TiffFile::takeReport()
{
    return std::exchange(m_report, Report::None) != Report::None;
}

void TiffFile::openFile(int file, tmsize_t maxAllocation)
{
    struct stat status = {};
    if (fstat(file, &status) != 0)
        throw systemError("cannot read", "the image");
    m_file = file;
    m_size = static_cast<std::uint64_t>(std::max<off_t>(status.st_size, 0));
    // Pages may share a colour profile, and some bytes are read more than once.
    m_maxRead = m_stop = 4 * m_size + maxStrip;
    // h: only the header is read. m: nothing is mapped, as a file that is cut off meanwhile would
    // end the program.
    open("rhm", maxAllocation);
}

void TiffFile::open(const char *mode, tmsize_t maxAllocation)
{
    const std::unique_ptr<TIFFOpenOptions, decltype(&TIFFOpenOptionsFree)> options = {
        TIFFOpenOptionsAlloc(), &TIFFOpenOptionsFree};
    if (!options)
        throw std::bad_alloc();
    TIFFOpenOptionsSetMaxSingleMemAlloc(options.get(), maxAllocation);
    TIFFOpenOptionsSetErrorHandlerExtR(options.get(), noteError, this);
    TIFFOpenOptionsSetWarningHandlerExtR(options.get(), noteWarning, this);
    const auto close = [](thandle_t) { return 0; };
    m_tiff.reset(TIFFClientOpenExt("", mode, this, readBytes, writeBytes, seek, close, sizeOf,
                                   nullptr, nullptr, options.get()));
    require(m_tiff != nullptr);
}

void TiffFile::require(bool isRead) const
{
    if (!isRead)
        throw ToolError("the image is damaged: a directory of the TIFF file cannot be read");
}

int TiffFile::noteError(TIFF *, void *tiff, const char *, const char *, va_list)
{
    static_cast<TiffFile *>(tiff)->m_report = Report::Error;
    return 1;
}

// Many programs write texts without the zero at their end, or with several.
int TiffFile::noteWarning(TIFF *, void *tiff, const char *, const char *format, va_list)
{
    Report &report = static_cast<TiffFile *>(tiff)->m_report;
    if (!std::string_view(format).starts_with("ASCII value for tag"))
        report = std::max(report, Report::Warning);
    return 1;
}

tmsize_t TiffFile::readBytes(thandle_t tiff, void *buffer, tmsize_t size)
{
    auto &file = *static_cast<TiffFile *>(tiff);
    const auto wanted = static_cast<std::uint64_t>(size);
    if (wanted > file.m_stop - file.m_hasRead)
        return -1;
    const ssize_t count = pread(file.m_file, buffer, wanted, static_cast<off_t>(file.m_offset));
    file.m_hasRead += wanted;
    file.m_offset += static_cast<std::uint64_t>(std::max<ssize_t>(count, 0));
    return count;
}

// Behind what there is: only the strip of an only page is of interest.
tmsize_t TiffFile::writeBytes(thandle_t tiff, void *buffer, tmsize_t size)
{
    auto &file = *static_cast<TiffFile *>(tiff);
    file.m_written.append(static_cast<const char *>(buffer), static_cast<std::size_t>(size));
    file.m_offset = file.m_size = file.m_written.size();
    return size;
}

toff_t TiffFile::seek(thandle_t tiff, toff_t offset, int whence)
{
    auto &file = *static_cast<TiffFile *>(tiff);
    if (whence == SEEK_CUR)
        offset += file.m_offset;
    if (whence == SEEK_END)
        offset += file.m_size;
    return file.m_offset = offset;
}

toff_t TiffFile::sizeOf(thandle_t tiff)
{
    return static_cast<TiffFile *>(tiff)->m_size;
}
