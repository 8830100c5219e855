#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>

#include "image/channel.h"

namespace morlek {

/// The byte that tells the game's image from other files, and its 1-based position.
inline constexpr std::int64_t kIdentityPosition = 988297;
inline constexpr std::uint8_t kIdentityByte = 0x3C;

/// The current cartridge image: a path, and the record in it that the roster grid stands for.
/// Between operations no file is open and nothing is cached, so what is on the disk is the truth.
class CartridgeImage {
 public:
  /// No image and no team yet. The channel outlives the object.
  explicit CartridgeImage(Channel& channel) : channel_(channel) {}

  /// The identity byte of the file at `path`, which need not be the current image; 0 when the file
  /// ends before it. Throws OperationFailed when the file cannot be opened (the channel is as it
  /// was) or read (the channel stays open).
  [[nodiscard]] std::uint8_t ReadIdentityByte(const std::filesystem::path& path);

  /// Makes the file at `path` the current image.
  void SetPath(const std::filesystem::path& path) { path_ = path; }
  [[nodiscard]] const std::filesystem::path& path() const { return path_; }

  /// The 1-based position of the record in the grid; nothing until a team has been picked.
  void SetTeamBase(std::int64_t base) { team_base_ = base; }
  [[nodiscard]] std::optional<std::int64_t> team_base() const { return team_base_; }

  /// Opens the current image for one operation; false when that fails.
  [[nodiscard]] bool Open();

  /// Closes channel 1, whatever is open on it. False when something written may be lost.
  bool Close();

  /// The byte of a field of the current record, slot 0 to 24, offset 0 to 31; 0 past the end of
  /// the file. Throws OperationFailed when there is no current record or the read fails.
  [[nodiscard]] std::uint8_t ReadField(int slot, int offset);

  /// Writes a byte of a field of the current record. False when there is no current record, when
  /// the last Open failed (a file that something else left open is never touched), or when the
  /// write fails.
  [[nodiscard]] bool WriteField(int slot, int offset, std::uint8_t value);

 private:
  [[nodiscard]] std::int64_t FieldPosition(int slot, int offset) const;

  Channel& channel_;
  std::filesystem::path path_;
  std::optional<std::int64_t> team_base_;
  bool opened_ = false;
};

}  // namespace morlek
