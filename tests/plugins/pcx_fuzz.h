#pragma once

#include <cstddef>
#include <cstdint>

/// Reads `data` as a PCX file from a device that seeks and from one that does not, and aborts where
/// a picture breaks the reader's promises. Called by the fuzzer and by the replay of its corpus.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);
