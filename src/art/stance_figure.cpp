#include "art/stance_figure.h"

#include <QPainter>
#include <algorithm>

#include "art/body_art.h"
#include "art/face_art.h"
#include "art/legs_art.h"
#include "art/legs_look.h"

namespace morlek {
namespace {

/// The room that every batter keeps within, his feet at the bottom.
constexpr QRectF kFigureFrame{-84, -200, 164, 208};

/// Maps a frame into the middle of a target, as large as its proportions allow.
void FitFrame(QPainter& painter, const QRectF& frame, const QRectF& target) {
  const qreal scale = std::min(target.width() / frame.width(), target.height() / frame.height());
  painter.translate(target.center());
  painter.scale(scale, scale);
  painter.translate(-frame.center());
}

std::optional<int> Paintable(StancePiece piece, std::optional<int> code) {
  return code && PictureCodesOf(piece).Contains(*code) ? code : std::nullopt;
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
      art::PaintHead(painter, code);
      break;
    case StancePiece::kBody:
      FitFrame(painter, art::BodyFrame(code), target);
      art::PaintTorso(painter, code);
      art::PaintArms(painter, code);
      break;
    case StancePiece::kLegs:
      FitFrame(painter, art::LegsFrame(code), target);
      art::PaintLegs(painter, code);
      break;
  }
  painter.restore();
}

void PaintStance(QPainter& painter, const QRectF& target, const StanceCodes& codes) {
  const std::optional<int> face = Paintable(StancePiece::kFace, codes.face);
  const std::optional<int> body = Paintable(StancePiece::kBody, codes.body);
  const std::optional<int> legs = Paintable(StancePiece::kLegs, codes.legs);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  FitFrame(painter, kFigureFrame, target);
  if (legs) art::PaintLegs(painter, *legs);
  painter.translate(legs ? art::LegsLookOf(*legs).waist : art::kStandingWaist);
  if (body) art::PaintTorso(painter, *body);
  if (face) {
    painter.save();
    painter.translate(art::kHeadPlace);
    painter.scale(art::kHeadScale, art::kHeadScale);
    art::PaintHead(painter, *face);
    painter.restore();
  }
  if (body) art::PaintArms(painter, *body);
  painter.restore();
}

}  // namespace morlek
