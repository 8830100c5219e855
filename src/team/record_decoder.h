#pragma once

#include <cstdint>
#include <functional>

#include "team/codec_state.h"
#include "team/roster_grid.h"

namespace morlek {

/// Gives the byte of a record at a row (0 to 24) and an offset (0 to 31). Throws OperationFailed
/// when it cannot.
using RecordSource = std::function<std::uint8_t(int row, int offset)>;

/// Turns the bytes of a record into the texts of the grid, one field at a time across the whole
/// roster. A byte that a decoder does not know shows its previous result, so the order of the
/// passes is part of what a load does.
/// Throws OperationFailed when the source does or when a rating shows no number, and says where;
/// the grid is then filled up to that field.
void DecodeRecord(const RecordSource& source, CodecState& state, RosterGrid& grid);

}  // namespace morlek
