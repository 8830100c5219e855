#pragma once

#include <cstdint>
#include <functional>

#include "team/codec_state.h"
#include "team/roster_grid.h"

namespace morlek {

/// Gives the byte of a record at a row (0 to 24) and an offset (0 to 31). Throws OperationFailed
/// when it cannot.
using RecordSource = std::function<std::uint8_t(int row, int offset)>;

/// Hears of cells whose bytes no decoder knows. By default it ends the decoder at a rating that is
/// none.
class DecodingListener {
 public:
  virtual ~DecodingListener() = default;

  /// A byte of this cell is unknown, so the cell shows an earlier result. Of a name each such
  /// letter is reported.
  virtual void UnknownByte(Cell /*cell*/) {}

  /// A digit of this rating is none, so there is nothing to show. True when the decoder is to go on
  /// and leave the cell empty, false when it is to end here.
  [[nodiscard]] virtual bool NoRating(Cell /*cell*/) { return false; }
};

/// Turns the bytes of a record into the texts of the grid, one field at a time across the whole
/// roster. A byte that a decoder does not know shows its previous result, so the order of the
/// passes is part of what a load does.
/// Throws OperationFailed when the source does or when `listener` ends it at a rating, and says
/// where; the grid is then filled up to that field.
/// Without all `rows` it works as if the record had no others.
void DecodeRecord(const RecordSource& source, CodecState& state, RosterGrid& grid,
                  DecodingListener& listener, Rows rows = kAllRows);

}  // namespace morlek
