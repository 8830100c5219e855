#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <span>

#include "team/cell.h"

namespace morlek {

/// Bytes of a team record by row (0 to 24) and offset in the row (0 to 31), each of them there or
/// not.
class RecordBytes {
 public:
  [[nodiscard]] std::optional<std::uint8_t> At(int row, int offset) const {
    return rows_.at(Index(row)).at(Index(offset));
  }
  void Put(int row, int offset, std::uint8_t byte) {
    rows_.at(Index(row)).at(Index(offset)) = byte;
  }

  /// Takes all bytes of a row away.
  void ClearRow(int row) { rows_.at(Index(row)) = {}; }

  /// Whether a byte is there at any of these offsets of a row.
  [[nodiscard]] bool HasAny(int row, std::span<const int> offsets) const {
    return std::ranges::any_of(offsets, [&](int offset) { return At(row, offset).has_value(); });
  }

  /// Puts every byte that is there in `others`.
  void PutAll(const RecordBytes& others) {
    for (const int row : kRowNumbers) {
      auto& own = rows_.at(Index(row));
      std::ranges::transform(others.rows_.at(Index(row)), own, own.begin(),
                             [](auto other, auto mine) { return other ? other : mine; });
    }
  }

  friend bool operator==(const RecordBytes&, const RecordBytes&) = default;

 private:
  static std::size_t Index(int number) { return static_cast<std::size_t>(number); }

  std::array<std::array<std::optional<std::uint8_t>, kSlotBytes>, kSlotCount> rows_;
};

}  // namespace morlek
