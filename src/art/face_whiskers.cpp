#include <QPainter>
#include <array>
#include <vector>

#include "art/face_parts.h"
#include "art/shapes.h"

namespace morlek::art {
namespace {

/// How far a full beard hangs below the chin.
constexpr qreal kBeardDrop = 2.5;
constexpr qreal kLongBeardDrop = 6;

/// A beard from ear to far cheek round the chin, its upper edge given from the far cheek back.
QPainterPath BeardAround(const JawLine& jaw, qreal drop, std::span<const QPointF> upper_edge) {
  std::vector<QPointF> outline = {{-16, 1},
                                  jaw.back + QPointF(-1, 0.5),
                                  jaw.chin_back + QPointF(0, drop),
                                  jaw.chin_front + QPointF(0, drop),
                                  jaw.front + QPointF(0.6, 0.5)};
  outline.insert(outline.end(), upper_edge.begin(), upper_edge.end());
  return RoundThrough(outline);
}

void PaintStubble(QPainter& painter, const QPainterPath& skull) {
  constexpr std::array<QPointF, 10> kArea = {{{-19, 2},
                                              {-19, 32},
                                              {24, 32},
                                              {24, 8},
                                              {18, 13},
                                              {13, 11.5},
                                              {3, 11.5},
                                              {-3, 15},
                                              {-9, 12},
                                              {-13, 3}}};
  QColor shadow = kHair.light;
  shadow.setAlphaF(0.42F);
  painter.fillPath(RoundThrough(kArea) & skull, shadow);
}

void PaintChops(QPainter& painter) {
  constexpr std::array<QPointF, 7> kChop = {
      {{-17, -8}, {-11, -8}, {-9, 6}, {-1, 15}, {-4, 20}, {-11, 20.5}, {-16.5, 12}}};
  PaintTone(painter, RoundThrough(kChop), kHair, 2);
  constexpr std::array<QPointF, 4> kFarChop = {{{21.5, 3}, {21.8, 12}, {16.5, 20}, {18, 10}}};
  PaintTone(painter, RoundThrough(kFarChop), kHair, 2);
}

}  // namespace

void PaintBeard(QPainter& painter, Whiskers whiskers, const JawLine& jaw,
                const QPainterPath& skull) {
  constexpr std::array<QPointF, 7> kCheekEdge = {
      {{21.5, 4}, {18.5, 11}, {13, 12}, {3, 12}, {-4, 13}, {-9, 9}, {-12, 1}}};
  const QPointF chin = Between(jaw.chin_back, jaw.chin_front, 0.6);
  switch (whiskers) {
    case Whiskers::kStubble:
      PaintStubble(painter, skull);
      break;
    case Whiskers::kBeard:
      PaintSolid(painter, BeardAround(jaw, kBeardDrop, kCheekEdge), kHair);
      break;
    case Whiskers::kLongBeard:
      PaintSolid(painter, BeardAround(jaw, kLongBeardDrop, kCheekEdge), kHair);
      break;
    case Whiskers::kChinCurtain: {
      const std::array<QPointF, 6> edge = {{{21.5, 3},
                                            jaw.front + QPointF(-3.5, 0),
                                            jaw.chin_front + QPointF(-0.5, -4),
                                            jaw.chin_back + QPointF(0.5, -4),
                                            jaw.back + QPointF(4, -1),
                                            {-12, 1}}};
      PaintSolid(painter, BeardAround(jaw, 2, edge), kHair, 2);
      break;
    }
    case Whiskers::kGoatee: {
      const std::array<QPointF, 8> patch = {{{-2, 13},
                                             {-2.5, 20},
                                             chin + QPointF(-8, 0),
                                             chin + QPointF(0, 3),
                                             chin + QPointF(7, 0),
                                             {17, 20},
                                             {17, 13},
                                             {8, 11.6}}};
      PaintSolid(painter, RoundThrough(patch), kHair, 2);
      break;
    }
    case Whiskers::kChinTuft: {
      const std::array<QPointF, 5> tuft = {
          {{8, 20.5}, {3, 23}, chin + QPointF(-4, 1), chin + QPointF(5, 1.5), {13, 23}}};
      PaintSolid(painter, RoundThrough(tuft), kHair, 1);
      break;
    }
    case Whiskers::kChops:
      PaintChops(painter);
      break;
    default:
      break;
  }
}

bool SurroundMouth(Whiskers whiskers) {
  return whiskers == Whiskers::kBeard || whiskers == Whiskers::kLongBeard ||
         whiskers == Whiskers::kGoatee;
}

void PaintMustache(QPainter& painter, Whiskers whiskers) {
  switch (whiskers) {
    case Whiskers::kPencil:
      PaintLine(painter,
                CurveThrough(std::array<QPointF, 5>{
                    {{-0.5, 14.6}, {4, 12.8}, {8, 13.4}, {12, 12.6}, {16, 14.2}}}),
                kHair.shade, 1.9);
      break;
    case Whiskers::kChevron: {
      constexpr std::array<QPointF, 7> kBroad = {
          {{8, 10.8}, {0.5, 13}, {-3.5, 18.5}, {3, 17.8}, {13, 17.6}, {18.5, 18}, {16, 12.8}}};
      PaintTone(painter, RoundThrough(kBroad), kHair, 2);
      break;
    }
    case Whiskers::kHandlebar: {
      constexpr std::array<QPointF, 9> kCurled = {{{-9, 11},
                                                   {-7, 15.6},
                                                   {-2, 15.4},
                                                   {3, 13.4},
                                                   {8, 13.8},
                                                   {13, 13.4},
                                                   {17.5, 15.2},
                                                   {22, 15},
                                                   {23.5, 10.6}}};
      PaintLine(painter, CurveThrough(kCurled), kHair.shade, 3.4);
      break;
    }
    case Whiskers::kHorseshoe: {
      constexpr std::array<QPointF, 7> kHanging = {
          {{-3, 26}, {-3, 18}, {1, 13.8}, {8, 13}, {14.6, 13.8}, {17.6, 18}, {16.6, 25}}};
      PaintLine(painter, CurveThrough(kHanging), kHair.light, 4.2);
      break;
    }
    default:
      break;
  }
}

}  // namespace morlek::art
