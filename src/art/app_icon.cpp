#include <QLinearGradient>
#include <QPainter>
#include <algorithm>
#include <array>

#include "art/bat_art.h"
#include "art/shapes.h"
#include "art/title_art.h"

namespace morlek {
namespace {

using art::Disc;

/// The icon is drawn on a square of this many units.
constexpr qreal kIconSize = 64;

void PaintBackground(QPainter& painter) {
  QPainterPath background;
  background.addRoundedRect(QRectF(1, 1, kIconSize - 2, kIconSize - 2), 14, 14);
  QLinearGradient light(0, 0, kIconSize * 0.6, kIconSize);
  light.setColorAt(0, QColor(0x3d, 0x7d, 0xee));
  light.setColorAt(1, QColor(0x17, 0x46, 0x9c));
  painter.fillPath(background, light);

  constexpr std::array<QPointF, 4> kDiamond = {{{32, 8}, {56, 32}, {32, 56}, {8, 32}}};
  painter.fillPath(art::Polygon(kDiamond), QColor(0xff, 0xff, 0xff, 0x24));
}

void PaintIconBat(QPainter& painter) {
  constexpr QPointF kKnob{9.6, 54.4};
  constexpr QPointF kTip{52.4, 9.6};
  const auto grip = [&](qreal share) { return Disc{art::Between(kKnob, kTip, share), 2.7}; };
  art::PaintSolid(painter, art::BatShape(kKnob, kTip, 6.8), art::kWood, 3.4);
  art::PaintTone(painter, art::Capsule(grip(0.14), grip(0.34)), art::kNavyCloth, 1);
}

void PaintIconBall(QPainter& painter) {
  constexpr QPointF kCenter{44.5, 45};
  constexpr qreal kRadius = 11.5;
  const QPainterPath ball = art::Ellipse(kCenter, kRadius, kRadius);
  art::PaintSolid(painter, ball, art::kJersey, 4);
  painter.save();
  painter.setClipPath(ball, Qt::IntersectClip);
  for (const qreal side : {-1.0, 1.0}) {
    const QPainterPath seam = art::Ellipse(kCenter + QPointF(side * 13.5, side * 4), 8.5, 11);
    art::PaintLine(painter, seam, art::kRed, 1.8);
  }
  painter.restore();
}

}  // namespace

void PaintAppIcon(QPainter& painter, const QRectF& target) {
  const qreal scale = std::min(target.width(), target.height()) / kIconSize;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(target.center());
  painter.scale(scale, scale);
  painter.translate(-kIconSize / 2, -kIconSize / 2);
  PaintBackground(painter);
  PaintIconBat(painter);
  PaintIconBall(painter);
  painter.restore();
}

}  // namespace morlek
