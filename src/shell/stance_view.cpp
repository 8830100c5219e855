#include "shell/stance_view.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "ui/theme.h"

namespace morlek {
namespace {

/// The areas of a card: the plate at the end of its longer side, a stripe before it, and the figure
/// in the rest.
struct CardParts {
  QRectF figure;
  QRectF stripe;
  QRectF plate;
};

CardParts PartsOf(const QRectF& card) {
  constexpr qreal kPlateHeight = 92;
  constexpr qreal kPlateWidth = 122;
  constexpr qreal kStripe = 4;
  CardParts parts{card, card, card};
  if (card.height() > card.width()) {
    parts.plate.setTop(card.bottom() - kPlateHeight);
    parts.stripe.setTop(parts.plate.top() - kStripe);
    parts.figure.setBottom(parts.stripe.top());
  } else {
    parts.plate.setLeft(card.right() - kPlateWidth);
    parts.stripe.setLeft(parts.plate.left() - kStripe);
    parts.figure.setRight(parts.stripe.left());
  }
  return parts;
}

/// A line of the plate: its text is written in the largest size that fits, and truncated if even
/// the smallest does not.
struct PlateLine {
  int largest_pixels;
  int smallest_pixels;
  int alignment;
};

void Write(QPainter& painter, const QRectF& room, const PlateLine& line, const QString& text) {
  // Longer than any line; measuring a very long text would take time.
  const QString start = text.left(80).replace('\n', ' ');
  QFont font = theme::Font(line.largest_pixels, QFont::Bold);
  const qreal width = QFontMetricsF(font).horizontalAdvance(start);
  if (width > room.width()) {
    const int fitting = qFloor(line.largest_pixels * room.width() / width);
    font.setPixelSize(std::max(fitting, line.smallest_pixels));
  }
  painter.setFont(font);
  painter.drawText(room, line.alignment,
                   QFontMetricsF(font).elidedText(start, Qt::ElideRight, room.width()));
}

/// The number and the position above the name.
void PaintWords(QPainter& painter, const QRectF& plate, const ShownPlayer& player) {
  constexpr qreal kNumberPart = 0.6;
  const bool is_wide = plate.width() > plate.height() * 2;
  QRectF number = plate.adjusted(10, 8, -10, -8);
  QRectF position = number;
  QRectF name = number;
  name.setTop(number.top() + number.height() * kNumberPart);
  number.setBottom(name.top());
  position.setBottom(name.top());
  number.setWidth(number.width() * kNumberPart);
  position.setLeft(number.right());

  constexpr int kAtLeft = Qt::AlignLeft | Qt::AlignVCenter;
  Write(painter, number, {is_wide ? 44 : 40, 12, kAtLeft}, player.number);
  Write(painter, position, {is_wide ? 24 : 20, 11, Qt::AlignRight | Qt::AlignVCenter},
        player.position);
  Write(painter, name, {is_wide ? 24 : 18, 11, kAtLeft}, player.name);
}

StanceCodes WithTried(StanceCodes codes, const std::optional<TriedPicture>& tried) {
  if (!tried) return codes;
  switch (tried->piece) {
    case StancePiece::kFace:
      codes.face = tried->code;
      break;
    case StancePiece::kBody:
      codes.body = tried->code;
      break;
    case StancePiece::kLegs:
      codes.legs = tried->code;
      break;
  }
  return codes;
}

}  // namespace

StanceView::StanceView(QWidget* parent) : QWidget(parent) {
  setObjectName("StanceView");
  setAccessibleName("batting stance");
}

void StanceView::ShowPlayer(const ShownPlayer& player) {
  if (player == player_) return;
  player_ = player;
  setAccessibleDescription(player.name);
  update();
}

void StanceView::Try(const std::optional<TriedPicture>& picture) {
  if (picture == tried_) return;
  tried_ = picture;
  update();
}

void StanceView::paintEvent(QPaintEvent* /*event*/) {
  constexpr qreal kRadius = 4;
  constexpr qreal kMargin = 2.5;
  const CardParts parts = PartsOf(rect());
  const theme::Shades& shades = theme::ShadesOf(palette());
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(shades.line);
  painter.setBrush(shades.tile);
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
  PaintStance(painter, parts.figure.adjusted(kMargin, kMargin, -kMargin, -kMargin),
              WithTried(player_.codes, tried_), player_.club);

  QPainterPath card;
  card.addRoundedRect(rect(), kRadius, kRadius);
  const auto paint_part = [&](const QRectF& place, const QColor& color) {
    QPainterPath part;
    part.addRect(place);
    painter.fillPath(card.intersected(part), color);
  };
  // The plate covers what the stripe's part has beyond its edge.
  paint_part(parts.stripe, player_.club ? player_.club->trim : shades.hover_ring);
  paint_part(parts.plate, player_.club ? player_.club->main : shades.fill);
  painter.setPen(Qt::white);
  PaintWords(painter, parts.plate, player_);
}

}  // namespace morlek
