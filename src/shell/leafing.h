#pragma once

#include "art/stance_figure.h"
#include "editor/editor.h"

namespace morlek {

/// The piece of which a features column holds the code.
[[nodiscard]] StancePiece PieceOf(Column feature);

/// Puts the next picture's code into a features cell, or with -1 the previous one's; does nothing
/// at that end of the pictures.
void LeafPictures(Editor& editor, Cell cell, int pictures);

}  // namespace morlek
