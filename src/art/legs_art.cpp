#include "art/legs_art.h"

#include <QPainter>
#include <QTransform>
#include <algorithm>
#include <array>
#include <cmath>

#include "art/legs_look.h"
#include "art/shapes.h"

namespace morlek::art {
namespace {

constexpr qreal kFrameSize = 108;
constexpr qreal kHipRadius = 11.5;
constexpr qreal kKneeRadius = 9;
constexpr qreal kCuffRadius = 7.4;
constexpr qreal kCalfRadius = 6.6;
constexpr qreal kAnkleRadius = 4.8;
constexpr QPointF kHipFromWaist{8, 9};

/// The share of the way from knee to ankle that trousers cover.
qreal TrouserShare(Hose hose) {
  if (hose == Hose::kLongTrousers) return 0.92;
  return hose == Hose::kAnkleSocks ? 0.6 : 0.14;
}

/// The shin between two shares of the way from knee to ankle.
QPainterPath ShinPart(const LegPose& leg, qreal from, qreal to) {
  const auto radius = [](qreal share) { return std::lerp(kCalfRadius + 0.6, kAnkleRadius, share); };
  return Capsule({Between(leg.knee, leg.ankle, from), radius(from)},
                 {Between(leg.knee, leg.ankle, to), radius(to)});
}

/// White bands round the sock.
void PaintBands(QPainter& painter, const LegPose& leg, const QColor& color) {
  const QPointF shin = leg.ankle - leg.knee;
  const QPointF across = QPointF(-shin.y(), shin.x()) / std::hypot(shin.x(), shin.y()) * 9;
  for (const qreal share : {0.42, 0.6}) {
    const QPointF middle = Between(leg.knee, leg.ankle, share);
    PaintLine(painter, Segment(middle - across, middle + across), color, 3);
  }
}

/// A stirrup over a white sock: its upper end below the knee and the strap at the foot's side.
void PaintStirrup(QPainter& painter, const LegPose& leg, const Tone& tone) {
  PaintTone(painter, ShinPart(leg, 0.1, 0.42), tone, 2);
  const QPointF side(leg.foot_width > 0 ? 2 : -2, 0);
  const QPointF start = Between(leg.knee, leg.ankle, 0.4);
  PaintLine(painter, Segment(start + side, leg.ankle + side), tone.light, 3.6);
}

Tone SockToneOf(Hose hose, const Kit& kit) {
  if (hose == Hose::kStirrups) return kSock;
  return hose == Hose::kAnkleSocks ? kit.dark : kit.main;
}

void PaintSock(QPainter& painter, const LegPose& leg, Hose hose, const Kit& kit) {
  const QPainterPath sock = ShinPart(leg, 0.1, 1);
  PaintSolid(painter, sock, SockToneOf(hose, kit));
  painter.save();
  painter.setClipPath(sock, Qt::IntersectClip);
  if (hose == Hose::kStripedSocks) PaintBands(painter, leg, kit.bands);
  if (hose == Hose::kStirrups) PaintStirrup(painter, leg, kit.main);
  painter.restore();
}

void PaintShoe(QPainter& painter, const LegPose& leg) {
  constexpr std::array<QPointF, 8> kShoeOutline = {
      {{-7, -3}, {-5.5, -6}, {5, -6.5}, {9, -1.5}, {17, 0.5}, {18.5, 6}, {0, 6.4}, {-7, 6}}};
  constexpr std::array<QPointF, 2> kSole = {{{-6.6, 6}, {18, 6}}};
  QTransform place;
  place.translate(leg.ankle.x(), leg.ankle.y());
  place.rotate(leg.foot_turn);
  place.scale(leg.foot_width, 1);
  PaintSolid(painter, place.map(RoundThrough(kShoeOutline)), kShoe, 2);
  PaintLine(painter, place.map(Polygon(kSole)), kWhite, 1.6);
}

/// The piping along the outer seam, down to the cuff.
void PaintPiping(QPainter& painter, const QPainterPath& trousers, QPointF hip, const LegPose& leg,
                 QPointF cuff, qreal side, const QColor& color) {
  const std::array<QPointF, 3> seam = {
      {hip + QPointF(side * 8, 0), leg.knee + QPointF(side * 5.5, 0), cuff + QPointF(side * 4, 4)}};
  painter.save();
  painter.setClipPath(trousers, Qt::IntersectClip);
  PaintLine(painter, CurveThrough(seam), color, 2);
  painter.restore();
}

/// The room that a foot keeps within, however it is turned.
QRectF FootRoom(const LegPose& leg) {
  const qreal toe = leg.foot_width * 20;
  return {leg.ankle + QPointF(std::min(toe, -8.0), -8), leg.ankle + QPointF(std::max(toe, 8.0), 9)};
}

void PaintTrouserLeg(QPainter& painter, QPointF hip, const LegPose& leg, Hose hose, qreal side,
                     const Kit& kit) {
  const QPointF cuff = Between(leg.knee, leg.ankle, TrouserShare(hose));
  QPainterPath trousers = Capsule({hip, kHipRadius}, {leg.knee, kKneeRadius});
  trousers.addPath(Capsule({leg.knee, kKneeRadius}, {cuff, kCuffRadius}));
  PaintSolid(painter, trousers, kTrousers, 4);
  PaintPiping(painter, trousers, hip, leg, cuff, side, kit.main.light);
}

/// Paints one leg; its outer side is -1, the left, or 1.
void PaintLeg(QPainter& painter, QPointF hip, const LegPose& leg, Hose hose, qreal side,
              const Kit& kit) {
  PaintSock(painter, leg, hose, kit);
  PaintShoe(painter, leg);
  PaintTrouserLeg(painter, hip, leg, hose, side, kit);
}

void PaintHips(QPainter& painter, QPointF waist) {
  QPainterPath hips(waist + QPointF(-17, -2));
  hips.cubicTo(waist + QPointF(-20, 6), waist + QPointF(-20, 14), waist + QPointF(-14, 18));
  hips.quadTo(waist + QPointF(0, 24), waist + QPointF(14, 18));
  hips.cubicTo(waist + QPointF(20, 14), waist + QPointF(20, 6), waist + QPointF(17, -2));
  hips.closeSubpath();
  PaintTone(painter, hips, kTrousers, 4);
  QPainterPath belt;
  belt.addRoundedRect(QRectF(waist + QPointF(-17.5, -3), QSizeF(35, 6.5)), 2, 2);
  PaintSolid(painter, belt, kNavyCloth, 2);
  painter.fillRect(QRectF(waist + QPointF(1.5, -2), QSizeF(6, 4.6)), kGlint);
}

}  // namespace

QRectF LegsFrame(int code) {
  const LegsLook look = LegsLookOf(code);
  const QRectF waist(look.waist - QPointF(19, 6), QSizeF(38, 12));
  return FrameAround(std::array{waist, FootRoom(look.rear), FootRoom(look.front)}, kFrameSize);
}

void PaintLegs(QPainter& painter, int code, const Kit& kit) {
  const LegsLook look = LegsLookOf(code);
  const QPointF rear_hip = look.waist + QPointF(-kHipFromWaist.x(), kHipFromWaist.y());
  const QPointF front_hip = look.waist + kHipFromWaist;
  PaintLeg(painter, rear_hip, look.rear, look.hose, -1, kit);
  PaintLeg(painter, front_hip, look.front, look.hose, 1, kit);
  PaintHips(painter, look.waist);
}

}  // namespace morlek::art
