#pragma once

#include <QFile>
#include <QIODevice>

#include <cstdint>
#include <optional>

#include <sys/types.h>

/// The state of a file: while it stays the same, so does the content.
struct FileState
{
    dev_t device = 0;
    ino_t inode = 0;
    off_t size = 0;
    std::int64_t modified = 0; ///< content, in nanoseconds since 1970
    std::int64_t changed = 0;  ///< content or attributes, likewise; no program can reset it

    bool operator==(const FileState &) const = default;
};

/// The state of the regular file at `path`, links followed; nothing when there is none. The file
/// is not opened.
std::optional<FileState> regularFileState(const QString &path);

/// A regular file, read without waiting. Not a QFile: Qt's TIFF reader maps one into memory (6.6
/// and later), and a mapped file that is cut short meanwhile ends the program.
class RegularFile : public QIODevice
{
public:
    /// Opens the file at `path`; isOpen() says whether there is a regular file that can be read.
    explicit RegularFile(const QString &path);

    qint64 size() const override;
    bool seek(qint64 position) override;

protected:
    qint64 readData(char *data, qint64 maxSize) override;
    qint64 writeData(const char *data, qint64 size) override;

private:
    QFile m_file;
};
