#pragma once

#include <cstddef>
#include <cstdint>

/// Reads `data` as an image file and aborts where a page that is to be copied breaks the readers'
/// promises. Called by the fuzzers and by the replay of their corpora.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);
