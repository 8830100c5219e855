// Sessions: the input is read as a row of loads, edits, saves, exports and imports.

#include <algorithm>

#include "fuzz/fuzz_world.h"
#include "image/team_directory.h"

namespace {

/// Hands out the input piece by piece; zeros when it is used up.
class Script {
 public:
  explicit Script(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

  [[nodiscard]] bool is_over() const { return bytes_.empty(); }

  std::uint8_t Byte() {
    if (bytes_.empty()) return 0;
    const std::uint8_t byte = bytes_.front();
    bytes_ = bytes_.subspan(1);
    return byte;
  }

  std::span<const std::uint8_t> Bytes(std::size_t count) {
    const std::span<const std::uint8_t> taken = bytes_.first(std::min(count, bytes_.size()));
    bytes_ = bytes_.subspan(taken.size());
    return taken;
  }

 private:
  std::span<const std::uint8_t> bytes_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  morlek::fuzz::World world;
  Script script({data, size});
  constexpr int kMostSteps = 40;
  for (int step = 0; step < kMostSteps && !script.is_over(); ++step) {
    const std::uint8_t what = script.Byte();
    switch (what % 6) {
      case 0:
        world.Load(morlek::kTeamDirectory.at(script.Byte() % 28U).key);
        break;
      case 1:
      case 2: {
        const auto column = static_cast<morlek::Column>(script.Byte() % 14 + 1);
        const int row = script.Byte() % 25;
        const auto text = script.Bytes(script.Byte() % 16U);
        world.editor().grid.SetText(column, row, {text.begin(), text.end()});
        break;
      }
      case 3:
        world.Save();
        break;
      case 4:
        world.Export();
        break;
      default:
        world.Import(script.Bytes(script.Byte() * std::size_t{4}));
        break;
    }
    // In half of the steps the next one finds what this one has left.
    if (what < 0x80) world.FreeChannel();
  }
  return 0;
}
