#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <span>

#include "image/record_layout.h"

namespace morlek {

/// Bytes of a team record by row (0 to 24) and offset in the row (0 to 31), each of them there or
/// not.
class RecordBytes {
 public:
  [[nodiscard]] std::optional<std::uint8_t> At(int row, int offset) const {
    return bytes_.at(Index(row, offset));
  }
  void Put(int row, int offset, std::uint8_t byte) { bytes_.at(Index(row, offset)) = byte; }

  /// Takes all bytes of a row away.
  void ClearRow(int row) {
    const auto of_row = std::span(bytes_).subspan(Index(row, 0), kSlotBytes);
    std::ranges::fill(of_row, std::nullopt);
  }

  /// Whether a byte is there at any of these offsets of a row.
  [[nodiscard]] bool HasAny(int row, std::span<const int> offsets) const {
    return std::ranges::any_of(offsets, [&](int offset) { return At(row, offset).has_value(); });
  }

  /// Puts every byte that is there in `others`.
  void PutAll(const RecordBytes& others) {
    std::ranges::transform(others.bytes_, bytes_, bytes_.begin(),
                           [](auto other, auto own) { return other ? other : own; });
  }

  friend bool operator==(const RecordBytes&, const RecordBytes&) = default;

 private:
  static std::size_t Index(int row, int offset) {
    return static_cast<std::size_t>(kSlotBytes * row + offset);
  }

  std::array<std::optional<std::uint8_t>, std::size_t{kSlotBytes} * kSlotCount> bytes_;
};

}  // namespace morlek
