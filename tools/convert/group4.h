#pragma once

#include <cstdint>
#include <optional>
#include <string>

/// The page of the directory at `directory` of the TIFF file in the descriptor `file`, several
/// strips in CCITT Group 4, as one strip, the first bit the highest; nothing when libtiff finds
/// fault with it.
std::optional<std::string> asOneStrip(int file, std::uint64_t directory);

/// Whether the rows of a page in a compression of fax machines, at the directory at `directory` of
/// the TIFF file in the descriptor `file`, are there. Single bad rows in strips, as fax machines
/// write them, count as whole; strips that end early do not, nor does Group 4 data that goes on
/// behind the last row. Throws ToolError when a signal ends the call.
bool isWholeFax(int file, std::uint64_t directory);
