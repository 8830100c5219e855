#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>

#include "team/codec_state.h"
#include "team/roster_grid.h"

namespace morlek {

/// Takes the byte that encodes a cell, alone or with others of its row, for a row (0 to 24) and an
/// offset (0 to 31) of the record.
using RecordSink = std::function<void(int row, int offset, std::uint8_t byte)>;

/// Is notified of what cannot be encoded in a name as soon as it is found. It may keep the encoder
/// waiting, as a message box does. By default it does nothing.
class EncodingListener {
 public:
  virtual ~EncodingListener() = default;

  /// The name of this row has a letter that the game lacks; an empty name has the empty letter.
  virtual void UnknownLetter(int /*row*/, std::string_view /*letter*/) {}

  /// The name of this row has more than 10 characters, so the encoder ends here.
  virtual void NameTooLong(int /*row*/) {}

  /// A conversion has failed, so an earlier result stands in for it, perhaps that of another row.
  virtual void ConversionFailed() {}
};

/// Turns the texts of the grid into the bytes of a record: the initials of all names first, then
/// row by row. It skips a step that fails and goes on with the next one: a conversion that fails
/// leaves its working value as it was, so the following write repeats what the same field had in
/// the row before.
/// A name of more than 10 characters ends it; the result is then that row, else nothing.
/// Without all `rows` it works as if the grid had no others.
std::optional<int> EncodeRecord(const RosterGrid& grid, CodecState& state, const RecordSink& sink,
                                EncodingListener& listener, Rows rows = kAllRows);

}  // namespace morlek
