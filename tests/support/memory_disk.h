#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <vector>

#include "image/channel.h"

namespace morlek {

/// One access to a byte of a file, by its 1-based position. The byte is -1 past the end.
struct ByteAccess {
  std::int64_t position;
  int byte;

  friend bool operator==(const ByteAccess&, const ByteAccess&) = default;
};

/// Files in memory behind the channel's opener. Every access is on record, and any can be made to
/// fail the way a real device does: a read by an exception, a write by the end value.
class MemoryDisk {
 public:
  std::map<std::filesystem::path, std::vector<std::uint8_t>> files;
  std::vector<std::filesystem::path> opened;
  std::vector<ByteAccess> reads;
  std::vector<ByteAccess> writes;
  int open_files = 0;

  /// Which open, read, write or close from now on fails, counted from 1; 0 for none. Either that
  /// one alone or every later one too. `failures` counts those that did, and apart the closes.
  int failing_access = 0;
  bool fails_from_then_on = false;
  int failures = 0;
  int failed_closes = 0;

  /// Counts an access and tells whether it is to fail.
  [[nodiscard]] bool FailsNow();

  /// The opener that a channel takes; the disk has to outlive it.
  [[nodiscard]] FileOpener Opener();
};

}  // namespace morlek
