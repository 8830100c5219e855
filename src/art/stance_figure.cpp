#include "art/stance_figure.h"

#include <QPainter>
#include <QPen>
#include <algorithm>

#include "art/body_art.h"
#include "art/face_art.h"
#include "art/legs_art.h"
#include "art/legs_look.h"
#include "art/palette.h"
#include "art/shapes.h"

namespace morlek {
namespace {

using art::Kit;
using art::Tone;

/// The room that every batter keeps within, his feet at the bottom.
constexpr QRectF kFigureFrame{-84, -207, 164, 215};

/// Where a piece without a picture would be: legs from the ground, the rest from the waist.
constexpr QRectF kUnknownLegs{-21, -86, 42, 86};
constexpr QRectF kUnknownBody{-24, -47, 48, 40};
constexpr QRectF kUnknownFace{-17, -104, 40, 40};

/// Paints a dashed outline with a question mark: something is there that has no picture. Its grey
/// stands out from light and dark backgrounds.
void PaintUnknown(QPainter& painter, const QRectF& room) {
  constexpr QColor kGrey{0x5f, 0x6b, 0x7d};
  constexpr qreal kLineWidth = 2.4;
  constexpr qreal kCornerShare = 0.42;
  const qreal corner = std::min(room.width(), room.height()) * kCornerShare;
  QPen pen(kGrey, kLineWidth, Qt::CustomDashLine, Qt::RoundCap);
  pen.setDashPattern({2, 2.4});
  QPainterPath outline;
  outline.addRoundedRect(room, corner, corner);
  painter.strokePath(outline, pen);

  constexpr qreal kRadius = 7;
  const QPointF middle = room.center();
  const QRectF bow(middle + QPointF(-kRadius, -14), QSizeF(2 * kRadius, 2 * kRadius));
  QPainterPath mark;
  mark.arcMoveTo(bow, 170);
  mark.arcTo(bow, 170, -220);
  mark.quadTo(middle + QPointF(0, 1), middle + QPointF(0, 6));
  art::PaintLine(painter, mark, kGrey, 4.4);
  art::PaintLine(painter, art::Segment(middle + QPointF(0, 13), middle + QPointF(0, 13.1)), kGrey,
                 5);
}

/// Maps a frame into the middle of a target, as large as its proportions allow.
void FitFrame(QPainter& painter, const QRectF& frame, const QRectF& target) {
  const qreal scale = std::min(target.width() / frame.width(), target.height() / frame.height());
  painter.translate(target.center());
  painter.scale(scale, scale);
  painter.translate(-frame.center());
}

Kit KitOf(const ClubColors& club) {
  constexpr int kShadePercent = 140;
  const auto cloth = [](const QColor& color) { return Tone{color, color.darker(kShadePercent)}; };
  const auto halfway_to_white = [](int channel) { return (channel + 255) / 2; };
  const Tone main = cloth(club.main);
  const Tone trim = cloth(club.trim);
  return {.main = main,
          .dark = main,
          .bright = trim,
          .bill = trim,
          .gloss = QColor(halfway_to_white(club.main.red()), halfway_to_white(club.main.green()),
                          halfway_to_white(club.main.blue())),
          .bands = club.trim};
}

}  // namespace

const PictureCodes& PictureCodesOf(StancePiece piece) {
  return piece == StancePiece::kLegs ? kLegsCodes : kFaceAndBodyCodes;
}

void PaintPiece(QPainter& painter, const QRectF& target, StancePiece piece, int code) {
  if (!PictureCodesOf(piece).Contains(code)) return;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  switch (piece) {
    case StancePiece::kFace:
      FitFrame(painter, art::kHeadFrame, target);
      art::PaintHead(painter, code, {});
      break;
    case StancePiece::kBody:
      FitFrame(painter, art::BodyFrame(code), target);
      art::PaintTorso(painter, code, {});
      art::PaintArms(painter, code, {});
      break;
    case StancePiece::kLegs:
      FitFrame(painter, art::LegsFrame(code), target);
      art::PaintLegs(painter, code, {});
      break;
  }
  painter.restore();
}

void PaintStance(QPainter& painter, const QRectF& target, const StanceCodes& codes,
                 const std::optional<ClubColors>& club) {
  const auto has_picture = [](StancePiece piece, std::optional<int> code) {
    return code && PictureCodesOf(piece).Contains(*code);
  };
  const bool has_legs = has_picture(StancePiece::kLegs, codes.legs);
  const bool has_body = has_picture(StancePiece::kBody, codes.body);
  const art::Kit kit = club ? KitOf(*club) : art::Kit();
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  FitFrame(painter, kFigureFrame, target);
  if (has_legs) {
    art::PaintLegs(painter, *codes.legs, kit);
  } else if (codes.legs) {
    PaintUnknown(painter, kUnknownLegs);
  }
  painter.translate(has_legs ? art::LegsLookOf(*codes.legs).waist : art::kStandingWaist);
  if (has_body) {
    art::PaintTorso(painter, *codes.body, kit);
  } else if (codes.body) {
    PaintUnknown(painter, kUnknownBody);
  }
  if (has_picture(StancePiece::kFace, codes.face)) {
    painter.save();
    painter.translate(art::kHeadPlace);
    painter.scale(art::kHeadScale, art::kHeadScale);
    art::PaintHead(painter, *codes.face, kit);
    painter.restore();
  } else if (codes.face) {
    PaintUnknown(painter, kUnknownFace);
  }
  if (has_body) art::PaintArms(painter, *codes.body, kit);
  painter.restore();
}

}  // namespace morlek
