#pragma once

#include <QRectF>
#include <optional>

class QPainter;

namespace morlek {

enum class StancePiece { kFace, kBody, kLegs };

/// Whether a code, 0 to 255, has a picture: faces and bodies 0x00-0x07 to 0x50-0x57, legs
/// 0x00-0x04 and 0x10-0x14.
[[nodiscard]] bool HasPicture(StancePiece piece, int code);

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
