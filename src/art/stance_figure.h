#pragma once

#include <QRectF>
#include <optional>

#include "art/picture_codes.h"

class QPainter;

namespace morlek {

enum class StancePiece { kFace, kBody, kLegs };

/// The codes of this piece that have a picture.
[[nodiscard]] const PictureCodes& PictureCodesOf(StancePiece piece);

/// Paints one piece alone as large as the target allows, in the middle. Faces come out at one scale
/// and legs too; a body with a far-reaching bat is a little smaller. The background is left as it
/// is; a code without a picture paints nothing.
void PaintPiece(QPainter& painter, const QRectF& target, StancePiece piece, int code);

/// A piece that is empty or has no picture is left blank.
struct StanceCodes {
  std::optional<int> face;
  std::optional<int> body;
  std::optional<int> legs;
};

/// Paints the batter put together as large as the target allows, in the middle; his width is
/// about 4/5 of his height. Batters of all codes come out at the same scale, on the same ground.
void PaintStance(QPainter& painter, const QRectF& target, const StanceCodes& codes);

}  // namespace morlek
