// One function of a fuzz target: takes any bytes, and aborts with a word on standard error where something
// that must hold of every input doesn't.
#pragma once

#include <cstddef>
#include <cstdint>

/// The name that libFuzzer calls; the suite calls the same function for each file of the corpus.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
