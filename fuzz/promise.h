#pragma once

#include <cstddef>
#include <cstdint>
#include <stdexcept>

namespace morlek::fuzz {

/// Throws when a promise is broken, which ends a fuzz program; the fuzzer keeps the input.
inline void Require(bool holds, const char* promise) {
  if (!holds) throw std::logic_error(promise);
}

}  // namespace morlek::fuzz

/// What each fuzz program does with one input, by the name that libFuzzer calls.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
