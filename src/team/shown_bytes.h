#pragma once

#include <span>

#include "team/cell.h"

namespace morlek {

/// The offsets, in its row, of the bytes whose values a cell shows. Two ratings share a byte; a
/// pitcher's hand and marks lie apart.
[[nodiscard]] std::span<const int> ShownOffsets(Cell cell);

}  // namespace morlek
