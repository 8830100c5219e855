#include "art/body_art.h"

#include <QPainter>
#include <array>

#include "art/arm_art.h"
#include "art/bat_art.h"
#include "art/body_look.h"
#include "art/shapes.h"

namespace morlek::art {
namespace {

QPainterPath TorsoOf(const Girth& girth) {
  QPainterPath torso(QPointF(-8, -53));
  torso.cubicTo({-14, -51}, {-girth.shoulder + 2, -50}, {-girth.shoulder, -42});
  torso.cubicTo({-girth.shoulder, -36}, {-girth.chest, -34}, {-girth.chest, -26});
  torso.cubicTo({-girth.chest, -16}, {-girth.waist - 1, -10}, {-girth.waist, -3.5});
  torso.quadTo({0, 0}, {girth.waist, -3.5});
  torso.cubicTo({girth.waist + 1, -10}, {girth.chest, -16}, {girth.chest, -26});
  torso.cubicTo({girth.chest, -34}, {girth.shoulder - 2, -36}, {girth.shoulder - 2, -42});
  torso.cubicTo({girth.shoulder - 4, -50}, {16, -51}, {12, -53});
  torso.quadTo({2, -48}, {-8, -53});
  return torso;
}

void PaintNeck(QPainter& painter, const Tone& skin) {
  constexpr std::array<QPointF, 4> kNeck = {{{-5, -61}, {9, -61}, {11, -46}, {-7, -46}}};
  PaintSolid(painter, Polygon(kNeck), skin, 5);
  PaintSolid(painter, Ellipse({2, -61}, 7, 2), {skin.shade, skin.shade});
}

void PaintJerseyFront(QPainter& painter, const QPainterPath& torso, const Tone& undershirt,
                      const QColor& piping) {
  painter.save();
  painter.setClipPath(torso, Qt::IntersectClip);
  constexpr std::array<QPointF, 3> kCollar = {{{-9, -55}, {4, -42}, {13, -55}}};
  painter.fillPath(Polygon(kCollar), undershirt.light);
  constexpr std::array<QPointF, 3> kPlacket = {{{4, -42}, {6, -22}, {5, 6}}};
  PaintLine(painter, CurveThrough(kCollar), piping, 2.2);
  PaintLine(painter, CurveThrough(kPlacket), piping, 2.2);
  painter.restore();
}

}  // namespace

QRectF BodyFrame(int code) {
  constexpr qreal kSmallestFrame = 92;
  const auto [outfit, hold] = BodyLookOf(code);
  const qreal half_width = outfit.girth.shoulder + 3;
  const QPointF tip = hold.knob + BatDirection(hold.angle) * kBatLength;
  return FrameAround(std::array<QRectF, 5>{{{-half_width, -66, 2 * half_width, 68},
                                            SquareAround({hold.knob, 7}),
                                            SquareAround({tip, 6}),
                                            SquareAround({hold.front_elbow, 11}),
                                            SquareAround({hold.rear_elbow, 11})}},
                     kSmallestFrame);
}

void PaintTorso(QPainter& painter, int code, const Kit& kit) {
  const auto [outfit, hold] = BodyLookOf(code);
  if (hold.is_behind) PaintBat(painter, hold.knob, hold.angle);
  PaintNeck(painter, SkinOf(code / 16));
  const QPainterPath torso = TorsoOf(outfit.girth);
  PaintSolid(painter, torso, kJersey, 5);
  PaintJerseyFront(painter, torso, UndershirtOf(outfit.sleeves, kit), kit.main.light);
}

void PaintArms(QPainter& painter, int code, const Kit& kit) {
  const BodyLook look = BodyLookOf(code);
  const Outfit& outfit = look.outfit;
  const BatHold& hold = look.hold;
  const Girth& girth = outfit.girth;
  const Tone skin = SkinOf(code / 16);
  const QPointF direction = BatDirection(hold.angle);
  const auto hand = [&](std::optional<qreal> grip, qreal side) {
    return grip ? hold.knob + direction * *grip : QPointF(side * (girth.waist - 1), -5);
  };
  const Arm rear = {.shoulder = {-girth.shoulder + 7, -42},
                    .elbow = hold.rear_elbow,
                    .hand = hand(hold.rear_grip, -1),
                    .is_front = false};
  const Arm front = {.shoulder = {girth.shoulder - 9, -42},
                     .elbow = hold.front_elbow,
                     .hand = hand(hold.front_grip, 1),
                     .is_front = true};

  PaintArm(painter, rear, outfit, skin, kit);
  PaintArm(painter, front, outfit, skin, kit);
  if (!hold.is_behind) PaintBat(painter, hold.knob, hold.angle);
  if (hold.rear_grip) PaintFist(painter, rear.hand, direction, outfit, skin, kit);
  if (hold.front_grip) PaintFist(painter, front.hand, direction, outfit, skin, kit);
}

}  // namespace morlek::art
