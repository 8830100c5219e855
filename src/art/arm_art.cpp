#include "art/arm_art.h"

#include <QPainter>
#include <cmath>

#include "art/shapes.h"

namespace morlek::art {
namespace {

constexpr qreal kShoulderRadius = 7.6;
constexpr qreal kElbowRadius = 5.4;
constexpr qreal kWristRadius = 4.2;

/// The upper arm from the shoulder to a share of the way to the elbow, widened by some units.
QPainterPath UpperArmPart(const Arm& arm, qreal to, qreal widening) {
  const qreal radius = std::lerp(kShoulderRadius, kElbowRadius, to);
  return Capsule({arm.shoulder, kShoulderRadius + widening},
                 {Between(arm.shoulder, arm.elbow, to), radius + widening});
}

/// The forearm between two shares of the way from elbow to hand, widened by some units.
QPainterPath ForearmPart(const Arm& arm, qreal from, qreal to, qreal widening) {
  const auto radius = [&](qreal share) { return std::lerp(kElbowRadius, kWristRadius, share); };
  return Capsule({Between(arm.elbow, arm.hand, from), radius(from) + widening},
                 {Between(arm.elbow, arm.hand, to), radius(to) + widening});
}

/// A blue band along the end of a short sleeve.
void PaintHem(QPainter& painter, const Arm& arm, const QPainterPath& sleeve, const QColor& color) {
  painter.save();
  painter.setClipPath(sleeve, Qt::IntersectClip);
  painter.setClipPath(sleeve - UpperArmPart(arm, 0.36, 1.2), Qt::IntersectClip);
  painter.fillPath(sleeve, color);
  painter.restore();
}

void PaintExtras(QPainter& painter, const Arm& arm, Extras extras, const Kit& kit) {
  if (extras == Extras::kWristbands) {
    PaintSolid(painter, ForearmPart(arm, 0.62, 0.74, 0.8), kit.bright, 2);
  }
  if (extras == Extras::kElbowGuard && arm.is_front) {
    const QPainterPath guard = Capsule({Between(arm.elbow, arm.shoulder, 0.22), kElbowRadius + 2},
                                       {Between(arm.elbow, arm.hand, 0.22), kElbowRadius + 1.6});
    PaintSolid(painter, guard, kNavyCloth, 2.5);
    PaintLine(painter, Ellipse(arm.elbow, 1.6, 1.6), kRed, 1.6);
  }
}

}  // namespace

Tone UndershirtOf(Sleeves sleeves, const Kit& kit) {
  if (sleeves == Sleeves::kLongNavy) return kit.dark;
  return sleeves == Sleeves::kThreeQuarterRed ? kit.bright : kit.main;
}

void PaintArm(QPainter& painter, const Arm& arm, const Outfit& outfit, const Tone& skin,
              const Kit& kit) {
  QPainterPath limb = UpperArmPart(arm, 1, -0.6);
  limb.addPath(ForearmPart(arm, 0, 1, 0));
  PaintSolid(painter, limb, skin);

  const bool is_three_quarter = outfit.sleeves == Sleeves::kThreeQuarterRed;
  if (is_three_quarter || outfit.sleeves == Sleeves::kLongBlue ||
      outfit.sleeves == Sleeves::kLongNavy) {
    const qreal cuff = is_three_quarter ? 0.3 : 0.72;
    QPainterPath shirt = UpperArmPart(arm, 1, -0.2);
    shirt.addPath(ForearmPart(arm, 0, cuff, 0.4));
    PaintSolid(painter, shirt, UndershirtOf(outfit.sleeves, kit));
  }
  PaintExtras(painter, arm, outfit.extras, kit);

  const bool is_vest = outfit.sleeves == Sleeves::kVest;
  const QPainterPath sleeve = UpperArmPart(arm, is_vest ? 0.2 : 0.5, 0.8);
  PaintSolid(painter, sleeve, is_vest ? kit.main : kJersey);
  if (!is_vest) PaintHem(painter, arm, sleeve, kit.main.light);
}

void PaintFist(QPainter& painter, QPointF place, QPointF bat_way, const Outfit& outfit,
               const Tone& skin, const Kit& kit) {
  const QPainterPath fist = Capsule({place - bat_way * 1.6, 4.8}, {place + bat_way * 1.8, 4.8});
  const Tone& tone = outfit.extras == Extras::kGloves ? kit.main : skin;
  PaintSolid(painter, fist, tone, 2.4);
  const QPointF across(-bat_way.y() * 3.2, bat_way.x() * 3.2);
  for (const qreal along : {-1.4, 1.6}) {
    const QPointF knuckle = place + bat_way * along;
    PaintLine(painter, Segment(knuckle - across, knuckle + across * 0.4), tone.shade, 1);
  }
}

}  // namespace morlek::art
