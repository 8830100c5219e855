#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>

#include "image/channel.h"

namespace morlek {

/// The byte that distinguishes the game's image from other files, and its 1-based position.
inline constexpr std::int64_t kIdentityPosition = 988297;
inline constexpr std::uint8_t kIdentityByte = 0x3C;

/// The 1-based position of a byte of the record that begins at `base`: slot 0 to 24, offset 0
/// to 31.
[[nodiscard]] std::int64_t FieldPosition(std::int64_t base, int slot, int offset);

/// Whether a file of so many bytes is as long as the game is without the 512 bytes that a copier
/// puts in front of it: whole banks, and room for every team.
[[nodiscard]] constexpr bool LacksCopierHeader(std::uintmax_t size) {
  constexpr std::uintmax_t kBank = 0x8000;
  constexpr std::uintmax_t kEndOfTeams = 1289152;
  return size >= kEndOfTeams && size % kBank == 0;
}

/// A team's record in an image: the image's path and the 1-based position of the record's first
/// byte, which is nothing before a team has been picked.
struct RecordLocation {
  std::filesystem::path image;
  std::optional<std::int64_t> base;
};

/// Cartridge images behind file channel 1. Between operations no file is open and nothing is
/// cached, so every read shows what is on the disk.
class CartridgeImage {
 public:
  /// The channel outlives the object.
  explicit CartridgeImage(Channel& channel) : channel_(channel) {}

  /// The identity byte of the file at `path`; 0 when the file ends before it. Nothing when the file
  /// cannot be opened (the channel is as it was) or read (the channel stays open).
  [[nodiscard]] std::optional<std::uint8_t> ReadIdentityByte(const std::filesystem::path& path);

  /// Opens the image at `path` for one operation; false when that fails.
  [[nodiscard]] bool Open(const std::filesystem::path& path);

  /// Opens it for an operation that only reads; so it may be one that may not be written.
  [[nodiscard]] bool OpenForReading(const std::filesystem::path& path);

  /// The identity byte of the open image; 0 when it ends before it. Throws OperationFailed when the
  /// read fails.
  [[nodiscard]] std::uint8_t ReadIdentityByte();

  /// Closes channel 1, whatever is open on it. False when something written may be lost.
  bool Close();

  /// The byte of a team record: `base` is the 1-based position of the record's first byte, slot 0
  /// to 24, offset 0 to 31. 0 past the end of the file. Throws OperationFailed when there is no
  /// base or the read fails.
  [[nodiscard]] std::uint8_t ReadField(std::optional<std::int64_t> base, int slot, int offset);

  /// Writes a byte of a team record. False when there is no base, when the last Open failed (a file
  /// that something else left open is never touched), or when the write fails.
  [[nodiscard]] bool WriteField(std::optional<std::int64_t> base, int slot, int offset,
                                std::uint8_t value);

 private:
  Channel& channel_;
  bool opened_ = false;
};

}  // namespace morlek
