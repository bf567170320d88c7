#include "filebytes.h"

#include "error.h"
#include "subprocess.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>

#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr std::size_t blockCapacity = std::size_t{256} * 1024;

} // namespace

void requireNoSignal()
{
    sigset_t pending;
    sigpending(&pending);
    for (const int signal : endingSignals) {
        if (sigismember(&pending, signal) == 1)
            throw ToolError("ended by signal " + std::to_string(signal));
    }
}

FileBytes::FileBytes(int file)
    : m_file(file)
{
    struct stat status = {};
    if (fstat(file, &status) != 0)
        throw systemError("cannot read", "the image");
    m_size = static_cast<std::uint64_t>(std::max<off_t>(status.st_size, 0));
    m_block.resize(std::min<std::uint64_t>(blockCapacity, m_size));
}

bool FileBytes::has(std::uint64_t count) const
{
    return m_offset <= m_size && count <= m_size - m_offset;
}

// Makes the block hold the byte at the offset; false at the end of the file.
bool FileBytes::load()
{
    if (m_offset >= m_blockStart && m_offset - m_blockStart < m_blockSize)
        return true;
    if (m_offset >= m_size)
        return false;
    requireNoSignal();
    ssize_t count = -1;
    do {
        count = pread(m_file, m_block.data(), m_block.size(), static_cast<off_t>(m_offset));
    } while (count < 0 && errno == EINTR);
    if (count < 0)
        throw systemError("cannot read", "the image");
    m_blockStart = m_offset;
    m_blockSize = static_cast<std::size_t>(count);
    return count > 0;
}

std::optional<std::uint8_t> FileBytes::byte()
{
    if (!load())
        return std::nullopt;
    return m_block[static_cast<std::size_t>(m_offset++ - m_blockStart)];
}

std::string FileBytes::read(std::size_t count)
{
    std::string bytes;
    bytes.reserve(std::min<std::uint64_t>(count, m_size - std::min(m_offset, m_size)));
    while (bytes.size() < count && load()) {
        const auto from = static_cast<std::size_t>(m_offset - m_blockStart);
        const std::size_t part = std::min(count - bytes.size(), m_blockSize - from);
        bytes.append(reinterpret_cast<const char *>(m_block.data()) + from, part);
        m_offset += part;
    }
    return bytes;
}

bool FileBytes::find(std::uint8_t value)
{
    while (load()) {
        const auto from = static_cast<std::size_t>(m_offset - m_blockStart);
        const void *found = memchr(m_block.data() + from, value, m_blockSize - from);
        if (found) {
            const auto *at = static_cast<const std::uint8_t *>(found);
            m_offset = m_blockStart + static_cast<std::size_t>(at - m_block.data());
            return true;
        }
        m_offset = m_blockStart + m_blockSize;
    }
    return false;
}

std::uint16_t bigEndian16(const std::string &bytes, std::size_t at)
{
    const auto part = [&bytes](std::size_t place) {
        return static_cast<std::uint8_t>(bytes[place]);
    };
    return static_cast<std::uint16_t>(part(at) << 8 | part(at + 1));
}

std::uint32_t bigEndian32(const std::string &bytes, std::size_t at)
{
    return std::uint32_t{bigEndian16(bytes, at)} << 16 | bigEndian16(bytes, at + 2);
}
