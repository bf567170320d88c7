#pragma once

#include <cstdint>
#include <optional>
#include <string>

/// The page of the directory at `directory` of the TIFF file in the descriptor `file`, several
/// strips in CCITT Group 4, as one strip, the first bit the highest; nothing when libtiff finds
/// fault with it.
std::optional<std::string> asOneStrip(int file, std::uint64_t directory);
