#pragma once

#include <span>

#include "team/blocks.h"

namespace morlek {

/// The offsets, in its row of the record, of the bytes that a column shows, low byte first. Two
/// ratings share a byte; a pitcher's marks have a byte of their own after the hand's. The span
/// refers to a constant table and stays valid for the whole run.
[[nodiscard]] std::span<const int> BytesOf(Column column);

/// The first of these offsets.
[[nodiscard]] inline int OffsetOf(Column column) { return BytesOf(column).front(); }

}  // namespace morlek
