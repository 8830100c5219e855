// Sessions: the input is read as a row of steps of every kind.

#include "fuzz/promise.h"
#include "fuzz/session.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  morlek::fuzz::PlaySession({data, size});
  return 0;
}
