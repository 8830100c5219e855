#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "support/memory_disk.h"
#include "tools/no_window.h"

namespace morlek::fuzz {

inline constexpr char kImage[] = "game.smc";
inline constexpr char kText[] = "team.txt";

/// Ends the program when a promise is broken; the fuzzer keeps the input that did it.
void Require(bool holds, const char* promise);

/// An editor with the sample image open in memory, that checks every save.
class World {
 public:
  World();

  /// The bytes of the record of the team at this base.
  [[nodiscard]] std::span<std::uint8_t> Record(std::int64_t base);

  /// Loads a team, which must write nothing; true when it came through. A load that fails, like the
  /// operations below, can leave the channel stuck.
  bool Load(std::string_view key);

  /// Saves three times: every write has to go into the image, within the current record, at an
  /// offset that a save may write, and the third save must write what the second one wrote.
  void Save();

  /// Exports the grid; true when it came through. The image must not be touched.
  bool Export();

  /// Imports a file, which must write nothing; true when it came through.
  bool Import(std::span<const std::uint8_t> file);

  /// Closes the channel if a failure has left it open.
  void FreeChannel() { editor_.image.Close(); }

  /// What a file of the world holds.
  [[nodiscard]] const std::vector<std::uint8_t>& File(const char* name) const {
    return disk_.files.at(name);
  }

  /// All 350 texts.
  [[nodiscard]] std::string GridTexts() const;

  Editor& editor() { return editor_; }

 private:
  /// Runs something that ends by an exception when it fails; true when it came through.
  template <typename Operation>
  bool Succeeds(Operation operation);

  /// Empties the disk's records of what was done to it.
  void Forget();

  void RequireNoWrites() const;
  void CheckWrites() const;

  MemoryDisk disk_;
  SilentMessages messages_;
  NoView view_;
  Editor editor_;
};

}  // namespace morlek::fuzz
