#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "editor/editor.h"
#include "image/team_directory.h"
#include "support/memory_disk.h"
#include "support/recording_messages.h"

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

  /// Loads a team, which must write nothing; true when it came through.
  bool Load(std::string_view key);

  /// Saves three times: every write has to go into the image, within the current record, at an
  /// offset that a save may write, and the third save must write what the second one wrote.
  void Save();

  /// Saves once and loads again, when a team is shown and the channel is free: the grid has to be
  /// what a preview said before.
  void SaveAsPreviewed();

  /// Exports the grid; true when it came through. The image must not be touched.
  bool Export();

  /// Imports a file, which must write nothing; true when it came through.
  bool Import(std::span<const std::uint8_t> file);

  /// Closes the channel if a failure has left it open.
  void FreeChannel() { editor_.CancelDialog(); }

  /// All messages so far.
  [[nodiscard]] const std::vector<Message>& messages() const { return messages_.shown; }

  /// All files of the world.
  [[nodiscard]] const auto& files() const { return disk_.files; }

  /// All 350 texts.
  [[nodiscard]] std::string GridTexts() const;

  Editor& editor() { return editor_; }

 private:
  /// Empties the disk's records of what was done to it.
  void Forget();

  void RequireNoWrites() const;
  void CheckWrites() const;

  MemoryDisk disk_;
  RecordingMessages messages_;
  Editor editor_;
};

}  // namespace morlek::fuzz

/// What each fuzz program does with one input, by the name that libFuzzer calls.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
