// Sessions: the input is read as a row of loads, edits, saves, undos, exports and imports.

#include <algorithm>
#include <memory>

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

/// Plays a session in a world of its own, with or without a preview after every step.
std::unique_ptr<morlek::fuzz::World> Play(Script script, bool previews) {
  auto world = std::make_unique<morlek::fuzz::World>();
  constexpr int kMostSteps = 40;
  for (int step = 0; step < kMostSteps && !script.is_over(); ++step) {
    const std::uint8_t what = script.Byte();
    switch (what % 8) {
      case 0:
        world->Load(morlek::kTeamDirectory.at(script.Byte() % 28U).key);
        break;
      case 1:
      case 2: {
        const morlek::Cell cell =
            morlek::kAllCells.at((script.Byte() * 256U + script.Byte()) % 350U);
        const auto text = script.Bytes(script.Byte() % 16U);
        world->editor().Type(cell, {text.begin(), text.end()});
        break;
      }
      case 3:
        world->Save();
        break;
      case 4:
        world->Export();
        break;
      case 5:
        world->SaveAsPreviewed();
        break;
      case 6:
        if (what < 0xC0) {
          world->editor().Undo();
        } else {
          world->editor().Redo();
        }
        break;
      default:
        world->Import(script.Bytes(script.Byte() * std::size_t{4}));
        break;
    }
    if (previews) static_cast<void>(world->editor().Preview());
    // In half of the steps the next one finds what this one has left.
    if (what < 0x80) world->FreeChannel();
  }
  return world;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using morlek::fuzz::Require;
  const Script script({data, size});
  const auto plain = Play(script, false);
  const auto previewed = Play(script, true);
  Require(plain->files() == previewed->files(), "a preview changes no file");
  Require(plain->messages() == previewed->messages(), "a preview shows no message");
  return 0;
}
