#pragma once

#include <span>

#include "team/blocks.h"

namespace morlek {

/// The offsets, in its row of the record, of the bytes that a column shows, low byte first. Two
/// ratings share a byte; a pitcher's marks lie apart behind his hand. The span lives for ever.
[[nodiscard]] std::span<const int> BytesOf(Column column);

/// The first of them.
[[nodiscard]] inline int OffsetOf(Column column) { return BytesOf(column).front(); }

}  // namespace morlek
