#pragma once

#include <cstddef>
#include <cstdint>

/// Reads `data` as a file and aborts where the reader breaks its promises. Each fuzzer defines it
/// once; libFuzzer calls it, and corpus_test.cpp does for every file that a fuzzer kept.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);
