#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "codecs/message_port.h"
#include "team/kept_state.h"
#include "team/roster_grid.h"

namespace morlek {

/// Takes the byte that a cell (by itself or with others of its row) has become, for an offset (0 to
/// 31) in the cell's row; false when it could not.
using RecordSink = std::function<bool(Cell cell, int offset, std::uint8_t byte)>;

/// Turns the texts of the grid into the bytes of a record: the initials of all names first, then
/// row by row. It skips a step that fails and goes on with the next one: a conversion that fails
/// leaves its working value as it was, so the following write repeats what the same field had in
/// the row before; a byte that the sink does not take is not offered again.
/// A name of more than 10 characters ends it; the result is then that row, else nothing.
std::optional<int> EncodeRecord(const RosterGrid& grid, KeptState& kept, const RecordSink& sink,
                                MessagePort& messages);

}  // namespace morlek
