#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include <tiffio.h>

/// A TIFF file as libtiff reads it from a descriptor, or writes it into memory. libtiff gets no
/// handlers but this object's, and limits: of memory for a single table or strip, and of the bytes
/// that it reads, so that tables to which many directories lead take no time and memory without
/// end.
class TiffFile
{
public:
    /// Reads the descriptor `file`, which stays the caller's. Stands before the first directory.
    /// Throws ToolError when there is no header.
    explicit TiffFile(int file);
    /// Reads the directory at `directory`. Throws ToolError when libtiff cannot read it.
    TiffFile(int file, std::uint64_t directory);
    /// Writes into memory.
    TiffFile();
    TiffFile(const TiffFile &) = delete;
    TiffFile &operator=(const TiffFile &) = delete;
    ~TiffFile() = default;

    TIFF *get() const { return m_tiff.get(); }
    std::uint64_t size() const { return m_size; }
    /// At most `count` bytes of the file that is read.
    std::string read(std::uint64_t offset, std::size_t count) const;
    /// The value of a field of the current directory, whose type has to be libtiff's for it;
    /// libtiff's default or else `absent` when the directory does not hold it.
    template <typename Number>
    Number value(std::uint32_t tag, Number absent = 0) const
    {
        TIFFGetFieldDefaulted(get(), tag, &absent);
        return absent;
    }
    /// What has been written.
    const std::string &written() const { return m_written; }

    /// Reads the next directory; false behind the last one, and where the directories form a loop.
    /// Throws ToolError when libtiff cannot read it.
    bool readNext();
    /// Whether libtiff has reported anything since the last call, or since the directory was read.
    bool takeReport();

private:
    enum class Report { None, Warning, Error };

    void openFile(int file, tmsize_t maxAllocation);
    void open(const char *mode, tmsize_t maxAllocation);
    void require(bool isRead) const;
    static int noteError(TIFF *, void *tiff, const char *, const char *, va_list);
    static int noteWarning(TIFF *, void *tiff, const char *, const char *format, va_list);
    static tmsize_t readBytes(thandle_t tiff, void *buffer, tmsize_t size);
    static tmsize_t writeBytes(thandle_t tiff, void *buffer, tmsize_t size);
    static toff_t seek(thandle_t tiff, toff_t offset, int whence);
    static toff_t sizeOf(thandle_t tiff);

    int m_file = -1;
    std::uint64_t m_size = 0;
    std::uint64_t m_offset = 0;
    std::uint64_t m_hasRead = 0;
    std::uint64_t m_maxRead = 0;
    /// What may have been read before the next directory.
    std::uint64_t m_stop = 0;
    std::string m_written;
    Report m_report = Report::None;
    std::unique_ptr<TIFF, decltype(&TIFFClose)> m_tiff = {nullptr, &TIFFClose};
};
