// Any bytes in the place of a team record: loaded, saved, and loaded again.

#include <algorithm>

#include "fuzz/fuzz_world.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using morlek::fuzz::Require;
  morlek::fuzz::World world;
  Require(world.Load("Orioles"), "the sample loads");
  const std::span<std::uint8_t> record = world.Record(1278465);
  std::copy_n(data, std::min(size, record.size()), record.begin());
  if (!world.Load("Braves")) return 0;
  world.Save();

  // What a save has written shows the same from then on, and is saved as it stands.
  if (!world.Load("Braves")) return 0;
  const std::string shown = world.GridTexts();
  world.Save();
  Require(world.Load("Braves"), "a saved record loads");
  Require(world.GridTexts() == shown, "a saved record shows what it showed before");
  return 0;
}
