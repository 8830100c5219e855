#pragma once

#include <span>

#include "team/cell.h"

namespace morlek {

/// The offsets, in its row of the record, of the bytes that a column shows, low byte first. Two
/// ratings share a byte; a pitcher's marks have a byte of their own after the hand's. The span
/// refers to a constant table and stays valid for the whole run.
[[nodiscard]] std::span<const int> BytesOf(Column column);

/// The first of these offsets.
[[nodiscard]] inline int OffsetOf(Column column) { return BytesOf(column).front(); }

/// The offsets of the bytes that a save writes for a cell: those that its column shows; for a
/// pitcher's hand the S flag as well, which nothing shows; and for a pitcher's face the byte of his
/// hand, half of which repeats it. Lives for ever.
[[nodiscard]] std::span<const int> WrittenBytesOf(Cell cell);

/// Whether a save writes one byte for both columns of a row.
[[nodiscard]] bool ShareAByte(Cell one, Cell other);

}  // namespace morlek
