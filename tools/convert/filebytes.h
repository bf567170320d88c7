#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// Throws ToolError when one of the signals that end the call waits (holdSignals()).
void requireNoSignal();

/// Reads a regular file forward in blocks, from its descriptor and without moving its offset.
/// Throws ToolError where the system cannot read, or when a signal ends the call.
class FileBytes
{
public:
    explicit FileBytes(int file);

    std::uint64_t size() const { return m_size; }
    std::uint64_t offset() const { return m_offset; }
    void seek(std::uint64_t offset) { m_offset = offset; }
    void skip(std::uint64_t count) { m_offset += count; }
    bool has(std::uint64_t count) const;

    /// The byte at the offset, which moves on; nothing at the end of the file.
    std::optional<std::uint8_t> byte();
    /// As many bytes as there are, `count` at most.
    std::string read(std::size_t count);
    /// Moves to the next byte of this value; false when there is none.
    bool find(std::uint8_t value);

private:
    bool load();

    int m_file;
    std::uint64_t m_size = 0;
    std::uint64_t m_offset = 0;
    std::uint64_t m_blockStart = 0;
    std::size_t m_blockSize = 0;
    std::vector<std::uint8_t> m_block;
};

/// Big-endian numbers, as JPEG, PNG and Photoshop store them; `at` has to lie in `bytes`.
std::uint16_t bigEndian16(const std::string &bytes, std::size_t at);
std::uint32_t bigEndian32(const std::string &bytes, std::size_t at);
