#include "art/face_art.h"

#include <QPainter>
#include <array>

#include "art/face_look.h"
#include "art/face_parts.h"
#include "art/shapes.h"

namespace morlek::art {
namespace {

void PaintLongHair(QPainter& painter) {
  constexpr std::array<QPointF, 8> kMane = {
      {{-20, -12}, {-27, 2}, {-27, 16}, {-22, 27}, {-15, 26}, {-9, 29}, {-4, 22}, {-6, -8}}};
  PaintSolid(painter, RoundThrough(kMane), kHair);
}

void PaintCurls(QPainter& painter) {
  constexpr std::array<Disc, 6> kTufts = {{{{-21, -5}, 5.5},
                                           {{-23.5, 3}, 5.5},
                                           {{-23, 12}, 5.5},
                                           {{-18, 17}, 5.5},
                                           {{-15, 6}, 7},
                                           {{-19, 0}, 7}}};
  QPainterPath curls;
  curls.setFillRule(Qt::WindingFill);
  for (const Disc& tuft : kTufts) curls.addPath(Ellipse(tuft.center, tuft.radius, tuft.radius));
  PaintSolid(painter, curls, kHair);
}

QPainterPath SkullOf(const JawLine& jaw) {
  const std::array<QPointF, 8> points = {{{0, -24},
                                          {-19, -14},
                                          {-19.5, 3},
                                          jaw.back,
                                          jaw.chin_back,
                                          jaw.chin_front,
                                          jaw.front,
                                          {21, -4}}};
  return RoundThrough(points);
}

void PaintEar(QPainter& painter, const Tone& skin) {
  PaintSolid(painter, Ellipse({-18.5, 3.5}, 4.4, 6), skin, 2);
  constexpr std::array<QPointF, 4> kFold = {{{-16.8, 0.5}, {-19.6, 0.8}, {-20, 4}, {-18, 6}}};
  PaintLine(painter, CurveThrough(kFold), skin.shade, 1.5);
}

void PaintSideburn(QPainter& painter) {
  constexpr std::array<QPointF, 5> kSideburn = {
      {{-19, -9}, {-11, -9}, {-12, -2}, {-13.5, 3.5}, {-17, -3}}};
  PaintTone(painter, Polygon(kSideburn), kHair, 1);
}

void PaintHelmet(QPainter& painter, const Kit& kit) {
  QPainterPath dome(QPointF(-24.5, -5));
  dome.cubicTo({-28, -24}, {-17, -32.5}, {0, -32.5});
  dome.cubicTo({16, -32.5}, {25, -24}, {24.5, -9});
  dome.cubicTo({12, -14}, {-4, -13}, {-12, -8});
  dome.cubicTo({-16, -5.5}, {-20, -4.5}, {-24.5, -5});
  PaintSolid(painter, dome, kit.main, 4);

  QPainterPath gloss(QPointF(-19, -16));
  gloss.cubicTo({-17, -24}, {-11, -28}, {-3, -28.5});
  PaintLine(painter, gloss, kit.gloss, 2.6);

  constexpr std::array<QPointF, 4> kEmblem = {
      {{10, -28}, {14.5, -22.5}, {10.5, -17.5}, {5.5, -22.5}}};
  painter.fillPath(Polygon(kEmblem), kWhite);

  QPainterPath bill(QPointF(-9, -10.5));
  bill.cubicTo({2, -18}, {14, -18}, {24.5, -13});
  bill.cubicTo({31, -12}, {36.5, -9}, {36.5, -6.5});
  bill.cubicTo({30, -8.5}, {10, -11.5}, {-9, -10.5});
  PaintSolid(painter, bill, kit.bill, 2);
}

}  // namespace

void PaintHead(QPainter& painter, int code, const Kit& kit) {
  const FaceLook look = FaceLookOf(code);
  const Tone skin = SkinOf(code / 16);

  if (look.locks == Locks::kLong) PaintLongHair(painter);
  const QPainterPath skull = SkullOf(look.jaw);
  PaintSolid(painter, skull, skin, 4);
  PaintMark(painter, look.mark, skin);
  PaintBeard(painter, look.whiskers, look.jaw, skull);
  if (look.locks == Locks::kCurls) PaintCurls(painter);
  PaintSideburn(painter);
  PaintEar(painter, skin);
  PaintEyes(painter, look.eyes);
  PaintBrows(painter, look.brows);
  PaintNose(painter, skin);
  PaintMustache(painter, look.whiskers);
  constexpr QColor kLipsInBeard{0xd0, 0x7f, 0x74};
  PaintMouth(painter, look.mouth, SurroundMouth(look.whiskers) ? kLipsInBeard : kInk);
  PaintEyewear(painter, look.eyewear);
  PaintHelmet(painter, kit);
}

}  // namespace morlek::art
