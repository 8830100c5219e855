#pragma once

#include <QColor>
#include <QRectF>
#include <optional>

#include "art/picture_codes.h"

class QPainter;

namespace morlek {

enum class StancePiece { kFace, kBody, kLegs };

/// The codes of this piece that have a picture.
[[nodiscard]] const PictureCodes& PictureCodesOf(StancePiece piece);

/// Paints one piece alone as large as the target allows, in the middle. All faces have one scale,
/// and so have all legs; a body whose bat reaches far is a little smaller. The background is left
/// as it is; a code without a picture paints nothing.
void PaintPiece(QPainter& painter, const QRectF& target, StancePiece piece, int code);

/// A code without a picture, such as one that cannot be read.
inline constexpr int kUnknownCode = -1;

/// The pieces of a batter. An empty piece is left blank; a code without a picture, of any value,
/// becomes a dashed question mark.
struct StanceCodes {
  std::optional<int> face;
  std::optional<int> body;
  std::optional<int> legs;

  friend bool operator==(const StanceCodes&, const StanceCodes&) = default;
};

/// The colours in which a club dresses its players: cap and stockings in the main colour, the cap's
/// bill in the trim, undershirts in either.
struct ClubColors {
  QColor main;
  QColor trim;

  friend bool operator==(const ClubColors&, const ClubColors&) = default;
};

/// Paints the batter put together as large as the target allows, in the middle; his width is about
/// 4/5 of his height. Batters of all codes have the same scale and stand on one line. Without a
/// club he wears blue, as the single pieces do.
void PaintStance(QPainter& painter, const QRectF& target, const StanceCodes& codes,
                 const std::optional<ClubColors>& club = std::nullopt);

}  // namespace morlek
