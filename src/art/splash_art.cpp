#include <QFont>
#include <QLinearGradient>
#include <QPainter>
#include <QRadialGradient>
#include <algorithm>
#include <array>

#include "art/shapes.h"
#include "art/stance_figure.h"
#include "art/title_art.h"

namespace morlek {
namespace {

constexpr QRectF kScene{0, 0, 480, 300};
constexpr qreal kHorizon = 196;

void PaintSky(QPainter& painter) {
  QLinearGradient sky(0, 0, 0, kHorizon);
  sky.setColorAt(0, QColor(0x0f, 0x2c, 0x6b));
  sky.setColorAt(0.82, QColor(0x1f, 0x5f, 0xd0));
  sky.setColorAt(1, QColor(0x9f, 0xc4, 0xfb));
  painter.fillRect(kScene, sky);
}

void PaintFloodlight(QPainter& painter, QPointF foot, qreal height) {
  constexpr QColor kMast{0x16, 0x2c, 0x5e};
  const QPointF top = foot - QPointF(0, height);
  QRadialGradient glow(top, 62);
  glow.setColorAt(0, QColor(0xff, 0xff, 0xff, 0xa0));
  glow.setColorAt(1, QColor(0xff, 0xff, 0xff, 0));
  painter.fillRect(QRectF(top - QPointF(62, 62), QSizeF(124, 124)), glow);
  painter.fillRect(QRectF(top - QPointF(1.5, 0), QSizeF(3, height)), kMast);
  painter.fillRect(QRectF(top - QPointF(17, 8), QSizeF(34, 16)), kMast);
  for (int lamp = 0; lamp < 8; ++lamp) {
    const QPointF place = top + QPointF(-12 + 8 * (lamp % 4), lamp < 4 ? -3.6 : 3.6);
    painter.fillPath(art::Ellipse(place, 2.5, 2.5), QColor(0xff, 0xf8, 0xdc));
  }
}

void PaintStands(QPainter& painter) {
  QPainterPath stands(QPointF(0, 162));
  stands.quadTo({240, 184}, {480, 148});
  stands.lineTo(480, kHorizon + 6);
  stands.lineTo(0, kHorizon + 6);
  stands.closeSubpath();
  painter.fillPath(stands, QColor(0x1a, 0x35, 0x70));

  constexpr std::array<QColor, 4> kCrowd = {
      {{0x5f, 0x8b, 0xd8}, {0xd8, 0xe4, 0xf8}, {0x33, 0x5c, 0xa8}, {0xe2, 0x8a, 0x7c}}};
  painter.save();
  painter.setClipPath(stands.translated(0, 6), Qt::IntersectClip);
  for (int row = 0; row < 7; ++row) {
    for (int seat = 0; seat < 80; ++seat) {
      const QPointF place(seat * 6.1 + (row % 2) * 3, 152 + row * 6);
      const auto shirt = static_cast<std::size_t>(seat * 7 + row * 5 + seat * row) % kCrowd.size();
      painter.fillPath(art::Ellipse(place, 1.5, 1.5), kCrowd.at(shirt));
    }
  }
  painter.restore();
  painter.fillRect(QRectF(0, kHorizon - 8, 480, 14), QColor(0x12, 0x24, 0x4e));
  painter.fillRect(QRectF(0, kHorizon - 8, 480, 2), QColor(0xf2, 0xc9, 0x4c));
}

void PaintField(QPainter& painter) {
  painter.fillRect(QRectF(0, kHorizon + 4, 480, 110), QColor(0x2d, 0x79, 0x3a));
  constexpr QPointF kVanishing{300, 120};
  for (int stripe = -8; stripe < 9; stripe += 2) {
    const qreal left = 269 + stripe * 62;
    const QPainterPath light =
        art::Polygon(std::array<QPointF, 3>{{kVanishing, {left + 62, 300}, {left, 300}}});
    painter.save();
    painter.setClipRect(QRectF(0, kHorizon + 4, 480, 110), Qt::IntersectClip);
    painter.fillPath(light, QColor(0x35, 0x84, 0x42));
    painter.restore();
  }
  painter.fillPath(art::Ellipse({372, 284}, 150, 30), QColor(0xc4, 0x8d, 0x58));
  painter.fillPath(art::Ellipse({372, 281}, 143, 26), QColor(0xd3, 0x9e, 0x68));
  constexpr std::array<QPointF, 5> kPlate = {
      {{362, 283}, {396, 283}, {402, 288.5}, {379, 294}, {356, 288.5}}};
  painter.fillPath(art::Polygon(kPlate), art::kWhite);
}

void PaintWords(QPainter& painter, const QString& words, QPointF baseline, int pixel_size,
                QFont::Weight weight, const QColor& color) {
  QFont font("Roboto");
  font.setPixelSize(pixel_size);
  font.setWeight(weight);
  // The distances of letters are those of their outlines, not of what fits a grid of pixels.
  font.setHintingPreference(QFont::PreferVerticalHinting);
  // Outlines instead of glyph pictures: they stay true at every scale.
  QPainterPath letters;
  letters.addText(baseline, font, words);
  painter.fillPath(letters, color);
}

void PaintTitle(QPainter& painter) {
  constexpr QColor kShadow{0x0a, 0x1d, 0x49};
  constexpr std::array<const char*, 2> kLines = {"MORLEK", "EDITOR"};
  qreal baseline = 72;
  for (const char* line : kLines) {
    PaintWords(painter, line, {24, baseline + 3}, 66, QFont::Bold, kShadow);
    PaintWords(painter, line, {22, baseline}, 66, QFont::Bold, art::kWhite);
    baseline += 57;
  }
}

}  // namespace

void PaintSplash(QPainter& painter, const QRectF& target) {
  painter.save();
  painter.setClipRect(target, Qt::IntersectClip);
  painter.setRenderHint(QPainter::Antialiasing);
  const qreal scale = std::max(target.width() / kScene.width(), target.height() / kScene.height());
  painter.translate(target.center());
  painter.scale(scale, scale);
  painter.translate(-kScene.center());

  PaintSky(painter);
  PaintFloodlight(painter, {334, 190}, 158);
  PaintFloodlight(painter, {455, 190}, 154);
  PaintStands(painter);
  PaintField(painter);
  for (const qreal foot : {326.0, 432.0}) {
    painter.fillPath(art::Ellipse({foot, 272.5}, 25, 4.6), QColor(0x6d, 0x45, 0x25, 0xa0));
  }
  PaintStance(painter, {260, 5, 224, 277}, {.face = 0x03, .body = 0x01, .legs = 0x02});
  PaintTitle(painter);
  PaintWords(painter, "for SNES Dale Harrow Baseball", {24, 153}, 16, QFont::Normal, art::kWhite);
  PaintWords(painter, "Press a key or click to begin", {24, 284}, 13, QFont::Normal, art::kWhite);
  painter.restore();
}

}  // namespace morlek
