#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "support/memory_disk.h"
#include "team/editor.h"

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

  /// Loads a team and frees the channel when that fails; true when it came through.
  bool Load(std::string_view key);

  /// Saves three times: every write has to lie in the current record at an offset that a save may
  /// write, and the third save must change nothing that the second one wrote.
  void Save();

  /// Exports and imports the grid; each frees the channel when it fails. True when they came
  /// through.
  bool Export();
  bool Import(std::span<const std::uint8_t> file);

  /// What a file of the world holds.
  [[nodiscard]] const std::vector<std::uint8_t>& File(const char* name) const {
    return disk_.files.at(name);
  }

  /// All 350 texts.
  [[nodiscard]] std::string GridTexts() const;

  Editor& editor() { return editor_; }

 private:
  class Silence : public MessagePort {
   public:
    void Show(const Message& /*message*/) override {}
  };
  class NoView : public TeamView {
   public:
    void ShowTeamName(std::string_view /*display_name*/) override {}
    void PrepareView() override {}
  };

  void CheckWrites() const;

  MemoryDisk disk_;
  Silence messages_;
  NoView view_;
  Editor editor_;
};

}  // namespace morlek::fuzz
