#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <vector>

#include "league/disk.h"
#include "league/import_plan.h"

namespace morlek {

/// A byte that could not be put back: what it was, and what stands there now, as far as it can be
/// read.
struct LeftByte {
  std::int64_t position;
  std::uint8_t before;
  std::optional<std::uint8_t> now;

  friend bool operator==(const LeftByte&, const LeftByte&) = default;
};

/// The outcome of writing into an image.
struct ImageWriteResult {
  bool is_written = true;
  /// Empty when all is written, and when the image is as it was.
  std::vector<LeftByte> left;
};

/// Writes all the bytes into the image at `path`. When that fails half way, puts back what stood
/// there. Throws OperationFailed when the image cannot be opened for writing; then nothing is
/// written.
[[nodiscard]] ImageWriteResult WriteIntoImage(const Disk& disk, const std::filesystem::path& path,
                                              std::span<const ByteChange> bytes);

}  // namespace morlek
