#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>

#include "image/channel.h"

namespace morlek {

/// What is done to files as a whole, beside reading and writing their bytes. A test puts a failing
/// disk in its place.
struct Disk {
  FileOpener open;

  /// What stands at a path: nothing, a regular file, or something else.
  enum class Entry { kNone, kFile, kOther };
  std::function<Entry(const std::filesystem::path& path)> look;

  /// The size of a file in bytes; nothing when it cannot be found out.
  std::function<std::optional<std::uintmax_t>(const std::filesystem::path& path)> size;

  /// Puts a file in the place of another one or of none; false when that fails, and then both are
  /// as they were. What is replaced hands on its permissions.
  std::function<bool(const std::filesystem::path& from, const std::filesystem::path& to)> move;

  std::function<void(const std::filesystem::path& path)> remove;
};

/// The disk of the real program.
[[nodiscard]] Disk RealDisk();

}  // namespace morlek
