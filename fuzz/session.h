#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "editor/editor.h"
#include "support/memory_disk.h"
#include "support/recording_messages.h"

namespace morlek::fuzz {

/// Hands out bytes one after the other; zeros when they are used up.
class Script {
 public:
  explicit Script(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

  [[nodiscard]] bool is_over() const { return bytes_.empty(); }

  std::uint8_t Byte();
  std::span<const std::uint8_t> Bytes(std::size_t count);
  std::size_t Below(std::size_t count) { return (Byte() * 256U + Byte()) % count; }
  bool OneInTwo() { return Byte() % 2 == 1; }

 private:
  std::span<const std::uint8_t> bytes_;
};

/// A session in an editor over two images in memory: steps of all kinds as bytes choose them, with
/// several teams. After each the promises hold that are checked here, or it throws.
class Session {
 public:
  explicit Session(std::span<const std::uint8_t> script);

  /// Takes all the steps; then goes back to the very beginning and on to the very end.
  void Play();

 private:
  /// Where a step led to.
  struct Point {
    Scene scene;
    RosterGrid grid;
    const Team* picked;

    friend bool operator==(const Point& one, const Point& other) {
      return one.scene == other.scene && one.grid == other.grid;
    }
  };

  [[nodiscard]] Point Here() const { return {state().scene, state().grid, state().picked}; }

  [[nodiscard]] const EditorState& state() const { return editor_.state(); }
  [[nodiscard]] std::vector<std::uint8_t>& file() {
    return disk_.files.at(state().scene.place.image);
  }

  void TakeStep(int kind);

  void Type();
  void PutPicture();
  void PasteBlock();
  void PastePlayer();

  /// Loads a team, which writes nothing; true when it came through.
  bool Load(std::string_view key);
  void LoadTheTeamAgain();

  /// Saves three times. Every write goes into the record of the place that is shown, to a byte that
  /// a save may write, and the third save writes what the second one wrote.
  void Save();
  void SaveAsPreviewed();
  void SaveWhileTheDiskFails();
  void SaveIntoAnotherRecord();

  void Import();
  void ExportAndImport();
  void ChangeTheImage();

  /// Takes a step back, or makes one again; no file is opened.
  void GoOneStep(bool backwards);

  /// Notes where the last step led, unless that is where it was.
  void Follow();
  void CheckState() const;
  void CheckWrites() const;

  /// Empties the disk's records of what was done to it.
  void Forget();

  Script script_;
  MemoryDisk disk_;
  RecordingMessages messages_;
  Editor editor_{messages_, disk_.Opener()};
  // Bytes that no codec knows have been in an image.
  bool is_odd_ = false;
  Player copied_;
  std::string copied_team_;
  std::vector<Point> passed_;
  std::size_t now_ = 0;
};

}  // namespace morlek::fuzz
