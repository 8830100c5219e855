// Any file in the place of a team data file. What an import has put into the grid comes back
// exactly from an export, for no field can hold a comma or a carriage return.

#include "fuzz/fuzz_world.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using morlek::fuzz::Require;
  morlek::fuzz::World world;
  world.Import({data, size});
  world.FreeChannel();
  const std::string imported = world.GridTexts();
  Require(world.Export(), "an export into a writable file succeeds");
  world.editor().Type({morlek::Column::kName, 0}, "other");
  const std::vector<std::uint8_t> exported = world.files().at(morlek::fuzz::kText);
  Require(world.Import(exported), "an exported file can be imported");
  Require(world.GridTexts() == imported, "an export and an import restore every text");
  return 0;
}
