#include "shell/leafing.h"

#include "codecs/appearance_codec.h"
#include "codecs/hex_text.h"

namespace morlek {

StancePiece PieceOf(Column feature) {
  if (feature == Column::kFace) return StancePiece::kFace;
  return feature == Column::kBody ? StancePiece::kBody : StancePiece::kLegs;
}

void LeafPictures(Editor& editor, Cell cell, int pictures) {
  const std::optional<int> code = AppearanceByte(editor.state().grid.Text(cell));
  const auto next = PictureCodesOf(PieceOf(cell.column)).NextTo(code, pictures < 0);
  if (next) editor.Leaf(cell, ByteToText(*next));
}

}  // namespace morlek
